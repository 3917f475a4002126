// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/colores.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <array>
#include <cmath>

namespace {

constexpr double PARTE_APAGADA = 0.4;  // of the ground in a disabled text
constexpr int PASOS = 50;

double luz(const QColor& c)
{
    const auto canal = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * canal(c.redF()) + 0.7152 * canal(c.greenF()) + 0.0722 * canal(c.blueF());
}

QColor mezclar(const QColor& a, const QColor& b, double parte_b)
{
    const auto canal = [parte_b](float x, float y) { return float(x + (y - x) * parte_b); };
    return QColor::fromRgbF(canal(a.redF(), b.redF()), canal(a.greenF(), b.greenF()), canal(a.blueF(), b.blueF()));
}

Colores calcular(Tono tono, const QPalette& p)
{
    const auto en_campo = [&p](const QColor& c) {
        return legible(legible(c, p.color(QPalette::AlternateBase)), p.color(QPalette::Base));
    };
    switch (tono) {
    case Tono::alerta: return {en_campo(Qt::red), {}};
    case Tono::destacado: return {en_campo(p.color(QPalette::Highlight)), {}};
    case Tono::apagado: return {legible(Qt::darkGray, p.color(QPalette::ToolTipBase)), p.color(QPalette::ToolTipBase)};
    case Tono::normal: break;
    }
    return {};
}

// The program hears of another palette; widgets that have one of their own don't.
class Aviso : public QObject
{
public:
    explicit Aviso(QObject* programa) : QObject(programa) { programa->installEventFilter(this); }

    QList<std::pair<QPointer<QWidget>, std::function<void(QPalette&)>>> cambios;

    static void aplicar(QWidget* w, const std::function<void(QPalette&)>& cambio)
    {
        QPalette p;
        cambio(p);
        w->setPalette(p);
    }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (objeto == qApp && evento->type() == QEvent::ApplicationPaletteChange)
            for (const auto& [w, cambio] : std::as_const(cambios))
                if (w)
                    aplicar(w, cambio);
        return QObject::eventFilter(objeto, evento);
    }
};

}  // namespace

double contraste(const QColor& a, const QColor& b)
{
    const double x = luz(a), y = luz(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

QColor legible(QColor color, const QColor& fondo, double razon)
{
    const QColor extremo = contraste(Qt::white, fondo) > contraste(Qt::black, fondo) ? Qt::white : Qt::black;
    const QColor primero = color;
    for (int i = 1; i <= PASOS && contraste(color, fondo) < razon; ++i)
        color = mezclar(primero, extremo, double(i) / PASOS);
    return color;
}

bool es_oscura(const QPalette& paleta)
{
    return luz(paleta.color(QPalette::Window)) < luz(paleta.color(QPalette::WindowText));
}

const Colores& colores_de(Tono tono, const QPalette& paleta)
{
    struct Conocidos
    {
        qint64 de = 0;
        Colores colores;
    };
    static std::array<Conocidos, 4> conocidos;
    Conocidos& c = conocidos.at(size_t(tono));
    if (c.de != paleta.cacheKey())
        c = {paleta.cacheKey(), calcular(tono, paleta)};
    return c.colores;
}

QPalette con_estados_legibles(QPalette paleta)
{
    for (const auto& [papel, fondo] :
         {std::pair(QPalette::Text, QPalette::Base), std::pair(QPalette::WindowText, QPalette::Window),
          std::pair(QPalette::ButtonText, QPalette::Button)}) {
        const QColor debajo = paleta.color(QPalette::Active, fondo);
        const QColor claro = mezclar(paleta.color(QPalette::Active, papel), debajo, PARTE_APAGADA);
        paleta.setColor(QPalette::Disabled, papel, legible(claro, paleta.color(QPalette::Active, QPalette::Button)));
    }
    for (const auto papel : {QPalette::Highlight, QPalette::HighlightedText})
        paleta.setColor(QPalette::Inactive, papel, paleta.color(QPalette::Active, papel));
    return paleta;
}

QPalette paleta_oscura()
{
    QPalette p(QColor(49, 54, 59), QColor(42, 46, 50));
    p.setColor(QPalette::Base, QColor(27, 30, 32));
    p.setColor(QPalette::AlternateBase, QColor(35, 38, 41));
    p.setColor(QPalette::Highlight, QColor(30, 110, 160));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::ToolTipBase, QColor(49, 54, 59));
    p.setColor(QPalette::ToolTipText, Qt::white);
    p.setColor(QPalette::Link, QColor(100, 180, 245));
    p.setColor(QPalette::PlaceholderText, QColor(160, 165, 170));
    return p;
}

QPalette paleta_contraste(bool oscura)
{
    const QColor letra = oscura ? Qt::white : Qt::black;
    const QColor fondo = oscura ? Qt::black : Qt::white;
    QPalette p(letra, fondo, letra, letra, mezclar(letra, fondo, 0.5), letra, fondo);
    p.setColor(QPalette::Window, fondo);
    p.setColor(QPalette::AlternateBase, fondo);
    p.setColor(QPalette::Highlight, oscura ? QColor(Qt::yellow) : QColor(0, 0, 160));
    p.setColor(QPalette::HighlightedText, fondo);
    p.setColor(QPalette::ToolTipBase, fondo);
    p.setColor(QPalette::ToolTipText, letra);
    p.setColor(QPalette::Link, letra);
    p.setColor(QPalette::PlaceholderText, letra);
    return p;
}

void con_paleta(QWidget* w, const std::function<void(QPalette& propia)>& cambio)
{
    static QPointer<Aviso> aviso;
    if (!aviso)
        aviso = new Aviso(qApp);
    aviso->cambios.removeIf([w](const auto& c) { return !c.first || c.first == w; });
    aviso->cambios.append({w, cambio});
    Aviso::aplicar(w, cambio);
}

void pintar_fondo(QWidget* campo, bool se_escribe)
{
    con_paleta(campo, [se_escribe](QPalette& p) {
        if (!se_escribe)
            p.setColor(QPalette::Base, p.color(QPalette::Active, QPalette::Button));
    });
}

void pintar_texto(QWidget* rotulo, Tono tono)
{
    con_paleta(rotulo, [tono](QPalette& p) {
        p.setColor(QPalette::WindowText, legible(colores_de(tono, p).texto, p.color(QPalette::Window)));
    });
}
