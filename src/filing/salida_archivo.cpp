// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/salida_archivo.h"

#include "core/archivos_disco.h"

void SalidaArchivo::terminarRegistro(bool saltoEnCodigo)
{
    bloque_.archivo.append("\r\n");
    if (saltoEnCodigo)
        bloque_.codigo.append("\r\n");
    if (bloque_.archivo.size() >= BLOQUE_CODIGO)
        volcar();
}

void SalidaArchivo::volcar()
{
    archivo_.escribir(bloque_.archivo);
    codigo_.agregar(bloque_.codigo);
    bloque_.limpiar();
}

QString SalidaArchivo::cerrar()
{
    volcar();
    archivo_.cerrar();
    return codigo_.texto();
}
