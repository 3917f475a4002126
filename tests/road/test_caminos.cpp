// SPDX-License-Identifier: GPL-3.0-or-later
// A store whose program is killed in the middle of its work.

#include "apoyo/apoyo.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

namespace {

using Caminos = ConAlmacen;

// What the store must hold of a step that was confirmed.
QString que_falta(const QStringList& paso)
{
    const auto cuenta = [](const QString& sql) { return int(Recordset(cnRtn, sql).entero(0)); };
    if (paso[0] == u"dj" || paso[0] == u"copia")
        return cuenta("select count(*) from SEL_TB_RTN_CABDJ where SEDJ_NRO='%1'"_u.arg(paso[1])) == 1
                   ? QString()
                   : paso.join(u' ');
    if (paso[0] == u"renglon" && paso[2] != u"2")
        return cuenta(
                   "select count(*) from SEL_TB_RTN_DETDJ where SEDJ_NRO='%1' and SEDD_ID=%2"_u.arg(paso[1], paso[2]))
                       == 1
                   ? QString()
                   : paso.join(u' ');
    if (paso[0] == u"menos")
        return cuenta("select count(*) from SEL_TB_RTN_DETDJ where SEDJ_NRO='%1' and SEDD_ID=2"_u.arg(paso[1])) == 0
                   ? QString()
                   : paso.join(u' ');
    return {};
}

TEST_F(Caminos, MatadoEnDoscientosMomentosConservaLoConfirmado)
{
    cnRtn.cerrar();
    QRandomGenerator azar(20261122);
    int pasos = 0;
    for (int vez = 0; vez < 200; ++vez) {
        QProcess p;
        p.start(QStringLiteral(RTN_MARTILLO), {ruta()});
        ASSERT_TRUE(p.waitForReadyRead(20000)) << p.readAllStandardError().toStdString();
        QTest::qSleep(azar.bounded(12));
        p.kill();
        ASSERT_TRUE(p.waitForFinished());
        QStringList lineas = QString::fromUtf8(p.readAllStandardOutput()).split(u'\n');
        lineas.removeLast();  // what stands behind the last line end was not told whole
        cnRtn.abrir(ruta(), clave_almacen());
        EXPECT_EQ(dato("pragma integrity_check"_u), "ok"_u);
        EXPECT_TRUE(Recordset(cnRtn, "pragma foreign_key_check"_u).eof());
        for (const QString& linea : std::as_const(lineas))
            EXPECT_EQ(que_falta(linea.split(u' ')), QString());
        pasos += int(lineas.size());
        cnRtn.cerrar();
    }
    EXPECT_GT(pasos, 200);
}

TEST_F(Caminos, UnErrorQueNadieAtrapaSeMuestraYCierraEnOrden)
{
    cnRtn.cerrar();
    QProcess p;
    p.start(QStringLiteral(RTN_FATAL), {ruta()});
    ASSERT_TRUE(p.waitForFinished(20000));
    EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(p.exitCode(), 1);
    EXPECT_TRUE(QString::fromUtf8(p.readAllStandardError()).contains("no such table: NADA"_u));
    cnRtn.abrir(ruta(), clave_almacen());
    EXPECT_EQ(filas("select GCON_NOMBRE from GLB_TB_CONCEPTOS where GCON_ID>=50"_u), "CONFIRMADO"_u);
    EXPECT_FALSE(QFile::exists(ruta() + "-journal"_u));
}

}  // namespace
