// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/screens/MDIPrincipal.h"

#include "agents/screens/frmRTN_buscar.h"
#include "application/screens/ayuda.h"
#include "application/screens/frmAcercaDe.h"
#include "application/screens/frmBackup.h"
#include "application/screens/rotulo_ruta.h"
#include "catalogue/screens/frmSubconceptos.h"
#include "core/arranque.h"
#include "core/cuidado.h"
#include "core/modGlobales.h"
#include "core/preferencias.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "ui_MDIPrincipal.h"
#include "widgets/formulario.h"
#include "widgets/guardia.h"
#include "widgets/mensajes.h"

#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QScreen>
#include <QToolButton>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QString VENTANA = u"ventanas/principal"_s;

}  // namespace

MDIPrincipal::MDIPrincipal() : ui(std::make_unique<Ui::MDIPrincipal>())
{
    ui->setupUi(this);
    // Calendars speak the language of the screens, whatever that of the desktop is.
    setLocale(QLocale(QLocale::Spanish, QLocale::Argentina));
    setCentralWidget(ui->area);
    ui->area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    ui->area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // Backup and recovery have no working logic; nothing makes them available.
    QAction* respaldo = ui->sm_backup_recuperacion->menuAction();
    respaldo->setVisible(false);
    // The bar takes the access key of a hidden menu too, away from the forms.
    respaldo->setText(respaldo->text().remove(u'&'));
    ui->sm_backup_recuperacion->setEnabled(false);
    Formulario::fijarArea(ui->area);

    const auto atender = [this](const QAction* entrada, const std::function<void()>& accion) {
        connect(entrada, &QAction::triggered, this, [this, accion] { con_guardia(this, accion); });
    };
    atender(ui->ssmRTN, [] { cargar<frmRTN_buscar>()->mostrar(); });
    atender(ui->smSubconceptos, [this] {
        auto* catalogo = cargar<frmSubconceptos>();
        Hab_Deshab_Menu(false);
        connect(catalogo, &frmSubconceptos::cerrado, this, [this] { Hab_Deshab_Menu(true); });
        catalogo->mostrar();
    });
    atender(ui->ssmDJ, [] { cargar<frmDJ_buscar>()->mostrar(); });
    atender(ui->ssmBackup, [] { cargar<frmBackup>()->mostrar(); });
    atender(ui->smAcercaDe, [] { cargar<frmAcercaDe>()->mostrar(); });
    connect(ui->smSalir, &QAction::triggered, this, &QWidget::close);

    auto* ayuda = new Ayuda(this);
    auto* manual = new QToolButton;
    manual->setObjectName(u"cmdManual"_s);
    manual->setText(u"Manual (F1)"_s);
    manual->setAutoRaise(true);
    // A click takes the focus from no field, as F1 does not.
    manual->setFocusPolicy(Qt::NoFocus);
    connect(manual, &QToolButton::clicked, ayuda, &Ayuda::abrir);
    ui->StatusBar->addPermanentWidget(manual);
}

MDIPrincipal::~MDIPrincipal()
{
    Formulario::fijarArea(nullptr);
}

// As the user left it, unless that was on a larger screen; else it fills the screen.
void MDIPrincipal::presentar()
{
    const QVariantList dejada = preferencia(VENTANA).toList();
    const QRect lugar = dejada.value(1).toRect();
    const QSize pantalla = dejada.value(2).toSize();
    if (lugar.isValid() && pantalla == pantalla.boundedTo(screen()->availableSize())) {
        setGeometry(lugar);
        if (!dejada.value(0).toBool()) {
            show();
            return;
        }
    }
    showMaximized();
}

bool MDIPrincipal::iniciar()
{
    DialogoPantalla dialogo(nullptr);
    if (!abrir_base(dialogo))
        return false;
    if (!cuidar_base(dialogo)) {
        cerrar_base();
        return false;
    }
    cargar_parametros(dialogo);
    cargar_ley_vigente(dialogo);
    mostrarEstado();
    return true;
}

void MDIPrincipal::mostrarEstado()
{
    auto* ruta = new RotuloRuta(u"Base de datos: "_s, QDir::toNativeSeparators(ruta_abierta()));
    ruta->setObjectName(u"panelBase"_s);
    ui->StatusBar->addWidget(ruta, 1);
    if (LeyVigente == 0)
        return;
    auto* ley = new QLabel(
        u"Ley vigente: %1 (desde %2)"_s.arg(LeyVigente).arg(LeyVigenciaDesde.toString(u"dd/MM/yyyy"_s)));
    ley->setObjectName(u"panelLey"_s);
    ui->StatusBar->addPermanentWidget(ley);
}

void MDIPrincipal::Hab_Deshab_Menu(bool habilitar)
{
    ui->smSubconceptos->setEnabled(habilitar);
}

void MDIPrincipal::closeEvent(QCloseEvent* evento)
{
    evento->ignore();
    if (!DialogoPantalla(this).preguntar(
            {u"¿Está seguro que desea salir del sistema?"_s, u"VEDRA-RTN"_s, Icono::pregunta}))
        return;
    // The newest form stands on the others. One that the user keeps open keeps the program.
    auto formularios = Formulario::cargados();
    while (!formularios.isEmpty())
        if (!formularios.takeLast()->cerrar())
            return;
    recordar(VENTANA, QVariantList{isMaximized(), normalGeometry(), screen()->availableSize()});
    cerrar_base();
    evento->accept();
}
