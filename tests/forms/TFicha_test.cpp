#include "forms/UFicha.h"

#include "forms/UImg16D.h"
#include "forms/UImgD.h"
#include "forms/ULocalizBasF.h"
#include "forms/UTabBasF.h"
#include "forms/UTabLinearD.h"
#include "platform/core/Erros.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TToolBar.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <gtest/gtest.h>

#include <memory>

namespace ficha::testes
{

TEST(TFichaTest, TheThreeProcessWideObjectsLiveAsLongAsTheLibraryObject)
{
    EXPECT_EQ(LocalizBasF, nullptr);
    {
        const TFicha biblioteca;
        EXPECT_NE(LocalizBasF, nullptr);
        EXPECT_NE(TabLinearD, nullptr);
        EXPECT_NE(Img16D, nullptr);
        EXPECT_FALSE(LocalizBasF->isVisible());
        EXPECT_THROW(TFicha(), EErro);
        EXPECT_NE(LocalizBasF, nullptr);
    }
    EXPECT_EQ(LocalizBasF, nullptr);
    EXPECT_EQ(TabLinearD, nullptr);
    EXPECT_EQ(Img16D, nullptr);
    const TFicha outra;
    EXPECT_NE(LocalizBasF, nullptr);
}

TEST(TFichaTest, TabLinearDHasTheStatedListsAndPictures)
{
    const TFicha biblioteca;
    EXPECT_EQ(TabLinearD->BarraImageList->GetSize(), QSize(24, 24));
    EXPECT_EQ(TabLinearD->BarraDisImageList->GetSize(), QSize(24, 24));
    EXPECT_EQ(TabLinearD->BarraImageList16->GetSize(), QSize(16, 16));
    EXPECT_EQ(TabLinearD->BarraDisImageList16->GetSize(), QSize(16, 16));
    for (const TImageList *lista : {TabLinearD->BarraImageList, TabLinearD->BarraDisImageList,
                                    TabLinearD->BarraImageList16, TabLinearD->BarraDisImageList16})
        for (int i : {2, 3, 4, 5, 9, 10}) {
            const QPixmap figura = lista->GetPixmap(i);
            EXPECT_EQ(figura.size(), lista->GetSize()) << i;
            EXPECT_NE(figura.toImage().convertToFormat(QImage::Format_ARGB32),
                      QImage(figura.size(), QImage::Format_ARGB32))
                << i;
        }
}

TEST(TFichaTest, Img16DHasThePicturesOfTheGridFrames)
{
    const TFicha biblioteca;
    EXPECT_EQ(Img16D->ImageList16->GetSize(), QSize(16, 16));
    for (int i : {0, 1, 2, 3})
        EXPECT_TRUE(Img16D->ImageList16->Tem(i)) << i;
}

TEST(TFichaTest, TheHostImageModuleIsFilledWhereTheHostHasNone)
{
    TImageList doHost;
    EXPECT_EQ(SisD().ImageList16, nullptr);
    {
        const TFicha biblioteca;
        ASSERT_NE(SisD().ImageList16, nullptr);
        for (int i : {1,  2,  3,  9,  10, 16, 17, 19, 20, 29, 30, 31,
                      32, 33, 34, 35, 36, 37, 45, 46, 49, 50, 51, 52}) {
            EXPECT_TRUE(SisD().ImageList16->Tem(i)) << i;
            EXPECT_TRUE(SisD().DisImageList16->Tem(i)) << i;
        }
        for (int i : {8, 9, 25, 26})
            EXPECT_TRUE(SisD().ImageList->Tem(i)) << i;
    }
    EXPECT_EQ(SisD().ImageList16, nullptr);
    EXPECT_EQ(SisD().DisImageList16, nullptr);
    SisD().ImageList16 = &doHost;
    {
        const TFicha biblioteca;
        EXPECT_EQ(SisD().ImageList16, &doHost);
        EXPECT_EQ(SisD().DisImageList16, nullptr);
    }
    EXPECT_EQ(SisD().ImageList16, &doHost);
    SisD().ImageList16 = nullptr;
}

/** Whatever the desktop's language is. */
class TIdiomaTest : public testing::Test
{
protected:
    void SetUp() override { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void TearDown() override { QLocale::setDefault(antes); }
    const QLocale antes;
};

TEST_F(TIdiomaTest, TheProgramSpeaksBrazilianPortugueseWhileTheLibraryLives)
{
    {
        const TFicha biblioteca;
        EXPECT_EQ(QLocale().name(), QStringLiteral("pt_BR"));
        const QCalendarWidget calendario;
        EXPECT_EQ(calendario.locale().monthName(3), QStringLiteral("março"));
        const QDateEdit data(QDate(2024, 3, 9));
        EXPECT_EQ(data.text(), QStringLiteral("09/03/2024"));
        const QDialogButtonBox botoes(QDialogButtonBox::Cancel | QDialogButtonBox::Save);
        EXPECT_EQ(botoes.button(QDialogButtonBox::Cancel)->text().remove(u'&'),
                  QStringLiteral("Cancelar"));
        EXPECT_EQ(botoes.button(QDialogButtonBox::Save)->text().remove(u'&'),
                  QStringLiteral("Gravar"));
        QFileDialog arquivo;
        arquivo.setOption(QFileDialog::DontUseNativeDialog);
        EXPECT_EQ(arquivo.labelText(QFileDialog::FileName).remove(u'&'),
                  QStringLiteral("Nome do arquivo:"));
        QLineEdit edit;
        const std::unique_ptr<QMenu> menu(edit.createStandardContextMenu());
        EXPECT_EQ(menu->actions().first()->text().section(u'\t', 0, 0).remove(u'&'),
                  QStringLiteral("Desfazer"));
    }
    EXPECT_EQ(QLocale().language(), QLocale::German);
}

TEST_F(TIdiomaTest, AHostThatSetsAnotherLocaleAfterwardsKeepsIt)
{
    {
        const TFicha biblioteca;
        QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
        EXPECT_EQ(QLocale().language(), QLocale::French);
    }
    EXPECT_EQ(QLocale().language(), QLocale::French);
}

TEST(TFichaTest, AScreenMayOutliveTheLibraryObject)
{
    TTabBasF *tela = nullptr;
    {
        const TFicha biblioteca;
        tela = Criar<TTabBasF>(nullptr);
        tela->show();
    }
    tela->Atualizar();
    EXPECT_EQ(tela->ToolBar1->GetImages(), nullptr);
    EXPECT_TRUE(tela->LocalizAction->Execute());
    EXPECT_TRUE(tela->InsAction->Execute());
    EXPECT_TRUE(tela->Close());
}

} // namespace ficha::testes
