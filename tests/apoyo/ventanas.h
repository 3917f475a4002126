// SPDX-License-Identifier: GPL-3.0-or-later
// The real main window over a store of the test's own.
#pragma once

#include "apoyo/apoyo.h"
#include "application/screens/MDIPrincipal.h"
#include "widgets/formulario.h"

#include <memory>

class ConVentanas : public ConAlmacen
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// The screen of a new deed of the only DJ, or of its first deed, as a notary gets to it.
    static QWidget* abrirEscritura(bool nueva);
    /// The enabled states of a bar's buttons, a digit each.
    static QString botones(QWidget* form, const char* barra, const char* claves);

    std::unique_ptr<MDIPrincipal> principal;
};
