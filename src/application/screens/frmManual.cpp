// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/screens/frmManual.h"

#include "application/buscar_manual.h"
#include "ui_frmManual.h"

#include <QFile>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QUrl>

using namespace Qt::StringLiterals;

// The pages are in a library, which does not load them by itself.
static void iniciar_manual()
{
    Q_INIT_RESOURCE(manual);
    Q_INIT_RESOURCE(imagenes_manual);
}

namespace {

const QString RAIZ = u"/manual/"_s;
const QString EXTENSION = u".html"_s;
constexpr int ANCHO_CONTENIDO = 290;
constexpr int DATO_PAGINA = Qt::UserRole;
constexpr int DATO_POSICION = Qt::UserRole + 1;

QString pagina_de(const QUrl& fuente)
{
    return fuente.path().mid(RAIZ.size()).chopped(EXTENSION.size());
}

QString leer(const QString& archivo)
{
    QFile f(u':' + RAIZ + archivo);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

}  // namespace

frmManual::frmManual() : ui(std::make_unique<Ui::frmManual>())
{
    iniciar_manual();
    ui->setupUi(this);
    // The program ends with its main window, whether somebody still reads or not.
    setAttribute(Qt::WA_QuitOnClose, false);
    ui->divisor->setStretchFactor(1, 1);
    ui->divisor->setSizes({ANCHO_CONTENIDO, width() - ANCHO_CONTENIDO});
    llenarArbol();
    conectar();
    ir({});
}

frmManual::~frmManual() = default;

void frmManual::llenarArbol()
{
    QTreeWidgetItem* parte = nullptr;
    for (const QString& linea : leer(u"contenido.tsv"_s).split(u'\n', Qt::SkipEmptyParts)) {
        const QString archivo = linea.section(u'\t', 0, 0);
        const QStringList titulo{linea.section(u'\t', 1)};
        if (archivo.isEmpty()) {
            parte = new QTreeWidgetItem(ui->arbol, titulo);
            parte->setExpanded(true);
            continue;
        }
        const QString pagina = archivo.chopped(EXTENSION.size());
        auto* hoja = parte ? new QTreeWidgetItem(parte, titulo) : new QTreeWidgetItem(ui->arbol, titulo);
        hoja->setData(0, DATO_PAGINA, pagina);
        hojas_[pagina] = hoja;
        paginas_ << pagina;
    }
}

void frmManual::conectar()
{
    connect(ui->arbol, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* hoja) {
        if (const QString pagina = hoja ? hoja->data(0, DATO_PAGINA).toString() : QString(); !pagina.isEmpty())
            ir(pagina);
    });
    connect(ui->pagina, &QTextBrowser::sourceChanged, this, &frmManual::seguirEnArbol);
    connect(ui->pagina, &QTextBrowser::backwardAvailable, ui->cmdAtras, &QWidget::setEnabled);
    connect(ui->pagina, &QTextBrowser::forwardAvailable, ui->cmdAdelante, &QWidget::setEnabled);
    connect(ui->cmdAtras, &QPushButton::clicked, ui->pagina, &QTextBrowser::backward);
    connect(ui->cmdAdelante, &QPushButton::clicked, ui->pagina, &QTextBrowser::forward);
    connect(ui->txtBuscar, &QLineEdit::textChanged, this, &frmManual::buscar);
    connect(ui->txtBuscar, &QLineEdit::returnPressed, this, [this] {
        if (ui->lstHallados->count() > 0)
            ui->lstHallados->setCurrentRow((ui->lstHallados->currentRow() + 1) % ui->lstHallados->count());
    });
    connect(ui->lstHallados, &QListWidget::currentRowChanged, this, &frmManual::abrirHallado);
    connect(ui->lstHallados, &QListWidget::itemClicked, this, &frmManual::abrirHallado);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, ui->txtBuscar, [this] {
        ui->txtBuscar->setFocus();
        ui->txtBuscar->selectAll();
    });
    connect(new QShortcut(QKeySequence::Back, this), &QShortcut::activated, ui->pagina, &QTextBrowser::backward);
    connect(new QShortcut(QKeySequence::Forward, this), &QShortcut::activated, ui->pagina, &QTextBrowser::forward);
}

bool frmManual::existe(const QString& pagina)
{
    iniciar_manual();
    return QFile::exists(u':' + RAIZ + pagina + EXTENSION);
}

QString frmManual::actual() const
{
    return pagina_de(ui->pagina->source());
}

void frmManual::ir(const QString& pagina)
{
    const QString nombre = hojas_.contains(pagina) ? pagina : paginas_.value(0);
    if (ui->pagina->source().isEmpty() || actual() != nombre)
        ui->pagina->setSource(QUrl(u"qrc:"_s + RAIZ + nombre + EXTENSION));
}

// While the browser tells its change, its own source is still the page of before.
void frmManual::seguirEnArbol(const QUrl& fuente)
{
    const QSignalBlocker sin_ir(ui->arbol);
    if (QTreeWidgetItem* hoja = hojas_.value(pagina_de(fuente))) {
        ui->arbol->setCurrentItem(hoja);
        ui->arbol->scrollToItem(hoja);
    }
}

const QString& frmManual::textoDe(const QString& pagina)
{
    QString& texto = textos_[pagina];
    if (texto.isEmpty()) {
        QTextDocument doc;
        doc.setHtml(leer(pagina + EXTENSION));
        texto = doc.toPlainText();
    }
    return texto;
}

void frmManual::buscar()
{
    const QString buscado = ui->txtBuscar->text();
    {
        const QSignalBlocker sin_abrir(ui->lstHallados);
        ui->lstHallados->clear();
        for (const QString& pagina : std::as_const(paginas_))
            for (const LineaHallada& l : lineas_con(textoDe(pagina), buscado)) {
                auto* linea = new QListWidgetItem(hojas_[pagina]->text(0) + u'\n' + l.contexto, ui->lstHallados);
                linea->setData(DATO_PAGINA, pagina);
                linea->setData(DATO_POSICION, l.posicion);
            }
    }
    const int hallados = ui->lstHallados->count();
    ui->lstHallados->setVisible(hallados > 0);
    ui->lblHallados->setText(buscado.trimmed().isEmpty() ? QString() : u"Hallados: %1"_s.arg(hallados));
    ui->pagina->marcar(hallados > 0 ? buscado : QString());
}

void frmManual::abrirHallado()
{
    const QListWidgetItem* linea = ui->lstHallados->currentItem();
    if (!linea)
        return;
    ir(linea->data(DATO_PAGINA).toString());
    ui->pagina->irA(linea->data(DATO_POSICION).toInt());
}
