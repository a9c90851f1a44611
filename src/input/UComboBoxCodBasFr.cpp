#include "input/UComboBoxCodBasFr.h"

#include "input/UItensDoCombo.h"
#include "platform/database/ConexD.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TComboBox.h"

#include <QScopeGuard>

namespace ficha
{

FICHA_REGISTRAR(TComboBoxCodBasFr)

namespace
{

/** A value as a code; what cannot be one is code 0. */
int CodigoDe(const Variant &valor)
{
    try {
        return valor.AsInteger();
    } catch (const EVariantError &) {
        return 0;
    }
}

} // namespace

TComboBoxCodBasFr::TComboBoxCodBasFr(TChave chave) : TComboBoxBasFr(chave) {}

void TComboBoxCodBasFr::Create(QWidget *owner)
{
    TComboBoxBasFr::Create(owner);
    UsarListaLonga();
    EditBitBtn->SetCaption({});
    Ligar(EditBitBtn, &TBitBtn::clicked, this, [this] { EditBitBtnClick(EditBitBtn); });
}

Variant TComboBoxCodBasFr::GetValor() const
{
    return int(ComboBox1->GetObjeto(ComboBox1->GetItemIndex()));
}

void TComboBoxCodBasFr::SetValor(const Variant &valor)
{
    TComboBoxBasFr::SetValor(valor);
    if (valor.EhNulo()) {
        ComboBox1->SetItemIndex(-1);
        return;
    }
    const int cod = CodigoDe(valor);
    if (!TemCod(cod) && !SQLQuery1->GetSQL().isEmpty())
        PreencherComboBox1();
    ComboBox1->SetItemIndex(ItemDoObjeto(cod));
}

QString TComboBoxCodBasFr::SQLString() const
{
    return StrToIntStr(GetValor().AsString());
}

void TComboBoxCodBasFr::PegueNovo(int codigo)
{
    if (codigo < 1)
        return;
    PreencherComboBox1();
    SetValor(codigo);
    if (TForm *form = TForm::FormularioDe(this))
        form->SelectNext(this);
}

void TComboBoxCodBasFr::PreencherComboBox1()
{
    if (!SQLQuery1->GetSQLConnection())
        SQLQuery1->SetSQLConnection(ConexD().SQLConnection);
    const auto fechar = qScopeGuard([this] { SQLQuery1->Close(); });
    SQLQuery1->Open();
    std::vector<TItensDoCombo::TItem> novos;
    novos.reserve(std::size_t(SQLQuery1->RecordCount()));
    for (; !SQLQuery1->Eof(); SQLQuery1->Next())
        novos.push_back(
            {SQLQuery1->Fields(1)->AsString().trimmed(), SQLQuery1->Fields(0)->AsInteger()});
    itens->Trocar(std::move(novos));
    ComboBox1->SetItemIndex(-1);
}

bool TComboBoxCodBasFr::TemCod(int cod) const
{
    return ItemDoObjeto(cod) >= 0;
}

QString TComboBoxCodBasFr::GetSQLText() const
{
    return SQLQuery1->GetSQL();
}

void TComboBoxCodBasFr::SetSQLText(const QString &sql)
{
    SQLQuery1->SetSQL(sql);
    if (sql.isEmpty())
        ComboBox1->Clear();
    else
        PreencherComboBox1();
}

void TComboBoxCodBasFr::PegarComponentes()
{
    TComboBoxBasFr::PegarComponentes();
    Pegar(this, EditBitBtn, "EditBitBtn");
    SQLQuery1 = new TSQLQuery(this);
    SQLQuery1->setObjectName(QStringLiteral("SQLQuery1"));
}

int TComboBoxCodBasFr::ItemDoObjeto(std::intptr_t objeto) const
{
    return itens->IndexOfObjeto(objeto);
}

void TComboBoxCodBasFr::ComboBox1Change(QObject *sender)
{
    TComboBoxBasFr::ComboBox1Change(sender);
    if (ComboBox1->GetText().isEmpty())
        SetValor(0);
}

void TComboBoxCodBasFr::EditBitBtnClick(QObject *)
{
    const QPointer<TComboBoxCodBasFr> vivo(this);
    // A disabled button hands the focus on, out of the frame.
    if (EditBitBtn->hasFocus())
        ComboBox1->setFocus();
    EditBitBtn->setEnabled(false);
    auto devolver = qScopeGuard([&vivo] {
        if (vivo)
            vivo->EditBitBtn->setEnabled(true);
    });
    Editar();
    if (vivo)
        Selecionar();
    devolver.dismiss();
}

/** Puts the combo box's items, those of a layout included, into a list that takes thousands. */
void TComboBoxCodBasFr::UsarListaLonga()
{
    std::vector<TItensDoCombo::TItem> atuais;
    atuais.reserve(std::size_t(ComboBox1->Count()));
    for (int i = 0; i < ComboBox1->Count(); ++i)
        atuais.push_back({ComboBox1->Item(i), ComboBox1->GetObjeto(i)});
    const int escolhido = ComboBox1->GetItemIndex();
    itens = new TItensDoCombo(ComboBox1);
    itens->Trocar(std::move(atuais));
    ComboBox1->setModel(itens);
    ComboBox1->SetItemIndex(escolhido);
}

} // namespace ficha
