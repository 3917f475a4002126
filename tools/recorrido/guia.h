// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the guided month: a line a step, pictures, and the end at the first surprise.
#pragma once

#include "recorrido/imagenes.h"

#include <QString>
#include <QWidget>

#include <functional>

class Guia
{
public:
    Guia(QWidget* principal, const QString& carpeta, const QString& imagenes = {})
        : principal_(principal), carpeta_(carpeta), imagenes_(imagenes, carpeta)
    {
    }

    /// Runs a step and prints its line; what it throws gets the step's name and goes on.
    void paso(const QString& titulo, const std::function<void()>& accion);
    /// Leaves a picture of the main window, and the manual's of this moment.
    void foto(const QString& nombre);
    /// Leaves a picture of another window.
    void foto(QWidget* ventana, const QString& nombre);

    /// From now on the windows in view are looked over at each picture.
    void revisar() { revisa_ = true; }
    /// What that found, once each.
    [[nodiscard]] const QStringList& faltas() const { return faltas_; }

    [[nodiscard]] QString carpeta() const { return carpeta_; }
    [[nodiscard]] int pasos() const { return pasos_; }
    [[nodiscard]] int fotos() const { return fotos_; }
    /// The manual's pictures for which no moment came.
    [[nodiscard]] QStringList imagenesQueFaltan() const { return imagenes_.faltan(); }

private:
    QWidget* principal_;
    QString carpeta_;
    ImagenesManual imagenes_;
    int pasos_ = 0;
    int fotos_ = 0;
    bool revisa_ = false;
    QStringList faltas_;
};
