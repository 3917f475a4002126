// SPDX-License-Identifier: GPL-3.0-or-later

#include "tree/arbol_dj.h"

namespace {

const Columna<CabeceraDJ> CABECERA[] = {
    {"SEDJ_NRO", &CabeceraDJ::nro, 17},
    {"SEDJ_ANIO", &CabeceraDJ::anio},
    {"SEDJ_MES", &CabeceraDJ::mes},
    {"SEDJ_SECUENCIA", &CabeceraDJ::secuencia},
    {"SEDJ_ESTADO", &CabeceraDJ::estado},
    {"SEDJ_OBSERVACIONES", &CabeceraDJ::observaciones, 100},
    {"SEDJ_TOTAL_RETENIDO", &CabeceraDJ::totalRetenido},
    {"SEDJ_FVENCIMIENTO", &CabeceraDJ::vencimiento},
    {"SRTN_NRO", &CabeceraDJ::agente},
    {"SEDJ_TITULAR_NOMBRE", &CabeceraDJ::titular, 50},
    {"SEDJ_TITULAR_CUIT", &CabeceraDJ::cuit, 0, "v_SEDJ_CUIT"},
    {"SEDJ_DOMICILIO", &CabeceraDJ::domicilio, 100},
    {"SEDJ_CODPOSTAL", &CabeceraDJ::codPostal, 10},
    {"SEDJ_TELEFONO", &CabeceraDJ::telefono, 20},
    {"GLOC_ID", &CabeceraDJ::localidad},
    {"SEDJ_ADSCRIPTO1_NOMBRE", &CabeceraDJ::adscripto1, 50},
    {"SEDJ_ADSCRIPTO1_CUIT", &CabeceraDJ::adscripto1Cuit},
    {"SEDJ_ADSCRIPTO2_NOMBRE", &CabeceraDJ::adscripto2, 50},
    {"SEDJ_ADSCRIPTO2_CUIT", &CabeceraDJ::adscripto2Cuit},
    {"SEDJ_EMAIL", &CabeceraDJ::email, 50},
    {"SEDJ_ACRED_MONTO", &CabeceraDJ::acredMonto},
    {"SEDJ_ACRED_RESOLUCION", &CabeceraDJ::acredResolucion, 7},
};

const Columna<Escritura> ESCRITURA[] = {
    {"SEDJ_NRO", &Escritura::dj, 17},
    {"SEDD_ID", &Escritura::id},
    {"SEDD_DIA", &Escritura::dia},
    {"SEDD_ESCRITURA_NRO", &Escritura::nro},
    {"SEDD_FOLIO", &Escritura::folio},
    {"SEDD_TOTAL_IMPUESTO", &Escritura::totalImpuesto},
    {"SEDD_OBSERVACIONES", &Escritura::observaciones, 50},
    {"SEDD_CERTIF_AFIP_MONTO", &Escritura::certifAfip},
    {"SEDD_ESTADO", &Escritura::estado, 1},
    {"SEDD_ALCANZADO", &Escritura::alcanzado, 1},
    {"SNAD_ID", &Escritura::motivo},
    {"SNAD_DESC_OTRO", &Escritura::motivoOtro, 255},
    {"SEDD_FNAME_TESTIMONIO", &Escritura::testimonio, 2000},
};

const Columna<Inmueble> INMUEBLE[] = {
    {"SEDJ_NRO", &Inmueble::dj, 17},
    {"SEDD_ID", &Inmueble::renglon},
    {"SEII_ID", &Inmueble::id},
    {"SEII_PARTIDA", &Inmueble::partida, 10},
    {"SEII_VAL_FISCAL", &Inmueble::valFiscal},
    {"SEII_OBSERVACIONES", &Inmueble::observaciones, 30},
    {"SEII_UBIC_LOTE", &Inmueble::lote, 10},
    {"SEII_UBIC_MANZANA", &Inmueble::manzana, 10},
    {"SEII_UBIC_UFUNCIONAL", &Inmueble::uFuncional, 10, "v_SEII_SEII_UBIC_UFUNCIONAL"},
    {"SEII_UBIC_CIRCULACION", &Inmueble::circulacion, 10},
    {"SEII_UBIC_PISO", &Inmueble::piso, 10},
    {"SEII_UBIC_DPTO", &Inmueble::dpto, 10},
    {"SEII_UBIC_CALLE", &Inmueble::calle, 50},
    {"SEII_UBIC_NRO", &Inmueble::nro, 10},
    {"SEII_UBIC_BARRIO", &Inmueble::barrio, 20},
    {"SEII_UBIC_CIUDAD", &Inmueble::ciudad, 20},
    {"SEII_UBIC_DEPARTAMENTO", &Inmueble::departamento, 20},
    {"SEII_UBIC_PROVINCIA", &Inmueble::provincia, 15},
    {"GTUB_ID", &Inmueble::caracter},
    {"SEII_NCAT_SECCION", &Inmueble::ncSeccion, 20},
    {"SEII_NCAT_FRACCION", &Inmueble::ncFraccion, 20},
    {"SEII_NCAT_LOTE", &Inmueble::ncLote, 20},
    {"SEII_NCAT_EJIDO", &Inmueble::ncEjido, 10},
    {"SEII_NCAT_CIRCUNSCRIPCION", &Inmueble::ncCircunscripcion, 10},
    {"SEII_NCAT_SECTOR", &Inmueble::ncSector, 10},
    {"SEII_NCAT_MANZANA", &Inmueble::ncManzana, 10},
    {"SEII_NCAT_PARCELA", &Inmueble::ncParcela, 10},
};

const Columna<Parte> PARTE[] = {
    {"SPIN_ID", &Parte::id},
    {"SEDJ_NRO", &Parte::dj, 17},
    {"SEDD_ID", &Parte::renglon},
    {"GTDC_ID", &Parte::tipoDoc, 3},
    {"SPIN_NRODOC", &Parte::nroDoc, 20},
    {"SPIN_CUIT", &Parte::cuit},
    {"SPIN_CUIT_EN_TRAMITE", &Parte::cuitEnTramite},
    {"SPIN_RSOCIAL", &Parte::razonSocial, 100},
    {"SPIN_PORCEXENTO", &Parte::porcExento},
    {"SPIN_OBS", &Parte::observaciones, 100},
    {"GTSO_ID", &Parte::tipoSociedad},
    {"SPIN_DOMICILIO", &Parte::domicilio, 50},
    {"SPIN_CODPOSTAL", &Parte::codPostal, 10},
    {"GLOC_ID", &Parte::localidad},
    {"GPRO_ID", &Parte::provincia},
    {"SPIN_NACIONALIDAD", &Parte::nacionalidad, 1},
    {"CPAI_CODIGO", &Parte::codigoPais, 11},
};

const Columna<Operacion> OPERACION[] = {
    {"SEDJ_NRO", &Operacion::dj, 17},
    {"SEDD_ID", &Operacion::renglon},
    {"SEDO_ID", &Operacion::id},
    {"SSUB_ID", &Operacion::subconcepto},
    {"SINS_BASEIMPONIBLE", &Operacion::baseImponible},
    {"SINS_VALUACION_FISCAL", &Operacion::valuacionFiscal},
    {"SINS_MODULOS", &Operacion::modulos},
    {"SINS_ALICUOTA", &Operacion::alicuota},
    {"SINS_IMPUESTO_CALCULADO", &Operacion::impuestoCalculado},
    {"SINS_PORC_EXENTO", &Operacion::porcExento},
    {"SINS_MONTO_EXENTO", &Operacion::montoExento},
    {"SINS_MONTO_INICIAL", &Operacion::montoInicial},
    {"SINS_MONTO_FINAL", &Operacion::montoFinal},
    {"SINS_NRO", &Operacion::nro, 20},
    {"SINS_ADICIONALES", &Operacion::adicionales},
    {"SINS_OBLIG_ACCESORIA_FOP", &Operacion::obligFop, 1},
    {"SINS_OBLIG_ACCESORIA_VALOR", &Operacion::obligValor},
    {"SINS_OBLIG_ACCESORIA_MODO", &Operacion::obligModo},
    {"SINS_OBLIG_ACCESORIA_POLIZA", &Operacion::obligPoliza, 20},
    {"SINS_PAGO_CTA_MONTO", &Operacion::pagoACuenta},
    {"SINS_HIPOTECA", &Operacion::hipoteca},
    {"SINS_LEY_APLIC_IMPUESTO", &Operacion::ley, 10},
    {"SINS_OBS", &Operacion::observaciones, 30},
};

const Columna<ValorContractual> VALOR[] = {
    {"SEDJ_NRO", &ValorContractual::dj, 17},
    {"SEDD_ID", &ValorContractual::renglon},
    {"SEDO_ID", &ValorContractual::operacion},
    {"SVCI_ID", &ValorContractual::id},
    {"SVCI_VALOR_CONTRACTUAL", &ValorContractual::valor},
    {"SVCI_PORC_IVA", &ValorContractual::porcIva},
    {"GMON_ID", &ValorContractual::moneda, 3},
    {"SVCI_VALORCAMBIO", &ValorContractual::valorCambio},
    {"SVCI_TOTAL", &ValorContractual::total},
};

const Columna<RolOperacion> ROL[] = {
    {"SEDJ_NRO", &RolOperacion::dj, 17},   {"SEDD_ID", &RolOperacion::renglon},
    {"SEDO_ID", &RolOperacion::operacion}, {"SPIN_ID", &RolOperacion::parte},
    {"SROL_ID", &RolOperacion::rol},       {"SEDR_OBS", &RolOperacion::observaciones, 50},
};

}  // namespace

std::span<const Columna<CabeceraDJ>> columnas_cabecera()
{
    return CABECERA;
}
std::span<const Columna<Escritura>> columnas_escritura()
{
    return ESCRITURA;
}
std::span<const Columna<Inmueble>> columnas_inmueble()
{
    return INMUEBLE;
}
std::span<const Columna<Parte>> columnas_parte()
{
    return PARTE;
}
std::span<const Columna<Operacion>> columnas_operacion()
{
    return OPERACION;
}
std::span<const Columna<ValorContractual>> columnas_valor()
{
    return VALOR;
}
std::span<const Columna<RolOperacion>> columnas_rol()
{
    return ROL;
}
