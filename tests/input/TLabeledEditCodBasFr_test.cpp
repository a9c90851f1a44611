#include "input/ULabeledEditCodBasFr.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TLabeledEditCodBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TLabeledEditCodBasFr>();
        edit = fr->LabeledEdit1;
    }
    void MontarPreso()
    {
        AbrirTabela(
            {QStringLiteral("1, 'um', 1, 1, 'A', ''"), QStringLiteral("2, 'dois', 2, 2, 'B', ''")});
        Montar();
        Prender(fr, "testes_cod", QStringLiteral("Código"));
    }

    TLabeledEditCodBasFr *fr = nullptr;
    TLabeledEdit *edit = nullptr;
};

TEST_F(TLabeledEditCodBasFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    fr->SetValor(123456);
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TLabeledEditCodBasFr")));
    EXPECT_TRUE(fr->NaoRepetir);
    EXPECT_TRUE(fr->PodeDesfazer());
}

TEST_F(TLabeledEditCodBasFrTest, WhileBrowsingOrAlteringTheEditIsReadOnlyAndDeleteWarns)
{
    MontarPreso();
    fr->SetFocus();
    EXPECT_TRUE(edit->isReadOnly());
    const QString texto = QStringLiteral(
        "O campo Código está somente para leitura. Não pode ter seu valor alterado.");
    Teclar(edit, Qt::Key_Delete);
    EXPECT_EQ(avisos, QStringList{texto});
    EXPECT_EQ(tela.pedidos, 0);
    tabela->AltIni();
    fr->Atualizar();
    EXPECT_TRUE(edit->isReadOnly());
    Teclar(edit, Qt::Key_Backspace);
    Teclar(edit, u'9');
    EXPECT_EQ(avisos, (QStringList{texto, texto}));
    EXPECT_EQ(edit->text(), QStringLiteral("1"));
}

TEST_F(TLabeledEditCodBasFrTest, WhileInsertingTheCodeIsTyped)
{
    MontarPreso();
    tabela->InsIni();
    fr->SetFocus();
    EXPECT_FALSE(edit->isReadOnly());
    edit->selectAll();
    Digitar(edit, QStringLiteral("77"));
    EXPECT_EQ(edit->text(), QStringLiteral("77"));
    EXPECT_EQ(avisos, QStringList());
    EXPECT_TRUE(fr->ValorAceitavel());
    tabela->InsCancel();
    EXPECT_TRUE(edit->isReadOnly()) << "showing the row again locks the code";
    EXPECT_EQ(edit->text(), QStringLiteral("1"));
}

TEST_F(TLabeledEditCodBasFrTest, ACodeInUseIsRefusedOnInsertion)
{
    MontarPreso();
    tabela->InsIni();
    fr->SetFocus();
    edit->selectAll();
    Digitar(edit, QStringLiteral("2"));
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos, QStringList{QStringLiteral("Repetição\r\nCódigo '2' já existe no sistema. "
                                                 "Escolha outro valor, ou clique em Cancelar.")});
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("Já existe"));
}

TEST_F(TLabeledEditCodBasFrTest, AnUnboundCodeStaysTypable)
{
    Montar();
    fr->SetFocus();
    Digitar(edit, QStringLiteral("5"));
    EXPECT_FALSE(edit->isReadOnly());
    EXPECT_EQ(edit->text(), QStringLiteral("5"));
}

TEST_F(TLabeledEditCodBasFrTest, ATypedCodeCountsForUndoing)
{
    MontarPreso();
    EXPECT_FALSE(tabela->Campos->CanUndo());
    tabela->InsIni();
    fr->Atualizar();
    edit->setText(QStringLiteral("88"));
    EXPECT_TRUE(tabela->Campos->CanUndo());
    tabela->Campos->Undo();
    EXPECT_EQ(edit->text(), QStringLiteral("1"));
    EXPECT_FALSE(tabela->Campos->CanUndo());
}

} // namespace
