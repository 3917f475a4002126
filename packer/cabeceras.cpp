// SPDX-License-Identifier: GPL-3.0-or-later

#include "cabeceras.h"

#include <zlib.h>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr uint64_t CABECERA_MAXIMA = 2 << 20;  // the format's own limit

constexpr uint64_t CON_EXTRA = 0x01;
constexpr uint64_t CON_DATOS = 0x02;
constexpr uint64_t CON_FECHA = 0x02;
constexpr uint64_t CON_CRC = 0x04;
constexpr uint64_t ES_CARPETA = 0x01;
constexpr uint64_t METODO = 0x380;
constexpr uint64_t SISTEMA_UNIX = 1;
// A kind of extra record that the format has not given away: readers pass over what they do not know.
constexpr uint64_t ATAJOS = 0x3a76;

void poner_vint(std::string& s, uint64_t v)
{
    do
        s.push_back(char((v & 0x7f) | (v > 0x7f ? 0x80 : 0)));
    while ((v >>= 7) != 0);
}

void poner_fijo(std::string& s, uint64_t v, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        s.push_back(char(v >> (8 * i)));
}

uint64_t fijo(const std::string& s, size_t desde, size_t bytes)
{
    uint64_t v = 0;
    for (size_t i = 0; i < bytes; ++i)
        v |= uint64_t(static_cast<unsigned char>(s[desde + i])) << (8 * i);
    return v;
}

// The check over the size and what it counts, then both.
std::string bloque_de(const std::string& cuerpo)
{
    std::string con_largo;
    poner_vint(con_largo, cuerpo.size());
    con_largo += cuerpo;
    std::string salida;
    poner_fijo(salida, crc_de(con_largo.data(), con_largo.size()), 4);
    return salida + con_largo;
}

// An extra record: its size counts its kind and its data.
std::string registro_extra(const std::string& datos)
{
    std::string cuerpo, salida;
    poner_vint(cuerpo, ATAJOS);
    cuerpo += datos;
    poner_vint(salida, cuerpo.size());
    return salida + cuerpo;
}

// Takes the fields of one header from its bytes.
class Campos
{
public:
    Campos(std::string bytes, const std::string& archivo) : bytes_(std::move(bytes)), archivo_(archivo) {}
    uint64_t vint()
    {
        uint64_t v = 0;
        for (int corrido = 0; corrido < 64; corrido += 7) {
            const auto b = static_cast<unsigned char>(tomar(1)[0]);
            v |= uint64_t(b & 0x7f) << corrido;
            if (!(b & 0x80))
                return v;
        }
        danado();
    }
    uint32_t u32() { return uint32_t(fijo(tomar(4), 0, 4)); }
    std::string tomar(uint64_t n)
    {
        if (n > quedan())
            danado();
        lugar_ += size_t(n);
        return bytes_.substr(lugar_ - size_t(n), size_t(n));
    }
    [[nodiscard]] size_t quedan() const { return bytes_.size() - lugar_; }
    [[noreturn]] void danado() const { throw std::runtime_error(archivo_ + ": el archivo está dañado"); }

private:
    std::string bytes_;
    const std::string& archivo_;
    size_t lugar_ = 0;
};

// The body of the header at the file's place, its check held.
std::string leer_cuerpo(Archivo& a)
{
    std::string crudo(4, '\0');
    const size_t n = a.leer(crudo.data(), 4);
    if (n == 0)
        throw std::runtime_error(a.ruta() + ": el archivo está incompleto");
    const auto danado = [&a] { throw std::runtime_error(a.ruta() + ": el archivo está dañado"); };
    if (n < 4)
        danado();
    std::string con_largo;
    uint64_t largo = 0;
    for (int corrido = 0;; corrido += 7) {
        char b = 0;
        if (corrido > 14 || a.leer(&b, 1) != 1)
            danado();
        con_largo.push_back(b);
        largo |= uint64_t(b & 0x7f) << corrido;
        if (!(b & 0x80))
            break;
    }
    if (largo == 0 || largo > CABECERA_MAXIMA)
        danado();
    std::string cuerpo(size_t(largo), '\0');
    if (a.leer(cuerpo.data(), cuerpo.size()) != cuerpo.size()
        || crc_de(cuerpo.data(), cuerpo.size(), crc_de(con_largo.data(), con_largo.size())) != fijo(crudo, 0, 4))
        danado();
    return cuerpo;
}

// Passes over what other packers put there.
void leer_atajos(Campos extra, EntradaRar& e)
{
    while (extra.quedan() > 0) {
        const uint64_t largo = extra.vint();
        const size_t desde = extra.quedan();
        if (largo == 0 || largo > desde)
            return;
        const uint64_t clase = extra.vint();
        const auto restan = [&] { return largo - std::min<uint64_t>(largo, desde - extra.quedan()); };
        if (clase != ATAJOS)
            extra.tomar(restan());
        else
            for (e.propia = true; restan() > 0;)
                e.atajos.push_back(extra.vint());
    }
}

}  // namespace

uint32_t crc_de(const char* datos, size_t largo, uint32_t antes)
{
    return uint32_t(crc32_z(antes, reinterpret_cast<const Bytef*>(datos), largo));
}

std::string nombre_base(const std::string& ruta)
{
    return ruta.substr(ruta.find_last_of('/') + 1);
}

std::string principio_rar()
{
    std::string c;
    for (const uint64_t campo : {uint64_t(TipoRar::principal), uint64_t(0), uint64_t(0)})
        poner_vint(c, campo);
    return std::string(reinterpret_cast<const char*>(FIRMA_RAR), sizeof FIRMA_RAR) + bloque_de(c);
}

std::string cabecera_archivo(const EntradaRar& e)
{
    std::string atajos, c;
    for (const uint64_t lugar : e.atajos)
        poner_vint(atajos, lugar);
    const std::string extra = registro_extra(atajos);
    poner_vint(c, uint64_t(TipoRar::archivo));
    poner_vint(c, CON_DATOS | CON_EXTRA);
    poner_vint(c, extra.size());
    poner_vint(c, e.almacenado);
    poner_vint(c, CON_FECHA | CON_CRC);
    poner_vint(c, e.largo);
    poner_vint(c, e.permisos);
    poner_fijo(c, e.modificado, 4);
    poner_fijo(c, e.crc, 4);
    poner_vint(c, 0);  // stored, version 0
    poner_vint(c, SISTEMA_UNIX);
    poner_vint(c, e.nombre.size());
    return bloque_de(c + e.nombre + extra);
}

std::string cabecera_fin(uint64_t ultima)
{
    std::string lugar, c;
    poner_fijo(lugar, ultima, 8);
    const std::string extra = registro_extra(lugar);
    poner_vint(c, uint64_t(TipoRar::fin));
    poner_vint(c, CON_EXTRA);
    poner_vint(c, extra.size());
    poner_vint(c, 0);
    return bloque_de(c + extra);
}

std::string cabecera_fin_simple()
{
    std::string c;
    for (const uint64_t campo : {uint64_t(TipoRar::fin), uint64_t(0), uint64_t(0)})
        poner_vint(c, campo);
    return bloque_de(c);
}

bool leer_fin(const std::string& bytes, uint64_t& ultima)
{
    ultima = bytes.size() == LARGO_FIN ? fijo(bytes, LARGO_FIN - 8, 8) : 0;
    return bytes == cabecera_fin(ultima);
}

CabeceraRar leer_cabecera(Archivo& a)
{
    CabeceraRar cabecera;
    EntradaRar& e = cabecera.entrada;
    e.cabecera = a.lugar();
    Campos c(leer_cuerpo(a), a.ruta());
    cabecera.tipo = TipoRar(c.vint());
    const uint64_t marcas = c.vint();
    const uint64_t extra = marcas & CON_EXTRA ? c.vint() : 0;
    e.almacenado = marcas & CON_DATOS ? c.vint() : 0;
    e.datos = a.lugar();
    if (e.almacenado > a.largo() - a.lugar())
        c.danado();
    if (cabecera.tipo == TipoRar::archivo) {
        const uint64_t marcas_archivo = c.vint();
        cabecera.carpeta = marcas_archivo & ES_CARPETA;
        e.largo = c.vint();
        e.permisos = uint32_t(c.vint());
        if (marcas_archivo & CON_FECHA)
            e.modificado = c.u32();
        e.conCrc = marcas_archivo & CON_CRC;
        if (e.conCrc)
            e.crc = c.u32();
        e.guardada = (c.vint() & METODO) == 0;
        c.vint();
        e.nombre = c.tomar(c.vint());
        if (extra > c.quedan())
            c.danado();
        leer_atajos(Campos(c.tomar(extra), a.ruta()), e);
    }
    a.ir(a.lugar() + e.almacenado);
    return cabecera;
}
