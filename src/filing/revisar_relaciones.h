// SPDX-License-Identifier: GPL-3.0-or-later
// What the records of a return file say of each other: whose child each is, and the totals.
#pragma once

#include "filing/anotar_fallas.h"

#include <set>

class RevisorRelaciones
{
public:
    RevisorRelaciones(LecturaDJ& lectura, AnotadorFallas& fallas) : lectura_(lectura), fallas_(fallas) {}

    /// Takes each record whose fields could be told apart, in the order of the file.
    void revisar(const RegistroLeido& r);
    /// Behind the last one: compares the sums with the totals.
    void cerrarTotales();

private:
    void cabecera(const RegistroLeido& r);
    void escritura(const RegistroLeido& r);
    void hijo(const RegistroLeido& r);

    // Amounts in cents.
    struct EscrituraLeida
    {
        qint64 impuesto = 0;
        qint64 operaciones = 0;
        bool conOperacion = false;
        bool dudosa = false;
        int linea = 0;
    };

    LecturaDJ& lectura_;
    AnotadorFallas& fallas_;
    qint64 total_ = 0;
    qint64 suma_ = 0;
    bool dudosas_ = false;
    std::map<qint64, EscrituraLeida> escrituras_;
    std::set<std::pair<qint64, qint64>> operaciones_;
    std::set<std::pair<qint64, qint64>> partes_;
};
