// SPDX-License-Identifier: GPL-3.0-or-later
// The words of engine, system and toolkit that no notary may read.
#pragma once

#include <QRegularExpression>
#include <QString>

/// The first English word of such a message in a text; empty when there is none.
[[nodiscard]] inline QString ingles_en(const QString& texto)
{
    static const QRegularExpression PALABRAS(
        QStringLiteral("\\b(no such|syntax|near \"|unrecognized|constraint|failed|failure|database|datatype|mismatch|"
                       "malformed|encrypted|locked|readonly|read-only|full|unable|cannot|can't|could not|device|space|"
                       "permission|denied|input/output|error code|logic|too many|incomplete input|unknown|not found|"
                       "invalid|file is|bad|unexpected|std::|what\\(\\))"),
        QRegularExpression::CaseInsensitiveOption);
    return PALABRAS.match(texto).captured();
}
