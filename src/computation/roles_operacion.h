// SPDX-License-Identifier: GPL-3.0-or-later
// Which party plays which role in an operation.
#pragma once

#include "computation/operacion.h"

/// A party of the deed with its role in the operation.
struct ParteRol
{
    QString id, tipoDoc, nroDoc, denominacion, idRol, rol, observaciones;
    std::optional<double> porcExento;

    /// "(ninguno)" stands in the grid as "0".
    [[nodiscard]] bool tieneRol() const { return !idRol.isEmpty() && idRol != QLatin1String("0"); }
};
/// The parties of the deed, and the roles that the operation has stored. Throws ErrorAlmacen.
[[nodiscard]] QList<ParteRol> leer_partes_con_roles(const ClaveOperacion& clave);
/// Replaces the roles of the operation; false after a failure, which is told under the title.
[[nodiscard]] bool guardar_roles(const ClaveOperacion& clave, const QList<ParteRol>& partes, const QString& titulo,
                                 Dialogo& dialogo);
/// Whether every mandatory role is held; `texto` takes the list of the mandatory ones.
[[nodiscard]] bool roles_obligatorios(const clsSubconcepto* s, const QList<ParteRol>& partes, QString& texto);
