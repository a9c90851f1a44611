#include "base/UControlInfo.h"
#include "base/UDBControlBasFr.h"
#include "platform/core/Servicos.h"
#include "platform/edits/TFoneEditBR.h"
#include "platform/edits/TMaskEditBR.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TMemo.h"

#include <QLineEdit>
#include <QPushButton>

using namespace ficha;

namespace
{

class TValorFr : public TDBControlBasFr
{
    Q_OBJECT
public:
    using TDBControlBasFr::TDBControlBasFr;
    Variant GetValor() const override { return valor; }
    void SetValor(const Variant &v) override { valor = v; }
    void Zerar() override
    {
        TDBControlBasFr::Zerar();
        valor = 7;
    }
    Variant valor = 1;
};

class TControlInfoTest : public testing::Test
{
protected:
    void Ligar(QWidget *controle) { info.SetControl(controle); }

    QWidget janela;
    TControlInfo info;
};

TEST_F(TControlInfoTest, IsEmptyAfterConstruction)
{
    EXPECT_EQ(info.Control(), nullptr);
    EXPECT_EQ(info.Classe(), nullptr);
    EXPECT_TRUE(info.GetValor().EhNaoAtribuido());
}

TEST_F(TControlInfoTest, AStringWithBlanksIsTrimmedInAnEditAndNotInAComboBox)
{
    TLabeledEdit edit(&janela);
    Ligar(&edit);
    EXPECT_EQ(info.Classe(), &TLabeledEdit::staticMetaObject);
    info.SetValor(QStringLiteral("  dois  nomes "));
    EXPECT_EQ(edit.text(), QStringLiteral("dois  nomes"));
    EXPECT_EQ(info.GetValor(), Variant("dois  nomes"));
    info.SetValor(Null);
    EXPECT_EQ(edit.text(), QString());

    TComboBox combo(&janela);
    Ligar(&combo);
    info.SetValor(QStringLiteral("  dois "));
    EXPECT_EQ(combo.currentText(), QStringLiteral("  dois "));
    EXPECT_EQ(info.GetValor(), Variant("  dois "));
    info.Zerar();
    EXPECT_EQ(combo.currentText(), QString());
}

TEST_F(TControlInfoTest, AMemoGivesAllItsLines)
{
    TMemo memo(&janela);
    Ligar(&memo);
    info.SetValor(QStringLiteral(" um\r\ndois "));
    EXPECT_EQ(info.GetValor().AsString().replace(QStringLiteral("\r\n"), QStringLiteral("\n")),
              QStringLiteral("um\ndois"));
    info.Zerar();
    EXPECT_EQ(info.GetValor(), Variant(""));
}

TEST_F(TControlInfoTest, ADateMaskShowsADateAndNothingFor0OrNull)
{
    for (const char *mascara : {"99/99/99;1;_", "00/00/00;1;_"}) {
        TMaskEditBR edit(&janela);
        edit.SetEditMask(QString::fromLatin1(mascara));
        Ligar(&edit);
        info.SetValor(TDateTime::DeData(5, 3, 2026));
        EXPECT_EQ(edit.GetText(), QStringLiteral("05/03/26"));
        info.SetValor(0);
        EXPECT_EQ(edit.GetText().remove(u'/').trimmed(), QString());
        info.SetValor(TDateTime::DeData(31, 12, 1999));
        EXPECT_EQ(edit.GetText(), QStringLiteral("31/12/99"));
        info.SetValor(Null);
        EXPECT_EQ(edit.GetText().remove(u'/').trimmed(), QString());
    }
}

TEST_F(TControlInfoTest, AnyOtherMaskTakesTheTrimmedText)
{
    TMaskEditBR edit(&janela);
    edit.SetEditMask(QStringLiteral("999-999;0;_"));
    Ligar(&edit);
    info.SetValor(QStringLiteral(" 123456 "));
    EXPECT_EQ(edit.GetText(), QStringLiteral("123456"));
    EXPECT_EQ(info.GetValor(), Variant("123456"));
    info.Zerar();
    EXPECT_EQ(edit.GetText(), QString());

    TMaskEdit simples(&janela);
    simples.SetEditMask(QStringLiteral("99/99/99;0;_"));
    Ligar(&simples);
    info.SetValor(QStringLiteral(" 05032026 "));
    EXPECT_EQ(simples.GetText(), QStringLiteral("05032026")) << "a longer text is kept whole";
}

TEST_F(TControlInfoTest, PhonesGoThroughTheirOwnSetterButAreEmptiedPlainly)
{
    TFoneEditBR fone(&janela);
    Ligar(&fone);
    info.SetValor(QStringLiteral(" 987654321 "));
    EXPECT_EQ(fone.text(), QStringLiteral("98765-4321"));
    EXPECT_EQ(info.GetValor(), Variant("98765-4321"));
    info.Zerar();
    EXPECT_EQ(fone.text(), QString());
}

TEST_F(TControlInfoTest, AColumnBoundFrameAnswersForItself)
{
    auto *fr = Criar<TValorFr>(&janela);
    Ligar(fr);
    EXPECT_EQ(info.Frame(), fr);
    EXPECT_EQ(info.GetValor(), Variant(1));
    info.SetValor(QStringLiteral(" x "));
    EXPECT_EQ(fr->valor, Variant(" x ")) << "not trimmed on the way";
    info.Zerar();
    EXPECT_EQ(fr->valor, Variant(7));
    delete fr;
    EXPECT_EQ(info.Frame(), nullptr);
    info.SetValor(3);
    EXPECT_TRUE(info.GetValor().EhNaoAtribuido()) << "a destroyed control counts as none";
}

TEST_F(TControlInfoTest, AComboBoxNamedCNPJPopsUpItsValueEachTime)
{
    TServicosGuarda guarda;
    QStringList mostrados;
    Servicos().MensagemSimples = [&](const QString &texto) { mostrados << texto; };
    TComboBox combo(&janela);
    combo.setObjectName(QStringLiteral("ComboCNPJ1"));
    Ligar(&combo);
    info.SetValor(QStringLiteral("01.838.723/0001-27"));
    info.SetValor(12);
    EXPECT_EQ(mostrados, QStringList({QStringLiteral("01.838.723/0001-27"), QStringLiteral("12")}));
    EXPECT_EQ(combo.currentText(), QStringLiteral("12"));
    combo.setObjectName(QStringLiteral("Combocnpj1"));
    info.SetValor(13);
    EXPECT_EQ(mostrados.size(), 2) << "upper case only";
}

TEST_F(TControlInfoTest, AControlOfAnUnknownKindIsLeftUntouched)
{
    QPushButton botao(QStringLiteral("Ok"), &janela);
    Ligar(&botao);
    info.SetValor(QStringLiteral("x"));
    info.Zerar();
    EXPECT_EQ(botao.text(), QStringLiteral("Ok"));
    EXPECT_TRUE(info.GetValor().EhNaoAtribuido());

    auto *semColuna = Criar<TControlBasFr>(&janela);
    Ligar(semColuna);
    EXPECT_EQ(info.Frame(), nullptr) << "a value frame without a column is no kind of its own";
    EXPECT_TRUE(info.GetValor().EhNaoAtribuido());
}

TEST_F(TControlInfoTest, AComboBoxMayGoWhileItsValueIsShown)
{
    TServicosGuarda guarda;
    auto *combo = new TComboBox(&janela);
    combo->setObjectName(QStringLiteral("CNPJ"));
    Servicos().MensagemSimples = [&](const QString &) { delete combo; };
    Ligar(combo);
    info.SetValor(QStringLiteral("1"));
    EXPECT_EQ(info.Control(), nullptr);
}

TEST_F(TControlInfoTest, ANumberOrADateIsShownAsItsTextInAPlainEdit)
{
    QLineEdit edit(&janela);
    Ligar(&edit);
    info.SetValor(12.5);
    EXPECT_EQ(edit.text(), QStringLiteral("12,5"));
    info.SetValor(TDateTime::DeData(5, 3, 2026));
    EXPECT_EQ(edit.text(), QStringLiteral("05/03/2026"));
}

TEST_F(TControlInfoTest, ADateMaskTakesADateAsTextToo)
{
    TMaskEditBR edit(&janela);
    edit.SetEditMask(QStringLiteral("99/99/99"));
    Ligar(&edit);
    info.SetValor(QStringLiteral("05/03/2026"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("05/03/26"));
    info.SetValor(TDateTime());
    EXPECT_EQ(edit.GetText().remove(u'/').trimmed(), QString()) << "day 0 is no date";
    info.SetValor(TDateTime::DeData(5, 3, 2026));
    info.Zerar();
    EXPECT_EQ(edit.GetText().remove(u'/').trimmed(), QString());
}

} // namespace

#include "TControlInfo_test.moc"
