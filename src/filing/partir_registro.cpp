// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/partir_registro.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int IMPOSIBLE = 1 << 20;
constexpr size_t LARGO_DE_MAS = 400;  // longer than any quirk makes a record
constexpr size_t CIFRAS_DE_MAS = 6;
constexpr size_t BLANCOS_DE_MAS = 60;

bool son_cifras(std::string_view t)
{
    for (const char c : t)
        if (static_cast<unsigned char>(c - '0') > 9)
            return false;
    return true;
}

bool es_clave(const char* nombre)
{
    for (const char* clave : {"SEDD_ID", "SEDO_ID", "SEII_ID", "SPIN_ID", "SVCI_ID", "SROL_ID", "SSUB_ID"})
        if (std::strcmp(nombre, clave) == 0)
            return true;
    return false;
}

std::string_view recortar(std::string_view t)
{
    const auto desde = t.find_first_not_of(' ');
    return desde == std::string_view::npos ? std::string_view() : t.substr(desde, t.find_last_not_of(' ') - desde + 1);
}

// Whether the signs of a pattern stand in the text at their places ("0000/00").
bool misma_puntuacion(std::string_view patron, std::string_view t)
{
    for (size_t i = 0; i < patron.size(); ++i)
        if (static_cast<unsigned char>(patron[i] - '0') > 9 && (i >= t.size() || t[i] != patron[i]))
            return false;
    return true;
}

// Whether a piece of the field's own width may be the field.
bool cabe(const CampoRegistro& c, std::string_view t)
{
    switch (c.forma.clase) {
    case Clase::cifras: return son_cifras(t);
    case Clase::siNo: return t == "S" || t == "N";
    case Clase::literal: return t == c.nombre;
    case Clase::primeraLetra: return t == "F" || t == "P" || t == " ";
    case Clase::talCual: return !c.forma.nulo || misma_puntuacion(c.forma.nulo, t);
    default: return true;
    }
}

// What a reading of the field with so many characters costs; IMPOSIBLE when it can't be.
int costo(const CampoRegistro& c, std::string_view t)
{
    const auto ancho = size_t(c.ancho);
    if (t.size() == ancho && cabe(c, t))
        return 0;
    switch (c.forma.clase) {
    case Clase::cifras:
        if (!t.empty() && t.size() < ancho)
            return IMPOSIBLE;
        if (t.empty())
            return c.forma.nulo || es_clave(c.nombre) ? IMPOSIBLE : 2;
        if (t.front() == '-')
            return t.size() > ancho && son_cifras(t.substr(1)) ? 1 + int(t.size() - ancho - 1) : IMPOSIBLE;
        return t.size() > ancho && t.front() != '0' && son_cifras(t) ? 2 + int(t.size() - ancho) : IMPOSIBLE;
    case Clase::talCual: return t.empty() ? 2 : t.size() > ancho && t.size() <= ancho + 2 ? 3 : IMPOSIBLE;
    case Clase::recortado:
        // The blanks of the stored text make the field longer by as many.
        return t.size() > ancho && recortar(t).size() <= ancho && (t.front() == ' ' || t.back() == ' ')
                   ? 4 + int(t.size() - ancho)
                   : IMPOSIBLE;
    case Clase::hastaElAncho: return t.size() > ancho ? 1 : IMPOSIBLE;
    default: return IMPOSIBLE;
    }
}

std::pair<size_t, size_t> largos(const CampoRegistro& c)
{
    const auto ancho = size_t(c.ancho);
    switch (c.forma.clase) {
    case Clase::cifras: return {0, ancho + 1 + CIFRAS_DE_MAS};
    case Clase::talCual: return {0, ancho + 2};
    case Clase::recortado: return {ancho, ancho + BLANCOS_DE_MAS};
    case Clase::hastaElAncho: return {ancho, ancho + BLANCOS_DE_MAS};
    default: return {ancho, ancho};
    }
}

// The plain case: every field has its width.
int partir_llano(RegistroLeido& r)
{
    size_t lugar = 1;
    size_t i = 0;
    for (const CampoRegistro& c : r.registro->campos) {
        if (lugar + size_t(c.ancho) > r.bytes.size())
            return int(i);
        r.campos[i] = r.bytes.substr(lugar, size_t(c.ancho));
        if (!cabe(c, r.campos[i]))
            return int(i);
        lugar += size_t(c.ancho);
        ++i;
    }
    return lugar == r.bytes.size() ? -1 : int(i) - 1;
}

// One field alone makes up for the length of the record; all others have their width. This is the
// common case (a number past its mask), and needs no table.
bool partir_con_una(RegistroLeido& r)
{
    const auto campos = r.registro->campos;
    const auto n = int(campos.size());
    const auto de_mas = std::ptrdiff_t(r.bytes.size()) - r.registro->ancho() - 1;
    std::array<size_t, CAMPOS_MAXIMOS + 1> lugares{};
    lugares[0] = 1;
    for (int i = 0; i < n; ++i)
        lugares[size_t(i) + 1] = lugares[size_t(i)] + size_t(campos[size_t(i)].ancho);
    const auto llano = [&](int i, std::ptrdiff_t corrido) {
        const auto desde = std::ptrdiff_t(lugares[size_t(i)]) + corrido;
        const auto ancho = size_t(campos[size_t(i)].ancho);
        return desde >= 1 && size_t(desde) + ancho <= r.bytes.size()
               && cabe(campos[size_t(i)], r.bytes.substr(size_t(desde), ancho));
    };
    int antes = 0;  // fields from the start that stand at their places
    while (antes < n && llano(antes, 0))
        ++antes;
    int despues = n;  // first of those that stand at their places counted from the end
    while (despues > 0 && llano(despues - 1, de_mas))
        --despues;
    int elegido = -1;
    int mejor = IMPOSIBLE;
    bool empate = false;
    for (int j = std::max(0, despues - 1); j <= std::min(antes, n - 1); ++j) {
        const auto largo = campos[size_t(j)].ancho + de_mas;
        if (largo < 0 || lugares[size_t(j)] + size_t(largo) > r.bytes.size())
            continue;
        const int c = costo(campos[size_t(j)], r.bytes.substr(lugares[size_t(j)], size_t(largo)));
        empate = c < IMPOSIBLE && (c == mejor || (empate && c >= mejor));
        if (c < mejor) {
            mejor = c;
            elegido = j;
        }
    }
    if (elegido < 0 || de_mas == 0)
        return false;
    r.dudoso = empate;
    for (int i = 0; i < n; ++i) {
        const auto corrido = i > elegido ? de_mas : 0;
        const auto largo = campos[size_t(i)].ancho + (i == elegido ? de_mas : 0);
        r.campos[size_t(i)] = r.bytes.substr(size_t(std::ptrdiff_t(lugares[size_t(i)]) + corrido), size_t(largo));
    }
    return true;
}

// The cheapest reading of all fields over the whole record. Only the places that a reading reaches
// are looked at; the table is kept from record to record, and a turn tells which of it is of this one.
class Rarezas
{
public:
    bool partir(RegistroLeido& r)
    {
        r_ = &r;
        campos_ = r.registro->campos;
        ancho_ = r.bytes.size() + 1;
        // A record that is too short has something missing: no text of it is longer than it should be.
        puedeAlargar_ = std::ptrdiff_t(r.bytes.size()) > r.registro->ancho() + 1;
        if (tabla_.size() < (campos_.size() + 1) * ancho_)
            tabla_.resize((campos_.size() + 1) * ancho_);
        ++turno_;
        if (resolver(0, 1).costo >= IMPOSIBLE)
            return false;
        r.dudoso = resolver(0, 1).maneras > 1;
        for (size_t i = 0, p = 1; i < campos_.size(); ++i) {
            const size_t tomados = resolver(i, p).tomados;
            r.campos[i] = r.bytes.substr(p, tomados);
            p += tomados;
        }
        return true;
    }

private:
    struct Paso
    {
        unsigned turno = 0;
        int costo = IMPOSIBLE;
        int maneras = 0;
        size_t tomados = 0;
    };

    Paso resolver(size_t i, size_t p)
    {
        if (i == campos_.size())
            return p == r_->bytes.size() ? Paso{turno_, 0, 1, 0} : Paso{turno_, IMPOSIBLE, 0, 0};
        const size_t lugar = i * ancho_ + p;
        if (tabla_[lugar].turno == turno_)
            return tabla_[lugar];
        Paso mejor{turno_, IMPOSIBLE, 0, 0};
        auto [menor, mayor] = largos(campos_[i]);
        if (!puedeAlargar_ && campos_[i].forma.clase != Clase::cifras)
            mayor = std::min(mayor, size_t(campos_[i].ancho));
        for (size_t k = menor; k <= mayor && p + k <= r_->bytes.size(); ++k) {
            const int c = costo(campos_[i], r_->bytes.substr(p, k));
            if (c >= IMPOSIBLE)
                continue;
            const Paso resto = resolver(i + 1, p + k);
            if (c + resto.costo < mejor.costo) {
                mejor.costo = c + resto.costo;
                mejor.maneras = resto.maneras;
                mejor.tomados = k;
            } else if (resto.costo < IMPOSIBLE && c + resto.costo == mejor.costo) {
                mejor.maneras = std::min(2, mejor.maneras + resto.maneras);
            }
        }
        tabla_[lugar] = mejor;
        return mejor;
    }

    RegistroLeido* r_ = nullptr;
    std::span<const CampoRegistro> campos_;
    size_t ancho_ = 0;
    bool puedeAlargar_ = true;
    unsigned turno_ = 0;
    std::vector<Paso> tabla_;
};

// Operations of one kind leave the same numbers out: the reading of the last record whose numbers
// alone were odd is tried on the next one of its length, where it must come as dear.
class UltimaRareza
{
public:
    bool partir(RegistroLeido& r) const
    {
        if (r.bytes.size() != largo_ || r.registro != registro_)
            return false;
        size_t p = 1;
        int total = 0;
        for (size_t i = 0; i < r.registro->campos.size(); p += tomados_[i], ++i) {
            r.campos[i] = r.bytes.substr(p, tomados_[i]);
            total += costo(r.registro->campos[i], r.campos[i]);
        }
        if (total != costo_)
            return false;
        r.dudoso = dudoso_;
        return true;
    }
    void recordar(const RegistroLeido& r)
    {
        registro_ = nullptr;
        costo_ = 0;
        for (size_t i = 0; i < r.registro->campos.size(); ++i) {
            tomados_[i] = r.campos[i].size();
            costo_ += costo(r.registro->campos[i], r.campos[i]);
            // A text with blanks at its ends is that record's own.
            if (tomados_[i] != size_t(r.registro->campos[i].ancho)
                && r.registro->campos[i].forma.clase != Clase::cifras)
                return;
        }
        registro_ = r.registro;
        largo_ = r.bytes.size();
        dudoso_ = r.dudoso;
    }

private:
    const Registro* registro_ = nullptr;
    size_t largo_ = 0;
    int costo_ = 0;
    std::array<size_t, CAMPOS_MAXIMOS> tomados_{};
    bool dudoso_ = false;
};

// Record 8: the deed, and a text of any length between its marks.
int partir_testimonio(RegistroLeido& r)
{
    const std::string_view inicio = MARCA_INICIO;
    const std::string_view fin = MARCA_FIN;
    if (r.bytes.size() < 4 || !son_cifras(r.bytes.substr(1, 3)))
        return 0;
    if (r.bytes.substr(4, inicio.size()) != inicio)
        return 1;
    if (r.bytes.size() < 4 + inicio.size() + fin.size() || r.bytes.substr(r.bytes.size() - fin.size()) != fin)
        return 3;
    r.campos[0] = r.bytes.substr(1, 3);
    r.campos[1] = inicio;
    r.campos[2] = r.bytes.substr(4 + inicio.size(), r.bytes.size() - 4 - inicio.size() - fin.size());
    r.campos[3] = fin;
    return -1;
}

}  // namespace

struct PartidorRegistros::Estado
{
    Rarezas rarezas;
    UltimaRareza ultima;
};

PartidorRegistros::PartidorRegistros() : estado_(std::make_unique<Estado>()) {}

PartidorRegistros::~PartidorRegistros() = default;

int PartidorRegistros::partir(RegistroLeido& r)
{
    r.dudoso = false;
    const int falla = r.registro->tipo == '8' ? partir_testimonio(r) : partir_llano(r);
    r.entero = falla < 0;
    if (r.entero || r.registro->tipo == '8')
        return falla;
    const auto previsto = size_t(r.registro->ancho()) + 1;
    if (r.bytes.size() > previsto + LARGO_DE_MAS)
        return falla;
    r.entero = partir_con_una(r) || estado_->ultima.partir(r);
    if (!r.entero && estado_->rarezas.partir(r)) {
        r.entero = true;
        estado_->ultima.recordar(r);
    }
    return r.entero ? -1 : falla;
}
