/* The clients, and the bar codes of the products. */

create table clientes (
    clientes_cod integer not null,
    nome varchar(60) not null,
    nome_menor varchar(30) default '' not null,
    /* 0 a person, 1 a company. */
    tipo_pess smallint default 0 not null,
    /* Bare, as they are told apart: one of the two, by the kind of person. */
    cpf varchar(11),
    cnpj varchar(14),
    /* The three documents as they are shown; the first one is the CPF or the CNPJ. */
    doc_c varchar(18) default '' not null,
    doc_i varchar(20) default '' not null,
    doc_m varchar(20) default '' not null,
    nascimento date,
    cep varchar(8) default '' not null,
    uf varchar(2) default '' not null,
    mun varchar(30) default '' not null,
    bai varchar(40) default '' not null,
    logr varchar(70) default '' not null,
    num varchar(6) default '' not null,
    compl varchar(20) default '' not null,
    ddd varchar(2) default '' not null,
    fone1 varchar(10) default '' not null,
    fone2 varchar(10) default '' not null,
    fax varchar(10) default '' not null,
    email varchar(50) default '' not null,
    pagina varchar(50) default '' not null,
    grupos_cod integer,
    /* The path of a picture. */
    foto varchar(255) default '' not null,
    notas blob sub_type text,
    constraint pk_clientes primary key (clientes_cod),
    constraint uk_clientes_cpf unique (cpf),
    constraint uk_clientes_cnpj unique (cnpj),
    constraint fk_clientes_grupos foreign key (grupos_cod) references grupos (grupos_cod),
    constraint ck_clientes_tipo_pess check (tipo_pess in (0, 1))
);
create generator clientes_cod_gen;
create descending index ix_clientes_cod_desc on clientes (clientes_cod);

alter table produtos add cod_barras varchar(14) default '' not null;
