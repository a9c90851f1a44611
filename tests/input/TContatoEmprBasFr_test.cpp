#include "input/UContatoEmprBasFr.h"
#include "platform/edits/TFoneEditBR.h"
#include "platform/edits/TMaskEditBR.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/TBitBtn.h"
#include "support/Entrada.h"
#include "support/Layouts.h"
#include "support/Sobreposicao.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TContatoEmprBasFrTest : public TEntradaTest
{
protected:
    void Montar() { fr = Mostrado<TContatoEmprBasFr>(); }

    TContatoEmprBasFr *fr = nullptr;
};

TEST_F(TContatoEmprBasFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TContatoEmprBasFr")));
    EXPECT_EQ(fr->WebBitBtn->x(), 368);
    EXPECT_EQ(fr->WebBitBtn->toolTip(), QStringLiteral("Abrir a Página Web"));
}

TEST_F(TContatoEmprBasFrTest, NothingIsClippedOrCovered)
{
    Montar();
    ConfereNadaCoberto(fr);
}

TEST_F(TContatoEmprBasFrTest, EnterGoesAlongTheRowsUpToThePageAndDoesNothingThere)
{
    Montar();
    fr->Zerar();
    const QList<QWidget *> edits = {fr->DDDMaskEditBR, fr->Fone1EditBR,      fr->Fone2EditBR,
                                    fr->FaxEditBR,     fr->EMailLabeledEdit, fr->PaginaLabeledEdit};
    edits.first()->setFocus();
    for (qsizetype i = 1; i < edits.size(); ++i) {
        Teclar(edits.at(i - 1), Qt::Key_Return);
        EXPECT_EQ(Foco(), edits.at(i));
    }
    Teclar(fr->PaginaLabeledEdit, Qt::Key_Return);
    EXPECT_EQ(Foco(), fr->PaginaLabeledEdit);
}

TEST_F(TContatoEmprBasFrTest, ZerarIsTheInheritedOne)
{
    Montar();
    fr->PaginaLabeledEdit->setText(QStringLiteral("www.x.com"));
    fr->EMailLabeledEdit->setText(QStringLiteral("a@x.com"));
    fr->DDDMaskEditBR->Clear();
    fr->Zerar();
    EXPECT_EQ(fr->DDDMaskEditBR->GetText(), SisD().DDDPadrao);
    EXPECT_EQ(fr->Fone1EditBR->text(), QString());
    EXPECT_EQ(fr->EMailLabeledEdit->text(), QString());
    EXPECT_EQ(fr->PaginaLabeledEdit->text(), QString());
}

} // namespace
