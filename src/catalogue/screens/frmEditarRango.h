// SPDX-License-Identifier: GPL-3.0-or-later
// What the editors of both kinds of bracket share: the bounds and the save.
#pragma once

#include "catalogue/rangos.h"
#include "widgets/formulario.h"

class BarraHerramientas;
class QCheckBox;
class ctlNumero;

class frmEditarRango : public Formulario
{
    Q_OBJECT

protected:
    struct Controles
    {
        BarraHerramientas* toolbar = nullptr;
        ctlNumero* nroDesde = nullptr;
        QCheckBox* chkValorHasta = nullptr;
        ctlNumero* nroHasta = nullptr;
    };

    explicit frmEditarRango(const TablaRangos& tabla) : tabla_(tabla) {}
    void armar(const Controles& controles);
    /// A new bracket of the item, or the bounds of a stored one, which stay as they are.
    void iniciarRango(Modo operacion, qint32 subconcepto, qint64 id, double desde, double hasta);

    /// What runs before the checks.
    virtual void preparar() {}
    /// What the bracket gives, as a statement takes it.
    [[nodiscard]] virtual QStringList valores() const = 0;

private:
    void aceptar();
    bool guardar(const Rango& r);
    void habilitarHasta();

    const TablaRangos& tabla_;
    Controles c_;
    qint32 subconcepto_ = 0;
    qint64 id_ = 0;
};
