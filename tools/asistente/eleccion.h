// SPDX-License-Identifier: GPL-3.0-or-later
// Which store a user begins with.
#pragma once

#include <QDialog>

class QRadioButton;

class Eleccion : public QDialog
{
public:
    Eleccion();
    /// "vacia" or "muestra".
    [[nodiscard]] QString elegida() const;

private:
    QRadioButton* vacia_;
    QRadioButton* muestra_;
};
