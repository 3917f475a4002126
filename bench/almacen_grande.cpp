#include "almacen_grande.h"

#include "constructor.h"
#include "core/arranque.h"
#include "core/dialogo.h"
#include "core/modGlobales.h"
#include "declarations/modABM_dj.h"

#include <QFile>

namespace {

CabeceraDJ cabecera(int anio, int mes, int n)
{
    CabeceraDJ c;
    c.nro = QStringLiteral("%1%2%300").arg(20000000000LL + n).arg(anio % 100, 2, 10, QLatin1Char('0')).arg(mes, 2, 10, QLatin1Char('0'));
    c.anio = anio;
    c.mes = mes;
    c.agente = n;
    c.titular = QStringLiteral("TITULAR DE PRUEBA ÑANDÚ %1").arg(n);
    c.cuit = 20000000000LL + n;
    c.domicilio = QStringLiteral("AV. SAN MARTÍN 1250");
    c.localidad = 1;
    c.observaciones = QStringLiteral("OBSERVACIÓN");
    return c;
}

void hijos(const QString& dj, int id, Dialogo& d)
{
    for (int i = 1; i <= 4; ++i) {
        Parte p;
        p.id = i;
        p.dj = dj;
        p.renglon = id;
        p.tipoDoc = QStringLiteral("80");
        p.nroDoc = QStringLiteral("20123456786");
        p.cuit = 20123456786.0;
        p.razonSocial = QStringLiteral("GÓMEZ PEÑALOZA JUAN CARLOS");
        p.porcExento = i == 1 ? std::optional<double>(12.5) : std::nullopt;
        p.tipoSociedad = 1;
        p.domicilio = QStringLiteral("LOS ÁLAMOS 1500");
        p.codPostal = QStringLiteral("9500");
        p.localidad = 6;
        p.provincia = 13;
        p.nacionalidad = QStringLiteral("A");
        (void)alta_parte(p, false, d);
    }
    for (int i = 1; i <= 1 + id % 2; ++i) {
        Inmueble n;
        n.dj = dj;
        n.renglon = id;
        n.id = i;
        n.partida = QString::number(1000 + id);
        n.valFiscal = 1234567.89;
        n.calle = QStringLiteral("BELGRANO");
        n.provincia = QStringLiteral("MARVEN");
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
    o.ley = QStringLiteral("5707");
    (void)alta_operacion(o, false, d);
    for (int i = 1; i <= 2; ++i) {
        ValorContractual v{dj, id, 1, i, 1000000.5, 0, QStringLiteral("PES"), 1, 1000000.5};
        (void)alta_valor_contractual(v, false, d);
    }
    for (int i = 1; i <= 3; ++i)
        (void)alta_rol({dj, id, 1, i, 5707001000LL + i, {}}, d);
}

}  // namespace

AlmacenGrande::AlmacenGrande()
{
    construir_almacen({QStringLiteral(RTN_TEXTOS_ALMACEN), {QStringLiteral("datos")}, ruta(), clave_almacen()});
    QFile cfg(dir_.path() + QStringLiteral("/vedra_rtn.cfg"));
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
        e.observaciones = QStringLiteral("OBS");
        e.estado = QStringLiteral("P");
        e.alcanzado = QStringLiteral("S");
        e.testimonio = QStringLiteral("/tmp/%1.pdf").arg(id);
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
    cnRtn.ejecutar(QStringLiteral("with recursive n(i) as (select 0 union all select i+1 from n where i+1<%1) "
                                  "insert into SEL_TB_SUBCONCEPTOS (SSUB_ID, SSUB_DESCRIPCION, SSUB_LEYVIGENCIA, SSUB_FECHAVIGENCIA, STIC_ID, SCBI_ID, SCON_ID, SSUB_USOS, SSUB_MODULOSMIN, SSUB_OBSERVACIONES) "
                                  "select (1000+i/900)*1000+i%900+1, 'SUBCONCEPTO DE PRUEBA Nº '||i||' CESIÓN Y TRANSFERENCIA', 'LEY '||(1000+i/900)||' - ART '||(i*7919%300)||'º - INC a)', "
                                  "'2008-01-02', 1+i%4, 1, 1+i%8, 2, i%50, 'OBSERVACIÓN '||i from n")
                       .arg(cuantos));
}

void AlmacenGrande::partes(int cuantas)
{
    const QString dj = QStringLiteral("20000000000200100");
    cnRtn.ejecutar(QStringLiteral("insert into SEL_TB_RTN_CABDJ (SEDJ_NRO, SEDJ_ANIO, SEDJ_MES) values ('%1', 2020, 1)").arg(dj));
    const QString cuenta = QStringLiteral("with recursive n(i) as (select 0 union all select i+1 from n where i+1<%1) ");
    cnRtn.ejecutar(cuenta.arg(cuantas / 4)
                   + QStringLiteral("insert into SEL_TB_RTN_DETDJ (SEDJ_NRO, SEDD_ID, SEDD_DIA, SEDD_ESCRITURA_NRO, SEDD_FOLIO, SEDD_ESTADO, SEDD_ALCANZADO) select '%1', i+1, 1, i+1, i+1, 'P', 'S' from n").arg(dj));
    cnRtn.ejecutar(cuenta.arg(cuantas)
                   + QStringLiteral("insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_CUIT, SPIN_CUIT_EN_TRAMITE, SPIN_RSOCIAL, GTSO_ID, SPIN_DOMICILIO, SPIN_NACIONALIDAD) "
                                    "select i%4+1, '%1', i/4+1, '80', 20000000000+i*7919%100003, 20000000000+i*7919%100003, 0, "
                                    "case i%5 when 0 then 'GÓMEZ' when 1 then 'PEÑALOZA' when 2 then 'SOSA' when 3 then 'D''ANGELO' else 'PEREZ' end||' '||"
                                    "case i%7 when 0 then 'JUAN CARLOS' when 1 then 'ANA MARÍA' when 2 then 'JUAN' when 3 then 'LUZ' else 'NÉSTOR' end||' '||i, 1+i%3, 'LOS ÁLAMOS '||i, 'A' from n")
                         .arg(dj));
}
