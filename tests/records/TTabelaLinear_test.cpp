#include "platform/database/TSQLQuery.h"
#include "records/UTabelaLinear.h"
#include "support/BancoTemp.h"

#include "base/UDBControlBasFr.h"
#include "platform/core/Servicos.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TStringGrid.h"

using namespace ficha;

namespace
{

const QString Script = QStringLiteral(
    "create table item (item_cod integer not null primary key, nome varchar(30), nivel integer);"
    "create generator item_cod_gen;");

class TContaFr : public TDBControlBasFr
{
    Q_OBJECT
public:
    using TDBControlBasFr::TDBControlBasFr;
    void SetValor(const Variant &v) override
    {
        valor = v;
        ++escritas;
    }
    Variant GetValor() const override { return valor; }
    void Zerar() override { valor = Variant(); }
    Variant valor;
    int escritas = 0;
};

class TTabelaLinearTest : public testing::Test
{
protected:
    void SetUp() override
    {
        Servicos().MensagemAviso = [this](const QString &texto, int) { avisos << texto; };
        query.SetSQLConnection(&banco.Conexao());
    }

    void Abrir(std::initializer_list<int> codigos,
               const QString &sql = QStringLiteral("select * from item order by item_cod"))
    {
        for (const int cod : codigos)
            banco.Conexao().Executar(
                QStringLiteral("insert into item values (%1, 'nome %1', %1 * 10)").arg(cod));
        query.SetSQL(sql);
        query.Open();
        tab = Criar<TTabelaLinear>(&query, QStringLiteral("item"));
        fr = Criar<TContaFr>(&janela);
    }

    void LigarTudo()
    {
        tab->PegarCampoChave(query.FieldByName(QStringLiteral("item_cod")), 50, fr);
        tab->PegarCampo(query.FieldByName(QStringLiteral("nome")), 200, &edit);
        tab->PegarCampo(query.FieldByName(QStringLiteral("nivel")));
    }

    TBancoTemp banco{Script};
    TServicosGuarda guarda;
    QStringList avisos;
    TSQLQuery query;
    QWidget janela;
    TLabeledEdit edit{&janela};
    TContaFr *fr = nullptr;
    std::unique_ptr<TTabelaLinear> tab;
};

TEST_F(TTabelaLinearTest, AnEmptyDataset)
{
    Abrir({});
    LigarTudo();
    EXPECT_EQ(tab->RecNo, -1);
    EXPECT_TRUE(tab->Fim);
    EXPECT_FALSE(tab->PodeNext());
    EXPECT_FALSE(tab->PodePrior());
    EXPECT_FALSE(tab->PodeFirst());
    EXPECT_FALSE(tab->PodeLast());
    tab->SetRecno(5);
    EXPECT_EQ(tab->RecNo, -1);
    EXPECT_TRUE(tab->Fim);
    EXPECT_TRUE(tab->PodeTabChange());
    EXPECT_FALSE(tab->Locate(QStringLiteral("x")));
}

TEST_F(TTabelaLinearTest, SetRecnoClampsIntoTheRows)
{
    Abrir({1, 2, 3});
    LigarTudo();
    EXPECT_EQ(tab->RecNo, 1);
    EXPECT_FALSE(tab->Fim);
    tab->SetRecno(0);
    EXPECT_EQ(tab->RecNo, 1);
    EXPECT_EQ(tab->Campos->Campos(0)->Valor, Variant(1));
    tab->SetRecno(9);
    EXPECT_EQ(tab->RecNo, 3);
    EXPECT_EQ(tab->Campos->Campos(0)->Valor, Variant(3));
    EXPECT_EQ(fr->valor, Variant(3));
    EXPECT_EQ(edit.text(), QStringLiteral("nome 3"));
    tab->AtualizarControles = false;
    tab->SetRecno(2);
    EXPECT_EQ(fr->valor, Variant(3)) << "the inputs are not shown while that is off";
    EXPECT_EQ(tab->Campos->Campos(0)->Valor, Variant(2));
}

TEST_F(TTabelaLinearTest, NextOnTheLastRowSetsFimAndStays)
{
    Abrir({1, 2});
    LigarTudo();
    tab->Next();
    EXPECT_EQ(tab->RecNo, 2);
    EXPECT_FALSE(tab->Fim);
    tab->Next();
    EXPECT_EQ(tab->RecNo, 2);
    EXPECT_TRUE(tab->Fim);
    tab->Prior();
    EXPECT_EQ(tab->RecNo, 1);
    EXPECT_FALSE(tab->Fim);
    tab->Prior();
    EXPECT_EQ(tab->RecNo, 1);
    tab->Last();
    EXPECT_EQ(tab->RecNo, 2);
    tab->First();
    EXPECT_EQ(tab->RecNo, 1);
}

TEST_F(TTabelaLinearTest, AnOpenStateBlocksNavigationAndTheChangeOfPage)
{
    Abrir({1, 2, 3});
    LigarTudo();
    tab->SetRecno(2);
    EXPECT_TRUE(tab->PodeFirst() && tab->PodePrior() && tab->PodeNext() && tab->PodeLast());
    tab->AltIni();
    EXPECT_FALSE(tab->PodeFirst() || tab->PodePrior() || tab->PodeNext() || tab->PodeLast());
    EXPECT_FALSE(tab->PodeTabChange());
}

TEST_F(TTabelaLinearTest, BindingKindsOfFields)
{
    Abrir({1});
    TField *cod = query.FieldByName(QStringLiteral("item_cod"));
    TField *nome = query.FieldByName(QStringLiteral("nome"));
    const TCampo *a = tab->PegarCampoChave(cod);
    EXPECT_TRUE(a->Chave && !a->Visivel && !a->ControlInfo && a->ColInfo->Largura == 0);
    const TCampo *b = tab->PegarCampo(nome);
    EXPECT_TRUE(!b->Chave && !b->Visivel && !b->ControlInfo && b->ColInfo->Largura == 0);
    const TCampo *c = tab->PegarCampo(nome, 80);
    EXPECT_TRUE(!c->Chave && c->Visivel && !c->ControlInfo && c->ColInfo->Largura == 80);
    const TCampo *d = tab->PegarCampo(nome, 90, &edit);
    EXPECT_TRUE(!d->Chave && d->Visivel && d->ColInfo->Largura == 90);
    EXPECT_EQ(d->ControlInfo->Control(), &edit);
    EXPECT_EQ(d->ControlInfo->Classe(), &TLabeledEdit::staticMetaObject);
    const TCampo *e = tab->PegarCampoChave(cod, 40, fr);
    EXPECT_TRUE(e->Chave && e->Visivel && e->ColInfo->Largura == 40);
    EXPECT_EQ(fr->Campo, e);
    EXPECT_EQ(fr->Tabela, tab.get());
    const TCampo *f = tab->PegarCampoChaveEstrangeira(cod, nome, 60, fr);
    EXPECT_TRUE(!f->Chave && f->Visivel && f->TemEstrangeiro && f->ColInfo->Largura == 60);
    EXPECT_EQ(static_cast<TField *>(f->FieldEstrangeiro), nome);
    EXPECT_EQ(fr->Campo, f);
}

TEST_F(TTabelaLinearTest, WhereStrJoinsTheKeysAndNamesNoneWithoutThem)
{
    Abrir({4});
    EXPECT_EQ(tab->WhereStr(), QStringLiteral(" where "));
    EXPECT_EQ(tab->ChavesGarantia(), QString());
    tab->PegarCampoChave(query.FieldByName(QStringLiteral("item_cod")));
    tab->First();
    EXPECT_EQ(tab->WhereStr(), QStringLiteral(" where ITEM_COD=4"));
    tab->PegarCampoChave(query.FieldByName(QStringLiteral("nivel")));
    tab->PegarCampo(query.FieldByName(QStringLiteral("nome")));
    tab->First();
    EXPECT_EQ(tab->WhereStr(), QStringLiteral(" where ITEM_COD=4 and NIVEL=40"));
    EXPECT_EQ(tab->ChavesGarantia(), QStringLiteral("4;40"));
}

TEST_F(TTabelaLinearTest, LocalizarPelaChaveFindsTheRowOrStaysOnTheFirst)
{
    Abrir({2, 4, 6, 8});
    LigarTudo();
    fr->escritas = 0;
    tab->LocalizarPelaChave(QStringLiteral("6"));
    EXPECT_EQ(tab->RecNo, 3);
    EXPECT_EQ(query.RecNo(), 3);
    EXPECT_EQ(fr->valor, Variant(6));
    EXPECT_EQ(fr->escritas, 1) << "rows that are walked over are not shown";
    EXPECT_FALSE(tab->Fim);
    tab->LocalizarPelaChave(QStringLiteral("7"));
    EXPECT_EQ(tab->RecNo, 1);
    EXPECT_EQ(tab->Campos->Campos(1)->Valor, Variant("nome 2"));
    EXPECT_FALSE(tab->Fim);
}

TEST_F(TTabelaLinearTest, TheGridShowsTitlesWidthsAndRows)
{
    Abrir({1, 2, 3});
    query.FieldByName(QStringLiteral("nome"))->SetDisplayLabel(QStringLiteral("  Descrição "));
    LigarTudo();
    tab->SetRecno(2);
    TStringGrid grid;
    fr->escritas = 0;
    tab->PreencherStringGrid(&grid);
    EXPECT_EQ(grid.GetColCount(), 2);
    EXPECT_EQ(grid.GetRowCount(), 4);
    EXPECT_EQ(grid.GetCell(0, 0), QStringLiteral("ITEM_COD"));
    EXPECT_EQ(grid.GetCell(1, 0), QStringLiteral("Descrição"));
    EXPECT_EQ(grid.GetColWidth(0), 50);
    EXPECT_EQ(grid.GetColWidth(1), 200);
    for (int r = 1; r <= 3; ++r) {
        EXPECT_EQ(grid.GetCell(0, r), QString::number(r));
        EXPECT_EQ(grid.GetCell(1, r), QStringLiteral("nome %1").arg(r));
    }
    EXPECT_EQ(tab->NLinhas, 3);
    EXPECT_EQ(tab->RecNo, 2);
    EXPECT_EQ(tab->Campos->Campos(0)->Valor, Variant(2));
    EXPECT_EQ(tab->Campos->Campos(2)->Valor, Variant(20)) << "invisible fields are back too";
    EXPECT_TRUE(tab->AtualizarControles);
    EXPECT_EQ(fr->escritas, 0) << "restored only after the last move";
}

TEST_F(TTabelaLinearTest, AnEmptyTableLeavesTheTitleRowAndOneBlankRow)
{
    Abrir({});
    LigarTudo();
    TStringGrid grid;
    grid.SetColCount(2);
    grid.SetRowCount(9);
    grid.SetCell(0, 1, QStringLiteral("velho"));
    tab->PreencherStringGrid(&grid);
    EXPECT_EQ(grid.GetRowCount(), 2);
    EXPECT_EQ(grid.GetCell(0, 0), QStringLiteral("ITEM_COD"));
    EXPECT_EQ(grid.GetCell(0, 1), QString());
    EXPECT_EQ(tab->RecNo, -1);
}

TEST_F(TTabelaLinearTest, WithoutAVisibleFieldTheGridIsLeftAlone)
{
    Abrir({1});
    tab->PegarCampoChave(query.FieldByName(QStringLiteral("item_cod")));
    TStringGrid grid;
    grid.SetColCount(7);
    tab->PreencherStringGrid(&grid);
    EXPECT_EQ(grid.GetColCount(), 7);
    EXPECT_EQ(tab->NLinhas, 0);
}

TEST_F(TTabelaLinearTest, ANullFirstFieldStopsTheFill)
{
    Abrir({1, 2, 3}, QStringLiteral("select nullif(item_cod, 2) as item_cod, nome from item "
                                    "order by nome"));
    tab->PegarCampo(query.FieldByName(QStringLiteral("item_cod")), 50);
    tab->PegarCampo(query.FieldByName(QStringLiteral("nome")), 100);
    TStringGrid grid;
    tab->PreencherStringGrid(&grid);
    EXPECT_EQ(grid.GetRowCount(), 4) << "the size still comes from the dataset";
    EXPECT_EQ(grid.GetCell(1, 1), QStringLiteral("nome 1"));
    EXPECT_EQ(grid.GetCell(1, 2), QString());
    EXPECT_EQ(grid.GetCell(1, 3), QString()) << "later rows are not shown";
}

TEST_F(TTabelaLinearTest, AnEventMayLookAtEveryFieldOfItsRow)
{
    Abrir({1, 2});
    LigarTudo();
    tab->Campos->Campos(1)->OnAsString = [this](TCampo *campo, QString &texto) {
        texto = campo->Valor.AsString() + u'/' + tab->Campos->Campos(2)->Valor.AsString();
    };
    TStringGrid grid;
    tab->PreencherStringGrid(&grid);
    EXPECT_EQ(grid.GetCell(1, 2), QStringLiteral("nome 2/20"));
}

TEST_F(TTabelaLinearTest, PreencherStringListLeavesAtualizarControlesOn)
{
    Abrir({1, 2, 3});
    LigarTudo();
    tab->SetRecno(2);
    tab->AtualizarControles = false;
    TLinhas lista;
    lista.Add(QStringLiteral("velha"));
    tab->PreencherStringList(lista, 1);
    ASSERT_EQ(lista.Count(), 3);
    EXPECT_EQ(lista.Texto(2), QStringLiteral("nome 3"));
    EXPECT_EQ(tab->RecNo, 2);
    EXPECT_TRUE(tab->AtualizarControles) << "even if it was off before";
}

TEST_F(TTabelaLinearTest, InsIniEmptiesTheInputsOnlyWhenItStarts)
{
    Abrir({1});
    LigarTudo();
    tab->First();
    tab->InsIni();
    EXPECT_EQ(edit.text(), QString());
    edit.setText(QStringLiteral("digitado"));
    tab->InsIni();
    EXPECT_EQ(edit.text(), QStringLiteral("digitado"));
    tab->InsCancel();
    EXPECT_EQ(edit.text(), QStringLiteral("nome 1")) << "the current row again";
}

TEST_F(TTabelaLinearTest, InsCancelOnAnEmptyTableEmptiesTheInputs)
{
    Abrir({});
    LigarTudo();
    tab->InsIni();
    edit.setText(QStringLiteral("digitado"));
    tab->InsCancel();
    EXPECT_EQ(edit.text(), QString());
}

TEST_F(TTabelaLinearTest, TheLockKeepsASecondTableOutUntilTheEditEnds)
{
    Abrir({1, 2, 3});
    LigarTudo();
    tab->SetRecno(2);
    TSQLQuery query2;
    query2.SetSQLConnection(&banco.Conexao());
    query2.SetSQL(query.GetSQL());
    query2.Open();
    auto tab2 = Criar<TTabelaLinear>(&query2, QStringLiteral("item"));
    tab2->PegarCampoChave(query2.FieldByName(QStringLiteral("item_cod")));
    tab2->SetRecno(2);

    ASSERT_TRUE(tab->GarantiaRegistro());
    tab->AltIni();
    EXPECT_EQ(tab->RecNo, 2);
    EXPECT_TRUE(tab->AtualizarControles);
    EXPECT_FALSE(tab2->GarantiaRegistro());
    EXPECT_EQ(avisos.size(), 1) << "the refusal tells the user";
    EXPECT_EQ(tab2->RecNo, 2) << "re-read and on the same record all the same";
    tab2->AltCancel();
    EXPECT_FALSE(tab2->GarantiaRegistro()) << "who holds no lock releases none";
    tab->AltFim();
    EXPECT_TRUE(tab2->GarantiaRegistro());
    tab2->AltCancel();
    EXPECT_TRUE(tab->GarantiaRegistro());
    tab->ExclFim();
    EXPECT_TRUE(tab2->GarantiaRegistro());
    tab2.reset();
    EXPECT_TRUE(tab->GarantiaRegistro()) << "a table that dies gives its lock back";
    tab->ExclCancel();
}

TEST_F(TTabelaLinearTest, TheLockIsReleasedByTheKeyItWasTakenWith)
{
    Abrir({1, 2});
    LigarTudo();
    tab->SetRecno(2);
    ASSERT_TRUE(tab->GarantiaRegistro());
    tab->AltIni();
    tab->First();
    tab->AltFim();
    tab->SetRecno(2);
    EXPECT_TRUE(tab->GarantiaRegistro()) << "record 2 is free again";
    tab->LiberarRegistro(QStringLiteral("1"));
    tab->LiberarRegistro(QStringLiteral("2"));
    EXPECT_TRUE(tab->GarantiaRegistro());
    tab->AltCancel();
}

TEST_F(TTabelaLinearTest, ARecordThatDisappearedLeavesTheFirstRow)
{
    Abrir({1, 2});
    LigarTudo();
    tab->SetRecno(2);
    banco.Conexao().Executar(QStringLiteral("delete from item where item_cod=2"));
    tab->GarantiaRegistro();
    EXPECT_EQ(tab->RecNo, 1);
    EXPECT_EQ(query.RecordCount(), 1);
    EXPECT_TRUE(tab->AtualizarControles);
    tab->AltCancel();
}

TEST_F(TTabelaLinearTest, WhoeverDiesFirstNothingDangles)
{
    Abrir({1, 2});
    LigarTudo();
    tab->First();
    delete fr;
    tab->SetRecno(2);
    auto *novo = Criar<TContaFr>(&janela);
    tab->PegarCampo(query.FieldByName(QStringLiteral("nivel")), 10, novo);
    novo->NaoRepetir = true;
    tab->AltIni();
    tab.reset();
    EXPECT_EQ(novo->Tabela, nullptr);
    EXPECT_EQ(novo->Campo, nullptr);
    EXPECT_TRUE(novo->ValorAceitavel());
    EXPECT_EQ(novo->FraseRef(), QString());
}

TEST_F(TTabelaLinearTest, ADatasetThatDiesFirstCountsAsEmpty)
{
    auto *morre = new TSQLQuery;
    morre->SetSQLConnection(&banco.Conexao());
    morre->SetSQL(QStringLiteral("select * from item"));
    morre->Open();
    tab = Criar<TTabelaLinear>(morre, QStringLiteral("item"));
    tab->PegarCampoChave(morre->Fields(0));
    delete morre;
    tab->SetRecno(3);
    tab->First();
    EXPECT_EQ(tab->RecNo, -1);
    EXPECT_FALSE(tab->PodeAlterar());
}

TEST_F(TTabelaLinearTest, ColumnsStayBoundOverEveryReopening)
{
    Abrir({1});
    LigarTudo();
    for (int i = 2; i < 5; ++i) {
        banco.Conexao().Executar(
            QStringLiteral("insert into item values (%1, 'novo %1', 0)").arg(i));
        query.Close();
        query.Open();
        tab->Last();
        EXPECT_EQ(edit.text(), QStringLiteral("novo %1").arg(i));
    }
}

} // namespace

#include "TTabelaLinear_test.moc"
