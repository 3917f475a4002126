// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/conexion.h"

#include "core/archivos_disco.h"
#include "core/funciones_sql.h"

#include <sqlcipher/sqlite3.h>

#include <QFile>
#include <QScopedValueRollback>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int ESPERA_BLOQUEO_MS = 1500;
constexpr size_t SENTENCIAS_GUARDADAS = 32;
constexpr int PASOS_POR_LATIDO = 50000;  // of the engine's machine: about a millisecond

Vigia* vigia_puesto = nullptr;

// What the office is told of the engine's codes: the extended ones first, then their families.
struct Palabras
{
    int codigo;
    const char* texto;
};
constexpr Palabras PALABRAS[] = {
    {SQLITE_CONSTRAINT_PRIMARYKEY, "Ya existe un dato con esa clave."},
    {SQLITE_CONSTRAINT_UNIQUE, "Ya existe un dato con esa clave."},
    {SQLITE_CONSTRAINT_ROWID, "Ya existe un dato con esa clave."},
    {SQLITE_CONSTRAINT_FOREIGNKEY, "El dato está en uso, o falta otro del que depende."},
    {SQLITE_CONSTRAINT_NOTNULL, "Falta un dato obligatorio."},
    {SQLITE_CONSTRAINT, "Un dato no es válido."},
    {SQLITE_BUSY, "Otro programa está usando la base de datos. Intente más tarde."},
    {SQLITE_LOCKED, "Otro programa está usando la base de datos. Intente más tarde."},
    {SQLITE_FULL, "El disco está lleno: no se pudo guardar."},
    {SQLITE_READONLY, "La base de datos es de solo lectura: no se puede guardar."},
    {SQLITE_IOERR, "No se pudo leer o escribir en el disco."},
    {SQLITE_CANTOPEN, "No se pudo abrir la base de datos."},
    {SQLITE_CORRUPT, "La base de datos está dañada."},
    {SQLITE_NOTADB, "El archivo no es una base de datos, está dañado o tiene otra contraseña."},
    {SQLITE_TOOBIG, "Un dato no entra en su lugar."},
    {SQLITE_MISMATCH, "Un dato no es del tipo que corresponde."},
    {SQLITE_INTERRUPT, "Se canceló la consulta."},
    {SQLITE_NOMEM, "No hay memoria suficiente."},
};

QString palabras_del_motor(int codigo)
{
    for (const int buscado : {codigo, codigo & 0xff})
        for (const Palabras& p : PALABRAS)
            if (p.codigo == buscado)
                return QString::fromUtf8(p.texto);
    return u"La base de datos no pudo hacer lo que se le pidió."_s;
}

bool es_perdida(int numero)
{
    const int primario = numero & 0xff;
    return primario == SQLITE_CORRUPT || primario == SQLITE_NOTADB || primario == SQLITE_CANTOPEN
           || primario == SQLITE_MISUSE || numero == SQLITE_READONLY_DBMOVED;
}

// Whether a comment begins outside of literals and quoted names.
bool con_comentario(const QByteArray& sql)
{
    if (!sql.contains("--") && !sql.contains("/*"))
        return false;
    char cierre = 0;
    for (qsizetype i = 0; i < sql.size(); ++i) {
        const char c = sql[i];
        if (cierre != 0) {
            cierre = c == cierre ? 0 : cierre;
            continue;
        }
        if (c == '\'' || c == '"' || c == '`')
            cierre = c;
        else if (c == '[')
            cierre = ']';
        else if (sql.sliced(i).startsWith("--") || sql.sliced(i).startsWith("/*"))
            return true;
    }
    return false;
}

// The place of a statement. Rows that are written by the thousand bring the very text that was kept: where it lies tells
// it without a look at its hundreds of letters.
auto lugar_de(auto& guardadas, const QString& sql, auto sirve)
{
    const auto con = [&](auto igual) {
        return std::find_if(guardadas.begin(), guardadas.end(),
                            [&](const auto& g) { return sirve(g.sentencia) && igual(g.sql); });
    };
    const auto mismo = con([&](const QString& s) { return s.constData() == sql.constData(); });
    return mismo != guardadas.end() ? mismo : con([&](const QString& s) { return s == sql; });
}

}  // namespace

ErrorAlmacen::ErrorAlmacen(int numero_, const QString& descripcion_)
    : std::runtime_error(descripcion_.toStdString()), numero(numero_), descripcion(descripcion_),
      perdido_(es_perdida(numero))
{
}

// A trigger speaks in words of its own.
ErrorAlmacen::ErrorAlmacen(int numero_, const char* motor_)
    : std::runtime_error(motor_), numero(numero_),
      descripcion(numero == SQLITE_CONSTRAINT_TRIGGER ? QString::fromUtf8(motor_) : palabras_del_motor(numero)),
      motor(QString::fromUtf8(motor_)), perdido_(es_perdida(numero))
{
}

bool ErrorAlmacen::claveDuplicada() const
{
    return numero == SQLITE_CONSTRAINT_PRIMARYKEY || numero == SQLITE_CONSTRAINT_UNIQUE
           || numero == SQLITE_CONSTRAINT_ROWID;
}

bool ErrorAlmacen::interrumpido() const
{
    return (numero & 0xff) == SQLITE_INTERRUPT;
}

bool ErrorAlmacen::ocupado() const
{
    const int primario = numero & 0xff;
    return primario == SQLITE_BUSY || primario == SQLITE_LOCKED;
}

void fijar_vigia(Vigia* vigia)
{
    vigia_puesto = vigia;
}

Conexion::~Conexion()
{
    cerrar();
}

ErrorAlmacen Conexion::falla() const
{
    ErrorAlmacen error(sqlite3_extended_errcode(base_), sqlite3_errmsg(base_));
    // While the store stands, what could not be opened is the journal beside it.
    const char* ruta = sqlite3_db_filename(base_, "main");
    if ((error.numero & 0xff) == SQLITE_CANTOPEN && ruta && QFile::exists(QFile::decodeName(ruta))) {
        error.perdido_ = false;
        error.descripcion = u"No se pudo escribir junto a la base de datos: falta lugar o permiso."_s;
    }
    return error;
}

void Conexion::fallar() const
{
    throw falla();
}

void Conexion::conectar(const QString& ruta, const QString& clave, int modo)
{
    cerrar();
    const int rc = sqlite3_open_v2(ruta.toUtf8().constData(), &base_, modo, nullptr);
    try {
        if (rc != SQLITE_OK)
            fallar();
        sqlite3_extended_result_codes(base_, 1);
        sqlite3_busy_timeout(base_, ESPERA_BLOQUEO_MS);
        const QByteArray llave = clave.toUtf8();
        if (sqlite3_key(base_, llave.constData(), int(llave.size())) != SQLITE_OK)
            fallar();
        // A 4.x library writes another page format by default; the file is to move between both.
        sentenciaSimple("pragma cipher_compatibility = 3");
        registrar_funciones(base_);
        sqlite3_progress_handler(
            base_, PASOS_POR_LATIDO,
            [](void* cn) {
                const auto* yo = static_cast<const Conexion*>(cn);
                return int(vigia_puesto && !vigia_puesto->sigue(yo->leyendo_ && !yo->enTransaccion()));
            },
            this);
    } catch (...) {
        sqlite3_close(base_);
        base_ = nullptr;
        throw;
    }
}

// Reading the schema is what shows whether the password opens the file.
bool Conexion::tieneTablas()
{
    sqlite3_stmt* cuenta = preparar(u"select count(*) from sqlite_master where type='table'"_s);
    const bool leida = sqlite3_step(cuenta) == SQLITE_ROW;
    const bool hay = leida && sqlite3_column_int(cuenta, 0) > 0;
    sqlite3_finalize(cuenta);
    if (!leida)
        fallar();
    return hay;
}

void Conexion::abrirPara(int modo, const QString& ruta, const QString& clave)
{
    conectar(ruta, clave, modo);
    try {
        if (!tieneTablas())
            throw ErrorAlmacen(SQLITE_NOTADB, u"El archivo no es una base de datos"_s);
        sentenciaSimple("pragma foreign_keys = on");
    } catch (...) {
        cerrar();
        throw;
    }
}

void Conexion::abrir(const QString& ruta, const QString& clave)
{
    abrirPara(SQLITE_OPEN_READWRITE, ruta, clave);
}

void Conexion::abrirParaLeer(const QString& ruta, const QString& clave)
{
    abrirPara(SQLITE_OPEN_READONLY, ruta, clave);
}

sqlite3_file* Conexion::archivo() const
{
    sqlite3_file* abierto = nullptr;
    if (!base_ || sqlite3_file_control(base_, "main", SQLITE_FCNTL_FILE_POINTER, &abierto) != SQLITE_OK)
        throw ErrorAlmacen(SQLITE_MISUSE, u"La conexión está cerrada"_s);
    return abierto;
}

QString Conexion::ruta() const
{
    return base_ ? ruta_real(QString::fromUtf8(sqlite3_db_filename(base_, "main"))) : QString();
}

void crear_conexion_nueva(Conexion& cn, const QString& ruta, const QString& clave)
{
    cn.conectar(ruta, clave, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    cn.sentenciaSimple("pragma foreign_keys = on");
}

void Conexion::cerrar()
{
    if (!base_)
        return;
    for (const Guardada& g : guardadas_)
        sqlite3_finalize(g.sentencia);
    guardadas_.clear();
    deshacerTodo();
    sqlite3_close_v2(base_);
    base_ = nullptr;
}

sqlite3_stmt* Conexion::preparar(const QString& sql)
{
    if (!base_)
        throw ErrorAlmacen(SQLITE_MISUSE, u"La conexión está cerrada"_s);
    const QByteArray texto = sql.toUtf8();
    if (texto.contains('\0') || con_comentario(texto))
        throw ErrorAlmacen(SQLITE_ERROR, u"La instrucción contiene un comentario o un carácter nulo"_s);
    sqlite3_stmt* sentencia = nullptr;
    const char* resto = nullptr;
    if (sqlite3_prepare_v2(base_, texto.constData(), int(texto.size()), &sentencia, &resto) != SQLITE_OK)
        fallar();
    if (!sentencia || !QByteArray(resto).trimmed().isEmpty()) {
        sqlite3_finalize(sentencia);
        throw ErrorAlmacen(SQLITE_ERROR, u"Se esperaba una sola instrucción"_s);
    }
    return sentencia;
}

sqlite3_stmt* Conexion::prestar(const QString& sql)
{
    const auto lugar = lugar_de(guardadas_, sql, [](const sqlite3_stmt* s) { return s != nullptr; });
    return lugar == guardadas_.end() ? preparar(sql) : std::exchange(lugar->sentencia, nullptr);
}

void Conexion::devolver(const QString& sql, sqlite3_stmt* sentencia)
{
    sqlite3_reset(sentencia);
    sqlite3_clear_bindings(sentencia);
    const auto lugar = lugar_de(guardadas_, sql, [](const sqlite3_stmt* s) { return s == nullptr; });
    if (base_ && lugar != guardadas_.end())
        lugar->sentencia = sentencia;
    else if (base_ && guardadas_.size() < SENTENCIAS_GUARDADAS)
        guardadas_.push_back({sql, sentencia});
    else
        sqlite3_finalize(sentencia);
}

// A step of a statement that reads.
int Conexion::paso(sqlite3_stmt* lectura)
{
    const QScopedValueRollback leyendo(leyendo_, true);
    return sqlite3_step(lectura);
}

void Conexion::sentenciaSimple(const char* sql)
{
    if (!base_)
        throw ErrorAlmacen(SQLITE_MISUSE, u"La conexión está cerrada"_s);
    if (sqlite3_exec(base_, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        fallar();
}

int Conexion::ejecutar(const QString& sql)
{
    sqlite3_stmt* sentencia = preparar(sql);
    int rc = SQLITE_ROW;
    while (rc == SQLITE_ROW)
        rc = sqlite3_step(sentencia);
    if (sqlite3_finalize(sentencia) != SQLITE_OK)
        fallar();
    return sqlite3_changes(base_);
}

void Conexion::ejecutarGuion(const QString& sql)
{
    sentenciaSimple(sql.toUtf8().constData());
}

void Conexion::comenzar()
{
    if (nivel_ == 0)
        sentenciaSimple("begin immediate");
    else
        sentenciaSimple(QByteArray("savepoint t" + QByteArray::number(nivel_)).constData());
    ++nivel_;
}

void Conexion::confirmar()
{
    if (nivel_ == 0)
        return;
    if (nivel_ == 1)
        sentenciaSimple("commit");
    else
        sentenciaSimple(QByteArray("release t" + QByteArray::number(nivel_ - 1)).constData());
    --nivel_;
}

void Conexion::deshacer()
{
    if (nivel_ == 0)
        return;
    --nivel_;
    // A severe error (full disk) makes the engine roll back by itself.
    if (!enTransaccion()) {
        nivel_ = 0;
        return;
    }
    if (nivel_ == 0) {
        sentenciaSimple("rollback");
        return;
    }
    const QByteArray punto = "t" + QByteArray::number(nivel_);
    sentenciaSimple(QByteArray("rollback to " + punto + "; release " + punto).constData());
}

qint64 Conexion::cambios() const
{
    return sqlite3_total_changes(base_);
}

bool Conexion::enTransaccion() const
{
    return base_ && sqlite3_get_autocommit(base_) == 0;
}

void Conexion::deshacerTodo()
{
    nivel_ = 0;
    if (enTransaccion())
        sqlite3_exec(base_, "rollback", nullptr, nullptr, nullptr);
}

Transaccion::~Transaccion()
{
    if (!abierta_)
        return;
    try {
        cn_.deshacer();
    } catch (const ErrorAlmacen&) {
        cn_.deshacerTodo();
    }
}

void Transaccion::confirmar()
{
    cn_.confirmar();
    abierta_ = false;
}

Tanda::~Tanda()
{
    if (!abierta_)
        return;
    try {
        terminar();
    } catch (const ErrorAlmacen&) {
    }
}

void Tanda::terminar()
{
    abierta_ = false;
    try {
        // What the engine has rolled back by itself was told by the step that failed.
        if (cn_.enTransaccion()) {
            cn_.confirmar();
            return;
        }
    } catch (const ErrorAlmacen&) {
        cn_.deshacerTodo();
        throw;
    }
    cn_.deshacerTodo();
}
