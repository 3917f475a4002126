// SPDX-License-Identifier: GPL-3.0-or-later
// A role that a party may hold in an operation, and the roles of an item.
#pragma once

#include <QList>
#include <QString>

struct clsRol
{
    bool ParicipaImpuesto = false;  ///< the party bears the tax; the name is spelled so
    bool CargaOblig_SM = false;
    bool Requerido = false;
    bool Permite_CuitEnTramite = false;
    QString SSUBAtributo;
    QString SSUBAtributo_valor;
    QString SSUBAtributo_tabla;
    qint64 IdRol = 0;  ///< the item's identifier times 1000 and a counter: past 32 bits
    QString Descripcion;
};

class Recordset;

/// The role of a row of SEL_VW_ROLES or of its table.
[[nodiscard]] clsRol leer_rol(const Recordset& rs);

class colRoles
{
public:
    void Add(const clsRol& rol) { roles_.append(rol); }
    /// The first role with exactly this description, case included, or null.
    [[nodiscard]] const clsRol* FindItem(const QString& descripcion) const
    {
        for (const clsRol& rol : roles_)
            if (rol.Descripcion == descripcion)
                return &rol;
        return nullptr;
    }
    /// By position, from 1.
    [[nodiscard]] const clsRol& Item(qsizetype posicion) const { return roles_.at(posicion - 1); }
    [[nodiscard]] qsizetype Count() const { return roles_.size(); }
    void Remove(qsizetype posicion) { roles_.removeAt(posicion - 1); }

    [[nodiscard]] auto begin() const { return roles_.begin(); }
    [[nodiscard]] auto end() const { return roles_.end(); }

private:
    QList<clsRol> roles_;
};
