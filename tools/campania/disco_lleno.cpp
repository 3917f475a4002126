// SPDX-License-Identifier: GPL-3.0-or-later
// A disk that fails once. Preloaded into a program (LD_PRELOAD), and so into those that it starts, it makes one
// call that changes what stands below a folder fail as the system would. The environment says which:
//
//   RTN_FALLA_CARPETA  the folder, as its real path; calls on anything outside of it pass and are not counted
//   RTN_FALLA_N        the call that fails, from 1; 0 or nothing to count only
//   RTN_FALLA_ERROR    ENOSPC, EIO, or a number of errno
//   RTN_FALLA_CUENTA   a file for the count (outside of the folder), made when there is none: all processes
//                      count on in it. Two 64-bit numbers of this machine: calls seen, calls failed
//   RTN_FALLA_TRAZA    a file (outside of the folder) that gets a line for each call: its name and its path
//
// Counted are write, pwrite, writev, pwritev, ftruncate, fallocate, fsync, fdatasync, open and its kin when they
// may make a file, mkdir, rename and link, with their variants for 64 bits and for folders. Deleting, closing and
// changing modes are not: they work on a full disk. The calls go to the kernel themselves, so that nothing
// depends on what else is preloaded.

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

struct Cuenta
{
    std::atomic<uint64_t> vistas;
    std::atomic<uint64_t> falladas;
};

Cuenta* abrir_cuenta()
{
    static Cuenta propia;  // without a file each process counts by itself
    const char* ruta = std::getenv("RTN_FALLA_CUENTA");
    if (!ruta)
        return &propia;
    const long fd = syscall(SYS_openat, AT_FDCWD, ruta, O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (fd < 0 || syscall(SYS_ftruncate, fd, sizeof(Cuenta)) != 0)
        std::abort();
    void* p = mmap(nullptr, sizeof(Cuenta), PROT_READ | PROT_WRITE, MAP_SHARED, int(fd), 0);
    syscall(SYS_close, fd);
    if (p == MAP_FAILED)
        std::abort();
    return static_cast<Cuenta*>(p);
}

int error_pedido()
{
    const char* e = std::getenv("RTN_FALLA_ERROR");
    if (!e || std::strcmp(e, "ENOSPC") == 0)
        return ENOSPC;
    return std::strcmp(e, "EIO") == 0 ? EIO : std::atoi(e);
}

void trazar(const char* llamada, const char* ruta)
{
    static const char* const traza = std::getenv("RTN_FALLA_TRAZA");
    if (!traza)
        return;
    char linea[PATH_MAX + 40];
    const int largo = std::snprintf(linea, sizeof linea, "%s %s\n", llamada, ruta);
    const long fd = syscall(SYS_openat, AT_FDCWD, traza, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    syscall(SYS_write, fd, linea, size_t(largo));
    syscall(SYS_close, fd);
}

// Whether this call is the one; errno says why.
bool falla(const char* llamada, const char* ruta)
{
    trazar(llamada, ruta);
    static Cuenta* const cuenta = abrir_cuenta();
    static const char* const n = std::getenv("RTN_FALLA_N");
    static const int error = error_pedido();
    if (++cuenta->vistas != (n ? std::strtoull(n, nullptr, 10) : 0))
        return false;
    ++cuenta->falladas;
    errno = error;
    return true;
}

bool debajo(const char* ruta)
{
    static const char* const carpeta = std::getenv("RTN_FALLA_CARPETA");
    const size_t largo = carpeta ? std::strlen(carpeta) : 0;
    return largo > 0 && std::strncmp(ruta, carpeta, largo) == 0 && (ruta[largo] == '/' || ruta[largo] == '\0');
}

bool toca(const char* llamada, int fd)
{
    char enlace[40];
    char ruta[PATH_MAX + 1];
    std::snprintf(enlace, sizeof enlace, "/proc/self/fd/%d", fd);
    const int errno_de_antes = errno;
    const long n = syscall(SYS_readlinkat, AT_FDCWD, enlace, ruta, PATH_MAX);
    errno = errno_de_antes;
    if (n <= 0)
        return false;
    ruta[n] = '\0';
    return debajo(ruta) && falla(llamada, ruta);
}

// A path as it was given: one that is relative to a folder is looked for by that folder.
bool toca(const char* llamada, int carpeta, const char* ruta)
{
    char actual[PATH_MAX + 1];
    if (ruta[0] == '/')
        return debajo(ruta) && falla(llamada, ruta);
    if (carpeta != AT_FDCWD)
        return toca(llamada, carpeta);
    return syscall(SYS_getcwd, actual, sizeof actual) > 0 && debajo(actual) && falla(llamada, ruta);
}

int abrir(int carpeta, const char* ruta, int modo, mode_t permisos)
{
    const bool hace = (modo & O_CREAT) != 0 || (modo & O_TMPFILE) == O_TMPFILE;
    return hace && toca("open", carpeta, ruta) ? -1 : int(syscall(SYS_openat, carpeta, ruta, modo, permisos));
}

mode_t permisos_de(int modo, va_list resto)
{
    return (modo & O_CREAT) != 0 || (modo & O_TMPFILE) == O_TMPFILE ? va_arg(resto, mode_t) : 0;
}

}  // namespace

// NOLINTBEGIN: the names and types are the system's.
extern "C" {

#define RTN_ABRIR(nombre)                                 \
    int nombre(const char* ruta, int modo, ...)           \
    {                                                     \
        va_list resto;                                    \
        va_start(resto, modo);                            \
        const mode_t permisos = permisos_de(modo, resto); \
        va_end(resto);                                    \
        return abrir(AT_FDCWD, ruta, modo, permisos);     \
    }
RTN_ABRIR(open)
RTN_ABRIR(open64)

#define RTN_ABRIR_EN(nombre)                                 \
    int nombre(int carpeta, const char* ruta, int modo, ...) \
    {                                                        \
        va_list resto;                                       \
        va_start(resto, modo);                               \
        const mode_t permisos = permisos_de(modo, resto);    \
        va_end(resto);                                       \
        return abrir(carpeta, ruta, modo, permisos);         \
    }
RTN_ABRIR_EN(openat)
RTN_ABRIR_EN(openat64)

int creat(const char* ruta, mode_t permisos)
{
    return abrir(AT_FDCWD, ruta, O_CREAT | O_WRONLY | O_TRUNC, permisos);
}

ssize_t write(int fd, const void* que, size_t cuantos)
{
    return toca("write", fd) ? -1 : syscall(SYS_write, fd, que, cuantos);
}

ssize_t writev(int fd, const iovec* partes, int cuantas)
{
    return toca("writev", fd) ? -1 : syscall(SYS_writev, fd, partes, cuantas);
}

#define RTN_EN_LUGAR(nombre)                                                             \
    ssize_t nombre(int fd, const void* que, size_t cuantos, off_t lugar)                 \
    {                                                                                    \
        return toca("pwrite", fd) ? -1 : syscall(SYS_pwrite64, fd, que, cuantos, lugar); \
    }
RTN_EN_LUGAR(pwrite)
RTN_EN_LUGAR(pwrite64)

#define RTN_PARTES_EN_LUGAR(nombre)                                                             \
    ssize_t nombre(int fd, const iovec* partes, int cuantas, off_t lugar)                       \
    {                                                                                           \
        return toca("pwritev", fd) ? -1 : syscall(SYS_pwritev, fd, partes, cuantas, lugar, 0L); \
    }
RTN_PARTES_EN_LUGAR(pwritev)
RTN_PARTES_EN_LUGAR(pwritev64)

#define RTN_LARGO(nombre)                                                           \
    int nombre(int fd, off_t largo)                                                 \
    {                                                                               \
        return toca("ftruncate", fd) ? -1 : int(syscall(SYS_ftruncate, fd, largo)); \
    }
RTN_LARGO(ftruncate)
RTN_LARGO(ftruncate64)

#define RTN_RESERVA(nombre)                                                                        \
    int nombre(int fd, int modo, off_t desde, off_t cuantos)                                       \
    {                                                                                              \
        return toca("fallocate", fd) ? -1 : int(syscall(SYS_fallocate, fd, modo, desde, cuantos)); \
    }
RTN_RESERVA(fallocate)
RTN_RESERVA(fallocate64)

// These give the error back instead of setting errno.
#define RTN_RESERVA_POSIX(nombre)                                                                       \
    int nombre(int fd, off_t desde, off_t cuantos)                                                      \
    {                                                                                                   \
        return toca("fallocate", fd) || syscall(SYS_fallocate, fd, 0, desde, cuantos) != 0 ? errno : 0; \
    }
RTN_RESERVA_POSIX(posix_fallocate)
RTN_RESERVA_POSIX(posix_fallocate64)

int fsync(int fd)
{
    return toca("fsync", fd) ? -1 : int(syscall(SYS_fsync, fd));
}

int fdatasync(int fd)
{
    return toca("fdatasync", fd) ? -1 : int(syscall(SYS_fdatasync, fd));
}

int mkdirat(int carpeta, const char* ruta, mode_t permisos)
{
    return toca("mkdir", carpeta, ruta) ? -1 : int(syscall(SYS_mkdirat, carpeta, ruta, permisos));
}

int mkdir(const char* ruta, mode_t permisos)
{
    return mkdirat(AT_FDCWD, ruta, permisos);
}

int renameat2(int deCarpeta, const char* de, int aCarpeta, const char* a, unsigned marcas)
{
    return toca("rename", aCarpeta, a) ? -1 : int(syscall(SYS_renameat2, deCarpeta, de, aCarpeta, a, marcas));
}

int renameat(int deCarpeta, const char* de, int aCarpeta, const char* a)
{
    return renameat2(deCarpeta, de, aCarpeta, a, 0);
}

int rename(const char* de, const char* a)
{
    return renameat2(AT_FDCWD, de, AT_FDCWD, a, 0);
}

int linkat(int deCarpeta, const char* de, int aCarpeta, const char* a, int marcas)
{
    return toca("link", aCarpeta, a) ? -1 : int(syscall(SYS_linkat, deCarpeta, de, aCarpeta, a, marcas));
}

int link(const char* de, const char* a)
{
    return linkat(AT_FDCWD, de, AT_FDCWD, a, 0);
}

}  // extern "C"
// NOLINTEND
