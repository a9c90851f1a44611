#include "forms/TelasDeTeste.h"
#include "forms/UFiltrarDiagF.h"
#include "support/Layouts.h"

#include <QTimer>

namespace ficha::testes
{

namespace
{

/** A filter dialog as a host derives it: one input, which goes into the list. */
class TFiltrarGruposF : public TFiltrarDiagF
{
    Q_OBJECT

public:
    using TFiltrarDiagF::TFiltrarDiagF;

    bool Exibir(TForm *form, TLinhas &lista) override
    {
        SetCaption(QStringLiteral("Filtrar ") + form->windowTitle());
        if (!Executar())
            return false;
        lista.Add(TextoEdit->GetText());
        return true;
    }
    TLabeledEdit *TextoEdit = nullptr;

protected:
    void FormCreate(QObject *sender) override
    {
        TFiltrarDiagF::FormCreate(sender);
        TextoEdit = new TLabeledEdit(Panel1);
        TextoEdit->SetCaption(QStringLiteral("Descrição"));
        TextoEdit->setGeometry(16, 40, 200, 21);
    }
};

} // namespace

class TFiltrarDiagFTest : public TTelasTest
{
};

TEST_F(TFiltrarDiagFTest, TheLayoutIsAsStated)
{
    const std::unique_ptr<TFiltrarDiagF> dialogo(Criar<TFiltrarDiagF>(nullptr));
    dialogo->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialogo.get()));
    EXPECT_EQ(dialogo->size(), QSize(607, 369));
    EXPECT_EQ(dialogo->GetColor(), TColor(14732209));
    EXPECT_EQ(dialogo->OkBitBtn->x(), 344);
    EXPECT_EQ(dialogo->CancelBitBtn->x(), 440);
    EXPECT_EQ(dialogo->OkBitBtn->parentWidget(), dialogo->ButPanel);
    EXPECT_FALSE(dialogo->Image1->pixmap(Qt::ReturnByValue).isNull());
    EXPECT_TRUE(ConfereLayout(dialogo.get(), QStringLiteral("TFiltrarDiagF")));
    const int margem = dialogo->Panel1->width() - dialogo->Image1->geometry().right();
    dialogo->resize(700, 420);
    EXPECT_EQ(dialogo->Panel1->width() - dialogo->Image1->geometry().right(), margem);
    EXPECT_EQ(dialogo->Image1->y(), 8);
}

TEST_F(TFiltrarDiagFTest, CreationSetsTheColourAgain)
{
    class TOutraCor : public TFiltrarDiagF
    {
    public:
        using TFiltrarDiagF::TFiltrarDiagF;

    protected:
        void FormCreate(QObject *sender) override
        {
            SetColor(TColor(255));
            TFiltrarDiagF::FormCreate(sender);
        }
    };
    const std::unique_ptr<TFiltrarDiagF> dialogo(Criar<TOutraCor>(nullptr));
    EXPECT_EQ(dialogo->GetColor(), TColor(14732209));
}

TEST_F(TFiltrarDiagFTest, TheBaseShowsNothingAndAnswersTrue)
{
    const std::unique_ptr<TFiltrarDiagF> dialogo(Criar<TFiltrarDiagF>(nullptr));
    TGruposF *tela = Abrir();
    TLinhas lista;
    EXPECT_TRUE(dialogo->Exibir(tela, lista));
    EXPECT_FALSE(dialogo->isVisible());
    EXPECT_EQ(lista.Count(), 0);
}

TEST_F(TFiltrarDiagFTest, ADescendantAnswersWhetherTheUserConfirmed)
{
    TGruposF *tela = Abrir();
    for (const bool confirma : {true, false}) {
        const std::unique_ptr<TFiltrarGruposF> dialogo(Criar<TFiltrarGruposF>(nullptr));
        TLinhas lista;
        QTimer::singleShot(0, dialogo.get(), [&] {
            dialogo->TextoEdit->setFocus();
            QTest::keyClicks(dialogo->TextoEdit, QStringLiteral("az"));
            QTest::keyClick(dialogo->TextoEdit, confirma ? Qt::Key_Return : Qt::Key_Escape);
        });
        EXPECT_EQ(dialogo->Exibir(tela, lista), confirma);
        ASSERT_EQ(lista.Count(), confirma ? 1 : 0);
        EXPECT_EQ(confirma ? lista.Texto(0) : QStringLiteral("az"), QStringLiteral("az"));
    }
}

} // namespace ficha::testes

#include "TFiltrarDiagF_test.moc"
