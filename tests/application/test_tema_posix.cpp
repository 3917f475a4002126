// SPDX-License-Identifier: GPL-3.0-or-later
// A desktop that asks for dark colours by its portal, before the program starts and while it runs.

#include "apoyo/apoyo.h"
#include "application/tema_escritorio_posix.h"
#include "widgets/colores.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

namespace {

constexpr int ESPERA_MS = 5000;

class Portal : public QDBusVirtualObject
{
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& m, const QDBusConnection& bus) override
    {
        const QVariant valor = m.arguments().value(0) == "org.freedesktop.appearance"_u ? QVariant(1U)
                                                                                        : QVariant(false);
        return bus.send(m.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(valor))))));
    }
};

TEST(Tema, SigueAlEscritorioPorSuPortal)
{
    if (QStandardPaths::findExecutable("dbus-daemon"_u).isEmpty()
        || qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"))
        GTEST_SKIP() << "there is no dbus-daemon, or a session of its own";
    QProcess bus;
    bus.start("dbus-daemon"_u, {"--session"_u, "--nofork"_u, "--print-address"_u});
    ASSERT_TRUE(bus.waitForReadyRead());
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readAllStandardOutput().trimmed());
    Portal portal;
    const QString nombre = "portal"_u;
    QDBusConnection del_portal = QDBusConnection::connectToBus(QDBusConnection::SessionBus, nombre);
    ASSERT_TRUE(del_portal.registerVirtualObject("/org/freedesktop/portal/desktop"_u, &portal));
    ASSERT_TRUE(del_portal.registerService("org.freedesktop.portal.Desktop"_u));
    const auto oscuro = [] { return es_oscura(QApplication::palette()); };
    ASSERT_FALSE(oscuro());
    {
        const TemaEscritorio tema(nullptr);
        EXPECT_TRUE(QTest::qWaitFor(oscuro, ESPERA_MS));
        const auto cambiar = [&](const char* espacio, const char* clave, const QVariant& valor) {
            QDBusMessage aviso = QDBusMessage::createSignal("/org/freedesktop/portal/desktop"_u,
                                                            "org.freedesktop.portal.Settings"_u, "SettingChanged"_u);
            aviso << QLatin1StringView(espacio) << QLatin1StringView(clave) << QVariant::fromValue(QDBusVariant(valor));
            EXPECT_TRUE(del_portal.send(aviso));
        };
        cambiar("org.gnome.desktop.a11y.interface", "high-contrast", true);
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::palette().color(QPalette::Window) == QColor(Qt::black); },
                                    ESPERA_MS));
        cambiar("org.gnome.desktop.a11y.interface", "high-contrast", false);
        cambiar("org.freedesktop.appearance", "color-scheme", 2U);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !oscuro(); }, ESPERA_MS));
    }
    QDBusConnection::disconnectFromBus(nombre);
    QDBusConnection::disconnectFromBus("qt_default_session_bus"_u);
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    bus.kill();
    bus.waitForFinished();
}

}  // namespace
