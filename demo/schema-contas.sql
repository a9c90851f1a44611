/* The chart of accounts. An account stands under the one whose code its own starts with: 1.1.01
   under 1.1. Only accounts without others below them have a balance of their own. */

create table contas (
    contas_cod integer not null,
    codigo varchar(20) not null,
    descricao varchar(60) not null,
    saldo numeric(15, 2) default 0 not null,
    constraint pk_contas primary key (contas_cod),
    constraint uk_contas_codigo unique (codigo)
);
create generator contas_cod_gen;
