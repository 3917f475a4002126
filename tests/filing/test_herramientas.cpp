// SPDX-License-Identifier: GPL-3.0-or-later
// rar and leer_dj on files that somebody else made.

#include "apoyo/procesos.h"
#include "rar5.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <zlib.h>

namespace {

// Whether a text would command a terminal or turn its lines around.
bool manda(const QString& texto)
{
    return std::any_of(texto.begin(), texto.end(), [](QChar c) {
        const char16_t u = c.unicode();
        return (u < 0x20 && u != u'\n') || (u >= 0x7f && u <= 0x9f) || (u >= 0x202a && u <= 0x202e)
               || (u >= 0x2066 && u <= 0x2069) || u == QChar::ReplacementCharacter;
    });
}

class Herramientas : public ConProcesos
{
protected:
    static int leer_dj(const QStringList& argumentos, QString* salida)
    {
        return correr(QStringLiteral(RTN_LEER_DJ), argumentos, salida, true);
    }
    // An archive of one entry that claims other sizes than it has; its own data are a hole of that size.
    QString archivoQueDice(quint64 largo, quint64 almacenado) const
    {
        const auto vint = [](QByteArray& s, quint64 v) {
            for (; v > 0x7f; v >>= 7)
                s += char((v & 0x7f) | 0x80);
            s += char(v);
        };
        QByteArray cabecera;
        for (const quint64 v :
             {quint64(2), quint64(2), almacenado, quint64(0), largo, quint64(0), quint64(0), quint64(1), quint64(9)})
            vint(cabecera, v);
        cabecera += "SRTN1.txt";
        cabecera.prepend(char(cabecera.size()));
        const auto crc = quint32(
            crc32_z(0, reinterpret_cast<const Bytef*>(cabecera.constData()), size_t(cabecera.size())));
        QByteArray bytes("Rar!\x1a\x07\x01\0", 8);
        for (int i = 0; i < 32; i += 8)
            bytes += char(crc >> i);
        bytes += cabecera;
        const QString ruta = archivo("dice.rar"_u, bytes);
        const qint64 principio = bytes.size();
        EXPECT_TRUE(QFile::resize(ruta, principio + qint64(almacenado)));
        QFile f(ruta);
        EXPECT_TRUE(f.open(QIODevice::Append));
        f.write(QByteArray::fromHex("1d77565103050400"));  // the archive's end
        return ruta;
    }
};

TEST_F(Herramientas, NadaMandaEnElTerminal)
{
    struct Caso
    {
        std::string nombre, visto;
    };
    const std::string a = (carpeta.path() + "/malo.rar"_u).toStdString();
    for (const Caso& c : {Caso{"\x1b[2Jx", "\\x1B[2Jx"}, Caso{"salto\nx", "salto\\x0Ax"}, Caso{"\x7f", "\\x7F"},
                          Caso{"\xc2\x9b"
                               "31m",
                               "\\xC2\\x9B31m"},
                          Caso{"\xe2\x80\xae"
                               "fdp.exe",
                               "\\xE2\\x80\\xAEfdp.exe"},
                          Caso{"\xe2\x81\xa6", "\\xE2\\x81\\xA6"}, Caso{"\xff\xc3", "\\xFF\\xC3"},
                          Caso{"\xe0\x80\xae", "\\xE0\\x80\\xAE"}, Caso{"\xed\xa0\x80", "\\xED\\xA0\\x80"},
                          Caso{"ñandú €", "ñandú €"}}) {
        const std::string ruta = carpeta.path().toStdString() + "/SRTN" + c.nombre + ".txt";
        std::FILE* f = std::fopen(ruta.c_str(), "w");
        ASSERT_TRUE(f);
        std::fclose(f);
        std::remove(a.c_str());
        agregar_rar(a, {ruta});
        std::remove(ruta.c_str());
        for (const char* orden : {"t", "l"}) {
            QString salida;
            EXPECT_EQ(rar({QLatin1StringView(orden), QString::fromStdString(a)}, &salida), 0);
            EXPECT_TRUE(salida.contains(QString::fromStdString("SRTN" + c.visto + ".txt\n"))) << salida.toStdString();
            EXPECT_FALSE(manda(salida)) << c.visto;
        }
        std::remove(ruta.c_str());
    }
    // Values of the file and its own name.
    const QByteArray campo("1\x1b]0;x\x07\x7f\0"
                           "9",
                           9);
    const QString ruta = archivo("SRTN\u202e\u009b\x1b"
                                 "c.txt"_u,
                                 campo + "\r\n2\x1b\r\n9\x1b\x9b\r\n");
    for (const QStringList& modo : {QStringList{}, {"--campos"_u}, {"--json"_u}, {"--codigo"_u, "\x1b\u202e"_u}}) {
        QString salida;
        EXPECT_EQ(leer_dj(modo + QStringList(ruta), &salida), 1);
        EXPECT_FALSE(manda(salida)) << salida.toStdString();
    }
    QString salida;
    EXPECT_EQ(leer_dj({ruta + "no"_u}, &salida), 2);
    EXPECT_FALSE(manda(salida)) << salida.toStdString();
    // Who reads the JSON has the value as it stands.
    EXPECT_EQ(leer_dj({"--json"_u, "--codigo"_u, "\x7f\u202e"_u, ruta}, &salida), 1);
    const QJsonArray fallas = QJsonDocument::fromJson(salida.toUtf8()).object()["fallas"_u].toArray();
    EXPECT_EQ(fallas.last().toObject()["valor"_u].toString(), "\x7f\u202e"_u);
}

TEST_F(Herramientas, UnaSolaDevueltaYDeTamanoPosible)
{
    const QString una = archivo("dos/SRTN1.txt"_u, "1");
    const QString otra = archivo("dos/srtn2.TXT"_u, "1");
    const QString dos = carpeta.path() + "/dos.rar"_u;
    ASSERT_EQ(rar({"a"_u, "-y"_u, dos, una, otra}), 0);
    const QString grande = archivo("grande/SRTN1.txt"_u, "1");
    ASSERT_TRUE(QFile::resize(grande, (qint64(1) << 30) + 1));
    const quint64 gib = quint64(1) << 30;
    struct Caso
    {
        QString entrada;
        const char* dice;
    };
    for (const Caso& c :
         {Caso{QFileInfo(una).path(), "debe contener un solo archivo SRTN….txt, y hay 2"},
          Caso{dos, "debe contener un solo archivo SRTN….txt, y hay 2"},
          Caso{grande, "es demasiado grande para ser una declaración jurada (1073741825 bytes"},
          Caso{QFileInfo(grande).path(), "es demasiado grande"},
          Caso{archivoQueDice(5 * gib, 5 * gib), "es demasiado grande para ser una declaración jurada (5368709120"},
          Caso{"/dev/zero"_u, "No se puede leer /dev/zero"}}) {
        QString salida;
        EXPECT_EQ(leer_dj({c.entrada}, &salida), 2) << c.entrada.toStdString();
        EXPECT_TRUE(salida.contains(QString::fromUtf8(c.dice))) << salida.toStdString();
    }
    QString salida;
    EXPECT_EQ(leer_dj({archivoQueDice(gib + 1, 3)}, &salida), 2);
    EXPECT_TRUE(salida.contains("es demasiado grande"_u)) << salida.toStdString();
    EXPECT_EQ(leer_dj({archivoQueDice(3, 3)}, &salida), 1);  // the same archive with sizes that hold is read
}

TEST_F(Herramientas, ElLectorSeUsaEnEspanol)
{
    const QString dj = archivo("SRTN1.txt"_u, "1");
    QString salida;
    EXPECT_EQ(leer_dj({"--help"_u}, &salida), 0);
    EXPECT_TRUE(salida.contains("Termina con 0 si todo está bien"_u));
    EXPECT_FALSE(salida.contains("Options"_u));
    for (const QStringList& mal : {QStringList{}, {dj, dj}, {"--nada"_u, dj}, {dj, "--codigo"_u}}) {
        EXPECT_EQ(leer_dj(mal, &salida), 2);
        EXPECT_TRUE(salida.contains("Uso: leer_dj"_u));
    }
    // The code of the paper, as it is printed and typed.
    EXPECT_EQ(leer_dj({"--json"_u, dj}, &salida), 1);
    const QString codigo = QJsonDocument::fromJson(salida.toUtf8()).object()["codigo"_u].toString();
    for (const QString& escrito : {codigo.toLower(), " "_u + codigo.left(8) + "  "_u + codigo.mid(8) + "\t"_u}) {
        EXPECT_EQ(leer_dj({"--codigo"_u, escrito, dj}, &salida), 1);
        EXPECT_FALSE(salida.contains("el código del papel"_u)) << salida.toStdString();
    }
    EXPECT_EQ(leer_dj({"--codigo=0"_u, dj}, &salida), 1);
    EXPECT_TRUE(salida.contains("el código del papel no es el del archivo"_u));
}

TEST_F(Herramientas, LoQueNoSePuedeDecirEsUnaFalla)
{
    const QString a = carpeta.path() + "/a.rar"_u;
    const QString dj = archivo("SRTN1.txt"_u, "1");
    ASSERT_EQ(rar({"a"_u, "-y"_u, a, dj}), 0);
    struct Caso
    {
        const char* programa;
        QStringList argumentos;
        int estado;
    };
    for (const Caso& c :
         {Caso{RTN_RAR, {"l"_u, a}, 5}, Caso{RTN_RAR, {"t"_u, a}, 5}, Caso{RTN_LEER_DJ, {dj}, 2},
          Caso{RTN_LEER_DJ, {"--json"_u, dj}, 2}, Caso{RTN_CREAR_BASE, {carpeta.path() + "/x.db"_u}, 1}}) {
        QProcess p;
        p.setStandardOutputFile("/dev/full"_u);
        p.start(QString::fromUtf8(c.programa), c.argumentos);
        ASSERT_TRUE(p.waitForFinished(60000));
        EXPECT_EQ(p.exitCode(), c.estado) << c.programa;
        EXPECT_TRUE(QString::fromUtf8(p.readAllStandardError()).contains("no se pudo escribir la salida"_u))
            << c.programa;
    }
}

}  // namespace
