/* The sales. A sale keeps the names of its client and of what was sold as they were that day. */

create table vendas (
    vendas_cod integer not null,
    data date not null,
    cliente varchar(60) not null,
    /* Per cent. */
    desconto numeric(4, 1) default 0 not null,
    /* Nothing for what was paid at once. */
    vencimento date,
    observacao varchar(300) default '' not null,
    constraint pk_vendas primary key (vendas_cod),
    constraint ck_vendas_desconto check (desconto between 0 and 100)
);
create generator vendas_cod_gen;
create index ix_vendas_data on vendas (data);

create table vendas_itens (
    vendas_cod integer not null,
    item integer not null,
    produtos_cod integer not null,
    descricao varchar(60) not null,
    quantidade integer not null,
    preco numeric(15, 2) not null,
    constraint pk_vendas_itens primary key (vendas_cod, item),
    constraint fk_vendas_itens foreign key (vendas_cod) references vendas (vendas_cod)
        on delete cascade
);
create index ix_vendas_itens_produto on vendas_itens (produtos_cod);
