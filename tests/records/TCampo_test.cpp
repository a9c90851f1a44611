#include "base/UDBControlBasFr.h"
#include "platform/core/Erros.h"
#include "platform/database/TSQLQuery.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "records/UCampo.h"
#include "support/BancoTemp.h"

using namespace ficha;

namespace
{

/** A column-bound frame that may be undone, as the coded edit is. */
class TCodFr : public TDBControlBasFr
{
    Q_OBJECT
public:
    using TDBControlBasFr::TDBControlBasFr;
    bool PodeDesfazer() const override { return podeDesfazer; }
    Variant GetValor() const override { return valor; }
    void SetValor(const Variant &v) override { valor = v; }
    void Atualizar() override { ++atualizacoes; }
    Variant valor;
    bool podeDesfazer = true;
    int atualizacoes = 0;
};

const QString Script = QStringLiteral(
    "create table tudo (cod integer, pequeno smallint, nome varchar(40), letra char(1), "
    "preco numeric(15,2), dia date, momento timestamp, sim boolean, nota blob sub_type text);"
    "insert into tudo values (7, 3, '  Ana  ', 'B', 12.50, '2026-03-05', '2026-03-05 08:30:00', "
    "true, 'texto');"
    "insert into tudo values (null, null, null, null, null, null, null, null, null);");

class TCampoTest : public testing::Test
{
protected:
    void SetUp() override
    {
        query.SetSQLConnection(&banco.Conexao());
        query.SetSQL(QStringLiteral("select * from tudo order by cod nulls last"));
        query.Open();
    }

    TCampo *Campo(const char *nome)
    {
        campo = std::make_unique<TCampo>();
        campo->Field = query.FieldByName(QString::fromLatin1(nome));
        return campo.get();
    }

    TBancoTemp banco{Script};
    TSQLQuery query;
    std::unique_ptr<TCampo> campo;
};

TEST(TCampo, StartsAsStated)
{
    const TCampo campo;
    EXPECT_TRUE(campo.Valor.EhNaoAtribuido());
    EXPECT_TRUE(campo.ValorPadrao.EhNaoAtribuido());
    EXPECT_FALSE(campo.OnAsString);
    EXPECT_EQ(campo.ListaChar, nullptr);
    EXPECT_EQ(campo.Lista, nullptr);
    EXPECT_EQ(campo.Indice, -1);
    EXPECT_EQ(campo.ControlInfo, nullptr);
    EXPECT_EQ(static_cast<TField *>(campo.Field), nullptr);
    EXPECT_FALSE(campo.Chave || campo.TemEstrangeiro || campo.Visivel || campo.TemValorPadrao);
    EXPECT_EQ(campo.ColInfo->Largura, 0);
    EXPECT_EQ(campo.Tipo, 0);
    EXPECT_EQ(campo.FormatoFloat, QStringLiteral("########0.00"));
}

TEST_F(TCampoTest, SetValorWithNullOnAStringColumnStoresTheEmptyString)
{
    TCampo *nome = Campo("nome");
    nome->SetValor(Null);
    EXPECT_EQ(nome->Valor, Variant(""));
    EXPECT_TRUE(nome->IsNull());
    nome->SetValor(QStringLiteral("  x "));
    EXPECT_EQ(nome->Valor, Variant("x"));
    EXPECT_FALSE(nome->IsNull());
}

TEST_F(TCampoTest, TheStoredValueIsNeitherTrimmedNorStoredAgain)
{
    TCampo *nome = Campo("nome");
    nome->Valor = QStringLiteral("  cru ");
    nome->SetValor(QStringLiteral("  cru "));
    EXPECT_EQ(nome->Valor, Variant("  cru "));
    TCampo *cod = Campo("cod");
    cod->Valor = QStringLiteral("5");
    cod->SetValor(5);
    EXPECT_TRUE(cod->Valor.EhTexto()) << "5 equals the numeric text, nothing changes";
}

TEST_F(TCampoTest, IsNullIsZeroForNumbersAndNeverForOthersNorForNull)
{
    for (const char *numero : {"cod", "pequeno", "preco"}) {
        TCampo *c = Campo(numero);
        c->SetValor(0);
        EXPECT_TRUE(c->IsNull()) << numero;
        c->SetValor(Null);
        EXPECT_FALSE(c->IsNull()) << numero << ": the Null value itself is not tested";
    }
    TCampo *dia = Campo("dia");
    dia->SetValor(0);
    EXPECT_FALSE(dia->IsNull());
}

TEST_F(TCampoTest, AsIntegerByColumnType)
{
    TCampo *nome = Campo("nome");
    nome->SetValor(QStringLiteral("12"));
    EXPECT_EQ(nome->AsInteger(), 12);
    nome->SetValor(QString());
    EXPECT_EQ(nome->AsInteger(), 0);
    TCampo *preco = Campo("preco");
    preco->SetValor(Null);
    EXPECT_EQ(preco->AsInteger(), 0);
    preco->SetValor(12.0);
    EXPECT_EQ(preco->AsInteger(), 12);
    TCampo *dia = Campo("dia");
    dia->SetValor(TDateTime(29221));
    EXPECT_EQ(dia->AsInteger(), 0);
}

TEST_F(TCampoTest, PegarValorTakesTheNaturalTypeOfTheColumn)
{
    TCampo *c = Campo("cod");
    c->PegarValor();
    EXPECT_TRUE(c->Valor.EhInteiro());
    EXPECT_EQ(c->Valor, Variant(7));
    c = Campo("nome");
    c->PegarValor();
    EXPECT_EQ(c->Valor, Variant("Ana"));
    c = Campo("preco");
    c->PegarValor();
    EXPECT_EQ(c->Valor, Variant(12.5));
    c = Campo("dia");
    c->PegarValor();
    EXPECT_TRUE(c->Valor.EhDataHora());
    c = Campo("cod");
    query.Next();
    c->PegarValor();
    EXPECT_TRUE(c->Valor.EhNulo());
}

TEST_F(TCampoTest, PegarValorTakesTheForeignDescription)
{
    TCampo *c = Campo("cod");
    c->FieldEstrangeiro = query.FieldByName(QStringLiteral("nome"));
    c->PegarValor();
    EXPECT_EQ(c->TextoEstrangeiro, QString()) << "not in use";
    c->TemEstrangeiro = true;
    c->PegarValor();
    EXPECT_EQ(c->TextoEstrangeiro.trimmed(), QStringLiteral("Ana"));
}

TEST_F(TCampoTest, AListFieldRendersItsEntryAndZerarHolds32)
{
    TLinhas lista;
    for (int i = 0; i < 40; ++i)
        lista.Add(QStringLiteral("item %1").arg(i));
    TCampo *c = Campo("pequeno");
    c->Lista = &lista;
    c->OnAsString = [](TCampo *, QString &texto) { texto = QStringLiteral("evento"); };
    c->SetValor(-1);
    EXPECT_EQ(c->AsString(), QString());
    c->SetValor(lista.Count());
    EXPECT_EQ(c->AsString(), QString());
    c->SetValor(0);
    EXPECT_EQ(c->AsString(), QStringLiteral("item 0")) << "the list goes before the event";
    c->TemValorPadrao = true;
    c->ValorPadrao = 5;
    c->Zerar();
    EXPECT_EQ(c->Valor, Variant(32)) << "and nothing more: no default";
    EXPECT_EQ(c->AsString(), QStringLiteral("item 32"));
    TLinhas curta;
    curta.Add(QStringLiteral("só"));
    c->Lista = &curta;
    EXPECT_EQ(c->AsString(), QString());
    c->Valor = Null;
    EXPECT_EQ(c->AsString(), QString());
}

TEST_F(TCampoTest, TheEventRendersAFieldThatIsNoList)
{
    TCampo *c = Campo("cod");
    c->OnAsString = [](TCampo *quem, QString &texto) {
        EXPECT_EQ(texto, QString());
        texto = QStringLiteral("<%1>").arg(quem->Valor.AsString());
    };
    c->SetValor(9);
    EXPECT_EQ(c->AsString(), QStringLiteral("<9>"));
}

TEST_F(TCampoTest, AsStringByTipo)
{
    TCampo *c = Campo("nome");
    c->Valor = QStringLiteral(" a b ");
    EXPECT_EQ(c->AsString(), QStringLiteral("a b"));
    c->Valor = Null;
    EXPECT_EQ(c->AsString(), QString());

    c = Campo("momento");
    c->Tipo = 1;
    c->PegarValor();
    EXPECT_EQ(c->AsString(), QStringLiteral("05/03/2026"));
    c->Valor = Null;
    EXPECT_EQ(c->AsString(), QString());
    for (const int vazio : {2, 3, 7, 200}) {
        c->Tipo = static_cast<unsigned char>(vazio);
        c->PegarValor();
        EXPECT_EQ(c->AsString(), QString()) << vazio;
    }

    c = Campo("preco");
    c->Tipo = 4;
    c->Valor = 999;
    EXPECT_EQ(c->AsString(), QStringLiteral("12,50")) << "the column's value, not Valor";
    c->FormatoFloat = QStringLiteral("####.0");
    EXPECT_EQ(c->AsString(), QStringLiteral("12,5"));
}

TEST_F(TCampoTest, Tipo5LooksTheCharacterUp)
{
    TCampo *c = Campo("letra");
    c->Tipo = 5;
    EXPECT_EQ(c->AsString(), QString()) << "without a list";
    c->ListaChar = std::make_unique<TLinhas>();
    c->ListaChar->Add(QStringLiteral("em branco"), u' ');
    c->ListaChar->Add(QStringLiteral("Bloqueado"), u'B');
    c->PegarValor();
    EXPECT_EQ(c->AsString(), QStringLiteral("Bloqueado"));
    c->Valor = QString();
    EXPECT_EQ(c->AsString(), QStringLiteral("em branco")) << "an empty text is a blank";
    c->Valor = QStringLiteral("Z");
    EXPECT_EQ(c->AsString(), QString());
}

TEST_F(TCampoTest, Tipo6FormatsAndTakesNullAsZero)
{
    TCampo *c = Campo("preco");
    c->Tipo = 6;
    c->Valor = 1234.0;
    EXPECT_EQ(c->AsString(), QStringLiteral("1234"));
    c->Valor = Null;
    EXPECT_EQ(c->AsString(), QStringLiteral("0"));
    query.FieldByName(QStringLiteral("preco"))->SetDisplayFormat(QStringLiteral("###,##0.00"));
    EXPECT_EQ(c->AsString(), QStringLiteral("0,00"));
    c->Valor = 1234.5;
    EXPECT_EQ(c->AsString(), QStringLiteral("1.234,50"));
}

TEST_F(TCampoTest, ZerarByColumnTypeAndThenTheDefault)
{
    TCampo *c = Campo("nome");
    c->SetValor(QStringLiteral("x"));
    c->Zerar();
    EXPECT_EQ(c->Valor, Variant(""));
    c = Campo("preco");
    c->SetValor(5.5);
    c->Zerar();
    EXPECT_EQ(c->Valor, Variant(0));
    c = Campo("dia");
    c->PegarValor();
    c->Zerar();
    EXPECT_EQ(c->Valor, Variant(TDateTime::DeData(5, 3, 2026))) << "other types stay unchanged";
    c->TemValorPadrao = true;
    c->ValorPadrao = TDateTime(29221);
    c->Zerar();
    EXPECT_EQ(c->Valor, Variant(TDateTime(29221)));
}

TEST_F(TCampoTest, PreencherControlShowsTheValueAndRefreshesAFrame)
{
    QWidget janela;
    auto *fr = Criar<TCodFr>(&janela);
    TCampo *c = Campo("cod");
    c->PreencherControl();
    c->ControlInfo = std::make_unique<TControlInfo>();
    c->ControlInfo->SetControl(fr);
    c->PegarValor();
    c->PreencherControl();
    EXPECT_EQ(fr->valor, Variant(7));
    EXPECT_EQ(fr->atualizacoes, 1);
    fr->valor = 99;
    c->Undo();
    EXPECT_EQ(fr->valor, Variant(7));

    TLabeledEdit edit(&janela);
    c = Campo("nome");
    c->ControlInfo = std::make_unique<TControlInfo>();
    c->ControlInfo->SetControl(&edit);
    c->PegarValor();
    c->PreencherControl();
    EXPECT_EQ(edit.text(), QStringLiteral("Ana"));
}

TEST_F(TCampoTest, CanUndoOnlyForACodedEditWhoseTextDiffers)
{
    QWidget janela;
    auto *fr = Criar<TCodFr>(&janela);
    TCampo *c = Campo("cod");
    EXPECT_FALSE(c->CanUndo());
    c->ControlInfo = std::make_unique<TControlInfo>();
    c->ControlInfo->SetControl(fr);
    EXPECT_TRUE(c->CanUndo()) << "an empty stored text";
    c->SetValor(7);
    fr->valor = QStringLiteral("7");
    EXPECT_FALSE(c->CanUndo());
    fr->valor = QStringLiteral("8");
    EXPECT_TRUE(c->CanUndo());
    fr->podeDesfazer = false;
    EXPECT_FALSE(c->CanUndo());
}

TEST(TCampo, ADatasetThatDiesFirstLeavesAFieldWithoutAColumn)
{
    TBancoTemp banco(Script);
    TCampo campo;
    {
        TSQLQuery query;
        query.SetSQLConnection(&banco.Conexao());
        query.SetSQL(QStringLiteral("select cod from tudo"));
        query.Open();
        campo.Field = query.Fields(0);
        campo.PegarValor();
    }
    EXPECT_EQ(static_cast<TField *>(campo.Field), nullptr);
    campo.PegarValor();
    campo.Zerar();
    EXPECT_EQ(campo.AsString(), QStringLiteral("7"));
}

TEST_F(TCampoTest, AListFieldWithoutANumberHasNoEntry)
{
    TLinhas lista;
    lista.Add(QStringLiteral("zero"));
    lista.Add(QStringLiteral("um"));
    TCampo *c = Campo("letra");
    c->Lista = &lista;
    c->SetValor(QStringLiteral("1"));
    EXPECT_EQ(c->AsString(), QStringLiteral("um"));
    for (const char *texto : {"", "B", "2", "-1"}) {
        c->SetValor(QString::fromLatin1(texto));
        EXPECT_EQ(c->AsString(), QString()) << texto;
    }
    c = Campo("preco");
    c->Lista = &lista;
    c->SetValor(1.9);
    EXPECT_EQ(c->AsString(), QStringLiteral("um")) << "never beyond the last entry";
}

TEST_F(TCampoTest, AFieldThatGoesUnbindsItsFrame)
{
    QWidget janela;
    auto *fr = Criar<TCodFr>(&janela);
    TCampo *c = Campo("cod");
    c->ControlInfo = std::make_unique<TControlInfo>();
    c->ControlInfo->SetControl(fr);
    fr->PegarColuna(c, nullptr);
    campo.reset();
    EXPECT_EQ(fr->Campo, nullptr);
}

TEST_F(TCampoTest, AsIntegerOfATextThatIsNoNumberIsZero)
{
    TCampo *nome = Campo("nome");
    nome->SetValor(QStringLiteral("Ana"));
    EXPECT_EQ(nome->AsInteger(), 0);
    nome->SetValor(QStringLiteral("-12.345-6"));
    EXPECT_EQ(nome->AsInteger(), -123456);
    nome->SetValor(QStringLiteral("7891000315507"));
    EXPECT_THROW((void)nome->AsInteger(), EVariantError) << "never another number";
}

} // namespace

#include "TCampo_test.moc"
