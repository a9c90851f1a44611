#include "demo/UProdutosF.h"

#include "demo/UBancoComercial.h"
#include "demo/UComercialF.h"
#include "forms/UFicha.h"
#include "platform/core/Servicos.h"
#include "platform/database/ConexD.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/support/Datas.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/Ocioso.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TStringGrid.h"
#include "support/BancoTemp.h"
#include "support/Girar.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QRadioButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

using namespace comercial;
using namespace ficha;

namespace
{

/** The products' screen in the program's main window, on a sample database of its own. */
class TProdutosFTest : public testing::Test
{
protected:
    TProdutosFTest() : pasta(PastaDeBancos())
    {
        AbrirBancoComercial(conexao, pasta.filePath(QStringLiteral("comercial.fdb")));
        Servicos().MensagemAviso = [this](const QString &texto, int) { avisos << texto; };
        Servicos().ReportarErro = [this](std::exception_ptr e) { avisos << TextoDoErro(e); };
        Servicos().PerguntaDeletar = [] { return true; };
        RegistrarPastaDeLayouts(QStringLiteral(":/demo/layouts"));
        janela.reset(Criar<TComercialF>(nullptr));
        janela->resize(1000, 760);
        janela->Show();
        tela = janela->Abrir<TProdutosF>();
        Assentar();
    }
    ~TProdutosFTest() override
    {
        janela->FecharFilhos();
        testes::Girar();
        janela.reset();
        ConexD().SQLConnection = nullptr;
    }
    void TearDown() override { EXPECT_EQ(avisos, QStringList()); }

    static void Assentar()
    {
        QCoreApplication::processEvents();
        ExecutarOcioso();
        QCoreApplication::processEvents();
    }
    template <typename T>
    T *Achar(QWidget *onde, const char *nome)
    {
        auto *achado = onde->findChild<T *>(QString::fromLatin1(nome));
        EXPECT_NE(achado, nullptr) << nome;
        return achado;
    }
    template <typename T>
    T *Achar(const char *nome)
    {
        return Achar<T>(tela, nome);
    }
    static void Tecla(Qt::Key tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), tecla, com);
        Assentar();
    }
    static void Digitar(const QString &texto)
    {
        QTest::keyClicks(QApplication::focusWidget(), texto);
        Assentar();
    }
    /** Ticks a criterion's box with the space bar and goes into its input. */
    void Ligar(const char *criterio)
    {
        Achar<TCheckBox>(Achar<TOpcionalBasFr>(criterio), "AtivoCheckBox")->setFocus();
        Tecla(Qt::Key_Space);
        Tecla(Qt::Key_Tab);
    }
    int NaLista() const { return tela->SQLQuery1->RecordCount(); }
    int NoBanco(const QString &onde)
    {
        return ValorDoBanco(conexao, QStringLiteral("select count(*) from produtos where ") + onde)
            .AsInteger();
    }
    QString Status() { return Achar<QLabel>("FiltroStatusLabel")->text(); }

    TServicosGuarda servicos;
    QStringList avisos;
    QTemporaryDir pasta;
    TSQLConnection conexao;
    TFicha biblioteca;
    std::unique_ptr<TComercialF> janela;
    TProdutosF *tela = nullptr;
};

} // namespace

TEST_F(TProdutosFTest, TheListIsWholeUntilAFilterIsApplied)
{
    EXPECT_EQ(NaLista(), 256);
    EXPECT_EQ(Status(), QStringLiteral("Exibindo todos os produtos"));
    EXPECT_FALSE(tela->FiltroAtivLab->isVisible());
    EXPECT_EQ(NoBanco(QStringLiteral("cadastro is null")), 0);
    EXPECT_EQ(tela->StringGrid1->GetCell(tela->StringGrid1->GetColCount() - 1, 0),
              QStringLiteral("Cadastro"));
}

TEST_F(TProdutosFTest, APriceRangeTypedInTheBrazilianWayIsAppliedWithEnter)
{
    Ligar("FiltroPrecoDeFr");
    Digitar(QStringLiteral("20,50"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(NaLista(), NoBanco(QStringLiteral("preco>=20.50")));
    Ligar("FiltroPrecoAteFr");
    Digitar(QStringLiteral("99,90"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(NaLista(), NoBanco(QStringLiteral("preco>=20.50 and preco<=99.90")));
    EXPECT_LT(NaLista(), 256);
    EXPECT_GT(NaLista(), 0);
    EXPECT_EQ(Status(), QStringLiteral("Exibindo os produtos a partir de R$ 20,50, até R$ 99,90"));
    EXPECT_TRUE(tela->FiltroAtivLab->isVisible());
}

TEST_F(TProdutosFTest, AGroupThatIsTickedButNotChosenFiltersNothing)
{
    Ligar("FiltroGrupoFr");
    tela->FitroExecAct->Execute();
    EXPECT_EQ(NaLista(), 256);
    auto *combo = Achar<TComboBox>(Achar<TOpcionalBasFr>("FiltroGrupoFr"), "ComboBox1");
    combo->setFocus();
    Tecla(Qt::Key_Down);
    const QString grupo = combo->currentText();
    ASSERT_FALSE(grupo.isEmpty());
    tela->FitroExecAct->Execute();
    Assentar();
    EXPECT_EQ(NaLista(), 32);
    EXPECT_EQ(Status(), QStringLiteral("Exibindo os produtos do grupo ") + grupo);
    EXPECT_EQ(tela->StringGrid1->GetCell(2, 1), grupo);
}

TEST_F(TProdutosFTest, TheProductsThatCannotBeSoldAreFound)
{
    auto *grupo = Achar<TRadioGroup>("FiltroSituacaoGroup");
    QTest::mouseClick(grupo->findChildren<QRadioButton *>().at(2), Qt::LeftButton, {},
                      QPoint(6, 8));
    ASSERT_EQ(grupo->GetItemIndex(), 2);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(NaLista(), NoBanco(QStringLiteral("ativo='N'")));
    EXPECT_EQ(NaLista(), 15);
    EXPECT_EQ(Status(), QStringLiteral("Exibindo os produtos inativos"));
}

TEST_F(TProdutosFTest, ThePeriodOfRegistrationIsTyped)
{
    conexao.Executar(QStringLiteral("update produtos set cadastro=null"));
    conexao.Executar(
        QStringLiteral("update produtos set cadastro=date '2024-03-05' where produtos_cod<=7"));
    conexao.Executar(
        QStringLiteral("update produtos set cadastro=date '2024-03-06' where produtos_cod=8"));
    auto *cadastro = Achar<TDatasBasFr>("FiltroCadastroFr");
    cadastro->MaskEdit1->setFocus();
    Digitar(QStringLiteral("05032024"));
    cadastro->MaskEdit2->setFocus();
    Digitar(QStringLiteral("050324"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(cadastro->MaskEdit2->GetEditText(), QStringLiteral("05/03/2024"));
    EXPECT_EQ(NaLista(), 7);
    EXPECT_EQ(Status(),
              QStringLiteral("Exibindo os produtos cadastro: De 05/03/2024 ate 05/03/2024"));
    tela->FiltroZerarAct->Execute();
    EXPECT_EQ(NaLista(), 256);
    EXPECT_FALSE(cadastro->EscolheuDt1());
}

TEST_F(TProdutosFTest, DeletingInTheFilteredListDeletesTheProductThatWasSeen)
{
    auto *grupo = Achar<TRadioGroup>("FiltroSituacaoGroup");
    grupo->SetItemIndex(2);
    tela->FitroExecAct->Execute();
    tela->StringGrid1->setFocus();
    tela->MoverParaLinha(4);
    Assentar();
    const QString cod = tela->StringGrid1->GetCell(0, 4);
    const int inativos = NoBanco(QStringLiteral("ativo='N'"));
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(NoBanco(QStringLiteral("produtos_cod=") + cod), 0);
    EXPECT_EQ(NoBanco(QStringLiteral("ativo='N'")), inativos - 1);
    EXPECT_EQ(NoBanco(QStringLiteral("1=1")), 255);
    EXPECT_EQ(grupo->GetItemIndex(), 0);
    EXPECT_EQ(NaLista(), 255);
}

TEST_F(TProdutosFTest, ANewProductIsRegisteredToday)
{
    tela->InsAction->Execute();
    Assentar();
    auto *descr = Achar<TDescrReduzLabeledEditTextoBasFr>("DescrFr");
    descr->LabeledEdit1->setFocus();
    Digitar(QStringLiteral("Produto do dia"));
    auto *combo = Achar<TComboBox>(Achar<TComboBoxCodBasFr>("GrupoFr"), "ComboBox1");
    combo->setFocus();
    Tecla(Qt::Key_Down);
    tela->ConfirmAction->Execute();
    EXPECT_EQ(NoBanco(QStringLiteral("descricao='Produto do dia' and cadastro=current_date")), 1);
}

TEST_F(TProdutosFTest, ThePanelsInputsLieInsideItAboveItsButtons)
{
    const QWidget *corpo = Achar<QWidget>("ScrollBox1");
    const QWidget *barra = Achar<QWidget>("ToolBar4");
    for (const char *nome : {"FiltroGrupoFr", "FiltroPrecoDeFr", "FiltroPrecoAteFr",
                             "FiltroSituacaoGroup", "FiltroCadastroFr"}) {
        const auto *w = Achar<QWidget>(nome);
        EXPECT_LT(w->geometry().bottom(), barra->y()) << nome;
        EXPECT_LE(w->geometry().right(), corpo->width()) << nome;
    }
    EXPECT_EQ(corpo->height(), corpo->parentWidget()->height());
    if (qEnvironmentVariableIsSet("FICHA_RETRATOS"))
        janela->grab().save(qEnvironmentVariable("FICHA_RETRATOS") +
                            QStringLiteral("/produtos.png"));
}
