// SPDX-License-Identifier: GPL-3.0-or-later
// The batch file of an emission at work: started, watched, and ended with all that it started.
#pragma once

#include "core/dialogo.h"
#include "filing/proceso_lote.h"

#include <QElapsedTimer>
#include <QString>

#include <chrono>

/// What the batch file packs.
struct TrabajoEmpaquetador
{
    QString orden;    ///< what the shell is to carry out, see GuionLote
    QString carpeta;  ///< the program's folder, where it works
    QString archivo;  ///< the archive that it builds
    qsizetype ficheros = 0;
    qint64 bytes = 0;
};

/// Starts the batch file. However the emission ends, the archive that it builds does not stay behind.
class LoteEnMarcha
{
public:
    /// `sin_noticias`: for how long the packer may show no progress before the user is asked.
    LoteEnMarcha(TrabajoEmpaquetador trabajo, std::chrono::milliseconds sin_noticias);
    ~LoteEnMarcha();
    LoteEnMarcha(const LoteEnMarcha&) = delete;
    LoteEnMarcha& operator=(const LoteEnMarcha&) = delete;

    /// Until every line was carried out, while the user sees how far it is. False once he ended it.
    [[nodiscard]] bool esperar(Dialogo& dialogo, const QString& titulo);
    /// Ends it now, with all that it started.
    void terminar();
    /// Whether every line was carried out by now.
    [[nodiscard]] bool termino();
    /// Whether the last line ended well.
    [[nodiscard]] bool bien() const;
    /// What the packer complained of; the shell's own complaint of the first line is none.
    [[nodiscard]] QString queja();

private:
    void oir();
    void oirLinea(const QString& linea);
    [[nodiscard]] QString avance() const;

    TrabajoEmpaquetador trabajo_;
    std::chrono::milliseconds sin_noticias_;
    ProcesoLote proceso_;
    QElapsedTimer callado_;  // since the last sign of progress
    qint64 largo_ = -1;      // of the archive, when it was last looked at
    QByteArray dicho_;       // by the packer, of its last line so far
    QString fichero_;
    qsizetype hechos_ = 0;
    qint64 bytesHechos_ = 0;  // of files that are whole
    qint64 bytesDeEste_ = 0;
};
