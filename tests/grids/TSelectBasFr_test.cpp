#include "grids/USelectBasFr.h"
#include "grids/USelectCodBasFr.h"
#include "grids/USelectFrVelho.h"

#include "platform/core/Erros.h"
#include "platform/core/Servicos.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QPointer>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** One frame on an active window, before a plain edit. */
template <typename T>
class TTela : public testing::Test
{
protected:
    TTela()
    {
        Servicos().ReportarErro = [this](std::exception_ptr erro) { erros << TextoDoErro(erro); };
        fr = Criar<T>(&tela);
        depois->move(10, 100);
        tela.resize(400, 200);
        tela.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&tela));
    }
    void TearDown() override { EXPECT_EQ(erros, QStringList()); }

    void Digitar(QWidget *alvo, const char *texto)
    {
        for (const QChar c : QString::fromUtf8(texto))
            QTest::sendKeyEvent(QTest::Click, alvo, Qt::Key(c.toUpper().unicode()), QString(c),
                                Qt::NoModifier);
    }
    static QWidget *Foco() { return QApplication::focusWidget(); }

    TServicosGuarda guarda;
    QStringList erros;
    QWidget tela;
    T *fr = nullptr;
    QLineEdit *depois = new QLineEdit(&tela);
};

using TSelectBasFrTest = TTela<TSelectBasFr>;
using TSelectCodBasFrTest = TTela<TSelectCodBasFr>;
using TSelectFrVelhoTest = TTela<TSelectFrVelho>;

} // namespace

TEST_F(TSelectBasFrTest, LayoutIsTheGoldenOne)
{
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TSelectBasFr")));
    EXPECT_EQ(fr->DescrLabeledEdit->GetCaption(), QStringLiteral("Descrição"));
    EXPECT_EQ(fr->DescrLabeledEdit->GetLabelSpacing(), 0);
    EXPECT_EQ(fr->DescrLabeledEdit->GetMaxLength(), 0);
    EXPECT_EQ(fr->SelectBitBtn->toolTip(), QStringLiteral("Buscar Turmas (F6)"));
    EXPECT_EQ(fr->Codigo, 0);
    EXPECT_FALSE(fr->OnBuscarDescr);
}

TEST_F(TSelectBasFrTest, AccentsAreTypedAsPlainLetters)
{
    fr->DescrLabeledEdit->setFocus();
    Digitar(fr->DescrLabeledEdit, "Caçarola é ótima");
    EXPECT_EQ(fr->DescrLabeledEdit->GetText(), QStringLiteral("Cacarola e otima"));
}

TEST_F(TSelectBasFrTest, EnterAsksForTheDescriptionAndShowsWhatWasFound)
{
    fr->DescrLabeledEdit->SetText(QStringLiteral("can"));
    fr->DescrLabeledEdit->setFocus();
    fr->Codigo = 5;
    int perguntas = 0;
    fr->OnBuscarDescr = [&](std::int32_t &codigo, QString &descr) {
        ++perguntas;
        EXPECT_EQ(codigo, 5);
        EXPECT_EQ(descr, QStringLiteral("can"));
        codigo = 10;
        descr = QStringLiteral("Caneta azul");
        return true;
    };
    QTest::keyClick(Foco(), Qt::Key_Return);
    EXPECT_EQ(perguntas, 1);
    EXPECT_EQ(fr->Codigo, 10);
    EXPECT_EQ(fr->DescrLabeledEdit->GetText(), QStringLiteral("Caneta azul"));
    EXPECT_EQ(Foco(), fr->DescrLabeledEdit);
}

TEST_F(TSelectBasFrTest, WhatTheScreenDoesNotKnowClicksTheButtonWhichOnlyFocusesTheDescription)
{
    fr->DescrLabeledEdit->SetText(QStringLiteral("xyz"));
    fr->DescrLabeledEdit->setFocus();
    fr->OnBuscarDescr = [](std::int32_t &codigo, QString &descr) {
        codigo = 7;
        descr = QStringLiteral("outra");
        return false;
    };
    int cliques = 0;
    QObject::connect(fr->SelectBitBtn, &QPushButton::clicked, fr, [&] { ++cliques; });
    QTest::keyClick(Foco(), Qt::Key_Enter);
    EXPECT_EQ(cliques, 1);
    EXPECT_EQ(fr->DescrLabeledEdit->GetText(), QStringLiteral("xyz"));
    EXPECT_EQ(fr->Codigo, 7) << "the code was handed over to be rewritten";
    depois->setFocus();
    fr->OnBuscarDescr = nullptr;
    QTest::mouseClick(fr->SelectBitBtn, Qt::LeftButton);
    EXPECT_EQ(Foco(), fr->DescrLabeledEdit);
    QTest::keyClick(Foco(), Qt::Key_Return);
    EXPECT_EQ(cliques, 2) << "nobody to ask: Enter is the screen's";
}

TEST_F(TSelectBasFrTest, TheScreenMayGoOrFailWhileItIsAsked)
{
    fr->DescrLabeledEdit->setFocus();
    fr->OnBuscarDescr = [](std::int32_t &, QString &) -> bool {
        throw EErro(QStringLiteral("sem conexão"));
    };
    QTest::keyClick(Foco(), Qt::Key_Return);
    EXPECT_EQ(std::exchange(erros, {}), QStringList{QStringLiteral("sem conexão")});
    const QPointer<TSelectBasFr> vivo(fr);
    fr->OnBuscarDescr = [&](std::int32_t &codigo, QString &descr) {
        delete fr;
        codigo = 1;
        descr = QStringLiteral("tarde");
        return true;
    };
    QTest::keyClick(Foco(), Qt::Key_Return);
    EXPECT_TRUE(vivo.isNull());
}

TEST_F(TSelectCodBasFrTest, LayoutIsTheGoldenOne)
{
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TSelectCodBasFr")));
    EXPECT_EQ(fr->DescrLabeledEdit->GetMaxLength(), 20);
    TNumEditBR *cod = fr->CodNumEditBR;
    EXPECT_EQ(cod->GetCaption(), QStringLiteral("Código"));
    EXPECT_TRUE(cod->alignment() & Qt::AlignHCenter);
    EXPECT_TRUE(cod->GetAutoExit());
    EXPECT_EQ(cod->GetNCasas(), 0);
    EXPECT_EQ(cod->GetNCasasEsq(), 6);
    EXPECT_EQ(cod->GetMascEsq(), QStringLiteral("000000"));
    EXPECT_EQ(cod->GetValor(), 0);
    EXPECT_FALSE(fr->OnBuscarCod);
}

TEST_F(TSelectCodBasFrTest, TabGoesFromCodeToDescriptionToButton)
{
    depois->setFocus();
    QTest::keyClick(Foco(), Qt::Key_Tab);
    EXPECT_EQ(Foco(), fr->CodNumEditBR);
    QTest::keyClick(Foco(), Qt::Key_Tab);
    EXPECT_EQ(Foco(), fr->DescrLabeledEdit);
    QTest::keyClick(Foco(), Qt::Key_Tab);
    EXPECT_EQ(Foco(), fr->SelectBitBtn);
    QTest::keyClick(Foco(), Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
}

TEST(TSelectCodBasFr, AScreenOfItsOwnStartsInTheCode)
{
    QWidget tela;
    auto *fr = Criar<TSelectCodBasFr>(&tela);
    tela.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
    EXPECT_EQ(QApplication::focusWidget(), fr->CodNumEditBR);
}

TEST_F(TSelectCodBasFrTest, EnterInTheCodeAsksForItShowsBothAndGoesOn)
{
    fr->CodNumEditBR->setFocus();
    fr->DescrLabeledEdit->SetText(QStringLiteral("antiga"));
    fr->OnBuscarCod = [&](std::int32_t &codigo, QString &descr) {
        EXPECT_EQ(codigo, 123);
        EXPECT_EQ(fr->Codigo, 123);
        EXPECT_EQ(descr, QString());
        codigo = 124;
        descr = QStringLiteral("Água mineral");
        return true;
    };
    Digitar(fr->CodNumEditBR, "123");
    QTest::keyClick(Foco(), Qt::Key_Return);
    EXPECT_EQ(fr->Codigo, 124);
    EXPECT_EQ(fr->CodNumEditBR->GetText(), QStringLiteral("000124"));
    EXPECT_EQ(fr->DescrLabeledEdit->GetText(), QStringLiteral("Água mineral"));
    EXPECT_EQ(Foco(), fr->DescrLabeledEdit) << "Enter leaves the edit for the next one";
}

TEST_F(TSelectCodBasFrTest, ACodeThatIsNotFoundClicksTheSearchButton)
{
    fr->CodNumEditBR->setFocus();
    fr->OnBuscarCod = [](std::int32_t &, QString &) { return false; };
    int cliques = 0;
    QObject::connect(fr->SelectBitBtn, &QPushButton::clicked, fr, [&] { ++cliques; });
    Digitar(fr->CodNumEditBR, "77");
    QTest::keyClick(Foco(), Qt::Key_Return);
    EXPECT_EQ(cliques, 1);
    EXPECT_EQ(Foco(), fr->DescrLabeledEdit) << "where the button puts it, and no farther";
    EXPECT_EQ(fr->Codigo, 77);
    EXPECT_EQ(fr->CodNumEditBR->GetText(), QStringLiteral("000077"));
}

TEST_F(TSelectCodBasFrTest, WithoutAnybodyToAskEnterJustGoesOn)
{
    fr->CodNumEditBR->setFocus();
    Digitar(fr->CodNumEditBR, "5");
    QTest::keyClick(Foco(), Qt::Key_Return);
    EXPECT_EQ(Foco(), fr->DescrLabeledEdit);
    EXPECT_EQ(fr->Codigo, 0);
}

TEST_F(TSelectCodBasFrTest, ADescriptionThatIsFoundShowsItsCodeToo)
{
    fr->DescrLabeledEdit->setFocus();
    Digitar(fr->DescrLabeledEdit, "água com gás em garrafas de vidro");
    EXPECT_EQ(fr->DescrLabeledEdit->GetText(), QStringLiteral("agua com gas em garr"));
    fr->OnBuscarDescr = [](std::int32_t &codigo, QString &descr) {
        codigo = 321;
        descr = QStringLiteral("Água com gás em garrafas");
        return true;
    };
    QTest::keyClick(Foco(), Qt::Key_Return);
    EXPECT_EQ(fr->CodNumEditBR->GetText(), QStringLiteral("000321"));
    EXPECT_EQ(fr->DescrLabeledEdit->GetText(), QStringLiteral("Água com gás em garrafas"))
        << "the limit binds the user only";
}

TEST_F(TSelectCodBasFrTest, TheScreenMayGoWhileItIsAskedForACode)
{
    fr->CodNumEditBR->setFocus();
    const QPointer<TSelectCodBasFr> vivo(fr);
    fr->OnBuscarCod = [&](std::int32_t &, QString &) {
        delete fr;
        return true;
    };
    QTest::keyClick(Foco(), Qt::Key_Return);
    EXPECT_TRUE(vivo.isNull());
}

TEST_F(TSelectFrVelhoTest, IsAShellWithoutBehaviour)
{
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TSelectFrVelho")));
    EXPECT_EQ(fr->Numero, 0);
    EXPECT_EQ(fr->Texto, QString());
    EXPECT_EQ(fr->ActionList1->Count(), 0);
    fr->LabeledEdit1->setFocus();
    Digitar(fr->LabeledEdit1, "ação");
    EXPECT_EQ(fr->LabeledEdit1->GetText(), QStringLiteral("ação"));
    QTest::keyClick(Foco(), Qt::Key_Return);
    EXPECT_EQ(Foco(), fr->LabeledEdit1);
    QTest::mouseClick(fr->BitBtn1, Qt::LeftButton);
    EXPECT_EQ(fr->LabeledEdit1->GetText(), QStringLiteral("ação"));
}
