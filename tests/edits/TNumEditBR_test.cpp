#include "platform/edits/TNumEditBR.h"

#include "platform/core/Erros.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TUpDown.h"
#include "support/Widgets.h"

#include <QSignalSpy>

#include <limits>
#include <random>

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct NumEdit : testing::Test {
    NumEdit()
    {
        edit = new TNumEditBR(&janela);
        edit->setGeometry(0, 20, 121, 21);
    }

    /** Text with "|" at the caret. */
    QString Vista() const
    {
        QString texto = edit->text();
        return texto.insert(edit->cursorPosition(), u'|');
    }
    /** Puts a number in, the caret where "|" stands; the text must be as the edit shows it. */
    void Por(const QString &vista)
    {
        QString texto = vista;
        edit->SetText(texto.remove(u'|'));
        ASSERT_EQ(edit->text(), texto);
        edit->setCursorPosition(int(vista.indexOf(u'|')));
    }
    void Teclar(const QString &teclas) { QTest::keyClicks(edit, teclas); }

    TAvisos avisos;
    TJanela janela;
    TNumEditBR *edit;
};

} // namespace

TEST_F(NumEdit, FreshEditHoldsZero)
{
    EXPECT_EQ(edit->text(), QStringLiteral("0"));
    EXPECT_EQ(edit->GetValor(), 0);
    EXPECT_EQ(edit->GetMascEsq(), QStringLiteral("###,###,##0"));
    edit->SetNCasas(2);
    EXPECT_EQ(edit->text(), QStringLiteral("0,00"));
    edit->Clear();
    EXPECT_EQ(edit->text(), QStringLiteral("0,00"));
}

TEST_F(NumEdit, TypedDigitsAreGroupedAtOnce)
{
    edit->selectAll();
    Teclar(QStringLiteral("1234567"));
    EXPECT_EQ(edit->text(), QStringLiteral("1.234.567"));
    EXPECT_EQ(edit->GetValor(), 1234567);
}

TEST_F(NumEdit, TypedCommaGoesBehindTheComma)
{
    edit->SetNCasas(2);
    edit->selectAll();
    Teclar(QStringLiteral("1234"));
    EXPECT_EQ(Vista(), QStringLiteral("1.234|,00"));
    Teclar(QStringLiteral(",5"));
    EXPECT_EQ(Vista(), QStringLiteral("1.234,5|0"));
    Teclar(QStringLiteral("6"));
    EXPECT_EQ(Vista(), QStringLiteral("1.234,56|"));
    Teclar(QStringLiteral("7"));
    EXPECT_EQ(edit->text(), QStringLiteral("1.234,56"));
    edit->selectAll();
    Teclar(QStringLiteral(",5"));
    EXPECT_EQ(edit->text(), QStringLiteral("0,50"));
}

TEST_F(NumEdit, KeypadPointIsTheCommaAndTheOtherPointIsIgnored)
{
    edit->SetNCasas(2);
    edit->selectAll();
    Teclar(QStringLiteral("1.234"));
    EXPECT_EQ(edit->text(), QStringLiteral("1.234,00"));
    Tecla(edit, Qt::Key_Period, QStringLiteral("."), Qt::KeypadModifier);
    Teclar(QStringLiteral("5"));
    EXPECT_EQ(edit->text(), QStringLiteral("1.234,50"));
    edit->SetNCasas(0);
    edit->selectAll();
    Teclar(QStringLiteral("12,5"));
    EXPECT_EQ(edit->text(), QStringLiteral("125"));
}

TEST_F(NumEdit, CaretStaysAtItsDigit)
{
    Por(QStringLiteral("12|3"));
    Teclar(QStringLiteral("9"));
    EXPECT_EQ(Vista(), QStringLiteral("1.29|3"));
    Teclar(QStringLiteral("9"));
    EXPECT_EQ(Vista(), QStringLiteral("12.99|3"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(Vista(), QStringLiteral("1.29|3"));
    Por(QStringLiteral("|1.234"));
    Teclar(QStringLiteral("9"));
    EXPECT_EQ(Vista(), QStringLiteral("9|1.234"));
}

TEST_F(NumEdit, ZeroIsTypedOver)
{
    Por(QStringLiteral("|0"));
    Teclar(QStringLiteral("5"));
    EXPECT_EQ(Vista(), QStringLiteral("5|"));
    Por(QStringLiteral("0|"));
    Teclar(QStringLiteral("05"));
    EXPECT_EQ(Vista(), QStringLiteral("5|"));
    Por(QStringLiteral("|12"));
    Teclar(QStringLiteral("0"));
    EXPECT_EQ(edit->text(), QStringLiteral("12"));
}

TEST_F(NumEdit, BackspaceAndDeletePassOverSeparators)
{
    edit->SetNCasas(2);
    Por(QStringLiteral("1.|234,56"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(Vista(), QStringLiteral("|234,56"));
    Por(QStringLiteral("1|.234,56"));
    QTest::keyClick(edit, Qt::Key_Delete);
    EXPECT_EQ(Vista(), QStringLiteral("1|34,56"));
    Por(QStringLiteral("1.234,|56"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(Vista(), QStringLiteral("123|,56"));
    Por(QStringLiteral("1.234|,56"));
    QTest::keyClick(edit, Qt::Key_Delete);
    EXPECT_EQ(Vista(), QStringLiteral("1.234|,60"));
    Por(QStringLiteral("1,5|6"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(Vista(), QStringLiteral("1,|60"));
    Por(QStringLiteral("1,|56"));
    QTest::keyClick(edit, Qt::Key_Delete);
    EXPECT_EQ(Vista(), QStringLiteral("1,|60"));
}

TEST_F(NumEdit, DeletingEverythingLeavesZero)
{
    Por(QStringLiteral("12|"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(edit->text(), QStringLiteral("0"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(edit->text(), QStringLiteral("0"));
    edit->SetNCasas(2);
    edit->SetText(QStringLiteral("1.234,56"));
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    EXPECT_EQ(Vista(), QStringLiteral("0|,00"));
}

TEST_F(NumEdit, SelectionsAreTypedOver)
{
    edit->SetNCasas(2);
    Por(QStringLiteral("1.234,56|"));
    edit->selectAll();
    Teclar(QStringLiteral("7"));
    EXPECT_EQ(Vista(), QStringLiteral("7|,00"));
    Por(QStringLiteral("1.234,56|"));
    edit->setSelection(0, 5);
    Teclar(QStringLiteral("7"));
    EXPECT_EQ(Vista(), QStringLiteral("7|,56"));
    Por(QStringLiteral("12,34|"));
    edit->setSelection(1, 3);
    Teclar(QStringLiteral("7"));
    EXPECT_EQ(Vista(), QStringLiteral("17|,40"));
    Por(QStringLiteral("1,25|"));
    edit->setSelection(2, 2);
    Teclar(QStringLiteral("7"));
    EXPECT_EQ(Vista(), QStringLiteral("1,7|0"));
}

TEST_F(NumEdit, MinusTurnsTheSignAnywhere)
{
    Por(QStringLiteral("12|3"));
    Teclar(QStringLiteral("-"));
    EXPECT_EQ(Vista(), QStringLiteral("-12|3"));
    EXPECT_EQ(edit->GetValor(), -123);
    Teclar(QStringLiteral("-"));
    EXPECT_EQ(Vista(), QStringLiteral("12|3"));
    Teclar(QStringLiteral("-+"));
    EXPECT_EQ(edit->GetValor(), 123);
    Por(QStringLiteral("-5|"));
    QTest::keyClick(edit, Qt::Key_Home);
    QTest::keyClick(edit, Qt::Key_Delete);
    EXPECT_EQ(edit->text(), QStringLiteral("5"));
    Por(QStringLiteral("-|5"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(edit->text(), QStringLiteral("5"));
}

TEST_F(NumEdit, MinusBeforeTheDigitsIsKeptAndGoesOnLeavingZero)
{
    auto *outro = new QLineEdit(&janela);
    outro->move(0, 100);
    janela.Abrir();
    edit->setFocus();
    Teclar(QStringLiteral("-"));
    EXPECT_EQ(edit->text(), QStringLiteral("-0"));
    EXPECT_EQ(edit->GetValor(), 0);
    Teclar(QStringLiteral("5"));
    EXPECT_EQ(edit->text(), QStringLiteral("-5"));
    edit->selectAll();
    Teclar(QStringLiteral("-3"));
    EXPECT_EQ(edit->GetValor(), -3);
    edit->selectAll();
    Teclar(QStringLiteral("-"));
    outro->setFocus();
    EXPECT_EQ(edit->text(), QStringLiteral("0"));
}

TEST_F(NumEdit, FifteenDigitsAreExact)
{
    edit->selectAll();
    Teclar(QStringLiteral("9999999999999999"));
    EXPECT_EQ(edit->text(), QStringLiteral("999.999.999.999.999"));
    EXPECT_EQ(edit->GetValor(), 999999999999999.0);
    edit->SetValor(0);
    edit->SetNCasas(2);
    edit->selectAll();
    Teclar(QStringLiteral("99999999999999,99"));
    EXPECT_EQ(edit->text(), QStringLiteral("9.999.999.999.999,99"));
    EXPECT_EQ(edit->GetEscalado(), 999999999999999);
    EXPECT_EQ(edit->SQLText(), QStringLiteral("9999999999999.99"));
    EXPECT_EQ(edit->GetValor(), 9999999999999.99);
    for (int centavos = 0; centavos < 100000; centavos += 7) {
        edit->SetValor(double(centavos) / 100);
        ASSERT_EQ(edit->GetEscalado(), centavos);
        ASSERT_EQ(edit->GetValor(), double(centavos) / 100);
    }
}

TEST_F(NumEdit, IntegerPlacesAreLimited)
{
    edit->SetNCasasEsq(3);
    edit->SetNCasas(1);
    edit->selectAll();
    Teclar(QStringLiteral("12345,6"));
    EXPECT_EQ(edit->text(), QStringLiteral("123,6"));
    edit->SetValor(123456.7);
    EXPECT_EQ(edit->text(), QStringLiteral("123.456,7"));
}

TEST_F(NumEdit, PaddedMaskTypesFromTheRight)
{
    edit->SetMascEsq(QStringLiteral("000000"));
    edit->SetNCasasEsq(6);
    EXPECT_EQ(edit->text(), QStringLiteral("000000"));
    edit->selectAll();
    Teclar(QStringLiteral("12"));
    EXPECT_EQ(Vista(), QStringLiteral("000012|"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(Vista(), QStringLiteral("000001|"));
    edit->setCursorPosition(0);
    Teclar(QStringLiteral("7"));
    EXPECT_EQ(Vista(), QStringLiteral("00007|1"));
    edit->SetMascEsq(QStringLiteral("########0"));
    EXPECT_EQ(edit->text(), QStringLiteral("71"));
}

TEST_F(NumEdit, OtherKeysAreIgnored)
{
    Por(QStringLiteral("12|"));
    Teclar(QStringLiteral("abc !/"));
    Tecla(edit, 0, QStringLiteral("²"));
    EXPECT_EQ(edit->text(), QStringLiteral("12"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(NumEdit, PastesNumbersAsPeopleWriteThem)
{
    edit->SetNCasas(2);
    for (const QString &colado :
         {QStringLiteral("1.234,56"), QStringLiteral("1234,56"), QStringLiteral("R$ 1.234,56"),
          QStringLiteral("1234.56"), QStringLiteral(" 1,234.56\n"), QStringLiteral("1.234,5600")}) {
        edit->SetText(QStringLiteral("7"));
        ColarTexto(edit, colado);
        EXPECT_EQ(edit->text(), QStringLiteral("1.234,56")) << colado.toStdString();
    }
    ColarTexto(edit, QStringLiteral("-2,5"));
    EXPECT_EQ(edit->text(), QStringLiteral("-2,50"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(NumEdit, PastedDigitsAreTypedAtTheCaret)
{
    Por(QStringLiteral("1|2"));
    ColarTexto(edit, QStringLiteral("99"));
    EXPECT_EQ(Vista(), QStringLiteral("1.99|2"));
    edit->selectAll();
    ColarTexto(edit, QStringLiteral("0042"));
    EXPECT_EQ(edit->text(), QStringLiteral("42"));
}

TEST_F(NumEdit, NonsenseIsNotPastedAndSaysWhy)
{
    edit->SetNCasas(2);
    edit->SetText(QStringLiteral("7"));
    ColarTexto(edit, QStringLiteral("sete"));
    ColarTexto(edit, QStringLiteral("1,234"));
    ColarTexto(edit, QStringLiteral("99999999999999,99"));
    ColarTexto(edit, QStringLiteral("9999999999999999"));
    ColarTexto(edit, QStringLiteral("10 €"));
    EXPECT_EQ(edit->text(), QStringLiteral("7,00"));
    ASSERT_EQ(avisos.textos.size(), 5);
    EXPECT_EQ(avisos.textos[0], QStringLiteral("\"sete\" não é um número e não foi colado."));
    EXPECT_EQ(avisos.textos[1], QStringLiteral("O número 1,234 tem 3 casas decimais e este campo "
                                               "aceita 2. Ele não foi colado."));
    EXPECT_EQ(avisos.textos[2], QStringLiteral("O número 99999999999999,99 não cabe neste campo."));
    EXPECT_EQ(avisos.textos[3], QStringLiteral("O número 9999999999999999 não cabe neste campo."));
}

TEST_F(NumEdit, CutAndUndo)
{
    edit->SetText(QStringLiteral("1234"));
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(edit->text(), QStringLiteral("0"));
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1.234"));
    QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(edit->text(), QStringLiteral("1.234"));
}

TEST_F(NumEdit, AnnouncesOncePerEdit)
{
    edit->SetNCasas(2);
    QSignalSpy mudou(edit, &QLineEdit::textChanged);
    QSignalSpy editado(edit, &QLineEdit::textEdited);
    int chamadas = 0;
    edit->OnChange = [&](QObject *) { ++chamadas; };
    edit->SetValor(1234.5);
    EXPECT_EQ(mudou.count(), 1);
    edit->SetValor(1234.5);
    EXPECT_EQ(mudou.count(), 1);
    edit->selectAll();
    Teclar(QStringLiteral("7"));
    EXPECT_EQ(mudou.count(), 2);
    EXPECT_EQ(editado.count(), 1);
    Teclar(QStringLiteral(",a"));
    EXPECT_EQ(mudou.count(), 2);
    ColarTexto(edit, QStringLiteral("1.000,00"));
    EXPECT_EQ(mudou.count(), 3);
    EXPECT_EQ(chamadas, 3);
}

TEST_F(NumEdit, ValueIsRightWhenTheChangeIsAnnounced)
{
    QList<double> valores;
    edit->OnChange = [&](QObject *) { valores << edit->GetValor(); };
    edit->selectAll();
    Teclar(QStringLiteral("12"));
    EXPECT_EQ(valores, (QList<double>{1, 12}));
}

TEST_F(NumEdit, Variants)
{
    edit->SetValorVariant(Variant(-7));
    EXPECT_EQ(edit->GetValorVariant(), Variant(-7));
    EXPECT_TRUE(edit->GetValorVariant().EhInteiro());
    edit->SetValorVariant(Null);
    EXPECT_EQ(edit->text(), QStringLiteral("0"));
    edit->SetValorVariant(Variant());
    EXPECT_EQ(edit->text(), QStringLiteral("0"));
    edit->SetValorVariant(Variant(3e9));
    EXPECT_TRUE(edit->GetValorVariant().EhDouble());
    EXPECT_EQ(edit->GetValorVariant().AsFloat(), 3e9);
    edit->SetValorVariant(Variant(std::numeric_limits<int>::min()));
    EXPECT_TRUE(edit->GetValorVariant().EhInteiro());
    edit->SetNCasas(2);
    edit->SetValorVariant(Variant(u"1.234,56"));
    EXPECT_EQ(edit->text(), QStringLiteral("1.234,56"));
    EXPECT_TRUE(edit->GetValorVariant().EhDouble());
    EXPECT_EQ(edit->GetValorVariant().AsFloat(), 1234.56);
    edit->SetValorVariant(Variant(u""));
    EXPECT_EQ(edit->text(), QStringLiteral("0,00"));
}

TEST_F(NumEdit, WhatIsNoNumberRaisesAndTheNumberStays)
{
    edit->SetText(QStringLiteral("7"));
    EXPECT_THROW(edit->SetText(QStringLiteral("sete")), EVariantError);
    EXPECT_THROW(edit->SetValorVariant(Variant(u"sete")), EVariantError);
    EXPECT_THROW(edit->SetValor(std::numeric_limits<double>::quiet_NaN()), EVariantError);
    EXPECT_THROW(edit->SetValor(1e30), EVariantError);
    EXPECT_EQ(edit->text(), QStringLiteral("7"));
    edit->SetText(QStringLiteral("999999999999999999"));
    EXPECT_THROW(edit->SetNCasas(2), EVariantError);
    EXPECT_EQ(edit->GetNCasas(), 0);
}

TEST_F(NumEdit, SQLTextHasAPointAndNoGrouping)
{
    edit->SetText(QStringLiteral("-1.234.567"));
    EXPECT_EQ(edit->SQLText(), QStringLiteral("-1234567"));
    edit->SetNCasas(2);
    edit->SetValor(1234.5);
    EXPECT_EQ(edit->SQLText(), QStringLiteral("1234.50"));
    edit->SetMascEsq(QStringLiteral("000000"));
    EXPECT_EQ(edit->SQLText(), QStringLiteral("1234.50"));
    edit->SetValor(-0.05);
    EXPECT_EQ(edit->SQLText(), QStringLiteral("-0.05"));
}

TEST_F(NumEdit, LayoutMaySetTheNumberBeforeThePlaces)
{
    edit->setProperty("text", QStringLiteral("0,0"));
    edit->setProperty("NCasas", 1);
    EXPECT_EQ(edit->text(), QStringLiteral("0,0"));
    TNumEditBR outro;
    outro.setProperty("Valor", 12.345);
    EXPECT_EQ(outro.text(), QStringLiteral("12"));
    outro.setProperty("MascEsq", QStringLiteral("########0"));
    outro.setProperty("NCasas", 3);
    EXPECT_EQ(outro.text(), QStringLiteral("12,345"));
    outro.setProperty("alignment", int(Qt::AlignRight));
    outro.setProperty("AutoExit", true);
    outro.setProperty("NCasasEsq", 5);
    EXPECT_TRUE(outro.GetAutoExit());
    EXPECT_EQ(outro.GetNCasasEsq(), 5);
    EXPECT_EQ(outro.property("Valor").toDouble(), 12.345);
    EXPECT_STREQ(outro.metaObject()->userProperty().name(), "Valor");
    EXPECT_TRUE(ClassesRegistradas().contains(QStringLiteral("TNumEditBR")));
}

TEST_F(NumEdit, TypedNumberIsNotRoundedTwice)
{
    edit->SetNCasas(2);
    edit->SetValor(12.345);
    edit->selectAll();
    Teclar(QStringLiteral("1,55"));
    edit->SetNCasas(1);
    EXPECT_EQ(edit->text(), QStringLiteral("1,6"));
}

TEST_F(NumEdit, WritingThroughTheBaseClassIsBroughtIntoForm)
{
    edit->SetNCasas(2);
    QLineEdit *base = edit;
    base->setText(QStringLiteral("1234,5"));
    EXPECT_EQ(edit->text(), QStringLiteral("1.234,50"));
    base->setText(QStringLiteral("sete"));
    EXPECT_EQ(edit->text(), QStringLiteral("0,00"));
    base->setText(QString(30, u'9'));
    EXPECT_EQ(edit->text(), QStringLiteral("0,00"));
    base->clear();
    EXPECT_EQ(edit->GetValor(), 0);
}

TEST_F(NumEdit, EnterLeavesWithAutoExit)
{
    auto *outro = new QLineEdit(&janela);
    outro->move(0, 100);
    janela.Abrir();
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_TRUE(edit->hasFocus());
    edit->SetAutoExit(true);
    QTest::keyClick(edit, Qt::Key_Enter);
    EXPECT_TRUE(outro->hasFocus());
}

TEST_F(NumEdit, FullNumberLeavesWithAutoExitAndIntegerPlaces)
{
    auto *outro = new QLineEdit(&janela);
    outro->move(0, 100);
    edit->SetAutoExit(true);
    edit->SetNCasasEsq(3);
    janela.Abrir();
    edit->setFocus();
    Teclar(QStringLiteral("12"));
    EXPECT_TRUE(edit->hasFocus());
    Teclar(QStringLiteral("3"));
    EXPECT_TRUE(outro->hasFocus());
    edit->SetNCasas(2);
    edit->setFocus();
    Teclar(QStringLiteral("123"));
    EXPECT_TRUE(edit->hasFocus());
    Teclar(QStringLiteral(",45"));
    EXPECT_TRUE(outro->hasFocus());
    edit->SetNCasas(0);
    edit->SetNCasasEsq(0);
    edit->setFocus();
    Teclar(QStringLiteral("123456789012345"));
    EXPECT_TRUE(edit->hasFocus());
}

TEST_F(NumEdit, EnteringSelectsEverythingExceptByAClick)
{
    auto *outro = new QLineEdit(&janela);
    outro->move(0, 100);
    edit->SetText(QStringLiteral("12"));
    janela.Abrir();
    outro->setFocus();
    edit->setFocus();
    EXPECT_EQ(edit->selectedText(), QStringLiteral("12"));
    outro->setFocus();
    QTest::mouseClick(edit, Qt::LeftButton, {}, QPoint(5, 10));
    EXPECT_FALSE(edit->hasSelectedText());
}

TEST_F(NumEdit, ReadOnlyTakesNothing)
{
    edit->SetText(QStringLiteral("12"));
    edit->setReadOnly(true);
    Teclar(QStringLiteral("3-"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    ColarTexto(edit, QStringLiteral("9"));
    EXPECT_EQ(edit->text(), QStringLiteral("12"));
}

TEST_F(NumEdit, SpinButtonStepsTheNumber)
{
    TUpDown botoes;
    botoes.Associar(edit);
    edit->SetNCasas(1);
    edit->SetText(QStringLiteral("1.999,5"));
    QTest::keyClick(edit, Qt::Key_Up);
    EXPECT_EQ(edit->text(), QStringLiteral("2.000,5"));
    EXPECT_EQ(botoes.GetPosition(), 2000);
    QTest::keyClick(edit, Qt::Key_Down);
    EXPECT_EQ(edit->text(), QStringLiteral("1.999,5"));
}

TEST_F(NumEdit, BurstOfKeysLosesNone)
{
    edit->SetNCasas(2);
    edit->selectAll();
    // 200 keys that write, sign and delete; the same steps on a plain counter.
    std::int64_t inteiro = 0;
    for (int i = 0; i < 100; ++i) {
        const int digito = i % 9 + 1;
        Teclar(QString::number(digito));
        if (i == 0 || inteiro < 1000000000000)
            inteiro = inteiro * 10 + digito;
        if (i % 7 == 6) {
            QTest::keyClick(edit, Qt::Key_Backspace);
            inteiro /= 10;
        } else {
            Teclar(QStringLiteral("-"));
            Teclar(QStringLiteral("-"));
        }
        ASSERT_EQ(edit->GetEscalado(), inteiro * 100) << i;
    }
}

TEST_F(NumEdit, RandomEditScriptsKeepTextAndNumberTogether)
{
    std::mt19937 sorte(20240229);
    const auto um = [&](int n) { return int(sorte() % unsigned(n)); };
    const QString teclas = QStringLiteral("0123456789,-+.x");
    for (int casas = 0; casas <= 3; ++casas) {
        for (const char *mascara : {"###,###,##0", "########0", "000000"}) {
            edit->SetText(QString());
            edit->SetNCasas(casas);
            edit->SetMascEsq(QString::fromLatin1(mascara));
            TFormatoNumerico formato;
            formato.Casas = casas;
            formato.LerMascara(edit->GetMascEsq());
            for (int i = 0; i < 2000; ++i) {
                const int n = int(edit->text().size());
                switch (um(8)) {
                case 0:
                    edit->setCursorPosition(um(n + 1));
                    break;
                case 1:
                    edit->setSelection(um(n), 1 + um(n));
                    break;
                case 2:
                    QTest::keyClick(edit, um(2) ? Qt::Key_Backspace : Qt::Key_Delete);
                    break;
                case 3:
                    if (um(4) == 0)
                        QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
                    break;
                default:
                    Teclar(QString(teclas.at(um(int(teclas.size())))));
                }
                const std::int64_t numero = edit->GetEscalado();
                const QString certo = FormatarEscalado(numero, formato);
                const bool pendente = numero == 0 && edit->text() == u'-' + certo;
                ASSERT_TRUE(edit->text() == certo || pendente)
                    << edit->text().toStdString() << " / " << certo.toStdString();
                ASSERT_LE(edit->cursorPosition(), edit->text().size());
            }
        }
    }
    EXPECT_TRUE(avisos.textos.isEmpty());
}
