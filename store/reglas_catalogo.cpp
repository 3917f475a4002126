// SPDX-License-Identifier: GPL-3.0-or-later

#include "reglas_catalogo.h"

#include "core/almacen.h"
#include "core/redondeo.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 POR_DUENO = 1000;

// A row that the program finds by its text.
struct Nombrada
{
    const char* tabla;
    const char* columna;
    const char* texto;
};
constexpr Nombrada NOMBRADAS[] = {
    {"GLB_TB_PROVINCIAS", "GPRO_DESCRIPCION", "MARVEN"},
    {"GLB_TB_CONCEPTOS", "GCON_NOMBRE", "Sellos"},
    {"GLB_TB_MONEDAS", "GMON_ID", "PES"},
    {"GLB_TB_AFIP_TIPOS_DOC", "GTDC_DESCRIPCION", "CUIT"},
    {"GLB_TB_AFIP_TIPOS_DOC", "GTDC_DESCRIPCION", "CUIL"},
    {"GLB_TB_AFIP_TIPOS_DOC", "GTDC_DESCRIPCION", "DNI"},
    {"GLB_TB_AFIP_TIPOS_DOC", "GTDC_DESCRIPCION", "PASAPORTE"},
    {"GLB_TB_TIPOS_SOCIEDAD", "GTSO_DESCRIPCION", "UNIPERSONAL"},
    {"GLB_TB_TIPOS_UBICACION", "GTUB_DESCRIPCION", "EXTRAÑA JURISDICCION"},
    {"GLB_TB_TIPOS_OBLIG_ACCESORIAS", "GTOA_DESCRIPCION", "Seguro de Caución"},
    {"SEL_TB_NO_ALCANZADOS_DESC", "SNAD_DESCRIPCION", "Otro"},
    {"SEL_TB_PARAMETROS", "SPRM_NOMBRE", "PRSE_ALICUOTA_IVA"},
    {"SEL_TB_PARAMETROS", "SPRM_NOMBRE", "PRSE_MODO_IMPORTE_MINIMO"},
    {"SEL_TB_PARAMETROS", "SPRM_NOMBRE", "PRSE_MODO_IMPORTE_FIJO"},
    {"SEL_TB_PARAMETROS", "SPRM_NOMBRE", "PRSE_TIPO_REDONDEO"},
};

// A column that takes these texts alone, or none.
struct Permitidos
{
    const char* tabla;
    const char* columna;
    const char* textos;
};
constexpr Permitidos PERMITIDOS[] = {
    {"SEL_TB_TIPOS_CALCULOS", "STIC_DESCRIPCION", "FIJO|FIJO PROPORCIONAL|FIJO ESCALA|VARIABLE"},
    {"SEL_TB_SUBCONCEPTOS", "SSUB_FONDO_REPARO_MODO_DEFAULT", "F|P"},
    {"SEL_TB_SUBCONCEPTOS", "SSUB_GARANTIA_CUMPL_MODO_DEFAULT", "F|P"},
    {"SEL_TB_SUBCONCEPTOS", "SSUB_OBLIG_ACCESORIA_MODO_DEFAULT", "F|P"},
};

// A box that asks for a value when it is ticked.
struct Pedido
{
    const char* marca;
    const char* columna;
};
constexpr Pedido PEDIDOS[] = {
    {"SSUB_REQUIERE_BASEIMPONIBLE", "SCBI_ID"},
    {"SSUB_DURACION_COTASUP", "SSUB_DURACION_COTA_SUPERIOR"},
    {"SSUB_PRORROGA_COTASUP", "SSUB_PRORROGA_COTA_SUPERIOR"},
    {"SSUB_CARGA_RAPIDA", "SSUB_CARGA_RAPIDA_MONTO"},
    {"SSUB_SELLADO_MULTIPLE", "SSUB_SELLADO_MULTIPLE_MONTO"},
};

// Identifiers are their owner's, times a thousand, and a counter.
struct Identificador
{
    const char* tabla;
    const char* columna;
    const char* duenio;  // a column of the row; without one the owner is a law
};
constexpr Identificador IDENTIFICADORES[] = {
    {"SEL_TB_SUBCONCEPTOS", "SSUB_ID", nullptr},
    {"SEL_TB_ALICUOTAS", "SALI_ID", "SSUB_ID"},
    {"SEL_TB_MODULOS", "SMOD_ID", "SSUB_ID"},
    {"SEL_TB_ROLES", "SROL_ID", "SSUB_ID"},
};

QString q(const char* texto)
{
    return QString::fromUtf8(texto);
}

void revisar_nombradas(const TablasTexto& tablas, QList<FallaTexto>& fallas)
{
    for (const Nombrada& n : NOMBRADAS) {
        const TablaTexto& t = tablas.at(q(n.tabla));
        if (std::none_of(t.filas.cbegin(), t.filas.cend(),
                         [&](const FilaCSV& fila) { return t.valor(fila, q(n.columna)) == q(n.texto); }))
            fallas << t.falla(u"falta la fila de %1 «%2»"_s.arg(q(n.columna), q(n.texto)));
    }
}

void revisar_permitidos(const TablasTexto& tablas, QList<FallaTexto>& fallas)
{
    for (const Permitidos& p : PERMITIDOS) {
        const TablaTexto& t = tablas.at(q(p.tabla));
        for (const FilaCSV& fila : t.filas)
            if (const QString v = t.valor(fila, q(p.columna)); !v.isEmpty() && !q(p.textos).split(u'|').contains(v))
                fallas << t.falla(fila, q(p.columna), u"«%1» no es un valor de %2"_s.arg(v, q(p.columna)));
    }
}

void revisar_pedidos(const TablaTexto& items, QList<FallaTexto>& fallas)
{
    for (const Pedido& p : PEDIDOS)
        for (const FilaCSV& fila : items.filas)
            if (items.valor(fila, q(p.marca)) == u"1" && items.valor(fila, q(p.columna)).isEmpty())
                fallas << items.falla(fila, q(p.columna), u"%1 pide %2"_s.arg(q(p.marca), q(p.columna)));
}

void revisar_identificadores(const TablasTexto& tablas, const QSet<qint64>& leyes, QList<FallaTexto>& fallas)
{
    for (const Identificador& d : IDENTIFICADORES) {
        const TablaTexto& t = tablas.at(q(d.tabla));
        for (const FilaCSV& fila : t.filas) {
            const QString id = t.valor(fila, q(d.columna));
            const qint64 miles = id.toLongLong() / POR_DUENO;
            if (!d.duenio && !leyes.contains(miles))
                fallas << t.falla(fila, q(d.columna), u"%1 no es de ninguna ley de GLB_TB_LEYES"_s.arg(id));
            else if (d.duenio && miles != t.valor(fila, q(d.duenio)).toLongLong())
                fallas << t.falla(
                    fila, q(d.columna),
                    u"%1 no es un identificador de %2 %3"_s.arg(id, q(d.duenio), t.valor(fila, q(d.duenio))));
        }
    }
}

// One law is in force, no two at a time, and each has the value of its module.
QSet<qint64> revisar_leyes(const TablasTexto& tablas, QList<FallaTexto>& fallas)
{
    const QString NRO = u"GLEY_NRO"_s, DESDE = u"GLEY_VIGENCIA_DESDE"_s, HASTA = u"GLEY_VIGENCIA_HASTA"_s;
    const TablaTexto& modulos = tablas.at(u"GLB_TB_VALORES_MODULO"_s);
    QSet<qint64> con_modulo;
    for (const FilaCSV& fila : modulos.filas) {
        if (leer_numero(modulos.valor(fila, u"GVMO_VALOR_MODULO"_s)).value_or(0) <= 0)
            fallas << modulos.falla(fila, u"GVMO_VALOR_MODULO"_s, u"el valor del módulo tiene que ser mayor que 0"_s);
        if (modulos.valor(fila, u"GVMO_CONCEPTO"_s) == u"SELLOS")
            con_modulo << modulos.valor(fila, u"GVMO_LEY_NRO"_s).toLongLong();
    }
    const TablaTexto& t = tablas.at(u"GLB_TB_LEYES"_s);
    QList<FilaCSV> leyes = t.filas;
    std::stable_sort(leyes.begin(), leyes.end(),
                     [&](const FilaCSV& a, const FilaCSV& b) { return t.valor(a, DESDE) < t.valor(b, DESDE); });
    QSet<qint64> numeros;
    QString hasta = u"0"_s;
    for (const FilaCSV& ley : std::as_const(leyes)) {
        numeros << t.valor(ley, NRO).toLongLong();
        if (!con_modulo.contains(t.valor(ley, NRO).toLongLong()))
            fallas << t.falla(ley, NRO, u"la ley no tiene valor de módulo SELLOS en GLB_TB_VALORES_MODULO"_s);
        if (hasta.isEmpty() || t.valor(ley, DESDE) <= hasta)
            fallas << t.falla(ley, DESDE, u"la ley rige al mismo tiempo que otra"_s);
        hasta = t.valor(ley, HASTA);
        if (!hasta.isEmpty() && hasta < t.valor(ley, DESDE))
            fallas << t.falla(ley, HASTA, u"la ley termina antes de empezar"_s);
    }
    if (!hasta.isEmpty())
        fallas << t.falla(u"ninguna ley está vigente: falta una sin GLEY_VIGENCIA_HASTA"_s);
    return numeros;
}

void revisar_parametros(const TablaTexto& t, QList<FallaTexto>& fallas)
{
    for (const FilaCSV& fila : t.filas)
        if (t.valor(fila, u"SPRM_NOMBRE"_s).startsWith(u"PRSE_") && !leer_numero(t.valor(fila, u"SPRM_VALOR"_s)))
            fallas << t.falla(fila, u"SPRM_VALOR"_s, u"«%1» no es un número"_s.arg(t.valor(fila, u"SPRM_VALOR"_s)));
}

// A role that depends on an attribute names a column of the item, its value, and perhaps a table that is there.
void revisar_roles(Conexion& cn, const TablaTexto& t, QList<FallaTexto>& fallas)
{
    const QString ATRIBUTO = u"SROL_SSUB_ATRIBUTO"_s, VALOR = ATRIBUTO + u"_VALOR"_s, TABLA = ATRIBUTO + u"_TABLA"_s;
    QSet<QString> columnas;
    for (Recordset rs(cn, u"pragma table_info(SEL_TB_SUBCONCEPTOS)"_s); !rs.eof(); rs.siguiente())
        columnas << rs.texto("name");
    QSet<QString> tablas;
    for (Recordset rs(cn, u"select name from sqlite_master where type in ('table', 'view')"_s); !rs.eof();
         rs.siguiente())
        tablas << rs.texto(0);
    QSet<QString> vistos;
    for (const FilaCSV& fila : t.filas) {
        const QString atributo = t.valor(fila, ATRIBUTO);
        if (!atributo.isEmpty() && !columnas.contains(atributo))
            fallas << t.falla(fila, ATRIBUTO, u"SEL_TB_SUBCONCEPTOS no tiene la columna %1"_s.arg(atributo));
        if (!atributo.isEmpty() && t.valor(fila, VALOR).isEmpty())
            fallas << t.falla(fila, VALOR, u"falta el valor de %1 para el cual el rol es exigible"_s.arg(atributo));
        if (const QString tabla = t.valor(fila, TABLA); !tabla.isEmpty() && !tablas.contains(tabla))
            fallas << t.falla(fila, TABLA, u"La tabla %1 no existe"_s.arg(tabla));
        // The program takes the first role of a text.
        if (const QString clave = t.clave(fila, {u"SSUB_ID"_s, u"SROL_DESCRIPCION"_s}); vistos.contains(clave))
            fallas << t.falla(fila, u"SROL_DESCRIPCION"_s,
                              u"el subconcepto ya tiene un rol «%1»"_s.arg(t.valor(fila, u"SROL_DESCRIPCION"_s)));
        else
            vistos << clave;
    }
}

}  // namespace

void revisar_reglas(Conexion& cn, const TablasTexto& tablas, QList<FallaTexto>& fallas)
{
    revisar_nombradas(tablas, fallas);
    revisar_permitidos(tablas, fallas);
    revisar_pedidos(tablas.at(u"SEL_TB_SUBCONCEPTOS"_s), fallas);
    revisar_identificadores(tablas, revisar_leyes(tablas, fallas), fallas);
    revisar_parametros(tablas.at(u"SEL_TB_PARAMETROS"_s), fallas);
    revisar_roles(cn, tablas.at(u"SEL_TB_ROLES"_s), fallas);
}
