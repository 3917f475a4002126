// SPDX-License-Identifier: GPL-3.0-or-later
// The roads to the screens of the catalogue.
#pragma once

#include "apoyo/ventanas.h"
#include "catalogue/screens/frmEditarSubconceptoSellos.h"
#include "catalogue/screens/frmSubconceptos.h"
#include "manejo/manejo.h"

class PantallasCatalogo : public ConVentanas
{
protected:
    static QWidget* catalogo()
    {
        auto* f = cargar<frmSubconceptos>();
        f->mostrar();
        return f;
    }
    static QWidget* editor(int id)
    {
        auto* f = cargar<frmEditarSubconceptoSellos>();
        f->Inicializar(id == 0 ? Modo::nuevo : Modo::modificar, id, 0);
        f->mostrar();
        return f;
    }
    QWidget* operacion()
    {
        const QString dj = nueva_dj();
        nueva_escritura(dj, 1, 1, 1, 1);
        QWidget* e = abrirEscritura(false);
        manejo::solapa(e, "SSTab1"_u, 1);
        manejo::pulsar(e, "tlbOp"_u, "agregar"_u);
        return manejo::formulario("frmDJ_detalle_op");
    }
    static QString elemento_activo(QWidget* f)
    {
        QWidget* w = f->focusWidget();
        return !w ? QString() : w->objectName() == u"txt" ? w->parentWidget()->objectName() : w->objectName();
    }
};
