// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/motivos.h"

#include "core/almacen.h"

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

struct Motivo
{
    int numero;
    const char* texto;
};
constexpr Motivo MOTIVOS[] = {
    {ENOSPC, "el disco está lleno"},
    {EDQUOT, "se alcanzó la cuota de disco"},
    {EIO, "el disco no responde bien"},
    {EROFS, "el disco es de solo lectura"},
    {EACCES, "no hay permiso"},
    {EPERM, "no hay permiso"},
    {ENOENT, "no existe"},
    {EISDIR, "es una carpeta"},
    {ENOTDIR, "la carpeta no existe"},
    {EMFILE, "hay demasiados archivos abiertos"},
    {ENFILE, "hay demasiados archivos abiertos"},
    {ENAMETOOLONG, "el nombre es demasiado largo"},
    {EFBIG, "el archivo es demasiado grande"},
    {EBUSY, "otro programa lo está usando"},
    {ETXTBSY, "otro programa lo está usando"},
};

}  // namespace

QString motivo_de_escritura(const ErrorAlmacen& e)
{
    return e.ocupado() ? u"Otro usuario está utilizando en modo exclusivo los mismos datos que ud. Intente más tarde."_s
                       : e.descripcion;
}

QString detalles_de(const ErrorAlmacen& e)
{
    return QStringList{motivo_de_escritura(e), e.motor}.join(u'\n').trimmed();
}

QString motivo_del_sistema(int numero)
{
    for (const Motivo& m : MOTIVOS)
        if (m.numero == numero)
            return QString::fromUtf8(m.texto);
    return u"error %1 del sistema"_s.arg(numero);
}
