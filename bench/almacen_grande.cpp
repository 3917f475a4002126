// SPDX-License-Identifier: GPL-3.0-or-later

#include "almacen_grande.h"

#include "constructor.h"
#include "core/arranque.h"
#include "core/dialogo.h"
#include "core/modGlobales.h"
#include "tree/modABM_dj.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

CabeceraDJ cabecera(int anio, int mes, int n)
{
    CabeceraDJ c;
    c.nro =
        u"%1%2%300"_s.arg(20000000000LL + n).arg(anio % 100, 2, 10, QLatin1Char('0')).arg(mes, 2, 10, QLatin1Char('0'));
    c.anio = anio;
    c.mes = mes;
    c.agente = n;
    c.titular = u"TITULAR DE PRUEBA ÑANDÚ %1"_s.arg(n);
    c.cuit = 20000000000LL + n;
    c.domicilio = u"AV. SAN MARTÍN 1250"_s;
    c.localidad = 1;
    c.observaciones = u"OBSERVACIÓN"_s;
    return c;
}

void hijos(const QString& dj, int id, Dialogo& d)
{
    for (int i = 1; i <= 4; ++i) {
        Parte p;
        p.id = i;
        p.dj = dj;
        p.renglon = id;
        p.tipoDoc = u"80"_s;
        p.nroDoc = u"20123456786"_s;
        p.cuit = 20123456786.0;
        p.razonSocial = u"GÓMEZ PEÑALOZA JUAN CARLOS"_s;
        p.porcExento = i == 1 ? std::optional<double>(12.5) : std::nullopt;
        p.tipoSociedad = 1;
        p.domicilio = u"LOS ÁLAMOS 1500"_s;
        p.codPostal = u"9500"_s;
        p.localidad = 6;
        p.provincia = 13;
        p.nacionalidad = u"A"_s;
        (void)alta_parte(p, false, d);
    }
    for (int i = 1; i <= 1 + id % 2; ++i) {
        Inmueble n;
        n.dj = dj;
        n.renglon = id;
        n.id = i;
        n.partida = QString::number(1000 + id);
        n.valFiscal = 1234567.89;
        n.calle = u"BELGRANO"_s;
        n.provincia = u"MARVEN"_s;
        n.caracter = 1;
        (void)alta_inmueble(n, false, d);
    }
    Operacion o;
    o.dj = dj;
    o.renglon = id;
    o.id = 1;
    o.subconcepto = 5707001;
    o.baseImponible = 1234567.89;
    o.valuacionFiscal = 1234567.89;
    o.alicuota = 0.01;
    o.impuestoCalculado = o.montoInicial = o.montoFinal = 12345.68;
    o.porcExento = o.montoExento = o.adicionales = o.pagoACuenta = 0;
    o.nro = QString::number(id);
    o.ley = u"5707"_s;
    (void)alta_operacion(o, false, d);
    for (int i = 1; i <= 2; ++i) {
        ValorContractual v{dj, id, 1, i, 1000000.5, 0, u"PES"_s, 1, 1000000.5};
        (void)alta_valor_contractual(v, false, d);
    }
    for (int i = 1; i <= 3; ++i)
        (void)alta_rol({dj, id, 1, i, 5707001000LL + i, {}}, d);
}

}  // namespace

AlmacenGrande::AlmacenGrande()
{
    construir_almacen({QStringLiteral(RTN_TEXTOS_ALMACEN), {u"datos"_s}, ruta(), clave_almacen()});
    QFile cfg(dir_.path() + u"/vedra_rtn.cfg"_s);
    if (cfg.open(QIODevice::WriteOnly))
        cfg.write("vedra_rtn.db\n");
    cfg.close();
    fijar_carpeta_programa(dir_.path());
    Callado callado;
    if (!abrir_base(callado))
        std::abort();
    cargar_parametros(callado);
}

AlmacenGrande::~AlmacenGrande()
{
    cnRtn.cerrar();
}

QString AlmacenGrande::dj(int anio, int mes, int escrituras)
{
    Callado callado;
    const CabeceraDJ c = cabecera(anio, mes, escrituras);
    Transaccion t(cnRtn);
    (void)alta_cabecera_dj(c, callado);
    for (int id = 1; id <= escrituras; ++id) {
        Escritura e;
        e.dj = c.nro;
        e.id = id;
        e.dia = 1 + id % 28;
        e.nro = id;
        e.folio = id;
        e.totalImpuesto = 12345.68;
        e.observaciones = u"OBS"_s;
        e.estado = u"P"_s;
        e.alcanzado = u"S"_s;
        e.testimonio = u"/tmp/%1.pdf"_s.arg(id);
        (void)alta_detalle_dj(e, false, callado);
        hijos(c.nro, id, callado);
    }
    t.confirmar();
    return c.nro;
}

void AlmacenGrande::cabeceras(int cuantas)
{
    Callado callado;
    Transaccion t(cnRtn);
    for (int i = 0; i < cuantas; ++i)
        (void)alta_cabecera_dj(cabecera(2010 + i / 12 % 16, 1 + i % 12, 1 + i), callado);
    t.confirmar();
}

void AlmacenGrande::subconceptos(int cuantos)
{
    cnRtn.ejecutar(
        u"with recursive n(i) as (select 0 union all select i+1 from n where i+1<%1) "
        u"insert into SEL_TB_SUBCONCEPTOS (SSUB_ID, SSUB_DESCRIPCION, SSUB_LEYVIGENCIA, SSUB_FECHAVIGENCIA, STIC_ID, SCBI_ID, SCON_ID, SSUB_USOS, SSUB_MODULOSMIN, SSUB_OBSERVACIONES) "
        u"select (1000+i/900)*1000+i%900+1, 'SUBCONCEPTO DE PRUEBA Nº '||i||' CESIÓN Y TRANSFERENCIA', 'LEY '||(1000+i/900)||' - ART '||(i*7919%300)||'º - INC a)', "
        u"'2008-01-02', 1+i%4, 1, 1+i%8, 2, i%50, 'OBSERVACIÓN '||i from n"_s.arg(cuantos));
}

void AlmacenGrande::partes(int cuantas)
{
    const QString dj = u"20000000000200100"_s;
    cnRtn.ejecutar(u"insert into SEL_TB_RTN_CABDJ (SEDJ_NRO, SEDJ_ANIO, SEDJ_MES) values ('%1', 2020, 1)"_s.arg(dj));
    const QString cuenta = u"with recursive n(i) as (select 0 union all select i+1 from n where i+1<%1) "_s;
    cnRtn.ejecutar(
        cuenta.arg(cuantas / 4)
        + u"insert into SEL_TB_RTN_DETDJ (SEDJ_NRO, SEDD_ID, SEDD_DIA, SEDD_ESCRITURA_NRO, SEDD_FOLIO, SEDD_ESTADO, SEDD_ALCANZADO) select '%1', i+1, 1, i+1, i+1, 'P', 'S' from n"_s
              .arg(dj));
    cnRtn.ejecutar(
        cuenta.arg(cuantas)
        + u"insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_CUIT, SPIN_CUIT_EN_TRAMITE, SPIN_RSOCIAL, GTSO_ID, SPIN_DOMICILIO, SPIN_NACIONALIDAD) "
          u"select i%4+1, '%1', i/4+1, '80', 20000000000+i*7919%100003, 20000000000+i*7919%100003, 0, "
          u"case i%5 when 0 then 'GÓMEZ' when 1 then 'PEÑALOZA' when 2 then 'SOSA' when 3 then 'D''ANGELO' else 'PEREZ' end||' '||"
          u"case i%7 when 0 then 'JUAN CARLOS' when 1 then 'ANA MARÍA' when 2 then 'JUAN' when 3 then 'LUZ' else 'NÉSTOR' end||' '||i, 1+i%3, 'LOS ÁLAMOS '||i, 'A' from n"_s
              .arg(dj));
}
