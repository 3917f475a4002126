// SPDX-License-Identifier: GPL-3.0-or-later

#include "constructor.h"

#include "core/almacen.h"
#include "core/archivos_disco.h"
#include "core/candado.h"
#include "csv.h"
#include "textos.h"
#include "tramos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

struct Columna
{
    QString nombre;
    QString tipo;
    int ancho = 0;
};

struct Referencia
{
    int columna;  // in the file
    QString tabla;
    QString clave;
};

struct Tabla
{
    QList<Columna> columnas;
    QList<Referencia> referencias;
};

Tabla describir(Conexion& cn, const QString& nombre, const QStringList& titulos, const QString& lugar)
{
    QHash<QString, Columna> declaradas;
    for (Recordset rs(cn, u"pragma table_info(%1)"_s.arg(nombre)); !rs.eof(); rs.siguiente()) {
        static const QRegularExpression ancho(u"\\((\\d+)\\)"_s);
        const QString tipo = rs.texto("type").toLower();
        declaradas.insert(rs.texto("name"),
                          {rs.texto("name"), tipo.section(u'(', 0, 0), ancho.match(tipo).captured(1).toInt()});
    }
    if (declaradas.isEmpty())
        fallar(u"%1: no existe la tabla %2"_s.arg(lugar, nombre));
    Tabla t;
    for (const QString& titulo : titulos) {
        if (!declaradas.contains(titulo))
            fallar(u"%1: %2 no tiene la columna %3"_s.arg(lugar, nombre, titulo));
        t.columnas << declaradas[titulo];
    }
    // Keys of one column; those of several stand in the tree and are found by the engine.
    for (Recordset rs(cn, u"pragma foreign_key_list(%1)"_s.arg(nombre)); !rs.eof(); rs.siguiente()) {
        const auto columna = titulos.indexOf(rs.texto("from"));
        if (columna >= 0)
            t.referencias << Referencia{int(columna), rs.texto("table"), rs.texto("from")};
    }
    return t;
}

QVariant valor_de(const Columna& c, const QString& texto, const QString& lugar)
{
    if (texto.isEmpty())
        return {};
    bool bien = true;
    QVariant valor = texto;
    if (c.tipo == u"integer" || c.tipo == u"bool")
        valor = texto.toLongLong(&bien);
    else if (c.tipo == u"real")
        valor = texto.toDouble(&bien);
    else if (c.tipo == u"date")
        bien = QDate::fromString(texto, Qt::ISODate).isValid();
    else if (c.ancho > 0 && texto.size() > c.ancho)
        fallar(u"%1: %2 tiene %3 caracteres y su ancho es %4"_s.arg(lugar, c.nombre).arg(texto.size()).arg(c.ancho));
    if (!bien)
        fallar(u"%1: «%2» no es un valor de %3"_s.arg(lugar, texto, c.nombre));
    return valor;
}

// Which reference of the row points nowhere, in the words of the message.
QString referencia_rota(Conexion& cn, const Tabla& t, const QStringList& campos)
{
    for (const Referencia& r : t.referencias) {
        const QString valor = campos[r.columna];
        if (valor.isEmpty())
            continue;
        const Recordset rs(cn, u"select count(*) from %1 where %2='%3'"_s.arg(r.tabla, r.clave, valor));
        if (rs.entero(0) == 0)
            return u"%1 %2 no existe en %3"_s.arg(r.clave, valor, r.tabla);
    }
    return {};
}

void cargar_tabla(Conexion& cn, const QString& ruta, QHash<QString, QString>& lugares)
{
    const QString nombre = QFileInfo(ruta).completeBaseName();
    LectorCSV csv(ruta);
    const auto lugar = [&] { return u"%1:%2"_s.arg(ruta).arg(csv.linea()); };
    const auto titulos = csv.siguiente();
    if (!titulos)
        fallar(lugar() + u": falta la línea de títulos"_s);
    const Tabla tabla = describir(cn, nombre, *titulos, lugar());
    const QString sql = u"insert into %1 (%2) values (%3)"_s.arg(nombre, titulos->join(u", "),
                                                                 QStringList(titulos->size(), u"?"_s).join(u", "));
    const auto columna_id = titulos->indexOf(QRegularExpression(nombre == u"SEL_TB_ALICUOTAS" ? u"SALI_ID"_s
                                                                : nombre == u"SEL_TB_MODULOS" ? u"SMOD_ID"_s
                                                                                              : u"SSUB_ID"_s));
    Comando insertar(cn, sql);
    while (const auto campos = csv.siguiente()) {
        if (campos->size() != titulos->size())
            fallar(u"%1: hay %2 valores y se esperan %3"_s.arg(lugar()).arg(campos->size()).arg(titulos->size()));
        for (qsizetype i = 0; i < campos->size(); ++i)
            insertar.parametro("", valor_de(tabla.columnas[i], campos->at(i), lugar()));
        try {
            insertar.ejecutar();
        } catch (const ErrorAlmacen& e) {
            const QString rota = referencia_rota(cn, tabla, *campos);
            fallar(lugar() + u": "_s
                   + (!rota.isEmpty()      ? rota
                      : e.claveDuplicada() ? u"la clave ya existe (%1)"_s.arg(e.descripcion)
                                           : e.descripcion));
        }
        if (columna_id >= 0)
            lugares.insert(nombre + u'/' + campos->at(columna_id), lugar());
    }
}

// The tables in the order of the schema, so that a row comes after what it points at.
QStringList tablas(Conexion& cn)
{
    QStringList nombres;
    for (Recordset rs(cn, u"select name from sqlite_master where type='table' order by rowid"_s); !rs.eof();
         rs.siguiente())
        nombres << rs.texto(0);
    return nombres;
}

void llenar(Conexion& cn, const Construccion& c)
{
    Transaccion t(cn);
    cn.ejecutarGuion(leer_texto(c.textos + u"/esquema.sql"_s));
    cn.ejecutarGuion(leer_texto(c.textos + u"/vistas.sql"_s));
    const QStringList nombres = tablas(cn);
    QHash<QString, QString> lugares;
    for (const QString& carpeta : c.carpetas) {
        const QDir dir(c.textos + u'/' + carpeta);
        const QStringList archivos = dir.entryList({u"*.csv"_s}, QDir::Files);
        for (const QString& archivo : archivos)
            if (!nombres.contains(QFileInfo(archivo).completeBaseName()))
                fallar(u"%1: no existe esa tabla"_s.arg(dir.filePath(archivo)));
        for (const QString& nombre : nombres)
            if (archivos.contains(nombre + u".csv"_s))
                cargar_tabla(cn, dir.filePath(nombre + u".csv"_s), lugares);
    }
    if (const QString falla = revisar_tramos(cn, lugares); !falla.isEmpty())
        fallar(falla);
    t.confirmar();
}

}  // namespace

void construir_almacen(const Construccion& c)
{
    // A store that a program has open is not replaced under its hands.
    Candado candado;
    candado.tomar(c.destino);
    // The engine takes the empty file for a new store, and gives its journal the file's mode.
    ArchivoNuevo nuevo(c.destino);
    nuevo.cerrar();
    {
        Conexion cn;
        crear_conexion_nueva(cn, nuevo.aparte(), c.clave);
        llenar(cn, c);
    }
    nuevo.ocupar();
}
