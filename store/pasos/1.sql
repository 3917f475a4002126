-- SPDX-License-Identifier: GPL-3.0-or-later
-- To version 1. Roles in use stay: the roles of an operation refer to the catalogue's. Receipts have the width that the
-- program writes; slips take a number twice, and are found by it. Stores of 1.0.0 say no version, whichever of these
-- tables they have already.

create table SEL_TB_RTN_INS_ROLES_NUEVA (
    SEDJ_NRO text(17) not null,
    SEDD_ID  integer not null,
    SEDO_ID  integer not null,
    SPIN_ID  integer not null,
    SROL_ID  integer not null references SEL_TB_ROLES,
    SEDR_OBS text(50) collate nocase,
    primary key (SEDJ_NRO, SEDD_ID, SEDO_ID, SPIN_ID, SROL_ID)
) without rowid;

insert into SEL_TB_RTN_INS_ROLES_NUEVA select * from SEL_TB_RTN_INS_ROLES;

drop table SEL_TB_RTN_INS_ROLES;
alter table SEL_TB_RTN_INS_ROLES_NUEVA rename to SEL_TB_RTN_INS_ROLES;
create index IDX_INS_ROLES_ROL on SEL_TB_RTN_INS_ROLES (SROL_ID);

create table SEL_TB_RTN_COMP_RET_NUEVA (
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

insert into SEL_TB_RTN_COMP_RET_NUEVA select * from SEL_TB_RTN_COMP_RET;

drop table SEL_TB_RTN_COMP_RET;
alter table SEL_TB_RTN_COMP_RET_NUEVA rename to SEL_TB_RTN_COMP_RET;
create index IDX_COMP_RET_RENGLON on SEL_TB_RTN_COMP_RET (SEDJ_NRO, SEDD_ID);

create table SEL_TB_RTN_BOLDEP_NUEVA (
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

insert into SEL_TB_RTN_BOLDEP_NUEVA select * from SEL_TB_RTN_BOLDEP;

-- A number that was given once is not given again.
delete from sqlite_sequence where name = 'SEL_TB_RTN_BOLDEP_NUEVA';
insert into sqlite_sequence (name, seq)
select 'SEL_TB_RTN_BOLDEP_NUEVA', seq from sqlite_sequence where name = 'SEL_TB_RTN_BOLDEP';

drop table SEL_TB_RTN_BOLDEP;
alter table SEL_TB_RTN_BOLDEP_NUEVA rename to SEL_TB_RTN_BOLDEP;
create index IDX_BOLDEP_NRO on SEL_TB_RTN_BOLDEP (SBDI_NROBOLETA);
create index IDX_BOLDEP_DJ on SEL_TB_RTN_BOLDEP (SEDJ_NRO);
