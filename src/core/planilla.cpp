// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/planilla.h"

#include "core/celdas.h"
#include "core/clsLocaleInfo.h"

#include <QXmlStreamWriter>

#include <memory>
#include <stdexcept>
#include <vector>

#include <zip.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView TIPO("application/vnd.oasis.opendocument.spreadsheet");
constexpr QLatin1StringView NS("urn:oasis:names:tc:opendocument:xmlns:");

QStringList columna(const Planilla& p, qsizetype i)
{
    QStringList celdas;
    for (const QStringList& fila : p.filas)
        celdas << fila.value(i);
    return celdas;
}

QString celda_csv(QString texto, QChar separador)
{
    if (!texto.isEmpty() && QStringView(u"=+-@\t").contains(texto.front()) && !numero_de_celda(texto))
        texto.prepend(u'\'');
    const bool entrecomillada = texto.contains(separador) || texto.contains(u'"') || texto.contains(u'\n');
    return entrecomillada ? u'"' + texto.replace(u'"', u"\"\""_s) + u'"' : texto;
}

// One attribute: name with its prefix, value.
using Atributo = std::pair<const char*, QString>;

void abrir(QXmlStreamWriter& x, const char* nombre, const std::vector<Atributo>& atributos = {})
{
    x.writeStartElement(QLatin1String(nombre));
    for (const auto& [n, v] : atributos)
        x.writeAttribute(QLatin1String(n), v);
}

// The beginning of a document: its root, the prefixes that it uses.
void comenzar(QXmlStreamWriter& x, const char* raiz, const std::vector<std::pair<const char*, const char*>>& prefijos)
{
    x.writeStartDocument();
    abrir(x, raiz);
    for (const auto& [prefijo, espacio] : prefijos)
        x.writeAttribute(u"xmlns:"_s + QLatin1String(prefijo), NS + QLatin1String(espacio) + u":1.0"_s);
    x.writeAttribute(QLatin1String(prefijos.front().first) + u":version"_s, u"1.2"_s);
}

void estilo(QXmlStreamWriter& x, const char* nombre, const char* formato)
{
    abrir(x, "style:style",
          {{"style:name", QLatin1String(nombre)},
           {"style:family", u"table-cell"_s},
           {"style:data-style-name", QLatin1String(formato)}});
    x.writeEndElement();
}

// How titles, amounts and days look.
void estilos(QXmlStreamWriter& x)
{
    abrir(x, "office:automatic-styles");
    abrir(x, "number:number-style", {{"style:name", u"n2"_s}});
    abrir(x, "number:number",
          {{"number:decimal-places", u"2"_s}, {"number:min-integer-digits", u"1"_s}, {"number:grouping", u"true"_s}});
    x.writeEndElement();
    x.writeEndElement();
    abrir(x, "number:date-style", {{"style:name", u"d"_s}});
    for (const char* parte : {"number:day", "number:month", "number:year"}) {
        if (parte != std::string_view("number:day"))
            x.writeTextElement(u"number:text"_s, u"/"_s);
        abrir(x, parte, {{"number:style", u"long"_s}});
        x.writeEndElement();
    }
    x.writeEndElement();
    estilo(x, "importe", "n2");
    estilo(x, "fecha", "d");
    abrir(x, "style:style", {{"style:name", u"titulo"_s}, {"style:family", u"table-cell"_s}});
    abrir(x, "style:text-properties", {{"fo:font-weight", u"bold"_s}});
    x.writeEndElement();
    x.writeEndElement();
    x.writeEndElement();
}

void celda(QXmlStreamWriter& x, const QString& texto, ClaseColumna clase)
{
    std::vector<Atributo> atributos;
    if (texto.isEmpty()) {
    } else if (const auto n = clase == ClaseColumna::numero ? numero_de_celda(texto) : std::nullopt) {
        if (texto.contains(clsLocaleInfo().sDecimal()))
            atributos.emplace_back("table:style-name", u"importe"_s);
        atributos.emplace_back("office:value-type", u"float"_s);
        atributos.emplace_back("office:value", QString::number(*n, 'g', 15));
    } else if (const auto dia = clase == ClaseColumna::fecha ? fecha_de_celda(texto) : std::nullopt) {
        atributos = {{"table:style-name", u"fecha"_s},
                     {"office:value-type", u"date"_s},
                     {"office:date-value", dia->toString(Qt::ISODate)}};
    } else {
        atributos.emplace_back("office:value-type", u"string"_s);
    }
    abrir(x, "table:table-cell", atributos);
    if (!texto.isEmpty())
        x.writeTextElement(u"text:p"_s, texto);
    x.writeEndElement();
}

void titulos(QXmlStreamWriter& x, const QStringList& columnas)
{
    abrir(x, "table:table-header-rows");
    abrir(x, "table:table-row");
    for (const QString& t : columnas) {
        abrir(x, "table:table-cell", {{"table:style-name", u"titulo"_s}, {"office:value-type", u"string"_s}});
        x.writeTextElement(u"text:p"_s, t);
        x.writeEndElement();
    }
    x.writeEndElement();
    x.writeEndElement();
}

QByteArray contenido(const Planilla& p)
{
    QByteArray bytes;
    QXmlStreamWriter x(&bytes);
    comenzar(x, "office:document-content",
             {{"office", "office"},
              {"table", "table"},
              {"text", "text"},
              {"style", "style"},
              {"number", "datastyle"},
              {"fo", "xsl-fo-compatible"}});
    estilos(x);
    abrir(x, "office:body");
    abrir(x, "office:spreadsheet");
    abrir(x, "table:table", {{"table:name", p.titulo}});
    abrir(x, "table:table-column", {{"table:number-columns-repeated", QString::number(p.columnas.size())}});
    x.writeEndElement();
    titulos(x, p.columnas);
    std::vector<ClaseColumna> clases;
    for (qsizetype i = 0; i < p.columnas.size(); ++i)
        clases.push_back(clase_de_columna(columna(p, i)));
    for (const QStringList& fila : p.filas) {
        abrir(x, "table:table-row");
        for (size_t i = 0; i < clases.size(); ++i)
            celda(x, fila.value(qsizetype(i)), clases[i]);
        x.writeEndElement();
    }
    x.writeEndDocument();
    return bytes;
}

QByteArray manifiesto()
{
    QByteArray bytes;
    QXmlStreamWriter x(&bytes);
    comenzar(x, "manifest:manifest", {{"manifest", "manifest"}});
    for (const auto& [ruta, tipo] : {std::pair{u"/"_s, QString(TIPO)}, {u"content.xml"_s, u"text/xml"_s}}) {
        abrir(x, "manifest:file-entry", {{"manifest:full-path", ruta}, {"manifest:media-type", tipo}});
        x.writeEndElement();
    }
    x.writeEndDocument();
    return bytes;
}

// The parts of a document as one file; the first one stands uncompressed, so that its bytes tell the kind.
QByteArray comprimidas(const std::vector<std::pair<const char*, QByteArray>>& partes)
{
    const auto exigir = [](bool bien) {
        if (!bien)
            throw std::runtime_error("No se pudo armar la planilla.");
    };
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* destino = zip_source_buffer_create(nullptr, 0, 0, &error);
    exigir(destino != nullptr);
    zip_source_keep(destino);
    const std::unique_ptr<zip_source_t, decltype(&zip_source_free)> dueno(destino, zip_source_free);
    zip_t* archivo = zip_open_from_source(destino, ZIP_TRUNCATE, &error);
    exigir(archivo != nullptr);
    for (const auto& [nombre, bytes] : partes) {
        zip_source_t* parte = zip_source_buffer(archivo, bytes.constData(), zip_uint64_t(bytes.size()), 0);
        const auto lugar = zip_file_add(archivo, nombre, parte, ZIP_FL_ENC_UTF_8);
        if (lugar == 0)
            zip_set_file_compression(archivo, 0, ZIP_CM_STORE, 0);
    }
    exigir(zip_close(archivo) == 0);
    zip_stat_t datos;
    exigir(zip_source_stat(destino, &datos) == 0 && zip_source_open(destino) == 0);
    QByteArray salida(qsizetype(datos.size), Qt::Uninitialized);
    exigir(zip_source_read(destino, salida.data(), datos.size) == zip_int64_t(datos.size));
    zip_source_close(destino);
    return salida;
}

}  // namespace

QByteArray planilla_csv(const Planilla& planilla)
{
    const QChar separador = clsLocaleInfo().sDecimal() == u"," ? u';' : u',';
    QString texto(QChar::ByteOrderMark);
    const auto agregar = [&](const QStringList& celdas) {
        QStringList escritas;
        for (const QString& c : celdas)
            escritas << celda_csv(c, separador);
        texto += escritas.join(separador) + u"\r\n"_s;
    };
    agregar(planilla.columnas);
    for (const QStringList& fila : planilla.filas)
        agregar(fila);
    return texto.toUtf8();
}

QByteArray planilla_ods(const Planilla& planilla)
{
    const std::vector<std::pair<const char*, QByteArray>> partes = {
        {"mimetype", QByteArray(TIPO.data(), TIPO.size())},
        {"content.xml", contenido(planilla)},
        {"META-INF/manifest.xml", manifiesto()},
    };
    return comprimidas(partes);
}
