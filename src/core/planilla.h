// SPDX-License-Identifier: GPL-3.0-or-later
// A list as a file for a spreadsheet program.
#pragma once

#include <QByteArray>
#include <QStringList>

struct Planilla
{
    QString titulo;  ///< of the sheet
    QStringList columnas;
    QList<QStringList> filas;  ///< the cells as they are shown, one a column
};

/// Text in UTF-8 with its mark, lines ended by CR LF, cells parted by what spreadsheets of the user's locale expect:
/// ";" where the comma parts decimals. A text that such a program would take for a formula gets an apostrophe in front.
[[nodiscard]] QByteArray planilla_csv(const Planilla& planilla);
/// An OpenDocument spreadsheet: numbers and days are values, the titles stay in sight. Throws std::runtime_error.
[[nodiscard]] QByteArray planilla_ods(const Planilla& planilla);
