// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/ventanas.h"

#include "declarations/screens/frmDJ_buscar.h"
#include "manejo/manejo.h"

#include <QTest>

using namespace manejo;

void ConVentanas::SetUp()
{
    ConAlmacen::SetUp();
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_PADRON (SRTN_NRO, SRTN_NRO_REGNOTARIAL, SRTN_TITULAR_NOMBRE, SRTN_TITULAR_CUIT, GLOC_ID) "
        "values (101, 101, 'PÉREZ', 20123456786, 1)"_u);
    principal = std::make_unique<MDIPrincipal>();
    principal->resize(1200, 760);
    principal->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(principal.get()));
}

void ConVentanas::TearDown()
{
    principal.reset();
    for (Formulario* f : Formulario::cargados())
        delete f;
    ConAlmacen::TearDown();
}

QWidget* ConVentanas::abrirEscritura(bool nueva)
{
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    pulsar(lista, "tlbDJ"_u, "modificar"_u);
    auto* editor = formulario("frmDJ_editar");
    solapa(editor, "SSTab1"_u, 1);
    pulsar(editor, "tlbDetalle"_u, nueva ? "agregar"_u : "editar"_u);
    return formulario("frmDJ_detalle");
}

QString ConVentanas::botones(QWidget* form, const char* barra, const char* claves)
{
    QString s;
    for (const QString& c : QString::fromLatin1(claves).split(u' '))
        s += habilitado(form, QLatin1StringView(barra), c) ? u'1' : u'0';
    return s;
}
