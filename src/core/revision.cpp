// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/revision.h"

#include "core/modGlobales.h"
#include "core/motivos.h"
#include "core/recordset.h"

#include <sqlcipher/sqlite3.h>

#include <QMap>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The engine's check is one step, in which nothing asks how far it is: its reads tell. The methods of the open file
// are replaced by the same ones with a count.
class Lecturas
{
public:
    Lecturas(sqlite3_file* archivo, std::function<void(qint64 bytes)> contar)
        : archivo_(archivo), antes_(archivo->pMethods), contadas_(*antes_), contar_(std::move(contar))
    {
        actual_ = this;
        contadas_.xRead = [](sqlite3_file* f, void* bytes, int cuantos, sqlite3_int64 desde) {
            actual_->contar_(actual_->leidos_ += cuantos);
            return actual_->antes_->xRead(f, bytes, cuantos, desde);
        };
        archivo_->pMethods = &contadas_;
    }
    ~Lecturas()
    {
        archivo_->pMethods = antes_;
        actual_ = nullptr;
    }
    Lecturas(const Lecturas&) = delete;
    Lecturas& operator=(const Lecturas&) = delete;

private:
    static thread_local Lecturas* actual_;

    sqlite3_file* archivo_;
    const sqlite3_io_methods* antes_;
    sqlite3_io_methods contadas_;
    std::function<void(qint64 bytes)> contar_;
    qint64 leidos_ = 0;
};
thread_local Lecturas* Lecturas::actual_ = nullptr;

void revisar_relaciones(Conexion& cn, Revision& r)
{
    QMap<QString, qint64> cuentas;
    for (Recordset rs(cn, u"pragma foreign_key_check"_s); !rs.eof(); rs.siguiente()) {
        ++cuentas[u"%1, sin su fila en %2"_s.arg(rs.texto(0), rs.texto(2))];
        ++r.sinPadre;
    }
    for (auto c = cuentas.cbegin(); c != cuentas.cend(); ++c)
        r.relaciones << u"%1: %2"_s.arg(c.key()).arg(c.value());
}

void revisar_paginas(Conexion& cn, const Progreso& progreso, Revision& r)
{
    // What the connection remembers is not what stands on the disk.
    sqlite3_db_release_memory(cn.nativa());
    const Imagen imagen(cn);
    // The file is read in order once, so that the check, which jumps, need not wait for the disk; each half of the
    // work counts as much.
    const qint64 total = 2 * imagen.bytes();
    qint64 leidos = 0;
    imagen.recorrer([&](const QByteArray& bloque) {
        leidos += bloque.size();
        if (progreso && !progreso(leidos, total))
            throw Cancelado();
    });
    const Lecturas lecturas(cn.archivo(), [&](qint64 bytes) {
        // Here the engine is at work: it ends as soon as it asks.
        if (progreso && !progreso(std::min(imagen.bytes() + bytes, total), total))
            sqlite3_interrupt(cn.nativa());
    });
    for (Recordset rs(cn, u"pragma quick_check"_s); !rs.eof(); rs.siguiente())
        if (rs.texto(0) != u"ok")
            r.fallas << rs.texto(0);
    if (r.sana())
        revisar_relaciones(cn, r);
}

}  // namespace

Revision revisar(Conexion& cn, const Progreso& progreso)
{
    Revision r;
    try {
        revisar_paginas(cn, progreso, r);
    } catch (const ErrorAlmacen& e) {
        if (e.ocupado())
            throw;
        if (e.interrumpido())
            throw Cancelado();
        r.fallas << (e.motor.isEmpty() ? e.descripcion : e.motor);
    }
    return r;
}

Revision revisar_archivo(const QString& ruta, const Progreso& progreso)
{
    try {
        Conexion cn;
        cn.abrirParaLeer(ruta, clave_almacen());
        return revisar(cn, progreso);
    } catch (const ErrorAlmacen& e) {
        if (e.ocupado())
            throw;
        return {{e.motor.isEmpty() ? e.descripcion : e.motor}, 0, {}};
    }
}
