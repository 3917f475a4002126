// SPDX-License-Identifier: GPL-3.0-or-later
// What the records of a return file say of each other: whose child each is, and the totals.
#pragma once

#include "filing/anotar_fallas.h"

#include <array>
#include <vector>

/// Keys that were met, mostly in ascending order, and are asked for in that order too: then nothing is searched.
class ClavesVistas
{
public:
    using Clave = std::pair<qint64, qint64>;
    void agregar(Clave clave);
    [[nodiscard]] bool contiene(Clave clave);

private:
    std::vector<Clave> todas_;
    bool ordenadas_ = true;
    size_t cursor_ = 0;
};

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
    // Where a record has the fields that are looked at in each of its kind; -1 without it.
    struct Lugares
    {
        const Registro* registro = nullptr;
        int escritura = -1;
        int operacion = -1;
        int parte = -1;
        int monto = -1;
    };
    static Lugares lugares_de(const Registro& registro);
    [[nodiscard]] EscrituraLeida* buscarEscritura(qint64 id);

    std::map<qint64, EscrituraLeida> escrituras_;
    std::map<qint64, EscrituraLeida>::iterator ultima_ = escrituras_.end();
    ClavesVistas operaciones_;
    ClavesVistas partes_;
    Lugares lugares_;  // of the kind that came last
};
