#include "platform/toolkit/TFrame.h"

#include "platform/toolkit/Layout.h"
#include "support/PastaDeLayouts.h"
#include "support/TrocaDeHandler.h"

#include <QApplication>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** Notes the order in which it is made. */
class TOrdemFr : public TFrame
{
    Q_OBJECT
public:
    using TFrame::TFrame;
    QStringList ordem;
    QLineEdit *Edit = nullptr;

    void Create(QWidget *owner) override
    {
        TFrame::Create(owner);
        ordem << QStringLiteral("create");
    }
    void SetFocus() override { Edit->setFocus(); }

protected:
    void PegarComponentes() override
    {
        TFrame::PegarComponentes();
        Pegar(this, Edit, "Edit");
        ordem << QStringLiteral("pegar");
    }
};

} // namespace

TEST(TFrame, IsMadeInTwoStepsWithItsLayoutAndComponents)
{
    TPastaDeLayouts pasta;
    pasta.Escrever(QStringLiteral("TOrdemFr"), QStringLiteral(R"(<class>TOrdemFr</class>
<widget class="QFrame" name="OrdemFr"><property name="tag"><number>1</number></property>
<widget class="QLineEdit" name="Edit"/></widget>)"));
    QWidget dono;
    auto *fr = Criar<TOrdemFr>(&dono);
    EXPECT_EQ(fr->parentWidget(), &dono);
    EXPECT_EQ(fr->ordem.join(QLatin1Char(' ')), QStringLiteral("pegar create"));
    EXPECT_EQ(fr->Tag, 1);
    EXPECT_EQ(fr->property("tag").toInt(), 1);
    EXPECT_FALSE(fr->isWindow());
}

TEST(TFrame, TellsEnterAndExitWithItselfAsSender)
{
    QWidget janela;
    auto *caixa = new QVBoxLayout(&janela);
    auto *fr = Criar<TFrame>(&janela);
    auto *dentro = new QLineEdit(fr);
    auto *fora = new QLineEdit;
    caixa->addWidget(fr);
    caixa->addWidget(fora);
    (new QVBoxLayout(fr))->addWidget(dentro);
    QObject *entrou = nullptr, *saiu = nullptr;
    fr->OnEnter = [&](QObject *quem) { entrou = quem; };
    fr->OnExit = [&](QObject *quem) { saiu = quem; };
    janela.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    fora->setFocus();
    entrou = saiu = nullptr;
    dentro->setFocus();
    EXPECT_EQ(entrou, fr);
    EXPECT_EQ(saiu, nullptr);
    QTest::mouseClick(fora, Qt::LeftButton);
    EXPECT_EQ(saiu, fr);
}

TEST(TFrame, HandlersMayBeMissing)
{
    QWidget janela;
    auto *fr = Criar<TFrame>(&janela);
    janela.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    fr->SetFocus();
    EXPECT_EQ(QApplication::focusWidget(), fr);
    janela.setFocus();
    EXPECT_EQ(QApplication::focusWidget(), &janela);
}

TEST(TFrame, HandlersMayTakeThemselvesOutOrDestroyTheFrame)
{
    QWidget janela;
    auto *caixa = new QVBoxLayout(&janela);
    auto *fr = Criar<TFrame>(&janela);
    auto *dentro = new QLineEdit(fr);
    auto *fora = new QLineEdit;
    caixa->addWidget(fora);
    caixa->addWidget(fr);
    (new QVBoxLayout(fr))->addWidget(dentro);
    janela.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    fora->setFocus();
    EXPECT_TRUE(InteiroAoSair(fr->OnEnter, [&] { QTest::keyClick(fora, Qt::Key_Tab); }));
    EXPECT_TRUE(InteiroAoSair(fr->OnExit, [&] { QTest::mouseClick(fora, Qt::LeftButton); }));
    QTest::mouseClick(dentro, Qt::LeftButton);
    const QPointer<TFrame> vivo(fr);
    fr->OnExit = [&](QObject *) { delete fr; };
    QTest::mouseClick(fora, Qt::LeftButton);
    EXPECT_TRUE(vivo.isNull());
    EXPECT_EQ(QApplication::focusWidget(), fora);
}

#include "TFrame_test.moc"
