#include "forms/TelasDeTeste.h"
#include "forms/UApoioForms.h"
#include "forms/ULocalizBasF.h"
#include "forms/UTabLinearD.h"
#include "platform/database/PrepararBanco.h"
#include "platform/hostforms/TPrincipalMDIF.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/TImageList.h"
#include "support/ServidorFirebird.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTimer>

#include <cstdio>
#include <utility>

namespace ficha::testes
{

class TTabLinearBasFTest : public TTelasTest
{
};

// ---- what a fresh screen looks like ---------------------------------------------------------

TEST_F(TTabLinearBasFTest, PagesActionsAndPicturesAreAsStated)
{
    TGruposF *tela = Abrir();
    ASSERT_EQ(tela->PageControl1->PageCount(), 4);
    const std::pair<const char *, int> paginas[] = {
        {"Lista", 29}, {"Campos", 16}, {"Relatórios", 51}, {"Manutenção", 52}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(tela->PageControl1->GetPage(i)->GetCaption(), QString(paginas[i].first));
        EXPECT_EQ(tela->PageControl1->GetPage(i)->GetImageIndex(), paginas[i].second);
    }
    EXPECT_EQ(tela->PageControl1->GetTabWidth(), 110);
    EXPECT_TRUE(tela->PageControl1->GetTabFont().bold());
    EXPECT_EQ(tela->PageControl1->GetTabColor(), 0x800000);
    struct TEsperada {
        TAction *acao;
        const char *caption, *hint, *tecla;
        int imagem;
    };
    const TEsperada acoes[] = {
        {tela->InsAction, "Incluir", "Inserir", "Ctrl+Alt+I", 45},
        {tela->AltAction, "Alterar", "Alterar", "Ctrl+A", 46},
        {tela->ExclAction, "Excluir", "Excluir", "Ctrl+Del", 30},
        {tela->DesfazerAction, "Desfazer", "Desfazer", "Ctrl+Z", 9},
        {tela->ConfirmAction, "Confirmar", "Confirmar", "Ctrl+Return", 10},
        {tela->CancelarAction, "Cancelar", "Cancelar", "Esc", 3},
        {tela->LocalizAction, "Localizar", "Localizar", "Ctrl+L", 49},
        {tela->FirstAction, "Primeiro", "", "Ctrl+PgUp", 2},
        {tela->PriorAction, "Anterior", "", "Ctrl+Up", 3},
        {tela->NextAction, "Próximo", "", "Ctrl+Down", 4},
        {tela->LastAction, "Último", "", "Ctrl+PgDown", 5},
        {tela->ImprAction, "Relatórios", "Impressão de Relatórios", "", 20},
        {tela->ConfigImprAction, "Configurar a Impressão", "Configurar a impressão", "", 19},
        {tela->FiltrarAction, "Filtro", "Filtrar", "", 50},
    };
    for (const TEsperada &e : acoes) {
        EXPECT_EQ(e.acao->GetCaption(), QString(e.caption));
        EXPECT_EQ(e.acao->GetHint(), QString(e.hint)) << e.caption;
        EXPECT_EQ(e.acao->shortcut(), QKeySequence(QString(e.tecla))) << e.caption;
        EXPECT_EQ(e.acao->GetImageIndex(), e.imagem) << e.caption;
    }
}

TEST_F(TTabLinearBasFTest, GridAndToolBarsAreAsStated)
{
    TGruposF *tela = Abrir();
    TStringGrid *grade = tela->StringGrid1;
    EXPECT_EQ(grade->GetFixedCols(), 0);
    EXPECT_EQ(grade->GetDefaultRowHeight(), 18);
    EXPECT_TRUE(grade->GetRangeSelect());
    EXPECT_TRUE(grade->GetThumbTracking());
    EXPECT_EQ(grade->GetColor(), TColor(13684944));
    EXPECT_EQ(tela->NavToolBar->GetCaption(), QStringLiteral("Navegação"));
    EXPECT_EQ(tela->NavToolBar->GetButtonWidth(), 25);
    EXPECT_EQ(tela->ToolBar1->GetButtonWidth(), 71);
    EXPECT_TRUE(tela->ToolBar1->GetShowCaptions());
    EXPECT_EQ(tela->NavToolBar->GetImages(), TabLinearD->BarraImageList16);
    EXPECT_EQ(tela->NavToolBar->GetDisabledImages(), TabLinearD->BarraDisImageList16);
    EXPECT_EQ(tela->ActionList1->GetImages(), TabLinearD->BarraImageList16);
    EXPECT_EQ(tela->ToolBar1->GetImages(), SisD().ImageList16);
    EXPECT_EQ(tela->ToolBar2->GetImages(), SisD().ImageList16);
    EXPECT_EQ(tela->GeralTimer->interval(), 250);
    EXPECT_FALSE(tela->GeralTimer->isActive());
    QStringList botoes;
    for (TToolButton *b : tela->ToolBar1->Buttons())
        botoes << b->objectName();
    EXPECT_EQ(botoes, QStringList({"InsToolButton", "AltToolButton", "ExclToolButton",
                                   "LocalizToolButton", "FiltrarToolButton"}));
    EXPECT_EQ(tela->ConfirmBitBtn->GetAction(), tela->ConfirmAction);
    EXPECT_EQ(tela->FiltroAtivLab->text(), QStringLiteral("F I L T R O    A T I V A D O"));
    EXPECT_TRUE(tela->FiltroAtivLab->isHidden());
    EXPECT_TRUE(tela->FiltroAtivLab->font().bold());
    EXPECT_EQ(tela->FiltroAtivLab->palette().color(QPalette::WindowText), QColor(192, 0, 0));
    EXPECT_EQ(tela->CodFr->NumEditBR1->height(), 20);
    botoes.clear();
    for (TToolButton *b : tela->NavToolBar->Buttons())
        botoes << b->objectName();
    EXPECT_EQ(botoes, QStringList({"FirstToolButton", "PriorToolButton", "NextToolButton",
                                   "LastToolButton"}));
    EXPECT_EQ(tela->PageControl1->cornerWidget(Qt::TopRightCorner), tela->NRegsPanel);
    EXPECT_TRUE(tela->PerguntarExcluir);
    EXPECT_TRUE(tela->SincronizarLinha);
    EXPECT_TRUE(tela->SelecaoNavega);
    EXPECT_FALSE(tela->FiltroAtivo || tela->Fechando || tela->FecharAposChamador);
    EXPECT_EQ(tela->ManterPagina, 0);
    EXPECT_EQ(tela->CodUltimoInserido, 0);
    EXPECT_EQ(tela->Chamador, nullptr);
    tela->AltAction->Execute();
    Ocioso();
    const QRect confirmar(tela->ConfirmPanel->mapTo(tela, QPoint()), tela->ConfirmPanel->size());
    EXPECT_GT(confirmar.left(), tela->width() / 2);
    EXPECT_EQ(tela->ConfirmBitBtn->text(), QStringLiteral("Confirmar"));
}

TEST_F(TTabLinearBasFTest, AFreshScreenShowsTheListAndFillsTheInputsWithTheFirstRecord)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 0);
    EXPECT_EQ(Foco(), tela->StringGrid1);
    EXPECT_EQ(tela->StringGrid1->GetRowCount(), 4);
    EXPECT_EQ(tela->StringGrid1->GetCell(0, 0), QStringLiteral("Código"));
    EXPECT_EQ(tela->StringGrid1->GetCell(1, 2), QStringLiteral("verde"));
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("azul"));
    EXPECT_EQ(tela->Codigo(), QStringLiteral("1"));
    EXPECT_TRUE(tela->AtualizarLigado);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->DescrFr->FormTabela(), static_cast<ITelaManutencao *>(tela));
    EXPECT_FALSE(tela->FiltrarAction->GetVisible());
}

TEST_F(TTabLinearBasFTest, AFilterActionWithAHandlerStaysVisible)
{
    TGruposF *tela = Criar<TGruposF>(nullptr);
    tela->FiltrarAction->OnExecute = [](QObject *) {};
    janela.addSubWindow(tela);
    janela.show();
    tela->Show();
    EXPECT_TRUE(tela->FiltrarAction->GetVisible());
}

// ---- enabling ------------------------------------------------------------------------------

TEST_F(TTabLinearBasFTest, EmptyTable_LabelActionsAndAlterarStartsAnInsertion)
{
    TGruposF *tela = Abrir();
    EXPECT_EQ(tela->NRegsLabel->text(), QStringLiteral("Nenhum registro"));
    EXPECT_FALSE(tela->LocalizAction->GetEnabled());
    EXPECT_FALSE(tela->ImprAction->GetEnabled());
    EXPECT_TRUE(tela->InsAction->GetEnabled());
    EXPECT_FALSE(tela->AltAction->GetEnabled());
    EXPECT_FALSE(tela->ExclAction->GetEnabled());
    EXPECT_EQ(tela->StringGrid1->GetRowCount(), 2);
    EXPECT_EQ(tela->StringGrid1->GetRow(), 1);
    EXPECT_TRUE(tela->AtivarAlteracao());
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(tela->Codigo(), QStringLiteral("1"));
}

TEST_F(TTabLinearBasFTest, EmptyTable_TypingStartsAnInsertionAndKeepsWhatWasTyped)
{
    TGruposF *tela = Abrir();
    tela->PageControl1->MudarComoUsuario(1);
    tela->DescrFr->SetFocus();
    Digitar(QStringLiteral("novo"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("novo"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(DescrNoBanco(1), QStringLiteral("novo"));
}

TEST_F(TTabLinearBasFTest, OneRecord_TheLabelIsSingular)
{
    Inserir(7, QStringLiteral("um"));
    TGruposF *tela = Abrir();
    EXPECT_EQ(tela->NRegsLabel->text(), QStringLiteral("1 registro"));
    EXPECT_TRUE(tela->LocalizAction->GetEnabled());
    EXPECT_TRUE(tela->ImprAction->GetEnabled());
    EXPECT_FALSE(tela->NextAction->GetEnabled());
}

TEST_F(TTabLinearBasFTest, SeveralRecords_LabelAndNavigationFollowTheRow)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    EXPECT_EQ(tela->NRegsLabel->text(), QStringLiteral("3 registros"));
    EXPECT_FALSE(tela->FirstAction->GetEnabled());
    EXPECT_FALSE(tela->PriorAction->GetEnabled());
    EXPECT_TRUE(tela->NextAction->GetEnabled());
    EXPECT_TRUE(tela->LastAction->GetEnabled());
    Tecla(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->RecNo, 3);
    EXPECT_EQ(tela->StringGrid1->GetRow(), 3);
    EXPECT_TRUE(tela->FirstAction->GetEnabled());
    EXPECT_FALSE(tela->LastAction->GetEnabled());
}

TEST_F(TTabLinearBasFTest, WhileEditingEverythingButConfirmAndCancelIsOff)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    EXPECT_TRUE(tela->ConfirmPanel->isHidden());
    EXPECT_FALSE(tela->CancelarAction->GetVisible());
    EXPECT_TRUE(tela->AtivarAlteracao());
    Ocioso();
    for (TAction *a : {tela->InsAction, tela->AltAction, tela->ExclAction, tela->LocalizAction,
                       tela->ImprAction, tela->FirstAction, tela->NextAction, tela->LastAction})
        EXPECT_FALSE(a->GetEnabled()) << a->GetCaption().toStdString();
    EXPECT_FALSE(tela->ConfirmPanel->isHidden());
    EXPECT_TRUE(tela->CancelarAction->GetVisible());
    EXPECT_EQ(tela->TextoCaption(), QStringLiteral("Cadastro de grupos - Alterando"));
    EXPECT_TRUE(tela->CodFr->NumEditBR1->isReadOnly());
    tela->CancelarAction->Execute();
    Ocioso();
    EXPECT_TRUE(tela->ConfirmPanel->isHidden());
    EXPECT_EQ(tela->TextoCaption(), QStringLiteral("Cadastro de grupos"));
}

TEST_F(TTabLinearBasFTest, TheCodeEditCanBeTypedInOnlyWhileInserting)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    EXPECT_TRUE(tela->CodFr->NumEditBR1->isReadOnly());
    tela->InsAction->Execute();
    Ocioso();
    EXPECT_FALSE(tela->CodFr->NumEditBR1->isReadOnly());
    tela->CancelarAction->Execute();
    Ocioso();
    EXPECT_TRUE(tela->CodFr->NumEditBR1->isReadOnly());
}

TEST_F(TTabLinearBasFTest, TheFilterMarkIsShownWhileAFilterIsInForce)
{
    TGruposF *tela = Abrir();
    tela->FiltroAtivo = true;
    Ocioso();
    EXPECT_FALSE(tela->FiltroAtivLab->isHidden());
    EXPECT_TRUE(tela->FiltrarToolButton->GetDown());
    tela->FiltroAtivo = false;
    Ocioso();
    EXPECT_TRUE(tela->FiltroAtivLab->isHidden());
    EXPECT_FALSE(tela->FiltrarToolButton->GetDown());
}

TEST_F(TTabLinearBasFTest, TheGridFollowsTheTableUnlessTheSynchronisationIsOff)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->SincronizarLinha = false;
    tela->MoverParaLinha(3);
    Ocioso();
    EXPECT_EQ(tela->StringGrid1->GetRow(), 1);
    tela->SincronizarLinha = true;
    Ocioso();
    EXPECT_EQ(tela->StringGrid1->GetRow(), 3);
}

// ---- the list ------------------------------------------------------------------------------

TEST_F(TTabLinearBasFTest, MovingInTheGridMovesTheTableAndStartsNoAlteration)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    QObject::connect(tela->Descr(), &QLineEdit::textChanged, tela, [tela] { tela->AposChange(); });
    Tecla(Qt::Key_Down);
    EXPECT_EQ(tela->Tab->RecNo, 2);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verde"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    const QRect celula = tela->StringGrid1->CellRect(1, 3);
    QTest::mouseClick(tela->StringGrid1->viewport(), Qt::LeftButton, {}, celula.center());
    Ocioso();
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("lilas"));
    Tecla(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("azul"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 0);
}

TEST_F(TTabLinearBasFTest, WithSelecaoNavegaOffTheGridMovesAlone)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->SelecaoNavega = false;
    tela->SincronizarLinha = false;
    Tecla(Qt::Key_Down);
    EXPECT_EQ(tela->StringGrid1->GetRow(), 2);
    EXPECT_EQ(tela->Tab->RecNo, 1);
}

TEST_F(TTabLinearBasFTest, WithAtualizarLigadoOffSelectingARowHasNoEffectOnTheTable)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->AtualizarLigado = false;
    tela->StringGrid1->SetRow(2);
    EXPECT_EQ(tela->Tab->RecNo, 1);
    tela->AtualizarLigado = true;
    tela->StringGrid1->SetRow(3);
    EXPECT_EQ(tela->Tab->RecNo, 3);
}

TEST_F(TTabLinearBasFTest, ADoubleClickStartsAnAlterationOnTheFieldsPage)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    const QPoint onde = tela->StringGrid1->CellRect(1, 2).center();
    QTest::mouseClick(tela->StringGrid1->viewport(), Qt::LeftButton, {}, onde);
    QTest::mouseDClick(tela->StringGrid1->viewport(), Qt::LeftButton, {}, onde);
    Ocioso();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 1);
    EXPECT_EQ(Foco(), tela->Descr());
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verde"));
}

TEST_F(TTabLinearBasFTest, EveryRefillMakesColsInfoAnew)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    ASSERT_TRUE(tela->ColsInfo);
    tela->ColsInfo->SetConteudo(1, TConteudoCol::Data);
    tela->PreencherStringGrid();
    EXPECT_EQ(tela->ColsInfo->Conteudo(1), TConteudoCol::Texto);
    EXPECT_EQ(tela->ColsInfo->Largura(1), 200);
}

// ---- pages ---------------------------------------------------------------------------------

TEST_F(TTabLinearBasFTest, PagesCannotBeChangedWhileEditing)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    EXPECT_TRUE(tela->PageControl1->MudarComoUsuario(1));
    EXPECT_TRUE(tela->Tab->Reservado);
    EXPECT_TRUE(tela->AtivarAlteracao());
    EXPECT_FALSE(tela->PageControl1->MudarComoUsuario(0));
    tela->CancelarAction->Execute();
    EXPECT_TRUE(tela->PageControl1->MudarComoUsuario(0));
    EXPECT_FALSE(tela->Tab->Reservado);
    EXPECT_EQ(Foco(), tela->StringGrid1);
}

TEST_F(TTabLinearBasFTest, MinimisingAndRestoringLeavesThePageAndTheEdit)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->PageControl1->MudarComoUsuario(1);
    tela->SubJanela()->showMinimized();
    Ocioso();
    tela->SubJanela()->showNormal();
    Ocioso();
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 1);
    tela->DescrFr->SetFocus();
    Tecla(Qt::Key_End);
    Digitar(QStringLiteral("s"));
    tela->SubJanela()->showMinimized();
    Ocioso();
    tela->SubJanela()->showNormal();
    Ocioso();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("azuls"));
}

TEST_F(TTabLinearBasFTest, EnteringTheFieldsPageGoesToTheFirstMarkedInput)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->PageControl1->MudarComoUsuario(1);
    EXPECT_EQ(Foco(), tela->Descr());
    QWidget *abas = tela->PageControl1->tabBar();
    abas->setFocus();
    QTest::mouseClick(tela->TipoFr->ComboBox1, Qt::LeftButton);
    Ocioso();
    EXPECT_EQ(Foco(), tela->Descr());
    // Inside the page the focus goes where the user puts it.
    tela->CodFr->NumEditBR1->setReadOnly(false);
    tela->CodFr->SetFocus();
    EXPECT_EQ(Foco(), tela->CodFr->NumEditBR1);
}

// ---- inserting -----------------------------------------------------------------------------

TEST_F(TTabLinearBasFTest, InsertWithTheKeyboardAlone)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 1);
    EXPECT_EQ(tela->Codigo(), QStringLiteral("4"));
    EXPECT_EQ(Foco(), tela->Descr());
    EXPECT_EQ(tela->Descr()->text(), QString());
    Digitar(QStringLiteral("roxo"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(DescrNoBanco(4), QStringLiteral("roxo"));
    EXPECT_EQ(tela->CodUltimoInserido, 4);
    EXPECT_EQ(tela->Tab->RecNo, 4);
    EXPECT_EQ(tela->StringGrid1->GetRow(), 4);
    EXPECT_EQ(tela->StringGrid1->GetCell(1, 4), QStringLiteral("roxo"));
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("roxo"));
    EXPECT_EQ(tela->NRegsLabel->text(), QStringLiteral("4 registros"));
    EXPECT_EQ(tela->ganchos, QStringList({"AntesInserir", "AposInserir"}));
    EXPECT_TRUE(tela->AtualizarLigado);
    // The generator is kept above every code typed by hand.
    EXPECT_EQ(tela->Tab->GenVal(QStringLiteral("grupos")), 4);
}

TEST_F(TTabLinearBasFTest, TheNewRecordIsTheCurrentOneWhereverItsCodePutsIt)
{
    Inserir(1, QStringLiteral("um"));
    Inserir(2, QStringLiteral("dois"));
    Inserir(4, QStringLiteral("quatro"));
    TGruposF *tela = Abrir();
    tela->InsAction->Execute();
    EXPECT_EQ(tela->Codigo(), QStringLiteral("3"));
    Digitar(QStringLiteral("tres"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->RecNo, 3);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("tres"));
}

TEST_F(TTabLinearBasFTest, CancellingAnInsertionShowsTheFormerRecordAgain)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    Tecla(Qt::Key_Down);
    tela->InsAction->Execute();
    Digitar(QStringLiteral("nada"));
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verde"));
    EXPECT_EQ(tela->Codigo(), QStringLiteral("2"));
    EXPECT_EQ(Quantos(), 3);
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 1);
}

TEST_F(TTabLinearBasFTest, AFailedValidationWhileInsertingKeepsTheInsertAndFocusesTheWrongFrame)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->InsAction->Execute();
    tela->TipoFr->SetFocus();
    Ocioso();
    avisos.clear(); // leaving the required description warned already
    tela->Descr()->setText(QStringLiteral("VERDE"));
    tela->ConfirmAction->Execute();
    Ocioso();
    EXPECT_EQ(avisos.size(), 1);
    EXPECT_TRUE(avisos.value(0).startsWith(QStringLiteral("Repetição\r\nDescrição 'VERDE'")));
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("VERDE"));
    EXPECT_EQ(tela->Codigo(), QStringLiteral("4"));
    EXPECT_EQ(Foco(), tela->Descr());
    EXPECT_TRUE(tela->ganchos.isEmpty());
    EXPECT_TRUE(tela->AtualizarLigado);
    avisos.clear();
    tela->Descr()->setText(QStringLiteral("outra"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(DescrNoBanco(4), QStringLiteral("outra"));
}

TEST_F(TTabLinearBasFTest, AFailedValidationInAnEmptyTableKeepsWhatWasTyped)
{
    TGruposF *tela = Abrir();
    tela->InsAction->Execute();
    tela->CodFr->SetValor(5);
    tela->Descr()->setText(QStringLiteral("   "));
    tela->ConfirmAction->Execute();
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(tela->Codigo(), QStringLiteral("5"));
}

TEST_F(TTabLinearBasFTest, AClickOnConfirmWithAWrongInputGivesTheFocusBackAndConfirmsNothing)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    ASSERT_TRUE(tela->AltAction->Execute());
    Ocioso();
    tela->Descr()->selectAll();
    Digitar(QStringLiteral("verde"));
    QTest::mouseClick(tela->ConfirmBitBtn, Qt::LeftButton);
    Ocioso();
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(Foco(), tela->Descr());
    tela->Descr()->selectAll();
    Digitar(QStringLiteral("bege"));
    QTest::mouseClick(tela->ConfirmBitBtn, Qt::LeftButton);
    Ocioso();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(DescrNoBanco(1), QStringLiteral("bege"));
}

TEST_F(TTabLinearBasFTest, TheWrongFrameGetsTheFocusAlsoFromOutsideThePage)
{
    Inserir(1, QStringLiteral("um"));
    TGruposF *tela = Abrir();
    tela->InsAction->Execute();
    Digitar(QStringLiteral("dois"));
    tela->TipoFr->AceitaVazio = false;
    tela->ConfirmBitBtn->setFocus();
    Ocioso();
    avisos.clear();
    Tecla(Qt::Key_Space);
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_TRUE(tela->TipoFr->isAncestorOf(Foco()));
}

TEST_F(TTabLinearBasFTest, HiddenInputsAreNotAsked)
{
    TGruposF *tela = Abrir();
    tela->InsAction->Execute();
    EXPECT_EQ(tela->PrimeiroErrado(), tela->DescrFr);
    tela->DescrFr->hide(); // which leaves it, too
    avisos.clear();
    EXPECT_EQ(tela->PrimeiroErrado(), nullptr);
    EXPECT_TRUE(avisos.isEmpty());
}

TEST_F(TTabLinearBasFTest, AtivarInsersaoAnswersTrueAlsoWhenNothingIsDone)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    EXPECT_TRUE(tela->AtivarAlteracao());
    EXPECT_TRUE(tela->AtivarInsersao());
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_FALSE(tela->AtivarAlteracao());
}

TEST_F(TTabLinearBasFTest, AtivarInsersaoAnnouncesNothing)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    int alteracoes = 0;
    QObject::connect(tela->Descr(), &QLineEdit::textChanged, tela, [&] {
        if (tela->AtualizarLigado)
            ++alteracoes;
        tela->AposChange();
    });
    tela->InsAction->Execute();
    EXPECT_EQ(alteracoes, 0);
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
}

TEST_F(TTabLinearBasFTest, ASecondInsertionInsideTheFirstOneDoesNothing)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    int segundas = 0;
    QTimer::singleShot(0, tela, [&] {
        ++segundas;
        EXPECT_TRUE(tela->AtivarInsersao());
        EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    });
    tela->InsAction->Execute();
    EXPECT_EQ(segundas, 1);
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(tela->Codigo(), QStringLiteral("4"));
}

TEST_F(TTabLinearBasFTest, AScreenClosedInsideAnInsertionStartsNone)
{
    TresGrupos();
    QPointer<TGruposF> tela = Abrir();
    QTimer::singleShot(0, tela, [&] { tela->Close(); });
    EXPECT_TRUE(tela->InsAction->Execute());
    ASSERT_TRUE(tela);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    Assentar();
    EXPECT_FALSE(tela);
}

TEST_F(TTabLinearBasFTest, AScreenDestroyedInsideAnInsertionIsLeftAlone)
{
    TresGrupos();
    QPointer<TGruposF> tela = Abrir();
    QTimer::singleShot(0, [&] { delete tela.data(); });
    tela->AtivarInsersao();
    EXPECT_FALSE(tela);
}

// ---- altering ------------------------------------------------------------------------------

TEST_F(TTabLinearBasFTest, TypingIntoAFieldStartsAnAlterationAndCtrlEnterStoresIt)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    Tecla(Qt::Key_Down);
    tela->PageControl1->MudarComoUsuario(1);
    tela->DescrFr->SetFocus();
    Tecla(Qt::Key_End);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    Digitar(QStringLiteral("s"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verdes"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(DescrNoBanco(2), QStringLiteral("verdes"));
    EXPECT_EQ(tela->Tab->RecNo, 2);
    EXPECT_EQ(tela->CodAlterado, 2);
    EXPECT_EQ(tela->StringGrid1->GetCell(1, 2), QStringLiteral("verdes"));
    EXPECT_EQ(tela->ganchos, QStringList({"AntesAlterar", "AposAlterar"}));
    EXPECT_EQ(banco.Conexao().Connected(), true);
}

TEST_F(TTabLinearBasFTest, CtrlAStartsAnAlterationAndSelectsAllOnceItIsOpen)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    Tecla(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(Foco(), tela->Descr());
    Tecla(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(tela->Descr()->selectedText(), QStringLiteral("azul"));
}

TEST_F(TTabLinearBasFTest, AFailedValidationWhileAlteringAbandonsTheAlteration)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->AltAction->Execute();
    tela->Descr()->setText(QStringLiteral("Verde"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("azul"));
    EXPECT_EQ(DescrNoBanco(1), QStringLiteral("azul"));
    EXPECT_TRUE(tela->ganchos.isEmpty());
    EXPECT_TRUE(tela->AtualizarLigado);
}

TEST_F(TTabLinearBasFTest, ARefusedLockLeavesTheScreenBrowsingOnReReadData)
{
    TresGrupos();
    TGruposF *primeira = Abrir();
    TGruposF *segunda = Abrir();
    ASSERT_TRUE(primeira->AtivarAlteracao());
    banco.Executar(QStringLiteral("update grupos set descr='anil' where grupos_cod=1"));
    segunda->releituras = 0;
    segunda->PageControl1->MudarComoUsuario(1);
    segunda->DescrFr->SetFocus();
    Digitar(QStringLiteral("x"));
    EXPECT_EQ(avisos.size(), 1);
    EXPECT_TRUE(avisos.value(0).contains(QStringLiteral("outra janela")));
    avisos.clear();
    EXPECT_EQ(segunda->Tab->Status, TStatus::Ocioso);
    EXPECT_GE(segunda->releituras, 1);
    EXPECT_EQ(segunda->Descr()->text(), QStringLiteral("anil"));
    EXPECT_TRUE(segunda->AtualizarLigado);
    // The first screen has kept its lock, and gives it back.
    primeira->CancelarAction->Execute();
    EXPECT_TRUE(segunda->AtivarAlteracao());
}

TEST_F(TTabLinearBasFTest, ARecordThatIsGoneIsNotAltered)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    Tecla(Qt::Key_Down);
    banco.Executar(QStringLiteral("delete from grupos where grupos_cod=2"));
    EXPECT_FALSE(tela->AtivarAlteracao());
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->StringGrid1->GetRowCount(), 3);
}

TEST_F(TTabLinearBasFTest, ARecordThatLeftTheListIsNotAlteredInTheNameOfAnother)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    Tecla(Qt::Key_Down);
    tela->SQLQuery1->Close();
    tela->SetSQLText(QStringLiteral("select * from grupos where descr<>'verde' order by 1"));
    tela->SQLQuery1->Open();
    EXPECT_FALSE(tela->AtivarAlteracao());
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    TGruposF *outra = Abrir();
    outra->MoverParaLinha(2);
    EXPECT_TRUE(outra->AtivarAlteracao()); // the lock was given back
}

TEST_F(TTabLinearBasFTest, AlteringShowsWhatOthersChangedMeanwhile)
{
    TresGrupos();
    banco.Executar(QStringLiteral("insert into tipos values (9, 'liso')"));
    TGruposF *tela = Abrir();
    banco.Executar(
        QStringLiteral("update grupos set descr='anil', tipos_cod=9 where grupos_cod=1"));
    tela->PageControl1->MudarComoUsuario(1);
    tela->DescrFr->SetFocus();
    Tecla(Qt::Key_End);
    Digitar(QStringLiteral("s"));
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("azuls"));
    EXPECT_EQ(tela->TipoFr->GetValor(), Variant(9));
    Tecla(Qt::Key_Escape);
    tela->AltAction->Execute();
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("anil"));
}

TEST_F(TTabLinearBasFTest, TheGridRowFollowsARecordThatMovedWithoutTouchingWhatIsTyped)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    Tecla(Qt::Key_Down);
    tela->PageControl1->MudarComoUsuario(1);
    tela->DescrFr->SetFocus();
    banco.Executar(QStringLiteral("delete from grupos where grupos_cod=1"));
    Tecla(Qt::Key_End);
    Digitar(QStringLiteral("s"));
    EXPECT_EQ(tela->Tab->RecNo, 1);
    EXPECT_EQ(tela->StringGrid1->GetRow(), 1);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verdes"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(DescrNoBanco(2), QStringLiteral("verdes"));
    EXPECT_EQ(DescrNoBanco(3), QStringLiteral("lilas"));
}

TEST_F(TTabLinearBasFTest, NavigationShortCutsAreDeadWhileEditing)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    ASSERT_TRUE(tela->AtivarAlteracao());
    // No idle moment has switched the action off yet.
    EXPECT_TRUE(tela->NextAction->GetEnabled());
    tela->NextAction->Execute();
    tela->LastAction->Execute();
    tela->ExclAction->Execute();
    EXPECT_EQ(tela->Tab->RecNo, 1);
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(Quantos(), 3);
    EXPECT_TRUE(perguntas.isEmpty());
}

TEST_F(TTabLinearBasFTest, ShortCutsWorkWhileAnEditHasTheFocus)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->PageControl1->MudarComoUsuario(1);
    tela->DescrFr->SetFocus();
    Tecla(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verde"));
    Tecla(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("lilas"));
    Tecla(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verde"));
    Tecla(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("azul"));
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(perguntas, QStringList(QStringLiteral("(excluir)")));
    EXPECT_EQ(Quantos(), 2);
}

TEST_F(TTabLinearBasFTest, AposChangeStartsAnAlterationForADescendantsOwnInput)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->AtualizarLigado = false;
    tela->AposChange();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    tela->AtualizarLigado = true;
    tela->AposChange();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
}

TEST_F(TTabLinearBasFTest, AWholeDayWithTheKeyboardAlone)
{
    TresGrupos();
    banco.Executar(QStringLiteral("insert into tipos values (6, 'liso')"));
    TGruposF *tela = Abrir();
    // Alter the second record.
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Digitar(QStringLiteral("musgo"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(DescrNoBanco(2), QStringLiteral("musgo"));
    // Insert another one from where the focus is, its type chosen from the list of the combo.
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("preto"));
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Foco(), tela->TipoFr->ComboBox1);
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(DescrNoBanco(4), QStringLiteral("preto"));
    EXPECT_EQ(banco.Valor(QStringLiteral("select tipos_cod from grupos where grupos_cod=4")),
              Variant(6));
    // Start one more and think better of it. The focus is where it was.
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Tecla(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(Foco(), tela->Descr());
    Digitar(QStringLiteral("nada"));
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    // Find the third in the list by its description, and delete it.
    Tecla(Qt::Key_PageUp, Qt::ControlModifier);
    Tecla(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 0);
    ASSERT_EQ(Foco(), tela->StringGrid1);
    Tecla(Qt::Key_Right);
    EXPECT_EQ(tela->StringGrid1->GetCol(), 1);
    Tecla(Qt::Key_L, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitForWindowActive(LocalizBasF));
    Digitar(QStringLiteral("LILAS"));
    Tecla(Qt::Key_Return);
    Tecla(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    Ocioso();
    EXPECT_EQ(tela->Tab->RecNo, 3);
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(Quantos(), 3);
    EXPECT_EQ(DescrNoBanco(3), QString());
    EXPECT_EQ(Foco(), tela->StringGrid1);
}

TEST_F(TTabLinearBasFTest, AfterAConfirmByMouseTheFocusIsBackOnTheFieldsPage)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->AltAction->Execute();
    Ocioso();
    Digitar(QStringLiteral("s"));
    QTest::mouseClick(tela->ConfirmBitBtn, Qt::LeftButton);
    Ocioso();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Foco(), tela->Descr());
}

TEST_F(TTabLinearBasFTest, InTheMainWindowOfTheHost)
{
    TresGrupos();
    auto *principal = Criar<TPrincipalMDIF>(nullptr);
    principal->resize(900, 600);
    principal->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(principal));
    TGruposF *tela = principal->Abrir<TGruposF>();
    QPointer<TTiposF> outra = principal->Abrir<TTiposF>();
    Ocioso();
    EXPECT_EQ(principal->Abrir<TGruposF>(), tela);
    Ocioso();
    EXPECT_EQ(Foco(), tela->StringGrid1);
    Tecla(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(outra->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->windowTitle(), QStringLiteral("Cadastro de grupos - Alterando"));
    responde = false;
    EXPECT_FALSE(principal->Close());
    EXPECT_EQ(perguntas.size(), 1);
    responde = true;
    EXPECT_TRUE(principal->Close());
    Assentar();
    EXPECT_FALSE(outra);
    delete principal;
}

TEST_F(TTabLinearBasFTest, WhatTheScreenWritesIntoItsInputsStartsNoAlteration)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    {
        const TFlagGuarda<TTabLinearBasF> escrevendo(tela, &TTabLinearBasF::AtualizarLigado, false);
        EXPECT_FALSE(tela->AtivarAlteracao());
        tela->DescrFr->Editar();
        EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    }
    tela->DescrFr->Editar();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
}

// ---- re-reading ----------------------------------------------------------------------------

TEST_F(TTabLinearBasFTest, RelerGoesToTheCodeOrToTheEnd)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->Reler(2);
    EXPECT_EQ(tela->Tab->RecNo, 2);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verde"));
    EXPECT_FALSE(tela->Tab->Fim);
    tela->Reler(0);
    EXPECT_EQ(tela->Tab->RecNo, 2);
    tela->Reler(99);
    EXPECT_EQ(tela->Tab->RecNo, 3);
    EXPECT_TRUE(tela->Tab->Fim);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("lilas"));
    tela->AtualizarLigado = false;
    tela->Reler(1);
    EXPECT_FALSE(tela->AtualizarLigado);
    EXPECT_TRUE(tela->Tab->AtualizarControles);
}

TEST_F(TTabLinearBasFTest, AFailedReReadingBringsTheFlagsBack)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    banco.Conexao().Close();
    EXPECT_THROW(tela->Reler(0), EDatabaseError);
    EXPECT_TRUE(tela->AtualizarLigado);
    EXPECT_TRUE(tela->Tab->AtualizarControles);
    banco.Conexao().Open();
    // The list is opened again, on the record that was shown, before anything is altered.
    tela->MoverParaLinha(1);
    EXPECT_TRUE(tela->AtivarAlteracao());
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
}

// ---- failures of the database --------------------------------------------------------------

TEST_F(TTabLinearBasFTest, AnInsertRefusedByTheDatabaseKeepsEverythingAndCanBeConfirmedAgain)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->DescrFr->NaoRepetir = false; // let the database's own unique index refuse
    tela->InsAction->Execute();
    Digitar(QStringLiteral("verde"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(erros.size(), 1);
    erros.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verde"));
    EXPECT_EQ(tela->Codigo(), QStringLiteral("4"));
    EXPECT_EQ(tela->ganchos, QStringList(QStringLiteral("AntesInserir")));
    EXPECT_TRUE(tela->AtualizarLigado);
    banco.Executar(QStringLiteral("update grupos set descr='verde 2' where grupos_cod=2"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(DescrNoBanco(4), QStringLiteral("verde"));
}

TEST_F(TTabLinearBasFTest, AnAlterationRefusedByTheDatabaseKeepsEverythingAndCanBeConfirmedAgain)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    Tecla(Qt::Key_Down);
    tela->AltAction->Execute();
    tela->Descr()->setText(QStringLiteral("comprido demais"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(erros.size(), 1);
    erros.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("comprido demais"));
    EXPECT_EQ(tela->Tab->RecNo, 2);
    EXPECT_EQ(tela->ganchos, QStringList(QStringLiteral("AntesAlterar")));
    tela->Descr()->setText(QStringLiteral("curto"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(DescrNoBanco(2), QStringLiteral("curto"));
}

TEST_F(TTabLinearBasFTest, AForeignKeyThatIsGoneIsReportedOnce)
{
    TresGrupos();
    banco.Executar(QStringLiteral("insert into tipos values (9, 'liso')"));
    TGruposF *tela = Abrir();
    tela->AltAction->Execute();
    tela->TipoFr->SetValor(9);
    banco.Executar(QStringLiteral("delete from tipos"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(erros.size(), 1);
    erros.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->TipoFr->GetValor(), Variant(9));
    banco.Executar(QStringLiteral("insert into tipos values (9, 'liso')"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(banco.Valor(QStringLiteral("select tipos_cod from grupos where grupos_cod=1")),
              Variant(9));
}

TEST_F(TTabLinearBasFTest, ALostConnectionKeepsTheEditAndTheNextConfirmStoresIt)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->AltAction->Execute();
    tela->Descr()->setText(QStringLiteral("anil"));
    banco.Conexao().Close();
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(erros.size(), 1);
    erros.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("anil"));
    banco.Conexao().Open();
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(DescrNoBanco(1), QStringLiteral("anil"));
}

TEST_F(TTabLinearBasFTest, AKilledServerLeavesTheEditAndTheNextConfirmReconnectsByItself)
{
    FICHA_PRECISA_DE_SERVIDOR();
    TServidorFirebird servidor;
    ASSERT_TRUE(servidor.Iniciar());
    const auto conexao = servidor.Conexao(QStringLiteral("telas.fdb"));
    conexao->CriarBanco({});
    PrepararBanco(*conexao);
    conexao->ExecutarScript(EsquemaDeTeste);
    conexao->Executar(QStringLiteral("insert into grupos values (1, 'azul', null)"));
    TSQLConnection *const antes = std::exchange(ConexD().SQLConnection, conexao.get());
    TGruposF *tela = Abrir();
    tela->AltAction->Execute();
    Ocioso();
    tela->Descr()->setText(QStringLiteral("anil"));
    servidor.Matar();
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(erros.size(), 1);
    erros.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("anil"));
    ASSERT_TRUE(servidor.Iniciar());
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(ValorDoBanco(*conexao, QStringLiteral("select descr from grupos")),
              Variant(QStringLiteral("anil")));
    delete tela;
    ConexD().SQLConnection = antes;
}

TEST_F(TTabLinearBasFTest, AHookThatFailsLeavesNothingStored)
{
    TGruposF *tela = Abrir();
    tela->aoAposInserir = [] { throw EErro(QStringLiteral("gancho")); };
    tela->InsAction->Execute();
    Digitar(QStringLiteral("um"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(erros, QStringList(QStringLiteral("gancho")));
    erros.clear();
    EXPECT_EQ(Quantos(), 0);
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    tela->aoAposInserir = {};
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Quantos(), 1);
}

TEST_F(TTabLinearBasFTest, AnInsertStoredBeforeItsReReadingFailedIsNotStoredTwice)
{
    TGruposF *tela = Abrir();
    tela->DescrFr->NaoRepetir = false;
    banco.Executar(QStringLiteral("drop index grupos_descr"));
    tela->InsAction->Execute();
    Digitar(QStringLiteral("um"));
    const QString lista = tela->GetSQLText();
    tela->aoAposInserir = [&] { tela->SetSQLText(QStringLiteral("select * from nenhuma")); };
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(erros.size(), 1);
    erros.clear();
    EXPECT_EQ(Quantos(), 1);
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    tela->SetSQLText(lista);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Quantos(), 1);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("um"));
    EXPECT_TRUE(erros.isEmpty());
}

// ---- closing -------------------------------------------------------------------------------

TEST_F(TTabLinearBasFTest, ClosingWithAnOpenEditAsks)
{
    TresGrupos();
    QPointer<TGruposF> tela = Abrir();
    tela->AltAction->Execute();
    responde = false;
    EXPECT_FALSE(tela->Close());
    EXPECT_EQ(perguntas,
              QStringList(QStringLiteral("Existem alterações não gravadas na janela\r\nGrupos\r\n"
                                         "Deseja abandoná-las?")));
    EXPECT_TRUE(tela->isVisible());
    responde = true;
    EXPECT_TRUE(tela->Close());
    Assentar();
    EXPECT_FALSE(tela);
    // The record's lock went with the table.
    TGruposF *outra = Abrir();
    EXPECT_TRUE(outra->AtivarAlteracao());
}

TEST_F(TTabLinearBasFTest, ClosingWhileBrowsingAsksNothing)
{
    TresGrupos();
    QPointer<TGruposF> tela = Abrir();
    EXPECT_TRUE(tela->Close());
    EXPECT_TRUE(perguntas.isEmpty());
    Assentar();
    EXPECT_FALSE(tela);
    EXPECT_TRUE(janela.subWindowList().isEmpty());
}

TEST_F(TTabLinearBasFTest, AScreenDestroyedFromInsideItsOwnAction)
{
    TresGrupos();
    QPointer<TGruposF> tela = Abrir();
    const auto antes = tela->LastAction->OnExecute;
    tela->LastAction->OnExecute = [&](QObject *s) {
        antes(s);
        tela->Close();
    };
    Tecla(Qt::Key_PageDown, Qt::ControlModifier);
    Assentar();
    EXPECT_FALSE(tela);
}

TEST_F(TTabLinearBasFTest, AScreenClosedWhileItsQuestionIsOpen)
{
    TresGrupos();
    QPointer<TGruposF> tela = Abrir();
    aoPerguntar = [&] {
        tela->FecharAposChamador = true;
        tela->Close();
    };
    tela->ExclAction->Execute();
    EXPECT_EQ(Quantos(), 2);
    Assentar();
    EXPECT_FALSE(tela);
}

TEST_F(TTabLinearBasFTest, ASecondConfirmInsideTheFirstOneIsIgnored)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->InsAction->Execute();
    Digitar(QStringLiteral("roxo"));
    tela->aoAposInserir = [&] { tela->ConfirmAction->Execute(); };
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Quantos(), 4);
    EXPECT_EQ(tela->ganchos, QStringList({"AntesInserir", "AposInserir"}));
}

// ---- a screen opened from a code combo ------------------------------------------------------

class TChamadorTest : public TTelasTest
{
protected:
    void SetUp() override
    {
        Inserir(1, QStringLiteral("azul"));
        banco.Executar(QStringLiteral("insert into tipos values (1, 'liso')"));
        banco.Executar(QStringLiteral("insert into tipos values (2, 'listrado')"));
        grupos = Abrir();
        grupos->AbrirTipos->OnExecute = [this](QObject *) { tipos = Abrir<TTiposF>(); };
        grupos->PageControl1->MudarComoUsuario(1);
        QTest::mouseClick(grupos->TipoFr->EditBitBtn, Qt::LeftButton);
        Ocioso();
        ASSERT_TRUE(tipos);
        ASSERT_EQ(tipos->Chamador, grupos->TipoFr);
        ASSERT_FALSE(grupos->TipoFr->EditBitBtn->isEnabled());
        ASSERT_EQ(grupos->Tab->Status, TStatus::Alterando);
    }
    TGruposF *grupos = nullptr;
    QPointer<TTiposF> tipos;
};

TEST_F(TChamadorTest, ConfirmingAnInsertHandsTheNewCodeToTheComboAndCloses)
{
    tipos->InsAction->Execute();
    tipos->NomeFr->LabeledEdit1->setText(QStringLiteral("xadrez"));
    tipos->ConfirmAction->Execute();
    EXPECT_TRUE(tipos->Fechando);
    Assentar();
    EXPECT_FALSE(tipos);
    EXPECT_TRUE(perguntas.isEmpty());
    EXPECT_EQ(grupos->TipoFr->GetValor(), Variant(3));
    EXPECT_EQ(grupos->TipoFr->AsString(), QStringLiteral("xadrez"));
    EXPECT_TRUE(grupos->TipoFr->EditBitBtn->isEnabled());
    grupos->ConfirmAction->Execute();
    EXPECT_EQ(banco.Valor(QStringLiteral("select tipos_cod from grupos")), Variant(3));
}

TEST_F(TChamadorTest, ConfirmingAnAlterationHandsItsCodeAndLeavesTheLockToTheTable)
{
    tipos->MoverParaLinha(2);
    tipos->AltAction->Execute();
    tipos->NomeFr->LabeledEdit1->setText(QStringLiteral("riscado"));
    tipos->ConfirmAction->Execute();
    EXPECT_EQ(tipos->Tab->Status, TStatus::Alterando); // AltFim is left out here
    Assentar();
    EXPECT_FALSE(tipos);
    EXPECT_EQ(grupos->TipoFr->GetValor(), Variant(2));
    EXPECT_EQ(grupos->TipoFr->AsString(), QStringLiteral("riscado"));
    TTiposF *outra = Abrir<TTiposF>();
    outra->MoverParaLinha(2);
    EXPECT_TRUE(outra->AtivarAlteracao());
}

TEST_F(TChamadorTest, CancellingClosesTheScreen)
{
    tipos->InsAction->Execute();
    tipos->CancelarAction->Execute();
    Assentar();
    EXPECT_FALSE(tipos);
    EXPECT_TRUE(grupos->TipoFr->EditBitBtn->isEnabled());
    EXPECT_EQ(grupos->TipoFr->GetValor(), Variant(1));
}

TEST_F(TChamadorTest, ClosingHandsTheCurrentRecordsCode)
{
    tipos->MoverParaLinha(2);
    tipos->FecharAction->Execute();
    Assentar();
    EXPECT_FALSE(tipos);
    EXPECT_EQ(grupos->TipoFr->GetValor(), Variant(2));
    EXPECT_TRUE(grupos->TipoFr->EditBitBtn->isEnabled());
}

TEST_F(TChamadorTest, AFailedInsertClosesTheScreenAfterItsQuestion)
{
    tipos->InsAction->Execute();
    tipos->CodFr->SetValor(1); // repeated
    tipos->ConfirmAction->Execute();
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(perguntas.size(), 1);
    Assentar();
    EXPECT_FALSE(tipos);
}

TEST_F(TChamadorTest, AFailureOfTheCallerIsSwallowedAndTheScreenGoesOn)
{
    tipos->InsAction->Execute();
    tipos->NomeFr->LabeledEdit1->setText(QStringLiteral("xadrez"));
    grupos->TipoFr->SQLQuery1->SetSQL(QStringLiteral("select * from nenhuma"));
    tipos->ConfirmAction->Execute();
    ASSERT_TRUE(tipos);
    EXPECT_EQ(tipos->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tipos->NomeFr->AsString(), QStringLiteral("xadrez"));
    EXPECT_FALSE(tipos->FecharAposChamador);
    EXPECT_TRUE(tipos->AtualizarLigado);
    EXPECT_TRUE(erros.isEmpty());
}

TEST_F(TChamadorTest, ACallerThatDiesFirstIsForgotten)
{
    grupos->FecharAposChamador = true;
    grupos->Close();
    Assentar();
    EXPECT_EQ(tipos->GetChamador(), nullptr);
    tipos->InsAction->Execute();
    tipos->NomeFr->LabeledEdit1->setText(QStringLiteral("xadrez"));
    tipos->ConfirmAction->Execute();
    ASSERT_TRUE(tipos);
    EXPECT_EQ(Quantos(QStringLiteral("tipos")), 3);
}

TEST_F(TChamadorTest, AScreenDestroyedWithoutClosingGivesTheButtonBack)
{
    delete tipos.data();
    EXPECT_TRUE(grupos->TipoFr->EditBitBtn->isEnabled());
}

// ---- the shared code edit -------------------------------------------------------------------

TEST_F(TTabLinearBasFTest, TheLastCreatedScreenHasTheCodeEditUntilItIsDestroyed)
{
    TresGrupos();
    TGruposF *primeira = Abrir();
    EXPECT_EQ(TTabLinearBasF::EditCod, primeira->CodFr);
    QPointer<TTiposF> segunda = Abrir<TTiposF>();
    EXPECT_EQ(TTabLinearBasF::EditCod, segunda->CodFr);
    TGruposF *terceira = Abrir();
    EXPECT_EQ(TTabLinearBasF::EditCod, terceira->CodFr);
    delete segunda.data();
    EXPECT_EQ(TTabLinearBasF::EditCod, terceira->CodFr);
    delete terceira;
    EXPECT_EQ(TTabLinearBasF::EditCod, primeira->CodFr);
    delete primeira;
    EXPECT_EQ(TTabLinearBasF::EditCod, nullptr);
}

TEST_F(TTabLinearBasFTest, AnEarlierScreenInsertsWithTheCodeOfTheSharedEdit)
{
    TresGrupos();
    TGruposF *primeira = Abrir();
    TTiposF *ultima = Abrir<TTiposF>();
    primeira->Show();
    Ocioso();
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(ultima->CodFr->GetValor(), Variant(4)); // deliberately one variable for all screens
    EXPECT_FALSE(ultima->CodFr->NumEditBR1->isReadOnly());
    EXPECT_EQ(ultima->Tab->Status, TStatus::Ocioso);
    Digitar(QStringLiteral("roxo"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(DescrNoBanco(4), QStringLiteral("roxo"));
    EXPECT_EQ(primeira->Codigo(), QStringLiteral("4"));
}

TEST_F(TTabLinearBasFTest, TwoScreensDoNotFightOverTheCodeEditWhileIdle)
{
    TresGrupos();
    TGruposF *primeira = Abrir();
    TGruposF *segunda = Abrir();
    primeira->InsAction->Execute();
    Ocioso();
    int mudancas = 0;
    struct TOuvinte : QObject {
        int *conta = nullptr;
        bool eventFilter(QObject *, QEvent *e) override
        {
            *conta += e->type() == QEvent::ReadOnlyChange;
            return false;
        }
    } ouvinte;
    ouvinte.conta = &mudancas;
    segunda->CodFr->NumEditBR1->installEventFilter(&ouvinte);
    for (int i = 0; i < 5; ++i)
        Ocioso();
    EXPECT_EQ(mudancas, 0);
}

// ---- the parameter constructor, and what a host forgot ---------------------------------------

TEST_F(TTabLinearBasFTest, CreateWithATextKeepsItAsTheParameter)
{
    TGruposF *tela = Criar<TGruposF>(nullptr, QStringLiteral("clientes=7"));
    EXPECT_EQ(tela->Parametro, QStringLiteral("clientes=7"));
    EXPECT_EQ(tela->Chamador, nullptr);
    EXPECT_EQ(tela->CodUltimoInserido, 0);
    delete tela;
}

TEST_F(TTabLinearBasFTest, AScreenWithoutPrepararTabFailsWithItsName)
{
    struct TSemTabela : TTabLinearBasF {
        using TTabLinearBasF::TTabLinearBasF;
        void FormCreate(QObject *sender) override
        {
            SetSQLText(QStringLiteral("select * from grupos"));
            TTabLinearBasF::FormCreate(sender);
        }
    };
    try {
        delete Criar<TSemTabela>(nullptr);
        ADD_FAILURE() << "no error";
    } catch (const EErro &e) {
        EXPECT_TRUE(e.Mensagem().contains(QStringLiteral("PrepararTab")));
    }
    EXPECT_EQ(TTabLinearBasF::EditCod, nullptr);
}

TEST_F(TTabLinearBasFTest, TheListQueryMayFailAtCreation)
{
    banco.Executar(QStringLiteral("drop table itens"));
    banco.Executar(QStringLiteral("drop table grupos"));
    EXPECT_THROW(Criar<TGruposF>(nullptr), EDatabaseError);
    EXPECT_EQ(TTabLinearBasF::EditCod, nullptr);
}

// ---- printing set-up ------------------------------------------------------------------------

TEST_F(TTabLinearBasFTest, TheHostsPrinterSetUpIsUsed)
{
    TGruposF *tela = Abrir();
    QWidget *dono = nullptr;
    Servicos().ConfigurarImpressao = [&](QWidget *w) { dono = w; };
    tela->ConfigImprAction->Execute();
    EXPECT_EQ(dono, tela);
}

TEST_F(TTabLinearBasFTest, TheLibrarysOwnPrinterSetUpOpensModally)
{
    TGruposF *tela = Abrir();
    QString titulo;
    QTimer::singleShot(50, [&] {
        if (QWidget *modal = QApplication::activeModalWidget()) {
            titulo = modal->windowTitle();
            modal->close();
        }
    });
    tela->ConfigImprAction->Execute();
    EXPECT_EQ(titulo, QStringLiteral("Configurar a impressão"));
}

// ---- the coded edit and undoing --------------------------------------------------------------

/** A screen with the coded labelled edit, the only input that counts for undoing. */
class TCodigoLivreF : public TTabLinearBasF
{
public:
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("Código livre"); }

    TLabeledEditCodBasFr *CodFr = nullptr;

protected:
    void FormCreate(QObject *sender) override
    {
        CodFr = Criar<TLabeledEditCodBasFr>(CamposTabSheet);
        SetSQLText(QStringLiteral("select * from tipos order by nome"));
        TTabLinearBasF::FormCreate(sender);
    }
    void PrepararTab() override
    {
        Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("tipos"));
        Tab->PegarCampoChave(SQLQuery1->FieldByName("tipos_cod"), 60, CodFr);
        Tab->PegarCampo(SQLQuery1->FieldByName("nome"), 200);
    }
    void AntesInserir() override
    {
        SQLInserir = QStringLiteral("insert into tipos values (") + CodFr->SQLString() +
                     QStringLiteral(",'m')");
        SQLUltimoInserido =
            QStringLiteral("select ") + CodFr->SQLString() + QStringLiteral(" from rdb$database");
    }
};

TEST_F(TTabLinearBasFTest, UndoIsEnabledByTheCodedEditAloneAndBringsTheStoredCodeBack)
{
    banco.Executar(QStringLiteral("insert into tipos values (1, 'a')"));
    banco.Executar(QStringLiteral("insert into tipos values (2, 'z')"));
    auto *tela = Abrir<TCodigoLivreF>();
    EXPECT_EQ(TTabLinearBasF::EditCod, nullptr);
    EXPECT_FALSE(tela->DesfazerAction->GetEnabled());
    tela->CodFr->LabeledEdit1->setText(QStringLiteral("7"));
    Ocioso();
    EXPECT_TRUE(tela->DesfazerAction->GetEnabled());
    Tecla(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(tela->CodFr->AsString(), QStringLiteral("1"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_FALSE(tela->DesfazerAction->GetEnabled());
    tela->InsAction->Execute();
    Ocioso();
    EXPECT_FALSE(tela->DesfazerAction->GetEnabled());
    tela->CodFr->SetValor(5);
    tela->ConfirmAction->Execute();
    EXPECT_EQ(tela->CodUltimoInserido, 5);
    EXPECT_EQ(tela->Tab->RecNo, 2); // "m" stands between "a" and "z"
}

// ---- lifetimes and cost ---------------------------------------------------------------------

/** Tells whether it still pointed to a table when it was destroyed. */
class TEspiaFr : public TLabeledEditTextoBasFr
{
public:
    using TLabeledEditTextoBasFr::TLabeledEditTextoBasFr;
    ~TEspiaFr() override { *tinhaTabela = Tabela != nullptr; }
    bool *tinhaTabela = nullptr;
};

TEST_F(TTabLinearBasFTest, TheTableGoesBeforeTheInputsAndReleasesItsLock)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    bool tinhaTabela = true;
    auto *espia = Criar<TEspiaFr>(tela->CamposTabSheet);
    espia->tinhaTabela = &tinhaTabela;
    tela->Tab->PegarCampo(tela->SQLQuery1->FieldByName("descr"), 50, espia);
    ASSERT_NE(espia->Tabela, nullptr);
    tela->AltAction->Execute();
    delete tela;
    EXPECT_FALSE(tinhaTabela);
    TGruposF *outra = Abrir();
    EXPECT_TRUE(outra->AtivarAlteracao());
}

TEST_F(TTabLinearBasFTest, AnInputMayDieBeforeItsScreen)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->PageControl1->MudarComoUsuario(1);
    delete tela->TipoFr;
    tela->TipoFr = nullptr;
    tela->MoverParaLinha(2);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verde"));
    EXPECT_EQ(tela->PrimeiroErrado(), nullptr);
    delete tela->CodFr;
    EXPECT_EQ(TTabLinearBasF::EditCod, nullptr);
    tela->AtivarInsersao();
    Ocioso();
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
}

TEST_F(TTabLinearBasFTest, OnePassOfTheEnablingRulesIsCheap)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    for (int i = 0; i < 40; ++i) {
        auto *fr = Criar<TLabeledEditTextoBasFr>(tela->CamposTabSheet);
        tela->Tab->PegarCampo(tela->SQLQuery1->FieldByName("descr"), 50, fr);
    }
    Ocioso();
    constexpr int Passes = 10000;
    QElapsedTimer relogio;
    relogio.start();
    for (int i = 0; i < Passes; ++i)
        tela->Atualizar();
    const double us = double(relogio.nsecsElapsed()) / 1000 / Passes;
    std::printf("one Atualizar pass with 40 frames: %.2f us\n", us);
    EXPECT_LT(us, 50);
}

/** Counts the readings and the fillings of the list. */
class TContagem
{
public:
    explicit TContagem(TGruposF *aTela) : tela(aTela)
    {
        QObject::connect(tela->SQLQuery1, &TDataSet::AfterOpen, &vigia, [this] { ++leituras; });
    }
    /** "readings/fillings" since the last question. */
    QString Desde()
    {
        const QString texto = QStringLiteral("%1/%2").arg(leituras).arg(tela->enchimentos);
        leituras = tela->enchimentos = 0;
        return texto;
    }

private:
    TGruposF *tela;
    int leituras = 0;
    QObject vigia;
};

TEST_F(TTabLinearBasFTest, TheListIsReadAndFilledNoMoreOftenThanItMust)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    TContagem lista(tela);
    (void)lista.Desde();
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(lista.Desde(), QStringLiteral("0/0"));
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(lista.Desde(), QStringLiteral("1/0"));
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(lista.Desde(), QStringLiteral("1/1"));
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("roxo"));
    EXPECT_EQ(lista.Desde(), QStringLiteral("1/0"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(lista.Desde(), QStringLiteral("2/2"));
    Tecla(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(lista.Desde(), QStringLiteral("1/0"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(lista.Desde(), QStringLiteral("2/2"));
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(lista.Desde(), QStringLiteral("2/1"));
}

TEST_F(TTabLinearBasFTest, AHundredThousandRows)
{
    banco.Conexao().ExecutarScript(QStringLiteral(
        "set term ^; execute block as declare i integer = 1; begin while (i <= 100000) do begin "
        "insert into grupos values (:i, 'g' || :i, null); i = i + 1; end end^ set term ;^"));
    QElapsedTimer relogio;
    const auto medir = [&relogio](const char *o_que, const std::function<void()> &f) {
        relogio.start();
        f();
        std::printf("100,000 rows, %s: %lld ms\n", o_que,
                    static_cast<long long>(relogio.elapsed()));
    };
    TGruposF *tela = nullptr;
    const auto tecla = [this](Qt::Key qual, Qt::KeyboardModifiers com = Qt::NoModifier) {
        Tecla(qual, com);
        janela.grab(); // what the user waits for is on the screen
    };
    medir("open the screen", [&] { tela = Abrir(); });
    EXPECT_EQ(tela->NRegsLabel->text(), QStringLiteral("100000 registros"));
    medir("Ctrl+PgDn", [&] { tecla(Qt::Key_PageDown, Qt::ControlModifier); });
    EXPECT_EQ(tela->Tab->RecNo, 100000);
    medir("Ctrl+PgUp", [&] { tecla(Qt::Key_PageUp, Qt::ControlModifier); });
    medir("100 pages down", [&] {
        for (int i = 0; i < 100; ++i)
            tecla(Qt::Key_PageDown);
    });
    EXPECT_GT(tela->Tab->RecNo, 1000);
    medir("100 rows down", [&] {
        for (int i = 0; i < 100; ++i)
            tecla(Qt::Key_Down);
    });
    medir("Reler", [&] { tela->Reler(99999); });
    EXPECT_EQ(tela->Tab->RecNo, 99999);
    medir("start an alteration", [&] { EXPECT_TRUE(tela->AtivarAlteracao()); });
    tela->Descr()->setText(QStringLiteral("outro"));
    medir("confirm it", [&] { tela->ConfirmAction->Execute(); });
    EXPECT_EQ(tela->Tab->RecNo, 99999);
    medir("start an insertion", [&] { tela->InsAction->Execute(); });
    tela->Descr()->setText(QStringLiteral("novo"));
    medir("confirm it", [&] { tela->ConfirmAction->Execute(); });
    EXPECT_EQ(tela->Tab->RecNo, 100001);
    medir("start another one", [&] { tela->InsAction->Execute(); });
    medir("cancel it", [&] { tela->CancelarAction->Execute(); });
    EXPECT_EQ(tela->Tab->RecNo, 100001);
    medir("delete a record", [&] { tela->ExclAction->Execute(); });
    EXPECT_EQ(tela->SQLQuery1->RecordCount(), 100000);
    Ocioso();
    medir("search from the top", [&] {
        tela->StringGrid1->SetCelula(1, 1);
        LocalizBasF->SetTabF(tela);
        LocalizBasF->Show();
        LocalizBasF->findChild<QLineEdit *>(QStringLiteral("LocalizLabeledEdit"))
            ->setText(QStringLiteral("G100000"));
        LocalizBasF->BuscaLinear();
    });
    EXPECT_EQ(tela->Tab->RecNo, 100000);
    medir("100 idle passes", [&] {
        for (int i = 0; i < 100; ++i)
            tela->Atualizar();
    });
    LocalizBasF->Close();
}

} // namespace ficha::testes
