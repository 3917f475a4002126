// SPDX-License-Identifier: GPL-3.0-or-later
// The copies of the store: which are kept, when one is made, what is told when something is wrong.

#include "apoyo/ventanas.h"
#include "core/arranque.h"
#include "core/cuidado.h"
#include "core/reloj.h"
#include "core/respaldos.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "manejo/manejo.h"
#include "widgets/mensajes.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QTest>

namespace {

using namespace manejo;

QStringList quedan(QStringList marcas)
{
    const QStringList sobran = respaldos_que_sobran(marcas);
    marcas.removeIf([&](const QString& m) { return sobran.contains(m); });
    return marcas;
}

TEST(RespaldosQueQuedan, DiezDiasYDosAniosDeMeses)
{
    QStringList marcas;
    for (QDate d(2024, 1, 1); d <= QDate(2026, 11, 23); d = d.addDays(1))
        marcas = quedan(marcas << d.toString(Qt::ISODate));
    QStringList esperadas;
    for (QDate mes(2024, 12, 1); mes < QDate(2026, 11, 1); mes = mes.addMonths(1))
        esperadas << QDate(mes.year(), mes.month(), mes.daysInMonth()).toString(Qt::ISODate);
    for (QDate d(2026, 11, 14); d <= QDate(2026, 11, 23); d = d.addDays(1))
        esperadas << d.toString(Qt::ISODate);
    EXPECT_EQ(marcas, esperadas);
    EXPECT_EQ(motivo_respaldo("2026-10-31"_u, marcas), "mensual"_u);
    EXPECT_EQ(motivo_respaldo("2026-11-14"_u, marcas), "diario"_u);
    // A clock that runs ahead once takes the place of one day, and of one month in the end.
    EXPECT_EQ(quedan(marcas + QStringList("2040-01-01"_u)).size(), marcas.size() - 1);
    const QStringList previos{"2026-11-20-100000"_u, "2026-11-20-100001"_u, "2026-11-21-090000"_u,
                              "2026-11-23-080000"_u};
    EXPECT_EQ(quedan(previos + marcas), previos.mid(1) + marcas);
    EXPECT_EQ(motivo_respaldo(previos[0], marcas), "previo"_u);
}

class Respaldos : public ConVentanas
{
protected:
    void TearDown() override
    {
        fijar_hoy({});
        ConVentanas::TearDown();
    }
    bool empezar(int dia)
    {
        fijar_hoy(QDate(2026, 1, dia));
        oyente.textos.clear();
        return cuidar_base(oyente);
    }
    [[nodiscard]] QString copias() const
    {
        QStringList marcas;
        for (const Respaldo& r : listar_respaldos(ruta()))
            marcas << r.marca.mid(8, 2) + (r.marca.size() > 10 ? "p"_u : ""_u);
        return marcas.join(u' ');
    }
    static void cambiar() { cnRtn.ejecutar("update SEL_TB_RTN_PADRON set SRTN_DOMICILIO='OTRO'"_u); }
    static QByteArray bytes(const QString& archivo)
    {
        QFile f(archivo);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    // In place of the folder stands a file: nothing can be written there.
    void impedir() const
    {
        QFile f(carpeta.path() + "/respaldos"_u);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    }
};

TEST_F(Respaldos, UnoPorDiaSiLaBaseCambio)
{
    EXPECT_TRUE(empezar(5));
    EXPECT_EQ(copias(), "05"_u);
    const QString primera = listar_respaldos(ruta())[0].archivo;
    EXPECT_EQ(QFileInfo(primera).fileName(), "vedra_rtn-2026-01-05.db"_u);
    EXPECT_TRUE(solo_del_dueno(primera));
    EXPECT_TRUE(solo_del_dueno(carpeta.path() + "/respaldos"_u));
    cambiar();
    EXPECT_TRUE(empezar(5));
    EXPECT_EQ(copias(), "05"_u);
    EXPECT_TRUE(empezar(6));
    EXPECT_TRUE(empezar(7));  // as the day before left it
    EXPECT_EQ(copias(), "05 06"_u);
    const QByteArray de_ahora = bytes(ruta());
    EXPECT_EQ(bytes(listar_respaldos(ruta())[1].archivo), de_ahora);
    // An older state put back has changed too.
    cnRtn.cerrar();
    ASSERT_TRUE(QFile::remove(ruta()) && QFile::copy(primera, ruta()));
    cnRtn.abrir(ruta(), clave_almacen());
    EXPECT_TRUE(empezar(8));
    EXPECT_EQ(copias(), "05 06 08"_u);
    EXPECT_EQ(oyente.ultimo(), QString());
    // A clock that goes back makes its copy, and keeps it.
    cambiar();
    fijar_hoy(QDate(2020, 1, 1));
    EXPECT_TRUE(cuidar_base(oyente));
    EXPECT_EQ(copias(), "01 05 06 08"_u);
}

TEST_F(Respaldos, SinLugarSeDiceYSeSigue)
{
    impedir();
    EXPECT_TRUE(empezar(5));
    EXPECT_TRUE(oyente.ultimo().startsWith("No se pudo hacer el respaldo de hoy"_u));
    EXPECT_EQ(oyente.detalles.last(),
              "No se pudo crear %1: en el camino hay un archivo donde debe haber una carpeta"_u.arg(
                  QDir::toNativeSeparators(carpeta.path() + "/respaldos"_u)));
    const QString dj = nueva_dj();
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    const CajaEsperada segura{"¿Esta seguro que desea borrar la DJ seleccionada?"_u};
    const CajaEsperada sin{"No se pudo hacer el respaldo de la base de datos"_u, "Respaldo de la base de datos"_u,
                           false};
    Cajas::durante({segura, sin}, [&] { pulsar(lista, "tlbDJ"_u, "borrar"_u); });
    Cajas::durante({sin}, [&] { pulsar(lista, "tlbDJ"_u, "rectificar"_u); });
    EXPECT_EQ(dato("select group_concat(SEDJ_NRO) from SEL_TB_RTN_CABDJ"_u), dj);
    // With room the copy has what the action takes away; the last three are kept.
    ASSERT_TRUE(QFile::remove(carpeta.path() + "/respaldos"_u));
    fijar_hoy(QDate(2026, 1, 6));
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(respaldar_antes(oyente));
    Cajas::durante({segura}, [&] { pulsar(lista, "tlbDJ"_u, "borrar"_u); });
    EXPECT_EQ(copias(), "06p 06p 06p"_u);
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_CABDJ"_u), "0"_u);
    Conexion copia;
    copia.abrirParaLeer(listar_respaldos(ruta()).constLast().archivo, clave_almacen());
    EXPECT_EQ(Recordset(copia, "select SEDJ_NRO from SEL_TB_RTN_CABDJ"_u).texto(0), dj);
}

TEST_F(Respaldos, LasFilasSinPadreSeCuentanYSeSigue)
{
    cnRtn.ejecutarGuion("pragma foreign_keys = off; update GLB_TB_LOCALIDADES set GPRO_ID=9999 where GLOC_ID<3;"
                        "pragma foreign_keys = on"_u);
    EXPECT_TRUE(empezar(5));
    EXPECT_EQ(
        oyente.textos,
        QStringList("En la base de datos hay 2 filas que dependen de otras que no están. Puede seguir trabajando, "
                    "pero avise al administrador del sistema."_u));
    EXPECT_EQ(oyente.detalles.last(), "GLB_TB_LOCALIDADES, sin su fila en GLB_TB_PROVINCIAS: 2"_u);
    EXPECT_EQ(copias(), "05"_u);
}

TEST_F(Respaldos, UnaBaseDaniadaTerminaSinTocarlaYNombraElUltimoSano)
{
    EXPECT_TRUE(empezar(5));
    cambiar();
    EXPECT_TRUE(empezar(6));
    cambiar();
    // A page of rows: the store opens all the same.
    const qint64 pagina = dato("select rootpage from sqlite_master where name='SEL_TB_SUBCONCEPTOS'"_u).toInt();
    cerrar_base();
    const auto voltear = [pagina](const QString& archivo) {
        QFile f(archivo);
        ASSERT_TRUE(f.open(QIODevice::ReadWrite));
        f.seek(1024 * pagina - 500);
        f.write("daño");
    };
    voltear(listar_respaldos(ruta())[1].archivo);
    voltear(ruta());
    const QByteArray antes = bytes(ruta());
    cnRtn.abrir(ruta(), clave_almacen());
    EXPECT_FALSE(empezar(7));
    EXPECT_EQ(oyente.textos,
              QStringList("La base de datos está dañada y no se puede usar. El último respaldo sano es del "
                          "05/01/2026. Comuníquese con el administrador del sistema."_u));
    EXPECT_TRUE(oyente.detalles.last().startsWith("Para volver a él: respaldo restaurar 2026-01-05\n"_u));
    cerrar_base();
    EXPECT_EQ(bytes(ruta()), antes);
    EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::Files), QStringList("vedra_rtn.db"_u));
    EXPECT_EQ(copias(), "05 06"_u);
    EXPECT_FALSE(QFile::exists(carpeta.path() + "/respaldos/vedra_rtn.nuevo"_u));
}

// What the user ends is told to nobody and is due again; what can't be undone is not done then.
TEST_F(Respaldos, ElQueSeCancelaQuedaPendiente)
{
    oyente.hasta = "Se "_u;
    EXPECT_TRUE(empezar(5));
    EXPECT_FALSE(respaldar_antes(oyente));
    EXPECT_EQ(copias(), QString());
    EXPECT_TRUE(oyente.textos.isEmpty());
    EXPECT_FALSE(QFile::exists(carpeta.path() + "/respaldos/vedra_rtn.nuevo"_u));
    oyente.hasta.clear();
    EXPECT_TRUE(empezar(5));
    EXPECT_EQ(copias(), "05"_u);
}

TEST_F(Respaldos, LoQueTardaMuestraUnaVentanaConSuAvance)
{
    const auto ventana = [] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == u"progreso" && w->isVisible())
                return w;
        return static_cast<QWidget*>(nullptr);
    };
    DialogoPantalla dialogo(principal.get());
    dialogo.progresar("Se revisa la base de datos…"_u, 1, 10);
    EXPECT_EQ(ventana(), nullptr);
    QTest::qSleep(600);
    dialogo.progresar("Se revisa la base de datos…"_u, 5, 10);
    ASSERT_NE(ventana(), nullptr);
    EXPECT_EQ(ventana()->findChild<QLabel*>()->text(), "Se revisa la base de datos…"_u);
    EXPECT_EQ(ventana()->findChild<QProgressBar*>()->value() * 2, ventana()->findChild<QProgressBar*>()->maximum());
    Cajas::durante({{"Listo"_u}}, [&] { dialogo.avisar({"Listo"_u, {}}); });
    EXPECT_EQ(ventana(), nullptr);
    // One that can be ended says so once its button was pressed.
    EXPECT_TRUE(dialogo.seguir("Se empaqueta"_u, 1, 10));
    QTest::qSleep(600);
    EXPECT_TRUE(dialogo.seguir("Se empaqueta"_u, 2, 10));
    ASSERT_NE(ventana(), nullptr);
    QTest::mouseClick(ventana()->findChild<QPushButton*>("cmdCancelar"_u), Qt::LeftButton);
    EXPECT_FALSE(dialogo.seguir("Se empaqueta"_u, 3, 10));
    dialogo.ocultarProgreso();
    EXPECT_EQ(ventana(), nullptr);
}

// The window with the bar is told of the work from its beginning to its end.
TEST_F(Respaldos, ElAvanceCreceHastaElFinal)
{
    qint64 antes = 0, total = 0;
    int veces = 0;
    EXPECT_TRUE(revisar(cnRtn, [&](qint64 hecho, qint64 de) {
                    EXPECT_GE(hecho, antes);
                    antes = hecho;
                    total = de;
                    ++veces;
                    return true;
                }).sana());
    EXPECT_GT(veces, 50);
    EXPECT_GT(antes, total * 3 / 4);
    EXPECT_LE(antes, total);
}

}  // namespace
