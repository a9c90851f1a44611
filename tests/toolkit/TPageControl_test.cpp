#include "platform/toolkit/TPageControl.h"

#include "platform/core/Servicos.h"
#include "platform/toolkit/TImageList.h"
#include "support/TrocaDeHandler.h"

#include <QApplication>
#include <QLineEdit>
#include <QTabBar>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TPageControlTeste : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char *nome : {"Lista", "Campos", "Relatórios", "Manutenção"}) {
            auto *pagina = new TTabSheet(&p);
            pagina->SetCaption(QString::fromUtf8(nome));
            (new QVBoxLayout(pagina))->addWidget(new QLineEdit);
        }
        p.OnChanging = [this](QObject *, bool &pode) {
            ++perguntas;
            pode = deixa;
        };
        p.OnChange = [this](QObject *) { ++mudancas; };
        p.resize(600, 300);
        p.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&p));
    }
    void Clicar(int aba)
    {
        QTest::mouseClick(p.tabBar(), Qt::LeftButton, {}, p.tabBar()->tabRect(aba).center());
    }

    TPageControl p;
    bool deixa = true;
    int perguntas = 0, mudancas = 0;
};

} // namespace

TEST_F(TPageControlTeste, ProgramChangesAskAndAnnounceNothing)
{
    deixa = false;
    p.SetActivePageIndex(2);
    EXPECT_EQ(p.GetActivePageIndex(), 2);
    p.SetActivePage(p.GetPage(1));
    EXPECT_EQ(p.GetActivePageIndex(), 1);
    p.SetActivePageIndex(17);
    EXPECT_EQ(p.GetActivePageIndex(), 1);
    EXPECT_EQ(perguntas, 0);
    EXPECT_EQ(mudancas, 0);
}

TEST_F(TPageControlTeste, ClickAsksAndAnnouncesOnce)
{
    Clicar(1);
    EXPECT_EQ(p.GetActivePageIndex(), 1);
    EXPECT_EQ(perguntas, 1);
    EXPECT_EQ(mudancas, 1);
    Clicar(1);
    EXPECT_EQ(perguntas, 1) << "the active page's own tab asks nothing";
}

TEST_F(TPageControlTeste, UserCanBeRefusedByEveryWay)
{
    deixa = false;
    Clicar(2);
    EXPECT_EQ(perguntas, 1);
    QTest::keyClick(p.GetPage(0)->findChild<QLineEdit *>(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(perguntas, 2);
    p.tabBar()->setFocus();
    QTest::keyClick(p.tabBar(), Qt::Key_Right);
    EXPECT_EQ(perguntas, 3);
    QWheelEvent roda(QPointF(5, 5), p.tabBar()->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(p.tabBar(), &roda);
    EXPECT_EQ(perguntas, 4);
    EXPECT_EQ(p.GetActivePageIndex(), 0);
    EXPECT_EQ(mudancas, 0);
}

TEST_F(TPageControlTeste, KeysOfTheUserChangePages)
{
    QTest::keyClick(p.GetPage(0)->findChild<QLineEdit *>(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(p.GetActivePageIndex(), 1);
    QTest::keyClick(p.GetPage(1)->findChild<QLineEdit *>(), Qt::Key_Backtab,
                    Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(p.GetActivePageIndex(), 0);
    p.tabBar()->setFocus();
    QTest::keyClick(p.tabBar(), Qt::Key_Right);
    EXPECT_EQ(p.GetActivePageIndex(), 1);
    EXPECT_EQ(mudancas, 3);
}

TEST_F(TPageControlTeste, FailingQuestionRefuses)
{
    const TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    p.OnChanging = [](QObject *, bool &) { throw std::runtime_error("x"); };
    Clicar(1);
    EXPECT_EQ(erros, 1);
    EXPECT_EQ(p.GetActivePageIndex(), 0);
}

TEST_F(TPageControlTeste, SelectNextPageAnnouncesAsksNothingAndGoesAround)
{
    deixa = false;
    p.SelectNextPage(true);
    EXPECT_EQ(p.GetActivePageIndex(), 1);
    p.SelectNextPage(false);
    EXPECT_EQ(p.GetActivePageIndex(), 0);
    p.SelectNextPage(false);
    EXPECT_EQ(p.GetActivePageIndex(), 3);
    EXPECT_EQ(perguntas, 0);
    EXPECT_EQ(mudancas, 3);
}

TEST_F(TPageControlTeste, PagesWithoutATab)
{
    p.GetPage(1)->SetTabVisible(false);
    EXPECT_FALSE(p.isTabVisible(1));
    p.SelectNextPage(true, true);
    EXPECT_EQ(p.GetActivePageIndex(), 2);
    p.SelectNextPage(false, false);
    EXPECT_EQ(p.GetActivePageIndex(), 1);
    EXPECT_EQ(p.currentWidget(), p.GetPage(1));
    EXPECT_TRUE(p.GetPage(1)->isVisible());
    EXPECT_FALSE(p.isTabVisible(1));
    p.GetPage(1)->SetTabVisible(true);
    EXPECT_TRUE(p.isTabVisible(1));
}

TEST_F(TPageControlTeste, TabsHaveTheStatedWidthImagesAndText)
{
    p.SetTabWidth(110);
    EXPECT_EQ(p.tabBar()->tabRect(0).width(), 110);
    EXPECT_EQ(p.tabBar()->tabRect(3).width(), 110);
    TImageList imagens;
    imagens.AddSvg(29, QStringLiteral("info"));
    p.GetPage(0)->SetImageIndex(29);
    EXPECT_TRUE(p.tabIcon(0).isNull());
    p.SetImages(&imagens);
    EXPECT_FALSE(p.tabIcon(0).isNull());
    EXPECT_TRUE(p.tabIcon(1).isNull());
    p.GetPage(0)->SetCaption(QStringLiteral("A & B"));
    EXPECT_EQ(p.tabText(0), QStringLiteral("A && B"));
    EXPECT_EQ(p.GetPage(0)->GetCaption(), QStringLiteral("A & B"));
}

TEST_F(TPageControlTeste, TabFontAndColourLeaveThePagesAlone)
{
    QFont fonte(QStringLiteral("Arial"), 8);
    fonte.setBold(true);
    p.SetTabFont(fonte);
    p.SetTabColor(0x800000);
    EXPECT_TRUE(p.tabBar()->font().bold());
    EXPECT_EQ(p.GetTabColor(), 0x800000);
    EXPECT_FALSE(p.GetPage(0)->font().bold());
}

TEST_F(TPageControlTeste, PagesKnowTheirPlace)
{
    EXPECT_EQ(p.PageCount(), 4);
    EXPECT_EQ(p.GetPage(2)->PageIndex(), 2);
    EXPECT_EQ(p.GetPage(2)->PageControl(), &p);
    EXPECT_EQ(p.GetPage(9), nullptr);
    EXPECT_EQ(TTabSheet().PageIndex(), -1);
    delete p.GetPage(0);
    EXPECT_EQ(p.GetPage(0)->GetCaption(), QStringLiteral("Campos"));
}

TEST_F(TPageControlTeste, PageMayGoWhileTheQuestionIsAsked)
{
    p.OnChanging = [this](QObject *, bool &) { delete p.GetPage(1); };
    Clicar(1);
    EXPECT_EQ(mudancas, 0);
    EXPECT_EQ(p.PageCount(), 3);
}

TEST_F(TPageControlTeste, HandlersMayTakeThemselvesOut)
{
    EXPECT_TRUE(InteiroAoSair(p.OnChanging, [this] { Clicar(1); }));
    EXPECT_EQ(p.GetActivePageIndex(), 1);
    EXPECT_TRUE(InteiroAoSair(p.OnChange, [this] { Clicar(2); }));
    EXPECT_TRUE(InteiroAoSair(p.OnChange, [this] { p.SelectNextPage(true); }));
    EXPECT_EQ(p.GetActivePageIndex(), 3);
}

TEST_F(TPageControlTeste, HandlersMayDestroyIt)
{
    for (const bool pergunta : {true, false}) {
        QWidget janela;
        auto *outro = new TPageControl(&janela);
        for (int i = 0; i < 2; ++i)
            new TTabSheet(outro);
        janela.resize(300, 200);
        outro->resize(300, 200);
        janela.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
        const QPointer<TPageControl> vivo(outro);
        if (pergunta)
            outro->OnChanging = [=](QObject *, bool &) { delete outro; };
        else
            outro->OnChange = [=](QObject *) { delete outro; };
        if (pergunta)
            QTest::keyClick(outro, Qt::Key_Tab, Qt::ControlModifier);
        else
            QTest::mousePress(outro->tabBar(), Qt::LeftButton, {},
                              outro->tabBar()->tabRect(1).center());
        EXPECT_TRUE(vivo.isNull()) << pergunta;
    }
}
