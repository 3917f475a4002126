// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rptSalida.h"

#include "printing/screens/pintar_pagina.h"
#include "printing/screens/rptInforme.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace {

constexpr int RESOLUCION_PDF = 1200;
constexpr int PAGINAS_POR_VEZ = 10;

}  // namespace

int contar_paginas(Informe& informe, const AvancePaginas& avance)
{
    while (informe.adelantar(PAGINAS_POR_VEZ))
        if (!avance(0, 0))
            return 0;
    return informe.paginas();
}

bool pintar_informe(Informe& informe, QPagedPaintDevice& papel, int desde, int hasta, const AvancePaginas& avance)
{
    papel.setPageSize(QPageSize(QPageSize::A4));
    papel.setPageMargins({0, 0, 0, 0});
    QPainter p(&papel);
    const double escala = papel.logicalDpiX() / MM_POR_PULGADA;
    for (int n = desde; n < hasta; ++n) {
        if (n > desde)
            papel.newPage();
        if (const auto pagina = informe.pagina(n))
            pintar_pagina(p, *pagina, escala);
        if (!avance(n - desde + 1, hasta - desde))
            return false;
    }
    return true;
}

SalidaPDF guardar_pdf(Informe& informe, const QString& archivo, const QString& titulo, const AvancePaginas& avance)
{
    QSaveFile salida(archivo);
    if (!salida.open(QIODevice::WriteOnly))
        return SalidaPDF::fallido;
    bool entero = false;
    if (const int paginas = contar_paginas(informe, avance); paginas > 0) {
        QPdfWriter pdf(&salida);
        pdf.setResolution(RESOLUCION_PDF);
        pdf.setTitle(titulo);
        pdf.setCreator(QCoreApplication::applicationName());
        entero = pintar_informe(informe, pdf, 0, paginas, avance);
    }
    if (!entero) {
        salida.cancelWriting();
        return SalidaPDF::cancelado;
    }
    return salida.commit() ? SalidaPDF::escrito : SalidaPDF::fallido;
}
