// SPDX-License-Identifier: GPL-3.0-or-later
// One emission on a disk that fails at each of its calls in turn.

#include "apoyo/apoyo.h"
#include "campania/disco.h"
#include "filing/lector_dj.h"
#include "rar5.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <filesystem>

namespace {

class DiscoLlenoOrden : public ConAlmacen
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        dj = nueva_dj();
        for (const int id : {1, 2}) {
            nueva_escritura(dj, id, id, id, 1);
            const QString testimonio = carpeta.path() + "/t%1.pdf"_u.arg(id);
            QFile f(testimonio);
            ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(QByteArray(5000, char('a' + id))) == 5000);
            cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SEDD_FNAME_TESTIMONIO='%1' where SEDD_ID=%2"_u.arg(
                testimonio, QString::number(id)));
        }
        cnRtn.cerrar();
        ASSERT_TRUE(QDir().mkpath(disco() + "/programa"_u) && QDir().mkpath(disco() + "/destino"_u));
        ASSERT_TRUE(QFile::copy(QStringLiteral(RTN_RAR), disco() + "/programa/rar"_u));
        ASSERT_TRUE(QFile::copy(ruta(), almacen()));
        ASSERT_EQ(emitir(0), 0) << dicho.toStdString();
        antes = leer(archivo());
        Conexion cn;
        cn.abrir(almacen(), clave_almacen());
        cn.ejecutar("update SEL_TB_RTN_CABDJ set SEDJ_TELEFONO='4422'"_u);
        cn.cerrar();
        poner(disco(), carpeta.path() + "/guardado"_u);
        ASSERT_EQ(emitir(0), 0) << dicho.toStdString();
        despues = leer(archivo());
        ASSERT_NE(antes, despues);
    }
    [[nodiscard]] QString disco() const { return QFileInfo(carpeta.path()).canonicalFilePath() + "/disco"_u; }
    [[nodiscard]] QString almacen() const { return disco() + "/programa/vedra_rtn.db"_u; }
    [[nodiscard]] QString archivo() const { return disco() + "/programa/data/%1/SRTN%1.txt"_u.arg(dj); }
    [[nodiscard]] QString traza() const { return carpeta.path() + "/traza"_u; }
    [[nodiscard]] QString rar() const { return disco() + "/destino/SRTN%1.rar"_u.arg(dj); }

    static void poner(const QString& de, const QString& a)
    {
        std::filesystem::remove_all(a.toStdString());
        std::filesystem::copy(de.toStdString(), a.toStdString(), std::filesystem::copy_options::recursive);
    }
    static QByteArray leer(const QString& ruta)
    {
        QFile f(ruta);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(no está)");
    }
    // The n-th call fails; gives the status of the emission, and takes down what was said.
    int emitir(int n, const char* error = "ENOSPC")
    {
        QFile::remove(traza());
        const DiscoQueFalla falla{disco(), carpeta.path() + "/cuenta"_u};
        QProcessEnvironment entorno = falla.entorno(n, error);
        entorno.insert("RTN_FALLA_TRAZA"_u, traza());
        QProcess p;
        p.setProcessEnvironment(entorno);
        p.setProcessChannelMode(QProcess::MergedChannels);
        p.start(QStringLiteral(RTN_EMITIR), {disco() + "/programa"_u, dj, disco() + "/destino"_u});
        if (!p.waitForFinished(60000) || p.exitStatus() != QProcess::NormalExit)
            return -1;
        dicho = QString::fromUtf8(p.readAll());
        fallo = falla.contadas().second == 1;
        return p.exitCode();
    }
    // Whether file and code are the new pair; an error when they are neither that nor the earlier one.
    [[nodiscard]] bool parNuevo() const
    {
        Conexion cn;
        cn.abrir(almacen(), clave_almacen());
        const QByteArray hay = leer(archivo());
        EXPECT_EQ(leer_archivo_dj(hay).codigo, Recordset(cn, "select SEDJ_MD5 from SEL_TB_RTN_CABDJ"_u).texto(0));
        EXPECT_TRUE(hay == antes || hay == despues);
        EXPECT_EQ(Recordset(cn, "pragma integrity_check"_u).texto(0), "ok"_u);
        return hay == despues;
    }
    // Whether the archive is the new one; an error when it is not whole.
    [[nodiscard]] bool archivoNuevo() const
    {
        const std::string ruta = rar().toStdString();
        QByteArray devuelto;
        const auto entradas = listar_rar(ruta);
        EXPECT_EQ(entradas.size(), 3);
        for (const EntradaRar& e : entradas) {
            QByteArray bytes;
            EXPECT_TRUE(leer_entrada(ruta, e, [&](const char* p, size_t n) { bytes.append(p, qsizetype(n)); }));
            if (e.nombre.ends_with(".txt"))
                devuelto = bytes;
        }
        EXPECT_TRUE(devuelto == antes || devuelto == despues);
        return devuelto == despues;
    }
    [[nodiscard]] QStringList sobras() const
    {
        QStringList restos;
        for (const auto& e : std::filesystem::recursive_directory_iterator(disco().toStdString()))
            if (const auto nombre = e.path().filename().string();
                nombre.ends_with(".nuevo") || nombre.ends_with(".anterior")
                || e.path() == (disco() + "/programa/dj.rar"_u).toStdString())
                restos << QString::fromStdString(e.path().string());
        return restos;
    }

    QString dj, dicho;
    QByteArray antes, despues;
    bool fallo = false;
};

class DiscoLleno : public DiscoLlenoOrden, public testing::WithParamInterface<const char*>
{
};

TEST_P(DiscoLleno, CadaLlamadaDejaLoAnteriorOLoNuevo)
{
    const QString motivo = qstrcmp(GetParam(), "EIO") == 0 ? "el disco no pudo leer o escribir"_u
                                                           : "no queda lugar en el disco"_u;
    int delMotor = 0, delEmpaquetador = 0, n = 0;
    for (fallo = true; fallo;) {
        SCOPED_TRACE(++n);
        poner(carpeta.path() + "/guardado"_u, disco());
        const int estado = emitir(n, GetParam());
        SCOPED_TRACE(dicho.toStdString());
        ASSERT_TRUE(estado == 0 || estado == 1);
        EXPECT_EQ(sobras(), QStringList());
        const bool par = parNuevo();
        const bool rar = archivoNuevo();
        EXPECT_FALSE(rar && !par);
        if (estado == 0) {
            EXPECT_TRUE(par && rar);
            continue;
        }
        const bool motor = dicho.contains("El disco está lleno: no se pudo guardar."_u)
                           || dicho.contains("No se pudo leer o escribir en el disco."_u)
                           || dicho.contains("No se pudo escribir junto a la base de datos"_u);
        EXPECT_TRUE(motor || dicho.contains(motivo));
        delMotor += motor;
        delEmpaquetador += dicho.contains("rar: "_u);
    }
    RecordProperty("llamadas", n - 1);
    // The calls of all who write are met: the program's own, the engine's, the packer's.
    EXPECT_GT(delMotor, 3);
    EXPECT_GT(delEmpaquetador, 3);
    EXPECT_GT(n - delMotor - delEmpaquetador, 10);
}
// What the authority or the office keeps is on the disk under its own name before the emission is told; the
// copies that are packed are not waited for.
TEST_F(DiscoLlenoOrden, LoEmitidoEstaEnElDiscoAntesDeDecirlo)
{
    poner(carpeta.path() + "/guardado"_u, disco());
    ASSERT_EQ(emitir(0), 0);
    const QStringList llamadas = QString::fromUtf8(leer(traza())).split(u'\n');
    const QString armado = QFileInfo(almacen()).path() + "/dj.rar"_u;
    for (const auto& [aparte, nombre] : {std::pair(archivo() + ".nuevo"_u, archivo()), std::pair(armado, rar())}) {
        qsizetype lugar = -1;
        for (const QString& llamada :
             {"write "_u + aparte, "fsync "_u + aparte, "rename "_u + nombre, "fsync "_u + QFileInfo(nombre).path()}) {
            const qsizetype siguiente = llamadas.indexOf(llamada, lugar + 1);
            EXPECT_GT(siguiente, lugar) << llamada.toStdString();
            lugar = siguiente;
        }
    }
    EXPECT_EQ(llamadas.filter("write "_u).filter("/testimonios/"_u).size(), 2);
    EXPECT_EQ(llamadas.filter("fsync "_u).filter("/testimonios"_u), QStringList());
    // The code is committed behind the file's new name.
    EXPECT_GT(llamadas.lastIndexOf("fdatasync "_u + almacen()), llamadas.indexOf("rename "_u + archivo()));
}
INSTANTIATE_TEST_SUITE_P(Errores, DiscoLleno, testing::Values("ENOSPC", "EIO"));

}  // namespace
