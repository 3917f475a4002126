// SPDX-License-Identifier: GPL-3.0-or-later
// The copy of the store beside `cp` and `fsync` of the same file. What else a start pays for it stands beside: the
// check of the copy, and what the engine's own copy, page by page, would cost.

#include "almacen_grande.h"
#include "medir.h"

#include "core/modGlobales.h"
#include "core/respaldos.h"

#include <sqlcipher/sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void asentar_archivo(const QString& ruta)
{
    const int fd = ::open(QFile::encodeName(ruta).constData(), O_RDWR);
    if (fd < 0 || ::fsync(fd) != 0)
        std::abort();
    ::close(fd);
}

void cp(const QString& de, const QString& a)
{
    const QByteArray orden = "cp '" + QFile::encodeName(de) + "' '" + QFile::encodeName(a) + "'";
    if (std::system(orden.constData()) != 0)
        std::abort();
    asentar_archivo(a);
}

void por_paginas(const QString& a)
{
    QFile::remove(a);
    Conexion copia;
    crear_conexion_nueva(copia, a, clave_almacen());
    copia.ejecutarGuion(u"pragma synchronous=off; pragma journal_mode=off"_s);
    sqlite3_backup* b = sqlite3_backup_init(copia.nativa(), "main", cnRtn.nativa(), "main");
    if (!b || sqlite3_backup_step(b, -1) != SQLITE_DONE || sqlite3_backup_finish(b) != SQLITE_OK)
        std::abort();
    copia.cerrar();
    asentar_archivo(a);
}

double mejor_de_tres(const std::function<void()>& f)
{
    double mejor = 1e9;
    for (int i = 0; i < 3; ++i) {
        const auto antes = std::chrono::steady_clock::now();
        f();
        mejor = std::min(mejor,
                         std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - antes).count());
    }
    return mejor;
}

void respaldo(benchmark::State& estado)
{
    const AlmacenGrande a;
    AlmacenGrande::partes(int(estado.range(0)));
    const QString ruta = cnRtn.ruta();
    const QString copia = ruta + u".copia"_s;
    // The limit's bytes are read by another process: this one would drop the engine's locks.
    medir(
        estado, 1.5,
        [&] {
            ArchivoNuevo nueva(copia);
            copiar_imagen(cnRtn, nueva);
            nueva.ocupar();
        },
        [&] { cp(ruta, ruta + u".cp"_s); });
    estado.counters["MB"] = double(QFileInfo(ruta).size()) / 1e6;
    estado.counters["revision_ms"] = mejor_de_tres([&] {
        if (!revisar_archivo(copia).sana())
            std::abort();
    });
    estado.counters["por_paginas_ms"] = mejor_de_tres([&] { por_paginas(copia); });
}

}  // namespace

void registrar_respaldo()
{
    for (const int partes : {39000, 780000})
        benchmark::RegisterBenchmark("respaldo", respaldo)
            ->Arg(partes)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(11);
}
