// SPDX-License-Identifier: GPL-3.0-or-later
// The command `respaldo`, and copies and restorations that are killed at any moment. RTN_MATANZAS sets how many:
//   RTN_MATANZAS=100 build/dev/programa/pruebas --gtest_filter='Restaurar*'

#include "apoyo/apoyo.h"
#include "core/arranque.h"
#include "core/candado.h"
#include "core/respaldos.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

namespace {

constexpr int PLAZO_MS = 30000;

class Restaurar : public ConAlmacen
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        cnRtn.ejecutar("pragma synchronous = full"_u);
        QFile cfg(carpeta.path() + "/vedra_rtn.cfg"_u);
        ASSERT_TRUE(cfg.open(QIODevice::WriteOnly));
        cfg.write("vedra_rtn.db\n");
        ASSERT_TRUE(QFile::copy(QStringLiteral(RTN_RESPALDO), carpeta.path() + "/respaldo"_u));
        marcar("COPIA");
        ASSERT_TRUE(respaldar(cnRtn, "2026-01-05"_u).sana());
        copia_ = volcado(ruta());
        marcar("NUEVO");
        cnRtn.cerrar();
    }
    static void marcar(const char* que)
    {
        cnRtn.ejecutar("insert or replace into GLB_TB_CONCEPTOS values (50, '%1')"_u.arg(QLatin1StringView(que)));
    }
    // What a store holds, of what the tests change; empty for one that does not open or is not sound.
    static QByteArray volcado(const QString& archivo)
    {
        if (!revisar_archivo(archivo).sana())
            return {};
        Conexion cn;
        cn.abrir(archivo, clave_almacen());
        QByteArray todo;
        for (const char* tabla : {"GLB_TB_CONCEPTOS", "SEL_TB_RTN_CABDJ", "SEL_TB_RTN_DETDJ"})
            for (Recordset rs(cn, "select * from %1 order by 1, 2"_u.arg(QLatin1StringView(tabla))); !rs.eof();
                 rs.siguiente())
                for (int i = 0; i < rs.columnas(); ++i)
                    todo += rs.utf8(i).data() ? QByteArray(rs.utf8(i).data()) + '|' : QByteArray("-|");
        return todo;
    }
    int correr(const QStringList& argumentos, const QByteArray& respuesta = {})
    {
        QProcess p;
        p.start(carpeta.path() + "/respaldo"_u, argumentos);
        p.write(respuesta);
        p.closeWriteChannel();
        EXPECT_TRUE(p.waitForFinished(PLAZO_MS));
        salida = QString::fromUtf8(p.readAllStandardOutput());
        quejas = QString::fromUtf8(p.readAllStandardError());
        return p.exitCode();
    }
    [[nodiscard]] QStringList apartados() const
    {
        return QDir(carpeta.path()).entryList({"vedra_rtn-reemplazado-*.db"_u}, QDir::Files);
    }
    QString salida, quejas;
    QByteArray copia_;
};

TEST_F(Restaurar, LaOrdenDiceYTerminaComoDebe)
{
    for (const QStringList& mal : QList<QStringList>{{},
                                                     {"nada"_u},
                                                     {"restaurar"_u},
                                                     {"lista"_u, "2026-01-05"_u},
                                                     {"verificar"_u, "05/01/2026"_u},
                                                     {"verificar"_u, "2026-02-30"_u},
                                                     {"lista"_u, "--otra"_u},
                                                     {"verificar"_u, "--si"_u}}) {
        EXPECT_EQ(correr(mal), 2) << mal.join(u' ').toStdString();
        EXPECT_TRUE(quejas.contains("Uso: respaldo lista"_u));
    }
    EXPECT_EQ(correr({"--help"_u}), 0);
    EXPECT_TRUE(salida.startsWith("Uso: respaldo lista"_u));
    EXPECT_EQ(correr({"lista"_u, "--json"_u}), 0);
    const QJsonArray json = QJsonDocument::fromJson(salida.toUtf8()).array();
    ASSERT_EQ(json.size(), 1);
    const QString archivo = carpeta.path() + "/respaldos/vedra_rtn-2026-01-05.db"_u;
    EXPECT_EQ(json[0].toObject(), (QJsonObject{{"fecha"_u, "2026-01-05"_u},
                                               {"archivo"_u, archivo},
                                               {"bytes"_u, QFileInfo(archivo).size()},
                                               {"motivo"_u, "diario"_u},
                                               {"sano"_u, true}}));
    EXPECT_EQ(correr({"verificar"_u, "2026-01-06"_u}), 1);
    for (const QByteArray& no : {QByteArray(), QByteArray("\n"), QByteArray("n\n"), QByteArray("x\n")})
        EXPECT_EQ(correr({"restaurar"_u, "2026-01-05"_u}, no), 1);
    EXPECT_EQ(correr({"restaurar"_u, "2026-01-06"_u, "--si"_u}), 1);
    Candado candado;
    candado.tomar(ruta());
    EXPECT_EQ(correr({"restaurar"_u, "2026-01-05"_u, "--si"_u}), 1);
    EXPECT_TRUE(quejas.contains("La base de datos está abierta en la máquina"_u)) << quejas.toStdString();
    candado.soltar();
    const QByteArray antes = volcado(ruta());
    EXPECT_NE(antes, copia_);
    EXPECT_EQ(correr({"restaurar"_u, "2026-01-05"_u}, "s\n"), 0) << quejas.toStdString();
    EXPECT_EQ(volcado(ruta()), copia_);
    ASSERT_EQ(apartados().size(), 1);
    EXPECT_EQ(volcado(carpeta.filePath(apartados()[0])), antes);
    EXPECT_TRUE(solo_del_dueno(ruta()));
    // A copy that is not sound is refused, and the store stays.
    QFile f(archivo);
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    f.seek(f.size() / 2);
    f.write("daño");
    f.close();
    EXPECT_EQ(correr({"verificar"_u}), 1);
    EXPECT_TRUE(salida.contains("DAÑADO"_u));
    EXPECT_EQ(correr({"restaurar"_u, "2026-01-05"_u, "--si"_u}), 1);
    EXPECT_EQ(volcado(ruta()), copia_);
    EXPECT_EQ(apartados().size(), 1);
    // A damaged store is restored over too, and kept as it is.
    ASSERT_TRUE(QFile::remove(archivo) && QFile::copy(ruta(), archivo) && QFile::remove(ruta()));
    QFile roto(ruta());
    ASSERT_TRUE(roto.open(QIODevice::WriteOnly));
    roto.write(QByteArray(5000, 'x'));
    roto.close();
    EXPECT_EQ(correr({"restaurar"_u, "2026-01-05"_u, "--si"_u}), 0) << quejas.toStdString();
    EXPECT_EQ(volcado(ruta()), copia_);
    EXPECT_EQ(apartados().size(), 2);
}

// A store that a program left half written, with its journal, replaced by a restoration that is killed.
TEST_F(Restaurar, MatadoEnCualquierMomentoQuedaLaViejaOLaNueva)
{
    const int veces = qEnvironmentVariableIsSet("RTN_MATANZAS") ? qEnvironmentVariableIntValue("RTN_MATANZAS") : 20;
    QRandomGenerator azar(20260105);
    QElapsedTimer reloj;
    reloj.start();
    EXPECT_EQ(correr({"restaurar"_u, "2026-01-05"_u, "--si"_u}), 0);
    const auto duracion = int(reloj.elapsed());
    int viejas = 0, nuevas = 0;
    for (int i = 0; i < veces && !HasFailure(); ++i) {
        QProcess p;
        p.start(QStringLiteral(RTN_MARTILLO), {ruta()});
        ASSERT_TRUE(p.waitForReadyRead(PLAZO_MS));
        QTest::qSleep(azar.bounded(8));
        p.kill();
        ASSERT_TRUE(p.waitForFinished());
        const QTemporaryDir otra;
        ASSERT_TRUE(QFile::copy(ruta(), otra.filePath("x.db"_u)));
        QFile::copy(ruta() + "-journal"_u, otra.filePath("x.db-journal"_u));
        cnRtn.abrir(otra.filePath("x.db"_u), clave_almacen());
        cnRtn.cerrar();
        const QByteArray vieja = volcado(otra.filePath("x.db"_u));
        ASSERT_FALSE(vieja.isEmpty());
        p.start(carpeta.path() + "/respaldo"_u, {"restaurar"_u, "2026-01-05"_u, "--si"_u});
        ASSERT_TRUE(p.waitForStarted());
        QTest::qSleep(azar.bounded(2 * duracion));
        p.kill();
        ASSERT_TRUE(p.waitForFinished());
        cnRtn.abrir(ruta(), clave_almacen());
        cnRtn.cerrar();
        const QByteArray ahora = volcado(ruta());
        EXPECT_TRUE(ahora == vieja || ahora == copia_) << i;
        nuevas += ahora == copia_;
        viejas += ahora == vieja;
        if (ahora == copia_) {
            EXPECT_EQ(volcado(carpeta.filePath(apartados().constLast())), vieja) << i;
        }
        for (const Respaldo& r : listar_respaldos(ruta()))
            EXPECT_TRUE(revisar_archivo(r.archivo).sana());
    }
    EXPECT_GT(nuevas, 0);
    EXPECT_GT(viejas, 0);
}

TEST_F(Restaurar, UnRespaldoMatadoEsSanoONoEsta)
{
    const int veces = qEnvironmentVariableIsSet("RTN_MATANZAS") ? qEnvironmentVariableIntValue("RTN_MATANZAS") : 20;
    QRandomGenerator azar(20260106);
    const QByteArray antes = volcado(ruta());
    int hechos = 0;
    int duracion = 0;
    for (int i = 0; i < veces && !HasFailure(); ++i) {
        QProcess p;
        QElapsedTimer reloj;
        reloj.start();
        p.start(QStringLiteral(RTN_ARRANCA), {carpeta.path()});
        if (i == 0) {
            ASSERT_TRUE(p.waitForReadyRead(PLAZO_MS));
            duracion = int(reloj.elapsed());
        } else {
            ASSERT_TRUE(p.waitForStarted());
            QTest::qSleep(duracion / 3 + azar.bounded(duracion * 2 / 3));
        }
        p.kill();
        ASSERT_TRUE(p.waitForFinished());
        EXPECT_EQ(volcado(ruta()), antes);
        for (const Respaldo& r : listar_respaldos(ruta())) {
            EXPECT_TRUE(revisar_archivo(r.archivo).sana()) << r.archivo.toStdString();
            if (r.marca == u"2026-01-05")
                continue;
            ++hechos;
            EXPECT_EQ(volcado(r.archivo), antes);
            QFile::remove(r.archivo);
        }
        QFile::remove(carpeta.path() + "/respaldos/vedra_rtn-revision.txt"_u);
    }
    EXPECT_GT(hechos, 0);
}

}  // namespace
