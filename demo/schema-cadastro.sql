/* The day on which a product was registered; that of the older ones is not known. */

alter table produtos add cadastro date default current_date;
