// SPDX-License-Identifier: GPL-3.0-or-later
// What an office confirmed is in its store, whatever happens to the program. MATANZAS sets how often it is killed:
//   MATANZAS=2000 build/dev/programa/pruebas --gtest_filter='Oficina.Matada*'
//   FALLAS=0 build/dev/programa/pruebas --gtest_filter='Oficina.ConUnDisco*'

#include "apoyo/apoyo.h"
#include "campania/disco.h"
#include "campania/ingles.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <map>

namespace {

int entorno(const char* nombre, int supuesto)
{
    return qEnvironmentVariableIsSet(nombre) ? qEnvironmentVariableIntValue(nombre) : supuesto;
}

// What the store says of a deed whose last confirmed step is this one: %1 is its number, %2 its row.
struct Huella
{
    const char* paso;
    const char* consulta;
    const char* resultado;
};
constexpr Huella HUELLAS[] = {
    {"escritura", "select count(*) from SEL_TB_RTN_DETDJ where SEDD_ESCRITURA_NRO=%1 and SEDD_ID=%2", "1"},
    {"parte", "select count(*) from SEL_TB_RTN_INS_PARTES where SEDD_ID=%2 and %1", "1"},
    {"operacion",
     "select SEDD_TOTAL_IMPUESTO=SINS_MONTO_FINAL and SINS_MONTO_FINAL>0 from SEL_TB_RTN_DETDJ join "
     "SEL_TB_RTN_INS_OPERACIONES using (SEDJ_NRO, SEDD_ID) where SEDD_ESCRITURA_NRO=%1 and SEDD_ID=%2",
     "1"},
    {"recibo", "select count(*) from SEL_TB_RTN_COMP_RET where SCRT_ANULADO='N' and SEDD_ID=%2 and %1", "1"},
    {"sin_operacion", "select count(*) from SEL_TB_RTN_INS_OPERACIONES where SEDD_ID=%2 and %1", "0"},
    {"borrada", "select count(*) from SEL_TB_RTN_DETDJ where SEDD_ESCRITURA_NRO=%1 and SEDD_ID=%2", "0"},
    {"anulada",
     "select SEDD_ESTADO||SEDD_TOTAL_IMPUESTO||(select count(*) from SEL_TB_RTN_INS_OPERACIONES O where "
     "O.SEDD_ID=D.SEDD_ID)||(select count(*) from SEL_TB_RTN_INS_PARTES P where P.SEDD_ID=D.SEDD_ID) from "
     "SEL_TB_RTN_DETDJ D where SEDD_ESCRITURA_NRO=%1 and SEDD_ID=%2",
     "N0.000"},
};
// What holds at any moment: each of these finds nothing.
constexpr const char* NUNCA[] = {
    "pragma foreign_key_check",
    // totals that are not their operations
    "select SEDJ_NRO, SEDD_ID from SEL_TB_RTN_DETDJ D where abs(SEDD_TOTAL_IMPUESTO-(select total(SINS_MONTO_FINAL) from "
    "SEL_TB_RTN_INS_OPERACIONES O where O.SEDJ_NRO=D.SEDJ_NRO and O.SEDD_ID=D.SEDD_ID))>0.001",
    "select SEDJ_NRO from SEL_TB_RTN_CABDJ C where abs(SEDJ_TOTAL_RETENIDO-(select total(SINS_MONTO_FINAL) from "
    "SEL_TB_RTN_INS_OPERACIONES O where O.SEDJ_NRO=C.SEDJ_NRO))>0.001",
    // a deed whose receipts are all annulled, or that has two
    "select SEDD_ID from SEL_TB_RTN_COMP_RET group by SEDJ_NRO, SEDD_ID having sum(SCRT_ANULADO='N')<>1",
    // a slip without its code
    "select SBDI_NROBOLETA from SEL_TB_RTN_BOLDEP where length(SBDI_CODIGO_BARRAS)<>80 or SBDI_CODIGO_BARRAS is null",
    // an annulled deed with something left on it
    "select SEDD_ID from SEL_TB_RTN_DETDJ join SEL_TB_RTN_INS_PARTES using (SEDJ_NRO, SEDD_ID) where SEDD_ESTADO='N'",
};

class Oficina : public ConAlmacen
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        cnRtn.ejecutarGuion(
            "update SEL_TB_ROLES set SROL_REQUERIDO=0; insert into SEL_TB_RTN_PADRON (SRTN_NRO, SRTN_NRO_REGNOTARIAL, SRTN_TITULAR_NOMBRE, SRTN_TITULAR_CUIT, GLOC_ID) "
            "values (101, 101, 'D''ANGELO', 20123456786, 1)"_u);
        nueva_dj();
        cnRtn.cerrar();
        QFile cfg(carpeta.filePath("vedra_rtn.cfg"_u));
        ASSERT_TRUE(cfg.open(QIODevice::WriteOnly) && cfg.write("vedra_rtn.db\n") > 0);
        cfg.close();
        ASSERT_TRUE(QFile::copy(QStringLiteral(RTN_RAR), carpeta.filePath("rar"_u)));
        ASSERT_TRUE(QDir(carpeta.path()).mkdir("salida"_u));
        ASSERT_TRUE(QFile::copy(ruta(), ruta() + ".primera"_u));
    }
    // The office at work for some rounds; whether it came to the end of them.
    bool trabajar(const QProcessEnvironment& entorno)
    {
        QProcess p;
        p.setProcessEnvironment(entorno);
        p.start(QStringLiteral(RTN_OFICINA), {carpeta.path(), "4"_u});
        EXPECT_TRUE(p.waitForFinished(120000));
        anotar(p.readAllStandardOutput());
        return p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0 && dichos_["fin"_u] == 1;
    }
    // Takes in what the program told; what stands behind the last line end was not told whole.
    void anotar(const QByteArray& dicho)
    {
        QStringList lineas = QString::fromUtf8(dicho).split(u'\n');
        lineas.removeLast();
        for (const QString& linea : std::as_const(lineas)) {
            const QStringList p = linea.split(u' ');
            EXPECT_NE(p[0], "inesperado"_u) << linea.toStdString();
            EXPECT_EQ(p[0] == u"caja" ? ingles_en(linea) : QString(), QString()) << linea.toStdString();
            ++dichos_[p[0]];
            if (p.size() == 3)
                pasos_[p[1].toInt()] = p;
        }
    }
    void comprobar()
    {
        cnRtn.abrir(ruta(), clave_almacen());
        EXPECT_EQ(dato("pragma integrity_check"_u), "ok"_u);
        for (const char* consulta : NUNCA)
            EXPECT_EQ(dato(QLatin1StringView(consulta)), "nada"_u) << consulta;
        for (const auto& [nro, paso] : pasos_) {
            // The next step of the last deed may be on the disk, and not be told yet.
            static const QStringList DE_PASO{"recibo"_u, "sin_operacion"_u, "borrada"_u};
            if (nro == pasos_.crbegin()->first && DE_PASO.contains(paso[0]))
                continue;
            const auto* h = std::ranges::find_if(
                HUELLAS, [&](const Huella& una) { return paso[0] == QLatin1StringView(una.paso); });
            ASSERT_NE(h, std::end(HUELLAS)) << paso[0].toStdString();
            EXPECT_EQ(dato(QString::fromLatin1(h->consulta).replace("%1"_u, paso[1]).replace("%2"_u, paso[2])),
                      QLatin1StringView(h->resultado))
                << paso.join(u' ').toStdString();
        }
        EXPECT_GE(dato("select count(*) from SEL_TB_RTN_COMP_RET"_u).toInt(), dichos_["recibo"_u]);
        EXPECT_GE(dato("select count(*) from SEL_TB_RTN_BOLDEP"_u).toInt(), dichos_["boleta"_u]);
        cnRtn.cerrar();
    }
    // The store as it was before the first deed.
    void deNuevo()
    {
        for (const char* resto : {"data", "respaldos", "salida"})
            QDir(carpeta.filePath(QLatin1StringView(resto))).removeRecursively();
        QDir(carpeta.path()).mkdir("salida"_u);
        QFile::remove(ruta());
        QFile::remove(ruta() + "-journal"_u);
        ASSERT_TRUE(QFile::copy(ruta() + ".primera"_u, ruta()));
        pasos_.clear();
        dichos_.clear();
    }

    std::map<int, QStringList> pasos_;  ///< the last step told of each deed, by its number
    std::map<QString, int> dichos_;
};

TEST_F(Oficina, MatadaEnCualquierMomentoConservaLoConfirmado)
{
    QRandomGenerator azar(20261123);
    int confirmados = 0;
    for (int vez = 0; vez < entorno("MATANZAS", 40) && !HasFailure(); ++vez) {
        if (vez % 50 == 0)
            deNuevo();
        QProcess p;
        p.start(QStringLiteral(RTN_OFICINA), {carpeta.path()});
        ASSERT_TRUE(p.waitForReadyRead(30000)) << p.readAllStandardError().toStdString();
        QTest::qSleep(azar.bounded(500));
        p.kill();
        ASSERT_TRUE(p.waitForFinished());
        const int antes = int(pasos_.size());
        anotar(p.readAllStandardOutput());
        confirmados += int(pasos_.size()) - antes;
        comprobar();
        // The number of a deed that is gone is given again, and the new deed may be on the disk without having been told.
        std::erase_if(pasos_, [](const auto& paso) { return paso.second[0] == u"borrada"; });
    }
    EXPECT_GT(confirmados, 20);
}

// Each call fails once; FALLAS is how many of them are tried for each error, 0 for all.
TEST_F(Oficina, ConUnDiscoQueFallaSigueYConservaLoConfirmado)
{
    const QString raiz = QFileInfo(carpeta.path()).canonicalFilePath();
    const QTemporaryDir fuera;
    const DiscoQueFalla disco{raiz, fuera.filePath("cuenta"_u)};
    deNuevo();
    ASSERT_TRUE(trabajar(disco.entorno(0, "EIO")));
    const int llamadas = int(disco.contadas().first);
    ASSERT_GT(llamadas, 200);
    const int cuantas = entorno("FALLAS", 8);
    QRandomGenerator azar(20261124);
    for (const char* error : {"ENOSPC", "EIO"})
        for (int i = 1; i <= (cuantas == 0 ? llamadas : cuantas) && !HasFailure(); ++i) {
            deNuevo();
            const int n = cuantas == 0 ? i : 1 + int(azar.bounded(llamadas));
            SCOPED_TRACE(error + (" en la llamada " + std::to_string(n)));
            EXPECT_TRUE(trabajar(disco.entorno(n, error)));
            comprobar();
        }
}

}  // namespace
