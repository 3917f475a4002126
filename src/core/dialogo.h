// SPDX-License-Identifier: GPL-3.0-or-later
// What the logic says to the user and asks, as data: the screens show it, a test answers it.
#pragma once

#include <QString>

#include <optional>

enum class Icono { ninguno, informacion, exclamacion, pregunta, critico };

struct Mensaje
{
    QString texto;
    QString titulo;
    Icono icono = Icono::informacion;
    QString detalles = {};  ///< behind "Detalles"
    QString si = {};        ///< captions in place of Yes and No; Enter is the latter then
    QString no = {};
};

class Dialogo
{
public:
    virtual ~Dialogo() = default;
    virtual void avisar(const Mensaje& mensaje) = 0;
    /// A box with Yes and No; true for Yes.
    [[nodiscard]] virtual bool preguntar(const Mensaje& mensaje) = 0;
    /// How far a work is that may take long; it is told again and again, until the next notice or question.
    virtual void progresar(const QString& /*que*/, qint64 /*hecho*/, qint64 /*total*/) {}
    /// The same of a work that the user may end: false once he wants it ended.
    [[nodiscard]] virtual bool seguir(const QString& /*que*/, qint64 /*hecho*/, qint64 /*total*/) { return true; }
};

/// The first thing that a check found wrong: what to tell and which control gets the focus.
struct Falla
{
    QString mensaje;
    QString control;
    std::optional<QString> titulo;  ///< the form's caption when absent
    Icono icono = Icono::informacion;
    int solapa = -1;  ///< tab to bring to the front first, -1 for none
};

/// One line of a list of checks: it fails when the condition holds.
struct Regla
{
    bool falla;
    const char* mensaje;
    const char* control;
    Icono icono = Icono::informacion;
};

/// The first rule that fails, or nothing.
[[nodiscard]] inline std::optional<Falla> primera_falla(std::initializer_list<Regla> reglas)
{
    for (const Regla& regla : reglas)
        if (regla.falla)
            return Falla{QString::fromUtf8(regla.mensaje), QString::fromLatin1(regla.control), {}, regla.icono};
    return {};
}

/// What a form was opened for.
enum class Modo { ninguno = 0, nuevo = 1, modificar = 2, rectificar = 128 };
