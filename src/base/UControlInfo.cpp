#include "base/UControlInfo.h"

#include "base/UControlBasFr.h"
#include "platform/edits/TFoneEditBR.h"
#include "platform/edits/TMaskEditBR.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TMemo.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace ficha
{

void TControlInfo::SetControl(QWidget *novo)
{
    controle = novo;
    classe = novo ? novo->metaObject() : nullptr;
    const auto *frame = qobject_cast<TControlBasFr *>(novo);
    if (qobject_cast<QPlainTextEdit *>(novo) || qobject_cast<QTextEdit *>(novo))
        tipo = TTipo::Memo;
    else if (qobject_cast<TMaskEditBR *>(novo))
        tipo = TTipo::MascaraBR;
    else if (qobject_cast<TFoneEditBR *>(novo))
        tipo = TTipo::Fone;
    else if (qobject_cast<TMaskEdit *>(novo))
        tipo = TTipo::Mascara;
    else if (qobject_cast<QLineEdit *>(novo))
        tipo = TTipo::Edit;
    else if (frame && frame->EhDeColuna())
        tipo = TTipo::Frame;
    else if (qobject_cast<QComboBox *>(novo))
        tipo = TTipo::Combo;
    else
        tipo = TTipo::Nenhum;
}

TControlBasFr *TControlInfo::Frame() const
{
    return tipo == TTipo::Frame ? static_cast<TControlBasFr *>(controle.data()) : nullptr;
}

Variant TControlInfo::GetValor() const
{
    if (!controle)
        return {};
    switch (tipo) {
    case TTipo::Memo:
        if (const auto *memo = qobject_cast<TMemo *>(controle))
            return memo->GetText();
        if (const auto *simples = qobject_cast<QPlainTextEdit *>(controle))
            return simples->toPlainText();
        return static_cast<QTextEdit *>(controle.data())->toPlainText();
    case TTipo::Mascara:
    case TTipo::MascaraBR:
        return static_cast<TMaskEdit *>(controle.data())->GetText();
    case TTipo::Fone:
    case TTipo::Edit:
        return static_cast<QLineEdit *>(controle.data())->text();
    case TTipo::Frame:
        return Frame()->GetValor();
    case TTipo::Combo:
        return static_cast<QComboBox *>(controle.data())->currentText();
    case TTipo::Nenhum:
        break;
    }
    return {};
}

void TControlInfo::SetValor(const Variant &valor)
{
    if (!controle || tipo == TTipo::Nenhum)
        return;
    if (tipo == TTipo::Frame) {
        Frame()->SetValor(valor);
        return;
    }
    if (tipo == TTipo::Combo) {
        // A CNPJ combo tells its value each time; hosts rely on seeing it.
        if (controle->objectName().contains(QStringLiteral("CNPJ")))
            MensagemSimples(valor.AsString());
        if (controle)
            SetTexto(valor.AsString());
        return;
    }
    const QString texto = valor.AsString().trimmed();
    SetTexto(tipo == TTipo::MascaraBR ? TextoDaMascaraBR(valor, texto) : texto);
}

void TControlInfo::Zerar()
{
    if (!controle || tipo == TTipo::Nenhum)
        return;
    if (tipo == TTipo::Frame)
        Frame()->Zerar();
    else if (tipo == TTipo::Fone)
        // The plain text is emptied, past the phone edit's own setter that SetValor goes through.
        static_cast<QLineEdit *>(controle.data())->clear();
    else
        SetTexto({});
}

void TControlInfo::SetTexto(const QString &texto)
{
    switch (tipo) {
    case TTipo::Memo:
        if (auto *memo = qobject_cast<TMemo *>(controle))
            memo->SetText(texto);
        else if (auto *simples = qobject_cast<QPlainTextEdit *>(controle))
            simples->setPlainText(texto);
        else
            static_cast<QTextEdit *>(controle.data())->setPlainText(texto);
        break;
    case TTipo::Mascara:
    case TTipo::MascaraBR:
        static_cast<TMaskEdit *>(controle.data())->SetText(texto);
        break;
    case TTipo::Fone:
        static_cast<TFoneEditBR *>(controle.data())->SetText(texto);
        break;
    case TTipo::Edit:
        static_cast<QLineEdit *>(controle.data())->setText(texto);
        break;
    case TTipo::Combo:
        if (auto *combo = qobject_cast<TComboBox *>(controle))
            combo->SetText(texto);
        else
            static_cast<QComboBox *>(controle.data())->setCurrentText(texto);
        break;
    case TTipo::Frame:
    case TTipo::Nenhum:
        break;
    }
}

/** A two-digit-year date mask shows the value as a date; day 0 and Null show nothing. */
QString TControlInfo::TextoDaMascaraBR(const Variant &valor, const QString &texto) const
{
    const QString mascara =
        static_cast<TMaskEditBR *>(controle.data())->GetEditMask().section(u';', 0, 0);
    if (mascara != QStringLiteral("99/99/99") && mascara != QStringLiteral("00/00/00"))
        return texto;
    if (texto.isEmpty() || valor == Variant(0))
        return {};
    return valor.AsDateTime().Data().toString(QStringLiteral("dd/MM/yy"));
}

} // namespace ficha
