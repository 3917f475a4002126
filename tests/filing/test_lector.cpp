// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/apoyo.h"
#include "filing/archivo_dj.h"
#include "filing/codificacion.h"
#include "filing/lector_dj.h"

#include <QFile>
#include <QRandomGenerator>

namespace {

class LectorDJ : public ConAlmacen
{
protected:
    // A DJ whose totals hold, with a row of every kind.
    QByteArray archivo(const char* cambio = "")
    {
        const QString dj = nueva_dj();
        cnRtn.ejecutar("update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=30.5, SEDJ_TITULAR_NOMBRE='PEÑA €'"_u);
        nueva_escritura(dj, 1, 7, 8, 9);
        nueva_escritura(dj, 2, 8, 9, 9, "P", "N");
        cnRtn.ejecutarGuion(
            "update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO=30.5 where SEDD_ID=1; update SEL_TB_RTN_DETDJ set SNAD_ID=1 where SEDD_ID=2"_u);
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_PARTES values (1, '%1', 1, '80', '20123456786', 20123456786, 0, 'GÓMEZ', 50, 'o', 1, 'D', '1', 5, 1, 'A', null)"_u
                .arg(dj));
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_INMUEBLES (SEDJ_NRO, SEDD_ID, SEII_ID, SEII_PARTIDA, SEII_VAL_FISCAL, GTUB_ID) values ('%1', 1, 1, '55', 10, 1)"_u
                .arg(dj));
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_OPERACIONES values ('%1', 1, 1, 5707001, 1000, 500, 3, 0.01, 30.5, 0, 0, 30.5, 30.5, '1', 0, 'F', 5, 1, 'p', 0, 7, '5707', 'obs', null)"_u
                .arg(dj));
        cnRtn.ejecutar(
            "insert or ignore into SEL_TB_ROLES (SROL_ID, SROL_DESCRIPCION, SSUB_ID) values (1001, 'R', 5707001)"_u);
        cnRtn.ejecutar("insert into SEL_TB_RTN_INS_ROLES values ('%1', 1, 1, 1, 1001, 'r')"_u.arg(dj));
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_VC values ('%1', 1, 1, 1, 100.5, 21, 'DOL', 1050, 105525)"_u.arg(dj));
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_DJ_TESTIMONIOS values ('%1', 1, 'uno' || char(13,10) || 'dos')"_u.arg(dj));
        if (*cambio)
            cnRtn.ejecutar(QString::fromUtf8(cambio));
        emision = generar_archivo_dj(dj);
        QFile f(emision.archivo);
        EXPECT_TRUE(f.open(QIODevice::ReadOnly));
        return f.readAll();
    }
    EmisionArchivo emision;
};

// The record's fields joined again.
std::string reescribir(const QByteArray& bytes)
{
    std::string todo;
    (void)leer_archivo_dj(bytes, [&](const RegistroLeido& r) {
        todo += r.registro->tipo;
        for (size_t i = 0; i < r.registro->campos.size(); ++i)
            todo += r.campos[i];
        todo += "\r\n";
    });
    return todo;
}

TEST_F(LectorDJ, AceptaLoEmitidoYLoReescribeIgual)
{
    const QByteArray bytes = archivo();
    const LecturaDJ l = leer_archivo_dj(bytes);
    for (const FallaLectura& f : l.fallas)
        ADD_FAILURE() << f.linea << ":" << f.columna << " " << f.campo.toStdString() << " " << f.mensaje.toStdString();
    EXPECT_TRUE(l.avisos.empty());
    EXPECT_EQ(l.codigo, emision.codigo);
    EXPECT_EQ(l.titular + u' ' + l.posicion, "PEÑA € 10/2026"_u);
    EXPECT_EQ(reescribir(bytes), bytes.toStdString());
}

struct Rareza
{
    const char* cambio;
    bool dudoso;
};
class LectorRarezas : public LectorDJ, public testing::WithParamInterface<Rareza>
{
};
TEST_P(LectorRarezas, SeLeeBienDondeSePuedeSaber)
{
    const QByteArray bytes = archivo(GetParam().cambio);
    const LecturaDJ l = leer_archivo_dj(bytes);
    for (const FallaLectura& f : l.fallas)
        ADD_FAILURE() << f.linea << ":" << f.columna << " " << f.campo.toStdString() << " " << f.mensaje.toStdString();
    bool dudoso = false;
    for (const FallaLectura& f : l.avisos)
        dudoso = dudoso || f.mensaje.startsWith("no se puede saber"_u);
    EXPECT_EQ(dudoso, GetParam().dudoso);
    EXPECT_EQ(l.codigo, emision.codigo);
    EXPECT_EQ(reescribir(bytes), bytes.toStdString());
}
INSTANTIATE_TEST_SUITE_P(
    Casos, LectorRarezas,
    testing::Values(
        Rareza{
            "update SEL_TB_RTN_CABDJ set SEDJ_OBSERVACIONES='una observación de bastante más de cincuenta caracteres, que corre lo demás'",
            false},
        Rareza{"update SEL_TB_RTN_CABDJ set SEDJ_ACRED_MONTO=-5", false},
        Rareza{"update SEL_TB_RTN_CABDJ set GLOC_ID=null", false},
        Rareza{"update SEL_TB_RTN_INS_PARTES set SPIN_DOMICILIO='  con blancos  '", false},
        Rareza{"update SEL_TB_RTN_INS_OPERACIONES set SINS_BASEIMPONIBLE=null", true},
        Rareza{"update SEL_TB_RTN_INS_OPERACIONES set SINS_MONTO_EXENTO=null",
               true},  // four numbers of one width stand there
        Rareza{"update SEL_TB_RTN_INS_ROLES set SROL_ID=5707001001", false}));

// What the format itself makes is counted, not told record by record.
TEST_F(LectorDJ, LasRarezasSeCuentan)
{
    const LecturaDJ l = leer_archivo_dj(archivo("update SEL_TB_RTN_INS_ROLES set SROL_ID=5707001001"));
    ASSERT_EQ(l.rarezas.size(), 1);
    const RarezaLeida& r = l.rarezas.front();
    EXPECT_EQ(QString(QLatin1Char(r.tipo)) + r.campo, "6SROL_ID"_u);
    EXPECT_EQ(QString::number(r.largo) + u'/' + QString::number(r.previsto), "10/7"_u);
    EXPECT_EQ(size_t(r.veces), l.avisos.size());
    EXPECT_EQ(r.linea, l.avisos.front().linea);
}

struct Alteracion
{
    const char* de;
    const char* a;
    const char* campo;
    const char* mensaje;
};
class LectorFallas : public LectorDJ, public testing::WithParamInterface<Alteracion>
{
};
TEST_P(LectorFallas, ConSuLugar)
{
    QByteArray bytes = archivo();
    const auto lugar = bytes.indexOf(GetParam().de);
    ASSERT_GE(lugar, 0);
    bytes.replace(lugar, qsizetype(strlen(GetParam().de)), GetParam().a);
    const LecturaDJ l = leer_archivo_dj(bytes);
    bool hallada = false;
    QString dichas;
    for (const FallaLectura& f : l.fallas) {
        hallada = hallada
                  || (f.campo == QLatin1StringView(GetParam().campo)
                      && f.mensaje.contains(QString::fromUtf8(GetParam().mensaje)) && f.linea > 0);
        dichas += f.campo + u' ' + f.mensaje + u'\n';
    }
    EXPECT_TRUE(hallada) << dichas.toStdString();
}
INSTANTIATE_TEST_SUITE_P(
    Casos, LectorFallas,
    testing::Values(Alteracion{"\r\n2001", "\r\n9001", "", "el tipo de registro no existe"},
                    Alteracion{"\r\n3001", "\r\n3x01", "SEDD_ID", "no cabe"},
                    Alteracion{"\r\n3001", "\r\n3044", "SEDD_ID", "no hay una escritura"},
                    Alteracion{"\r\n6001001001", "\r\n6001009001", "SEDO_ID", "no hay una operación"},
                    Alteracion{"\r\n6001001001", "\r\n6001001004", "SPIN_ID", "no hay una parte"},
                    Alteracion{"\r\n2002", "\r\n2001", "SEDD_ID", "repetido"},
                    Alteracion{"202610", "202613", "SEDJ_MES", "el mes no existe"},
                    Alteracion{"000000003050PS", "000000003051PS", "SEDJ_TOTAL_RETENIDO", "las escrituras suman 30.51"},
                    Alteracion{"000000003050PS", "000000003050XS", "SEDD_ESTADO", "admite"},
                    Alteracion{"tag_fin_tes", "tag_fin_tez", "<_d59fb4af70161c458a82b02558160ca6_tag_fin_tes>",
                               "no cabe"},
                    Alteracion{"\r\n4001", "X\r\n4001", "GTSO_ID", "no cabe"},
                    Alteracion{"PE\xD1", "\x01\xD1", "", "carácter de control"}));

// Amounts far past any sum: told as they are, without running over.
TEST_F(LectorDJ, ImportesQueNoCabenEnSuSuma)
{
    QByteArray bytes = archivo();
    const auto desde = bytes.indexOf("\r\n2001") + 2;
    const QByteArray escritura = bytes.mid(desde, bytes.indexOf("\r\n", desde) + 2 - desde);
    QByteArray muchas;
    for (int i = 100; i < 140; ++i)
        muchas += QByteArray(escritura)
                      .replace("2001", "2" + QByteArray::number(i))
                      .replace("000000003050", i % 2 ? "9999999999999999999" : "8888888888888888888");
    ASSERT_EQ(muchas.count("9999999999999999999"), 20);
    bytes.insert(desde, muchas);
    const LecturaDJ l = leer_archivo_dj(bytes);
    EXPECT_GT(l.totalEscrituras, 9e16);
    EXPECT_TRUE(std::any_of(l.fallas.begin(), l.fallas.end(),
                            [](const FallaLectura& f) { return f.campo == u"SEDJ_TOTAL_RETENIDO"; }));
}

TEST_F(LectorDJ, CadaByteCambiadoSeNombraOCambiaElCodigo)
{
    const QByteArray bueno = archivo();
    QRandomGenerator azar(11);
    for (qsizetype i = 0; i < bueno.size(); ++i) {
        QByteArray otro = bueno;
        const auto antes = static_cast<unsigned char>(bueno[i]);
        const auto nuevo = static_cast<unsigned char>(antes ^ (1 + azar.bounded(255)));
        // Two characters of the code page share the low byte that the code takes: nobody can tell them.
        if ((caracter_ansi(antes) & 0xff) == (caracter_ansi(nuevo) & 0xff))
            continue;
        otro[i] = char(nuevo);
        const LecturaDJ l = leer_archivo_dj(otro);
        ASSERT_TRUE(!l.fallas.empty() || l.codigo != emision.codigo) << i;
    }
}

TEST_F(LectorDJ, NingunArchivoMutadoLoHaceCaer)
{
    const QByteArray bueno = archivo();
    QRandomGenerator azar(12);
    for (int vez = 0; vez < 3000; ++vez) {
        QByteArray b = bueno;
        for (int n = 1 + azar.bounded(6); n > 0 && !b.isEmpty(); --n) {
            const auto lugar = azar.bounded(int(b.size()));
            switch (azar.bounded(5)) {
            case 0: b[lugar] = char(azar.bounded(256)); break;
            case 1: b.remove(lugar, azar.bounded(400)); break;
            case 2: b.insert(lugar, b.mid(azar.bounded(int(b.size())), azar.bounded(400))); break;
            case 3: b.insert(lugar, "\r\n"); break;
            default: b.truncate(lugar);
            }
        }
        const LecturaDJ l = leer_archivo_dj(b);
        for (const FallaLectura& f : l.fallas)
            ASSERT_TRUE(f.linea >= 1 && f.columna >= 1);
        ASSERT_TRUE(b == bueno || !l.fallas.empty() || l.codigo != emision.codigo);
    }
    EXPECT_FALSE(leer_archivo_dj({}).fallas.empty());
}

}  // namespace
