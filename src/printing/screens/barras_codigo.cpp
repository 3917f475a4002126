// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/barras_codigo.h"

#include <zint.h>

#include <cmath>
#include <memory>

Barras barras_de(const QString& texto, Simbologia s, double alto)
{
    const std::unique_ptr<zint_symbol, void (*)(zint_symbol*)> simbolo(ZBarcode_Create(), ZBarcode_Delete);
    simbolo->symbology = s == Simbologia::intercalado2de5 ? BARCODE_C25INTER : BARCODE_CODE128;
    const QByteArray datos = texto.toLatin1();
    if (datos.isEmpty()
        || ZBarcode_Encode(simbolo.get(), reinterpret_cast<const unsigned char*>(datos.constData()), int(datos.size()))
               >= ZINT_ERROR)
        return {};
    Barras barras;
    barras.ancho = simbolo->width * MODULO;
    const auto negro = [&](int i) { return (simbolo->encoded_data[0][i / 8] >> (i % 8)) & 1; };
    for (int i = 0; i < simbolo->width; ++i) {
        if (!negro(i))
            continue;
        const int desde = i;
        while (i + 1 < simbolo->width && negro(i + 1))
            ++i;
        barras.negras.emplace_back(desde * MODULO, 0, (i + 1 - desde) * MODULO, alto);
    }
    return barras;
}

void agregar_centradas(Pagina& pagina, const Barras& barras, double y)
{
    const double x = std::round((ANCHO_A4 - barras.ancho) / 2 / MODULO) * MODULO;
    for (const QRectF& b : barras.negras)
        pagina.barras.push_back(b.translated(x, y));
}
