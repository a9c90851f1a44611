/* The tables of the demo's small trading company, as its first version had them; what came later is
   in the scripts beside this one, which bring an older database up as well. Codes come from the
   generator named after the code column; every text is ISO8859_1, the database's own character
   set. */

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
