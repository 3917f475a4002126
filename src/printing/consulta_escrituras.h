// SPDX-License-Identifier: GPL-3.0-or-later
// The query behind the deeds of a printed DJ.
#pragma once

#include <QString>

/// The deeds of a DJ with their operations and the texts of SEL_TMP_DJ_OPER: a row for each operation, and
/// one for a deed without any.
[[nodiscard]] QString consulta_escrituras(const QString& nro);
