// The arithmetic of the bench's table: what a figure is, which way it is bounded, and in which
// order the lines stand.

#include "bench/Relatorio.h"

#include <QJsonDocument>

#include <cmath>

#include <gtest/gtest.h>

using namespace bancada;

namespace
{

TSerie Serie(const QVector<double> &segundos)
{
    return {segundos, {}};
}

TExigencia Exigencia(const QString &linha)
{
    TExigencia e;
    e.Linha = linha;
    e.Nosso.Medida = QStringLiteral("ours");
    e.Par.Medida = QStringLiteral("peer");
    return e;
}

/** The line of one requirement, ours and the peer's being these. */
TLinhaDoRelatorio Linha(const TExigencia &e, const QVector<double> &nossos,
                        const QVector<double> &deles, bool verificar = false)
{
    TResultado r;
    r.Series[QStringLiteral("ours")] = Serie(nossos);
    r.Series[QStringLiteral("peer")] = Serie(deles);
    r.Exigencias = {e};
    return Avaliar({r}, verificar).constFirst();
}

QString Ordem(const QStringList &linhas)
{
    TResultado r;
    for (const QString &linha : linhas)
        r.Exigencias.append(Exigencia(linha));
    QStringList ordenadas;
    for (const TLinhaDoRelatorio &l : Avaliar({r}, false))
        ordenadas.append(l.Exigencia.Linha);
    return ordenadas.join(u' ');
}

} // namespace

TEST(MedidasTest, TheMedianIsTheMiddleOrTheMeanOfTheTwoMiddleOnes)
{
    EXPECT_EQ(Mediana({3, 1, 2}), 2);
    EXPECT_EQ(Mediana({4, 1, 3, 2}), 2.5);
    EXPECT_EQ(Mediana({7}), 7);
    EXPECT_TRUE(std::isnan(Mediana({})));
}

TEST(MedidasTest, AQuantileIsAMeasuredValueByItsRank)
{
    QVector<double> cem;
    for (int i = 100; i > 0; --i)
        cem.append(i);
    EXPECT_EQ(Quantil(cem, 0.99), 99);
    EXPECT_EQ(Quantil(cem, 0.5), 50);
    EXPECT_EQ(Quantil(cem, 1), 100);
    EXPECT_EQ(Quantil(cem, 0), 1);
    EXPECT_EQ(Quantil({5, 1, 3}, 0.99), 5);
    EXPECT_EQ(Quantil({5, 1, 3}, 0.34), 3);
    EXPECT_EQ(Quantil({5, 1, 3}, 0.33), 1);
    EXPECT_TRUE(std::isnan(Quantil({}, 0.5)));
}

TEST(RelatorioTest, FromAboveTheRatioIsOursToThePeers)
{
    TExigencia e = Exigencia(QStringLiteral("1"));
    e.Limite = 2;
    TLinhaDoRelatorio l = Linha(e, {4, 100, 4}, {2, 2, 0.001});
    EXPECT_EQ(l.Nosso, 4);
    EXPECT_EQ(l.Par, 2);
    EXPECT_EQ(l.Valor, 2);
    EXPECT_TRUE(l.Atingido) << "the bound itself is within";
    l = Linha(e, {4.001}, {2});
    EXPECT_FALSE(l.Atingido);
}

TEST(RelatorioTest, FromBelowItIsHowManyTimesOursThePeerTakes)
{
    TExigencia e = Exigencia(QStringLiteral("2"));
    e.Sentido = TSentido::NoMinimo;
    e.Limite = 3;
    TLinhaDoRelatorio l = Linha(e, {2}, {6});
    EXPECT_EQ(l.Valor, 3);
    EXPECT_TRUE(l.Atingido);
    EXPECT_FALSE(Linha(e, {2}, {5.9}).Atingido);
    EXPECT_TRUE(Linha(e, {2}, {600}).Atingido);
}

TEST(RelatorioTest, WithoutAPeerTheFigureItselfIsBounded)
{
    TExigencia e = Exigencia(QStringLiteral("3"));
    e.Par = {};
    e.Limite = 0.150;
    EXPECT_EQ(Linha(e, {0.150}, {}).Valor, 0.150);
    EXPECT_TRUE(Linha(e, {0.150}, {}).Atingido);
    EXPECT_TRUE(Linha(e, {-0.01}, {}).Atingido);
    EXPECT_FALSE(Linha(e, {0.151}, {}).Atingido);
    e.Limite = 0;
    EXPECT_TRUE(Linha(e, {0}, {}).Atingido);
    EXPECT_FALSE(Linha(e, {1}, {}).Atingido);
}

TEST(RelatorioTest, TheShortCheckHasABoundOfItsOwn)
{
    TExigencia e = Exigencia(QStringLiteral("4"));
    e.Limite = 2;
    e.NaVerificacao = 5;
    EXPECT_FALSE(Linha(e, {4}, {1}).Atingido);
    EXPECT_EQ(Linha(e, {4}, {1}).Limite, 2);
    EXPECT_TRUE(Linha(e, {4}, {1}, true).Atingido);
    EXPECT_EQ(Linha(e, {4}, {1}, true).Limite, 5);
}

TEST(RelatorioTest, TheShortCheckHoldsRatiosAndCountsOnly)
{
    TExigencia razao = Exigencia(QStringLiteral("1"));
    TExigencia tempo = Exigencia(QStringLiteral("2"));
    tempo.Par = {};
    TExigencia contagem = tempo;
    contagem.Linha = QStringLiteral("3");
    contagem.Nosso.Unidade = TUnidade::Numero;
    TResultado r;
    r.Exigencias = {razao, tempo, contagem};
    QStringList linhas;
    for (const TLinhaDoRelatorio &l : Avaliar({r}, true))
        linhas.append(l.Exigencia.Linha);
    EXPECT_EQ(linhas.join(u' '), QStringLiteral("1 3"));
    EXPECT_EQ(Avaliar({r}, false).size(), 3);
}

TEST(RelatorioTest, WhatWasNotMeasuredIsNeverReached)
{
    for (const TSentido sentido : {TSentido::NoMaximo, TSentido::NoMinimo}) {
        TExigencia e = Exigencia(QStringLiteral("5"));
        e.Sentido = sentido;
        e.Limite = sentido == TSentido::NoMaximo ? 1e9 : 0;
        TResultado nada;
        nada.Exigencias = {e};
        EXPECT_FALSE(Avaliar({nada}, false).constFirst().Atingido) << "neither";
        EXPECT_FALSE(Linha(e, {}, {1}).Atingido) << "ours is empty";
        EXPECT_FALSE(Linha(e, {1}, {}).Atingido) << "the peer's is empty";
        e.Nosso.Contador = QStringLiteral("bytes");
        EXPECT_FALSE(Linha(e, {1}, {1}).Atingido) << "a counter that nobody counted";
        e.Nosso.Contador.clear();
        e.Par = {};
        EXPECT_FALSE(Linha(e, {}, {}).Atingido) << "an absolute one";
    }
    TExigencia e = Exigencia(QStringLiteral("5"));
    EXPECT_TRUE(Tabela({Linha(e, {}, {1})}).contains(QStringLiteral("missing")));
}

TEST(RelatorioTest, ACounterAndAPeerOfAnotherGroupAreFound)
{
    TExigencia e = Exigencia(QStringLiteral("6"));
    e.Nosso.Contador = QStringLiteral("bytes");
    e.Limite = 3;
    TResultado nosso;
    nosso.Series[QStringLiteral("ours")] = {{99}, {{QStringLiteral("bytes"), {10, 30, 20}}}};
    nosso.Exigencias = {e};
    TResultado outro;
    outro.Series[QStringLiteral("peer")] = Serie({10});
    const TLinhaDoRelatorio l = Avaliar({nosso, outro}, false).constFirst();
    EXPECT_EQ(l.Nosso, 20);
    EXPECT_EQ(l.Valor, 2);
    EXPECT_TRUE(l.Atingido);
}

TEST(RelatorioTest, TheLinesStandInTheOrderOfTheirNumbersThenOfTheirLetters)
{
    EXPECT_EQ(Ordem({QStringLiteral("10"), QStringLiteral("7b"), QStringLiteral("2"),
                     QStringLiteral("7a"), QStringLiteral("1"), QStringLiteral("7")}),
              QStringLiteral("1 2 7 7a 7b 10"));
}

TEST(RelatorioTest, TheSpreadIsHalfTheRangeBetweenTheQuartiles)
{
    const TLinhaDoRelatorio l =
        Linha(Exigencia(QStringLiteral("8")), {10, 20, 30, 40, 1000}, {5, 5, 5});
    EXPECT_DOUBLE_EQ(l.EspalhamentoNosso, (40.0 - 20.0) / 2 / 30);
    EXPECT_EQ(l.EspalhamentoPar, 0);
}

TEST(RelatorioTest, FiguresAreWrittenInThreeDigitsWithTheirUnit)
{
    EXPECT_EQ(Escrito(1.234, TUnidade::Tempo), QStringLiteral("1.23 s"));
    EXPECT_EQ(Escrito(0.0123, TUnidade::Tempo), QStringLiteral("12.3 ms"));
    EXPECT_EQ(Escrito(123e-6, TUnidade::Tempo), QStringLiteral("123 µs"));
    EXPECT_EQ(Escrito(45e-9, TUnidade::Tempo), QStringLiteral("45.0 ns"));
    EXPECT_EQ(Escrito(17e6, TUnidade::Bytes), QStringLiteral("17.0 MB"));
    EXPECT_EQ(Escrito(2500, TUnidade::Bytes), QStringLiteral("2.50 kB"));
    EXPECT_EQ(Escrito(96, TUnidade::Bytes), QStringLiteral("96.0 B"));
    EXPECT_EQ(Escrito(0, TUnidade::Numero), QStringLiteral("0"));
    EXPECT_EQ(Escrito(200000, TUnidade::Numero), QStringLiteral("200000"));
    EXPECT_EQ(Escrito(std::nan(""), TUnidade::Tempo), QStringLiteral("missing"));
}

TEST(RelatorioTest, TheTableSaysWhatIsMissedAndPutsTheNotesBelow)
{
    TExigencia e = Exigencia(QStringLiteral("9"));
    e.Trabalho = QStringLiteral("the work");
    e.Limite = 1.5;
    e.Nota = QStringLiteral("what is compared");
    const QString perdida = Tabela({Linha(e, {2, 2, 2}, {1, 1, 1})});
    EXPECT_TRUE(perdida.contains(QStringLiteral("| 9 | the work | 2.00 s | peer | 1.00 s | 2.00× "
                                                "| ≤ 1.50× | **NO** |")))
        << perdida.toStdString();
    EXPECT_TRUE(perdida.endsWith(QStringLiteral("\n- 9: what is compared\n")));
    const QString atingida = Tabela({Linha(e, {1}, {1})});
    EXPECT_TRUE(atingida.contains(QStringLiteral("| yes |")));
    EXPECT_FALSE(atingida.contains(QStringLiteral("NO")));
}

TEST(RelatorioTest, AGroupsResultSurvivesItsFile)
{
    TExigencia e{.Linha = QStringLiteral("7b"),
                 .Trabalho = QStringLiteral("o trabalho, com acentuação"),
                 .Nosso = {QStringLiteral("ours"), QStringLiteral("bytes"), TUnidade::Bytes},
                 .Par = {QStringLiteral("peer"), {}, TUnidade::Numero},
                 .Sentido = TSentido::NoMinimo,
                 .Limite = 1.25,
                 .NaVerificacao = 0.5,
                 .Nota = QStringLiteral("nota")};
    TResultado r;
    r.Series[QStringLiteral("ours")] = {{0.1, 0.2}, {{QStringLiteral("bytes"), {1, 2, 3}}}};
    r.Series[QStringLiteral("peer")] = Serie({1e-9});
    r.Exigencias = {e, Exigencia(QStringLiteral("8"))};
    const QByteArray arquivo = QJsonDocument(r.ParaJson()).toJson();
    const TResultado lido = TResultado::DeJson(QJsonDocument::fromJson(arquivo).object());
    ASSERT_EQ(lido.Series.keys(), r.Series.keys());
    EXPECT_EQ(lido.Series[QStringLiteral("ours")].Segundos, (QVector<double>{0.1, 0.2}));
    EXPECT_EQ(lido.Series[QStringLiteral("ours")].Contadores,
              r.Series[QStringLiteral("ours")].Contadores);
    EXPECT_EQ(lido.Series[QStringLiteral("peer")].Segundos, (QVector<double>{1e-9}));
    ASSERT_EQ(lido.Exigencias.size(), 2);
    const TExigencia &l = lido.Exigencias.constFirst();
    EXPECT_EQ(l.Linha, e.Linha);
    EXPECT_EQ(l.Trabalho, e.Trabalho);
    EXPECT_EQ(l.Nosso.Medida, e.Nosso.Medida);
    EXPECT_EQ(l.Nosso.Contador, e.Nosso.Contador);
    EXPECT_EQ(l.Nosso.Unidade, e.Nosso.Unidade);
    EXPECT_EQ(l.Par.Medida, e.Par.Medida);
    EXPECT_EQ(l.Par.Unidade, e.Par.Unidade);
    EXPECT_EQ(l.Sentido, e.Sentido);
    EXPECT_EQ(l.Limite, e.Limite);
    EXPECT_EQ(l.NaVerificacao, e.NaVerificacao);
    EXPECT_EQ(l.Nota, e.Nota);
    EXPECT_EQ(Tabela(Avaliar({lido}, false)), Tabela(Avaliar({r}, false)));
}
