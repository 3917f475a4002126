// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/apoyo.h"
#include "declarations/cabecera_dj.h"
#include "declarations/copiar_dj.h"
#include "declarations/lista_dj.h"
#include "declarations/numero_dj.h"
#include "declarations/renglones.h"
#include "tree/modABM_dj.h"
#include "tree/totales.h"

#include <QDir>
#include <QFile>

namespace {

using Declaraciones = ConAlmacen;

// A DJ with a row of every kind.
QString dj_completa(const QString& dj)
{
    cnRtn.ejecutar(
        "update SEL_TB_RTN_CABDJ set SEDJ_MD5='ABC', SEDJ_TOTAL_RETENIDO=10.5, SEDJ_OBSERVACIONES='obs' where SEDJ_NRO='%1'"_u
            .arg(dj));
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_CUIT, SPIN_CUIT_EN_TRAMITE, SPIN_RSOCIAL) values (4, '%1', 3, '80', 20123456786, 0, 'P')"_u
            .arg(dj));
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_INMUEBLES (SEDJ_NRO, SEDD_ID, SEII_ID, SEDO_ID, SEII_PARTIDA) values ('%1', 3, 2, 1, '77')"_u
            .arg(dj));
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID, SINS_MONTO_FINAL) values ('%1', 3, 1, 5707029, 10.5)"_u
            .arg(dj));
    cnRtn.ejecutar("insert into SEL_TB_RTN_INS_VC values ('%1', 3, 1, 5, 1.5, null, 'PES', 1, 1.5)"_u.arg(dj));
    cnRtn.ejecutar("insert into SEL_TB_RTN_INS_ROLES values ('%1', 3, 1, 4, 5707029001, 'r')"_u.arg(dj));
    return dj;
}

TEST(DeclaracionesReglas, NumeroPosicionYVencimiento)
{
    EXPECT_EQ(componer_numero("20123456786"_u, "2026"_u, 3, 2), "20123456786260302"_u);
    const NumeroDJ largo("20123456786260309"_u);
    EXPECT_EQ(largo.prefijo() + u'/' + largo.mes() + u'/' + largo.anio() + u'/' + largo.secuencia(),
              "201234567862603/03/26/09"_u);
    EXPECT_EQ(largo.siguiente(), "20123456786260310"_u);
    const NumeroDJ corto("0010120070301"_u);
    EXPECT_EQ(corto.mes() + u'/' + corto.anio(), "03/2007"_u);
    EXPECT_EQ(corto.siguiente(), "0010120070302"_u);
    EXPECT_EQ(NumeroDJ("123"_u).largoPrefijo(), 0);
    EXPECT_TRUE(posicion_admitida(2006, 6));
    EXPECT_FALSE(posicion_admitida(2006, 5));
    EXPECT_FALSE(posicion_admitida(0, 12));
    struct K
    {
        int anio, mes;
        const char* vence;
    };
    for (const K& k :
         {K{2007, 12, "2008-01-15"}, K{2026, 7, "2026-08-17"}, K{2026, 10, "2026-11-16"}, K{2026, 9, "2026-10-15"}})
        EXPECT_EQ(vencimiento_dj(k.anio, k.mes).toString(Qt::ISODate), QLatin1StringView(k.vence));
    EXPECT_EQ(componer_resolucion(12, 7), "0012/07"_u);
}

TEST(DeclaracionesReglas, CabeceraEnSuOrden)
{
    ControlesCabecera c;
    const auto falla = [&] {
        const auto f = validar_cabecera(c);
        return f ? f->control : QString();
    };
    EXPECT_EQ(falla(), "txtRTN_nro"_u);
    c.agenteNro = "0"_u;
    EXPECT_EQ(falla(), "txtRTN_nro"_u);
    c.agenteNro = "5"_u;
    EXPECT_EQ(falla(), "cboRTN"_u);
    c.agente = 5;
    c.anio = "  "_u;
    EXPECT_EQ(falla(), "txtAnio"_u);
    c.anio = "2026"_u;
    EXPECT_EQ(falla(), "cboMes"_u);
    c.mes = 1;
    EXPECT_EQ(falla(), "cboRectificativa"_u);
    c.secuencia = 0;
    EXPECT_EQ(falla(), QString());
}

TEST_F(Declaraciones, ListaConFiltrosYBorrado)
{
    const QString dj = nueva_dj();
    nueva_dj(1);
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_CABDJ (SEDJ_NRO, SRTN_NRO, SEDJ_ANIO, SEDJ_MES, SEDJ_SECUENCIA, SEDJ_ESTADO) values ('X', 9, 2025, 1, 0, 1)"_u);
    const auto numeros = [](const FiltroDJ& f) {
        QStringList n;
        leer_lista_dj(f, [&](std::span<const std::string_view> fila) {
            n << QString::fromStdString(std::string(fila[0]) + fila[6][0]);
        });
        return n.join(u',');
    };
    EXPECT_EQ(numeros({}), "XS,20123456786261001N,20123456786261000N"_u);
    EXPECT_EQ(numeros({101, 2026, 10}), "20123456786261001N,20123456786261000N"_u);
    EXPECT_EQ(numeros({0, 2025, 0}), "XS"_u);
    EXPECT_EQ(numeros({9, 2026, 0}), QString());

    const QString testimonios = carpeta.path() + "/data/"_u + dj + "/testimonios"_u;
    QDir().mkpath(testimonios);
    QFile f(testimonios + "/1.pdf"_u);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    f.setPermissions(QFile::ReadOwner);
    cnRtn.ejecutar("insert into SEL_TB_RTN_INS_ROLES values ('%1', 1, 1, 1, 5707029001, null)"_u.arg(dj));
    borrar_dj(dj, oyente);
    EXPECT_FALSE(f.exists());
    EXPECT_TRUE(QDir(testimonios).exists());
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_INS_ROLES"_u), "0"_u);
    cnRtn.ejecutar("create trigger no before delete on SEL_TB_RTN_CABDJ begin select raise(abort, 'bloqueada'); end"_u);
    borrar_dj("20123456786261001"_u, oyente);
    EXPECT_EQ(oyente.ultimo(), "bloqueadaNo se pudo borrar la DJ seleccionada"_u);
    EXPECT_EQ(oyente.iconos.last(), Icono::exclamacion);
    EXPECT_EQ(cnRtn.transacciones(), 0);
}

TEST_F(Declaraciones, RectificarSigueDesdeElUltimoEslabon)
{
    const QString dj = nueva_dj();
    EXPECT_EQ(dj_a_rectificar(dj, oyente), dj);
    EXPECT_TRUE(oyente.textos.isEmpty());
    nueva_dj(1);
    oyente.respuesta = false;
    EXPECT_EQ(dj_a_rectificar(dj, oyente), QString());
    EXPECT_EQ(
        oyente.ultimo(),
        "La DJ  Original para la posicion 10/26 ya fue rectificada\nDesea emitir una nueva rectificativa de la DJ Rectificativa 01 ?"_u);
    nueva_dj(2);
    oyente.respuesta = true;
    EXPECT_EQ(dj_a_rectificar("20123456786261001"_u, oyente), "20123456786261002"_u);
    EXPECT_TRUE(oyente.ultimo().startsWith("La DJ  Rectificativa 01 para"_u));
    EXPECT_THROW((void)dj_a_rectificar("123"_u, oyente), ErrorAlmacen);
}

TEST_F(Declaraciones, CopiaUnaDJConSusNumeros)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 3, 7, 8, 9);
    dj_completa(dj);
    const QString nueva = copiar_dj(dj, oyente);
    EXPECT_EQ(nueva, "20123456786261001"_u);
    EXPECT_EQ(
        dato(
            "select SEDJ_SECUENCIA || '|' || SEDJ_TOTAL_RETENIDO || '|' || SEDJ_OBSERVACIONES || '|' || coalesce(SEDJ_MD5,'-') from SEL_TB_RTN_CABDJ where SEDJ_NRO='%1'"_u
                .arg(nueva)),
        "1|10.5|obs|-"_u);
    for (const char* t : {"DETDJ", "INS_PARTES", "INS_OPERACIONES", "INS_VC", "INS_ROLES"}) {
        const QString de = filas("select * from SEL_TB_RTN_%1 where SEDJ_NRO='%2'"_u.arg(QLatin1StringView(t), dj));
        EXPECT_FALSE(de.isEmpty());
        EXPECT_EQ(filas("select * from SEL_TB_RTN_%1 where SEDJ_NRO='%2'"_u.arg(QLatin1StringView(t), nueva))
                      .replace(nueva, dj),
                  de)
            << t;
    }
    // The link of the property to its operation is no parameter of the insert, and is lost.
    EXPECT_EQ(dato("select SEDO_ID from SEL_TB_RTN_INS_INMUEBLES where SEDJ_NRO='%1'"_u.arg(nueva)), "null"_u);
    EXPECT_EQ(copiar_dj("nada"_u, oyente), QString());
}

TEST_F(Declaraciones, UnaCopiaQueFallaDejaLoCopiado)
{
    const QString dj = nueva_dj();
    nueva_escritura(dj, 3, 7, 8, 9);
    dj_completa(dj);
    cnRtn.ejecutar(
        "create trigger no before insert on SEL_TB_RTN_INS_OPERACIONES begin select raise(abort, 'no entra'); end"_u);
    EXPECT_EQ(copiar_dj(dj, oyente), QString());
    EXPECT_EQ(oyente.ultimo(), "no entra"_u);
    EXPECT_EQ(oyente.titulos.last(), "Nueva operación"_u);
    EXPECT_EQ(cnRtn.transacciones(), 0);
    cnRtn.cerrar();
    cnRtn.abrir(ruta(), clave_almacen());
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_INS_PARTES where SEDJ_NRO like '%01'"_u), "1"_u);
}

TEST_F(Declaraciones, AltasConSuProximoNumero)
{
    const QString dj = nueva_dj();
    Escritura e;
    e.dj = dj;
    e.estado = "P"_u;
    for (const int esperado : {1, 2}) {
        ASSERT_TRUE(alta_detalle_dj(e, true, oyente));
        EXPECT_EQ(e.id, esperado);
    }
    cnRtn.ejecutar("delete from SEL_TB_RTN_DETDJ where SEDD_ID=2"_u);
    ASSERT_TRUE(alta_detalle_dj(e, true, oyente));
    EXPECT_EQ(e.id, 2);
    EXPECT_FALSE(alta_detalle_dj(e, false, oyente));
    EXPECT_EQ(oyente.ultimo(),
              "Ya existe otra escritura con el mismo numero y/o el folio ya esta incluido en algun renglon de la DJ"_u);
    CabeceraDJ c;
    c.nro = dj;
    c.secuencia = 2;
    c.mes = 3;
    c.anio = 2026;
    EXPECT_FALSE(alta_cabecera_dj(c, oyente));
    EXPECT_EQ(oyente.ultimo(), "Ya existe la  Rectificativa 2 para la posicion 03/2026"_u);
    EXPECT_EQ(oyente.titulos.last(), "Nueva DJ"_u);
    c.nro = "1"_u;
    c.titular = QString(51, u'A');
    EXPECT_FALSE(alta_cabecera_dj(c, oyente));
    EXPECT_EQ(oyente.ultimo(), "El valor de SEDJ_TITULAR_NOMBRE excede los 50 caracteres"_u);
    Parte p;
    p.dj = dj;
    p.renglon = 1;
    ASSERT_TRUE(alta_parte(p, true, oyente));
    EXPECT_EQ(filas("select SPIN_ID, SPIN_NRODOC, SPIN_CUIT, SPIN_PORCEXENTO, GTSO_ID from SEL_TB_RTN_INS_PARTES"_u),
              "1|null|null|null|null"_u);
}

TEST_F(Declaraciones, LosTotalesQueDifierenSeDicenConLasDosCifras)
{
    const QString dj = nueva_dj();
    for (const int n : {1, 2, 3}) {
        nueva_escritura(dj, n, n + 10, n, 1);
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID, SINS_MONTO_FINAL) values ('%1', %2, 1, 5707029, 1000.10)"_u
                .arg(dj)
                .arg(n));
    }
    const auto guardar = [&](const char* totalDJ, const char* segunda, const char* tercera) {
        cnRtn.ejecutar("update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=%1"_u.arg(QLatin1StringView(totalDJ)));
        cnRtn.ejecutar(
            "update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO=case SEDD_ID when 1 then 1000.10 when 2 then %1 else %2 end"_u
                .arg(QLatin1StringView(segunda), QLatin1StringView(tercera)));
        return diferencia_de_totales(dj);
    };
    EXPECT_EQ(guardar("3000.3", "1000.1", "1000.1"), QString());
    EXPECT_EQ(guardar("3000.30000001", "1000.1", "1000.1"), QString());
    EXPECT_EQ(guardar("900", "1000.1", "1000.1"),
              "Totales guardados que difieren: total retenido: 900,00 (operaciones: 3.000,30)"_u);
    EXPECT_EQ(guardar("3000.3", "1000.09", "1000.1"),
              "Totales guardados que difieren: escritura 12: 1.000,09 (operaciones: 1.000,10)"_u);
    EXPECT_EQ(
        guardar("0", "null", "7"),
        "Totales guardados que difieren: total retenido: 0,00 (operaciones: 3.000,30), escritura 12: 0,00 (operaciones: 1.000,10), y otra escritura"_u);
}

TEST_F(Declaraciones, RenglonesYLoQueLesFalta)
{
    const QString dj = nueva_dj();
    struct K
    {
        int id;
        const char* estado;
        const char* alcance;
        const char* extra;
        const char* texto;
        bool falta;
    };
    const QList<K> casos{
        {1, "P", "S", "", "(falta completar: operacion)", true},
        {2, "N", "S", "", "Anulado/NO PASO", false},
        {3, "E", "N", "", "Anulado/ERROSE", false},
        {4, "P", "N", "SNAD_ID=1", "No alcanzado", false},
        {5, "P", "N", "SNAD_ID=3", "(falta completar: testimonio)", true},
        {6, "P", "N", "SNAD_ID=3, SEDD_FNAME_TESTIMONIO='/x.pdf'", "No alcanzado", false},
    };
    for (const K& k : casos) {
        nueva_escritura(dj, k.id, k.id, k.id, 1, k.estado, k.alcance);
        if (*k.extra)
            cnRtn.ejecutar(
                "update SEL_TB_RTN_DETDJ set %1 where SEDD_ID=%2"_u.arg(QString::fromUtf8(k.extra)).arg(k.id));
    }
    nueva_escritura(dj, 7, 7, 7, 1);
    cnRtn.ejecutar("update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO=1234.5 where SEDD_ID=7"_u);
    for (const int op : {1, 2})
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID) values ('%1', 7, %2, %3)"_u
                .arg(dj)
                .arg(op)
                .arg(op == 1 ? 5707001 : 5707029));
    struct Leida
    {
        QStringList celdas;
        bool incompleto;
    };
    QList<Leida> lista;
    leer_renglones(dj, [&](const FilaRenglon& f) {
        QStringList celdas;
        for (const std::string_view c : f.celdas)
            celdas << QString::fromUtf8(c.data(), qsizetype(c.size()));
        lista << Leida{celdas, f.incompleto};
    });
    ASSERT_EQ(lista.size(), 8);  // a deed with two operations stands twice
    for (int i = 0; i < casos.size(); ++i) {
        EXPECT_EQ(lista[i].celdas[4], QString::fromUtf8(casos[i].texto));
        EXPECT_EQ(lista[i].incompleto, casos[i].falta) << i;
    }
    // The first operation says what the deed is, and that it needs its testimonio.
    EXPECT_EQ(lista[6].celdas[4], "(falta completar: testimonio)"_u);
    EXPECT_EQ(lista[6].celdas[6], "1234,50"_u);
    EXPECT_EQ(lista[1].celdas[6], "0.00"_u);

    cnRtn.ejecutar("update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=2000"_u);
    EXPECT_TRUE(borrar_renglon(dj, 7, 1234.5, oyente));
    EXPECT_DOUBLE_EQ(total_retenido(dj), 765.5);
    EXPECT_EQ(cantidad_renglones(dj), 6);
    borrar_escrituras(dj);
    EXPECT_EQ(cantidad_renglones(dj), 0);
    EXPECT_DOUBLE_EQ(total_retenido(dj), 765.5);
}

}  // namespace
