// SPDX-License-Identifier: GPL-3.0-or-later
// Dark colours and high contrast where the desktop asks for them by its portal, and the toolkit does not listen.
#pragma once

#include <QObject>
#include <QVariant>

class QDBusMessage;

class TemaEscritorio : public QObject
{
    Q_OBJECT

public:
    /// Asks without waiting, and follows every change; does nothing where there is no session bus.
    explicit TemaEscritorio(QObject* padre);

private slots:
    void avisado(const QDBusMessage& aviso);

private:
    void cambio(const QString& espacio, const QString& clave, const QVariant& valor);
    void pedir(const QString& espacio, const QString& clave);
    void vestir();

    bool yaOscuro_;  ///< the toolkit follows by itself
    bool oscuro_ = false;
    bool contraste_ = false;
    bool vestido_ = false;
};
