#include "dates/UDatasFr.h"

#include "dates/UDTPBasFr.h"
#include "platform/core/Relogio.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TDatasFr)

TDatasFr::TDatasFr(TChave chave) : TBasFr(chave) {}

void TDatasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    DTPFr1->DateTimePicker1->OnChange = [this](QObject *s) { DTPFr1DateTimePicker1Change(s); };
    DTPFr1->DateTimePicker1->OnClick = [this](QObject *s) { DTPFr1DateTimePicker1Click(s); };
    DTPFr2->DateTimePicker1->OnChange = [this](QObject *s) { DTPFr2DateTimePicker1Change(s); };
    DTPFr2->DateTimePicker1->OnClick = [this](QObject *s) { DTPFr2DateTimePicker1Click(s); };
    DTPFr1->SetValor(Hoje());
    DTPFr2->SetValor(DTPFr1->GetValor());
}

bool TDatasFr::DadosOk()
{
    if (DTPFr2->GetValor() >= DTPFr1->GetValor())
        return true;
    MensagemInfo(QStringLiteral("A data inicial está maior que a final."));
    return false;
}

void TDatasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, DTPFr1, "DTPFr1");
    Pegar(this, DTPFr2, "DTPFr2");
}

void TDatasFr::DTPFr1DateTimePicker1Change(QObject *sender)
{
    DTPFr1->DateTimePicker1Change(sender);
}

void TDatasFr::DTPFr1DateTimePicker1Click(QObject *sender)
{
    DTPFr1->DateTimePicker1Click(sender);
}

void TDatasFr::DTPFr2DateTimePicker1Change(QObject *sender)
{
    DTPFr2->DateTimePicker1Change(sender);
}

void TDatasFr::DTPFr2DateTimePicker1Click(QObject *sender)
{
    DTPFr2->DateTimePicker1Click(sender);
}

void TDatasFr::StaticText1Click(QObject *) {}

} // namespace ficha
