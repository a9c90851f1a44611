#include "base/UControlBasFr.h"

#include "platform/support/Formularios.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TControlBasFr)

TControlBasFr::TControlBasFr(TChave chave) : TBasFr(chave) {}

TControlBasFr::~TControlBasFr()
{
    auto *tela = dynamic_cast<ITelaManutencao *>(FormSelecionar.data());
    if (tela && tela->GetChamador() == this)
        tela->SetChamador(nullptr);
}

void TControlBasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    OnExit = [this](QObject *sender) { FrameExit(sender); };
}

void TControlBasFr::Atualizar()
{
    (void)FrasesLigadas();
}

Variant TControlBasFr::GetValor() const
{
    return 0;
}

void TControlBasFr::SetValor(const Variant &) {}

bool TControlBasFr::CanExit()
{
    // The value's warning is a message box: the screen may be gone behind it.
    const QPointer<TControlBasFr> vivo(this);
    const bool aceito = ValorAceitavel();
    if (vivo)
        Atualizar();
    return aceito;
}

void TControlBasFr::Zerar()
{
    DesligarFrases();
}

bool TControlBasFr::ValorAceitavel()
{
    return true;
}

void TControlBasFr::Selecionar()
{
    if (!SelecionarAction) {
        MensagemSimples(QStringLiteral("faltou indicar SelecionarAction"));
        return;
    }
    const QPointer<TControlBasFr> vivo(this);
    SelecionarAction->Execute();
    if (!vivo)
        return;
    if (TForm *form = NameToForm(NomeFormSelecionar)) {
        FormSelecionar = form;
        if (auto *tela = dynamic_cast<ITelaManutencao *>(form))
            tela->SetChamador(this);
    }
    if (OnSelecionar)
        OnSelecionar(this);
}

void TControlBasFr::PegueNovo(int) {}

QString TControlBasFr::AsString() const
{
    return {};
}

QString TControlBasFr::SQLString() const
{
    return AsString();
}

bool TControlBasFr::EhDeColuna() const
{
    return false;
}

void TControlBasFr::PegarColuna(TCampo *, TTabelaLinear *) {}

void TControlBasFr::DesligarColuna(const TCampo *) {}

bool TControlBasFr::PodeDesfazer() const
{
    return false;
}

void TControlBasFr::DesligarFrases()
{
    for (int i = 0; i < Frases.Count(); ++i)
        Frases.SetObjeto(i, 0);
}

QString TControlBasFr::FrasesLigadas() const
{
    QString texto;
    for (int i = 0; i < Frases.Count(); ++i) {
        if (Frases.Objeto(i) != 1)
            continue;
        if (!texto.isEmpty())
            texto += QStringLiteral(". ");
        texto += Frases.Texto(i);
    }
    return texto;
}

void TControlBasFr::FrameExit(QObject *)
{
    if (!parentWidget())
        return;
    const QPointer<TControlBasFr> vivo(this);
    const bool pode = CanExit();
    if (!vivo)
        return;
    if (pode)
        DesligarFrases();
    else
        SetFocus();
    if (vivo)
        Atualizar();
}

void TControlBasFr::FrameEnter(QObject *)
{
    Atualizar();
}

} // namespace ficha
