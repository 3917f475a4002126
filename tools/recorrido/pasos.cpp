// SPDX-License-Identifier: GPL-3.0-or-later

#include "recorrido/pasos.h"

#include "application/screens/MDIPrincipal.h"
#include "widgets/formulario.h"
#include "core/modGlobales.h"
#include "manejo/manejo.h"
#include "printing/screens/frmReportes.h"
#include "recorrido/guia.h"
#include "recorrido/pasos_catalogo.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenuBar>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace manejo;

namespace {

QString u(const char* texto)
{
    return QString::fromUtf8(texto);
}

// A deed as the notary has it on paper.
struct Papel
{
    const char* nro;
    const char* folio;
    const char* dia;
    const char* estado;
    const char* motivo;      // null for a reached deed
    const char* testimonio;  // name of its file, null without one
};

struct ValorPapel
{
    const char* moneda;
    const char* monto;
    const char* cambio;
};

// An operation with what it must yield.
struct OperacionPapel
{
    const char* codigo;  // null when it is picked in the catalogue
    const char* titulo;
    QList<ValorPapel> valores;
    QStringList roles;
    const char* modulos;  // typed by hand, null when they come from the tables
    const char* impuesto;
};

class Recorrido
{
public:
    Recorrido(MDIPrincipal& principal, Guia& guia) : principal_(principal), g_(guia) {}

    void correr()
    {
        agentes();
        nuevaDJ();
        escrituras();
        lista();
        emitir(u("30712345671261000"), u("emision"));
        rectificar();
    }

private:
    void menu(const char* nombre)
    {
        auto* accion = principal_.findChild<QAction*>(QLatin1String(nombre));
        if (!accion || !accion->isEnabled())
            throw Inesperado(u"el menú no ofrece "_s + QLatin1String(nombre));
        accion->trigger();
        QApplication::processEvents();
    }

    void agentes()
    {
        g_.paso(u("Registro de agentes"), [&] {
            menu("ssmRTN");
            g_.foto(u("agentes"));
            pulsar(formulario("frmRTN_buscar"), u("tlbRTN"), u("alta"));
        });
        g_.paso(u("Un agente con un CUIT que no vale"), [&] {
            auto* f = formulario("frmRTN_editar");
            escribir(f, u("nroRegNotarial"), u("45"));
            escribir(f, u("txtTitular"), u("solís ñandú carmen"));
            escribir(f, u("txtCUIT"), u("30-71234567-0"));
            Cajas::durante({{u("El CUIT del titular no es válido"), f->windowTitle()}},
                           [&] { pulsar(f, u("tlb"), u("aceptar")); });
        });
        g_.paso(u("El agente, bien; el segundo adscripto pasa al primer lugar"), [&] {
            auto* f = formulario("frmRTN_editar");
            comprobar(u("titular"), texto(f, u("txtTitular")), u("SOLÍS ÑANDÚ CARMEN"));
            escribir(f, u("txtCUIT"), u("30-71234567-1"));
            escribir(f, u("txtDomicilio"), u("av. del valle 1200"));
            elegir(f, u("cboLocalidad"), u("LOS ÑANDUES"));
            escribir(f, u("txtCodPostal"), u("9512"));
            escribir(f, u("txtAdscripto2_nombre"), u("peña luz"));
            escribir(f, u("txtAdscripto2_cuit"), u("27-30123456-8"));
            g_.foto(u("agente"));
            pulsar(f, u("tlb"), u("aceptar"));
            auto* lista = formulario("frmRTN_buscar");
            comprobar(u("agentes"), QString::number(filas(lista, u("flxRTN"))), u("4"));
            pulsar(lista, u("tlbRTN"), u("salir"));
        });
    }

    void nuevaDJ()
    {
        g_.paso(u("Declaraciones juradas"), [&] {
            menu("ssmDJ");
            auto* f = formulario("frmDJ_buscar");
            escribir(f, u("nroAnio"), u("2026"));
            g_.foto(u("declaraciones"));
            pulsar(f, u("tlbDJ"), u("nueva"));
        });
        g_.paso(u("La DJ de octubre de 2026"), [&] {
            auto* f = formulario("frmDJ_editar");
            Cajas::durante({{u("Ingrese el Nº Agente de Retención"), QString()}},
                           [&] { pulsar(f, u("tlbDJ"), u("aceptar")); });
            escribir(f, u("txtRTN_nro"), u("45"));
            comprobar(u("agente"), texto(f, u("cboRTN")), u("SOLÍS ÑANDÚ CARMEN"));
            Cajas::durante({{u("La posicion a declarar con este aplicativo debe ser posterior a 2006/06")}},
                           [&] { escribir(f, u("txtAnio"), u("2005")); });
            escribir(f, u("txtAnio"), u("2026"));
            elegir(f, u("cboMes"), u("10"));
            comprobar(u("número"), texto(f, u("txtNroDJ")), u("30712345671261000"));
            comprobar(u("vencimiento"), texto(f, u("dtpBOL_venc")), u("16/11/2026"));
            g_.foto(u("dj-cabecera"));
            pulsar(f, u("tlbDJ"), u("aceptar"));
            solapa(f, u("SSTab1"), 1);
        });
    }

    void escritura(const Papel& p)
    {
        pulsar(formulario("frmDJ_editar"), u("tlbDetalle"), u("agregar"));
        auto* f = formulario("frmDJ_detalle");
        escribir(f, u("txtNroEscritura"), u(p.nro));
        escribir(f, u("txtFolio"), u(p.folio));
        escribir(f, u("nroDia"), u(p.dia));
        elegir(f, u("cboDET_Estado"), u(p.estado));
        if (p.motivo) {
            elegir(f, u("cboAlcanzado"), u("No alcanzado"));
            elegir(f, u("cboDesc_NoAlcanzado"), u(p.motivo));
        }
        if (p.testimonio) {
            const QString archivo = g_.carpeta() + u'/' + u(p.testimonio);
            QFile pdf(archivo);
            if (!pdf.open(QIODevice::WriteOnly) || pdf.write("%PDF-1.4\n") < 0)
                throw Inesperado(u("no se pudo escribir ") + archivo);
            pdf.close();
            escribir(f, u("txtTestimonio"), archivo);
        }
    }

    void aceptarEscritura(const QList<CajaEsperada>& cajas = {})
    {
        auto* f = formulario("frmDJ_detalle");
        Cajas::durante(cajas, [&] { pulsar(f, u("tlbDetalle"), u("aceptar")); });
    }

    void salirDeEscritura(const QList<CajaEsperada>& cajas = {})
    {
        Cajas::durante(cajas, [&] { pulsar(formulario("frmDJ_detalle"), u("tlbDetalle"), u("salir")); });
    }

    void parte(const char* sociedad, const char* doc, const char* nro, const char* nombre, const char* exento = nullptr)
    {
        pulsar(formulario("frmDJ_detalle"), u("tlbPartes"), u("agregar"));
        auto* f = formulario("frmDJ_detalle_parte");
        clic(f, u("optArgentina"));
        elegir(f, u("cboTipoSociedad"), u(sociedad));
        elegir(f, u("cboTipoDoc"), u(doc));
        escribir(f, u("nroDoc"), u(nro));
        escribir(f, u("txtRazonSocial"), u(nombre));
        escribir(f, u("txtDomicilio"), u("los álamos 15"));
        elegir(f, u("cboProv"), u("MARVEN"));
        elegir(f, u("cboLoc"), u("EL SAUCE"));
        if (exento) {
            clic(f, u("chkExento"));
            escribir(f, u("nroExencionPorc"), u(exento));
        }
        if (fotoParte_++ == 0)
            g_.foto(u("parte"));
        pulsar(f, u("tlb"), u("aceptar"));
    }

    void extranjero(const char* pais, const char* pasaporte, const char* nombre)
    {
        pulsar(formulario("frmDJ_detalle"), u("tlbPartes"), u("agregar"));
        auto* f = formulario("frmDJ_detalle_parte");
        clic(f, u("optExtranjera"));
        elegir(f, u("cboCodigoPais"), u(pais));
        comprobar(u("documento"), texto(f, u("cboTipoDoc")), u("PASAPORTE"));
        escribir(f, u("txtPasaporte"), u(pasaporte));
        escribir(f, u("txtRazonSocial"), u(nombre));
        g_.foto(u("parte-extranjera"));
        pulsar(f, u("tlb"), u("aceptar"));
    }

    void inmueble(const char* partida, const char* valuacion)
    {
        pulsar(formulario("frmDJ_detalle"), u("tlbInm"), u("agregar"));
        auto* f = formulario("frmDJ_editar_inmueble");
        escribir(f, u("txtINM_partida"), u(partida));
        escribir(f, u("nroValFiscal"), u(valuacion));
        elegir(f, u("cboU_caracter"), u("URBANO"));
        comprobar(u("provincia"), texto(f, u("cboProv")), u("MARVEN"));
        elegir(f, u("cboLoc"), u("LOS ÑANDUES"));
        escribir(f, u("txtU_calle"), u("BELGRANO"));
        g_.foto(u("inmueble"));
        pulsar(f, u("tlb"), u("aceptar"));
    }

    void operacion(const OperacionPapel& o)
    {
        auto* deed = formulario("frmDJ_detalle");
        solapa(deed, u("SSTab1"), 1);
        pulsar(deed, u("tlbOp"), u("agregar"));
        auto* f = formulario("frmDJ_detalle_op");
        if (o.codigo) {
            teclear(f, u("ctlCodS"), u(o.codigo));
            tecla(f, u("ctlCodS"), Qt::Key_Return);
        } else {
            nuevo_subconcepto(g_, f);
        }
        comprobar(u("subconcepto"), texto(f, u("txtSubconcepto")), u(o.titulo));
        pulsar(f, u("tlb"), u("guardar_op"));
        for (const ValorPapel& v : o.valores)
            valor(f, v);
        if (!o.valores.isEmpty())
            g_.foto(u("operacion-base"));
        solapa(f, u("SSTab1"), 2);
        for (int i = 0; i < o.roles.size(); ++i)
            rol(f, i, o.roles[i]);
        g_.foto(u("operacion-roles"));
        solapa(f, u("SSTab1"), 1);
        if (o.modulos) {
            escribir(f, u("nroMoA"), u(o.modulos));
            escribir(f, u("nroAdicionales"), u("0"));
            escribir(f, u("txtObs"), u("modulos de la escala"));
        }
        comprobar(u("impuesto de ") + u(o.titulo), texto(f, u("nroImpuesto")), u(o.impuesto));
        g_.foto(u("operacion-impuesto"));
        pulsar(f, u("tlb"), u("guardar_det"));
        pulsar(f, u("tlb"), u("salir"));
        comprobar(u("total de la escritura"), texto(formulario("frmDJ_detalle"), u("nroTotalImpuesto")), u(o.impuesto));
    }

    void valor(QWidget* f, const ValorPapel& v)
    {
        pulsar(f, u("tlbBI"), u("nuevo"));
        escribir(f, u("nroValorContractual"), u(v.monto));
        if (v.cambio) {
            elegir(f, u("cboMoneda"), u(v.moneda));
            escribir(f, u("ctlValorCambio"), u(v.cambio));
        }
        pulsar(f, u("tlbBI"), u("guardar"));
    }

    void rol(QWidget* f, int fila, const QString& descripcion)
    {
        if (descripcion.isEmpty())
            return;
        celda(f, u("flxPartes"), fila, 5);
        elegir(f, u("cboRoles"), descripcion);
        comprobar(u("rol"), en_grilla(f, u("flxPartes"), fila, 5), descripcion);
    }

    void escrituras()
    {
        g_.paso(u("Escritura 1: una compraventa en dos monedas"), [&] {
            escritura({"1", "1", "2", "PASO", nullptr, "testimonio 1.pdf"});
            aceptarEscritura();
            g_.foto(u("escritura"));
            parte("UNIPERSONAL", "CUIT", "20123456786", "gómez peñaloza juan");
            parte("UNIPERSONAL", "DNI", "22333444", "ríos ana");
            inmueble("12345", "2000000");
            operacion({"1",
                       "COMPRAVENTA DE INMUEBLES",
                       {{"PESOS", "1000000", nullptr}, {"DOLARES", "100.50", "1050"}},
                       {u("VENDEDOR"), u("COMPRADOR")},
                       nullptr,
                       "20.000,00"});
            recibo();
            salirDeEscritura();
        });
        g_.paso(u("Escritura 2: una hipoteca, con una parte exenta a medias"), [&] {
            escritura({"2", "3", "5", "PASO", nullptr, "testimonio 2.pdf"});
            aceptarEscritura();
            parte("SOCIEDAD ANONIMA", "CUIT", "30707070702", "banco del sur s.a.");
            parte("UNIPERSONAL", "CUIT", "27222333445", "sosa ñ. marta", "50");
            operacion({"11",
                       "CONSTITUCION DE HIPOTECA",
                       {{"PESOS", "3000000", nullptr}},
                       {u("ACREEDOR HIPOTECARIO"), u("DEUDOR HIPOTECARIO")},
                       nullptr,
                       "12.000,00"});
            salirDeEscritura();
        });
        g_.paso(u("Escritura 3: un poder, con una parte extranjera"), [&] {
            escritura({"3", "5", "5", "PASO", nullptr, nullptr});
            aceptarEscritura({{u("Falta el archivo del testimonio. ¿Desea ingresarlo mas tarde?")}});
            extranjero("BRASIL - Física", "ab123456", "silva joão");
            parte("UNIPERSONAL", "CUIL", "20287654325", "vega hugo");
            operacion({"29", "PODER GENERAL", {}, {u("PODERDANTE"), u("APODERADO")}, nullptr, "3.000,00"});
            salirDeEscritura();
        });
        g_.paso(u("Escritura 4: un fideicomiso, fijo proporcional"), [&] {
            escritura({"4", "6", "9", "PASO", nullptr, nullptr});
            aceptarEscritura({{u("Falta el archivo del testimonio.")}});
            parte("UNIPERSONAL", "CUIT", "20123456786", "gómez peñaloza juan");
            parte("FIDEICOMISO", "CUIT", "30707070702", "fideicomiso alto verde");
            parte("UNIPERSONAL", "DNI", "30111222", "luna sofía");
            operacion({"27",
                       "CONTRATO DE FIDEICOMISO",
                       {{"PESOS", "5000", nullptr}},
                       {u("FIDUCIANTE"), {}, {}},
                       nullptr,
                       "0,00"});
            salirDeEscritura();
        });
        g_.paso(u("Escritura 5: un protesto, con módulos según escala"), [&] {
            escritura({"5", "8", "12", "PASO", nullptr, nullptr});
            aceptarEscritura({{u("Falta el archivo del testimonio.")}});
            parte("UNIPERSONAL", "CUIT", "20123456786", "gómez peñaloza juan");
            operacion({"35", "PROTESTO", {}, {u("REQUIRENTE")}, "15", "2.250,00"});
            salirDeEscritura();
        });
        g_.paso(u("Escritura 6: no alcanzada"), [&] {
            escritura({"6", "9", "12", "PASO", "Testamento", nullptr});
            aceptarEscritura();
            salirDeEscritura();
        });
        g_.paso(u("Un número repetido se carga como ERROSE"), [&] {
            escritura({"6", "10", "13", "PASO", nullptr, nullptr});
            aceptarEscritura({{u("Atención: Se solapa el Nº Escritura"), u("Duplicación de números")}});
            comprobar(u("estado"), texto(formulario("frmDJ_detalle"), u("cboDET_Estado")).left(14),
                      u("ANULADA/ERROSE"));
            salirDeEscritura();
        });
        g_.paso(u("Un día que retrocede, y la escritura que no pasó"), [&] {
            escritura({"7", "11", "3", "ANULADA/NO PASO", nullptr, nullptr});
            elegir(formulario("frmDJ_detalle"), u("cboDET_Estado"), u("PASO"));
            aceptarEscritura({{u("Atención: El día se solapa con una escritura anterior")}});
            escribir(formulario("frmDJ_detalle"), u("nroDia"), u("15"));
            elegir(formulario("frmDJ_detalle"), u("cboDET_Estado"), u("ANULADA/NO PASO"));
            aceptarEscritura();
            salirDeEscritura();
        });
        g_.paso(u("Escritura 8: un subconcepto nuevo, y una parte de una DJ anterior"), [&] {
            escritura({"8", "12", "20", "PASO", nullptr, nullptr});
            aceptarEscritura({{u("Falta el archivo del testimonio.")}});
            pulsar(formulario("frmDJ_detalle"), u("tlbPartes"), u("agregar"));
            auto* f = formulario("frmDJ_detalle_parte");
            parte_anterior(g_, f);
            comprobar(u("parte hallada"), texto(f, u("txtRazonSocial")), u("SOSA ROSA"));
            g_.foto(u("parte-hallada"));
            pulsar(f, u("tlb"), u("aceptar"));
            parte("UNIPERSONAL", "DNI", "31222333", "peralta inés");
            // Whoever bears the tax is exempt by half.
            operacion({nullptr,
                       "CESIÓN DE MARCAS Y PATENTES",
                       {{"PESOS", "2000000", nullptr}},
                       {u("CEDENTE"), u("CESIONARIO")},
                       nullptr,
                       "10.000,00"});
            salirDeEscritura();
        });
    }

    // The report that stands open: its picture, its PDF, and away with Escape.
    void reporte(const QString& titulo, const QString& nombre)
    {
        auto* r = qobject_cast<frmReportes*>(formulario("frmReportes"));
        comprobar(u("título"), r->windowTitle(), titulo);
        g_.foto(nombre);
        if (!r->guardarPDF(g_.carpeta() + u'/' + nombre + u(".pdf")))
            throw Inesperado(u("no se pudo guardar ") + nombre + u(".pdf"));
        QTest::keyClick(r, Qt::Key_Escape);
        QApplication::processEvents();
    }

    void recibo()
    {
        for (const char* nombre : {"recibo", "recibo-reemitido"}) {
            pulsar(formulario("frmDJ_detalle"), u("tlbDetalle"), u("recibo"));
            reporte(u("Comprobante de retención"), u(nombre));
        }
    }

    void boletas()
    {
        g_.paso(u("Una boleta de depósito, con un cheque"), [&] {
            auto* f = formulario("frmDJ_editar");
            solapa(f, u("SSTab1"), 2);
            comprobar(u("impuesto a depositar"), texto(f, u("nroImpuesto")), u("47.250,00"));
            escribir(f, u("nroEfectivo"), u("17250"));
            escribir(f, u("txtCheque1_nro"), u("12345678"));
            escribir(f, u("txtCheque1_banco"), u("BANCO DEL SUR"));
            escribir(f, u("nroCheque1_monto"), u("30000"));
            comprobar(u("total de la boleta"), texto(f, u("nroTotalBoleta")), u("47.250,00"));
            pulsar(f, u("tlbB"), u("generar"));
            reporte(u("Boleta de depósito"), u("boleta"));
            comprobar(u("boleta"), en_grilla(f, u("flxB"), 0, 0), u("2023071234567126100000"));
            g_.foto(u("dj-boletas"));
            pulsar(f, u("tlbB"), u("imprimir"));
            reporte(u("Boleta de depósito"), u("boleta-otra-vez"));
        });
    }

    void lista()
    {
        g_.paso(u("La lista de escrituras y los totales"), [&] {
            auto* f = formulario("frmDJ_editar");
            comprobar(u("escrituras"), QString::number(filas(f, u("flxOp"))), u("9"));
            comprobar(u("total retenido"), texto(f, u("nroTotalRetenido")), u("47.250,00"));
            g_.foto(u("dj-renglones"));
        });
        boletas();
        g_.paso(u("Cierra la DJ"), [&] { pulsar(formulario("frmDJ_editar"), u("tlbDJ"), u("salir")); });
    }

    void emitir(const QString& nro, const QString& nombre)
    {
        g_.paso(u("Emisión de ") + nro, [&] {
            auto* f = formulario("frmDJ_buscar");
            escribir(f, u("nroAnio"), u("20") + nro.mid(11, 2));
            buscarFila(f, nro);
            const QString guardado = g_.carpeta() + u("/SRTN") + nro + u(".rar");
            Cajas::durante({}, [&] { pulsar(f, u("tlbDJ"), u("emitir")); }, {guardado});
            if (QFileInfo(guardado).size() == 0)
                throw Inesperado(u("no está el archivo ") + guardado);
            QProcess lector;
            lector.start(QCoreApplication::applicationDirPath() + u("/leer_dj"),
                         {guardado, u("--codigo"), codigo(nro)});
            if (!lector.waitForFinished() || lector.exitCode() != 0)
                throw Inesperado(u("leer_dj no acepta lo emitido:\n")
                                 + QString::fromUtf8(lector.readAllStandardOutput()));
            const QString archivo = carpeta_programa() + u("/data/") + nro + u("/SRTN") + nro + u(".txt");
            if (QFileInfo(archivo).size() == 0)
                throw Inesperado(u("no está el archivo ") + archivo);
            reporte(u("Declaración Jurada"), nombre);
        });
    }

    static QString codigo(const QString& nro)
    {
        const Recordset rs(cnRtn, u("select SEDJ_MD5 from SEL_TB_RTN_CABDJ where SEDJ_NRO='") + nro + u("'"));
        return rs.texto(0);
    }

    void buscarFila(QWidget* f, const QString& nro)
    {
        for (int i = 0; i < filas(f, u("flx")); ++i)
            if (en_grilla(f, u("flx"), i, 0) == nro) {
                celda(f, u("flx"), i, 0);
                return;
            }
        throw Inesperado(u("la lista no tiene la DJ ") + nro);
    }

    void rectificar()
    {
        g_.paso(u("Una rectificativa"), [&] {
            auto* f = formulario("frmDJ_buscar");
            buscarFila(f, u("30712345671261000"));
            pulsar(f, u("tlbDJ"), u("rectificar"));
            auto* e = formulario("frmDJ_editar");
            comprobar(u("título"), e->windowTitle(), u("Rectificar DJ"));
            comprobar(u("número"), texto(e, u("txtNroDJ")), u("30712345671261001"));
            pulsar(e, u("tlbDJ"), u("editar"));
            escribir(e, u("txtObs"), u("Corrige el domicilio de una parte"));
            pulsar(e, u("tlbDJ"), u("aceptar"));
            g_.foto(u("rectificativa"));
            pulsar(e, u("tlbDJ"), u("salir"));
        });
        emitir(u("30712345671261001"), u("emision-rectificativa"));
        g_.paso(u("Otra vez sobre la original: pregunta"), [&] {
            auto* f = formulario("frmDJ_buscar");
            buscarFila(f, u("30712345671261000"));
            Cajas::durante({{u("La DJ  Original para la posicion 10/26 ya fue rectificada"), u("Nueva DJ"), false}},
                           [&] { pulsar(f, u("tlbDJ"), u("rectificar")); });
        });
        emitir(u("27145678906250600"), u("emision-sin-movimientos"));
        g_.paso(u("Cierra la lista"), [&] { pulsar(formulario("frmDJ_buscar"), u("tlbDJ"), u("salir")); });
    }

    MDIPrincipal& principal_;
    Guia& g_;
    int fotoParte_ = 0;
};

}  // namespace

void recorrer(MDIPrincipal& principal, Guia& guia)
{
    Recorrido(principal, guia).correr();
}
