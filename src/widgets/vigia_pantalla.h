// SPDX-License-Identifier: GPL-3.0-or-later
// What the user sees while the store is at work for long.
#pragma once

#include "core/conexion.h"
#include "widgets/ventana_progreso.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <optional>

/// The pointer, and then a window with a bar, over a statement that takes long; one that only reads can be cancelled. It
/// watches as long as it lives.
class VigiaPantalla : public QObject, public Vigia
{
public:
    explicit VigiaPantalla(QObject* padre);
    ~VigiaPantalla() override;
    bool sigue(bool cancelable) override;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void terminar();

    QElapsedTimer ultimo_;  ///< since the store was seen at work
    std::optional<VentanaProgreso> ventana_;
    QTimer fin_;
    bool preguntando_ = false;
};
