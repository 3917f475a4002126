// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/proceso_lote.h"

#include <QDir>
#include <QElapsedTimer>

#include <windows.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int ENTRE_MIRADAS_MS = 30;
constexpr int PARA_IRSE_MS = 2000;
constexpr UINT TERMINADO = 1;

}  // namespace

// A job: what is born in it can't leave it, and ends when its last handle is closed.
struct ProcesoLote::Grupo
{
    Grupo()
    {
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limites = {};
        limites.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        SetInformationJobObject(trabajo, JobObjectExtendedLimitInformation, &limites, sizeof limites);
        SIZE_T largo = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &largo);
        atributos = std::make_unique<char[]>(largo);
        bien = InitializeProcThreadAttributeList(lista(), 1, 0, &largo)
               && UpdateProcThreadAttribute(lista(), 0, PROC_THREAD_ATTRIBUTE_JOB_LIST, &trabajo, sizeof trabajo,
                                            nullptr, nullptr);
    }
    ~Grupo()
    {
        DeleteProcThreadAttributeList(lista());
        CloseHandle(trabajo);
    }
    Grupo(const Grupo&) = delete;
    Grupo& operator=(const Grupo&) = delete;

    [[nodiscard]] LPPROC_THREAD_ATTRIBUTE_LIST lista() const
    {
        return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(atributos.get());
    }
    [[nodiscard]] bool queda() const
    {
        JOBOBJECT_BASIC_ACCOUNTING_INFORMATION cuenta = {};
        return QueryInformationJobObject(trabajo, JobObjectBasicAccountingInformation, &cuenta, sizeof cuenta, nullptr)
               && cuenta.ActiveProcesses > 0;
    }
    // A window of its own, maximized, and birth within the job.
    void preparar(QProcess::CreateProcessArguments* a)
    {
        inicio.StartupInfo = *reinterpret_cast<STARTUPINFOW*>(a->startupInfo);
        inicio.StartupInfo.cb = sizeof inicio;
        inicio.StartupInfo.dwFlags |= STARTF_USESHOWWINDOW;
        inicio.StartupInfo.wShowWindow = SW_SHOWMAXIMIZED;
        inicio.lpAttributeList = lista();
        a->flags &= ~ulong(CREATE_NO_WINDOW);
        a->flags |= CREATE_NEW_CONSOLE;
        if (bien) {
            a->flags |= EXTENDED_STARTUPINFO_PRESENT;
            a->startupInfo = reinterpret_cast<Q_STARTUPINFO*>(&inicio.StartupInfo);
        }
    }

    HANDLE trabajo = CreateJobObjectW(nullptr, nullptr);
    std::unique_ptr<char[]> atributos;
    STARTUPINFOEXW inicio = {};
    bool bien = false;
};

ProcesoLote::ProcesoLote() : grupo_(std::make_unique<Grupo>()) {}

ProcesoLote::~ProcesoLote()
{
    terminar();
}

void ProcesoLote::iniciar(const QString& orden, const QString& carpeta)
{
    std::array<wchar_t, MAX_PATH> sistema = {};
    GetSystemDirectoryW(sistema.data(), UINT(sistema.size()));
    proceso_.setWorkingDirectory(carpeta.startsWith(u"//"_s) ? QDir::tempPath() : carpeta);
    proceso_.setStandardInputFile(QProcess::nullDevice());
    proceso_.setCreateProcessArgumentsModifier([this](QProcess::CreateProcessArguments* a) { grupo_->preparar(a); });
    proceso_.setProgram(QString::fromWCharArray(sistema.data()) + u"\\cmd.exe"_s);
    proceso_.setNativeArguments(orden);
    proceso_.start();
    proceso_.waitForStarted();
}

// The files of what was ended can be deleted once all of it is gone.
void ProcesoLote::terminar()
{
    if (proceso_.state() == QProcess::NotRunning && !grupo_->queda())
        return;
    TerminateJobObject(grupo_->trabajo, TERMINADO);
    proceso_.kill();
    QElapsedTimer desde;
    desde.start();
    proceso_.waitForFinished(PARA_IRSE_MS);
    while (grupo_->queda() && desde.elapsed() < PARA_IRSE_MS)
        Sleep(ENTRE_MIRADAS_MS);
}
