// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/apoyo.h"
#include "campania/ingles.h"
#include "core/arranque.h"
#include "core/cuidado.h"
#include "system/motivo_sistema.h"

#include <set>

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

namespace {

using Almacen = ConAlmacen;

TEST_F(Almacen, TransaccionesAnidadas)
{
    const auto poner = [](int n) { cnRtn.ejecutar("insert into GLB_TB_CONCEPTOS values (%1, 'X')"_u.arg(n)); };
    const QString cuenta =
        "select group_concat(GCON_ID) from (select GCON_ID from GLB_TB_CONCEPTOS where GCON_ID>10 order by 1)"_u;
    cnRtn.comenzar();
    poner(11);
    cnRtn.comenzar();
    poner(12);
    cnRtn.deshacer();
    cnRtn.comenzar();
    poner(13);
    cnRtn.confirmar();
    cnRtn.confirmar();
    EXPECT_EQ(dato(cuenta), "11,13"_u);
    {
        Transaccion t(cnRtn);
        poner(14);
    }
    EXPECT_EQ(dato(cuenta), "11,13"_u);
    cnRtn.comenzar();
    cnRtn.comenzar();
    poner(15);
    cnRtn.deshacerTodo();
    EXPECT_EQ(cnRtn.transacciones(), 0);
    EXPECT_EQ(dato(cuenta), "11,13"_u);
}

// What was done before a step failed stays; what the engine itself has rolled back is no error of its own.
TEST_F(Almacen, UnaTandaConfirmaLoQueSeHizo)
{
    const auto poner = [](int n) { cnRtn.ejecutar("insert into GLB_TB_CONCEPTOS values (%1, 'X')"_u.arg(n)); };
    const auto hay = [] { return dato("select group_concat(GCON_ID) from GLB_TB_CONCEPTOS where GCON_ID>10"_u); };
    try {
        const Tanda t(cnRtn);
        poner(11);
        poner(11);
        FAIL();
    } catch (const ErrorAlmacen& e) {
        EXPECT_TRUE(e.claveDuplicada());
    }
    EXPECT_EQ(hay(), "11"_u);
    Tanda t(cnRtn);
    poner(12);
    cnRtn.ejecutar("rollback"_u);
    t.terminar();
    EXPECT_EQ(cnRtn.transacciones(), 0);
    EXPECT_EQ(hay(), "11"_u);
}

// Every code of the engine, known or not.
TEST_F(Almacen, CadaCodigoSeDiceEnEspanol)
{
    std::set<QString> dichos;
    for (int primario = 1; primario < 30; ++primario)
        for (int extendido = 0; extendido < 40; ++extendido) {
            const ErrorAlmacen e(primario | extendido << 8, "engine words: constraint failed");
            if (e.numero == 1811)  // a trigger speaks for itself
                continue;
            EXPECT_FALSE(e.descripcion.isEmpty());
            EXPECT_EQ(ingles_en(e.descripcion), QString()) << e.numero;
            EXPECT_EQ(e.motor, "engine words: constraint failed"_u);
            dichos.insert(e.descripcion);
        }
    EXPECT_GE(dichos.size(), 12);
    EXPECT_EQ(ErrorAlmacen(1811, "No se puede borrar").descripcion, "No se puede borrar"_u);
    for (const int errno_ : {1, 2, 5, 13, 16, 20, 21, 23, 24, 26, 27, 28, 30, 36, 122, 999})
        EXPECT_EQ(ingles_en(QString::fromStdString(motivo_del_sistema(errno_))), QString()) << errno_;
}

TEST_F(Almacen, FuncionesYOrdenesDeLasSentencias)
{
    EXPECT_EQ(
        filas(
            "select int(3.9), int(-3.1), mid('abcdef',2,3), mid('abc',3), str(20123456786.0), str(-1.5), iif(1=1,'s','n')"_u),
        "3|-4|bcd|c| 20123456786|-1.5|s"_u);
    EXPECT_EQ(filas("select 'PEÑA' like '%eñ%', 'Á' like 'á', 'a_c' like 'a_c', 'abc' like 'a%d', null like 'a'"_u),
              "1|1|1|0|null"_u);
    EXPECT_EQ(dato("select GMON_DESCRIPCION from GLB_TB_MONEDAS where GMON_ID='pes'"_u), "PESOS"_u);
}

TEST_F(Almacen, ParametrosConAnchoYNulos)
{
    Comando c(cnRtn, "insert into GLB_TB_CONCEPTOS values (?, ?)"_u);
    c.parametro("v_GCON_ID", 20);
    EXPECT_THROW(c.parametro("v_GCON_NOMBRE", "abcdef"_u, 5), ErrorAlmacen);
    EXPECT_EQ(dato("select count(*) from GLB_TB_CONCEPTOS where GCON_ID=20"_u), "0"_u);
    EXPECT_THROW(cnRtn.ejecutar("select"_u), ErrorAlmacen);
    try {
        cnRtn.ejecutar("insert into GLB_TB_CONCEPTOS values (1, 'Y')"_u);
        FAIL();
    } catch (const ErrorAlmacen& e) {
        EXPECT_TRUE(e.claveDuplicada());
    }
}

TEST_F(Almacen, LasCascadasVacianUnaDJYDejanLosRoles)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    cnRtn.ejecutar("insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID) values (1, '%1', 1)"_u.arg(dj));
    cnRtn.ejecutar("insert into SEL_TB_RTN_INS_INMUEBLES (SEDJ_NRO, SEDD_ID, SEII_ID) values ('%1', 1, 1)"_u.arg(dj));
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID) values ('%1', 1, 1, 5707029)"_u
            .arg(dj));
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_VC (SEDJ_NRO, SEDD_ID, SEDO_ID, SVCI_ID) values ('%1', 1, 1, 1)"_u.arg(dj));
    cnRtn.ejecutar("insert into SEL_TB_RTN_INS_ROLES values ('%1', 1, 1, 1, 5707029001, null)"_u.arg(dj));
    EXPECT_THROW(cnRtn.ejecutar("delete from SEL_TB_SUBCONCEPTOS where SSUB_ID=5707029"_u), ErrorAlmacen);
    cnRtn.ejecutar("delete from SEL_TB_RTN_CABDJ"_u);
    for (const char* t : {"DETDJ", "INS_PARTES", "INS_INMUEBLES", "INS_OPERACIONES", "INS_VC"})
        EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_%1"_u.arg(QLatin1StringView(t))), "0"_u) << t;
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_INS_ROLES"_u), "1"_u);
}

// Start-up against what may stand in its place.
class Arranque : public ConAlmacen
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        cnRtn.cerrar();
    }
    void configurar(const QByteArray& texto) const
    {
        QFile f(carpeta.path() + "/vedra_rtn.cfg"_u);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(texto);
    }
    void esperarCajaFatal()
    {
        oyente.textos.clear();
        EXPECT_FALSE(abrir_base(oyente));
        EXPECT_EQ(oyente.textos,
                  QStringList("Error. No se puede obtener la ruta de acceso a la base de datos (ventanilla.cfg). "
                              "Comuniquese con el administrador del sistema"_u));
        EXPECT_EQ(oyente.titulos.last(), "Error de acceso al sistema"_u);
        EXPECT_EQ(oyente.iconos.last(), Icono::informacion);
        EXPECT_FALSE(cnRtn.abierta());
    }
};

TEST_F(Arranque, AbreLaPrimeraLinea)
{
    for (const QByteArray& texto :
         {ruta().toUtf8(), QByteArray(ruta().toUtf8() + "\r\notra linea\n"), QByteArray("vedra_rtn.db\n")}) {
        configurar(texto);
        EXPECT_TRUE(abrir_base(oyente));
        EXPECT_TRUE(cnRtn.abierta());
        cnRtn.cerrar();
    }
    EXPECT_EQ(
        CadenaConexion,
        "Provider=Microsoft.Jet.OLEDB.4.0;Jet OLEDB:Database Password=Xk7pQ2mR;Data Source=vedra_rtn.db;Persist Security Info=false"_u);
}

TEST_F(Arranque, LoQueNoSeAbreTerminaConSuCaja)
{
    esperarCajaFatal();  // no file at all
    for (const QByteArray& texto : {QByteArray(), QByteArray("\nvedra_rtn.db\n"), QByteArray("/no/hay/nada.db\n"),
                                    QByteArray(" vedra_rtn.db\n"), carpeta.path().toUtf8()}) {
        configurar(texto);
        esperarCajaFatal();
    }
    configurar("vedra_rtn.db\n");
    QFile f(ruta());
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    const QByteArray bueno = f.readAll();
    QByteArray volteado = bueno;
    volteado[100] = char(volteado[100] ^ 1);
    for (const QByteArray& malo : {QByteArray(), QByteArray("no es una base"), bueno.left(700), volteado}) {
        f.resize(0);
        f.seek(0);
        f.write(malo);
        f.flush();
        esperarCajaFatal();
    }
    f.resize(0);
    f.seek(0);
    f.write(bueno);
    f.close();
    Conexion otro;
    otro.abrir(ruta(), clave_almacen());
    otro.ejecutar("begin exclusive"_u);
    esperarCajaFatal();  // locked by another program
    otro.cerrar();
    EXPECT_TRUE(abrir_base(oyente));
}

// Cut, flipped or foreign: a message, and the file as it was. DANIADAS sets how many:
//   DANIADAS=1000 build/dev/programa/pruebas --gtest_filter='Arranque.Una*'
TEST_F(Arranque, UnaBaseDaniadaSeDiceYNoSeToca)
{
    configurar("vedra_rtn.db\n");
    const auto leer = [this] {
        QFile f(ruta());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    };
    const QByteArray sana = leer();
    QRandomGenerator azar(11);
    const auto ruido = [&azar](qsizetype largo) {
        QByteArray r(largo, 0);
        for (char& c : r)
            c = char(azar.generate());
        return r;
    };
    const auto daniar = [&](int como) {
        QByteArray b = sana;
        switch (como) {
        case 0: return b.first(azar.bounded(1, int(b.size())));
        case 1: {
            char& c = b[azar.bounded(int(b.size()))];
            c = char(c ^ (1 << azar.bounded(8)));
            return b;
        }
        case 2: {
            const qsizetype donde = azar.bounded(int(b.size()) - 600);
            return b.replace(donde, 512, ruido(512));
        }
        case 3: return ruido(azar.bounded(5000));
        case 4: return "SQLite format 3" + QByteArray(1, 0) + ruido(4096);
        default: return QByteArray("esto no es una base\n").repeated(azar.bounded(400));
        }
    };
    const int cuantas = qEnvironmentVariableIsSet("DANIADAS") ? qEnvironmentVariableIntValue("DANIADAS") : 48;
    int abiertas = 0;
    for (int i = 0; i < cuantas && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const QByteArray daniada = daniar(i % 6);
        {
            QFile f(ruta());
            ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(daniada) == daniada.size());
        }
        QDir(carpeta.filePath("respaldos"_u)).removeRecursively();
        oyente = Oyente();
        const bool abre = abrir_base(oyente) && cuidar_base(oyente);
        // A flipped bit may lie where nothing is stored.
        abiertas += abre;
        EXPECT_EQ(abre, oyente.textos.isEmpty());
        EXPECT_TRUE(!abre || dato("pragma integrity_check"_u) == u"ok");
        for (const QString& texto : std::as_const(oyente.textos))
            EXPECT_EQ(ingles_en(texto), QString());
        cerrar_base();
        EXPECT_EQ(leer(), daniada);
        EXPECT_FALSE(QFile::exists(ruta() + "-journal"_u));
    }
    EXPECT_LT(abiertas, cuantas / 10);
}

// No text of a user becomes a statement, and what the engine says comes in Spanish.
TEST_F(Almacen, UnaInstruccionPorVezYEnEspanol)
{
    for (const QString& sql :
         {"delete from SEL_TB_PARAMETROS; delete from SEL_TB_ROLES"_u, "delete from SEL_TB_PARAMETROS -- todo"_u,
          "delete from SEL_TB_PARAMETROS /* todo */"_u, "select 'a' -- x"_u, "delete from SEL_TB_ROLES"_u + QChar(0)}) {
        EXPECT_THROW(cnRtn.ejecutar(sql), ErrorAlmacen) << sql.toStdString();
        EXPECT_THROW(Recordset(cnRtn, sql), ErrorAlmacen) << sql.toStdString();
    }
    EXPECT_NE(dato("select count(*) from SEL_TB_PARAMETROS"_u), "0"_u);
    EXPECT_EQ(dato("select '-- /* ;' || 'D''ANGELO'"_u), "-- /* ;D'ANGELO"_u);
    const auto dice = [](const QString& sql) {
        try {
            cnRtn.ejecutar(sql);
        } catch (const ErrorAlmacen& e) {
            EXPECT_FALSE(e.motor.isEmpty());
            return e.descripcion;
        }
        return QString();
    };
    EXPECT_EQ(dice("delete from NADA"_u), "La base de datos no pudo hacer lo que se le pidió."_u);
    EXPECT_EQ(
        dice("insert into SEL_TB_CONCEPTOS (SCON_ID, SCON_DESCRIPCION) select SCON_ID, 'x' from SEL_TB_CONCEPTOS"_u),
        "Ya existe un dato con esa clave."_u);
    EXPECT_EQ(dice("insert into SEL_TB_ROLES (SROL_ID) values (1)"_u), "Falta un dato obligatorio."_u);
    EXPECT_EQ(dice("insert into SEL_TB_ROLES (SROL_ID, SROL_DESCRIPCION, SSUB_ID) values (1, 'x', 1)"_u),
              "El dato está en uso, o falta otro del que depende."_u);
}

TEST_F(Arranque, ParametrosYLeyVigente)
{
    configurar("vedra_rtn.db\n");
    ASSERT_TRUE(abrir_base(oyente));
    cnRtn.ejecutarGuion(
        "delete from SEL_TB_PARAMETROS; insert into SEL_TB_PARAMETROS values ('PRSE_MODO_IMPORTE_MINIMO','1'), ('OTRO','x'), "
        "('PRSE_MODO_IMPORTE_MINIMO','0'), ('PRSE_ALICUOTA_IVA','10.5')"_u);
    ModoImporteMinimo = 7;
    oyente.textos.clear();
    cargar_parametros(oyente);
    EXPECT_EQ(ModoImporteMinimo, 0);  // the later of two rows wins
    EXPECT_DOUBLE_EQ(AlicuotaIVA, 10.5);
    EXPECT_EQ(BancoConvenio, 31057);
    cnRtn.ejecutar("update SEL_TB_PARAMETROS set SPRM_VALOR='abc' where SPRM_NOMBRE='PRSE_ALICUOTA_IVA'"_u);
    EXPECT_ANY_THROW(cargar_parametros(oyente));
    LeyVigente = 0;
    cnRtn.ejecutar("update GLB_TB_LEYES set GLEY_VIGENCIA_HASTA='2040-01-01'"_u);
    cargar_ley_vigente(oyente);
    EXPECT_EQ(LeyVigente, 0);
    EXPECT_TRUE(oyente.textos.isEmpty());  // nothing is told
    cnRtn.ejecutarGuion("drop view SEL_VW_CUENTAS_SELLOS; drop table SEL_TB_PARAMETROS"_u);
    cargar_parametros(oyente);
    EXPECT_TRUE(oyente.ultimo().startsWith("Error "_u));
}

}  // namespace
