-- SPDX-License-Identifier: GPL-3.0-or-later
-- From the present schema back to that of the first release: what stands in these tables stays.
drop view SEL_VW_MAX_COMPROB;
drop view SEL_VW_RTN_INS_PARTES;

create table VIEJA (
    SEDJ_NRO text(17) not null,
    SEDD_ID  integer not null,
    SEDO_ID  integer not null,
    SPIN_ID  integer not null,
    SROL_ID  integer not null,
    SEDR_OBS text(50) collate nocase,
    primary key (SEDJ_NRO, SEDD_ID, SEDO_ID, SPIN_ID, SROL_ID)
) without rowid;
insert into VIEJA select * from SEL_TB_RTN_INS_ROLES;
drop table SEL_TB_RTN_INS_ROLES;
alter table VIEJA rename to SEL_TB_RTN_INS_ROLES;

create table VIEJA (
    SCRT_NRO               text(20) collate nocase primary key not null,
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
insert into VIEJA select * from SEL_TB_RTN_COMP_RET;
drop table SEL_TB_RTN_COMP_RET;
alter table VIEJA rename to SEL_TB_RTN_COMP_RET;
create index IDX_COMP_RET_RENGLON on SEL_TB_RTN_COMP_RET (SEDJ_NRO, SEDD_ID);

create table VIEJA (
    SBDI_ID               integer primary key autoincrement,
    SBDI_NROBOLETA        text(24) collate nocase not null unique,
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
insert into VIEJA select * from SEL_TB_RTN_BOLDEP;
drop table SEL_TB_RTN_BOLDEP;
alter table VIEJA rename to SEL_TB_RTN_BOLDEP;
create index IDX_BOLDEP_DJ on SEL_TB_RTN_BOLDEP (SEDJ_NRO);

create view SEL_VW_MAX_COMPROB as
select SEDJ_NRO, SEDD_ID, max(SCRT_NRO) as MAX_SCRT_NRO
  from SEL_TB_RTN_COMP_RET
 group by SEDJ_NRO, SEDD_ID;

create view SEL_VW_RTN_INS_PARTES as
select P.SEDJ_NRO, P.SEDD_ID, P.SPIN_ID, RI.SEDO_ID, RI.SROL_ID, R.SROL_DESCRIPCION,
       P.GTDC_ID, P.SPIN_NRODOC, P.SPIN_RSOCIAL
  from SEL_TB_RTN_INS_PARTES P
  left join SEL_TB_RTN_INS_ROLES RI
    on RI.SEDJ_NRO = P.SEDJ_NRO and RI.SEDD_ID = P.SEDD_ID and RI.SPIN_ID = P.SPIN_ID
  left join SEL_TB_ROLES R on R.SROL_ID = RI.SROL_ID;
pragma user_version = 0;
