// SPDX-License-Identifier: GPL-3.0-or-later
// The process of a batch file with all that it starts, as one.
#pragma once

#include <QProcess>
#include <QString>

#include <memory>

/// Ends with this object, and with the program, however that ends.
class ProcesoLote
{
public:
    ProcesoLote();
    ~ProcesoLote();
    ProcesoLote(const ProcesoLote&) = delete;
    ProcesoLote& operator=(const ProcesoLote&) = delete;

    /// Has the system's shell carry out `orden` (see GuionLote) in a folder; where windows belong to the shell, in a
    /// maximized one of its own.
    void iniciar(const QString& orden, const QString& carpeta);
    /// The shell and all that it runs: first asked, where one can ask, then made to.
    void terminar();
    /// Its outputs, and how it ended.
    [[nodiscard]] QProcess& proceso() { return proceso_; }
    [[nodiscard]] const QProcess& proceso() const { return proceso_; }

private:
    struct Grupo;

    QProcess proceso_;
    std::unique_ptr<Grupo> grupo_;
};
