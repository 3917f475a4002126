// SPDX-License-Identifier: GPL-3.0-or-later

#include "html.h"

#include "paginas.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextDocument>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

void escribir(const QString& archivo, const QString& texto)
{
    QDir().mkpath(QFileInfo(archivo).path());
    QSaveFile f(archivo);
    const QByteArray bytes = texto.toUtf8();
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size() || !f.commit())
        throw std::runtime_error((archivo + u": "_s + f.errorString()).toStdString());
}

}  // namespace

QString html_de(const QString& markdown)
{
    // The document's own fonts and colours are those of the machine that builds, its margins those of no page.
    static const QRegularExpression CUERPO(u"<body style=\"[^\"]*\">"_s);
    static const QRegularExpression COLOR(u"(background-)?color:[^;\"]*;?"_s);
    static const QRegularExpression MARGEN(u" style=\" ?(margin-[^\"]*| )\""_s);
    static const QRegularExpression CABEZA(u"<head>.*</head>"_s, QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression TABLA(u"<table border[^>]*>"_s);
    QTextDocument doc;
    doc.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
    return doc.toHtml()
        .replace(CUERPO, u"<body>"_s)
        .replace(CABEZA, u"<head><meta charset=\"utf-8\" /></head>"_s)
        .remove(COLOR)
        .remove(MARGEN)
        .replace(TABLA,
                 u"<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\" style=\"border-collapse:collapse\">"_s);
}

void escribir_html(const QString& carpeta, const QString& salida)
{
    QString recursos = u"<RCC><qresource prefix=\"/manual\">\n<file>contenido.tsv</file>\n"_s;
    QString contenido;
    for (const PaginaManual& p : paginas_del_manual(carpeta)) {
        QString html = p.archivo;
        html.replace(u".md"_s, u".html"_s);
        contenido += html + u'\t' + p.titulo + u'\n';
        if (p.archivo.isEmpty())
            continue;
        escribir(salida + u'/' + html,
                 html_de(leer_texto(carpeta + u'/' + p.archivo)).replace(u".md\">"_s, u".html\">"_s));
        recursos += u"<file>%1</file>\n"_s.arg(html);
    }
    escribir(salida + u"/contenido.tsv"_s, contenido);
    escribir(salida + u"/manual.qrc"_s, recursos + u"</qresource></RCC>\n"_s);
}
