// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of a table as text, with the place of each value, under the table's own columns.
#pragma once

#include "csv.h"

#include <QStringList>

#include <map>
#include <stdexcept>

class Conexion;

/// What is wrong in a text, and where; line and column count from 1.
struct FallaTexto
{
    QString archivo;
    int linea = 1;
    int columna = 1;
    QString mensaje;

    /// `archivo:línea:columna: mensaje`
    [[nodiscard]] QString texto() const;
};

/// Texts that can't be a store's; it says all of their faults, a line each, in the order of files and lines.
class ErrorTextos : public std::runtime_error
{
public:
    explicit ErrorTextos(QList<FallaTexto> fallas);
    qsizetype cuantas;
};

struct ColumnaTexto
{
    QString nombre;
    QString tipo;  ///< as the schema declares it, without its width
    int ancho = 0;
    bool obligatoria = false;
};

/// Columns that are a key of the table, or point at one of another table.
struct ClaveTexto
{
    QStringList columnas;
    QString tabla = {};  ///< the one that is pointed at
    QStringList suyas = {};
};

struct TablaTexto
{
    QString nombre;
    QString ruta;
    QList<ColumnaTexto> columnas;  ///< those of the file, in its order
    QList<ClaveTexto> claves;
    QList<ClaveTexto> referencias;
    QList<FilaCSV> filas;

    /// The value under a column; empty when it is null or the file does not name the column.
    [[nodiscard]] QString valor(const FilaCSV& fila, const QString& columna) const;
    /// The values of a key in a form that is the same for equal ones; empty when one of them is null.
    [[nodiscard]] QString clave(const FilaCSV& fila, const QStringList& nombres) const;
    /// A fault at the value under a column.
    [[nodiscard]] FallaTexto falla(const FilaCSV& fila, const QString& columna, const QString& mensaje) const;
    /// A fault of the table as a whole.
    [[nodiscard]] FallaTexto falla(const QString& mensaje) const { return {ruta, 1, 1, mensaje}; }
};
using TablasTexto = std::map<QString, TablaTexto>;

/// Reads `TABLE.csv` under the columns that the store has for it. What can be said of each row alone, and the keys that
/// stand twice, is added to the faults.
[[nodiscard]] TablaTexto leer_tabla(Conexion& cn, const QString& ruta, QList<FallaTexto>& fallas);

/// Inserts the rows of a table without faults. Throws ErrorAlmacen.
void insertar_tabla(Conexion& cn, const TablaTexto& tabla);

/// The relations of a table of the store to others.
[[nodiscard]] QList<ClaveTexto> referencias_de(Conexion& cn, const QString& tabla);
