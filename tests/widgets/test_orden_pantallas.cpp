// SPDX-License-Identifier: GPL-3.0-or-later
// The keyboard on every form: the tab key goes as one reads, and no access key stands for two things.

#include "agents/screens/frmRTN_buscar.h"
#include "apoyo/catalogo.h"
#include "apoyo/pantallas.h"
#include "application/screens/frmAcercaDe.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "printing/screens/frmReportes.h"
#include "widgets/barra.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTabWidget>

namespace {

using namespace manejo;

// The control that an inner field belongs to, or itself.
QWidget* entero(QWidget* w)
{
    for (QWidget* p = w; p && !qobject_cast<Formulario*>(p); p = p->parentWidget())
        if (p->inherits("ctlNumero") || p->inherits("ctlCombo") || qobject_cast<QComboBox*>(p)
            || qobject_cast<QAbstractSpinBox*>(p))
            return p;
    return w;
}

bool es_caja(const QWidget* w)
{
    return qobject_cast<const QGroupBox*>(w) || qobject_cast<const QTabWidget*>(w)
           || qobject_cast<const QStackedWidget*>(w->parentWidget()) || w->metaObject() == &QFrame::staticMetaObject;
}

// The controls at which the tab key stops, in its order.
QList<QWidget*> paradas(QWidget* form)
{
    QList<QWidget*> lista;
    for (QWidget* w = form->nextInFocusChain(); w != form; w = w->nextInFocusChain()) {
        const auto* linea = qobject_cast<QLineEdit*>(w);
        if (!form->isAncestorOf(w) || !w->isVisible() || !w->isEnabled() || !(w->focusPolicy() & Qt::TabFocus)
            || w->focusProxy())
            continue;
        EXPECT_FALSE(linea && linea->isReadOnly() && !entero(w)->inherits("ctlCombo"))
            << form->objectName().toStdString() << ' ' << entero(w)->objectName().toStdString() << " only shows";
        if (QWidget* e = entero(w); lista.isEmpty() || lista.constLast() != e)
            lista << e;
    }
    return lista;
}

// What of a box a control stands in: the outermost box below it, or the control itself.
QWidget* parte_de(QWidget* control, const QWidget* caja)
{
    QWidget* parte = control;
    for (QWidget* p = control->parentWidget(); p != caja; p = p->parentWidget())
        if (es_caja(p))
            parte = p;
    return parte;
}

bool va_antes(const QWidget* form, const QWidget* a, const QWidget* b)
{
    const QRect ra(a->mapTo(form, QPoint()), a->size());
    const QRect rb(b->mapTo(form, QPoint()), b->size());
    const int bajo = std::min(ra.height(), rb.height());
    const int comun = std::min(ra.bottom(), rb.bottom()) - std::max(ra.top(), rb.top());
    const bool misma_fila = es_caja(a) || es_caja(b) ? 2 * comun > bajo
                                                     : 2 * std::abs(ra.center().y() - rb.center().y()) < bajo;
    return misma_fila ? ra.left() < rb.left() : ra.center().y() < rb.center().y();
}

QString nombre(const QWidget* w)
{
    return w->objectName().isEmpty() ? QLatin1StringView(w->metaObject()->className()) : w->objectName();
}

// What is out of order in a box: parts in the wrong order, and boxes that are left and entered again.
void revisar(QWidget* form, QWidget* caja, const QList<QWidget*>& controles, QStringList& fallas)
{
    QList<QWidget*> partes;
    QHash<QWidget*, QList<QWidget*>> dentro;
    for (QWidget* c : controles) {
        QWidget* parte = parte_de(c, caja);
        dentro[parte] << c;
        if (!partes.isEmpty() && partes.constLast() == parte)
            continue;
        if (partes.contains(parte))
            fallas << "%1: %2 vuelve a entrar en %3"_u.arg(nombre(form), nombre(c), nombre(parte));
        else if (!partes.isEmpty() && !va_antes(form, partes.constLast(), parte))
            fallas << "%1: %2 va después de %3"_u.arg(nombre(form), nombre(partes.constLast()), nombre(parte));
        partes << parte;
    }
    for (auto it = dentro.cbegin(); it != dentro.cend(); ++it)
        if (it.key() != it.value().constFirst())
            revisar(form, it.key(), it.value(), fallas);
}

// Runs the check on the form with each page of its tabs in front.
QString desorden(QWidget* form)
{
    QStringList fallas;
    auto* solapas = form->findChild<QTabWidget*>();
    const int paginas = solapas ? solapas->count() : 1;
    const int antes = solapas ? solapas->currentIndex() : 0;
    for (int i = 0; i < paginas; ++i) {
        if (solapas)
            solapas->setCurrentIndex(i);
        QApplication::processEvents();
        const auto controles = paradas(form);
        EXPECT_FALSE(controles.isEmpty()) << nombre(form).toStdString();
        revisar(form, form, controles, fallas);
    }
    if (solapas)
        solapas->setCurrentIndex(antes);
    fallas.removeDuplicates();
    return fallas.join(u'\n');
}

// The access keys of the form that stand twice, or for an entry of the main menu as well.
QString teclas_repetidas(QWidget* form)
{
    QHash<QKeySequence, QString> duenios;
    QStringList fallas;
    const auto anotar = [&](const QKeySequence& tecla, const QString& quien) {
        if (tecla.isEmpty())
            return;
        if (duenios.contains(tecla))
            fallas << "%1: %2 de %3 y de %4"_u.arg(nombre(form), tecla.toString(), duenios[tecla], quien);
        duenios[tecla] = quien;
    };
    const auto menus = form->window()->findChild<QMenuBar*>()->actions();
    for (const QAction* a : menus)
        if (a->isVisible())
            anotar(QKeySequence::mnemonic(a->text()), a->text());
    for (const auto* barra : form->findChildren<BarraHerramientas*>())
        for (const QAction* a : barra->actions())
            anotar(a->shortcut(), a->text());
    for (const auto* b : form->findChildren<QAbstractButton*>())
        if (!b->inherits("QToolButton"))
            anotar(QKeySequence::mnemonic(b->text()), b->text());
    for (const auto* l : form->findChildren<QLabel*>())
        if (l->buddy())
            anotar(QKeySequence::mnemonic(l->text()), l->text());
    return fallas.join(u'\n');
}

void probar(QWidget* form)
{
    EXPECT_EQ(desorden(form), QString());
    EXPECT_EQ(teclas_repetidas(form), QString());
}

TEST_F(PantallasCatalogo, OrdenDelCatalogo)
{
    QWidget* lista = catalogo();
    probar(lista);
    QWidget* f = editor(5707001);
    probar(f);
    pulsar(f, "toolbar"_u, "editar"_u);
    // All that a box opens.
    for (auto* b : f->findChildren<QCheckBox*>())
        if (b->isEnabled() && !b->isChecked())
            b->click();
    probar(f);
    solapa(f, "SSTab1"_u, 1);
    clic(f, "cmdElegirTCBI"_u);
    auto* tipos = formulario("frmTiposCalculoBI");
    probar(tipos);
    EXPECT_TRUE(tipos->descargar());
    clic(f, "cmdGaranCump_generar"_u);
    auto* mascara = formulario("frmCrearMascara");
    probar(mascara);
    EXPECT_TRUE(mascara->descargar());
    solapa(f, "SSTab1"_u, 2);
    pulsar(f, "tlbAlicuotas"_u, "alta"_u);
    auto* alicuota = formulario("frmEditarAlicuota");
    clic(alicuota, "chkValorHasta"_u);
    probar(alicuota);
    EXPECT_TRUE(alicuota->descargar());
    solapa(f, "SSTab1"_u, 3);
    pulsar(f, "tlbRoles"_u, "alta"_u);
    auto* rol = formulario("frmEditarRol");
    clic(rol, "optEsporadico"_u);
    clic(rol, "chkSSUBAtributo"_u);
    probar(rol);
}

TEST_F(PantallasCatalogo, OrdenDeLosModulos)
{
    QWidget* f = editor(dato("select min(SSUB_ID) from SEL_TB_MODULOS"_u).toInt());
    pulsar(f, "toolbar"_u, "editar"_u);
    solapa(f, "SSTab1"_u, 2);
    probar(f);
    pulsar(f, "tlbModulos"_u, "alta"_u);
    auto* modulo = formulario("frmEditarModulo");
    clic(modulo, "chkValorHasta"_u);
    probar(modulo);
}

TEST_F(Pantallas, OrdenDeAgentesYDeclaraciones)
{
    auto* agentes = cargar<frmRTN_buscar>();
    agentes->mostrar();
    probar(agentes);
    pulsar(agentes, "tlbRTN"_u, "alta"_u);
    probar(formulario("frmRTN_editar"));
    EXPECT_TRUE(formulario("frmRTN_editar")->descargar());
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    probar(lista);
    pulsar(lista, "tlbDJ"_u, "modificar"_u);
    auto* editor = formulario("frmDJ_editar");
    probar(editor);
    if (habilitado(editor, "tlbDJ"_u, "editar"_u))
        pulsar(editor, "tlbDJ"_u, "editar"_u);
    solapa(editor, "SSTab1"_u, 0);
    clic(editor, "chkCambiarFechaVenc"_u);
    probar(editor);
    auto* reporte = cargar<frmReportes>();
    reporte->DJ(dj, "9DCABBEC95C60F7B69846C4A8513C009"_u);
    reporte->mostrar();
    probar(reporte);
    auto* acerca = cargar<frmAcercaDe>();
    acerca->mostrar();
    probar(acerca);
}

TEST_F(Pantallas, OrdenDeUnaDJNueva)
{
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    pulsar(lista, "tlbDJ"_u, "nueva"_u);
    probar(formulario("frmDJ_editar"));
}

TEST_F(Pantallas, OrdenDeUnaEscritura)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    QWidget* e = abrirEscritura(false);
    probar(e);
    if (habilitado(e, "tlbDetalle"_u, "editar"_u))
        pulsar(e, "tlbDetalle"_u, "editar"_u);
    probar(e);
    pulsar(e, "tlbInm"_u, "agregar"_u);
    auto* inmueble = formulario("frmDJ_editar_inmueble");
    probar(inmueble);
    EXPECT_TRUE(inmueble->descargar());
    pulsar(e, "tlbPartes"_u, "agregar"_u);
    auto* parte = formulario("frmDJ_detalle_parte");
    probar(parte);
    clic(parte, "chkExento"_u);
    clic(parte, "optExtranjera"_u);
    elegir(parte, "cboCodigoPais"_u, "CHILE - Física"_u);
    probar(parte);
    pulsar(parte, "tlb"_u, "buscar"_u);
    auto* busca = formulario("frmDJ_buscar_parte");
    elegir(busca, "cboTipoDoc"_u, "CUIT"_u);
    probar(busca);
}

TEST_F(Pantallas, OrdenDeUnaOperacion)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    QWidget* f = abrirOperacion(dj);
    probar(f);
    teclear(f, "ctlCodS"_u, "1"_u);
    pulsar(f, "tlb"_u, "guardar_op"_u);
    pulsar(f, "tlbBI"_u, "nuevo"_u);
    elegir(f, "cboMoneda"_u, "DOLARES"_u);
    probar(f);
    clic(f, "cmdDetallesSSUB"_u);
    probar(formulario("frmDetalleSSUB"));
    EXPECT_TRUE(formulario("frmDetalleSSUB")->descargar());
    solapa(f, "SSTab1"_u, 1);
    probar(f);
    clic(f, "cmdPasos"_u);
    probar(formulario("frmPasos"));
}

}  // namespace
