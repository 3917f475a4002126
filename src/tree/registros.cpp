// SPDX-License-Identifier: GPL-3.0-or-later

#include "tree/registros.h"

#include <cstring>
#include <stdexcept>

namespace {

const CampoRegistro CABECERA[] = {
    {"SRTN_NRO", 5, cifras()},
    {"SEDJ_ANIO", 4, cifras()},
    {"SEDJ_MES", 2, cifras()},
    {"SEDJ_SECUENCIA", 2, cifras()},
    {"SEDJ_ESTADO", 1, talCual()},
    {"SEDJ_TITULAR_CUIT", 11, cifras()},
    {"SEDJ_TITULAR_NOMBRE", 50, texto().obligatorio()},
    {"SEDJ_DOMICILIO", 50, texto()},
    {"GLOC_ID", 4, cifras()},
    {"SEDJ_CODPOSTAL", 10, texto()},
    {"SEDJ_TELEFONO", 20, texto()},
    {"SEDJ_EMAIL", 80, texto()},
    {"SEDJ_ADSCRIPTO1_CUIT", 11, cifras().siNulo("00000000000")},
    {"SEDJ_ADSCRIPTO1_NOMBRE", 50, texto()},
    {"SEDJ_ADSCRIPTO2_CUIT", 11, cifras().siNulo("00000000000")},
    {"SEDJ_ADSCRIPTO2_NOMBRE", 50, texto()},
    {"SEDJ_TOTAL_RETENIDO", 12, cifras().por(100)},
    {"SEDJ_OBSERVACIONES", 50, {Clase::hastaElAncho}},
    {"SEDJ_ACRED_RESOLUCION", 7, talCual().siNulo("0000/00")},
    {"SEDJ_ACRED_MONTO", 12, cifras().por(100)},
};

const CampoRegistro ESCRITURA[] = {
    {"SEDD_ID", 3, cifras()},
    {"SEDD_ESCRITURA_NRO", 10, cifras()},
    {"SEDD_FOLIO", 10, textoRecortado().obligatorio()},
    {"SEDD_DIA", 2, cifras()},
    {"SEDD_OBSERVACIONES", 50, textoRecortado()},
    {"SEDD_TOTAL_IMPUESTO", 12, cifras().por(100)},
    {"SEDD_ESTADO", 1, talCual()},
    {"SEDD_ALCANZADO", 1, talCual()},
    {"SNAD_ID", 2, cifras().siNulo("00").soloSinAlcance()},
    {"NOA_DESC", 50, textoRecortado().soloSinAlcance()},
    {"MAX_SCRT_NRO", 19, talCual().siNulo("0000000000000000000")},
};

const CampoRegistro PARTE[] = {
    {"SEDD_ID", 3, cifras()},
    {"SPIN_ID", 10, cifras()},
    {"GTDC_ID", 4, textoRecortado().obligatorio()},
    {"SPIN_NRODOC", 20, textoRecortado()},
    {"SPIN_CUIT_EN_TRAMITE", 1, {Clase::siNo}},
    {"SPIN_RSOCIAL", 50, Forma{Clase::contenido}.obligatorio()},
    {"SPIN_DOMICILIO", 50, textoRecortado()},
    {"SPIN_CODPOSTAL", 10, textoRecortado()},
    {"GLOC_ID", 4, cifras()},
    {"SPIN_PORCEXENTO", 10, cifras().siNulo("0000000000")},
    {"SPIN_OBS", 30, texto()},
    {"SPIN_NACIONALIDAD", 1, talCual()},
    {"CPAI_CODIGO", 11, Forma{Clase::cerosDelante}.siNulo("00000000000")},
    {"GTSO_ID", 2, cifras()},
};

const CampoRegistro INMUEBLE[] = {
    {"SEDD_ID", 3, cifras()},
    {"SEII_ID", 3, cifras()},
    {"SEII_PARTIDA", 10, textoRecortado().obligatorio()},
    {"SEII_VAL_FISCAL", 12, cifras().por(100)},
    {"SEII_OBSERVACIONES", 30, textoRecortado()},
    {"SEII_UBIC_LOTE", 10, textoRecortado()},
    {"SEII_UBIC_MANZANA", 10, textoRecortado()},
    {"SEII_UBIC_UFUNCIONAL", 10, textoRecortado()},
    {"SEII_UBIC_CIRCULACION", 10, textoRecortado()},
    {"SEII_UBIC_PISO", 10, textoRecortado()},
    {"SEII_UBIC_DPTO", 10, textoRecortado()},
    {"SEII_UBIC_CALLE", 10, textoRecortado()},
    {"SEII_UBIC_NRO", 10, textoRecortado()},
    {"SEII_UBIC_BARRIO", 20, textoRecortado()},
    {"SEII_UBIC_CIUDAD", 20, textoRecortado()},
    {"SEII_UBIC_DEPARTAMENTO", 20, textoRecortado()},
    {"SEII_UBIC_PROVINCIA", 15, textoRecortado()},
    {"GTUB_ID", 1, talCual()},
    {"SEII_NCAT_SECCION", 20, textoRecortado()},
    {"SEII_NCAT_FRACCION", 20, textoRecortado()},
    {"SEII_NCAT_LOTE", 20, textoRecortado()},
    {"SEII_NCAT_EJIDO", 10, textoRecortado()},
    {"SEII_NCAT_CIRCUNSCRIPCION", 10, textoRecortado()},
    {"SEII_NCAT_SECTOR", 10, textoRecortado()},
    {"SEII_NCAT_MANZANA", 10, textoRecortado()},
    {"SEII_NCAT_PARCELA", 10, textoRecortado()},
};

const CampoRegistro OPERACION[] = {
    {"SEDD_ID", 3, cifras()},
    {"SEDO_ID", 3, cifras()},
    {"SSUB_ID", 7, cifras()},
    {"SINS_VALUACION_FISCAL", 12, cifras().por(100)},
    {"SINS_OBLIG_ACCESORIA_VALOR", 12, cifras().por(100)},
    {"SINS_OBLIG_ACCESORIA_FOP", 1, {Clase::primeraLetra}},
    {"SINS_OBLIG_ACCESORIA_MODO", 2, cifras()},
    {"SINS_OBLIG_ACCESORIA_POLIZA", 15, textoRecortado()},
    {"SINS_BASEIMPONIBLE", 12, cifras().por(100)},
    {"SINS_ALICUOTA", 6, cifras().por(10000)},
    {"SINS_MODULOS", 10, cifras()},
    {"SINS_PORC_EXENTO", 12, cifras().por(100)},
    {"SINS_MONTO_EXENTO", 12, cifras().por(100)},
    {"SINS_MONTO_INICIAL", 12, cifras().por(100)},
    {"SINS_PAGO_CTA_MONTO", 12, cifras().por(100)},
    {"SINS_HIPOTECA", 12, cifras().por(100).siNulo("000000000000")},
    {"SINS_MONTO_FINAL", 12, cifras().por(100)},
    {"SINS_OBS", 30, textoRecortado()},
    {"SLEX_ID", 20, {Clase::leyExencion}},
    {"SINS_ADICIONALES", 12, cifras().por(100)},
};

const CampoRegistro ROL[] = {
    {"SEDD_ID", 3, cifras()}, {"SEDO_ID", 3, cifras()},           {"SPIN_ID", 3, cifras()},
    {"SROL_ID", 7, cifras()}, {"SEDR_OBS", 30, textoRecortado()},
};

const CampoRegistro VALOR[] = {
    {"SEDD_ID", 3, cifras()},
    {"SEDO_ID", 3, cifras()},
    {"SVCI_ID", 3, cifras()},
    {"SVCI_VALOR_CONTRACTUAL", 12, cifras().por(100)},
    {"GMON_ID", 3, textoRecortado()},
    {"SVCI_VALORCAMBIO", 12, cifras().por(10000)},
    {"SVCI_PORC_IVA", 4, cifras().por(100)},
    {"SVCI_TOTAL", 12, cifras().por(100)},
};

const CampoRegistro TESTIMONIO[] = {
    {"SEDD_ID", 3, cifras()},
    {MARCA_INICIO, 47, {Clase::literal}},
    {"SEDJ_TESTIMONIO", 0, talCual()},
    {MARCA_FIN, 47, {Clase::literal}},
};

const Registro REGISTROS[] = {
    {'1', "cabecera", "select * from SEL_TB_RTN_CABDJ where SEDJ_NRO='", "'", CABECERA},
    {'2', "escritura",
     "select D1.*, IIF(SNAD_DESCRIPCION='Otro', SNAD_DESC_OTRO, SNAD_DESCRIPCION) as NOA_DESC "
     " from (select D.*, m.MAX_SCRT_NRO from SEL_TB_RTN_DETDJ d left join SEL_VW_MAX_COMPROB m"
     " on d.SEDJ_NRO=m.SEDJ_NRO AND d.SEDD_ID=m.SEDD_ID where d.SEDJ_NRO='",
     "' order by d.SEDD_ID) as D1 left join SEL_TB_NO_ALCANZADOS_DESC as NOA on D1.SNAD_ID=NOA.SNAD_ID order by D1.SEDD_ID",
     ESCRITURA},
    {'3', "parte", "select * from SEL_TB_RTN_INS_PARTES where SEDJ_NRO='", "' order by SEDD_ID", PARTE},
    // The code takes a line end behind this record and behind no other; the format asks for it.
    {'4', "inmueble", "select * from SEL_TB_RTN_INS_INMUEBLES where SEDJ_NRO='", "' order by SEDD_ID", INMUEBLE, true},
    {'5', "operación", "select * from SEL_TB_RTN_INS_OPERACIONES where SEDJ_NRO='", "' order by SEDD_ID", OPERACION},
    {'6', "rol de una parte", "select * from SEL_TB_RTN_INS_ROLES where SEDJ_NRO='", "' order by SEDD_ID, SEDO_ID",
     ROL},
    {'7', "valor contractual", "select * from SEL_TB_RTN_INS_VC where SEDJ_NRO='", "' order by SEDD_ID, SEDO_ID",
     VALOR},
    {'8', "testimonio", "select * from SEL_TB_RTN_DJ_TESTIMONIOS where SEDJ_NRO='", "'", TESTIMONIO},
};

}  // namespace

std::span<const Registro> registros()
{
    return REGISTROS;
}

int Registro::ancho() const
{
    int suma = 0;
    for (const CampoRegistro& c : campos)
        suma += c.ancho;
    return suma;
}

QString Registro::consulta(const QString& nro) const
{
    return QString::fromUtf8(consultaAntes) + nro + QString::fromUtf8(consultaDespues);
}

int ancho_emitido(const char* columna)
{
    for (const Registro& r : REGISTROS)
        for (const CampoRegistro& c : r.campos)
            if (std::strcmp(c.nombre, columna) == 0)
                return c.ancho;
    throw std::out_of_range(columna);
}
