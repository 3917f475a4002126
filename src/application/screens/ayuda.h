// SPDX-License-Identifier: GPL-3.0-or-later
// F1 anywhere in the program: the manual's window at the page of what is in front.
#pragma once

#include "application/screens/frmManual.h"

#include <QObject>

/// Hears F1 before any control does, so that no field is left by it. Its window goes with it.
class Ayuda : public QObject
{
    Q_OBJECT

public:
    explicit Ayuda(QWidget* principal);

    /// The page of the form on which a control stands, also by a dialog over that form; of the form in front for any
    /// other control.
    [[nodiscard]] QString paginaDe(const QWidget* control) const;
    /// Opens the window at the page of the form in front.
    void abrir() { mostrar(paginaDe(nullptr)); }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void mostrar(const QString& pagina);

    QWidget* principal_;
    std::unique_ptr<frmManual> manual_;
};
