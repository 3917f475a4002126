// SPDX-License-Identifier: GPL-3.0-or-later
// The copies of the store in `respaldos/` beside it: what they are called, which are kept, how one is made.
#pragma once

#include "core/archivos_disco.h"
#include "core/revision.h"

#include <QDate>
#include <QDateTime>

#include <optional>

/// One copy: `NAME-MARCA.db`, where NAME is the store's base name.
struct Respaldo
{
    QString marca;    ///< AAAA-MM-DD, with -HHMMSS behind for one made before a risky action
    QString archivo;  ///< its path
    qint64 bytes = 0;
};

/// The copies of a store, the oldest first.
[[nodiscard]] QList<Respaldo> listar_respaldos(const QString& almacen);

/// Why a copy is kept: "diario" (one of the ten newest days), "mensual" (the last one of its month) or "previo" (made
/// before a risky action). `marcas` are those of all copies.
[[nodiscard]] QString motivo_respaldo(const QString& marca, const QStringList& marcas);
/// Which copies go: all but the ten newest days', the newest one of each of the 24 newest months, and the three newest
/// ones of risky actions. Counted by copies and not by the calendar, so that a clock that goes wrong makes nothing go.
[[nodiscard]] QStringList respaldos_que_sobran(QStringList marcas);

/// Whether the day's copy is to be made: there is none of that day, and the store is not the newest day's copy.
[[nodiscard]] bool toca_respaldo(Conexion& cn, const QDate& dia);

/// Copies the open store aside, checks the copy, and gives it its name when it is sound; those that are not kept any
/// more go. Gives what the check of the copy found. Throws ErrorAlmacen, and ErrorDisco when it can't be written.
[[nodiscard]] Revision respaldar(Conexion& cn, const QString& marca, const Progreso& progreso = {});
/// The copy without its check: the open store's bytes, on the disk when this returns. Throws ErrorAlmacen, ErrorDisco.
void copiar_imagen(Conexion& cn, ArchivoNuevo& copia, const Progreso& progreso = {});

[[nodiscard]] QString marca_del_dia(const QDate& dia);
/// A mark of that moment, or of the first second after it that no copy has.
[[nodiscard]] QString marca_previa(const QString& almacen, QDateTime momento);

/// The day on which the store was last found sound; invalid before the first time.
[[nodiscard]] QDate ultima_revision(const QString& almacen);
/// Throws ErrorDisco.
void anotar_revision(const QString& almacen, const QDate& dia);
