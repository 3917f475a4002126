// SPDX-License-Identifier: GPL-3.0-or-later

#include "deeds/screens/frmDJ_detalle.h"

#include "widgets/ctlComunes.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"
#include "deeds/escritura.h"
#include "deeds/hijos_escritura.h"
#include "tree/modABM_dj.h"
#include "widgets/mensajes.h"
#include "ui_frmDJ_detalle.h"

#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace {

constexpr int SOLAPA_PARTES = 0;
constexpr int SOLAPA_OPERACIONES = 1;

Entradas entradas_estado()
{
    Entradas lista;
    int i = 0;
    for (const QString& texto : lista_estados())
        lista.push_back({texto, i++});
    return lista;
}

}  // namespace

frmDJ_detalle::frmDJ_detalle() : ui(std::make_unique<Ui::frmDJ_detalle>())
{
    ui->setupUi(this);
    ui->nroDia->ClearText();
    llenar_combo(ui->cboDET_Estado, entradas_estado());
    ui->cboDET_Estado->setCurrentIndex(int(EstadoEscritura::paso));
    llenar_combo(
        ui->cboDesc_NoAlcanzado,
        leer_entradas(u"select * from SEL_TB_NO_ALCANZADOS_DESC order by SNAD_ORDEN"_s, "SNAD_DESCRIPCION", "SNAD_ID"));
    ui->cboAlcanzado->setCurrentIndex(0);
    preparar_grilla(ui->flxPartes, {u"Id.Parte"_s, u"TipoDoc"_s, u"NroDoc"_s, u"Denominación"_s, u"Nacionalidad"_s},
                    {800, 1200, 1200, 4000, 3000});
    preparar_grilla(ui->flxOp, {u"NºOp."_s, u"Cod.Op."_s, u"Descripción"_s, u"Base Imp."_s, u"Impuesto"_s},
                    {800, 800, 4300, 1200, 1000});
    preparar_grilla(ui->flxInm, {u"NºInm"_s, u"Partida"_s, u"Ubicación "_s, u"Val.Fiscal"_s}, {800, 800, 3000, 3000});
    habilitarMotivo();
    conectar();
    habilitar_solapas(false);
    habilitar_botones_edicion(true);
}

frmDJ_detalle::~frmDJ_detalle() = default;

void frmDJ_detalle::conectar()
{
    for (QLineEdit* texto : {ui->txtNroEscritura, ui->txtFolio})
        solo_digitos_en(texto);
    connect(ui->tlbDetalle, &BarraHerramientas::pulsada, this, &frmDJ_detalle::tlbDetalle_pulsada);
    connect(ui->tlbPartes, &BarraHerramientas::pulsada, this, &frmDJ_detalle::tlbPartes_pulsada);
    connect(ui->tlbInm, &BarraHerramientas::pulsada, this, &frmDJ_detalle::tlbInm_pulsada);
    connect(ui->tlbOp, &BarraHerramientas::pulsada, this, &frmDJ_detalle::tlbOp_pulsada);
    connect(ui->flxPartes, &Grilla::elegida, this, [this] { ui->tlbPartes->pulsar(u"editar"_s); });
    connect(ui->flxInm, &Grilla::elegida, this, [this] { ui->tlbInm->pulsar(u"editar"_s); });
    connect(ui->flxOp, &Grilla::elegida, this, [this] { ui->tlbOp->pulsar(u"editar"_s); });
    connect(ui->cmdExaminar, &QPushButton::clicked, this, &frmDJ_detalle::examinar);
    connect(ui->cboAlcanzado, &QComboBox::activated, this, &frmDJ_detalle::cambioAlcance);
    connect(ui->cboDET_Estado, &QComboBox::currentIndexChanged, this, &frmDJ_detalle::cambioEstado);
    connect(ui->cboDesc_NoAlcanzado, &QComboBox::activated, this, [this] {
        habilitarMotivo();
        if (ui->txtNoAlcanzado_Otro->isEnabled())
            ui->txtNoAlcanzado_Otro->setFocus();
    });
}

bool frmDJ_detalle::alcanzado() const
{
    return ui->cboAlcanzado->currentIndex() == 0;
}

bool frmDJ_detalle::hayHijos() const
{
    return ui->flxPartes->filas() > 0 || ui->flxInm->filas() > 0 || ui->flxOp->filas() > 0;
}

RenglonDJ frmDJ_detalle::renglon() const
{
    return {ui->txtDJ_nro->text(), ui->txtRenglonDJ->text()};
}

void frmDJ_detalle::Inicializar(Modo operacion, const DatosDJ& dj, const QString& renglon)
{
    Operacion = operacion;
    dj_ = dj;
    ui->txtDJ_nro->setText(dj.nro);
    ui->txtPosicion->setText(dj.anio + u'/' + con_ceros(dj.mes, 2));
    if (operacion == Modo::nuevo) {
        setWindowTitle(u"Agregar instrumento"_s);
        return;
    }
    setWindowTitle(u"Modificar instrumento"_s);
    ui->txtRenglonDJ->setText(renglon);
    cargar_renglon();
    habilitar_solapas(true);
}

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

void frmDJ_detalle::alActivar()
{
    if (ui->txtRenglonDJ->text().isEmpty())
        return;
    cargar_partes();
    cargar_inmuebles();
    cargar_operaciones();
    habilitar_botones_edicion(ui->tlbDetalle->habilitada(u"aceptar"_s));
}

void frmDJ_detalle::habilitar_solapas(bool si)
{
    const bool ok = si && alcanzado();
    const int actual = ui->SSTab1->currentIndex();
    ui->SSTab1->setTabEnabled(SOLAPA_PARTES, ok);
    ui->SSTab1->setTabEnabled(SOLAPA_OPERACIONES, ok);
    ui->SSTab1->setCurrentIndex(actual);
    habilitarMarcos(ok);
}

void frmDJ_detalle::habilitarMarcos(bool si)
{
    for (QWidget* marco : {ui->fraPartes, ui->fraInmuebles, ui->fraOperaciones})
        marco->setEnabled(si);
}

void frmDJ_detalle::habilitar_botones_edicion(bool si)
{
    for (const char* clave : {"aceptar", "cancelar"})
        ui->tlbDetalle->habilitar(QLatin1String(clave), si);
    for (const char* clave : {"salir", "editar"})
        ui->tlbDetalle->habilitar(QLatin1String(clave), !si);
    ui->tlbDetalle->habilitar(u"recibo"_s, !si && alcanzado() && ui->flxOp->filas() > 0);
}

void frmDJ_detalle::enReposo()
{
    habilitar_botones_edicion(false);
    ui->fraCab->setEnabled(false);
}

void frmDJ_detalle::habilitarMotivo()
{
    const bool no = !alcanzado();
    ui->cboDesc_NoAlcanzado->setEnabled(no);
    ui->txtNoAlcanzado_Otro->setEnabled(no && ui->cboDesc_NoAlcanzado->currentText().toUpper() == u"OTRO");
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
            windowTitle() + u" - Escritura No Alcanzada"_s);
        if (si)
            borrar_hijos_escritura();
        else
            ui->cboAlcanzado->setCurrentIndex(0);
    }
    habilitarMotivo();
    cambioEstado();
    habilitar_solapas(!ui->txtRenglonDJ->text().isEmpty());
    habilitar_tlb(ui->tlbPartes, ui->flxPartes);
    habilitar_tlb(ui->tlbInm, ui->flxInm);
    habilitar_tlb(ui->tlbOp, ui->flxOp);
}

void frmDJ_detalle::examinar()
{
    QString filtro = u"Archivos PDF (*.pdf)"_s;
    const QString archivo = QFileDialog::getOpenFileName(
        this, u"Testimonio"_s, ui->txtTestimonio->text(),
        u"Documentos de Word (*.doc);;Archivos de texto enriquecido (*.rtf);;Archivos PDF (*.pdf)"_s, &filtro);
    if (archivo.isEmpty())
        return;
    ui->txtTestimonio->setText(archivo);
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
    c.nro = ui->txtNroEscritura->text();
    c.folio = ui->txtFolio->text();
    c.dia.escribirTexto(ui->nroDia->toString());
    c.estado = ui->cboDET_Estado->currentIndex();
    c.alcanzado = ui->cboAlcanzado->currentIndex();
    c.motivo = item_data(ui->cboDesc_NoAlcanzado);
    c.motivoTexto = ui->cboDesc_NoAlcanzado->currentText();
    c.motivoOtro = ui->txtNoAlcanzado_Otro->text();
    c.motivoOtroActivo = ui->txtNoAlcanzado_Otro->isEnabled();
    c.testimonio = ui->txtTestimonio->text();
    c.observaciones = ui->txtObs->text();
    c.totalImpuesto.escribirTexto(ui->nroTotalImpuesto->toString());
    return c;
}

void frmDJ_detalle::aceptar()
{
    DialogoPantalla dialogo(this);
    ControlesEscritura c = leer_controles();
    const ResultadoEscritura r = validar_escritura(c, dialogo);
    ui->txtNroEscritura->setText(c.nro);
    ui->txtFolio->setText(c.folio);
    ui->txtObs->setText(c.observaciones);
    ui->txtNoAlcanzado_Otro->setText(c.motivoOtro);
    ui->txtTestimonio->setText(c.testimonio);
    ui->cboDET_Estado->setCurrentIndex(c.estado);
    enfocar(r.foco);
    if (!r.vale)
        return;
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
    habilitar_tlb(ui->tlbPartes, ui->flxPartes);
    habilitar_tlb(ui->tlbInm, ui->flxInm);
    habilitar_tlb(ui->tlbOp, ui->flxOp);
}

bool frmDJ_detalle::modificar_renglon(const ControlesEscritura& c)
{
    Transaccion t(cnRtn);
    const int filas = actualizar_escritura(c);
    if (c.anulada())
        borrar_hijos_escritura();
    if (filas == 0) {
        avisar(u"No se pudo modificar el renglón"_s, windowTitle());
    } else {
        habilitar_solapas(true);
        enReposo();
    }
    const bool paso = !c.anulada() && alcanzado();
    habilitarMarcos(paso);
    t.confirmar();
    return filas != 0;
}

void frmDJ_detalle::anular_desanular_escritura(const QString& accion, const QString& estado)
{
    const bool desanular = accion == u"DESANULAR";
    Transaccion t(cnRtn);
    if (accion == u"ANULAR") {
        anular_escritura(renglon(), estado);
        borrar_hijos_escritura();
        ui->txtTestimonio->clear();
    } else if (desanular) {
        desanular_escritura(renglon(), ui->nroTotalImpuesto->toSQL());
    }
    habilitar_solapas(true);
    enReposo();
    habilitarMarcos(desanular);
    t.confirmar();
}

void frmDJ_detalle::tlbDetalle_pulsada(const QString& clave)
{
    if (clave == u"salir") {
        descargar();
    } else if (clave == u"aceptar") {
        aceptar();
    } else if (clave == u"cancelar") {
        if (Operacion == Modo::modificar)
            Inicializar(Operacion, dj_, ui->txtRenglonDJ->text());
        enReposo();
    } else if (clave == u"recibo") {
        emitir_recibo();
    } else if (clave == u"editar") {
        if (!ui->txtRenglonDJ->text().isEmpty())
            Inicializar(Operacion, dj_, ui->txtRenglonDJ->text());
        habilitar_botones_edicion(true);
        ui->SSTab1->setCurrentIndex(SOLAPA_PARTES);
        ui->fraCab->setEnabled(true);
        ui->txtNroEscritura->setFocus();
    }
}

bool frmDJ_detalle::consultarDescarga()
{
    if (ui->cboDET_Estado->currentIndex() != int(EstadoEscritura::paso) || !alcanzado()
        || ui->txtRenglonDJ->text().isEmpty())
        return true;
    const bool sin_operacion = ui->flxOp->filas() == 0;
    const bool sin_testimonio = ui->txtTestimonio->text().isEmpty() && requiere_testimonio(leer_controles());
    if (!sin_operacion && !sin_testimonio)
        return true;
    const QString falta = (sin_operacion ? u"la operacion del instrumento"_s : QString())
                          + (sin_operacion && sin_testimonio ? u" y "_s : QString())
                          + (sin_testimonio ? u"el archivo del testimonio"_s : QString());
    if (!preguntar(u"La escritura está incompleta, falta ingresar "_s + falta + u"\n¿Desea completarla mas tarde?"_s,
                   u"Escritura incompleta"_s))
        return false;
    if (ui->flxPartes->filas() == 0 || ui->flxInm->filas() == 0)
        ui->SSTab1->setCurrentIndex(SOLAPA_PARTES);
    else if (sin_operacion)
        ui->SSTab1->setCurrentIndex(SOLAPA_OPERACIONES);
    return true;
}
