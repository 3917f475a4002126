// SPDX-License-Identifier: GPL-3.0-or-later
// What the toolkit says by itself is in Spanish.

#include "apoyo/pantallas.h"
#include "application/traduccion.h"

#include <QCalendarWidget>
#include <QContextMenuEvent>
#include <QDateEdit>
#include <QFileDialog>
#include <QGroupBox>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QSet>
#include <QSpinBox>
#include <QTest>

namespace {

using Textos = QSet<QString>;

// The captions of a window and of what stands in it, not what a person fills in.
void anotar(QWidget* ventana, Textos& textos)
{
    QList<QWidget*> controles = ventana->findChildren<QWidget*>();
    controles << ventana;
    for (const QWidget* w : std::as_const(controles)) {
        textos << w->windowTitle() << w->toolTip();
        if (qobject_cast<const QLabel*>(w) || qobject_cast<const QAbstractButton*>(w))
            textos << w->property("text").toString();
        else if (qobject_cast<const QGroupBox*>(w))
            textos << w->property("title").toString();
        else if (const auto* s = qobject_cast<const QTabWidget*>(w))
            for (int i = 0; i < s->count(); ++i)
                textos << s->tabText(i);
        else if (const auto* c = qobject_cast<const QComboBox*>(w); c && c->objectName() != u"lookInCombo")
            for (int i = 0; i < c->count(); ++i)
                textos << c->itemText(i);
        else if (const auto* t = qobject_cast<const QHeaderView*>(w); t && t->model())
            for (int i = 0; i < t->count(); ++i)
                textos << t->model()->headerData(i, Qt::Horizontal).toString();
        const auto acciones = w->actions();
        for (const QAction* a : acciones)
            textos << a->text().section(u'\t', 0, 0);
    }
}

// Opens what blocks until it is closed, and takes down what it says.
void anotar_modal(const std::function<QWidget*()>& ventana, Textos& textos, const std::function<void()>& abrir)
{
    QTimer reloj;
    bool vista = false;
    QObject::connect(&reloj, &QTimer::timeout, &reloj, [&] {
        if (QWidget* w = ventana(); w && w->isVisible()) {
            vista = true;
            anotar(w, textos);
            w->close();
        }
    });
    reloj.start(2);
    abrir();
    EXPECT_TRUE(QTest::qWaitFor([&] { return vista; }));
}

void anotar_menu(QWidget* campo, Textos& textos)
{
    campo->show();
    anotar_modal(&QApplication::activePopupWidget, textos, [campo] {
        QContextMenuEvent evento(QContextMenuEvent::Mouse, {3, 3}, campo->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(campo, &evento);
    });
}

// All that a notary can see of the toolkit but the dialog for printing.
Textos textos_del_entorno()
{
    Textos textos;
    QMessageBox caja(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No | QMessageBox::Ok);
    caja.addButton(QMessageBox::Cancel);
    anotar(&caja, textos);
    for (const auto modo : {QFileDialog::AnyFile, QFileDialog::ExistingFile, QFileDialog::Directory}) {
        QFileDialog archivos;
        archivos.setFileMode(modo);
        archivos.setAcceptMode(modo == QFileDialog::AnyFile ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        anotar(&archivos, textos);
    }
    QLineEdit linea;
    QSpinBox numero;
    QDateEdit fecha;
    QPlainTextEdit texto;
    for (QWidget* campo : {static_cast<QWidget*>(&linea), static_cast<QWidget*>(&numero), static_cast<QWidget*>(&fecha),
                           texto.viewport()})
        anotar_menu(campo, textos);
    return textos;
}

Textos textos_de_impresion()
{
    Textos textos;
    QPrinter impresora;
    QPrintDialog impresion(&impresora);
    impresion.setOption(QAbstractPrintDialog::PrintPageRange);
    anotar(&impresion, textos);
    auto* propiedades = impresion.findChild<QPushButton*>("properties"_u);
    anotar_modal(&QApplication::activeModalWidget, textos, [propiedades] { propiedades->click(); });
    return textos;
}

// What it says once translated, when none of it is as it was.
Textos traducidos(Textos (*textos)(), int cuantos)
{
    const Textos original = textos();
    Textos nuevos;
    {
        QObject duenio;
        instalar_espanol(&duenio);
        nuevos = textos();
    }
    // Sizes of paper and units that are called the same in both languages, and words that are.
    const QRegularExpression igual(
        "^(Color|&No|.*(Extra|Plus)|Legal|Folio .*|Quarto|Super .|PRC .*|JIS .*|ANSI .|Didot .*|Cicero .*)$"_u);
    const QRegularExpression palabra("[A-Za-z]{3}"_u);
    QStringList ingles;
    for (const QString& t : original& nuevos)
        if (palabra.match(t).hasMatch() && !igual.match(t).hasMatch() && !t.contains(u'/'))
            ingles << t;
    EXPECT_GT(original.size(), cuantos);
    EXPECT_EQ(ingles.join(u'\n'), QString());
    return nuevos;
}

TEST(Espanol, NadaDelEntornoQuedaEnIngles)
{
    const Textos textos = traducidos(textos_del_entorno, 30);
    for (const char* t : {"&Sí", "&No", "Aceptar", "Cancelar", "&Aumentar"})
        EXPECT_TRUE(textos.contains(QString::fromUtf8(t))) << t;
}

TEST(Espanol, NadaDeLaImpresionQuedaEnIngles)
{
    const Textos textos = traducidos(textos_de_impresion, 100);
    for (const char* t : {"Avanzadas", "Impresión a doble faz"})
        EXPECT_TRUE(textos.contains(QString::fromUtf8(t))) << t;
}

// Months and days too, on a desktop of another language.
TEST_F(Pantallas, ElCalendarioHablaEspanol)
{
    const QLocale antes;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    MDIPrincipal ventana;
    QLocale::setDefault(antes);
    auto* fecha = new QDateEdit({2026, 1, 1}, &ventana);
    fecha->setCalendarPopup(true);
    EXPECT_EQ(fecha->calendarWidget()->locale().monthName(1), "enero"_u);
}

}  // namespace
