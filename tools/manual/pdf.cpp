// SPDX-License-Identifier: GPL-3.0-or-later

#include "pdf.h"

#include "html.h"
#include "paginas.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>

#include <memory>
#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int RESOLUCION = 300;
constexpr qreal MARGEN_MM = 20;
constexpr qreal PIE_MM = 8;
constexpr int LETRA = 10;            // points
constexpr qreal PUNTOS_IMAGEN = 96;  // dots an inch of a document's pictures
constexpr qreal ESCALA_IMAGEN = 0.75;
constexpr int VUELTAS = 10;
constexpr int BORDE = 10;           // dots of the device
constexpr qreal ALTO_IMAGEN = 0.6;  // of the page, at the most

struct Capitulo
{
    PaginaManual pagina;
    std::unique_ptr<QTextDocument> doc;
    int desde = 0;  // its first page
};

// Lays the manual out on a device until the numbers in its links are those of its pages, and paints it.
class Impreso
{
public:
    Impreso(const QString& carpeta, QPdfWriter& pdf, const QString& version)
        : carpeta_(carpeta), pdf_(pdf), version_(version)
    {
        const int pie = int(PIE_MM / 25.4 * RESOLUCION);
        caja_ = QSizeF(pdf.width(), pdf.height() - 2 * pie);
        for (const PaginaManual& p : paginas_del_manual(carpeta))
            capitulos_.push_back({p, nullptr, 0});
    }

    void pintar()
    {
        // Numbers that get longer may move a line to the next page.
        for (int vez = 0; !disponer(); ++vez)
            if (vez == VUELTAS)
                throw std::runtime_error("las páginas no quedan en su lugar");
        QPainter p(&pdf_);
        p.setRenderHint(QPainter::LosslessImageRendering);
        portada(p);
        pintarDocumento(p, *contenido_, 2, u"Contenido"_s);
        for (const Capitulo& c : capitulos_)
            if (c.doc)
                pintarDocumento(p, *c.doc, c.desde, c.pagina.titulo);
    }

private:
    [[nodiscard]] std::unique_ptr<QTextDocument> nuevo() const
    {
        auto doc = std::make_unique<QTextDocument>();
        doc->documentLayout()->setPaintDevice(&pdf_);
        doc->setDefaultFont(QFont(u"DejaVu Sans"_s, LETRA));
        doc->setDocumentMargin(0);
        return doc;
    }

    [[nodiscard]] int numero(const QString& archivo) const
    {
        for (const Capitulo& c : capitulos_)
            if (c.pagina.archivo == archivo)
                return c.desde;
        throw std::runtime_error("no está en contenido.md: " + archivo.toStdString());
    }

    // False when a page moved, so that what was written of it does not hold.
    bool disponer()
    {
        hacerContenido();
        int pagina = 2 + contenido_->pageCount();
        bool quietas = true;
        for (Capitulo& c : capitulos_) {
            quietas = quietas && c.desde == pagina;
            c.desde = pagina;
            if (c.pagina.archivo.isEmpty())
                continue;
            c.doc = nuevo();
            const QString texto = leer_texto(carpeta_ + u'/' + c.pagina.archivo);
            c.doc->setHtml(html_de(cambiar_enlaces(texto, c.pagina.archivo, [this](const QString& t, const QString& a) {
                return u"%1 (pág. %2)"_s.arg(t).arg(numero(a));
            })));
            ponerImagenes(*c.doc, c.pagina.archivo);
            paginar(*c.doc);
            juntarTitulos(*c.doc);
            pagina += c.doc->pageCount();
        }
        return quietas;
    }

    void hacerContenido()
    {
        QString html = u"<h1>Contenido</h1><table width=\"100%\">"_s;
        for (const Capitulo& c : capitulos_)
            html += c.pagina.archivo.isEmpty()
                        ? u"<tr><td colspan=\"2\"><h3>%1</h3></td></tr>"_s.arg(c.pagina.titulo.toHtmlEscaped())
                        : u"<tr><td>%1</td><td align=\"right\">%2</td></tr>"_s.arg(c.pagina.titulo.toHtmlEscaped())
                              .arg(c.desde);
        contenido_ = nuevo();
        contenido_->setHtml(html + u"</table>"_s);
        paginar(*contenido_);
    }

    // Pictures begin a little above their line: the foot of a page is left free, and not painted.
    void paginar(QTextDocument& doc) const
    {
        QTextFrameFormat marco = doc.rootFrame()->frameFormat();
        marco.setBottomMargin(2 * BORDE);
        doc.rootFrame()->setFrameFormat(marco);
        doc.setPageSize(caja_);
    }

    // A line is never parted, and a picture is a line: it fits the page, and goes to the next one as a whole.
    void ponerImagenes(QTextDocument& doc, const QString& archivo) const
    {
        const QString base = carpeta_ + u'/' + archivo.left(archivo.lastIndexOf(u'/') + 1);
        const QSizeF lugar(caja_.width() * PUNTOS_IMAGEN / RESOLUCION,
                           ALTO_IMAGEN * caja_.height() * PUNTOS_IMAGEN / RESOLUCION);
        for (QTextBlock b = doc.begin(); b.isValid(); b = b.next())
            for (auto it = b.begin(); !it.atEnd(); ++it) {
                QTextImageFormat f = it.fragment().charFormat().toImageFormat();
                if (!f.isValid())
                    continue;
                const QImage imagen(base + f.name());
                if (imagen.isNull())
                    throw std::runtime_error(archivo.toStdString() + ": no se puede leer " + f.name().toStdString());
                doc.addResource(QTextDocument::ImageResource, QUrl(f.name()), imagen);
                QSizeF medida = QSizeF(imagen.size()) * ESCALA_IMAGEN;
                if (medida.width() > lugar.width() || medida.height() > lugar.height())
                    medida.scale(lugar, Qt::KeepAspectRatio);
                f.setWidth(medida.width());
                f.setHeight(medida.height());
                QTextCursor cursor(&doc);
                cursor.setPosition(it.fragment().position());
                cursor.setPosition(it.fragment().position() + it.fragment().length(), QTextCursor::KeepAnchor);
                cursor.setCharFormat(f);
                it = b.begin();
                while (!it.atEnd() && it.fragment().position() < cursor.selectionStart())
                    ++it;
            }
    }

    // A title does not stay behind at the foot of a page.
    void juntarTitulos(QTextDocument& doc) const
    {
        // A block begins where the one before ends, its first line perhaps on the next page.
        const auto pagina = [&](const QTextBlock& b) {
            const QRectF r = doc.documentLayout()->blockBoundingRect(b);
            const qreal linea = b.layout()->lineCount() > 0 ? b.layout()->lineAt(0).y() : 0;
            return int((r.top() + linea + 1) / caja_.height());
        };
        for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
            const QTextBlock sigue = b.next();
            if (b.blockFormat().headingLevel() == 0 || !sigue.isValid() || pagina(sigue) == pagina(b))
                continue;
            QTextCursor cursor(b);
            QTextBlockFormat f = b.blockFormat();
            f.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
            cursor.setBlockFormat(f);
        }
    }

    void portada(QPainter& p) const
    {
        const auto linea = [&](qreal y, int puntos, bool negrita, const QString& texto) {
            p.setFont(QFont(u"DejaVu Sans"_s, puntos, negrita ? QFont::Bold : QFont::Normal));
            p.drawText(QRectF(0, y * pdf_.height(), pdf_.width(), 0.08 * pdf_.height()), Qt::AlignHCenter, texto);
        };
        linea(0.30, 34, true, u"VEDRA-RTN"_s);
        linea(0.38, 16, false, u"Agentes de Retención del Impuesto de Sellos"_s);
        linea(0.42, 16, false, u"Escribanos"_s);
        linea(0.54, 22, true, u"Manual"_s);
        linea(0.86, 11, false, u"Versión "_s + version_);
    }

    void pintarDocumento(QPainter& p, const QTextDocument& doc, int desde, const QString& titulo)
    {
        for (int i = 0; i < doc.pageCount(); ++i) {
            pdf_.newPage();
            const QRectF hoja(0, i * caja_.height(), caja_.width(), caja_.height());
            p.save();
            p.translate(0, -hoja.top());
            p.setClipRect(hoja.adjusted(0, -BORDE, 0, -BORDE));
            QAbstractTextDocumentLayout::PaintContext contexto;
            contexto.clip = hoja;
            contexto.palette.setColor(QPalette::Text, Qt::black);
            doc.documentLayout()->draw(&p, contexto);
            p.restore();
            p.setFont(QFont(u"DejaVu Sans"_s, 8));
            const QRectF pie(0, pdf_.height() - PIE_MM / 25.4 * RESOLUCION, pdf_.width(), PIE_MM / 25.4 * RESOLUCION);
            p.drawText(pie, Qt::AlignLeft | Qt::AlignBottom, u"Manual de VEDRA-RTN - "_s + titulo);
            p.drawText(pie, Qt::AlignRight | Qt::AlignBottom, QString::number(desde + i));
        }
    }

    QString carpeta_;
    QPdfWriter& pdf_;
    QString version_;
    QSizeF caja_;
    std::vector<Capitulo> capitulos_;
    std::unique_ptr<QTextDocument> contenido_;
};

}  // namespace

void escribir_pdf(const QString& carpeta, const QString& archivo, const QString& version)
{
    QPdfWriter pdf(archivo);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setResolution(RESOLUCION);
    pdf.setPageMargins({MARGEN_MM, MARGEN_MM, MARGEN_MM, MARGEN_MM}, QPageLayout::Millimeter);
    pdf.setTitle(u"Manual de VEDRA-RTN"_s);
    Impreso(carpeta, pdf, version).pintar();
}
