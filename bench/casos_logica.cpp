// SPDX-License-Identifier: GPL-3.0-or-later

#include "almacen_grande.h"
#include "medir.h"

#include "computation/calculo.h"
#include "core/modGlobales.h"
#include "declarations/copiar_dj.h"
#include "filing/archivo_dj.h"
#include "filing/lector_dj.h"
#include "tree/modABM_dj.h"
#include "tree/registros.h"

#include <rar5.h>
#include <sqlcipher/sqlite3.h>
#include <zlib.h>

#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <fstream>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

sqlite3_stmt* preparar(const QString& sql)
{
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(cnRtn.nativa(), sql.toUtf8().constData(), -1, &s, nullptr);
    return s;
}

// Reads every cell of the rows that the file is made of through the engine alone, then writes and
// digests as many bytes as the file has.
void leer_y_digerir(const QString& dj, qint64 bytes)
{
    for (const Registro& r : registros()) {
        sqlite3_stmt* s = preparar(r.consulta(dj));
        while (sqlite3_step(s) == SQLITE_ROW)
            for (int i = 0; i < sqlite3_column_count(s); ++i)
                benchmark::DoNotOptimize(sqlite3_column_text(s, i));
        sqlite3_finalize(s);
    }
    static const QByteArray bloque(1 << 16, 'x');
    QFile f(carpeta_programa() + u"/limite.txt"_s);
    if (!f.open(QIODevice::WriteOnly))
        std::abort();
    QCryptographicHash md5(QCryptographicHash::Md5);
    for (qint64 n = 0; n < bytes; n += bloque.size()) {
        f.write(bloque);
        md5.addData(bloque);
    }
    benchmark::DoNotOptimize(md5.result());
}

// Peak of resident memory in KiB since it was last set back.
qint64 memoria_pico()
{
    std::ifstream estado("/proc/self/status");
    for (std::string linea; std::getline(estado, linea);)
        if (linea.rfind("VmHWM:", 0) == 0)
            return std::stoll(linea.substr(6));
    return 0;
}

void olvidar_pico()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

void archivo(benchmark::State& estado)
{
    const AlmacenGrande a;
    const QString chica = AlmacenGrande::dj(2026, 1, 100);
    const QString media = AlmacenGrande::dj(2026, 2, 1000);
    const QString grande = AlmacenGrande::dj(2026, 3, 10000);
    const qint64 bytes = QFile(generar_archivo_dj(grande).archivo).size();
    const auto pico = [](const QString& dj) {
        olvidar_pico();
        benchmark::DoNotOptimize(generar_archivo_dj(dj));
        return memoria_pico();
    };
    const qint64 pico_chica = pico(chica);
    estado.counters["memoria_de_mas_MB"] = double(pico(grande) - pico_chica) / 1024;
    const auto tiempo = [](const QString& dj) {
        const auto antes = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(generar_archivo_dj(dj));
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count();
    };
    double t_media = tiempo(media), t_grande = tiempo(grande);
    for (int i = 0; i < 3; ++i) {
        t_media = std::min(t_media, tiempo(media));
        t_grande = std::min(t_grande, tiempo(grande));
    }
    estado.counters["diez_veces_mas"] = t_grande / t_media;
    medir(
        estado, 1.1, [&] { benchmark::DoNotOptimize(generar_archivo_dj(grande)); },
        [&] { leer_y_digerir(grande, bytes); });
}

// An operation of a sale with two parties, ready to be calculated.
struct Venta
{
    AlmacenGrande almacen;
    Callado callado;
    CamposSueltos sueltos;
    CamposImpuesto c = sueltos.campos();
    clsSubconcepto s;
    EstadoOperacion e;

    Venta()
    {
        const Recordset rs(cnRtn, u"select * from SEL_VW_SUBCONCEPTOS where SSUB_ID_CONLEY=5707001"_s);
        s.llenar(rs);
        e.subconcepto = &s;
        e.partes = {{u"VENDEDOR"_s, 50.0}, {u"COMPRADOR"_s, {}}};
        c.nroTotalVC.setValue(1234567.89);
        c.nroValuacionFiscal.setValue(1000000);
    }
    void calcular(int veces)
    {
        for (int i = 0; i < veces; ++i)
            CalcularImpuesto(c, e, callado);
    }
};

// Taking the steps down beside not doing so.
void pasos(benchmark::State& estado)
{
    constexpr int VECES = 500;
    Venta v;
    Pasos anotados;
    medir(
        estado, 1.05,
        [&] {
            v.e.pasos = &anotados;
            v.calcular(VECES);
        },
        [&] {
            v.e.pasos = nullptr;
            v.calcular(VECES);
        });
}

void calculo(benchmark::State& estado)
{
    Venta v;
    constexpr int VECES = 500;
    medir(
        estado, 1.5, [&] { v.calcular(VECES); },
        [&] {
            for (int i = 0; i < VECES; ++i) {
                sqlite3_stmt* st = preparar(
                    u"select SALI_ID, SALI_DESDEVALOR, SALI_HASTAVALOR, SALI_ALICUOTA  from SEL_TB_ALICUOTAS  where SSUB_ID=5707001 "
                    u"and (SALI_DESDEVALOR<1234567.89 and (SALI_HASTAVALOR=-1 or SALI_HASTAVALOR>=1234567.89))"_s);
                sqlite3_step(st);
                benchmark::DoNotOptimize(sqlite3_column_double(st, 3));
                sqlite3_finalize(st);
            }
        });
}

// The rows of a DJ, cell by cell, into a table under another number by one prepared insert.
void insertar_igual(const char* tabla, const QString& de, const QString& a)
{
    sqlite3_stmt* leer = preparar(u"select * from %1 where SEDJ_NRO='%2'"_s.arg(QLatin1String(tabla), de));
    sqlite3_stmt* poner = nullptr;
    const QByteArray nro = a.toUtf8();
    while (sqlite3_step(leer) == SQLITE_ROW) {
        const int n = sqlite3_column_count(leer);
        if (!poner)
            poner = preparar(u"insert into %1 values (?%2)"_s.arg(QLatin1String(tabla), u",?"_s.repeated(n - 1)));
        for (int i = 0; i < n; ++i) {
            if (qstrcmp(sqlite3_column_name(leer, i), "SEDJ_NRO") == 0)
                sqlite3_bind_text(poner, i + 1, nro.constData(), int(nro.size()), SQLITE_STATIC);
            else
                sqlite3_bind_value(poner, i + 1, sqlite3_column_value(leer, i));
        }
        sqlite3_step(poner);
        sqlite3_reset(poner);
    }
    sqlite3_finalize(leer);
    sqlite3_finalize(poner);
}

void copia(benchmark::State& estado)
{
    const AlmacenGrande a;
    Callado callado;
    const QString dj = AlmacenGrande::dj(2026, 3, 1000);
    const QString otra = dj.left(15) + u"77"_s;
    const auto borrar = [](const QString& nro) {
        cnRtn.ejecutarGuion(
            u"delete from SEL_TB_RTN_INS_ROLES where SEDJ_NRO='%1'; delete from SEL_TB_RTN_CABDJ where SEDJ_NRO='%1'"_s
                .arg(nro));
    };
    double t_caso = 0, t_limite = 0;
    const auto cronometrar = [](const std::function<void()>& f) {
        const auto antes = std::chrono::steady_clock::now();
        f();
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - antes).count();
    };
    std::vector<double> casos, limites;
    for (auto _ : estado) {
        QString nueva;
        casos.push_back(t_caso = cronometrar([&] { nueva = copiar_dj(dj, callado); }));
        borrar(nueva);
        limites.push_back(t_limite = cronometrar([&] {
                              cnRtn.comenzar();
                              for (const char* t : {"SEL_TB_RTN_CABDJ", "SEL_TB_RTN_DETDJ", "SEL_TB_RTN_INS_INMUEBLES",
                                                    "SEL_TB_RTN_INS_PARTES", "SEL_TB_RTN_INS_OPERACIONES",
                                                    "SEL_TB_RTN_INS_VC", "SEL_TB_RTN_INS_ROLES"})
                                  insertar_igual(t, dj, otra);
                              cnRtn.confirmar();
                          }));
        borrar(otra);
        estado.SetIterationTime(t_caso / 1000);
    }
    std::sort(casos.begin(), casos.end());
    std::sort(limites.begin(), limites.end());
    estado.counters["caso_ms"] = casos[casos.size() / 2];
    estado.counters["limite_ms"] = limites[limites.size() / 2];
    estado.counters["razon"] = casos[casos.size() / 2] / limites[limites.size() / 2];
    estado.counters["pedida"] = 1.1;
}

void lector(benchmark::State& estado)
{
    const AlmacenGrande a;
    const QString ruta = generar_archivo_dj(AlmacenGrande::dj(2026, 3, 10000)).archivo;
    const auto leer = [&ruta] {
        QFile f(ruta);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    };
    medir(
        estado, 2, [&] { benchmark::DoNotOptimize(leer_archivo_dj(leer())); },
        [&] { benchmark::DoNotOptimize(QCryptographicHash::hash(leer(), QCryptographicHash::Md5)); });
}

// `rar a` of 500 MB beside `cp` of the same file and its CRC-32.
void packer(benchmark::State& estado)
{
    QTemporaryDir dir;
    const QString origen = dir.filePath(u"origen.bin"_s);
    {
        QFile f(origen);
        if (!f.open(QIODevice::WriteOnly))
            std::abort();
        QByteArray bloque(1 << 20, '\0');
        for (int i = 0; i < 500; ++i) {
            for (qsizetype k = 0; k < bloque.size(); k += 97)
                bloque[k] = char(i * 31 + k);
            f.write(bloque);
        }
    }
    const std::string rar = dir.filePath(u"a.rar"_s).toStdString();
    const std::string copia = dir.filePath(u"copia.bin"_s).toStdString();
    medir(
        estado, 1.3,
        [&] {
            std::remove(rar.c_str());
            agregar_rar(rar, {origen.toStdString()});
        },
        [&] {
            std::remove(copia.c_str());
            if (std::system(("cp " + origen.toStdString() + " " + copia + " && sync " + copia).c_str()) != 0)
                std::abort();
            QFile f(QString::fromStdString(copia));
            if (!f.open(QIODevice::ReadOnly))
                std::abort();
            uLong crc = 0;
            for (QByteArray b = f.read(1 << 20); !b.isEmpty(); b = f.read(1 << 20))
                crc = crc32_z(crc, reinterpret_cast<const Bytef*>(b.constData()), z_size_t(b.size()));
            benchmark::DoNotOptimize(crc);
        });
}

}  // namespace

void registrar_logica()
{
    benchmark::RegisterBenchmark("leer_dj_de_10000_escrituras", lector)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(9);
    benchmark::RegisterBenchmark("rar_de_500_MB", packer)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(3);
    benchmark::RegisterBenchmark("archivo_y_codigo_de_10000_escrituras", archivo)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(7);
    benchmark::RegisterBenchmark("CalcularImpuesto", calculo)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(15);
    benchmark::RegisterBenchmark("CalcularImpuesto_con_pasos", pasos)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(101);
    benchmark::RegisterBenchmark("copiar_dj_de_1000_escrituras", copia)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(15);
}
