// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of generated operations, worked out again. More of them by hand:
//   OPERACIONES=200000 SEMILLA=7 build/dev/programa/pruebas --gtest_filter='PasosDelCalculo.*'

#include "apoyo/apoyo.h"
#include "computation/calculo.h"
#include "computation/repaso.h"
#include "computation/textos_pasos.h"

#include <cmath>
#include <map>
#include <random>

namespace {

constexpr int ID = 5707090;

struct Operado
{
    CamposSueltos sueltos;
    CamposImpuesto c = sueltos.campos();
    clsSubconcepto s;
    EstadoOperacion e;
};

class PasosDelCalculo : public ConAlmacen
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        ValorModulo = 2.5;
        cnRtn.ejecutarGuion(
            "insert into SEL_TB_SUBCONCEPTOS (SSUB_ID, SSUB_DESCRIPCION, STIC_ID, SCON_ID) values (5707090, 'PRUEBA', 3, 1);"
            "insert into SEL_TB_ROLES (SROL_ID, SROL_DESCRIPCION, SSUB_ID, SROL_PARTICIPA_IMPUESTO) values "
            "(90001, 'A', 5707090, 1), (90002, 'B', 5707090, 1), (90003, 'I', 5707090, 0);"
            "insert into SEL_TB_ALICUOTAS values (5707090, 1, 0, 1000, 0.0125, null, null), (5707090, 2, 1000, 400000, 0.03335, null, null);"
            "insert into SEL_TB_MODULOS values (5707090, 1, 0, 2500, 3.25), (5707090, 2, 2500.01, 900000, 17)"_u);
    }
    size_t hasta(size_t n) { return azar_() % n; }
    template <class T>
    T uno_de(std::initializer_list<T> valores)
    {
        return valores.begin()[hasta(valores.size())];
    }
    double importe() { return uno_de({0.0, 1000.0, double(hasta(99999999)) / 100, double(hasta(99999)) / 100}); }

    void generar(Operado& o)
    {
        o.s.setIdSubconcepto(ID);
        o.s.TipoCalculo = QString::fromUtf8(
            uno_de({"VARIABLE", "VARIABLE", "FIJO", "FIJO PROPORCIONAL", "FIJO ESCALA", "X"}));
        o.s.RequiereBaseImponible = hasta(5) > 0;
        o.s.RequiereValorContractual = hasta(3) > 0;
        o.s.IdTipoCalculoBI = uno_de({0, 1, 3, 6, 11, 11, 12});
        o.s.PorcentajeValuacionFiscal = uno_de({1.0, 0.35, 1.7});
        o.s.ModulosMinimo = uno_de({-1, 0, 7, 400});
        o.s.ObligAccesoria = hasta(2) > 0;
        o.s.Exencion = hasta(2) > 0;
        o.s.ExencionPorc = uno_de({0.0, 50.0, 33.33, 100.0});
        ModoImporteMinimo = uno_de({0, 0, 1, 1, 2});
        ModoImporteFijo = uno_de({0, 1, 2});
        for (size_t n = hasta(4); n > 0; --n)
            o.e.partes << EstadoOperacion::Parte{QString::fromUtf8(uno_de({"A", "B", "I", ""})),
                                                 uno_de<std::optional<double>>({100.0, 100.0, 12.5, std::nullopt}),
                                                 "P"_u};
        o.e.subconcepto = hasta(20) > 0 ? &o.s : nullptr;
        o.e.obligAccesoria = hasta(4) > 0;
        o.e.obligAccesoriaDato = 1;
        o.e.obligAccesoriaFijo = hasta(2) > 0;
        o.e.obligAccesoriaPorc = !o.e.obligAccesoriaFijo;
        for (Numero* n : {&o.c.nroTotalVC, &o.c.nroValuacionFiscal, &o.c.nroHipoteca, &o.c.nroObligAccesoria,
                          &o.c.nroMoA, &o.c.nroMontoExento, &o.c.ctlImpuestoCalculado, &o.c.nroImpuesto,
                          &o.c.nroPagoACuenta, &o.c.nroAdicionales})
            if (hasta(8) > 0)
                n->setValue(importe());
    }
    // What the steps left is what the fields hold, in the very text that is stored.
    static bool bien(const std::vector<Paso>& pasos, const CamposImpuesto& c)
    {
        const Repaso r = repasar(pasos);
        const std::tuple<Cifra, const Numero&, int> campos[] = {{Cifra::totalVC, c.nroTotalVC, 2},
                                                                {Cifra::valuacion, c.nroValuacionFiscal, 2},
                                                                {Cifra::prestamo, c.nroHipoteca, 2},
                                                                {Cifra::obligacion, c.nroObligAccesoria, 2},
                                                                {Cifra::base, c.ctlBaseImponiblePesos, 2},
                                                                {Cifra::moa, c.nroMoA, 4},
                                                                {Cifra::exencion, c.nroExencionPorc, 2},
                                                                {Cifra::exento, c.nroMontoExento, 2},
                                                                {Cifra::calculado, c.ctlImpuestoCalculado, 2},
                                                                {Cifra::impuesto, c.nroImpuesto, 2},
                                                                {Cifra::pagoACuenta, c.nroPagoACuenta, 2},
                                                                {Cifra::adicionales, c.nroAdicionales, 2}};
        bool todos = !r.falla;
        for (const auto& [cifra, campo, decimales] : campos)
            todos = todos
                    && (!r.valor(cifra)
                        || formato_decimal(*r.valor(cifra), decimales) == formato_decimal(campo.Value(), decimales));
        return todos && r.valor(Cifra::impuesto);
    }
    // Nothing can be left out, no result can be another one; which figures were found out is kept.
    void estropear(const std::vector<Paso>& pasos, const CamposImpuesto& c)
    {
        for (size_t i = 0; i < pasos.size(); ++i) {
            auto otros = pasos;
            otros.erase(otros.begin() + qsizetype(i));
            EXPECT_FALSE(bien(otros, c)) << "without " << int(pasos[i].clase);
            const FormaPaso& forma = forma_de(pasos[i].clase);
            otros = pasos;
            otros[i].resultado += std::max(0.01, std::fabs(pasos[i].resultado) * 1e-12);
            EXPECT_FALSE(bien(otros, c)) << "result of " << int(pasos[i].clase);
            for (size_t k = 0; k < forma.cifras.size() && forma.cifras[k] != Cifra::ninguna; ++k)
                for (const double otra : {pasos[i].cifras[k] + 1, 1e12, -2.0}) {
                    otros = pasos;
                    otros[i].cifras[k] = otra;
                    descubiertas_[{pasos[i].clase, k}] += !bien(otros, c);
                }
        }
    }

    std::mt19937 azar_{unsigned(qEnvironmentVariableIsSet("SEMILLA") ? qEnvironmentVariableIntValue("SEMILLA") : 4)};
    std::map<std::pair<ClasePaso, size_t>, int> descubiertas_;
};

TEST_F(PasosDelCalculo, RehechosDanLasCifrasDeLaOperacionAlCentavo)
{
    const int operaciones = qEnvironmentVariableIsSet("OPERACIONES") ? qEnvironmentVariableIntValue("OPERACIONES")
                                                                     : 4000;
    std::map<ClasePaso, int> vistas;
    for (int i = 0; i < operaciones && !HasFailure(); ++i) {
        Operado o;
        generar(o);
        CamposSueltos solo(o.c);
        Pasos valores, pasos;
        const double mitad = std::floor(o.c.nroTotalVC.Value() / 2);
        const double resto = o.c.nroTotalVC.Value() - mitad;
        valores.anotar(ClasePaso::valorSumado, {0, mitad}, mitad);
        valores.anotar(ClasePaso::valorSumado, {mitad, resto}, mitad + resto);
        valores.anotar(ClasePaso::totalVC, {mitad + resto}, o.c.nroTotalVC.Value());
        CalcularImpuesto(solo.campos(), o.e, oyente);
        o.e.pasos = &pasos;
        CalcularImpuesto(o.c, o.e, oyente);
        EXPECT_TRUE(pasos.completo());
        for (size_t n = 0; n < std::size(solo.n); ++n)
            EXPECT_EQ(solo.n[n].toString(), o.sueltos.n[n].toString());  // the recorder changes nothing
        const auto todos = juntar_pasos(valores.lista(), pasos.lista());
        EXPECT_TRUE(bien(todos, o.c)) << pasos_con_tabuladores(filas_de_pasos(todos)).toStdString();
        for (const Paso& p : todos)
            ++vistas[p.clase];
        if (i % 20 == 0)
            estropear(todos, o.c);
    }
    EXPECT_EQ(vistas.size(), size_t(ClasePaso::cuantas));  // every kind came up
    for (const auto& [cifra, veces] : descubiertas_) {
        const Cifra cual = forma_de(cifra.first).cifras[cifra.second];
        const bool suelta = cual == Cifra::codigo || cual == Cifra::ley || cual == Cifra::modo;
        EXPECT_TRUE(suelta || veces > 0) << int(cifra.first) << ' ' << cifra.second;
    }
}

}  // namespace
