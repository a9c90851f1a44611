/* The postal-code guide: states, municípios, bairros and streets. Its names sort as a dictionary
   does. Every look-up of an address goes through an index: the lists through the foreign keys, a
   CEP through its own. */

create table cep_uf (
    uf_cod char(1) not null,
    sigla char(2) not null,
    constraint pk_cep_uf primary key (uf_cod),
    constraint uk_cep_uf_sigla unique (sigla)
);

create table cep_mun (
    mun_cod integer not null,
    uf_cod char(1) not null,
    nome varchar(30) not null collate pt_pt,
    constraint pk_cep_mun primary key (mun_cod),
    constraint fk_cep_mun_uf foreign key (uf_cod) references cep_uf (uf_cod)
);

create table cep_bai (
    bai_cod integer not null,
    mun_cod integer not null,
    nome varchar(40) not null collate pt_pt,
    constraint pk_cep_bai primary key (bai_cod),
    constraint fk_cep_bai_mun foreign key (mun_cod) references cep_mun (mun_cod)
);

create table cep_tipologr (
    tipologr_cod char(1) not null,
    nome varchar(7) not null,
    constraint pk_cep_tipologr primary key (tipologr_cod)
);

/* A CEP without a street is that of a whole town. The kind of street has no foreign key: an index
   over a handful of kinds would only lead the engine astray. */
create table cep_logr (
    logr_cod integer not null,
    bai_cod integer not null,
    tipologr_cod char(1) not null,
    nome varchar(60) not null collate pt_pt,
    compl varchar(51) default '' not null,
    cep char(8) not null,
    constraint pk_cep_logr primary key (logr_cod),
    constraint fk_cep_logr_bai foreign key (bai_cod) references cep_bai (bai_cod)
);
create index ix_cep_logr_cep on cep_logr (cep);
create descending index ix_cep_logr_cod_desc on cep_logr (logr_cod);

/* The streets by the name that the code column and its generator have; it can be written to. */
create view logr as select logr_cod, bai_cod, tipologr_cod, nome, compl, cep from cep_logr;
create generator logr_cod_gen;
