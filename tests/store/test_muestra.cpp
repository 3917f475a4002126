// SPDX-License-Identifier: GPL-3.0-or-later
// The sample months, made again: what the program would compute and write stands in the rows.

#include "apoyo/apoyo.h"
#include "computation/inmuebles_operacion.h"
#include "computation/ley.h"
#include "computation/obligacion.h"
#include "computation/operacion.h"
#include "computation/roles_operacion.h"
#include "computation/subconcepto_operacion.h"
#include "computation/valores_contractuales.h"
#include "constructor.h"
#include "core/reloj.h"
#include "declarations/cabecera_dj.h"
#include "payment/comprobantes.h"

namespace {

class Muestra : public ConAlmacen
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        cnRtn.cerrar();
        const QString ruta_muestra = carpeta.filePath("muestra.db"_u);
        construir_almacen(
            {QStringLiteral(RTN_TEXTOS_ALMACEN), {"datos"_u, "muestra"_u}, ruta_muestra, clave_almacen()});
        cnRtn.abrir(ruta_muestra, clave_almacen());
        cnRtn.ejecutar("pragma synchronous = off"_u);
    }
    void TearDown() override
    {
        fijar_hoy({});
        ConAlmacen::TearDown();
    }
    // The rows of a table, one a line.
    static QStringList tabla(const char* nombre)
    {
        return filas("select * from SEL_TB_RTN_%1 order by 1, 2, 3"_u.arg(QLatin1StringView(nombre))).split(u'\n');
    }
    static void comparar(const char* nombre, const QStringList& antes)
    {
        const QStringList despues = tabla(nombre);
        ASSERT_EQ(despues.size(), antes.size());
        for (qsizetype i = 0; i < antes.size(); ++i)
            EXPECT_EQ(antes[i], despues[i]) << nombre;
    }
    static QList<ClaveOperacion> operaciones()
    {
        QList<ClaveOperacion> claves;
        for (Recordset rs(cnRtn, "select SEDJ_NRO, SEDD_ID, SEDO_ID from SEL_TB_RTN_INS_OPERACIONES"_u); !rs.eof();
             rs.siguiente())
            claves << ClaveOperacion{rs.texto(0), rs.texto(1), rs.texto(2)};
        return claves;
    }
    void rehacer(const ClaveOperacion& clave);
    void rehacer_valores(const ClaveOperacion& clave, const clsSubconcepto& s);
    std::optional<clsSubconcepto> subconcepto(const ClaveOperacion& clave, const Operacion& o, int& ley);
};

// The item of the law that the deed's date asks for.
std::optional<clsSubconcepto> Muestra::subconcepto(const ClaveOperacion& clave, const Operacion& o, int& ley)
{
    const QString posicion = dato(
        "select printf('%04d/%02d', SEDJ_ANIO, SEDJ_MES) from SEL_TB_RTN_CABDJ where SEDJ_NRO='%1'"_u.arg(clave.dj));
    const QString dia = dato("select SEDD_DIA from SEL_TB_RTN_DETDJ"_u + clave.deRenglon().donde());
    ley = DeterminarLey(dia, posicion, oyente).value_or(0);
    return buscar_subconcepto(ley, o.subconcepto % 1000, oyente).subconcepto;
}

void Muestra::rehacer_valores(const ClaveOperacion& clave, const clsSubconcepto& s)
{
    QStringList ids;
    for (Recordset rs(cnRtn, "select SVCI_ID from SEL_TB_RTN_INS_VC"_u + clave.donde()); !rs.eof(); rs.siguiente())
        ids << rs.texto(0);
    for (const QString& id : ids) {
        auto v = cargar_valor(clave, id);
        ASSERT_TRUE(v);
        Numero valor(2), iva(2), cambio(2), total(2);
        valor.setValue(v->valor.value_or(0));
        iva.setValue(v->porcIva.value_or(0));
        cambio.setValue(v->valorCambio.value_or(0));
        CalcularValorParcial(&s, v->moneda, valor, iva, cambio, total);
        v->valor = valor.Value();
        v->porcIva = iva.Value();
        v->valorCambio = cambio.Value();
        v->total = total.Value();
        modificar_valor(*v);
    }
}

// The valuation of the deed's only property, or of the one that is linked.
double valuacion(const ClaveOperacion& clave, const QString& vinculado)
{
    QList<QStringList> inmuebles;
    leer_valuaciones(clave.deRenglon(), [&](const QStringList& fila) { inmuebles << fila; });
    for (const QStringList& i : std::as_const(inmuebles))
        if (inmuebles.size() == 1 || i[0] == vinculado)
            return numero_de_texto(i[2]);
    return 0;
}

void Muestra::rehacer(const ClaveOperacion& clave)
{
    const auto o = cargar_operacion(clave);
    DatosOperacion d;
    const auto s = subconcepto(clave, *o, d.ley);
    ASSERT_TRUE(s) << o->subconcepto;
    ASSERT_EQ(s->IdSubconcepto(), o->subconcepto);
    rehacer_valores(clave, *s);

    EstadoOperacion e;
    e.subconcepto = d.subconcepto = &*s;
    const QList<ParteRol> partes = leer_partes_con_roles(clave);
    for (const ParteRol& p : partes)
        e.partes << EstadoOperacion::Parte{p.rol, p.porcExento};
    QString obligatorios;
    EXPECT_TRUE(roles_obligatorios(&*s, partes, obligatorios)) << obligatorios.toStdString();
    e.obligAccesoria = d.obligAccesoria = !o->obligFop.isEmpty();
    e.obligAccesoriaFijo = d.obligFijo = o->obligFop == u"F";
    e.obligAccesoriaPorc = o->obligFop == u"P";
    e.obligAccesoriaDato = d.obligModo = o->obligModo;
    d.obligModoTexto = o->obligPoliza.isEmpty() ? QString() : SEGURO_DE_CAUCION;
    d.obligPoliza = o->obligPoliza;
    d.codigo = o->subconcepto % 1000;
    d.observaciones = o->observaciones;

    CamposSueltos sueltos;
    CamposImpuesto c = sueltos.campos();
    for (Numero& n : sueltos.n)
        n.setValue(0);
    c.nroTotalVC.setValue(leer_valores(clave, [](const QStringList&) {}));
    c.nroValuacionFiscal.setValue(
        valuacion(clave, dato("select SEII_ID from SEL_TB_RTN_INS_INMUEBLES%1"_u.arg(clave.donde()))));
    c.nroHipoteca.setValue(o->hipoteca.value_or(0));
    c.nroObligAccesoria.setValue(o->obligValor.value_or(0));
    c.nroPagoACuenta.setValue(o->pagoACuenta.value_or(0));
    c.nroAdicionales.setValue(o->adicionales.value_or(0));
    CalcularImpuesto(c, e, oyente);
    EXPECT_FALSE(s->RequiereValuacionFiscal && c.nroValuacionFiscal.Value() == 0);
    actualizar_operacion(clave, c, d);
}

TEST_F(Muestra, LasOperacionesYSusTotalesSonLosQueElProgramaCalcula)
{
    constexpr std::array TABLAS{"INS_OPERACIONES", "INS_VC", "DETDJ", "CABDJ"};
    QList<QStringList> antes;
    for (const char* t : TABLAS)
        antes << tabla(t);
    const QList<ClaveOperacion> claves = operaciones();
    ASSERT_GT(claves.size(), 100);
    // What is computed goes, and has to come back.
    cnRtn.ejecutarGuion(
        "update SEL_TB_RTN_INS_OPERACIONES set SINS_BASEIMPONIBLE=null, SINS_VALUACION_FISCAL=null,"
        " SINS_MODULOS=null, SINS_ALICUOTA=null, SINS_IMPUESTO_CALCULADO=null, SINS_PORC_EXENTO=null,"
        " SINS_MONTO_EXENTO=null, SINS_MONTO_INICIAL=null, SINS_MONTO_FINAL=null, SINS_NRO=null,"
        " SINS_LEY_APLIC_IMPUESTO=null; update SEL_TB_RTN_INS_VC set SVCI_TOTAL=null;"
        " update SEL_TB_RTN_DETDJ set SEDD_TOTAL_IMPUESTO=0; update SEL_TB_RTN_CABDJ set SEDJ_TOTAL_RETENIDO=0"_u);
    for (const ClaveOperacion& clave : claves) {
        SCOPED_TRACE(clave.donde().toStdString());
        rehacer(clave);
        EXPECT_TRUE(guardar_totales(clave, oyente));
    }
    EXPECT_EQ(oyente.ultimo(), QString());
    for (size_t i = 0; i < TABLAS.size(); ++i)
        comparar(TABLAS[i], antes[qsizetype(i)]);
    EXPECT_EQ(dato("select count(*) from SEL_TB_RTN_INS_OPERACIONES where SINS_MONTO_FINAL<0"_u), "0"_u);
}

// Issued again on their days, in the order of their numbers.
TEST_F(Muestra, LosComprobantesSonLosDeSusEscrituras)
{
    struct Emision
    {
        QDate hoy;
        DatosComprobante datos;
    };
    QList<Emision> emisiones;
    for (Recordset rs(cnRtn, "select R.SCRT_FECHA_RETENCION, R.SEDJ_NRO, R.SEDD_ID, D.SEDD_TOTAL_IMPUESTO, C.SEDJ_ANIO,"
                             " C.SEDJ_MES, D.SEDD_DIA, C.SEDJ_TITULAR_NOMBRE from SEL_TB_RTN_COMP_RET R"
                             " join SEL_TB_RTN_DETDJ D on D.SEDJ_NRO=R.SEDJ_NRO and D.SEDD_ID=R.SEDD_ID"
                             " join SEL_TB_RTN_CABDJ C on C.SEDJ_NRO=R.SEDJ_NRO order by R.SCRT_NRO"_u);
         !rs.eof(); rs.siguiente())
        emisiones << Emision{QDate::fromString(rs.texto(0), "dd/MM/yyyy"_u),
                             {rs.texto(1), rs.texto(2), rs.texto(3),
                              QDate(int(rs.entero(4)), int(rs.entero(5)), int(rs.entero(6))), rs.texto(7)}};
    const QStringList antes = tabla("COMP_RET");
    cnRtn.ejecutar("delete from SEL_TB_RTN_COMP_RET"_u);
    for (const Emision& e : std::as_const(emisiones)) {
        fijar_hoy(e.hoy);
        emitir_comprobante(proximo_comprobante(e.datos.dj), e.datos);
    }
    comparar("COMP_RET", antes);
}

TEST_F(Muestra, LasDjVencenCuandoDiceElProgramaYSeLlamanPorSuAgente)
{
    for (Recordset rs(cnRtn, "select * from SEL_TB_RTN_CABDJ"_u); !rs.eof(); rs.siguiente()) {
        const int mes = int(rs.entero("SEDJ_MES"));
        EXPECT_EQ(vencimiento_dj(int(rs.entero("SEDJ_ANIO")), mes), rs.fecha("SEDJ_FVENCIMIENTO"));
        EXPECT_EQ(componer_numero(rs.texto("SEDJ_TITULAR_CUIT"), rs.texto("SEDJ_ANIO"), mes,
                                  int(rs.entero("SEDJ_SECUENCIA"))),
                  rs.texto("SEDJ_NRO"));
    }
}

}  // namespace
