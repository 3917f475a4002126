// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/lineas_archivo.h"

#include "filing/codificacion.h"
#include "tree/registros.h"

#include <span>

LineasArchivo::LineasArchivo(std::string_view bytes) : bytes_(bytes)
{
    for (int i = 0; i < 256; ++i)
        codigos_[size_t(i)] = char(caracter_ansi(static_cast<unsigned char>(i)) & 0xff);
}

// The bytes up to the line end; a testimonio may hold line ends of its own.
LineaArchivo LineasArchivo::tomar()
{
    size_t desde = lugar_;
    if (bytes_[lugar_] == '8')
        if (const size_t fin = bytes_.find(MARCA_FIN, lugar_); fin != std::string_view::npos)
            desde = fin;
    const size_t salto = bytes_.find("\r\n", desde);
    LineaArchivo linea;
    linea.terminada = salto != std::string_view::npos;
    linea.bytes = bytes_.substr(lugar_, (linea.terminada ? salto : bytes_.size()) - lugar_);
    for (size_t p = linea.bytes.find('\n'); p != std::string_view::npos; p = linea.bytes.find('\n', p + 1))
        ++linea.deMas;
    lugar_ = linea.terminada ? salto + 2 : bytes_.size();
    digerir(linea.bytes);
    return linea;
}

void LineasArchivo::digerir(std::string_view registro)
{
    // Outside of 0x80 to 0x9F each byte stands for itself; the compiler looks at many of them at a time.
    unsigned distintos = 0;
    for (const char c : registro)
        distintos += (static_cast<unsigned char>(c) ^ 0x80U) < 0x20U;
    const size_t antes = pendiente_.size();
    pendiente_.append(registro);
    if (distintos > 0)
        for (char& c : std::span(pendiente_).subspan(antes))
            c = codigos_[static_cast<unsigned char>(c)];
    if (!registro.empty() && registro.front() == '4')
        pendiente_.append("\r\n");
    if (pendiente_.size() > BLOQUE_CODIGO)
        volcar();
}

void LineasArchivo::volcar()
{
    codigo_.agregar(pendiente_);
    pendiente_.clear();
}

QString LineasArchivo::codigo()
{
    volcar();
    return codigo_.texto();
}
