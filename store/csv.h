// SPDX-License-Identifier: GPL-3.0-or-later
// Comma-separated text, as in RFC 4180, read line by line with the place of each field.
#pragma once

#include <QFile>
#include <QList>
#include <QString>

#include <optional>

/// A field and the place of its first character, both counted from 1.
struct CampoCSV
{
    QString texto;
    int linea = 1;
    int columna = 1;
};
using FilaCSV = QList<CampoCSV>;

class LectorCSV
{
public:
    /// Opens the file; throws std::runtime_error when it can't be read.
    explicit LectorCSV(const QString& ruta);

    /// The fields of the next record, nothing at the end. A quoted field may span lines.
    [[nodiscard]] std::optional<FilaCSV> siguiente();
    /// Whether the file ended within quotes.
    [[nodiscard]] bool sinCerrar() const { return citado_; }

private:
    QFile archivo_;
    int leidas_ = 0;
    bool citado_ = false;
};
