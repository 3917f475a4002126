// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/archivos_disco.h"

#include "system/motivo_sistema.h"
#include "system/sistema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <future>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t BLOQUE = 1 << 20;
constexpr qint64 POR_VEZ = 16 << 20;
constexpr std::chrono::milliseconds ENTRE_LATIDOS{30};
constexpr QStringView NO_COPIADO = u"No se pudo copiar ";

std::string nombre(const QString& ruta)
{
    return ruta.toStdString();
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
    if (!sistema::renombrar(nombre(de), nombre(a)))
        fallar_al_escribir(a);
}

// A file that is open for reading.
struct Descriptor
{
    explicit Descriptor(const QString& ruta) : fd(sistema::abrir(nombre(ruta), sistema::Apertura::leer))
    {
        if (fd < 0)
            throw ErrorDisco(NO_COPIADO.toString(), ruta, errno);
    }
    ~Descriptor() { sistema::cerrar(fd); }
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
        const int64_t n = sistema::leer(archivo_.fd, bloque_.get(), BLOQUE);
        if (n < 0)
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

ArchivoNuevo::ArchivoNuevo(const QString& destino, Asegurar asegurar, const QString& aparte)
    : destino_(destino), aparte_(aparte), asegurar_(asegurar)
{
    sistema::borrar(nombre(aparte_));
    fd_ = sistema::abrir(nombre(aparte_), sistema::Apertura::nuevo);
    if (fd_ < 0)
        fallar_al_escribir(destino_);
}

ArchivoNuevo::~ArchivoNuevo()
{
    if (fd_ >= 0)
        sistema::cerrar(fd_);
    if (!aparte_.isEmpty())
        sistema::borrar(nombre(aparte_));
}

void ArchivoNuevo::escribir(std::string_view bytes)
{
    while (!bytes.empty()) {
        const int64_t n = sistema::escribir(fd_, bytes.data(), bytes.size());
        if (n <= 0)
            fallar_al_escribir(destino_);
        bytes.remove_prefix(size_t(n));
    }
}

void ArchivoNuevo::adelantar()
{
    if (asegurar_ == Asegurar::si && !sistema::asegurar(fd_))
        fallar_al_escribir(destino_);
}

void ArchivoNuevo::cerrar()
{
    if (fd_ < 0)
        return;
    adelantar();
    if (!sistema::cerrar(std::exchange(fd_, -1)))
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
    if (sistema::existe(nombre(destino))) {
        anterior_ = destino + u".anterior"_s;
        sistema::borrar(nombre(anterior_));
        if (!sistema::otro_nombre(nombre(destino), nombre(anterior_)))
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
        sistema::borrar(nombre(anterior_));
}

void Sustitucion::deshacer()
{
    pendiente_ = false;
    const std::string ruta = nombre(destino_);
    const std::string anterior = nombre(anterior_);
    // Two names of one file are renamed into each other by doing nothing.
    if (!anterior.empty() && sistema::renombrar(anterior, ruta))
        sistema::borrar(anterior);
    else if (anterior.empty() && !QFileInfo::exists(nuevo_))
        sistema::borrar(ruta);
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
    auto listo = std::async(std::launch::async, [&origen] { return sistema::asegurar(origen.fd) ? 0 : errno; });
    while (listo.wait_for(ENTRE_LATIDOS) != std::future_status::ready)
        if (!latido(0))
            throw Interrumpido();
    if (const int falla = listo.get(); falla != 0)
        throw ErrorDisco(u"No se pudo escribir el archivo "_s, de, falla);
    if (sistema::renombrar(nombre(de), nombre(a)))
        return asegurar_carpeta(carpeta_de(a));
    copiar_archivo(de, a, Asegurar::si, latido);
    borrar_archivo(de);
}

void borrar_archivo(const QString& archivo)
{
    if (!sistema::borrar(nombre(archivo)))
        throw ErrorDisco(u"No se pudo borrar "_s, archivo, errno);
}

void carpeta_privada(const QString& carpeta)
{
    const auto nueva = sistema::carpeta_privada(nombre(carpeta));
    if (!nueva)
        throw ErrorDisco(u"No se pudo crear "_s, carpeta, errno);
    if (*nueva)
        asegurar_carpeta(carpeta_de(carpeta));
}

void asegurar_carpeta(const QString& carpeta)
{
    if (!sistema::asegurar_carpeta(nombre(carpeta)))
        throw ErrorDisco(u"No se pudo escribir en "_s, carpeta, errno);
}
