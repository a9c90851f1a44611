#include "platform/toolkit/TBitBtn.h"

#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TForm.h"
#include "support/TrocaDeHandler.h"

using namespace ficha;
using namespace ficha::testes;

TEST(TBitBtn, FollowsAndExecutesItsAction)
{
    QWidget janela;
    auto *lista = new TActionList(&janela);
    auto *acao = new TAction(lista);
    auto *botao = new TBitBtn(&janela);
    int vezes = 0;
    acao->SetCaption(QStringLiteral("Confirmar"));
    acao->OnExecute = [&](QObject *) { ++vezes; };
    botao->SetAction(acao);
    EXPECT_EQ(botao->GetCaption(), QStringLiteral("Confirmar"));
    botao->click();
    EXPECT_EQ(vezes, 1);
    acao->SetEnabled(false);
    EXPECT_FALSE(botao->isEnabled());
    botao->click();
    EXPECT_EQ(vezes, 1);
    janela.show();
    acao->SetVisible(false);
    EXPECT_FALSE(botao->isVisible());
    acao->SetVisible(true);
    EXPECT_TRUE(botao->isVisible());
}

TEST(TBitBtn, KindsBringCaptionPictureAndResult)
{
    TBitBtn botao;
    botao.SetKind(TBitBtn::bkOK);
    EXPECT_EQ(botao.text(), QStringLiteral("OK"));
    EXPECT_EQ(botao.GetModalResult(), int(mrOk));
    EXPECT_TRUE(botao.isDefault());
    EXPECT_FALSE(botao.icon().isNull());
    botao.SetKind(TBitBtn::bkCancel);
    EXPECT_EQ(botao.text(), QStringLiteral("Cancelar"));
    EXPECT_EQ(botao.GetModalResult(), int(mrCancel));
    EXPECT_FALSE(botao.isDefault());
    EXPECT_TRUE(botao.GetCancel());
}

TEST(TBitBtn, SetsTheFormsResultBeforeItsHandlerRuns)
{
    std::unique_ptr<TForm> form(Criar<TForm>(nullptr));
    auto *botao = new TBitBtn(form.get());
    botao->SetModalResult(mrYes);
    int visto = -1;
    botao->OnClick = [&](QObject *) {
        visto = form->GetModalResult();
        form->SetModalResult(mrNone);
    };
    botao->click();
    EXPECT_EQ(visto, int(mrYes));
    EXPECT_EQ(form->GetModalResult(), int(mrNone));
}

TEST(TBitBtn, GlyphIsAPictureByName)
{
    TBitBtn botao;
    botao.SetGlyph(QStringLiteral("info"));
    EXPECT_FALSE(botao.icon().isNull());
    botao.SetGlyph({});
    EXPECT_TRUE(botao.icon().isNull());
}

TEST(TBitBtn, TheHandlerMayTakeItselfOutOrDestroyTheButton)
{
    QWidget janela;
    auto *botao = new TBitBtn(&janela);
    EXPECT_TRUE(InteiroAoSair(botao->OnClick, [&] { QTest::mouseClick(botao, Qt::LeftButton); }));
    const QPointer<TBitBtn> vivo(botao);
    botao->OnClick = [&](QObject *) { delete botao; };
    QTest::keyClick(botao, Qt::Key_Space);
    EXPECT_TRUE(vivo.isNull());
}
