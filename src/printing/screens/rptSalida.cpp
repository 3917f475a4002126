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

}  // namespace

void pintar_informe(Informe& informe, QPagedPaintDevice& papel, int desde, int hasta)
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
    }
}

bool guardar_pdf(Informe& informe, const QString& archivo, const QString& titulo)
{
    QSaveFile salida(archivo);
    if (!salida.open(QIODevice::WriteOnly))
        return false;
    {
        QPdfWriter pdf(&salida);
        pdf.setResolution(RESOLUCION_PDF);
        pdf.setTitle(titulo);
        pdf.setCreator(QCoreApplication::applicationName());
        pintar_informe(informe, pdf, 0, informe.paginas());
    }
    return salida.commit();
}
