// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/salida_archivo.h"

#include <QDir>

#include <stdexcept>

using namespace Qt::StringLiterals;

bool SalidaArchivo::crear()
{
    return archivo_.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

Piezas& SalidaArchivo::empezarRegistro()
{
    inicioArchivo_ = bloque_.archivo.size();
    inicioCodigo_ = bloque_.codigo.size();
    return bloque_;
}

void SalidaArchivo::descartarRegistro()
{
    bloque_.archivo.resize(inicioArchivo_);
    bloque_.codigo.resize(inicioCodigo_);
}

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
    if (archivo_.write(bloque_.archivo.data(), qint64(bloque_.archivo.size())) != qint64(bloque_.archivo.size()))
        fallar();
    codigo_.agregar(bloque_.codigo);
    bloque_.limpiar();
}

QString SalidaArchivo::cerrar()
{
    volcar();
    if (!archivo_.flush())
        fallar();
    archivo_.close();
    return codigo_.texto();
}

void SalidaArchivo::fallar() const
{
    throw std::runtime_error(u"No se pudo escribir el archivo %1: %2"_s
                                 .arg(QDir::toNativeSeparators(archivo_.fileName()), archivo_.errorString())
                                 .toStdString());
}
