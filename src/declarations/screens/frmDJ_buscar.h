// SPDX-License-Identifier: GPL-3.0-or-later
// The sworn returns: their list, and what is done with one.
#pragma once

#include "widgets/formulario.h"

#include <memory>

namespace Ui {
class frmDJ_buscar;
}

class frmDJ_buscar : public Formulario
{
    Q_OBJECT

public:
    frmDJ_buscar();
    ~frmDJ_buscar() override;

    void alActivar() override;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void habilitar_botones();
    void cargar_agentes();
    void listar_dj();
    void tlbDJ_pulsada(const QString& clave);
    void abrirEditor(Modo operacion, const QString& nro);
    void rectificar();
    void emitir();
    void emitirCon(Dialogo& dialogo);
    bool aceptarMes();
    void aceptarAnio();

    std::unique_ptr<Ui::frmDJ_buscar> ui;
    int mes_ = 0;  ///< of the last filter that was accepted
};
