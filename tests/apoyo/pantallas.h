// SPDX-License-Identifier: GPL-3.0-or-later
// The roads by which tests of several rooms get to their screens.
#pragma once

#include "apoyo/ventanas.h"
#include "manejo/manejo.h"

// A register of two agents, and an operation with two parties.
class Pantallas : public ConVentanas
{
protected:
    void SetUp() override
    {
        ConVentanas::SetUp();
        cnRtn.ejecutarGuion(
            "insert into SEL_TB_RTN_PADRON (SRTN_NRO, SRTN_NRO_REGNOTARIAL, SRTN_TITULAR_NOMBRE, SRTN_TITULAR_CUIT, SRTN_DOMICILIO, GLOC_ID) "
            "values (7, 7, 'ÁVILA', 27222333445, 'CALLE 2', null); update SEL_TB_RTN_PADRON set SRTN_DOMICILIO='CALLE 1' where SRTN_NRO=101;"_u);
    }
    QWidget* abrirOperacion(const QString& dj)
    {
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_RSOCIAL, SPIN_NACIONALIDAD, SPIN_PORCEXENTO) values "
            "(1, '%1', 1, '80', '20123456786', 'UNO', 'A', 50), (2, '%1', 1, '96', '22333444', 'DOS', 'A', null)"_u.arg(
                dj));
        QWidget* e = abrirEscritura(false);
        manejo::pulsar(e, "tlbDetalle"_u, "cancelar"_u);
        manejo::solapa(e, "SSTab1"_u, 1);
        manejo::pulsar(e, "tlbOp"_u, "agregar"_u);
        return manejo::formulario("frmDJ_detalle_op");
    }
};

// An operation whose item is chosen by its code.
class PantallasFormularios : public ConVentanas
{
protected:
    QWidget* abrirOperacion(const char* codigo)
    {
        QWidget* e = abrirEscritura(false);
        manejo::solapa(e, "SSTab1"_u, 1);
        manejo::pulsar(e, "tlbOp"_u, "agregar"_u);
        auto* f = manejo::formulario("frmDJ_detalle_op");
        manejo::teclear(f, "ctlCodS"_u, QLatin1StringView(codigo));
        manejo::pulsar(f, "tlb"_u, "guardar_op"_u);
        return f;
    }
    static void valor(QWidget* f, const char* monto)
    {
        manejo::pulsar(f, "tlbBI"_u, "nuevo"_u);
        manejo::escribir(f, "nroValorContractual"_u, QLatin1StringView(monto));
        manejo::pulsar(f, "tlbBI"_u, "guardar"_u);
    }
};
