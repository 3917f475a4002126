// SPDX-License-Identifier: GPL-3.0-or-later
// Comma-separated text, as in RFC 4180, read line by line with the number of each line.
#pragma once

#include <QFile>
#include <QStringList>

#include <optional>

class LectorCSV
{
public:
    /// Opens the file; throws std::runtime_error when it can't be read.
    explicit LectorCSV(const QString& ruta);

    /// The fields of the next record, nothing at the end. A quoted field may span lines.
    [[nodiscard]] std::optional<QStringList> siguiente();
    /// Line on which the last record began, from 1.
    [[nodiscard]] int linea() const { return linea_; }

private:
    QFile archivo_;
    int linea_ = 0;
    int leidas_ = 0;
};
