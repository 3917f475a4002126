// SPDX-License-Identifier: GPL-3.0-or-later
// A deed's place in the tree, and the query of its parties, which several rooms read.
#pragma once

#include <QString>

/// One deed of a DJ, as the forms hold it.
struct RenglonDJ
{
    QString dj;
    QString renglon;
    /// " where SEDJ_NRO='…' and SEDD_ID=…"
    [[nodiscard]] QString donde() const;
};

/// The parties of a deed with the names of their type of document and of their country.
[[nodiscard]] QString consulta_partes_renglon(const RenglonDJ& r);
