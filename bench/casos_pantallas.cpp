// SPDX-License-Identifier: GPL-3.0-or-later

#include "almacen_grande.h"
#include "medir.h"

#include "application/screens/MDIPrincipal.h"
#include "core/arranque.h"
#include "core/modGlobales.h"
#include "declarations/lista_dj.h"
#include "declarations/renglones.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "declarations/screens/frmDJ_editar.h"
#include "widgets/ctlNumero.h"
#include "widgets/formulario.h"
#include "widgets/grilla.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

// From the filter key to the painted grid.
void lista(benchmark::State& estado)
{
    const AlmacenGrande a;
    AlmacenGrande::cabeceras(20000);
    auto* f = cargar<frmDJ_buscar>();
    f->resize(1200, 700);
    f->mostrar();
    QApplication::processEvents();
    auto* campo = f->findChild<ctlNumero*>(u"nroAnio"_s);
    QWidget* txt = campo->focusProxy();
    auto* grilla = f->findChild<Grilla*>(u"flx"_s);
    const auto enter = [&] {
        QKeyEvent tecla(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
        QApplication::sendEvent(txt, &tecla);
        grilla->viewport()->repaint();
    };
    // The year filters nothing out: all rows are listed.
    cnRtn.ejecutar(u"update SEL_TB_RTN_CABDJ set SEDJ_ANIO=2026"_s);
    campo->setValue(2026);
    const QString sql = consulta_dj({0, 2026, 0});
    medir(estado, 1.2, enter, [&] { consulta_sola(sql); });
    f->descargar();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void detalle(benchmark::State& estado)
{
    const AlmacenGrande a;
    const QString dj = AlmacenGrande::dj(2026, 3, 2000);
    auto* f = cargar<frmDJ_editar>();
    if (!f->iniciar(Modo::modificar, dj))
        std::abort();
    f->resize(1000, 700);
    f->mostrar();
    QApplication::processEvents();
    const QString sql = consulta_renglones(dj);
    f->findChild<QTabWidget*>()->setCurrentIndex(1);
    auto* grilla = f->findChild<Grilla*>(u"flxOp"_s);
    medir(
        estado, 1.2,
        [&] {
            f->alActivar();
            grilla->viewport()->repaint();
        },
        [&] { consulta_sola(sql); });
    f->descargar();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void arranque(benchmark::State& estado)
{
    const AlmacenGrande a;
    cnRtn.cerrar();
    const auto pintada = [](QMainWindow& ventana) {
        ventana.resize(1100, 760);
        ventana.show();
        QApplication::processEvents();
    };
    medir(
        estado, 1.15,
        [&] {
            MDIPrincipal principal;
            if (!principal.iniciar())
                std::abort();
            pintada(principal);
            cnRtn.cerrar();
        },
        [&] {
            QMainWindow vacia;
            Callado callado;
            if (!abrir_base(callado))
                std::abort();
            pintada(vacia);
            cnRtn.cerrar();
        });
}

}  // namespace

void registrar_pantallas()
{
    benchmark::RegisterBenchmark("lista_de_20000_DJ", lista)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(11);
    benchmark::RegisterBenchmark("solapa_de_2000_renglones", detalle)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(11);
    benchmark::RegisterBenchmark("arranque", arranque)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
}
