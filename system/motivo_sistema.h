// SPDX-License-Identifier: GPL-3.0-or-later
// Why the system refused a call, in words of the office. Plain C++: the packer says them too.
#pragma once

#include <cerrno>
#include <string>

/// The words for a value of `errno`; the number itself where nobody has words for it.
[[nodiscard]] inline std::string motivo_del_sistema(int numero)
{
    switch (numero) {
    case ENOSPC: return "no queda lugar en el disco";
#ifdef EDQUOT
    case EDQUOT: return "no queda lugar en la parte del disco que tiene asignada";
#endif
    case EIO: return "el disco no pudo leer o escribir";
    case EFBIG: return "el archivo es demasiado grande";
    case EROFS: return "el disco es de solo lectura";
    case EACCES:
    case EPERM: return "no tiene permiso";
    case ENOENT: return "no existe";
    case EEXIST: return "ya existe";
    case ENOTDIR: return "en el camino hay un archivo donde debe haber una carpeta";
    case EISDIR: return "hay una carpeta con ese nombre";
    case ENAMETOOLONG: return "el nombre es demasiado largo";
    case ENODEV:
    case ENXIO: return "el disco no está";
    case EBUSY:
    case ETXTBSY: return "otro programa lo está usando";
    case EMFILE:
    case ENFILE: return "hay demasiados archivos abiertos";
    default: return "error " + std::to_string(numero) + " del sistema";
    }
}
