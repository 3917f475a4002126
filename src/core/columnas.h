// SPDX-License-Identifier: GPL-3.0-or-later
// A table's columns joined to the fields of a plain struct: inserting and reading walk it.
#pragma once

#include "core/almacen.h"

#include <optional>
#include <span>
#include <variant>
#include <vector>

template <class T>
struct Columna
{
    using Campo = std::variant<QString T::*, int T::*, double T::*, bool T::*, QDate T::*, std::optional<int> T::*,
                               std::optional<double> T::*, qint64 T::*, std::optional<qint64> T::*>;
    const char* nombre;
    Campo campo;
    int ancho = 0;                    ///< of a text, in characters
    const char* parametro = nullptr;  ///< when it is not "v_" and the column's name
};

/// Reads rows of a query into structs; the places of the columns are found once.
template <class T>
class LectorFilas
{
public:
    LectorFilas(const Recordset& rs, std::span<const Columna<T>> columnas) : rs_(rs), columnas_(columnas)
    {
        for (const Columna<T>& c : columnas)
            lugares_.push_back(rs.columna(c.nombre));
    }

    [[nodiscard]] T leer() const
    {
        T fila;
        for (size_t i = 0; i < columnas_.size(); ++i)
            std::visit([&](auto campo) { asignar(fila.*campo, lugares_[i]); }, columnas_[i].campo);
        return fila;
    }

private:
    template <class V>
    void asignar(V& v, int lugar) const
    {
        if constexpr (std::is_same_v<V, QString>)
            v = rs_.texto(lugar);
        else if constexpr (std::is_same_v<V, QDate>)
            v = QDate::fromString(rs_.texto(lugar).left(10), Qt::ISODate);
        else if constexpr (std::is_same_v<V, double>)
            v = rs_.real(lugar);
        else if constexpr (std::is_same_v<V, bool>)
            v = rs_.entero(lugar) != 0;
        else if constexpr (requires { v.has_value(); }) {
            v.reset();
            if (!rs_.nulo(lugar))
                asignar(v.emplace(), lugar);
        } else
            v = V(rs_.entero(lugar));
    }

    const Recordset& rs_;
    std::span<const Columna<T>> columnas_;
    std::vector<int> lugares_;
};

/// The first row of a query, or nothing.
template <class T>
std::optional<T> leer_fila(Conexion& cn, const QString& sql, std::span<const Columna<T>> columnas)
{
    const Recordset rs(cn, sql);
    if (rs.eof())
        return {};
    return LectorFilas<T>(rs, columnas).leer();
}

/// "insert into" of all columns of the table of columns, with one "?" each.
template <class T>
QString sentencia_alta(const char* tabla, std::span<const Columna<T>> columnas)
{
    using namespace Qt::StringLiterals;
    QString nombres;
    QString marcas;
    for (const Columna<T>& c : columnas) {
        nombres += (nombres.isEmpty() ? QString() : u", "_s) + QLatin1String(c.nombre);
        marcas += marcas.isEmpty() ? u"?"_s : u",?"_s;
    }
    return u"insert into "_s + QLatin1String(tabla) + u" ("_s + nombres + u") values ("_s + marcas + u")"_s;
}

/// Appends the field's value to the parameters; an empty text and an absent number are null.
template <class T>
void anotar_columna(Comando& comando, const T& fila, const Columna<T>& columna)
{
    const char* nombre = columna.parametro ? columna.parametro : columna.nombre;
    std::visit(
        [&](auto campo) {
            const auto& v = fila.*campo;
            using V = std::remove_cvref_t<decltype(v)>;
            if constexpr (std::is_same_v<V, QString>)
                v.isEmpty() ? comando.nulo() : comando.parametro(nombre, v, columna.ancho);
            else if constexpr (std::is_same_v<V, QDate>)
                v.isValid() ? comando.parametro(nombre, v) : comando.nulo();
            else if constexpr (requires { v.has_value(); })
                v ? comando.parametro(nombre, *v) : comando.nulo();
            else
                comando.parametro(nombre, v);
        },
        columna.campo);
}

/// Inserts one row by positional parameters; gives the rows affected. Throws ErrorAlmacen.
template <class T>
int insertar_fila(Conexion& cn, const QString& sentencia, std::span<const Columna<T>> columnas, const T& fila)
{
    Comando comando(cn, sentencia);
    for (const Columna<T>& c : columnas)
        anotar_columna(comando, fila, c);
    return comando.ejecutar();
}
