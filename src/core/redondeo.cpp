// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/redondeo.h"

#include "core/clsLocaleInfo.h"

#include <array>
#include <cmath>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

struct Cifras
{
    bool negativo;
    QByteArray enteras;  // at least "0"
    QByteArray decimales;
};

// The 15 significant digits of a number, spread around the decimal point.
Cifras descomponer(double valor)
{
    std::array<char, 32> bufer{};
    std::snprintf(bufer.data(), bufer.size(), "%.14e", valor);
    const QByteArray texto(bufer.data());
    const auto e = texto.indexOf('e');
    if (e < 0)
        throw ErrorConversion();
    const bool negativo = texto.startsWith('-');
    QByteArray digitos = texto.mid(negativo, e - negativo);
    digitos.remove(1, 1);
    const int exponente = texto.mid(e + 1).toInt();
    if (exponente < 0)
        return {negativo, "0", QByteArray(-exponente - 1, '0') + digitos};
    if (exponente + 1 >= digitos.size())
        return {negativo, digitos.leftJustified(exponente + 1, '0'), {}};
    return {negativo, digitos.left(exponente + 1), digitos.mid(exponente + 1)};
}

// Adds one to the last place of a string of digits.
void incrementar(QByteArray& digitos)
{
    for (auto i = digitos.size() - 1; i >= 0; --i) {
        if (digitos[i] != '9') {
            ++digitos[i];
            return;
        }
        digitos[i] = '0';
    }
    digitos.prepend('1');
}

QByteArray redondeado(double valor, int decimales)
{
    Cifras c = descomponer(valor);
    QByteArray todas = c.enteras + c.decimales.leftJustified(decimales, '0', true);
    if (c.decimales.size() > decimales && c.decimales[decimales] >= '5')
        incrementar(todas);
    const auto enteras = todas.size() - decimales;
    QByteArray salida = todas.left(enteras);
    if (decimales > 0)
        salida += '.' + todas.mid(enteras);
    bool cero = true;
    for (const char d : todas)
        cero = cero && d == '0';
    return c.negativo && !cero ? '-' + salida : salida;
}

// The digits of a scaled number, from the right: decimals, their separator, grouped integers.
QString componer(qint64 n, int decimales, const QString& coma, const QString& miles)
{
    std::array<char16_t, 48> bufer{};
    size_t i = bufer.size();
    auto resto = quint64(n < 0 ? -n : n);
    for (int d = 0; d < decimales; ++d, resto /= 10)
        bufer[--i] = char16_t(u'0' + resto % 10);
    if (decimales > 0)
        bufer[--i] = coma.front().unicode();
    for (int d = 0; d == 0 || resto > 0; ++d, resto /= 10) {
        if (d > 0 && d % 3 == 0 && !miles.isEmpty())
            bufer[--i] = miles.front().unicode();
        bufer[--i] = char16_t(u'0' + resto % 10);
    }
    if (n < 0)
        bufer[--i] = u'-';
    return QString::fromUtf16(bufer.data() + i, qsizetype(bufer.size() - i));
}

}  // namespace

std::optional<qint64> escalado(double valor, int decimales)
{
    constexpr double POTENCIAS[] = {1, 10, 100, 1000, 10000};
    constexpr double LEJOS_DE_LA_MITAD = 1e-4;
    constexpr double EXACTOS = 1e10;
    if (decimales < 0 || decimales > 4)
        return {};
    const double e = std::fabs(valor) * POTENCIAS[decimales];
    const double entero = std::floor(e);
    if (!(e < EXACTOS) || std::fabs(e - entero - 0.5) <= LEJOS_DE_LA_MITAD)
        return {};
    const auto n = qint64(entero) + (e - entero > 0.5);
    return valor < 0 ? -n : n;
}

QString con_mascara(double valor, int decimales, const QString& coma, const QString& miles)
{
    if (const auto n = escalado(valor, decimales); n && coma.size() == 1 && miles.size() <= 1)
        return componer(*n, decimales, coma, miles);
    QString t = QString::fromLatin1(redondeado(valor, decimales));
    auto punto = t.indexOf(u'.');
    if (punto >= 0)
        t.replace(punto, 1, coma);
    else
        punto = t.size();
    const int primera = t.startsWith(u'-') ? 1 : 0;
    for (auto i = punto - 3; i > primera && !miles.isEmpty(); i -= 3)
        t.insert(i, miles);
    return t;
}

QString formato_decimal(double valor, int decimales)
{
    return con_mascara(valor, decimales, u"."_s, {});
}

double redondear(double valor, int decimales)
{
    return redondeado(valor, decimales).toDouble();
}

std::string cifras_enteras(double valor)
{
    const auto n = escalado(valor, 0);
    return n ? std::to_string(*n) : redondeado(valor, 0).toStdString();
}

QString importe_llano(double importe)
{
    return con_mascara(importe, 2, QLocale().decimalPoint(), {});
}

QString importe_agrupado(double importe, int decimales)
{
    const clsLocaleInfo local;
    return con_mascara(importe, decimales, local.sDecimal(), local.Thousands());
}

QString con_formato(const QString& texto, const QString& mascara)
{
    const auto punto = mascara.indexOf(u'.');
    const auto decimales = punto < 0 ? 0 : mascara.size() - punto - 1;
    return formato_decimal(numero_inicial(texto), int(decimales)).rightJustified(mascara.size(), u'0');
}

QString con_ceros(qint64 valor, int ancho)
{
    return u"%1"_s.arg(valor, ancho, 10, QLatin1Char('0'));
}

QString numero_sql(double valor)
{
    return QString::number(valor, 'g', 15);
}

std::optional<double> leer_numero(const QString& texto)
{
    bool bien = false;
    const double valor = texto.toDouble(&bien);
    return bien && std::isfinite(valor) ? std::optional(valor) : std::nullopt;
}

double numero_de_texto_sql(const QString& texto)
{
    const auto valor = leer_numero(texto.trimmed());
    if (!valor)
        throw ErrorConversion();
    return *valor;
}

double numero_inicial(const QString& texto)
{
    const QString t = texto.trimmed();
    qsizetype fin = 0;
    bool punto = false;
    while (fin < t.size() && (t[fin].isDigit() || (fin == 0 && t[fin] == u'-') || (t[fin] == u'.' && !punto))) {
        punto = punto || t[fin] == u'.';
        ++fin;
    }
    return t.left(fin).toDouble();
}
