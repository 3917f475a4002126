// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/modUtiles.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

QString reducir_apostrofos(const QString& texto, QLatin1StringView reemplazo)
{
    QString salida;
    salida.reserve(texto.size() + 2);
    for (qsizetype i = 0; i < texto.size(); ++i) {
        if (texto[i] != u'\'')
            salida += texto[i];
        else if (i == 0 || texto[i - 1] != u'\'')
            salida += reemplazo;
    }
    return salida;
}

}  // namespace

QString toSQL(const QString& texto)
{
    return reducir_apostrofos(texto, QLatin1StringView("''"));
}

QString fromSQL(const QString& texto)
{
    return reducir_apostrofos(texto, QLatin1StringView("'"));
}

QString compactar_espacios(QString& texto)
{
    texto = texto.trimmed();
    QString salida;
    for (qsizetype i = 0; i < texto.size(); ++i)
        if (texto[i] != u' ' || texto[i - 1] != u' ')
            salida += texto[i];
    return salida;
}

QString solo_digitos(const QString& texto)
{
    QString salida;
    for (const QChar c : texto)
        if (c >= u'0' && c <= u'9')
            salida += c;
    return salida;
}

bool cuit_valido(QString& texto)
{
    texto = texto.trimmed();
    const QString cuit = solo_digitos(texto);
    if (cuit.size() != 11)
        return false;
    constexpr std::array PREFIJOS{20, 23, 24, 27, 30, 33, 34};
    if (std::find(PREFIJOS.begin(), PREFIJOS.end(), cuit.left(2).toInt()) == PREFIJOS.end())
        return false;
    constexpr std::array PESOS{5, 4, 3, 2, 7, 6, 5, 4, 3, 2};
    int suma = 0;
    for (size_t i = 0; i < PESOS.size(); ++i)
        suma += PESOS[i] * cuit[qsizetype(i)].digitValue();
    const int resto = suma % 11;
    int digito = resto == 0 ? 0 : 11 - resto;
    if (digito == 10)
        digito = 9;
    return cuit.back().digitValue() == digito;
}

QString fecha_corta(const QDate& fecha)
{
    return fecha.toString(u"dd/MM/yyyy"_s);
}

QString fecha_sql(const QDate& fecha)
{
    return u'\'' + fecha.toString(Qt::ISODate) + u'\'';
}

QString logico_sql(bool si)
{
    return si ? u"1"_s : u"0"_s;
}

QString entre_comillas(const QString& texto)
{
    return u'\'' + texto + u'\'';
}

QString texto_o_null(const QString& texto)
{
    return texto.isEmpty() ? u"null"_s : entre_comillas(texto);
}
