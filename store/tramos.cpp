// SPDX-License-Identifier: GPL-3.0-or-later

#include "tramos.h"

#include "core/redondeo.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A rate bracket excludes its lower bound and a module bracket includes it, so that the
// next one begins at the bound in the first and a cent above it in the second.
struct TablaTramos
{
    QString tabla;
    QString prefijo;
    QString valor;
    double paso;
    QStringList tipos;
};

// The decimals of the field through which the calculation takes a rate or a number of modules.
constexpr int DECIMALES = 4;
constexpr double SIN_LIMITE = -1;

double numero(const TablaTexto& t, const FilaCSV& fila, const QString& columna)
{
    return leer_numero(t.valor(fila, columna)).value_or(0);
}

void revisar_valor(const TablaTexto& t, const FilaCSV& fila, const QString& columna, QList<FallaTexto>& fallas)
{
    const double valor = numero(t, fila, columna);
    const double tomado = redondear(valor, DECIMALES);
    if (valor != tomado)
        fallas << t.falla(
            fila, columna,
            tomado == 0
                ? u"%1 se queda en nada con los %2 decimales del cálculo"_s.arg(t.valor(fila, columna)).arg(DECIMALES)
                : u"%1 tiene más de %2 decimales"_s.arg(t.valor(fila, columna)).arg(DECIMALES));
}

// The brackets of one item, the lowest first.
void revisar_item(const TablaTramos& d, const TablaTexto& t, QList<FilaCSV> filas, QList<FallaTexto>& fallas)
{
    const QString desde = d.prefijo + u"_DESDEVALOR"_s;
    const QString hasta = d.prefijo + u"_HASTAVALOR"_s;
    std::stable_sort(filas.begin(), filas.end(),
                     [&](const FilaCSV& a, const FilaCSV& b) { return numero(t, a, desde) < numero(t, b, desde); });
    const QString item = t.valor(filas.constFirst(), u"SSUB_ID"_s);
    double esperado = 0;
    double fin = 0;
    for (const FilaCSV& fila : std::as_const(filas)) {
        const double inicio = numero(t, fila, desde);
        if (fin == SIN_LIMITE || inicio < esperado)
            fallas << t.falla(fila, desde, u"el tramo se solapa con otro de %1"_s.arg(item));
        else if (inicio > esperado)
            fallas << t.falla(fila, desde,
                              u"falta un tramo entre %1 y %2"_s.arg(numero_sql(esperado), numero_sql(inicio)));
        fin = numero(t, fila, hasta);
        if (fin != SIN_LIMITE && fin < inicio)
            fallas << t.falla(fila, hasta, u"el tramo termina antes de empezar"_s);
        esperado = redondear(fin + d.paso, 2);
        revisar_valor(t, fila, d.valor, fallas);
    }
    if (fin != SIN_LIMITE)
        fallas << t.falla(filas.constLast(), hasta, u"el último tramo de %1 no llega a -1"_s.arg(item));
}

void revisar_items_sin_tramos(const TablaTramos& d, const TablasTexto& tablas, const QSet<QString>& con_tramos,
                              QList<FallaTexto>& fallas)
{
    QSet<QString> tipos;
    const TablaTexto& calculos = tablas.at(u"SEL_TB_TIPOS_CALCULOS"_s);
    for (const FilaCSV& fila : calculos.filas)
        if (d.tipos.contains(calculos.valor(fila, u"STIC_DESCRIPCION"_s)))
            tipos << calculos.clave(fila, {u"STIC_ID"_s});
    const TablaTexto& items = tablas.at(u"SEL_TB_SUBCONCEPTOS"_s);
    for (const FilaCSV& fila : items.filas)
        if (tipos.contains(items.clave(fila, {u"STIC_ID"_s}))
            && !con_tramos.contains(items.clave(fila, {u"SSUB_ID"_s})))
            fallas << items.falla(fila, u"SSUB_ID"_s, u"el subconcepto no tiene tramos en %1"_s.arg(d.tabla));
}

}  // namespace

void revisar_tramos(const TablasTexto& tablas, QList<FallaTexto>& fallas)
{
    static const TablaTramos TABLAS[] = {
        {u"SEL_TB_ALICUOTAS"_s, u"SALI"_s, u"SALI_ALICUOTA"_s, 0.0, {u"VARIABLE"_s}},
        {u"SEL_TB_MODULOS"_s, u"SMOD"_s, u"SMOD_MODULOS"_s, 0.01, {u"FIJO"_s, u"FIJO PROPORCIONAL"_s}},
    };
    for (const TablaTramos& d : TABLAS) {
        const TablaTexto& t = tablas.at(d.tabla);
        std::map<QString, QList<FilaCSV>> items;
        for (const FilaCSV& fila : t.filas)
            items[t.clave(fila, {u"SSUB_ID"_s})] << fila;
        QSet<QString> con_tramos;
        for (const auto& [item, filas] : items) {
            con_tramos << item;
            revisar_item(d, t, filas, fallas);
        }
        revisar_items_sin_tramos(d, tablas, con_tramos, fallas);
    }
}
