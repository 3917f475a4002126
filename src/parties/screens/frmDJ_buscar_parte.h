// SPDX-License-Identifier: GPL-3.0-or-later
// Finds a person who stood in an earlier deed, and copies its data into the party's screen.
#pragma once

#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmDJ_buscar_parte;
}
struct Parte;

/// What takes the data of a party that was found.
class ReceptorParte
{
public:
    virtual ~ReceptorParte() = default;
    virtual void copiarParte(const Parte& parte) = 0;
};

class frmDJ_buscar_parte : public Formulario
{
    Q_OBJECT

public:
    frmDJ_buscar_parte();
    ~frmDJ_buscar_parte() override;

    /// The deed from which the search is opened.
    void fijarRenglon(const QString& dj, const QString& renglon);

private:
    void buscar_partes(bool limpiar);
    void seleccionar();
    void habilitarTextos();

    std::unique_ptr<Ui::frmDJ_buscar_parte> ui;
    QString dj_;
    QString renglon_;
};
