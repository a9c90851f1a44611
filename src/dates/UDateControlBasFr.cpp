#include "dates/UDateControlBasFr.h"

#include "platform/core/Relogio.h"
#include "platform/support/Datas.h"
#include "platform/toolkit/Layout.h"

#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR_ABSTRATA(TDateControlBasFr)

TDateControlBasFr::TDateControlBasFr(TChave chave) : TDBControlBasFr(chave) {}

Variant TDateControlBasFr::GetValor() const
{
    return Data.Dias();
}

void TDateControlBasFr::SetValor(const Variant &valor)
{
    TDBControlBasFr::SetValor(valor);
    Data = valor.EhNulo() ? TDateTime() : DataInteira(TDateTime(valor.AsFloat()));
}

void TDateControlBasFr::Zerar()
{
    TDBControlBasFr::Zerar();
    SetValor(Hoje());
}

QString TDateControlBasFr::AsString() const
{
    return Data.TextoData();
}

QString TDateControlBasFr::SQLString() const
{
    return DataSQL(Data);
}

void TDateControlBasFr::PegarComponentes()
{
    TDBControlBasFr::PegarComponentes();
    Pegar(this, TitLabel, "TitLabel");
}

} // namespace ficha
