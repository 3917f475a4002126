// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/frmEditarSubconceptoSellos.h"

#include "catalogue/screens/control_subconcepto.h"
#include "catalogue/tipos_calculo.h"
#include "core/motivos.h"
#include "ui_frmEditarSubconceptoSellos.h"
#include "widgets/ctlComunes.h"

using namespace Qt::StringLiterals;

frmEditarSubconceptoSellos::frmEditarSubconceptoSellos() : ui(std::make_unique<Ui::frmEditarSubconceptoSellos>())
{
    ui->setupUi(this);
    for (QWidget* w : findChildren<QWidget*>())
        controles_.insert(w->objectName(), w);
    for (const CampoSubconcepto& campo : campos_subconcepto())
        if (campo.forma != Forma::codigo)
            editables_ << control(campo.control) << control(campo.asociado);
    for (const DependenciaSubconcepto& d : dependencias_subconcepto())
        editables_ << control(d.control);
    editables_.remove(nullptr);
    llenar_combo(ui->cboConcepto, con_sin_filtro(conceptos_sellos()));
    ui->ctlTipoCalculo->AddColumn(u"Cálculo"_s, 1, u"calculo"_s, 2400);
    ui->ctlTipoCalculo->AddColumn(u"Observaciones"_s, 2, u"obs"_s, 4800);
    Recordset tipos = tipos_calculo();
    ui->ctlTipoCalculo->Origen(tipos);
    prepararRangos();
    conectar();
}

frmEditarSubconceptoSellos::~frmEditarSubconceptoSellos() = default;

void frmEditarSubconceptoSellos::conectar()
{
    for (QLineEdit* texto : textosQueEditan()) {
        a_mayusculas(texto);
        atender(texto, &QLineEdit::textEdited, [this] {
            if (!editando_)
                ponerEdicion(true);
        });
    }
    for (QLineEdit* mascara : {ui->txtGarantiaCumplimiento_suma, ui->txtObligAccesoria_suma})
        solo_digitos_en(mascara);
    for (const QCheckBox* casilla : findChildren<QCheckBox*>())
        atender(casilla, &QCheckBox::toggled,
                [this, nombre = casilla->objectName()](bool si) { cambioCasilla(nombre, si); });
    atender(ui->ctlTipoCalculo, &ctlCombo::ItemClick, &frmEditarSubconceptoSellos::elegirTipoCalculo);
    atender(ui->cmdElegirTCBI, &QPushButton::clicked, &frmEditarSubconceptoSellos::elegirTipoBI);
    atender(ui->cmdObligAccesoria_suma, &QPushButton::clicked, [this] {
        crearMascara(ui->txtObligAccesoria_suma, MASCARA_OBLIGACION, u"Modalidad de pago - Obligación Accesoria"_s);
    });
    atender(ui->cmdGaranCump_generar, &QPushButton::clicked, [this] {
        crearMascara(ui->txtGarantiaCumplimiento_suma, MASCARA_GARANTIA,
                     u"Modalidad de pago - Garantia de Cumplimiento"_s);
    });
    atender(ui->toolbar, &BarraHerramientas::pulsada, &frmEditarSubconceptoSellos::pulsada);
    atender(ui->tlbAlicuotas, &BarraHerramientas::pulsada, &frmEditarSubconceptoSellos::tlbAlicuotas_pulsada);
    atender(ui->tlbModulos, &BarraHerramientas::pulsada, &frmEditarSubconceptoSellos::tlbModulos_pulsada);
    atender(ui->tlbRoles, &BarraHerramientas::pulsada, &frmEditarSubconceptoSellos::tlbRoles_pulsada);
}

std::array<QLineEdit*, 3> frmEditarSubconceptoSellos::textosQueEditan() const
{
    return {ui->txtDescripcion, ui->txtLeyVigencia, ui->txtObservaciones};
}

int frmEditarSubconceptoSellos::codigo() const
{
    return int(ui->nroCodigo->Value());
}

void frmEditarSubconceptoSellos::Inicializar(Modo operacion, std::optional<int> id, std::optional<int> concepto)
{
    Operacion = operacion;
    const bool nuevo = operacion == Modo::nuevo;
    setWindowTitle(nuevo ? u"Nuevo subconcepto de sellos"_s : u"Modificar subconcepto de sellos"_s);
    poner_controles(subconcepto_nuevo(concepto));
    if (const auto fila = nuevo || !id ? std::nullopt : cargar_subconcepto(*id)) {
        poner_controles(*fila);
        guardado_ = true;
    }
    ponerEdicion(false);
    marcarGuardado();
    if (nuevo)
        ui->toolbar->pulsar(u"editar"_s);
    for (QLineEdit* texto : textosQueEditan())
        habilitar_control(texto, true);
    ui->txtDescripcion->setFocus();
}

void frmEditarSubconceptoSellos::alActivar()
{
    if (!guardado_)
        return;
    obtener_alicuotas();
    obtener_modulos();
    obtener_roles();
}

void frmEditarSubconceptoSellos::ponerEdicion(bool si)
{
    editando_ = si;
    for (const char* clave : {"aceptar", "cancelar"})
        ui->toolbar->habilitar(QLatin1StringView(clave), si);
    for (const char* clave : {"editar", "salir"})
        ui->toolbar->habilitar(QLatin1StringView(clave), !si);
    // Brackets and roles hang on a stored item.
    for (const Solapa solapa : {SOLAPA_RANGOS, SOLAPA_ROLES})
        ui->SSTab1->setTabEnabled(solapa, guardado_);
    habilitarControles();
}

void frmEditarSubconceptoSellos::pulsada(const QString& clave)
{
    if (clave == u"salir") {
        descargar();
        return;
    }
    if (clave == u"aceptar") {
        aceptar();
        return;
    }
    // What was typed stays on the screen after "cancelar", deliberately, until the form is opened anew.
    const bool editar = clave != u"cancelar";
    if (editar && guardado_)
        Operacion = Modo::modificar;
    ponerEdicion(editar);
}

void frmEditarSubconceptoSellos::aceptar()
{
    // A choice in a list that is still open is told when it closes.
    ui->ctlTipoCalculo->Cerrarse();
    ControlesSubconcepto c = leer_controles();
    const auto falla = validar_subconcepto(c);
    for (const CampoSubconcepto& campo : campos_subconcepto())
        if (campo.forma == Forma::texto || campo.forma == Forma::mascara)
            poner_control(control(campo.control), c.value(QString::fromUtf8(campo.control)));
    if (falla) {
        mostrarFalla(*falla);
        if (falla->control == u"cmdElegirTCBI")
            ui->cmdElegirTCBI->click();
        return;
    }
    try {
        Operacion == Modo::nuevo ? alta_subconcepto(c) : modificar_subconcepto(c);
    } catch (const ErrorAlmacen& e) {
        avisar(motivo_de_escritura(e), windowTitle(), Icono::informacion, e.motor);
        return;
    }
    guardado_ = true;
    ponerEdicion(false);
    marcarGuardado();
}
