#include "platform/database/TDataSet.h"

#include "platform/database/EDatabaseError.h"

#include <QSignalSpy>

#include <limits>

using namespace ficha;

namespace
{

/** Rows (i, "linha i") under column names that a test chooses. */
class TDeMemoria : public TDataSet
{
public:
    int total = 0;
    bool falhar = false;
    std::vector<QString> nomes = {QStringLiteral("COD"), QStringLiteral("NOME")};

protected:
    void AbrirLinhas() override
    {
        std::vector<TColuna> colunas;
        for (const QString &nome : nomes)
            colunas.push_back({nome, TFieldType::ftString, 10, 0});
        DefinirColunas(colunas);
        if (falhar)
            throw EDatabaseError(TErroBanco::Outro, QStringLiteral("falhou"));
    }
    void FecharLinhas() override {}
    int ContarLinhas() const override { return total; }
    bool CelulaNula(int, int) const override { return false; }
    Variant CelulaValor(int linha, int coluna) const override
    {
        return coluna == 0 ? Variant(linha + 1)
                           : Variant(QStringLiteral("%1 da linha %2")
                                         .arg(nomes[size_t(coluna)])
                                         .arg(linha + 1));
    }
};

class TDataSetTest : public testing::Test
{
protected:
    void Abrir(int linhas)
    {
        dataset.total = linhas;
        dataset.Open();
    }
    TDeMemoria dataset;
};

} // namespace

TEST_F(TDataSetTest, ClosedIsEmpty)
{
    EXPECT_FALSE(dataset.Active());
    EXPECT_EQ(dataset.RecordCount(), 0);
    EXPECT_TRUE(dataset.IsEmpty());
    EXPECT_EQ(dataset.RecNo(), 0);
    EXPECT_TRUE(dataset.Eof());
    EXPECT_TRUE(dataset.Bof());
    dataset.First();
    dataset.Last();
    EXPECT_EQ(dataset.MoveBy(3), 0);
    EXPECT_EQ(dataset.RecNo(), 0);
}

TEST_F(TDataSetTest, OpenStandsOnTheFirstRow)
{
    Abrir(3);
    EXPECT_EQ(dataset.RecNo(), 1);
    EXPECT_TRUE(dataset.Bof());
    EXPECT_FALSE(dataset.Eof());
    EXPECT_EQ(dataset.Fields(0)->AsInteger(), 1);
}

TEST_F(TDataSetTest, WalkVisitsEveryRowOnceUntilEof)
{
    Abrir(3);
    QStringList vistas;
    for (; !dataset.Eof(); dataset.Next())
        vistas << dataset.FieldByName(QStringLiteral("COD"))->AsString();
    EXPECT_EQ(vistas, QStringList({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}));
    EXPECT_EQ(dataset.RecNo(), 3);
}

TEST_F(TDataSetTest, BackwardsWalkEndsAtBof)
{
    Abrir(2);
    dataset.Last();
    EXPECT_TRUE(dataset.Eof());
    EXPECT_FALSE(dataset.Bof());
    dataset.Prior();
    EXPECT_FALSE(dataset.Bof());
    EXPECT_FALSE(dataset.Eof());
    dataset.Prior();
    EXPECT_TRUE(dataset.Bof());
    EXPECT_EQ(dataset.RecNo(), 1);
}

TEST_F(TDataSetTest, MoveByStopsAtEitherEndAndTellsHowFarItWent)
{
    Abrir(10);
    EXPECT_EQ(dataset.MoveBy(4), 4);
    EXPECT_EQ(dataset.RecNo(), 5);
    EXPECT_FALSE(dataset.Eof());
    EXPECT_EQ(dataset.MoveBy(100), 5);
    EXPECT_TRUE(dataset.Eof());
    EXPECT_EQ(dataset.MoveBy(std::numeric_limits<int>::min()), -9);
    EXPECT_TRUE(dataset.Bof());
    EXPECT_FALSE(dataset.Eof());
    EXPECT_EQ(dataset.MoveBy(std::numeric_limits<int>::max()), 9);
    EXPECT_EQ(dataset.MoveBy(0), 0);
}

TEST_F(TDataSetTest, MoveToTheLastRowIsNotYetEof)
{
    Abrir(2);
    dataset.Next();
    EXPECT_EQ(dataset.RecNo(), 2);
    EXPECT_FALSE(dataset.Eof());
    dataset.First();
    EXPECT_TRUE(dataset.Bof());
    EXPECT_FALSE(dataset.Eof());
}

TEST_F(TDataSetTest, EmptyIsAtBothEndsAndReadsNull)
{
    Abrir(0);
    EXPECT_TRUE(dataset.Active());
    EXPECT_TRUE(dataset.Eof());
    EXPECT_TRUE(dataset.Bof());
    EXPECT_EQ(dataset.RecNo(), 0);
    EXPECT_TRUE(dataset.Fields(0)->IsNull());
    EXPECT_EQ(dataset.Fields(0)->Value(), Null);
    EXPECT_EQ(dataset.Fields(0)->AsString(), QString());
    EXPECT_EQ(dataset.Fields(0)->AsInteger(), 0);
}

TEST_F(TDataSetTest, AfterScrollOnlyWhenTheRowChanges)
{
    QSignalSpy rolou(&dataset, &TDataSet::AfterScroll);
    QSignalSpy abriu(&dataset, &TDataSet::AfterOpen);
    QSignalSpy fechou(&dataset, &TDataSet::AfterClose);
    Abrir(2);
    EXPECT_EQ(abriu.count(), 1);
    EXPECT_EQ(rolou.count(), 1);
    dataset.First();
    EXPECT_EQ(rolou.count(), 1);
    dataset.Next();
    dataset.Next();
    EXPECT_EQ(rolou.count(), 2);
    dataset.Open();
    EXPECT_EQ(abriu.count(), 1);
    dataset.Close();
    dataset.Close();
    EXPECT_EQ(fechou.count(), 1);
}

TEST_F(TDataSetTest, FieldsOutliveTheClose)
{
    Abrir(2);
    TField *nome = dataset.FieldByName(QStringLiteral("nome"));
    nome->SetDisplayLabel(QStringLiteral("Nome completo"));
    dataset.Close();
    EXPECT_EQ(nome->Value(), Null);
    EXPECT_EQ(dataset.FindField(QStringLiteral("NOME")), nome);
    dataset.nomes = {QStringLiteral("NOVO"), QStringLiteral("NOME")};
    dataset.Open();
    EXPECT_EQ(dataset.Fields(1), nome);
    EXPECT_EQ(nome->AsString(), QStringLiteral("NOME da linha 1"));
    EXPECT_EQ(nome->DisplayLabel(), QStringLiteral("Nome completo"));
}

TEST_F(TDataSetTest, ColumnThatIsGoneIsAnErrorThatNamesIt)
{
    Abrir(1);
    TField *nome = dataset.FieldByName(QStringLiteral("NOME"));
    dataset.Close();
    dataset.nomes = {QStringLiteral("COD")};
    dataset.Open();
    try {
        nome->AsString();
        FAIL() << "a column that is gone was read";
    } catch (const EDatabaseError &erro) {
        EXPECT_TRUE(erro.Mensagem().contains(QStringLiteral("NOME")));
    }
    EXPECT_THROW(nome->IsNull(), EDatabaseError);
    EXPECT_THROW(nome->Value(), EDatabaseError);
    EXPECT_EQ(dataset.FindField(QStringLiteral("NOME")), nullptr);
    EXPECT_THROW(dataset.FieldByName(QStringLiteral("NOME")), EDatabaseError);
    dataset.Close();
    dataset.nomes = {QStringLiteral("COD"), QStringLiteral("NOME")};
    dataset.Open();
    EXPECT_EQ(nome->AsString(), QStringLiteral("NOME da linha 1"));
}

TEST_F(TDataSetTest, EqualColumnNamesAreToldApart)
{
    dataset.nomes = {QStringLiteral("NOME"), QStringLiteral("NOME"), QString(),
                     QStringLiteral("NOME")};
    Abrir(1);
    EXPECT_EQ(dataset.Fields(0)->FieldName(), QStringLiteral("NOME"));
    EXPECT_EQ(dataset.Fields(1)->FieldName(), QStringLiteral("NOME_1"));
    EXPECT_EQ(dataset.Fields(2)->FieldName(), QStringLiteral("F_1"));
    EXPECT_EQ(dataset.Fields(3)->FieldName(), QStringLiteral("NOME_2"));
    TField *segundo = dataset.Fields(1);
    dataset.Close();
    dataset.Open();
    EXPECT_EQ(dataset.Fields(1), segundo);
}

TEST_F(TDataSetTest, FindFieldPrefersTheExactName)
{
    dataset.nomes = {QStringLiteral("NOME"), QStringLiteral("Nome")};
    Abrir(1);
    EXPECT_EQ(dataset.FindField(QStringLiteral("Nome")), dataset.Fields(1));
    EXPECT_EQ(dataset.FindField(QStringLiteral("nome")), dataset.Fields(0));
    EXPECT_EQ(dataset.FindField(QStringLiteral("outro")), nullptr);
}

TEST_F(TDataSetTest, FieldNumberOutsideTheColumnsIsAnError)
{
    Abrir(1);
    EXPECT_THROW(dataset.Fields(2), EDatabaseError);
    EXPECT_THROW(dataset.Fields(-1), EDatabaseError);
    dataset.Close();
    EXPECT_THROW(dataset.Fields(0), EDatabaseError);
}

TEST_F(TDataSetTest, FailedOpenLeavesItClosed)
{
    dataset.falhar = true;
    EXPECT_THROW(Abrir(2), EDatabaseError);
    EXPECT_FALSE(dataset.Active());
    EXPECT_EQ(dataset.FieldCount(), 0);
    EXPECT_EQ(dataset.RecordCount(), 0);
    dataset.falhar = false;
    dataset.Open();
    EXPECT_EQ(dataset.RecordCount(), 2);
}

TEST_F(TDataSetTest, BeforeOpenComesWhileNothingIsReadYet)
{
    QObject::connect(&dataset, &TDataSet::BeforeOpen, [this] {
        EXPECT_FALSE(dataset.Active());
        dataset.total = 7;
    });
    Abrir(2);
    EXPECT_EQ(dataset.RecordCount(), 7) << "what the handler prepares is what is read";
    dataset.Open();
    EXPECT_EQ(dataset.RecordCount(), 7);
}

TEST_F(TDataSetTest, AReadOnlyDatasetRefusesToBeWritten)
{
    Abrir(1);
    EXPECT_THROW(dataset.Fields(0)->SetAsInteger(1), EDatabaseError);
}

TEST_F(TDataSetTest, BeforeScrollComesBeforeEachMoveThatMoves)
{
    Abrir(3);
    QList<int> antes;
    QObject::connect(&dataset, &TDataSet::BeforeScroll, [&] { antes << dataset.RecNo(); });
    dataset.Next();
    dataset.Last();
    dataset.Next();
    dataset.First();
    EXPECT_EQ(antes, (QList<int>{1, 2, 3}));
}
