#include "input/UContatoBasFr.h"
#include "platform/edits/TFoneEditBR.h"
#include "platform/edits/TMaskEditBR.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/Teclas.h"
#include "support/CaixasDeVerdade.h"
#include "support/Entrada.h"
#include "support/Girar.h"
#include "support/Layouts.h"
#include "support/Sobreposicao.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

const QString Obrigatorio = QStringLiteral("O DDD é obrigatório");

/** Offers the handler that belongs to no component. */
class TExpostoFr : public TContatoBasFr
{
    Q_OBJECT
public:
    using TContatoBasFr::DDDNumEditBRKeyDown;
    using TContatoBasFr::TContatoBasFr;
};

/** Hears the Enters that the controls inside leave alone. */
class TOuvinte : public QObject
{
public:
    explicit TOuvinte(QWidget *tela) { tela->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *evento) override
    {
        if (evento->type() == QEvent::KeyPress)
            ++teclas;
        return false;
    }
    int teclas = 0;
};

class TContatoBasFrTest : public TEntradaTest
{
protected:
    TContatoBasFrTest() : sisD(SisD())
    {
        tela.setMinimumWidth(540);
        Servicos().MensagemErro = [this](const QString &texto) {
            mensagens << texto;
            if (aoErrar)
                aoErrar();
        };
        Servicos().AbrirBrowser = [this](const QString &endereco) { abertos << endereco; };
    }
    ~TContatoBasFrTest() override { SisD() = sisD; }

    template <typename T = TContatoBasFr>
    void Montar()
    {
        fr = Mostrado<T>();
        ddd = fr->DDDMaskEditBR;
    }
    QList<TCustomEdit *> Edits() const
    {
        return {fr->DDDMaskEditBR, fr->Fone1EditBR,      fr->Fone2EditBR,
                fr->FaxEditBR,     fr->EMailLabeledEdit, fr->PaginaLabeledEdit};
    }

    const TSisD sisD;
    QStringList mensagens;
    QStringList abertos;
    std::function<void()> aoErrar;
    TContatoBasFr *fr = nullptr;
    TMaskEditBR *ddd = nullptr;
};

TEST_F(TContatoBasFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TContatoBasFr")));
    EXPECT_EQ(ddd->GetEditMask(), QStringLiteral("99"));
    EXPECT_TRUE(ddd->alignment().testFlag(Qt::AlignHCenter));
    EXPECT_FALSE(ddd->GetAutoSelect());
    EXPECT_EQ(fr->Fone1EditBR->SoDigitos(), QStringLiteral("12345678"));
    for (TFoneEditBR *fone : {fr->Fone1EditBR, fr->Fone2EditBR, fr->FaxEditBR}) {
        EXPECT_TRUE(fone->GetAutoExit());
        EXPECT_EQ(fone->GetMaxLength(), 10);
    }
    EXPECT_EQ(fr->EMailLabeledEdit->GetMaxLength(), 50);
    EXPECT_EQ(fr->PaginaLabeledEdit->GetMaxLength(), 50);
    const TBitBtn *web = fr->WebBitBtn;
    EXPECT_EQ(web->toolTip(), QStringLiteral("Abrir a Página Web"));
    EXPECT_EQ(web->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_FALSE(web->icon().isNull());
    EXPECT_EQ(web->geometry().topLeft(), QPoint(492, 21));
    EXPECT_EQ(web->height(), 20);
    for (const TCustomEdit *edit : Edits()) {
        EXPECT_EQ(edit->y(), 20);
        EXPECT_EQ(edit->height(), 21);
        EXPECT_FALSE(edit->font().bold());
    }
}

TEST_F(TContatoBasFrTest, NothingIsClippedOrCovered)
{
    Montar();
    fr->Zerar();
    fr->Fone1EditBR->SetText(QStringLiteral("987654321"));
    EXPECT_EQ(fr->Fone1EditBR->text(), QStringLiteral("98765-4321"));
    fr->PaginaLabeledEdit->setFocus();
    fr->Fone2EditBR->setFocus();
    Retratar(fr, QStringLiteral("TContatoBasFr-cheio"));
    EXPECT_LE(fr->Fone1EditBR->fontMetrics().horizontalAdvance(QStringLiteral("98888-8888")),
              fr->Fone1EditBR->width() - 8);
    ConfereNadaCoberto(fr);
}

TEST_F(TContatoBasFrTest, TypingTwoDigitsInTheDDDGoesToTheFirstPhone)
{
    Montar();
    ddd->setFocus();
    Teclar(ddd, u'1');
    EXPECT_EQ(Foco(), ddd);
    Teclar(ddd, u'x');
    EXPECT_EQ(Foco(), ddd);
    Teclar(ddd, u'1');
    EXPECT_EQ(Foco(), fr->Fone1EditBR);
    EXPECT_EQ(ddd->GetText(), QStringLiteral("11"));
    EXPECT_EQ(fr->Fone1EditBR->selectedText(), fr->Fone1EditBR->text()) << "as entered by Tab";
    EXPECT_EQ(mensagens, QStringList());
}

TEST_F(TContatoBasFrTest, ACompleteDDDIsTypedOverFromItsBeginning)
{
    Montar();
    fr->Zerar();
    fr->PaginaLabeledEdit->setFocus();
    Teclar(fr->PaginaLabeledEdit, Qt::Key_Tab);
    EXPECT_EQ(Foco(), ddd);
    EXPECT_FALSE(ddd->hasSelectedText());
    Digitar(ddd, QStringLiteral("21"));
    EXPECT_EQ(ddd->GetText(), QStringLiteral("21"));
    EXPECT_EQ(Foco(), fr->Fone1EditBR);
}

TEST_F(TContatoBasFrTest, LeavingTheDDDWithOneDigitIsToldOnceAndTheFocusGoesOn)
{
    Montar();
    const auto sair = [&](const std::function<void()> &como, QWidget *para) {
        mensagens.clear();
        ddd->Clear();
        ddd->setFocus();
        Teclar(ddd, u'1');
        como();
        QCoreApplication::processEvents();
        EXPECT_EQ(mensagens, QStringList{Obrigatorio});
        EXPECT_EQ(Foco(), para);
        EXPECT_EQ(ddd->GetEditText(), QStringLiteral("1_")) << "what was typed stays";
        EXPECT_EQ(ddd->GetColor(), SisD().CorControlDesselec);
    };
    sair([&] { Teclar(ddd, Qt::Key_Tab); }, depois);
    sair([&] { Teclar(ddd, Qt::Key_Backtab, Qt::ShiftModifier); }, fr->PaginaLabeledEdit);
    sair([&] { Teclar(ddd, Qt::Key_Return); }, fr->Fone1EditBR);
    sair([&] { QTest::mouseClick(fr->FaxEditBR, Qt::LeftButton); }, fr->FaxEditBR);
    sair([&] { antes->setFocus(); }, antes);
    EXPECT_EQ(avisos, QStringList()) << "an error, not a warning";
}

TEST_F(TContatoBasFrTest, AnEmptyDDDIsIncompleteToo)
{
    Montar();
    ddd->setFocus();
    Teclar(ddd, Qt::Key_Tab);
    EXPECT_EQ(mensagens, QStringList{Obrigatorio});
}

TEST_F(TContatoBasFrTest, ADDDThatIsNotInUseIsNotTold)
{
    Montar();
    ddd->setFocus();
    Digitar(ddd, QStringLiteral("10"));
    EXPECT_EQ(Foco(), fr->Fone1EditBR);
    EXPECT_EQ(mensagens, QStringList());
}

TEST_F(TContatoBasFrTest, TheMessageBoxOfTheDDDComesUpOnceAndTheRowGoesOn)
{
    Montar();
    TCaixasDeVerdade caixas;
    Servicos().MensagemErro = {};
    ddd->setFocus();
    Teclar(ddd, u'1');
    Teclar(ddd, Qt::Key_Return);
    Girar(50);
    ASSERT_EQ(caixas.textos.size(), 1);
    EXPECT_TRUE(caixas.textos.constFirst().contains(Obrigatorio));
    EXPECT_EQ(Foco(), fr->Fone1EditBR);
    EXPECT_EQ(ddd->GetColor(), SisD().CorControlDesselec);
    EXPECT_EQ(fr->Fone1EditBR->GetColor(), SisD().CorControlSelec);
    ddd->setFocus();
    QTest::mouseClick(fr->Fone2EditBR, Qt::LeftButton);
    Girar(50);
    EXPECT_EQ(caixas.textos.size(), 2) << "once more for the second time it is left";
    EXPECT_EQ(Foco(), fr->Fone2EditBR);
    Teclar(fr->Fone2EditBR, u'3');
    EXPECT_EQ(fr->Fone2EditBR->text(), QStringLiteral("3")) << "and the next edit takes keys";
}

TEST_F(TContatoBasFrTest, TheFrameMayGoBehindTheMessageOfTheDDD)
{
    Montar();
    const QPointer<QWidget> vivo(fr);
    ddd->setFocus();
    aoErrar = [this] { delete fr; };
    Teclar(ddd, Qt::Key_Tab);
    EXPECT_EQ(mensagens, QStringList{Obrigatorio});
    EXPECT_FALSE(vivo);
    EXPECT_EQ(Foco(), depois);
}

TEST_F(TContatoBasFrTest, TheFrameMayGoInTheMiddleOfItsEnterChain)
{
    Montar();
    const QPointer<QWidget> vivo(fr);
    ddd->setFocus();
    aoErrar = [this] { fr->deleteLater(); };
    Teclar(ddd, Qt::Key_Return);
    Girar();
    EXPECT_EQ(mensagens, QStringList{Obrigatorio});
    EXPECT_FALSE(vivo);
}

TEST_F(TContatoBasFrTest, EnterGoesAlongTheRowUpToThePage)
{
    Montar();
    fr->Zerar();
    TOuvinte ouvinte(&tela);
    const QList<TCustomEdit *> edits = Edits();
    ddd->setFocus();
    for (qsizetype i = 1; i < edits.size(); ++i) {
        Teclar(edits.at(i - 1), i % 2 == 1 ? Qt::Key_Return : Qt::Key_Enter);
        EXPECT_EQ(Foco(), edits.at(i));
    }
    EXPECT_EQ(ouvinte.teclas, 0) << "no default button hears an Enter that moved on";
    Teclar(fr->PaginaLabeledEdit, Qt::Key_Return);
    EXPECT_EQ(Foco(), fr->PaginaLabeledEdit);
    EXPECT_EQ(ouvinte.teclas, 1) << "the last one is the screen's";
    EXPECT_EQ(mensagens, QStringList());
}

TEST_F(TContatoBasFrTest, OtherKeysPass)
{
    Montar();
    fr->Zerar();
    fr->EMailLabeledEdit->setFocus();
    Digitar(fr->EMailLabeledEdit, QStringLiteral("ana@x.com"));
    Teclar(fr->EMailLabeledEdit, Qt::Key_Backspace);
    EXPECT_EQ(fr->EMailLabeledEdit->text(), QStringLiteral("ana@x.co"));
    EXPECT_EQ(Foco(), fr->EMailLabeledEdit);
}

TEST_F(TContatoBasFrTest, EnterInTheFaxStaysWhileTheEMailIsHidden)
{
    Montar();
    TOuvinte ouvinte(&tela);
    fr->EMailLabeledEdit->hide();
    fr->FaxEditBR->setFocus();
    Teclar(fr->FaxEditBR, Qt::Key_Return);
    EXPECT_EQ(Foco(), fr->FaxEditBR);
    EXPECT_EQ(ouvinte.teclas, 1);
}

TEST_F(TContatoBasFrTest, EnterBeforeADisabledInputIsTheForms)
{
    Montar();
    TOuvinte ouvinte(&tela);
    fr->Fone2EditBR->setEnabled(false);
    fr->Fone1EditBR->setFocus();
    Teclar(fr->Fone1EditBR, Qt::Key_Return);
    EXPECT_EQ(Foco(), fr->Fone1EditBR);
    EXPECT_EQ(ouvinte.teclas, 1);
}

TEST_F(TContatoBasFrTest, TabGoesAlongTheRowAndTheDDDComesLast)
{
    Montar();
    fr->Zerar();
    for (QWidget *esperado :
         QList<QWidget *>{fr->Fone1EditBR, fr->Fone2EditBR, fr->FaxEditBR, fr->EMailLabeledEdit,
                          fr->PaginaLabeledEdit, ddd, depois}) {
        Teclar(Foco(), Qt::Key_Tab);
        EXPECT_EQ(Foco(), esperado);
    }
    EXPECT_EQ(mensagens, QStringList());
}

TEST_F(TContatoBasFrTest, ACompleteNumberGoesOnByItself)
{
    Montar();
    fr->Zerar();
    fr->Fone1EditBR->setFocus();
    Digitar(fr->Fone1EditBR, QStringLiteral("32345678"));
    EXPECT_EQ(Foco(), fr->Fone2EditBR);
    Digitar(fr->Fone2EditBR, QStringLiteral("98765432"));
    EXPECT_EQ(Foco(), fr->Fone2EditBR) << "a mobile has nine digits";
    Teclar(fr->Fone2EditBR, u'1');
    EXPECT_EQ(Foco(), fr->FaxEditBR);
    Digitar(fr->FaxEditBR, QStringLiteral("22223333"));
    EXPECT_EQ(Foco(), fr->EMailLabeledEdit);
    EXPECT_EQ(fr->Fone1EditBR->text(), QStringLiteral("3234-5678"));
    EXPECT_EQ(fr->Fone2EditBR->text(), QStringLiteral("98765-4321"));
}

TEST_F(TContatoBasFrTest, TheWholeRowIsTypedWithoutTabOrMouse)
{
    Montar();
    fr->Zerar();
    ddd->setFocus();
    const auto digitar = [](const QString &texto) {
        for (const QChar c : texto)
            Teclar(Foco(), c);
    };
    digitar(QStringLiteral("213234567898765432122223333ana@x.com"));
    Teclar(Foco(), Qt::Key_Return);
    digitar(QStringLiteral("www.x.com"));
    QStringList textos;
    for (const TCustomEdit *edit : Edits())
        textos << edit->text();
    EXPECT_EQ(textos, (QStringList{QStringLiteral("21"), QStringLiteral("3234-5678"),
                                   QStringLiteral("98765-4321"), QStringLiteral("2222-3333"),
                                   QStringLiteral("ana@x.com"), QStringLiteral("www.x.com")}));
    EXPECT_EQ(mensagens, QStringList());
}

TEST_F(TContatoBasFrTest, ZerarLeavesTheHostsAreaCodeAndTheFocus)
{
    Montar();
    SisD().DDDPadrao = QStringLiteral("48");
    for (TCustomEdit *edit : Edits())
        edit->SetText(QStringLiteral("99"));
    fr->EMailLabeledEdit->setFocus();
    fr->Zerar();
    EXPECT_EQ(ddd->GetText(), QStringLiteral("48"));
    for (const TCustomEdit *edit : Edits().mid(1))
        EXPECT_EQ(edit->text(), QString());
    EXPECT_EQ(Foco(), fr->EMailLabeledEdit);
    ddd->setFocus();
    fr->Zerar();
    EXPECT_EQ(Foco(), ddd) << "a code set by the program is no typing";
    EXPECT_EQ(mensagens, QStringList());
}

TEST_F(TContatoBasFrTest, TheWebButtonOpensThePageWithoutTakingTheFocus)
{
    Montar();
    fr->PaginaLabeledEdit->setFocus();
    QTest::mouseClick(fr->WebBitBtn, Qt::LeftButton);
    EXPECT_EQ(abertos, QStringList{QString()}) << "an empty one, too";
    Digitar(fr->PaginaLabeledEdit, QStringLiteral("  www.exemplo.com.br "));
    QTest::mouseClick(fr->WebBitBtn, Qt::LeftButton);
    EXPECT_EQ(abertos.last(), QStringLiteral("www.exemplo.com.br"));
    EXPECT_EQ(fr->PaginaLabeledEdit->text(), QStringLiteral("  www.exemplo.com.br "));
    EXPECT_EQ(Foco(), fr->PaginaLabeledEdit);
}

TEST_F(TContatoBasFrTest, TheEditWithTheFocusHasTheHostsColourAndThePageKeepsIt)
{
    SisD().CorControlSelec = TColor::DeRGB(1, 2, 3);
    SisD().CorControlDesselec = TColor::DeRGB(4, 5, 6);
    Montar();
    fr->Zerar();
    for (TCustomEdit *edit : Edits()) {
        const bool pagina = edit == fr->PaginaLabeledEdit;
        EXPECT_EQ(edit->GetColor(), TColor::DeRGB(255, 255, 255)) << "not entered yet";
        edit->setFocus();
        QCoreApplication::processEvents();
        EXPECT_EQ(edit->GetColor(), SisD().CorControlSelec) << qPrintable(edit->objectName());
        antes->setFocus();
        QCoreApplication::processEvents();
        EXPECT_EQ(edit->GetColor(), pagina ? SisD().CorControlSelec : SisD().CorControlDesselec);
    }
}

TEST_F(TContatoBasFrTest, AHandlerBelongsToNoComponentAndStillGoesToTheFirstPhone)
{
    Montar<TExpostoFr>();
    auto *exposto = static_cast<TExpostoFr *>(fr);
    antes->setFocus();
    int tecla = VK_TAB;
    exposto->DDDNumEditBRKeyDown(antes, tecla, Qt::NoModifier);
    EXPECT_EQ(Foco(), antes);
    EXPECT_EQ(tecla, VK_TAB);
    tecla = VK_RETURN;
    exposto->DDDNumEditBRKeyDown(antes, tecla, Qt::NoModifier);
    EXPECT_EQ(Foco(), fr->Fone1EditBR);
}

} // namespace

#include "TContatoBasFr_test.moc"
