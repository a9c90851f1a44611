#include "forms/UMemoDiagBasF.h"

#include "platform/support/Textos.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TMemo.h"
#include "platform/toolkit/Teclas.h"

#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR(TMemoDiagBasF)

TMemoDiagBasF::TMemoDiagBasF(TChave chave) : TDiagBitBtnBasF(chave) {}

bool TMemoDiagBasF::PodeOk()
{
    return PodeVazio || !Memo1->GetText().trimmed().isEmpty();
}

void TMemoDiagBasF::PegarComponentes()
{
    TDiagBitBtnBasF::PegarComponentes();
    Pegar(this, MemoTitLab, "MemoTitLab");
    Pegar(this, Memo1, "Memo1");
    AoTeclar(Memo1, [this](QChar &caractere) { Memo1KeyPress(Memo1, caractere); });
    Memo1->OnPaste = [](QString &texto) { texto = TextoSemAcentos(texto); };
}

void TMemoDiagBasF::FormShow(QObject *sender)
{
    TDiagBitBtnBasF::FormShow(sender);
    // The key reaches the end of the line; a preset text may have more of them.
    Memo1->moveCursor(QTextCursor::End);
    EnviarTecla(Memo1, VK_END);
}

void TMemoDiagBasF::OkClick(QObject *sender)
{
    TDiagBitBtnBasF::OkClick(sender);
    if (GetModalResult() == mrNone)
        Memo1->setFocus();
}

void TMemoDiagBasF::Memo1KeyPress(QObject *, QChar &caractere)
{
    caractere = caractere.isMark() ? QChar() : CharSemAcento(caractere, {}, true, true);
}

} // namespace ficha
