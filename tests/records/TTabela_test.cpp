#include "platform/core/Erros.h"
#include "platform/database/TSQLQuery.h"
#include "records/UTabela.h"
#include "support/BancoTemp.h"

#include "platform/toolkit/TLabeledEdit.h"

using namespace ficha;

namespace
{

const QString Script = QStringLiteral(
    "create table item (item_cod integer not null primary key, nome varchar(30), nivel integer);"
    "create generator item_cod_gen;");

class TTabelaTest : public testing::Test
{
protected:
    void SetUp() override
    {
        query.SetSQLConnection(&banco.Conexao());
        query.SetSQL(QStringLiteral("select * from item order by item_cod"));
        query.Open();
        tab = Criar<TTabela>(&query, QStringLiteral("item"));
    }

    void Inserir(int cod, const char *nome)
    {
        banco.Conexao().Executar(QStringLiteral("insert into item values (%1, '%2', 1)")
                                     .arg(QString::number(cod), QString::fromUtf8(nome)));
        query.Close();
        query.Open();
    }

    TBancoTemp banco{Script};
    TSQLQuery query;
    std::unique_ptr<TTabela> tab;
};

TEST_F(TTabelaTest, StartsIdleWithItsDataset)
{
    EXPECT_EQ(tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tab->StatusStr(), QString());
    EXPECT_EQ(tab->DataSet, &query);
    EXPECT_EQ(tab->NomeTabela, QStringLiteral("item"));
    EXPECT_EQ(tab->Campos->Count(), 0);
    EXPECT_FALSE(tab->GarantiaRegistro());
}

TEST_F(TTabelaTest, EveryStateHasItsWord)
{
    tab->InsIni();
    EXPECT_EQ(tab->StatusStr(), QStringLiteral("Inserindo"));
    tab->InsCancel();
    tab->AltIni();
    EXPECT_EQ(tab->StatusStr(), QStringLiteral("Alterando"));
    tab->AltFim();
    tab->ExclIni();
    EXPECT_EQ(tab->StatusStr(), QStringLiteral("Excluindo"));
    tab->ExclFim();
    EXPECT_EQ(tab->StatusStr(), QString());
}

TEST_F(TTabelaTest, AltIniWhileInsertingIsIgnored)
{
    tab->InsIni();
    tab->AltIni();
    tab->ExclIni();
    EXPECT_EQ(tab->Status, TStatus::Inserindo);
    EXPECT_EQ(tab->StatusStr(), QStringLiteral("Inserindo"));
}

TEST_F(TTabelaTest, AnyEndReturnsToIdleWhateverIsOpen)
{
    tab->AltIni();
    tab->InsCancel();
    EXPECT_EQ(tab->Status, TStatus::Ocioso);
    tab->InsIni();
    tab->ExclFim();
    EXPECT_EQ(tab->Status, TStatus::Ocioso);
    tab->ExclIni();
    tab->AltCancel();
    EXPECT_EQ(tab->Status, TStatus::Ocioso);
    tab->ExclIni();
    tab->ExclCancel();
    EXPECT_EQ(tab->Status, TStatus::Ocioso);
}

TEST_F(TTabelaTest, OnAnEmptyDatasetOnlyAnInsertionMayStart)
{
    EXPECT_TRUE(tab->PodeInserir());
    EXPECT_FALSE(tab->PodeAlterar());
    EXPECT_FALSE(tab->PodeExcluir());
    Inserir(1, "um");
    EXPECT_TRUE(tab->PodeAlterar());
    EXPECT_TRUE(tab->PodeExcluir());
    tab->AltIni();
    EXPECT_FALSE(tab->PodeInserir());
    EXPECT_FALSE(tab->PodeAlterar());
    EXPECT_FALSE(tab->PodeExcluir());
}

TEST_F(TTabelaTest, TheGeneratorIsNeverMovedDown)
{
    Inserir(7, "sete");
    tab->GenSet(QStringLiteral("item"), 10);
    tab->GenUpDate(QStringLiteral("item"));
    EXPECT_EQ(tab->GenVal(QStringLiteral("item")), 10);
    Inserir(15, "quinze");
    tab->GenUpDate(QStringLiteral("item"));
    EXPECT_EQ(tab->GenVal(QStringLiteral("item")), 15);
}

TEST_F(TTabelaTest, AConfirmedInsertionBringsTheGeneratorUp)
{
    EXPECT_EQ(tab->GenMaiorCod(QStringLiteral("item")), 0) << "an empty table";
    tab->GenSet(QStringLiteral("item"), 7);
    Inserir(10, "dez");
    tab->InsIni();
    tab->InsFim();
    EXPECT_EQ(tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tab->GenVal(QStringLiteral("item")), 10);
}

TEST_F(TTabelaTest, AGeneratorBeyond32BitsIsNeverMovedDownEither)
{
    Inserir(7, "sete");
    banco.Conexao().Executar(QStringLiteral("set generator item_cod_gen to 5000000000"));
    EXPECT_THROW((void)tab->GenVal(QStringLiteral("item")), EVariantError);
    tab->InsFim();
    EXPECT_EQ(banco.Valor(QStringLiteral("select gen_id(item_cod_gen, 0) from rdb$database")),
              Variant(5000000000.0));
}

TEST_F(TTabelaTest, ErrorsOfTheDatabaseReachTheCallerWithTheStateClosed)
{
    tab->NomeTabela = QStringLiteral("nao_existe");
    tab->InsIni();
    EXPECT_THROW(tab->InsFim(), EDatabaseError);
    EXPECT_EQ(tab->Status, TStatus::Ocioso);
    EXPECT_THROW((void)tab->GenVal(QStringLiteral("nao_existe")), EDatabaseError);
}

TEST_F(TTabelaTest, LerCamposDoDataSetLeavesTheKeysAsTheyWere)
{
    Inserir(1, "um");
    QWidget janela;
    TLabeledEdit edit(&janela);
    auto chave = std::make_unique<TCampo>();
    chave->Field = query.FieldByName(QStringLiteral("item_cod"));
    chave->Chave = true;
    chave->SetValor(99);
    tab->Campos->Add(std::move(chave));
    auto nome = std::make_unique<TCampo>();
    nome->Field = query.FieldByName(QStringLiteral("nome"));
    nome->ControlInfo = std::make_unique<TControlInfo>();
    nome->ControlInfo->SetControl(&edit);
    tab->Campos->Add(std::move(nome));

    TSQLQuery outro;
    outro.SetSQLConnection(&banco.Conexao());
    outro.SetSQL(QStringLiteral("select nivel, 'outro' as nome, 5 as item_cod from item"));
    outro.Open();
    tab->LerCamposDoDataSet(&outro);
    EXPECT_EQ(tab->Campos->Campos(0)->Valor, Variant(99));
    EXPECT_EQ(tab->Campos->Campos(1)->Valor, Variant("outro"));
    EXPECT_EQ(edit.text(), QStringLiteral("outro"));
}

/** A list of fields over the table's columns, keys marked by a star. */
class TCamposTest : public TTabelaTest
{
protected:
    TCampo *Mais(const char *coluna, bool chave = false, bool visivel = false)
    {
        auto campo = std::make_unique<TCampo>();
        campo->Field = query.FieldByName(QString::fromLatin1(coluna));
        campo->Chave = chave;
        campo->Visivel = visivel;
        TCampo *novo = campo.get();
        tab->Campos->Add(std::move(campo));
        return novo;
    }
};

TEST_F(TCamposTest, NChavesStopsAtTheFirstFieldThatIsNoKey)
{
    Mais("item_cod", true);
    Mais("nome");
    Mais("nivel", true);
    EXPECT_EQ(tab->Campos->NChaves(), 1);
}

TEST_F(TCamposTest, NVisiveisCountsTheWholeList)
{
    Mais("item_cod", true);
    Mais("nome", false, true);
    Mais("nivel");
    Mais("nivel", false, true);
    EXPECT_EQ(tab->Campos->NVisiveis(), 2);
}

TEST_F(TCamposTest, CampoPeloNomeAnswersTheLastWhateverTheLetterCase)
{
    Mais("nome");
    TCampo *segundo = Mais("nome");
    EXPECT_EQ(tab->Campos->CampoPeloNome(QStringLiteral("NoMe")), segundo);
    EXPECT_EQ(tab->Campos->CampoPeloNome(QStringLiteral("outro")), nullptr);
}

TEST_F(TCamposTest, WithoutACodedEditNothingCanBeUndone)
{
    EXPECT_FALSE(tab->Campos->CanUndo()) << "an empty list";
    QWidget janela;
    TLabeledEdit edit(&janela);
    TCampo *nome = Mais("nome");
    nome->ControlInfo = std::make_unique<TControlInfo>();
    nome->ControlInfo->SetControl(&edit);
    edit.setText(QStringLiteral("mudou"));
    EXPECT_FALSE(tab->Campos->CanUndo());
}

TEST_F(TCamposTest, ZerarControlesLeavesTheStoredValues)
{
    Inserir(1, "um");
    QWidget janela;
    TLabeledEdit edit(&janela);
    TCampo *nome = Mais("nome");
    nome->ControlInfo = std::make_unique<TControlInfo>();
    nome->ControlInfo->SetControl(&edit);
    tab->Campos->PegarValores();
    tab->Campos->PreencherControls();
    EXPECT_EQ(edit.text(), QStringLiteral("um"));
    tab->Campos->ZerarControles();
    EXPECT_EQ(edit.text(), QString());
    EXPECT_EQ(nome->Valor, Variant("um"));
    tab->Campos->Undo();
    EXPECT_EQ(edit.text(), QStringLiteral("um"));
}

} // namespace
