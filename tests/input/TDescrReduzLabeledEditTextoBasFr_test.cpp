#include "input/UApoioInput.h"
#include "input/UDescrReduzLabeledEditTextoBasFr.h"
#include "platform/core/TColor.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <QLabel>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** Counts the checks of leaving. */
class TContadoFr : public TDescrReduzLabeledEditTextoBasFr
{
    Q_OBJECT
public:
    using TDescrReduzLabeledEditTextoBasFr::TDescrReduzLabeledEditTextoBasFr;
    bool ValorAceitavel() override
    {
        ++perguntas;
        return aceita;
    }
    bool aceita = true;
    int perguntas = 0;
};

class TDescrReduzLabeledEditTextoBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TDescrReduzLabeledEditTextoBasFr>();
        edit = fr->LabeledEdit1;
    }
    TColor Cor() const
    {
        return TColor::DeQColor(fr->ContadorLabel->palette().color(QPalette::WindowText));
    }

    TDescrReduzLabeledEditTextoBasFr *fr = nullptr;
    TLabeledEdit *edit = nullptr;
};

TEST_F(TDescrReduzLabeledEditTextoBasFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    fr->SetCap(QStringLiteral("Descrição ECF"));
    edit->setText(QStringLiteral("Água mineral Çgjpqy"));
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TDescrReduzLabeledEditTextoBasFr")));
    EXPECT_EQ(edit->GetLabelSpacing(), 0);
}

TEST_F(TDescrReduzLabeledEditTextoBasFrTest, Defaults)
{
    Montar();
    EXPECT_EQ(fr->GetMaxLen(), 30);
    EXPECT_EQ(fr->GetCap(), QString());
    EXPECT_FALSE(fr->AceitaVazio);
    EXPECT_TRUE(fr->NaoRepetir);
    EXPECT_EQ(edit->GetMaxLength(), 0) << "the limit only advises";
    EXPECT_EQ(edit->GetCaption(), QStringLiteral("   Máx:30 letras   Atual:"));
    EXPECT_EQ(fr->ContadorLabel->text(), QStringLiteral("0"));
    EXPECT_EQ(fr->ContadorLabel->parentWidget(), fr);
    EXPECT_TRUE(fr->ContadorLabel->isVisible());
    EXPECT_EQ(Cor(), TColor(32768));
}

TEST_F(TDescrReduzLabeledEditTextoBasFrTest, CaptionAndCounterFollowCapAndMaxLen)
{
    Montar();
    fr->SetCap(QStringLiteral("Descrição"));
    EXPECT_EQ(edit->GetCaption(), QStringLiteral("Descrição   Máx:30 letras   Atual:"));
    const QLabel *rotulo = edit->EditLabel;
    EXPECT_EQ(fr->ContadorLabel->x(), rotulo->x() + rotulo->width() + 2);
    EXPECT_EQ(fr->ContadorLabel->y(), 1);
    fr->SetMaxLen(2);
    EXPECT_EQ(edit->GetCaption(), QStringLiteral("Descrição   Máx:2 letras   Atual:"));
    EXPECT_EQ(fr->ContadorLabel->x(), rotulo->x() + rotulo->width() + 2);
    edit->setText(QStringLiteral("abc"));
    EXPECT_EQ(Cor(), TColor(255));
    fr->SetMaxLen(3);
    EXPECT_EQ(Cor(), TColor(32768)) << "at most MaxLen is green";
}

TEST_F(TDescrReduzLabeledEditTextoBasFrTest, ThirtyOneCharactersAreRedAndStillAccepted)
{
    Montar();
    edit->setFocus();
    Digitar(edit, QString(30, u'x'));
    EXPECT_EQ(fr->ContadorLabel->text(), QStringLiteral("30"));
    EXPECT_EQ(Cor(), TColor(32768));
    Teclar(edit, u'x');
    EXPECT_EQ(fr->ContadorLabel->text(), QStringLiteral("31"));
    EXPECT_EQ(Cor(), TColor(255));
    EXPECT_TRUE(fr->ValorAceitavel());
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TDescrReduzLabeledEditTextoBasFrTest, BlanksCount)
{
    Montar();
    edit->setText(QStringLiteral("  a "));
    EXPECT_EQ(fr->ContadorLabel->text(), QStringLiteral("4"));
}

TEST_F(TDescrReduzLabeledEditTextoBasFrTest, ABlankAndARepeatedTextAreAcceptedWithoutAQuery)
{
    AbrirTabela();
    Montar();
    Prender(fr, "descr", QStringLiteral("Descrição"));
    tabela->InsIni();
    edit->clear();
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(fr->Frases.Objeto(FraseObrigatorio), 1) << "the flags still drive the phrases";
    edit->setText(QStringLiteral("um"));
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(fr->FraseRef(),
              QStringLiteral(" Descrição:  [Tab]Avançar  Não pode ser repetido  Obrigatório"));
}

TEST_F(TDescrReduzLabeledEditTextoBasFrTest, OnlyTheEditsExitChecksNotTheFrames)
{
    auto *contado = Mostrado<TContadoFr>();
    contado->LabeledEdit1->setFocus();
    contado->Frases.SetObjeto(FraseObrigatorio, 1);
    Teclar(contado->LabeledEdit1, Qt::Key_Tab);
    EXPECT_EQ(contado->perguntas, 1);
    EXPECT_EQ(contado->Frases.Objeto(FraseObrigatorio), 1) << "the phrases are left alone";
    EXPECT_EQ(Foco(), depois);
    contado->aceita = false;
    contado->LabeledEdit1->setFocus();
    Teclar(contado->LabeledEdit1, Qt::Key_Tab);
    EXPECT_EQ(Foco(), contado->LabeledEdit1) << "a descendant that refuses keeps the focus";
}

TEST_F(TDescrReduzLabeledEditTextoBasFrTest, HostileTextsComeBackFromTheDatabaseAsTheyWentIn)
{
    AbrirTabela();
    Montar();
    Prender(fr, "descr", QStringLiteral("Descrição"));
    for (const QString &texto : TextosHostis()) {
        edit->setText(texto);
        banco->Executar(QStringLiteral("update testes set descr = ") + fr->SQLString());
        EXPECT_EQ(banco->Valor(QStringLiteral("select descr from testes")), Variant(texto));
        EXPECT_EQ(fr->ContadorLabel->text(), QString::number(texto.size()));
    }
}

TEST_F(TDescrReduzLabeledEditTextoBasFrTest, NothingIsWrittenThatDoesNotChange)
{
    Montar();
    edit->setText(QStringLiteral("abc"));
    const qint64 paleta = fr->ContadorLabel->palette().cacheKey();
    for (int i = 0; i < 3; ++i)
        fr->Atualizar();
    EXPECT_EQ(fr->ContadorLabel->palette().cacheKey(), paleta);
}

} // namespace

#include "TDescrReduzLabeledEditTextoBasFr_test.moc"
