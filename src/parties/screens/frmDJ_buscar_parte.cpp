// SPDX-License-Identifier: GPL-3.0-or-later

#include "parties/screens/frmDJ_buscar_parte.h"

#include "parties/buscar_parte.h"
#include "parties/listas_parte.h"
#include "ui_frmDJ_buscar_parte.h"
#include "widgets/ctlComunes.h"
#include "widgets/mensajes.h"

using namespace Qt::StringLiterals;

namespace {

void llenar_filtro(QComboBox* combo, const Entradas& leidas)
{
    llenar_combo(combo, con_sin_filtro(leidas));
    combo->setCurrentIndex(0);
}

}  // namespace

frmDJ_buscar_parte::frmDJ_buscar_parte() : ui(std::make_unique<Ui::frmDJ_buscar_parte>())
{
    ui->setupUi(this);
    preparar_grilla(ui->flx, {u"tipodoc_id"_s, u"Tipo Doc"_s, u"Nro Doc"_s, u"Razon Social"_s},
                    {1000, 1000, 1500, 2500});
    ui->flx->setColumnHidden(0, true);
    llenar_filtro(ui->cboTipoSociedad, tipos_sociedad());
    llenar_filtro(ui->cboTipoDoc, tipos_documento());
    habilitarTextos();
    for (QLineEdit* texto : {ui->txtRazonSocial, ui->txtNroDoc}) {
        a_mayusculas(texto);
        atender(texto, &QLineEdit::returnPressed, [this] { buscar_partes(true); });
    }
    for (QComboBox* combo : {ui->cboCriterioRazonSocial, ui->cboTipoDoc})
        atender(combo, &QComboBox::currentIndexChanged, &frmDJ_buscar_parte::habilitarTextos);
    atender(ui->flx, &Grilla::elegida, &frmDJ_buscar_parte::seleccionar);
    atender(ui->tlb, &BarraHerramientas::pulsada, [this](const QString& clave) {
        if (clave == u"buscar")
            buscar_partes(true);
        else if (clave == u"seleccionar")
            seleccionar();
        else
            descargar();
    });
}

frmDJ_buscar_parte::~frmDJ_buscar_parte() = default;

void frmDJ_buscar_parte::fijarRenglon(const QString& dj, const QString& renglon)
{
    dj_ = dj;
    renglon_ = renglon;
}

void frmDJ_buscar_parte::habilitarTextos()
{
    habilitar_texto(ui->txtRazonSocial, ui->cboCriterioRazonSocial->currentIndex() > 0);
    habilitar_texto(ui->txtNroDoc, ui->cboTipoDoc->currentIndex() > 0);
}

void frmDJ_buscar_parte::buscar_partes(bool limpiar)
{
    if (limpiar)
        ui->flx->vaciar();
    FiltroPartes filtro{.dj = dj_,
                        .renglon = renglon_,
                        .tipoSociedad = filtro_elegido(ui->cboTipoSociedad),
                        .criterio = Criterio(ui->cboCriterioRazonSocial->currentIndex()),
                        .razonSocial = ui->txtRazonSocial->text(),
                        .tipoDoc = filtro_elegido(ui->cboTipoDoc),
                        .tipoDocTexto = ui->cboTipoDoc->currentText(),
                        .nroDoc = ui->txtNroDoc->text()};
    DialogoPantalla dialogo(this);
    const QString sql = consulta_busqueda_partes(filtro, windowTitle(), dialogo);
    ui->txtRazonSocial->setText(filtro.razonSocial);
    ui->flx->llenar(
        [&] { leer_partes_halladas(sql, [this](std::span<const std::string_view> fila) { ui->flx->agregar(fila); }); });
    ui->lblEncontrados->setText(u"Registros encontrados: %1"_s.arg(ui->flx->filas()));
}

// The party is not stored here: the screen that takes it still checks it.
void frmDJ_buscar_parte::seleccionar()
{
    const int fila = ui->flx->filaActual();
    auto* receptor = dynamic_cast<ReceptorParte*>(Llamador.data());
    if (fila < 0 || !receptor)
        return;
    // An empty number is a null in the store and is not found again.
    const auto parte = parte_con_documento(ui->flx->celda(fila, 0), ui->flx->celda(fila, 2));
    if (!parte)
        return;
    receptor->copiarParte(*parte);
    descargar();
}
