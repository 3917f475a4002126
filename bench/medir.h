// SPDX-License-Identifier: GPL-3.0-or-later
// A case beside its limit: both run in turns, the medians give the ratio.
#pragma once

#include <benchmark/benchmark.h>

#include <QString>

#include <functional>

/// Times `caso` and `limite` by turns, one pair an iteration, and reports the median times in ms
/// ("caso", "limite"), their ratio and the ratio that is asked.
void medir(benchmark::State& estado, double pedido, const std::function<void()>& caso,
           const std::function<void()>& limite);

/// The bare query: every column of every row as the engine gives it.
void consulta_sola(const QString& sql);

void registrar_logica();
void registrar_pantallas();
void registrar_impresion();
void registrar_catalogo();
void registrar_respaldo();
void registrar_empaquetado();
