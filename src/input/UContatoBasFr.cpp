#include "input/UContatoBasFr.h"

#include "input/UApoioInput.h"
#include "platform/edits/TFoneEditBR.h"
#include "platform/edits/TMaskEditBR.h"
#include "platform/support/Mensagens.h"
#include "platform/support/Navegador.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/Teclas.h"

namespace ficha
{

FICHA_REGISTRAR(TContatoBasFr)

TContatoBasFr::TContatoBasFr(TChave chave) : TBasFr(chave) {}

void TContatoBasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    DDDMaskEditBR->OnLastType = [this](QObject *sender) { DDDMaskEditBRLastType(sender); };
    DDDMaskEditBR->OnUncomplete = [this](QObject *sender) { DDDMaskEditBRUncomplete(sender); };
    WebBitBtn->OnClick = [this](QObject *sender) { WebBitBtnClick(sender); };
    LigarTeclas();
    LigarCores();
}

void TContatoBasFr::Zerar()
{
    DDDMaskEditBR->SetText(SisD().DDDPadrao);
    Fone1EditBR->clear();
    Fone2EditBR->clear();
    FaxEditBR->clear();
    EMailLabeledEdit->clear();
    PaginaLabeledEdit->clear();
}

void TContatoBasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, DDDMaskEditBR, "DDDMaskEditBR");
    Pegar(this, Fone1EditBR, "Fone1EditBR");
    Pegar(this, Fone2EditBR, "Fone2EditBR");
    Pegar(this, FaxEditBR, "FaxEditBR");
    Pegar(this, EMailLabeledEdit, "EMailLabeledEdit");
    Pegar(this, PaginaLabeledEdit, "PaginaLabeledEdit");
    Pegar(this, WebBitBtn, "WebBitBtn");
}

void TContatoBasFr::DDDMaskEditBRLastType(QObject *)
{
    Fone1EditBR->setFocus(Qt::TabFocusReason);
}

void TContatoBasFr::DDDMaskEditBRUncomplete(QObject *)
{
    MensagemErro(QStringLiteral("O DDD é obrigatório"), 0);
}

void TContatoBasFr::DDDMaskEditBRKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    AvancarComEnter(tecla, *Fone1EditBR);
}

void TContatoBasFr::Fone1EditBRKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    AvancarComEnter(tecla, *Fone2EditBR);
}

void TContatoBasFr::Fone2EditBRKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    AvancarComEnter(tecla, *FaxEditBR);
}

void TContatoBasFr::FaxEditBRKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    AvancarComEnter(tecla, *EMailLabeledEdit);
}

void TContatoBasFr::EMailLabeledEditKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    AvancarComEnter(tecla, *PaginaLabeledEdit);
}

void TContatoBasFr::DDDNumEditBRKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    AvancarComEnter(tecla, *Fone1EditBR);
}

void TContatoBasFr::EditEnter(QObject *sender)
{
    static_cast<TCustomEdit *>(sender)->SetColor(SisD().CorControlSelec);
}

void TContatoBasFr::EditExit(QObject *sender)
{
    static_cast<TCustomEdit *>(sender)->SetColor(SisD().CorControlDesselec);
}

void TContatoBasFr::WebBitBtnClick(QObject *)
{
    AbrirBrowser(PaginaLabeledEdit->text().trimmed());
}

void TContatoBasFr::LigarTeclas()
{
    using THandler = void (TContatoBasFr::*)(QObject *, int &, Qt::KeyboardModifiers);
    const auto ligar = [this](QWidget *edit, THandler handler) {
        AoTeclaDescer(edit, [this, edit, handler](int &tecla, Qt::KeyboardModifiers estado) {
            (this->*handler)(edit, tecla, estado);
        });
    };
    ligar(DDDMaskEditBR, &TContatoBasFr::DDDMaskEditBRKeyDown);
    ligar(Fone1EditBR, &TContatoBasFr::Fone1EditBRKeyDown);
    ligar(Fone2EditBR, &TContatoBasFr::Fone2EditBRKeyDown);
    ligar(FaxEditBR, &TContatoBasFr::FaxEditBRKeyDown);
    ligar(EMailLabeledEdit, &TContatoBasFr::EMailLabeledEditKeyDown);
}

void TContatoBasFr::LigarCores()
{
    for (TCustomEdit *edit : std::initializer_list<TCustomEdit *>{
             DDDMaskEditBR, Fone1EditBR, Fone2EditBR, FaxEditBR, EMailLabeledEdit}) {
        AoEntrar(edit, [this, edit] { EditEnter(edit); });
        AoSair(edit, [this, edit] { EditExit(edit); });
    }
    AoEntrar(PaginaLabeledEdit, [this] { EditEnter(PaginaLabeledEdit); });
}

} // namespace ficha
