// SPDX-License-Identifier: GPL-3.0-or-later
// A process on a disk that fails at one call (tools/campania/disco_lleno.cpp says which calls are counted).
#pragma once

#include "apoyo/apoyo.h"

#include <QFile>
#include <QProcessEnvironment>

#include <cstring>

struct DiscoQueFalla
{
    QString carpeta;  ///< below it calls are counted
    QString cuenta;   ///< the file of the count, outside of it

    /// The environment of a process in which the n-th call fails, none for 0; the count begins anew.
    [[nodiscard]] QProcessEnvironment entorno(int n, const char* error) const
    {
        QFile::remove(cuenta);
        QProcessEnvironment e = QProcessEnvironment::systemEnvironment();
        e.insert("LD_PRELOAD"_u, QStringLiteral(RTN_DISCO_LLENO));
        e.insert("RTN_FALLA_CARPETA"_u, carpeta);
        e.insert("RTN_FALLA_CUENTA"_u, cuenta);
        e.insert("RTN_FALLA_ERROR"_u, QString::fromLatin1(error));
        e.insert("RTN_FALLA_N"_u, QString::number(n));
        // A sanitizer wants to be the first of what is loaded.
        e.insert("ASAN_OPTIONS"_u, e.value("ASAN_OPTIONS"_u) + ":verify_asan_link_order=0"_u);
        return e;
    }
    /// Calls seen and calls failed.
    [[nodiscard]] std::pair<quint64, quint64> contadas() const
    {
        quint64 numeros[2] = {};
        QFile f(cuenta);
        if (f.open(QIODevice::ReadOnly))
            f.read(reinterpret_cast<char*>(numeros), sizeof numeros);
        return {numeros[0], numeros[1]};
    }
};
