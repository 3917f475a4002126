// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/anotar_fallas.h"

#include "filing/codificacion.h"

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t FALLAS_MAXIMAS = 1000;

// Where a field begins when those in front of it have their widths, from 1.
int columna_prevista(const Registro& registro, size_t campo)
{
    int c = 2;
    for (size_t i = 0; i < campo; ++i)
        c += registro.campos[i].ancho;
    return c;
}

}  // namespace

void AnotadorFallas::falla(const FallaLectura& f)
{
    if (lectura_.fallas.size() < FALLAS_MAXIMAS)
        lectura_.fallas.push_back(f);
}

void AnotadorFallas::aviso(const FallaLectura& f)
{
    if (cabenAvisos())
        lectura_.avisos.push_back(f);
}

bool AnotadorFallas::cabenAvisos() const
{
    return lectura_.avisos.size() < FALLAS_MAXIMAS;
}

void AnotadorFallas::rareza(const RegistroLeido& r, const char* campo, size_t largo, int previsto)
{
    auto& todas = lectura_.rarezas;
    auto it = std::find_if(todas.begin(), todas.end(), [&](const RarezaLeida& una) {
        return una.tipo == r.registro->tipo && una.largo == int(largo) && una.campo == QLatin1StringView(campo);
    });
    if (it == todas.end())
        it = todas.insert(it, {r.registro->tipo, QString::fromLatin1(campo), int(largo), previsto, 0, r.linea});
    ++it->veces;
}

void AnotadorFallas::campo(const RegistroLeido& r, size_t campo)
{
    const CampoRegistro& c = r.registro->campos[campo];
    const int columna = columna_prevista(*r.registro, campo);
    const auto desde = std::min(size_t(columna) - 1, r.bytes.size());
    falla({r.linea, columna, QString::fromLatin1(c.nombre),
           texto_ansi(r.bytes.substr(desde, size_t(std::max(c.ancho, 1)))),
           u"el campo no cabe en el registro (largo %1, previsto %2)"_s.arg(r.bytes.size())
               .arg(r.registro->ancho() + 1)});
}

void AnotadorFallas::valor(const RegistroLeido& r, const char* campo, const QString& mensaje)
{
    const std::string_view v = r.campo(campo);
    const int columna = v.data() ? int(v.data() - r.bytes.data()) + 1 : 1;
    falla({r.linea, columna, QString::fromLatin1(campo), texto_ansi(v.substr(0, 60)), mensaje});
}
