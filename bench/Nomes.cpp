#include "bench/Nomes.h"

#include <QRandomGenerator>

namespace bancada
{

QStringList NomesDePessoas(int quantos)
{
    const QStringList primeiros = {"José",      "Ana",   "Márcia", "álvaro", "João",
                                   "Conceição", "Érica", "Luís",   "antônio"};
    const QStringList ultimos = {"da Silva", "Araújo", "Gonçalves", "de Sá", "Assunção", "Brandão"};
    QRandomGenerator sorte(1988);
    const auto um = [&](const QStringList &de) { return de[sorte.bounded(int(de.size()))]; };
    QStringList nomes;
    nomes.reserve(quantos);
    for (int i = 0; i < quantos; ++i) {
        nomes << um(primeiros) + u' ' + um(ultimos) + u' ' + um(ultimos) + u' ' +
                     QString::number(sorte.bounded(100000));
    }
    return nomes;
}

} // namespace bancada
