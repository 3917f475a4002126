// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/numero.h"

#include <cmath>

using namespace Qt::StringLiterals;

double numero_de_texto(const QString& texto)
{
    Numero n;
    n.escribirTexto(texto);
    return n.Value();
}

Numero::Tecla Numero::filtrar(int keyAscii)
{
    switch (keyAscii) {
    case 13:
    case 8:
    case 27: return {keyAscii, false};
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
    default: return {keyAscii >= '0' && keyAscii <= '9' ? keyAscii : 0, false};
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
    return t.replace(local_.sDecimal(), u"."_s);
}

void Numero::formatear()
{
    if (const auto valor = texto_.isEmpty() ? std::nullopt : leer_numero(desnudo()))
        poner(mascara(*valor));
}

QString Numero::mascara(double valor) const
{
    return con_mascara(valor, cantidadDecimales, local_.sDecimal(), useSepMiles ? local_.Thousands() : QString());
}

double Numero::Value() const
{
    if (leido_)
        return *leido_;
    const auto valor = texto_.isEmpty() ? 0 : leer_numero(desnudo());
    if (!valor)
        throw ErrorConversion();
    leido_ = *valor;
    return *valor;
}

void Numero::setValue(double valor)
{
    if (!std::isfinite(valor)) {
        escribirTexto(QString::number(valor));
        return;
    }
    poner(mascara(valor));
    // Dividing a whole number by a power of ten gives the very double that its text reads as.
    constexpr double POTENCIAS[] = {1, 10, 100, 1000, 10000};
    if (const auto n = escalado(valor, cantidadDecimales))
        leido_ = double(*n) / POTENCIAS[cantidadDecimales];
}

QString Numero::toSQL() const
{
    QString t = texto_;
    if (!local_.Thousands().isEmpty())
        t.remove(local_.Thousands());
    return t.replace(local_.sDecimal(), u"."_s);
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

QString sql_o_cero(const Numero& n)
{
    return n.vacio() ? u"0"_s : n.toSQL();
}
