// SPDX-License-Identifier: GPL-3.0-or-later
// Forms of the register, of real estate, of deeds that are not reached, and the finer points of the
// operation's screen.

#include "apoyo/ventanas.h"
#include "computation/screens/frmDJ_detalle_op.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "deeds/screens/frmDJ_detalle.h"
#include "agents/screens/frmRTN_buscar.h"
#include "manejo/manejo.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

namespace {

using namespace manejo;

class PantallasFormularios : public ConVentanas
{
protected:
    QWidget* abrirOperacion(const char* codigo)
    {
        QWidget* e = abrirEscritura(false);
        solapa(e, "SSTab1"_u, 1);
        pulsar(e, "tlbOp"_u, "agregar"_u);
        auto* f = formulario("frmDJ_detalle_op");
        teclear(f, "ctlCodS"_u, QLatin1StringView(codigo));
        pulsar(f, "tlb"_u, "guardar_op"_u);
        return f;
    }
    static void valor(QWidget* f, const char* monto)
    {
        pulsar(f, "tlbBI"_u, "nuevo"_u);
        escribir(f, "nroValorContractual"_u, QLatin1StringView(monto));
        pulsar(f, "tlbBI"_u, "guardar"_u);
    }
};

TEST_F(PantallasFormularios, RegistroDeAgentes)
{
    auto* lista = cargar<frmRTN_buscar>();
    lista->mostrar();
    pulsar(lista, "tlbRTN"_u, "modificar"_u);
    auto* f = formulario("frmRTN_editar");
    EXPECT_EQ(texto(f, "cboLocalidad"_u), "PUERTO MARVEN"_u);
    escribir(f, "txtTitular"_u, "d'angelo ñandú"_u);
    escribir(f, "txtEmail"_u, "o'x@y"_u);
    EXPECT_EQ(texto(f, "txtTitular"_u) + texto(f, "txtEmail"_u), "D'ANGELO ÑANDÚox@y"_u);
    Cajas::durante({{"Ingrese el domicilio del titular"_u, "Modificar agente de retención"_u, true,
                     QMessageBox::Information, true}},
                   [&] { pulsar(f, "tlb"_u, "aceptar"_u); });
    EXPECT_EQ(f->focusWidget(), control(f, "txtDomicilio"_u));
    escribir(f, "txtDomicilio"_u, "calle 1"_u);
    escribir(f, "txtCodPostal"_u, "9500"_u);
    escribir(f, "nroRegNotarial"_u, "777"_u);  // the number of a stored agent stays
    pulsar(f, "tlb"_u, "aceptar"_u);
    EXPECT_EQ(filas("select SRTN_NRO, SRTN_TITULAR_NOMBRE, SRTN_DOMICILIO, SRTN_EMAIL from SEL_TB_RTN_PADRON"_u),
              "101|D'ANGELO ÑANDÚ|CALLE 1|ox@y"_u);
    EXPECT_EQ(en_grilla(lista, "flxRTN"_u, 0, 1), "D'ANGELO ÑANDÚ"_u);
    const CajaEsperada pregunta{"¿Está seguro que desea eliminar el agente de retención seleccionado?"_u,
                                "Borrar agente de retención"_u, false, QMessageBox::Question, true};
    Cajas::durante({pregunta}, [&] { pulsar(lista, "tlbRTN"_u, "borrar"_u); });
    EXPECT_EQ(manejo::filas(lista, "flxRTN"_u), 1);
    CajaEsperada si = pregunta;
    si.si = true;
    Cajas::durante({si}, [&] { pulsar(lista, "tlbRTN"_u, "borrar"_u); });
    EXPECT_FALSE(habilitado(lista, "tlbRTN"_u, "modificar"_u));
}

TEST_F(PantallasFormularios, InmuebleDeOtraJurisdiccion)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    QWidget* e = abrirEscritura(false);
    pulsar(e, "tlbInm"_u, "agregar"_u);
    auto* f = formulario("frmDJ_editar_inmueble");
    escribir(f, "txtINM_partida"_u, "1a2"_u);
    Cajas::durante({{"Indique la ubicación del inmueble"_u, "Alta de inmueble"_u}},
                   [&] { pulsar(f, "tlb"_u, "aceptar"_u); });
    elegir(f, "cboProv"_u, "CHACO"_u);
    elegir(f, "cboU_caracter"_u, "RURAL"_u);
    EXPECT_EQ(texto(f, "cboProv"_u), "MARVEN"_u);  // whatever it held
    elegir(f, "cboU_caracter"_u, "EXTRAÑA JURISDICCION"_u);
    EXPECT_EQ(texto(f, "cboProv"_u), QString());
    elegir(f, "cboProv"_u, "MENDOZA"_u);
    elegir(f, "cboU_caracter"_u, "EXTRAÑA JURISDICCION"_u);
    EXPECT_EQ(texto(f, "cboProv"_u), "MENDOZA"_u);
    elegir(f, "cboLoc"_u, "MENDOZA"_u);
    Cajas::durante({{"Indique la valuación fiscal del inmueble"_u}}, [&] { pulsar(f, "tlb"_u, "aceptar"_u); });
    escribir(f, "nroValFiscal"_u, "1234.5"_u);
    pulsar(f, "tlb"_u, "aceptar"_u);
    EXPECT_EQ(
        filas(
            "select SEII_PARTIDA, SEII_VAL_FISCAL, SEII_UBIC_CIUDAD, SEII_UBIC_PROVINCIA, GTUB_ID, SEII_UBIC_LOTE from SEL_TB_RTN_INS_INMUEBLES"_u),
        "12|1234.5|MENDOZA|MENDOZA|4|null"_u);
    pulsar(e, "tlbInm"_u, "editar"_u);
    f = formulario("frmDJ_editar_inmueble");
    EXPECT_EQ(texto(f, "cboLoc"_u) + texto(f, "nroValFiscal"_u), "MENDOZA1.234,50"_u);
    escribir(f, "txtU_Lote"_u, "L1"_u);
    pulsar(f, "tlb"_u, "cancelar"_u);
    EXPECT_EQ(dato("select SEII_UBIC_LOTE from SEL_TB_RTN_INS_INMUEBLES"_u), "null"_u);
    Cajas::durante({{"¿Esta seguro de borrar el inmueble seleccionado?"_u, "Borrar inmueble"_u}},
                   [&] { pulsar(e, "tlbInm"_u, "quitar"_u); });
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_INS_INMUEBLES"_u), "0"_u);
}

TEST_F(PantallasFormularios, EscrituraNoAlcanzadaPorOtroMotivo)
{
    const QString dj = nueva_dj();
    QWidget* f = abrirEscritura(true);
    escribir(f, "txtNroEscritura"_u, "5"_u);
    escribir(f, "txtFolio"_u, "5"_u);
    escribir(f, "nroDia"_u, "5"_u);
    elegir(f, "cboAlcanzado"_u, "No alcanzado"_u);
    EXPECT_FALSE(control(f, "txtNoAlcanzado_Otro"_u)->isEnabled());
    elegir(f, "cboDesc_NoAlcanzado"_u, "Otro"_u);
    EXPECT_EQ(f->focusWidget(), control(f, "txtNoAlcanzado_Otro"_u));
    Cajas::durante({{"Ingrese la descripcion de la operación No Alcanzada"_u}},
                   [&] { pulsar(f, "tlbDetalle"_u, "aceptar"_u); });
    escribir(f, "txtNoAlcanzado_Otro"_u, "Un motivo"_u);
    pulsar(f, "tlbDetalle"_u, "aceptar"_u);
    EXPECT_EQ(filas("select SEDD_ESCRITURA_NRO, SEDD_ALCANZADO, SNAD_ID, SNAD_DESC_OTRO from SEL_TB_RTN_DETDJ"_u),
              "5|N|9|Un motivo"_u);
    EXPECT_FALSE(control(f, "fraOperaciones"_u)->isEnabled());
    pulsar(f, "tlbDetalle"_u, "editar"_u);
    escribir(f, "txtObs"_u, "no se guarda"_u);
    pulsar(f, "tlbDetalle"_u, "cancelar"_u);
    EXPECT_EQ(texto(f, "txtObs"_u), QString());
    pulsar(f, "tlbDetalle"_u, "salir"_u);  // nothing is missing, nothing is asked
    EXPECT_EQ(en_grilla(formulario("frmDJ_editar"), "flxOp"_u, 0, 4), "No alcanzado"_u);
    EXPECT_EQ(dj.size(), 17);
}

TEST_F(PantallasFormularios, ObligacionAccesoriaYPoliza)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    QWidget* f = abrirOperacion("11");
    valor(f, "1000");
    clic(f, "chkObligAccesoria"_u);
    elegir(f, "cboObligAccesoria_modo"_u, "Prenda"_u);  // not in the item's mask: it adds nothing
    clic(f, "optObligAccesoria_fijo"_u);
    escribir(f, "nroObligAccesoria"_u, "500"_u);
    EXPECT_EQ(texto(f, "nroBaseImponible"_u).remove(u'.'), "1000,00"_u);
    EXPECT_FALSE(control(f, "txtObligAccesoria_poliza"_u)->isVisible());
    elegir(f, "cboObligAccesoria_modo"_u, "Seguro de Caución"_u);
    escribir(f, "txtObligAccesoria_poliza"_u, "P-1"_u);
    solapa(f, "SSTab1"_u, 1);
    EXPECT_EQ(texto(f, "nroBaseImponible"_u).remove(u'.'), "1500,00"_u);
    solapa(f, "SSTab1"_u, 0);
    clic(f, "optObligAccesoria_porc"_u);
    escribir(f, "nroObligAccesoria"_u, "10"_u);
    EXPECT_EQ(texto(f, "nroBaseImponible"_u).remove(u'.'), "1100,00"_u);
    cnRtn.ejecutar("update SEL_TB_ROLES set SROL_REQUERIDO=0"_u);
    static_cast<frmDJ_detalle_op*>(f)->SeleccionarSubconcepto(5707011);
    EXPECT_EQ(texto(f, "ctlCodS"_u), "11"_u);  // the code by its place in the identifier
    clic(f, "chkObligAccesoria"_u);
    clic(f, "chkObligAccesoria"_u);
    elegir(f, "cboObligAccesoria_modo"_u, "Seguro de Caución"_u);
    pulsar(f, "tlb"_u, "guardar_det"_u);
    EXPECT_EQ(
        filas(
            "select SINS_OBLIG_ACCESORIA_FOP, SINS_OBLIG_ACCESORIA_VALOR, SINS_OBLIG_ACCESORIA_MODO, SINS_OBLIG_ACCESORIA_POLIZA from SEL_TB_RTN_INS_OPERACIONES"_u),
        "P|10.0|1|P-1"_u);
    clic(f, "cmdDetallesSSUB"_u);
    auto* detalle = formulario("frmDetalleSSUB");
    EXPECT_EQ(texto(detalle, "txtCodS"_u) + texto(detalle, "txtDescripcion"_u), "11CONSTITUCION DE HIPOTECA"_u);
    clic(detalle, "cmdCerrar"_u);
    pulsar(f, "tlb"_u, "salir"_u);
    pulsar(formulario("frmDJ_detalle"), "tlbOp"_u, "editar"_u);
    f = formulario("frmDJ_detalle_op");
    // The column holds 1 or 0: the first mode of that kind shows, not the one that was chosen.
    EXPECT_EQ(texto(f, "cboObligAccesoria_modo"_u), "Fianza"_u);
}

// The keys over the grid of roles: which editor is open, where the grid stands, what it holds.
TEST_F(PantallasFormularios, TeclasEnLaGrillaDeRoles)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    for (const char* id : {"1", "2"})
        cnRtn.ejecutar("insert into SEL_TB_RTN_INS_PARTES (SEDJ_NRO, SEDD_ID, SPIN_ID, GTDC_ID, SPIN_CUIT_EN_TRAMITE,"
                       " SPIN_RSOCIAL, SPIN_NACIONALIDAD) values ('%1', 1, %2, '80', 1, 'P', 'A')"_u.arg(
                           dj, QLatin1StringView(id)));
    QWidget* f = abrirOperacion("1");
    solapa(f, "SSTab1"_u, 2);
    auto* grilla = f->findChild<QTableView*>("flxPartes"_u);
    auto* lista = grilla->findChild<QComboBox*>("cboRoles"_u);
    auto* obs = grilla->findChild<QLineEdit*>("txtRolObs"_u);
    const auto estado = [&] {
        const QModelIndex i = grilla->currentIndex();
        QString abierto = "-"_u;
        if (lista->isVisible())
            abierto = "lista "_u + lista->currentText();
        else if (obs->isVisible())
            abierto = "obs "_u + obs->text() + u'/' + obs->selectedText();
        return "%1,%2 %3"_u.arg(QString::number(i.row()), QString::number(i.column()), abierto);
    };
    struct K
    {
        Qt::Key tecla;
        const char* estado;  // the cell, and the editor over it with its text and what is selected of it
    };
    celda(f, "flxPartes"_u, 0, 6);
    for (const K& k : {
             K{Qt::Key_Escape, "0,6 -"},
             K{Qt::Key_X, "0,6 obs x/"},
             K{Qt::Key_Y, "0,6 obs xy/"},
             K{Qt::Key_Left, "0,6 obs xy/"},
             K{Qt::Key_Home, "0,6 obs xy/"},
             K{Qt::Key_Left, "0,5 lista "},      // at the start of the text it goes to the next cell
             K{Qt::Key_Right, "0,6 obs xy/xy"},  // which wrote what was typed
             K{Qt::Key_Right, "0,7 -"},          // no editor there
             K{Qt::Key_A, "0,7 -"},
             K{Qt::Key_Down, "1,7 -"},
             K{Qt::Key_Left, "1,6 -"},
             K{Qt::Key_Z, "1,6 obs z/"},
             K{Qt::Key_Down, "1,6 obs z/"},  // the last row
             K{Qt::Key_Up, "0,6 obs xy/xy"},
             K{Qt::Key_Delete, "0,6 obs /"},
             K{Qt::Key_Escape, "0,6 -"},  // dropped: the cell keeps its text
             K{Qt::Key_Down, "1,6 obs z/z"},
             K{Qt::Key_Up, "0,6 obs xy/xy"},
             K{Qt::Key_Return, "0,6 -"},
             K{Qt::Key_Left, "0,5 -"},
             K{Qt::Key_Space, "0,5 lista "},
             K{Qt::Key_Left, "0,0 -"},  // the column of the identifiers is hidden
         }) {
        QTest::keyClick(f->focusWidget(), k.tecla);
        QApplication::processEvents();
        EXPECT_EQ(estado(), QString::fromUtf8(k.estado));
    }
    EXPECT_EQ(en_grilla(f, "flxPartes"_u, 0, 6) + en_grilla(f, "flxPartes"_u, 1, 6), "xyz"_u);
}

TEST_F(PantallasFormularios, PrestamoYValoresBorrados)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 1, 1, 1, 1);
    for (const int id : {1, 2})
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_INMUEBLES (SEDJ_NRO, SEDD_ID, SEII_ID, SEII_PARTIDA, SEII_VAL_FISCAL) values ('%1', 1, %2, '5', %3)"_u
                .arg(dj)
                .arg(id)
                .arg(id * 1000));
    QWidget* f = abrirOperacion("6");
    valor(f, "5000");
    Cajas::durante({{"Ingrese la valuación fiscal"_u}}, [&] { pulsar(f, "tlb"_u, "guardar_det"_u); });
    clic(f, "cmdBienes"_u);
    celda(f, "flxInm"_u, 1, 1);
    EXPECT_EQ(texto(f, "lblValuacionFiscal"_u), "Valuación fiscal - Val.Fiscal: $2.000,00"_u);
    Cajas::durante({{"Ingrese el monto de la hipoteca"_u}}, [&] { pulsar(f, "tlb"_u, "guardar_det"_u); });
    escribir(f, "nroHipoteca"_u, "6000"_u);
    // Both the base and the tax are computed on the change of the tab, and each says it.
    const CajaEsperada prestamo{"El préstamo no puede ser mayor que el precio de venta"_u, "Atención"_u};
    Cajas::durante({prestamo, prestamo}, [&] { solapa(f, "SSTab1"_u, 1); });
    EXPECT_EQ(texto(f, "ctlBaseImponiblePesos"_u), "0,00"_u);
    Cajas::durante({prestamo, prestamo}, [&] { solapa(f, "SSTab1"_u, 0); });
    escribir(f, "nroHipoteca"_u, "1000"_u);
    solapa(f, "SSTab1"_u, 1);
    EXPECT_EQ(texto(f, "ctlBaseImponiblePesos"_u), "4.000,00"_u);
    solapa(f, "SSTab1"_u, 0);
    pulsar(f, "tlbBI"_u, "editar"_u);
    EXPECT_EQ(texto(f, "nroValorContractual"_u).remove(u'.'), "5000,00"_u);
    escribir(f, "nroValorContractual"_u, "3000"_u);
    pulsar(f, "tlbBI"_u, "cancelar"_u);
    EXPECT_EQ(dato("select SVCI_VALOR_CONTRACTUAL from SEL_TB_RTN_INS_VC"_u), "5000.0"_u);
    Cajas::durante(
        {{"Esta seguro que desea borrar el valor contractual seleccionado?"_u, "Borrar valor contractual"_u}},
        [&] { pulsar(f, "tlbBI"_u, "borrar"_u); });
    EXPECT_EQ(texto(f, "nroTotalVC"_u), "0,00"_u);
    EXPECT_FALSE(habilitado(f, "tlbBI"_u, "borrar"_u));
}

TEST_F(PantallasFormularios, RectificarYCancelarNoCopiaDeNuevo)
{
    nueva_dj();
    auto* lista = cargar<frmDJ_buscar>();
    lista->mostrar();
    pulsar(lista, "tlbDJ"_u, "rectificar"_u);
    auto* f = formulario("frmDJ_editar");
    EXPECT_EQ(f->windowTitle() + texto(f, "cboRectificativa"_u), "Rectificar DJ1"_u);
    pulsar(f, "tlbDJ"_u, "editar"_u);
    escribir(f, "txtObs"_u, "x"_u);
    pulsar(f, "tlbDJ"_u, "cancelar"_u);
    EXPECT_EQ(texto(f, "txtObs"_u), QString());
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_CABDJ"_u), "2"_u);
    pulsar(f, "tlbDJ"_u, "salir"_u);
    EXPECT_EQ(manejo::filas(lista, "flx"_u), 2);
}

}  // namespace
