// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/tema_escritorio_posix.h"

#include "widgets/colores.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

namespace {

// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html
const QString SERVICIO = u"org.freedesktop.portal.Desktop"_s;
const QString OBJETO = u"/org/freedesktop/portal/desktop"_s;
const QString INTERFAZ = u"org.freedesktop.portal.Settings"_s;
const QString ASPECTO = u"org.freedesktop.appearance"_s;
const QString ESQUEMA = u"color-scheme"_s;
constexpr int PREFIERE_OSCURO = 1;
const QString ACCESO = u"org.gnome.desktop.a11y.interface"_s;
const QString CONTRASTE = u"high-contrast"_s;

}  // namespace

TemaEscritorio::TemaEscritorio(QObject* padre) : QObject(padre), yaOscuro_(es_oscura(QApplication::palette()))
{
    // Else the bus would be started for it.
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"))
        return;
    QDBusConnection::sessionBus().connect(SERVICIO, OBJETO, INTERFAZ, u"SettingChanged"_s, this,
                                          SLOT(avisado(QDBusMessage)));
    pedir(ASPECTO, ESQUEMA);
    pedir(ACCESO, CONTRASTE);
}

void TemaEscritorio::pedir(const QString& espacio, const QString& clave)
{
    QDBusMessage pedido = QDBusMessage::createMethodCall(SERVICIO, OBJETO, INTERFAZ, u"Read"_s);
    pedido << espacio << clave;
    auto* espera = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(pedido), this);
    connect(espera, &QDBusPendingCallWatcher::finished, this, [=, this] {
        const QDBusPendingReply<QDBusVariant> respuesta = *espera;
        espera->deleteLater();
        // The answer is a variant within a variant.
        if (!respuesta.isError())
            cambio(espacio, clave, respuesta.value().variant().value<QDBusVariant>().variant());
    });
}

void TemaEscritorio::avisado(const QDBusMessage& aviso)
{
    const QVariantList partes = aviso.arguments();
    if (partes.size() == 3)
        cambio(partes[0].toString(), partes[1].toString(), partes[2].value<QDBusVariant>().variant());
}

void TemaEscritorio::cambio(const QString& espacio, const QString& clave, const QVariant& valor)
{
    if (espacio == ASPECTO && clave == ESQUEMA)
        oscuro_ = valor.toInt() == PREFIERE_OSCURO;
    else if (espacio == ACCESO && clave == CONTRASTE)
        contraste_ = valor.toBool();
    else
        return;
    vestir();
}

void TemaEscritorio::vestir()
{
    const bool hace_falta = contraste_ || (oscuro_ && !yaOscuro_);
    if (hace_falta)
        QApplication::setPalette(contraste_ ? paleta_contraste(oscuro_ || yaOscuro_) : paleta_oscura());
    else if (vestido_)
        QApplication::setPalette(QPalette());
    vestido_ = hace_falta;
}
