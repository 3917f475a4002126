// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/apoyo.h"
#include "core/modComunes.h"
#include "core/reloj.h"
#include "payment/boletas.h"
#include "payment/comprobantes.h"

namespace {

class Pagos : public ConAlmacen
{
protected:
    void TearDown() override
    {
        fijar_hoy({});
        ConAlmacen::TearDown();
    }
    static ControlesBoleta boleta(const QString& dj)
    {
        ControlesBoleta c;
        c.dj = dj;
        c.agenteNro = "101"_u;
        c.agenteNombre = "D'ANGELO"_u;
        c.anio = "2026"_u;
        c.mes = 3;
        c.secuencia = 1;
        c.emision = QDate(2026, 4, 1);
        c.vencimiento = QDate(2026, 4, 15);
        c.impuesto.setValue(1234.56);
        c.totalDepositar.setValue(1234.56);
        c.efectivo.setValue(1234.56);
        c.totalBoleta.setValue(1234.56);
        return c;
    }
};

TEST_F(Pagos, RevisionesDeLaBoletaEnSuOrden)
{
    fijar_hoy(QDate(2026, 4, 15));
    struct K
    {
        void (*cambiar)(ControlesBoleta&);
        const char* control;
        const char* mensaje;
    };
    using C = ControlesBoleta;
    constexpr const char* NO_ENTRAN = "Los importes no entran en el código de barras";
    for (const K& k :
         {K{[](C&) {}, "", ""},
          K{[](C& c) { c.efectivo.setValue(0); }, "nroEfectivo", "Ingrese la forma de pago en la boleta de depósito."},
          K{[](C& c) { c.cheques[0].nro = " 1 "_u; }, "txtCheque1_nro", "Ingrese el monto del primer cheque"},
          K{[](C& c) {
                c.cheques[0].monto.setValue(1);
                c.cheques[0].nro = "  "_u;
            },
            "txtCheque1_nro", "Ingrese el Nº del primer cheque"},
          K{[](C& c) {
                c.cheques[0].monto.setValue(1);
                c.cheques[0].nro = "1"_u;
            },
            "txtCheque1_banco", "Ingrese el banco del primer cheque"},
          K{[](C& c) { c.cheques[1].nro = "1"_u; }, "txtCheque2_nro", "Ingrese el monto del segundo cheque"},
          K{[](C& c) { c.cheques[1].monto.setValue(1); }, "txtCheque2_nro", "Ingrese el Nº del segundo cheque"},
          K{[](C& c) {
                c.cheques[1].monto.setValue(1);
                c.cheques[1].nro = "1"_u;
            },
            "txtCheque2_banco", "Ingrese el banco del segundo cheque"},
          K{[](C& c) {
                c.vencimiento = QDate(2026, 4, 14);
                c.interes.setValue(5);
            },
            "nroInteres", "El periodo se encuentra vencido. Ingrese el interes"},
          K{[](C& c) {
                c.cheques[0].monto.setValue(-1);
                c.totalBoleta.setValue(1233.56);
            },
            "nroTotalBoleta", "El monto total de la boleta no coincide con el total retenido mas intereses"},
          K{[](C& c) {
                c.impuesto.setValue(9999999999.99);
                c.interes.setValue(99999999.99);
            },
            "", ""},
          K{[](C& c) { c.impuesto.setValue(10000000000.0); }, "nroEfectivo", NO_ENTRAN},
          K{[](C& c) { c.interes.setValue(100000000); }, "nroEfectivo", NO_ENTRAN},
          K{[](C& c) { c.interes.setValue(-1); }, "nroEfectivo", NO_ENTRAN},  // a sign has no place among digits
          K{[](C& c) {
                c.interes.setValue(100000000);
                c.totalBoleta.setValue(1);
            },
            "nroTotalBoleta", "El monto total de la boleta no coincide con el total retenido mas intereses"}}) {
        ControlesBoleta c = boleta("20123456786260301"_u);
        k.cambiar(c);
        const auto f = validar_boleta(c);
        EXPECT_EQ(f ? f->control : QString(), QLatin1StringView(k.control)) << k.mensaje;
        EXPECT_EQ(f ? f->mensaje : QString(), QString::fromUtf8(k.mensaje));
        if (f) {
            EXPECT_EQ(f->titulo.value_or(QString()), "Generar boleta de deposito"_u);
            EXPECT_EQ(f->icono, Icono::informacion);
        }
    }
}

TEST_F(Pagos, CodigoDeOchentaDigitos)
{
    ControlesBoleta c = boleta("20123456786260301"_u);
    const QString codigo = codigo_barras_boleta("2022012345678626030100"_u, c);
    EXPECT_EQ(codigo.left(79), "031057"
                               "020"
                               "202201234567862603010000000000"
                               "20260415"
                               "000000123456"
                               "0000000000"
                               "0000000000"_u);
    EXPECT_EQ(codigo.size(), 80);
    EXPECT_EQ(codigo.right(1).toInt(), digito_verificador(codigo.left(79)));
    c.interes.setValue(1.005 * 3);  // 3.015 is shown as 3.02
    EXPECT_EQ(codigo_barras_boleta("2"_u, c).mid(69, 10), "0000000302"_u);
    EXPECT_EQ(codigo_barras_boleta("20"_u, c).mid(9, 30), "20"_u + QString(28, u'0'));
}

TEST_F(Pagos, NumeracionYFilaDeLaBoleta)
{
    const QString dj = nueva_dj();
    const ControlesBoleta c = boleta(dj);
    EXPECT_EQ(insertar_boleta(c), "202"_u + dj + "00"_u);
    EXPECT_EQ(insertar_boleta(c), "202"_u + dj + "01"_u);
    EXPECT_EQ(insertar_boleta(boleta(nueva_dj(1))), "2022012345678626100100"_u);  // the sequence is the DJ's own
    EXPECT_EQ(borrar_boleta("202"_u + dj + "00"_u), 1);
    EXPECT_EQ(proximo_nro_boleta(dj), "202"_u + dj + "02"_u);  // a gap below is not filled
    EXPECT_EQ(borrar_boleta("202"_u + dj + "01"_u), 1);
    EXPECT_EQ(proximo_nro_boleta(dj), "202"_u + dj + "00"_u);
    EXPECT_EQ(borrar_boleta("nada"_u), 0);
    EXPECT_EQ(
        filas(
            "select SBDI_FECHA_EMISION, SBDI_FECHA_VENC, SBDI_RTN_NRO, SBDI_RTN_NOMBRE, SBDI_POSICION, GBAN_ID, GBAN_DESCRIPCION, SBDI_CUENTA, SBDI_IMPORTE, SBDI_INTERES, SBDI_MULTA, "
            "SBDI_TOTAL, SBDI_ANULADA, SSUB_FILIAL_BANCO, SBDI_EFECTIVO, SBDI_CHEQUE1_NRO, SBDI_CHEQUE1_MONTO, SBDI_TIPO_BOLETA, length(SBDI_CODIGO_BARRAS) from SEL_TB_RTN_BOLDEP"_u),
        "2026-04-01|2026-04-15|101|D'ANGELO|20260301|83|DEL MARVEN S.A.|90000440|1234.56|0.0|0.0|1234.56|null|null|1234.56|null|0.0|0|80"_u);
    // Past 99 the number grows by a digit; that of a DJ of 13 characters by its own places.
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_BOLDEP (SBDI_NROBOLETA, SEDJ_NRO, SBDI_TIPO_BOLETA) values ('%1', '%2', 0), ('202001012007030100', '0010120070301', 0)"_u
            .arg("202"_u + dj + "99"_u, dj));
    EXPECT_EQ(insertar_boleta(c), "202"_u + dj + "100"_u);
    EXPECT_EQ(insertar_boleta(c), "202"_u + dj + "100"_u);
    EXPECT_EQ(proximo_nro_boleta("0010120070301"_u), "20200101200703010001"_u);
}

TEST_F(Pagos, NumeracionDeLosComprobantes)
{
    fijar_hoy(QDate(2026, 5, 4));
    const auto con_maximo = [](const char* maximo) {
        cnRtn.ejecutar("delete from SEL_TB_RTN_COMP_RET"_u);
        if (*maximo)
            cnRtn.ejecutar(
                "insert into SEL_TB_RTN_COMP_RET (SCRT_NRO, SEDJ_NRO, SEDD_ID, SCRT_ANULADO) values ('%1', 'X', 1, 'N')"_u
                    .arg(QLatin1StringView(maximo)));
        return proximo_comprobante("00123456786261000"_u);
    };
    for (const auto& [maximo, nuevo] :
         {std::pair{"", "02-00123-2026-00001"},
          {"02-00999-2025-00017", "02-00123-2026-00001"},
          {"02-00999-2026-00017", "02-00999-2026-00018"},  // the prefix of the highest stays
          {"02-00999-2030-00017", "02-00999-2030-00018"},  // a clock set back
          {"02-00999-2026-99999", "02-00999-2026-100000"}})
        EXPECT_EQ(con_maximo(maximo), QLatin1StringView(nuevo));
}

TEST_F(Pagos, LosComprobantesSiguenDespuesDelNoventaYNueveMil)
{
    fijar_hoy(QDate(2026, 5, 4));
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_COMP_RET (SCRT_NRO, SEDJ_NRO, SEDD_ID, SCRT_ANULADO) values ('02-00999-2026-99998', 'X', 1, 'N')"_u);
    for (const char* nro : {"02-00999-2026-99999", "02-00999-2026-100000", "02-00999-2026-100001"}) {
        ASSERT_EQ(proximo_comprobante("X"_u), QLatin1StringView(nro));
        emitir_comprobante(QLatin1StringView(nro), {"X"_u, "1"_u, "1"_u, QDate(2026, 1, 1), "PÉREZ"_u});
        EXPECT_EQ(filas("select MAX_SCRT_NRO, SCRT_ANULADO from SEL_VW_MAX_COMPROB join SEL_TB_RTN_COMP_RET on "
                        "SCRT_NRO=MAX_SCRT_NRO"_u),
                  QLatin1StringView(nro) + "|N"_u);
    }
    fijar_hoy(QDate(2027, 1, 2));
    EXPECT_EQ(proximo_comprobante("00123456786261000"_u), "02-00123-2027-00001"_u);
}

// The highest number is of last year's series: the rule gives the same first number to each agent.
TEST_F(Pagos, UnNumeroTomadoLlevaAlProximoLibre)
{
    fijar_hoy(QDate(2026, 1, 2));
    const auto agregar = [](const char* nro) {
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_COMP_RET (SCRT_NRO, SEDJ_NRO, SEDD_ID, SCRT_ANULADO) values ('%1', 'X', 1, 'N')"_u
                .arg(QLatin1StringView(nro)));
    };
    agregar("02-00999-2025-00017");
    for (const char* nro : {"02-00123-2026-00001", "02-00123-2026-00002", "02-00123-2026-00003"}) {
        EXPECT_EQ(proximo_comprobante("00123456786261000"_u), QLatin1StringView(nro));
        agregar(nro);
    }
    EXPECT_EQ(proximo_comprobante("00124456786261000"_u), "02-00124-2026-00001"_u);
}

TEST_F(Pagos, LoQueFallaDejaElReciboAnteriorYNingunaBoleta)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    const DatosComprobante datos{dj, "1"_u, "10"_u, QDate(2026, 10, 3), "PÉREZ"_u};
    emitir_comprobante("a"_u, datos);
    EXPECT_THROW(emitir_comprobante("a"_u, datos), ErrorAlmacen);
    EXPECT_EQ(filas("select SCRT_NRO, SCRT_ANULADO from SEL_TB_RTN_COMP_RET"_u), "a|N"_u);
    cnRtn.ejecutarGuion("create trigger sin_codigo before update of SBDI_CODIGO_BARRAS on SEL_TB_RTN_BOLDEP "
                        "begin select raise(abort, 'sin código'); end"_u);
    EXPECT_THROW(static_cast<void>(insertar_boleta(boleta(dj))), ErrorAlmacen);
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_BOLDEP"_u), "0"_u);
    EXPECT_EQ(cnRtn.transacciones(), 0);
}

TEST_F(Pagos, UnComprobanteNuevoAnulaElAnterior)
{
    fijar_hoy(QDate(2026, 5, 4));
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    nueva_escritura(dj, 2, 2, 2, 2);
    const auto emitir = [&](const char* renglon, const char* monto) {
        emitir_comprobante(proximo_comprobante(dj),
                           {dj, QLatin1StringView(renglon), QLatin1StringView(monto), QDate(2026, 10, 3), "PÉREZ"_u});
    };
    emitir("1", "100.50");
    emitir("2", "7");
    emitir("1", "99");
    EXPECT_EQ(
        filas(
            "select SCRT_NRO, SEDD_ID, SCRT_ANULADO, SCRT_MONTO_RETENIDO, SCRT_FECHA_RETENCION, SCRT_FECHA_ESCRITURA, SCRT_RTN_NOMBRE from SEL_TB_RTN_COMP_RET order by 1"_u),
        "02-20123-2026-00001|1|S|100.5|04/05/2026|03/10/2026|PÉREZ\n02-20123-2026-00002|2|N|7.0|04/05/2026|03/10/2026|PÉREZ\n"
        "02-20123-2026-00003|1|N|99.0|04/05/2026|03/10/2026|PÉREZ"_u);
    EXPECT_EQ(dato("select MAX_SCRT_NRO from SEL_VW_MAX_COMPROB where SEDD_ID=1"_u), "02-20123-2026-00003"_u);
    emitir_comprobante("x"_u, {dj, "1"_u, "1"_u, QDate(2026, 1, 1), "D'ANGELO"_u});
    EXPECT_EQ(dato("select SCRT_RTN_NOMBRE from SEL_TB_RTN_COMP_RET where SCRT_NRO='x'"_u), "D'ANGELO"_u);
}

}  // namespace
