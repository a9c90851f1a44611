#include "dates/UDTPBasFr.h"
#include "dates/UDatasFr.h"
#include "platform/core/Relogio.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <QLabel>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TDatasFrTest : public TEntradaTest
{
protected:
    TDatasFrTest()
    {
        SetRelogio([] { return TDateTime(QDateTime(QDate(2026, 11, 20), QTime(9, 30))); });
        Servicos().MensagemInfo = [this](const QString &texto) { infos << texto; };
        Servicos().MensagemErro = [this](const QString &texto) { errosMostrados << texto; };
    }
    ~TDatasFrTest() override { SetRelogio({}); }

    QStringList infos;
    QStringList errosMostrados;
};

TEST_F(TDatasFrTest, LayoutIsTheGoldenOne)
{
    auto *fr = Mostrado<TDatasFr>();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TDatasFr")));
    EXPECT_EQ(fr->DTPFr1->TitLabel->text(), QStringLiteral("De"));
    EXPECT_EQ(fr->DTPFr2->TitLabel->text(), QStringLiteral("Até"));
}

TEST_F(TDatasFrTest, BothEndsStartOnToday)
{
    auto *fr = Mostrado<TDatasFr>();
    EXPECT_EQ(fr->DTPFr1->GetValor(), Variant(Hoje().Dias()));
    EXPECT_EQ(fr->DTPFr2->GetValor(), Variant(Hoje().Dias()));
    EXPECT_EQ(fr->DTPFr2->DateTimePicker1->text(), QStringLiteral("20/11/2026"));
}

TEST_F(TDatasFrTest, EqualDatesAreARangeAndAReversedOneIsTold)
{
    auto *fr = Mostrado<TDatasFr>();
    EXPECT_TRUE(fr->DadosOk());
    fr->DTPFr2->SetValor(TDateTime(Hoje().Dias() + 1));
    EXPECT_TRUE(fr->DadosOk());
    EXPECT_EQ(infos, QStringList());
    fr->DTPFr2->SetValor(TDateTime(Hoje().Dias() - 1));
    EXPECT_FALSE(fr->DadosOk());
    EXPECT_EQ(infos, QStringList{QStringLiteral("A data inicial está maior que a final.")});
    EXPECT_EQ(avisos + errosMostrados, QStringList()) << "an information, no warning, no error";
}

TEST_F(TDatasFrTest, WhatTheUserDoesReachesTheInnerFrames)
{
    auto *fr = Mostrado<TDatasFr>();
    fr->DTPFr1->SetFocus();
    Digitar(fr->DTPFr1->DateTimePicker1, QStringLiteral("10032024"));
    EXPECT_EQ(fr->DTPFr1->GetValor(), Variant(45361.0));
    Teclar(fr->DTPFr1->DateTimePicker1, Qt::Key_Tab);
    ASSERT_EQ(Foco(), fr->DTPFr2->DateTimePicker1);
    Digitar(fr->DTPFr2->DateTimePicker1, QStringLiteral("11032024"));
    EXPECT_EQ(fr->DTPFr2->GetValor(), Variant(45362.0));
    fr->DTPFr1->Data = TDateTime();
    fr->DTPFr2->Data = TDateTime();
    QTest::mouseClick(fr->DTPFr1->DateTimePicker1->findChild<QLineEdit *>(), Qt::LeftButton);
    EXPECT_EQ(fr->DTPFr1->GetValor(), Variant(45361.0));
    EXPECT_EQ(fr->DTPFr2->GetValor(), Variant(0.0));
    QTest::mouseClick(fr->DTPFr2->DateTimePicker1->findChild<QLineEdit *>(), Qt::LeftButton);
    EXPECT_EQ(fr->DTPFr2->GetValor(), Variant(45362.0));
}

} // namespace
