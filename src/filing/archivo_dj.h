// SPDX-License-Identifier: GPL-3.0-or-later
// The return file of a DJ and its integrity code.
#pragma once

#include <QString>

struct EmisionArchivo
{
    QString codigo;   ///< 32 hexadecimal digits in upper case; empty when no file could be made
    QString archivo;  ///< full name of the file
    QString motivo;   ///< why no file could be made
};

/// Writes the whole file from the store, replacing an earlier one, and stores the code in the
/// header of the DJ. A folder or file that can't be made gives no code. Throws on what fails after
/// that: a text longer than its field or a null where a value must stand (std::runtime_error), a failing
/// query (ErrorAlmacen) or a full disk (ErrorDisco) leave the earlier file and its code as they were. File and
/// code are on the disk when it returns.
[[nodiscard]] EmisionArchivo generar_archivo_dj(const QString& nro);
