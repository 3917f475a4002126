// SPDX-License-Identifier: GPL-3.0-or-later
// One connection to the store, its errors and its transactions.
#pragma once

#include <QHash>
#include <QString>

#include <stdexcept>
#include <vector>

struct sqlite3;
struct sqlite3_file;
struct sqlite3_stmt;

/// A statement or an opening that the engine refused.
class ErrorAlmacen : public std::runtime_error
{
public:
    ErrorAlmacen(int numero_, const QString& descripcion_);
    /// What the engine said, under its code.
    ErrorAlmacen(int numero_, const char* motor_);

    int numero;           ///< extended result code of the engine
    QString descripcion;  ///< in words of the office
    QString motor;        ///< the engine's own words, empty when the program itself refused

    /// Whether a unique key or a primary key was violated.
    [[nodiscard]] bool claveDuplicada() const;
    /// Whether somebody else holds the file.
    [[nodiscard]] bool ocupado() const;
    /// Whether the user ended it.
    [[nodiscard]] bool interrumpido() const;
    /// Whether the file is damaged, no store any more, or gone.
    [[nodiscard]] bool perdido() const { return perdido_; }

private:
    friend class Conexion;
    bool perdido_;
};

/// Asked again and again while the engine is at work on a statement; it must not use the store. False ends the
/// statement, where it only reads and nothing is half done (`cancelable`).
class Vigia
{
public:
    virtual ~Vigia() = default;
    virtual bool sigue(bool cancelable) = 0;
};
/// Who is asked from now on; null for nobody.
void fijar_vigia(Vigia* vigia);

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
    /// The same for reading alone: nothing can be written.
    void abrirParaLeer(const QString& ruta, const QString& clave);
    /// Rolls an open transaction back and closes; nothing happens on a closed connection.
    void cerrar();
    [[nodiscard]] bool abierta() const { return base_ != nullptr; }

    /// Executes one statement; gives the rows that it affected. As everywhere here, a second statement, a comment
    /// outside of a literal or a NUL is an error: no text that a user typed can end a statement or begin another.
    int ejecutar(const QString& sql);
    /// Executes a script of the program's own: schema, views, the statements of a builder.
    void ejecutarGuion(const QString& sql);

    void comenzar();
    void confirmar();
    void deshacer();
    /// Rolls back whatever is open, however deep.
    void deshacerTodo();
    [[nodiscard]] int transacciones() const { return nivel_; }
    /// Rows written since the connection was opened; another number tells that something may have changed.
    [[nodiscard]] qint64 cambios() const;
    /// Whether the engine has a transaction open: after a full disk it may have rolled one back by itself.
    [[nodiscard]] bool enTransaccion() const;

    [[nodiscard]] sqlite3* nativa() const { return base_; }
    /// The engine's handle of the open file.
    [[nodiscard]] sqlite3_file* archivo() const;
    /// Absolute path of the open file, without links on its way.
    [[nodiscard]] QString ruta() const;

private:
    friend class Recordset;
    friend class Comando;
    friend void crear_conexion_nueva(Conexion&, const QString&, const QString&);

    void abrirPara(int modo, const QString& ruta, const QString& clave);
    [[nodiscard]] bool tieneTablas();
    void conectar(const QString& ruta, const QString& clave, int modo);
    sqlite3_stmt* preparar(const QString& sql);
    sqlite3_stmt* prestar(const QString& sql);
    void devolver(const QString& sql, sqlite3_stmt* sentencia);
    void sentenciaSimple(const char* sql);
    [[nodiscard]] int paso(sqlite3_stmt* lectura);
    [[nodiscard]] ErrorAlmacen falla() const;
    [[noreturn]] void fallar() const;

    sqlite3* base_ = nullptr;
    int nivel_ = 0;
    bool leyendo_ = false;  ///< the statement at work only reads
    // Prepared statements between two uses; one that is lent leaves its place empty.
    struct Guardada
    {
        QString sql;
        sqlite3_stmt* sentencia = nullptr;
    };
    std::vector<Guardada> guardadas_;
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

/// Steps that are one piece of work for the disk, but no transaction for the user: what was done before a step failed
/// is confirmed as well. A kill leaves all of it or nothing.
class Tanda
{
public:
    explicit Tanda(Conexion& cn) : cn_(cn) { cn_.comenzar(); }
    /// Confirms what was done when a failure is on its way through; that one is told, not one of this.
    ~Tanda();
    Tanda(const Tanda&) = delete;
    Tanda& operator=(const Tanda&) = delete;
    /// Confirms. Throws ErrorAlmacen when nothing of it could be stored.
    void terminar();

private:
    Conexion& cn_;
    bool abierta_ = true;
};
