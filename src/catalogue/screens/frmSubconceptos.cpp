// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/frmSubconceptos.h"

#include "catalogue/lista_subconceptos.h"
#include "catalogue/screens/frmEditarSubconceptoSellos.h"
#include "core/modGlobales.h"
#include "ui_frmSubconceptos.h"
#include "widgets/ctlComunes.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

frmSubconceptos::frmSubconceptos() : ui(std::make_unique<Ui::frmSubconceptos>())
{
    ui->setupUi(this);
    QStringList titulos;
    QList<int> anchos;
    for (const ColumnaSubconceptos& c : columnas_subconceptos()) {
        titulos << QString::fromUtf8(c.titulo);
        anchos << c.ancho;
    }
    preparar_grilla(ui->grilla, titulos, anchos);
    ui->grilla->setColumnaClave(COLUMNA_ID);
    ui->grilla->setOrdenable(false);
    ui->grilla->horizontalHeader()->setSectionsClickable(true);
    llenar_combo(ui->cboConcepto, con_sin_filtro(conceptos_sellos()));
    ui->cboConcepto->setCurrentIndex(0);
    ui->cboCriterioSubcon->setCurrentIndex(int(FiltroSubconceptos::Criterio::contiene));
    ui->nroPorcExencion->ClearText();
    ui->txtSubconcepto->setFocus();

    atender(ui->toolbar, &BarraHerramientas::pulsada, &frmSubconceptos::pulsada);
    atender(ui->grilla, &Grilla::elegida, [this] { ui->toolbar->pulsar(u"seleccionar"_s); });
    atender(ui->grilla->horizontalHeader(), &QHeaderView::sectionClicked, &frmSubconceptos::ordenar);
    for (const auto& [casilla, texto] :
         {std::pair{ui->chkLey, ui->txtLey}, {ui->chkArticulo, ui->txtArticulo}, {ui->chkInciso, ui->txtInciso}}) {
        habilitar_texto(texto, false);
        connect(casilla, &QCheckBox::toggled, texto, [texto = texto](bool si) {
            habilitar_texto(texto, si);
            if (si)
                texto->setFocus();
        });
    }
    for (QLineEdit* texto : {ui->txtSubconcepto, ui->txtLey, ui->txtArticulo, ui->txtInciso})
        atender(texto, &QLineEdit::returnPressed, &frmSubconceptos::buscar_subconceptos);
}

frmSubconceptos::~frmSubconceptos() = default;

void frmSubconceptos::alActivar()
{
    buscar_subconceptos();
}

void frmSubconceptos::alDescargar()
{
    emit cerrado();
}

FiltroSubconceptos frmSubconceptos::filtro() const
{
    const std::optional<int> delCombo = filtro_elegido(ui->cboConcepto);
    return {.uso = ui->chkUso->isChecked(),
            .concepto = delCombo ? delCombo : concepto,
            .ley = ley,
            .criterio = FiltroSubconceptos::Criterio(ui->cboCriterioSubcon->currentIndex()),
            .texto = ui->txtSubconcepto->text(),
            .porLey = ui->chkLey->isChecked(),
            .textoLey = ui->txtLey->text(),
            .porArticulo = ui->chkArticulo->isChecked(),
            .textoArticulo = ui->txtArticulo->text(),
            .porInciso = ui->chkInciso->isChecked(),
            .textoInciso = ui->txtInciso->text(),
            .selladoMultiple = ui->chkSelladoMultiple->isChecked(),
            .exenciones = FiltroSubconceptos::Exenciones(std::max(0, ui->cboExenciones->currentIndex())),
            .porcExencion = ui->nroPorcExencion->toSQL(),
            .orden = orden_};
}

void frmSubconceptos::buscar_subconceptos()
{
    const QString sql = consulta_subconceptos(filtro());
    ui->grilla->llenar(
        [&] { leer_subconceptos(sql, [this](std::span<const std::string_view> fila) { ui->grilla->agregar(fila); }); });
    const int n = ui->grilla->filas();
    ui->lblResultado->setText(QString::number(n) + u" registro"_s + (n == 1 ? QString() : u"s"_s));
    habilitarBotones();
}

void frmSubconceptos::habilitarBotones()
{
    const bool con_filas = ui->grilla->filas() > 0;
    for (const char* clave : {"modificar", "borrar", "marcar", "desmarcar"})
        ui->toolbar->habilitar(QLatin1StringView(clave), con_filas);
    ui->toolbar->habilitar(u"seleccionar"_s, con_filas && dynamic_cast<ReceptorSubconcepto*>(Llamador.data()));
}

void frmSubconceptos::ordenar(int columna)
{
    orden_ = QLatin1StringView(columnas_subconceptos()[size_t(columna)].campo);
    ui->grilla->horizontalHeader()->setSortIndicatorShown(true);
    ui->grilla->horizontalHeader()->setSortIndicator(columna, Qt::AscendingOrder);
    buscar_subconceptos();
}

void frmSubconceptos::pulsada(const QString& clave)
{
    const QString id = ui->grilla->clave();
    if (clave == u"salir")
        descargar();
    else if (clave == u"buscar")
        buscar_subconceptos();
    else if (clave == u"nuevo")
        abrirEditor(Modo::nuevo);
    else if (id.isEmpty())
        return;
    else if (clave == u"seleccionar")
        seleccionar();
    else if (clave == u"modificar")
        abrirEditor(Modo::modificar);
    else if (clave == u"borrar")
        borrar();
    else {
        marcar_subconcepto(id, clave == u"marcar");
        buscar_subconceptos();
    }
}

void frmSubconceptos::seleccionar()
{
    if (auto* receptor = dynamic_cast<ReceptorSubconcepto*>(Llamador.data()))
        receptor->SeleccionarSubconcepto(ui->grilla->clave().toInt());
    descargar();
}

void frmSubconceptos::abrirEditor(Modo operacion)
{
    auto* editor = cargar<frmEditarSubconceptoSellos>();
    if (operacion == Modo::modificar)
        editor->Inicializar(operacion, ui->grilla->clave().toInt(),
                            ui->grilla->celda(ui->grilla->filaActual(), COLUMNA_CONCEPTO).toInt());
    else
        editor->Inicializar(operacion, {}, filtro_elegido(ui->cboConcepto));
    abrir(editor);
}

void frmSubconceptos::borrar()
{
    if (!preguntar(u"¿Está seguro que desea borrar el subconcepto seleccionado? "_s, u"Borrar subconcepto"_s))
        return;
    try {
        borrar_subconcepto(ui->grilla->clave());
    } catch (const ErrorAlmacen& e) {
        avisar(e.descripcion, u"Borrar subconcepto de sellos"_s, Icono::informacion, e.motor);
    }
    buscar_subconceptos();
}
