// SPDX-License-Identifier: GPL-3.0-or-later
// The deed's own fields: reading and showing them, what hangs on its state and its reach, storing it.

#include "deeds/screens/frmDJ_detalle.h"

#include "core/modGlobales.h"
#include "core/preferencias.h"
#include "tree/modABM_dj.h"
#include "ui_frmDJ_detalle.h"
#include "widgets/ctlComunes.h"
#include "widgets/enlaces.h"
#include "widgets/mensajes.h"

#include <QDir>
#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace {

// The texts that the checks trim, and that the screen shows again as they left them.
constexpr Enlace<ControlesEscritura> RECORTADOS[] = {
    {"txtNroEscritura", &ControlesEscritura::nro},      {"txtFolio", &ControlesEscritura::folio},
    {"txtObs", &ControlesEscritura::observaciones},     {"txtNoAlcanzado_Otro", &ControlesEscritura::motivoOtro},
    {"txtTestimonio", &ControlesEscritura::testimonio},
};

}  // namespace

void frmDJ_detalle::cargar_renglon()
{
    ui->nroTotalImpuesto->setValue(0);
    const auto e = cargar_escritura(ui->txtDJ_nro->text(), ui->txtRenglonDJ->text().toInt());
    if (!e)
        return;
    ui->txtNroEscritura->setText(QString::number(e->nro));
    ui->txtFolio->setText(QString::number(e->folio));
    ui->nroDia->setValue(e->dia);
    ui->txtObs->setText(e->observaciones);
    for (int i = 0; i < ui->cboDET_Estado->count(); ++i)
        if (letra_estado(i) == e->estado)
            ui->cboDET_Estado->setCurrentIndex(i);
    ui->cboAlcanzado->setCurrentIndex(e->alcanzado == u"S" ? 0 : 1);
    if (e->motivo)
        seleccionar_item(ui->cboDesc_NoAlcanzado, *e->motivo);
    else
        ui->cboDesc_NoAlcanzado->setCurrentIndex(-1);
    ui->txtNoAlcanzado_Otro->setText(e->motivoOtro);
    habilitarMotivo();
    ui->txtTestimonio->setText(e->testimonio);
    cargar_operaciones();
}

void frmDJ_detalle::habilitarMotivo()
{
    const bool no = !alcanzado();
    ui->cboDesc_NoAlcanzado->setEnabled(no);
    ui->txtNoAlcanzado_Otro->setEnabled(no && es_otro_motivo(ui->cboDesc_NoAlcanzado->currentText()));
}

void frmDJ_detalle::cambioEstado()
{
    const bool paso = ui->cboDET_Estado->currentIndex() == int(EstadoEscritura::paso);
    if (!paso)
        ui->txtTestimonio->clear();
    ui->txtTestimonio->setEnabled(paso);
    ui->cmdExaminar->setEnabled(paso);
}

void frmDJ_detalle::cambioAlcance()
{
    if (!alcanzado() && hayHijos()) {
        const bool si = preguntar(
            u"La acción de marcar una escritura como NO ALCANZADA borrará las operaciones, partes e inmuebles asociados a la misma.\n"
            u"Esto se debe a que el sistema solo contiene las operaciones alcanzadas.\n"
            u"Una escritura No Alcanzada no puede contener operaciones asociadas.\n\n"
            u"¿Esta seguro de continuar con la acción?"_s,
            u"%1 - Escritura No Alcanzada"_s.arg(windowTitle()));
        if (si)
            enUnTrabajo([this] { borrar_hijos_escritura(); });
        else
            ui->cboAlcanzado->setCurrentIndex(0);
    }
    habilitarMotivo();
    cambioEstado();
    habilitar_solapas(!ui->txtRenglonDJ->text().isEmpty());
    habilitar_barras();
}

void frmDJ_detalle::examinar()
{
    QString filtro = u"Archivos PDF (*.pdf)"_s;
    const QString archivo = QFileDialog::getOpenFileName(
        this, u"Testimonio"_s,
        ui->txtTestimonio->text().isEmpty() ? ultima_carpeta(u"testimonio"_s) : ui->txtTestimonio->text(),
        u"Documentos de Word (*.doc);;Archivos de texto enriquecido (*.rtf);;Archivos PDF (*.pdf)"_s, &filtro);
    if (archivo.isEmpty())
        return;
    recordar_carpeta(u"testimonio"_s, archivo);
    ui->txtTestimonio->setText(QDir::toNativeSeparators(archivo));
    ui->txtTestimonio->end(false);
}

ControlesEscritura frmDJ_detalle::leer_controles() const
{
    ControlesEscritura c;
    c.operacion = Operacion;
    c.titulo = windowTitle();
    c.dj = ui->txtDJ_nro->text();
    c.renglon = ui->txtRenglonDJ->text();
    c.anio = ui->txtPosicion->text().left(4).toInt();
    c.mes = ui->txtPosicion->text().mid(5).toInt();
    leer_textos(this, RECORTADOS, c);
    c.dia.copiarTexto(ui->nroDia->modelo());
    c.estado = ui->cboDET_Estado->currentIndex();
    c.alcanzado = ui->cboAlcanzado->currentIndex();
    c.motivo = elegido(ui->cboDesc_NoAlcanzado);
    c.motivoTexto = ui->cboDesc_NoAlcanzado->currentText();
    c.motivoOtroActivo = ui->txtNoAlcanzado_Otro->isEnabled();
    c.totalImpuesto.copiarTexto(ui->nroTotalImpuesto->modelo());
    return c;
}

void frmDJ_detalle::aceptar()
{
    DialogoPantalla dialogo(this);
    ControlesEscritura c = leer_controles();
    const ResultadoEscritura r = validar_escritura(c, dialogo);
    mostrar_textos(this, RECORTADOS, c);
    ui->cboDET_Estado->setCurrentIndex(c.estado);
    enfocar(r.foco);
    if (!r.vale)
        return;
    if (Operacion == Modo::modificar && c.observaciones.contains(u'\'')) {
        mostrarFalla({.mensaje = u"Las observaciones de una escritura guardada no admiten apóstrofos"_s,
                      .control = u"txtObs"_s,
                      .titulo = {}});
        return;
    }
    if (Operacion == Modo::nuevo)
        agregar_renglon(c);
    else
        modificar_renglon(c);
}

void frmDJ_detalle::agregar_renglon(const ControlesEscritura& c)
{
    DialogoPantalla dialogo(this);
    Escritura e = escritura_nueva(c);
    if (!alta_detalle_dj(e, true, dialogo))
        return;
    ui->txtRenglonDJ->setText(QString::number(e.id));
    Operacion = Modo::modificar;
    enReposo();
    habilitar_solapas(c.estado == int(EstadoEscritura::paso));
    habilitar_barras();
}

void frmDJ_detalle::modificar_renglon(const ControlesEscritura& c)
{
    int filas = 0;
    enUnTrabajo([&] {
        filas = actualizar_escritura(c);
        if (c.anulada())
            borrar_hijos_escritura();
    });
    if (filas == 0) {
        avisar(u"No se pudo modificar el renglón"_s, windowTitle());
    } else {
        habilitar_solapas(true);
        enReposo();
    }
    habilitarMarcos(!c.anulada() && alcanzado());
}

// A deed and what hangs from it change together. After a failure the lists show again what is stored.
void frmDJ_detalle::enUnTrabajo(const std::function<void()>& accion)
{
    try {
        Transaccion t(cnRtn);
        accion();
        t.confirmar();
    } catch (const ErrorAlmacen& e) {
        if (!e.perdido()) {
            cargar_operaciones();
            cargar_partes();
            cargar_inmuebles();
        }
        throw;
    }
}

void frmDJ_detalle::anular_desanular_escritura(const QString& accion, const QString& estado)
{
    const bool desanular = accion == u"DESANULAR";
    enUnTrabajo([&] {
        if (accion == u"ANULAR") {
            anular_escritura(renglon(), estado);
            borrar_hijos_escritura();
        } else if (desanular) {
            desanular_escritura(renglon(), ui->nroTotalImpuesto->toSQL());
        }
    });
    if (accion == u"ANULAR")
        ui->txtTestimonio->clear();
    habilitar_solapas(true);
    enReposo();
    habilitarMarcos(desanular);
}
