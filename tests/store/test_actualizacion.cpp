// SPDX-License-Identifier: GPL-3.0-or-later
// A store of an earlier version is brought to the present one.

#include "actualizacion.h"
#include "apoyo/procesos.h"
#include "constructor.h"
#include "core/arranque.h"
#include "core/respaldos.h"
#include "core/version_almacen.h"
#include "textos.h"

namespace {

const QString TEXTOS = QStringLiteral(RTN_TEXTOS_ALMACEN);

class Actualizar : public ConProcesos
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        cerrar_base();
        construir_almacen({TEXTOS, {"datos"_u, "muestra"_u}, ruta(), clave_almacen()});
        cnRtn.abrir(ruta(), clave_almacen());
    }
    // A slip was deleted; a role of the catalogue too, though an operation has it.
    static void envejecer()
    {
        cnRtn.ejecutar("insert into SEL_TB_RTN_BOLDEP (SBDI_ID, SBDI_NROBOLETA, SEDJ_NRO) values (41, '7', 'x')"_u);
        cnRtn.ejecutar("update sqlite_sequence set seq=90 where name='SEL_TB_RTN_BOLDEP'"_u);
        cnRtn.ejecutar("pragma foreign_keys=off"_u);
        cnRtn.ejecutarGuion(leer_texto(TEXTOS + "/../tests/store/primera.sql"_u));
        cnRtn.ejecutar("update SEL_TB_RTN_INS_ROLES set SROL_ID=1 where SEDJ_NRO||SEDD_ID||SPIN_ID=(select "
                       "max(SEDJ_NRO||SEDD_ID||SPIN_ID) from SEL_TB_RTN_INS_ROLES)"_u);
    }
    // The engine quotes the names that a table was renamed to, and keeps the names alone of what it makes itself.
    static QString esquema()
    {
        return filas("select type, name, replace(sql, '\"', '') from sqlite_master order by name"_u);
    }
    static QString contenido()
    {
        QString todo;
        for (const QString& t :
             filas("select name from sqlite_master where type='table' and name<>'sqlite_sequence' order by 1"_u)
                 .split(u'\n'))
            todo += filas("select * from %1"_u.arg(t));
        return todo + dato("select seq from sqlite_sequence where name='SEL_TB_RTN_BOLDEP'"_u);
    }
    Actualizacion actualizar(const QString& textos = TEXTOS)
    {
        cerrar_base();
        const Actualizacion a = actualizar_almacen(textos, ruta(), clave_almacen(), QDateTime::currentDateTime());
        cnRtn.abrir(ruta(), clave_almacen());
        return a;
    }
};

TEST_F(Actualizar, LaDeLaPrimeraEntregaTieneElEsquemaDeHoyYTodasSusFilas)
{
    const QString de_hoy = esquema();
    envejecer();
    ASSERT_NE(esquema(), de_hoy);
    const QString antes = contenido();
    ASSERT_GT(antes.size(), 100000);

    const Actualizacion a = actualizar();
    EXPECT_EQ(a.desde, 0);
    EXPECT_EQ(a.sinPadre, 1);
    EXPECT_EQ(version_almacen(cnRtn), VERSION_ALMACEN);
    EXPECT_EQ(esquema(), de_hoy);
    EXPECT_EQ(contenido(), antes);
    EXPECT_TRUE(revisar(cnRtn).sana());

    EXPECT_TRUE(actualizar().respaldo.isEmpty());
    EXPECT_EQ(listar_respaldos(ruta()).size(), 1);
    Conexion copia;
    copia.abrirParaLeer(a.respaldo, clave_almacen());
    EXPECT_EQ(version_almacen(copia), 0);
}

TEST_F(Actualizar, LoQueFallaDejaLaBaseComoEstaba)
{
    envejecer();
    // The last statement of the step is wrong.
    QDir(carpeta.path()).mkpath("t/pasos"_u);
    archivo("t/pasos/1.sql"_u, leer(TEXTOS + "/pasos/1.sql"_u) + "\ndrop table NO_ESTA;\n");
    const QString antes = esquema() + contenido();
    EXPECT_THROW((void)actualizar(carpeta.path() + "/t"_u), ErrorAlmacen);
    cnRtn.abrir(ruta(), clave_almacen());
    EXPECT_EQ(esquema() + contenido(), antes);
    cerrar_base();

    Candado programa;
    programa.tomar(ruta());
    QString salida;
    EXPECT_EQ(correr(QStringLiteral(RTN_CREAR_BASE), {"--actualizar"_u, ruta()}, &salida, true), 1);
    EXPECT_TRUE(salida.startsWith("crear_base: La base de datos está abierta en la máquina "_u));
    programa.soltar();
    EXPECT_EQ(correr(QStringLiteral(RTN_CREAR_BASE), {"--actualizar"_u, ruta()}), 0);
    EXPECT_EQ(correr(QStringLiteral(RTN_CREAR_BASE), {"--actualizar"_u, carpeta.path() + "/otra.db"_u}), 1);
    EXPECT_EQ(correr(QStringLiteral(RTN_CREAR_BASE), {"--actualizar"_u}), 2);
}

// An older store works as it did; what a newer program made is not touched.
TEST_F(Actualizar, ElProgramaNoAbreLaDeUnoMasNuevo)
{
    archivo("vedra_rtn.cfg"_u, "vedra_rtn.db\n");
    for (const int version : {0, VERSION_ALMACEN + 1}) {
        cnRtn.ejecutar("pragma user_version=%1"_u.arg(version));
        cerrar_base();
        const bool nueva = version > VERSION_ALMACEN;
        EXPECT_EQ(abrir_base(oyente), !nueva);
        EXPECT_EQ(cnRtn.abierta() || candadoRtn.tomado(), !nueva);
        cerrar_base();
        if (nueva) {
            EXPECT_TRUE(oyente.ultimo().startsWith("Error. No se puede obtener la ruta"_u));
            EXPECT_TRUE(oyente.detalles.constLast().endsWith("Actualice el programa."_u));
            EXPECT_THROW((void)actualizar(), ErrorAlmacen);
        }
        cnRtn.abrir(ruta(), clave_almacen());
    }
}

}  // namespace
