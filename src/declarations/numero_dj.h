// SPDX-License-Identifier: GPL-3.0-or-later
// The number of a DJ: digits without separators, of 17 characters or, from an earlier scheme, 13.
#pragma once

#include <QString>

/// The pieces of a DJ's number by their place; those of another length have no layout.
class NumeroDJ
{
public:
    explicit NumeroDJ(const QString& nro) : nro_(nro) {}

    /// What all DJs of one agent and posición share; empty for an unknown length.
    [[nodiscard]] QString prefijo() const { return nro_.left(largoPrefijo()); }
    [[nodiscard]] QString secuencia() const { return nro_.mid(largoPrefijo(), 2); }
    [[nodiscard]] QString mes() const;
    /// Two digits of a number of 17 characters, four of one of 13.
    [[nodiscard]] QString anio() const;
    /// The same posición under the next sequence.
    [[nodiscard]] QString siguiente() const;

    /// 15 or 11; 0 for an unknown length.
    [[nodiscard]] int largoPrefijo() const;

private:
    QString nro_;
};
