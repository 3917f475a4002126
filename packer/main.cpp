// SPDX-License-Identifier: GPL-3.0-or-later
// rar a -y ARCHIVE FILE… | rar t ARCHIVE | rar l ARCHIVE

#include "rar5.h"
#include "system/sistema.h"
#include "visible.h"

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>

namespace {

constexpr int USO = 7;
constexpr int DANADO = 3;
constexpr int SIN_SALIDA = 5;

int uso()
{
    std::fputs("Uso:\n"
               "  rar a -y ARCHIVO FICHERO...   crea el archivo o agrega a él\n"
               "  rar t ARCHIVO                 prueba el archivo\n"
               "  rar l ARCHIVO                 lista el archivo\n",
               stderr);
    return USO;
}

int probar(const std::string& archivo)
{
    int malas = 0;
    for (const EntradaRar& e : listar_rar(archivo)) {
        const bool bien = leer_entrada(archivo, e, [](const char*, size_t) {});
        std::printf("%-5s %s\n", bien ? "OK" : "MAL", visible(e.nombre).c_str());
        malas += !bien;
    }
    std::puts(malas == 0 ? "Todo bien" : "El archivo está dañado");
    return malas == 0 ? EXIT_SUCCESS : DANADO;
}

int listar(const std::string& archivo)
{
    for (const EntradaRar& e : listar_rar(archivo)) {
        const std::time_t t = e.modificado;
        char fecha[20] = {};
        std::tm partes{};
#ifdef _WIN32
        localtime_s(&partes, &t);
#else
        localtime_r(&t, &partes);
#endif
        std::strftime(fecha, sizeof fecha, "%d/%m/%Y %H:%M", &partes);
        std::printf("%14llu  %s  %08X  %s\n", static_cast<unsigned long long>(e.largo), fecha, e.crc,
                    visible(e.nombre).c_str());
    }
    return EXIT_SUCCESS;
}

// One line: bytes done, of all, and the name. Who started the packer reads how far it is.
void contar(const std::string& nombre, uint64_t hechos, uint64_t todos)
{
    std::printf("%" PRIu64 "/%" PRIu64 " %s\n", hechos, todos, visible(nombre).c_str());
    std::fflush(stdout);
}

// The status, once what was said is out.
int terminar(int estado)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return estado;
    std::fputs("rar: no se pudo escribir la salida\n", stderr);
    return SIN_SALIDA;
}

}  // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> a = sistema::argumentos(argc, argv);
    // Who listened to the progress may be gone; the archive is made all the same.
    sistema::preparar_salidas();
    try {
        if (a.size() >= 4 && a[0] == "a" && a[1] == "-y") {
            agregar_rar(a[2], {a.begin() + 3, a.end()}, contar);
            return EXIT_SUCCESS;
        }
        if (a.size() == 2 && a[0] == "t")
            return terminar(probar(a[1]));
        if (a.size() == 2 && a[0] == "l")
            return terminar(listar(a[1]));
        return uso();
    } catch (const std::exception& e) {
        std::fprintf(stderr, "rar: %s\n", visible(e.what()).c_str());
        return DANADO;
    }
}
