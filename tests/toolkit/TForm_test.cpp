#include "platform/toolkit/TForm.h"

#include "platform/core/Servicos.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TFrame.h"
#include "support/Girar.h"
#include "support/PastaDeLayouts.h"

#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

using namespace ficha;
using ficha::testes::Girar;

namespace
{

QStringList eventos;
QString Eventos()
{
    return std::exchange(eventos, {}).join(QLatin1Char(' '));
}

class TTesteF : public TForm
{
    Q_OBJECT
public:
    using TForm::TForm;
    ~TTesteF() override { Destruindo(); }

    bool pode = true;
    TCloseAction acao = caHide;
    std::function<void()> naCriacao, aoMostrar;

protected:
    void FormCreate(QObject *s) override
    {
        TForm::FormCreate(s);
        EXPECT_EQ(s, this);
        eventos << QStringLiteral("create");
        if (naCriacao)
            naCriacao();
    }
    void FormShow(QObject *) override
    {
        eventos << QStringLiteral("show");
        if (aoMostrar)
            aoMostrar();
    }
    void FormHide(QObject *) override { eventos << QStringLiteral("hide"); }
    void FormActivate(QObject *) override { eventos << QStringLiteral("activate"); }
    void FormDeactivate(QObject *) override { eventos << QStringLiteral("deactivate"); }
    void FormCloseQuery(QObject *, bool &p) override
    {
        eventos << QStringLiteral("query");
        p = pode;
    }
    void FormClose(QObject *, TCloseAction &a) override
    {
        eventos << QStringLiteral("close");
        a = acao;
    }
    void FormDestroy(QObject *) override { eventos << QStringLiteral("destroy"); }
};

class TFalhaF : public TForm
{
    Q_OBJECT
public:
    using TForm::TForm;

protected:
    void FormCreate(QObject *) override { throw std::runtime_error("x"); }
};

void Ativar(QWidget *janela)
{
    janela->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(janela));
}

class TFormTeste : public testing::Test
{
protected:
    void SetUp() override { eventos.clear(); }
};

} // namespace

TEST_F(TFormTeste, CreateEndsWithFormCreateAndNamesTheForm)
{
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    EXPECT_EQ(Eventos(), QStringLiteral("create"));
    EXPECT_EQ(form->objectName(), QStringLiteral("TesteF"));
    EXPECT_TRUE(form->isWindow());
    EXPECT_TRUE(TForm::Formularios().contains(form.get()));
    form.reset();
    EXPECT_EQ(Eventos(), QStringLiteral("destroy"));
    EXPECT_TRUE(TForm::Formularios().isEmpty());
}

TEST_F(TFormTeste, ErrorInFormCreateGoesToTheCaller)
{
    EXPECT_THROW(Criar<TFalhaF>(nullptr), std::runtime_error);
    EXPECT_TRUE(TForm::Formularios().isEmpty());
}

TEST_F(TFormTeste, FormsAreListedInTheOrderOfTheirCreation)
{
    std::unique_ptr<TTesteF> a(Criar<TTesteF>(nullptr)), b(Criar<TTesteF>(nullptr));
    EXPECT_EQ(TForm::Formularios(), (QList<TForm *>{a.get(), b.get()}));
    a.reset();
    EXPECT_EQ(TForm::Formularios(), QList<TForm *>{b.get()});
}

TEST_F(TFormTeste, ShowAndHideAndShowAgain)
{
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    Eventos();
    form->Show();
    Ativar(form.get());
    EXPECT_EQ(Eventos(), QStringLiteral("show activate"));
    EXPECT_EQ(TForm::FormularioAtivo(), form.get());
    form->Hide();
    EXPECT_EQ(Eventos(), QStringLiteral("deactivate hide"));
    form->Show();
    Ativar(form.get());
    EXPECT_EQ(Eventos(), QStringLiteral("show activate"));
}

TEST_F(TFormTeste, ActivationMovesBetweenFormsOnly)
{
    std::unique_ptr<TTesteF> a(Criar<TTesteF>(nullptr)), b(Criar<TTesteF>(nullptr));
    a->Show();
    Ativar(a.get());
    Eventos();
    b->Show();
    Ativar(b.get());
    EXPECT_EQ(Eventos(), QStringLiteral("show deactivate activate"));
    QWidget alheia;
    alheia.show();
    Ativar(&alheia);
    EXPECT_EQ(Eventos(), QString()) << "a window that is no form takes nothing away";
    Ativar(b.get());
    EXPECT_EQ(Eventos(), QString());
    Ativar(a.get());
    EXPECT_EQ(Eventos(), QStringLiteral("deactivate activate"));
}

TEST_F(TFormTeste, CloseAsksAndCanBeRefused)
{
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    form->Show();
    Ativar(form.get());
    Eventos();
    form->pode = false;
    EXPECT_FALSE(form->Close());
    EXPECT_EQ(Eventos(), QStringLiteral("query"));
    EXPECT_TRUE(form->isVisible());
    form->pode = true;
    form->acao = caNone;
    EXPECT_FALSE(form->Close());
    EXPECT_EQ(Eventos(), QStringLiteral("query close"));
    EXPECT_TRUE(form->isVisible());
    form->acao = caMinimize;
    EXPECT_FALSE(form->Close());
    EXPECT_TRUE(form->isMinimized());
    form->showNormal();
    Eventos();
    form->acao = caHide;
    EXPECT_TRUE(form->Close());
    EXPECT_FALSE(form->isVisible());
}

TEST_F(TFormTeste, CaFreeDestroysWhenTheLoopComesRound)
{
    QPointer<TTesteF> form = Criar<TTesteF>(nullptr);
    form->Show();
    form->acao = caFree;
    Eventos();
    EXPECT_TRUE(form->Close());
    ASSERT_TRUE(form) << "the code that closed it may go on";
    EXPECT_FALSE(form->isVisible());
    Girar();
    EXPECT_FALSE(form);
    EXPECT_TRUE(Eventos().endsWith(QStringLiteral("destroy")));
}

TEST_F(TFormTeste, ErrorsInCloseHandlers)
{
    class TErraF : public TForm
    {
    public:
        using TForm::TForm;
        bool naPergunta = true;

    protected:
        void FormCloseQuery(QObject *, bool &) override
        {
            if (naPergunta)
                throw std::runtime_error("x");
        }
        void FormClose(QObject *, TCloseAction &) override { throw std::runtime_error("x"); }
    };
    const TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    std::unique_ptr<TErraF> form(Criar<TErraF>(nullptr));
    form->Show();
    EXPECT_FALSE(form->Close());
    EXPECT_TRUE(form->isVisible());
    form->naPergunta = false;
    EXPECT_TRUE(form->Close());
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(erros, 2);
}

TEST_F(TFormTeste, ShowModalAnswersTheResultOfItsButton)
{
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    auto *botao = new TBitBtn(form.get());
    botao->SetModalResult(mrYes);
    Eventos();
    QTimer::singleShot(10, [&] { QTest::mouseClick(botao, Qt::LeftButton); });
    EXPECT_EQ(form->ShowModal(), int(mrYes));
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(form->EhModal());
    EXPECT_TRUE(Eventos().contains(QStringLiteral("query close")));
    QTimer::singleShot(10, [&] { form->Close(); });
    EXPECT_EQ(form->ShowModal(), int(mrCancel)) << "and it can run again";
}

TEST_F(TFormTeste, ModalFormCanRefuseToEnd)
{
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    form->pode = false;
    bool aberto = false;
    QTimer::singleShot(10, [&] { form->SetModalResult(mrOk); });
    QTimer::singleShot(60, [&] {
        aberto = form->isVisible() && form->GetModalResult() == mrNone;
        form->pode = true;
        form->SetModalResult(mrOk);
    });
    EXPECT_EQ(form->ShowModal(), int(mrOk));
    EXPECT_TRUE(aberto);
}

TEST_F(TFormTeste, ModalFormEndsWhenItsWindowIsClosedHiddenOrDestroyed)
{
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    QTimer::singleShot(10, [&] { form->close(); });
    EXPECT_EQ(form->ShowModal(), int(mrCancel));
    QTimer::singleShot(10, [&] { form->Hide(); });
    EXPECT_EQ(form->ShowModal(), int(mrCancel));
    auto *dono = new QWidget;
    TTesteF *filho = Criar<TTesteF>(dono);
    QTimer::singleShot(10, [&] { delete dono; });
    EXPECT_EQ(filho->ShowModal(), int(mrCancel));
}

TEST_F(TFormTeste, ResultPutBackByTheHandlerKeepsTheFormOpen)
{
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    auto *botao = new TBitBtn(form.get());
    botao->SetModalResult(mrOk);
    botao->OnClick = [&](QObject *) { form->SetModalResult(mrNone); };
    bool aberto = false;
    QTimer::singleShot(10, [&] { botao->click(); });
    QTimer::singleShot(60, [&] {
        aberto = form->isVisible();
        form->Close();
    });
    form->ShowModal();
    EXPECT_TRUE(aberto);
}

TEST_F(TFormTeste, ErrorInFormShowIsReportedAndTheFormStays)
{
    const TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    form->aoMostrar = [] { throw std::runtime_error("x"); };
    form->Show();
    EXPECT_EQ(erros, 1);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(TFormTeste, EnterAndEscPressTheFormsButtons)
{
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    auto *caixa = new QVBoxLayout(form.get());
    auto *edit = new QLineEdit;
    auto *memo = new QPlainTextEdit;
    auto *ok = new TBitBtn, *cancela = new TBitBtn, *outro = new TBitBtn;
    for (QWidget *w :
         {static_cast<QWidget *>(edit), static_cast<QWidget *>(memo), static_cast<QWidget *>(outro),
          static_cast<QWidget *>(ok), static_cast<QWidget *>(cancela)})
        caixa->addWidget(w);
    ok->setDefault(true);
    cancela->SetCancel(true);
    QString apertados;
    ok->OnClick = [&](QObject *) { apertados += u'o'; };
    cancela->OnClick = [&](QObject *) { apertados += u'c'; };
    outro->OnClick = [&](QObject *) { apertados += u'x'; };
    form->Show();
    Ativar(form.get());
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Enter, Qt::KeypadModifier);
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(apertados, QStringLiteral("ooc"));
    memo->setFocus();
    QTest::keyClick(memo, Qt::Key_Return);
    EXPECT_EQ(apertados, QStringLiteral("ooc")) << "a memo keeps its Enter";
    outro->setFocus();
    QTest::keyClick(outro, Qt::Key_Return);
    EXPECT_EQ(apertados, QStringLiteral("oocx")) << "the button that has the focus";
    edit->setFocus();
    ok->setEnabled(false);
    cancela->hide();
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(apertados, QStringLiteral("oocx"));
}

TEST_F(TFormTeste, SelectNextLeavesAControlAsAWhole)
{
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    auto *caixa = new QVBoxLayout(form.get());
    auto *quadro = Criar<TFrame>(form.get());
    auto *dele = new QVBoxLayout(quadro);
    QLineEdit *a, *b, *c, *d;
    caixa->addWidget(a = new QLineEdit);
    caixa->addWidget(quadro);
    dele->addWidget(b = new QLineEdit(quadro));
    dele->addWidget(c = new QLineEdit(quadro));
    caixa->addWidget(d = new QLineEdit);
    QWidget::setTabOrder(a, b);
    QWidget::setTabOrder(b, c);
    QWidget::setTabOrder(c, d);
    form->Show();
    Ativar(form.get());
    a->setFocus();
    EXPECT_TRUE(form->SelectNext(a));
    EXPECT_EQ(form->focusWidget(), b);
    EXPECT_EQ(form->ActiveControl(), b);
    EXPECT_TRUE(form->SelectNext(quadro));
    EXPECT_EQ(form->focusWidget(), d);
    EXPECT_TRUE(form->SelectNext(d));
    EXPECT_EQ(form->focusWidget(), a) << "around the end";
    EXPECT_TRUE(form->SelectNext(d, false));
    EXPECT_EQ(form->focusWidget(), c);
    EXPECT_TRUE(form->SelectNext(quadro, false));
    EXPECT_EQ(form->focusWidget(), a);
    d->setEnabled(false);
    form->SelectNext(quadro);
    EXPECT_EQ(form->focusWidget(), a);
    form->SetActiveControl(c);
    EXPECT_EQ(form->ActiveControl(), c);
}

TEST_F(TFormTeste, BorderStylesAndStayOnTop)
{
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    form->SetBorderStyle(TForm::bsToolWindow);
    form->SetStayOnTop(true);
    EXPECT_EQ(form->windowType(), Qt::Tool);
    EXPECT_TRUE(form->windowFlags() & Qt::WindowStaysOnTopHint);
    form->SetBorderStyle(TForm::bsNone);
    EXPECT_TRUE(form->windowFlags() & Qt::FramelessWindowHint);
    form->SetColor(TColor(16750650));
    EXPECT_EQ(form->GetColor(), TColor(16750650));
}

TEST_F(TFormTeste, LayoutsSetWindowPropertiesToo)
{
    testes::TPastaDeLayouts pasta;
    pasta.Escrever(QStringLiteral("TTesteF"), QStringLiteral(R"(<class>TTesteF</class>
<widget class="TForm" name="x"><property name="geometry"><rect><x>0</x><y>0</y><width>195</width><height>313</height></rect></property>
<property name="caption"><string>Busca</string></property>
<property name="borderStyle"><enum>TForm::bsToolWindow</enum></property>
<property name="stayOnTop"><bool>true</bool></property></widget>)"));
    std::unique_ptr<TTesteF> form(Criar<TTesteF>(nullptr));
    EXPECT_EQ(form->size(), QSize(195, 313));
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Busca"));
    EXPECT_EQ(form->windowType(), Qt::Tool);
}

TEST_F(TFormTeste, InASubWindowActivationFollowsTheSubWindow)
{
    QMdiArea area;
    TTesteF *forms[2];
    for (auto &f : forms) {
        f = Criar<TTesteF>(nullptr);
        area.addSubWindow(f);
    }
    area.resize(500, 300);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    for (TTesteF *f : forms)
        f->Show();
    EXPECT_EQ(TForm::FormularioAtivo(), forms[1]);
    Eventos();
    forms[0]->Show();
    EXPECT_EQ(Eventos(), QStringLiteral("deactivate activate"));
    EXPECT_EQ(TForm::FormularioAtivo(), forms[0]);
}

TEST_F(TFormTeste, ClosingTheSubWindowAsksTheFormAndCaFreeFreesBoth)
{
    QMdiArea area;
    QPointer<TTesteF> form = Criar<TTesteF>(nullptr);
    QPointer<QMdiSubWindow> sub = area.addSubWindow(form);
    area.resize(500, 300);
    area.show();
    form->Show();
    form->pode = false;
    sub->close();
    EXPECT_TRUE(form->isVisible());
    form->pode = true;
    form->acao = caFree;
    sub->close();
    EXPECT_FALSE(sub && sub->isVisible());
    Girar();
    EXPECT_FALSE(form);
    EXPECT_FALSE(sub);
    EXPECT_TRUE(area.subWindowList().isEmpty());
}

TEST_F(TFormTeste, HiddenInItsSubWindowItCanBeShownAgain)
{
    QMdiArea area;
    auto *form = Criar<TTesteF>(nullptr);
    QMdiSubWindow *sub = area.addSubWindow(form);
    area.show();
    form->Show();
    sub->close();
    Girar();
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(sub->isVisible());
    Eventos();
    form->Show();
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Eventos(), QStringLiteral("show activate"));
}

TEST_F(TFormTeste, MinimisedInItsSubWindowItIsNotHidden)
{
    QMdiArea area;
    auto *form = Criar<TTesteF>(nullptr);
    QMdiSubWindow *sub = area.addSubWindow(form);
    area.resize(500, 300);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    form->Show();
    Girar();
    Eventos();
    sub->showMinimized();
    Girar();
    sub->showNormal();
    Girar();
    sub->showMinimized();
    form->Show();
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(sub->isMinimized());
    EXPECT_EQ(Eventos(), QString());
    sub->showMinimized();
    form->Hide();
    form->Show();
    EXPECT_TRUE(Eventos().contains(QStringLiteral("show")));
}

TEST_F(TFormTeste, ClosedFromItsOwnActionWhileAModalFormRunsAbove)
{
    QPointer<TTesteF> form = Criar<TTesteF>(nullptr);
    form->acao = caFree;
    form->Show();
    std::unique_ptr<TTesteF> dialogo(Criar<TTesteF>(nullptr));
    QTimer::singleShot(10, [&] { dialogo->Close(); });
    auto *botao = new TBitBtn(form);
    botao->OnClick = [&](QObject *) {
        form->Close();
        dialogo->ShowModal();
        EXPECT_TRUE(form) << "still there while its handler runs";
    };
    QTimer::singleShot(0, botao, [botao] { botao->click(); });
    Girar(200);
    EXPECT_FALSE(form);
}

#include "TForm_test.moc"
