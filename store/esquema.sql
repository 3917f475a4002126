-- SPDX-License-Identifier: GPL-3.0-or-later
-- The store of VEDRA-RTN. Texts compare without regard to case; dates are 'YYYY-MM-DD',
-- booleans 0 and 1, amounts in pesos. Keys are computed by the program before each insert.

-- Of this text; `pasos/N.sql` brings a store of version N-1 here.
pragma user_version = 1;

-- Laws; the one without an end is in force.
create table GLB_TB_LEYES (
    GLEY_NRO            integer primary key not null,
    GLEY_VIGENCIA_DESDE date not null,
    GLEY_VIGENCIA_HASTA date
);

create table GLB_TB_CONCEPTOS (
    GCON_ID     integer primary key not null,
    GCON_NOMBRE text(50) collate nocase not null
);

-- Value of the module by law, in pesos.
create table GLB_TB_VALORES_MODULO (
    GVMO_LEY_NRO      integer not null references GLB_TB_LEYES (GLEY_NRO),
    GVMO_CONCEPTO     text(20) collate nocase not null,
    GVMO_VALOR_MODULO real not null,
    primary key (GVMO_LEY_NRO, GVMO_CONCEPTO)
) without rowid;

create table GLB_TB_PROVINCIAS (
    GPRO_ID           integer primary key not null,
    GPRO_DESCRIPCION  text(40) collate nocase not null unique,
    GPRO_JURISDICCION text(3) collate nocase,
    GPRO_LETRA_PAT    text(1) collate nocase
);

create table GLB_TB_LOCALIDADES (
    GLOC_ID          integer primary key not null,
    GLOC_DESCRIPCION text(50) collate nocase not null,
    GPRO_ID          integer not null references GLB_TB_PROVINCIAS
);

create table GLB_TB_MONEDAS (
    GMON_ID          text(3) collate nocase primary key not null,
    GMON_DESCRIPCION text(30) collate nocase not null,
    GMON_ALIAS       text(10) collate nocase
);

create table GLB_TB_AFIP_TIPOS_DOC (
    GTDC_ID          text(3) collate nocase primary key not null,
    GTDC_DESCRIPCION text(30) collate nocase not null,
    GTDC_FREC_USO    integer not null
);

create table GLB_TB_AFIP_CODIGOS_PAIS (
    CPAI_CODIGO  text(11) collate nocase primary key not null,
    CPAI_PAIS    text(40) collate nocase not null,
    CPAI_PERSONA text(20) collate nocase not null
);

create table GLB_TB_TIPOS_SOCIEDAD (
    GTSO_ID            integer primary key not null,
    GTSO_DESCRIPCION   text(60) collate nocase not null,
    GTSO_CUIT_DIGITO_1 text(1) collate nocase not null
);

create table GLB_TB_TIPOS_UBICACION (
    GTUB_ID          integer primary key not null,
    GTUB_DESCRIPCION text(30) collate nocase not null
);

-- The identifiers are bit values: SSUB_OBLIG_ACCESORIA_SUMA is a mask of them.
create table GLB_TB_TIPOS_OBLIG_ACCESORIAS (
    GTOA_ID          integer primary key not null,
    GTOA_DESCRIPCION text(50) collate nocase not null
);

-- Bit values, like those of the ancillary obligation.
create table GLB_TB_TIPOS_GARANTIA_CUMPL (
    GTGC_ID          integer primary key not null,
    GTGC_DESCRIPCION text(50) collate nocase not null
);

create table GLB_TB_FERIADOS (
    GFER_FECHA_REAL   date primary key not null,
    GFER_FECHA_MOVIDA date
);

create table SEL_TB_PARAMETROS (
    SPRM_NOMBRE text(40) collate nocase not null,
    SPRM_VALOR  text(40) collate nocase
);

create table SEL_TB_CONCEPTOS (
    SCON_ID          integer primary key not null,
    SCON_DESCRIPCION text(100) collate nocase not null
);

create table SEL_TB_TIPOS_CALCULOS (
    STIC_ID            integer primary key not null,
    STIC_DESCRIPCION   text(30) collate nocase not null,
    STIC_OBSERVACIONES text(255) collate nocase
);

create table SEL_TB_TIPOS_CALCULO_BI (
    SCBI_ID            integer primary key not null,
    SCBI_DESCRIPCION   text(100) collate nocase not null,
    SCBI_OBSERVACIONES text(255) collate nocase
);

create table SEL_TB_NO_ALCANZADOS_DESC (
    SNAD_ID          integer primary key not null,
    SNAD_DESCRIPCION text(100) collate nocase not null,
    SNAD_ORDEN       integer not null,
    SNAD_TESTIMONIO  bool not null default 0
);

-- The taxable items: the law times 1000 plus the code of the item.
create table SEL_TB_SUBCONCEPTOS (
    SSUB_ID                           integer primary key not null,
    SSUB_DESCRIPCION                  text(200) collate nocase not null,
    SSUB_LEYVIGENCIA                  text(60) collate nocase,
    SSUB_FECHAVIGENCIA                date,
    STIC_ID                           integer not null references SEL_TB_TIPOS_CALCULOS,
    SSUB_MODULOSMIN                   real,
    SSUB_REQUIERE_BASEIMPONIBLE       bool not null default 0,
    SSUB_VALUACION_FISCAL             bool not null default 0,
    SSUB_PORC_VALUACION_FISCAL        real,
    SSUB_VALUACION_FISCAL_NOMBRE      text(50) collate nocase default 'Valuación fiscal',
    SSUB_TASACION_JUDICIAL            bool not null default 0,
    SSUB_PORC_TASACION_JUDICIAL       real,
    SSUB_VALOR_CONTRACTUAL            bool not null default 0,
    SSUB_UT_VCONTRACTUAL              bool not null default 0,
    SSUB_PORC_VCONTRACTUAL            real,
    SSUB_PERIODO_BI                   integer,
    SSUB_DENOM_VCONTRACTUAL           text(50) collate nocase,
    SSUB_REQUIERE_MONEDA              bool not null default 0,
    SSUB_DURACION                     bool not null default 0,
    SSUB_DURACION_DEFAULT             integer,
    SSUB_DURACION_COTASUP             bool not null default 0,
    SSUB_DURACION_COTA_SUPERIOR       integer,
    SSUB_EJECUCION_SUCESIVA           bool not null default 0,
    SSUB_PRORROGA                     bool not null default 0,
    SSUB_PRORROGA_DEFAULT             integer,
    SSUB_PRORROGA_COTASUP             bool not null default 0,
    SSUB_PRORROGA_COTA_SUPERIOR       integer,
    SSUB_PERIODOS_SUCESIVOS           bool not null default 0,
    SSUB_FONDO_REPARO                 bool not null default 0,
    SSUB_FONDO_REPARO_PORC            real,
    SSUB_FONDO_REPARO_NOMBRE          text(50) collate nocase default 'Fondo de reparo',
    SSUB_FONDO_REPARO_MODO_DEFAULT    text(1) collate nocase,
    SSUB_GARANTIA_CUMPLIMIENTO        bool not null default 0,
    SSUB_GARANTIA_CUMPLIMIENTO_PORC   real,
    SSUB_GARANTIA_CUMPL_MODO_DEFAULT  text(1) collate nocase,
    SSUB_GARANTIA_CUMPL_SUMA          real,
    SSUB_OBLIG_ACCESORIA              bool not null default 0,
    SSUB_OBLIG_ACCESORIA_MODO_DEFAULT text(1) collate nocase,
    SSUB_OBLIG_ACCESORIA_PORC         real,
    SSUB_OBLIG_ACCESORIA_SUMA         real,
    SSUB_HECTAREAS                    bool not null default 0,
    SSUB_TIPO_RETRIBUCION             bool not null default 0,
    SCBI_ID                           integer references SEL_TB_TIPOS_CALCULO_BI,
    SCON_ID                           integer not null references SEL_TB_CONCEPTOS,
    SSUB_EXENCION                     bool not null default 0,
    SSUB_EXENCION_PORC                real,
    SSUB_PAGOACUENTA                  bool not null default 0,
    SSUB_PAGOACUENTA_PORC             real,
    SSUB_CARGA_RAPIDA                 bool not null default 0,
    SSUB_CARGA_RAPIDA_MONTO           real,
    SSUB_SELLADO_MULTIPLE             bool not null default 0,
    SSUB_SELLADO_MULTIPLE_MONTO       real,
    SSUB_CUIT_EN_TRAMITE              bool not null default 0,
    SSUB_HIPOTECA                     bool not null default 0,
    SSUB_OBSERVACIONES                text(255) collate nocase,
    SSUB_USOS                         integer,
    AUSU_ID                           text(10) collate nocase,
    SSUB_FULTMOD                      date,
    SSUB_TESTIMONIO                   bool not null default 0
);

-- Rate brackets: above the lower bound, up to the upper one; -1 is without limit.
create table SEL_TB_ALICUOTAS (
    SSUB_ID         integer not null references SEL_TB_SUBCONCEPTOS on delete cascade,
    SALI_ID         integer primary key not null,
    SALI_DESDEVALOR real not null,
    SALI_HASTAVALOR real not null,
    SALI_ALICUOTA   real,
    SALI_DIVISOR    real,
    SALI_DIVIDENDO  real
);

create index IDX_ALICUOTAS_SUBCONCEPTO on SEL_TB_ALICUOTAS (SSUB_ID);

-- Module brackets, both bounds included; -1 is without limit.
create table SEL_TB_MODULOS (
    SSUB_ID         integer not null references SEL_TB_SUBCONCEPTOS on delete cascade,
    SMOD_ID         integer primary key not null,
    SMOD_DESDEVALOR real not null,
    SMOD_HASTAVALOR real not null,
    SMOD_MODULOS    real
);

create index IDX_MODULOS_SUBCONCEPTO on SEL_TB_MODULOS (SSUB_ID);

create table SEL_TB_ROLES (
    SROL_ID                      integer primary key not null,
    SROL_DESCRIPCION             text(60) collate nocase not null,
    SROL_REQUERIDO               bool not null default 0,
    SSUB_ID                      integer not null references SEL_TB_SUBCONCEPTOS on delete cascade,
    SROL_PARTICIPA_IMPUESTO      bool not null default 0,
    SROL_SM_CARGA_OBLIG          bool not null default 0,
    SROL_SSUB_ATRIBUTO           text(60) collate nocase,
    SROL_SSUB_ATRIBUTO_VALOR     text(60) collate nocase,
    SROL_SSUB_ATRIBUTO_TABLA     text(60) collate nocase,
    SROL_PERMITE_CUIT_EN_TRAMITE bool not null default 0,
    AUSU_ID                      text(10) collate nocase,
    SROL_FULTMOD                 date
);

create index IDX_ROLES_SUBCONCEPTO on SEL_TB_ROLES (SSUB_ID);

-- The register of agents.
create table SEL_TB_RTN_PADRON (
    SRTN_ID                integer primary key autoincrement,
    SRTN_NRO               integer not null unique,
    SRTN_NRO_REGNOTARIAL   integer not null,
    SRTN_TITULAR_NOMBRE    text(50) collate nocase not null,
    SRTN_TITULAR_CUIT      integer not null,
    SRTN_DOMICILIO         text(100) collate nocase,
    SRTN_CODPOSTAL         text(10) collate nocase,
    SRTN_TELEFONO          text(20) collate nocase,
    GLOC_ID                integer references GLB_TB_LOCALIDADES,
    SRTN_EMAIL             text(50) collate nocase,
    SRTN_ADSCRIPTO1_NOMBRE text(50) collate nocase,
    SRTN_ADSCRIPTO1_CUIT   integer,
    SRTN_ADSCRIPTO2_NOMBRE text(50) collate nocase,
    SRTN_ADSCRIPTO2_CUIT   integer
);

-- The sworn returns: the agent as it was when the DJ was made, and the running total.
create table SEL_TB_RTN_CABDJ (
    SEDJ_NRO               text(17) primary key not null,
    SEDJ_ANIO              integer,
    SEDJ_MES               integer,
    SEDJ_SECUENCIA         integer,
    SEDJ_ESTADO            integer,
    SEDJ_OBSERVACIONES     text(100) collate nocase,
    SEDJ_TOTAL_RETENIDO    real,
    SEDJ_FVENCIMIENTO      date,
    SRTN_NRO               integer,
    SEDJ_TITULAR_NOMBRE    text(50) collate nocase,
    SEDJ_TITULAR_CUIT      integer,
    SEDJ_DOMICILIO         text(100) collate nocase,
    SEDJ_CODPOSTAL         text(10) collate nocase,
    SEDJ_TELEFONO          text(20) collate nocase,
    GLOC_ID                integer references GLB_TB_LOCALIDADES,
    SEDJ_ADSCRIPTO1_NOMBRE text(50) collate nocase,
    SEDJ_ADSCRIPTO1_CUIT   integer,
    SEDJ_ADSCRIPTO2_NOMBRE text(50) collate nocase,
    SEDJ_ADSCRIPTO2_CUIT   integer,
    SEDJ_EMAIL             text(50) collate nocase,
    SEDJ_ACRED_MONTO       real,
    SEDJ_ACRED_RESOLUCION  text(7) collate nocase,
    SEDJ_MD5               text(32) collate nocase
) without rowid;

create index IDX_CABDJ_LISTA on SEL_TB_RTN_CABDJ (SRTN_NRO, SEDJ_ANIO desc, SEDJ_MES desc, SEDJ_SECUENCIA desc);

-- One row a deed.
create table SEL_TB_RTN_DETDJ (
    SEDJ_NRO               text(17) not null references SEL_TB_RTN_CABDJ on delete cascade,
    SEDD_ID                integer not null,
    SEDD_DIA               integer,
    SEDD_ESCRITURA_NRO     integer,
    SEDD_FOLIO             integer,
    SEDD_TOTAL_IMPUESTO    real,
    SEDD_OBSERVACIONES     text(50) collate nocase,
    SEDD_CERTIF_AFIP_MONTO real,
    SEDD_ESTADO            text(1),
    SEDD_ALCANZADO         text(1),
    SNAD_ID                integer references SEL_TB_NO_ALCANZADOS_DESC,
    SNAD_DESC_OTRO         text(255) collate nocase,
    SEDD_FNAME_TESTIMONIO  text(2000) collate nocase,
    primary key (SEDJ_NRO, SEDD_ID)
) without rowid;

create table SEL_TB_RTN_INS_PARTES (
    SPIN_ID              integer not null,
    SEDJ_NRO             text(17) not null,
    SEDD_ID              integer not null,
    GTDC_ID              text(3) collate nocase references GLB_TB_AFIP_TIPOS_DOC,
    SPIN_NRODOC          text(20) collate nocase,
    SPIN_CUIT            real,
    SPIN_CUIT_EN_TRAMITE bool,
    SPIN_RSOCIAL         text(100) collate nocase,
    SPIN_PORCEXENTO      real,
    SPIN_OBS             text(100) collate nocase,
    GTSO_ID              integer references GLB_TB_TIPOS_SOCIEDAD,
    SPIN_DOMICILIO       text(50) collate nocase,
    SPIN_CODPOSTAL       text(10) collate nocase,
    GLOC_ID              integer references GLB_TB_LOCALIDADES,
    GPRO_ID              integer references GLB_TB_PROVINCIAS,
    SPIN_NACIONALIDAD    text(1),
    CPAI_CODIGO          text(11) collate nocase references GLB_TB_AFIP_CODIGOS_PAIS,
    primary key (SEDJ_NRO, SEDD_ID, SPIN_ID),
    foreign key (SEDJ_NRO, SEDD_ID) references SEL_TB_RTN_DETDJ on delete cascade
) without rowid;

create table SEL_TB_RTN_INS_INMUEBLES (
    SEDJ_NRO                  text(17) not null,
    SEDD_ID                   integer not null,
    SEII_ID                   integer not null,
    SEDO_ID                   integer,
    SEII_PARTIDA              text(10) collate nocase,
    SEII_VAL_FISCAL           real,
    SEII_OBSERVACIONES        text(30) collate nocase,
    SEII_UBIC_LOTE            text(10) collate nocase,
    SEII_UBIC_MANZANA         text(10) collate nocase,
    SEII_UBIC_UFUNCIONAL      text(10) collate nocase,
    SEII_UBIC_CIRCULACION     text(10) collate nocase,
    SEII_UBIC_PISO            text(10) collate nocase,
    SEII_UBIC_DPTO            text(10) collate nocase,
    SEII_UBIC_CALLE           text(50) collate nocase,
    SEII_UBIC_NRO             text(10) collate nocase,
    SEII_UBIC_BARRIO          text(20) collate nocase,
    SEII_UBIC_CIUDAD          text(20) collate nocase,
    SEII_UBIC_DEPARTAMENTO    text(20) collate nocase,
    SEII_UBIC_PROVINCIA       text(15) collate nocase,
    GTUB_ID                   integer references GLB_TB_TIPOS_UBICACION,
    SEII_NCAT_SECCION         text(20) collate nocase,
    SEII_NCAT_FRACCION        text(20) collate nocase,
    SEII_NCAT_LOTE            text(20) collate nocase,
    SEII_NCAT_EJIDO           text(10) collate nocase,
    SEII_NCAT_CIRCUNSCRIPCION text(10) collate nocase,
    SEII_NCAT_SECTOR          text(10) collate nocase,
    SEII_NCAT_MANZANA         text(10) collate nocase,
    SEII_NCAT_PARCELA         text(10) collate nocase,
    primary key (SEDJ_NRO, SEDD_ID, SEII_ID),
    foreign key (SEDJ_NRO, SEDD_ID) references SEL_TB_RTN_DETDJ on delete cascade
) without rowid;

create table SEL_TB_RTN_INS_OPERACIONES (
    SEDJ_NRO                    text(17) not null,
    SEDD_ID                     integer not null,
    SEDO_ID                     integer not null,
    SSUB_ID                     integer not null references SEL_TB_SUBCONCEPTOS,
    SINS_BASEIMPONIBLE          real,
    SINS_VALUACION_FISCAL       real,
    SINS_MODULOS                real,
    SINS_ALICUOTA               real,
    SINS_IMPUESTO_CALCULADO     real,
    SINS_PORC_EXENTO            real,
    SINS_MONTO_EXENTO           real,
    SINS_MONTO_INICIAL          real,
    SINS_MONTO_FINAL            real,
    SINS_NRO                    text(20) collate nocase,
    SINS_ADICIONALES            real,
    SINS_OBLIG_ACCESORIA_FOP    text(1),
    SINS_OBLIG_ACCESORIA_VALOR  real,
    SINS_OBLIG_ACCESORIA_MODO   integer,
    SINS_OBLIG_ACCESORIA_POLIZA text(20) collate nocase,
    SINS_PAGO_CTA_MONTO         real,
    SINS_HIPOTECA               real,
    SINS_LEY_APLIC_IMPUESTO     text(10) collate nocase,
    SINS_OBS                    text(30) collate nocase,
    SLEX_ID                     integer,
    primary key (SEDJ_NRO, SEDD_ID, SEDO_ID),
    foreign key (SEDJ_NRO, SEDD_ID) references SEL_TB_RTN_DETDJ on delete cascade
) without rowid;

create index IDX_OPERACIONES_SUBCONCEPTO on SEL_TB_RTN_INS_OPERACIONES (SSUB_ID);

create table SEL_TB_RTN_INS_VC (
    SEDJ_NRO               text(17) not null,
    SEDD_ID                integer not null,
    SEDO_ID                integer not null,
    SVCI_ID                integer not null,
    SVCI_VALOR_CONTRACTUAL real,
    SVCI_PORC_IVA          real,
    GMON_ID                text(3) collate nocase references GLB_TB_MONEDAS,
    SVCI_VALORCAMBIO       real,
    SVCI_TOTAL             real,
    primary key (SEDJ_NRO, SEDD_ID, SEDO_ID, SVCI_ID),
    foreign key (SEDJ_NRO, SEDD_ID, SEDO_ID) references SEL_TB_RTN_INS_OPERACIONES on delete cascade
) without rowid;

-- It has two parents, so that it cascades from neither: the program deletes its rows itself. A role of the
-- catalogue that stands here is not deleted, nor is its item.
create table SEL_TB_RTN_INS_ROLES (
    SEDJ_NRO text(17) not null,
    SEDD_ID  integer not null,
    SEDO_ID  integer not null,
    SPIN_ID  integer not null,
    SROL_ID  integer not null references SEL_TB_ROLES,
    SEDR_OBS text(50) collate nocase,
    primary key (SEDJ_NRO, SEDD_ID, SEDO_ID, SPIN_ID, SROL_ID)
) without rowid;

create index IDX_INS_ROLES_ROL on SEL_TB_RTN_INS_ROLES (SROL_ID);

-- Receipts; their dates are texts DD/MM/YYYY. A receipt outlives the deed that it was issued for. Past 99999
-- a number has one digit more, which the engine keeps.
create table SEL_TB_RTN_COMP_RET (
    SCRT_NRO               text(19) collate nocase primary key not null,
    SEDJ_NRO               text(17) not null,
    SEDD_ID                integer not null,
    SCRT_ANULADO           text(1) not null,
    SCRT_MONTO_RETENIDO    real,
    SCRT_FECHA_RETENCION   text(10),
    SCRT_FECHA_ESCRITURA   text(10),
    SCRT_RTN_NOMBRE        text(50) collate nocase,
    SCRT_ADSCRIPTO1_NOMBRE text(50) collate nocase,
    SCRT_ADSCRIPTO2_NOMBRE text(50) collate nocase
) without rowid;

create index IDX_COMP_RET_RENGLON on SEL_TB_RTN_COMP_RET (SEDJ_NRO, SEDD_ID);

-- Deposit slips. A slip outlives the DJ that it was made for.
create table SEL_TB_RTN_BOLDEP (
    SBDI_ID               integer primary key autoincrement,
    SBDI_NROBOLETA        text(30) collate nocase not null,
    SBDI_FECHA_EMISION    date,
    SBDI_FECHA_VENC       date,
    SBDI_RTN_NRO          integer,
    SBDI_RTN_NOMBRE       text(50) collate nocase,
    SEDJ_NRO              text(17) not null,
    SBDI_POSICION         text(8) collate nocase,
    GBAN_ID               integer,
    GBAN_DESCRIPCION      text(50) collate nocase,
    SBDI_CUENTA           text(20) collate nocase,
    SBDI_IMPORTE          real,
    SBDI_INTERES          real,
    SBDI_MULTA            real,
    SBDI_MULTA_RESOLUCION text(20) collate nocase,
    SBDI_TOTAL            real,
    SBDI_ANULADA          bool,
    SSUB_FILIAL_BANCO     text(50) collate nocase,
    SBDI_FORMAS_PAGO      integer,
    SBDI_EFECTIVO         real,
    SBDI_CHEQUE1_NRO      text(20) collate nocase,
    SBDI_CHEQUE1_BANCO    text(50) collate nocase,
    SBDI_CHEQUE1_MONTO    real,
    SBDI_CHEQUE2_NRO      text(20) collate nocase,
    SBDI_CHEQUE2_BANCO    text(50) collate nocase,
    SBDI_CHEQUE2_MONTO    real,
    SBDI_TIPO_BOLETA      integer,
    SBDI_CODIGO_BARRAS    text(84) collate nocase
);

create index IDX_BOLDEP_NRO on SEL_TB_RTN_BOLDEP (SBDI_NROBOLETA);

create index IDX_BOLDEP_DJ on SEL_TB_RTN_BOLDEP (SEDJ_NRO);

-- Testimonio texts for the return file; read only.
create table SEL_TB_RTN_DJ_TESTIMONIOS (
    SEDJ_NRO        text(17) not null,
    SEDD_ID         integer not null,
    SEDJ_TESTIMONIO text
);

create index IDX_DJ_TESTIMONIOS on SEL_TB_RTN_DJ_TESTIMONIOS (SEDJ_NRO);

-- Tables for work in progress.
create table SEL_TMP_VALORES_CONTRACTUALES (
    SEDJ_NRO                text(17),
    SEDD_ID                 integer,
    SEDO_ID                 integer,
    SVCI_ID                 integer,
    SVCI_VALUACION_FISCAL   real,
    SVCI_VALOR_CONTRACTUAL  real,
    SVCI_PORC_IVA           real,
    GMON_ID                 text(3) collate nocase,
    SVCI_VALORCAMBIO        real,
    SVCI_HIPOTECA           real,
    SVCI_ESTIMACION_BALANCE real,
    SVCI_ITI                real,
    SVCI_TOTAL              real,
    SVCI_PRECIO_VENTA       real
);

create table SEL_TB_VALORES_CONTRACTUALES (
    SEDJ_NRO                text(17),
    SEDD_ID                 integer,
    SEDO_ID                 integer,
    SVCI_ID                 integer,
    SVCI_VALUACION_FISCAL   real,
    SVCI_VALOR_CONTRACTUAL  real,
    SVCI_PORC_IVA           real,
    GMON_ID                 text(3) collate nocase,
    SVCI_VALORCAMBIO        real,
    SVCI_HIPOTECA           real,
    SVCI_ESTIMACION_BALANCE real,
    SVCI_ITI                real,
    SVCI_TOTAL              real,
    SVCI_PRECIO_VENTA       real
);

create table SEL_TMP_DJ_OPER (
    SEDJ_NRO  text(17),
    SEDD_ID   integer,
    PARTES    text,
    INMUEBLES text
);

-- Bank accounts by tax concept.
create table GLB_TB_CUENTAS_BANCO (
    GCUE_ID   integer primary key not null,
    GBAN_ID   integer not null,
    GCUE_NRO  text(20) collate nocase not null,
    GCUE_CONV text(10) collate nocase not null,
    GCON_ID   integer not null references GLB_TB_CONCEPTOS
);
