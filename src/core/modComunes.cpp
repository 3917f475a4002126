// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/modComunes.h"

#include "core/modGlobales.h"

#include <array>
#include <cstdlib>

using namespace Qt::StringLiterals;

void obtener_valor_modulo(int ley)
{
    const Recordset rs(cnRtn, u"select GVMO_VALOR_MODULO from GLB_TB_VALORES_MODULO  where GVMO_LEY_NRO="_s
                                  + QString::number(ley) + u" and GVMO_CONCEPTO='SELLOS'"_s);
    if (!rs.eof())
        ValorModulo = rs.real("GVMO_VALOR_MODULO");
}

int suma_ponderada(const QString& digitos)
{
    constexpr std::array PESOS{3, 1, 7, 9};
    qint16 suma = 0;
    for (qsizetype i = 0; i < digitos.size(); ++i) {
        const QChar c = digitos[digitos.size() - 1 - i];
        if (c < u'0' || c > u'9')
            return -1;
        suma = qint16(suma + c.digitValue() * PESOS[size_t(i % 4)]);
    }
    return suma;
}

int digito_verificador(const QString& digitos)
{
    const int ultima = std::abs(suma_ponderada(digitos)) % 10;
    return ultima == 0 ? 0 : 10 - ultima;
}
