// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/lote_empaquetador.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

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

LoteEnMarcha::LoteEnMarcha(TrabajoEmpaquetador trabajo, std::chrono::milliseconds sin_noticias)
    : trabajo_(std::move(trabajo)), sin_noticias_(sin_noticias)
{
    proceso_.setStandardInputFile(QProcess::nullDevice());
    proceso_.setChildProcessModifier(preparar_proceso);
    proceso_.start(u"/bin/sh"_s, {trabajo_.lote});
    // The group can be ended once the child has made it.
    proceso_.waitForStarted();
    callado_.start();
}

LoteEnMarcha::~LoteEnMarcha()
{
    terminar();
    QFile::remove(trabajo_.archivo);
    QFile::remove(trabajo_.archivo + u".nuevo"_s);
}

bool LoteEnMarcha::termino()
{
    return proceso_.state() == QProcess::NotRunning || proceso_.waitForFinished(0);
}

bool LoteEnMarcha::esperar(Dialogo& dialogo, const QString& titulo)
{
    while (proceso_.state() != QProcess::NotRunning) {
        proceso_.waitForFinished(ENTRE_MIRADAS_MS);
        oir();
        if (!dialogo.seguir(avance(), bytesHechos_ + bytesDeEste_, trabajo_.bytes)) {
            terminar();
            return false;
        }
        if (proceso_.state() == QProcess::NotRunning || std::chrono::milliseconds(callado_.elapsed()) < sin_noticias_)
            continue;
        if (dialogo.preguntar({u"El empaquetador no avanza desde hace %1 segundos.\n\n¿Desea esperarlo, o terminarlo y "
                               u"cancelar la emisión?"_s.arg(callado_.elapsed() / 1000),
                               titulo, Icono::exclamacion, fichero_, u"&Terminar"_s, u"&Esperar"_s})) {
            terminar();
            return false;
        }
        callado_.start();
    }
    return true;
}

bool LoteEnMarcha::bien() const
{
    return proceso_.exitStatus() == QProcess::NormalExit && proceso_.exitCode() == 0;
}

QString LoteEnMarcha::queja()
{
    const QStringList lineas = QString::fromUtf8(proceso_.readAllStandardError()).split(u'\n');
    return lineas.filter(QRegularExpression(u"^rar: "_s)).join(u'\n');
}

// The shell and the packer that it runs, first asked, then made to.
void LoteEnMarcha::terminar()
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

// Any word of the packer and any growth of the archive are progress; only this program's own packer tells how far it is.
void LoteEnMarcha::oir()
{
    const QByteArray salida = proceso_.readAllStandardOutput();
    const qint64 largo = QFileInfo(trabajo_.archivo).size();
    if (!salida.isEmpty() || largo != largo_)
        callado_.start();
    largo_ = largo;
    dicho_ += salida;
    qsizetype desde = 0;
    for (qsizetype fin = dicho_.indexOf('\n'); fin >= 0; fin = dicho_.indexOf('\n', desde)) {
        oirLinea(QString::fromUtf8(dicho_.mid(desde, fin - desde)));
        desde = fin + 1;
    }
    dicho_.remove(0, desde);
}

void LoteEnMarcha::oirLinea(const QString& linea)
{
    static const QRegularExpression FORMA(u"^(\\d{1,18})/(\\d{1,18}) (.+)$"_s);
    const QRegularExpressionMatch m = FORMA.match(linea);
    if (!m.hasMatch())
        return;
    fichero_ = m.captured(3);
    bytesDeEste_ = m.captured(1).toLongLong();
    if (bytesDeEste_ == m.captured(2).toLongLong()) {
        ++hechos_;
        bytesHechos_ += bytesDeEste_;
        bytesDeEste_ = 0;
    }
}

QString LoteEnMarcha::avance() const
{
    if (fichero_.isEmpty())
        return u"Empaquetando la declaración jurada…"_s;
    const auto bytes = [](qint64 n) {
        return QLocale(QLocale::Spanish).formattedDataSize(n, 1, QLocale::DataSizeSIFormat);
    };
    return u"Empaquetados %1 de %2 archivos\n%3 (%4 de %5)"_s.arg(hechos_)
        .arg(trabajo_.ficheros)
        .arg(fichero_, bytes(bytesHechos_ + bytesDeEste_), bytes(trabajo_.bytes));
}
