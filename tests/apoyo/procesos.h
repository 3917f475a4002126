// SPDX-License-Identifier: GPL-3.0-or-later
// Files in the test's folder and the programs that work on them.
#pragma once

#include "apoyo/apoyo.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <sys/stat.h>

/// The bits of a file's mode; 0 when it is not there.
[[nodiscard]] inline unsigned modo_de(const QString& ruta)
{
    struct stat s
    {
    };
    return stat(QFile::encodeName(ruta).constData(), &s) == 0 ? s.st_mode & 07777U : 0;
}

class ConProcesos : public ConAlmacen
{
protected:
    /// A file below the test's folder, with the folders on its way; gives its full name.
    QString archivo(const QString& nombre, const QByteArray& datos) const
    {
        const QString ruta = carpeta.path() + u'/' + nombre;
        QDir().mkpath(QFileInfo(ruta).path());
        QFile f(ruta);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(datos);
        return ruta;
    }
    static QByteArray leer(const QString& ruta)
    {
        QFile f(ruta);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(no está)");
    }
    /// Its status, and what it said on its standard output, or on both outputs with `todo`.
    static int correr(const QString& programa, const QStringList& argumentos, QString* salida = nullptr,
                      bool todo = false)
    {
        QProcess p;
        if (todo)
            p.setProcessChannelMode(QProcess::MergedChannels);
        p.start(programa, argumentos);
        EXPECT_TRUE(p.waitForFinished(300000));
        EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
        if (salida)
            *salida = QString::fromUtf8(p.readAllStandardOutput());
        return p.exitCode();
    }
    static int rar(const QStringList& argumentos, QString* salida = nullptr)
    {
        return correr(QStringLiteral(RTN_RAR), argumentos, salida);
    }
};

/// Another umask while it lives.
class Mascara
{
public:
    explicit Mascara(mode_t mascara) : antes_(umask(mascara)) {}
    ~Mascara() { umask(antes_); }
    Mascara(const Mascara&) = delete;
    Mascara& operator=(const Mascara&) = delete;

private:
    mode_t antes_;
};
