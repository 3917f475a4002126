// SPDX-License-Identifier: GPL-3.0-or-later
// The printed forms, read back from their PDFs by pdftotext.

#include "computation/screens/rpt_pasos.h"
#include "core/reloj.h"
#include "impresos.h"
#include "payment/comprobantes.h"
#include "printing/textos_escrituras.h"

#include <QRegularExpression>

namespace {

TEST_F(Impresos, BoletaConEfectivoYDosCheques)
{
    const QString dj = nueva_dj();
    ControlesBoleta c;
    c.dj = dj;
    c.agenteNro = "101"_u;
    c.anio = "2026"_u;
    c.mes = 10;
    c.emision = QDate(2026, 11, 2);
    c.vencimiento = QDate(2026, 11, 16);
    c.impuesto.setValue(1234567890.55);
    c.interes.setValue(10);
    c.totalDepositar.setValue(1234567900.55);
    c.efectivo.setValue(900.55);
    c.cheques[0] = {"11112222"_u, "BANCO UNO"_u, c.impuesto};
    c.cheques[1] = {"33334444"_u, "BANCO DOS"_u, c.interes};
    c.filial = "CENTRO"_u;
    const QString nro = insertar_boleta(c);
    cnRtn.ejecutar("update SEL_TB_RTN_BOLDEP set SBDI_ANULADA=1"_u);
    rptRTN_boldep1 informe(leer_boleta(nro));
    const QStringList paginas = textos(informe);
    ASSERT_EQ(paginas.size(), 1);
    for (
        const char* dice :
        {"PÉREZ", "20123456786", "10/2026 (Original)", "DEL MARVEN S.A.", "90000440", "CENTRO", "16/11/2026",
         "02/11/2026", "1.234.567.890,55", "10,00", "1.234.567.900,55", "900,55", "11112222 BANCO UNO",
         "33334444 BANCO DOS", "ANULADA",
         "SON PESOS: un mil doscientos treinta y cuatro millones quinientos sesenta y siete mil novecientos con 55/100"})
        EXPECT_GE(paginas[0].count(QString::fromUtf8(dice)), 4) << dice;
    EXPECT_EQ(paginas[0].count("ANULADA"_u), 4);
    for (const char* para : {"Para el Banco", "Para la Dirección General de Rentas", "Para el Agente de Retención",
                             "Para la Casa Central del Banco"})
        EXPECT_EQ(paginas[0].count(QString::fromUtf8(para)), 1) << para;
    EXPECT_TRUE(leer_boleta("nada"_u).isEmpty());
}

// Past sequence 99 numbers repeat: each slip goes on paper with its own amounts, code and state.
TEST_F(Impresos, CadaBoletaDeUnNumeroRepetido)
{
    const QString dj = nueva_dj();
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_BOLDEP (SBDI_NROBOLETA, SEDJ_NRO, SBDI_TIPO_BOLETA) values ('%1', '%2', 0)"_u.arg(
            "202"_u + dj + "99"_u, dj));
    const QString repetido = "202"_u + dj + "100"_u;
    ControlesBoleta c;
    c.dj = dj;
    c.agenteNro = "101"_u;
    c.vencimiento = QDate(2026, 11, 16);
    QStringList codigos;
    for (const double importe : {71.5, 82.25}) {
        c.impuesto.setValue(importe);
        const QString nro = insertar_boleta(c);
        EXPECT_EQ(nro, repetido);
        codigos << codigo_legible_boleta(codigo_barras_boleta(nro, c)).simplified();
    }
    cnRtn.ejecutar("update SEL_TB_RTN_BOLDEP set SBDI_ANULADA=1 where SBDI_IMPORTE=71.5"_u);
    rptRTN_boldep1 informe(leer_boleta(repetido));
    QStringList paginas = textos(informe);
    ASSERT_EQ(paginas.size(), 2);
    for (QString& pagina : paginas)
        pagina = pagina.simplified();
    for (const int i : {0, 1}) {
        EXPECT_EQ(paginas[i].count(codigos[i]), 4);
        EXPECT_EQ(paginas[i].count(i == 0 ? "71,50"_u : "82,25"_u), 4);
        EXPECT_EQ(paginas[i].count("ANULADA"_u), i == 0 ? 4 : 0);
        EXPECT_EQ(paginas[i].count("Sello y firma del Banco"_u), i == 0 ? 0 : 4);
    }
}

class ImpresosSaltos : public Impresos, public testing::WithParamInterface<int>
{
};
TEST_P(ImpresosSaltos, CadaEscrituraUnaVezYLosTotalesAlFinal)
{
    const int n = GetParam();
    rpt_dj informe(dj_de(n), CODIGO, "VEDRA RTN v.1.0.0"_u);
    const QStringList paginas = textos(informe);
    EXPECT_EQ(paginas.size(), informe.paginas());
    const QString todo = paginas.join(QString());
    for (int i = 1; i <= n; ++i)
        EXPECT_EQ(todo.count(QRegularExpression(" E%1# .* PASO"_u.arg(i))), 1) << i;
    for (int i = 0; i < paginas.size(); ++i) {
        EXPECT_EQ(paginas[i].count("DECLARACIÓN JURADA"_u), 1);
        // What stands first below the titles is a deed's line, of its own or of what is left of it.
        if (const QString deeds = paginas[i].section("Impuesto $\n"_u, 1).trimmed(); !deeds.isEmpty()) {
            EXPECT_TRUE(deeds.section(u'\n', 0, 0).contains(u'#')) << i;
        }
        EXPECT_TRUE(paginas[i].contains("Hoja %1 de %2"_u.arg(i + 1).arg(paginas.size()))) << i;
        // The line of a deed is not parted from what comes next: no page ends on one.
        const QStringList lineas = paginas[i].split(u'\n', Qt::SkipEmptyParts);
        EXPECT_FALSE(lineas.size() > 2 && lineas[lineas.size() - 2].contains(u'#')) << i;
    }
    EXPECT_EQ(todo.count("Alícuota 1,25 %; Calculado"_u), n);
    EXPECT_EQ(todo.count("Importe total retenido $"_u), 1);
    EXPECT_TRUE(paginas.last().contains("1.234.567,89"_u));
    EXPECT_TRUE(paginas.last().contains("9DCA BBEC 95C6 0F7B 6984 6C4A 8513 C009"_u));
    EXPECT_EQ(todo.count("PÉREZ"_u), 1);
}
INSTANTIATE_TEST_SUITE_P(Casos, ImpresosSaltos, testing::Values(1, 30, 31, 500));

TEST_F(Impresos, DJSinMovimientos)
{
    rpt_dj_sin_mov informe(dj_de(0), CODIGO, "VEDRA RTN v.1.0.0"_u);
    const QStringList paginas = textos(informe);
    ASSERT_EQ(paginas.size(), 1);
    for (const char* dice : {"SIN MOVIMIENTOS", "PÉREZ", "DJ Nº 20123456786261000", "VEDRA RTN v.1.0.0"})
        EXPECT_TRUE(paginas[0].contains(QString::fromUtf8(dice))) << dice;
}

TEST_F(Impresos, DJDeSesentaEscriturasDelAlmacen)
{
    const QString dj = nueva_dj();
    for (int i = 1; i <= 60; ++i)
        nueva_escritura(dj, i, 100 + i, 200 + i, 1 + i / 3,
                        i % 10 == 7   ? "N"
                        : i % 10 == 8 ? "E"
                                      : "P",
                        i % 10 == 9 ? "N" : "S");
    cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SNAD_ID=9, SNAD_DESC_OTRO='UN MOTIVO PROPIO' where SEDD_ID=9"_u);
    cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SNAD_ID=1 where SEDD_ID=19"_u);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID, SINS_BASEIMPONIBLE, SINS_MONTO_FINAL) values "
        "('%1', 1, 1, 5707001, 1000, 10), ('%1', 1, 2, 5707029, null, 3000)"_u.arg(dj));
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_RSOCIAL, SPIN_NACIONALIDAD, CPAI_CODIGO, SPIN_CUIT_EN_TRAMITE, SPIN_CUIT) values "
        "(1, '%1', 1, '96', '22333444', 'O''HIGGINS', 'A', null, 0, null), (2, '%1', 1, '94', 'AB1', 'SILVA', 'E', '50000000316', 0, null), (3, '%1', 1, '80', null, 'NUEVA S.A.', 'A', null, 1, null), (4, '%1', 1, '80', '27000000014', 'PAZ', 'A', null, 0, 27000000014), (5, '%1', 1, '80', '30700000004', 'SOUZA', 'E', '50000000116', 0, 30700000004)"_u
            .arg(dj));
    QString inmuebles;
    for (int i = 1; i <= 160; ++i)
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_INMUEBLES (SEDJ_NRO, SEDD_ID, SEII_ID, SEII_PARTIDA, SEII_VAL_FISCAL, GTUB_ID) values ('%1', 2, %2, 'P%2x', 1234567.5, 1)"_u
                .arg(dj)
                .arg(i));
    const DJImpresa impresa = leer_dj_impresa(dj);
    ASSERT_EQ(impresa.escrituras.size(), 60);
    EXPECT_EQ(impresa.escrituras[0].operaciones.size(), 2);
    rpt_dj informe(impresa, CODIGO, "v"_u);
    const QString todo = textos(informe).join(QString()).simplified();
    for (const char* dice : {"UN MOTIVO PROPIO", "Testamento", "ANULADA/ERROSE", "ANULADA/NO PASO", "No alcanzada",
                             "COMPRAVENTA DE INMUEBLES", "PODER GENERAL", "Base imponible $ 1.000,00",
                             "Partes: O'HIGGINS DNI 22333444; SILVA 50000000316; NUEVA S.A. CUIT (CUIT en trámite);"
                             " PAZ CUIT 27000000014 27000000014; SOUZA 50000000116; 102 202",
                             "- INC b) Base"})
        EXPECT_TRUE(todo.contains(QString::fromUtf8(dice))) << dice;
    EXPECT_EQ(todo.count("102 202 1 (continuación)"_u), 1);
    for (int i = 1; i <= 160; ++i)  // a long list is wrapped, never cut
        EXPECT_EQ(todo.count("P%1x"_u.arg(i)), 1) << i;
    qsizetype lugar = 0;
    for (int i = 1; i <= 60; ++i) {
        lugar = todo.indexOf(" %1 %2 "_u.arg(100 + i).arg(200 + i), lugar);
        EXPECT_GE(lugar, 0) << i;
    }
    cnRtn.ejecutar("update SEL_TB_RTN_CABDJ set GLOC_ID=null"_u);
    // Without its locality the header drops out, and the deeds with it; it is no DJ without movements.
    const DJImpresa sin_cabecera = leer_dj_impresa(dj);
    EXPECT_TRUE(sin_cabecera.cabecera.nro.isEmpty() && sin_cabecera.escrituras.isEmpty());
    EXPECT_FALSE(sin_cabecera.sinMovimientos);
    rpt_dj vacio(sin_cabecera, CODIGO, "v"_u);
    const QString lo_que_queda = textos(vacio).join(QString());
    EXPECT_FALSE(lo_que_queda.contains("SIN MOVIMIENTOS"_u));
    EXPECT_TRUE(lo_que_queda.contains(codigo_legible_dj(CODIGO).trimmed()));
    EXPECT_TRUE(leer_dj_impresa(nueva_dj(1)).sinMovimientos);
}

TEST_F(Impresos, ReciboYReciboAnulado)
{
    fijar_hoy(QDate(2026, 5, 4));
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 77, 88, 3);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_RSOCIAL, SPIN_NACIONALIDAD) values (1, '%1', 1, '96', '22333444', 'RÍOS', 'A')"_u
            .arg(dj));
    for (int i = 0; i < 2; ++i)
        emitir_comprobante(proximo_comprobante(dj), {dj, "1"_u, "1234.5"_u, QDate(2026, 10, 3), "PÉREZ"_u});
    fijar_hoy({});
    cargar_tmp_dj_oper(dj);
    rpt_recibo vigente("02-20123-2026-00002"_u, leer_recibo("02-20123-2026-00002"_u));
    const QString texto = textos(vigente).join(QString());
    for (const char* dice : {"02-20123-2026-00002", "04/05/2026", "03/10/2026", "77", "88", "RÍOS DNI 22333444",
                             "PÉREZ", "1.234,50", "SON PESOS: un mil doscientos treinta y cuatro con 50/100"})
        EXPECT_TRUE(texto.contains(QString::fromUtf8(dice))) << dice;
    rpt_recibo anulado("02-20123-2026-00001"_u, leer_recibo("02-20123-2026-00001"_u));
    const QString vacio = textos(anulado).join(QString());
    EXPECT_TRUE(vacio.contains("COMPROBANTE DE RETENCIÓN"_u)
                && vacio.contains("El comprobante Nº 02-20123-2026-00001 está anulado"_u));
    EXPECT_FALSE(vacio.contains("RÍOS"_u) || vacio.contains("SON PESOS"_u) || vacio.contains("Firma"_u));
    cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SEDD_ESTADO='N'"_u);
    EXPECT_FALSE(leer_recibo("02-20123-2026-00002"_u));
}

TEST_F(Impresos, ReciboDeDosPaginas)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 77, 88, 3);
    for (int i = 1; i <= 200; ++i)
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_RSOCIAL, SPIN_NACIONALIDAD) values (%2, '%1', 1, '96', '%2', 'COMPAÑÍA INMOBILIARIA DEL SUR S.R.L.', 'A')"_u
                .arg(dj)
                .arg(i));
    emitir_comprobante("02-20123-2026-00007"_u, {dj, "1"_u, "1234.5"_u, QDate(2026, 10, 3), "PÉREZ"_u});
    cargar_tmp_dj_oper(dj);
    rpt_recibo recibo("02-20123-2026-00007"_u, leer_recibo("02-20123-2026-00007"_u));
    const QStringList paginas = textos(recibo);
    ASSERT_EQ(paginas.size(), 2);
    for (const QString& pagina : paginas)
        EXPECT_EQ(pagina.count("Comprobante Nº 02-20123-2026-00007"_u), 1);
    EXPECT_FALSE(paginas[0].contains("Firma"_u));
    EXPECT_EQ(paginas[1].count("Partes (continuación)"_u), 1);
    EXPECT_TRUE(paginas[1].contains("Importe retenido $ 1.234,50"_u) && paginas[1].contains("Firma"_u));
    const QString todo = paginas.join(u' ').simplified();
    for (int i = 1; i <= 200; ++i)
        EXPECT_EQ(todo.count(" DNI %1;"_u.arg(i)), 1) << i;
}

TEST_F(Impresos, LosTextosMasAnchosNoSeCortanNiSeEnciman)
{
    const QString w50(50, u'W');
    const QString w100 = "WWWWWWWWW "_u.repeated(10);
    BoletaImpresa b;
    b.nro = "2023071234567126100000"_u;
    b.titular = w50;
    b.agenteNro = "99999"_u;
    b.cuit = "30712345671"_u;
    b.banco = QString(30, u'W');
    b.cuenta = "2147483647"_u;
    b.filial = QString(20, u'W');
    b.posicion = "10/2026 (Rectif. 99)"_u;
    b.emision = b.vencimiento = QDate(2026, 12, 31);
    b.importe = b.interes = b.multa = b.total = b.efectivo = 999999999999.99;
    for (auto& c : b.cheques)
        c = {QString(20, u'9'), w50, 999999999999.99};
    b.codigo = QString(80, u'7');
    rptRTN_boldep1 boleta({b});
    EXPECT_EQ(textos(boleta).size(), 1);

    DJImpresa dj;
    CabeceraImpresa& c = dj.cabecera;
    c.nro = "30712345671261000"_u;
    c.posicion = "10/2026"_u;
    c.rectificativa = "Rectificativa 99"_u;
    c.agenteNro = "99999"_u;
    c.titular = c.adscripto1 = c.adscripto2 = c.localidad = c.email = w50;
    c.cuit = c.adscripto1Cuit = c.adscripto2Cuit = "30-71234567-1"_u;
    c.codPostal = QString(10, u'W');
    c.telefono = QString(20, u'W');
    c.domicilio = c.observaciones = w100;
    c.resolucion = "9999/99"_u;
    c.totalRetenido = c.acreditado = 999999999999.99;
    dj.escrituras << escritura(1);
    dj.escrituras[0].partes = dj.escrituras[0].inmuebles = dj.escrituras[0].motivo = dj.escrituras[0].observaciones =
        w100;
    dj.escrituras[0].impuesto = 999999999999.99;
    rpt_dj larga(dj, CODIGO, "v"_u);
    const QString todo = textos(larga).join(QString());
    EXPECT_EQ(todo.count("Domicilio"_u) + todo.count("Observaciones:"_u), 2);  // the title on the first line alone
    rpt_recibo recibo("02-20123-2026-00002"_u,
                      ReciboImpreso{"02-20123-2026-00002"_u, c.nro, "999999999"_u, "999999999"_u, "31/12/2026"_u,
                                    "31/12/2026"_u, w50, w50, w50, w100, w100, 999999999999.99});
    EXPECT_EQ(textos(recibo).size(), 1);
}

TEST_F(Impresos, LosPasosDeUnCalculoEntranEnteros)
{
    const FilaPaso fila{"88"_u, "Ley por la fecha de la escritura"_u, QString(90, u'W'), "a 2 decimales"_u,
                        "$ 999.999.999.999,99"_u};
    rpt_pasos informe("DJ Nº 30712345671261000"_u, "Los pasos del último cálculo."_u, QList<FilaPaso>(80, fila));
    const QStringList paginas = textos(informe);
    EXPECT_GT(paginas.size(), 2);
    EXPECT_EQ(paginas.join(QString()).count("999.999.999.999,99"_u), 80);
    EXPECT_EQ(paginas.join(QString()).count("Redondeo"_u), paginas.size());
    EXPECT_TRUE(paginas.constLast().contains("Los pasos del último"_u));
}

}  // namespace
