// SPDX-License-Identifier: GPL-3.0-or-later
// The deeds of the month.

#include "recorrido/mes.h"

#include "recorrido/pasos_catalogo.h"
#include "widgets/formulario.h"

using namespace Qt::StringLiterals;

using namespace manejo;

void Mes::escrituras()
{
    alcanzadas();
    deImporteFijo();
    sinOperacion();
    conSubconceptoNuevo();
}

void Mes::alcanzadas()
{
    g_.paso(u"Escritura 1: una compraventa en dos monedas"_s, [&] {
        escritura({"1", "1", "2", "PASO", nullptr, "testimonio 1.pdf"});
        aceptarEscritura();
        g_.foto(u"escritura"_s);
        parte("UNIPERSONAL", "CUIT", "20123456786", "gómez peñaloza juan");
        parte("UNIPERSONAL", "DNI", "22333444", "ríos ana");
        inmueble("12345", "2000000");
        operacion({"1",
                   "COMPRAVENTA DE INMUEBLES",
                   {{"PESOS", "1000000", nullptr}, {"DOLARES", "100.50", "1050"}},
                   {u"VENDEDOR"_s, u"COMPRADOR"_s},
                   nullptr,
                   "20.000,00"});
        recibo();
        salirDeEscritura();
    });
    g_.paso(u"Escritura 2: una hipoteca, con una parte exenta a medias"_s, [&] {
        escritura({"2", "3", "5", "PASO", nullptr, "testimonio 2.pdf"});
        aceptarEscritura();
        parte("SOCIEDAD ANONIMA", "CUIT", "30707070702", "banco del sur s.a.");
        parte("UNIPERSONAL", "CUIT", "27222333445", "sosa ñ. marta", "50");
        operacion({"11",
                   "CONSTITUCION DE HIPOTECA",
                   {{"PESOS", "3000000", nullptr}},
                   {u"ACREEDOR HIPOTECARIO"_s, u"DEUDOR HIPOTECARIO"_s},
                   nullptr,
                   "12.000,00"});
        salirDeEscritura();
    });
    g_.paso(u"Escritura 3: un poder, con una parte extranjera"_s, [&] {
        escritura({"3", "5", "5", "PASO", nullptr, nullptr});
        aceptarEscritura({{u"Falta el archivo del testimonio. ¿Desea ingresarlo mas tarde?"_s}});
        extranjero("BRASIL - Física", "ab123456", "silva joão");
        parte("UNIPERSONAL", "CUIL", "20287654325", "vega hugo");
        operacion({"29", "PODER GENERAL", {}, {u"PODERDANTE"_s, u"APODERADO"_s}, nullptr, "3.000,00"});
        salirDeEscritura();
    });
}

// A fixed amount: in proportion to the base, and by modules typed from the scale.
void Mes::deImporteFijo()
{
    g_.paso(u"Escritura 4: un fideicomiso, fijo proporcional"_s, [&] {
        escritura({"4", "6", "9", "PASO", nullptr, nullptr});
        aceptarEscritura({{u"Falta el archivo del testimonio."_s}});
        parte("UNIPERSONAL", "CUIT", "20123456786", "gómez peñaloza juan");
        parte("FIDEICOMISO", "CUIT", "30707070702", "fideicomiso alto verde");
        parte("UNIPERSONAL", "DNI", "30111222", "luna sofía");
        operacion({"27",
                   "CONTRATO DE FIDEICOMISO",
                   {{"PESOS", "5000", nullptr}},
                   {u"FIDUCIANTE"_s, {}, {}},
                   nullptr,
                   "75,00"});
        salirDeEscritura();
    });
    g_.paso(u"Escritura 5: un protesto, con módulos según escala"_s, [&] {
        escritura({"5", "8", "12", "PASO", nullptr, nullptr});
        aceptarEscritura({{u"Falta el archivo del testimonio."_s}});
        parte("UNIPERSONAL", "CUIT", "20123456786", "gómez peñaloza juan");
        operacion({"35", "PROTESTO", {}, {u"REQUIRENTE"_s}, "15", "2.250,00"});
        salirDeEscritura();
    });
}

// Deeds that are not reached, clash with another, or did not pass.
void Mes::sinOperacion()
{
    g_.paso(u"Escritura 6: no alcanzada"_s, [&] {
        escritura({"6", "9", "12", "PASO", "Testamento", nullptr});
        aceptarEscritura();
        salirDeEscritura();
    });
    g_.paso(u"Un número repetido se carga como ERROSE"_s, [&] {
        escritura({"6", "10", "13", "PASO", nullptr, nullptr});
        aceptarEscritura({{u"Atención: Se solapa el Nº Escritura"_s, u"Duplicación de números"_s}});
        comprobar(u"estado"_s, texto(formulario("frmDJ_detalle"), u"cboDET_Estado"_s).left(14), u"ANULADA/ERROSE"_s);
        salirDeEscritura();
    });
    g_.paso(u"Un día que retrocede, y la escritura que no pasó"_s, [&] {
        escritura({"7", "11", "3", "ANULADA/NO PASO", nullptr, nullptr});
        elegir(formulario("frmDJ_detalle"), u"cboDET_Estado"_s, u"PASO"_s);
        aceptarEscritura({{u"Atención: El día se solapa con una escritura anterior"_s}});
        escribir(formulario("frmDJ_detalle"), u"nroDia"_s, u"15"_s);
        elegir(formulario("frmDJ_detalle"), u"cboDET_Estado"_s, u"ANULADA/NO PASO"_s);
        aceptarEscritura();
        salirDeEscritura();
    });
}

void Mes::conSubconceptoNuevo()
{
    g_.paso(u"Escritura 8: un subconcepto nuevo, y una parte de una DJ anterior"_s, [&] {
        escritura({"8", "12", "20", "PASO", nullptr, nullptr});
        aceptarEscritura({{u"Falta el archivo del testimonio."_s}});
        pulsar(formulario("frmDJ_detalle"), u"tlbPartes"_s, u"agregar"_s);
        auto* f = formulario("frmDJ_detalle_parte");
        parte_anterior(g_, f);
        comprobar(u"parte hallada"_s, texto(f, u"txtRazonSocial"_s), u"SOSA ROSA"_s);
        g_.foto(u"parte-hallada"_s);
        pulsar(f, u"tlb"_s, u"aceptar"_s);
        parte("UNIPERSONAL", "DNI", "31222333", "peralta inés");
        // Whoever bears the tax is exempt by half.
        operacion({nullptr,
                   "CESIÓN DE MARCAS Y PATENTES",
                   {{"PESOS", "2000000", nullptr}},
                   {u"CEDENTE"_s, u"CESIONARIO"_s},
                   nullptr,
                   "10.000,00"});
        salirDeEscritura();
    });
}
