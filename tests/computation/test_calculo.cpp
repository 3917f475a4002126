// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/apoyo.h"
#include "computation/calculo.h"
#include "computation/ley.h"
#include "computation/obligacion.h"
#include "computation/roles_operacion.h"

namespace {

constexpr int ID = 5707090;

// An item of the catalogue made for one case, with brackets of its own.
class Calculo : public ConAlmacen
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        ValorModulo = 2.5;
        s.TipoCalculo = "VARIABLE"_u;
        s.RequiereBaseImponible = true;
        s.RequiereValorContractual = true;
        s.IdTipoCalculoBI = 3;
        s.PorcentajeValuacionFiscal = 1;
        cnRtn.ejecutar(
            "insert into SEL_TB_SUBCONCEPTOS (SSUB_ID, SSUB_DESCRIPCION, STIC_ID, SCON_ID) values (5707090, 'PRUEBA', 3, 1)"_u);
        rol(1, "A", true);
        rol(2, "B", true);
        rol(3, "I", false);
    }
    void rol(int n, const char* nombre, bool participa)
    {
        cnRtn.ejecutar(
            "insert into SEL_TB_ROLES (SROL_ID, SROL_DESCRIPCION, SSUB_ID, SROL_PARTICIPA_IMPUESTO) values (%1, '%2', 5707090, %3)"_u
                .arg(ID * 1000LL % 1000000 + n)
                .arg(QLatin1StringView(nombre))
                .arg(participa));
    }
    void alicuota(double desde, double hasta, double valor)
    {
        cnRtn.ejecutar("insert into SEL_TB_ALICUOTAS values (5707090, %1, %2, %3, %4, null, null)"_u.arg(++tramos)
                           .arg(desde)
                           .arg(hasta)
                           .arg(valor, 0, 'g', 15));
    }
    void modulos(double desde, double hasta, double valor)
    {
        cnRtn.ejecutar(
            "insert into SEL_TB_MODULOS values (5707090, %1, %2, %3, %4)"_u.arg(++tramos).arg(desde).arg(hasta).arg(
                valor, 0, 'g', 15));
    }
    void calcular()
    {
        s.setIdSubconcepto(ID);
        e.subconcepto = &s;
        CalcularImpuesto(c, e, oyente);
    }

    CamposSueltos sueltos;
    CamposImpuesto c = sueltos.campos();
    clsSubconcepto s;
    EstadoOperacion e;
    int tramos = 1;
};

struct Caso
{
    double base;
    double alicuota;
    int minimo;  // modules, -1 without
    int modo;
    double exento;
    double pago, adicional;
    double calculado, exencion, impuesto;
};
class CalculoVariable : public Calculo, public testing::WithParamInterface<Caso>
{
};
TEST_P(CalculoVariable, Impuesto)
{
    const Caso& k = GetParam();
    alicuota(0, -1, k.alicuota);
    s.ModulosMinimo = k.minimo;
    ModoImporteMinimo = k.modo;
    s.Exencion = k.exento != 0;
    s.ExencionPorc = k.exento;
    c.nroTotalVC.setValue(k.base);
    c.nroPagoACuenta.setValue(k.pago);
    c.nroAdicionales.setValue(k.adicional);
    calcular();
    EXPECT_DOUBLE_EQ(c.ctlImpuestoCalculado.Value(), k.calculado);
    EXPECT_DOUBLE_EQ(c.nroMontoExento.Value(), k.exencion);
    EXPECT_DOUBLE_EQ(c.nroImpuesto.Value(), k.impuesto);
}
INSTANTIATE_TEST_SUITE_P(
    Casos, CalculoVariable,
    testing::Values(
        //   base       alíc    mín modo  E    pago adic    C        X       I
        Caso{10000, .01, 50, 0, 0, 0, 0, 100.00, 0.00, 125.00},   // the minimum lifts the tax
        Caso{10000, .01, 50, 0, 50, 0, 0, 100.00, 62.50, 62.50},  // minimum first, then exemption
        Caso{10000, .01, 50, 1, 50, 0, 0, 50.00, 0.00, 125.00},   // exemption first: the minimum undoes it
        Caso{10000, .01, 10, 1, 50, 0, 0, 50.00, 50.00, 50.00}, Caso{10000, .01, -1, 0, 25, 0, 0, 100.00, 25.00, 75.00},
        Caso{10000, .01, -1, 1, 25, 0, 0, 75.00, 25.00, 75.00},  // the calculated amount is net
        Caso{10000, .01, 0, 0, 0, 0, 0, 100.00, 0.00, 100.00},   // a minimum of zero is no minimum
        Caso{10000, .01, 50, 2, 50, 0, 0, 100.00, 0.00, 0.00},   // an unknown mode does nothing
        Caso{10000, .01, 50, 0, 0, 30, 10, 100.00, 0.00, 105.00},
        Caso{10000, .01, -1, 0, 0, 300, 0, 100.00, 0.00, -200.00},  // it may become negative
        Caso{10000, .01, -1, 0, 100, 0, 10, 0.00, 0.00, 10.00},     // additions stand outside
        Caso{100.5, .01, -1, 0, 0, 0, 0, 1.01, 0.00, 1.01},         // 1.005 in binary lies below
        Caso{26750, .0001, -1, 0, 0, 0, 0, 2.68, 0.00, 2.68},
        Caso{1.15, .5, -1, 0, 50, 0, 0, 0.58, 0.29, 0.29},  // each step reads the rounded field
        Caso{0, .01, -1, 0, 0, 0, 0, 0.00, 0.00, 0.00}));   // a base of zero matches a bracket from zero

TEST_F(Calculo, TramosDeAlicuotaYDeModulosEnSusLimites)
{
    alicuota(0, 1000, .01);
    alicuota(1000, -1, .02);
    for (const auto& [base, esperada] :
         {std::pair{0.0, 0.01}, {0.01, 0.01}, {999.99, 0.01}, {1000.0, 0.01}, {1000.01, 0.02}}) {
        c.nroTotalVC.setValue(base);
        calcular();
        EXPECT_DOUBLE_EQ(c.nroMoA.Value(), esperada) << base;
    }
    EXPECT_EQ(e.lblMoA, "Alícuota"_u);

    // The bounds of the modules are held against base times module value: 400 x 2.5 is 1000.
    s.TipoCalculo = "FIJO"_u;
    modulos(0, 999.99, 3);
    modulos(1000, -1, 7);
    for (const auto& [base, esperados] : {std::pair{399.99, 3.0}, {400.0, 7.0}, {400.01, 7.0}}) {
        c.nroTotalVC.setValue(base);
        calcular();
        EXPECT_DOUBLE_EQ(c.nroMoA.Value(), esperados) << base;
    }
    EXPECT_EQ(e.lblMoA, "Módulos"_u);
    EXPECT_TRUE(oyente.textos.isEmpty());
}

TEST_F(Calculo, SinTramoAvisaYSigue)
{
    alicuota(100, -1, .01);
    c.nroMoA.setValue(.5);
    c.nroTotalVC.setValue(50);
    calcular();
    EXPECT_EQ(oyente.ultimo(), "Error: No se encuentra la alícuota correspondiente para este subconcepto"_u);
    EXPECT_EQ(oyente.iconos.last(), Icono::critico);
    EXPECT_TRUE(e.enfocarMoA);
    EXPECT_DOUBLE_EQ(c.nroMoA.Value(), 0);

    s.TipoCalculo = "FIJO"_u;
    c.nroMoA.setValue(4);
    calcular();
    EXPECT_EQ(oyente.ultimo(),
              "Error en la tabla de módulos: No se encuentran los modulos correspondientes para este subconcepto"_u);
    EXPECT_DOUBLE_EQ(c.nroMoA.Value(), 4);  // it goes on with what it was
    EXPECT_DOUBLE_EQ(c.nroImpuesto.Value(), 10);
}

struct Fijo
{
    const char* tipo;
    bool rbi, rvc;
    double base, modulos, exento, calculado, impuesto;
};
class CalculoFijo : public Calculo, public testing::WithParamInterface<Fijo>
{
};
TEST_P(CalculoFijo, Impuesto)
{
    const Fijo& k = GetParam();
    modulos(0, -1, k.modulos);
    s.TipoCalculo = QString::fromUtf8(k.tipo);
    s.RequiereBaseImponible = k.rbi;
    s.RequiereValorContractual = k.rvc;
    s.Exencion = k.exento != 0;
    s.ExencionPorc = k.exento;
    s.ModulosMinimo = 1000;  // never looked at by the fixed types
    c.nroTotalVC.setValue(k.base);
    c.nroMoA.setValue(k.modulos);
    c.ctlImpuestoCalculado.setValue(9);
    c.nroImpuesto.setValue(9);
    calcular();
    EXPECT_DOUBLE_EQ(c.ctlImpuestoCalculado.Value(), k.calculado);
    EXPECT_DOUBLE_EQ(c.nroImpuesto.Value(), k.impuesto);
}
INSTANTIATE_TEST_SUITE_P(
    Casos, CalculoFijo,
    testing::Values(Fijo{"FIJO", true, false, 0, 3, 0, 0, 0},  // nothing until the base is there
                    Fijo{"FIJO", false, false, 0, 3, 0, 7.5, 7.5}, Fijo{"FIJO", true, true, 10, 3, 0, 7.5, 7.5},
                    Fijo{"FIJO", false, false, 0, 3, 50, 7.5, 3.75},
                    Fijo{"FIJO PROPORCIONAL", true, true, 100, 0.02, 0, 5, 5},   // 0.02 x (100 x 2.5)
                    Fijo{"FIJO PROPORCIONAL", true, false, 100, 0.02, 0, 9, 9},  // they keep what they held
                    Fijo{"FIJO ESCALA", false, false, 0, 4, 0, 10, 10}, Fijo{"FIJO OTRO", false, false, 0, 4, 0, 9, 9},
                    Fijo{"OTRO", false, false, 0, 4, 50, 9, 9}));

TEST_F(Calculo, ExentoTotalDejaElMontoExentoComoEstaba)
{
    alicuota(0, -1, .01);
    s.Exencion = true;
    s.ExencionPorc = 100;
    c.nroTotalVC.setValue(1000);
    c.nroMontoExento.setValue(77);
    calcular();
    EXPECT_DOUBLE_EQ(c.nroMontoExento.Value(), 77);
    EXPECT_DOUBLE_EQ(c.nroImpuesto.Value(), 0);
}

struct Bases
{
    int tipo;
    double vc, vf, hipoteca, factor;
    double base;
    bool aviso;
};
class CalculoBase : public Calculo, public testing::WithParamInterface<Bases>
{
};
TEST_P(CalculoBase, BaseImponible)
{
    const Bases& k = GetParam();
    s.IdTipoCalculoBI = k.tipo;
    s.PorcentajeValuacionFiscal = k.factor;
    c.nroTotalVC.setValue(k.vc);
    c.nroValuacionFiscal.setValue(k.vf);
    c.nroHipoteca.setValue(k.hipoteca);
    e.subconcepto = &s;
    CalcularBaseImponible(c, e, oyente);
    EXPECT_DOUBLE_EQ(c.nroBaseImponible.Value(), k.base);
    EXPECT_DOUBLE_EQ(c.ctlBaseImponiblePesos.Value(), k.base);
    EXPECT_EQ(oyente.ultimo(), k.aviso ? "El préstamo no puede ser mayor que el precio de venta"_u : QString());
}
INSTANTIATE_TEST_SUITE_P(Casos, CalculoBase,
                         testing::Values(Bases{0, 10, 20, 0, 1, 0, false}, Bases{1, 100, 90, 0, 1, 100, false},
                                         Bases{1, 100, 90, 0, 2, 180, false}, Bases{3, 100, 900, 0, 1, 100, false},
                                         Bases{12, 100, 900, 0, 1, 100, false}, Bases{6, 100, 900, 0, .5, 450, false},
                                         Bases{11, 80000, 100000, 120000, 9, -20000,
                                               false},  // no comparison with the loan here, and no factor
                                         Bases{11, 80000, 70000, 120000, 1, 0, true},
                                         Bases{11, 80000, 70000, 30000, 1, 50000, false},
                                         Bases{11, 500, 500, 100, 1, 400, false}, Bases{2, 100, 900, 0, 1, 0, false},
                                         Bases{7, 100, 900, 0, 1, 0, false}, Bases{13, 100, 900, 0, 1, 0, false}));

TEST_F(Calculo, ObligacionAccesoriaSumaSoloConSuModo)
{
    struct K
    {
        bool tiene, tildada;
        std::optional<int> dato;
        bool fijo;
        double valor, base;
    };
    for (const K& k :
         {K{true, true, 1, true, 30, 130}, K{true, true, 1, false, 30, 130}, K{true, true, 0, true, 30, 100},
          K{true, false, 1, true, 30, 100}, K{false, true, 1, true, 30, 100}, K{true, true, {}, true, 30, 100}}) {
        s.ObligAccesoria = k.tiene;
        e.obligAccesoria = k.tildada;
        e.obligAccesoriaDato = k.dato;
        e.obligAccesoriaFijo = k.fijo;
        e.obligAccesoriaPorc = !k.fijo;
        c.nroObligAccesoria.setValue(k.valor);
        c.nroTotalVC.setValue(100);
        e.subconcepto = &s;
        CalcularBaseImponible(c, e, oyente);
        EXPECT_DOUBLE_EQ(c.nroBaseImponible.Value(), k.base);
    }
    const auto modos = modos_obligacion(1 | 8);
    QString datos;
    for (const Entrada& m : modos)
        datos += m.dato.toString();
    EXPECT_EQ(datos, "10010"_u);
}

TEST_F(Calculo, ExencionDeLasPartes)
{
    using P = EstadoOperacion::Parte;
    struct K
    {
        QList<P> partes;
        bool exencion;
        double porc, esperada;
    };
    s.setIdSubconcepto(ID);
    e.subconcepto = &s;
    for (const K& k : {K{{P{"A"_u, 100}, P{"B"_u, {}}}, false, 0, 50}, K{{P{"A"_u, 100}, P{"B"_u, {}}}, true, 80, 40},
                       K{{P{"A"_u, 100}, P{"B"_u, 100}}, true, 80, 100},  // all exempt: all, not the item's share
                       K{{P{"I"_u, 100}, P{"A"_u, {}}}, false, 0, 0},     // who does not bear the tax does not count
                       K{{}, true, 80, 80}, K{{}, false, 80, 0},
                       K{{P{"a"_u, 100}}, false, 0, 0},  // a role is found by its exact text
                       K{{P{"A"_u, 33.33}, P{"B"_u, 33.33}, P{"A"_u, 33.33}}, false, 0, 33.33}}) {
        e.partes = k.partes;
        s.Exencion = k.exencion;
        s.ExencionPorc = k.porc;
        CalcularExencionPartes(c, e);
        EXPECT_DOUBLE_EQ(c.nroExencionPorc.Value(), k.esperada);
    }
}

TEST_F(Calculo, ValorDeUnaFila)
{
    struct K
    {
        const char* moneda;
        double monto, iva, cambio, factor, total;
    };
    for (const K& k : {K{"DOL", 1000, 21, 3.5, 1, 4235}, K{"PES", 1000, 0, 7, .5, 500}, K{"PES", 1000, 21, 7, 0, 0},
                       K{"DOL", 0.1, 0, 0.5, 1, 0.05}}) {
        Numero valor(2), iva(2), cambio(2), parcial(2);
        valor.setValue(k.monto);
        iva.setValue(k.iva);
        cambio.setValue(k.cambio);
        s.PorcentajeValorContractual = k.factor;
        CalcularValorParcial(&s, QLatin1StringView(k.moneda), valor, iva, cambio, parcial);
        EXPECT_DOUBLE_EQ(parcial.Value(), k.total);
        EXPECT_DOUBLE_EQ(cambio.Value(), *k.moneda == 'P' ? 1 : k.cambio);
    }
}

TEST_F(Calculo, LeyPorLaFechaDeLaEscritura)
{
    cnRtn.ejecutar("update GLB_TB_LEYES set GLEY_VIGENCIA_HASTA='2030-12-31' where GLEY_VIGENCIA_HASTA is null"_u);
    struct K
    {
        const char* dia;
        const char* posicion;
        int ley;
        double modulo;
    };
    ValorModulo = 99;
    for (const K& k : {K{"31", "2024/12", 4821, 2.5}, K{"1", "2025/01", 5707, 150}, K{"31", "2030/12", 5707, 150},
                       K{"1", "1996/01", 4821, 2.5}}) {
        EXPECT_EQ(DeterminarLey(QLatin1StringView(k.dia), QLatin1StringView(k.posicion), oyente), k.ley) << k.posicion;
        EXPECT_DOUBLE_EQ(ValorModulo, k.modulo);
    }
    EXPECT_FALSE(DeterminarLey("1"_u, "2031/01"_u, oyente));
    EXPECT_EQ(oyente.ultimo(), "No se encuentra la ley para la fecha indicada"_u);
    EXPECT_DOUBLE_EQ(ValorModulo, 2.5);  // without a row the earlier value stays
}

TEST_F(Calculo, RolesObligatorios)
{
    cnRtn.ejecutar(
        "update SEL_TB_ROLES set SROL_REQUERIDO=1 where SSUB_ID=5707090 and SROL_DESCRIPCION in ('A','B')"_u);
    s.setIdSubconcepto(ID);
    const auto parte = [](const char* rol) {
        ParteRol p;
        p.rol = QLatin1StringView(rol);
        return p;
    };
    QString texto;
    EXPECT_FALSE(roles_obligatorios(&s, {}, texto));
    EXPECT_EQ(texto, "Los roles de carga obligatoria son:\n - A\n - B"_u);
    EXPECT_FALSE(roles_obligatorios(&s, {parte("A"), parte("A")}, texto));
    EXPECT_TRUE(roles_obligatorios(&s, {parte("B"), parte("A"), parte("A"), parte("I")}, texto));
    EXPECT_FALSE(roles_obligatorios(nullptr, {}, texto));
}

}  // namespace
