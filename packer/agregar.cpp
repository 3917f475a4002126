// SPDX-License-Identifier: GPL-3.0-or-later

#include "indice.h"
#include "rar5.h"
#include "system/motivo_sistema.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <set>
#include <stdexcept>

namespace {

constexpr size_t BLOQUE = 1 << 18;
constexpr uint64_t ENTRE_AVANCES = 8 << 20;

// Where the bytes of an entry come from.
struct Origen
{
    Archivo& archivo;
    uint64_t lugar = 0;
};

// Copies so many bytes, and gives their CRC.
uint32_t copiar(const Origen& de, Archivo& a, uint64_t cuantos, const std::function<void(uint64_t)>& avance)
{
    static const auto bufer = std::make_unique_for_overwrite<char[]>(BLOQUE);
    de.archivo.ir(de.lugar);
    uint32_t crc = 0;
    for (uint64_t hechos = 0; hechos < cuantos;) {
        const size_t parte = size_t(std::min<uint64_t>(cuantos - hechos, BLOQUE));
        if (de.archivo.leer(bufer.get(), parte) != parte)
            throw std::runtime_error(de.archivo.ruta() + ": cambió mientras se leía");
        crc = crc_de(bufer.get(), parte, crc);
        a.escribir(bufer.get(), parte);
        hechos += parte;
        if (hechos % ENTRE_AVANCES == 0 && hechos < cuantos)
            avance(hechos);
    }
    return crc;
}

void escribir(Archivo& a, const std::string& bytes)
{
    a.escribir(bytes.data(), bytes.size());
}

// Adds an entry where the end header stands. The first bytes of that are written over last of all: until then the
// archive is the earlier one, with bytes behind its end that count for nothing.
void poner_entrada(Archivo& a, IndiceRar& indice, EntradaRar e, const Origen& de, const AvanceRar& avance)
{
    const auto busqueda = buscar_rar(a, indice, e.nombre);
    if (!busqueda)
        throw std::runtime_error(a.ruta() + ": dos nombres tienen el mismo resumen");
    e.atajos = busqueda->atajos;
    const uint64_t datos = indice.fin + cabecera_archivo(e).size();
    a.ir(datos);
    const uint32_t crc = copiar(de, a, e.almacenado, [&](uint64_t hechos) { avance(e.nombre, hechos, e.largo); });
    if (!e.conCrc)
        e.crc = crc;
    const uint64_t fin = a.lugar();
    escribir(a, cabecera_fin(indice.fin));
    const std::string cabecera = cabecera_archivo(e);
    a.ir(indice.fin + LARGO_FIN);
    escribir(a, cabecera.substr(LARGO_FIN));
    a.ir(indice.fin);
    escribir(a, cabecera.substr(0, LARGO_FIN));
    indice = {indice.fin, fin};
    avance(e.nombre, e.largo, e.largo);
}

void poner_archivo(Archivo& a, IndiceRar& indice, const std::string& ruta, const AvanceRar& avance)
{
    Archivo origen(ruta, sistema::Apertura::leer);
    const sistema::Ficha ficha = origen.ficha();
    EntradaRar e;
    e.nombre = sistema::nombre_sin_camino(ruta);
    e.largo = e.almacenado = ficha.largo;
    e.modificado = uint32_t(ficha.modificado);
    e.permisos = ficha.permisos;
    poner_entrada(a, indice, e, {origen}, avance);
}

// All files of the call, or none.
void continuar(Archivo& a, IndiceRar indice, const std::vector<std::string>& archivos, const AvanceRar& avance)
{
    const IndiceRar antes = indice;
    try {
        for (const std::string& ruta : archivos)
            poner_archivo(a, indice, ruta, avance);
    } catch (...) {
        a.ir(antes.fin);
        escribir(a, cabecera_fin(antes.ultima));
        a.recortar();
        throw;
    }
}

// An archive of its own, written aside under a name that goes when it does not take its place.
class Aparte
{
public:
    explicit Aparte(const std::string& archivo) : archivo_(archivo), aparte_(archivo + ".nuevo")
    {
        sistema::borrar(aparte_);
        salida_ = std::make_unique<Archivo>(aparte_, sistema::Apertura::nuevo);
    }
    ~Aparte()
    {
        if (!aparte_.empty())
            sistema::borrar(aparte_);
    }
    Aparte(const Aparte&) = delete;
    Aparte& operator=(const Aparte&) = delete;
    Archivo& salida() { return *salida_; }
    void ocupar()
    {
        if (!sistema::renombrar(aparte_, archivo_))
            throw std::runtime_error(archivo_ + ": no se puede escribir (" + motivo_del_sistema(errno) + ")");
        aparte_.clear();
    }

private:
    std::string archivo_;
    std::string aparte_;
    std::unique_ptr<Archivo> salida_;
};

void crear(const std::string& archivo, const std::vector<std::string>& archivos, const AvanceRar& avance)
{
    Aparte nuevo(archivo);
    const std::string principio = principio_rar();
    escribir(nuevo.salida(), principio + cabecera_fin(0));
    continuar(nuevo.salida(), {0, principio.size()}, archivos, avance);
    nuevo.ocupar();
}

// Writes the archive anew: one that another packer wrote, or a file takes the place of an earlier one. Entries of
// other packers keep their headers, and such an archive has no index.
void rehacer(const std::string& archivo, std::unique_ptr<Archivo> anterior, const std::vector<std::string>& archivos,
             const AvanceRar& avance)
{
    std::vector<EntradaRar> quedan = listar_rar(archivo);
    std::set<std::string> nombres;
    for (const std::string& ruta : archivos)
        nombres.insert(sistema::nombre_sin_camino(ruta));
    std::erase_if(quedan, [&](const EntradaRar& e) { return nombres.contains(nombre_base(e.nombre)); });
    const bool propio = std::all_of(quedan.begin(), quedan.end(),
                                    [&](const EntradaRar& e) { return e.propia && nombres.insert(e.nombre).second; });
    Aparte nuevo(archivo);
    Archivo& a = nuevo.salida();
    const std::string principio = principio_rar();
    const auto callado = [](const std::string&, uint64_t, uint64_t) {};
    IndiceRar indice{0, principio.size()};
    escribir(a, principio + cabecera_fin(0));
    if (!propio)
        a.ir(indice.fin);
    for (const EntradaRar& e : quedan) {
        if (propio)
            poner_entrada(a, indice, e, {*anterior, e.datos}, callado);
        else
            copiar({*anterior, e.cabecera}, a, e.datos + e.almacenado - e.cabecera, [](uint64_t) {});
    }
    if (!propio)
        indice = {0, a.lugar()};
    continuar(a, indice, archivos, avance);
    if (!propio) {
        a.ir(a.largo() - LARGO_FIN);
        escribir(a, cabecera_fin_simple());
        a.recortar();
    }
    a.asegurar();
    // Where what is open keeps its name the lock goes a moment earlier.
    if (!sistema::SE_REEMPLAZA_ABIERTO)
        anterior.reset();
    nuevo.ocupar();
}

// Opens the archive for this process alone; nothing when there is none.
std::unique_ptr<Archivo> abrir(const std::string& archivo)
{
    while (sistema::existe(archivo)) {
        auto a = std::make_unique<Archivo>(archivo, sistema::Apertura::escribir);
        a->trabar();
        // Another process may have put a new one in its place meanwhile.
        if (a->es(archivo))
            return a;
    }
    return {};
}

void sin_repetidos(const std::vector<std::string>& archivos)
{
    std::set<std::string> nombres;
    for (const std::string& ruta : archivos)
        if (!nombres.insert(sistema::nombre_sin_camino(ruta)).second)
            throw std::runtime_error(ruta + ": otro fichero del mismo pedido tiene ese nombre");
}

}  // namespace

void agregar_rar(const std::string& archivo, const std::vector<std::string>& archivos, const AvanceRar& avance)
{
    sin_repetidos(archivos);
    auto a = abrir(archivo);
    if (!a)
        return crear(archivo, archivos, avance);
    const auto indice = leer_indice(*a);
    const bool nuevos = indice && std::all_of(archivos.begin(), archivos.end(), [&](const std::string& ruta) {
                            const auto b = buscar_rar(*a, *indice, sistema::nombre_sin_camino(ruta));
                            return b && !b->esta;
                        });
    if (!nuevos)
        return rehacer(archivo, std::move(a), archivos, avance);
    a->soloDelUsuario();
    continuar(*a, *indice, archivos, avance);
}
