#include "platform/database/TClientDataSet.h"

#include "platform/database/Colacao.h"
#include "platform/database/EDatabaseError.h"

#include <QCollator>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <limits>

#include <gtest/gtest.h>

using namespace ficha;

namespace
{

class TClientDataSetTest : public testing::Test
{
protected:
    TClientDataSetTest()
    {
        nome = cds.AddField(QStringLiteral("nome"), TFieldType::ftString, 40);
        quant = cds.AddField(QStringLiteral("quant"), TFieldType::ftInteger);
        preco = cds.AddField(QStringLiteral("preco"), TFieldType::ftFloat);
        data = cds.AddField(QStringLiteral("data"), TFieldType::ftDateTime);
        ativo = cds.AddField(QStringLiteral("ativo"), TFieldType::ftBoolean);
        cds.CreateDataSet();
        cds.Open();
    }
    void Por(const QStringList &nomes)
    {
        for (const QString &n : nomes)
            cds.AppendRecord({n, int(cds.RecordCount()) + 1});
        cds.First();
    }
    /** The texts of a column in the order shown. */
    QStringList Coluna(const TField *campo)
    {
        QStringList lista;
        for (int i = 1; i <= cds.RecordCount(); ++i) {
            const TLerLinha ler(&cds, i);
            lista << campo->AsString();
        }
        return lista;
    }
    QStringList Nomes() { return Coluna(nome); }

    TClientDataSet cds;
    TField *nome = nullptr, *quant = nullptr, *preco = nullptr, *data = nullptr, *ativo = nullptr;
};

QStringList L(const char *nomes)
{
    return QString::fromUtf8(nomes).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

TEST_F(TClientDataSetTest, StartsEmptyAndOpen)
{
    EXPECT_TRUE(cds.Active());
    EXPECT_EQ(cds.RecordCount(), 0);
    EXPECT_EQ(cds.RecNo(), 0);
    EXPECT_TRUE(cds.Bof() && cds.Eof());
    EXPECT_EQ(cds.FieldCount(), 5);
    EXPECT_EQ(cds.State(), dsBrowse);
    EXPECT_TRUE(nome->IsNull());
}

TEST_F(TClientDataSetTest, HoldsEveryKindOfValueAndNull)
{
    const TDateTime dia(QDateTime(QDate(2003, 12, 31), QTime(10, 30)));
    cds.AppendRecord({QStringLiteral("Ação € 漢"), -7, 1234.56, dia, 1});
    EXPECT_EQ(nome->AsString(), QStringLiteral("Ação € 漢"));
    EXPECT_EQ(quant->AsInteger(), -7);
    EXPECT_TRUE(quant->Value().EhInteiro());
    EXPECT_EQ(preco->AsFloat(), 1234.56);
    EXPECT_EQ(preco->AsString(), QStringLiteral("1234,56"));
    EXPECT_EQ(data->AsDateTime(), dia);
    EXPECT_EQ(data->AsString(), QStringLiteral("31/12/2003 10:30:00"));
    EXPECT_TRUE(ativo->AsBoolean());
    EXPECT_EQ(nome->Size(), 40);

    cds.AppendRecord({QStringLiteral("")});
    EXPECT_FALSE(nome->IsNull()) << "an empty text is a value";
    for (const TField *campo : {quant, preco, data, ativo}) {
        EXPECT_TRUE(campo->IsNull());
        EXPECT_EQ(campo->AsString(), QString());
    }
}

TEST_F(TClientDataSetTest, ValuesBecomeTheColumnsKindOrAreRefused)
{
    cds.Append();
    quant->SetAsString(QStringLiteral("12"));
    data->SetAsString(QStringLiteral("02/01/1980"));
    ativo->SetAsInteger(5);
    EXPECT_TRUE(quant->Value().EhInteiro());
    EXPECT_EQ(data->AsDateTime().Dias(), 29222);
    EXPECT_EQ(ativo->AsInteger(), 1);
    EXPECT_THROW(quant->SetAsString(QStringLiteral("doze")), EVariantError);
    EXPECT_THROW(nome->SetAsString(QString(41, u'x')), EDatabaseError);
    nome->SetAsString(QString(40, u'x'));
    cds.Post();
    EXPECT_EQ(nome->AsString().size(), 40);
    EXPECT_EQ(quant->AsInteger(), 12);
}

TEST_F(TClientDataSetTest, AFieldNameIsUsedOnce)
{
    TClientDataSet outro;
    outro.AddField(QStringLiteral("cod"), TFieldType::ftInteger);
    EXPECT_THROW(outro.AddField(QStringLiteral("COD"), TFieldType::ftString, 5), EDatabaseError);
    EXPECT_THROW(outro.AddField(QString(), TFieldType::ftString, 5), EDatabaseError);
    EXPECT_THROW(outro.AddField(QStringLiteral("b"), TFieldType::ftBlob), EDatabaseError);
    outro.CreateDataSet();
    EXPECT_THROW(outro.AddField(QStringLiteral("mais"), TFieldType::ftInteger), EDatabaseError);
    EXPECT_THROW(outro.CreateDataSet(), EDatabaseError);
}

TEST(TClientDataSet, WithoutFieldsOrUncreatedItIsRefused)
{
    TClientDataSet cds;
    EXPECT_THROW(cds.Open(), EDatabaseError);
    EXPECT_FALSE(cds.Active());
    EXPECT_THROW(cds.CreateDataSet(), EDatabaseError);
    EXPECT_THROW(cds.Append(), EDatabaseError);
    cds.AddField(QStringLiteral("a"), TFieldType::ftInteger);
    cds.CreateDataSet();
    EXPECT_THROW(cds.Append(), EDatabaseError) << "closed";
    cds.Open();
    EXPECT_THROW(cds.Post(), EDatabaseError);
    EXPECT_THROW(cds.Edit(), EDatabaseError);
    EXPECT_THROW(cds.Delete(), EDatabaseError);
    EXPECT_THROW(cds.Fields(0)->SetAsInteger(1), EDatabaseError) << "not in an edit state";
}

TEST_F(TClientDataSetTest, FieldsCarryWhatAScreenSets)
{
    EXPECT_EQ(nome->DisplayLabel(), QStringLiteral("nome"));
    EXPECT_EQ(nome->Alignment(), taLeftJustify);
    preco->SetName(QStringLiteral("CDS1preco"));
    preco->SetDisplayLabel(QStringLiteral("Preço"));
    preco->SetAlignment(taRightJustify);
    preco->SetDisplayFormat(QStringLiteral("#,##0.00"));
    cds.Close();
    cds.Open();
    EXPECT_EQ(cds.FieldByName(QStringLiteral("PRECO")), preco);
    EXPECT_EQ(preco->Name(), QStringLiteral("CDS1preco"));
    EXPECT_EQ(preco->Alignment(), taRightJustify);
    EXPECT_EQ(preco->DisplayFormat(), QStringLiteral("#,##0.00"));
}

TEST_F(TClientDataSetTest, ClosingHidesTheRowsAndKeepsThem)
{
    Por(L("um dois"));
    cds.Close();
    EXPECT_EQ(cds.RecordCount(), 0);
    EXPECT_TRUE(nome->IsNull());
    cds.Open();
    EXPECT_EQ(Nomes(), L("um dois"));
    EXPECT_EQ(cds.RecNo(), 1);
    cds.EmptyDataSet();
    EXPECT_EQ(cds.RecordCount(), 0);
    EXPECT_TRUE(cds.Active());
    cds.Close();
    cds.Open();
    EXPECT_EQ(cds.RecordCount(), 0);
}

TEST_F(TClientDataSetTest, EditsAndCancelsWithTheFieldsReadingTheRowUnderEdit)
{
    Por(L("um dois"));
    cds.Edit();
    EXPECT_EQ(cds.State(), dsEdit);
    nome->SetAsString(QStringLiteral("novo"));
    EXPECT_EQ(nome->AsString(), QStringLiteral("novo"));
    EXPECT_EQ(quant->AsInteger(), 1);
    EXPECT_EQ(Nomes(), L("um dois")) << "the row itself is written by Post";
    cds.Cancel();
    EXPECT_EQ(nome->AsString(), QStringLiteral("um"));
    cds.Edit();
    nome->SetAsString(QStringLiteral("novo"));
    cds.Post();
    EXPECT_EQ(cds.State(), dsBrowse);
    EXPECT_EQ(Nomes(), L("novo dois"));

    cds.Append();
    EXPECT_TRUE(nome->IsNull());
    EXPECT_EQ(cds.RecordCount(), 2);
    cds.Cancel();
    EXPECT_EQ(cds.RecNo(), 1);
    EXPECT_EQ(nome->AsString(), QStringLiteral("novo"));
}

TEST_F(TClientDataSetTest, AMovePostsWhatWasWrittenAndDropsAnUntouchedRow)
{
    Por(L("um dois"));
    cds.Append();
    nome->SetAsString(QStringLiteral("três"));
    cds.First();
    EXPECT_EQ(cds.State(), dsBrowse);
    EXPECT_EQ(Nomes(), L("um dois três"));
    cds.Append();
    cds.Next();
    EXPECT_EQ(cds.RecordCount(), 3);
    EXPECT_EQ(cds.RecNo(), 2);
}

TEST_F(TClientDataSetTest, DeletingMakesTheNextRowCurrent)
{
    Por(L("um dois três"));
    cds.Next();
    cds.Delete();
    EXPECT_EQ(Nomes(), L("um três"));
    EXPECT_EQ(nome->AsString(), QStringLiteral("três"));
    cds.Delete();
    EXPECT_EQ(nome->AsString(), QStringLiteral("um")) << "the last one gone, the one before";
    cds.Delete();
    EXPECT_EQ(cds.RecNo(), 0);
    EXPECT_TRUE(cds.Bof() && cds.Eof());
    Por(L("quatro"));
    EXPECT_EQ(Nomes(), L("quatro"));
}

TEST_F(TClientDataSetTest, DeletingMostRowsGivesTheirMemoryBackAndKeepsTheRest)
{
    for (int i = 0; i < 5000; ++i)
        cds.AppendRecord({QStringLiteral("um nome comprido de número %1").arg(i), i});
    cds.Last();
    const TBookmark marca = cds.GetBookmark();
    const qint64 cheio = cds.BytesUsados();
    cds.First();
    while (cds.RecordCount() > 100)
        cds.Delete();
    EXPECT_LT(cds.BytesUsados(), cheio / 2);
    EXPECT_EQ(quant->AsInteger(), 4900);
    EXPECT_EQ(nome->AsString(), QStringLiteral("um nome comprido de número 4900"));
    ASSERT_TRUE(cds.GotoBookmark(marca));
    EXPECT_EQ(quant->AsInteger(), 4999);
    EXPECT_EQ(cds.RecNo(), 100);
}

TEST_F(TClientDataSetTest, IndexesSortInBrazilianOrder)
{
    Por(L("zebra Árvore arvore avô avó Avo abacate Çedilha casa dado árvore"));
    cds.AddIndex(QStringLiteral("anome"), QStringLiteral("nome"));
    cds.SetIndexName(QStringLiteral("anome"));
    EXPECT_EQ(Nomes(), L("abacate arvore árvore Árvore Avo avó avô casa Çedilha dado zebra"));
}

TEST_F(TClientDataSetTest, DescendingKeepsEqualRowsInTheirOrderOfInsertion)
{
    Por(L("b a b a c"));
    cds.AddIndex(QStringLiteral("anome"), QStringLiteral("nome"));
    cds.AddIndex(QStringLiteral("dnome"), QStringLiteral("nome"), ixDescending);
    cds.SetIndexName(QStringLiteral("anome"));
    EXPECT_EQ(Coluna(quant), L("2 4 1 3 5"));
    cds.SetIndexName(QStringLiteral("dnome"));
    EXPECT_EQ(Coluna(quant), L("5 1 3 2 4"));
    cds.SetIndexName(QString());
    EXPECT_EQ(Coluna(quant), L("1 2 3 4 5"));
}

TEST_F(TClientDataSetTest, CaseInsensitiveIndexTellsNoCaseApartButAccents)
{
    Por(L("b B á A a"));
    cds.AddIndex(QStringLiteral("i"), QStringLiteral("nome"), ixCaseInsensitive);
    cds.SetIndexName(QStringLiteral("i"));
    EXPECT_EQ(Nomes(), L("A a á b B"));
}

TEST_F(TClientDataSetTest, NumbersAndDatesSortByValueNullsFirst)
{
    for (const double v : {10.0, -2.5, 0.0, 9.0, -100.0})
        cds.AppendRecord({Null, Null, v, TDateTime(v)});
    cds.AppendRecord({QStringLiteral("nulo")});
    cds.AddIndex(QStringLiteral("p"), QStringLiteral("preco"));
    cds.AddIndex(QStringLiteral("d"), QStringLiteral("data"), ixDescending);
    cds.SetIndexName(QStringLiteral("p"));
    EXPECT_EQ(Coluna(preco),
              (QStringList{QString(), QStringLiteral("-100"), QStringLiteral("-2,5"),
                           QStringLiteral("0"), QStringLiteral("9"), QStringLiteral("10")}));
    cds.SetIndexName(QStringLiteral("d"));
    EXPECT_EQ(Coluna(preco),
              (QStringList{QStringLiteral("10"), QStringLiteral("9"), QStringLiteral("0"),
                           QStringLiteral("-2,5"), QStringLiteral("-100"), QString()}));
}

TEST_F(TClientDataSetTest, SeveralFieldsSortOneAfterTheOther)
{
    cds.AppendRecord({QStringLiteral("b"), 1});
    cds.AppendRecord({QStringLiteral("a"), 2});
    cds.AppendRecord({QStringLiteral("b"), 0});
    cds.AppendRecord({QStringLiteral("a"), 1});
    cds.AddIndex(QStringLiteral("nq"), QStringLiteral("nome;quant"));
    cds.SetIndexName(QStringLiteral("nq"));
    EXPECT_EQ(Nomes(), L("a a b b"));
    EXPECT_EQ(Coluna(quant), L("1 2 0 1"));
}

TEST_F(TClientDataSetTest, AnotherIndexKeepsTheCurrentRecord)
{
    Por(L("c a b"));
    cds.AddIndex(QStringLiteral("anome"), QStringLiteral("nome"));
    QSignalSpy rolou(&cds, &TDataSet::AfterScroll), mudou(&cds, &TDataSet::DadosMudaram);
    ASSERT_EQ(nome->AsString(), QStringLiteral("c"));
    cds.SetIndexName(QStringLiteral("anome"));
    EXPECT_EQ(nome->AsString(), QStringLiteral("c"));
    EXPECT_EQ(cds.RecNo(), 3);
    EXPECT_EQ(rolou.count(), 0) << "the record is the same";
    EXPECT_EQ(mudou.count(), 1);
    EXPECT_THROW(cds.SetIndexName(QStringLiteral("nenhum")), EDatabaseError);
    EXPECT_EQ(cds.GetIndexName(), QStringLiteral("anome"));
    cds.DeleteIndex(QStringLiteral("anome"));
    EXPECT_EQ(cds.GetIndexName(), QString());
    EXPECT_EQ(Nomes(), L("c a b"));
    EXPECT_EQ(nome->AsString(), QStringLiteral("c"));
}

TEST_F(TClientDataSetTest, IndexNamesAndFieldsAreChecked)
{
    cds.AddIndex(QStringLiteral("a"), QStringLiteral("nome"));
    EXPECT_TRUE(cds.HasIndex(QStringLiteral("a")));
    EXPECT_THROW(cds.AddIndex(QStringLiteral("a"), QStringLiteral("quant")), EDatabaseError);
    EXPECT_THROW(cds.AddIndex(QStringLiteral("b"), QStringLiteral("nada")), EDatabaseError);
    EXPECT_THROW(cds.AddIndex(QStringLiteral("b"), QString()), EDatabaseError);
    EXPECT_EQ(cds.IndexDefs().size(), 1u);
}

TEST_F(TClientDataSetTest, PostedRowsTakeTheirPlaceUnderAnIndex)
{
    cds.AddIndex(QStringLiteral("a"), QStringLiteral("nome"));
    cds.AddIndex(QStringLiteral("d"), QStringLiteral("nome"), ixDescending);
    cds.SetIndexName(QStringLiteral("a"));
    Por(L("c a b a"));
    EXPECT_EQ(Coluna(quant), L("2 4 3 1"));
    cds.First();
    cds.Edit();
    nome->SetAsString(QStringLiteral("z"));
    cds.Post();
    EXPECT_EQ(Nomes(), L("a b c z"));
    EXPECT_EQ(cds.RecNo(), 4) << "the edited row stays current at its new place";
    cds.SetIndexName(QStringLiteral("d"));
    Por(L("c"));
    EXPECT_EQ(Nomes(), L("z c c b a"));
    EXPECT_EQ(Coluna(quant), L("2 1 5 3 4")) << "equal rows in their order of insertion";
}

TEST_F(TClientDataSetTest, RowsPostedWhileDisabledAreSortedAtTheEnd)
{
    cds.AddIndex(QStringLiteral("a"), QStringLiteral("nome"));
    cds.SetIndexName(QStringLiteral("a"));
    cds.DisableControls();
    Por(L("c a b"));
    cds.Last();
    EXPECT_EQ(nome->AsString(), QStringLiteral("b"));
    cds.EnableControls();
    EXPECT_EQ(Nomes(), L("a b c"));
    EXPECT_EQ(nome->AsString(), QStringLiteral("b"));
    EXPECT_EQ(cds.RecNo(), 2);
}

TEST_F(TClientDataSetTest, AFilterThatFailsOnEnablingDoesNotKeepTheControlsDisabled)
{
    cds.AddIndex(QStringLiteral("a"), QStringLiteral("nome"));
    cds.SetIndexName(QStringLiteral("a"));
    bool falha = false;
    cds.SetOnFilterRecord([&](const TDataSet &) {
        if (falha)
            throw EErro(QStringLiteral("filtro"));
        return true;
    });
    cds.SetFiltered(true);
    QSignalSpy mudou(&cds, &TDataSet::DadosMudaram);
    cds.DisableControls();
    Por(L("c a b"));
    falha = true;
    EXPECT_THROW(cds.EnableControls(), EErro);
    EXPECT_FALSE(cds.ControlsDisabled());
    EXPECT_EQ(mudou.count(), 1) << "who shows the rows knows of them";
    EXPECT_EQ(Nomes(), L("c a b")) << "as they stood";
    falha = false;
    cds.DisableControls();
    cds.EnableControls();
    EXPECT_EQ(Nomes(), L("a b c")) << "and they are put in order by the next";
}

TEST_F(TClientDataSetTest, DisabledNothingIsAnnouncedEnabledOnce)
{
    QSignalSpy antes(&cds, &TDataSet::BeforeScroll), rolou(&cds, &TDataSet::AfterScroll);
    QSignalSpy mudou(&cds, &TDataSet::DadosMudaram);
    cds.DisableControls();
    cds.DisableControls();
    Por(L("a b c"));
    cds.EnableControls();
    EXPECT_EQ(antes.count() + rolou.count() + mudou.count(), 0);
    cds.EnableControls();
    EXPECT_EQ(mudou.count(), 1);
    EXPECT_EQ(rolou.count(), 1);
    cds.EnableControls();
    EXPECT_EQ(mudou.count() + rolou.count(), 2) << "one too many does nothing";
    cds.Next();
    EXPECT_EQ(antes.count(), 1);
    EXPECT_EQ(rolou.count(), 2);
}

TEST_F(TClientDataSetTest, OpenAndScrollEventsComeInTheirOrder)
{
    Por(L("a b"));
    cds.Close();
    QStringList eventos;
    QObject::connect(&cds, &TDataSet::BeforeOpen, [&] {
        eventos << QStringLiteral("vai abrir");
        EXPECT_FALSE(cds.Active());
    });
    QObject::connect(&cds, &TDataSet::AfterOpen, [&] { eventos << QStringLiteral("abriu"); });
    QObject::connect(&cds, &TDataSet::BeforeScroll,
                     [&] { eventos << QStringLiteral("vai de %1").arg(cds.RecNo()); });
    QObject::connect(&cds, &TDataSet::AfterScroll,
                     [&] { eventos << QStringLiteral("em %1").arg(cds.RecNo()); });
    cds.Open();
    cds.Next();
    cds.Next();
    EXPECT_EQ(eventos, (QStringList{QStringLiteral("vai abrir"), QStringLiteral("abriu"),
                                    QStringLiteral("em 1"), QStringLiteral("vai de 1"),
                                    QStringLiteral("em 2")}));
    cds.Open();
    EXPECT_EQ(eventos.size(), 5) << "open already";
}

TEST_F(TClientDataSetTest, FilterByAQuestionShowsOnlyItsRows)
{
    Por(L("um dois três quatro"));
    cds.Next();
    int limite = 2;
    cds.SetOnFilterRecord([&](const TDataSet &linha) {
        return linha.FieldByName(QStringLiteral("quant"))->AsInteger() >= limite;
    });
    EXPECT_EQ(cds.RecordCount(), 4) << "not switched on yet";
    QSignalSpy rolou(&cds, &TDataSet::AfterScroll);
    cds.SetFiltered(true);
    EXPECT_EQ(Nomes(), L("dois três quatro"));
    EXPECT_EQ(nome->AsString(), QStringLiteral("dois"));
    EXPECT_EQ(cds.RecNo(), 1);
    EXPECT_EQ(rolou.count(), 0) << "the same record";
    limite = 4;
    cds.AtualizarFiltro();
    EXPECT_EQ(Nomes(), L("quatro"));
    EXPECT_EQ(rolou.count(), 1) << "the current one went, the first one came";
    limite = 9;
    cds.AtualizarFiltro();
    EXPECT_EQ(cds.RecNo(), 0);
    EXPECT_TRUE(nome->IsNull());
    cds.SetFiltered(false);
    EXPECT_EQ(Nomes(), L("um dois três quatro"));
}

TEST_F(TClientDataSetTest, AFilterThatRaisesReachesTheCallerAndTheListStays)
{
    Por(L("a b"));
    cds.SetOnFilterRecord([](const TDataSet &) -> bool { throw EErro(QStringLiteral("não sei")); });
    EXPECT_THROW(cds.SetFiltered(true), EErro);
    EXPECT_EQ(Nomes(), L("a b"));
    EXPECT_EQ(nome->AsString(), QStringLiteral("a"));
    cds.Edit();
    nome->SetAsString(QStringLiteral("c"));
    EXPECT_THROW(cds.Post(), EErro);
    EXPECT_EQ(Nomes(), L("c b"));
    cds.SetOnFilterRecord(nullptr);
    EXPECT_EQ(Nomes(), L("c b"));
}

TEST_F(TClientDataSetTest, ARowWhoseFilterRaisesIsWrittenAndShownAllTheSame)
{
    Por(L("a b"));
    bool cai = false;
    cds.SetOnFilterRecord([&](const TDataSet &) {
        if (cai)
            throw EErro(QStringLiteral("não sei"));
        return true;
    });
    cds.SetFiltered(true);
    cai = true;
    QSignalSpy rolou(&cds, &TDataSet::AfterScroll);
    QSignalSpy dados(&cds, &TDataSet::DadosMudaram);
    cds.Append();
    nome->SetAsString(QStringLiteral("c"));
    EXPECT_THROW(cds.Post(), EErro);
    EXPECT_EQ(cds.State(), dsBrowse);
    EXPECT_EQ(Nomes(), L("a b c"));
    EXPECT_EQ(nome->AsString(), QStringLiteral("c")) << "the current one";
    EXPECT_EQ(rolou.count(), 1);
    EXPECT_EQ(dados.count(), 1);
}

TEST_F(TClientDataSetTest, AHandlerMayCloseTheDatasetWhileARowIsPosted)
{
    Por(L("a"));
    const auto ligacao = QObject::connect(&cds, &TDataSet::BeforeScroll, [this] { cds.Close(); });
    QSignalSpy rolou(&cds, &TDataSet::AfterScroll);
    QSignalSpy dados(&cds, &TDataSet::DadosMudaram);
    cds.AppendRecord({QStringLiteral("b")});
    EXPECT_FALSE(cds.Active());
    EXPECT_EQ(cds.RecNo(), 0);
    EXPECT_EQ(rolou.count() + dados.count(), 0);
    QObject::disconnect(ligacao);
    cds.Open();
    EXPECT_EQ(Nomes(), L("a b")) << "it was written";
}

TEST_F(TClientDataSetTest, AHandlerMayHaveTheListMadeAnewOrEmptiedWhileARowIsPosted)
{
    Por(L("c a"));
    cds.AddIndex(QStringLiteral("n"), QStringLiteral("nome"));
    auto ligacao = QObject::connect(&cds, &TDataSet::BeforeScroll,
                                    [this] { cds.SetIndexName(QStringLiteral("n")); });
    cds.AppendRecord({QStringLiteral("b")});
    EXPECT_EQ(Nomes(), L("a b c")) << "once";
    QObject::disconnect(ligacao);
    ligacao = QObject::connect(&cds, &TDataSet::BeforeScroll, [this] { cds.EmptyDataSet(); });
    cds.AppendRecord({QStringLiteral("d")});
    EXPECT_EQ(cds.RecordCount(), 0);
    EXPECT_EQ(cds.RecNo(), 0);
    QObject::disconnect(ligacao);
    cds.AppendRecord({QStringLiteral("e")});
    EXPECT_EQ(Nomes(), L("e"));
}

TEST_F(TClientDataSetTest, AHandlerMayCloseOrEmptyTheDatasetBeforeARowIsDeleted)
{
    Por(L("a b"));
    auto ligacao = QObject::connect(&cds, &TDataSet::BeforeScroll, [this] { cds.Close(); });
    cds.Delete();
    EXPECT_FALSE(cds.Active());
    QObject::disconnect(ligacao);
    cds.Open();
    EXPECT_EQ(Nomes(), L("a b")) << "there was no current row any more";
    ligacao = QObject::connect(&cds, &TDataSet::BeforeScroll, [this] { cds.EmptyDataSet(); });
    cds.Delete();
    EXPECT_EQ(cds.RecordCount(), 0);
    QObject::disconnect(ligacao);
}

TEST_F(TClientDataSetTest, FilterKeepsTheOrderOfTheIndex)
{
    Por(L("d a c b"));
    cds.AddIndex(QStringLiteral("d"), QStringLiteral("nome"), ixDescending);
    cds.SetIndexName(QStringLiteral("d"));
    cds.SetFilter(QStringLiteral("nome <> 'c'"));
    cds.SetFiltered(true);
    EXPECT_EQ(Nomes(), L("d b a"));
    Por(L("bb c"));
    EXPECT_EQ(Nomes(), L("d bb b a")) << "a row that does not pass is kept out of sight";
    cds.SetFiltered(false);
    EXPECT_EQ(Nomes(), L("d c c bb b a"));
}

TEST_F(TClientDataSetTest, TextFilterUnderstandsComparisons)
{
    cds.AppendRecord({QStringLiteral("São Paulo"), 1, 10.5, TDateTime::DeData(1, 1, 2004), 1});
    cds.AppendRecord({QStringLiteral("Santos"), 2, 20.0, TDateTime::DeData(31, 12, 2003), 0});
    cds.AppendRecord({QStringLiteral("d'água"), 3, -1.0});
    cds.SetFiltered(true);
    const auto quais = [&](const char *filtro) {
        cds.SetFilter(QString::fromUtf8(filtro));
        return Coluna(quant).join(u' ').toStdString();
    };
    EXPECT_EQ(quais("nome = 'sao paulo'"), "1");
    EXPECT_EQ(quais("NOME <> 'santos'"), "1 3");
    EXPECT_EQ(quais("nome like 'SA%'"), "1 2");
    EXPECT_EQ(quais("nome like '_a_tos'"), "2");
    EXPECT_EQ(quais("nome like '%g%a%'"), "3");
    EXPECT_EQ(quais("nome = 'd''agua'"), "3");
    EXPECT_EQ(quais("preco > -1 and preco <= 20"), "1 2");
    EXPECT_EQ(quais("quant=1 or quant=3"), "1 3");
    EXPECT_EQ(quais("not (quant=1 or quant=3)"), "2");
    EXPECT_EQ(quais("data < '01/01/2004'"), "2");
    EXPECT_EQ(quais("data is null"), "3");
    EXPECT_EQ(quais("data is not null and ativo = 1"), "1");
    EXPECT_EQ(quais("nome >= 'santos'"), "1 2");
    EXPECT_EQ(quais(" "), "1 2 3");
}

TEST_F(TClientDataSetTest, TextFilterThatMakesNoSenseIsRefusedAndTheOldOneStays)
{
    Por(L("a b"));
    cds.SetFilter(QStringLiteral("nome = 'b'"));
    cds.SetFiltered(true);
    for (const char *ruim :
         {"nome", "nome =", "nome = b", "nome = 'b", "nada = 1", "quant = 'x'", "quant ! 1",
          "(quant = 1", "quant = 1 quant = 2", "nome like 3", "= 1", "'nome' = 1", "nome is 3"}) {
        EXPECT_THROW(cds.SetFilter(QString::fromUtf8(ruim)), EErro) << ruim;
    }
    EXPECT_EQ(cds.GetFilter(), QStringLiteral("nome = 'b'"));
    EXPECT_EQ(Nomes(), L("b"));
}

TEST_F(TClientDataSetTest, TextFilterNamesThePlaceOfAValueThatIsNoneAndOfATextTooMany)
{
    TClientDataSet agenda;
    agenda.AddField(QStringLiteral("hora"), TFieldType::ftTime);
    agenda.AddField(QStringLiteral("dia"), TFieldType::ftDate);
    agenda.AddField(QStringLiteral("nome"), TFieldType::ftString);
    agenda.AddField(QStringLiteral("quant"), TFieldType::ftInteger);
    agenda.CreateDataSet();
    struct TRuim {
        const char *filtro;
        int posicao;
    };
    for (const auto &[filtro, posicao] :
         {TRuim{"quant = 'x'", 9}, TRuim{"quant = ''", 9}, TRuim{"dia = 'ontem'", 7},
          TRuim{"dia = ''", 7}, TRuim{"hora = '10:30'", 8}, TRuim{"hora = 'cedo'", 8},
          TRuim{"nome = 'a' ''", 12}, TRuim{"nome is null ''", 14}}) {
        try {
            agenda.SetFilter(QString::fromLatin1(filtro));
            ADD_FAILURE() << filtro << " is taken";
        } catch (const EDatabaseError &e) {
            EXPECT_EQ(e.Mensagem(), QStringLiteral("Filtro inválido na posição %1: %2")
                                        .arg(posicao)
                                        .arg(QString::fromLatin1(filtro)));
        }
    }
    EXPECT_NO_THROW(agenda.SetFilter(QStringLiteral("nome = ''")));
}

TEST_F(TClientDataSetTest, LocateFindsByOneOrMoreFields)
{
    Por(L("Água agua Aguardente"));
    EXPECT_TRUE(cds.Locate(QStringLiteral("nome"), {QStringLiteral("agua")}));
    EXPECT_EQ(cds.RecNo(), 2);
    EXPECT_FALSE(cds.Locate(QStringLiteral("nome"), {QStringLiteral("água")}));
    EXPECT_EQ(cds.RecNo(), 2) << "a miss moves nothing";
    EXPECT_TRUE(cds.Locate(QStringLiteral("nome"), {QStringLiteral("água")}, loCaseInsensitive));
    EXPECT_EQ(cds.RecNo(), 1);
    EXPECT_TRUE(cds.Locate(QStringLiteral("nome"), {QStringLiteral("aguar")},
                           loCaseInsensitive | loPartialKey));
    EXPECT_EQ(cds.RecNo(), 3);
    EXPECT_TRUE(cds.Locate(QStringLiteral("quant;nome"), {2, QStringLiteral("agua")}));
    EXPECT_FALSE(cds.Locate(QStringLiteral("quant;nome"), {1, QStringLiteral("agua")}));
    EXPECT_TRUE(cds.Locate(QStringLiteral("preco"), {Null}));
    EXPECT_EQ(cds.RecNo(), 1);
    EXPECT_THROW(cds.Locate(QStringLiteral("nada"), {1}), EDatabaseError);
}

TEST_F(TClientDataSetTest, LocateFindsPartsOfTextsAndOfNumbersInTheOrderShown)
{
    Por(L("Maçã amaçar mação MAÇANETA лес"));
    constexpr unsigned Inicio = loCaseInsensitive | loPartialKey;
    constexpr unsigned Meio = loCaseInsensitive | loContains;
    const auto acha = [&](const char *campo, const char *texto, unsigned opcoes) {
        return cds.Locate(QString::fromLatin1(campo), {QString::fromUtf8(texto)}, opcoes)
                   ? cds.RecNo()
                   : 0;
    };
    EXPECT_EQ(acha("nome", "MACA", Inicio), 1);
    EXPECT_EQ(acha("nome", "macan", Inicio), 4);
    EXPECT_EQ(acha("nome", "amac", Meio), 2);
    EXPECT_EQ(acha("nome", "ÇÃO", Meio), 3);
    EXPECT_EQ(acha("nome", "çao", loCaseInsensitive | loPartialKey), 0);
    EXPECT_EQ(acha("nome", "acao", Meio), 3);
    EXPECT_EQ(acha("nome", "ЛЕС", Inicio), 5) << "letters beyond Latin-1";
    EXPECT_EQ(acha("nome", "maca", loPartialKey), 0) << "letter by letter without the option";
    EXPECT_EQ(acha("nome", "açar", loContains), 2);
    EXPECT_EQ(acha("nome", "MAÇANETAS", Inicio), 0);
    EXPECT_EQ(acha("quant", "4", loPartialKey), 4);
    for (int i = 0; i < 20; ++i)
        cds.AppendRecord({Null, 100 + i});
    cds.AppendRecord({Null, -100});
    EXPECT_EQ(acha("quant", "10", loPartialKey), 6);
    EXPECT_EQ(acha("quant", "119", loPartialKey), 25);
    EXPECT_EQ(acha("quant", "-1", loPartialKey), 26);
    EXPECT_EQ(acha("quant", "19", loContains), 25);
    EXPECT_EQ(acha("quant", "00119", loNenhuma), 25) << "whole numbers compare as numbers";
}

TEST_F(TClientDataSetTest, TheTypedFilterShowsRowsWithTheTextInOneOfTheFields)
{
    Por(L("Maçã amaçar mação Pera"));
    cds.AddIndex(QStringLiteral("a"), QStringLiteral("nome"));
    cds.SetIndexName(QStringLiteral("a"));
    const auto filtrar = [&](const char *campos, const char *texto, unsigned opcoes) {
        cds.SetFilterText(QString::fromLatin1(campos), QString::fromUtf8(texto), opcoes);
        return Nomes();
    };
    EXPECT_EQ(filtrar("nome", "zzz", loContains).size(), 4) << "not switched on yet";
    cds.SetFiltered(true);
    EXPECT_EQ(Nomes(), QStringList());
    EXPECT_EQ(filtrar("nome", "MACA", loCaseInsensitive | loContains), L("amaçar Maçã mação"));
    EXPECT_EQ(filtrar("nome", "maca", loCaseInsensitive | loPartialKey), L("Maçã mação"));
    EXPECT_EQ(filtrar("nome", "maca", loCaseInsensitive), L("Maçã"));
    EXPECT_EQ(filtrar("nome;quant", "4", loCaseInsensitive | loContains), L("Pera"));
    EXPECT_EQ(filtrar("quant", "2", loNenhuma), L("amaçar"));
    cds.SetFilter(QStringLiteral("quant > 2"));
    EXPECT_EQ(filtrar("nome", "maca", loCaseInsensitive | loContains), L("mação"))
        << "both filters have to let it through";
    EXPECT_EQ(filtrar("nome", "", loContains), L("mação Pera"));
    EXPECT_THROW(cds.SetFilterText(QStringLiteral("nada"), QStringLiteral("x"), loNenhuma),
                 EDatabaseError);
    EXPECT_EQ(Nomes(), L("mação Pera")) << "the refused filter changed nothing";
    cds.Close();
    EXPECT_THROW(cds.SetFilterText(QStringLiteral("nome"), QStringLiteral("x"), loNenhuma),
                 EDatabaseError);
}

/** What earlier texts found is remembered: whatever is typed on, taken back or changed in between,
 * the rows are those that a look at every one of them finds. */
TEST_F(TClientDataSetTest, TextsTypedOnAndTakenBackFindWhatEachWouldFindAlone)
{
    QRandomGenerator sorte(14);
    const QStringList letras = L("a b á B");
    const auto palavra = [&](int n) {
        QString texto;
        while (texto.size() < n)
            texto += letras[sorte.bounded(4)];
        return texto;
    };
    QStringList todos; // the names of all rows
    cds.SetFiltered(true);
    for (int i = 0; i < 60; ++i) {
        todos << palavra(1 + sorte.bounded(7));
        cds.AppendRecord({todos.back(), i, Null, Null, 1});
    }
    QString texto = QStringLiteral("a");
    for (int vez = 0; vez < 3000; ++vez) {
        const int acao = sorte.bounded(100);
        if (acao < 45 && texto.size() < 5) {
            texto += palavra(1);
        } else if (acao < 80) {
            texto.chop(texto.size() > 1 ? 1 : 0);
        } else if (acao < 90) {
            texto = palavra(1 + sorte.bounded(3));
        } else if (acao < 95) {
            todos << palavra(1 + sorte.bounded(7));
            cds.AppendRecord({todos.back(), vez, Null, Null, 1});
        } else if (!cds.IsEmpty() && todos.size() > 30) {
            todos.removeOne(nome->AsString());
            cds.Delete();
        }
        const unsigned opcoes =
            sorte.bounded(5) == 0 ? loCaseInsensitive
                                  : loCaseInsensitive | (vez / 50 % 2 ? loContains : loPartialKey);
        cds.SetFilterText(QStringLiteral("nome"), texto, opcoes);
        const QString procurado = TColacao::Dobrar(texto);
        QStringList esperado;
        for (const QString &este : todos) {
            const QString dobrado = TColacao::Dobrar(este);
            if (opcoes & loContains     ? dobrado.contains(procurado)
                : opcoes & loPartialKey ? dobrado.startsWith(procurado)
                                        : dobrado == procurado)
                esperado << este;
        }
        QStringList achados = Nomes();
        esperado.sort();
        achados.sort();
        ASSERT_EQ(achados, esperado) << qPrintable(texto) << " after " << vez;
    }
    EXPECT_GT(todos.size(), 30);
}

TEST_F(TClientDataSetTest, ARowUnderEditIsFoundByItsNewTextOnly)
{
    Por(L("maca pera"));
    cds.SetFiltered(true);
    const auto filtrar = [&](const char *texto) {
        cds.SetFilterText(QStringLiteral("nome"), QString::fromUtf8(texto), loContains);
        return Nomes();
    };
    EXPECT_EQ(filtrar("ma"), L("maca"));
    cds.Edit();
    nome->SetValue(QStringLiteral("figo"));
    cds.Post();
    EXPECT_EQ(filtrar("m"), QStringList());
    EXPECT_EQ(filtrar("ma"), QStringList());
    EXPECT_EQ(filtrar("f"), L("figo"));
    EXPECT_EQ(filtrar("fi"), L("figo"));
}

TEST_F(TClientDataSetTest, BookmarksComeBackToTheirRow)
{
    Por(L("c a b"));
    cds.AddIndex(QStringLiteral("a"), QStringLiteral("nome"));
    const TBookmark marca = cds.GetBookmark();
    cds.SetIndexName(QStringLiteral("a"));
    cds.First();
    ASSERT_TRUE(cds.GotoBookmark(marca));
    EXPECT_EQ(nome->AsString(), QStringLiteral("c"));
    cds.Delete();
    EXPECT_FALSE(cds.BookmarkValid(marca));
    EXPECT_FALSE(cds.GotoBookmark(marca));
    EXPECT_FALSE(cds.GotoBookmark(TBookmark()));
    cds.EmptyDataSet();
    Por(L("x y z"));
    EXPECT_FALSE(cds.BookmarkValid(marca)) << "a later row is another one";
}

TEST_F(TClientDataSetTest, ARowIsReadWithoutMoving)
{
    Por(L("a b c"));
    QSignalSpy rolou(&cds, &TDataSet::AfterScroll);
    {
        const TLerLinha ler(&cds, 3);
        EXPECT_EQ(nome->AsString(), QStringLiteral("c"));
        {
            const TLerLinha dentro(&cds, 2);
            EXPECT_EQ(nome->AsString(), QStringLiteral("b"));
        }
        EXPECT_EQ(nome->AsString(), QStringLiteral("c"));
        EXPECT_EQ(cds.RecNo(), 1);
    }
    EXPECT_EQ(nome->AsString(), QStringLiteral("a"));
    EXPECT_EQ(rolou.count(), 0);
}

TEST(Colacao, KeysOrderTextsAsTheLocalesCollatorDoes)
{
    const QString letras =
        QStringLiteral("aáàâãäåAÁÀÂÃÄÅbBcçCÇeéêèëEÉÊÈËiíìîïIÍnñNÑoóôõòöOÓÔÕuúüùûUÚÜyýÿYzZ"
                       "0123456789 -.,/()'ªº²%$&+*_");
    QRandomGenerator sorte(20030101);
    const auto sortear = [&] {
        QString texto;
        for (int n = sorte.bounded(7); n > 0; --n)
            texto += letras[sorte.bounded(int(letras.size()))];
        return texto;
    };
    for (const bool semCaixa : {false, true}) {
        QCollator colador(QLocale(QLocale::Portuguese, QLocale::Brazil));
        colador.setCaseSensitivity(semCaixa ? Qt::CaseInsensitive : Qt::CaseSensitive);
        for (int i = 0; i < 20000; ++i) {
            QString a = sortear(), b = sortear();
            if (i % 2 == 0) { // the same letters with other marks and cases
                b = a;
                for (QChar &c : b)
                    c = sorte.bounded(2) ? c.toUpper() : c;
            }
            std::vector<unsigned char> chave;
            ASSERT_TRUE(TColacao::AcrescentarChave(a, semCaixa, chave)) << "by a key of ours";
            const int certo = colador.compare(a, b);
            const int nosso = TColacao::Comparar(a, b, semCaixa);
            ASSERT_EQ(nosso < 0, certo < 0) << qPrintable(a) << " | " << qPrintable(b);
            ASSERT_EQ(nosso > 0, certo > 0) << qPrintable(a) << " | " << qPrintable(b);
        }
    }
}

TEST_F(TClientDataSetTest, OneTextBeyondTheEverydayLettersSortsTheColumnAllTheSame)
{
    Por(L("zeta œuvre obra ωμέγα Ærea aro straße strata avó"));
    cds.AddIndex(QStringLiteral("a"), QStringLiteral("nome"));
    cds.SetIndexName(QStringLiteral("a"));
    QStringList certo = Nomes();
    QCollator colador(QLocale(QLocale::Portuguese, QLocale::Brazil));
    std::stable_sort(certo.begin(), certo.end(), colador);
    EXPECT_EQ(Nomes(), certo);
    EXPECT_EQ(Nomes().back(), QStringLiteral("ωμέγα"));
    Por(L("ômega łódź")); // placed one by one
    certo = Nomes();
    std::stable_sort(certo.begin(), certo.end(), colador);
    EXPECT_EQ(Nomes(), certo);
}

TEST_F(TClientDataSetTest, ManyRowsAreLoadedSortedAndSwitchedAtOnce)
{
    constexpr int Total = 20000;
    cds.AddIndex(QStringLiteral("a"), QStringLiteral("nome"));
    cds.AddIndex(QStringLiteral("d"), QStringLiteral("nome"), ixDescending);
    QRandomGenerator sorte(1);
    cds.DisableControls();
    for (int i = 0; i < Total; ++i)
        cds.AppendRecord(
            {QStringLiteral("Nome %1 de Araújo").arg(sorte.bounded(1000)), i, i / 7.0});
    cds.EnableControls();
    // 40 bytes of text, 17 of numbers and nulls, 12 of order: nothing of the size of an object per
    // cell.
    EXPECT_LT(cds.BytesUsados() / Total, 110);
    cds.SetIndexName(QStringLiteral("a"));
    const QStringList subindo = Nomes();
    EXPECT_TRUE(std::is_sorted(subindo.begin(), subindo.end(), [](const auto &a, const auto &b) {
        return TColacao::Comparar(a, b, false) < 0;
    }));
    QElapsedTimer relogio;
    relogio.start();
    for (int i = 0; i < 20; ++i) {
        cds.SetIndexName(QStringLiteral("d"));
        cds.SetIndexName(QStringLiteral("a"));
    }
    EXPECT_LT(relogio.elapsed() / 40, 100) << "an order that exists is not sorted again";
    EXPECT_EQ(Nomes(), subindo);
}
