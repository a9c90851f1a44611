#include "forms/UTabBasF.h"

#include "forms/TelasDeTeste.h"
#include "forms/ULocalizBasF.h"
#include "forms/UTabLinBasF.h"

namespace ficha::testes
{

class TTabBasFTest : public TTelasTest
{
};

/** A screen that counts its refreshes. */
class TSimplesF : public TTabBasF
{
public:
    using TTabBasF::TTabBasF;
    void Atualizar() override
    {
        TTabBasF::Atualizar();
        ++atualizacoes;
    }
    int atualizacoes = 0;
};

TEST_F(TTabBasFTest, LayoutAndActionsAreAsStated)
{
    auto *tela = Criar<TSimplesF>(nullptr);
    EXPECT_EQ(tela->Panel2->height(), 46);
    EXPECT_EQ(tela->Panel2->parentWidget(), tela->Panel1);
    EXPECT_EQ(tela->ToolbarPanel->height(), 36);
    EXPECT_EQ(tela->ToolbarPanel->parentWidget(), tela->Panel2);
    EXPECT_EQ(tela->ToolbarPanel->GetBevel(), TPanel::bvLowered);
    EXPECT_EQ(tela->ToolBar1->parentWidget(), tela->ToolbarPanel);
    EXPECT_EQ(tela->SQLQuery1->GetSQLConnection(), &banco.Conexao());
    EXPECT_EQ(tela->DesfazerAction->GetImageIndex(), 17);
    EXPECT_EQ(tela->ConfirmAction->GetImageIndex(), 2);
    EXPECT_EQ(tela->CancelarAction->GetImageIndex(), 3);
    EXPECT_EQ(tela->InsAction->GetActionList(), tela->ActionList1);
    EXPECT_EQ(tela->CancelarAction->shortcut(), QKeySequence(Qt::Key_Escape));
    delete tela;
}

TEST_F(TTabBasFTest, TheDefaultsOfTheVirtualOperations)
{
    auto *tela = Criar<TSimplesF>(nullptr);
    EXPECT_TRUE(tela->PodeLocalizar());
    EXPECT_TRUE(tela->PodeImprimir());
    EXPECT_FALSE(tela->PodeConfirmar());
    EXPECT_THROW(tela->NomeJanela(), EErro);
    EXPECT_THROW(tela->PrepararTab(), EErro);
    delete tela;
}

TEST_F(TTabBasFTest, RelerClosesAndOpensTheQuery)
{
    auto *tela = Criar<TSimplesF>(nullptr);
    tela->SetSQLText(QStringLiteral("select * from grupos"));
    tela->Reler(0);
    EXPECT_EQ(tela->SQLQuery1->RecordCount(), 0);
    Inserir(1, QStringLiteral("um"));
    tela->Reler(0);
    EXPECT_EQ(tela->SQLQuery1->RecordCount(), 1);
    delete tela;
}

TEST_F(TTabBasFTest, TheIdleUpdateOfInsActionRefreshesTheScreen)
{
    TSimplesF *tela = Abrir<TSimplesF>();
    const int antes = tela->atualizacoes;
    Ocioso();
    EXPECT_GT(tela->atualizacoes, antes);
}

TEST_F(TTabBasFTest, LocalizarPointsTheDialogHereAndShowsItNotModal)
{
    TSimplesF *tela = Abrir<TSimplesF>();
    tela->SetCaption(QStringLiteral("Simples"));
    tela->LocalizAction->Execute();
    EXPECT_TRUE(LocalizBasF->isVisible());
    EXPECT_FALSE(LocalizBasF->isModal());
    EXPECT_EQ(LocalizBasF->GetTabF(), tela);
    EXPECT_EQ(LocalizBasF->GetCaption(), QStringLiteral("Simples"));
    // A screen without a list: nothing to search.
    LocalizBasF->LocalizLabeledEdit->setText(QStringLiteral("x"));
    LocalizBasF->LocalizAction->Execute();
    EXPECT_TRUE(avisos.isEmpty());
    tela->InsAction->Execute();
    EXPECT_FALSE(LocalizBasF->isVisible());
}

TEST_F(TTabBasFTest, TTabLinBasF_FramesItsClientPanelWithPictures)
{
    auto *tela = Criar<TTabLinBasF>(nullptr);
    tela->resize(700, 460);
    tela->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(tela));
    EXPECT_FALSE(tela->Panel1->isVisible());
    EXPECT_EQ(tela->GetColorInt(), 16750650);
    const auto figura = [&](const char *nome) {
        return tela->findChild<QLabel *>(QString::fromLatin1(nome));
    };
    EXPECT_EQ(figura("Image1")->width(), 294);
    EXPECT_EQ(figura("Image1")->height(), 41);
    EXPECT_EQ(figura("Image2")->width(), 41);
    EXPECT_EQ(figura("Image3")->geometry(), QRect(294, 0, 365, 41));
    EXPECT_EQ(figura("Image4")->size(), QSize(333, 51));
    EXPECT_EQ(figura("Image5")->width(), 15);
    EXPECT_EQ(figura("Image6")->geometry(), QRect(333, 0, 352, 51));
    EXPECT_EQ(figura("Image7")->geometry(), QRect(0, 41, 15, 368));
    EXPECT_EQ(figura("Image8")->geometry(), QRect(685, 41, 15, 368));
    EXPECT_EQ(tela->Panel5->geometry(), QRect(15, 41, 670, 368));
    for (int i = 1; i <= 8; ++i)
        EXPECT_FALSE(figura(qPrintable(QStringLiteral("Image%1").arg(i)))->pixmap().isNull()) << i;
    tela->resize(900, 600);
    EXPECT_EQ(tela->Panel5->geometry(), QRect(15, 41, 870, 508));
    delete tela;
}

} // namespace ficha::testes
