// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/cuidado.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/motivos.h"
#include "core/reloj.h"
#include "core/respaldos.h"

#include <QTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype FALLAS_MOSTRADAS = 20;

// What only reads, or writes a copy, may be ended; it begins anew at the next occasion.
Progreso progreso_de(Dialogo& dialogo, const QString& que)
{
    return [&dialogo, que](qint64 hecho, qint64 total) { return dialogo.seguir(que, hecho, total); };
}

QString lineas_de(const std::exception& e)
{
    const Motivo m = motivo_de(e);
    return (m.texto + u'\n' + m.detalles).trimmed();
}

const QString& titulo()
{
    static const QString TITULO = u"Respaldo de la base de datos"_s;
    return TITULO;
}

void avisar_sin_respaldo(Dialogo& dialogo, const QString& motivo)
{
    dialogo.avisar({u"No se pudo hacer el respaldo de hoy de la base de datos. Puede seguir trabajando, pero avise al "
                    u"administrador del sistema."_s,
                    titulo(), Icono::exclamacion, motivo});
}

void avisar_danio(Dialogo& dialogo, const QString& almacen, const Revision& r)
{
    const UltimoSano sano = ultimo_respaldo_sano(almacen, dialogo);
    dialogo.avisar(
        {u"La base de datos está dañada y no se puede usar. %1 Comuníquese con el administrador del sistema."_s.arg(
             sano.frase),
         u"Error de acceso al sistema"_s, Icono::critico,
         (sano.receta + u'\n' + r.fallas.mid(0, FALLAS_MOSTRADAS).join(u'\n')).trimmed()});
}

void avisar_sin_padre(Dialogo& dialogo, const Revision& r)
{
    if (r.sinPadre > 0)
        dialogo.avisar({u"En la base de datos hay %1 que dependen de otras que no están. Puede seguir trabajando, pero "
                        u"avise al administrador del sistema."_s.arg(r.sinPadre == 1 ? u"1 fila"_s
                                                                                     : u"%1 filas"_s.arg(r.sinPadre)),
                        u"Revisión de la base de datos"_s, Icono::exclamacion, r.relaciones.join(u'\n')});
}

// The day's copy, when it is due; nothing when there is none, or it failed and that was told (`fallo`).
std::optional<Revision> respaldar_hoy(Dialogo& dialogo, bool& fallo)
{
    try {
        if (toca_respaldo(cnRtn, hoy()))
            return respaldar(cnRtn, marca_del_dia(hoy()),
                             progreso_de(dialogo, u"Se hace el respaldo del día y se lo revisa…"_s));
    } catch (const ErrorAlmacen& e) {
        fallo = true;
        // A store that can't be read is found so by its check.
        if (!e.perdido())
            avisar_sin_respaldo(dialogo, lineas_de(e));
    } catch (const Cancelado&) {
        throw;
    } catch (const ErrorTarea& e) {
        fallo = true;
        avisar_sin_respaldo(dialogo, lineas_de(e));
    }
    return {};
}

}  // namespace

UltimoSano ultimo_respaldo_sano(const QString& almacen, Dialogo& dialogo)
{
    QList<Respaldo> lista = listar_respaldos(almacen);
    std::reverse(lista.begin(), lista.end());
    for (const Respaldo& r : lista)
        if (revisar_archivo(r.archivo, [&dialogo](qint64 hecho, qint64 total) {
                dialogo.progresar(u"Se busca el último respaldo sano…"_s, hecho, total);
                return true;
            }).sana())
            return {u"El último respaldo sano es del %1."_s.arg(
                        fecha_corta(QDate::fromString(r.marca.first(10), Qt::ISODate))),
                    u"Para volver a él: respaldo restaurar %1"_s.arg(r.marca)};
    return {u"No hay ningún respaldo sano."_s};
}

bool cuidar_base(Dialogo& dialogo)
{
    const QString almacen = cnRtn.ruta();
    if (ultima_revision(almacen) == hoy())
        return true;
    try {
        bool fallo = false;
        // A sound copy is a sound store: it has the same bytes. A damaged one may be the disk's of the copies.
        std::optional<Revision> r = respaldar_hoy(dialogo, fallo);
        const bool copia_mala = r && !r->sana();
        if (!r || copia_mala)
            r = revisar(cnRtn, progreso_de(dialogo, u"Se revisa la base de datos…"_s));
        if (!r->sana()) {
            avisar_danio(dialogo, almacen, *r);
            return false;
        }
        if (copia_mala)
            avisar_sin_respaldo(dialogo, u"La copia salió dañada."_s);
        avisar_sin_padre(dialogo, *r);
        if (!fallo && !copia_mala)
            anotar_revision(almacen, hoy());
    } catch (const Cancelado&) {
        return true;
    } catch (const std::exception& e) {
        avisar_sin_respaldo(dialogo, lineas_de(e));
    }
    return true;
}

bool respaldar_antes(Dialogo& dialogo)
{
    QString motivo;
    try {
        const Revision r = respaldar(cnRtn, marca_previa(cnRtn.ruta(), QDateTime(hoy(), QTime::currentTime())),
                                     progreso_de(dialogo, u"Se hace un respaldo…"_s));
        if (r.sana())
            return true;
        motivo = u"La copia salió dañada.\n"_s + r.fallas.mid(0, FALLAS_MOSTRADAS).join(u'\n');
    } catch (const Cancelado&) {
        return false;
    } catch (const std::exception& e) {
        motivo = lineas_de(e);
    }
    return dialogo.preguntar(
        {u"No se pudo hacer el respaldo de la base de datos, y lo que sigue no se puede deshacer.\n"
         u"¿Continúa igual?"_s,
         titulo(), Icono::exclamacion, motivo});
}
