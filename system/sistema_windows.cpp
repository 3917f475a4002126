// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/sistema.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

namespace sistema {

namespace {

// Scanners and other programs hold a file for a moment.
constexpr DWORD PACIENCIA_MS = 2000;
constexpr DWORD ENTRE_INTENTOS_MS = 25;
constexpr DWORD COMPARTIDO = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr size_t LARGO_SIN_PREFIJO = 240;
// What a lock takes lies behind every byte: all of these can be read.
constexpr DWORD LUGAR_DE_LA_TRABA = 0x40000000;
// The system's own numbers, above those of errno.
constexpr int SIN_PALABRAS = 10000;
constexpr uint32_t PERMISOS = 0100644;
constexpr int64_t SEGUNDOS_HASTA_1970 = 11644473600;
constexpr int64_t POR_SEGUNDO = 10'000'000;

std::wstring ancho(const std::string& texto)
{
    std::wstring t(size_t(MultiByteToWideChar(CP_UTF8, 0, texto.data(), int(texto.size()), nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, texto.data(), int(texto.size()), t.data(), int(t.size()));
    return t;
}

std::string angosto(const wchar_t* texto)
{
    std::string t(size_t(WideCharToMultiByte(CP_UTF8, 0, texto, -1, nullptr, 0, nullptr, nullptr)), '\0');
    WideCharToMultiByte(CP_UTF8, 0, texto, -1, t.data(), int(t.size()), nullptr, nullptr);
    t.resize(t.empty() ? 0 : t.size() - 1);
    return t;
}

// A path as the system takes it, in the form without a limit when it is long.
std::wstring camino(const std::string& ruta)
{
    std::wstring corta = ancho(ruta);
    std::replace(corta.begin(), corta.end(), L'/', L'\\');
    if (corta.size() < LARGO_SIN_PREFIJO || corta.starts_with(L"\\\\?\\"))
        return corta;
    std::wstring entera(GetFullPathNameW(corta.c_str(), 0, nullptr, nullptr), L'\0');
    entera.resize(GetFullPathNameW(corta.c_str(), DWORD(entera.size()), entera.data(), nullptr));
    return entera.starts_with(L"\\\\") ? L"\\\\?\\UNC" + entera.substr(1) : L"\\\\?\\" + entera;
}

bool es_carpeta(const std::wstring& ruta)
{
    const DWORD a = GetFileAttributesW(ruta.c_str());
    return a != INVALID_FILE_ATTRIBUTES && (a & FILE_ATTRIBUTE_DIRECTORY);
}

// False, with `errno` for what the system refused last.
bool fallar(DWORD error = GetLastError())
{
    constexpr std::array<std::pair<DWORD, int>, 27> MOTIVOS{{{ERROR_FILE_NOT_FOUND, ENOENT},
                                                             {ERROR_PATH_NOT_FOUND, ENOENT},
                                                             {ERROR_INVALID_NAME, ENOENT},
                                                             {ERROR_BAD_NETPATH, ENOENT},
                                                             {ERROR_BAD_NET_NAME, ENOENT},
                                                             {ERROR_DIRECTORY, ENOTDIR},
                                                             {ERROR_ACCESS_DENIED, EACCES},
                                                             {ERROR_WRITE_PROTECT, EROFS},
                                                             {ERROR_SHARING_VIOLATION, EBUSY},
                                                             {ERROR_USER_MAPPED_FILE, EBUSY},
                                                             {ERROR_DELETE_PENDING, EBUSY},
                                                             {ERROR_BUSY, EBUSY},
                                                             {ERROR_LOCK_VIOLATION, EWOULDBLOCK},
                                                             {ERROR_IO_PENDING, EWOULDBLOCK},
                                                             {ERROR_FILE_EXISTS, EEXIST},
                                                             {ERROR_ALREADY_EXISTS, EEXIST},
                                                             {ERROR_DISK_FULL, ENOSPC},
                                                             {ERROR_HANDLE_DISK_FULL, ENOSPC},
                                                             {ERROR_FILE_TOO_LARGE, EFBIG},
                                                             {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
                                                             {ERROR_NOT_SAME_DEVICE, EXDEV},
                                                             {ERROR_NOT_READY, ENODEV},
                                                             {ERROR_DEV_NOT_EXIST, ENODEV},
                                                             {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
                                                             {ERROR_CRC, EIO},
                                                             {ERROR_IO_DEVICE, EIO},
                                                             {ERROR_WRITE_FAULT, EIO}}};
    const auto* m = std::find_if(MOTIVOS.begin(), MOTIVOS.end(), [error](const auto& p) { return p.first == error; });
    errno = m == MOTIVOS.end() ? SIN_PALABRAS + int(error) : m->second;
    return false;
}

HANDLE mango(int archivo)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(archivo));
}

// Whether what was refused may pass by itself: somebody else has the file open, or is deleting it.
bool pasajero(const std::wstring& ruta)
{
    switch (GetLastError()) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_DELETE_PENDING: return true;
    case ERROR_ACCESS_DENIED: {
        const DWORD a = GetFileAttributesW(ruta.c_str());
        // A name that is being deleted tells nothing of itself.
        return a == INVALID_FILE_ATTRIBUTES ? GetLastError() == ERROR_ACCESS_DENIED
                                            : !(a & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY));
    }
    default: return false;
    }
}

// Tries until it is done, or what is in its way has had time to go.
template <typename Intento>
bool insistir(const std::wstring& ruta, Intento intento)
{
    const ULONGLONG desde = GetTickCount64();
    while (!intento()) {
        const DWORD error = GetLastError();
        if (!pasajero(ruta)) {
            if (error == ERROR_ACCESS_DENIED && es_carpeta(ruta)) {
                errno = EISDIR;
                return false;
            }
            return fallar(error);
        }
        if (GetTickCount64() - desde >= PACIENCIA_MS)
            return fallar(ERROR_BUSY);
        Sleep(ENTRE_INTENTOS_MS);
    }
    return true;
}

bool liberar(const std::wstring& ruta)
{
    const DWORD a = GetFileAttributesW(ruta.c_str());
    return a != INVALID_FILE_ATTRIBUTES && (a & FILE_ATTRIBUTE_READONLY) && !(a & FILE_ATTRIBUTE_DIRECTORY)
           && SetFileAttributesW(ruta.c_str(), a & ~DWORD(FILE_ATTRIBUTE_READONLY));
}

std::optional<Identidad> identidad_de(HANDLE h)
{
    BY_HANDLE_FILE_INFORMATION i;
    if (!GetFileInformationByHandle(h, &i)) {
        fallar();
        return std::nullopt;
    }
    return Identidad{i.dwVolumeSerialNumber, uint64_t(i.nFileIndexHigh) << 32 | i.nFileIndexLow};
}

}  // namespace

// A folder of the user's is private by what it inherits; there are no modes to set.
int abrir(const std::string& ruta, Apertura como)
{
    const std::wstring c = camino(ruta);
    const DWORD acceso = como == Apertura::leer ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    const DWORD modo = como == Apertura::crear ? OPEN_ALWAYS : como == Apertura::nuevo ? CREATE_NEW : OPEN_EXISTING;
    HANDLE h = INVALID_HANDLE_VALUE;
    if (!insistir(c, [&] {
            h = CreateFileW(c.c_str(), acceso, COMPARTIDO, nullptr, modo, FILE_ATTRIBUTE_NORMAL, nullptr);
            return h != INVALID_HANDLE_VALUE;
        }))
        return -1;
    const int archivo = _open_osfhandle(reinterpret_cast<intptr_t>(h),
                                        _O_BINARY | _O_NOINHERIT | (como == Apertura::leer ? _O_RDONLY : _O_RDWR));
    if (archivo < 0)
        CloseHandle(h);
    return archivo;
}

bool cerrar(int archivo)
{
    return _close(archivo) == 0;
}

int64_t leer(int archivo, void* donde, size_t cuantos)
{
    DWORD n = 0;
    return ReadFile(mango(archivo), donde, DWORD(cuantos), &n, nullptr) || fallar() ? int64_t(n) : -1;
}

int64_t escribir(int archivo, const void* que, size_t cuantos)
{
    DWORD n = 0;
    return WriteFile(mango(archivo), que, DWORD(cuantos), &n, nullptr) || fallar() ? int64_t(n) : -1;
}

bool ir(int archivo, uint64_t lugar)
{
    return _lseeki64(archivo, int64_t(lugar), SEEK_SET) >= 0;
}

bool recortar(int archivo, uint64_t largo)
{
    return (ir(archivo, largo) && SetEndOfFile(mango(archivo))) || fallar();
}

bool asegurar(int archivo)
{
    // One that is open for reading alone has nothing of ours to bring there.
    return FlushFileBuffers(mango(archivo)) || GetLastError() == ERROR_ACCESS_DENIED || fallar();
}

std::optional<Ficha> ficha(int archivo)
{
    BY_HANDLE_FILE_INFORMATION i;
    if (!GetFileInformationByHandle(mango(archivo), &i)) {
        fallar();
        return std::nullopt;
    }
    const int64_t momento = int64_t(i.ftLastWriteTime.dwHighDateTime) << 32 | i.ftLastWriteTime.dwLowDateTime;
    return Ficha{GetFileType(mango(archivo)) == FILE_TYPE_DISK && !(i.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY),
                 uint64_t(i.nFileSizeHigh) << 32 | i.nFileSizeLow, momento / POR_SEGUNDO - SEGUNDOS_HASTA_1970,
                 PERMISOS};
}

std::optional<Identidad> identidad(int archivo)
{
    return identidad_de(mango(archivo));
}

std::optional<Identidad> identidad(const std::string& ruta)
{
    const HANDLE h = CreateFileW(camino(ruta).c_str(), 0, COMPARTIDO, nullptr, OPEN_EXISTING,
                                 FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (h == INVALID_HANDLE_VALUE) {
        fallar();
        return std::nullopt;
    }
    const auto i = identidad_de(h);
    CloseHandle(h);
    return i;
}

bool trabar(int archivo, bool esperar)
{
    OVERLAPPED lugar = {};
    lugar.OffsetHigh = LUGAR_DE_LA_TRABA;
    const DWORD como = LOCKFILE_EXCLUSIVE_LOCK | (esperar ? 0 : LOCKFILE_FAIL_IMMEDIATELY);
    return LockFileEx(mango(archivo), como, 0, 1, 0, &lugar) || fallar();
}

void solo_del_usuario(int) {}

bool renombrar(const std::string& de, const std::string& a)
{
    const std::wstring desde = camino(de), hasta = camino(a);
    liberar(hasta);
    return insistir(hasta, [&] {
        return MoveFileExW(desde.c_str(), hasta.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    });
}

bool borrar(const std::string& ruta)
{
    const std::wstring c = camino(ruta);
    liberar(c);
    return insistir(c, [&] { return DeleteFileW(c.c_str()); });
}

bool otro_nombre(const std::string& de, const std::string& a)
{
    return CreateHardLinkW(camino(a).c_str(), camino(de).c_str(), nullptr) || fallar();
}

std::string nombre_sin_camino(const std::string& ruta)
{
    return ruta.substr(ruta.find_last_of("/\\:") + 1);
}

bool existe(const std::string& ruta)
{
    return GetFileAttributesW(camino(ruta).c_str()) != INVALID_FILE_ATTRIBUTES || fallar();
}

std::optional<bool> carpeta_privada(const std::string& ruta)
{
    const std::wstring c = camino(ruta);
    if (CreateDirectoryW(c.c_str(), nullptr))
        return true;
    fallar();
    if (errno == EEXIST && es_carpeta(c))
        return false;
    if (errno == EEXIST)
        errno = ENOTDIR;
    return std::nullopt;
}

// A rename has brought its entry there before it ended.
bool asegurar_carpeta(const std::string& ruta)
{
    const std::wstring c = camino(ruta);
    if (es_carpeta(c))
        return true;
    errno = GetFileAttributesW(c.c_str()) == INVALID_FILE_ATTRIBUTES ? ENOENT : ENOTDIR;
    return false;
}

std::vector<std::string> argumentos(int, char**)
{
    int cuantos = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> lista(CommandLineToArgvW(GetCommandLineW(), &cuantos),
                                                              &LocalFree);
    std::vector<std::string> argumentos;
    for (int i = 1; lista && i < cuantos; ++i)
        argumentos.push_back(angosto(lista.get()[i]));
    return argumentos;
}

void preparar_salidas()
{
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    // The console is the shell's, and gets back what it had.
    static const UINT antes = GetConsoleOutputCP();
    if (antes != 0 && SetConsoleOutputCP(CP_UTF8))
        std::atexit([] { SetConsoleOutputCP(antes); });
}

}  // namespace sistema
