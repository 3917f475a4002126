// SPDX-License-Identifier: GPL-3.0-or-later

#include "declarations/screens/frmDJ_buscar.h"

#include "agents/agente.h"
#include "core/cuidado.h"
#include "core/preferencias.h"
#include "declarations/lista_dj.h"
#include "declarations/screens/frmDJ_editar.h"
#include "filing/archivo_dj.h"
#include "filing/empaquetado.h"
#include "filing/valores_largos.h"
#include "filing/verificacion.h"
#include "printing/screens/frmReportes.h"
#include "ui_frmDJ_buscar.h"
#include "widgets/ctlComunes.h"
#include "widgets/mensajes.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

frmDJ_buscar::frmDJ_buscar() : ui(std::make_unique<Ui::frmDJ_buscar>())
{
    ui->setupUi(this);
    preparar_grilla(
        ui->flx,
        {u"DJ Nº"_s, u"AR Nº"_s, u"Municipio"_s, u"Año"_s, u"Mes"_s, u"Rectif."_s, u"Estado"_s, u"Observaciones"_s},
        {2200, 1000, 2800, 800, 800, 800, 1400, 2000});
    ui->flx->setPlanilla([] { return u"declaraciones-juradas"_s; });
    cargar_agentes();
    ui->nroAnio->ClearText();
    ui->nroMes->ClearText();

    atender(ui->tlbDJ, &BarraHerramientas::pulsada, &frmDJ_buscar::tlbDJ_pulsada);
    atender(ui->flx, &Grilla::elegida, [this] { ui->tlbDJ->pulsar(u"modificar"_s); });
    atender(ui->cboRTN, &QComboBox::activated, [this] { listar_dj(); });
    for (ctlNumero* n : {ui->nroAnio, ui->nroMes})
        n->findChild<QLineEdit*>(u"txt"_s)->installEventFilter(this);
    atender(ui->nroAnio, &ctlNumero::KeyPress, [this](int& tecla) {
        if (tecla == 13)
            aceptarAnio();
    });
    atender(ui->nroMes, &ctlNumero::KeyPress, [this](int& tecla) {
        if (tecla == 13)
            aceptarMes();
    });
    atender(ui->nroAnio, &ctlNumero::salida, &frmDJ_buscar::aceptarAnio);
}

frmDJ_buscar::~frmDJ_buscar() = default;

void frmDJ_buscar::alActivar()
{
    listar_dj();
    habilitar_botones();
}

// A month that is none keeps the focus: the validation is refused.
bool frmDJ_buscar::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() == QEvent::FocusOut && objeto == ui->nroMes->focusProxy()) {
        const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
        const bool sale = motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason
                          || motivo == Qt::MouseFocusReason || motivo == Qt::OtherFocusReason
                          || motivo == Qt::ShortcutFocusReason;
        bool vale = true;
        if (sale && proteger([&] { vale = aceptarMes(); }) && !vale) {
            negar();
            QMetaObject::invokeMethod(ui->nroMes, qOverload<>(&QWidget::setFocus), Qt::QueuedConnection);
        }
    }
    return Formulario::eventFilter(objeto, evento);
}

void frmDJ_buscar::aceptarAnio()
{
    if (ui->nroAnio->Value() == 0)
        ui->nroAnio->ClearText();
    else
        listar_dj();
}

bool frmDJ_buscar::aceptarMes()
{
    const double mes = ui->nroMes->Value();
    if (mes == 0) {
        ui->nroMes->ClearText();
        return true;
    }
    if (mes < 1 || mes > 12)
        return false;
    listar_dj();
    return true;
}

void frmDJ_buscar::cargar_agentes()
{
    DialogoPantalla dialogo(this);
    llenar_combo(ui->cboRTN, con_sin_filtro(agentes_por_nombre(dialogo)));
    ui->cboRTN->setCurrentIndex(0);
}

// A month that is none leaves the list under the one before.
void frmDJ_buscar::listar_dj()
{
    if (const double mes = ui->nroMes->Value(); mes >= 0 && mes <= 12)
        mes_ = int(mes);
    const FiltroDJ filtro{filtro_elegido(ui->cboRTN), int(ui->nroAnio->Value()), mes_};
    ui->flx->llenar(
        [&] { leer_lista_dj(filtro, [this](std::span<const std::string_view> fila) { ui->flx->agregar(fila); }); });
    habilitar_botones();
}

void frmDJ_buscar::habilitar_botones()
{
    for (const char* clave : {"modificar", "borrar", "rectificar", "emitir"})
        ui->tlbDJ->habilitar(QLatin1String(clave), ui->flx->filas() > 0);
}

void frmDJ_buscar::abrirEditor(Modo operacion, const QString& nro)
{
    auto* editor = cargar<frmDJ_editar>();
    if (editor->iniciar(operacion, nro))
        abrir(editor);
    else
        editor->descargar();
}

void frmDJ_buscar::tlbDJ_pulsada(const QString& clave)
{
    const QString nro = ui->flx->clave();
    if (clave == u"salir")
        descargar();
    else if (clave == u"nueva")
        abrirEditor(Modo::nuevo, {});
    else if (nro.isEmpty())
        return;
    else if (clave == u"modificar")
        abrirEditor(Modo::modificar, nro);
    else if (clave == u"rectificar")
        rectificar();
    else if (clave == u"emitir")
        emitir();
    else if (clave == u"borrar" && preguntar(u"¿Esta seguro que desea borrar la DJ seleccionada?"_s, u"Borrar DJ"_s)) {
        DialogoPantalla dialogo(this);
        if (!respaldar_antes(dialogo))
            return;
        borrar_dj(nro, dialogo);
        listar_dj();
    }
}

void frmDJ_buscar::rectificar()
{
    DialogoPantalla dialogo(this);
    const QString ultima = dj_a_rectificar(ui->flx->clave(), dialogo);
    if (!ultima.isEmpty() && respaldar_antes(dialogo))
        abrirEditor(Modo::rectificar, ultima);
}

void frmDJ_buscar::emitir()
{
    DialogoPantalla dialogo(this);
    const QString nro = ui->flx->clave();
    if (!verificar_dj_completa(nro, windowTitle(), dialogo))
        return;
    if (const QStringList valores = valores_que_no_entran(nro); !valores.isEmpty()) {
        avisar(u"La declaración jurada tiene valores que no entran en el archivo a presentar. "
               u"Corríjalos y vuelva a emitirla.\n\n"_s
                   + valores.join(u'\n'),
               u"Emitir DJ "_s + nro, Icono::exclamacion);
        return;
    }
    const EmisionArchivo emision = generar_archivo_dj(nro);
    if (emision.codigo.isEmpty()) {
        dialogo.avisar(
            {u"No se puede emitir la DJ impresa sin generar el archivo previamente \n"
             u"debido a que se genera un código de verificación de la integridad entre el diskete y la DJ impresa"_s,
             {},
             Icono::ninguno,
             emision.motivo});
        return;
    }
    // The name that is typed does not count, so nothing is asked about a file of that name.
    const auto pedir = [this, &dialogo](const QString& nombre) {
        dialogo.ocultarProgreso();
        const QString elegido = QFileDialog::getSaveFileName(
            this, u"Guardar la declaración jurada"_s, QDir(ultima_carpeta(u"emision"_s)).filePath(nombre),
            u"Archivo comprimido (*.rar)"_s, nullptr, QFileDialog::DontConfirmOverwrite);
        if (!elegido.isEmpty())
            recordar_carpeta(u"emision"_s, elegido);
        return elegido;
    };
    if (!comprimir_dj(nro, dialogo, pedir))
        return;
    dialogo.ocultarProgreso();
    auto* reporte = cargar<frmReportes>();
    reporte->DJ(nro, emision.codigo);
    abrir(reporte);
}
