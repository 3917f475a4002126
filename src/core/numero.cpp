#include "core/numero.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <optional>

namespace {

struct Cifras
{
    bool negativo;
    QByteArray enteras;    // at least "0"
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

// The number scaled to its last decimal, where the nearest whole number is surely what the text
// of 15 digits rounds to: far from a half, and well below 15 digits.
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

bool es_numero(const QString& texto, double& valor)
{
    bool bien = false;
    valor = texto.toDouble(&bien);
    return bien && std::isfinite(valor);
}

}  // namespace

QString formato_decimal(double valor, int decimales)
{
    if (const auto n = escalado(valor, decimales))
        return componer(*n, decimales, QStringLiteral("."), {});
    return QString::fromLatin1(redondeado(valor, decimales));
}

double redondear(double valor, int decimales)
{
    return redondeado(valor, decimales).toDouble();
}

QString formato_importe(double valor)
{
    const QString coma(QLocale().decimalPoint());
    if (const auto n = escalado(valor, 2))
        return componer(*n, 2, coma, {});
    return formato_decimal(valor, 2).replace(u'.', coma);
}

QString con_ceros(qint64 valor, int ancho)
{
    return QStringLiteral("%1").arg(valor, ancho, 10, QLatin1Char('0'));
}

QString numero_sql(double valor)
{
    return QString::number(valor, 'g', 15);
}

double numero_de_texto_sql(const QString& texto)
{
    double valor = 0;
    if (!es_numero(texto.trimmed(), valor))
        throw ErrorConversion();
    return valor;
}

double numero_de_texto(const QString& texto)
{
    Numero n;
    n.escribirTexto(texto);
    return n.Value();
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

Numero::Tecla Numero::filtrar(int keyAscii)
{
    switch (keyAscii) {
    case 13:
    case 8:
    case 27:
        return {keyAscii, false};
    case '.':
        if (cantidadDecimales < 1 || texto_.contains(local_.sDecimal()))
            return {0, false};
        return {local_.sDecimal().front().unicode(), false};
    case '-':
        if (!permiteNegativos || texto_.contains(u'-'))
            return {0, false};
        poner(u'-' + texto_);
        return {0, true};
    case '+':
        if (!permiteNegativos)
            return {0, false};
        poner(QString(texto_).remove(u'-'));
        return {0, true};
    default:
        return {keyAscii >= '0' && keyAscii <= '9' ? keyAscii : 0, false};
    }
}

void Numero::entrar()
{
    poner(QString(texto_).remove(local_.Thousands()));
}

QString Numero::desnudo() const
{
    QString t = texto_;
    if (!local_.Thousands().isEmpty())
        t.remove(local_.Thousands());
    if (t == local_.sDecimal())
        t += u'0';
    return t.replace(local_.sDecimal(), QStringLiteral("."));
}

void Numero::formatear()
{
    double valor = 0;
    if (texto_.isEmpty() || !es_numero(desnudo(), valor))
        return;
    QString t = formato_decimal(valor, cantidadDecimales);
    auto punto = t.indexOf(u'.');
    if (punto >= 0)
        t.replace(punto, 1, local_.sDecimal());
    else
        punto = t.size();
    const int primera = t.startsWith(u'-') ? 1 : 0;
    if (useSepMiles)
        for (auto i = punto - 3; i > primera; i -= 3)
            t.insert(i, local_.Thousands());
    poner(t);
}

double Numero::Value() const
{
    if (leido_)
        return *leido_;
    double valor = 0;
    if (!texto_.isEmpty() && !es_numero(desnudo(), valor))
        throw ErrorConversion();
    leido_ = valor;
    return valor;
}

void Numero::setValue(double valor)
{
    // Dividing a whole number by a power of ten gives the very double that its text reads as.
    constexpr double POTENCIAS[] = {1, 10, 100, 1000, 10000};
    if (const auto n = escalado(valor, cantidadDecimales); n && local_.sDecimal().size() == 1 && local_.Thousands().size() <= 1) {
        poner(componer(*n, cantidadDecimales, local_.sDecimal(), useSepMiles ? local_.Thousands() : QString()));
        leido_ = double(*n) / POTENCIAS[cantidadDecimales];
        return;
    }
    escribirTexto(QString::number(valor, 'g', 15).replace(u'.', local_.sDecimal()));
    formatear();
}

QString Numero::toSQL() const
{
    QString t = texto_;
    if (!local_.Thousands().isEmpty())
        t.remove(local_.Thousands());
    return t.replace(local_.sDecimal(), QStringLiteral("."));
}

void Numero::ClearText()
{
    poner({});
}

void Numero::poner(const QString& texto)
{
    escribirTexto(texto);
    if (alCambiar)
        alCambiar();
}
