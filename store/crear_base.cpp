// SPDX-License-Identifier: GPL-3.0-or-later
// crear_base [--muestra] BASE | --actualizar BASE | --catalogo CARPETA BASE, with --textos CARPETA for the folder of the texts.

#include "actualizacion.h"
#include "catalogo.h"
#include "constructor.h"
#include "core/modGlobales.h"
#include "core/motivos.h"
#include "core/version_almacen.h"
#include "system/sistema.h"
#include "tabla_texto.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int MAL_USO = 2;

const char* const AYUDA = R"(Uso: crear_base [--muestra] BASE
     crear_base --actualizar BASE
     crear_base --catalogo CARPETA BASE

La base de datos de VEDRA-RTN, a partir de sus textos.

  BASE                    la crea, con el catálogo y las tablas de referencia; si ya existe, la reemplaza
  --muestra               agrega agentes y meses de muestra
  --actualizar BASE       lleva una base de una versión anterior a la de este programa; antes hace un respaldo
  --catalogo CARPETA BASE
                          cambia el catálogo y las tablas de referencia por los textos TABLA.csv de la carpeta; los
                          revisa, y si algo está mal dice archivo:línea:columna de cada falla y no cambia nada; antes
                          hace un respaldo

  --textos CARPETA        dónde están los textos; si no se dice, en «textos», al lado de este programa
  --ayuda                 muestra esto

Termina con 0; con 1 si no se hizo nada, y la base queda como estaba; con 2 si está mal usado.
)";

struct Pedido
{
    QString base;
    QString catalogo;
    QString textos = carpeta_programa() + u"/textos"_s;
    bool muestra = false;
    bool actualizar = false;
    bool ayuda = false;
};

void decir(const QString& texto, std::FILE* donde = stdout)
{
    std::fputs(qUtf8Printable(texto + u'\n'), donde);
}

// What is asked for, or what is wrong with it.
QString entender(QStringList argumentos, Pedido& p)
{
    const struct
    {
        const char* nombre;
        bool* puesta;
        QString* valor;
    } OPCIONES[] = {{"--muestra", &p.muestra, nullptr},
                    {"--actualizar", &p.actualizar, nullptr},
                    {"--catalogo", nullptr, &p.catalogo},
                    {"--textos", nullptr, &p.textos},
                    {"--ayuda", &p.ayuda, nullptr},
                    {"--help", &p.ayuda, nullptr},
                    {"-h", &p.ayuda, nullptr}};
    QStringList sueltos;
    while (!argumentos.isEmpty()) {
        const QString a = argumentos.takeFirst();
        const auto* o = std::find_if(std::begin(OPCIONES), std::end(OPCIONES),
                                     [&](const auto& opcion) { return a == QLatin1StringView(opcion.nombre); });
        if (o == std::end(OPCIONES)) {
            if (a.startsWith(u'-'))
                return u"No existe la opción «%1»."_s.arg(a);
            sueltos << a;
        } else if (o->puesta) {
            *o->puesta = true;
        } else {
            if (argumentos.isEmpty())
                return u"Falta la carpeta después de «%1»."_s.arg(a);
            *o->valor = argumentos.takeFirst();
        }
    }
    p.base = sueltos.value(0);
    if (p.ayuda)
        return {};
    if (int(p.muestra) + int(p.actualizar) + int(!p.catalogo.isEmpty()) > 1)
        return u"Hay que elegir entre «--muestra», «--actualizar» y «--catalogo»."_s;
    if (sueltos.isEmpty())
        return u"Falta la BASE."_s;
    return sueltos.size() > 1 ? u"Sobra «%1»."_s.arg(sueltos[1]) : QString();
}

void actualizar(const Pedido& p)
{
    const Actualizacion a = actualizar_almacen(p.textos, p.base, clave_almacen(), QDateTime::currentDateTime());
    if (a.respaldo.isEmpty()) {
        decir(u"La base de datos ya es de la versión %1."_s.arg(VERSION_ALMACEN));
        return;
    }
    decir(u"La base de datos pasó de la versión %1 a la %2."_s.arg(a.desde).arg(VERSION_ALMACEN));
    decir(u"Como estaba antes quedó en %1"_s.arg(a.respaldo));
    if (a.sinPadre > 0)
        decir(u"Hay filas que dependen de otras que no están: %1."_s.arg(a.sinPadre));
}

void cambiar_catalogo(const Pedido& p)
{
    const Reemplazo r = reemplazar_catalogo(p.catalogo, p.base, clave_almacen(), QDateTime::currentDateTime());
    decir(u"El catálogo es el de %1: %2 tablas, %3 filas."_s.arg(p.catalogo).arg(r.tablas).arg(r.filas));
    decir(u"Como estaba antes quedó en %1"_s.arg(r.respaldo));
}

void hacer(const Pedido& p)
{
    if (p.actualizar)
        return actualizar(p);
    if (!p.catalogo.isEmpty())
        return cambiar_catalogo(p);
    construir_almacen({p.textos, p.muestra ? QStringList{u"datos"_s, u"muestra"_s} : QStringList{u"datos"_s}, p.base,
                       clave_almacen()});
    decir(p.base);
}

QString explicar(const std::exception& e)
{
    if (!dynamic_cast<const ErrorAlmacen*>(&e) && !dynamic_cast<const ErrorTarea*>(&e))
        return QString::fromUtf8(e.what());
    const Motivo m = motivo_de(e);
    return (m.texto + u' ' + m.detalles).trimmed();
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    sistema::preparar_salidas();
    Pedido p;
    if (const QString mal = entender(QCoreApplication::arguments().mid(1), p); !mal.isEmpty()) {
        decir(u"crear_base: %1\n\n%2"_s.arg(mal, QString::fromUtf8(AYUDA)).trimmed(), stderr);
        return MAL_USO;
    }
    try {
        if (p.ayuda)
            decir(QString::fromUtf8(AYUDA).trimmed());
        else
            hacer(p);
        if (std::fflush(stdout) != 0)
            throw ErrorTarea(u"no se pudo escribir la salida"_s);
        return EXIT_SUCCESS;
    } catch (const ErrorTextos& e) {
        decir(QString::fromUtf8(e.what()), stderr);
        decir(u"crear_base: %1 en los textos; no se cambió nada"_s.arg(e.cuantas == 1 ? u"1 falla"_s
                                                                                      : u"%1 fallas"_s.arg(e.cuantas)),
              stderr);
        return EXIT_FAILURE;
    } catch (const std::exception& e) {
        decir(u"crear_base: "_s + explicar(e), stderr);
        return EXIT_FAILURE;
    }
}
