// SPDX-License-Identifier: GPL-3.0-or-later
// The packer against an independent reader of its archives, and the emission's archive.

#include "apoyo/procesos.h"
#include "filing/archivo_dj.h"
#include "filing/carpetas_dj.h"
#include "filing/empaquetado.h"
#include "filing/guion_lote.h"

#include <rar5.h>

#include <QDirIterator>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <map>
#include <set>

namespace {

// The program's folder has blanks, quotes, accents and what the shells read otherwise in its name.
#ifdef Q_OS_WIN
const QString NOMBRE_BASE = "mi 'base' & %TEMP% ñ^q"_u;
#else
const QString NOMBRE_BASE = "mi 'base' $x ñ\"q"_u;
#endif

class Empaquetado : public ConProcesos
{
protected:
    /// Extracts by bsdtar into a new folder; where it is not at hand, by the reader.
    QString extraer(const QString& rar_)
    {
        const QString destino = carpeta.path() + "/sale%1"_u.arg(++veces);
        QDir().mkpath(destino);
#ifdef Q_OS_WIN
        for (const EntradaRar& e : listar_rar(rar_.toStdString())) {
            QFile f(destino + u'/' + QString::fromStdString(e.nombre));
            EXPECT_TRUE(f.open(QIODevice::WriteOnly)
                        && leer_entrada(rar_.toStdString(), e,
                                        [&](const char* datos, size_t largo) { f.write(datos, qint64(largo)); }));
        }
#else
        EXPECT_EQ(correr("bsdtar"_u, {"-xf"_u, rar_, "-C"_u, destino}), 0);
#endif
        return destino;
    }
    int veces = 0;
};

TEST_F(Empaquetado, OtroProgramaExtraeLoMismo)
{
    const QString a = carpeta.path() + "/con 'comillas' y $ñ.rar"_u;
    const QList<std::pair<QString, QByteArray>> ficheros{
        {"vacío.pdf"_u, {}}, {"uno.txt"_u, "x"}, {"á ñ $HOME 'q'.pdf"_u, QByteArray(3000000, 'z')}};
    for (const auto& [nombre, datos] : ficheros)
        EXPECT_EQ(rar({"a"_u, "-y"_u, a, archivo(nombre, datos)}), 0);
    EXPECT_EQ(rar({"a"_u, "-y"_u, a, archivo("uno.txt"_u, "otro")}), 0);  // takes the earlier one's place
    const QString destino = extraer(a);
    EXPECT_EQ(QDir(destino).entryList(QDir::Files).size(), 3);
    EXPECT_EQ(leer(destino + "/uno.txt"_u), "otro");
    EXPECT_EQ(leer(destino + "/vacío.pdf"_u), "");
    EXPECT_EQ(leer(destino + "/á ñ $HOME 'q'.pdf"_u), QByteArray(3000000, 'z'));
    QString salida;
    EXPECT_EQ(rar({"t"_u, a}), 0);
    EXPECT_EQ(rar({"l"_u, a}, &salida), 0);
    EXPECT_EQ(salida.count(u'\n'), 3);

    QByteArray malo = leer(a);
    malo[malo.size() / 2] = char(malo[malo.size() / 2] ^ 1);
    EXPECT_NE(rar({"t"_u, archivo("malo.rar"_u, malo)}), 0);
    for (const qsizetype corte : {3, 9, 40, 200})
        EXPECT_NE(rar({"t"_u, archivo("malo.rar"_u, malo.left(corte))}), 0) << corte;
    EXPECT_NE(rar({}), 0);
    EXPECT_NE(rar({"a"_u, a, "x"_u}), 0);
    EXPECT_NE(rar({"x"_u, a}), 0);
    // All files of a call, or none; two of one name are refused.
    const QByteArray antes = leer(a);
    const QString otro = archivo("otro.pdf"_u, "otro");
    for (const QString& segundo : {"/no/existe"_u, carpeta.path(), archivo("mas/otro.pdf"_u, "y")}) {
        EXPECT_NE(rar({"a"_u, "-y"_u, a, otro, segundo}), 0);
        EXPECT_EQ(leer(a), antes);
    }
}

// Added and replaced in any order, within a call and over calls, by an index that each call reads from the archive.
TEST_F(Empaquetado, MuchosNombresSeAgreganYSeReemplazan)
{
    QRandomGenerator azar(11);
    const std::string a = (carpeta.path() + "/muchos.rar"_u).toStdString();
    std::map<QString, QByteArray> hay;
    for (int vez = 0; vez < 250; ++vez) {
        std::set<std::string> rutas;
        for (int i = int(azar.bounded(1, 4)); i > 0; --i) {
            const QString nombre = "t%1.pdf"_u.arg(azar.bounded(1500));
            hay[nombre] = QByteArray::number(azar.generate());
            rutas.insert(archivo("f/"_u + nombre, hay[nombre]).toStdString());
        }
        agregar_rar(a, {rutas.begin(), rutas.end()});
    }
    const QString destino = extraer(QString::fromStdString(a));
    EXPECT_EQ(QDir(destino).entryList(QDir::Files).size(), qsizetype(hay.size()));
    for (const auto& [nombre, datos] : hay)
        EXPECT_EQ(leer(destino + u'/' + nombre), datos);
}

// Its entries stay as they are, whoever adds to it and however often.
TEST_F(Empaquetado, ElArchivoDeOtroEmpaquetador)
{
    const QString a = archivo("otro.rar"_u,
                              QByteArray::fromHex("526172211a070100c51a33320301000056175991180202050605a4830200"
                                                  "e10b5ed4ac9dfa000105612e7478747669656a6f19b23a3503050000"));
    for (const char* nombre : {"b.txt", "c.txt", "b.txt"})
        EXPECT_EQ(rar({"a"_u, "-y"_u, a, archivo(QLatin1StringView(nombre), nombre)}), 0);
    const QString destino = extraer(a);
    EXPECT_EQ(QDir(destino).entryList(QDir::Files), (QStringList{"a.txt"_u, "b.txt"_u, "c.txt"_u}));
    EXPECT_EQ(leer(destino + "/a.txt"_u), "viejo");
    EXPECT_EQ(leer(destino + "/b.txt"_u), "b.txt");
}

TEST_F(Empaquetado, UnFicheroDeTresGiB)
{
    const QString grande = archivo("grande.bin"_u, "principio");
    constexpr qint64 LARGO = 3LL << 30;
    ASSERT_TRUE(QFile::resize(grande, LARGO));
    const QString a = carpeta.path() + "/g.rar"_u;
    ASSERT_EQ(rar({"a"_u, "-y"_u, a, grande}), 0);
    QString salida;
    EXPECT_EQ(correr("bsdtar"_u, {"-tvf"_u, a}, &salida), 0);
    EXPECT_TRUE(salida.contains(QString::number(LARGO))) << salida.toStdString();
    EXPECT_EQ(rar({"t"_u, a}), 0);
}

TEST_F(Empaquetado, MatadoDejaElDeAntesOElNuevo)
{
    QRandomGenerator azar(7);
    const QString a = carpeta.path() + "/k.rar"_u;
    const QString fijo = archivo("fijo.bin"_u, QByteArray(1000000, 'f'));
    ASSERT_EQ(rar({"a"_u, "-y"_u, a, fijo}), 0);
    const QString datos = archivo("datos.bin"_u, QByteArray(4000000, 'n'));
    // As long as a call takes here, and once more.
    QElapsedTimer reloj;
    reloj.start();
    ASSERT_EQ(rar({"a"_u, "-y"_u, carpeta.path() + "/otro.rar"_u, datos}), 0);
    const int plazo = 2 * int(reloj.elapsed()) + 2;
    QStringList enteros;
    for (int i = 0; i < 100; ++i) {
        // Every other time a name that is there already.
        const QString nuevo = carpeta.path() + "/n%1.bin"_u.arg(i / 2);
        QFile::link(datos, nuevo);
        QProcess p;
        p.start(QStringLiteral(RTN_RAR), {"a"_u, "-y"_u, a, nuevo});
        ASSERT_TRUE(p.waitForStarted());
        QTest::qSleep(azar.bounded(plazo));
        p.kill();
        p.waitForFinished();
        QString salida;
        ASSERT_EQ(rar({"t"_u, a}, &salida), 0) << i;
        ASSERT_TRUE(salida.contains("fijo.bin"_u)) << i;
        for (const QString& antes : std::as_const(enteros))
            ASSERT_TRUE(salida.contains(antes)) << i << antes.toStdString();
        if (salida.contains("n%1.bin"_u.arg(i / 2)))
            enteros << "n%1.bin"_u.arg(i / 2);
    }
    EXPECT_EQ(rar({"a"_u, "-y"_u, a, fijo, datos}), 0);
    EXPECT_EQ(rar({"t"_u, a}), 0);
    EXPECT_GT(enteros.size(), 5);
    EXPECT_LT(enteros.size(), 100);
}

class EmpaquetadoDJ : public Empaquetado
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        base = carpeta.path() + u'/' + NOMBRE_BASE;
        ASSERT_TRUE(QDir().mkpath(base));
        ASSERT_TRUE(QFile::copy(QStringLiteral(RTN_RAR), ruta_herramienta("rar"_u, base)));
        fijar_carpeta_programa(base);
        destino = carpeta.path() + "/destino"_u;
        QDir().mkpath(destino);
        dj = nueva_dj();
        final_ = destino + "/SRTN"_u + dj + ".rar"_u;
    }
    void escritura(int id, const QString& testimonio)
    {
        nueva_escritura(dj, id, id, id, 1);
        Comando c(cnRtn, "update SEL_TB_RTN_DETDJ set SEDD_FNAME_TESTIMONIO=? where SEDD_ID=?"_u);
        c.parametro("f", QString(testimonio).replace(u'\'', "''"_u));
        c.parametro("id", id);
        c.ejecutar();
    }
    bool emitir()
    {
        (void)generar_archivo_dj(dj);
        oyente.textos.clear();
        oyente.detalles.clear();
        const auto pedir = [this](const QString& p) {
            propuesto = p;
            return cancelar ? QString() : destino + "/otro nombre.rar"_u;
        };
        return comprimir_dj(dj, oyente, pedir, std::chrono::milliseconds(300));
    }
    /// A script in the packer's place: $3 is the archive.
    void otroEmpaquetador(const QByteArray& guion) const
    {
        QFile::remove(ruta_herramienta("rar"_u, base));
        QFile::setPermissions(archivo(NOMBRE_BASE + "/rar"_u, "#!/bin/sh\n" + guion + "\n"),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    [[nodiscard]] bool vive(const QString& pid) const { return QFile::exists("/proc/"_u + pid); }
    QString base, destino, dj, final_, propuesto;
    bool cancelar = false;
};

TEST_F(EmpaquetadoDJ, ConTestimoniosYSinEllos)
{
    EXPECT_TRUE(emitir());
    EXPECT_EQ(propuesto, "SRTN"_u + dj + ".rar"_u);
    EXPECT_EQ(leer(extraer(final_) + "/SRTN"_u + dj + ".txt"_u), leer(carpeta_dj(dj) + "/SRTN"_u + dj + ".txt"_u));
    EXPECT_EQ(QString::fromUtf8(leer(base + "/comprimir.bat"_u)).count(u'\n'), 3);

    escritura(1, archivo("d'angelo ñ $1.PDF"_u, "uno"));
    escritura(2, archivo("dos.doc"_u, "dos"));
    nueva_escritura(dj, 3, 3, 3, 1);
    cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SEDD_FNAME_TESTIMONIO='' where SEDD_ID=3"_u);
    archivo(NOMBRE_BASE + "/data/%1/testimonios/viejo.pdf"_u.arg(dj), "viejo");
    EXPECT_TRUE(emitir());
    const QString sale = extraer(final_);
    EXPECT_EQ(QDir(sale).entryList(QDir::Files),
              (QStringList{dj + "-0001.pdf"_u, dj + "-0002.doc"_u, "SRTN"_u + dj + ".txt"_u}));
    EXPECT_EQ(leer(sale + u'/' + dj + "-0001.pdf"_u), "uno");
    EXPECT_EQ(QDir(carpeta_dj(dj) + "/testimonios"_u).entryList(QDir::Files).size(), 2);  // nothing of before remains
    EXPECT_TRUE(oyente.textos.isEmpty());
}

TEST_F(EmpaquetadoDJ, LeerDJDesdeArchivoCarpetaYRar)
{
    ASSERT_TRUE(emitir());
    const QString codigo = dato("select SEDJ_MD5 from SEL_TB_RTN_CABDJ"_u);
    for (const QString& entrada : {final_, carpeta_dj(dj), carpeta_dj(dj) + "/SRTN"_u + dj + ".txt"_u}) {
        QString salida;
        EXPECT_EQ(correr(QStringLiteral(RTN_LEER_DJ), {entrada, "--codigo"_u, codigo}, &salida), 0)
            << salida.toStdString();
        EXPECT_TRUE(salida.contains("Código de integridad: "_u + codigo) && salida.contains("Todo está bien."_u));
    }
    QString salida;
    EXPECT_EQ(correr(QStringLiteral(RTN_LEER_DJ), {final_, "--codigo"_u, "00"_u}, &salida), 1);
    EXPECT_TRUE(salida.contains("el código del papel no es el del archivo"_u));
    EXPECT_EQ(correr(QStringLiteral(RTN_LEER_DJ), {final_, "--campos"_u}, &salida), 0);
    EXPECT_TRUE(salida.contains("SEDJ_TITULAR_NOMBRE"_u));
    EXPECT_EQ(correr(QStringLiteral(RTN_LEER_DJ), {final_, "--json"_u}, &salida), 0);
    for (const char* dice : {"\"SEDJ_TITULAR_NOMBRE\": \"PÉREZ", "\"cuit\": \"20123456786\"", "\"estado\": \"0\"",
                             "\"secuencia\": \"0", "\"totalRetenido\": 0", "\"agente\": \""})
        EXPECT_TRUE(salida.contains(QString::fromUtf8(dice))) << dice;
    for (const QString& mala : {carpeta.path(), "/no/existe"_u, QStringLiteral(RTN_LEER_DJ), base + "/rar"_u})
        EXPECT_NE(correr(QStringLiteral(RTN_LEER_DJ), {mala}), 0);
}

TEST_F(EmpaquetadoDJ, Trescientos)
{
    for (int i = 1; i <= 300; ++i)
        escritura(i, archivo("t%1.pdf"_u.arg(i), QByteArray(i * 7, char('a' + i % 26))));
    ASSERT_TRUE(emitir());
    const QString sale = extraer(final_);
    EXPECT_EQ(QDir(sale).entryList(QDir::Files).size(), 301);
    EXPECT_GT(oyente.avances.filter(QRegularExpression("^Empaquetados \\d+ de 301 archivos\n"_u)).size(), 1);
    for (const int i : {1, 26, 150, 300})
        EXPECT_EQ(leer(sale + "/%1-%2.pdf"_u.arg(dj).arg(i, 4, 10, QLatin1Char('0'))),
                  QByteArray(i * 7, char('a' + i % 26)));
}

TEST_F(EmpaquetadoDJ, LoQueNoSePuede)
{
    const QString cancelada = "Error: Se canceló la emisión de la declaracion jurada"_u;
    escritura(7, "/no/d'existe.pdf"_u);
    EXPECT_FALSE(emitir());
    EXPECT_EQ(
        oyente.ultimo(),
        "Error en la escritura Nº 7,  no existe el archivo del testimonio \n/no/d'existe.pdf\n\nComplete la declaracion jurada e intente mas tarde."_u);
    EXPECT_EQ(oyente.titulos.last(), "Emitir DJ "_u + dj);
    EXPECT_FALSE(QFile::exists(base + "/dj.rar"_u));
    EXPECT_TRUE(QFile::exists(base + "/comprimir.bat"_u));
    EXPECT_EQ(QFileInfo(base + "/comprimir.bat"_u).size(), 0);  // made, never filled
    cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SEDD_FNAME_TESTIMONIO=null"_u);
    const QString codigo = dato("select SEDJ_MD5 from SEL_TB_RTN_CABDJ"_u);
    cancelar = true;
    EXPECT_FALSE(emitir());
    EXPECT_EQ(oyente.textos, QStringList(cancelada));
    EXPECT_TRUE(QFile::exists(carpeta_dj(dj) + "/SRTN"_u + dj + ".txt"_u));
    EXPECT_EQ(dato("select SEDJ_MD5 from SEL_TB_RTN_CABDJ"_u), codigo);
    cancelar = false;
    EXPECT_EQ(oyente.detalles, QStringList(QString()));
    QFile::remove(ruta_herramienta("rar"_u, base));
    EXPECT_FALSE(emitir());  // without the packer there is no archive
    EXPECT_EQ(oyente.textos, QStringList(cancelada));
    EXPECT_EQ(oyente.detalles.last(),
              "No se puede ejecutar "_u + QDir::toNativeSeparators(ruta_herramienta("rar"_u, base)));
    EXPECT_FALSE(QFile::exists(final_));
}

TEST_F(EmpaquetadoDJ, UnEmpaquetadorQueNoEsElNuestro)
{
    const QString cancelada = "Error: Se canceló la emisión de la declaracion jurada"_u;
    escritura(1, archivo("uno.pdf"_u, "uno"));
    otroEmpaquetador("printf '  5%%\\b\\b'; cat \"$4\" >> \"$3\"");  // an archive that is not read here
    EXPECT_TRUE(emitir());
    EXPECT_TRUE(leer(final_).endsWith("uno"));
    QFile::remove(final_);
    // One that hangs, with a process of its own: the user waits, and waits again, or has it ended, or cancels.
    const QString marca = carpeta.path() + "/pid"_u;
    const QByteArray cuelga = "(trap '' TERM; echo $$ > '" + marca.toUtf8() + "'; sleep 60)";
    otroEmpaquetador(cuelga);
    EXPECT_FALSE(emitir());
    ASSERT_EQ(oyente.textos.size(), 2);
    EXPECT_TRUE(oyente.textos[0].startsWith("El empaquetador no avanza desde hace 0 segundos."_u));
    EXPECT_EQ(oyente.textos[1], cancelada);
    EXPECT_FALSE(vive(QString::fromUtf8(leer(marca)).trimmed()));
    oyente.hasta = "Empaquetando"_u;
    EXPECT_FALSE(emitir());
    EXPECT_EQ(oyente.textos, QStringList(cancelada));
    EXPECT_FALSE(vive(QString::fromUtf8(leer(marca)).trimmed()));
    oyente.hasta.clear();
    oyente.respuesta = false;
    otroEmpaquetador("sleep 1; cat \"$4\" >> \"$3\"");
    EXPECT_TRUE(emitir());
    EXPECT_GE(oyente.textos.size(), 2);
    oyente.hasta = "Copiando"_u;
    EXPECT_FALSE(emitir());
    EXPECT_EQ(oyente.textos, QStringList(cancelada));
    EXPECT_FALSE(QFile::exists(base + "/dj.rar"_u));
}

// Whatever the umask and what stood there; the folder that the user chose is his.
TEST_F(EmpaquetadoDJ, SoloParaElUsuario)
{
    escritura(1, archivo("uno.pdf"_u, "uno"));
    const QString vieja = NOMBRE_BASE + u'/';
    for (const mode_t mascara : {0, 0077, 0177})
        for (const bool cancela : {false, true}) {
            SCOPED_TRACE(testing::Message() << "umask " << std::oct << mascara << (cancela ? " cancela" : ""));
            cancelar = cancela;
            const QStringList anchos{archivo(vieja + "comprimir.bat"_u, "viejo"),
                                     archivo(vieja + "data/%1/SRTN%1.txt"_u.arg(dj), "viejo"),
                                     archivo("destino/SRTN%1.rar"_u.arg(dj), "viejo")};
            for (const QString& a : anchos)
                chmod(QFile::encodeName(a).constData(), 0666);
            for (const QString& c : {base + "/data"_u, carpeta_dj(dj), carpeta_testimonios(dj), destino})
                chmod(QFile::encodeName(c).constData(), 0755);
            {
                const Mascara otra(mascara);
                EXPECT_EQ(emitir(), !cancela);
            }
            EXPECT_EQ(modo_de(destino), 0755U);
            EXPECT_EQ(modo_de(final_), cancela ? 0666U : 0600U);
            EXPECT_EQ(modo_de(base + "/comprimir.bat"_u), 0600U);
            EXPECT_FALSE(QFile::exists(base + "/dj.rar"_u));  // nothing of the work stays behind
            int archivos = 0;
            for (QDirIterator it(base + "/data"_u, QDir::AllEntries | QDir::NoDotAndDotDot,
                                 QDirIterator::Subdirectories);
                 it.hasNext();) {
                const QString hay = it.next();
                EXPECT_EQ(modo_de(hay), it.fileInfo().isDir() ? 0700U : 0600U) << hay.toStdString();
                archivos += it.fileInfo().isFile();
            }
            EXPECT_GE(archivos, 2);
            EXPECT_EQ(modo_de(base + "/data"_u), 0700U);
        }
    const Mascara ninguna(0);
    const QString propio = archivo("propio.rar"_u, {});
    ASSERT_TRUE(QFile::remove(propio));
    for (int vez = 0; vez < 2; ++vez) {
        EXPECT_EQ(rar({"a"_u, "-y"_u, propio, final_}), 0);
        EXPECT_EQ(modo_de(propio), 0600U);
        chmod(QFile::encodeName(propio).constData(), 0666);
    }
}

// The shell of Windows: names within the program's folder without it, a folder of the network with its own page of codes.
TEST(GuionLote, DeWindows)
{
    GuionLote propio("C:/Ñandú & Cía 50%"_u, Interprete::cmd);
    propio.empaquetar("C:/Ñandú & Cía 50%/data/1/SRTN1.txt"_u);
    propio.empaquetar("D:/d'a^b 5%.pdf"_u);
    EXPECT_EQ(propio.texto(), "\"del .\\dj.rar\"\r\n"
                              "\".\\rar.exe\" a -y \".\\dj.rar\" \".\\data\\1\\SRTN1.txt\"\r\n"
                              "\".\\rar.exe\" a -y \".\\dj.rar\" \"D:\\d'a^b 5%%.pdf\"\r\n\r\n");
    EXPECT_EQ(propio.orden("C:/Ñandú & Cía 50%/comprimir.bat"_u), "/d /v:off /c .\\comprimir.bat"_u);
    GuionLote red("//srv/ñ"_u, Interprete::cmd);
    red.empaquetar("//srv/ñ/data/1-0001.pdf"_u);
    EXPECT_EQ(QString::fromUtf8(red.texto()),
              "@chcp 65001 >nul\r\n\"del \\\\srv\\ñ\\dj.rar\"\r\n"
              "\"\\\\srv\\ñ\\rar.exe\" a -y \"\\\\srv\\ñ\\dj.rar\" \"\\\\srv\\ñ\\data\\1-0001.pdf\"\r\n\r\n"_u);
    EXPECT_EQ(red.orden("//srv/ñ/comprimir.bat"_u), "/d /v:off /s /c \"\"\\\\srv\\ñ\\comprimir.bat\"\""_u);
}

}  // namespace
