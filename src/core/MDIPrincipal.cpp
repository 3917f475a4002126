#include "core/MDIPrincipal.h"

#include "catalogue/frmSubconceptos.h"
#include "core/arranque.h"
#include "core/formulario.h"
#include "core/frmAcercaDe.h"
#include "core/frmBackup.h"
#include "core/mensajes.h"
#include "core/modGlobales.h"
#include "declarations/frmDJ_buscar.h"
#include "declarations/frmRTN_buscar.h"
#include "ui_MDIPrincipal.h"

#include <QCloseEvent>
#include <QDir>
#include <QLabel>

MDIPrincipal::MDIPrincipal() : ui(std::make_unique<Ui::MDIPrincipal>())
{
    ui->setupUi(this);
    setCentralWidget(ui->area);
    ui->area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    ui->area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // Backup and recovery have no working logic; nothing makes them available.
    ui->sm_backup_recuperacion->menuAction()->setVisible(false);
    ui->sm_backup_recuperacion->setEnabled(false);
    Formulario::fijarArea(ui->area);

    connect(ui->ssmRTN, &QAction::triggered, this, [] { cargar<frmRTN_buscar>()->mostrar(); });
    connect(ui->smSubconceptos, &QAction::triggered, this, [this] {
        auto* catalogo = cargar<frmSubconceptos>();
        Hab_Deshab_Menu(false);
        connect(catalogo, &frmSubconceptos::cerrado, this, [this] { Hab_Deshab_Menu(true); });
        catalogo->mostrar();
    });
    connect(ui->ssmDJ, &QAction::triggered, this, [] { cargar<frmDJ_buscar>()->mostrar(); });
    connect(ui->ssmBackup, &QAction::triggered, this, [] { cargar<frmBackup>()->mostrar(); });
    connect(ui->smAcercaDe, &QAction::triggered, this, [] { cargar<frmAcercaDe>()->mostrar(); });
    connect(ui->smSalir, &QAction::triggered, this, &QWidget::close);
}

MDIPrincipal::~MDIPrincipal()
{
    Formulario::fijarArea(nullptr);
}

bool MDIPrincipal::iniciar()
{
    DialogoPantalla dialogo(nullptr);
    if (!abrir_base(dialogo))
        return false;
    cargar_parametros(dialogo);
    cargar_ley_vigente(dialogo);
    mostrarEstado();
    return true;
}

void MDIPrincipal::mostrarEstado()
{
    auto* ruta = new QLabel(QStringLiteral("Base de datos: ") + QDir::toNativeSeparators(ruta_abierta()));
    ruta->setObjectName(QStringLiteral("panelBase"));
    auto* ley = new QLabel(LeyVigente == 0 ? QStringLiteral("Sin ley vigente")
                                           : QStringLiteral("Ley vigente: %1 (desde %2)")
                                                 .arg(LeyVigente)
                                                 .arg(LeyVigenciaDesde.toString(QStringLiteral("dd/MM/yyyy"))));
    ley->setObjectName(QStringLiteral("panelLey"));
    ui->StatusBar->addWidget(ruta, 1);
    ui->StatusBar->addPermanentWidget(ley);
}

void MDIPrincipal::Hab_Deshab_Menu(bool habilitar)
{
    ui->smSubconceptos->setEnabled(habilitar);
}

void MDIPrincipal::closeEvent(QCloseEvent* evento)
{
    evento->ignore();
    if (!DialogoPantalla(this).preguntar({QStringLiteral("¿Está seguro que desea salir del sistema?"),
                                          QStringLiteral("VEDRA-RTN"), Icono::pregunta}))
        return;
    // The newest form stands on the others. One that the user keeps open keeps the program.
    auto formularios = Formulario::cargados();
    while (!formularios.isEmpty())
        if (!formularios.takeLast()->descargar())
            return;
    cnRtn.cerrar();
    cnTmp.cerrar();
    evento->accept();
}
