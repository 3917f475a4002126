// SPDX-License-Identifier: GPL-3.0-or-later
// Printed forms and the independent programs that read them: pdftotext, pdftoppm, zbarimg, ZXingReader.
#pragma once

#include "apoyo/apoyo.h"
#include "payment/boletas.h"
#include "printing/screens/letra.h"
#include "printing/screens/rptInforme.h"
#include "printing/screens/rptRTN_boldep1.h"
#include "printing/screens/rptSalida.h"
#include "printing/screens/rpt_dj.h"
#include "printing/screens/rpt_recibo.h"

#include <QProcess>

#include <stdexcept>

/// PAPELES=DIR leaves the PDF of each form that a test makes in DIR, to be looked at.
class Impresos : public ConAlmacen
{
protected:
    static QString correr(const QString& programa, const QStringList& argumentos)
    {
        QProcess p;
        p.start(programa, argumentos);
        if (!p.waitForStarted())
            throw std::runtime_error("no está " + programa.toStdString());
        EXPECT_TRUE(p.waitForFinished(120000)) << programa.toStdString();
        return QString::fromUtf8(p.readAllStandardOutput());
    }
    QString pdf(Informe& informe)
    {
        nada_se_toca(informe);
        const QString archivo = carpeta.path() + "/informe.pdf"_u;
        EXPECT_EQ(guardar_pdf(informe, archivo, "T"_u), SalidaPDF::escrito);
        if (const QString papeles = qEnvironmentVariable("PAPELES"); !papeles.isEmpty()) {
            const auto* t = testing::UnitTest::GetInstance()->current_test_info();
            QFile::copy(
                archivo,
                "%1/%2-%3.pdf"_u.arg(papeles, QString::fromUtf8(t->name()).replace(u'/', u'-')).arg(++papeles_));
        }
        return archivo;
    }
    /// On no page of a form lies a text over another, a line or a bar, nor leaves its place or the margins.
    static void nada_se_toca(Informe& informe)
    {
        for (int n = 0; n < informe.paginas(); ++n) {
            const Pagina pagina = *informe.pagina(n);
            QList<QRectF> tinta = QList<QRectF>(pagina.barras.begin(), pagina.barras.end()) + lineas_de(pagina);
            for (const TextoImpreso& t : pagina.textos) {
                const double ancho = ancho_texto(t.texto, t.puntos, t.negrita);
                const double sobra = t.lugar.width() - ancho;
                const double de_la_izquierda = t.alineacion == Alineacion::derecha  ? sobra
                                               : t.alineacion == Alineacion::centro ? sobra / 2
                                                                                    : 0;
                const double em = t.puntos * MM_POR_PULGADA / 72;
                // From the top of a capital to what hangs below the line.
                const QRectF letras(t.lugar.left() + de_la_izquierda, t.lugar.top() + 0.2 * em, ancho, 0.94 * em);
                EXPECT_GE(sobra, -0.01) << t.texto.toStdString();
                EXPECT_TRUE(QRectF(11.9, 11.9, 186.2, 273.2).contains(letras)) << t.texto.toStdString();
                for (const QRectF& otra : std::as_const(tinta))
                    EXPECT_FALSE(letras.intersects(otra)) << t.texto.toStdString() << " sobre " << otra.top();
                tinta << letras;
            }
        }
    }
    /// The text of each page.
    QStringList textos(Informe& informe)
    {
        QStringList paginas = correr("pdftotext"_u, {"-layout"_u, pdf(informe), "-"_u}).split(u'\f');
        paginas.removeLast();
        return paginas;
    }
    static QList<QRectF> lineas_de(const Pagina& pagina)
    {
        QList<QRectF> lugares;
        for (const LineaImpresa& l : pagina.lineas) {
            const double mitad = l.grosor / 2;
            lugares << QRectF(l.linea.p1(), l.linea.p2()).adjusted(-mitad, -mitad, mitad, mitad);
        }
        return lugares;
    }
    static EscrituraImpresa escritura(int n)
    {
        EscrituraImpresa e;
        e.nro = "E%1#"_u.arg(n);
        e.folio = QString::number(n);
        e.dia = "1"_u;
        e.estado = "PASO"_u;
        e.alcanzada = true;
        e.impuesto = n;
        e.partes = "GÓMEZ PEÑALOZA JUAN CUIT 20123456786; "_u.repeated(1 + n % 5);
        OperacionImpresa o;
        o.descripcion = "COMPRAVENTA"_u;
        o.ley = "LEY 1 - ART 2º - INC a)"_u;
        o.base = 1000.5;
        o.alicuota = 0.0125;
        o.calculado = o.final = 10.0;
        e.operaciones << o;
        return e;
    }
    static DJImpresa dj_de(int escrituras)
    {
        DJImpresa dj;
        dj.cabecera.nro = "20123456786261000"_u;
        dj.cabecera.titular = "PÉREZ"_u;
        dj.cabecera.totalRetenido = 1234567.89;
        for (int i = 1; i <= escrituras; ++i)
            dj.escrituras << escritura(i);
        return dj;
    }
    static constexpr QLatin1StringView CODIGO{"9DCABBEC95C60F7B69846C4A8513C009"};

private:
    int papeles_ = 0;
};
