// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/cuit.h"

#include "core/modUtiles.h"

using namespace Qt::StringLiterals;

std::optional<qint64> cuit_numero(const QString& texto)
{
    const QString digitos = solo_digitos(texto);
    return digitos.isEmpty() ? std::optional<qint64>() : digitos.toLongLong();
}

QString cuit_texto(const std::optional<qint64>& numero)
{
    return numero ? QString::number(*numero) : QString();
}

QString cuit_sql(const QString& texto)
{
    const QString digitos = solo_digitos(texto);
    return digitos.isEmpty() ? u"null"_s : digitos;
}

bool mismo_cuit(const QString& a, const QString& b)
{
    return !a.isEmpty() && solo_digitos(a) == solo_digitos(b);
}
