#include "records/UCampo.h"

#include "base/UControlBasFr.h"
#include "platform/support/Textos.h"

namespace ficha
{

namespace
{
constexpr int CodigoDoBranco = 32;

/** Without the blanks around it. */
QAnyStringView Aparado(QAnyStringView texto)
{
    return texto.visit([](auto t) -> QAnyStringView {
        qsizetype de = 0, ate = t.size();
        if constexpr (!std::is_same_v<decltype(t), QUtf8StringView>) {
            while (de < ate && QChar(t[de]).isSpace())
                ++de;
            while (ate > de && QChar(t[ate - 1]).isSpace())
                --ate;
        }
        return t.sliced(de, ate - de);
    });
}
} // namespace

TCampo::TCampo()
    : ColInfo(std::make_unique<TColInfo>()), FormatoFloat(QStringLiteral("########0.00"))
{
}

TCampo::~TCampo()
{
    if (TControlBasFr *frame = ControlInfo ? ControlInfo->Frame() : nullptr)
        frame->DesligarColuna(this);
}

bool TCampo::ColunaTexto() const
{
    return Field && Field->DataType() == TFieldType::ftString;
}

bool TCampo::ColunaNumero() const
{
    if (!Field)
        return false;
    const TFieldType tipo = Field->DataType();
    return tipo == TFieldType::ftSmallint || tipo == TFieldType::ftInteger ||
           tipo == TFieldType::ftFloat;
}

void TCampo::SetValor(const Variant &v)
{
    if (v == Valor)
        return;
    if (ColunaTexto())
        Valor = v.AsString().trimmed();
    else
        Valor = v;
}

bool TCampo::IsNull() const
{
    if (ColunaTexto())
        return Valor == Variant(QString());
    return ColunaNumero() && Valor == Variant(0);
}

int TCampo::AsInteger() const
{
    if (ColunaTexto())
        return Variant(StrToIntStr(Valor.AsString())).AsInteger();
    return ColunaNumero() ? Valor.AsInteger() : 0;
}

QString TCampo::AsString() const
{
    if (EhLista())
        return TextoDaLista();
    if (OnAsString) {
        QString texto;
        OnAsString(const_cast<TCampo *>(this), texto);
        return texto;
    }
    return TextoPeloTipo();
}

QString TCampo::TextoDaLista() const
{
    double n = -1;
    if (Valor.EhTexto())
        TextoParaDouble(Valor.AsString(), &n);
    else if (!Valor.EhNulo() && !Valor.EhNaoAtribuido())
        n = Valor.AsFloat();
    const bool dentro = n > -1 && n < Lista->Count();
    return dentro ? Lista->Texto(int(n)) : QString();
}

QString TCampo::TextoPeloTipo() const
{
    switch (Tipo) {
    case 0:
        return Valor.AsString().trimmed();
    case 1:
        return Valor.EhNulo() || Valor.EhNaoAtribuido() ? QString()
                                                        : Valor.AsDateTime().TextoData();
    case 4:
        return FormatFloat(FormatoFloat, Field ? Field->AsFloat() : 0);
    case 5:
        return TextoDoCaractere();
    case 6:
        return TextoDoNumero();
    default:
        return {};
    }
}

QString TCampo::TextoDoCaractere() const
{
    const QString texto = Valor.AsString();
    const QChar codigo = texto.isEmpty() ? QChar(u' ') : texto.front();
    const int i = ListaChar ? ListaChar->IndexOfObjeto(codigo.unicode()) : -1;
    return i < 0 ? QString() : ListaChar->Texto(i);
}

QString TCampo::TextoDoNumero() const
{
    if (Field && !Field->DisplayFormat().isEmpty())
        return FormatFloat(Field->DisplayFormat(), Valor.AsFloat());
    return QString::number(Valor.AsInteger());
}

void TCampo::PegarValor()
{
    LerColuna();
    if (Field && TemEstrangeiro && FieldEstrangeiro)
        TextoEstrangeiro = FieldEstrangeiro->AsString();
}

void TCampo::LerColuna()
{
    if (Field)
        SetValor(Field->Value());
}

bool TCampo::MostraAColuna() const
{
    if (!Field || EhLista() || OnAsString)
        return false;
    // The text of a date without a time is the date's.
    const bool semHora = Tipo == 1 && Field->DataType() == TFieldType::ftDate;
    return (Tipo == 0 || Tipo == 4 || semHora) && ValorEhDaColuna();
}

/** A value of the program's may equal the column's and read otherwise: SetValor leaves it. */
bool TCampo::ValorEhDaColuna() const
{
    if (Valor.EhNulo())
        return !ColunaTexto();
    switch (Field->DataType()) {
    case TFieldType::ftString:
        return Valor.EhTexto() && Valor.AsString() == Valor.AsString().trimmed();
    case TFieldType::ftMemo:
    case TFieldType::ftBlob:
        return Valor.EhTexto();
    case TFieldType::ftSmallint:
    case TFieldType::ftInteger:
    case TFieldType::ftBoolean:
        return Valor.EhInteiro();
    case TFieldType::ftFloat:
        return Valor.EhDouble();
    case TFieldType::ftUnknown:
        return false;
    default:
        return Valor.EhDataHora();
    }
}

QAnyStringView TCampo::TextoDaColuna(TEspacoDeTexto &espaco) const
{
    if (Tipo != 4)
        return Aparado(Field->TextoDoValor(espaco));
    FormatFloat(FormatoFloat, Field->AsFloat(), espaco.texto);
    return espaco.texto;
}

void TCampo::PreencherControl()
{
    if (!ControlInfo)
        return;
    ControlInfo->SetValor(Valor);
    if (TControlBasFr *frame = ControlInfo->Frame())
        frame->Atualizar();
}

void TCampo::Undo()
{
    PreencherControl();
}

bool TCampo::CanUndo() const
{
    const TControlBasFr *frame = ControlInfo ? ControlInfo->Frame() : nullptr;
    if (!frame || !frame->PodeDesfazer())
        return false;
    const QString guardado = Valor.AsString();
    return guardado.isEmpty() || guardado != frame->GetValor().AsString();
}

void TCampo::Zerar()
{
    if (EhLista()) {
        SetValor(CodigoDoBranco);
        return;
    }
    if (ColunaTexto())
        SetValor(QString());
    else if (ColunaNumero())
        SetValor(0);
    if (TemValorPadrao)
        SetValor(ValorPadrao);
}

} // namespace ficha
