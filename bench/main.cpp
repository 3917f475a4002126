// SPDX-License-Identifier: GPL-3.0-or-later

#include "medir.h"

#include "application/aplicacion.h"
#include "core/modGlobales.h"

#include <sqlcipher/sqlite3.h>

#include <QLocale>

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

double milisegundos(const std::function<void()>& f)
{
    const auto antes = std::chrono::steady_clock::now();
    f();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - antes).count();
}

double mediana(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : v[v.size() / 2];
}

}  // namespace

void medir(benchmark::State& estado, double pedido, const std::function<void()>& caso,
           const std::function<void()>& limite)
{
    caso();
    limite();
    std::vector<double> casos, limites;
    for (auto _ : estado) {
        casos.push_back(milisegundos(caso));
        limites.push_back(milisegundos(limite));
        estado.SetIterationTime(casos.back() / 1000);
    }
    estado.counters["caso_ms"] = mediana(casos);
    estado.counters["limite_ms"] = mediana(limites);
    estado.counters["razon"] = mediana(casos) / mediana(limites);
    estado.counters["pedida"] = pedido;
}

void consulta_sola(const QString& sql)
{
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(cnRtn.nativa(), sql.toUtf8().constData(), -1, &s, nullptr);
    while (sqlite3_step(s) == SQLITE_ROW)
        for (int i = 0; i < sqlite3_column_count(s); ++i)
            benchmark::DoNotOptimize(sqlite3_column_text(s, i));
    sqlite3_finalize(s);
}

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Aplicacion aplicacion(argc, argv);
    // Without a loop of events all cases would be one long wait, and its window would be painted over them.
    fijar_vigia(nullptr);
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Argentina));
    registrar_logica();
    registrar_pantallas();
    registrar_impresion();
    registrar_catalogo();
    registrar_respaldo();
    registrar_empaquetado();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
