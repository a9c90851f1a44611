#include "platform/toolkit/TLabeledEdit.h"

#include "platform/toolkit/Layout.h"
#include "support/Widgets.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QImage>

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct Rotulado : testing::Test {
    Rotulado()
    {
        edit = new TLabeledEdit(&janela);
        edit->setGeometry(10, 30, 120, 21);
        edit->SetCaption(QStringLiteral("Descrição"));
    }

    TJanela janela;
    TLabeledEdit *edit;
};

} // namespace

TEST_F(Rotulado, LabelStandsAboveTheEditAtItsDistance)
{
    janela.Abrir();
    const QRect rotulo = edit->EditLabel->geometry();
    EXPECT_EQ(rotulo.left(), 10);
    EXPECT_EQ(rotulo.bottom() + 1, 30 - 1);
    EXPECT_EQ(edit->EditLabel->parentWidget(), &janela);
    edit->SetLabelSpacing(4);
    EXPECT_EQ(edit->EditLabel->geometry().bottom() + 1, 26);
    EXPECT_TRUE(edit->EditLabel->isVisible());
}

TEST_F(Rotulado, LabelIsAsWideAsItsTextAtOnce)
{
    const int antes = edit->EditLabel->width();
    edit->SetCaption(QStringLiteral("Descrição   Máx:30 letras   Atual:"));
    EXPECT_GT(edit->EditLabel->width(), antes);
    EXPECT_GE(edit->EditLabel->width(),
              edit->EditLabel->fontMetrics().horizontalAdvance(edit->GetCaption()));
}

TEST_F(Rotulado, LabelFollowsMovesVisibilityEnabledStateAndParent)
{
    janela.Abrir();
    edit->move(50, 100);
    EXPECT_EQ(edit->EditLabel->x(), 50);
    EXPECT_EQ(edit->EditLabel->geometry().bottom() + 1, 99);
    edit->hide();
    EXPECT_FALSE(edit->EditLabel->isVisible());
    edit->show();
    EXPECT_TRUE(edit->EditLabel->isVisible());
    edit->setEnabled(false);
    EXPECT_FALSE(edit->EditLabel->isEnabled());
    edit->setEnabled(true);
    EXPECT_TRUE(edit->EditLabel->isEnabled());
    QWidget outro(&janela);
    outro.resize(300, 200);
    outro.show();
    edit->setParent(&outro);
    edit->show();
    EXPECT_EQ(edit->EditLabel->parentWidget(), &outro);
    EXPECT_TRUE(edit->EditLabel->isVisible());
    edit->setParent(nullptr);
    EXPECT_FALSE(edit->EditLabel->isVisible());
    delete edit;
}

TEST_F(Rotulado, LabelWithoutRoomStartsAtTheTopEdge)
{
    edit->move(0, 6);
    janela.Abrir();
    EXPECT_EQ(edit->EditLabel->y(), 0);
}

TEST_F(Rotulado, InTwelvePixelsTheCaptionFitsAboveTheEditWithoutLosingInk)
{
    edit->SetCaption(QStringLiteral("ÁÇÊgjpqy|;()"));
    janela.Abrir();
    const auto tinta = [this] {
        const QImage img = edit->EditLabel->grab().toImage().convertToFormat(QImage::Format_RGB32);
        int escuros = 0;
        for (int y = 0; y < img.height(); ++y) {
            for (int x = 0; x < img.width(); ++x)
                escuros += qGray(img.pixel(x, y)) < 128 ? 1 : 0;
        }
        return escuros;
    };
    const int inteira = tinta();
    EXPECT_GT(inteira, 50);
    edit->move(0, 12);
    EXPECT_EQ(edit->EditLabel->y(), 0);
    EXPECT_EQ(edit->EditLabel->geometry().bottom() + 1, edit->y()) << "no pixel under the edit";
    EXPECT_EQ(tinta(), inteira);
    edit->move(0, 13);
    EXPECT_EQ(edit->EditLabel->geometry().bottom() + 1, 13);
    edit->move(0, 40);
    EXPECT_EQ(edit->EditLabel->geometry().bottom() + 1, 39) << "and the distance comes back";
}

TEST_F(Rotulado, EmptyCaptionShowsNoLabel)
{
    auto *sem = new TLabeledEdit(&janela);
    auto *escondido = new TLabeledEdit(&janela);
    escondido->SetCaption(QStringLiteral("x"));
    escondido->hide();
    janela.Abrir();
    EXPECT_FALSE(sem->EditLabel->isVisible());
    EXPECT_FALSE(escondido->EditLabel->isVisible());
    escondido->show();
    EXPECT_TRUE(escondido->EditLabel->isVisible());
    edit->SetCaption(QString());
    EXPECT_FALSE(edit->EditLabel->isVisible());
    sem->SetCaption(QStringLiteral("y"));
    EXPECT_TRUE(sem->EditLabel->isVisible());
}

TEST_F(Rotulado, CaptionIsTheAccessibleName)
{
    janela.Abrir();
    QAccessibleInterface *acesso = QAccessible::queryAccessibleInterface(edit);
    ASSERT_NE(acesso, nullptr);
    EXPECT_EQ(acesso->text(QAccessible::Name), QStringLiteral("Descrição"));
    edit->SetCaption(QStringLiteral("&Nome"));
    EXPECT_EQ(acesso->text(QAccessible::Name), QStringLiteral("Nome"));
}

TEST_F(Rotulado, EitherMayDieFirst)
{
    janela.Abrir();
    const QPointer<TBoundLabel> rotulo = edit->EditLabel;
    delete edit;
    EXPECT_TRUE(rotulo.isNull());
    auto *outro = new TLabeledEdit(&janela);
    delete outro->EditLabel;
    EXPECT_EQ(outro->GetCaption(), QString());
    outro->SetCaption(QStringLiteral("x"));
    outro->move(5, 5);
    delete outro;
    auto *pai = new QWidget;
    new TLabeledEdit(pai);
    delete pai;
}

TEST_F(Rotulado, DescendersAreNotCutIn21Pixels)
{
    edit->setText(QStringLiteral("gjpqy"));
    janela.Abrir();
    const QImage imagem = edit->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QImage alto = [&] {
        edit->resize(120, 41);
        return edit->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }();
    // The same ink in a low and in a high edit: nothing of it fell off.
    const auto tinta = [](const QImage &img) {
        int escuros = 0;
        for (int y = 3; y < img.height() - 3; ++y) {
            for (int x = 3; x < img.width() - 3; ++x)
                escuros += qGray(img.pixel(x, y)) < 128 ? 1 : 0;
        }
        return escuros;
    };
    EXPECT_GT(tinta(imagem), 20);
    EXPECT_EQ(tinta(imagem), tinta(alto));
}

TEST_F(Rotulado, LayoutsCanPlaceAndSetIt)
{
    EXPECT_TRUE(ClassesRegistradas().contains(QStringLiteral("TLabeledEdit")));
    edit->setProperty("caption", QStringLiteral("Nome"));
    edit->setProperty("labelSpacing", 3);
    edit->setProperty("readOnly", true);
    edit->setProperty("alignment", int(Qt::AlignRight));
    EXPECT_EQ(edit->EditLabel->text(), QStringLiteral("Nome"));
    EXPECT_EQ(edit->GetLabelSpacing(), 3);
    EXPECT_TRUE(edit->isReadOnly());
    EXPECT_TRUE(edit->alignment() & Qt::AlignRight);
}

TEST_F(Rotulado, LabelIsAsLargeAsAnyLabelOfThatText)
{
    TBoundLabel *rotulo = edit->EditLabel;
    const QStringList textos = {QStringLiteral("Código"),
                                QStringLiteral("W"),
                                QStringLiteral("f"),
                                QStringLiteral(" "),
                                QStringLiteral("Máx: 30 letras   Atual: "),
                                QStringLiteral("a\tb"),
                                QStringLiteral("duas\nlinhas"),
                                QStringLiteral("&Nome"),
                                QStringLiteral("P && D"),
                                QStringLiteral("<b>forte</b>"),
                                QStringLiteral("€ 漢字"),
                                QString(3000, u'x')};
    QFont grande = rotulo->font();
    grande.setPointSize(14);
    grande.setBold(true);
    for (const QFont &fonte : {rotulo->font(), grande}) {
        rotulo->setFont(fonte);
        for (const QString &texto : textos) {
            rotulo->setText(texto);
            for (const auto lado : {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter}) {
                rotulo->setAlignment(lado | Qt::AlignVCenter);
                EXPECT_EQ(rotulo->sizeHint(), rotulo->QLabel::sizeHint()) << texto.toStdString();
            }
        }
    }
    rotulo->setText(QStringLiteral("Nome"));
    rotulo->setMinimumWidth(200);
    EXPECT_EQ(rotulo->sizeHint(), rotulo->QLabel::sizeHint());
    rotulo->setMargin(3);
    EXPECT_EQ(rotulo->sizeHint(), rotulo->QLabel::sizeHint());
    rotulo->setFrameShape(QFrame::Box);
    EXPECT_EQ(rotulo->sizeHint(), rotulo->QLabel::sizeHint());
    rotulo->setFrameShape(QFrame::NoFrame);
    rotulo->setMargin(0);
    rotulo->setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(rotulo->sizeHint(), rotulo->QLabel::sizeHint());
}
