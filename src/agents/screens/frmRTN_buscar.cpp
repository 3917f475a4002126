// SPDX-License-Identifier: GPL-3.0-or-later

#include "agents/screens/frmRTN_buscar.h"

#include "agents/agente.h"
#include "agents/screens/frmRTN_editar.h"
#include "ui_frmRTN_buscar.h"

using namespace Qt::StringLiterals;

frmRTN_buscar::frmRTN_buscar() : ui(std::make_unique<Ui::frmRTN_buscar>())
{
    ui->setupUi(this);
    preparar_grilla(ui->flxRTN, {u"NºReg.Not."_s, u"Titular"_s, u"CUIT"_s}, {1200, 4000, 1200});
    atender(ui->tlbRTN, &BarraHerramientas::pulsada, &frmRTN_buscar::tlbRTN_pulsada);
    atender(ui->flxRTN, &Grilla::elegida, [this] { ui->tlbRTN->pulsar(u"modificar"_s); });
    cargar_padron();
}

frmRTN_buscar::~frmRTN_buscar() = default;

void frmRTN_buscar::cargar_padron()
{
    ui->flxRTN->llenar([this] { leer_padron([this](const QStringList& fila) { ui->flxRTN->agregar(fila); }); });
    for (const char* clave : {"modificar", "borrar"})
        ui->tlbRTN->habilitar(QLatin1String(clave), ui->flxRTN->filas() > 0);
}

void frmRTN_buscar::tlbRTN_pulsada(const QString& clave)
{
    if (clave == u"salir") {
        descargar();
        return;
    }
    const int nro = ui->flxRTN->clave().toInt();
    if (clave == u"borrar") {
        const QString titulo = u"Borrar agente de retención"_s;
        if (!preguntar(u"¿Está seguro que desea eliminar el agente de retención seleccionado?"_s, titulo))
            return;
        if (borrar_agente(nro) == 0)
            avisar(u"No se pudo borrar el agente de retención seleccionado"_s, titulo);
        cargar_padron();
        return;
    }
    auto* editor = cargar<frmRTN_editar>();
    editor->Inicializar(clave == u"alta" ? Modo::nuevo : Modo::modificar, nro);
    abrir(editor);
}
