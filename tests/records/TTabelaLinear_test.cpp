#include "platform/database/TSQLQuery.h"
#include "records/UTabelaLinear.h"
#include "support/BancoTemp.h"

#include "base/UDBControlBasFr.h"
#include "platform/core/Erros.h"
#include "platform/core/Servicos.h"
#include "platform/database/TTravas.h"
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
        if (falha)
            throw EErro(QStringLiteral("não se mostra"));
    }
    Variant GetValor() const override { return valor; }
    void Zerar() override { valor = Variant(); }
    Variant valor;
    int escritas = 0;
    bool falha = false;
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

TEST_F(TTabelaLinearTest, AnInputThatRaisesKeepsNoOtherFromItsValueAndTheTableFromItsRow)
{
    Abrir({1, 2, 3});
    LigarTudo();
    tab->First();
    fr->falha = true;
    EXPECT_THROW(tab->SetRecno(3), EErro);
    EXPECT_EQ(fr->valor, Variant(3));
    EXPECT_EQ(edit.text(), QStringLiteral("nome 3")) << "behind the one that raised";
    EXPECT_EQ(tab->RecNo, 3);
    EXPECT_FALSE(tab->Fim);
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

/** What the grid must hold: every row walked to and every visible field read and rendered. */
TEST_F(TTabelaLinearTest, TheGridShowsWhatWalkingRowByRowWouldShow)
{
    Abrir(
        {1, 2, 3, 4},
        QStringLiteral(
            "select item_cod, '  ' || nome || decode(item_cod, 2, ' ', '') as nome, "
            "cast(nome as char(12)) as c, nullif(nivel, 30) as nivel, "
            "cast(item_cod * 1000000 - 2500000 as numeric(15,2)) / 3 as valor, "
            "cast('2024-02-28' as date) + item_cod as dia, "
            "cast('2024-02-28' as timestamp) + item_cod / 2.00 as momento, "
            "item_cod > 2 as sim, cast(nome as blob sub_type text) as memo from item order by 1"));
    for (int i = 0; i < query.FieldCount(); ++i)
        tab->PegarCampo(query.Fields(i), 50);
    TCampo *comFormato = tab->PegarCampo(query.FieldByName("valor"), 50);
    comFormato->Tipo = 4;
    tab->PegarCampo(query.FieldByName("dia"), 50)->Tipo = 1;
    tab->PegarCampo(query.FieldByName("nivel"), 50)->Tipo = 6;
    TLinhas lista;
    for (int i = 0; i < 40; ++i)
        lista.Add(QStringLiteral("nível %1").arg(i));
    tab->PegarCampo(query.FieldByName("nivel"), 50)->Lista = &lista;

    QStringList esperado;
    for (int n = 1; n <= 4; ++n) {
        tab->SetRecno(n);
        for (int i = 0; i < tab->Campos->Count(); ++i)
            esperado << tab->Campos->Campos(i)->AsString();
    }
    TStringGrid grid;
    tab->SetRecno(1);
    tab->PreencherStringGrid(&grid);
    QStringList mostrado;
    for (int r = 1; r <= 4; ++r) {
        for (int c = 0; c < grid.GetColCount(); ++c)
            mostrado << grid.GetCell(c, r);
    }
    EXPECT_EQ(mostrado, esperado);
    EXPECT_EQ(grid.GetCell(1, 2), QStringLiteral("nome 2"));
    EXPECT_EQ(grid.GetCell(3, 3), QString()) << "Null";
    EXPECT_EQ(grid.GetCell(9, 1), QStringLiteral("-500.000,00").remove(u'.'));
}

/** A value of the program's that equals the column's is kept by SetValor, and shown. */
TEST_F(TTabelaLinearTest, AnEqualValueOfTheProgramsIsShownAsItReads)
{
    Abrir({7, 8});
    LigarTudo();
    tab->Campos->Campos(0)->SetValor(Variant(QStringLiteral("07")));
    TStringGrid grid;
    tab->PreencherStringGrid(&grid);
    EXPECT_EQ(grid.GetCell(0, 1), QStringLiteral("07"));
    EXPECT_EQ(grid.GetCell(0, 2), QStringLiteral("8"));
}

TEST_F(TTabelaLinearTest, AFillThatFailsLeavesTheValuesOfTheRowItStandsOn)
{
    Abrir({1, 2, 3});
    banco.Conexao().Executar(QStringLiteral("update item set nome = '12' where item_cod <> 3"));
    query.Close();
    query.Open();
    tab->PegarCampoChave(query.FieldByName(QStringLiteral("item_cod")), 50, fr);
    tab->PegarCampo(query.FieldByName(QStringLiteral("nivel")), 50);
    tab->PegarCampo(query.FieldByName(QStringLiteral("nome")), 50)->Tipo = 4;
    TStringGrid grid;
    EXPECT_THROW(tab->PreencherStringGrid(&grid), EVariantError);
    EXPECT_EQ(grid.GetCell(2, 2), QStringLiteral("12,00"));
    EXPECT_EQ(tab->RecNo, 3);
    EXPECT_EQ(tab->Campos->Campos(0)->Valor, Variant(3));
    EXPECT_EQ(tab->Campos->Campos(1)->Valor, Variant(30));
    EXPECT_EQ(tab->Campos->Campos(2)->Valor, Variant("nome 3")) << "also of the one that failed";
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

/** The walks as they are stated, row by row through First and Next. */
void LocalizarSimples(TTabelaLinear &tab, const QString &chaves)
{
    for (tab.First(); !tab.Fim; tab.Next()) {
        if (tab.ChavesGarantia() == chaves)
            return;
    }
    tab.First();
}

QStringList Textos(TTabelaLinear &tab)
{
    QStringList textos{QString::number(tab.RecNo), QString::number(tab.Fim),
                       QString::number(tab.DataSet->RecNo()), QString::number(tab.DataSet->Eof()),
                       QString::number(tab.DataSet->Bof())};
    for (int i = 0; i < tab.Campos->Count(); ++i)
        textos << tab.Campos->Campos(i)->AsString() << tab.Campos->Campos(i)->TextoEstrangeiro;
    return textos;
}

TEST_F(TTabelaLinearTest, TheStateAfterASearchIsThatOfTheSimpleWalk)
{
    Abrir({1, 11, 12, 2},
          QStringLiteral("select nivel / 10 as a, cast(nome as char(12)) as b, item_cod, nivel "
                         "from item order by item_cod desc"));
    tab->PegarCampoChave(query.FieldByName(QStringLiteral("a")), 50, fr);
    tab->PegarCampoChave(query.FieldByName(QStringLiteral("b")));
    tab->PegarCampoChaveEstrangeira(query.FieldByName(QStringLiteral("nivel")),
                                    query.FieldByName(QStringLiteral("b")), 90, &edit);
    for (const char *chaves : {"1;nome 1", "11;nome 11", "12;nome 12", "2;nome 2", "1;nome 11",
                               "1;nome", "1", "1;", "", ";", "2;Nome 2", "2;nome 2;", "x"}) {
        const QString texto = QString::fromLatin1(chaves);
        LocalizarSimples(*tab, texto);
        const QStringList esperado = Textos(*tab) << fr->valor.AsString() << edit.text();
        tab->SetRecno(3);
        tab->LocalizarPelaChave(texto);
        EXPECT_EQ(Textos(*tab) << fr->valor.AsString() << edit.text(), esperado) << chaves;
    }
}

TEST_F(TTabelaLinearTest, TheStateAfterTheFillsIsWhatItWas)
{
    Abrir({1, 2, 3});
    LigarTudo();
    tab->PegarCampoChaveEstrangeira(query.FieldByName(QStringLiteral("nivel")),
                                    query.FieldByName(QStringLiteral("nome")), 90, nullptr);
    tab->SetRecno(2);
    const QStringList antes = Textos(*tab);
    TStringGrid grid;
    tab->PreencherStringGrid(&grid);
    EXPECT_EQ(Textos(*tab), antes);
    TLinhas lista;
    tab->PreencherStringList(lista, 3);
    EXPECT_EQ(lista.Texto(2), QStringLiteral("30"));
    EXPECT_EQ(Textos(*tab), antes);
    tab->Next();
    tab->Next();
    ASSERT_TRUE(tab->Fim);
    tab->PreencherStringList(lista, 3);
    EXPECT_FALSE(tab->Fim) << "making the row current again ends the walk's end";
}

TEST_F(TTabelaLinearTest, AnEventOfAKeySeesItsWholeRow)
{
    Abrir({1, 2, 3});
    LigarTudo();
    tab->Campos->Campos(0)->OnAsString = [this](TCampo *, QString &texto) {
        texto = QString::number(tab->RecNo) + u'/' + tab->Campos->Campos(2)->Valor.AsString();
    };
    tab->LocalizarPelaChave(QStringLiteral("3/30"));
    EXPECT_EQ(tab->RecNo, 3);
    TLinhas lista;
    tab->PreencherStringList(lista, 0);
    EXPECT_EQ(lista.Texto(1), QStringLiteral("2/20"));
}

TEST_F(TTabelaLinearTest, WithoutKeyFieldsTheEmptyKeyIsTheFirstRows)
{
    Abrir({1, 2});
    tab->PegarCampo(query.FieldByName(QStringLiteral("nome")));
    tab->SetRecno(2);
    tab->LocalizarPelaChave(QString());
    EXPECT_EQ(tab->RecNo, 1);
}

TEST_F(TTabelaLinearTest, AnEmptiedDatasetShowsItsNothing)
{
    Abrir({1});
    LigarTudo();
    tab->First();
    EXPECT_EQ(edit.text(), QStringLiteral("nome 1"));
    banco.Conexao().Executar(QStringLiteral("delete from item"));
    query.Close();
    query.Open();
    tab->AtualizarControles = false;
    tab->SetRecno(1);
    EXPECT_EQ(tab->RecNo, -1);
    EXPECT_TRUE(tab->Fim);
    EXPECT_TRUE(tab->Campos->Campos(0)->Valor.EhNulo());
    EXPECT_EQ(edit.text(), QStringLiteral("nome 1"));
    tab->AtualizarControles = true;
    tab->Next();
    EXPECT_EQ(edit.text(), QString());
    tab->LocalizarPelaChave(QStringLiteral("1"));
    EXPECT_EQ(tab->RecNo, -1);
}

TEST_F(TTabelaLinearTest, ANullTextInTheFirstFieldStopsTheFillAndTheRestStaysAsItWas)
{
    Abrir({1, 2, 3},
          QStringLiteral("select nullif(nome, 'nome 2') as n, nivel from item order by item_cod"));
    tab->PegarCampo(query.FieldByName(QStringLiteral("n")), 50);
    tab->PegarCampo(query.FieldByName(QStringLiteral("nivel")), 50);
    tab->SetRecno(3);
    TStringGrid grid;
    grid.SetColCount(2);
    grid.SetRowCount(4);
    for (int r = 1; r < 4; ++r)
        grid.SetCell(1, r, QStringLiteral("velho"));
    tab->PreencherStringGrid(&grid);
    EXPECT_EQ(grid.GetCell(1, 1), QStringLiteral("10"));
    EXPECT_EQ(grid.GetCell(1, 2), QStringLiteral("velho"));
    EXPECT_EQ(grid.GetCell(1, 3), QStringLiteral("velho"));
    EXPECT_EQ(tab->RecNo, 3);
    EXPECT_EQ(tab->Campos->Campos(1)->Valor, Variant(30));
}

TEST_F(TTabelaLinearTest, TheFillRestoresAtualizarControlesAlsoWhenItWasOffOrFailed)
{
    Abrir({1, 2});
    LigarTudo();
    TStringGrid grid;
    tab->AtualizarControles = false;
    tab->PreencherStringGrid(&grid);
    EXPECT_FALSE(tab->AtualizarControles);
    tab->AtualizarControles = true;
    tab->Campos->Campos(1)->OnAsString = [](TCampo *, QString &) {
        throw EVariantError(QStringLiteral("falhou"));
    };
    EXPECT_THROW(tab->PreencherStringGrid(&grid), EVariantError);
    EXPECT_TRUE(tab->AtualizarControles);
}

TEST_F(TTabelaLinearTest, OnlyTheFourEndsOfAnAlterationOrDeletionReleaseTheLock)
{
    Abrir({1, 2});
    LigarTudo();
    tab->SetRecno(2);
    const TTravas &travas = banco.Conexao().Travas();
    ASSERT_TRUE(tab->GarantiaRegistro());
    tab->InsIni();
    tab->InsCancel();
    tab->AltIni();
    tab->InsFim();
    EXPECT_TRUE(travas.Detem(QStringLiteral("item"), QStringLiteral("2")));
    for (void (TTabelaLinear::*fim)() : {&TTabelaLinear::AltFim, &TTabelaLinear::AltCancel,
                                         &TTabelaLinear::ExclFim, &TTabelaLinear::ExclCancel}) {
        ASSERT_TRUE(tab->GarantiaRegistro());
        (tab.get()->*fim)();
        EXPECT_EQ(travas.Count(), 0);
    }
}

TEST_F(TTabelaLinearTest, TheTableMayGoWhileARefusalIsShown)
{
    Abrir({1});
    LigarTudo();
    tab->First();
    ASSERT_TRUE(banco.Conexao().Travas().Tentar(QStringLiteral("item"), QStringLiteral("1")));
    TTabelaLinear *ido = tab.get();
    Servicos().MensagemAviso = [this](const QString &, int) { tab.reset(); };
    EXPECT_FALSE(ido->GarantiaRegistro());
    EXPECT_EQ(tab, nullptr);
}

TEST_F(TTabelaLinearTest, AFailedReReadingKeepsNoLock)
{
    Abrir({1}, QStringLiteral("select * from item where 1 / (3 - nivel / 10) > 0"));
    LigarTudo();
    tab->First();
    banco.Conexao().Executar(QStringLiteral("insert into item values (2, 'x', 30)"));
    EXPECT_THROW((void)tab->GarantiaRegistro(), EDatabaseError);
    EXPECT_EQ(banco.Conexao().Travas().Count(), 0);
    EXPECT_TRUE(tab->AtualizarControles);
}

TEST_F(TTabelaLinearTest, WithoutADatasetNoRecordIsMadeSureOf)
{
    tab = Criar<TTabelaLinear>(nullptr, QStringLiteral("item"));
    EXPECT_EQ(tab->RecNo, -1);
    EXPECT_FALSE(tab->GarantiaRegistro());
    EXPECT_EQ(banco.Conexao().Travas().Count(), 0);
}

TEST_F(TTabelaLinearTest, ClearedFieldsUnbindTheirFrames)
{
    Abrir({1});
    LigarTudo();
    tab->Campos->Clear();
    EXPECT_EQ(fr->Campo, nullptr);
    EXPECT_EQ(fr->Tabela, nullptr);
}

} // namespace

#include "TTabelaLinear_test.moc"
