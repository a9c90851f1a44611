#include "bench/Dados.h"

#include <QStringList>

namespace bancada
{

namespace
{

/** One of the names by a number, as a decode of SQL. */
QString Escolha(const QString &numero, const QStringList &nomes)
{
    QString texto = QStringLiteral("decode(mod(%1, %2)").arg(numero).arg(nomes.size());
    for (int i = 0; i < nomes.size(); ++i)
        texto += QStringLiteral(", %1, '%2'").arg(i).arg(nomes[i]);
    return texto + u')';
}

} // namespace

QString RoteiroDeClientes(const QString &tabela, int linhas)
{
    const QString nome = Escolha(QStringLiteral(":i * 7"),
                                 {"Ana", "Álvaro", "Beatriz", "Carlos", "Érica", "Fábio", "Íris",
                                  "João", "Luíza", "Márcio", "Otávio", "Zélia", "ana", "Águeda"});
    const QString sobrenome =
        Escolha(QStringLiteral(":i / 3"), {"Silva", "Souza", "Araújo", "Conceição", "Gonçalves",
                                           "Magalhães", "Pereira", "Simões", "Brandão"});
    const QString cidade =
        Escolha(QStringLiteral(":i / 11"), {"Campinas", "São Paulo", "Curitiba", "Belém",
                                            "Florianópolis", "Goiânia", "Maceió", "Niterói"});
    const QString rua =
        Escolha(QStringLiteral(":i / 5"), {"Rua das Acácias", "Avenida Brasil", "Praça da Sé",
                                           "Travessa São João", "Alameda dos Ipês"});
    return QStringLiteral(R"(
        create table %1 (%1_cod integer not null primary key, nome varchar(40),
            cidade varchar(20), limite numeric(15,2), nascimento date, tipo char(1),
            alterado timestamp, endereco varchar(60));
        set term ^;
        execute block as declare i integer = 1; begin
            while (i <= %2) do begin
                insert into %1 values (:i, %3 || ' ' || %4 || ' ' || mod(:i * 31, 9973), %5,
                    mod(:i * 117, 10000000) / 100.00, date '1950-01-01' + mod(:i * 13, 20000),
                    decode(mod(:i, 3), 0, 'F', 1, 'J', 'O'),
                    timestamp '2024-01-01 08:00:00' + mod(:i, 700) + mod(:i * 17, 86400) / 86400.0000,
                    %6 || ', ' || mod(:i, 1000));
                i = i + 1;
            end
        end^)")
        .arg(tabela)
        .arg(linhas)
        .arg(nome, sobrenome, cidade, rua);
}

} // namespace bancada
