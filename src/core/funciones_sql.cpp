// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/funciones_sql.h"

#include <sqlcipher/sqlite3.h>

#include <QVarLengthArray>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

QString texto_de(sqlite3_value* v)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_value_text(v)), sqlite3_value_bytes(v));
}

void responder(sqlite3_context* ctx, const QString& texto)
{
    const QByteArray utf8 = texto.toUtf8();
    sqlite3_result_text(ctx, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
}

bool alguno_nulo(sqlite3_context* ctx, int n, sqlite3_value** v)
{
    for (int i = 0; i < n; ++i)
        if (sqlite3_value_type(v[i]) == SQLITE_NULL) {
            sqlite3_result_null(ctx);
            return true;
        }
    return false;
}

void fn_int(sqlite3_context* ctx, int n, sqlite3_value** v)
{
    if (!alguno_nulo(ctx, n, v))
        sqlite3_result_int64(ctx, sqlite3_int64(std::floor(sqlite3_value_double(v[0]))));
}

void fn_mid(sqlite3_context* ctx, int n, sqlite3_value** v)
{
    if (!alguno_nulo(ctx, n, v))
        responder(ctx, texto_de(v[0]).mid(sqlite3_value_int(v[1]) - 1, n > 2 ? sqlite3_value_int(v[2]) : -1));
}

// The number with a place for its sign in front, whole numbers without a decimal point.
void fn_str(sqlite3_context* ctx, int n, sqlite3_value** v)
{
    if (alguno_nulo(ctx, n, v))
        return;
    const double numero = sqlite3_value_double(v[0]);
    const QString cifras = QString::number(numero, 'g', 15);
    responder(ctx, numero < 0 ? cifras : QChar(u' ') + cifras);
}

void fn_iif(sqlite3_context* ctx, int, sqlite3_value** v)
{
    sqlite3_result_value(ctx, sqlite3_value_int(v[0]) != 0 ? v[1] : v[2]);
}

using Unidades = QVarLengthArray<char16_t, 256>;

// The characters of a text without regard to case.
void plegar(sqlite3_value* v, Unidades& destino)
{
    const auto* bytes = sqlite3_value_text(v);
    const int n = sqlite3_value_bytes(v);
    destino.resize(n);
    for (int i = 0; i < n; ++i) {
        if (bytes[i] >= 0x80) {
            const QString entero = QString::fromUtf8(reinterpret_cast<const char*>(bytes), n);
            destino.resize(entero.size());
            std::transform(entero.begin(), entero.end(), destino.begin(),
                           [](QChar c) { return c.toCaseFolded().unicode(); });
            return;
        }
        destino[i] = bytes[i] >= 'A' && bytes[i] <= 'Z' ? char16_t(bytes[i] + ('a' - 'A')) : char16_t(bytes[i]);
    }
}

// "%" stands for any run of characters, "_" for one. On a mismatch the last "%" takes one more.
bool coincide(const Unidades& patron, const Unidades& texto)
{
    qsizetype p = 0;
    qsizetype t = 0;
    qsizetype comodin = -1;
    qsizetype desde = 0;
    while (t < texto.size()) {
        if (p < patron.size() && patron[p] == u'%') {
            comodin = p++;
            desde = t;
        } else if (p < patron.size() && (patron[p] == u'_' || patron[p] == texto[t])) {
            ++p;
            ++t;
        } else if (comodin >= 0) {
            p = comodin + 1;
            t = ++desde;
        } else {
            return false;
        }
    }
    while (p < patron.size() && patron[p] == u'%')
        ++p;
    return p == patron.size();
}

void fn_like(sqlite3_context* ctx, int n, sqlite3_value** v)
{
    if (alguno_nulo(ctx, n, v))
        return;
    // The pattern is the same for every row of a statement.
    auto* patron = static_cast<Unidades*>(sqlite3_get_auxdata(ctx, 0));
    std::unique_ptr<Unidades> nuevo;
    if (!patron) {
        nuevo = std::make_unique<Unidades>();
        plegar(v[0], *nuevo);
        patron = nuevo.get();
    }
    Unidades texto;
    plegar(v[1], texto);
    sqlite3_result_int(ctx, coincide(*patron, texto));
    if (nuevo)
        sqlite3_set_auxdata(ctx, 0, nuevo.release(), [](void* p) { delete static_cast<Unidades*>(p); });
}

// Position of a letter in the Spanish alphabet, accents and case apart.
int orden(QChar c)
{
    c = c.toUpper();
    if (c == u'Ñ')
        return u'N' * 4 + 1;
    const QString partes = c.decomposition();
    return (partes.isEmpty() ? c : partes.front()).unicode() * 4;
}

void fn_sin_tildes(sqlite3_context* ctx, int, sqlite3_value** v)
{
    const auto* bytes = sqlite3_value_text(v[0]);
    const bool llano = std::all_of(bytes, bytes + sqlite3_value_bytes(v[0]), [](unsigned char c) { return c < 0x80; });
    if (llano)
        sqlite3_result_value(ctx, v[0]);
    else
        responder(ctx, sin_tildes(texto_de(v[0])));
}

int cotejo(void*, int na, const void* a, int nb, const void* b)
{
    return comparar_espanol(QString::fromUtf8(static_cast<const char*>(a), na),
                            QString::fromUtf8(static_cast<const char*>(b), nb));
}

}  // namespace

QString sin_tildes(const QString& texto)
{
    QString llano = texto;
    for (QChar& c : llano)
        if (const QString partes = c.decomposition(); !partes.isEmpty() && c.toUpper() != u'Ñ')
            c = partes.front();
    return llano;
}

int comparar_espanol(const QString& a, const QString& b)
{
    const auto comunes = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < comunes; ++i)
        if (const int d = orden(a[i]) - orden(b[i]); d != 0)
            return d;
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    return a.compare(b, Qt::CaseInsensitive);
}

void registrar_funciones(sqlite3* base)
{
    constexpr int MODO = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    const auto agregar = [base](const char* nombre, int n, void (*fn)(sqlite3_context*, int, sqlite3_value**)) {
        sqlite3_create_function_v2(base, nombre, n, MODO, nullptr, fn, nullptr, nullptr, nullptr);
    };
    agregar("int", 1, fn_int);
    agregar("mid", 2, fn_mid);
    agregar("mid", 3, fn_mid);
    agregar("str", 1, fn_str);
    agregar("iif", 3, fn_iif);
    agregar("like", 2, fn_like);
    agregar("sin_tildes", 1, fn_sin_tildes);
    sqlite3_create_collation_v2(base, "ESPANOL", SQLITE_UTF8, nullptr, cotejo, nullptr);
}
