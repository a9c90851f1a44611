#include "forms/TelasDeTeste.h"
#include "forms/ULocalizBasF.h"
#include "forms/UTabLinBasF.h"
#include "support/Layouts.h"

namespace ficha::testes
{

/** Golden texts of the layouts; pictures where FICHA_RETRATOS names a folder. */
class TRetratosTest : public TTelasTest
{
};

TEST_F(TRetratosTest, TheMaintenanceScreenOnItsListAndItsFieldsPage)
{
    for (int i = 1; i <= 30; ++i)
        Inserir(i, QStringLiteral("grupo %1").arg(i));
    TGruposF *tela = Abrir();
    tela->MoverParaLinha(4);
    Ocioso();
    EXPECT_TRUE(ConfereLayout(tela, QStringLiteral("TTabLinearBasF")));
    tela->FiltroAtivo = true;
    Ocioso();
    Retratar(&janela, QStringLiteral("TTabLinearBasF-filtro"));
    tela->FiltroAtivo = false;
    tela->InsAction->Execute();
    Ocioso();
    Retratar(tela, QStringLiteral("TTabLinearBasF-campos"));
    tela->CancelarAction->Execute();
    tela->PageControl1->MudarComoUsuario(0);
    tela->SubJanela()->resize(480, 320);
    Ocioso();
    Retratar(tela, QStringLiteral("TTabLinearBasF-estreita"));
}

TEST_F(TRetratosTest, TheSearchDialog)
{
    TresGrupos();
    TGruposF *tela = Abrir();
    tela->StringGrid1->SetCol(1);
    Tecla(Qt::Key_L, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitForWindowActive(LocalizBasF));
    Digitar(QStringLiteral("ana"));
    EXPECT_TRUE(ConfereLayout(LocalizBasF, QStringLiteral("TLocalizBasF")));
    LocalizBasF->Close();
}

TEST_F(TRetratosTest, TheBases)
{
    auto *base = Criar<TTabBasF>(nullptr);
    base->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(base));
    EXPECT_TRUE(ConfereLayout(base, QStringLiteral("TTabBasF")));
    delete base;
    auto *emoldurada = Criar<TTabLinBasF>(nullptr);
    emoldurada->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(emoldurada));
    EXPECT_TRUE(ConfereLayout(emoldurada, QStringLiteral("TTabLinBasF")));
    delete emoldurada;
}

} // namespace ficha::testes
