#include "forms/UTabBasF.h"

#include "forms/ULocalizBasF.h"
#include "platform/core/Erros.h"
#include "platform/database/ConexD.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TToolBar.h"

namespace ficha
{

FICHA_REGISTRAR(TTabBasF)

namespace
{

bool LocalizVisivel()
{
    return LocalizBasF && LocalizBasF->isVisible();
}

[[noreturn]] void FaltaOperacao(const QMetaObject *classe, const char *operacao)
{
    throw EErro(QStringLiteral("A tela %1 não define a operação %2.")
                    .arg(QLatin1String(classe->className()), QLatin1String(operacao)));
}

} // namespace

TTabBasF::TTabBasF(TChave chave) : TChildMDIBasF(chave), SQLQuery1(new TSQLQuery(this))
{
    SQLQuery1->setObjectName(QStringLiteral("SQLQuery1"));
}

TTabBasF::~TTabBasF() = default;

QString TTabBasF::NomeJanela() const
{
    FaltaOperacao(metaObject(), "NomeJanela");
}

bool TTabBasF::PodeLocalizar() const
{
    return true;
}

bool TTabBasF::PodeImprimir() const
{
    return true;
}

bool TTabBasF::PodeConfirmar() const
{
    return false;
}

void TTabBasF::Reler(int)
{
    ReabrirLista();
}

void TTabBasF::PrepararTab()
{
    FaltaOperacao(metaObject(), "PrepararTab");
}

void TTabBasF::PegarComponentes()
{
    TChildMDIBasF::PegarComponentes();
    Pegar(this, Panel2, "Panel2");
    Pegar(this, ToolbarPanel, "ToolbarPanel");
    Pegar(this, ToolBar1, "ToolBar1");
    Pegar(this, InsAction, "InsAction");
    Pegar(this, AltAction, "AltAction");
    Pegar(this, ExclAction, "ExclAction");
    Pegar(this, DesfazerAction, "DesfazerAction");
    Pegar(this, ConfirmAction, "ConfirmAction");
    Pegar(this, CancelarAction, "CancelarAction");
    Pegar(this, LocalizAction, "LocalizAction");
    InsAction->OnExecute = [this](QObject *sender) { InsActionExecute(sender); };
    InsAction->OnUpdate = [this](QObject *sender) { InsActionUpdate(sender); };
    AltAction->OnExecute = [this](QObject *sender) { AltActionExecute(sender); };
    ExclAction->OnExecute = [this](QObject *sender) { ExclActionExecute(sender); };
    LocalizAction->OnExecute = [this](QObject *sender) { LocalizActionExecute(sender); };
}

void TTabBasF::FormCreate(QObject *sender)
{
    TChildMDIBasF::FormCreate(sender);
    SQLQuery1->SetSQLConnection(ConexD().SQLConnection);
    ToolBar1->SetImages(SisD().ImageList16);
}

void TTabBasF::FormShow(QObject *sender)
{
    TChildMDIBasF::FormShow(sender);
    ToolBar1->Ajustar();
}

void TTabBasF::FormActivate(QObject *sender)
{
    TChildMDIBasF::FormActivate(sender);
    if (LocalizVisivel() && LocalizBasF->GetTabF() != this)
        LocalizBasF->SetTabF(this);
}

/** The dialog goes before the next screen becomes active and takes it over. */
void TTabBasF::FormClose(QObject *sender, TCloseAction &acao)
{
    TChildMDIBasF::FormClose(sender, acao);
    if (LocalizApontaAqui())
        LocalizBasF->Close();
}

void TTabBasF::FecharActionExecute(QObject *sender)
{
    TChildMDIBasF::FecharActionExecute(sender);
    if (LocalizApontaAqui())
        LocalizBasF->Close();
}

void TTabBasF::FecharActionUpdate(QObject *) {}

void TTabBasF::InsActionExecute(QObject *)
{
    FecharLocaliz();
}

void TTabBasF::AltActionExecute(QObject *)
{
    FecharLocaliz();
}

void TTabBasF::ExclActionExecute(QObject *)
{
    FecharLocaliz();
}

void TTabBasF::LocalizActionExecute(QObject *)
{
    if (!LocalizBasF)
        return;
    LocalizBasF->SetTabF(this);
    LocalizBasF->Show();
}

void TTabBasF::InsActionUpdate(QObject *)
{
    Atualizar();
}

void TTabBasF::FecharLocaliz()
{
    if (LocalizVisivel())
        LocalizBasF->Close();
}

void TTabBasF::ReabrirLista()
{
    SQLQuery1->Close();
    SQLQuery1->Open();
}

bool TTabBasF::LocalizApontaAqui() const
{
    return LocalizVisivel() && LocalizBasF->GetTabF() == this;
}

} // namespace ficha
