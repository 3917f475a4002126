// SPDX-License-Identifier: GPL-3.0-or-later
// Two programs on one store, and what a dead one leaves behind.

#include "apoyo/apoyo.h"
#include "constructor.h"
#include "core/arranque.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSysInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace {

class UnoSolo : public ConAlmacen
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        cerrar_base();
        escribir(carpeta.path() + "/vedra_rtn.cfg"_u, "vedra_rtn.db\n");
    }
    void TearDown() override
    {
        cerrar_base();
        ConAlmacen::TearDown();
    }
    static void escribir(const QString& ruta_, const QByteArray& bytes)
    {
        QFile f(ruta_);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }
    // The first line that the start prints: a box, or that the store is open.
    static QString arrancar(QProcess& p, const QString& carpeta_)
    {
        p.start(QStringLiteral(RTN_ARRANCA), {carpeta_});
        return p.waitForReadyRead(30000) ? QString::fromUtf8(p.readLine()).trimmed()
                                         : QString::fromUtf8(p.readAllStandardError());
    }
    [[nodiscard]] QString cerrojo() const { return ruta() + ".lock"_u; }
};

const QString RECHAZO =
    "Error. No se puede obtener la ruta de acceso a la base de datos (ventanilla.cfg). Comuniquese con el administrador "
    "del sistema|Error de acceso al sistema|La base de datos está abierta en la máquina %1 (proceso %2) desde el %3."_u;

TEST_F(UnoSolo, ElSegundoSeNiegaYElPrimeroSigue)
{
    QProcess primero, segundo;
    ASSERT_EQ(arrancar(primero, carpeta.path()), "abierta"_u);
    EXPECT_TRUE(solo_del_dueno(cerrojo()));
    // Held for days, and the same store by way of a link and of a relative path in another folder.
    const QDateTime antes = QDateTime::currentDateTime().addDays(-9);
    QFile f(cerrojo());
    ASSERT_TRUE(f.open(QIODevice::ReadWrite) && f.setFileTime(antes, QFileDevice::FileModificationTime));
    f.close();
    QTemporaryDir otra(carpeta.path() + "/otra-XXXXXX"_u);
    QFile::link(ruta(), otra.filePath("enlace.db"_u));
    QList<QByteArray> caminos{"../vedra_rtn.db\n"};
#ifndef Q_OS_WIN  // what Qt calls a link there is a shortcut of the desktop
    caminos << "enlace.db\n";
#endif
    for (const QByteArray& cfg : caminos) {
        escribir(otra.filePath("vedra_rtn.cfg"_u), cfg);
        EXPECT_EQ(arrancar(segundo, otra.path()), RECHAZO.arg(QSysInfo::machineHostName())
                                                      .arg(primero.processId())
                                                      .arg(antes.toString("dd/MM/yyyy 'a las' HH:mm"_u)));
        ASSERT_TRUE(segundo.state() == QProcess::NotRunning || segundo.waitForFinished());
        EXPECT_EQ(segundo.exitCode(), 1);
    }
    EXPECT_THROW(construir_almacen({QStringLiteral(RTN_TEXTOS_ALMACEN), {"datos"_u}, ruta(), clave_almacen()}),
                 ErrorAlmacen);
    EXPECT_EQ(primero.state(), QProcess::Running);
    // Killed, it leaves its lock; the next one starts.
    primero.kill();
    ASSERT_TRUE(primero.waitForFinished());
    EXPECT_TRUE(QFile::exists(cerrojo()));
    EXPECT_EQ(arrancar(segundo, carpeta.path()), "abierta"_u);
    segundo.kill();
    ASSERT_TRUE(segundo.waitForFinished());
}

// What a power cut may leave, also under the number of a process that lives.
TEST_F(UnoSolo, UnCandadoSinDuenoNoDejaAfueraANadie)
{
    const QByteArray vivo = QSysInfo::machineHostName().toUtf8() + "\n1\n";
    for (const QByteArray& texto : {QByteArray(), QByteArray(4096, '\0'), QByteArray("\xff\xfe|no"), vivo,
                                    QByteArray("OTRA-PC\n" + QByteArray::number(qint64(getpid())) + "\n")}) {
        escribir(cerrojo(), texto);
        EXPECT_TRUE(abrir_base(oyente));
        cnRtn.cerrar();
        EXPECT_TRUE(abrir_base(oyente));  // its own lock does not keep it out
        cerrar_base();
        EXPECT_FALSE(QFile::exists(cerrojo()));
    }
    // One that is there and can't be looked into may be somebody's.
    ASSERT_TRUE(QDir(carpeta.path()).mkdir("vedra_rtn.db.lock"_u));
    EXPECT_FALSE(abrir_base(oyente));
    EXPECT_EQ(oyente.titulos.last(), "Error de acceso al sistema"_u);
    EXPECT_EQ(oyente.detalles.last(), "No se pudo tomar %1: hay una carpeta con ese nombre"_u.arg(QDir::toNativeSeparators(cerrojo())));
}

TEST_F(UnoSolo, LosArchivosSonDeSuDuenoConCualquierMascara)
{
    const mode_t antes = umask(0);
    const QString nuevo = carpeta.path() + "/nuevo.db"_u;
    construir_almacen({QStringLiteral(RTN_TEXTOS_ALMACEN), {"datos"_u}, nuevo, clave_almacen()});
    QFile::setPermissions(ruta(), QFile::Permissions(0x6666));
    EXPECT_TRUE(abrir_base(oyente));
    umask(antes);
    for (const QString& archivo : {nuevo, ruta(), cerrojo()})
        EXPECT_TRUE(solo_del_dueno(archivo)) << archivo.toStdString();
}

}  // namespace
