// SPDX-License-Identifier: GPL-3.0-or-later
// Setting the deed's screen up, and which of its parts are open to the user.

#include "deeds/screens/frmDJ_detalle.h"

#include "tree/registros.h"
#include "ui_frmDJ_detalle.h"
#include "widgets/ctlComunes.h"
#include "widgets/marca_largo.h"

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
    const LargoEmitido largos[] = {
        {"txtFolio", ancho_emitido("SEDD_FOLIO")},
        {"txtObs", ancho_emitido("SEDD_OBSERVACIONES")},
        {"txtNoAlcanzado_Otro", ancho_emitido("NOA_DESC")},
    };
    marcar_largos(this, largos);
    ui->nroDia->ClearText();
    llenar_combo(ui->cboDET_Estado, entradas_estado());
    ui->cboDET_Estado->setCurrentIndex(int(EstadoEscritura::paso));
    llenar_combo(ui->cboDesc_NoAlcanzado, motivos_no_alcanzado());
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
    atender(ui->tlbDetalle, &BarraHerramientas::pulsada, &frmDJ_detalle::tlbDetalle_pulsada);
    atender(ui->tlbPartes, &BarraHerramientas::pulsada, &frmDJ_detalle::tlbPartes_pulsada);
    atender(ui->tlbInm, &BarraHerramientas::pulsada, &frmDJ_detalle::tlbInm_pulsada);
    atender(ui->tlbOp, &BarraHerramientas::pulsada, &frmDJ_detalle::tlbOp_pulsada);
    ui->flxPartes->setBarra(ui->tlbPartes);
    ui->flxInm->setBarra(ui->tlbInm);
    ui->flxOp->setBarra(ui->tlbOp);
    atender(ui->flxPartes, &Grilla::elegida, [this] { ui->tlbPartes->pulsar(u"editar"_s); });
    atender(ui->flxInm, &Grilla::elegida, [this] { ui->tlbInm->pulsar(u"editar"_s); });
    atender(ui->flxOp, &Grilla::elegida, [this] { ui->tlbOp->pulsar(u"editar"_s); });
    atender(ui->cmdExaminar, &QPushButton::clicked, &frmDJ_detalle::examinar);
    atender(ui->cboAlcanzado, &QComboBox::activated, &frmDJ_detalle::cambioAlcance);
    atender(ui->cboDET_Estado, &QComboBox::currentIndexChanged, &frmDJ_detalle::cambioEstado);
    atender(ui->cboDesc_NoAlcanzado, &QComboBox::activated, [this] {
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

void frmDJ_detalle::alActivar()
{
    if (ui->txtRenglonDJ->text().isEmpty())
        return;
    cargar_partes();
    cargar_inmuebles();
    cargar_operaciones();
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

void frmDJ_detalle::habilitar_tlb(BarraHerramientas* barra, const Grilla* grilla)
{
    for (const char* clave : {"quitar", "editar"})
        barra->habilitar(QLatin1String(clave), grilla->filas() > 0 && alcanzado());
}

void frmDJ_detalle::habilitar_barras()
{
    habilitar_tlb(ui->tlbPartes, ui->flxPartes);
    habilitar_tlb(ui->tlbInm, ui->flxInm);
    habilitar_tlb(ui->tlbOp, ui->flxOp);
}

void frmDJ_detalle::enReposo()
{
    habilitar_botones_edicion(false);
    ui->fraCab->setEnabled(false);
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
    if (!preguntar(u"La escritura está incompleta, falta ingresar %1\n¿Desea completarla mas tarde?"_s.arg(falta),
                   u"Escritura incompleta"_s))
        return false;
    if (ui->flxPartes->filas() == 0 || ui->flxInm->filas() == 0)
        ui->SSTab1->setCurrentIndex(SOLAPA_PARTES);
    else if (sin_operacion)
        ui->SSTab1->setCurrentIndex(SOLAPA_OPERACIONES);
    return true;
}
