/* The day on which a client was registered, not known of the older ones; how much may be owed; and
   whether anything may still be sold to the client. */

alter table clientes add cadastro date default current_date;
alter table clientes add limite numeric(15, 2) default 0 not null;
alter table clientes add ativo char(1) default 'S' not null;
