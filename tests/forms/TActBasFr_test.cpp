#include "forms/UActBasFr.h"

#include "forms/UActContainerF.h"
#include "forms/UFicha.h"
#include "platform/core/Erros.h"
#include "platform/core/Servicos.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TToolBar.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QLineEdit>
#include <QTimer>

namespace ficha::testes
{

/** Records its hooks and what they saw. */
class TSaldoFr : public TActBasFr
{
    Q_OBJECT

public:
    using TActBasFr::TActBasFr;
    void Create(QWidget *owner) override
    {
        TActBasFr::Create(owner);
        edit = new QLineEdit(this);
        vivos << this;
    }
    ~TSaldoFr() override { vivos.removeAll(this); }
    void PegarUltimo() override
    {
        Anotar("PegarUltimo");
        TActBasFr::PegarUltimo();
    }
    void AtualizarExibicao() override { Anotar("AtualizarExibicao"); }
    void RelerFonte() override
    {
        Anotar("RelerFonte");
        const auto handler = aoReler; // it may destroy the frame
        if (handler)
            handler();
    }
    void AntesTrocarCod() override
    {
        Anotar("AntesTrocarCod");
        const auto *janela = qobject_cast<TActContainerF *>(parentWidget());
        copiaPronta = janela && janela->ActFr == this && !AmpliarAct->GetEnabled();
    }
    void Atualizar() override { ++atualizacoes; }

    QStringList ganchos;
    std::function<void()> aoReler;
    int atualizacoes = 0;
    /** It was the frame of its window, and could not be enlarged, when it got its code. */
    bool copiaPronta = false;
    QLineEdit *edit = nullptr;
    static inline QList<TSaldoFr *> vivos;

private:
    void Anotar(const char *gancho)
    {
        ganchos << QStringLiteral("%1 %2").arg(QLatin1String(gancho)).arg(GetCod1());
    }
};

/** As a host may forget to: with a meta-object and without registration. */
class TSemRegistroFr : public TActBasFr
{
    Q_OBJECT

public:
    using TActBasFr::TActBasFr;
};

/** Without a meta-object of its own, under the registered name of its base. */
class TSemMetaFr : public TSaldoFr
{
public:
    using TSaldoFr::TSaldoFr;
};

} // namespace ficha::testes

namespace ficha
{
using testes::TSaldoFr;
FICHA_REGISTRAR(TSaldoFr)
} // namespace ficha

namespace ficha::testes
{

/** A frame on a screen, as a program has it. */
class TActBasFrTest : public testing::Test
{
protected:
    TActBasFrTest()
    {
        Servicos().ReportarErro = [this](std::exception_ptr erro) { erros << TextoDoErro(erro); };
        tela = Criar<TBasF>(nullptr);
        tela->SetCaption(QStringLiteral("Clientes"));
        fr = Criar<TSaldoFr>(tela->Panel1);
        fr->resize(300, 150);
        tela->Show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(tela));
        Girar();
    }
    ~TActBasFrTest() override { delete tela.data(); }
    void TearDown() override
    {
        Girar();
        EXPECT_EQ(erros, errosEsperados);
    }

    static TActContainerF *Janela()
    {
        for (TForm *form : TForm::Formularios())
            if (auto *janela = qobject_cast<TActContainerF *>(form))
                return janela;
        return nullptr;
    }
    /** Clicks "Ampliar" and does something in the window that opens; back when that has ended. */
    void Ampliar(const std::function<void(TActContainerF *)> &usuario)
    {
        bool abriu = false;
        QTimer::singleShot(60, qApp, [&] {
            TActContainerF *janela = Janela();
            ASSERT_TRUE(janela);
            abriu = true;
            usuario(janela);
        });
        QTest::mouseClick(fr->AmplToolButton, Qt::LeftButton);
        EXPECT_TRUE(abriu);
    }

    TServicosGuarda guarda;
    QStringList erros, errosEsperados;
    TFicha biblioteca;
    QPointer<TBasF> tela;
    QPointer<TSaldoFr> fr;
};

TEST_F(TActBasFrTest, LayoutIsTheGoldenOne)
{
    std::unique_ptr<TActBasFr> puro(Criar<TActBasFr>(nullptr));
    puro->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(puro.get()));
    Girar();
    EXPECT_TRUE(ConfereLayout(puro.get(), QStringLiteral("TActBasFr")));
    EXPECT_EQ(puro->GetCod1(), -1);
    EXPECT_EQ(puro->AmpliarAct->GetCaption(), QStringLiteral("Ampliar"));
    EXPECT_EQ(puro->AmpliarAct->GetHint(), QStringLiteral("Ampliar"));
    EXPECT_EQ(puro->AmpliarAct->GetImageIndex(), 1);
    EXPECT_EQ(puro->AmplToolButton->GetAction(), puro->AmpliarAct);
    EXPECT_EQ(puro->ToolBar1->parentWidget(), puro->ToolBar1Panel);
    EXPECT_EQ(puro->ToolBar1->GetImages(), SisD().ImageList16);
    EXPECT_EQ(puro->ToolBar1->GetDisabledImages(), SisD().DisImageList16);
    EXPECT_EQ(puro->ActionList1->GetImages(), SisD().ImageList16);
    EXPECT_FALSE(puro->AmplToolButton->icon().isNull());
}

TEST_F(TActBasFrTest, ANewCodeRunsTheHooksInTheirOrderAndTheSameOneNone)
{
    fr->SetCod1(7);
    const QStringList todos = {QStringLiteral("AntesTrocarCod -1"), QStringLiteral("PegarUltimo 7"),
                               QStringLiteral("RelerFonte 7"), QStringLiteral("RelerFonte 7"),
                               QStringLiteral("AtualizarExibicao 7")};
    EXPECT_EQ(fr->ganchos, todos) << "PegarUltimo reads the source, too";
    fr->SetCod1(7);
    EXPECT_EQ(fr->ganchos, todos);
    fr->PegarCodSemProcessar(9);
    EXPECT_EQ(fr->GetCod1(), 9);
    EXPECT_EQ(fr->ganchos, todos);
    fr->SetCod1(9);
    EXPECT_EQ(fr->ganchos, todos);
}

TEST_F(TActBasFrTest, ANewFrameHasNoCodeWhateverItsPreparationDid)
{
    class TApressadoFr : public TActBasFr
    {
    public:
        using TActBasFr::TActBasFr;
        void Preparar() override { PegarCodSemProcessar(5); }
    };
    const std::unique_ptr<TApressadoFr> outro(Criar<TApressadoFr>(nullptr));
    EXPECT_EQ(outro->GetCod1(), -1);
}

TEST_F(TActBasFrTest, TheFrameIsRefreshedAtIdleTimeWhileItIsVisible)
{
    fr->atualizacoes = 0;
    Girar();
    EXPECT_GT(fr->atualizacoes, 0);
    fr->hide();
    Girar();
    fr->atualizacoes = 0;
    Girar();
    EXPECT_EQ(fr->atualizacoes, 0);
}

TEST_F(TActBasFrTest, TheEnlargedCopyShowsTheSameCodeInAWindowOfItsOwn)
{
    fr->SetCod1(7);
    fr->ganchos.clear();
    int eventosNaCopia = 0;
    Ampliar([&](TActContainerF *janela) {
        Retratar(janela, QStringLiteral("TActContainerF"));
        EXPECT_EQ(janela->size(), QSize(700, 400));
        EXPECT_TRUE(janela->EhModal());
        EXPECT_EQ(janela->GetCaption(), QStringLiteral("Clientes"));
        auto *copia = qobject_cast<TSaldoFr *>(janela->ActFr);
        ASSERT_TRUE(copia);
        EXPECT_NE(copia, fr);
        EXPECT_EQ(copia->parentWidget(), janela);
        EXPECT_EQ(copia->geometry(), janela->rect());
        janela->resize(500, 300);
        QCoreApplication::processEvents();
        EXPECT_EQ(copia->geometry(), QRect(0, 0, 500, 300));
        EXPECT_EQ(copia->GetCod1(), 7);
        EXPECT_EQ(copia->ganchos.value(0), QStringLiteral("AntesTrocarCod -1"));
        EXPECT_EQ(copia->ganchos.size(), 5);
        EXPECT_TRUE(copia->copiaPronta);
        EXPECT_FALSE(copia->AmpliarAct->GetEnabled());
        EXPECT_FALSE(copia->AmplToolButton->isEnabled());
        QTest::mouseClick(copia->AmplToolButton, Qt::LeftButton);
        EXPECT_EQ(TSaldoFr::vivos.size(), 2);
        EXPECT_EQ(QApplication::focusWidget(), copia->edit);
        eventosNaCopia = copia->atualizacoes;
        janela->Atualizar();
        EXPECT_EQ(copia->atualizacoes, eventosNaCopia + 1);
        EXPECT_EQ(fr->ganchos, QStringList()) << "not before the window is closed";
        janela->Close();
    });
    EXPECT_EQ(fr->ganchos,
              QStringList({QStringLiteral("RelerFonte 7"), QStringLiteral("AtualizarExibicao 7")}));
    EXPECT_FALSE(Janela());
    EXPECT_EQ(TSaldoFr::vivos.size(), 1);
}

TEST_F(TActBasFrTest, TheWindowClosesWithEscAndCanBeOpenedAgain)
{
    for (int vez = 0; vez < 2; ++vez)
        Ampliar([](TActContainerF *janela) {
            QTest::keyClick(janela, Qt::Key_Escape, Qt::ShiftModifier);
            EXPECT_EQ(janela->GetModalResult(), mrNone);
            QTest::keyClick(janela, Qt::Key_Escape);
            EXPECT_EQ(janela->GetModalResult(), mrCancel);
        });
    Ampliar([](TActContainerF *janela) { janela->FecharAction->Execute(); });
    EXPECT_FALSE(Janela());
    EXPECT_EQ(TSaldoFr::vivos.size(), 1);
}

TEST_F(TActBasFrTest, AWindowWithoutAFrameRefreshesAndShows)
{
    std::unique_ptr<TActContainerF> janela(Criar<TActContainerF>(nullptr));
    janela->SetCaption(QStringLiteral("x"));
    janela->Atualizar();
    janela->Show();
    EXPECT_FALSE(janela->ActFr);
    EXPECT_EQ(janela->windowTitle(), QStringLiteral("x"));
    janela->setWindowTitle(QStringLiteral("y"));
    janela->Atualizar();
    EXPECT_EQ(janela->windowTitle(), QStringLiteral("x")) << "as every screen keeps its caption";
}

TEST_F(TActBasFrTest, AClassThatIsNotRegisteredIsNamedInTheErrorAndNoWindowStays)
{
    const std::unique_ptr<TSemRegistroFr> semRegistro(Criar<TSemRegistroFr>(nullptr));
    EXPECT_THROW(semRegistro->AmpliarAct->Execute(), EErro);
    EXPECT_FALSE(Janela());
    semRegistro->show();
    QTest::mouseClick(semRegistro->AmplToolButton, Qt::LeftButton);
    ASSERT_EQ(erros.size(), 1);
    EXPECT_TRUE(erros[0].contains(QStringLiteral("TSemRegistroFr"))) << qPrintable(erros[0]);
    EXPECT_TRUE(erros[0].contains(QStringLiteral("FICHA_REGISTRAR")));
    errosEsperados = erros;
    const std::unique_ptr<TSemMetaFr> semMeta(Criar<TSemMetaFr>(nullptr));
    EXPECT_THROW(semMeta->AmpliarAct->Execute(), EErro);
    EXPECT_FALSE(Janela());
    EXPECT_EQ(TSaldoFr::vivos.size(), 2) << "the copy of the wrong class is gone";
}

TEST_F(TActBasFrTest, AFailureWhileTheSourceIsReadAgainStillFreesTheWindow)
{
    Ampliar([this](TActContainerF *janela) {
        fr->aoReler = [] { throw EErro(QStringLiteral("sem conexão")); };
        janela->Close();
    });
    EXPECT_FALSE(Janela());
    errosEsperados = QStringList{QStringLiteral("sem conexão")};
    EXPECT_EQ(erros, errosEsperados);
}

TEST_F(TActBasFrTest, TheFrameMayBeDestroyedWhileItIsEnlarged)
{
    Ampliar([this](TActContainerF *janela) {
        delete fr.data();
        QCoreApplication::processEvents();
        EXPECT_TRUE(janela->isVisible());
        janela->Close();
    });
    EXPECT_FALSE(Janela());
}

TEST_F(TActBasFrTest, TheScreenMayBeDestroyedWhileTheFrameIsEnlarged)
{
    Ampliar([this](TActContainerF *) { delete tela.data(); });
    EXPECT_FALSE(Janela());
    EXPECT_TRUE(TSaldoFr::vivos.isEmpty());
}

TEST_F(TActBasFrTest, TheScreenMayBeReleasedWhileTheFrameIsEnlarged)
{
    Ampliar([this](TActContainerF *janela) {
        tela->Release();
        janela->Close();
    });
    Girar(250);
    EXPECT_FALSE(tela);
    EXPECT_TRUE(TSaldoFr::vivos.isEmpty());
}

TEST_F(TActBasFrTest, TheCopyMayBeDestroyedInItsWindow)
{
    Ampliar([](TActContainerF *janela) {
        delete janela->ActFr.data();
        janela->Atualizar();
        Girar();
        janela->Close();
    });
    EXPECT_FALSE(Janela());
}

TEST_F(TActBasFrTest, TheWindowMayBeDestroyedWhileItIsOpen)
{
    Ampliar([](TActContainerF *janela) { delete janela; });
    EXPECT_EQ(TSaldoFr::vivos.size(), 1);
}

TEST_F(TActBasFrTest, TheFrameMayDestroyItselfInItsOwnAction)
{
    fr->aoReler = [this] { fr->deleteLater(); };
    Ampliar([](TActContainerF *janela) { janela->Close(); });
    Girar();
    EXPECT_FALSE(fr);
}

TEST_F(TActBasFrTest, TheFrameMayBeGoneAtOnceInItsOwnAction)
{
    fr->aoReler = [this] { delete fr.data(); };
    Ampliar([](TActContainerF *janela) { janela->Close(); });
    EXPECT_FALSE(fr);
    EXPECT_TRUE(TSaldoFr::vivos.isEmpty());
}

TEST_F(TActBasFrTest, TheWindowMayLoseTheActionListOfItsCopyAndTheFrameItsOwn)
{
    Ampliar([this](TActContainerF *janela) {
        delete janela->ActFr->ActionList1;
        delete fr->ActionList1;
        Girar();
        janela->Atualizar();
        QTest::mouseClick(janela->ActFr->AmplToolButton, Qt::LeftButton);
        janela->Close();
    });
    EXPECT_TRUE(fr);
    EXPECT_EQ(TSaldoFr::vivos.size(), 1);
}

TEST_F(TActBasFrTest, WithoutACodeTheCopyReadsNothing)
{
    Ampliar([](TActContainerF *janela) {
        auto *copia = qobject_cast<TSaldoFr *>(janela->ActFr);
        EXPECT_EQ(copia->GetCod1(), -1);
        EXPECT_EQ(copia->ganchos, QStringList());
        janela->Close();
    });
}

TEST_F(TActBasFrTest, TheActionListMayGoBeforeItsFrame)
{
    delete fr->ActionList1;
    QTest::mouseClick(fr->AmplToolButton, Qt::LeftButton);
    Girar();
    fr->SetCod1(3);
    delete fr.data();
    Girar();
    EXPECT_FALSE(fr);
}

TEST_F(TActBasFrTest, TheImagesMayGoBeforeTheFrame)
{
    delete SisD().ImageList16;
    SisD().ImageList16 = nullptr;
    fr->grab();
    std::unique_ptr<TSaldoFr> outro(Criar<TSaldoFr>(nullptr));
    outro->grab();
    EXPECT_EQ(fr->ToolBar1->GetImages(), nullptr);
}

} // namespace ficha::testes

#include "TActBasFr_test.moc"
