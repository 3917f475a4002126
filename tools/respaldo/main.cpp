// SPDX-License-Identifier: GPL-3.0-or-later
// respaldo lista | verificar [FECHA] | restaurar FECHA [--si], with --json for the first two.

#include "core/arranque.h"
#include "core/modGlobales.h"
#include "core/motivos.h"
#include "core/reloj.h"
#include "core/restauracion.h"
#include "system/sistema.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>
#include <QTime>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int MAL_USO = 2;

const char* const AYUDA = R"(Uso: respaldo lista [--json]
     respaldo verificar [FECHA] [--json]
     respaldo restaurar FECHA [--si]

Los respaldos de la base de datos de VEDRA-RTN, que están en «respaldos», al lado de la base.

  lista        muestra los respaldos y revisa cada uno
  verificar    revisa todos los respaldos, o el de la FECHA
  restaurar    pone el respaldo de la FECHA en lugar de la base; la base reemplazada queda a su lado

  FECHA        AAAA-MM-DD, o AAAA-MM-DD-HHMMSS para los hechos antes de borrar o rectificar
  --json       da la lista como JSON
  --si         no pregunta antes de restaurar
  --ayuda      muestra esto

Termina con 0; con 1 si no se hizo nada o un respaldo está dañado; con 2 si está mal usado.
)";

struct Pedido
{
    QString orden;
    QString fecha;
    bool json = false;
    bool si = false;
    bool ayuda = false;
};

void decir(const QString& texto, std::FILE* donde = stdout)
{
    std::fputs(qUtf8Printable(texto + u'\n'), donde);
}

bool es_fecha(const QString& texto)
{
    return QDate::fromString(texto, u"yyyy-MM-dd"_s).isValid()
           || QDateTime::fromString(texto, u"yyyy-MM-dd-HHmmss"_s).isValid();
}

// What is asked for, or what is wrong with it.
QString entender(const QStringList& argumentos, Pedido& p)
{
    QStringList sueltos;
    for (const QString& a : argumentos)
        if (a == u"--json")
            p.json = true;
        else if (a == u"--si" || a == u"--sí")
            p.si = true;
        else if (a == u"--ayuda" || a == u"--help" || a == u"-h")
            p.ayuda = true;
        else if (a.startsWith(u'-'))
            return u"No existe la opción «%1»."_s.arg(a);
        else
            sueltos << a;
    if (p.ayuda)
        return {};
    p.orden = sueltos.value(0);
    p.fecha = sueltos.value(1);
    const bool restaurar_ = p.orden == u"restaurar";
    if (p.orden.isEmpty())
        return u"Falta decir qué hacer."_s;
    if (!restaurar_ && p.orden != u"lista" && p.orden != u"verificar")
        return u"No existe «%1»."_s.arg(p.orden);
    if (sueltos.size() > (p.orden == u"lista" ? 1 : 2))
        return u"Sobra «%1»."_s.arg(sueltos.constLast());
    if (restaurar_ && p.fecha.isEmpty())
        return u"Falta la FECHA."_s;
    if (!p.fecha.isEmpty() && !es_fecha(p.fecha))
        return u"«%1» no es una FECHA."_s.arg(p.fecha);
    if ((p.json && restaurar_) || (p.si && !restaurar_))
        return u"Esa opción no va con «%1»."_s.arg(p.orden);
    return {};
}

QString estado_de(const Revision& r)
{
    if (!r.sana())
        return u"DAÑADO: "_s + r.fallas.constFirst().simplified();
    return r.sinPadre > 0 ? u"sano; %1 filas sin su padre"_s.arg(r.sinPadre) : u"sano"_s;
}

int mostrar(const Pedido& p)
{
    const QList<Respaldo> lista = listar_respaldos(ruta_abierta());
    QStringList marcas;
    for (const Respaldo& r : lista)
        marcas << r.marca;
    if (!p.fecha.isEmpty() && !marcas.contains(p.fecha)) {
        decir(u"respaldo: no hay un respaldo del %1"_s.arg(p.fecha), stderr);
        return EXIT_FAILURE;
    }
    QJsonArray json;
    bool sanos = true;
    for (const Respaldo& r : lista) {
        if (!p.fecha.isEmpty() && r.marca != p.fecha)
            continue;
        const Revision revision = revisar_archivo(r.archivo);
        sanos = sanos && revision.sana();
        const QString motivo = motivo_respaldo(r.marca, marcas);
        if (p.json)
            json << QJsonObject{{u"fecha"_s, r.marca},
                                {u"archivo"_s, r.archivo},
                                {u"bytes"_s, r.bytes},
                                {u"motivo"_s, motivo},
                                {u"sano"_s, revision.sana()}};
        else
            decir(u"%1  %2 %3 bytes  %4"_s.arg(r.marca, -17).arg(motivo, -7).arg(r.bytes, 11).arg(estado_de(revision)));
    }
    if (p.json)
        std::fputs(QJsonDocument(json).toJson().constData(), stdout);
    else if (lista.isEmpty())
        decir(u"No hay respaldos."_s);
    const bool nada = lista.isEmpty() && p.orden == u"verificar";
    return sanos && !nada ? EXIT_SUCCESS : EXIT_FAILURE;
}

bool confirmado(const QString& fecha)
{
    std::printf("¿Poner el respaldo del %s en lugar de la base de datos? [s/N] ", qUtf8Printable(fecha));
    std::fflush(stdout);
    const QString respuesta = QTextStream(stdin).readLine().trimmed().toLower();
    return respuesta == u"s" || respuesta == u"si" || respuesta == u"sí";
}

int restaurar_uno(const Pedido& p)
{
    for (const Respaldo& r : listar_respaldos(ruta_abierta())) {
        if (r.marca != p.fecha)
            continue;
        if (!p.si && !confirmado(p.fecha)) {
            decir(u"No se hizo nada."_s);
            return EXIT_FAILURE;
        }
        const QString aparte = restaurar(ruta_abierta(), r, QDateTime(hoy(), QTime::currentTime()));
        decir(u"La base de datos es la del respaldo del %1."_s.arg(p.fecha));
        if (!aparte.isEmpty())
            decir(u"La reemplazada quedó en %1"_s.arg(aparte));
        return EXIT_SUCCESS;
    }
    decir(u"respaldo: no hay un respaldo del %1"_s.arg(p.fecha), stderr);
    return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    sistema::preparar_salidas();
    Pedido p;
    if (const QString mal = entender(QCoreApplication::arguments().mid(1), p); !mal.isEmpty()) {
        decir(u"respaldo: %1\n\n%2"_s.arg(mal, QString::fromUtf8(AYUDA)).trimmed(), stderr);
        return MAL_USO;
    }
    if (p.ayuda) {
        std::fputs(AYUDA, stdout);
        return EXIT_SUCCESS;
    }
    try {
        leer_configuracion();
        return p.orden == u"restaurar" ? restaurar_uno(p) : mostrar(p);
    } catch (const std::exception& e) {
        const Motivo m = motivo_de(e);
        decir(u"respaldo: %1 %2"_s.arg(m.texto, m.detalles).trimmed(), stderr);
        return EXIT_FAILURE;
    }
}
