// SPDX-License-Identifier: GPL-3.0-or-later
// The brackets of an item, of rates or of modules: one design over two tables.
#pragma once

#include "catalogue/subconcepto_memoria.h"
#include "core/dialogo.h"

#include <QStringList>

#include <vector>

/// Upper bound of a bracket without limit.
constexpr double SIN_LIMITE = -1;

struct TablaRangos
{
    const char* tabla;
    const char* id;
    const char* desde;
    const char* hasta;
    std::vector<const char*> valores;  ///< the columns of what the bracket gives
    const char* control;               ///< of the first of them
    const char* siEsCero;              ///< what to tell when that one is zero
    bool ceroSePregunta;               ///< the user may want it so
};
extern const TablaRangos RANGOS_ALICUOTAS;
extern const TablaRangos RANGOS_MODULOS;

/// A bracket as its editor holds it: each number as a statement takes it.
struct Rango
{
    qint32 subconcepto = 0;
    QString desde;
    bool conHasta = false;
    QString hasta;
    QStringList valores;
};

/// Tells what is wrong with a bracket, and asks where the user decides. Gives the control that gets the
/// focus, or nothing when the bracket may be saved.
[[nodiscard]] std::optional<QString> revisar_rango(const TablaRangos& t, const Rango& r, const QString& titulo,
                                                   Dialogo& dialogo);
/// Whether the bracket meets one that its item already has. Throws ErrorAlmacen.
[[nodiscard]] bool se_solapa(const TablaRangos& t, const Rango& r);
/// The identifier that the item's next bracket gets. Throws ErrorAlmacen.
[[nodiscard]] qint64 proximo_rango(const TablaRangos& t, qint32 subconcepto);
/// Adds the bracket under its item's next identifier. Throws ErrorAlmacen.
void alta_rango(const TablaRangos& t, const Rango& r);
/// Writes what a bracket gives; its bounds stay. Throws ErrorAlmacen.
void modificar_rango(const TablaRangos& t, qint64 id, const QStringList& valores);
/// Throws ErrorAlmacen.
void borrar_rango(const TablaRangos& t, qint64 id);

/// The brackets of an item. Throws ErrorAlmacen.
[[nodiscard]] QList<clsAlicuotaSellos> alicuotas_de(qint32 subconcepto);
[[nodiscard]] QList<clsModuloSellos> modulos_de(qint32 subconcepto);
