// SPDX-License-Identifier: GPL-3.0-or-later
// The integrity code of a return file: the MD5 of its records (RFC 1321).
#pragma once

#include <QCryptographicHash>
#include <QString>

#include <string_view>

/// Bytes that are gathered before the code takes them.
constexpr size_t BLOQUE_CODIGO = 1 << 16;

class CodigoIntegridad
{
public:
    void agregar(std::string_view bytes) { resumen_.addData(QByteArrayView(bytes.data(), qsizetype(bytes.size()))); }
    /// 32 hexadecimal digits in upper case.
    [[nodiscard]] QString texto() const { return QString::fromLatin1(resumen_.result().toHex()).toUpper(); }

private:
    QCryptographicHash resumen_{QCryptographicHash::Md5};
};
