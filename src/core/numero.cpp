#include "core/numero.h"

#include <array>
#include <cmath>
#include <cstdio>

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

bool es_numero(const QString& texto, double& valor)
{
    bool bien = false;
    valor = texto.toDouble(&bien);
    return bien && std::isfinite(valor);
}

}  // namespace

QString formato_decimal(double valor, int decimales)
{
    return QString::fromLatin1(redondeado(valor, decimales));
}

double redondear(double valor, int decimales)
{
    return redondeado(valor, decimales).toDouble();
}

QString formato_importe(double valor)
{
    return formato_decimal(valor, 2).replace(u'.', clsLocaleInfo().sDecimal());
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
    double valor = 0;
    if (!texto_.isEmpty() && !es_numero(desnudo(), valor))
        throw ErrorConversion();
    return valor;
}

void Numero::setValue(double valor)
{
    texto_ = QString::number(valor, 'g', 15).replace(u'.', local_.sDecimal());
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
    texto_ = texto;
    if (alCambiar)
        alCambiar();
}
