#include "forms/TelasDeTeste.h"
#include "forms/ULocalizBasF.h"

namespace ficha::testes
{

/** New codes and deletion of the maintenance screen. */
class TNovoCodigoTest : public TTelasTest
{
protected:
    void Codigos(const QList<int> &codigos)
    {
        for (int cod : codigos)
            Inserir(cod, QStringLiteral("g%1").arg(cod));
    }
    int Sugestao(const QList<int> &codigos)
    {
        Codigos(codigos);
        return Abrir()->SugestaoNovoCod();
    }
};

TEST_F(TNovoCodigoTest, TheLowestFreeCodeIsSuggested_InAGap)
{
    EXPECT_EQ(Sugestao({1, 2, 4}), 3);
}

TEST_F(TNovoCodigoTest, TheLowestFreeCodeIsSuggested_BeforeTheFirst)
{
    EXPECT_EQ(Sugestao({2, 3}), 1);
}

TEST_F(TNovoCodigoTest, TheLowestFreeCodeIsSuggested_EmptyTable)
{
    EXPECT_EQ(Sugestao({}), 1);
}

TEST_F(TNovoCodigoTest, TheLowestFreeCodeIsSuggested_AfterTheLast)
{
    EXPECT_EQ(Sugestao({1, 2, 3}), 4);
}

TEST_F(TNovoCodigoTest, StoredOneTwoThreeFive_SuggestionAndTypedCodes)
{
    Codigos({1, 2, 3, 5});
    TGruposF *tela = Abrir();
    EXPECT_EQ(tela->SugestaoNovoCod(), 4);
    EXPECT_EQ(tela->MaiorCodGravado(), 5);
    tela->CodFr->SetValor(9);
    EXPECT_EQ(tela->StringProxCod(), QStringLiteral("6"));
    tela->CodFr->SetValor(6);
    EXPECT_EQ(tela->StringProxCod(), QStringLiteral("6"));
    tela->CodFr->SetValor(4);
    EXPECT_EQ(tela->StringProxCod(), QStringLiteral("4"));
    tela->CodFr->SetValor(0);
    EXPECT_EQ(tela->StringProxCod(), QStringLiteral("GEN_ID(GRUPOS_COD_gen, 1)"));
}

TEST_F(TNovoCodigoTest, EmptyTable_TheHighestCodeIsZeroAndTypedCodesBecomeOne)
{
    TGruposF *tela = Abrir();
    EXPECT_EQ(tela->MaiorCodGravado(), 0);
    tela->CodFr->SetValor(40);
    EXPECT_EQ(tela->StringProxCod(), QStringLiteral("1"));
}

TEST_F(TNovoCodigoTest, WithoutACodeEditTheGeneratorGivesTheCode)
{
    TGruposF *tela = Abrir();
    TTabLinearBasF::EditCod = nullptr;
    EXPECT_EQ(tela->StringProxCod(), QStringLiteral("GEN_ID(GRUPOS_COD_gen, 1)"));
    tela->SugerirCod(); // nothing to show it in
    TTabLinearBasF::EditCod = tela->CodFr;
}

TEST_F(TNovoCodigoTest, ANullCodeGivesAnEmptyText)
{
    struct TNuloFr : TNumEditBRCodBasFr {
        using TNumEditBRCodBasFr::TNumEditBRCodBasFr;
        Variant GetValor() const override { return TNulo(); }
    };
    Codigos({1});
    TGruposF *tela = Abrir();
    TTabLinearBasF::EditCod = Criar<TNuloFr>(tela->CamposTabSheet);
    EXPECT_EQ(tela->StringProxCod(), QString());
    TTabLinearBasF::EditCod = tela->CodFr;
}

TEST_F(TNovoCodigoTest, ATypedCodeAboveTheHighestPlusOneIsReplaced)
{
    Codigos({1, 2});
    TGruposF *tela = Abrir();
    tela->InsAction->Execute();
    Digitar(QStringLiteral("roxo"));
    tela->CodFr->NumEditBR1->setFocus();
    tela->CodFr->NumEditBR1->selectAll();
    Digitar(QStringLiteral("50"));
    EXPECT_EQ(tela->CodFr->GetValor(), Variant(50));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->CodUltimoInserido, 3);
    EXPECT_EQ(DescrNoBanco(3), QStringLiteral("roxo"));
    EXPECT_EQ(tela->Codigo(), QStringLiteral("3"));
}

TEST_F(TNovoCodigoTest, ZeroTakesTheGeneratorsNextCode)
{
    Codigos({1, 2});
    TGruposF *tela = Abrir();
    tela->Tab->GenSet(QStringLiteral("grupos"), 10);
    tela->InsAction->Execute();
    tela->CodFr->SetValor(0);
    tela->Descr()->setText(QStringLiteral("onze"));
    tela->ConfirmAction->Execute();
    EXPECT_EQ(tela->CodUltimoInserido, 11);
    EXPECT_EQ(DescrNoBanco(11), QStringLiteral("onze"));
}

TEST_F(TNovoCodigoTest, WithoutSQLUltimoInseridoTheSupportIsToldAndTheReadBackFails)
{
    TGruposF *tela = Abrir();
    tela->comUltimo = false;
    tela->InsAction->Execute();
    tela->Descr()->setText(QStringLiteral("um"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(avisos, QStringList(QStringLiteral(
                          "Avisar o Suporte Técnico:\r\nfaltou SQL do último inserido")));
    avisos.clear();
    EXPECT_EQ(erros.size(), 1);
    erros.clear();
    EXPECT_EQ(Quantos(), 1);
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
}

// ---- deletion ------------------------------------------------------------------------------

class TExclusaoTest : public TTelasTest
{
protected:
    void SetUp() override
    {
        TresGrupos();
        tela = Abrir();
        tela->MoverParaLinha(2);
        Ocioso();
    }
    bool OutraConsegueALock()
    {
        TGruposF *outra = Abrir();
        outra->MoverParaLinha(2);
        const bool obteve = outra->AtivarAlteracao();
        delete outra;
        return obteve;
    }
    TGruposF *tela = nullptr;
};

TEST_F(TExclusaoTest, DeletingAsksAndThenStandsOnTheLastRecord)
{
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(perguntas, QStringList(QStringLiteral("(excluir)")));
    EXPECT_EQ(Quantos(), 2);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 0);
    EXPECT_EQ(tela->Tab->RecNo, 2); // the deleted code is not there: the end
    EXPECT_EQ(tela->StringGrid1->GetCell(1, 2), QStringLiteral("lilas"));
    EXPECT_EQ(tela->ganchos, QStringList({"AntesExcluir", "AposExcluir"}));
    EXPECT_EQ(Foco(), tela->StringGrid1);
    EXPECT_TRUE(tela->AtualizarLigado);
}

TEST_F(TExclusaoTest, WithPerguntarExcluirOffThereIsNoQuestion)
{
    tela->PerguntarExcluir = false;
    tela->ExclAction->Execute();
    EXPECT_TRUE(perguntas.isEmpty());
    EXPECT_EQ(Quantos(), 2);
}

TEST_F(TExclusaoTest, DecliningLeavesTheRecordReleasesTheLockAndShowsTheList)
{
    responde = false;
    tela->PageControl1->MudarComoUsuario(1);
    tela->DescrFr->SetFocus();
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(Quantos(), 3);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 0);
    EXPECT_EQ(Foco(), tela->StringGrid1);
    EXPECT_EQ(tela->Tab->RecNo, 2);
    EXPECT_TRUE(tela->ganchos.isEmpty());
    EXPECT_TRUE(OutraConsegueALock());
}

TEST_F(TExclusaoTest, TheScreensOwnVetoLeavesWithoutALock)
{
    tela->podeExcluir = false;
    tela->releituras = 0;
    tela->ExclAction->Execute();
    EXPECT_EQ(Quantos(), 3);
    EXPECT_TRUE(perguntas.isEmpty());
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->releituras, 1);
    EXPECT_TRUE(OutraConsegueALock());
}

TEST_F(TExclusaoTest, ARefusedLockDeletesNothingAndLeavesTheOtherScreensLockAlone)
{
    TGruposF *outra = Abrir();
    outra->MoverParaLinha(2);
    ASSERT_TRUE(outra->AtivarAlteracao());
    tela->ExclAction->Execute();
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_TRUE(perguntas.isEmpty());
    EXPECT_EQ(Quantos(), 3);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_TRUE(tela->AtualizarLigado);
    // Still locked by the screen that alters it.
    EXPECT_FALSE(OutraConsegueALock());
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
}

TEST_F(TExclusaoTest, AFailingDeleteCleansUpAndReportsOnce)
{
    banco.Executar(QStringLiteral("insert into itens values (1, 2)"));
    tela->releituras = 0;
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(erros.size(), 1);
    erros.clear();
    EXPECT_EQ(Quantos(), 3);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 0);
    EXPECT_EQ(tela->releituras, 1);
    EXPECT_EQ(tela->ganchos, QStringList(QStringLiteral("AntesExcluir")));
    EXPECT_TRUE(tela->AtualizarLigado);
    EXPECT_TRUE(OutraConsegueALock());
}

TEST_F(TExclusaoTest, TheFirstOfTwoFailuresIsTheOneReported)
{
    aoPerguntar = [this] { banco.Conexao().Close(); };
    tela->ExclAction->OnExecute = [this](QObject *) {
        EXPECT_THROW(tela->ExclActionExecute(nullptr), EDatabaseError);
    };
    tela->ExclAction->Execute();
    EXPECT_TRUE(tela->AtualizarLigado);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    banco.Conexao().Open();
    EXPECT_EQ(Quantos(), 3);
}

TEST_F(TExclusaoTest, ManterPaginaSkipsTheStepBack)
{
    tela->PageControl1->MudarComoUsuario(1);
    int passos = 0;
    const auto antes = tela->PageControl1->OnChange;
    tela->PageControl1->OnChange = [&](QObject *s) {
        ++passos;
        antes(s);
    };
    tela->ManterPagina = 1;
    tela->ExclAction->Execute();
    EXPECT_EQ(passos, 0);
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 0);
    tela->PageControl1->MudarComoUsuario(1);
    passos = 0;
    tela->ManterPagina = 0;
    tela->ExclAction->Execute();
    EXPECT_EQ(passos, 1);
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 0);
}

TEST_F(TExclusaoTest, DeletingTheLastRecordLeavesAnEmptyList)
{
    tela->PerguntarExcluir = false;
    for (int i = 0; i < 3; ++i) {
        tela->ExclAction->Execute();
        Ocioso();
    }
    EXPECT_EQ(Quantos(), 0);
    EXPECT_EQ(tela->NRegsLabel->text(), QStringLiteral("Nenhum registro"));
    EXPECT_EQ(tela->StringGrid1->GetRowCount(), 2);
    EXPECT_EQ(tela->StringGrid1->GetCell(1, 1), QString());
    EXPECT_EQ(tela->Descr()->text(), QString());
    EXPECT_FALSE(tela->ExclAction->GetEnabled());
}

} // namespace ficha::testes
