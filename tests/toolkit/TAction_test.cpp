#include "platform/toolkit/TAction.h"

#include "platform/core/Servicos.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TFrame.h"
#include "platform/toolkit/TImageList.h"
#include "support/Girar.h"

#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QVBoxLayout>

using namespace ficha;
using ficha::testes::Girar;

namespace
{

/** A window with an edit and an action list. */
struct TTela {
    explicit TTela(QWidget *pai = nullptr) : janela(new QWidget(pai))
    {
        lista = new TActionList(janela);
        edit = new QLineEdit(janela);
        (new QVBoxLayout(janela))->addWidget(edit);
    }
    TAction *Nova(const char *atalho)
    {
        auto *acao = new TAction(lista);
        acao->SetShortCut(QKeySequence(QLatin1String(atalho)));
        acao->OnExecute = [this](QObject *) { ++vezes; };
        return acao;
    }
    void Mostrar()
    {
        janela->show();
        janela->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(janela));
        edit->setFocus();
    }

    QWidget *janela;
    TActionList *lista;
    QLineEdit *edit;
    int vezes = 0;
};

class TActionTeste : public testing::Test
{
protected:
    ~TActionTeste() override { delete tela.janela; }
    TTela tela;
};

} // namespace

TEST_F(TActionTeste, ExecuteUpdatesFirstAndRefusesWhenDisabled)
{
    TAction *acao = tela.Nova("Ctrl+L");
    bool pode = false;
    int atualizou = 0;
    acao->OnUpdate = [&](QObject *quem) {
        ++atualizou;
        static_cast<TAction *>(quem)->SetEnabled(pode);
    };
    EXPECT_FALSE(acao->Execute());
    EXPECT_EQ(tela.vezes, 0);
    pode = true;
    EXPECT_TRUE(acao->Execute());
    EXPECT_EQ(tela.vezes, 1);
    EXPECT_EQ(atualizou, 2);
}

TEST_F(TActionTeste, InvisibleButEnabledActionCanBeExecutedByTheProgram)
{
    TAction *acao = tela.Nova("Esc");
    acao->SetVisible(false);
    EXPECT_TRUE(acao->GetEnabled());
    EXPECT_TRUE(acao->Execute());
    acao->SetEnabled(false);
    EXPECT_FALSE(acao->Execute());
    acao->SetVisible(true);
    EXPECT_FALSE(acao->isEnabled());
    acao->SetEnabled(true);
    EXPECT_TRUE(acao->isEnabled());
    EXPECT_EQ(tela.vezes, 1);
}

TEST_F(TActionTeste, ErrorsGoToTheCallerOfExecuteAndToTheReportOtherwise)
{
    const TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    TAction *acao = tela.Nova("F5");
    acao->OnExecute = [](QObject *) { throw std::runtime_error("x"); };
    EXPECT_THROW(acao->Execute(), std::runtime_error);
    EXPECT_EQ(erros, 0);
    acao->trigger();
    EXPECT_EQ(erros, 1);
}

TEST_F(TActionTeste, FailingUpdateIsReportedOnceUntilItSucceeds)
{
    const TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    TAction *acao = tela.Nova("F5");
    bool falha = true;
    acao->OnUpdate = [&](QObject *) {
        if (falha)
            throw std::runtime_error("x");
    };
    acao->Update();
    acao->Update();
    EXPECT_EQ(erros, 1);
    falha = false;
    acao->Update();
    falha = true;
    acao->Update();
    EXPECT_EQ(erros, 2);
}

TEST_F(TActionTeste, HintAndShortCutMakeTheToolTip)
{
    TAction *acao = tela.Nova("Ctrl+L");
    acao->SetCaption(QStringLiteral("Localizar"));
    EXPECT_EQ(acao->toolTip(), QStringLiteral("Localizar (Ctrl+L)"));
    acao->SetHint(QStringLiteral("Buscar"));
    EXPECT_EQ(acao->toolTip(), QStringLiteral("Buscar (Ctrl+L)"));
    acao->SetShortCut({});
    EXPECT_EQ(acao->toolTip(), QStringLiteral("Buscar"));
}

TEST_F(TActionTeste, ImagesComeFromTheListByIndex)
{
    TImageList imagens;
    TAction *acao = tela.Nova("F5");
    acao->SetImageIndex(7);
    tela.lista->SetImages(&imagens);
    EXPECT_TRUE(acao->icon().isNull());
    imagens.AddSvg(7, QStringLiteral("fechar"));
    EXPECT_FALSE(acao->icon().isNull());
    acao->SetImageIndex(8);
    EXPECT_TRUE(acao->icon().isNull());
}

TEST_F(TActionTeste, ShortCutActsWhileTheFocusIsInTheForm)
{
    tela.Nova("Ctrl+Alt+I");
    tela.Mostrar();
    QTest::keyClick(tela.edit, Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(tela.vezes, 1);
    QTest::keyClick(tela.janela->windowHandle(), Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(tela.vezes, 2);
}

TEST_F(TActionTeste, EnabledActionWinsOverTheEditsOwnKeys)
{
    TAction *alterar = tela.Nova("Ctrl+A");
    tela.Mostrar();
    tela.edit->setText(QStringLiteral("abc"));
    QTest::keyClick(tela.edit, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(tela.vezes, 1);
    EXPECT_FALSE(tela.edit->hasSelectedText());
    alterar->SetEnabled(false);
    QTest::keyClick(tela.edit, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(tela.vezes, 1);
    EXPECT_EQ(tela.edit->selectedText(), QStringLiteral("abc")) << "the key went to the edit";
}

TEST_F(TActionTeste, UndoOfTheEditWorksWhileTheActionIsDisabled)
{
    TAction *desfazer = tela.Nova("Ctrl+Z");
    desfazer->SetEnabled(false);
    tela.Mostrar();
    QTest::keyClicks(tela.edit, QStringLiteral("abc"));
    QTest::keyClick(tela.edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(tela.edit->text(), QString());
    QTest::keyClicks(tela.edit, QStringLiteral("abc"));
    desfazer->SetEnabled(true);
    QTest::keyClick(tela.edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(tela.vezes, 1);
    EXPECT_EQ(tela.edit->text(), QStringLiteral("abc"));
}

TEST_F(TActionTeste, InvisibleActionsShortCutDoesNothing)
{
    TAction *acao = tela.Nova("Ctrl+L");
    acao->SetVisible(false);
    tela.Mostrar();
    QTest::keyClick(tela.edit, Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(tela.vezes, 0);
}

TEST_F(TActionTeste, StateIsUpdatedBeforeTheShortCutIsTried)
{
    TAction *acao = tela.Nova("Ctrl+L");
    acao->OnUpdate = [acao](QObject *) { acao->SetEnabled(false); };
    tela.Mostrar();
    QTest::keyClick(tela.edit, Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(tela.vezes, 0);
}

TEST_F(TActionTeste, EnterOfBothBlocksAndTheKeysOfTheMaintenanceScreens)
{
    for (const char *atalho : {"Ctrl+Enter", "Ctrl+Delete", "Esc", "Ctrl+PgUp", "Ctrl+Up"})
        tela.Nova(atalho);
    tela.Mostrar();
    const QList<QPair<Qt::Key, Qt::KeyboardModifiers>> teclas = {
        {Qt::Key_Return, Qt::ControlModifier},
        {Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier},
        {Qt::Key_Delete, Qt::ControlModifier},
        {Qt::Key_Escape, Qt::NoModifier},
        {Qt::Key_PageUp, Qt::ControlModifier},
        {Qt::Key_Up, Qt::ControlModifier}};
    int esperadas = 0;
    for (const auto &[tecla, modificadores] : teclas) {
        QTest::keyClick(tela.edit, tecla, modificadores);
        EXPECT_EQ(tela.vezes, ++esperadas) << tecla;
    }
}

TEST_F(TActionTeste, PlainTypingIsNeverAShortCut)
{
    tela.Nova("A");
    tela.Mostrar();
    QTest::keyClick(tela.edit, Qt::Key_A);
    EXPECT_EQ(tela.vezes, 0);
    EXPECT_EQ(tela.edit->text(), QStringLiteral("a"));
}

TEST_F(TActionTeste, KeysSentByTheProgramGoToTheControl)
{
    tela.Nova("Ctrl+A");
    tela.Mostrar();
    tela.edit->setText(QStringLiteral("abc"));
    QKeyEvent tecla(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier);
    QCoreApplication::sendEvent(tela.edit, &tecla);
    EXPECT_EQ(tela.vezes, 0);
    EXPECT_EQ(tela.edit->selectedText(), QStringLiteral("abc"));
}

TEST_F(TActionTeste, NearestOwnerComesFirst)
{
    tela.Nova("Ctrl+L");
    auto *quadro = Criar<TFrame>(tela.janela);
    auto *interno = new QLineEdit(quadro);
    tela.janela->layout()->addWidget(quadro);
    (new QVBoxLayout(quadro))->addWidget(interno);
    auto *dele = new TActionList(quadro);
    auto *acao = new TAction(dele);
    int doQuadro = 0;
    acao->SetShortCut(QKeySequence(QStringLiteral("Ctrl+L")));
    acao->OnExecute = [&](QObject *) { ++doQuadro; };
    tela.Mostrar();
    QTest::keyClick(tela.edit, Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(tela.vezes, 1);
    interno->setFocus();
    QTest::keyClick(interno, Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(doQuadro, 1);
    acao->SetEnabled(false);
    QTest::keyClick(interno, Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(tela.vezes, 2) << "a disabled one lets the form's act";
}

TEST_F(TActionTeste, AnotherWindowsShortCutsDoNotAct)
{
    tela.Nova("Ctrl+L");
    tela.Mostrar();
    QWidget ferramenta(tela.janela, Qt::Tool | Qt::WindowStaysOnTopHint);
    auto *edit = new QLineEdit(&ferramenta);
    ferramenta.show();
    ferramenta.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ferramenta));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(tela.vezes, 0);
}

TEST_F(TActionTeste, ActionMayDestroyItsOwnForm)
{
    auto *outra = new TTela;
    const QPointer<QWidget> morta = outra->janela;
    TAction *acao = outra->Nova("Ctrl+L");
    acao->OnExecute = [&](QObject *) { outra->janela->deleteLater(); };
    outra->Mostrar();
    QTest::keyClick(outra->edit, Qt::Key_L, Qt::ControlModifier);
    Girar();
    EXPECT_FALSE(morta);
    delete outra;
}

TEST_F(TActionTeste, TwoChildWindowsOfTheSameClass)
{
    QMdiArea area;
    TTela telas[2];
    QMdiSubWindow *subs[2] = {};
    for (int i = 0; i < 2; ++i) {
        telas[i].Nova("Ctrl+Alt+I");
        subs[i] = area.addSubWindow(telas[i].janela);
    }
    int daPrincipal = 0;
    auto *lista = new TActionList(&area);
    auto *f9 = new TAction(lista);
    f9->SetShortCut(QKeySequence(Qt::Key_F9));
    f9->OnExecute = [&](QObject *) { ++daPrincipal; };
    area.resize(500, 300);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    for (int i = 0; i < 2; ++i) {
        area.setActiveSubWindow(subs[i]);
        telas[i].edit->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_I,
                        Qt::ControlModifier | Qt::AltModifier);
    }
    EXPECT_EQ(telas[0].vezes, 1);
    EXPECT_EQ(telas[1].vezes, 1);
    QTest::keyClick(telas[1].edit, Qt::Key_F9);
    EXPECT_EQ(daPrincipal, 1) << "the main window's short-cuts act in its child windows";
}

TEST_F(TActionTeste, UpdatesRunAtIdleTimeOnlyWhileTheOwnerIsVisible)
{
    TAction *acao = tela.Nova("F5");
    int atualizou = 0;
    acao->OnUpdate = [&](QObject *) { ++atualizou; };
    Girar();
    EXPECT_EQ(atualizou, 0);
    tela.Mostrar();
    Girar();
    EXPECT_GT(atualizou, 0);
    tela.janela->hide();
    Girar();
    atualizou = 0;
    Girar(20);
    EXPECT_EQ(atualizou, 0);
    tela.lista->Atualizar();
    EXPECT_EQ(atualizou, 1);
}

TEST_F(TActionTeste, ListKnowsItsActionsAndForgetsThoseThatDie)
{
    TAction *a = tela.Nova("F5");
    a->setObjectName(QStringLiteral("AAction"));
    TAction *b = tela.Nova("F6");
    EXPECT_EQ(tela.lista->ActionByName(QStringLiteral("AAction")), a);
    EXPECT_EQ(tela.lista->ActionByName(QStringLiteral("Outra")), nullptr);
    delete a;
    EXPECT_EQ(tela.lista->Actions(), QList<TAction *>{b});
}

TEST_F(TActionTeste, UpdateMayDestroyAnotherAction)
{
    TAction *a = tela.Nova("F5");
    TAction *b = tela.Nova("F6");
    a->OnUpdate = [&](QObject *) { delete std::exchange(b, nullptr); };
    b->OnUpdate = [](QObject *) { ADD_FAILURE(); };
    tela.lista->Atualizar();
    EXPECT_EQ(tela.lista->Count(), 1);
}
