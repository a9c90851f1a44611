#include "platform/toolkit/TCheckBox.h"

#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

#include <QMouseEvent>

using namespace ficha;
using namespace ficha::testes;

TEST(CheckBox, MouseDownRunsBeforeTheBoxTurns)
{
    TCheckBox caixa;
    bool marcadaAoDescer = true;
    Qt::MouseButton botao = Qt::NoButton;
    caixa.OnMouseDown = [&](QObject *, QMouseEvent *evento) {
        marcadaAoDescer = caixa.isChecked();
        botao = evento->button();
    };
    int cliques = 0;
    caixa.OnClick = [&](QObject *) { ++cliques; };
    caixa.resize(97, 17);
    QTest::mouseClick(&caixa, Qt::LeftButton, {}, QPoint(6, 8));
    EXPECT_FALSE(marcadaAoDescer);
    EXPECT_EQ(botao, Qt::LeftButton);
    EXPECT_TRUE(caixa.isChecked());
    EXPECT_EQ(cliques, 1);
}

TEST(CheckBox, OnlyTheUserIsAnnounced)
{
    TCheckBox caixa;
    int cliques = 0;
    caixa.OnClick = [&](QObject *) { ++cliques; };
    caixa.setChecked(true);
    EXPECT_EQ(cliques, 0);
    QTest::keyClick(&caixa, Qt::Key_Space);
    EXPECT_FALSE(caixa.isChecked());
    EXPECT_EQ(cliques, 1);
}

TEST(CheckBox, HandlerMayDestroyTheBox)
{
    auto *caixa = new TCheckBox;
    const QPointer<TCheckBox> vivo(caixa);
    caixa->OnMouseDown = [caixa](QObject *, QMouseEvent *) { delete caixa; };
    QMouseEvent evento(QEvent::MouseButtonPress, QPointF(6, 8), QPointF(6, 8), Qt::LeftButton,
                       Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(caixa, &evento);
    EXPECT_TRUE(vivo.isNull());
}

TEST(CheckBox, PropertiesForLayouts)
{
    TCheckBox caixa;
    caixa.setProperty("caption", QStringLiteral("Ativo"));
    caixa.setProperty("checked", true);
    caixa.setProperty("tag", 1);
    EXPECT_EQ(caixa.text(), QStringLiteral("Ativo"));
    EXPECT_TRUE(caixa.isChecked());
    EXPECT_EQ(caixa.Tag, 1);
}

TEST(CheckBox, HandlersMayTakeThemselvesOutOrDestroyTheBox)
{
    TJanela janela;
    auto *caixa = new TCheckBox(&janela);
    const auto clicar = [&] { QTest::mouseClick(caixa, Qt::LeftButton, {}, QPoint(6, 8)); };
    EXPECT_TRUE(InteiroAoSair(caixa->OnMouseDown, clicar));
    EXPECT_TRUE(InteiroAoSair(caixa->OnClick, clicar));
    const QPointer<TCheckBox> vivo(caixa);
    caixa->OnClick = [&](QObject *) { delete caixa; };
    QTest::keyClick(caixa, Qt::Key_Space);
    EXPECT_TRUE(vivo.isNull());
}
