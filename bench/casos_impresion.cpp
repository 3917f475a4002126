// SPDX-License-Identifier: GPL-3.0-or-later

#include "almacen_grande.h"
#include "medir.h"

#include "printing/datos_dj.h"
#include "printing/screens/pintar_pagina.h"
#include "printing/screens/rptSalida.h"
#include "printing/screens/rpt_dj.h"

#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include <fstream>

using namespace Qt::StringLiterals;

namespace {

const QString CODIGO = u"9DCABBEC95C60F7B69846C4A8513C009"_s;

qint64 memoria(const char* cual)
{
    std::ifstream estado("/proc/self/status");
    for (std::string linea; std::getline(estado, linea);)
        if (linea.rfind(cual, 0) == 0)
            return std::stoll(linea.substr(6)) / 1024;
    return 0;
}

// As many runs of text of the same length, by the painter alone, on as many pages.
void textos_solos(const QString& archivo, const std::vector<std::vector<QString>>& paginas)
{
    QPdfWriter pdf(archivo);
    pdf.setResolution(1200);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    QPainter p(&pdf);
    QFont f(u"DejaVu Sans"_s);
    f.setPixelSize(133);
    p.setFont(f);
    for (size_t n = 0; n < paginas.size(); ++n) {
        if (n > 0)
            pdf.newPage();
        double y = 200;
        for (const QString& t : paginas[n]) {
            p.drawText(QPointF(500, y), t);
            y += 60;
        }
    }
}

void dj_a_pdf(benchmark::State& estado)
{
    const AlmacenGrande a;
    const QString nro = AlmacenGrande::dj(2026, 3, 2000);
    const DJImpresa dj = leer_dj_impresa(nro);
    QTemporaryDir dir;
    std::vector<std::vector<QString>> paginas;
    {
        rpt_dj informe(dj, CODIGO, u"v"_s);
        for (int n = 0; n < informe.paginas(); ++n) {
            paginas.emplace_back();
            const Pagina pagina = informe.pagina(n).value_or(Pagina());
            for (const TextoImpreso& t : pagina.textos)
                paginas.back().push_back(t.texto);
        }
    }
    estado.counters["paginas"] = double(paginas.size());
    std::ofstream("/proc/self/clear_refs") << "5";
    const qint64 antes = memoria("VmRSS:");
    medir(
        estado, 1.5,
        [&] {
            rpt_dj informe(dj, CODIGO, u"v"_s);
            if (guardar_pdf(informe, dir.filePath(u"dj.pdf"_s), u"DJ"_s) != SalidaPDF::escrito)
                std::abort();
        },
        [&] { textos_solos(dir.filePath(u"limite.pdf"_s), paginas); });
    estado.counters["memoria_de_mas_MB"] = double(memoria("VmHWM:") - antes);
}

// The first page of 2,000 deeds beside the first page of 50, once the data are read.
void primera_pagina(benchmark::State& estado)
{
    const AlmacenGrande a;
    const DJImpresa larga = leer_dj_impresa(AlmacenGrande::dj(2026, 3, 2000));
    const DJImpresa corta = leer_dj_impresa(AlmacenGrande::dj(2026, 4, 50));
    const auto mostrar = [](const DJImpresa& dj) {
        rpt_dj informe(dj, CODIGO, u"v"_s);
        QImage papel(900, 1273, QImage::Format_RGB32);
        papel.fill(Qt::white);
        QPainter p(&papel);
        pintar_pagina(p, *informe.pagina(0), 900 / ANCHO_A4);
    };
    medir(
        estado, 1.5, [&] { mostrar(larga); }, [&] { mostrar(corta); });
}

}  // namespace

void registrar_impresion()
{
    benchmark::RegisterBenchmark("dj_de_2000_escrituras_a_PDF", dj_a_pdf)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(3);
    benchmark::RegisterBenchmark("primera_pagina", primera_pagina)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(21);
}
