#include "demo/UPesquisaDeVendasFr.h"

#include "dates/UComboCodOpcionalFr.h"
#include "dates/UDataOpcionalFr.h"
#include "dates/UNumOpcionalFr.h"
#include "demo/UCriterios.h"
#include "demo/UItensDaVendaFr.h"
#include "demo/UVendasFr.h"
#include "grids/USelectCodBasFr.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "input/UNumEditBRBasFr.h"
#include "platform/database/ConexD.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TPanel.h"

#include <QApplication>
#include <QKeyEvent>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TPesquisaDeVendasFr)

void TPesquisaDeVendasFr::PegarComponentes()
{
    TPanelBasFr::PegarComponentes();
    Pegar(this, ListaFr, "ListaFr");
    Pegar(this, ItensFr, "ItensFr");
    Pegar(this, NovoItemFr, "NovoItemFr");
    Pegar(this, NovoItemBitBtn, "NovoItemBitBtn");
    Pegar(this, ClienteFr, "ClienteFr");
    Pegar(this, ValorFr, "ValorFr");
    Pegar(this, GrupoFr, "GrupoFr");
    Pegar(this, VencimentoFr, "VencimentoFr");
    Pegar(this, LimparAct, "LimparAct");
    ExecAct->OnExecute = [this](QObject *) { Executar(); };
    LimparAct->OnExecute = [this](QObject *) {
        ResetFiltro();
        Executar();
    };
    NovoItemFr->OnBuscarCod = [](std::int32_t &codigo, QString &descricao) {
        return AcharProduto(QStringLiteral("produtos_cod=%1").arg(codigo), codigo, descricao);
    };
    NovoItemFr->OnBuscarDescr = [](std::int32_t &codigo, QString &descricao) {
        return !descricao.isEmpty() &&
               AcharProduto(QStringLiteral("descricao containing ") + QuotedStr(descricao), codigo,
                            descricao);
    };
    ItensFr->OnProduto = [this] { return NovoItemFr->Codigo; };
    NovoItemBitBtn->OnClick = [this](QObject *) { ItensFr->InsAction->Execute(); };
}

void TPesquisaDeVendasFr::ResetFiltro()
{
    TPanelBasFr::ResetFiltro();
    ClienteFr->Zerar();
    Desligar(*ValorFr);
    Desligar(*GrupoFr);
    VencimentoFr->AtivoCheckBox->setChecked(false);
}

QStringList TPesquisaDeVendasFr::Condicoes()
{
    QStringList condicoes;
    if (!ClienteFr->AsString().isEmpty())
        condicoes << QStringLiteral("v.cliente containing ") + ClienteFr->SQLString();
    if (GrupoFr->AtivoCheckBox->isChecked())
        condicoes << QStringLiteral("exists(select 1 from vendas_itens x join produtos p on "
                                    "p.produtos_cod = x.produtos_cod where x.vendas_cod = "
                                    "v.vendas_cod and p.grupos_cod=%1)")
                         .arg(GrupoFr->ComboBoxCodFr->SQLString());
    VencimentoFr->Atualizar();
    condicoes << VencimentoFr->WhereStr(QStringLiteral("v.vencimento"));
    return condicoes;
}

QString TPesquisaDeVendasFr::CondicaoDoBruto() const
{
    return ValorFr->AtivoCheckBox->isChecked()
               ? QStringLiteral(">=") + ValorFr->TNumEditBRBasFr1->SQLString()
               : QString();
}

void TPesquisaDeVendasFr::keyPressEvent(QKeyEvent *evento)
{
    const bool enter = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (enter && Panel1->isAncestorOf(QApplication::focusWidget()))
        Protegido([this] { ExecAct->Execute(); });
    else
        TPanelBasFr::keyPressEvent(evento);
}

/** The criteria are as wide as the panel: it scrolls in height alone. */
void TPesquisaDeVendasFr::showEvent(QShowEvent *evento)
{
    TPanelBasFr::showEvent(evento);
    ScrollBox1Corpo->setMinimumWidth(0);
}

void TPesquisaDeVendasFr::Executar()
{
    if (OnExecutar)
        OnExecutar();
}

bool TPesquisaDeVendasFr::AcharProduto(const QString &condicao, std::int32_t &codigo,
                                       QString &descricao)
{
    const TCustomBRSQL produto(QStringLiteral("select first 1 produtos_cod, descricao from "
                                              "produtos where ") +
                               condicao + QStringLiteral(" order by descricao"));
    codigo = produto.IsEmpty() ? 0 : produto.Fields(0)->AsInteger();
    if (codigo > 0)
        descricao = produto.Fields(1)->AsString();
    return codigo > 0;
}

} // namespace comercial
