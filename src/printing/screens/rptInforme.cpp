// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rptInforme.h"

#include "printing/screens/estilo.h"

using namespace Qt::StringLiterals;

namespace {

// What bands may be higher than their page by rounding, in millimetres.
constexpr double HOLGURA = 0.01;

}  // namespace

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

bool Informe::hayBanda()
{
    while (siguiente_ >= pendientes_.size() && !agotado_)
        traer();
    return siguiente_ < pendientes_.size();
}

// Where what is not to be parted ends, from the next band on, and its height.
size_t Informe::finDelGrupo(double& alto) const
{
    alto = 0;
    size_t fin = siguiente_;
    do
        alto += pendientes_[fin].alto;
    while (pendientes_[fin++].conLaSiguiente && fin < pendientes_.size());
    return fin;
}

// Lays the next page out; false when nothing is left to put on one.
bool Informe::disponer()
{
    if (!hayBanda() && !hechas_.empty()) {
        completo_ = true;
        return false;
    }
    Pagina pagina;
    double y = estilo::MARGEN;
    const auto poner = [&](const Banda& b) {
        pagina.agregar(b.contenido, y);
        y += b.alto;
    };
    poner(cabecera(int(hechas_.size())));
    if (hayBanda() && pendientes_[siguiente_].alAbrir)
        poner(*pendientes_[siguiente_].alAbrir);
    const double comienzo = y;
    const double limite = ALTO_A4 - estilo::MARGEN - altoPie() + HOLGURA;
    while (hayBanda()) {
        double alto = 0;
        const size_t fin = finDelGrupo(alto);
        if (y + alto > limite && y > comienzo)
            break;
        for (; siguiente_ < fin; ++siguiente_)
            poner(pendientes_[siguiente_]);
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
    if (altoPie() <= 0)
        return p;
    const QString de = completo_ ? u" de "_s + QString::number(hechas_.size()) : QString();
    p.texto({estilo::MARGEN, ALTO_A4 - estilo::MARGEN - 4, estilo::ANCHO_UTIL, 4},
            u"Hoja "_s + QString::number(n + 1) + de, estilo::PUNTOS, Alineacion::derecha);
    return p;
}
