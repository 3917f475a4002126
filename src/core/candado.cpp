// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/candado.h"

#include "core/archivos_disco.h"
#include "core/conexion.h"
#include "system/sistema.h"

#include <sqlcipher/sqlite3.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 TEXTO_MAXIMO = 512;

bool es_el_de(int archivo, const QString& ruta)
{
    const auto abierto = sistema::identidad(archivo);
    return abierto && abierto == sistema::identidad(ruta.toStdString());
}

// Who has the store open, as far as the lock's text can be read; its owner writes it when it takes the lock.
QString ocupante(const QString& ruta)
{
    QFile f(ruta);
    QStringList lineas;
    if (f.open(QIODevice::ReadOnly))
        lineas = QString::fromUtf8(f.read(TEXTO_MAXIMO)).split(u'\n');
    bool bien = lineas.size() >= 3;
    const qint64 proceso = bien ? lineas[1].toLongLong(&bien) : 0;
    const QString quien = bien ? u" en la máquina %1 (proceso %2)"_s.arg(lineas[0]).arg(proceso)
                               : u" en otro programa"_s;
    return u"La base de datos está abierta%1 desde el %2."_s.arg(
        quien, QFileInfo(ruta).lastModified().toString(u"dd/MM/yyyy 'a las' HH:mm"_s));
}

}  // namespace

QString Candado::ruta_de(const QString& almacen)
{
    return ruta_real(almacen) + u".lock"_s;
}

bool Candado::sigueAhi() const
{
    return archivo_ >= 0 && es_el_de(archivo_, ruta_);
}

void Candado::tomar(const QString& almacen)
{
    const QString ruta = ruta_de(almacen);
    if (ruta == ruta_ && sigueAhi())
        return;
    soltar();
    int fd = -1;
    for (bool mio = false; !mio;) {
        fd = sistema::abrir(ruta.toStdString(), sistema::Apertura::crear);
        if (fd < 0) {
            const int error = errno;
            if (QFileInfo::exists(ruta))
                throw ErrorDisco(u"No se pudo tomar "_s, ruta, error);
            return;
        }
        if (!sistema::trabar(fd, false)) {
            const int error = errno;
            sistema::cerrar(fd);
            if (error != EWOULDBLOCK)
                throw ErrorDisco(u"No se pudo tomar "_s, ruta, error);
            throw ErrorAlmacen(SQLITE_BUSY, ocupante(ruta));
        }
        // Its owner may have removed it between the opening and the lock: then another file has that name, or none.
        mio = es_el_de(fd, ruta);
        if (!mio)
            sistema::cerrar(fd);
    }
    archivo_ = fd;
    ruta_ = ruta;
    const QByteArray texto =
        (QSysInfo::machineHostName() + u'\n' + QString::number(QCoreApplication::applicationPid()) + u'\n').toUtf8();
    // The lock stands without its text too.
    sistema::solo_del_usuario(fd);
    (void)(sistema::recortar(fd, 0) && sistema::escribir(fd, texto.constData(), size_t(texto.size())) == texto.size());
}

void Candado::soltar()
{
    if (archivo_ < 0)
        return;
    // While it is held nobody else takes the file of that name for a free one.
    if (sigueAhi())
        sistema::borrar(ruta_.toStdString());
    sistema::cerrar(archivo_);
    archivo_ = -1;
    ruta_.clear();
}
