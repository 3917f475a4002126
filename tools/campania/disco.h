// SPDX-License-Identifier: GPL-3.0-or-later
// A process on a disk that fails at one call (disco_lleno.cpp says which calls are counted).
#pragma once

#include <QFile>
#include <QProcessEnvironment>

#include <utility>

struct DiscoQueFalla
{
    QString carpeta;  ///< below it calls are counted
    QString cuenta;   ///< the file of the count, outside of it

    /// The environment of a process in which the n-th call fails, none for 0; the count begins anew.
    [[nodiscard]] QProcessEnvironment entorno(int n, const char* error) const
    {
        QFile::remove(cuenta);
        QProcessEnvironment e = QProcessEnvironment::systemEnvironment();
        e.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(RTN_DISCO_LLENO));
        e.insert(QStringLiteral("RTN_FALLA_CARPETA"), carpeta);
        e.insert(QStringLiteral("RTN_FALLA_CUENTA"), cuenta);
        e.insert(QStringLiteral("RTN_FALLA_ERROR"), QString::fromLatin1(error));
        e.insert(QStringLiteral("RTN_FALLA_N"), QString::number(n));
        // A sanitizer wants to be the first of what is loaded.
        e.insert(QStringLiteral("ASAN_OPTIONS"),
                 e.value(QStringLiteral("ASAN_OPTIONS")) + QStringLiteral(":verify_asan_link_order=0"));
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
