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

TEST_F(Constructor, RechazaLoIncoherentePorArchivoYLinea)
{
    struct K
    {
        const char* tabla;
        const char* de;
        const char* a;
        const char* dice;
    };
    for (const K& k : {K{"GLB_TB_LOCALIDADES", "3,COLONIA AURORA,13", "3,COLONIA AURORA,77",
                         "GLB_TB_LOCALIDADES.csv:4: GPRO_ID 77 no existe en GLB_TB_PROVINCIAS"},
                       K{"GLB_TB_MONEDAS", "EUR,EUROS", "DOL,EUROS", "GLB_TB_MONEDAS.csv:4: la clave ya existe"},
                       K{"GLB_TB_MONEDAS", "REA,REALES", "REAL,REALES",
                         "GLB_TB_MONEDAS.csv:5: GMON_ID tiene 4 caracteres y su ancho es 3"},
                       K{"SEL_TB_ALICUOTAS", "5707002,5707002002,5000000,", "5707002,5707002002,4000000,",
                         "SEL_TB_ALICUOTAS.csv:13: el tramo se solapa con otro de 5707002"},
                       K{"SEL_TB_ALICUOTAS", "5707002,5707002002,5000000,", "5707002,5707002002,6000000,",
                         "SEL_TB_ALICUOTAS.csv:13: falta un tramo entre 5000000 y 6000000"},
                       K{"SEL_TB_MODULOS", "1500000.01,-1", "1500000.01,9000000",
                         "SEL_TB_MODULOS.csv:12: el último tramo de 5707027 no llega a -1"},
                       K{"SEL_TB_MODULOS", "1500000,0.0001", "1500000,0.00005",
                         "SEL_TB_MODULOS.csv:11: 5.0e-05 tiene más de 4 decimales"},
                       K{"GLB_TB_LEYES", "4821,1996-01-01", "cuatro,1996-01-01",
                         "GLB_TB_LEYES.csv:2: «cuatro» no es un valor de GLEY_NRO"},
                       K{"GLB_TB_LEYES", "GLEY_NRO,", "GLEY_NUMERO,",
                         "GLB_TB_LEYES.csv:1: GLB_TB_LEYES no tiene la columna GLEY_NUMERO"}}) {
        reemplazar(k.tabla, k.de, k.a);
        EXPECT_TRUE(construir().startsWith(QString::fromUtf8(k.dice))) << construir().toStdString();
        EXPECT_FALSE(QFile::exists(dir.filePath("x.db"_u)));
        EXPECT_FALSE(QFile::exists(dir.filePath("x.db.nuevo"_u)));
        reemplazar(k.tabla, k.a, k.de);
    }
}

}  // namespace
