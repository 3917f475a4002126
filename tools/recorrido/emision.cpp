// SPDX-License-Identifier: GPL-3.0-or-later
// What the month leaves on paper and on its way to the authority.

#include "recorrido/mes.h"

#include "core/modGlobales.h"
#include "printing/screens/frmReportes.h"

#include <QApplication>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace manejo;

// The report that stands open: its picture, its PDF, and away with Escape.
void Mes::reporte(const QString& titulo, const QString& nombre)
{
    auto* r = qobject_cast<frmReportes*>(formulario("frmReportes"));
    comprobar(u"título"_s, r->windowTitle(), titulo);
    g_.foto(nombre);
    if (!r->guardarPDF(g_.carpeta() + u'/' + nombre + u".pdf"_s))
        throw Inesperado(u"no se pudo guardar "_s + nombre + u".pdf"_s);
    QTest::keyClick(r, Qt::Key_Escape);
    QApplication::processEvents();
}

void Mes::recibo()
{
    for (const QString& nombre : {u"recibo"_s, u"recibo-reemitido"_s}) {
        pulsar(formulario("frmDJ_detalle"), u"tlbDetalle"_s, u"recibo"_s);
        reporte(u"Comprobante de retención"_s, nombre);
    }
}

void Mes::emitir(const QString& nro, const QString& nombre)
{
    g_.paso(u"Emisión de "_s + nro, [&] {
        auto* f = formulario("frmDJ_buscar");
        escribir(f, u"nroAnio"_s, u"20"_s + nro.mid(11, 2));
        buscarFila(f, nro);
        g_.foto(u"lista"_s);
        const QString guardado = g_.carpeta() + u"/SRTN"_s + nro + u".rar"_s;
        Cajas::durante({}, [&] { pulsar(f, u"tlbDJ"_s, u"emitir"_s); }, {guardado});
        if (QFileInfo(guardado).size() == 0)
            throw Inesperado(u"no está el archivo "_s + guardado);
        QProcess lector;
        lector.start(ruta_herramienta(u"leer_dj"_s, QCoreApplication::applicationDirPath()),
                     {guardado, u"--codigo"_s, codigo(nro)});
        if (!lector.waitForFinished() || lector.exitCode() != 0)
            throw Inesperado(u"leer_dj no acepta lo emitido:\n"_s + QString::fromUtf8(lector.readAllStandardOutput()));
        const QString archivo = carpeta_programa() + u"/data/"_s + nro + u"/SRTN"_s + nro + u".txt"_s;
        if (QFileInfo(archivo).size() == 0)
            throw Inesperado(u"no está el archivo "_s + archivo);
        reporte(u"Declaración Jurada"_s, nombre);
    });
}

QString Mes::codigo(const QString& nro)
{
    const Recordset rs(cnRtn, u"select SEDJ_MD5 from SEL_TB_RTN_CABDJ where SEDJ_NRO='"_s + nro + u"'"_s);
    return rs.texto(0);
}

void Mes::buscarFila(QWidget* f, const QString& nro)
{
    for (int i = 0; i < filas(f, u"flx"_s); ++i)
        if (en_grilla(f, u"flx"_s, i, 0) == nro) {
            celda(f, u"flx"_s, i, 0);
            return;
        }
    throw Inesperado(u"la lista no tiene la DJ "_s + nro);
}
