#include "demo/UPlanoDeContasF.h"

#include "NoComercial.h"
#include "forms/UActContainerF.h"
#include "forms/UBotaoFr.h"
#include "input/UDisplayFloatFr.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"

#include <QLabel>

using namespace ficha;
using ficha::testes::Retratar;

namespace comercial::testes
{

class TPlanoDeContasFTest : public TNoComercial
{
protected:
    void SetUp() override
    {
        Abrir(Qt::Key_F6);
        contas = Achar<TContasFr>("ContasFr");
        grid = contas->StringGrid1;
    }
    QStringList Linhas() const
    {
        QStringList linhas;
        for (int row = 1; row < grid->GetRowCount(); ++row)
            linhas << grid->GetCell(0, row);
        return linhas;
    }
    QString Atual() const { return contas->Atual() ? contas->Atual()->Codigo : QString(); }

    TContasFr *contas = nullptr;
    TStringGrid *grid = nullptr;
};

TEST_F(TPlanoDeContasFTest, OpensOnTheFirstTwoLevelsWithWhatTheyComeTo)
{
    Retratar(janela.get(), QStringLiteral("TPlanoDeContasF"));
    EXPECT_EQ(grid->GetRowCount(), 1 + 4 + 2 + 3 + 2 + 4);
    EXPECT_EQ(grid->GetCell(0, 1), QStringLiteral("1  Ativo"));
    EXPECT_EQ(grid->GetCell(1, 1), QStringLiteral("308.300,00"));
    EXPECT_EQ(grid->GetCell(0, 2), QStringLiteral("1.1  Ativo circulante"));
    EXPECT_EQ(grid->GetCell(1, 2), QStringLiteral("230.000,00"));
    EXPECT_EQ(grid->GetCell(2, 2), QStringLiteral("74,6"));
    EXPECT_EQ(Achar<TDisplayFloatFr>("AtivoFr")->Dado1Lab->text(),
              Achar<TDisplayFloatFr>("PassivoFr")->Dado1Lab->text())
        << "the balance sheet closes";
    EXPECT_EQ(Achar<TDisplayFloatFr>("ResultadoFr")->Dado1Lab->text(), QStringLiteral("36.314,55"));
    EXPECT_EQ(QApplication::focusWidget(), grid);
}

TEST_F(TPlanoDeContasFTest, KeysOpenAndCloseTheCurrentAccount)
{
    Tecla(Qt::Key_Down);
    ASSERT_EQ(Atual(), QStringLiteral("1.1"));
    const int antes = grid->GetRowCount();
    Tecla(Qt::Key_Plus);
    EXPECT_EQ(grid->GetRowCount(), antes + 5);
    EXPECT_EQ(grid->GetCell(0, 3), QStringLiteral("1.1.01  Caixa"));
    Tecla(Qt::Key_Right);
    EXPECT_EQ(grid->GetRowCount(), antes + 5) << "open already";
    EXPECT_EQ(Atual(), QStringLiteral("1.1"));
    Tecla(Qt::Key_Left);
    EXPECT_EQ(grid->GetRowCount(), antes);
    EXPECT_EQ(Atual(), QStringLiteral("1.1"));
    Tecla(Qt::Key_Space);
    EXPECT_EQ(grid->GetRowCount(), antes + 5);
    EXPECT_EQ(Atual(), QStringLiteral("1.1"));
    Tecla(Qt::Key_Space);
    EXPECT_EQ(grid->GetRowCount(), antes);
    Tecla(Qt::Key_Right);
    EXPECT_EQ(grid->GetRowCount(), antes + 5);
    Tecla(Qt::Key_Minus);
    EXPECT_EQ(grid->GetRowCount(), antes);
    Tecla(Qt::Key_Left);
    EXPECT_EQ(Atual(), QStringLiteral("1")) << "from a closed account to the one above";
    EXPECT_EQ(grid->GetRowCount(), antes);
}

TEST_F(TPlanoDeContasFTest, SpaceOnAnAccountWithoutOthersBelowDoesNothing)
{
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Plus);
    Tecla(Qt::Key_Down);
    ASSERT_EQ(Atual(), QStringLiteral("1.1.01"));
    const QStringList antes = Linhas();
    Tecla(Qt::Key_Space);
    EXPECT_EQ(Linhas(), antes);
    EXPECT_EQ(Atual(), QStringLiteral("1.1.01"));
}

TEST_F(TPlanoDeContasFTest, AClickOpensAndClosesAnAccount)
{
    const int antes = grid->GetRowCount();
    Clicar(grid->viewport(), grid->CellRect(0, 1).center());
    EXPECT_EQ(grid->GetRowCount(), antes - 2);
    Clicar(grid->viewport(), grid->CellRect(0, 1).center());
    EXPECT_EQ(grid->GetRowCount(), antes);
    Clicar(grid->viewport(), grid->CellRect(1, 1).center());
    EXPECT_EQ(grid->GetRowCount(), antes) << "not in the other columns";
}

TEST_F(TPlanoDeContasFTest, TheButtonsOpenAndCloseEverything)
{
    const QLabel *abrir = Achar<TBotaoFr>("ExpandirFr")->Image1;
    EXPECT_FALSE(abrir->pixmap().isNull());
    Clicar(Achar<TBotaoFr>("ExpandirFr"), QPoint(5, 5));
    EXPECT_EQ(grid->GetRowCount(), 1 + 58);
    Retratar(janela.get(), QStringLiteral("TPlanoDeContasF-aberto"));
    grid->SetRow(5);
    ASSERT_EQ(Atual(), QStringLiteral("1.1.02.01"));
    Clicar(Achar<TBotaoFr>("RecolherFr"), QPoint(5, 5));
    EXPECT_EQ(grid->GetRowCount(), 1 + 4);
    EXPECT_EQ(Atual(), QStringLiteral("1")) << "what the current account is under";
}

TEST_F(TPlanoDeContasFTest, TheGroupShowsItsBranchAlone)
{
    auto *grupo = Achar<TComboBox>("ComboBox1");
    Clicar(grupo);
    Tecla(Qt::Key_Escape);
    for (int i = 0; i < 4; ++i)
        Tecla(Qt::Key_Down);
    EXPECT_EQ(grupo->GetText(), QStringLiteral("4  Custos e despesas"));
    EXPECT_EQ(Linhas(), (QStringList{
                            QStringLiteral("4  Custos e despesas"),
                            QStringLiteral("4.1  Custo das mercadorias"),
                            QStringLiteral("4.2  Despesas com pessoal"),
                            QStringLiteral("4.3  Despesas gerais"),
                            QStringLiteral("4.4  Despesas financeiras"),
                        }));
}

TEST_F(TPlanoDeContasFTest, AnAccountIsFoundByCodeOrByNameAndOpensItsWay)
{
    DigitarEm(Achar<TLabeledEdit>("LabeledEdit1"), QStringLiteral("credito que nao ha"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(avisos,
              QStringList(QStringLiteral("Nenhuma conta com 'credito que nao ha' foi encontrada")));
    avisos.clear();
    DigitarEm(Achar<TLabeledEdit>("LabeledEdit1"), QStringLiteral("salarios"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Atual(), QStringLiteral("2.1.02.01"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Atual(), QStringLiteral("4.2.01")) << "the next one";
    DigitarEm(Achar<TLabeledEdit>("LabeledEdit1"), QStringLiteral("1.2.01.0"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Atual(), QStringLiteral("1.2.01.01"));
    EXPECT_FALSE(grid->CellRect(0, grid->GetRow()).isEmpty()) << "in view";
}

TEST_F(TPlanoDeContasFTest, AnAccountIsRenamed)
{
    DigitarEm(Achar<TLabeledEdit>("LabeledEdit1"), QStringLiteral("1.1.01"));
    Tecla(Qt::Key_Return);
    NoDialogo([&](QWidget *dialogo) {
        Retratar(dialogo, QStringLiteral("TPlanoDeContasF-descricao"));
        Tecla(Qt::Key_Home);
        Tecla(Qt::Key_End, Qt::ShiftModifier);
        Tecla(Qt::Key_Delete);
        Tecla(Qt::Key_Return);
        EXPECT_EQ(static_cast<TForm *>(dialogo)->GetModalResult(), mrNone) << "needs a text";
        Digitar(QStringLiteral("Caixa d'água"));
        Tecla(Qt::Key_Return);
    });
    Tecla(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(dialogos, 1);
    EXPECT_EQ(DoBanco(QStringLiteral("select descricao from contas where codigo='1.1.01'")),
              QStringLiteral("Caixa d'água"));
    EXPECT_EQ(grid->GetCell(0, grid->GetRow()), QStringLiteral("1.1.01  Caixa d'água"));
}

TEST_F(TPlanoDeContasFTest, TheEnlargedWindowShowsItsOwnCopyOfTheBranch)
{
    NoDialogo([&](QWidget *janelaAmpliada) {
        Retratar(janelaAmpliada, QStringLiteral("TPlanoDeContasF-ampliado"));
        auto *container = qobject_cast<TActContainerF *>(janelaAmpliada);
        ASSERT_TRUE(container);
        auto *copia = qobject_cast<TContasFr *>(container->ActFr);
        ASSERT_TRUE(copia);
        EXPECT_NE(copia, contas);
        EXPECT_EQ(copia->StringGrid1->GetRowCount(), grid->GetRowCount());
        EXPECT_EQ(QApplication::focusWidget(), copia->StringGrid1);
        Tecla(Qt::Key_Minus);
        EXPECT_EQ(copia->StringGrid1->GetRowCount(), grid->GetRowCount() - 2);
    });
    const int antes = grid->GetRowCount();
    Clicar(contas->AmplToolButton);
    EXPECT_EQ(dialogos, 1);
    EXPECT_EQ(grid->GetRowCount(), antes);
}

} // namespace comercial::testes
