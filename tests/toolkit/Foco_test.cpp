#include "platform/toolkit/Foco.h"

#include "platform/core/Servicos.h"
#include "platform/toolkit/TFrame.h"
#include "support/Girar.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace ficha;
using ficha::testes::Girar;

namespace
{

/** A window of three edits, the first two in frames of which one holds the other. */
class Foco : public testing::Test
{
protected:
    void SetUp() override
    {
        auto *caixa = new QVBoxLayout(&janela);
        fora = Novo(&janela, QStringLiteral("fora"));
        auto *dele = new QVBoxLayout(fora);
        dentro = Novo(fora, QStringLiteral("dentro"));
        auto *doDentro = new QVBoxLayout(dentro);
        doDentro->addWidget(e1 = new QLineEdit(dentro));
        dele->addWidget(dentro);
        dele->addWidget(e2 = new QLineEdit(fora));
        caixa->addWidget(fora);
        caixa->addWidget(e3 = new QLineEdit(&janela));
        janela.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
        e3->setFocus();
        ordem.clear();
    }

    TFrame *Novo(QWidget *pai, const QString &nome)
    {
        auto *fr = Criar<TFrame>(pai);
        fr->OnEnter = [this, nome](QObject *) { ordem << QStringLiteral("+") + nome; };
        fr->OnExit = [this, nome](QObject *) { ordem << QStringLiteral("-") + nome; };
        return fr;
    }
    QString Ordem() { return std::exchange(ordem, {}).join(QLatin1Char(' ')); }
    /** Without a window manager nobody activates a window when the one above it goes. */
    void VoltarParaAJanela()
    {
        janela.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&janela));
    }
    QWidget *ComFoco() const { return QApplication::focusWidget(); }

    QWidget janela;
    TFrame *fora = nullptr, *dentro = nullptr;
    QLineEdit *e1 = nullptr, *e2 = nullptr, *e3 = nullptr;
    QStringList ordem;
};

/** Closes the next message box with a click, as a user would. */
void FecharCaixa(int &vistas)
{
    QTimer::singleShot(30, [&vistas] {
        if (auto *caixa = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            ++vistas;
            QTest::mouseClick(caixa->buttons().first(), Qt::LeftButton);
        }
    });
}

} // namespace

TEST_F(Foco, EnterRunsInwardsAndExitOutwards)
{
    QTest::mouseClick(e1, Qt::LeftButton);
    EXPECT_EQ(Ordem(), QStringLiteral("+fora +dentro"));
    QTest::mouseClick(e3, Qt::LeftButton);
    EXPECT_EQ(Ordem(), QStringLiteral("-dentro -fora"));
}

TEST_F(Foco, MovingInsideTheOuterFrameLeavesOnlyTheInner)
{
    e1->setFocus();
    Ordem();
    QTest::keyClick(e1, Qt::Key_Tab);
    EXPECT_EQ(ComFoco(), e2);
    EXPECT_EQ(Ordem(), QStringLiteral("-dentro"));
    QTest::keyClick(e2, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(ComFoco(), e1);
    EXPECT_EQ(Ordem(), QStringLiteral("+dentro"));
}

TEST_F(Foco, AClickThatAnExitUndidPressesNothing)
{
    auto *botao = new QPushButton(QStringLiteral("Fora"), &janela);
    botao->setFocusPolicy(Qt::StrongFocus);
    botao->setGeometry(10, janela.height() - 40, 80, 25);
    botao->show();
    int cliques = 0, caixas = 0;
    QObject::connect(botao, &QPushButton::clicked, &janela, [&] { ++cliques; });
    bool recusa = true;
    e1->setFocus();
    dentro->OnExit = [&](QObject *) {
        if (!recusa)
            return;
        FecharCaixa(caixas);
        QMessageBox::warning(&janela, QStringLiteral("Aviso"), QStringLiteral("Valor inválido"));
        e1->setFocus();
    };
    for (int vez = 0; vez < 2; ++vez) {
        QTest::mousePress(botao, Qt::LeftButton);
        EXPECT_FALSE(botao->isDown()) << "not even drawn as pressed";
        QTest::mouseRelease(botao, Qt::LeftButton);
        EXPECT_EQ(caixas, vez + 1);
        VoltarParaAJanela();
        EXPECT_EQ(ComFoco(), e1);
    }
    EXPECT_EQ(cliques, 0);
    recusa = false;
    QTest::mouseClick(botao, Qt::LeftButton);
    EXPECT_EQ(cliques, 1) << "a click that may leave is a click";
}

TEST_F(Foco, TabAndShiftTabAcrossFrames)
{
    QTest::keyClick(e3, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(ComFoco(), e2);
    EXPECT_EQ(Ordem(), QStringLiteral("+fora"));
    QTest::keyClick(e2, Qt::Key_Tab);
    EXPECT_EQ(ComFoco(), e3);
    EXPECT_EQ(Ordem(), QStringLiteral("-fora"));
}

TEST_F(Foco, HandlerThatGivesTheFocusBackIsCalledOnce)
{
    int saidas = 0;
    e1->setFocus();
    Ordem();
    dentro->OnExit = [&](QObject *) {
        ++saidas;
        e1->setFocus();
    };
    for (int vez = 1; vez <= 3; ++vez) {
        QTest::keyClick(e1, Qt::Key_Tab);
        EXPECT_EQ(saidas, vez);
        EXPECT_EQ(ComFoco(), e1);
        EXPECT_EQ(Ordem(), QString()) << "nothing else was entered or left";
    }
    QTest::mouseClick(e3, Qt::LeftButton);
    EXPECT_EQ(saidas, 4);
    EXPECT_EQ(ComFoco(), e1);
}

TEST_F(Foco, HandlerThatOpensAMessageBoxAndGivesTheFocusBack)
{
    int saidas = 0, caixas = 0;
    e1->setFocus();
    Ordem();
    dentro->OnExit = [&](QObject *) {
        ++saidas;
        FecharCaixa(caixas);
        QMessageBox::warning(&janela, QStringLiteral("Aviso"), QStringLiteral("Valor inválido"));
        e1->setFocus();
    };
    for (int vez = 1; vez <= 2; ++vez) {
        QTest::keyClick(e1, Qt::Key_Tab);
        Girar(50);
        EXPECT_EQ(caixas, vez);
        EXPECT_EQ(saidas, vez);
        VoltarParaAJanela();
        EXPECT_EQ(ComFoco(), e1);
        EXPECT_EQ(Ordem(), QString());
    }
}

TEST_F(Foco, HandlerThatOnlyOpensAMessageBoxLetsTheFocusGo)
{
    int saidas = 0, caixas = 0;
    e1->setFocus();
    Ordem();
    dentro->OnExit = [&](QObject *) {
        ++saidas;
        FecharCaixa(caixas);
        QMessageBox::information(&janela, QStringLiteral("Aviso"), QStringLiteral("Até logo"));
    };
    QTest::keyClick(e1, Qt::Key_Tab);
    Girar(50);
    EXPECT_EQ(saidas, 1);
    EXPECT_EQ(caixas, 1);
    VoltarParaAJanela();
    EXPECT_EQ(ComFoco(), e2);
    EXPECT_EQ(ControleAtivo(&janela), e2);
}

TEST_F(Foco, HandlerThatSendsTheFocusToAThirdControl)
{
    int saidas = 0;
    e1->setFocus();
    Ordem();
    dentro->OnExit = [&](QObject *) {
        ++saidas;
        e3->setFocus();
    };
    QTest::keyClick(e1, Qt::Key_Tab);
    EXPECT_EQ(saidas, 1);
    EXPECT_EQ(ComFoco(), e3);
    EXPECT_EQ(Ordem(), QStringLiteral("-fora"));
    EXPECT_EQ(ControleAtivo(&janela), e3);
}

TEST_F(Foco, ControlDestroyedByItsOwnExitHandler)
{
    e1->setFocus();
    Ordem();
    const QPointer<TFrame> morto = dentro;
    AoSair(dentro, [this] { delete dentro; });
    QTest::mouseClick(e3, Qt::LeftButton);
    EXPECT_FALSE(morto);
    EXPECT_EQ(ComFoco(), e3);
    EXPECT_EQ(Ordem(), QStringLiteral("-dentro -fora"));
    e2->setFocus();
    EXPECT_EQ(Ordem(), QStringLiteral("+fora"));
}

TEST_F(Foco, FrameDestroyedWhileItHasTheFocusRunsNoHandler)
{
    e1->setFocus();
    Ordem();
    delete dentro;
    EXPECT_EQ(Ordem(), QString());
    e3->setFocus();
    EXPECT_EQ(Ordem(), QStringLiteral("-fora"));
}

TEST_F(Foco, LosingTheWindowIsNoExit)
{
    e1->setFocus();
    Ordem();
    QWidget outra;
    auto *edit = new QLineEdit(&outra);
    outra.show();
    outra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&outra));
    edit->setFocus();
    EXPECT_EQ(Ordem(), QString());
    EXPECT_EQ(ControleAtivo(&janela), e1);
    EXPECT_EQ(ControleAtivo(&outra), edit);
    VoltarParaAJanela();
    EXPECT_EQ(ComFoco(), e1);
    EXPECT_EQ(Ordem(), QString());
}

TEST_F(Foco, ListOfAComboBoxIsNoExit)
{
    auto *combo = new QComboBox(dentro);
    combo->addItems({QStringLiteral("um"), QStringLiteral("dois")});
    dentro->layout()->addWidget(combo);
    combo->show();
    combo->setFocus();
    Ordem();
    combo->showPopup();
    QTest::qWait(20);
    combo->hidePopup();
    VoltarParaAJanela();
    EXPECT_EQ(Ordem(), QString());
    EXPECT_EQ(ComFoco(), combo);
    EXPECT_EQ(ControleAtivo(&janela), combo);
}

TEST_F(Foco, AnErrorOfAHandlerIsReportedAndTheWalkGoesOn)
{
    const TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    e1->setFocus();
    Ordem();
    dentro->OnExit = [](QObject *) { throw std::runtime_error("x"); };
    QTest::mouseClick(e3, Qt::LeftButton);
    EXPECT_EQ(erros, 1);
    EXPECT_EQ(Ordem(), QStringLiteral("-fora"));
    EXPECT_EQ(ComFoco(), e3);
}

TEST_F(Foco, SeveralHandlersRunInTheOrderInWhichTheyWereAdded)
{
    AoEntrar(dentro, [this] { ordem << QStringLiteral("2"); });
    AoEntrar(dentro, [this] { ordem << QStringLiteral("3"); });
    e1->setFocus();
    EXPECT_EQ(Ordem(), QStringLiteral("+fora +dentro 2 3"));
}

TEST_F(Foco, FrameCanHoldTheFocusItself)
{
    dentro->SetFocus();
    EXPECT_EQ(ComFoco(), dentro);
    EXPECT_EQ(Ordem(), QStringLiteral("+fora +dentro"));
    e1->setFocus();
    EXPECT_EQ(Ordem(), QString());
}

TEST(FocoEmMdi, AnotherChildWindowIsNoExit)
{
    QMdiArea area;
    QStringList ordem;
    QLineEdit *edits[2] = {};
    QMdiSubWindow *subs[2] = {};
    for (int i = 0; i < 2; ++i) {
        auto *fr = Criar<TFrame>(nullptr);
        auto *caixa = new QVBoxLayout(fr);
        caixa->addWidget(edits[i] = new QLineEdit);
        const QString nome = QString::number(i);
        fr->OnEnter = [&ordem, nome](QObject *) { ordem << QStringLiteral("+") + nome; };
        fr->OnExit = [&ordem, nome](QObject *) { ordem << QStringLiteral("-") + nome; };
        auto *form = new QWidget;
        (new QVBoxLayout(form))->addWidget(fr);
        subs[i] = area.addSubWindow(form);
        subs[i]->resize(200, 100);
    }
    area.resize(600, 400);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    area.setActiveSubWindow(subs[0]);
    edits[0]->setFocus();
    area.setActiveSubWindow(subs[1]);
    edits[1]->setFocus();
    area.setActiveSubWindow(subs[0]);
    QTest::qWait(10);
    EXPECT_EQ(QApplication::focusWidget(), edits[0]);
    EXPECT_EQ(ordem.count(QStringLiteral("-0")), 0);
    EXPECT_EQ(ordem.count(QStringLiteral("-1")), 0);
    EXPECT_EQ(ordem.count(QStringLiteral("+0")), 1);
    EXPECT_EQ(ControleAtivo(subs[1]), edits[1]);
}
