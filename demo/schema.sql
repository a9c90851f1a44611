/* The tables of the demo's small trading company. Codes come from the generator named after the
   code column; every text is ISO8859_1, the database's own character set. */

create table grupos (
    grupos_cod integer not null,
    descricao varchar(40) not null,
    constraint pk_grupos primary key (grupos_cod),
    constraint uk_grupos_descricao unique (descricao)
);
create generator grupos_cod_gen;

create table produtos (
    produtos_cod integer not null,
    descricao varchar(60) not null,
    grupos_cod integer not null,
    preco numeric(15, 2) default 0 not null,
    estoque integer default 0 not null,
    /* One character: the option's index in the screen's list + 33. */
    unidade char(1) default '!' not null,
    ativo char(1) default 'S' not null,
    observacao blob sub_type text,
    constraint pk_produtos primary key (produtos_cod),
    constraint uk_produtos_descricao unique (descricao),
    constraint fk_produtos_grupos foreign key (grupos_cod) references grupos (grupos_cod)
);
create generator produtos_cod_gen;
create descending index ix_produtos_cod_desc on produtos (produtos_cod);
create descending index ix_grupos_cod_desc on grupos (grupos_cod);

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
