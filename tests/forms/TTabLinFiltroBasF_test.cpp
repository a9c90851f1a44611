#include "forms/TelaComFiltro.h"
#include "input/UUpDownBRFr.h"
#include "platform/core/Relogio.h"
#include "platform/support/Instalacao.h"
#include "platform/toolkit/TMemo.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace ficha::testes
{

namespace
{

const QString EsquemaDasPecas = QStringLiteral(
    "create table pecas (pecas_cod integer not null, serie integer not null, descr varchar(20), "
    "grupos_cod integer, ativo char(1), cadastro date, primary key (pecas_cod, serie))");

} // namespace

/** Pieces 1 to 6 in two groups; the odd ones are called porca, the even ones parafuso. */
class TTabLinFiltroBasFTest : public TTelasTest
{
protected:
    TTabLinFiltroBasFTest()
    {
        banco.Executar(EsquemaDasPecas);
        Inserir(1, QStringLiteral("azul"));
        Inserir(2, QStringLiteral("verde"));
        for (int i = 1; i <= 6; ++i)
            Peca(i, 0, i % 2 ? QStringLiteral("porca %1") : QStringLiteral("parafuso %1"));
    }
    ~TTabLinFiltroBasFTest() override
    {
        SetPastasDaInstalacao({});
        SetRelogio({});
    }

    void Peca(int cod, int serie, const QString &descr)
    {
        banco.Executar(QStringLiteral("insert into pecas values (%1, %2, '%3', %4, 'S', "
                                      "date '2024-03-%5')")
                           .arg(cod)
                           .arg(serie)
                           .arg(descr.contains(u'%') ? descr.arg(cod) : descr)
                           .arg(cod % 2 + 1)
                           .arg(10 + cod % 20));
    }
    /** The whole table, for "nothing else was touched". */
    QStringList NoBanco()
    {
        TCustomBRSQL consulta(
            QStringLiteral("select pecas_cod, serie, descr, ativo from pecas order by 1, 2"));
        QStringList linhas;
        for (; !consulta.Eof(); consulta.Next()) {
            QStringList l;
            for (int i = 0; i < 4; ++i)
                l << consulta.Fields(i)->AsString();
            linhas << l.join(u'|');
        }
        return linhas;
    }
    /** Types a piece of the description into the panel and presses the button. */
    void Filtrar(TPecasF *tela, const QString &texto)
    {
        tela->TextoEdit->SetText(texto);
        Clicar(tela, QStringLiteral("ToolButton4"));
    }
    void Clicar(TPecasF *tela, const QString &botao)
    {
        auto *b = tela->findChild<TToolButton *>(botao);
        ASSERT_TRUE(b);
        QTest::mouseClick(b, Qt::LeftButton);
        Ocioso();
    }
    void ClicarNaFaixa(TPecasF *tela)
    {
        QTest::mouseClick(tela->FiltroImage, Qt::LeftButton, {}, QPoint(6, 30));
        Ocioso();
    }
    void ArrastarBarra(TPecasF *tela, int pixels)
    {
        TSplitter *barra = tela->Splitter1;
        const QPoint inicio(4, barra->height() / 2);
        QWidget *pai = barra->parentWidget();
        const QPoint fim = barra->mapTo(pai, inicio) + QPoint(pixels, 0);
        QTest::mousePress(barra, Qt::LeftButton, {}, inicio);
        QTest::mouseMove(barra, barra->mapFrom(pai, fim));
        QTest::mouseRelease(barra, Qt::LeftButton, {}, inicio);
        Ocioso();
    }
    void IrParaCampos(TPecasF *tela)
    {
        tela->PageControl1->MudarComoUsuario(1);
        Ocioso();
    }
};

TEST_F(TTabLinFiltroBasFTest, TheLayoutIsAsStated)
{
    auto *tela = Abrir<TTiposComFiltroF>();
    EXPECT_EQ(tela->FiltroPanel->parent(), tela->ListaTabSheet);
    EXPECT_EQ(tela->FiltroPanel->width(), 190);
    EXPECT_EQ(tela->FiltroPanel->frameWidth(), 2);
    EXPECT_EQ(tela->FiltroPanel->frameShape(), QFrame::Box);
    EXPECT_EQ(tela->FiltroPanel->frameShadow(), QFrame::Raised);
    EXPECT_EQ(tela->FiltroBotPanel->width(), 13);
    EXPECT_EQ(tela->FiltroBotPanel->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(tela->FiltroBotPanel->geometry().right(), 187);
    EXPECT_EQ(tela->ScrollBox1->GetColorInt(), 14732209);
    EXPECT_EQ(tela->Panel3->GetColorInt(), 14732209);
    EXPECT_EQ(tela->ToolBar4->parent(), tela->ScrollBox1);
    EXPECT_EQ(tela->ToolBar4->pos(), QPoint(10, 276));
    EXPECT_EQ(tela->ToolBar4->width(), 150);
    EXPECT_EQ(tela->ToolBar4->GetButtonWidth(), 70);
    EXPECT_EQ(tela->ToolBar4->GetColorInt(), 11107139);
    EXPECT_EQ(tela->ToolBar4->GetImages(), tela->FiltroImageList);
    QStringList botoes;
    for (TToolButton *b : tela->ToolBar4->Buttons())
        botoes << b->objectName();
    EXPECT_EQ(botoes, QStringList({"ToolButton3", "ToolButton5", "ToolButton4"}));
    EXPECT_EQ(tela->ToolBar4->Buttons().at(1)->GetStyle(), TToolButton::tbsSeparator);
    EXPECT_EQ(tela->ToolBar4->Buttons().at(0)->GetAction(), tela->FiltroZerarAct);
    EXPECT_EQ(tela->ToolBar4->Buttons().at(2)->GetAction(), tela->FitroExecAct);
    EXPECT_EQ(tela->Splitter1->width(), 8);
    EXPECT_TRUE(tela->Splitter1->GetBeveled());
    EXPECT_FALSE(tela->Splitter1->GetAutoSnap());
    EXPECT_EQ(tela->Splitter1->x(), 190);
    EXPECT_EQ(tela->StringGrid1->x(), 198);
    EXPECT_EQ(tela->FiltroStatusLabel->geometry().topLeft(), QPoint(0, 0));
    EXPECT_EQ(tela->FiltroStatusLabel->width(), tela->ListaTabSheet->width());
    EXPECT_TRUE(tela->FiltroStatusLabel->wordWrap());
    EXPECT_EQ(tela->FiltroStatusLabel->alignment(), Qt::AlignCenter);
    EXPECT_EQ(tela->FiltroStatusLabel->palette().color(QPalette::WindowText), QColor(0, 0, 128));
    EXPECT_EQ(tela->FiltroStatusLabel->font().family(), QStringLiteral("Arial"));
    EXPECT_EQ(tela->FiltroStatusLabel->text(), QStringLiteral("Exibindo todos os produtos"));
    EXPECT_TRUE(ConfereLayout(tela->ListaTabSheet, QStringLiteral("TTabLinFiltroBasF")));
}

TEST_F(TTabLinFiltroBasFTest, AScreenThatFiltersNothingKeepsItsTextAndItsEmptyListHasABlankRow)
{
    auto *tela = Abrir<TTiposComFiltroF>();
    EXPECT_EQ(tela->SQLQuery1->GetSQL(), QStringLiteral("select * from tipos order by tipos_cod"));
    EXPECT_EQ(tela->StringGrid1->GetRowCount(), 2);
    banco.Executar(QStringLiteral("insert into tipos values (1, 'um')"));
    tela->FiltroZerarAct->Execute();
    EXPECT_EQ(tela->StringGrid1->GetCell(1, 1), QStringLiteral("um"));
}

TEST_F(TTabLinFiltroBasFTest, TheTwoActionsAreAsStated)
{
    TPecasF *tela = Abrir<TPecasF>();
    EXPECT_EQ(tela->FiltroActionList->GetImages(), tela->FiltroImageList);
    EXPECT_EQ(tela->FiltroActionList->Count(), 2);
    EXPECT_EQ(tela->FiltroZerarAct->GetCaption(), QStringLiteral("Liberar"));
    EXPECT_EQ(tela->FiltroZerarAct->GetImageIndex(), 0);
    EXPECT_EQ(tela->FitroExecAct->objectName(), QStringLiteral("FitroExecAct"));
    EXPECT_EQ(tela->FitroExecAct->GetCaption(), QStringLiteral("Executar"));
    EXPECT_EQ(tela->FitroExecAct->GetImageIndex(), 1);
    EXPECT_TRUE(tela->FiltroImageList->Tem(0) && tela->FiltroImageList->Tem(1));
}

TEST_F(TTabLinFiltroBasFTest, CreationShowsAndEmptiesTheFilterBeforeTheListIsOpened)
{
    TTabLinFiltroBasF::FiltroLargura = 77;
    TPecasF *tela = Abrir<TPecasF>();
    EXPECT_EQ(tela->chamadas, QStringList({"AtualizarFiltroPanel", "ZerarFiltro", "PrepararSQL",
                                           "abre", "PrepTit"}));
    EXPECT_EQ(TTabLinFiltroBasF::FiltroLargura, 190);
    EXPECT_TRUE(tela->FiltroAberto);
    EXPECT_EQ(tela->FiltroStatusLabel->text(), QStringLiteral("Exibindo todas as peças"));
}

TEST_F(TTabLinFiltroBasFTest, EveryReopeningOfTheListWritesItsTextAnew)
{
    TPecasF *tela = Abrir<TPecasF>();
    tela->chamadas.clear();
    tela->extra = QStringLiteral("pecas_cod<3");
    tela->Reler(0);
    EXPECT_EQ(tela->chamadas, QStringList({"PrepararSQL"}));
    EXPECT_EQ(tela->Lista(), QStringList({"1 porca 1", "2 parafuso 2"}));
    tela->SQLQuery1->Close();
    tela->extra = QStringLiteral("pecas_cod=5");
    tela->SQLQuery1->Open();
    EXPECT_EQ(tela->SQLQuery1->RecordCount(), 1);
}

TEST_F(TTabLinFiltroBasFTest, ExecutarAppliesTheFilterAndStaysOnTheRecordWhenItIsThere)
{
    TPecasF *tela = Abrir<TPecasF>();
    tela->MoverParaLinha(4);
    tela->chamadas.clear();
    Filtrar(tela, QStringLiteral("parafuso"));
    EXPECT_EQ(tela->Lista(), QStringList({"2 parafuso 2", "4 parafuso 4", "6 parafuso 6"}));
    EXPECT_EQ(tela->chamadas, QStringList({"PrepararSQL", "PrepararSQL"}));
    EXPECT_EQ(tela->Atual(), QStringLiteral("4;0"));
    EXPECT_EQ(tela->StringGrid1->GetRow(), 2);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("parafuso 4"));
    EXPECT_EQ(tela->NRegsLabel->text(), QStringLiteral("3 registros"));
    EXPECT_TRUE(tela->FiltroAtivLab->isVisible());
    EXPECT_TRUE(tela->AtualizarLigado);
}

TEST_F(TTabLinFiltroBasFTest, ARecordThatTheFilterHidesGivesWayToTheLastOne)
{
    TPecasF *tela = Abrir<TPecasF>();
    tela->MoverParaLinha(3);
    Filtrar(tela, QStringLiteral("parafuso"));
    EXPECT_EQ(tela->Atual(), QStringLiteral("6;0"));
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("parafuso 6"));
}

TEST_F(TTabLinFiltroBasFTest, LiberarShowsThenEmptiesThenApplies)
{
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->chamadas.clear();
    Clicar(tela, QStringLiteral("ToolButton3"));
    EXPECT_EQ(tela->chamadas,
              QStringList({"AtualizarFiltroPanel", "ZerarFiltro", "PrepararSQL", "PrepararSQL"}));
    EXPECT_EQ(tela->Lista().size(), 6);
    EXPECT_EQ(tela->Texto(), QString());
    EXPECT_FALSE(tela->FiltroAtivLab->isVisible());
    EXPECT_EQ(tela->Atual(), QStringLiteral("6;0"));
}

TEST_F(TTabLinFiltroBasFTest, EnterInAnInputOfTheFilterAppliesIt)
{
    TPecasF *tela = Abrir<TPecasF>();
    tela->TextoEdit->setFocus();
    Digitar(QStringLiteral("porca"));
    EXPECT_EQ(tela->Lista().size(), 6);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(tela->Lista(), QStringList({"1 porca 1", "3 porca 3", "5 porca 5"}));
    EXPECT_EQ(Foco(), tela->TextoEdit);
    tela->TextoEdit->selectAll();
    Digitar(QStringLiteral("3"));
    Tecla(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(tela->Lista(), QStringList({"3 porca 3"}));
    tela->TextoEdit->selectAll();
    Digitar(QStringLiteral("9"));
    Tecla(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(tela->Lista(), QStringList({"3 porca 3"}));
}

TEST_F(TTabLinFiltroBasFTest, TheGroupIsChosenWithTheKeyboardAndApplied)
{
    TPecasF *tela = Abrir<TPecasF>();
    tela->GrupoFr->AtivoCheckBox->setFocus();
    Tecla(Qt::Key_Space);
    EXPECT_TRUE(tela->GrupoFr->AtivoCheckBox->isChecked());
    Tecla(Qt::Key_Tab);
    EXPECT_TRUE(tela->GrupoFr->isAncestorOf(Foco()));
    Tecla(Qt::Key_V); // verde, in the list that drops down
    Tecla(Qt::Key_Return);
    EXPECT_EQ(tela->Lista().size(), 6);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(tela->Lista(), QStringList({"1 porca 1", "3 porca 3", "5 porca 5"}));
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
}

TEST_F(TTabLinFiltroBasFTest, ThePeriodOfRegistrationIsTypedAndApplied)
{
    SetRelogio([] { return TDateTime(QDateTime(QDate(2024, 3, 16), QTime(9, 30))); });
    TPecasF *tela = Abrir<TPecasF>();
    tela->CadastroFr->AtivoCheckBox->setFocus();
    Tecla(Qt::Key_Space);
    EXPECT_TRUE(tela->CadastroFr->AtivoCheckBox->isChecked());
    Tecla(Qt::Key_Return);
    EXPECT_EQ(tela->Lista(), QStringList({"6 parafuso 6"}));
    // The number of days: from the check box on to it.
    for (int i = 0; i < 6 && !tela->CadastroFr->DiasUpDownBRFr->isAncestorOf(Foco()); ++i)
        Tecla(Qt::Key_Tab);
    ASSERT_TRUE(tela->CadastroFr->DiasUpDownBRFr->isAncestorOf(Foco()));
    Digitar(QStringLiteral("3"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(tela->Lista(), QStringList({"4 parafuso 4", "5 porca 5", "6 parafuso 6"}));
}

TEST_F(TTabLinFiltroBasFTest, AnEmptyResultShowsOneBlankRowUnderTheTitles)
{
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("arruela"));
    EXPECT_EQ(tela->StringGrid1->GetRowCount(), 2);
    EXPECT_EQ(tela->StringGrid1->GetCell(0, 0), QStringLiteral("PECAS_COD"));
    for (int c = 0; c < tela->StringGrid1->GetColCount(); ++c)
        EXPECT_EQ(tela->StringGrid1->GetCell(c, 1), QString()) << c;
    EXPECT_EQ(tela->NRegsLabel->text(), QStringLiteral("Nenhum registro"));
    EXPECT_EQ(tela->Descr()->text(), QString());
    EXPECT_FALSE(tela->ExclAction->GetEnabled());
    EXPECT_FALSE(tela->AltAction->GetEnabled());
}

TEST_F(TTabLinFiltroBasFTest, AScreenOpenedOnAnEmptyTableHasABlankRow)
{
    banco.Executar(QStringLiteral("delete from pecas"));
    TPecasF *tela = Abrir<TPecasF>();
    EXPECT_EQ(tela->StringGrid1->GetRowCount(), 2);
    for (int c = 0; c < tela->StringGrid1->GetColCount(); ++c)
        EXPECT_EQ(tela->StringGrid1->GetCell(c, 1), QString()) << c;
    tela->StringGrid1->SetRowCount(1);
    tela->PrepTit();
    EXPECT_EQ(tela->StringGrid1->GetRowCount(), 2);
    tela->StringGrid1->SetRowCount(7);
    tela->PrepTit();
    EXPECT_EQ(tela->StringGrid1->GetRowCount(), 7);
}

TEST_F(TTabLinFiltroBasFTest, WhatTheScreenItselfWritesReleasesNoFilter)
{
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("porca"));
    tela->chamadas.clear();
    tela->AtualizarLigado = false;
    EXPECT_FALSE(tela->AtivarAlteracao());
    tela->AtualizarLigado = true;
    EXPECT_EQ(tela->chamadas, QStringList());
    EXPECT_EQ(tela->StringGrid1->GetRowCount(), 4);
}

TEST_F(TTabLinFiltroBasFTest, ADeletionInAnEmptyFilteredListReleasesItSaysSoAndDeletesNothing)
{
    TPecasF *tela = Abrir<TPecasF>();
    const QStringList antes = NoBanco();
    tela->PerguntarExcluir = false;
    tela->extra = QStringLiteral("pecas_cod>99");
    tela->FitroExecAct->Execute();
    tela->ExclAction->Execute(); // before the idle moment that switches it off
    EXPECT_EQ(avisos,
              QStringList(QStringLiteral("Nenhum registro estava escolhido.\r\n"
                                         "O filtro foi liberado: escolha o registro na lista.")));
    avisos.clear();
    EXPECT_EQ(NoBanco(), antes);
    EXPECT_EQ(tela->StringGrid1->GetRowCount(), 7);
}

TEST_F(TTabLinFiltroBasFTest, ShowingTheScreenPutsTheBackgroundPictureBehindTheInputs)
{
    const std::unique_ptr<TPecasF> tela(Criar<TPecasF>(nullptr));
    EXPECT_FALSE(tela->FiltroFundoImage->pixmap(Qt::ReturnByValue).isNull());
    tela->FiltroFundoImage->raise();
    tela->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(tela.get()));
    const auto filhos =
        tela->ScrollBox1->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_EQ(filhos.value(0), tela->FiltroFundoImage);
}

TEST_F(TTabLinFiltroBasFTest, OpeningRepaintsTheList)
{
    TPecasF *tela = Abrir<TPecasF>();
    int celulas = 0;
    tela->StringGrid1->OnDrawCell = [&](auto &&...) { ++celulas; };
    Ocioso();
    celulas = 0;
    QTest::mouseClick(tela->FiltroPanel, Qt::LeftButton, {}, QPoint(0, 50));
    Ocioso();
    EXPECT_GT(celulas, 0);
    tela->StringGrid1->OnDrawCell = nullptr;
}

TEST_F(TTabLinFiltroBasFTest, EnterKeepsItsOwnMeaningInMemosAndButtons)
{
    TPecasF *tela = Criar<TPecasF>(nullptr);
    auto *memo = new TMemo(tela->ScrollBox1);
    auto *botao = new TBitBtn(tela->ScrollBox1);
    int apertos = 0;
    QObject::connect(botao, &QPushButton::clicked, [&] { ++apertos; });
    botao->setAutoDefault(true);
    tela->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(tela));
    tela->chamadas.clear();
    memo->setFocus();
    Tecla(Qt::Key_Return);
    EXPECT_EQ(memo->toPlainText(), QStringLiteral("\n"));
    botao->setFocus();
    Tecla(Qt::Key_Return);
    EXPECT_EQ(apertos, 1);
    EXPECT_EQ(tela->chamadas, QStringList());
    delete tela;
}

/* The strip and the bar. */

TEST_F(TTabLinFiltroBasFTest, TheStripClosesAndOpensThePanel)
{
    TPecasF *tela = Abrir<TPecasF>();
    ClicarNaFaixa(tela);
    EXPECT_FALSE(tela->FiltroAberto);
    EXPECT_EQ(tela->FiltroPanel->width(), 17);
    EXPECT_EQ(tela->FiltroBotPanel->geometry(), QRect(2, 2, 13, tela->FiltroPanel->height() - 4));
    EXPECT_EQ(tela->Splitter1->x(), 17);
    EXPECT_EQ(tela->StringGrid1->x(), 25);
    ClicarNaFaixa(tela);
    EXPECT_TRUE(tela->FiltroAberto);
    EXPECT_EQ(tela->FiltroPanel->width(), 190);
    EXPECT_EQ(tela->StringGrid1->x(), 198);
    TTabLinFiltroBasF::FiltroLargura = 150;
    ClicarNaFaixa(tela);
    ClicarNaFaixa(tela);
    EXPECT_EQ(tela->FiltroPanel->width(), 150) << "one width for all screens";
    TTabLinFiltroBasF::FiltroLargura = 190;
}

TEST_F(TTabLinFiltroBasFTest, OpeningByTheStripAfterAWideDragGivesTheUsualWidthAgain)
{
    TPecasF *tela = Abrir<TPecasF>();
    ArrastarBarra(tela, 110);
    EXPECT_EQ(tela->FiltroPanel->width(), 300);
    EXPECT_TRUE(tela->FiltroAberto);
    ClicarNaFaixa(tela);
    EXPECT_EQ(tela->FiltroPanel->width(), 17);
    ClicarNaFaixa(tela);
    EXPECT_EQ(tela->FiltroPanel->width(), 190);
}

TEST_F(TTabLinFiltroBasFTest, AClosedPanelThatIsDraggedIsOpen)
{
    TPecasF *tela = Abrir<TPecasF>();
    ClicarNaFaixa(tela);
    tela->chamadas.clear();
    ArrastarBarra(tela, 100);
    EXPECT_EQ(tela->chamadas, QStringList({"abre"}));
    EXPECT_TRUE(tela->FiltroAberto);
    EXPECT_EQ(tela->FiltroPanel->width(), 117);
    EXPECT_TRUE(tela->Panel3->isVisible());
    // The strip offers closing now.
    ClicarNaFaixa(tela);
    EXPECT_FALSE(tela->FiltroAberto);
    EXPECT_EQ(tela->FiltroPanel->width(), 17);
}

TEST_F(TTabLinFiltroBasFTest, ADraggedPanelIsNeverNarrowerThanTwiceTheClosedWidth)
{
    TPecasF *tela = Abrir<TPecasF>();
    ArrastarBarra(tela, -185);
    EXPECT_EQ(tela->FiltroPanel->width(), 34);
    EXPECT_TRUE(tela->FiltroAberto);
    ArrastarBarra(tela, 6);
    EXPECT_EQ(tela->FiltroPanel->width(), 40);
}

TEST_F(TTabLinFiltroBasFTest, AClickOnThePanelItselfOpensTheFilterAndLeavesTheWidth)
{
    TPecasF *tela = Abrir<TPecasF>();
    ClicarNaFaixa(tela);
    QTest::mouseClick(tela->FiltroPanel, Qt::LeftButton, {}, QPoint(0, 50));
    EXPECT_TRUE(tela->FiltroAberto);
    EXPECT_EQ(tela->FiltroPanel->width(), 17);
}

TEST_F(TTabLinFiltroBasFTest, APressOnTheStripThatEndsElsewhereOrWithAnotherButtonTogglesNothing)
{
    TPecasF *tela = Abrir<TPecasF>();
    QTest::mousePress(tela->FiltroImage, Qt::LeftButton, {}, QPoint(6, 30));
    QTest::mouseRelease(tela->FiltroImage, Qt::LeftButton, {}, QPoint(80, 30));
    QTest::mouseClick(tela->FiltroImage, Qt::RightButton, {}, QPoint(6, 30));
    EXPECT_TRUE(tela->FiltroAberto);
}

TEST_F(TTabLinFiltroBasFTest, TabLeadsThroughTheFilterIntoTheListAndNotIntoAClosedPanel)
{
    TPecasF *tela = Abrir<TPecasF>();
    ASSERT_EQ(Foco(), tela->StringGrid1);
    Tecla(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(tela->ScrollBox1->isAncestorOf(Foco()));
    tela->GrupoFr->AtivoCheckBox->setFocus();
    QWidgetList visitados;
    for (int i = 0; i < 20 && Foco() != tela->StringGrid1; ++i) {
        EXPECT_TRUE(tela->ScrollBox1->isAncestorOf(Foco()));
        visitados << Foco();
        Tecla(Qt::Key_Tab);
    }
    EXPECT_EQ(Foco(), tela->StringGrid1);
    EXPECT_TRUE(visitados.contains(tela->TextoEdit));
    EXPECT_TRUE(visitados.contains(tela->CadastroFr->AtivoCheckBox));
    tela->TextoEdit->setFocus();
    ClicarNaFaixa(tela);
    EXPECT_EQ(Foco(), tela->StringGrid1);
    for (int i = 0; i < 8; ++i) {
        Tecla(Qt::Key_Tab);
        EXPECT_FALSE(tela->FiltroPanel->isAncestorOf(Foco())) << i;
    }
}

TEST_F(TTabLinFiltroBasFTest, ALongStatusTextGetsTheLinesItNeeds)
{
    TPecasF *tela = Abrir<TPecasF>();
    const int uma = tela->FiltroStatusLabel->height();
    tela->FiltroStatusLabel->setText(QStringLiteral("Exibindo peças ").repeated(40));
    Ocioso();
    EXPECT_GT(tela->FiltroStatusLabel->height(), 2 * uma);
    EXPECT_EQ(tela->StringGrid1->y(), tela->FiltroStatusLabel->height());
    tela->FiltroStatusLabel->setText(QStringLiteral("x"));
    Ocioso();
    EXPECT_EQ(tela->FiltroStatusLabel->height(), uma);
}

/* The pictures. */

class TFigurasDoFiltroTest : public TTabLinFiltroBasFTest
{
protected:
    TFigurasDoFiltroTest() { QDir(pasta.path()).mkpath(QStringLiteral("trabalho")); }
    ~TFigurasDoFiltroTest() override { QDir::setCurrent(antes); }

    void Por(const QString &nome, const QColor &cor)
    {
        QDir(pasta.path()).mkpath(QStringLiteral("img/botoes"));
        QImage imagem(13, 20, QImage::Format_RGB32);
        imagem.fill(cor);
        ASSERT_TRUE(imagem.save(Arquivo(nome), "JPG", 100));
    }
    QString Arquivo(const QString &nome) const
    {
        return pasta.filePath(QStringLiteral("img/botoes/")) + nome;
    }
    QString Trabalho() const { return pasta.filePath(QStringLiteral("trabalho")); }
    static QColor Cor(const TPecasF *tela)
    {
        return tela->FiltroImage->pixmap().toImage().pixelColor(6, 10);
    }

    QTemporaryDir pasta;
    const QString antes = QDir::currentPath();
};

TEST_F(TFigurasDoFiltroTest, TheStripOffersClosingOrOpeningWithTheWorkingFoldersOwnPictures)
{
    Por(QStringLiteral("filtro fechar.jpg"), Qt::red);
    Por(QStringLiteral("filtro abrir.jpg"), Qt::blue);
    QDir::setCurrent(Trabalho());
    TPecasF *tela = Abrir<TPecasF>();
    EXPECT_GT(Cor(tela).red(), 200);
    EXPECT_LT(Cor(tela).blue(), 60);
    ClicarNaFaixa(tela);
    EXPECT_GT(Cor(tela).blue(), 200);
    EXPECT_LT(Cor(tela).red(), 60);
    // The file is read again each time.
    Por(QStringLiteral("filtro fechar.jpg"), Qt::green);
    ClicarNaFaixa(tela);
    EXPECT_GT(Cor(tela).green(), 200);
}

TEST_F(TFigurasDoFiltroTest, ThePicturesThatAreShippedAreFoundFromAnyWorkingFolder)
{
    QDir::setCurrent(Trabalho());
    TPecasF *tela = Abrir<TPecasF>();
    EXPECT_EQ(tela->FiltroImage->pixmap().width(), 13);
    const QImage fechar = tela->FiltroImage->pixmap().toImage();
    ClicarNaFaixa(tela);
    EXPECT_EQ(tela->FiltroImage->pixmap().width(), 13);
    EXPECT_NE(tela->FiltroImage->pixmap().toImage(), fechar);
}

TEST_F(TFigurasDoFiltroTest, AMissingPictureIsReportedOnceAndTheScreenGoesOn)
{
    Por(QStringLiteral("filtro fechar.jpg"), Qt::red);
    SetPastasDaInstalacao({Trabalho()});
    TPecasF *tela = Abrir<TPecasF>();
    EXPECT_EQ(erros, QStringList());
    ClicarNaFaixa(tela);
    ASSERT_EQ(erros.size(), 1);
    EXPECT_EQ(erros[0],
              QStringLiteral("A figura 'filtro abrir.jpg', que faz parte da instalação do "
                             "programa, não foi encontrada.\r\nEla foi procurada em:\r\n") +
                  Arquivo(QStringLiteral("filtro abrir.jpg")));
    EXPECT_TRUE(tela->FiltroImage->pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(tela->FiltroImage->text(), QStringLiteral(">"));
    EXPECT_EQ(tela->FiltroPanel->width(), 17);
    ClicarNaFaixa(tela);
    EXPECT_EQ(tela->FiltroPanel->width(), 190);
    ClicarNaFaixa(tela);
    tela->Close();
    tela = Abrir<TPecasF>();
    ClicarNaFaixa(tela);
    EXPECT_EQ(erros.size(), 1);
    // Found again, and lost again: that is news.
    Por(QStringLiteral("filtro abrir.jpg"), Qt::blue);
    ClicarNaFaixa(tela);
    ClicarNaFaixa(tela);
    EXPECT_GT(Cor(tela).blue(), 200);
    QFile::remove(Arquivo(QStringLiteral("filtro abrir.jpg")));
    ClicarNaFaixa(tela);
    ClicarNaFaixa(tela);
    EXPECT_EQ(erros.size(), 2);
    erros.clear();
    Por(QStringLiteral("filtro abrir.jpg"), Qt::blue);
    ClicarNaFaixa(tela);
    ClicarNaFaixa(tela);
}

TEST_F(TFigurasDoFiltroTest, ADamagedPictureIsReportedByItsName)
{
    Por(QStringLiteral("filtro fechar.jpg"), Qt::red);
    QFile::resize(Arquivo(QStringLiteral("filtro fechar.jpg")), 40);
    SetPastasDaInstalacao({Trabalho()});
    TPecasF *tela = Abrir<TPecasF>();
    ASSERT_EQ(erros.size(), 1);
    EXPECT_TRUE(erros[0].contains(QStringLiteral("filtro fechar.jpg")));
    EXPECT_EQ(tela->Lista().size(), 6);
    erros.clear();
    SetPastasDaInstalacao({});
    tela->SetFiltroAberto(true);
}

/* Edits: the filter is released first, and the record is the one that the user saw. */

TEST_F(TTabLinFiltroBasFTest, StartingAnInsertReleasesTheFilterAndTheListIsWholeAfterwards)
{
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("porca"));
    tela->chamadas.clear();
    QTest::mouseClick(tela->findChild<TToolButton *>(QStringLiteral("InsToolButton")),
                      Qt::LeftButton);
    Ocioso();
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(tela->chamadas.mid(0, 2), QStringList({"AtualizarFiltroPanel", "ZerarFiltro"}));
    EXPECT_EQ(tela->chamadas.count(QStringLiteral("ZerarFiltro")), 1);
    EXPECT_EQ(tela->Texto(), QString());
    EXPECT_EQ(tela->Descr()->text(), QString());
    EXPECT_EQ(tela->Lista().size(), 6);
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Lista().size(), 6);
}

TEST_F(TTabLinFiltroBasFTest, AlterarActsOnTheRecordThatWasCurrentInTheFilteredList)
{
    TPecasF *tela = Abrir<TPecasF>();
    const QStringList antes = NoBanco();
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->StringGrid1->setFocus();
    tela->MoverParaLinha(2);
    Ocioso();
    ASSERT_EQ(tela->Atual(), QStringLiteral("4;0"));
    Tecla(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->Atual(), QStringLiteral("4;0"));
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("parafuso 4"));
    EXPECT_FALSE(tela->FiltroAtivo);
    EXPECT_EQ(tela->Lista().size(), 6);
    tela->Descr()->selectAll();
    Digitar(QStringLiteral("rebite"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    QStringList depois = antes;
    depois[3] = QStringLiteral("4|0|rebite|S");
    EXPECT_EQ(NoBanco(), depois);
    EXPECT_EQ(tela->Atual(), QStringLiteral("4;0"));
}

TEST_F(TTabLinFiltroBasFTest, ExcluirDeletesTheRecordThatWasCurrentInTheFilteredListAndNoOther)
{
    TPecasF *tela = Abrir<TPecasF>();
    QStringList esperado = NoBanco();
    Filtrar(tela, QStringLiteral("parafuso"));
    // The user clicks on the second row of the three.
    TStringGrid *grade = tela->StringGrid1;
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, grade->CellRect(1, 2).center());
    Ocioso();
    ASSERT_EQ(tela->Atual(), QStringLiteral("4;0"));
    aoPerguntar = [&] {
        // What the user sees behind the question.
        Ocioso();
        EXPECT_EQ(tela->Atual(), QStringLiteral("4;0"));
        EXPECT_EQ(grade->GetCell(2, grade->GetRow()), QStringLiteral("parafuso 4"));
        EXPECT_EQ(tela->Lista().size(), 6);
    };
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(perguntas.size(), 1);
    esperado.removeAt(3);
    EXPECT_EQ(NoBanco(), esperado);
    EXPECT_EQ(tela->Lista().size(), 5);
    EXPECT_TRUE(tela->AtualizarLigado);
}

TEST_F(TTabLinFiltroBasFTest, RecordsThatShareTheirCodeAreToldApartByTheWholeKey)
{
    for (int serie = 1; serie <= 3; ++serie)
        Peca(4, serie, QStringLiteral("parafuso 4/%1").arg(serie));
    TPecasF *tela = Abrir<TPecasF>();
    const QStringList antes = NoBanco();
    tela->PerguntarExcluir = false;
    tela->extra = QStringLiteral("serie=2");
    tela->FitroExecAct->Execute();
    ASSERT_EQ(tela->Atual(), QStringLiteral("4;2"));
    tela->AltAction->Execute();
    Ocioso();
    EXPECT_EQ(tela->Atual(), QStringLiteral("4;2"));
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("parafuso 4/2"));
    tela->CancelarAction->Execute();
    tela->extra = QStringLiteral("serie=2");
    tela->FitroExecAct->Execute();
    Ocioso();
    ASSERT_EQ(tela->Atual(), QStringLiteral("4;2"));
    tela->ExclAction->Execute();
    QStringList esperado = antes;
    esperado.removeAt(esperado.indexOf(QStringLiteral("4|2|parafuso 4/2|S")));
    EXPECT_EQ(NoBanco(), esperado);
}

TEST_F(TTabLinFiltroBasFTest, ADeletionOfARecordThatIsGoneDeletesNoOtherOne)
{
    TPecasF *tela = Abrir<TPecasF>();
    tela->PerguntarExcluir = false;
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->MoverParaLinha(2);
    banco.Executar(QStringLiteral("delete from pecas where pecas_cod=4"));
    const QStringList antes = NoBanco();
    Ocioso();
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(NoBanco(), antes);
    EXPECT_EQ(avisos,
              QStringList(QStringLiteral("O registro não está mais na lista.\r\n"
                                         "O filtro foi liberado: escolha outro registro.")));
    avisos.clear();
    EXPECT_EQ(perguntas, QStringList());
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Lista().size(), 5);
    // What the inputs show is the record that is current now.
    EXPECT_EQ(tela->Atual(), QStringLiteral("1;0"));
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("porca 1"));
}

TEST_F(TTabLinFiltroBasFTest, TypingOverARecordThatIsGoneAltersNoOtherOne)
{
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->MoverParaLinha(2);
    IrParaCampos(tela);
    banco.Executar(QStringLiteral("delete from pecas where pecas_cod=4"));
    const QStringList antes = NoBanco();
    tela->Descr()->setFocus();
    Digitar(QStringLiteral("x"));
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("porca 1"));
    EXPECT_EQ(NoBanco(), antes);
}

TEST_F(TTabLinFiltroBasFTest, TypingInTheMiddleOfATextUnderAFilterKeepsItsPlace)
{
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->MoverParaLinha(2);
    IrParaCampos(tela);
    tela->Descr()->setFocus();
    tela->Descr()->setCursorPosition(4);
    Digitar(QStringLiteral("XY"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("paraXYfuso 4"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(NoBanco().at(3), QStringLiteral("4|0|paraXYfuso 4|S"));
}

TEST_F(TTabLinFiltroBasFTest, AChoiceThatAsksForTheAlterationIsNotTakenBackByTheRelease)
{
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->MoverParaLinha(2);
    IrParaCampos(tela);
    QTest::mouseClick(tela->AtivoFr->CheckBox1, Qt::LeftButton, {}, QPoint(6, 8));
    Ocioso();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_FALSE(tela->AtivoFr->CheckBox1->isChecked());
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(NoBanco().at(3), QStringLiteral("4|0|parafuso 4|N"));
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->MoverParaLinha(3);
    IrParaCampos(tela);
    tela->Descr()->setFocus();
    QApplication::clipboard()->setText(QStringLiteral("colado"));
    tela->Descr()->selectAll();
    Tecla(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("colado"));
}

TEST_F(TTabLinFiltroBasFTest, WhatSomebodyChangedMeanwhileIsShownWhenTheAlterationStarts)
{
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->MoverParaLinha(2);
    IrParaCampos(tela);
    banco.Executar(QStringLiteral("update pecas set ativo='N' where pecas_cod=4"));
    tela->Descr()->setFocus();
    tela->Descr()->setCursorPosition(0);
    Digitar(QStringLiteral("Z"));
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("Zparafuso 4"));
    EXPECT_FALSE(tela->AtivoFr->CheckBox1->isChecked());
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(NoBanco().at(3), QStringLiteral("4|0|Zparafuso 4|N"));
}

TEST_F(TTabLinFiltroBasFTest, ARecordThatNoLongerMeetsTheFilterIsStillTheOneThatIsAltered)
{
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->MoverParaLinha(2);
    banco.Executar(QStringLiteral("update pecas set descr='arruela' where pecas_cod=4"));
    tela->AltAction->Execute();
    Ocioso();
    EXPECT_EQ(tela->Atual(), QStringLiteral("4;0"));
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("arruela"));
}

TEST_F(TTabLinFiltroBasFTest, TypingWithAnEmptyFilteredListAltersNothingAndSaysSo)
{
    TPecasF *tela = Abrir<TPecasF>();
    const QStringList antes = NoBanco();
    Filtrar(tela, QStringLiteral("arruela"));
    IrParaCampos(tela);
    tela->Descr()->setFocus();
    Digitar(QStringLiteral("x"));
    EXPECT_EQ(avisos,
              QStringList(QStringLiteral("Nenhum registro estava escolhido.\r\n"
                                         "O filtro foi liberado: escolha o registro na lista.")));
    avisos.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Lista().size(), 6);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("parafuso 6"));
    EXPECT_EQ(NoBanco(), antes);
}

TEST_F(TTabLinFiltroBasFTest, AlterarOnAnEmptyTableStartsAnInsertAndReleasesOnce)
{
    banco.Executar(QStringLiteral("delete from pecas"));
    TPecasF *tela = Abrir<TPecasF>();
    tela->chamadas.clear();
    EXPECT_TRUE(tela->AtivarAlteracao());
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(tela->chamadas.count(QStringLiteral("ZerarFiltro")), 1);
}

TEST_F(TTabLinFiltroBasFTest, NeitherTypingOnNorTheFiltersActionsTouchAnOpenEdit)
{
    TPecasF *tela = Abrir<TPecasF>();
    tela->AltAction->Execute();
    tela->Descr()->setText(QStringLiteral("digitado"));
    tela->chamadas.clear();
    EXPECT_FALSE(tela->AtivarAlteracao());
    EXPECT_TRUE(tela->AtivarInsersao());
    tela->FitroExecAct->Execute();
    tela->FiltroZerarAct->Execute();
    tela->ExclAction->Execute();
    EXPECT_EQ(tela->chamadas, QStringList());
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("digitado"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(perguntas, QStringList());
}

TEST_F(TTabLinFiltroBasFTest, ADeletionThatTheUserDeclinesLeavesTheRecordAndTheReleasedList)
{
    TPecasF *tela = Abrir<TPecasF>();
    const QStringList antes = NoBanco();
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->MoverParaLinha(1);
    Ocioso();
    responde = false;
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(NoBanco(), antes);
    EXPECT_EQ(tela->Lista().size(), 6);
    EXPECT_EQ(tela->Atual(), QStringLiteral("2;0"));
}

TEST_F(TTabLinFiltroBasFTest, AScreenThatForbidsDeletionReleasesAndKeepsTheRecord)
{
    TPecasF *tela = Abrir<TPecasF>();
    const QStringList antes = NoBanco();
    tela->podeExcluir = false;
    Filtrar(tela, QStringLiteral("parafuso"));
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(NoBanco(), antes);
    EXPECT_EQ(tela->Lista().size(), 6);
}

TEST_F(TTabLinFiltroBasFTest, AScreenThatIsClosedBehindTheWarningIsSurvived)
{
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("parafuso"));
    banco.Executar(QStringLiteral("delete from pecas where pecas_cod=6"));
    aoAvisar = [this, tela] {
        delete tela;
        Ocioso();
    };
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
}

/* Failures. */

TEST_F(TTabLinFiltroBasFTest, AFilterThatTheDatabaseRefusesIsReportedAndTheScreenGoesOn)
{
    TPecasF *tela = Abrir<TPecasF>();
    tela->MoverParaLinha(3);
    tela->extra = QStringLiteral("nao_existe=1");
    Clicar(tela, QStringLiteral("ToolButton4"));
    EXPECT_EQ(erros.size(), 1);
    erros.clear();
    EXPECT_TRUE(tela->AtualizarLigado);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Atual(), QStringLiteral("3;0"));
    tela->extra = QStringLiteral("pecas_cod>=3");
    Clicar(tela, QStringLiteral("ToolButton4"));
    EXPECT_EQ(tela->Lista().size(), 4);
    EXPECT_EQ(tela->Atual(), QStringLiteral("3;0"));
    EXPECT_EQ(tela->StringGrid1->GetRow(), 1);
}

TEST_F(TTabLinFiltroBasFTest, ALostConnectionWhileReleasingStartsNoEditAndTheNextOneWorks)
{
    TPecasF *tela = Abrir<TPecasF>();
    const QStringList antes = NoBanco();
    tela->PerguntarExcluir = false;
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->MoverParaLinha(2);
    Ocioso();
    banco.Conexao().Close();
    for (const int tecla : {int(Qt::Key_Delete), int(Qt::Key_A)}) {
        Tecla(tecla, Qt::ControlModifier);
        EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
        EXPECT_TRUE(tela->AtualizarLigado);
    }
    EXPECT_GE(erros.size(), 1);
    erros.clear();
    banco.Conexao().Open();
    EXPECT_EQ(NoBanco(), antes);
    IrParaCampos(tela);
    tela->Descr()->setFocus();
    tela->Descr()->setCursorPosition(0);
    Digitar(QStringLiteral("x"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->Atual(), QStringLiteral("4;0"));
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("xparafuso 4"));
    EXPECT_EQ(tela->Lista().size(), 6);
}

TEST_F(TTabLinFiltroBasFTest, ACriterionThatCannotBeBuiltIsReportedAndTheListKeepsItsText)
{
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("porca"));
    tela->falhaDoSQL = true;
    tela->TextoEdit->SetText(QStringLiteral("parafuso"));
    tela->FitroExecAct->Execute();
    EXPECT_FALSE(erros.isEmpty());
    EXPECT_EQ(erros.front(), QStringLiteral("critério inválido"));
    erros.clear();
    EXPECT_EQ(tela->Lista(), QStringList({"1 porca 1", "3 porca 3", "5 porca 5"}));
    EXPECT_TRUE(tela->AtualizarLigado);
    // The list cannot be released: no edit starts in it.
    const QStringList antes = NoBanco();
    tela->PerguntarExcluir = false;
    for (TAction *acao : {tela->InsAction, tela->AltAction, tela->ExclAction}) {
        acao->Execute();
        EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso) << acao->GetCaption().toStdString();
    }
    EXPECT_EQ(NoBanco(), antes);
    erros.clear();
    tela->falhaDoSQL = false;
    tela->AltAction->Execute();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->Lista().size(), 6);
}

TEST_F(TTabLinFiltroBasFTest, AnotherScreensLockRefusesTheAlterationOfTheVeryRecord)
{
    auto *outra = Abrir<TPecasF>();
    outra->MoverParaLinha(4);
    outra->AltAction->Execute();
    ASSERT_EQ(outra->Tab->Status, TStatus::Alterando);
    TPecasF *tela = Abrir<TPecasF>();
    Filtrar(tela, QStringLiteral("parafuso"));
    tela->MoverParaLinha(2);
    tela->AltAction->Execute();
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Atual(), QStringLiteral("4;0"));
    outra->CancelarAction->Execute();
}

/* Looks. */

TEST_F(TTabLinFiltroBasFTest, TheLooksOfTheScreenOpenClosedAndDragged)
{
    for (int i = 7; i < 40; ++i)
        Peca(i, 0, i % 2 ? QStringLiteral("porca %1") : QStringLiteral("parafuso %1"));
    TPecasF *tela = Abrir<TPecasF>();
    Girar();
    Filtrar(tela, QStringLiteral("para"));
    EXPECT_TRUE(tela->FiltroAtivLab->isVisible());
    Retratar(&janela, QStringLiteral("TTabLinFiltroBasF-aplicado"));
    ClicarNaFaixa(tela);
    Retratar(tela, QStringLiteral("TTabLinFiltroBasF-fechado"));
    ArrastarBarra(tela, 250);
    Girar();
    Retratar(tela, QStringLiteral("TTabLinFiltroBasF-arrastado"));
    Filtrar(tela, QStringLiteral("nada"));
    tela->SubJanela()->resize(480, 320);
    tela->CadastroFr->AtivoCheckBox->setFocus();
    Ocioso();
    Retratar(tela, QStringLiteral("TTabLinFiltroBasF-pequeno"));
}

} // namespace ficha::testes
