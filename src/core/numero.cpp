// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/numero.h"

#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QString con_separadores_cambiados(QString texto)
{
    for (QChar& c : texto)
        c = c == u'.' ? u',' : c == u',' ? u'.' : c;
    return texto;
}

}  // namespace

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
    if (legible())
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

// Keys write digits, one separator and, where it is allowed, a sign in front; grouping comes from the mask,
// or by paste. A text that says anything else would be read as another number than it shows.
bool Numero::bienTecleado() const
{
    static const QString PATRON = u"%1(?:\\d+|\\d{1,3}(?:%2\\d{3})+)?(?:%3\\d*)?"_s;
    const QString miles = local_.Thousands().isEmpty() ? u"(?!)"_s : QRegularExpression::escape(local_.Thousands());
    const QRegularExpression patron(QRegularExpression::anchoredPattern(
        PATRON.arg(permiteNegativos ? u"-?"_s : QString(), miles, QRegularExpression::escape(local_.sDecimal()))));
    return patron.match(texto_).hasMatch();
}

std::optional<double> Numero::leer() const
{
    if (tecleado_ && !bienTecleado())
        return {};
    return leer_numero(desnudo());
}

void Numero::formatear()
{
    if (const auto valor = texto_.isEmpty() ? std::nullopt : leer())
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
    const auto valor = texto_.isEmpty() ? 0 : leer();
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
    if (!legible())
        throw ErrorConversion();
    return texto_.isEmpty() ? QString() : desnudo();
}

QString Numero::de_pegado(const QString& texto) const
{
    static const QRegularExpression DELANTE(u"^(?:(?:U\\$[SD]|US\\$|AR\\$|\\$|€|N[°ºro]*\\.?[°º]?|No\\.)\\s*)+"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    QString t = texto.trimmed().remove(DELANTE);
    t.remove(QRegularExpression(u"\\s"_s));
    if (cantidadDecimales == 0)
        t.remove(u'-').remove(u'.');
    Numero n(*this);
    n.alCambiar = nullptr;
    // A text of another country has the separators the other way round.
    for (const QString& candidato : {t, con_separadores_cambiados(t)}) {
        n.teclearTexto(candidato);
        if (!n.vacio() && n.legible())
            return n.desnudo().replace(u"."_s, local_.sDecimal());
    }
    return texto;
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
