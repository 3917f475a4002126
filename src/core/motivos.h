// SPDX-License-Identifier: GPL-3.0-or-later
// What to tell of an error, in words of the office.
#pragma once

#include <QString>

#include <stdexcept>

class ErrorAlmacen;

/// A task that could not be done, with the reason for the user and, apart from it, the system's own words.
class ErrorTarea : public std::runtime_error
{
public:
    explicit ErrorTarea(const QString& texto_, const QString& detalles_ = {})
        : std::runtime_error(texto_.toStdString()), texto(texto_), detalles(detalles_)
    {
    }

    QString texto;
    QString detalles;  ///< behind "Detalles"
};

/// A work that its user ended: nobody is told of it.
class Cancelado : public ErrorTarea
{
public:
    Cancelado();
};

/// What to tell of an error on a write: a store that somebody holds has words of its own, any other
/// error the engine's.
[[nodiscard]] QString motivo_de_escritura(const ErrorAlmacen& e);

/// What to tell of whatever failed.
struct Motivo
{
    QString texto;
    QString detalles;  ///< behind "Detalles"
};
[[nodiscard]] Motivo motivo_de(const std::exception& e);

/// What stands behind "Detalles" of a box whose text says nothing of the reason: the reason, and the engine's own words.
[[nodiscard]] QString detalles_de(const ErrorAlmacen& e);
