// SPDX-License-Identifier: GPL-3.0-or-later
// The system's own dialog of printing, which needs a printer.

#include "apoyo/pantallas.h"
#include "printing/screens/frmReportes.h"

#include <QPrinterInfo>
#include <QTest>

namespace {

TEST_F(Pantallas, SinImpresoraSeDice)
{
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        GTEST_SKIP() << "hay impresoras";
    auto* r = cargar<frmReportes>();
    r->DJ(nueva_dj(), "9DCABBEC95C60F7B69846C4A8513C009"_u);
    r->mostrar();
    Cajas::durante({{"No hay ninguna impresora instalada. Use \"Guardar PDF\"."_u, "Declaración Jurada"_u}},
                   [&] { QTest::keyClick(r, Qt::Key_M, Qt::AltModifier); });
}

}  // namespace
