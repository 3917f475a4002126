// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/almacen.h"

#include "core/funciones_sql.h"

#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int ESPERA_BLOQUEO_MS = 1500;
constexpr size_t SENTENCIAS_GUARDADAS = 32;

}  // namespace

ErrorAlmacen::ErrorAlmacen(int numero_, const QString& descripcion_)
    : std::runtime_error(descripcion_.toStdString()), numero(numero_), descripcion(descripcion_)
{
}

bool ErrorAlmacen::claveDuplicada() const
{
    return numero == SQLITE_CONSTRAINT_PRIMARYKEY || numero == SQLITE_CONSTRAINT_UNIQUE
           || numero == SQLITE_CONSTRAINT_ROWID;
}

bool ErrorAlmacen::ocupado() const
{
    const int primario = numero & 0xff;
    return primario == SQLITE_BUSY || primario == SQLITE_LOCKED;
}

Conexion::~Conexion()
{
    cerrar();
}

void Conexion::fallar() const
{
    throw ErrorAlmacen(sqlite3_extended_errcode(base_), QString::fromUtf8(sqlite3_errmsg(base_)));
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
    } catch (...) {
        sqlite3_close(base_);
        base_ = nullptr;
        throw;
    }
}

void Conexion::abrir(const QString& ruta, const QString& clave)
{
    conectar(ruta, clave, SQLITE_OPEN_READWRITE);
    try {
        Recordset tablas(*this, u"select count(*) from sqlite_master where type='table'"_s);
        if (tablas.entero(0) == 0)
            throw ErrorAlmacen(SQLITE_NOTADB, u"El archivo no es una base de datos"_s);
        sentenciaSimple("pragma foreign_keys = on");
    } catch (...) {
        cerrar();
        throw;
    }
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
    for (auto& [sql, sentencia] : guardadas_)
        sqlite3_finalize(sentencia);
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
    sqlite3_stmt* sentencia = nullptr;
    if (sqlite3_prepare_v2(base_, texto.constData(), int(texto.size()), &sentencia, nullptr) != SQLITE_OK)
        fallar();
    return sentencia;
}

sqlite3_stmt* Conexion::prestar(const QString& sql)
{
    const auto it = guardadas_.find(sql);
    if (it == guardadas_.end())
        return preparar(sql);
    sqlite3_stmt* sentencia = it->second;
    guardadas_.erase(it);
    return sentencia;
}

void Conexion::devolver(const QString& sql, sqlite3_stmt* sentencia)
{
    sqlite3_reset(sentencia);
    sqlite3_clear_bindings(sentencia);
    if (!base_ || guardadas_.size() >= SENTENCIAS_GUARDADAS || !guardadas_.emplace(sql, sentencia).second)
        sqlite3_finalize(sentencia);
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
    sentenciaSimple(sql.toUtf8().constData());
    return sqlite3_changes(base_);
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
    if (sqlite3_get_autocommit(base_)) {
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

void Conexion::deshacerTodo()
{
    nivel_ = 0;
    if (base_ && !sqlite3_get_autocommit(base_))
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

Recordset::Recordset(Conexion& cn, const QString& sql) : cn_(cn), sql_(sql), sentencia_(cn.prestar(sql))
{
    try {
        siguiente();
    } catch (...) {
        sqlite3_finalize(sentencia_);
        throw;
    }
}

Recordset::~Recordset()
{
    cn_.devolver(sql_, sentencia_);
}

void Recordset::siguiente()
{
    const int rc = sqlite3_step(sentencia_);
    if (rc != SQLITE_ROW && rc != SQLITE_DONE)
        cn_.fallar();
    eof_ = rc == SQLITE_DONE;
}

int Recordset::columnas() const
{
    return sqlite3_column_count(sentencia_);
}

QString Recordset::nombre(int columna) const
{
    return QString::fromUtf8(sqlite3_column_name(sentencia_, columna));
}

int Recordset::columna(const char* nombre) const
{
    for (int i = 0; i < columnas(); ++i)
        if (qstricmp(sqlite3_column_name(sentencia_, i), nombre) == 0)
            return i;
    throw ErrorAlmacen(SQLITE_RANGE, u"No existe la columna %1"_s.arg(QLatin1String(nombre)));
}

bool Recordset::nulo(int columna) const
{
    return sqlite3_column_type(sentencia_, columna) == SQLITE_NULL;
}

std::string_view Recordset::utf8(int columna) const
{
    const auto* texto = reinterpret_cast<const char*>(sqlite3_column_text(sentencia_, columna));
    return texto ? std::string_view(texto, size_t(sqlite3_column_bytes(sentencia_, columna))) : std::string_view();
}

QString Recordset::texto(int columna) const
{
    const std::string_view t = utf8(columna);
    return QString::fromUtf8(t.data(), qsizetype(t.size()));
}

double Recordset::real(int columna) const
{
    return sqlite3_column_double(sentencia_, columna);
}

qint64 Recordset::entero(int columna) const
{
    return sqlite3_column_int64(sentencia_, columna);
}

QVariant Recordset::valor(int columna) const
{
    switch (sqlite3_column_type(sentencia_, columna)) {
    case SQLITE_NULL: return {};
    case SQLITE_INTEGER: return entero(columna);
    case SQLITE_FLOAT: return real(columna);
    default: return texto(columna);
    }
}

QDate Recordset::fecha(const char* n) const
{
    return QDate::fromString(texto(n).left(10), Qt::ISODate);
}

Comando::Comando(Conexion& cn, const QString& sql) : cn_(cn), sql_(sql), sentencia_(cn.prestar(sql)) {}

Comando::~Comando()
{
    cn_.devolver(sql_, sentencia_);
}

void Comando::parametro(const char* nombre, const QVariant& valor, int ancho)
{
    const int n = siguiente_++;
    switch (valor.typeId()) {
    case QMetaType::UnknownType: sqlite3_bind_null(sentencia_, n); return;
    case QMetaType::QString: {
        const QString texto = valor.toString();
        if (ancho > 0 && texto.size() > ancho)
            throw ErrorAlmacen(SQLITE_TOOBIG,
                               u"El valor de %1 excede los %2 caracteres"_s.arg(QLatin1String(nombre)).arg(ancho));
        const QByteArray utf8 = texto.toUtf8();
        sqlite3_bind_text(sentencia_, n, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
        return;
    }
    case QMetaType::QDate: {
        const QByteArray iso = valor.toDate().toString(Qt::ISODate).toUtf8();
        sqlite3_bind_text(sentencia_, n, iso.constData(), int(iso.size()), SQLITE_TRANSIENT);
        return;
    }
    case QMetaType::Double: sqlite3_bind_double(sentencia_, n, valor.toDouble()); return;
    default: sqlite3_bind_int64(sentencia_, n, valor.toLongLong());
    }
}

int Comando::ejecutar()
{
    const int rc = sqlite3_step(sentencia_);
    siguiente_ = 1;
    if (rc != SQLITE_DONE && rc != SQLITE_ROW) {
        const ErrorAlmacen error(sqlite3_extended_errcode(cn_.base_), QString::fromUtf8(sqlite3_errmsg(cn_.base_)));
        sqlite3_reset(sentencia_);
        throw error;
    }
    sqlite3_reset(sentencia_);
    return sqlite3_changes(cn_.base_);
}
