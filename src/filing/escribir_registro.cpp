// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/escribir_registro.h"

#include "core/redondeo.h"

#include <sqlcipher/sqlite3.h>

#include <cstring>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

std::string_view texto_de(sqlite3_stmt* s, int columna)
{
    const auto* utf8 = reinterpret_cast<const char*>(sqlite3_column_text(s, columna));
    return utf8 ? std::string_view(utf8, size_t(sqlite3_column_bytes(s, columna))) : std::string_view();
}

// Length in 16-bit characters of a text in UTF-8.
qsizetype largo(std::string_view t)
{
    qsizetype n = 0;
    for (const unsigned char c : t)
        n += c < 0x80 || c >= 0xc0 ? (c >= 0xf0 ? 2 : 1) : 0;
    return n;
}

void escribir_cifras(double v, int ancho, Piezas& salida)
{
    const std::string cifras = cifras_enteras(v);
    const bool negativo = cifras.front() == '-';
    if (negativo)
        salida.ascii("-");
    const auto digitos = qsizetype(cifras.size()) - negativo;
    if (digitos < ancho)
        salida.repetir('0', ancho - digitos);
    salida.ascii(std::string_view(cifras).substr(negativo));
}

int buscar_columna(sqlite3_stmt* s, const char* nombre)
{
    for (int i = 0; i < sqlite3_column_count(s); ++i)
        if (qstricmp(sqlite3_column_name(s, i), nombre) == 0)
            return i;
    return -1;
}

// Bytes of the first letter of a text in UTF-8.
size_t largo_letra(std::string_view t)
{
    size_t n = 1;
    while (n < t.size() && (static_cast<unsigned char>(t[n]) & 0xc0) == 0x80)
        ++n;
    return n;
}

// Characters of a text that count against its field's width; nothing for a field that takes any text.
std::optional<qsizetype> contados(Clase clase, std::string_view t)
{
    switch (clase) {
    case Clase::texto: return largo(t);
    case Clase::recortado:
    case Clase::contenido: return largo(recortar(t));
    default: return {};
    }
}

}  // namespace

ErrorRegistro::ErrorRegistro(const QString& registro_, int renglon_, const QString& detalle_)
    : std::runtime_error(detalle_.toStdString()), registro(registro_), renglon(renglon_), detalle(detalle_)
{
}

EscritorRegistro::EscritorRegistro(const Registro& registro, sqlite3_stmt* sentencia)
    : registro_(registro), sentencia_(sentencia), columnaRenglon_(buscar_columna(sentencia, "SEDD_ID")),
      columnaAlcanzado_(buscar_columna(sentencia, "SEDD_ALCANZADO")),
      columnaMotivo_(buscar_columna(sentencia, "SNAD_ID"))
{
    for (const CampoRegistro& c : registro.campos)
        columnas_.push_back(buscar_columna(sentencia, c.nombre));
}

void EscritorRegistro::fallar(const CampoRegistro& c, const QString& motivo) const
{
    throw ErrorRegistro(
        u"Registro %1 (%2)"_s.arg(QString(QLatin1Char(registro_.tipo)), QString::fromUtf8(registro_.titulo)),
        columnaRenglon_ < 0 ? 0 : sqlite3_column_int(sentencia_, columnaRenglon_),
        u"\nCampo: %1\n%2"_s.arg(QString::fromLatin1(c.nombre), motivo));
}

// Blanks up to the width, counted on a length; more text than width is a failure of the emission.
void EscritorRegistro::rellenar(const CampoRegistro& c, std::string_view texto, qsizetype cuentan, Piezas& salida) const
{
    if (cuentan > c.ancho)
        fallar(c, u"Texto: %1\nLargo: %2, ancho del campo: %3"_s.arg(
                      QString::fromUtf8(texto.data(), qsizetype(texto.size())), QString::number(cuentan),
                      QString::number(c.ancho)));
    salida.utf8(texto);
    salida.repetir(' ', c.ancho - cuentan);
}

// Whether the column counts; the reason of a deed only does when the deed is not reached.
bool EscritorRegistro::vale(const CampoRegistro& c, int columna) const
{
    if (sqlite3_column_type(sentencia_, columna) == SQLITE_NULL)
        return false;
    return !c.forma.soloNoAlcanzada
           || (sqlite3_column_type(sentencia_, columnaMotivo_) != SQLITE_NULL
               && texto_de(sentencia_, columnaAlcanzado_) != "S");
}

std::vector<ValorQueNoEntra> EscritorRegistro::revisar() const
{
    std::vector<ValorQueNoEntra> fallas;
    for (size_t i = 0; i < columnas_.size(); ++i) {
        const CampoRegistro& c = registro_.campos[i];
        if (c.forma.clase == Clase::literal)
            continue;
        const bool nulo = !vale(c, columnas_[i]);
        const auto n = nulo ? std::nullopt : contados(c.forma.clase, texto_de(sentencia_, columnas_[i]));
        if ((nulo && c.forma.nuloEsFalla) || n.value_or(0) > c.ancho)
            fallas.push_back({c.nombre, n.value_or(0), c.ancho});
    }
    return fallas;
}

void EscritorRegistro::campo(const CampoRegistro& c, int columna, Piezas& salida) const
{
    if (c.forma.clase == Clase::literal) {
        salida.ascii(c.nombre);
        return;
    }
    const bool nulo = !vale(c, columna);
    if (nulo && c.forma.nuloEsFalla)
        fallar(c, u"El valor falta (es nulo)."_s);
    if (nulo && c.forma.nulo) {
        salida.ascii(c.forma.nulo);
        return;
    }
    const std::string_view t = nulo || c.forma.clase == Clase::cifras ? std::string_view()
                                                                      : texto_de(sentencia_, columna);
    switch (c.forma.clase) {
    case Clase::cifras:
        if (!nulo)
            escribir_cifras(sqlite3_column_double(sentencia_, columna) * c.forma.factor, c.ancho, salida);
        break;
    case Clase::texto:
    case Clase::recortado: rellenar(c, t, *contados(c.forma.clase, t), salida); break;
    case Clase::contenido: rellenar(c, recortar(t), *contados(c.forma.clase, t), salida); break;
    case Clase::talCual: salida.utf8(t); break;
    case Clase::siNo: salida.ascii(!nulo && sqlite3_column_int(sentencia_, columna) != 0 ? "S" : "N"); break;
    case Clase::primeraLetra: salida.utf8(t.empty() ? std::string_view(" ") : t.substr(0, largo_letra(t))); break;
    case Clase::cerosDelante:
        salida.repetir('0', std::max<qsizetype>(0, c.ancho - largo(t)));
        salida.utf8(t);
        break;
    case Clase::hastaElAncho: {
        // A longer text stands whole and moves what follows; deliberately so.
        const auto n = salida.utf8(t);
        salida.repetir(' ', std::max<qsizetype>(0, c.ancho - n));
        break;
    }
    case Clase::leyExencion: {
        const std::string ley = nulo ? std::string() : "LEY EXENCION:" + std::string(t);
        rellenar(c, ley, largo(recortar(ley)), salida);
        break;
    }
    case Clase::literal: break;
    }
}

void EscritorRegistro::escribir(Piezas& salida) const
{
    salida.ascii(std::string_view(&registro_.tipo, 1));
    for (size_t i = 0; i < columnas_.size(); ++i)
        campo(registro_.campos[i], columnas_[i], salida);
}
