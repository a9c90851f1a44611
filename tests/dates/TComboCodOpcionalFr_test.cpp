#include "dates/UComboCodOpcionalFr.h"
#include "input/UComboBoxCodBasFr.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TPanel.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TComboCodOpcionalFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        banco.emplace(
            QStringLiteral("create table grupos (grupos_cod integer, descricao varchar(40));"
                           "create table produtos (cod integer, grupo integer);"));
        for (const char *linha : {"grupos values (1, 'Bebidas')", "grupos values (7, 'Limpeza')",
                                  "produtos values (10, 1)", "produtos values (11, 7)",
                                  "produtos values (12, 7)", "produtos values (13, null)"})
            banco->Executar(QStringLiteral("insert into ") + QString::fromLatin1(linha));
        fr = Mostrado<TComboCodOpcionalFr>();
        fr->SetTitulo(QStringLiteral("por grupo"));
        combo = fr->ComboBoxCodFr;
        combo->SetSQLText(
            QStringLiteral("select grupos_cod, descricao from grupos order by descricao"));
    }
    /** The number of products that a host's condition lets through. */
    int Produtos()
    {
        QString sql = QStringLiteral("select count(*) from produtos");
        if (fr->AtivoCheckBox->isChecked())
            sql += QStringLiteral(" where grupo=") + combo->SQLString();
        return banco->Valor(sql).AsInteger();
    }

    TComboCodOpcionalFr *fr = nullptr;
    TComboBoxCodBasFr *combo = nullptr;
};

TEST_F(TComboCodOpcionalFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    fr->AtivoCheckBox->setChecked(true);
    combo->SetValor(7);
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TComboCodOpcionalFr")));
}

TEST_F(TComboCodOpcionalFrTest, NoChoiceIsAcceptable)
{
    Montar();
    EXPECT_TRUE(combo->AceitaVazio);
    fr->AtivoCheckBox->setChecked(true);
    EXPECT_TRUE(combo->ValorAceitavel());
    combo->SetFocus();
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(avisos, QStringList());
    EXPECT_NE(Foco(), combo->ComboBox1);
}

TEST_F(TComboCodOpcionalFrTest, TheChoiceOfADatasetMakesTheCondition)
{
    Montar();
    EXPECT_EQ(Produtos(), 4) << "switched off";
    QTest::mouseClick(fr->AtivoCheckBox, Qt::LeftButton, {}, QPoint(7, 8));
    EXPECT_TRUE(fr->Panel1->isEnabled());
    combo->SetFocus();
    Teclar(combo->ComboBox1, u'l');
    EXPECT_EQ(combo->GetValor(), Variant(7));
    EXPECT_EQ(Produtos(), 2);
    QTest::mouseClick(fr->AtivoCheckBox, Qt::LeftButton, {}, QPoint(7, 8));
    EXPECT_EQ(Produtos(), 4);
    EXPECT_EQ(combo->GetValor(), Variant(7)) << "the choice is still there for the next time";
}

} // namespace
