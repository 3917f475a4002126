// SPDX-License-Identifier: GPL-3.0-or-later
// What a type of calculation, of the base or of the tax, holds and allows.

#include "catalogue/reglas_subconcepto.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

enum class Titulo { del_formulario, con_formulario, solo };

// A box that the type of calculation of the base holds ticked.
struct CasillaSujeta
{
    const char* casilla;
    std::array<int, 3> tipos;
    const char* mensaje;
    Titulo titulo;
};
constexpr const char* TIPO_BI = "Tipo de cálculo de la base imponible";
constexpr std::array SUJETAS{
    CasillaSujeta{"chkRequiereTasJudicial",
                  {10},
                  "El tipo de cálculo de la base imponible seleccionado requiere la tasacion judicial.\n"
                  "Si no corresponde, seleccione el tipo de cáculo de la base imponible correcto",
                  Titulo::con_formulario},
    CasillaSujeta{"chkRequiereValFiscal",
                  {1, 2, 10},
                  "El tipo de cálculo de la base imponible seleccionado requiere la valuación fiscal.\n"
                  "Para deseleccionarlo, seleccione el tipo de cáculo de la base imponible correcto",
                  Titulo::con_formulario},
    CasillaSujeta{"chkRequiereValorContractual",
                  {1, 2, 3},
                  "El tipo de cálculo de la base imponible seleccionado requiere el valor contractual.\n"
                  "Para deseleccionarlo, seleccione el tipo de cáculo de la base imponible correcto",
                  Titulo::solo},
    CasillaSujeta{"chkHectareas",
                  {4},
                  "El tipo de calculo de la base imponible seleccionado necesita solicitar las hectáreas afectadas",
                  Titulo::del_formulario},
};

}  // namespace

std::optional<Mensaje> casilla_sujeta(const QString& casilla, std::optional<int> tipo, const QString& titulo)
{
    if (tipo.value_or(0) == 0)
        return {};
    for (const CasillaSujeta& s : SUJETAS) {
        if (casilla != QLatin1StringView(s.casilla)
            || std::find(s.tipos.begin(), s.tipos.end(), *tipo) == s.tipos.end())
            continue;
        const QString propio = QString::fromUtf8(TIPO_BI);
        const QString titulos[] = {titulo, titulo + u" - "_s + propio, propio};
        return Mensaje{QString::fromUtf8(s.mensaje), titulos[int(s.titulo)]};
    }
    return {};
}

QHash<QString, bool> casillas_de_tipo_bi(int tipo)
{
    const QString fiscal = u"chkRequiereValFiscal"_s;
    const QString contractual = u"chkRequiereValorContractual"_s;
    switch (tipo) {
    case 1:
    case 2: return {{fiscal, true}, {contractual, true}};
    case 3: return {{fiscal, false}, {contractual, true}};
    case 4: return {{u"chkHectareas"_s, true}};
    default: return {};
    }
}

Rangos rangos_de_tipo(const QString& tipo)
{
    if (tipo == u"VARIABLE")
        return Rangos::alicuotas;
    return tipo == u"FIJO" || tipo == u"FIJO PROPORCIONAL" ? Rangos::modulos : Rangos::ningunos;
}

QString impedimento_de_tipo(const QString& tipo, bool conAlicuotas, bool conModulos)
{
    const Rangos rangos = rangos_de_tipo(tipo);
    if (rangos == Rangos::alicuotas && conModulos)
        return u"No puede cambiar el tipo de calculo a VARIABLE ya que tiene rangos con impusto fijo. "
               u"Para cambiar el tipo de cálculo elimine primero los rangos con impuesto fijo."_s;
    if (rangos == Rangos::modulos && conAlicuotas)
        return u"No puede cambiar el tipo de calculo a FIJO ya que tiene alícuotas asignadas. "
               u"Para cambiar el tipo de cálculo elimine primero las alícuotas asignadas."_s;
    return {};
}
