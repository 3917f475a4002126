// SPDX-License-Identifier: GPL-3.0-or-later
// The operation's screen: how its tax was calculated.

#include "computation/screens/frmDJ_detalle_op.h"

#include "computation/operacion.h"
#include "computation/screens/frmPasos.h"
#include "ui_frmDJ_detalle_op.h"

using namespace Qt::StringLiterals;

namespace {

// A calculation beside the screen says nothing: what it would tell stands in its steps.
class Callado : public Dialogo
{
public:
    void avisar(const Mensaje&) override {}
    bool preguntar(const Mensaje&) override { return false; }
};

}  // namespace

Pasos frmDJ_detalle_op::calcularAparte()
{
    Pasos pasos;
    CamposSueltos copia(campos());
    EstadoOperacion e = estadoOperacion();
    e.pasos = &pasos;
    Callado callado;
    CalcularImpuesto(copia.campos(), e, callado);
    return pasos;
}

// Whether a calculation of now would take the same steps.
bool frmDJ_detalle_op::pasosVigentes()
{
    try {
        return calcularAparte().lista() == pasos_.lista();
    } catch (const ErrorConversion&) {
        return false;
    }
}

void frmDJ_detalle_op::mostrarPasos()
{
    // What was stored is not calculated anew for this: the panel offers it.
    if (pasos_.lista().empty())
        ponerPasos(OrigenPasos::sinCalculo, pasos_);
    else if (!pasos_.completo())
        ponerPasos(OrigenPasos::interrumpido, pasos_);
    else
        ponerPasos(pasosVigentes() ? OrigenPasos::ultimo : OrigenPasos::anterior, pasos_);
    auto* panel = cargar<frmPasos>();
    connect(panel, &frmPasos::calculoPedido, this, &frmDJ_detalle_op::mostrarPasosAparte, Qt::UniqueConnection);
    abrir(panel);
}

void frmDJ_detalle_op::mostrarPasosAparte()
{
    proteger([this] { ponerPasos(OrigenPasos::aparte, calcularAparte()); });
}

void frmDJ_detalle_op::ponerPasos(OrigenPasos origen, const Pasos& pasos)
{
    const ClaveOperacion c = clave();
    cargar<frmPasos>()->mostrarPasos({u"DJ Nº %1 - Renglón %2 - Operación %3"_s.arg(
                                          c.dj, c.renglon, c.operacion.isEmpty() ? u"nueva"_s : c.operacion),
                                      origen, juntar_pasos(pasosValores_.lista(), pasos.lista())});
}
