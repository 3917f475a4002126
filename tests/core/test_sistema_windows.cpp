// SPDX-License-Identifier: GPL-3.0-or-later
// What only Windows does: a file that somebody has open keeps its name.

#include "apoyo/procesos.h"
#include "core/archivos_disco.h"
#include "system/sistema.h"

#include <QElapsedTimer>

#include <cerrno>
#include <thread>

namespace {

class SistemaWindows : public ConProcesos
{
};

TEST_F(SistemaWindows, UnArchivoAbiertoSeEsperaYDespuesSeDice)
{
    const QString lugar = archivo("á ñ.txt"_u, "viejo");
    const QString nuevo = archivo("nuevo.txt"_u, "nuevo");
    QFile lector(lugar);
    ASSERT_TRUE(lector.open(QIODevice::ReadOnly));
    QElapsedTimer reloj;
    reloj.start();
    try {
        poner_en_lugar(nuevo, lugar);
        ADD_FAILURE();
    } catch (const ErrorDisco& e) {
        EXPECT_EQ(e.texto, "No se pudo escribir el archivo %1: otro programa lo está usando"_u.arg(
                               QDir::toNativeSeparators(lugar)));
    }
    EXPECT_GT(reloj.elapsed(), 1000);
    EXPECT_EQ(leer(nuevo), "nuevo");
    EXPECT_EQ(leer(lugar), "viejo");
    EXPECT_THROW(borrar_archivo(lugar), ErrorDisco);
    std::thread otro([&lector] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        lector.close();
    });
    EXPECT_NO_THROW(poner_en_lugar(nuevo, lugar));
    otro.join();
    EXPECT_EQ(leer(lugar), "nuevo");
}

TEST_F(SistemaWindows, LoProtegidoSeReemplazaYLoLargoSeAlcanza)
{
    QString carpeta_larga = carpeta.path();
    for (int i = 0; i < 6; ++i)
        carpeta_larga += u'/' + QString(60, u'ñ');
    ASSERT_TRUE(QDir().mkpath(carpeta_larga));
    const QString lugar = carpeta_larga + "/dj.rar"_u;
    for (const char* texto : {"uno", "dos"}) {
        ArchivoNuevo f(lugar);
        f.escribir(texto);
        f.ocupar();
        EXPECT_EQ(leer(lugar), texto);
        EXPECT_TRUE(QFile::setPermissions(lugar, QFile::ReadOwner | QFile::ReadUser));
    }
    borrar_archivo(lugar);
    EXPECT_FALSE(QFile::exists(lugar));
    // A folder has the name of a file: that is said, and not that somebody may not.
    ASSERT_TRUE(QDir().mkpath(lugar));
    EXPECT_LT(sistema::abrir(lugar.toStdString(), sistema::Apertura::leer), 0);
    EXPECT_EQ(errno, EISDIR);
}

TEST_F(SistemaWindows, LoTrabadoSeLee)
{
    const std::string ruta_ = archivo("x.lock"_u, "quién").toStdString();
    const int uno = sistema::abrir(ruta_, sistema::Apertura::escribir);
    const int otro = sistema::abrir(ruta_, sistema::Apertura::escribir);
    EXPECT_TRUE(sistema::trabar(uno, false));
    EXPECT_FALSE(sistema::trabar(otro, false));
    EXPECT_EQ(errno, EWOULDBLOCK);
    EXPECT_EQ(leer(QString::fromStdString(ruta_)), "quién");
    EXPECT_EQ(sistema::identidad(uno), sistema::identidad(ruta_));
    sistema::cerrar(uno);
    EXPECT_TRUE(sistema::trabar(otro, false));
    sistema::cerrar(otro);
}

}  // namespace
