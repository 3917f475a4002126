// SPDX-License-Identifier: GPL-3.0-or-later
// What the package installs: the launcher, and what the desktop and the distribution ask of its files.

#include "apoyo/procesos.h"
#include "asistente/eleccion.h"
#include "core/version_almacen.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

namespace {

// The package's files below a folder of the suite's own, and a home in which nobody has started the program.
class Paquete : public ConProcesos
{
protected:
    static void SetUpTestSuite()
    {
        raiz = new QTemporaryDir;
        ASSERT_EQ(correr(QStringLiteral(RTN_CMAKE), {"--install"_u, QStringLiteral(RTN_CONSTRUCCION), "--component"_u,
                                                     "paquete"_u, "--prefix"_u, raiz->path()}),
                  0);
    }
    static void TearDownTestSuite() { delete std::exchange(raiz, nullptr); }
    // Without a display, unless a shell says otherwise.
    int lanzar(const QString& argumentos)
    {
        return correr("/bin/sh"_u,
                      {"-c"_u, "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM HOME='%1' '%2' %3"_u.arg(
                                   carpeta.path(), raiz->filePath("bin/vedra-rtn"_u), argumentos)},
                      &dicho, true);
    }
    [[nodiscard]] QString suyo(const char* nombre) const
    {
        return carpeta.path() + "/VEDRA-RTN/"_u + QLatin1StringView(nombre);
    }
    QString dicho;
    static inline QTemporaryDir* raiz = nullptr;
};

TEST_F(Paquete, ElLanzadorPreparaLaCarpetaYNoReemplazaLoDelUsuario)
{
    const QString base = suyo("vedra_rtn.db");
    EXPECT_EQ(lanzar({}), 2);
    EXPECT_TRUE(dicho.contains("elija --vacia o --muestra"_u));
    EXPECT_EQ(lanzar("--vacia --muestra"_u), 2);
    EXPECT_FALSE(QFile::exists(base));
    ASSERT_EQ(lanzar("--muestra"_u), 0) << dicho.toStdString();
    EXPECT_EQ(leer(suyo("vedra_rtn.cfg")), "vedra_rtn.db\n");
    for (const char* nombre : {"", "vedra_rtn", "vedra_rtn.db"})
        EXPECT_EQ(modo_de(suyo(nombre)) & 077U, 0U) << nombre;

    // Another version was installed, and the store is of the earlier one.
    const QByteArray configuracion = "vedra_rtn.db\r\notra línea\n";
    archivo("VEDRA-RTN/vedra_rtn.cfg"_u, configuracion);
    archivo("VEDRA-RTN/rar"_u, "viejo");
    Conexion cn;
    cn.abrir(base, clave_almacen());
    cn.ejecutar("pragma user_version=0"_u);
    cn.ejecutar("delete from SEL_TB_RTN_PADRON where SRTN_NRO=(select min(SRTN_NRO) from SEL_TB_RTN_PADRON)"_u);
    cn.cerrar();
    EXPECT_EQ(lanzar({}), 0);
    EXPECT_TRUE(dicho.contains("pasó de la versión 0"_u)) << dicho.toStdString();
    EXPECT_EQ(leer(suyo("rar")), leer(raiz->filePath("lib/vedra-rtn/rar"_u)));
    EXPECT_EQ(leer(suyo("vedra_rtn.cfg")), configuracion);
    EXPECT_TRUE(QDir(suyo("")).entryList({"*.nuevo"_u}).isEmpty());
    cn.abrir(base, clave_almacen());
    EXPECT_EQ(version_almacen(cn), VERSION_ALMACEN);
    EXPECT_EQ(Recordset(cn, "select count(*) from SEL_TB_RTN_PADRON"_u).entero(0), 2);
    cn.cerrar();

    EXPECT_EQ(lanzar("--vacia"_u), 1);
    EXPECT_TRUE(dicho.contains("no se la toca"_u));
    EXPECT_EQ(lanzar("respaldo lista"_u), 0);
    EXPECT_TRUE(dicho.contains("previo "_u) && dicho.contains(" sano"_u)) << dicho.toStdString();
    // A store that was lost is not made anew: the copies are there.
    QFile::remove(base);
    EXPECT_EQ(lanzar({}), 0);
    EXPECT_FALSE(QFile::exists(base));
}

TEST_F(Paquete, PaginasYCompletadoDicenTodasLasOpciones)
{
    const QString completado = QString::fromUtf8(leer(raiz->filePath("share/bash-completion/completions/vedra-rtn"_u)));
    static const QRegularExpression opcion("--[a-z]+"_u);
    ASSERT_EQ(lanzar("--vacia"_u), 0);
    for (const char* orden : {"", "respaldo", "leer_dj", "crear_base"}) {
        const QString pagina = "vedra-rtn"_u + (*orden ? "-"_u : QString()) + QLatin1StringView(orden);
        QString manual;
        ASSERT_EQ(correr("gzip"_u, {"-dc"_u, raiz->filePath("share/man/man1/%1.1.gz"_u.arg(pagina))}, &manual), 0);
        manual.remove(u'\\');
        ASSERT_EQ(lanzar(QLatin1StringView(orden) + " --ayuda"_u), 0);
        int cuantas = 0;
        for (const auto& m : opcion.globalMatch(dicho)) {
            EXPECT_TRUE(manual.contains(m.captured())) << pagina.toStdString() << m.captured().toStdString();
            EXPECT_TRUE(completado.contains(m.captured())) << m.captured().toStdString();
            ++cuantas;
        }
        EXPECT_GT(cuantas, 2) << pagina.toStdString();
    }
}

struct Validador
{
    const char* programa;
    const char* argumentos;  // of the shell
};
class PaqueteValido : public Paquete, public testing::WithParamInterface<Validador>
{
};

TEST_P(PaqueteValido, SinErrores)
{
    const QString programa = QString::fromLatin1(GetParam().programa);
    for (const QString& p : {programa, programa == u"lintian" ? "dpkg-shlibdeps"_u : programa})
        if (QStandardPaths::findExecutable(p).isEmpty())
            GTEST_SKIP() << p.toStdString() << " is not installed";
    QString salida;
    const QString orden = "set -e; raiz='%1'; aqui='%2'; construccion='%3'; "_u.arg(raiz->path(), carpeta.path(),
                                                                                    QStringLiteral(RTN_CONSTRUCCION))
                          + QString::fromLatin1(GetParam().argumentos);
    EXPECT_EQ(correr("/bin/sh"_u, {"-c"_u, orden}, &salida, true), 0) << salida.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    De, PaqueteValido,
    testing::Values(Validador{"desktop-file-validate", "desktop-file-validate $raiz/share/applications/*.desktop"},
                    Validador{"appstreamcli", "appstreamcli validate --no-net $raiz/share/metainfo/*.xml"},
                    Validador{"shellcheck", "shellcheck $raiz/bin/vedra-rtn"},
                    Validador{"lintian", "cpack --config $construccion/CPackConfig.cmake -B $aqui >/dev/null; "
                                         "lintian --allow-root --fail-on error $aqui/*.deb"}),
    [](const auto& caso) { return QString::fromLatin1(caso.param.programa).remove(u'-').toStdString(); });

TEST(PaqueteAsistente, LaBaseSeEligeConElTeclado)
{
    for (const auto& [tecla, elegida] : {std::pair(Qt::Key_M, "muestra"_u), std::pair(Qt::Key_V, "vacia"_u)}) {
        Eleccion e;
        e.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&e));
        QTest::keyClick(&e, tecla, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return e.elegida() == elegida; }));
        QTest::keyClick(&e, Qt::Key_Return);
        EXPECT_EQ(e.result(), QDialog::Accepted);
    }
}

}  // namespace
