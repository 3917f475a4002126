// SPDX-License-Identifier: GPL-3.0-or-later
// manual html CARPETA SALIDA | manual pdf CARPETA ARCHIVO VERSION: makes of the manual's Markdown the pages that the
// program shows, and those of the PDF.

#include "html.h"
#include "pdf.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication aplicacion(argc, argv);
    const QStringList a = QGuiApplication::arguments();
    try {
        if (a.size() == 4 && a[1] == u"html")
            escribir_html(a[2], a[3]);
        else if (a.size() == 5 && a[1] == u"pdf")
            escribir_pdf(a[2], a[3], a[4]);
        else {
            std::fputs("Uso: manual html CARPETA SALIDA | manual pdf CARPETA ARCHIVO VERSION\n", stderr);
            return 2;
        }
        return EXIT_SUCCESS;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "manual: %s\n", e.what());
        return EXIT_FAILURE;
    }
}
