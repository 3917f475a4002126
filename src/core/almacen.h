// SPDX-License-Identifier: GPL-3.0-or-later
// The store: one SQLCipher file, reached through a connection, statements and parameters.
#pragma once

#include <QDate>
#include <QString>
#include <QVariant>

#include <stdexcept>
#include <string_view>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

/// A statement or an opening that the engine refused.
class ErrorAlmacen : public std::runtime_error
{
public:
    ErrorAlmacen(int numero_, const QString& descripcion_);

    int numero;           ///< extended result code of the engine
    QString descripcion;  ///< the engine's own words

    /// Whether a unique key or a primary key was violated.
    [[nodiscard]] bool claveDuplicada() const;
    /// Whether somebody else holds the file.
    [[nodiscard]] bool ocupado() const;
};

/// One connection to the store. Transactions nest: an inner one is a savepoint of the outer.
class Conexion
{
public:
    Conexion() = default;
    ~Conexion();
    Conexion(const Conexion&) = delete;
    Conexion& operator=(const Conexion&) = delete;

    /// Opens an existing store, never creates one. Throws ErrorAlmacen when the file is
    /// missing, is no store, is locked or does not open with the password.
    void abrir(const QString& ruta, const QString& clave);
    /// Rolls an open transaction back and closes; nothing happens on a closed connection.
    void cerrar();
    [[nodiscard]] bool abierta() const { return base_ != nullptr; }

    /// Executes one or more statements; gives the rows that the last one affected.
    int ejecutar(const QString& sql);

    void comenzar();
    void confirmar();
    void deshacer();
    /// Rolls back whatever is open, however deep.
    void deshacerTodo();
    [[nodiscard]] int transacciones() const { return nivel_; }

    [[nodiscard]] sqlite3* nativa() const { return base_; }

private:
    friend class Recordset;
    friend class Comando;
    friend void crear_conexion_nueva(Conexion&, const QString&, const QString&);

    void conectar(const QString& ruta, const QString& clave, int modo);
    sqlite3_stmt* preparar(const QString& sql);
    sqlite3_stmt* prestar(const QString& sql);
    void devolver(const QString& sql, sqlite3_stmt* sentencia);
    void sentenciaSimple(const char* sql);
    [[noreturn]] void fallar() const;

    sqlite3* base_ = nullptr;
    int nivel_ = 0;
    std::unordered_map<QString, sqlite3_stmt*> guardadas_;
};

/// Creates a new, empty store at the path; used by the builder of stores alone.
void crear_conexion_nueva(Conexion& cn, const QString& ruta, const QString& clave);

/// A transaction that is rolled back unless it is confirmed.
class Transaccion
{
public:
    explicit Transaccion(Conexion& cn) : cn_(cn) { cn_.comenzar(); }
    ~Transaccion();
    Transaccion(const Transaccion&) = delete;
    Transaccion& operator=(const Transaccion&) = delete;
    void confirmar();

private:
    Conexion& cn_;
    bool abierta_ = true;
};

/// The rows of a query, walked once from the first. Columns are found by their name,
/// without regard to case, or by position.
class Recordset
{
public:
    Recordset(Conexion& cn, const QString& sql);
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    [[nodiscard]] bool eof() const { return eof_; }
    void siguiente();

    [[nodiscard]] int columnas() const;
    [[nodiscard]] QString nombre(int columna) const;
    [[nodiscard]] int columna(const char* nombre) const;

    [[nodiscard]] bool nulo(int columna) const;
    [[nodiscard]] QString texto(int columna) const;
    /// The text as the engine holds it, in UTF-8, until the next row.
    [[nodiscard]] std::string_view utf8(int columna) const;
    [[nodiscard]] double real(int columna) const;
    [[nodiscard]] qint64 entero(int columna) const;
    [[nodiscard]] QVariant valor(int columna) const;

    [[nodiscard]] bool nulo(const char* n) const { return nulo(columna(n)); }
    /// A null reads as the empty text.
    [[nodiscard]] QString texto(const char* n) const { return texto(columna(n)); }
    [[nodiscard]] double real(const char* n) const { return real(columna(n)); }
    [[nodiscard]] qint64 entero(const char* n) const { return entero(columna(n)); }
    [[nodiscard]] bool logico(const char* n) const { return entero(columna(n)) != 0; }
    /// Invalid for a null.
    [[nodiscard]] QVariant valor(const char* n) const { return valor(columna(n)); }
    /// The date stored as 'YYYY-MM-DD'; invalid for a null.
    [[nodiscard]] QDate fecha(const char* n) const;

    [[nodiscard]] sqlite3_stmt* nativa() const { return sentencia_; }

private:
    Conexion& cn_;
    QString sql_;
    sqlite3_stmt* sentencia_ = nullptr;
    bool eof_ = false;
};

/// One statement with positional parameters.
class Comando
{
public:
    Comando(Conexion& cn, const QString& sql);
    ~Comando();
    Comando(const Comando&) = delete;
    Comando& operator=(const Comando&) = delete;

    /// Appends the next parameter. An invalid value is a null; a text above `ancho`
    /// characters (0 is without limit) throws ErrorAlmacen, as the store would cut it.
    void parametro(const char* nombre, const QVariant& valor, int ancho = 0);
    /// Runs the statement; gives the rows affected.
    int ejecutar();

private:
    Conexion& cn_;
    QString sql_;
    sqlite3_stmt* sentencia_;
    int siguiente_ = 1;
};
