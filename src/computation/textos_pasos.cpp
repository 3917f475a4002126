// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/textos_pasos.h"

#include "catalogue/cantidad.h"
#include "core/redondeo.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using P = ClasePaso;
using C = Cifra;

struct TextoPaso
{
    P clase;
    const char* titulo;
    const char* cuenta;  // {1} to {4} are the figures in their order, {t} and {d} the texts of the step
};

constexpr std::array TEXTOS{
    TextoPaso{P::valorSumado, "Valor contractual", "Nº {t}, {d}: {1} + {2}"},
    TextoPaso{P::totalVC, "Total de valores contractuales", "La suma de los valores contractuales: {1}"},
    TextoPaso{P::subconcepto, "Subconcepto", "{1} - {t}"},
    TextoPaso{P::leyArticulo, "Ley y artículo", "{t}"},
    TextoPaso{P::tipoCalculo, "Tipo de cálculo", "{t}"},
    TextoPaso{P::leyPorFecha, "Ley por la fecha de la escritura", "Ley {1}, valor del módulo {2}"},
    TextoPaso{P::sinSubconcepto, "Subconcepto", "No hay subconcepto"},
    TextoPaso{P::parteObligada, "Parte obligada", "{t} ({d}): participa del impuesto y se cuenta, {1} + 1"},
    TextoPaso{P::parteAjena, "Parte", "{t} ({d}): no participa del impuesto y no se cuenta"},
    TextoPaso{P::sinPartes, "Partes", "Ninguna parte participa del impuesto"},
    TextoPaso{P::porcion, "Porción de cada parte", "100 / {1} / 100"},
    TextoPaso{P::exentoDeParte, "Exención de una parte", "{t} ({d}): {1} + el {2} de {3}"},
    TextoPaso{P::exencionDePartes, "Exención", "El subconcepto no tiene exención; la de las partes: {1} × 100"},
    TextoPaso{P::exencionTotal, "Exención", "Todas las partes obligadas están exentas del todo (suma {1})"},
    TextoPaso{P::exencionDelSubconcepto, "Exención", "La del subconcepto, {1}; la suma de las partes es {2}"},
    TextoPaso{P::exencionProporcional, "Exención", "El {1} del subconcepto por la suma de las partes, {2}"},
    TextoPaso{P::sinBase, "Base imponible", "El subconcepto no requiere base imponible"},
    TextoPaso{P::valuacionAjustada, "Valuación fiscal ajustada", "Valuación fiscal por su factor: {1} × {2}"},
    TextoPaso{P::baseMayor, "Base", "El mayor entre los valores contractuales, {1}, y la valuación ajustada, {2}"},
    TextoPaso{P::baseContractual, "Base", "El total de valores contractuales: {1}"},
    TextoPaso{P::baseValuacion, "Base", "La valuación fiscal ajustada: {1}"},
    TextoPaso{P::valuacionMenosPrestamo, "Base",
              "La valuación alcanza el precio, {3}; valuación menos préstamo: {1} - {2}"},
    TextoPaso{P::precioMenosPrestamo, "Base", "El precio supera la valuación, {3}; precio menos préstamo: {1} - {2}"},
    TextoPaso{P::prestamoMayor, "Base",
              "El préstamo, {2}, es mayor que el precio, {1}, que supera la valuación, {3}: sin base"},
    TextoPaso{P::baseNula, "Base", "El tipo de base del subconcepto no toma ningún valor"},
    TextoPaso{P::sinObligacion, "Obligación accesoria", "No se agrega a la base: no está tildada o su modo no suma"},
    TextoPaso{P::obligacionFija, "Obligación accesoria", "Monto fijo: {1}"},
    TextoPaso{P::obligacionPorcentual, "Obligación accesoria", "El {1} de la base, {2}"},
    TextoPaso{P::base, "Base imponible", "{1}"},
    TextoPaso{P::baseConObligacion, "Base imponible", "Obligación accesoria más base: {1} + {2}"},
    TextoPaso{P::comparado, "Importe que busca el tramo", "Base imponible por valor del módulo: {1} × {2}"},
    TextoPaso{P::tramoModulos, "Módulos", "{1} está en el tramo que va de {2} a {3}: {4} módulos"},
    TextoPaso{P::sinTramoModulos, "Módulos", "Ningún tramo tiene {2}; quedan los que estaban: {1}"},
    TextoPaso{P::tramoAlicuota, "Alícuota", "{1} está en el tramo que va de {2} a {3}: {4}"},
    TextoPaso{P::sinTramoAlicuota, "Alícuota", "Ningún tramo tiene {1}"},
    TextoPaso{P::modulosPuestos, "Módulos", "Este tipo de cálculo no los busca; los que están cargados: {1}"},
    TextoPaso{P::exentoDelTodo, "Monto calculado e impuesto", "Exención de {1}: nada"},
    TextoPaso{P::calculado, "Monto calculado", "Alícuota por base imponible: {1} × {2}"},
    TextoPaso{P::sinMinimo, "Importe mínimo", "El subconcepto no tiene (modo {1})"},
    TextoPaso{P::minimo, "Importe mínimo", "Módulos del mínimo por valor del módulo: {1} × {2}"},
    TextoPaso{P::minimoPrimero, "Impuesto",
              "Modo 0, primero el mínimo: el mayor entre lo calculado, {1}, y el mínimo, {2}"},
    TextoPaso{P::minimoDespues, "Impuesto",
              "Modo 1, primero la exención: el mayor entre lo que queda, {1}, y el mínimo, {2}"},
    TextoPaso{P::exencionAnulada, "Monto exento", "El mínimo, {2}, es mayor que lo que queda, {1}: anula la exención"},
    TextoPaso{P::modoDesconocido, "Importe mínimo", "Modo {1}, que no se conoce: ni mínimo ni exención"},
    TextoPaso{P::exentoDelCalculado, "Monto exento", "El {1} del monto calculado, {2}"},
    TextoPaso{P::exentoDelImpuesto, "Monto exento", "El {1} del impuesto, {2}"},
    TextoPaso{P::calculadoNeto, "Monto calculado", "{1} menos su {2}"},
    TextoPaso{P::calculadoMenosExento, "Monto calculado", "Menos el monto exento: {1} - {2}"},
    TextoPaso{P::impuestoNetoDelCalculado, "Impuesto", "El monto calculado, {1}, menos su {2}"},
    TextoPaso{P::impuestoNeto, "Impuesto", "{1} menos su {2}"},
    TextoPaso{P::impuestoMenosExento, "Impuesto", "Menos el monto exento: {1} - {2}"},
    TextoPaso{P::impuestoEsCalculado, "Impuesto", "El monto calculado: {1}"},
    TextoPaso{P::sinModulos, "Monto calculado", "No hay módulos cargados"},
    TextoPaso{P::fijoProporcional, "Monto calculado e impuesto",
              "Módulos por (base por valor del módulo): {1} × ({2} × {3})"},
    TextoPaso{P::fijoSinBase, "Monto calculado e impuesto", "El subconcepto requiere base imponible y es {1}"},
    TextoPaso{P::fijoModulos, "Monto calculado e impuesto", "Módulos por valor del módulo: {1} × {2}"},
    TextoPaso{P::tipoSinCuenta, "Monto calculado e impuesto",
              "Este tipo de cálculo, con estos requisitos, no los calcula"},
    TextoPaso{P::sinExencionFija, "Exención", "Modo de importe fijo {1}, que no se conoce: no se aplica"},
    TextoPaso{P::conservaCalculado, "Monto calculado", "Queda el que estaba: {1}"},
    TextoPaso{P::conservaImpuesto, "Impuesto", "Queda el que estaba: {1}"},
    TextoPaso{P::conservaExento, "Monto exento", "Queda el que estaba: {1}"},
    TextoPaso{P::impuestoFinal, "Impuesto de la operación",
              "Menos el pago a cuenta, más los adicionales: {1} - {2} + {3}"},
};

static_assert(una_por_clase(TEXTOS));

// An amount with the decimals that it has, at least two; no line parts it from its sign.
QString pesos(double valor)
{
    constexpr int MAS = 8;
    int decimales = 2;
    while (decimales < MAS && redondear(valor, decimales) != redondear(valor, MAS))
        ++decimales;
    return u"$\u00a0"_s + importe_agrupado(valor, decimales);
}

QString cifra_en_texto(Cifra cifra, double valor)
{
    if (!std::isfinite(valor))
        return u"(no es un número)"_s;
    switch (cifra) {
    case C::codigo: return QString::number(qint64(valor) % 1000);
    case C::moa:
    case C::partes:
    case C::porcion:
    case C::sumaExenta:
    case C::factorValuacion:
    case C::modulosMinimo:
    case C::ley:
    case C::modo:
    case C::alicuotaTramo:
    case C::modulosTramo: return cantidad_llana(valor);
    case C::exencion:
    case C::exencionItem:
    case C::porcExento: return cantidad_llana(valor) + u"\u00a0%"_s;
    case C::hasta: return valor == -1 ? u"sin tope"_s : pesos(valor);
    default: return pesos(valor);
    }
}

// How a figure is written: what was there before like what the step writes, an obligation may be a percentage.
Cifra como(Cifra cifra, const FormaPaso& forma)
{
    if (cifra == C::anterior)
        return forma.destino;
    return cifra == C::obligacion && forma.cuenta == Cuenta::porcentaje ? C::exencion : cifra;
}

FilaPaso fila_de(const Paso& p)
{
    const FormaPaso& forma = forma_de(p.clase);
    const TextoPaso& texto = TEXTOS.at(size_t(p.clase));
    FilaPaso fila{QString::number(p.numero), QString::fromUtf8(texto.titulo), QString::fromUtf8(texto.cuenta), {}, {}};
    for (size_t i = 0; i < p.cifras.size() && forma.cifras[i] != C::ninguna; ++i)
        fila.cuenta.replace(u"{%1}"_s.arg(i + 1), cifra_en_texto(como(forma.cifras[i], forma), p.cifras[i]));
    // Last, and the role before the name, which may hold braces of its own.
    fila.cuenta.replace(u"{d}"_s, p.detalle.isEmpty() ? u"sin rol"_s : p.detalle);
    fila.cuenta.replace(u"{t}"_s, p.texto.isEmpty() ? u"(sin dato)"_s : p.texto);
    if (forma.destino == C::ninguna)
        return fila;
    fila.resultado = cifra_en_texto(forma.destino, p.resultado);
    fila.redondeo = forma.decimales == SIN_REDONDEO ? u"no"_s : u"a %1 decimales"_s.arg(forma.decimales);
    return fila;
}

}  // namespace

QList<FilaPaso> filas_de_pasos(std::span<const Paso> pasos)
{
    QList<FilaPaso> filas;
    for (const Paso& p : pasos)
        filas << fila_de(p);
    return filas;
}

QString aviso_de_pasos(OrigenPasos origen)
{
    switch (origen) {
    case OrigenPasos::ultimo: return u"Los pasos del último cálculo, como se hicieron."_s;
    case OrigenPasos::anterior:
        return u"Los pasos del último cálculo, como se hicieron. Después cambió algo de lo que entra en la cuenta: el "
               u"próximo cálculo dará otros pasos."_s;
    case OrigenPasos::interrumpido:
        return u"El último cálculo no llegó a su fin: estos son los pasos que alcanzó a hacer."_s;
    case OrigenPasos::sinCalculo:
        return u"La operación se muestra como fue guardada. No se calculó desde que se abrió, y los pasos de aquel "
               u"cálculo no se guardan. Se puede calcular aparte, con los valores que muestra la pantalla y las tablas "
               u"de hoy, sin cambiar ningún campo."_s;
    case OrigenPasos::aparte:
        return u"Calculado aparte con los valores que muestra la pantalla y las tablas de hoy. Los campos no cambiaron "
               u"y la operación sigue como fue guardada."_s;
    }
    return {};
}

QStringList titulos_de_pasos()
{
    return {u"Nº"_s, u"Paso"_s, u"Cuenta"_s, u"Redondeo"_s, u"Resultado"_s};
}

QString pasos_con_tabuladores(const QList<FilaPaso>& filas)
{
    QStringList lineas{titulos_de_pasos().join(u'\t')};
    for (const FilaPaso& f : filas)
        lineas << QStringList{f.numero, f.titulo, f.cuenta, f.redondeo, f.resultado}.join(u'\t');
    return lineas.join(u'\n').replace(QChar::Nbsp, u' ') + u'\n';
}
