// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever the bytes are, the reader tells where something is wrong and never fails itself.

#include "filing/lector_dj.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* datos, size_t largo)
{
    const LecturaDJ l = leer_archivo_dj(QByteArrayView(reinterpret_cast<const char*>(datos), qsizetype(largo)));
    for (const FallaLectura& f : l.fallas)
        if (f.linea < 1 || f.columna < 1 || f.mensaje.isEmpty())
            std::abort();
    if (l.codigo.size() != 32)
        std::abort();
    return 0;
}
