// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rptInforme.h"

using namespace Qt::StringLiterals;

bool Informe::traer()
{
    if (siguiente_ > 0) {
        pendientes_.erase(pendientes_.begin(), pendientes_.begin() + qsizetype(siguiente_));
        siguiente_ = 0;
    }
    if (!agotado_ && !siguientes(pendientes_))
        agotado_ = true;
    return !pendientes_.empty();
}

// Lays the next page out; false when nothing is left to put on one.
bool Informe::disponer()
{
    while (siguiente_ >= pendientes_.size() && !agotado_)
        traer();
    if (siguiente_ >= pendientes_.size() && !hechas_.empty()) {
        completo_ = true;
        return false;
    }
    Pagina pagina;
    const Banda arriba = cabecera(int(hechas_.size()));
    pagina.agregar(arriba.contenido, MARGEN);
    double y = MARGEN + arriba.alto;
    const double comienzo = y;
    while (true) {
        while (siguiente_ >= pendientes_.size() && !agotado_)
            traer();
        if (siguiente_ >= pendientes_.size())
            break;
        // What is not to be parted goes as one.
        double alto = 0;
        size_t fin = siguiente_;
        do
            alto += pendientes_[fin].alto;
        while (pendientes_[fin++].conLaSiguiente && fin < pendientes_.size());
        if (y + alto > limite() && y > comienzo)
            break;
        for (; siguiente_ < fin; ++siguiente_) {
            pagina.agregar(pendientes_[siguiente_].contenido, y);
            y += pendientes_[siguiente_].alto;
        }
    }
    hechas_.push_back(std::move(pagina));
    return true;
}

bool Informe::adelantar(int cuantas)
{
    for (int i = 0; i < cuantas && !completo_; ++i)
        disponer();
    return !completo_;
}

int Informe::paginas()
{
    while (!completo_)
        disponer();
    return int(hechas_.size());
}

std::optional<Pagina> Informe::pagina(int n)
{
    while (int(hechas_.size()) <= n && !completo_)
        disponer();
    if (n < 0 || n >= int(hechas_.size()))
        return {};
    Pagina p = hechas_[size_t(n)];
    const QString de = completo_ ? u" de "_s + QString::number(hechas_.size()) : QString();
    p.texto({MARGEN, ALTO_A4 - MARGEN - 4, ANCHO_UTIL, 4}, u"Hoja "_s + QString::number(n + 1) + de, 8,
            Alineacion::derecha);
    return p;
}
