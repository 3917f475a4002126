// SPDX-License-Identifier: GPL-3.0-or-later
// The one top-level window: menu, child windows, status bar, exit.
#pragma once

#include <QMainWindow>

#include <memory>

namespace Ui {
class MDIPrincipal;
}

class MDIPrincipal : public QMainWindow
{
    Q_OBJECT

public:
    MDIPrincipal();
    ~MDIPrincipal() override;

    /// Opens the store and loads what start-up loads. False when the store does not open or
    /// is damaged: the failure has been told and the program ends.
    [[nodiscard]] bool iniciar();

    /// Shows the window in the place and size in which the user left it.
    void presentar();
    /// Sets the enabled state of the menu entry that opens the subconcept browser.
    void Hab_Deshab_Menu(bool habilitar);

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void mostrarEstado();

    std::unique_ptr<Ui::MDIPrincipal> ui;
};
