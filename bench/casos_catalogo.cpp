// The catalogue's list and the search of parties, beside their bare queries.

#include "almacen_grande.h"
#include "medir.h"

#include "catalogue/frmSubconceptos.h"
#include "catalogue/lista_subconceptos.h"
#include "core/formulario.h"
#include "core/grilla.h"
#include "declarations/buscar_parte.h"
#include "declarations/frmDJ_buscar_parte.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

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
    auto* grilla = f->findChild<Grilla*>(QStringLiteral("grilla"));
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
    f->fijarRenglon(QStringLiteral("OTRA"), QStringLiteral("0"));
    f->resize(700, 500);
    f->mostrar();
    f->findChild<QComboBox*>(QStringLiteral("cboCriterioRazonSocial"))->setCurrentIndex(int(criterio));
    auto* tipo = f->findChild<QComboBox*>(QStringLiteral("cboTipoDoc"));
    tipo->setCurrentIndex(tipo->findData(tipoDoc == 0 ? QVariant(0) : QVariant(QString::number(tipoDoc))));
    auto* razon = f->findChild<QLineEdit*>(QStringLiteral("txtRazonSocial"));
    razon->setText(nombre);
    f->findChild<QLineEdit*>(QStringLiteral("txtNroDoc"))->setText(nroDoc);
    QApplication::processEvents();
    auto* grilla = f->findChild<Grilla*>(QStringLiteral("flx"));
    Callado callado;
    FiltroPartes filtro{.dj = QStringLiteral("OTRA"), .renglon = QStringLiteral("0"), .criterio = criterio, .razonSocial = nombre, .tipoDoc = tipoDoc, .tipoDocTexto = QStringLiteral("CUIT"), .nroDoc = nroDoc};
    const QString sql = consulta_partes(filtro, {}, callado);
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
    benchmark::RegisterBenchmark("catalogo_de_5000", catalogo)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
    const auto caso = [](const char* nombre, Criterio criterio, const QString& texto, int tipo, const QString& nro) {
        benchmark::RegisterBenchmark(nombre, partes, criterio, texto, tipo, nro)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(11);
    };
    caso("buscar_parte_por_dos_palabras", Criterio::contiene, QStringLiteral("JUAN, SOSA"), 0, {});
    caso("buscar_parte_por_una_letra", Criterio::contiene, QStringLiteral("S"), 0, {});
    caso("buscar_parte_por_CUIT", Criterio::sin_filtro, {}, 80, QStringLiteral("20000007919"));
    caso("buscar_parte_sin_filtro", Criterio::sin_filtro, {}, 0, {});
}
