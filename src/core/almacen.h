// SPDX-License-Identifier: GPL-3.0-or-later
// The store: one SQLCipher file, reached through a connection, statements and parameters.
#pragma once

#include "core/comando.h"
#include "core/conexion.h"
#include "core/recordset.h"
