// SPDX-License-Identifier: GPL-3.0-or-later
// A small window with a bar over a work that takes long.
#pragma once

#include <QElapsedTimer>
#include <QPointer>

#include <memory>

class QDialog;
class QLabel;
class QProgressBar;
class QWidget;

/// The pointer tells of a work after 0.3 s; the window comes up once it takes longer than half a second. Both go with the
/// object.
class VentanaProgreso
{
public:
    /// One that can be cancelled has a button for it, and lets the program live; Escape is that button.
    explicit VentanaProgreso(QWidget* padre, bool cancelable = false);
    ~VentanaProgreso();
    VentanaProgreso(const VentanaProgreso&) = delete;
    VentanaProgreso& operator=(const VentanaProgreso&) = delete;

    /// Shows what is done and how far it is (without a total, that it goes on); may be called as often as one likes. While the window stands, windows are
    /// painted, and what the user types or clicks elsewhere waits. False once the user cancelled.
    bool avanzar(const QString& que, qint64 hecho, qint64 total);
    [[nodiscard]] bool cancelable() const { return cancelable_; }
    /// Whether one stands on the screen.
    [[nodiscard]] static bool hay() { return abiertas_ > 0; }

private:
    void abrir();

    static int abiertas_;

    QPointer<QWidget> padre_;
    bool cancelable_;
    bool conPuntero_ = false;
    bool cancelado_ = false;
    QElapsedTimer desde_;
    QElapsedTimer pintada_;
    std::unique_ptr<QDialog> ventana_;
    QLabel* rotulo_ = nullptr;
    QProgressBar* barra_ = nullptr;
};
