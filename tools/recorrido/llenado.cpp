// SPDX-License-Identifier: GPL-3.0-or-later
// How each form is filled.

#include "recorrido/mes.h"

#include "recorrido/pasos_catalogo.h"
#include "widgets/formulario.h"

#include <QFile>

using namespace Qt::StringLiterals;

using namespace manejo;

void Mes::escritura(const Papel& p)
{
    pulsar(formulario("frmDJ_editar"), u"tlbDetalle"_s, u"agregar"_s);
    auto* f = formulario("frmDJ_detalle");
    escribir(f, u"txtNroEscritura"_s, QString::fromUtf8(p.nro));
    escribir(f, u"txtFolio"_s, QString::fromUtf8(p.folio));
    escribir(f, u"nroDia"_s, QString::fromUtf8(p.dia));
    elegir(f, u"cboDET_Estado"_s, QString::fromUtf8(p.estado));
    if (p.motivo) {
        elegir(f, u"cboAlcanzado"_s, u"No alcanzado"_s);
        elegir(f, u"cboDesc_NoAlcanzado"_s, QString::fromUtf8(p.motivo));
    }
    if (p.testimonio) {
        const QString archivo = g_.carpeta() + u'/' + QString::fromUtf8(p.testimonio);
        QFile pdf(archivo);
        if (!pdf.open(QIODevice::WriteOnly) || pdf.write("%PDF-1.4\n") < 0)
            throw Inesperado(u"no se pudo escribir "_s + archivo);
        pdf.close();
        escribir(f, u"txtTestimonio"_s, archivo);
    }
}

void Mes::aceptarEscritura(const QList<CajaEsperada>& cajas)
{
    auto* f = formulario("frmDJ_detalle");
    Cajas::durante(cajas, [&] { pulsar(f, u"tlbDetalle"_s, u"aceptar"_s); });
}

void Mes::salirDeEscritura(const QList<CajaEsperada>& cajas)
{
    Cajas::durante(cajas, [&] { pulsar(formulario("frmDJ_detalle"), u"tlbDetalle"_s, u"salir"_s); });
}

void Mes::parte(const char* sociedad, const char* doc, const char* nro, const char* nombre, const char* exento)
{
    pulsar(formulario("frmDJ_detalle"), u"tlbPartes"_s, u"agregar"_s);
    auto* f = formulario("frmDJ_detalle_parte");
    clic(f, u"optArgentina"_s);
    elegir(f, u"cboTipoSociedad"_s, QString::fromUtf8(sociedad));
    elegir(f, u"cboTipoDoc"_s, QString::fromUtf8(doc));
    escribir(f, u"nroDoc"_s, QString::fromUtf8(nro));
    escribir(f, u"txtRazonSocial"_s, QString::fromUtf8(nombre));
    escribir(f, u"txtDomicilio"_s, u"los álamos 15"_s);
    elegir(f, u"cboProv"_s, u"MARVEN"_s);
    elegir(f, u"cboLoc"_s, u"EL SAUCE"_s);
    if (exento) {
        clic(f, u"chkExento"_s);
        escribir(f, u"nroExencionPorc"_s, QString::fromUtf8(exento));
    }
    if (fotoParte_++ == 0)
        g_.foto(u"parte"_s);
    pulsar(f, u"tlb"_s, u"aceptar"_s);
}

void Mes::extranjero(const char* pais, const char* pasaporte, const char* nombre)
{
    pulsar(formulario("frmDJ_detalle"), u"tlbPartes"_s, u"agregar"_s);
    auto* f = formulario("frmDJ_detalle_parte");
    clic(f, u"optExtranjera"_s);
    elegir(f, u"cboCodigoPais"_s, QString::fromUtf8(pais));
    comprobar(u"documento"_s, texto(f, u"cboTipoDoc"_s), u"PASAPORTE"_s);
    escribir(f, u"txtPasaporte"_s, QString::fromUtf8(pasaporte));
    escribir(f, u"txtRazonSocial"_s, QString::fromUtf8(nombre));
    g_.foto(u"parte-extranjera"_s);
    pulsar(f, u"tlb"_s, u"aceptar"_s);
}

void Mes::inmueble(const char* partida, const char* valuacion)
{
    pulsar(formulario("frmDJ_detalle"), u"tlbInm"_s, u"agregar"_s);
    auto* f = formulario("frmDJ_editar_inmueble");
    escribir(f, u"txtINM_partida"_s, QString::fromUtf8(partida));
    escribir(f, u"nroValFiscal"_s, QString::fromUtf8(valuacion));
    elegir(f, u"cboU_caracter"_s, u"URBANO"_s);
    comprobar(u"provincia"_s, texto(f, u"cboProv"_s), u"MARVEN"_s);
    elegir(f, u"cboLoc"_s, u"LOS ÑANDUES"_s);
    escribir(f, u"txtU_calle"_s, u"BELGRANO"_s);
    g_.foto(u"inmueble"_s);
    pulsar(f, u"tlb"_s, u"aceptar"_s);
}

void Mes::operacion(const OperacionPapel& o)
{
    auto* deed = formulario("frmDJ_detalle");
    solapa(deed, u"SSTab1"_s, 1);
    pulsar(deed, u"tlbOp"_s, u"agregar"_s);
    auto* f = formulario("frmDJ_detalle_op");
    if (o.codigo) {
        teclear(f, u"ctlCodS"_s, QString::fromUtf8(o.codigo));
        tecla(f, u"ctlCodS"_s, Qt::Key_Return);
    } else {
        nuevo_subconcepto(g_, f);
    }
    comprobar(u"subconcepto"_s, texto(f, u"txtSubconcepto"_s), QString::fromUtf8(o.titulo));
    clic(f, u"cmdDetallesSSUB"_s);
    g_.foto(u"detalles"_s);
    clic(formulario("frmDetalleSSUB"), u"cmdCerrar"_s);
    pulsar(f, u"tlb"_s, u"guardar_op"_s);
    for (const ValorPapel& v : o.valores)
        valor(f, v);
    if (!o.valores.isEmpty())
        g_.foto(u"operacion-base"_s);
    solapa(f, u"SSTab1"_s, 2);
    for (int i = 0; i < o.roles.size(); ++i)
        rol(f, i, o.roles[i]);
    g_.foto(u"operacion-roles"_s);
    solapa(f, u"SSTab1"_s, 1);
    if (o.modulos) {
        escribir(f, u"nroMoA"_s, QString::fromUtf8(o.modulos));
        escribir(f, u"nroAdicionales"_s, u"0"_s);
        escribir(f, u"txtObs"_s, u"modulos de la escala"_s);
    }
    comprobar(u"impuesto de "_s + QString::fromUtf8(o.titulo), texto(f, u"nroImpuesto"_s),
              QString::fromUtf8(o.impuesto));
    g_.foto(u"operacion-impuesto"_s);
    comoSeCalculo(f, QString::fromUtf8(o.impuesto));
    pulsar(f, u"tlb"_s, u"guardar_det"_s);
    pulsar(f, u"tlb"_s, u"salir"_s);
    comprobar(u"total de la escritura"_s, texto(formulario("frmDJ_detalle"), u"nroTotalImpuesto"_s),
              QString::fromUtf8(o.impuesto));
    solapa(deed, u"SSTab1"_s, 0);
    g_.foto(u"escritura-completa"_s);
}

void Mes::comoSeCalculo(QWidget* f, const QString& impuesto)
{
    g_.paso(u"Cómo se calculó"_s, [&] {
        clic(f, u"cmdPasos"_s);
        auto* panel = formulario("frmPasos");
        comprobar(u"último paso"_s, en_grilla(panel, u"flxPasos"_s, filas(panel, u"flxPasos"_s) - 1, 4),
                  u"$\u00a0"_s + impuesto);
        g_.foto(u"operacion-pasos"_s);
        clic(panel, u"cmdCerrar"_s);
    });
}

void Mes::valor(QWidget* f, const ValorPapel& v)
{
    pulsar(f, u"tlbBI"_s, u"nuevo"_s);
    escribir(f, u"nroValorContractual"_s, QString::fromUtf8(v.monto));
    if (v.cambio) {
        elegir(f, u"cboMoneda"_s, QString::fromUtf8(v.moneda));
        escribir(f, u"ctlValorCambio"_s, QString::fromUtf8(v.cambio));
    }
    pulsar(f, u"tlbBI"_s, u"guardar"_s);
}

void Mes::rol(QWidget* f, int fila, const QString& descripcion)
{
    if (descripcion.isEmpty())
        return;
    celda(f, u"flxPartes"_s, fila, 5);
    elegir(f, u"cboRoles"_s, descripcion);
    comprobar(u"rol"_s, en_grilla(f, u"flxPartes"_s, fila, 5), descripcion);
}
