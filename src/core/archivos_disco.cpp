// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/archivos_disco.h"

#include "core/motivo_sistema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <future>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t SOLO_DEL_USUARIO = 0600;
constexpr mode_t CARPETA_DEL_USUARIO = 0700;
constexpr size_t BLOQUE = 1 << 20;
constexpr qint64 POR_VEZ = 16 << 20;
constexpr std::chrono::milliseconds ENTRE_LATIDOS{30};
constexpr QStringView NO_COPIADO = u"No se pudo copiar ";

QByteArray nombre(const QString& ruta)
{
    return QFile::encodeName(ruta);
}

QString carpeta_de(const QString& archivo)
{
    return QFileInfo(archivo).path();
}

[[noreturn]] void fallar_al_escribir(const QString& archivo)
{
    throw ErrorDisco(u"No se pudo escribir el archivo "_s, archivo, errno);
}

void renombrar(const QString& de, const QString& a)
{
    if (std::rename(nombre(de).constData(), nombre(a).constData()) != 0)
        fallar_al_escribir(a);
}

// A file that is open for reading.
struct Descriptor
{
    explicit Descriptor(const QString& ruta) : fd(open(nombre(ruta).constData(), O_RDONLY | O_CLOEXEC))
    {
        if (fd < 0)
            throw ErrorDisco(NO_COPIADO.toString(), ruta, errno);
    }
    ~Descriptor() { close(fd); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int fd;
};

// Reads a file from its beginning to its end.
class Origen
{
public:
    explicit Origen(const QString& ruta) : ruta_(ruta), archivo_(ruta) {}

    // Empty at the end.
    std::string_view leer()
    {
        ssize_t n = -1;
        while ((n = read(archivo_.fd, bloque_.get(), BLOQUE)) < 0)
            if (errno != EINTR)
                throw ErrorDisco(NO_COPIADO.toString(), ruta_, errno);
        return {bloque_.get(), size_t(n)};
    }

private:
    QString ruta_;
    Descriptor archivo_;
    std::unique_ptr<char[]> bloque_{new char[BLOQUE]};
};

}  // namespace

ErrorDisco::ErrorDisco(const QString& que, const QString& archivo, int numero)
    : ErrorTarea(
        u"%1%2: %3"_s.arg(que, QDir::toNativeSeparators(archivo), QString::fromStdString(motivo_del_sistema(numero))))
{
}

ArchivoNuevo::ArchivoNuevo(const QString& destino, Asegurar asegurar)
    : ArchivoNuevo(destino, asegurar, destino + u".nuevo"_s)
{
}

// A stick may keep no modes: that one can't be set is no failure.
ArchivoNuevo::ArchivoNuevo(const QString& destino, Asegurar asegurar, const QString& aparte)
    : destino_(destino), aparte_(aparte), asegurar_(asegurar)
{
    const QByteArray ruta = nombre(aparte_);
    unlink(ruta.constData());
    fd_ = open(ruta.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, SOLO_DEL_USUARIO);
    if (fd_ < 0)
        fallar_al_escribir(destino_);
    (void)fchmod(fd_, SOLO_DEL_USUARIO);
}

ArchivoNuevo::~ArchivoNuevo()
{
    if (fd_ >= 0)
        close(fd_);
    if (!aparte_.isEmpty())
        unlink(nombre(aparte_).constData());
}

void ArchivoNuevo::escribir(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t n = write(fd_, bytes.data(), bytes.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            fallar_al_escribir(destino_);
        bytes.remove_prefix(size_t(n));
    }
}

void ArchivoNuevo::adelantar()
{
    if (asegurar_ == Asegurar::si && fsync(fd_) != 0)
        fallar_al_escribir(destino_);
}

void ArchivoNuevo::cerrar()
{
    if (fd_ < 0)
        return;
    adelantar();
    const int fd = std::exchange(fd_, -1);
    if (close(fd) != 0 && errno != EINTR)
        fallar_al_escribir(destino_);
}

void ArchivoNuevo::ocupar()
{
    cerrar();
    renombrar(aparte_, destino_);
    aparte_.clear();
    if (asegurar_ == Asegurar::si)
        asegurar_carpeta(carpeta_de(destino_));
}

// The earlier one keeps a second name meanwhile, so that its place is never empty.
Sustitucion::Sustitucion(const QString& nuevo, const QString& destino) : nuevo_(nuevo), destino_(destino)
{
    struct stat s
    {
    };
    if (lstat(nombre(destino).constData(), &s) == 0) {
        anterior_ = destino + u".anterior"_s;
        unlink(nombre(anterior_).constData());
        if (link(nombre(destino).constData(), nombre(anterior_).constData()) != 0)
            copiar_archivo(destino, anterior_, Asegurar::si);
    }
    pendiente_ = true;
    try {
        renombrar(nuevo, destino);
        asegurar_carpeta(carpeta_de(destino));
    } catch (const ErrorDisco&) {
        deshacer();
        throw;
    }
}

Sustitucion::~Sustitucion()
{
    if (pendiente_)
        deshacer();
}

void Sustitucion::confirmar()
{
    pendiente_ = false;
    if (!anterior_.isEmpty())
        unlink(nombre(anterior_).constData());
}

void Sustitucion::deshacer()
{
    pendiente_ = false;
    const QByteArray ruta = nombre(destino_);
    const QByteArray anterior = nombre(anterior_);
    // Two names of one file are renamed into each other by doing nothing.
    if (!anterior.isEmpty() && std::rename(anterior.constData(), ruta.constData()) == 0)
        unlink(anterior.constData());
    else if (anterior.isEmpty() && !QFileInfo::exists(nuevo_))
        unlink(ruta.constData());
    try {
        asegurar_carpeta(carpeta_de(destino_));
    } catch (const ErrorDisco&) {
        // What failed first is told.
    }
}

void poner_en_lugar(const QString& nuevo, const QString& lugar)
{
    renombrar(nuevo, lugar);
    asegurar_carpeta(carpeta_de(lugar));
}

QString ruta_real(const QString& archivo)
{
    const QFileInfo info(archivo);
    const QString real = info.canonicalFilePath();
    return real.isEmpty() ? QFileInfo(info.absolutePath()).canonicalFilePath() + u'/' + info.fileName() : real;
}

// With somebody who waits for news the disk gets its part on the way, so that the end takes no longer than the rest.
void copiar_archivo(const QString& de, const QString& a, Asegurar asegurar, const Latido& latido)
{
    Origen origen(de);
    ArchivoNuevo copia(a, asegurar);
    qint64 hechos = 0;
    qint64 en_disco = 0;
    for (std::string_view bytes = origen.leer(); !bytes.empty(); bytes = origen.leer()) {
        copia.escribir(bytes);
        hechos += qint64(bytes.size());
        if (!latido)
            continue;
        if (hechos - en_disco >= POR_VEZ) {
            copia.adelantar();
            en_disco = hechos;
        }
        if (!latido(hechos))
            throw Interrumpido();
    }
    copia.ocupar();
}

void llevar_archivo(const QString& de, const QString& a, const Latido& latido)
{
    const Descriptor origen(de);
    // Only the call that may take long waits elsewhere.
    auto listo = std::async(std::launch::async, [&origen] { return fsync(origen.fd) == 0 ? 0 : errno; });
    while (listo.wait_for(ENTRE_LATIDOS) != std::future_status::ready)
        if (!latido(0))
            throw Interrumpido();
    if (const int falla = listo.get(); falla != 0)
        throw ErrorDisco(u"No se pudo escribir el archivo "_s, de, falla);
    if (std::rename(nombre(de).constData(), nombre(a).constData()) == 0)
        return asegurar_carpeta(carpeta_de(a));
    copiar_archivo(de, a, Asegurar::si, latido);
    borrar_archivo(de);
}

void borrar_archivo(const QString& archivo)
{
    if (unlink(nombre(archivo).constData()) != 0)
        throw ErrorDisco(u"No se pudo borrar "_s, archivo, errno);
}

void carpeta_privada(const QString& carpeta)
{
    const QByteArray ruta = nombre(carpeta);
    const bool nueva = mkdir(ruta.constData(), CARPETA_DEL_USUARIO) == 0;
    const int falla = errno;
    struct stat s
    {
    };
    if (!nueva && (falla != EEXIST || stat(ruta.constData(), &s) != 0 || !S_ISDIR(s.st_mode)))
        throw ErrorDisco(u"No se pudo crear "_s, carpeta, falla == EEXIST ? ENOTDIR : falla);
    if (nueva || (s.st_mode & 07777) != CARPETA_DEL_USUARIO)
        (void)chmod(ruta.constData(), CARPETA_DEL_USUARIO);
    if (nueva)
        asegurar_carpeta(carpeta_de(carpeta));
}

void asegurar_carpeta(const QString& carpeta)
{
    const int fd = open(nombre(carpeta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // One that may be written but not listed can't be asked, and some file systems know no such call.
    if (fd < 0 && errno == EACCES)
        return;
    const int falla = fd < 0 || (fsync(fd) != 0 && errno != EINVAL && errno != ENOTSUP) ? errno : 0;
    if (fd >= 0)
        close(fd);
    if (falla != 0)
        throw ErrorDisco(u"No se pudo escribir en "_s, carpeta, falla);
}
