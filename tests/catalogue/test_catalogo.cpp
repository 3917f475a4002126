// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogue without its screens: the list and its filters, the brackets, the rules of an item.

#include "apoyo/apoyo.h"
#include "catalogue/lista_subconceptos.h"
#include "catalogue/rangos.h"
#include "catalogue/reglas_subconcepto.h"
#include "catalogue/roles_catalogo.h"

#include <QRegularExpression>

#include <random>

namespace {

class Catalogo : public ConAlmacen
{
protected:
    static int cuantos(const FiltroSubconceptos& f)
    {
        int n = 0;
        leer_subconceptos(consulta_subconceptos(f), [&n](std::span<const std::string_view>) { ++n; });
        return n;
    }
};

using Exenciones = FiltroSubconceptos::Exenciones;
using Criterio = FiltroSubconceptos::Criterio;

TEST_F(Catalogo, LaConsultaConTodosSusFiltrosEnOrden)
{
    FiltroSubconceptos f;
    EXPECT_EQ(consulta_subconceptos(f),
              "select * from SEL_VW_SUBCONCEPTOS  order by SSUB_LEYVIGENCIA collate ESPANOL"_u);
    f = {.uso = true,
         .concepto = 3,
         .ley = 5707,
         .criterio = Criterio::contiene,
         .texto = "D'ACTO"_u,
         .porLey = true,
         .textoLey = " 5707 "_u,
         .porArticulo = true,
         .textoArticulo = "16"_u,
         .porInciso = true,
         .textoInciso = "B"_u,
         .selladoMultiple = true,
         .exenciones = Exenciones::exentos,
         .porcExencion = "50.5"_u,
         .orden = "SSUB_MODULOSMIN"_u};
    EXPECT_EQ(
        consulta_subconceptos(f),
        "select * from SEL_VW_SUBCONCEPTOS  where  ((([SSUB_USOS]/2) % 2)=1)  and  SCON_ID=3 and  int(SSUB_ID_CONLEY/1000)=5707"
        " and  SSUB_DESCRIPCION like '%D''ACTO%'  and  SSUB_LEYVIGENCIA like '%LEY 5707%'  and  SSUB_LEYVIGENCIA like '%ART 16%' "
        " and  SSUB_LEYVIGENCIA like '%INC B%'  and  SSUB_SELLADO_MULTIPLE=1  and  SSUB_EXENCION=1  and (SSUB_EXENCION_PORC=50.5)  order by SSUB_MODULOSMIN"_u);
    f = {.exenciones = Exenciones::subjetivas, .porcExencion = "20"_u};
    EXPECT_EQ(
        consulta_subconceptos(f),
        "select * from SEL_VW_SUBCONCEPTOS  where  (SSUB_EXENCION_PORC=20 or SSUB_EXENCION=0)  order by SSUB_LEYVIGENCIA collate ESPANOL"_u);
    f.porcExencion.clear();
    EXPECT_FALSE(consulta_subconceptos(f).contains("where"_u));
}

// Against a plain walk over all rows.
TEST_F(Catalogo, LosFiltrosHallanLoQueUnRecorridoSimple)
{
    cnRtn.ejecutar(
        "update SEL_TB_SUBCONCEPTOS set SSUB_USOS=case SSUB_ID%5 when 0 then null when 1 then 0 when 2 then 3 when 3 then 5 else 2 end,"
        " SSUB_EXENCION=SSUB_ID%3=0, SSUB_EXENCION_PORC=case when SSUB_ID%3=0 then 50 when SSUB_ID%4=0 then 20 end, SSUB_SELLADO_MULTIPLE=SSUB_ID%2"_u);
    cnRtn.ejecutar("update SEL_TB_SUBCONCEPTOS set SSUB_DESCRIPCION='VENTA D''AUTOR 100%' where SSUB_ID%7=0"_u);
    struct Item
    {
        int id, concepto;
        QString descripcion, ley;
        int usos;
        bool exento, multiple;
        double porc;
    };
    QList<Item> items;
    for (Recordset rs(cnRtn, "select * from SEL_TB_SUBCONCEPTOS"_u); !rs.eof(); rs.siguiente())
        items << Item{
            int(rs.entero("SSUB_ID")),          int(rs.entero("SCON_ID")),
            rs.texto("SSUB_DESCRIPCION"),       rs.texto("SSUB_LEYVIGENCIA"),
            int(rs.entero("SSUB_USOS")),        rs.logico("SSUB_EXENCION"),
            rs.logico("SSUB_SELLADO_MULTIPLE"), rs.nulo("SSUB_EXENCION_PORC") ? -1 : rs.real("SSUB_EXENCION_PORC")};
    std::mt19937 azar(5);
    const auto uno_de = [&azar](const QStringList& l) { return l[qsizetype(azar() % size_t(l.size()))]; };
    int con_algo = 0;
    for (int i = 0; i < 400; ++i) {
        FiltroSubconceptos f{
            .uso = azar() % 3 == 0,
            .concepto = azar() % 3 == 0 ? std::optional(int(azar() % 8 + 1)) : std::nullopt,
            .ley = azar() % 3 == 0 ? std::optional(5707) : std::nullopt,
            .criterio = Criterio(int(azar() % 4) - 1),
            .texto = uno_de({""_u, "venta"_u, "DE"_u, "D'AUTOR"_u, "CONTRATO"_u, "100%"_u, "A DE"_u, "inmuebles"_u}),
            .porLey = azar() % 4 == 0,
            .textoLey = " 5707"_u,
            .porArticulo = azar() % 4 == 0,
            .textoArticulo = uno_de({"1"_u, "2"_u, "11º"_u}),
            .selladoMultiple = azar() % 4 == 0,
            .exenciones = Exenciones(azar() % 4),
            .porcExencion = uno_de({""_u, "50"_u, "20"_u})};
        const auto vale = [&f](const Item& x) {
            // The text's own "%" stands for anything, as in the statement.
            const QString patron = QRegularExpression::escape(f.texto).replace("\\%"_u, ".*"_u);
            const QString marcos[] = {"^%1"_u, "%1"_u, "%1$"_u};
            const bool texto = f.criterio == Criterio::ninguno || f.texto.isEmpty()
                               || QRegularExpression(marcos[int(f.criterio)].arg(patron),
                                                     QRegularExpression::CaseInsensitiveOption)
                                      .match(x.descripcion)
                                      .hasMatch();
            const bool pide = !f.porcExencion.isEmpty();
            const bool igual = x.porc == f.porcExencion.toDouble();
            const bool exencion = f.exenciones == Exenciones::sin_filtro
                                  || (f.exenciones == Exenciones::no_exentos && !x.exento)
                                  || (f.exenciones == Exenciones::exentos && x.exento && (!pide || igual))
                                  || (f.exenciones == Exenciones::subjetivas && (!pide || igual || !x.exento));
            return (!f.uso || (x.usos & 2)) && (!f.concepto || x.concepto == f.concepto)
                   && (!f.ley || x.id / 1000 == f.ley) && texto && (!f.porLey || x.ley.contains("LEY 5707"_u))
                   && (!f.porArticulo || x.ley.contains("ART "_u + f.textoArticulo))
                   && (!f.selladoMultiple || x.multiple) && exencion;
        };
        const auto esperados = std::count_if(items.begin(), items.end(), vale);
        con_algo += esperados > 0;
        ASSERT_EQ(cuantos(f), esperados) << consulta_subconceptos(f).toStdString();
    }
    EXPECT_GT(con_algo, 100);
}

TEST_F(Catalogo, MarcarYBorrar)
{
    cnRtn.ejecutar("update SEL_TB_SUBCONCEPTOS set SSUB_USOS=5 where SSUB_ID=5707002"_u);
    marcar_subconcepto("5707002"_u, true);
    EXPECT_EQ(dato("select SSUB_USOS from SEL_TB_SUBCONCEPTOS where SSUB_ID=5707002"_u), "2"_u);
    marcar_subconcepto("5707002"_u, false);
    EXPECT_EQ(dato("select SSUB_USOS from SEL_TB_SUBCONCEPTOS where SSUB_ID=5707002"_u), "0"_u);
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID) values ('%1', 1, 1, 5707001)"_u
            .arg(dj));
    EXPECT_THROW(borrar_subconcepto("5707001"_u), ErrorAlmacen);
    borrar_subconcepto("5707002"_u);
    EXPECT_EQ(
        dato(
            "select (select count(*) from SEL_TB_ROLES where SSUB_ID=5707002) + (select count(*) from SEL_TB_SUBCONCEPTOS where SSUB_ID in (5707001, 5707002))"_u),
        "1"_u);
}

// Every pair of small brackets, closed and open, against a walk over the points of both.
TEST_F(Catalogo, SolapeDeRangosContraTodosLosPares)
{
    struct Par
    {
        int desde;
        int hasta;  // 0 without limit
        [[nodiscard]] bool tiene(double p) const { return p > desde && (hasta == 0 || p <= hasta); }
    };
    QList<Par> rangos;
    for (int a = 0; a < 6; ++a)
        for (int b = a + 1; b <= 7; ++b)
            rangos << Par{a, b == 7 ? 0 : b};
    for (const TablaRangos* t : {&RANGOS_ALICUOTAS, &RANGOS_MODULOS})
        for (const Par& hay : rangos) {
            cnRtn.ejecutar("delete from "_u + QLatin1StringView(t->tabla) + " where SSUB_ID=5707003"_u);
            alta_rango(*t, {5707003, QString::number(hay.desde), hay.hasta != 0, QString::number(hay.hasta), {"1"_u}});
            for (const Par& nuevo : rangos) {
                bool comparten = false;
                for (double p = 0.25; p < 9; p += 0.25)
                    comparten |= hay.tiene(p) && nuevo.tiene(p);
                // What the rule lets pass on purpose: a bracket that holds the stored one whole.
                const bool lo_contiene = nuevo.desde < hay.desde
                                         && (nuevo.hasta == 0 ? hay.hasta == 0
                                                              : hay.hasta != 0 && nuevo.hasta > hay.hasta);
                ASSERT_EQ(
                    se_solapa(
                        *t,
                        {5707003, QString::number(nuevo.desde), nuevo.hasta != 0, QString::number(nuevo.hasta), {}}),
                    comparten && !lo_contiene)
                    << hay.desde << "-" << hay.hasta << " con " << nuevo.desde << "-" << nuevo.hasta;
            }
        }
}

TEST_F(Catalogo, RangosYRolesTomanElNumeroDeSuSubconcepto)
{
    cnRtn.ejecutarGuion("delete from SEL_TB_ALICUOTAS; delete from SEL_TB_ROLES where SSUB_ID=5707004"_u);
    EXPECT_EQ(proximo_rango(RANGOS_ALICUOTAS, 5707001), 5707001001);
    EXPECT_EQ(proximo_rol(5707004), 5707004001);
    alta_rango(RANGOS_ALICUOTAS, {5707001, "0"_u, true, "1000.5"_u, {"0.005"_u, "1000"_u, "5"_u}});
    alta_rango(RANGOS_ALICUOTAS, {5707001, "1000.5"_u, false, ""_u, {"0.01"_u, ""_u, ""_u}});
    EXPECT_EQ(filas("select * from SEL_TB_ALICUOTAS"_u),
              "5707001|5707001001|0.0|1000.5|0.005|1000.0|5.0\n5707001|5707001002|1000.5|-1.0|0.01|null|null"_u);
    modificar_rango(RANGOS_ALICUOTAS, 5707001002, {"0.02"_u, "100"_u, "2"_u});
    EXPECT_EQ(filas("select * from SEL_TB_ALICUOTAS where SALI_ID=5707001002"_u),
              "5707001|5707001002|1000.5|-1.0|0.02|100.0|2.0"_u);
    borrar_rango(RANGOS_ALICUOTAS, 5707001001);
    EXPECT_EQ(alicuotas_de(5707001).size(), 1);
    EXPECT_EQ(proximo_rango(RANGOS_ALICUOTAS, 5707001), 5707001003);
}

TEST_F(Catalogo, RolConAtributoYTabla)
{
    clsRol rol{.ParicipaImpuesto = true,
               .CargaOblig_SM = false,
               .Requerido = false,
               .Permite_CuitEnTramite = true,
               .SSUBAtributo = {},
               .SSUBAtributo_valor = {},
               .SSUBAtributo_tabla = "NO_ESTA"_u,
               .IdRol = proximo_rol(5707001),
               .Descripcion = "  "_u};
    const auto falla = [&rol](bool depende) {
        const auto f = validar_rol(rol, depende);
        return f ? f->mensaje + u'|' + f->control + u'|' + f->titulo.value_or(QString()) : QString();
    };
    EXPECT_EQ(falla(true), "Ingrese la descripción del rol|txtDescripcion|"_u);
    rol.Descripcion = " D'ACTO "_u;
    EXPECT_EQ(falla(true), "Ingrese el atributo del subconcepto del cual depende este rol|cboSSUBAtributos|"_u);
    rol.SSUBAtributo = "SSUB_HIPOTECA"_u;
    EXPECT_EQ(
        falla(true),
        "Ingrese el valor para el atributo SSUB_HIPOTECA para el cual será exigible este rol|txtSSUBAtributoValor|"_u);
    rol.SSUBAtributo_valor = "1"_u;
    EXPECT_EQ(falla(true), "La tabla NO_ESTA no existe|txtSSUBAtributoTabla|Error: tabla NO_ESTA"_u);
    for (const char* mala : {"x]; drop table SEL_TB_ROLES; --", "a'b", "SEL_TB_ROLES;"}) {
        rol.SSUBAtributo_tabla = QLatin1StringView(mala);
        EXPECT_TRUE(falla(true).endsWith(" no existe|txtSSUBAtributoTabla|Error: tabla "_u + QLatin1StringView(mala)));
    }
    rol.SSUBAtributo_tabla = "glb_tb_monedas"_u;
    EXPECT_EQ(falla(true), QString());
    alta_rol(rol, 5707001);
    const QString sql =
        "select SROL_DESCRIPCION, SROL_REQUERIDO, SROL_PARTICIPA_IMPUESTO, SROL_SM_CARGA_OBLIG, SROL_SSUB_ATRIBUTO, SROL_SSUB_ATRIBUTO_VALOR,"
        " SROL_SSUB_ATRIBUTO_TABLA, SROL_PERMITE_CUIT_EN_TRAMITE, AUSU_ID, SSUB_ID from SEL_TB_ROLES where SROL_ID=%1"_u
            .arg(rol.IdRol);
    EXPECT_EQ(filas(sql), "D'ACTO|0|1|0|SSUB_HIPOTECA|1|glb_tb_monedas|1|ZQ|5707001"_u);
    rol.SSUBAtributo.clear();
    rol.Requerido = true;
    modificar_rol(rol, 5707001);
    EXPECT_EQ(filas(sql), "D'ACTO|1|1|0|null|1|glb_tb_monedas|1|ZQ|5707001"_u);
    EXPECT_TRUE(atributos_subconcepto().contains("SSUB_OBLIG_ACCESORIA_SUMA"_u));
}

TEST_F(Catalogo, CasillasQueElTipoDeBaseSujeta)
{
    const auto dicho = [](const char* casilla, int tipo) {
        const auto m = casilla_sujeta(QLatin1StringView(casilla), tipo, "Form"_u);
        return m ? m->titulo + u'|' + m->texto.section(u'\n', 0, 0) : QString();
    };
    const QString tipo_bi = "Tipo de cálculo de la base imponible|El tipo de "_u;
    EXPECT_EQ(dicho("chkRequiereTasJudicial", 10),
              "Form - "_u + tipo_bi + "cálculo de la base imponible seleccionado requiere la tasacion judicial."_u);
    EXPECT_EQ(dicho("chkRequiereValFiscal", 2),
              "Form - "_u + tipo_bi + "cálculo de la base imponible seleccionado requiere la valuación fiscal."_u);
    EXPECT_EQ(dicho("chkRequiereValorContractual", 3),
              tipo_bi + "cálculo de la base imponible seleccionado requiere el valor contractual."_u);
    EXPECT_EQ(dicho("chkHectareas", 4),
              "Form|El tipo de calculo de la base imponible seleccionado necesita solicitar las hectáreas afectadas"_u);
    // Each box is held by these types and no other.
    const QHash<QString, QList<int>> sujetan{{"chkRequiereTasJudicial"_u, {10}},
                                             {"chkRequiereValFiscal"_u, {1, 2, 10}},
                                             {"chkRequiereValorContractual"_u, {1, 2, 3}},
                                             {"chkHectareas"_u, {4}},
                                             {"chkRequiereMoneda"_u, {}}};
    for (const auto& [casilla, tipos] : sujetan.asKeyValueRange())
        for (int t = 0; t < 14; ++t)
            EXPECT_EQ(casilla_sujeta(casilla, t, {}).has_value(), tipos.contains(t)) << casilla.toStdString() << t;
}

}  // namespace
