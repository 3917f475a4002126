// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/frmEditarSubconceptoSellos.h"

#include "catalogue/screens/frmCrearMascara.h"
#include "widgets/ctlComunes.h"
#include "core/modGlobales.h"
#include "core/motivos.h"
#include "ui_frmEditarSubconceptoSellos.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

constexpr int SOLAPA_RANGOS = 2;
constexpr int SOLAPA_ROLES = 3;

QVariant leer_control(const QWidget* w)
{
    if (const auto* numero = qobject_cast<const ctlNumero*>(w))
        return numero->toSQL();
    if (const auto* boton = qobject_cast<const QAbstractButton*>(w))
        return boton->isChecked();
    if (const auto* combo = qobject_cast<const QComboBox*>(w))
        return item_data(combo);
    if (const auto* fecha = qobject_cast<const QDateEdit*>(w))
        return fecha->date();
    if (const auto* texto = qobject_cast<const QLineEdit*>(w))
        return texto->text();
    return {};
}

void poner_control(QWidget* w, const QVariant& valor)
{
    if (auto* numero = qobject_cast<ctlNumero*>(w))
        valor.toString().isEmpty() ? numero->ClearText() : numero->setValue(numero_de_texto_sql(valor.toString()));
    else if (auto* boton = qobject_cast<QAbstractButton*>(w); boton && boton->isCheckable())
        marcar_boton(boton, valor.toBool());
    else if (auto* combo = qobject_cast<QComboBox*>(w))
        seleccionar_item(combo, valor.toInt());
    else if (auto* fecha = qobject_cast<QDateEdit*>(w))
        fecha->setDate(valor.toDate());
    else if (auto* texto = qobject_cast<QLineEdit*>(w))
        texto->setText(valor.toString());
}

void habilitar_control(QWidget* w, bool si)
{
    if (auto* numero = qobject_cast<ctlNumero*>(w)) {
        numero->Habilitar(si);
    } else if (auto* lista = qobject_cast<ctlCombo*>(w)) {
        lista->Habilitar(si);
        lista->Locked(true);
    } else if (auto* texto = qobject_cast<QLineEdit*>(w)) {
        if (!texto->isReadOnly())
            habilitar_texto(texto, si);
    } else {
        w->setEnabled(si);
    }
}

}  // namespace

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
    Recordset tipos(cnRtn, u"select STIC_ID, STIC_DESCRIPCION, STIC_OBSERVACIONES from SEL_TB_TIPOS_CALCULOS"_s);
    ui->ctlTipoCalculo->Origen(tipos);
    prepararRangos();
    conectar();
}

frmEditarSubconceptoSellos::~frmEditarSubconceptoSellos() = default;

void frmEditarSubconceptoSellos::conectar()
{
    for (QLineEdit* texto : {ui->txtDescripcion, ui->txtLeyVigencia, ui->txtObservaciones}) {
        a_mayusculas(texto);
        connect(texto, &QLineEdit::textEdited, this, [this] {
            if (!editando_)
                ponerEdicion(true);
        });
    }
    for (QLineEdit* mascara : {ui->txtGarantiaCumplimiento_suma, ui->txtObligAccesoria_suma})
        solo_digitos_en(mascara);
    for (const QCheckBox* casilla : findChildren<QCheckBox*>())
        connect(casilla, &QCheckBox::toggled, this,
                [this, nombre = casilla->objectName()](bool si) { cambioCasilla(nombre, si); });
    connect(ui->ctlTipoCalculo, &ctlCombo::ItemClick, this, &frmEditarSubconceptoSellos::elegirTipoCalculo);
    connect(ui->cmdElegirTCBI, &QPushButton::clicked, this, &frmEditarSubconceptoSellos::elegirTipoBI);
    connect(ui->cmdObligAccesoria_suma, &QPushButton::clicked, this, [this] {
        crearMascara(ui->txtObligAccesoria_suma, "GLB_TB_TIPOS_OBLIG_ACCESORIAS", "GTOA_ID", "GTOA_DESCRIPCION",
                     u"Modalidad de pago - Obligación Accesoria"_s);
    });
    connect(ui->cmdGaranCump_generar, &QPushButton::clicked, this, [this] {
        crearMascara(ui->txtGarantiaCumplimiento_suma, "GLB_TB_TIPOS_GARANTIA_CUMPL", "GTGC_ID", "GTGC_DESCRIPCION",
                     u"Modalidad de pago - Garantia de Cumplimiento"_s);
    });
    connect(ui->toolbar, &BarraHerramientas::pulsada, this, &frmEditarSubconceptoSellos::pulsada);
    connect(ui->tlbAlicuotas, &BarraHerramientas::pulsada, this, &frmEditarSubconceptoSellos::tlbAlicuotas_pulsada);
    connect(ui->tlbModulos, &BarraHerramientas::pulsada, this, &frmEditarSubconceptoSellos::tlbModulos_pulsada);
    connect(ui->tlbRoles, &BarraHerramientas::pulsada, this, &frmEditarSubconceptoSellos::tlbRoles_pulsada);
}

int frmEditarSubconceptoSellos::codigo() const
{
    return int(ui->nroCodigo->Value());
}

void frmEditarSubconceptoSellos::Inicializar(Modo operacion, int id, int concepto)
{
    Operacion = operacion;
    const bool nuevo = operacion == Modo::nuevo;
    setWindowTitle(nuevo ? u"Nuevo subconcepto de sellos"_s : u"Modificar subconcepto de sellos"_s);
    poner_controles(subconcepto_nuevo(concepto));
    if (const auto fila = nuevo ? std::nullopt : cargar_subconcepto(id)) {
        poner_controles(*fila);
        guardado_ = true;
    }
    ponerEdicion(false);
    if (nuevo)
        ui->toolbar->pulsar(u"editar"_s);
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

ControlesSubconcepto frmEditarSubconceptoSellos::leer_controles() const
{
    ControlesSubconcepto c = ocultos_;
    const auto tomar = [&](const char* nombre) {
        if (const QWidget* w = control(nombre))
            c[w->objectName()] = leer_control(w);
    };
    for (const CampoSubconcepto& campo : campos_subconcepto()) {
        tomar(campo.control);
        tomar(campo.asociado);
    }
    c[u"txtTipoCalculoBI"_s] = ui->txtTipoCalculoBI->text();
    c[u"ctlTipoCalculo"_s] = tipoCalculo_ ? QVariant(tipoCalculo_) : QVariant();
    return c;
}

void frmEditarSubconceptoSellos::poner_controles(const ControlesSubconcepto& c)
{
    const QScopedValueRollback mostrando(mostrando_, true);
    for (const CampoSubconcepto& campo : campos_subconcepto())
        for (const char* nombre : {campo.control, campo.asociado})
            if (QWidget* w = control(nombre))
                poner_control(w, c.value(w->objectName()));
    ocultos_ = {{TIPO_CALCULO_BI, c.value(TIPO_CALCULO_BI)}, {USOS, c.value(USOS)}};
    ui->txtTipoCalculoBI->setText(c.value(u"txtTipoCalculoBI"_s).toString());
    for (QLineEdit* texto : findChildren<QLineEdit*>())
        texto->setCursorPosition(0);
    tipoCalculo_ = c.value(u"ctlTipoCalculo"_s).toInt();
    QString clave = QString::number(tipoCalculo_);
    ui->ctlTipoCalculo->SeleccionarItem(clave, false);
    mostrarRangos(rangos_de_tipo(ui->ctlTipoCalculo->Value()));
}

// What works follows from the state and the boxes.
void frmEditarSubconceptoSellos::habilitarControles()
{
    const ControlesSubconcepto c = leer_controles();
    for (QWidget* w : std::as_const(editables_))
        habilitar_control(w, editando_ && habilitado_por_casillas(w->objectName(), c));
    habilitarBarras();
}

void frmEditarSubconceptoSellos::vaciarDependientes(const QString& casilla)
{
    for (const DependenciaSubconcepto& d : dependencias_subconcepto())
        if (d.vaciar && casilla == QString::fromUtf8(d.casilla))
            if (QWidget* w = control(d.control))
                poner_control(w, {});
}

void frmEditarSubconceptoSellos::cambioCasilla(const QString& casilla, bool si)
{
    if (mostrando_)
        return;
    const int tipo = ocultos_.value(TIPO_CALCULO_BI).toInt();
    if (const auto mensaje = si ? std::nullopt : casilla_sujeta(casilla, tipo, windowTitle())) {
        {
            const QScopedValueRollback mostrando(mostrando_, true);
            findChild<QCheckBox*>(casilla)->setChecked(true);
        }
        avisar(mensaje->texto, mensaje->titulo, mensaje->icono);
        return;
    }
    if (!si)
        vaciarDependientes(casilla);
    if (!si && casilla == u"chkBaseImponible")
        ocultos_[TIPO_CALCULO_BI] = {};
    habilitarControles();
}

void frmEditarSubconceptoSellos::TCBI(int id, const QString& descripcion)
{
    ocultos_[TIPO_CALCULO_BI] = id;
    ui->txtTipoCalculoBI->setText(descripcion);
    const auto casillas = casillas_de_tipo_bi(id);
    for (const auto& [casilla, si] : casillas.asKeyValueRange())
        findChild<QCheckBox*>(casilla)->setChecked(si);
}

void frmEditarSubconceptoSellos::elegirTipoBI()
{
    auto* tipos = cargar<frmTiposCalculoBI>();
    tipos->fijarTCBI(ocultos_.value(TIPO_CALCULO_BI).toInt());
    abrir(tipos);
}

void frmEditarSubconceptoSellos::crearMascara(QLineEdit* destino, const char* tabla, const char* id,
                                              const char* descripcion, const QString& titulo)
{
    auto* mascara = cargar<frmCrearMascara>();
    mascara->cargar_elementos(QLatin1StringView(tabla), QLatin1StringView(id), QLatin1StringView(descripcion));
    mascara->volcar_en(destino);
    mascara->setWindowTitle(titulo);
    mascara->mostrar_mascara(destino->text().toInt());
    abrir(mascara);
}

// The list tells each time that it closes; what can't be goes back to what was.
void frmEditarSubconceptoSellos::elegirTipoCalculo(const ctlCombo::Fila& fila)
{
    const QString actual = u"k"_s + QString::number(tipoCalculo_);
    QString clave = fila.clave;
    if (clave != actual) {
        const QString impedimento = impedimento_de_tipo(fila.texto, !alicuotas_.isEmpty(), !modulos_.isEmpty());
        if (impedimento.isEmpty()) {
            tipoCalculo_ = clave.mid(1).toInt();
            mostrarRangos(rangos_de_tipo(fila.texto));
        } else {
            avisar(impedimento, windowTitle());
            clave = actual;
        }
    }
    ui->ctlTipoCalculo->SeleccionarItem(clave, true);
}

// A kind without brackets leaves the tab as it is.
void frmEditarSubconceptoSellos::mostrarRangos(Rangos rangos)
{
    if (rangos == Rangos::ningunos)
        return;
    const bool alicuotas = rangos == Rangos::alicuotas;
    ui->SSTab1->setTabText(SOLAPA_RANGOS, alicuotas ? u"Alícuotas"_s : u"Módulos"_s);
    ui->fraAlicuotas->setVisible(alicuotas);
    ui->fraModulos->setVisible(!alicuotas);
    if (guardado_)
        alicuotas ? obtener_alicuotas() : obtener_modulos();
}

void frmEditarSubconceptoSellos::ponerEdicion(bool si)
{
    editando_ = si;
    for (const char* clave : {"aceptar", "cancelar"})
        ui->toolbar->habilitar(QLatin1StringView(clave), si);
    for (const char* clave : {"editar", "salir"})
        ui->toolbar->habilitar(QLatin1StringView(clave), !si);
    // Brackets and roles hang on a stored item.
    for (const int solapa : {SOLAPA_RANGOS, SOLAPA_ROLES})
        ui->SSTab1->setTabEnabled(solapa, guardado_);
    habilitarControles();
}

void frmEditarSubconceptoSellos::pulsada(const QString& clave)
{
    if (clave == u"salir") {
        descargar();
    } else if (clave == u"aceptar") {
        aceptar();
    } else if (clave == u"cancelar") {
        // What was typed stays on the screen, deliberately, until the form is opened anew.
        ponerEdicion(false);
    } else {
        if (guardado_)
            Operacion = Modo::modificar;
        ponerEdicion(true);
    }
}

void frmEditarSubconceptoSellos::aceptar()
{
    // A choice in a list that is still open is told when it closes.
    ui->ctlTipoCalculo->Cerrarse();
    formatearNumeros();
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
        avisar(motivo_de_escritura(e), windowTitle());
        return;
    }
    guardado_ = true;
    ponerEdicion(false);
}
