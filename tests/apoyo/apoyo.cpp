// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/apoyo.h"

#include "constructor.h"
#include "core/arranque.h"

#include <QFileInfo>
#include <QFile>

QString almacen_base()
{
    static const QTemporaryDir dir;
    static const QString ruta = [] {
        const QString r = dir.path() + "/base.db"_u;
        construir_almacen({QStringLiteral(RTN_TEXTOS_ALMACEN), {"datos"_u}, r, clave_almacen()});
        return r;
    }();
    return ruta;
}

void ConAlmacen::SetUp()
{
    ASSERT_TRUE(QFile::copy(almacen_base(), ruta()));
    fijar_carpeta_programa(carpeta.path());
    RutaBaseDatos = ruta();
    cnRtn.abrir(ruta(), clave_almacen());
    // A test that looks at the rows does not need them to outlive a power cut.
    cnRtn.ejecutar("pragma synchronous = off"_u);
    cargar_parametros(oyente);
    cargar_ley_vigente(oyente);
}

void ConAlmacen::TearDown()
{
    cnRtn.cerrar();
}

QString ConAlmacen::dato(const QString& sql)
{
    const Recordset rs(cnRtn, sql);
    return rs.eof() ? "nada"_u : rs.nulo(0) ? "null"_u : rs.texto(0);
}

QString ConAlmacen::filas(const QString& sql)
{
    QStringList lineas;
    for (Recordset rs(cnRtn, sql); !rs.eof(); rs.siguiente()) {
        QStringList celdas;
        for (int i = 0; i < rs.columnas(); ++i)
            celdas << (rs.nulo(i) ? "null"_u : rs.texto(i));
        lineas << celdas.join(u'|');
    }
    return lineas.join(u'\n');
}

QString ConAlmacen::nueva_dj(int secuencia)
{
    const QString nro = "201234567862610%1"_u.arg(secuencia, 2, 10, QLatin1Char('0'));
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_CABDJ (SEDJ_NRO, SEDJ_ANIO, SEDJ_MES, SEDJ_SECUENCIA, SEDJ_ESTADO, SEDJ_TOTAL_RETENIDO, "
        "SEDJ_FVENCIMIENTO, SRTN_NRO, SEDJ_TITULAR_NOMBRE, SEDJ_TITULAR_CUIT, GLOC_ID, SEDJ_ACRED_MONTO, SEDJ_ACRED_RESOLUCION) "
        "values ('%1', 2026, 10, %2, 0, 0, '2026-11-16', 101, 'PÉREZ', 20123456786, 1, 0, '0000/00')"_u.arg(nro)
            .arg(secuencia));
    return nro;
}

void ConAlmacen::nueva_escritura(const QString& dj, int id, int nro, int folio, int dia, const char* estado,
                                 const char* alcanzado)
{
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_DETDJ (SEDJ_NRO, SEDD_ID, SEDD_DIA, SEDD_ESCRITURA_NRO, SEDD_FOLIO, SEDD_TOTAL_IMPUESTO, SEDD_ESTADO, "
        "SEDD_ALCANZADO) values ('%1', %2, %3, %4, %5, 0, '%6', '%7')"_u.arg(dj)
            .arg(id)
            .arg(dia)
            .arg(nro)
            .arg(folio)
            .arg(QLatin1StringView(estado), QLatin1StringView(alcanzado)));
}

bool solo_del_dueno(const QString& ruta)
{
#ifdef Q_OS_WIN
    return QFileInfo::exists(ruta);
#else
    return (QFile::permissions(ruta) & 0x77) == 0;
#endif
}
