// SPDX-License-Identifier: GPL-3.0-or-later
// An emission's archive, from the start of the batch file to the archive in its place, beside one `cp` a file of the
// same bytes, one sync, and their CRC-32.

#include "almacen_grande.h"
#include "medir.h"

#include "core/modGlobales.h"
#include "filing/archivo_dj.h"
#include "filing/empaquetado.h"

#include <fcntl.h>
#include <unistd.h>
#include <zlib.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

using Reloj = std::chrono::steady_clock;

// A DJ with so many testimonios of so many bytes each; the packer stands in the program's folder.
class Testimonios
{
public:
    Testimonios(int cuantos, int bytes) : dj(AlmacenGrande::dj(2026, 3, cuantos))
    {
        QDir base(carpeta_programa());
        base.mkdir(u"origen"_s);
        base.mkdir(u"destino"_s);
        QFile::copy(ruta_herramienta(u"rar"_s, QCoreApplication::applicationDirPath()),
                    ruta_herramienta(u"rar"_s, base.path()));
        QByteArray datos(bytes, Qt::Uninitialized);
        quint32 azar = 2463534242;
        for (int i = 1; i <= cuantos; ++i) {
            for (char& c : datos) {
                azar ^= azar << 13;
                azar ^= azar >> 17;
                azar ^= azar << 5;
                c = char(azar);
            }
            archivos << base.filePath(u"origen/%1.pdf"_s.arg(i));
            QFile f(archivos.constLast());
            if (!f.open(QIODevice::WriteOnly) || f.write(datos) != bytes)
                std::abort();
            Comando c(cnRtn, u"update SEL_TB_RTN_DETDJ set SEDD_FNAME_TESTIMONIO=? where SEDD_ID=?"_s);
            c.parametro("f", archivos.constLast());
            c.parametro("id", i);
            c.ejecutar();
        }
    }
    // Milliseconds from the start of the batch to the archive in its place.
    [[nodiscard]] double emitir() const
    {
        (void)generar_archivo_dj(dj);
        Callado callado;
        Reloj::time_point desde;
        ::sync();
        const bool bien = comprimir_dj(dj, callado, [&](const QString& nombre) {
            desde = Reloj::now();
            return QString(carpeta_programa() + u"/destino/"_s + nombre);
        });
        if (!bien)
            std::abort();
        return ms(desde);
    }
    [[nodiscard]] double copiar() const
    {
        const QString destino = carpeta_programa() + u"/copia"_s;
        QDir(destino).removeRecursively();
        QDir().mkdir(destino);
        const QString guion = carpeta_programa() + u"/copiar.sh"_s;
        QFile f(guion);
        if (!f.open(QIODevice::WriteOnly))
            std::abort();
        for (const QString& a : archivos)
            f.write(QFile::encodeName(u"cp '%1' '%2/'\n"_s.arg(a, destino)));
        f.close();
        ::sync();
        const auto desde = Reloj::now();
        if (std::system(QFile::encodeName(u"sh '%1'"_s.arg(guion)).constData()) != 0)
            std::abort();
        const int carpeta = ::open(QFile::encodeName(destino).constData(), O_RDONLY | O_DIRECTORY);
        if (carpeta < 0 || ::syncfs(carpeta) != 0)
            std::abort();
        ::close(carpeta);
        for (const QString& a : archivos) {
            QFile leido(a);
            if (!leido.open(QIODevice::ReadOnly))
                std::abort();
            const QByteArray b = leido.readAll();
            benchmark::DoNotOptimize(crc32_z(0, reinterpret_cast<const Bytef*>(b.constData()), z_size_t(b.size())));
        }
        return ms(desde);
    }

private:
    static double ms(Reloj::time_point desde)
    {
        return std::chrono::duration<double, std::milli>(Reloj::now() - desde).count();
    }

    QString dj;
    QStringList archivos;
};

void emision(benchmark::State& estado)
{
    const AlmacenGrande a;
    const Testimonios t(int(estado.range(0)), int(estado.range(1)));
    std::vector<double> casos, limites;
    for (auto _ : estado) {
        casos.push_back(t.emitir());
        limites.push_back(t.copiar());
        estado.SetIterationTime(casos.back() / 1000);
    }
    std::sort(casos.begin(), casos.end());
    std::sort(limites.begin(), limites.end());
    estado.counters["caso_ms"] = casos[casos.size() / 2];
    estado.counters["limite_ms"] = limites[limites.size() / 2];
    estado.counters["razon"] = casos[casos.size() / 2] / limites[limites.size() / 2];
    estado.counters["pedida"] = double(estado.range(2)) / 10;
}

// Ten times the files beside ten times the time; the ratio is in tens of that.
void diez_veces(benchmark::State& estado)
{
    double pocas = 0, muchas = 0;
    for (auto _ : estado) {
        for (const int cuantos : {300, 3000}) {
            const AlmacenGrande a;
            const Testimonios t(cuantos, 20000);
            (cuantos == 300 ? pocas : muchas) = std::min({t.emitir(), t.emitir(), t.emitir()});
        }
        estado.SetIterationTime(muchas / 1000);
    }
    estado.counters["caso_ms"] = muchas;
    estado.counters["limite_ms"] = pocas;
    estado.counters["razon"] = muchas / pocas;
    estado.counters["pedida"] = 11;
}

}  // namespace

void registrar_empaquetado()
{
    benchmark::RegisterBenchmark("emision_de_300_testimonios_de_1_MB", emision)
        ->Args({300, 1'000'000, 15})
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(5);
    benchmark::RegisterBenchmark("emision_de_2000_testimonios_de_100_KB", emision)
        ->Args({2000, 100'000, 20})
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(5);
    benchmark::RegisterBenchmark("emision_de_diez_veces_los_testimonios", diez_veces)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1);
}
