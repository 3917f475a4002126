// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogue's list and the search of parties, beside their bare queries.

#include "almacen_grande.h"
#include "medir.h"

#include "catalogue/lista_subconceptos.h"
#include "catalogue/screens/frmSubconceptos.h"
#include "parties/buscar_parte.h"
#include "parties/screens/frmDJ_buscar_parte.h"
#include "widgets/formulario.h"
#include "widgets/grilla.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

void cerrar(Formulario* f)
{
    f->descargar();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// From the button to the painted grid.
void catalogo(benchmark::State& estado)
{
    const AlmacenGrande a;
    AlmacenGrande::subconceptos(5000);
    auto* f = cargar<frmSubconceptos>();
    f->resize(1100, 650);
    f->mostrar();
    QApplication::processEvents();
    auto* grilla = f->findChild<Grilla*>(u"grilla"_s);
    const QString sql = consulta_subconceptos({});
    medir(
        estado, 1.5,
        [&] {
            f->buscar_subconceptos();
            grilla->viewport()->repaint();
        },
        [&] { consulta_sola(sql); });
    estado.counters["filas"] = grilla->filas();
    cerrar(f);
}

// From Enter to the painted grid, over 100,000 stored parties.
void partes(benchmark::State& estado, Criterio criterio, const QString& nombre, int tipoDoc, const QString& nroDoc)
{
    const AlmacenGrande a;
    AlmacenGrande::partes(100000);
    auto* f = cargar<frmDJ_buscar_parte>();
    f->fijarRenglon(u"OTRA"_s, u"0"_s);
    f->resize(700, 500);
    f->mostrar();
    f->findChild<QComboBox*>(u"cboCriterioRazonSocial"_s)->setCurrentIndex(int(criterio));
    auto* tipo = f->findChild<QComboBox*>(u"cboTipoDoc"_s);
    tipo->setCurrentIndex(tipo->findData(tipoDoc == 0 ? QVariant(0) : QVariant(QString::number(tipoDoc))));
    auto* razon = f->findChild<QLineEdit*>(u"txtRazonSocial"_s);
    razon->setText(nombre);
    f->findChild<QLineEdit*>(u"txtNroDoc"_s)->setText(nroDoc);
    QApplication::processEvents();
    auto* grilla = f->findChild<Grilla*>(u"flx"_s);
    Callado callado;
    FiltroPartes filtro{.dj = u"OTRA"_s,
                        .renglon = u"0"_s,
                        .criterio = criterio,
                        .razonSocial = nombre,
                        .tipoDoc = tipoDoc,
                        .tipoDocTexto = u"CUIT"_s,
                        .nroDoc = nroDoc};
    const QString sql = consulta_busqueda_partes(filtro, {}, callado);
    medir(
        estado, 1.3,
        [&] {
            emit razon->returnPressed();
            grilla->viewport()->repaint();
        },
        [&] { consulta_sola(sql); });
    estado.counters["filas"] = grilla->filas();
    cerrar(f);
}

}  // namespace

void registrar_catalogo()
{
    benchmark::RegisterBenchmark("catalogo_de_5000", catalogo)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(15);
    const auto caso = [](const char* nombre, Criterio criterio, const QString& texto, int tipo, const QString& nro) {
        benchmark::RegisterBenchmark(nombre, partes, criterio, texto, tipo, nro)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(11);
    };
    caso("buscar_parte_por_dos_palabras", Criterio::contiene, u"JUAN, SOSA"_s, 0, {});
    caso("buscar_parte_por_una_letra", Criterio::contiene, u"S"_s, 0, {});
    caso("buscar_parte_por_CUIT", Criterio::sin_filtro, {}, 80, u"20000007919"_s);
    caso("buscar_parte_sin_filtro", Criterio::sin_filtro, {}, 0, {});
}
