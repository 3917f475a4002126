// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/proceso_lote.h"

#include <QElapsedTimer>

#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t NADIE_MAS = 077;
constexpr int ENTRE_MIRADAS_MS = 30;
constexpr int PARA_IRSE_MS = 2000;

// In the child: a group of its own, which can be ended as one, and which ends with the program. Another packer makes
// its files for the user alone, too.
void preparar_proceso()
{
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    umask(NADIE_MAS);
}

}  // namespace

// The group of processes is that of the shell.
struct ProcesoLote::Grupo
{
};

ProcesoLote::ProcesoLote() = default;

ProcesoLote::~ProcesoLote()
{
    terminar();
}

void ProcesoLote::iniciar(const QString& orden, const QString& carpeta)
{
    proceso_.setWorkingDirectory(carpeta);
    proceso_.setStandardInputFile(QProcess::nullDevice());
    proceso_.setChildProcessModifier(preparar_proceso);
    proceso_.start(u"/bin/sh"_s, {orden});
    // The group can be ended once the child has made it.
    proceso_.waitForStarted();
}

void ProcesoLote::terminar()
{
    if (proceso_.state() == QProcess::NotRunning)
        return;
    const auto grupo = pid_t(-proceso_.processId());
    ::kill(grupo, SIGTERM);
    ::kill(grupo, SIGCONT);  // one that was stopped hears the other signals only then
    QElapsedTimer desde;
    desde.start();
    while (::kill(grupo, 0) == 0 && desde.elapsed() < PARA_IRSE_MS)
        proceso_.waitForFinished(ENTRE_MIRADAS_MS);
    ::kill(grupo, SIGKILL);
    proceso_.waitForFinished();
}
