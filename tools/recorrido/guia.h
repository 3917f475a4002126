// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the guided month: a line a step, pictures, and the end at the first surprise.
#pragma once

#include <QString>
#include <QWidget>

#include <functional>

class Guia
{
public:
    Guia(QWidget* principal, const QString& carpeta) : principal_(principal), carpeta_(carpeta) {}

    /// Runs a step and prints its line; what it throws gets the step's name and goes on.
    void paso(const QString& titulo, const std::function<void()>& accion);
    /// Leaves a picture of the main window.
    void foto(const QString& nombre);
    /// Leaves a picture of another window.
    void foto(QWidget* ventana, const QString& nombre);

    [[nodiscard]] QString carpeta() const { return carpeta_; }
    [[nodiscard]] int pasos() const { return pasos_; }
    [[nodiscard]] int fotos() const { return fotos_; }

private:
    QWidget* principal_;
    QString carpeta_;
    int pasos_ = 0;
    int fotos_ = 0;
};
