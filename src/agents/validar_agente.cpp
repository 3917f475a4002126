// SPDX-License-Identifier: GPL-3.0-or-later
// The checks of an agent, in their order.

#include "agents/agente.h"
#include "core/cuit.h"
#include "core/modUtiles.h"

std::optional<Falla> validar_agente(Agente& a)
{
    for (QString* texto :
         {&a.titular, &a.domicilio, &a.email, &a.adscripto1, &a.adscripto2, &a.adscripto1Cuit, &a.adscripto2Cuit})
        *texto = texto->trimmed();
    if (a.adscripto1.isEmpty() && a.adscripto1Cuit.isEmpty()) {
        a.adscripto1.swap(a.adscripto2);
        a.adscripto1Cuit.swap(a.adscripto2Cuit);
    }
    // Blanks are a CUIT that is not valid.
    const bool sin_cuit = a.cuit.isEmpty();
    const bool cuit_bien = cuit_valido(a.cuit);
    const bool cuit1_bien = cuit_valido(a.adscripto1Cuit);
    const bool cuit2_bien = cuit_valido(a.adscripto2Cuit);
    return primera_falla({
        {a.nroRegNotarial == 0, "Ingrese el Nº de Registro Notarial del titular", "nroRegNotarial"},
        {a.titular.isEmpty(), "Ingrese el nombre del titular", "txtTitular"},
        {sin_cuit, "Ingrese el CUIT del titular", "txtCUIT"},
        {!cuit_bien, "El CUIT del titular no es válido", "txtCUIT"},
        {a.domicilio.isEmpty(), "Ingrese el domicilio del titular", "txtDomicilio"},
        {!a.localidad, "Ingrese la localidad del titular", "cboLocalidad"},
        {a.codPostal.isEmpty(), "Ingrese el codigo postal del titular", "txtCodPostal"},
        {!a.adscripto1.isEmpty() && a.adscripto1Cuit.isEmpty(), "Ingrese el cuit del primer adscripto",
         "txtAdscripto1_cuit"},
        {a.adscripto1.isEmpty() && !a.adscripto1Cuit.isEmpty(), "Ingrese el nombre del primer adscripto",
         "txtAdscripto1_nombre"},
        {!a.adscripto1Cuit.isEmpty() && !cuit1_bien, "El CUIT del primer adscripto no es válido", "txtAdscripto1_cuit"},
        {!a.adscripto2.isEmpty() && a.adscripto2Cuit.isEmpty(), "Ingrese el cuit del segundo adscripto",
         "txtAdscripto2_cuit"},
        {a.adscripto2.isEmpty() && !a.adscripto2Cuit.isEmpty(), "Ingrese el nombre del segundo adscripto",
         "txtAdscripto2_nombre"},
        {!a.adscripto2Cuit.isEmpty() && !cuit2_bien, "El CUIT del segundo adscripto no es válido",
         "txtAdscripto2_cuit"},
        {mismo_cuit(a.adscripto1Cuit, a.cuit),
         "El CUIT del primer adscripto no puede ser el mismo que el CUIT del titular", "txtAdscripto1_cuit"},
        {mismo_cuit(a.adscripto2Cuit, a.cuit),
         "El CUIT del segundo adscripto no puede ser el mismo que el CUIT del titular", "txtAdscripto2_cuit"},
        {mismo_cuit(a.adscripto1Cuit, a.adscripto2Cuit), "Los CUITs de los adscriptos no pueden ser iguales",
         "txtAdscripto1_cuit"},
    });
}
