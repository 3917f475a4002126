// SPDX-License-Identifier: GPL-3.0-or-later

#include "tabla_texto.h"

#include "core/almacen.h"
#include "core/redondeo.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar SEPARADOR = u'\x1f';

QHash<QString, ColumnaTexto> columnas_de(Conexion& cn, const QString& tabla)
{
    static const QRegularExpression ancho(u"\\((\\d+)\\)"_s);
    QHash<QString, ColumnaTexto> columnas;
    for (Recordset rs(cn, u"pragma table_info(%1)"_s.arg(tabla)); !rs.eof(); rs.siguiente()) {
        const QString tipo = rs.texto("type").toLower();
        columnas.insert(rs.texto("name"),
                        {rs.texto("name"), tipo.section(u'(', 0, 0), ancho.match(tipo).captured(1).toInt(),
                         rs.logico("notnull") && rs.nulo("dflt_value")});
    }
    return columnas;
}

// The names of a pragma's rows, ordered by one of its columns, of which the lower numbers do not count.
QStringList nombres_de(Conexion& cn, const QString& pragma, const char* orden, qint64 desde)
{
    std::map<qint64, QString> nombres;
    for (Recordset rs(cn, pragma); !rs.eof(); rs.siguiente())
        if (rs.entero(orden) >= desde)
            nombres.emplace(rs.entero(orden), rs.texto("name"));
    QStringList lista;
    for (const auto& [lugar, nombre] : nombres)
        lista << nombre;
    return lista;
}

QStringList clave_primaria(Conexion& cn, const QString& tabla)
{
    return nombres_de(cn, u"pragma table_info(%1)"_s.arg(tabla), "pk", 1);
}

QList<ClaveTexto> claves_de(Conexion& cn, const QString& tabla)
{
    QList<ClaveTexto> claves;
    if (const QStringList primaria = clave_primaria(cn, tabla); !primaria.isEmpty())
        claves << ClaveTexto{primaria};
    for (Recordset rs(cn, u"pragma index_list(%1)"_s.arg(tabla)); !rs.eof(); rs.siguiente())
        if (rs.texto("origin") == u"u")
            claves << ClaveTexto{nombres_de(cn, u"pragma index_info(%1)"_s.arg(rs.texto("name")), "seqno", 0)};
    return claves;
}

QString valor_mal(const ColumnaTexto& c, const QString& texto)
{
    if (texto.contains(QChar::ReplacementCharacter))
        return u"%1 no está en UTF-8"_s.arg(c.nombre);
    if (texto.isEmpty())
        return c.obligatoria ? u"falta %1"_s.arg(c.nombre) : QString();
    bool bien = true;
    if (c.tipo == u"integer")
        (void)texto.toLongLong(&bien);
    else if (c.tipo == u"bool")
        bien = texto == u"0" || texto == u"1";
    else if (c.tipo == u"real")
        bien = leer_numero(texto).has_value();
    else if (c.tipo == u"date")
        bien = QDate::fromString(texto, Qt::ISODate).isValid();
    else if (c.ancho > 0 && texto.size() > c.ancho)
        return u"%1 tiene %2 caracteres y su ancho es %3"_s.arg(c.nombre).arg(texto.size()).arg(c.ancho);
    return bien ? QString() : u"«%1» no es un valor de %2"_s.arg(texto, c.nombre);
}

QVariant valor_de(const ColumnaTexto& c, const QString& texto)
{
    if (texto.isEmpty())
        return {};
    if (c.tipo == u"integer" || c.tipo == u"bool")
        return texto.toLongLong();
    return c.tipo == u"real" ? QVariant(leer_numero(texto).value_or(0)) : QVariant(texto);
}

// The titles against the table; nothing of the rows can be said while one of them is wrong.
bool leer_titulos(Conexion& cn, TablaTexto& t, const FilaCSV& titulos, QList<FallaTexto>& fallas)
{
    const qsizetype antes = fallas.size();
    QHash<QString, ColumnaTexto> faltan = columnas_de(cn, t.nombre);
    if (faltan.isEmpty())
        fallas << t.falla(u"no existe la tabla %1"_s.arg(t.nombre));
    else
        for (const CampoCSV& c : titulos) {
            if (faltan.contains(c.texto))
                t.columnas << faltan.take(c.texto);
            else
                fallas << FallaTexto{t.ruta, c.linea, c.columna,
                                     u"%1 no tiene la columna %2, o está dos veces"_s.arg(t.nombre, c.texto)};
        }
    for (const ColumnaTexto& c : std::as_const(faltan))
        if (c.obligatoria)
            fallas << t.falla(u"falta la columna %1"_s.arg(c.nombre));
    return fallas.size() == antes;
}

void revisar_claves(const TablaTexto& t, QList<FallaTexto>& fallas)
{
    for (const ClaveTexto& k : t.claves) {
        QHash<QString, int> lineas;
        for (const FilaCSV& fila : t.filas) {
            const QString clave = t.clave(fila, k.columnas);
            if (clave.isEmpty())
                continue;
            if (lineas.contains(clave))
                fallas << t.falla(fila, k.columnas.constLast(),
                                  u"la clave ya existe en la línea %1"_s.arg(lineas.value(clave)));
            else
                lineas.insert(clave, fila.constFirst().linea);
        }
    }
}

std::string juntar(QList<FallaTexto>& fallas)
{
    std::stable_sort(fallas.begin(), fallas.end(), [](const FallaTexto& a, const FallaTexto& b) {
        return std::tie(a.archivo, a.linea, a.columna) < std::tie(b.archivo, b.linea, b.columna);
    });
    QStringList lineas;
    for (const FallaTexto& f : std::as_const(fallas))
        lineas << f.texto();
    return lineas.join(u'\n').toStdString();
}

}  // namespace

QString FallaTexto::texto() const
{
    return u"%1:%2:%3: %4"_s.arg(archivo, QString::number(linea), QString::number(columna), mensaje);
}

ErrorTextos::ErrorTextos(QList<FallaTexto> fallas) : std::runtime_error(juntar(fallas)), cuantas(fallas.size()) {}

QString TablaTexto::valor(const FilaCSV& fila, const QString& columna) const
{
    for (qsizetype i = 0; i < columnas.size(); ++i)
        if (columnas[i].nombre == columna)
            return fila[i].texto;
    return {};
}

QString TablaTexto::clave(const FilaCSV& fila, const QStringList& nombres) const
{
    QStringList valores;
    for (const QString& buscada : nombres)
        for (qsizetype i = 0; i < columnas.size(); ++i)
            if (columnas[i].nombre == buscada && !fila[i].texto.isEmpty())
                valores << (columnas[i].tipo == u"integer" ? QString::number(fila[i].texto.toLongLong())
                                                           : fila[i].texto.toLower());
    return valores.size() == nombres.size() ? valores.join(SEPARADOR) : QString();
}

FallaTexto TablaTexto::falla(const FilaCSV& fila, const QString& columna, const QString& mensaje) const
{
    for (qsizetype i = 0; i < columnas.size(); ++i)
        if (columnas[i].nombre == columna)
            return {ruta, fila[i].linea, fila[i].columna, mensaje};
    return {ruta, fila.constFirst().linea, 1, mensaje};
}

TablaTexto leer_tabla(Conexion& cn, const QString& ruta, QList<FallaTexto>& fallas)
{
    TablaTexto t;
    t.ruta = ruta;
    t.nombre = QFileInfo(ruta).completeBaseName();
    LectorCSV csv(ruta);
    const auto titulos = csv.siguiente();
    if (!titulos) {
        fallas << t.falla(u"falta la línea de títulos"_s);
        return t;
    }
    if (!leer_titulos(cn, t, *titulos, fallas))
        return t;
    t.claves = claves_de(cn, t.nombre);
    t.referencias = referencias_de(cn, t.nombre);
    while (const auto fila = csv.siguiente()) {
        if (csv.sinCerrar() || fila->size() != t.columnas.size()) {
            fallas << FallaTexto{ruta, fila->constFirst().linea, fila->constLast().columna,
                                 csv.sinCerrar()
                                     ? u"las comillas no se cierran"_s
                                     : u"hay %1 valores y se esperan %2"_s.arg(fila->size()).arg(t.columnas.size())};
            continue;
        }
        for (qsizetype i = 0; i < fila->size(); ++i)
            if (const QString mal = valor_mal(t.columnas[i], fila->at(i).texto); !mal.isEmpty())
                fallas << t.falla(*fila, t.columnas[i].nombre, mal);
        t.filas << *fila;
    }
    revisar_claves(t, fallas);
    return t;
}

void insertar_tabla(Conexion& cn, const TablaTexto& tabla)
{
    QStringList nombres;
    for (const ColumnaTexto& c : tabla.columnas)
        nombres << c.nombre;
    Comando insertar(cn, u"insert into %1 (%2) values (%3)"_s.arg(tabla.nombre, nombres.join(u", "),
                                                                  QStringList(nombres.size(), u"?"_s).join(u", ")));
    for (const FilaCSV& fila : tabla.filas) {
        for (qsizetype i = 0; i < fila.size(); ++i)
            insertar.parametro("", valor_de(tabla.columnas[i], fila[i].texto));
        insertar.ejecutar();
    }
}

QList<ClaveTexto> referencias_de(Conexion& cn, const QString& tabla)
{
    std::map<qint64, ClaveTexto> referencias;
    for (Recordset rs(cn, u"pragma foreign_key_list(%1)"_s.arg(tabla)); !rs.eof(); rs.siguiente()) {
        ClaveTexto& r = referencias[rs.entero("id")];
        r.tabla = rs.texto("table");
        r.columnas << rs.texto("from");
        // A relation that names no columns is one to the primary key.
        if (rs.nulo("to"))
            r.suyas = clave_primaria(cn, r.tabla);
        else
            r.suyas << rs.texto("to");
    }
    QList<ClaveTexto> lista;
    for (const auto& [id, r] : referencias)
        lista << r;
    return lista;
}
