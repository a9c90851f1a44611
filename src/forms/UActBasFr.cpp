#include "forms/UActBasFr.h"

#include "forms/UActContainerF.h"
#include "platform/core/Erros.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TToolBar.h"

#include <QScopeGuard>

#include <memory>
#include <typeinfo>

namespace ficha
{

FICHA_REGISTRAR(TActBasFr)

namespace
{
constexpr QSize TamanhoAmpliado(700, 400);
}

TActBasFr::TActBasFr(TChave chave) : TBasFr(chave) {}

void TActBasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    cod1 = -1;
    ToolBar1->SetImages(SisD().ImageList16);
    ToolBar1->SetDisabledImages(SisD().DisImageList16);
    ActionList1->SetImages(SisD().ImageList16);
}

void TActBasFr::PegarUltimo()
{
    RelerFonte();
}

void TActBasFr::BeforeContainerShow(TActContainerF *container)
{
    container->resize(TamanhoAmpliado);
    TActBasFr *copia = NovaCopia(container);
    container->ActFr = copia;
    copia->AmpliarAct->SetEnabled(false);
    copia->SetCod1(cod1);
}

void TActBasFr::AtualizarExibicao() {}

void TActBasFr::RelerFonte() {}

void TActBasFr::AntesTrocarCod() {}

void TActBasFr::SetCod1(std::int32_t codigo)
{
    if (codigo == cod1)
        return;
    AntesTrocarCod();
    cod1 = codigo;
    PegarUltimo();
    RelerFonte();
    AtualizarExibicao();
}

void TActBasFr::PegarCodSemProcessar(std::int32_t codigo)
{
    cod1 = codigo;
}

void TActBasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, ToolBar1Panel, "ToolBar1Panel");
    Pegar(this, ToolBar1, "ToolBar1");
    Pegar(this, AmplToolButton, "AmplToolButton");
    Pegar(this, ActionList1, "ActionList1");
    Pegar(this, AmpliarAct, "AmpliarAct");
    AmpliarAct->OnUpdate = [this](QObject *sender) { AmpliarActUpdate(sender); };
    AmpliarAct->OnExecute = [this](QObject *sender) { AmpliarActExecute(sender); };
}

void TActBasFr::AmpliarActUpdate(QObject *)
{
    Atualizar();
}

void TActBasFr::AmpliarActExecute(QObject *)
{
    const QPointer<TActBasFr> vivo(this);
    TForm *tela = TForm::FormularioDe(this);
    // The screen owns the window, and may take it along when it is destroyed meanwhile.
    const QPointer<TActContainerF> container(
        Criar<TActContainerF>(tela ? static_cast<QWidget *>(tela) : window()));
    const auto liberar = qScopeGuard([&] { delete container.data(); });
    if (tela)
        container->SetCaption(tela->GetCaption());
    BeforeContainerShow(container);
    if (container)
        container->ShowModal();
    if (vivo)
        RelerFonte();
    if (vivo)
        AtualizarExibicao();
}

TActBasFr *TActBasFr::NovaCopia(QWidget *dono) const
{
    const QString classe = QString::fromLatin1(metaObject()->className());
    std::unique_ptr<QWidget> nova(CriarPeloNome(classe.section(QStringLiteral("::"), -1), dono));
    const QWidget *feita = nova.get();
    // A class without a meta-object of its own goes by the name of its base.
    if (!feita || typeid(*feita) != typeid(*this))
        throw EErro(QStringLiteral("A janela ampliada mostra uma cópia do quadro, e a classe dele "
                                   "(%1) não está registrada.\r\nEla precisa de Q_OBJECT e "
                                   "FICHA_REGISTRAR.")
                        .arg(classe));
    return static_cast<TActBasFr *>(nova.release());
}

} // namespace ficha
