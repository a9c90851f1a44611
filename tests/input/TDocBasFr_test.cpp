#include "input/UDocBasFr.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "platform/toolkit/TGroupBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "support/Entrada.h"
#include "support/Girar.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

const QString CPFInvalido =
    QStringLiteral("CPF Inválido\r\nDigite o valor correto ou clique em Cancelar.");
const QString CNPJInvalido =
    QStringLiteral("CNPJ Inválido\r\nDigite o valor correto ou clique em Cancelar.");

/** Hears the keys that the controls inside leave alone. */
class TOuvinte : public QObject
{
public:
    explicit TOuvinte(QWidget *tela) { tela->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *evento) override
    {
        if (evento->type() == QEvent::KeyPress)
            teclas << static_cast<QKeyEvent *>(evento)->key();
        return false;
    }
    QList<int> teclas;
};

class TDocBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TDocBasFr>();
        c = fr->CLabeledEditTextoBasFr->LabeledEdit1;
        i = fr->ILabeledEditTextoBasFr->LabeledEdit1;
        m = fr->MLabeledEditTextoBasFr->LabeledEdit1;
    }
    QStringList Legendas() const { return {c->GetCaption(), i->GetCaption(), m->GetCaption()}; }
    bool Aceita(int tipo, const QString &documento)
    {
        fr->SetTipoPess(tipo);
        c->setText(documento);
        return fr->DocAceitavel();
    }

    const QStringList deEmpresa = {QStringLiteral("CNPJ"), QStringLiteral("Inscr.Estadual"),
                                   QStringLiteral("Inscr.Municipal")};
    const QStringList dePessoa = {QStringLiteral("CPF"), QStringLiteral("Identidade"),
                                  QStringLiteral("Órgao Emissor")};
    TDocBasFr *fr = nullptr;
    TLabeledEdit *c = nullptr;
    TLabeledEdit *i = nullptr;
    TLabeledEdit *m = nullptr;
};

TEST_F(TDocBasFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    EXPECT_EQ(fr->GetTipoPess(), 1);
    EXPECT_EQ(Legendas(), deEmpresa);
    c->setText(QStringLiteral("12.ABC.345/0001-88"));
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TDocBasFr")));
    fr->resize(500, 80);
    QCoreApplication::processEvents();
    EXPECT_EQ(fr->GroupBox1->geometry(), QRect(0, 0, 500, 80)) << "the box fills the frame";
}

TEST_F(TDocBasFrTest, TheCaptionsFollowThePersonAndStayForAnyOtherKind)
{
    Montar();
    fr->SetTipoPess(0);
    EXPECT_EQ(Legendas(), dePessoa);
    Retratar(fr, QStringLiteral("TDocBasFr-pessoa"));
    fr->SetTipoPess(2);
    EXPECT_EQ(Legendas(), dePessoa);
    EXPECT_EQ(fr->GetTipoPess(), 2);
    fr->setProperty("TipoPess", 1);
    EXPECT_EQ(Legendas(), deEmpresa);
    fr->SetTipoPess(-1);
    EXPECT_EQ(Legendas(), deEmpresa);
    EXPECT_EQ(fr->property("TipoPess").toInt(), -1);
}

TEST_F(TDocBasFrTest, CaptionsAndTheLongestDocumentAreShownWhole)
{
    Montar();
    for (const int tipo : {0, 1}) {
        fr->SetTipoPess(tipo);
        for (const TLabeledEdit *edit : {c, i, m}) {
            EXPECT_LE(edit->EditLabel->sizeHint().width(), edit->width());
            EXPECT_GE(edit->EditLabel->y(), 0);
            EXPECT_GE(edit->EditLabel->height(), edit->EditLabel->fontMetrics().height());
        }
    }
    for (const char *cnpj : {"00.000.000/0000-00", "12.ABC.345/0001-88"}) {
        const int largura = c->fontMetrics().horizontalAdvance(QString::fromLatin1(cnpj));
        EXPECT_LE(largura, c->width() - 8) << cnpj;
    }
    c->setFocus();
    Digitar(c, QStringLiteral("11.017.153/0002-49"));
    EXPECT_EQ(c->text().size(), 18) << "no limit stands in the way of the mask";
}

TEST_F(TDocBasFrTest, EnterGoesFromTheFirstToTheThirdAndNoFurther)
{
    Montar();
    TOuvinte ouvinte(&tela);
    c->setFocus();
    i->setText(QStringLiteral("123"));
    Teclar(c, Qt::Key_Return);
    EXPECT_EQ(Foco(), i);
    EXPECT_EQ(i->selectedText(), QStringLiteral("123")) << "as entered by Tab";
    Teclar(i, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Foco(), m);
    EXPECT_EQ(ouvinte.teclas, QList<int>()) << "no default button hears an Enter that moved on";
    Teclar(m, Qt::Key_Return);
    EXPECT_EQ(Foco(), m);
    EXPECT_EQ(ouvinte.teclas, QList<int>{Qt::Key_Return});
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TDocBasFrTest, EnterBeforeAHiddenInputIsTheForms)
{
    Montar();
    TOuvinte ouvinte(&tela);
    fr->ILabeledEditTextoBasFr->hide();
    c->setFocus();
    Teclar(c, Qt::Key_Return);
    EXPECT_EQ(Foco(), c);
    EXPECT_EQ(ouvinte.teclas, QList<int>{Qt::Key_Return});
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TDocBasFrTest, TabGoesThroughTheThree)
{
    Montar();
    for (QWidget *esperado : {static_cast<QWidget *>(c), static_cast<QWidget *>(i),
                              static_cast<QWidget *>(m), static_cast<QWidget *>(depois)}) {
        Teclar(Foco(), Qt::Key_Tab);
        EXPECT_EQ(Foco(), esperado);
    }
}

TEST_F(TDocBasFrTest, EnterOutOfARefusedDocumentStaysThere)
{
    Montar();
    fr->CLabeledEditTextoBasFr->AceitaVazio = false;
    c->setFocus();
    Teclar(c, Qt::Key_Return);
    EXPECT_EQ(avisos.size(), 1);
    EXPECT_EQ(Foco(), c);
}

TEST_F(TDocBasFrTest, TheInputsKeepTheirOwnKeyHandling)
{
    AbrirTabela();
    Montar();
    Prender(fr->CLabeledEditTextoBasFr, "descr", QStringLiteral("CNPJ"));
    c->setFocus();
    c->setReadOnly(true);
    Teclar(c, Qt::Key_Delete);
    EXPECT_EQ(avisos, QStringList{QStringLiteral("O campo CNPJ está somente para leitura. Não pode "
                                                 "ter seu valor alterado.")});
    c->setReadOnly(false);
    Teclar(c, Qt::Key_Backspace);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    Teclar(c, Qt::Key_Return);
    EXPECT_EQ(Foco(), i);
}

TEST_F(TDocBasFrTest, ZerarClearsTheThree)
{
    Montar();
    for (TLabeledEdit *edit : {c, i, m})
        edit->setText(QStringLiteral("x"));
    fr->Zerar();
    for (const TLabeledEdit *edit : {c, i, m})
        EXPECT_EQ(edit->text(), QString());
    EXPECT_EQ(Legendas(), deEmpresa);
}

TEST_F(TDocBasFrTest, TheDocumentIsTheOneOfThePerson)
{
    Montar();
    for (const char *cpf : {"15886489070", "529.982.247-25", " 90889477086 "})
        EXPECT_TRUE(Aceita(0, QString::fromLatin1(cpf))) << cpf;
    for (const char *cnpj : {"11017153000249", "11.017.153/0002-49", "12ABC345000188",
                             "12.abc.345/0001-88", "B1222333000103"})
        EXPECT_TRUE(Aceita(1, QString::fromLatin1(cnpj))) << cnpj;
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TDocBasFrTest, AWrongDocumentIsRefusedWithItsMessageAndHasTheFocus)
{
    Montar();
    for (const char *cpf :
         {"11144477732", "22222222222", "1588648907", "11017153000249", "12ABC345000188", "abc"}) {
        avisos.clear();
        depois->setFocus();
        EXPECT_FALSE(Aceita(0, QString::fromLatin1(cpf))) << cpf;
        EXPECT_EQ(avisos, QStringList{CPFInvalido});
        EXPECT_EQ(Foco(), c);
    }
    for (const char *cnpj : {"53797980000179", "12ABC34501DE36", "00000000000000", "15886489070"}) {
        avisos.clear();
        depois->setFocus();
        EXPECT_FALSE(Aceita(1, QString::fromLatin1(cnpj))) << cnpj;
        EXPECT_EQ(avisos, QStringList{CNPJInvalido});
        EXPECT_EQ(Foco(), c);
        EXPECT_EQ(c->text(), QString::fromLatin1(cnpj)) << "what was typed stays";
    }
}

TEST_F(TDocBasFrTest, LeavingAWrongDocumentIsNotRefusedByTheFrameItself)
{
    Montar();
    fr->SetTipoPess(0);
    c->setFocus();
    Digitar(c, QStringLiteral("123"));
    Teclar(c, Qt::Key_Tab);
    EXPECT_EQ(Foco(), i);
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TDocBasFrTest, AnEmptyDocumentIsAcceptedUnlessTheInputIsRequired)
{
    Montar();
    EXPECT_TRUE(Aceita(0, QStringLiteral("  ")));
    EXPECT_TRUE(Aceita(1, QString()));
    fr->CLabeledEditTextoBasFr->AceitaVazio = false;
    EXPECT_FALSE(Aceita(1, QString()));
    EXPECT_EQ(Foco(), c);
    EXPECT_EQ(avisos, QStringList{QStringLiteral(
                          "Campo incompleto\r\nEste é um campo obrigatório\r\n (não pode ser "
                          "deixado em branco).\r\nDigite um valor ou clique em Cancelar.")});
}

TEST_F(TDocBasFrTest, AnotherKindOfPersonHasNoNumberToCheck)
{
    Montar();
    EXPECT_TRUE(Aceita(2, QStringLiteral("passaporte FX 12")));
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TDocBasFrTest, ARepeatedDocumentIsToldBeforeItsNumberIsChecked)
{
    AbrirTabela({QStringLiteral("1, '123', 0, 0, '', ''"), QStringLiteral("2, '', 0, 0, '', ''")});
    Montar();
    Prender(fr->CLabeledEditTextoBasFr, "descr", QStringLiteral("CPF"));
    fr->CLabeledEditTextoBasFr->NaoRepetir = true;
    tabela->InsIni();
    EXPECT_FALSE(Aceita(0, QStringLiteral("123")));
    ASSERT_EQ(avisos.size(), 1);
    EXPECT_TRUE(avisos.constFirst().startsWith(QStringLiteral("Repetição\r\nCPF '123'")));
}

TEST_F(TDocBasFrTest, TheFrameMayBeGoneBehindItsOwnMessage)
{
    Montar();
    aoAvisar = [this] { delete fr; };
    EXPECT_FALSE(Aceita(0, QStringLiteral("123")));
    EXPECT_EQ(avisos, QStringList{CPFInvalido});
}

} // namespace
