// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/restauracion.h"

#include "core/archivos_disco.h"
#include "core/candado.h"
#include "core/modGlobales.h"
#include "system/sistema.h"

#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString diario_de(const QString& almacen)
{
    return almacen + u"-journal"_s;
}

QString prefijo_de(const QString& almacen)
{
    return QFileInfo(almacen).completeBaseName() + u"-reemplazado-"_s;
}

// A second name for the same file, or a copy where the disk knows no second names.
void dar_otro_nombre(const QString& de, const QString& a)
{
    if (!sistema::otro_nombre(de.toStdString(), a.toStdString()))
        copiar_archivo(de, a, Asegurar::si);
}

// One that was cut short may have left the store under a second name. Where a journal stands beside that name the two
// are the whole store, and stay.
void quitar_otros_nombres(const QString& almacen)
{
    const auto propio = sistema::identidad(almacen.toStdString());
    if (!propio)
        return;
    const QDir carpeta = QFileInfo(almacen).absoluteDir();
    for (const QFileInfo& info : carpeta.entryInfoList({prefijo_de(almacen) + u"*.db"_s}, QDir::Files)) {
        const QString otro = info.absoluteFilePath();
        if (sistema::identidad(otro.toStdString()) == propio && !QFile::exists(diario_de(otro)))
            QFile::remove(otro);
    }
}

QString nombre_aparte(const QString& almacen, QDateTime momento)
{
    const QString comienzo = QFileInfo(almacen).absolutePath() + u'/' + prefijo_de(almacen);
    const auto nombre = [&] { return comienzo + momento.toString(u"yyyy-MM-dd-HHmmss"_s) + u".db"_s; };
    while (QFile::exists(nombre()) || QFile::exists(diario_de(nombre())))
        momento = momento.addSecs(1);
    return nombre();
}

// What a crash left half done is undone by whoever opens the store next; so its journal is used up. A store that is too
// damaged for that keeps it.
void terminar_lo_pendiente(const QString& almacen)
{
    try {
        Conexion cn;
        cn.abrir(almacen, clave_almacen());
    } catch (const ErrorAlmacen&) {
        return;
    }
}

// The old store under its other name, with its journal if it still has one.
QString apartar(const QString& almacen, const QDateTime& momento)
{
    if (!QFile::exists(almacen))
        return {};
    terminar_lo_pendiente(almacen);
    quitar_otros_nombres(almacen);
    const QString aparte = nombre_aparte(almacen, momento);
    if (QFile::exists(diario_de(almacen)))
        dar_otro_nombre(diario_de(almacen), diario_de(aparte));
    dar_otro_nombre(almacen, aparte);
    asegurar_carpeta(QFileInfo(aparte).absolutePath());
    return aparte;
}

}  // namespace

QString restaurar(const QString& almacen, const Respaldo& respaldo, const QDateTime& momento, const Progreso& progreso)
{
    const QString lugar = ruta_real(almacen);
    Candado candado;
    candado.tomar(lugar);
    // No other name that is built or copied under, so that no journal of another belongs to it.
    const QString nuevo = lugar + u".restaurando"_s;
    try {
        copiar_archivo(respaldo.archivo, nuevo, Asegurar::si);
        if (const Revision r = revisar_archivo(nuevo, progreso); !r.sana())
            throw ErrorAlmacen(SQLITE_CORRUPT, u"El respaldo %1 está dañado: %2"_s.arg(respaldo.marca, r.fallas[0]));
    } catch (...) {
        QFile::remove(nuevo);
        throw;
    }
    const QString aparte = apartar(lugar, momento);
    // A journal that stays would be played back into the new store, and it would be played back into nothing else: the
    // old one has its own under its other name.
    if (QFile::exists(diario_de(lugar)))
        borrar_archivo(diario_de(lugar));
    asegurar_carpeta(QFileInfo(lugar).absolutePath());
    poner_en_lugar(nuevo, lugar);
    return aparte;
}
