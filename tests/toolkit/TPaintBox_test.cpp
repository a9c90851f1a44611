#include "platform/core/Erros.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TPaintBox.h"
#include "support/Girar.h"
#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

#include <QPainter>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TPaintBoxTest : public testing::Test
{
protected:
    TPaintBoxTest()
    {
        Servicos().ReportarErro = [this](std::exception_ptr erro) {
            EXPECT_FALSE(caixa->Pintando());
            erros << TextoDoErro(erro);
        };
        caixa->setGeometry(10, 10, 60, 40);
        caixa->OnPaint = [this](QObject *sender) {
            EXPECT_EQ(sender, caixa);
            EXPECT_TRUE(caixa->Pintando());
            ++pinturas;
            Encher(cor);
            if (falha)
                throw EErro(QStringLiteral("pintura"));
        };
    }
    void Encher(QColor com)
    {
        caixa->Desenhar([&](QPainter &pintor) { pintor.fillRect(caixa->rect(), com); });
    }
    QColor Vista(QPoint onde = {5, 5})
    {
        return janela.grab().toImage().pixelColor(caixa->pos() + onde);
    }

    TServicosGuarda guarda;
    TJanela janela;
    TPaintBox *caixa = new TPaintBox(&janela);
    QColor cor = Qt::red;
    QStringList erros;
    int pinturas = 0;
    bool falha = false;
};

} // namespace

TEST_F(TPaintBoxTest, IsAClassOfTheLayouts)
{
    EXPECT_EQ(ClasseRegistrada(QStringLiteral("TPaintBox")), &TPaintBox::staticMetaObject);
}

TEST_F(TPaintBoxTest, OnPaintPaintsWhatIsSeen)
{
    janela.Abrir();
    EXPECT_GE(pinturas, 1);
    EXPECT_EQ(Vista(), QColor(Qt::red));
    EXPECT_EQ(Vista({59, 39}), QColor(Qt::red)) << "to the last pixel";
}

TEST_F(TPaintBoxTest, DrawingOutsideThePaintEventShowsAtOnceAndStaysUntilTheNextOne)
{
    janela.Abrir();
    QCoreApplication::processEvents();
    const int antes = pinturas;
    Encher(Qt::blue);
    EXPECT_EQ(Vista(), QColor(Qt::blue));
    EXPECT_EQ(pinturas, antes) << "showing what was drawn is no repaint";
    caixa->repaint();
    EXPECT_EQ(pinturas, antes + 1);
    EXPECT_EQ(Vista(), QColor(Qt::red));
}

TEST_F(TPaintBoxTest, WhatIsDrawnBeforeTheBoxIsSeenIsPaintedAnew)
{
    Encher(Qt::blue);
    EXPECT_EQ(pinturas, 0);
    janela.Abrir();
    EXPECT_EQ(Vista(), QColor(Qt::red));
}

TEST_F(TPaintBoxTest, ANewSizeIsPaintedWhole)
{
    janela.Abrir();
    Encher(Qt::blue);
    caixa->resize(90, 70);
    EXPECT_EQ(Vista({85, 65}), QColor(Qt::red));
}

TEST_F(TPaintBoxTest, WithoutAHandlerWhatWasDrawnStays)
{
    caixa->OnPaint = nullptr;
    janela.Abrir();
    Encher(Qt::blue);
    caixa->repaint();
    EXPECT_EQ(Vista(), QColor(Qt::blue));
}

TEST_F(TPaintBoxTest, AnErrorOfTheHandlerIsReportedOnceThePaintEventIsOver)
{
    janela.Abrir();
    falha = true;
    caixa->repaint();
    EXPECT_EQ(erros, QStringList()) << "no box may open inside a paint event";
    Girar();
    ASSERT_FALSE(erros.isEmpty());
    EXPECT_EQ(erros.front(), QStringLiteral("pintura"));
    falha = false;
    EXPECT_EQ(Vista(), QColor(Qt::red)) << "what was drawn before it stays";
}

TEST_F(TPaintBoxTest, AnErrorOfADrawingGoesToTheCaller)
{
    janela.Abrir();
    EXPECT_THROW(caixa->Desenhar([](QPainter &) { throw EErro(QStringLiteral("desenho")); }),
                 EErro);
    EXPECT_EQ(erros, QStringList());
}

TEST_F(TPaintBoxTest, ABoxWithoutSizeDrawsNothing)
{
    caixa->resize(0, 0);
    bool chamado = false;
    caixa->Desenhar([&](QPainter &) { chamado = true; });
    EXPECT_FALSE(chamado);
}

TEST_F(TPaintBoxTest, TheHandlerMayTakeItselfOut)
{
    janela.Abrir();
    EXPECT_TRUE(InteiroAoSair(caixa->OnPaint, [this] { caixa->repaint(); }));
}
