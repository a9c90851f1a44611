#include "dates/UOpcionalBasFr.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TPanel.h"
#include "support/Entrada.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace ficha;
using namespace ficha::testes;

namespace
{

constexpr TColor Preto = TColor::DeRGB(0, 0, 0);
constexpr TColor Cinza = TColor::DeRGB(0x99, 0x99, 0x99);

/** Counts what is written into a widget. */
class TEscritas : public QObject
{
public:
    explicit TEscritas(QWidget *de) { de->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *evento) override
    {
        switch (evento->type()) {
        case QEvent::PaletteChange:
        case QEvent::EnabledChange:
        case QEvent::Resize:
        case QEvent::Move:
            ++escritas;
            break;
        default:
            break;
        }
        return false;
    }
    int escritas = 0;
};

class TOpcionalBasFrTest : public TEntradaTest
{
protected:
    TOpcionalBasFr *Novo()
    {
        auto *novo = Criar<TOpcionalBasFr>(&tela);
        auto *texto = new QLabel(QStringLiteral("critério"), novo->Panel1);
        texto->setGeometry(10, 10, 80, 13);
        return novo;
    }
    void Montar()
    {
        fr = Novo();
        Mostrar();
    }
    TOpcionalBasFr *fr = nullptr;
};

TEST_F(TOpcionalBasFrTest, LayoutIsTheGoldenOne)
{
    auto *puro = Criar<TOpcionalBasFr>(nullptr);
    EXPECT_TRUE(ConfereLayout(puro, QStringLiteral("TOpcionalBasFr")));
    EXPECT_EQ(puro->Panel1->GetCaption(), QStringLiteral("  "));
    EXPECT_EQ(puro->Panel1->GetBevel(), TPanel::bvNone);
    EXPECT_FALSE(puro->Panel1->autoFillBackground()) << "the parent's colour";
    EXPECT_EQ(puro->palette().color(QPalette::Window), puro->palette().color(QPalette::Light));
    EXPECT_TRUE(puro->GetAutoSize());
    delete puro;
}

TEST_F(TOpcionalBasFrTest, AClearBoxGreysAndDisablesThePanel)
{
    Montar();
    EXPECT_FALSE(fr->AtivoCheckBox->isChecked());
    EXPECT_FALSE(fr->Panel1->isEnabled()) << "from the first showing on";
    EXPECT_EQ(fr->Panel1->GetFontColor(), Cinza);
    const auto *texto = fr->Panel1->findChild<QLabel *>();
    EXPECT_FALSE(texto->isEnabled());
    EXPECT_EQ(texto->palette().color(QPalette::Disabled, QPalette::WindowText), Cinza.ParaQColor())
        << "what is seen is that grey";
}

TEST_F(TOpcionalBasFrTest, AClickTurnsItAtOnceAndSoDoesTheSpaceBar)
{
    Montar();
    QTest::mouseClick(fr->AtivoCheckBox, Qt::LeftButton, {}, QPoint(7, 8));
    EXPECT_TRUE(fr->AtivoCheckBox->isChecked());
    EXPECT_TRUE(fr->Panel1->isEnabled());
    EXPECT_EQ(fr->Panel1->GetFontColor(), Preto);
    Teclar(fr->AtivoCheckBox, Qt::Key_Space);
    EXPECT_FALSE(fr->Panel1->isEnabled());
    EXPECT_EQ(fr->Panel1->GetFontColor(), Cinza);
    fr->AtivoCheckBox->setChecked(true);
    EXPECT_TRUE(fr->Panel1->isEnabled()) << "the program's turn as well";
}

TEST_F(TOpcionalBasFrTest, RefreshingWritesOnlyWhatDiffers)
{
    Montar();
    for (const bool ativo : {false, true}) {
        fr->AtivoCheckBox->setChecked(ativo);
        Girar();
        const TEscritas noPainel(fr->Panel1), naCaixa(fr->AtivoCheckBox);
        for (int i = 0; i < 5; ++i)
            fr->Atualizar();
        EXPECT_EQ(noPainel.escritas, 0);
        EXPECT_EQ(naCaixa.escritas, 0);
        fr->Panel1->setEnabled(!ativo);
        fr->Panel1->SetFontColor(TColor::DeRGB(255, 0, 0));
        fr->Atualizar();
        EXPECT_EQ(fr->Panel1->isEnabled(), ativo);
        EXPECT_EQ(fr->Panel1->GetFontColor(), ativo ? Preto : Cinza);
    }
}

TEST_F(TOpcionalBasFrTest, TheCheckBoxIsAsWideAsTheFrame)
{
    Montar();
    EXPECT_EQ(fr->AtivoCheckBox->geometry(), QRect(0, 0, tela.width(), 17));
    tela.resize(300, 300);
    EXPECT_EQ(fr->AtivoCheckBox->width(), 300) << "also when the screen becomes narrower";
    fr->AtivoCheckBox->setGeometry(30, 0, 40, 17);
    fr->Atualizar();
    EXPECT_EQ(fr->AtivoCheckBox->geometry(), QRect(0, 0, 300, 17));
}

TEST_F(TOpcionalBasFrTest, FramesStandOneUnderTheOtherAtTheTop)
{
    TOpcionalBasFr *primeiro = Novo();
    TOpcionalBasFr *segundo = Novo();
    primeiro->Panel1->resize(305, 40);
    segundo->Panel1->resize(305, 60);
    Mostrar();
    EXPECT_EQ(primeiro->geometry(), QRect(0, 0, tela.width(), 55));
    EXPECT_EQ(segundo->geometry(), QRect(0, 55, tela.width(), 75));
    primeiro->Panel1->resize(305, 80);
    Girar();
    EXPECT_EQ(primeiro->geometry(), QRect(0, 0, tela.width(), 95)) << "as high as what it holds";
    EXPECT_EQ(segundo->y(), 95);
    primeiro->Panel1->hide();
    Girar();
    EXPECT_EQ(primeiro->height(), 17);
    EXPECT_EQ(segundo->y(), 17);
}

TEST_F(TOpcionalBasFrTest, AScreensOwnArrangementIsKept)
{
    QWidget comLayout(&tela), comLados(&tela);
    auto *caixa = new QVBoxLayout(&comLayout);
    auto *naCaixa = Criar<TOpcionalBasFr>(&comLayout);
    caixa->addWidget(naCaixa);
    auto *naBase = Criar<TOpcionalBasFr>(&comLados);
    Alinhar(naBase, alBottom);
    comLados.setGeometry(0, 0, 300, 290);
    Mostrar();
    EXPECT_EQ(comLayout.layout(), caixa);
    EXPECT_EQ(naBase->geometry(), QRect(0, 290 - 208, 300, 208));
}

TEST_F(TOpcionalBasFrTest, AFrameThatWasPlacedElsewhereStaysThereWhenItIsShownAgain)
{
    Montar();
    ASSERT_EQ(fr->pos(), QPoint(0, 0));
    Alinhar(fr, alNone);
    fr->hide();
    fr->move(20, 60);
    fr->show();
    Girar();
    EXPECT_EQ(fr->pos(), QPoint(20, 60));
}

TEST_F(TOpcionalBasFrTest, AClickOnTheGroundSwitchesAutoSizeOn)
{
    Montar();
    fr->SetAutoSize(false);
    fr->resize(fr->width(), 250);
    Girar();
    EXPECT_EQ(fr->height(), 250);
    QTest::mouseClick(fr->Panel1, Qt::LeftButton, {}, QPoint(100, 100));
    EXPECT_FALSE(fr->GetAutoSize()) << "the panel is not the ground";
    QTest::mouseClick(fr, Qt::RightButton, {}, QPoint(100, 240));
    EXPECT_FALSE(fr->GetAutoSize());
    QTest::mouseClick(fr, Qt::LeftButton, {}, QPoint(100, 240));
    EXPECT_TRUE(fr->GetAutoSize());
    EXPECT_EQ(fr->height(), 208);
}

TEST_F(TOpcionalBasFrTest, TheWaitPanelDoesNotCount)
{
    Montar();
    fr->AguardePanel->resize(220, 500);
    fr->AguardeExibir();
    fr->SetAutoSize(true);
    EXPECT_EQ(fr->height(), 208);
    fr->AguardeEsconder();
}

TEST_F(TOpcionalBasFrTest, TheTitleIsTheCheckBoxs)
{
    Montar();
    fr->setProperty("Titulo", QStringLiteral("por vendedor"));
    EXPECT_EQ(fr->AtivoCheckBox->text(), QStringLiteral("por vendedor"));
    EXPECT_EQ(fr->GetTitulo(), QStringLiteral("por vendedor"));
}

} // namespace
