// SPDX-License-Identifier: GPL-3.0-or-later
// The exemption of an operation.

#include "computation/anotador.h"
#include "computation/calculo.h"

namespace {

using Parte = EstadoOperacion::Parte;

// The parties that bear the tax.
QList<const Parte*> obligadas(const EstadoOperacion& e)
{
    QList<const Parte*> lista;
    for (const Parte& p : e.partes) {
        const clsRol* rol = p.rol.isEmpty() ? nullptr : e.subconcepto->Roles().FindItem(p.rol);
        const bool obligada = rol && rol->ParicipaImpuesto;
        if (e.pasos && obligada)
            e.pasos->anotar(ClasePaso::parteObligada, {double(lista.size())}, double(lista.size() + 1), p.nombre,
                            p.rol);
        else if (e.pasos)
            e.pasos->anotar(ClasePaso::parteAjena, {}, 0, p.nombre, p.rol);
        if (obligada)
            lista << &p;
    }
    return lista;
}

double suma_exenta(const EstadoOperacion& e)
{
    const QList<const Parte*> partes = obligadas(e);
    const auto n = double(partes.size());
    if (partes.isEmpty()) {
        notar(e.pasos, ClasePaso::sinPartes, {n});
        return 0;
    }
    const double porcion = notar(e.pasos, ClasePaso::porcion, {n}, 100.0 / n / 100);
    double S = 0;
    for (const Parte* p : partes) {
        if (!p->porcExento)
            continue;
        const double antes = S;
        S += *p->porcExento / 100 * porcion;
        if (e.pasos)
            e.pasos->anotar(ClasePaso::exentoDeParte, {antes, *p->porcExento, porcion}, S, p->nombre, p->rol);
    }
    return S;
}

}  // namespace

void CalcularExencionPartes(CamposImpuesto c, const EstadoOperacion& e)
{
    if (!e.subconcepto)
        return;
    const double S = suma_exenta(e);
    const clsSubconcepto& s = *e.subconcepto;
    Numero& E = c.nroExencionPorc;
    if (!s.Exencion)
        tomar(e.pasos, ClasePaso::exencionDePartes, E, S * 100, {S});
    else if (S == 1.0)
        tomar(e.pasos, ClasePaso::exencionTotal, E, 100, {S});
    else if (S <= 0)
        tomar(e.pasos, ClasePaso::exencionDelSubconcepto, E, s.ExencionPorc, {s.ExencionPorc, S});
    else
        tomar(e.pasos, ClasePaso::exencionProporcional, E, s.ExencionPorc / 100 * S * 100, {s.ExencionPorc, S});
}
