// SPDX-License-Identifier: GPL-3.0-or-later
// A toolbar whose buttons come from their keys.
#pragma once

#include <QStringList>
#include <QToolBar>

/// Builds a button for each key of `claves` ("-" is a separator) and reports the key that was
/// pressed, by a click, an access key or code. A button is an action whose object name is its key. As a bar takes
/// no focus, the form leaves the field that is being typed first.
class BarraHerramientas : public QToolBar
{
    Q_OBJECT
    Q_PROPERTY(QStringList claves READ claves WRITE setClaves)
    Q_PROPERTY(bool secundaria READ secundaria WRITE setSecundaria)

public:
    explicit BarraHerramientas(QWidget* padre = nullptr);

    [[nodiscard]] QStringList claves() const { return claves_; }
    void setClaves(const QStringList& claves);
    /// A small bar beside a grid: the captions stand beside the icons, without access keys.
    [[nodiscard]] bool secundaria() const { return secundaria_; }
    void setSecundaria(bool si);

    [[nodiscard]] QAction* boton(const QString& clave) const;
    void habilitar(const QString& clave, bool si);
    [[nodiscard]] bool habilitada(const QString& clave) const;
    /// Presses a button by code; nothing happens when it is disabled.
    void pulsar(const QString& clave);
    /// Presses the first of these buttons that the bar has.
    void pulsarPrimera(const QStringList& claves);
    /// The hint of a button.
    void ayuda(const QString& clave, const QString& texto);

signals:
    void pulsada(const QString& clave);

private:
    void accionar(const QString& clave);

    QStringList claves_;
    bool secundaria_ = false;
};

/// Makes the program's pictures known.
void iniciar_recursos();
