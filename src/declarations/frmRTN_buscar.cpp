#include "declarations/frmRTN_buscar.h"

#include "declarations/agente.h"
#include "declarations/frmRTN_editar.h"
#include "ui_frmRTN_buscar.h"

frmRTN_buscar::frmRTN_buscar() : ui(std::make_unique<Ui::frmRTN_buscar>())
{
    ui->setupUi(this);
    preparar_grilla(ui->flxRTN, {QStringLiteral("NºReg.Not."), QStringLiteral("Titular"), QStringLiteral("CUIT")}, {1200, 4000, 1200});
    connect(ui->tlbRTN, &BarraHerramientas::pulsada, this, &frmRTN_buscar::tlbRTN_pulsada);
    connect(ui->flxRTN, &Grilla::elegida, this, [this] { ui->tlbRTN->pulsar(QStringLiteral("modificar")); });
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
        const QString titulo = QStringLiteral("Borrar agente de retención");
        if (!preguntar(QStringLiteral("¿Está seguro que desea eliminar el agente de retención seleccionado?"), titulo))
            return;
        if (borrar_agente(nro) == 0)
            avisar(QStringLiteral("No se pudo borrar el agente de retención seleccionado"), titulo);
        cargar_padron();
        return;
    }
    auto* editor = cargar<frmRTN_editar>();
    editor->Inicializar(clave == u"alta" ? Modo::nuevo : Modo::modificar, nro);
    abrir(editor);
}
