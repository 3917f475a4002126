// SPDX-License-Identifier: GPL-3.0-or-later

#include "rar5.h"

#include "archivo.h"
#include "core/motivo_sistema.h"

#include <fcntl.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace {

constexpr unsigned char FIRMA[] = {0x52, 0x61, 0x72, 0x21, 0x1a, 0x07, 0x01, 0x00};
constexpr size_t BLOQUE = 1 << 20;
constexpr uint64_t CABECERA_MAXIMA = 2 << 20;  // the format's own limit

enum Tipo : uint64_t { PRINCIPAL = 1, ARCHIVO = 2, FIN = 5 };
constexpr uint64_t CON_EXTRA = 0x01;
constexpr uint64_t CON_DATOS = 0x02;
constexpr uint64_t CON_FECHA = 0x02;
constexpr uint64_t CON_CRC = 0x04;
constexpr uint64_t ES_CARPETA = 0x01;
constexpr uint64_t METODO = 0x380;
constexpr uint64_t SISTEMA_UNIX = 1;

void poner_vint(std::string& s, uint64_t v)
{
    do
        s.push_back(char((v & 0x7f) | (v > 0x7f ? 0x80 : 0)));
    while ((v >>= 7) != 0);
}

void poner_32(std::string& s, uint32_t v)
{
    for (int i = 0; i < 4; ++i)
        s.push_back(char(v >> (8 * i)));
}

uint32_t crc_de(const char* datos, size_t largo, uint32_t antes = 0)
{
    return uint32_t(crc32_z(antes, reinterpret_cast<const Bytef*>(datos), largo));
}

// The check over the size and what it counts, then both.
std::string bloque_de(const std::string& cuerpo)
{
    std::string con_largo;
    poner_vint(con_largo, cuerpo.size());
    con_largo += cuerpo;
    std::string salida;
    poner_32(salida, crc_de(con_largo.data(), con_largo.size()));
    return salida + con_largo;
}

std::string cabecera_principal()
{
    std::string c;
    poner_vint(c, PRINCIPAL);
    poner_vint(c, 0);
    poner_vint(c, 0);
    return bloque_de(c);
}

std::string cabecera_fin()
{
    std::string c;
    poner_vint(c, FIN);
    poner_vint(c, 0);
    poner_vint(c, 0);
    return bloque_de(c);
}

std::string cabecera_archivo(const EntradaRar& e, uint32_t permisos)
{
    std::string c;
    poner_vint(c, ARCHIVO);
    poner_vint(c, CON_DATOS);
    poner_vint(c, e.almacenado);
    poner_vint(c, CON_FECHA | CON_CRC);
    poner_vint(c, e.largo);
    poner_vint(c, permisos);
    poner_32(c, e.modificado);
    poner_32(c, e.crc);
    poner_vint(c, 0);  // stored, version 0
    poner_vint(c, SISTEMA_UNIX);
    poner_vint(c, e.nombre.size());
    return bloque_de(c + e.nombre);
}

// Takes the fields of one header from its bytes.
class Campos
{
public:
    Campos(const std::string& bytes, const std::string& archivo) : bytes_(bytes), archivo_(archivo) {}
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
    uint32_t u32()
    {
        const std::string t = tomar(4);
        uint32_t v = 0;
        for (size_t i = 0; i < 4; ++i)
            v |= uint32_t(static_cast<unsigned char>(t[i])) << (8 * i);
        return v;
    }
    std::string tomar(uint64_t n)
    {
        if (n > bytes_.size() - lugar_)
            danado();
        lugar_ += size_t(n);
        return bytes_.substr(lugar_ - size_t(n), size_t(n));
    }
    [[noreturn]] void danado() const { throw std::runtime_error(archivo_ + ": el archivo está dañado"); }

private:
    const std::string& bytes_;
    const std::string& archivo_;
    size_t lugar_ = 0;
};

// The body of the next header, its check held; empty at the end of the file.
std::string leer_cabecera(Archivo& a)
{
    unsigned char crudo[4];
    const size_t n = a.leer(crudo, 4);
    if (n == 0)
        return {};
    const auto danado = [&a] { throw std::runtime_error(a.ruta() + ": el archivo está dañado"); };
    if (n < 4)
        danado();
    const uint32_t crc = uint32_t(crudo[0]) | uint32_t(crudo[1]) << 8 | uint32_t(crudo[2]) << 16
                         | uint32_t(crudo[3]) << 24;
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
    if (a.leer(cuerpo.data(), cuerpo.size()) != cuerpo.size())
        danado();
    if (crc_de(cuerpo.data(), cuerpo.size(), crc_de(con_largo.data(), con_largo.size())) != crc)
        danado();
    return cuerpo;
}

std::string nombre_base(const std::string& ruta)
{
    return ruta.substr(ruta.find_last_of('/') + 1);
}

// Copies so many bytes from one place to another, and gives their CRC.
uint32_t copiar(Archivo& de, Archivo& a, uint64_t cuantos)
{
    static const auto bufer = std::make_unique<char[]>(BLOQUE);
    uint32_t crc = 0;
    while (cuantos > 0) {
        const size_t parte = size_t(std::min<uint64_t>(cuantos, BLOQUE));
        if (de.leer(bufer.get(), parte) != parte)
            throw std::runtime_error(de.ruta() + ": cambió mientras se leía");
        crc = crc_de(bufer.get(), parte, crc);
        a.escribir(bufer.get(), parte);
        cuantos -= parte;
    }
    return crc;
}

void agregar_archivo(Archivo& salida, const std::string& ruta)
{
    Archivo origen(ruta, O_RDONLY);
    EntradaRar e;
    e.nombre = nombre_base(ruta);
    e.largo = e.almacenado = origen.largo();
    e.modificado = origen.modificado();
    // The check of the data stands before them: the header is written again once it is known.
    const uint64_t lugar = salida.lugar();
    const auto permisos = origen.permisos();
    const std::string provisoria = cabecera_archivo(e, permisos);
    salida.escribir(provisoria.data(), provisoria.size());
    e.crc = copiar(origen, salida, e.largo);
    const uint64_t fin = salida.lugar();
    const std::string definitiva = cabecera_archivo(e, permisos);
    salida.ir(lugar);
    salida.escribir(definitiva.data(), definitiva.size());
    salida.ir(fin);
}

}  // namespace

std::vector<EntradaRar> listar_rar(const std::string& archivo)
{
    Archivo a(archivo, O_RDONLY);
    unsigned char firma[sizeof FIRMA] = {};
    if (a.leer(firma, sizeof firma) != sizeof firma || std::memcmp(firma, FIRMA, sizeof firma) != 0)
        throw std::runtime_error(archivo + ": no es un archivo RAR 5");
    std::vector<EntradaRar> entradas;
    while (true) {
        const uint64_t inicio = a.lugar();
        const std::string cuerpo = leer_cabecera(a);
        if (cuerpo.empty())
            throw std::runtime_error(archivo + ": el archivo está incompleto");
        Campos c(cuerpo, archivo);
        const uint64_t tipo = c.vint();
        const uint64_t marcas = c.vint();
        if (marcas & CON_EXTRA)
            c.vint();
        const uint64_t datos = marcas & CON_DATOS ? c.vint() : 0;
        if (tipo == FIN)
            return entradas;
        if (datos > a.largo() - a.lugar())
            c.danado();
        if (tipo == ARCHIVO) {
            EntradaRar e;
            e.cabecera = inicio;
            e.datos = a.lugar();
            e.almacenado = datos;
            const uint64_t marcas_archivo = c.vint();
            e.largo = c.vint();
            c.vint();
            if (marcas_archivo & CON_FECHA)
                e.modificado = c.u32();
            e.conCrc = marcas_archivo & CON_CRC;
            if (e.conCrc)
                e.crc = c.u32();
            e.guardada = (c.vint() & METODO) == 0;
            c.vint();
            e.nombre = c.tomar(c.vint());
            if (!(marcas_archivo & ES_CARPETA))
                entradas.push_back(e);
        }
        a.ir(a.lugar() + datos);
    }
}

bool leer_entrada(const std::string& archivo, const EntradaRar& entrada,
                  const std::function<void(const char*, size_t)>& bloque)
{
    if (!entrada.guardada)
        throw std::runtime_error(archivo + ": " + entrada.nombre + " está comprimido");
    Archivo a(archivo, O_RDONLY);
    a.ir(entrada.datos);
    const auto bufer = std::make_unique<char[]>(BLOQUE);
    uint32_t crc = 0;
    for (uint64_t quedan = entrada.almacenado; quedan > 0;) {
        const size_t parte = size_t(std::min<uint64_t>(quedan, BLOQUE));
        if (a.leer(bufer.get(), parte) != parte)
            return false;
        crc = crc_de(bufer.get(), parte, crc);
        bloque(bufer.get(), parte);
        quedan -= parte;
    }
    return !entrada.conCrc || crc == entrada.crc;
}

void agregar_rar(const std::string& archivo, const std::vector<std::string>& archivos)
{
    const bool existe = access(archivo.c_str(), F_OK) == 0;
    const std::string nuevo = archivo + ".nuevo";
    unlink(nuevo.c_str());
    try {
        Archivo salida(nuevo, O_WRONLY | O_CREAT | O_EXCL);
        salida.escribir(FIRMA, sizeof FIRMA);
        const std::string principal = cabecera_principal();
        salida.escribir(principal.data(), principal.size());
        if (existe) {
            Archivo anterior(archivo, O_RDONLY);
            for (const EntradaRar& e : listar_rar(archivo)) {
                const bool reemplazada = std::any_of(archivos.begin(), archivos.end(), [&e](const std::string& r) {
                    return nombre_base(r) == nombre_base(e.nombre);
                });
                if (reemplazada)
                    continue;
                anterior.ir(e.cabecera);
                copiar(anterior, salida, e.datos + e.almacenado - e.cabecera);
            }
        }
        for (const std::string& ruta : archivos)
            agregar_archivo(salida, ruta);
        const std::string fin = cabecera_fin();
        salida.escribir(fin.data(), fin.size());
        salida.asegurar();
    } catch (...) {
        unlink(nuevo.c_str());
        throw;
    }
    if (std::rename(nuevo.c_str(), archivo.c_str()) != 0) {
        const int falla = errno;
        unlink(nuevo.c_str());
        throw std::runtime_error(archivo + ": no se puede escribir (" + motivo_del_sistema(falla) + ")");
    }
}
