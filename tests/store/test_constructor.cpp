// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/procesos.h"
#include "constructor.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

namespace {

// A copy of the texts, with one line changed.
class Constructor : public testing::Test
{
protected:
    void SetUp() override
    {
        QDir(dir.path()).mkdir("datos"_u);
        QDir(dir.path()).mkdir("muestra"_u);
        const QDir textos(QStringLiteral(RTN_TEXTOS_ALMACEN));
        for (const char* f : {"esquema.sql", "vistas.sql"})
            QFile::copy(textos.filePath(QLatin1StringView(f)), dir.filePath(QLatin1StringView(f)));
        for (const char* c : {"datos", "muestra"}) {
            const QDir origen(textos.filePath(QLatin1StringView(c)));
            for (const QString& f : origen.entryList({"*.csv"_u}))
                QFile::copy(origen.filePath(f), dir.filePath(QLatin1StringView(c) + "/"_u + f));
        }
    }
    void reemplazar(const char* tabla, const char* de, const char* a)
    {
        QFile f(dir.filePath("datos/"_u + QLatin1StringView(tabla) + ".csv"_u));
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        QByteArray texto = f.readAll();
        f.close();
        ASSERT_TRUE(texto.contains(de)) << de;
        texto.replace(texto.indexOf(de), qsizetype(qstrlen(de)), a);
        f.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(texto);
    }
    QString construir()
    {
        try {
            construir_almacen({dir.path(), {"datos"_u, "muestra"_u}, dir.filePath("x.db"_u), clave_almacen()});
            return {};
        } catch (const std::exception& e) {
            return QString::fromUtf8(e.what()).remove(dir.path() + "/datos/"_u);
        }
    }
    QTemporaryDir dir;
};

TEST_F(Constructor, LosTextosDelProyectoSonCoherentes)
{
    QElapsedTimer reloj;
    reloj.start();
    EXPECT_EQ(construir(), QString());
    EXPECT_LT(reloj.elapsed(), 5000);
    Conexion cn;
    EXPECT_THROW(cn.abrir(dir.filePath("x.db"_u), "otra"_u), ErrorAlmacen);
    cn.abrir(dir.filePath("x.db"_u), clave_almacen());
    EXPECT_EQ(Recordset(cn, "pragma integrity_check"_u).texto(0), "ok"_u);
    EXPECT_TRUE(Recordset(cn, "pragma foreign_key_check"_u).eof());
    EXPECT_GE(Recordset(cn, "select count(*) from SEL_TB_SUBCONCEPTOS"_u).entero(0), 45);
    // The totals of the sample months stand.
    EXPECT_TRUE(
        Recordset(
            cn,
            "select D.SEDJ_NRO from SEL_TB_RTN_DETDJ D left join SEL_TB_RTN_INS_OPERACIONES O on O.SEDJ_NRO=D.SEDJ_NRO "
            "and O.SEDD_ID=D.SEDD_ID group by D.SEDJ_NRO, D.SEDD_ID having abs(coalesce(sum(O.SINS_MONTO_FINAL),0)-D.SEDD_TOTAL_IMPUESTO)>0.001"_u)
            .eof());
    EXPECT_TRUE(Recordset(cn,
                          "select C.SEDJ_NRO from SEL_TB_RTN_CABDJ C join SEL_TB_RTN_DETDJ D on D.SEDJ_NRO=C.SEDJ_NRO "
                          "group by C.SEDJ_NRO having abs(sum(D.SEDD_TOTAL_IMPUESTO)-C.SEDJ_TOTAL_RETENIDO)>0.001"_u)
                    .eof());
}

// The engine gives its journal the store's mode.
TEST_F(Constructor, SoloParaElUsuario)
{
    const Mascara ninguna(0);
    ASSERT_EQ(construir(), QString());
    Conexion cn;
    cn.abrir(dir.filePath("x.db"_u), clave_almacen());
    cn.comenzar();
    cn.ejecutar("delete from SEL_TB_PARAMETROS"_u);
    for (const char* nombre : {"x.db", "x.db-journal"})
        EXPECT_EQ(modo_de(dir.filePath(QLatin1StringView(nombre))), 0600U) << nombre;
    EXPECT_EQ(QDir(dir.path()).entryList({"*.nuevo*"_u}), QStringList());
}

// All that is wrong is told, each at its place: a rule a line, and what it breaks besides.
TEST_F(Constructor, RechazaLoIncoherentePorArchivoLineaYColumna)
{
    struct K
    {
        const char* tabla;
        const char* de;
        const char* a;
        const char* dice;
    };
    for (const K& k :
         {K{"GLB_TB_LOCALIDADES", "3,COLONIA AURORA,13", "3,COLONIA AURORA,77",
            "GLB_TB_LOCALIDADES.csv:4:18: GPRO_ID 77 no existe en GLB_TB_PROVINCIAS"},
          K{"GLB_TB_MONEDAS", "EUR,EUROS", "dol,EUROS", "GLB_TB_MONEDAS.csv:4:1: la clave ya existe en la línea 3"},
          K{"GLB_TB_MONEDAS", "REA,REALES", "REAL,",
            "GLB_TB_MONEDAS.csv:5:1: GMON_ID tiene 4 caracteres y su ancho es 3\n"
            "GLB_TB_MONEDAS.csv:5:6: falta GMON_DESCRIPCION"},
          K{"GLB_TB_MONEDAS", "EUR,EUROS,", "EUR,\xff,", "GLB_TB_MONEDAS.csv:4:5: GMON_DESCRIPCION no está en UTF-8"},
          K{"GLB_TB_MONEDAS", "EUR,EUROS,", "EUR,", "GLB_TB_MONEDAS.csv:4:5: hay 2 valores y se esperan 3"},
          K{"GLB_TB_MONEDAS", "EUR,EUROS,", "EUR,\"EUROS,", "GLB_TB_MONEDAS.csv:4:5: las comillas no se cierran"},
          K{"GLB_TB_TIPOS_SOCIEDAD", "UNIPERSONAL", "UNA SOLA",
            "GLB_TB_TIPOS_SOCIEDAD.csv:1:1: falta la fila de GTSO_DESCRIPCION «UNIPERSONAL»"},
          K{"SEL_TB_ALICUOTAS", "5707002,5707002002,5000000,", "5707002,5707002002,4000000,",
            "SEL_TB_ALICUOTAS.csv:13:20: el tramo se solapa con otro de 5707002"},
          K{"SEL_TB_ALICUOTAS", "5707002,5707002002,5000000,", "5707002,5707002002,6000000,",
            "SEL_TB_ALICUOTAS.csv:13:20: falta un tramo entre 5000000 y 6000000"},
          K{"SEL_TB_ALICUOTAS", "4821003,4821003001,0,-1,0.008", "4821999,4821003001,0,-1,0.00004",
            "SEL_TB_ALICUOTAS.csv:3:1: SSUB_ID 4821999 no existe en SEL_TB_SUBCONCEPTOS\n"
            "SEL_TB_ALICUOTAS.csv:3:9: 4821003001 no es un identificador de SSUB_ID 4821999\n"
            "SEL_TB_ALICUOTAS.csv:3:25: 0.00004 se queda en nada con los 4 decimales del cálculo\n"
            "SEL_TB_SUBCONCEPTOS.csv:3:1: el subconcepto no tiene tramos en SEL_TB_ALICUOTAS"},
          K{"SEL_TB_MODULOS", "1500000.01,-1", "1500000.01,9000000",
            "SEL_TB_MODULOS.csv:12:31: el último tramo de 5707027 no llega a -1"},
          K{"SEL_TB_MODULOS", "1500000,0.0001", "1500000,0.00005",
            "SEL_TB_MODULOS.csv:11:30: 0.00005 tiene más de 4 decimales"},
          K{"SEL_TB_ROLES", "4821001002,COMPRADOR,1,4821001", "4821001002,VENDEDOR,1,",
            "SEL_TB_ROLES.csv:3:23: falta SSUB_ID"},
          K{"SEL_TB_ROLES", "4821001002,COMPRADOR", "4821001002,vendedor",
            "SEL_TB_ROLES.csv:3:12: el subconcepto ya tiene un rol «vendedor»"},
          K{"SEL_TB_SUBCONCEPTOS", "a),1996-01-01,3,40,1,1,1,1,0,1,,1,0,,,,11,",
            "a),1996-01-01,3,40,1,1,1,1,0,1,,1,0,X,,,,",
            "SEL_TB_SUBCONCEPTOS.csv:4:107: «X» no es un valor de SSUB_OBLIG_ACCESORIA_MODO_DEFAULT\n"
            "SEL_TB_SUBCONCEPTOS.csv:4:111: SSUB_REQUIERE_BASEIMPONIBLE pide SCBI_ID"},
          K{"SEL_TB_PARAMETROS", "_IVA,21", "_IVA,21%", "SEL_TB_PARAMETROS.csv:2:19: «21%» no es un número"},
          K{"GLB_TB_LEYES", "4821,1996-01-01", "cuatro,1996-01-01",
            "GLB_TB_LEYES.csv:2:1: «cuatro» no es un valor de GLEY_NRO"},
          K{"GLB_TB_LEYES", "2024-12-31", "2025-01-01", "GLB_TB_LEYES.csv:3:6: la ley rige al mismo tiempo que otra"},
          K{"GLB_TB_LEYES", "5707,2025-01-01,", "5707,2025-01-01,2025-12-31",
            "GLB_TB_LEYES.csv:1:1: ninguna ley está vigente: falta una sin GLEY_VIGENCIA_HASTA"},
          K{"GLB_TB_LEYES", "GLEY_NRO,", "GLEY_NUMERO,",
            "GLB_TB_LEYES.csv:1:1: GLB_TB_LEYES no tiene la columna GLEY_NUMERO, o está dos veces\n"
            "GLB_TB_LEYES.csv:1:1: falta la columna GLEY_NRO"}}) {
        reemplazar(k.tabla, k.de, k.a);
        EXPECT_EQ(construir(), QString::fromUtf8(k.dice));
        EXPECT_FALSE(QFile::exists(dir.filePath("x.db"_u)));
        EXPECT_FALSE(QFile::exists(dir.filePath("x.db.nuevo"_u)));
        reemplazar(k.tabla, k.a, k.de);
    }
}

// The authority's new texts: deeds keep theirs, and nothing that they use can go.
TEST_F(Constructor, OtroCatalogoEnUnaBaseConEscrituras)
{
    const QString base = dir.filePath("x.db"_u);
    const auto catalogo = [&] {
        QString salida;
        QProcess p;
        p.setProcessChannelMode(QProcess::MergedChannels);
        p.start(QStringLiteral(RTN_CREAR_BASE), {"--catalogo"_u, dir.filePath("datos"_u), base});
        EXPECT_TRUE(p.waitForFinished(60000));
        return QString::number(p.exitCode()) + ": "_u + QString::fromUtf8(p.readAll()).remove(dir.path() + "/datos/"_u);
    };
    const auto resumen = [&] {
        Conexion cn;
        cn.abrir(base, clave_almacen());
        QString todo;
        for (const char* sql : {"select SSUB_DESCRIPCION from SEL_TB_SUBCONCEPTOS where SSUB_ID=4821003",
                                "select count(*) from SEL_TB_SUBCONCEPTOS", "select count(*) from SEL_TB_RTN_INS_ROLES",
                                "select count(*) from SEL_TB_RTN_INS_OPERACIONES"})
            todo += Recordset(cn, QLatin1StringView(sql)).texto(0) + "|"_u;
        EXPECT_TRUE(Recordset(cn, "pragma foreign_key_check"_u).eof());
        return todo;
    };
    ASSERT_EQ(construir(), QString());
    const QString antes = resumen();
    EXPECT_TRUE(antes.startsWith("DONACION DE INMUEBLES|58|"_u)) << antes.toStdString();

    reemplazar("GLB_TB_MONEDAS", "DOL,", "USD,");
    reemplazar("GLB_TB_LEYES", "5707,2025-01-01", "5707,2025-02-30");
    EXPECT_EQ(catalogo(), "1: GLB_TB_LEYES.csv:3:6: «2025-02-30» no es un valor de GLEY_VIGENCIA_DESDE\n"
                          "crear_base: 1 falla en los textos; no se cambió nada\n"_u);
    reemplazar("GLB_TB_LEYES", "2025-02-30", "2025-01-01");
    EXPECT_TRUE(catalogo().startsWith("1: GLB_TB_MONEDAS.csv:1:1: falta GMON_ID DOL, que está en "_u));
    reemplazar("GLB_TB_MONEDAS", "USD,", "DOL,");
    ASSERT_TRUE(
        QFile::copy(dir.filePath("muestra/SEL_TB_RTN_PADRON.csv"_u), dir.filePath("datos/SEL_TB_RTN_PADRON.csv"_u)));
    EXPECT_TRUE(catalogo().startsWith("1: SEL_TB_RTN_PADRON.csv:1:1: la tabla no es del catálogo\n"_u));
    QFile::remove(dir.filePath("datos/SEL_TB_RTN_PADRON.csv"_u));
    EXPECT_EQ(resumen(), antes);
    EXPECT_FALSE(QDir(dir.filePath("respaldos"_u)).exists());

    reemplazar("SEL_TB_SUBCONCEPTOS", "DONACION DE INMUEBLES", "DONACIONES");
    EXPECT_TRUE(catalogo().startsWith("0: El catálogo es el de "_u));
    EXPECT_EQ(resumen(), QString(antes).replace("DONACION DE INMUEBLES"_u, "DONACIONES"_u));
    EXPECT_EQ(QDir(dir.filePath("respaldos"_u)).entryList({"x-*.db"_u}).size(), 1);
}

}  // namespace
