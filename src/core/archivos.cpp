// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/archivos.h"

#include "core/conexion.h"

#include <sqlcipher/sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t SOLO_DUENO = 0600;
constexpr mode_t CARPETA_DE_DUENO = 0700;

QString motivo_del_sistema(int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT: return u"el disco está lleno"_s;
    case EACCES:
    case EPERM: return u"no hay permiso"_s;
    case EROFS: return u"el disco es de solo lectura"_s;
    case ENOENT: return u"no existe"_s;
    case EISDIR: return u"es una carpeta"_s;
    case ENOTDIR:
    case EEXIST: return u"hay un archivo en su lugar"_s;
    default: return u"error %1 del sistema (%2)"_s.arg(error).arg(QString::fromLocal8Bit(std::strerror(error)));
    }
}

}  // namespace

QString ruta_real(const QString& archivo)
{
    const QFileInfo info(archivo);
    const QString real = info.canonicalFilePath();
    return real.isEmpty() ? QFileInfo(info.absolutePath()).canonicalFilePath() + u'/' + info.fileName() : real;
}

void fallar_archivo(const QString& que, const QString& ruta)
{
    const int error = errno;
    throw ErrorAlmacen(error == ENOSPC ? SQLITE_FULL : SQLITE_IOERR,
                       u"%1 %2: %3."_s.arg(que, ruta, motivo_del_sistema(error)));
}

ArchivoPrivado::ArchivoPrivado(const QString& ruta)
    : ruta_(ruta),
      archivo_(::open(QFile::encodeName(ruta).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, SOLO_DUENO))
{
    if (archivo_ < 0 || ::fchmod(archivo_, SOLO_DUENO) != 0)
        fallar_archivo(u"No se pudo crear"_s, ruta);
}

ArchivoPrivado::~ArchivoPrivado()
{
    if (archivo_ >= 0)
        ::close(archivo_);
}

void ArchivoPrivado::escribir(const QByteArray& bytes)
{
    for (qsizetype hechos = 0; hechos < bytes.size();) {
        const ssize_t n = ::write(archivo_, bytes.constData() + hechos, size_t(bytes.size() - hechos));
        if (n < 0 && errno != EINTR)
            fallar_archivo(u"No se pudo escribir"_s, ruta_);
        hechos += std::max<ssize_t>(n, 0);
    }
}

void ArchivoPrivado::asentar()
{
    if (::fsync(archivo_) != 0)
        fallar_archivo(u"No se pudo escribir"_s, ruta_);
}

void asentar_carpeta(const QString& archivo)
{
    const int fd = ::open(QFile::encodeName(QFileInfo(archivo).absolutePath()).constData(),
                          O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    (void)::fsync(fd);
    ::close(fd);
}

void poner_en_lugar(const QString& nuevo, const QString& lugar)
{
    if (std::rename(QFile::encodeName(nuevo).constData(), QFile::encodeName(lugar).constData()) != 0)
        fallar_archivo(u"No se pudo escribir"_s, lugar);
    asentar_carpeta(lugar);
}

void escribir_privado(const QString& ruta, const QByteArray& bytes)
{
    const QString nuevo = ruta + u".nuevo"_s;
    ArchivoPrivado archivo(nuevo);
    archivo.escribir(bytes);
    archivo.asentar();
    poner_en_lugar(nuevo, ruta);
}

void crear_carpeta_privada(const QString& carpeta)
{
    const QByteArray ruta = QFile::encodeName(carpeta);
    if (::mkdir(ruta.constData(), CARPETA_DE_DUENO) == 0)
        asentar_carpeta(carpeta);
    else if (errno != EEXIST || !QFileInfo(carpeta).isDir())
        fallar_archivo(u"No se pudo crear"_s, carpeta);
    // The umask may have taken from a new folder; one that somebody else owns keeps its mode.
    (void)::chmod(ruta.constData(), CARPETA_DE_DUENO);
}
