// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/celdas.h"

#include "core/clsLocaleInfo.h"
#include "core/funciones_sql.h"

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr int CIFRAS_DE_UN_REAL = 15;

template <class Igual>
std::vector<int> ordenar(size_t cuantas, Igual&& antes)
{
    std::vector<int> orden(cuantas);
    std::iota(orden.begin(), orden.end(), 0);
    std::stable_sort(orden.begin(), orden.end(), [&](int a, int b) { return antes(size_t(a), size_t(b)); });
    return orden;
}

// The value of a cell of a column of that class; an empty cell is below all.
double valor(const QString& celda, ClaseColumna clase)
{
    if (celda.isEmpty())
        return -HUGE_VAL;
    return clase == ClaseColumna::fecha ? double(fecha_de_celda(celda)->toJulianDay()) : *numero_de_celda(celda);
}

}  // namespace

bool parece_numero(const QString& texto)
{
    if (texto.isEmpty() || texto.size() > CIFRAS_DE_UN_REAL)
        return false;
    return std::all_of(texto.begin(), texto.end(),
                       [](QChar c) { return c.isDigit() || c == u'.' || c == u',' || c == u'-'; });
}

std::optional<double> numero_de_celda(const QString& texto)
{
    if (!parece_numero(texto) || (texto.size() > 1 && texto[0] == u'0' && texto[1].isDigit()))
        return {};
    const clsLocaleInfo local;
    QString t = texto;
    t.remove(local.Thousands()).replace(local.sDecimal(), u"."_s);
    bool bien = false;
    const double numero = t.toDouble(&bien);
    return bien ? std::optional(numero) : std::nullopt;
}

std::optional<QDate> fecha_de_celda(const QString& texto)
{
    const QDate fecha = QDate::fromString(texto, u"dd/MM/yyyy"_s);
    return fecha.isValid() ? std::optional(fecha) : std::nullopt;
}

ClaseColumna clase_de_columna(const QStringList& celdas)
{
    const auto todas = [&](auto es) {
        return std::all_of(celdas.begin(), celdas.end(),
                           [&](const QString& c) { return c.isEmpty() || es(c).has_value(); });
    };
    if (todas(numero_de_celda))
        return ClaseColumna::numero;
    return todas(fecha_de_celda) ? ClaseColumna::fecha : ClaseColumna::texto;
}

std::vector<int> orden_de_celdas(const QStringList& celdas)
{
    const ClaseColumna clase = clase_de_columna(celdas);
    if (clase == ClaseColumna::texto)
        return ordenar(size_t(celdas.size()), [&](size_t a, size_t b) {
            return comparar_espanol(celdas[qsizetype(a)], celdas[qsizetype(b)]) < 0;
        });
    std::vector<double> valores;
    valores.reserve(size_t(celdas.size()));
    for (const QString& c : celdas)
        valores.push_back(valor(c, clase));
    return ordenar(valores.size(), [&](size_t a, size_t b) { return valores[a] < valores[b]; });
}
