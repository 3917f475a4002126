// SPDX-License-Identifier: GPL-3.0-or-later
// Stores of the sizes that the cases ask for.
#pragma once

#include "core/dialogo.h"

#include <QString>
#include <QTemporaryDir>

/// Hears nothing and says yes.
class Callado : public Dialogo
{
public:
    void avisar(const Mensaje&) override {}
    bool preguntar(const Mensaje&) override { return true; }
};

/// A store with the catalogue, open as the program's own, in a temporary folder that is the
/// program's.
class AlmacenGrande
{
public:
    AlmacenGrande();
    ~AlmacenGrande();

    /// A DJ of so many deeds: 4 parties, 1.5 properties, 1 operation, 2 values and 3 roles each.
    static QString dj(int anio, int mes, int escrituras);
    /// So many headers of DJs.
    static void cabeceras(int cuantas);
    /// So many items more in the catalogue, over several laws.
    static void subconceptos(int cuantos);
    /// A DJ of so many parties, four a deed, each of another name and number.
    static void partes(int cuantas);

    [[nodiscard]] QString ruta() const { return dir_.filePath(QStringLiteral("vedra_rtn.db")); }

private:
    QTemporaryDir dir_;
};
