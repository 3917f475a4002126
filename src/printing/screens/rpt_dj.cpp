// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/screens/rpt_dj.h"

#include "core/redondeo.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double PUNTOS = 8;
constexpr double SANGRIA = 8;
constexpr double MODULO = 0.33;
constexpr double ALTO_BARRAS = 14;
constexpr double FILA = 4.2;

// The columns of a deed's line, from the margin: place, width, title, side.
struct ColumnaDJ
{
    double x;
    double ancho;
    const char* titulo;
    Alineacion lado;
};
constexpr ColumnaDJ COLUMNAS[] = {
    {0, 20, "Escritura", Alineacion::derecha},  {22, 16, "Folio", Alineacion::derecha},
    {40, 10, "Día", Alineacion::derecha},       {54, 40, "Estado", Alineacion::izquierda},
    {96, 52, "Alcance", Alineacion::izquierda}, {150, 36, "Impuesto $", Alineacion::derecha},
};

void renglones(std::vector<Banda>& bandas, double x, double ancho, const QString& titulo, const QString& texto)
{
    if (texto.isEmpty())
        return;
    for (Pagina& p : lineas_tituladas(titulo, texto, {.x = x, .ancho = ancho, .puntos = PUNTOS, .tituloNegrita = true}))
        bandas.push_back({alto_linea(PUNTOS), std::move(p)});
}

}  // namespace

// The agent stands on the first page only.
Banda rpt_dj_sin_mov::cabecera(int pagina) const
{
    Banda b;
    Pagina& p = b.contenido;
    const double x = MARGEN;
    p.emblemas.emplace_back(x, 0, 14, 17);
    p.texto({x + 18, 0, 120, 5}, u"PROVINCIA DE MARVEN - DIRECCIÓN GENERAL DE RENTAS"_s, 9);
    p.texto({x + 18, 5, 120, 6}, u"DECLARACIÓN JURADA"_s, 13, Alineacion::izquierda, true);
    p.texto({x + 18, 11.5, 120, 5}, u"Impuesto de Sellos - Agentes de Retención - Escribanos"_s, 9);
    p.texto({x + 120, 0, 66, 5}, u"DJ Nº "_s + dj_.cabecera.nro, 9, Alineacion::derecha, true);
    p.texto({x + 120, 5, 66, 5}, u"Posición "_s + dj_.cabecera.posicion, 9, Alineacion::derecha);
    p.texto({x + 120, 10, 66, 5}, dj_.cabecera.rectificativa, 9, Alineacion::derecha);
    p.linea(x, 18.5, x + ANCHO_UTIL, 18.5, 0.4);
    b.alto = 20.5;
    if (pagina == 0) {
        const Banda datos = agente();
        p.agregar(datos.contenido, b.alto);
        b.alto += datos.alto;
    }
    return b;
}

Banda rpt_dj_sin_mov::agente() const
{
    const CabeceraImpresa& c = dj_.cabecera;
    Banda b;
    double y = 0;
    const auto dato = [&](double x, double ancho, const char* titulo, const QString& valor) {
        const QString t = QString::fromUtf8(titulo);
        const double sangria = ancho_texto(t, PUNTOS) + 1.5;
        b.contenido.texto({MARGEN + x, y, ancho, FILA}, t, PUNTOS);
        b.contenido.ajustado({MARGEN + x + sangria, y, ancho - sangria, FILA}, valor, PUNTOS, Alineacion::izquierda,
                             true);
    };
    const auto largo = [&](const char* titulo, const QString& valor) {
        for (const Pagina& linea :
             lineas_tituladas(QString::fromUtf8(titulo), valor,
                              {.x = MARGEN, .ancho = ANCHO_UTIL, .puntos = PUNTOS, .textoNegrita = true})) {
            b.contenido.agregar(linea, y);
            y += FILA;
        }
    };
    dato(0, 40, "Agente Nº", c.agenteNro);
    dato(42, 102, "Titular", c.titular);
    dato(146, 40, "CUIT", c.cuit);
    y += FILA;
    largo("Domicilio", c.domicilio);
    dato(0, 80, "Localidad", c.localidad);
    dato(82, 40, "Cód. Postal", c.codPostal);
    dato(124, 62, "Teléfono", c.telefono);
    y += FILA;
    if (!c.email.isEmpty())
        largo("e-mail", c.email);
    for (const auto& [nombre, cuit] : {std::pair{c.adscripto1, c.adscripto1Cuit}, {c.adscripto2, c.adscripto2Cuit}})
        if (!nombre.isEmpty()) {
            dato(0, 144, "Adscripto", nombre);
            dato(146, 40, "CUIT", cuit);
            y += FILA;
        }
    if (!c.observaciones.isEmpty())
        largo("Observaciones", c.observaciones);
    b.contenido.linea(MARGEN, y + 1, MARGEN + ANCHO_UTIL, y + 1);
    b.alto = y + 3;
    return b;
}

void rpt_dj_sin_mov::cierre(std::vector<Banda>& bandas) const
{
    const CabeceraImpresa& c = dj_.cabecera;
    Banda total;
    total.conLaSiguiente = true;
    double y = 2;
    total.contenido.linea(MARGEN + 96, 1, MARGEN + ANCHO_UTIL, 1, 0.4);
    const auto importe = [&](const QString& titulo, double valor) {
        total.contenido.texto({MARGEN + 71, y, 77, FILA}, titulo, 9, Alineacion::derecha, true);
        total.contenido.texto({MARGEN + 150, y, 36, FILA}, importe_agrupado(valor), 9, Alineacion::derecha, true);
        y += 5;
    };
    importe(u"Importe total retenido $"_s, c.totalRetenido);
    if (c.acreditado != 0)
        importe(u"Acreditado por Resolución Nº "_s + c.resolucion + u" $"_s, c.acreditado);
    importe(u"Total a depositar $"_s, c.totalRetenido - c.acreditado);
    total.alto = y + 4;
    bandas.push_back(total);

    Banda firma;
    firma.conLaSiguiente = true;
    firma.alto = 28;
    firma.contenido.texto(
        {MARGEN, 0, ANCHO_UTIL, FILA},
        u"Declaro bajo juramento que los datos consignados son correctos y completos, sin omitir ni falsear dato alguno."_s,
        PUNTOS);
    for (const auto& [x, titulo] : {std::pair{0.0, "Lugar y fecha"}, {66.0, "Firma"}, {132.0, "Aclaración y sello"}}) {
        firma.contenido.linea(MARGEN + x, 20, MARGEN + x + 54, 20);
        firma.contenido.texto({MARGEN + x, 21, 54, FILA}, QString::fromUtf8(titulo), PUNTOS, Alineacion::centro);
    }
    bandas.push_back(firma);

    Banda codigo;
    double ancho = 0;
    const auto barras = barras_de(codigo_, Simbologia::code128, MODULO, ALTO_BARRAS, ancho);
    codigo.contenido.texto({MARGEN, 0, ANCHO_UTIL, FILA}, u"Código de verificación de la integridad"_s, PUNTOS,
                           Alineacion::centro);
    for (const QRectF& b : barras)
        codigo.contenido.barras.push_back(b.translated((ANCHO_A4 - ancho) / 2, FILA + 1));
    codigo.contenido.texto({MARGEN, FILA + ALTO_BARRAS + 2, ANCHO_UTIL, FILA}, codigo_legible_dj(codigo_), 10,
                           Alineacion::centro, true);
    codigo.contenido.texto({MARGEN, FILA + ALTO_BARRAS + 7, ANCHO_UTIL, FILA}, version_, 7, Alineacion::centro);
    codigo.alto = FILA + ALTO_BARRAS + 12;
    bandas.push_back(codigo);
}

bool rpt_dj_sin_mov::siguientes(std::vector<Banda>& bandas)
{
    Banda aviso;
    aviso.alto = 16;
    aviso.contenido.texto({MARGEN, 5, ANCHO_UTIL, 6}, u"SIN MOVIMIENTOS"_s, 13, Alineacion::centro, true);
    bandas.push_back(aviso);
    cierre(bandas);
    return false;
}

Banda rpt_dj::cabecera(int pagina) const
{
    Banda b = rpt_dj_sin_mov::cabecera(pagina);
    for (const ColumnaDJ& c : COLUMNAS)
        b.contenido.texto({MARGEN + c.x, b.alto, c.ancho, FILA}, QString::fromUtf8(c.titulo), PUNTOS, c.lado, true);
    b.contenido.linea(MARGEN, b.alto + FILA + 0.6, MARGEN + ANCHO_UTIL, b.alto + FILA + 0.6);
    b.alto += FILA + 2;
    return b;
}

bool rpt_dj::siguientes(std::vector<Banda>& bandas)
{
    if (siguiente_ < dj_.escrituras.size())
        escritura(dj_.escrituras[siguiente_], bandas);
    else
        cierre(bandas);
    return siguiente_++ < dj_.escrituras.size();
}

// The line of the deed is not parted from the first line behind it.
void rpt_dj::escritura(const EscrituraImpresa& e, std::vector<Banda>& bandas) const
{
    const auto primera = bandas.size();
    Banda titulo;
    titulo.alto = FILA + 0.4;
    const QString textos[] = {e.nro,
                              e.folio,
                              e.dia,
                              e.estado,
                              e.alcanzada ? u"Alcanzada"_s : u"No alcanzada"_s,
                              importe_agrupado(e.impuesto)};
    for (size_t i = 0; i < std::size(COLUMNAS); ++i)
        titulo.contenido.texto({MARGEN + COLUMNAS[i].x, 0.4, COLUMNAS[i].ancho, FILA}, textos[i], PUNTOS + 0.5,
                               COLUMNAS[i].lado, true);
    bandas.push_back(titulo);
    const double x = MARGEN + SANGRIA;
    const double ancho = ANCHO_UTIL - SANGRIA;
    renglones(bandas, x, ancho, u"Motivo:"_s, e.motivo);
    for (const OperacionImpresa& o : e.operaciones)
        operacion(o, bandas);
    renglones(bandas, x, ancho, u"Partes:"_s, e.partes);
    renglones(bandas, x, ancho, u"Inmuebles:"_s, e.inmuebles);
    renglones(bandas, x, ancho, u"Observaciones:"_s, e.observaciones);
    bandas[primera].conLaSiguiente = bandas.size() > primera + 1;
    Banda fin;
    fin.alto = 1.2;
    fin.contenido.linea(MARGEN, 0.6, MARGEN + ANCHO_UTIL, 0.6, 0.1);
    bandas.back().conLaSiguiente = true;
    bandas.push_back(fin);
}

void rpt_dj::operacion(const OperacionImpresa& o, std::vector<Banda>& bandas) const
{
    const double x = MARGEN + SANGRIA;
    const double ancho = ANCHO_UTIL - SANGRIA;
    renglones(bandas, x, ancho, u"Operación:"_s,
              o.descripcion + (o.ley.isEmpty() ? QString() : u" ("_s + o.ley + u")"_s));
    QStringList datos;
    const auto dato = [&](const char* titulo, const std::optional<double>& valor, int decimales = 2) {
        if (valor && (*valor != 0 || decimales != 2))
            datos << QString::fromUtf8(titulo) + QChar(0xa0)
                         + importe_agrupado(*valor, decimales).replace(u' ', QChar(0xa0));
    };
    dato("Base imponible $", o.base);
    dato("Val. fiscal $", o.valuacion);
    dato("Hipoteca $", o.hipoteca);
    dato("Módulos", o.modulos, 4);
    dato("Alícuota", o.alicuota, 4);
    dato("Calculado $", o.calculado);
    dato("Exento %", o.porcExento);
    dato("Monto exento $", o.montoExento);
    dato("Pago a cuenta $", o.pagoACuenta);
    dato("Adicionales $", o.adicionales);
    if (o.final)
        datos << u"Impuesto"_s + QChar(0xa0) + u'$' + QChar(0xa0) + importe_agrupado(*o.final);
    renglones(bandas, x, ancho, {}, datos.join(u"; "_s));
    renglones(bandas, x, ancho, {}, o.observaciones);
}
