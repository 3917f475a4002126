// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/cantidad.h"

#include "core/clsLocaleInfo.h"
#include "core/redondeo.h"

using namespace Qt::StringLiterals;

QString cantidad_llana(double valor)
{
    constexpr int DECIMALES = 10;
    if (const auto entero = escalado(valor, 0); entero && double(*entero) == valor)
        return QString::number(*entero);
    QString texto = formato_decimal(valor, DECIMALES);
    while (texto.endsWith(u'0'))
        texto.chop(1);
    if (texto.endsWith(u'.'))
        texto.chop(1);
    return texto.replace(u'.', clsLocaleInfo().sDecimal());
}
