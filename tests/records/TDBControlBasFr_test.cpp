#include "base/UDBControlBasFr.h"
#include "platform/database/TSQLQuery.h"
#include "records/UTabelaLinear.h"
#include "support/BancoTemp.h"

#include "platform/core/Servicos.h"

using namespace ficha;

namespace
{

const QString Script = QStringLiteral(
    "create table item (item_cod integer not null primary key, nome varchar(30), nivel integer);"
    "insert into item values (1, 'JOÃO', 10);"
    "insert into item values (2, 'Ana', 0);"
    "insert into item values (3, '   ', 30);");

class TTextoFr : public TDBControlBasFr
{
    Q_OBJECT
public:
    using TDBControlBasFr::TDBControlBasFr;
    QString AsString() const override { return texto; }
    QString SQLString() const override
    {
        return numero ? texto : u'\'' + QString(texto).replace(u'\'', QStringLiteral("''")) + u'\'';
    }
    QString texto;
    bool numero = false;
};

class TTelaFalsa : public QObject, public ITelaManutencao
{
    Q_OBJECT
public:
    bool AtivarAlteracao() override
    {
        ++alteracoes;
        return true;
    }
    TControlBasFr *GetChamador() const override { return nullptr; }
    void SetChamador(TControlBasFr *) override {}
    int alteracoes = 0;
};

class TDBControlBasFrTest : public testing::Test
{
protected:
    void SetUp() override
    {
        Servicos().MensagemAviso = [this](const QString &texto, int opcao) {
            avisos << texto;
            opcoes << opcao;
        };
        query.SetSQLConnection(&banco.Conexao());
        query.SetSQL(QStringLiteral("select * from item order by item_cod"));
        query.Open();
        query.FieldByName(QStringLiteral("nome"))->SetDisplayLabel(QStringLiteral("Nome"));
        tab = Criar<TTabelaLinear>(&query, QStringLiteral("item"));
        tab->PegarCampoChave(query.FieldByName(QStringLiteral("item_cod")));
        fr = Criar<TTextoFr>(&janela);
        tab->PegarCampo(query.FieldByName(QStringLiteral("nome")), 100, fr);
        nivel = Criar<TTextoFr>(&janela);
        nivel->numero = true;
        tab->PegarCampo(query.FieldByName(QStringLiteral("nivel")), 100, nivel);
        tab->First();
        fr->NaoRepetir = true;
    }

    TBancoTemp banco{Script};
    TServicosGuarda guarda;
    QStringList avisos;
    QList<int> opcoes;
    TSQLQuery query;
    QWidget janela;
    TTextoFr *fr = nullptr;
    TTextoFr *nivel = nullptr;
    std::unique_ptr<TTabelaLinear> tab;
};

TEST(TDBControlBasFr, AFreshFrameIsBoundToNothing)
{
    QWidget janela;
    auto *fr = Criar<TDBControlBasFr>(&janela);
    EXPECT_FALSE(fr->NaoRepetir);
    EXPECT_EQ(fr->Tabela, nullptr);
    EXPECT_EQ(fr->Campo, nullptr);
    EXPECT_EQ(fr->FormTabela(), nullptr);
    ASSERT_EQ(fr->Frases.Count(), 1);
    EXPECT_EQ(fr->Frases.Texto(0), QStringLiteral("Já existe"));
    EXPECT_EQ(fr->Frases.Objeto(0), 0);
    EXPECT_EQ(fr->FraseRef(), QString());
    EXPECT_EQ(fr->size(), QSize(146, 48));
    fr->NaoRepetir = true;
    EXPECT_TRUE(fr->ValorAceitavel());
    fr->Editar();
}

TEST_F(TDBControlBasFrTest, WithoutNaoRepetirNoQueryIsMade)
{
    fr->NaoRepetir = false;
    fr->texto = QStringLiteral("Ana");
    tab->InsIni();
    banco.Conexao().Close();
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_FALSE(banco.Conexao().Connected());
    banco.Conexao().Open();
}

TEST_F(TDBControlBasFrTest, AnIdleTableNeverRepeats)
{
    fr->texto = QStringLiteral("Ana");
    EXPECT_FALSE(fr->Repetido());
    EXPECT_TRUE(fr->ValorAceitavel());
}

TEST_F(TDBControlBasFrTest, InsertingALowerCaseTextThatTheColumnHoldsInUpperCase)
{
    tab->InsIni();
    fr->texto = QStringLiteral("joão");
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{QStringLiteral(
                          "Repetição\r\nNome 'joão' já existe no sistema. Escolha outro valor, ou "
                          "clique em Cancelar.")});
    EXPECT_EQ(opcoes, QList<int>{0});
    EXPECT_EQ(fr->Frases.Objeto(0), 1);
    fr->texto = QStringLiteral("Pedro");
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(fr->Frases.Objeto(0), 0);
    fr->texto = QStringLiteral("   ");
    EXPECT_TRUE(fr->ValorAceitavel()) << "a value of blanks never repeats";
}

TEST_F(TDBControlBasFrTest, AlteringExcludesTheCurrentRecordByItsFirstKey)
{
    tab->SetRecno(2);
    tab->AltIni();
    fr->texto = QStringLiteral("Ana");
    EXPECT_TRUE(fr->ValorAceitavel());
    fr->texto = QStringLiteral("JoÃo");
    EXPECT_FALSE(fr->ValorAceitavel());
    fr->texto = QStringLiteral("   ");
    EXPECT_TRUE(fr->ValorAceitavel());
}

TEST_F(TDBControlBasFrTest, AnInsertedNumericZeroNeverRepeats)
{
    nivel->NaoRepetir = true;
    tab->InsIni();
    nivel->texto = QStringLiteral("30");
    EXPECT_TRUE(nivel->Repetido());
    nivel->texto = QStringLiteral("0");
    EXPECT_FALSE(nivel->Repetido());
    tab->InsCancel();
    tab->SetRecno(1);
    tab->AltIni();
    nivel->texto = QStringLiteral("0");
    EXPECT_TRUE(nivel->Repetido()) << "on alteration zeros do count";
    nivel->texto = QStringLiteral("10");
    EXPECT_FALSE(nivel->Repetido());
}

TEST_F(TDBControlBasFrTest, QuotesInTheValueAreDoubledInTheWarning)
{
    banco.Conexao().Executar(QStringLiteral("insert into item values (9, 'O''Brien', 90)"));
    tab->InsIni();
    fr->texto = QStringLiteral("o'brien");
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_TRUE(avisos.value(0).contains(QStringLiteral("Nome 'o''brien' já existe")))
        << avisos.value(0).toStdString();
}

TEST_F(TDBControlBasFrTest, FraseRefNamesTheColumnAndTheKeys)
{
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" Nome:  [Tab]Avançar  Não pode ser repetido"));
    fr->NaoRepetir = false;
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" Nome:  [Tab]Avançar"));
}

TEST_F(TDBControlBasFrTest, EditarAsksTheScreenOnlyWhileTheTableIsIdle)
{
    auto tela = std::make_unique<TTelaFalsa>();
    fr->SetFormTabela(tela.get());
    fr->Editar();
    EXPECT_EQ(tela->alteracoes, 1);
    tab->InsIni();
    fr->Editar();
    EXPECT_EQ(tela->alteracoes, 1) << "an open insertion is left alone";
    tab->InsCancel();
    tela.reset();
    EXPECT_EQ(fr->FormTabela(), nullptr);
    fr->Editar();
}

TEST_F(TDBControlBasFrTest, IsNullIsTheFields)
{
    EXPECT_FALSE(fr->IsNull());
    tab->SetRecno(3);
    EXPECT_TRUE(fr->IsNull()) << "a text of blanks";
}

TEST_F(TDBControlBasFrTest, ErrorsOfTheUniquenessQueryReachTheCaller)
{
    tab->InsIni();
    fr->texto = QStringLiteral("x");
    fr->Campo->Field->SetDisplayLabel(QString());
    tab->NomeTabela = QStringLiteral("nao_existe");
    EXPECT_THROW((void)fr->ValorAceitavel(), EDatabaseError);
}

/** A "table" that notes the statement which reads it. */
const QString Espiao = QStringLiteral(
    "set term ^;"
    "create procedure espiao returns (item_cod integer, nome varchar(30), nivel integer) as "
    "declare texto varchar(255); declare r integer; begin "
    "in autonomous transaction do " // for each has its own picture of the statements
    "select first 1 cast(mon$sql_text as varchar(255)) from mon$statements "
    "where mon$attachment_id = current_connection and mon$sql_text containing 'from espiao ' "
    "into texto; r = rdb$set_context('USER_SESSION', 'LIDO', texto); suspend; end^");

TEST_F(TDBControlBasFrTest, TheStatementsAreThoseToTheLetter)
{
    banco.Conexao().ExecutarScript(Espiao);
    tab->SetRecno(2);
    tab->NomeTabela = QStringLiteral("espiao");
    fr->texto = QStringLiteral("O'Bá");
    nivel->texto = QStringLiteral("30");
    const auto lido = [&](const TTextoFr *qual) {
        EXPECT_FALSE(qual->Repetido());
        return banco
            .Valor(
                QStringLiteral("select rdb$get_context('USER_SESSION', 'LIDO') from rdb$database"))
            .AsString();
    };
    tab->InsIni();
    EXPECT_EQ(lido(fr), QStringLiteral("select NOME from espiao where UPPER(NOME)=UPPER('O''Bá') "
                                       "collate pt_pt and ltrim(rtrim(NOME))<>''"));
    EXPECT_EQ(lido(nivel), QStringLiteral("select NIVEL from espiao where NIVEL=30 and NIVEL<>0"));
    tab->InsCancel();
    for (const bool alterar : {true, false}) {
        fr->texto = nivel->texto = alterar ? QStringLiteral("31") : QStringLiteral("32");
        alterar ? tab->AltIni() : tab->ExclIni();
        EXPECT_EQ(lido(fr), QStringLiteral("select NOME from espiao where (upper(NOME)=upper('%1') "
                                           "collate pt_pt) and ITEM_COD<>2 and "
                                           "ltrim(rtrim(NOME))<>''")
                                .arg(fr->texto));
        EXPECT_EQ(lido(nivel),
                  QStringLiteral("select NIVEL from espiao where NIVEL=%1 and ITEM_COD<>2")
                      .arg(nivel->texto));
        tab->AltCancel();
    }
}

TEST_F(TDBControlBasFrTest, EditarIsLeftAloneInEveryOpenState)
{
    TTelaFalsa tela;
    fr->SetFormTabela(&tela);
    tab->AltIni();
    fr->Editar();
    tab->AltCancel();
    tab->ExclIni();
    fr->Editar();
    tab->ExclCancel();
    EXPECT_EQ(tela.alteracoes, 0);
    fr->Editar();
    EXPECT_EQ(tela.alteracoes, 1);
}

} // namespace

#include "TDBControlBasFr_test.moc"
