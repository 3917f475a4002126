// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/control_subconcepto.h"

#include "catalogue/screens/fechaOpcional.h"
#include "core/numero.h"
#include "widgets/ctlCombo.h"
#include "widgets/ctlComunes.h"
#include "widgets/ctlNumero.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

QVariant leer_control(const QWidget* w)
{
    if (const auto* numero = qobject_cast<const ctlNumero*>(w))
        return numero->toSQL();
    if (const auto* boton = qobject_cast<const QAbstractButton*>(w))
        return boton->isChecked();
    if (const auto* combo = qobject_cast<const QComboBox*>(w)) {
        const std::optional<int> dato = filtro_elegido(combo);
        return dato ? QVariant(*dato) : QVariant();
    }
    if (const auto* fecha = qobject_cast<const FechaOpcional*>(w))
        return fecha->fecha();
    if (const auto* texto = qobject_cast<const QLineEdit*>(w))
        return texto->text();
    return {};
}

void poner_control(QWidget* w, const QVariant& valor)
{
    if (auto* numero = qobject_cast<ctlNumero*>(w))
        valor.toString().isEmpty() ? numero->ClearText() : numero->setValue(numero_de_texto_sql(valor.toString()));
    else if (auto* boton = qobject_cast<QAbstractButton*>(w); boton && boton->isCheckable())
        marcar_boton(boton, valor.toBool());
    else if (auto* combo = qobject_cast<QComboBox*>(w))
        seleccionar_item(combo, valor.toInt());
    else if (auto* fecha = qobject_cast<FechaOpcional*>(w))
        fecha->ponerFecha(valor.toDate());
    else if (auto* texto = qobject_cast<QLineEdit*>(w))
        texto->setText(valor.toString());
}

void habilitar_control(QWidget* w, bool si)
{
    if (auto* numero = qobject_cast<ctlNumero*>(w)) {
        numero->Habilitar(si);
    } else if (auto* lista = qobject_cast<ctlCombo*>(w)) {
        lista->Habilitar(si);
        lista->Locked(true);
    } else if (auto* texto = qobject_cast<QLineEdit*>(w)) {
        if (!texto->isReadOnly())
            habilitar_texto(texto, si);
    } else {
        w->setEnabled(si);
    }
}
