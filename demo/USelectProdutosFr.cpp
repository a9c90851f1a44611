#include "demo/USelectProdutosFr.h"

#include "platform/database/ConexD.h"
#include "platform/edits/TClientManager.h"
#include "platform/support/TDBGrid.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TLabeledEdit.h"

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TSelectProdutosFr)

void TSelectProdutosFr::Create(QWidget *owner)
{
    TSelectFr::Create(owner);
    LarguraTela = false;
}

void TSelectProdutosFr::FiltrarSoDig(const QString &texto)
{
    ClientManager1->CDS1->SetFilterText(QStringLiteral("cod"), texto, loPartialKey);
}

void TSelectProdutosFr::PosicionarSoDig(const QString &texto)
{
    PosicionarNoCodigo(QStringLiteral("cod"), texto);
}

void TSelectProdutosFr::FiltrarTexto(const QString &texto)
{
    FiltrarContendo(QStringLiteral("descricao"), texto);
}

void TSelectProdutosFr::PosicionarTexto(const QString &texto)
{
    PosicionarNoInicio(QStringLiteral("descricao"), texto);
}

int TSelectProdutosFr::Cod() const
{
    return ClientManager1->CDS1->FieldByName(QStringLiteral("cod"))->AsInteger();
}

QString TSelectProdutosFr::Descricao() const
{
    return ClientManager1->CDS1->FieldByName(QStringLiteral("descricao"))->AsString();
}

void TSelectProdutosFr::BuscaLabeledEditChange(QObject *sender)
{
    TSelectFr::BuscaLabeledEditChange(sender);
    if (BuscaLabeledEdit && BuscaLabeledEdit->GetText().isEmpty() && OnVazio)
        OnVazio();
}

void TSelectProdutosFr::ClientManager1CreateFields1(QObject *)
{
    const auto campo = [this](const char *nome, TFieldType tipo, const char16_t *titulo,
                              const char *formato = "", TAlignment alinhamento = taLeftJustify) {
        TField *novo = ClientManager1->CDS1->AddField(QString::fromLatin1(nome), tipo);
        novo->SetDisplayLabel(QString::fromUtf16(titulo));
        novo->SetDisplayFormat(QString::fromLatin1(formato));
        novo->SetAlignment(alinhamento);
    };
    campo("cod", TFieldType::ftInteger, u"Código", "0", taRightJustify);
    campo("descricao", TFieldType::ftString, u"Descrição");
    campo("preco", TFieldType::ftFloat, u"Preço", "#,##0.00", taRightJustify);
    campo("estoque", TFieldType::ftInteger, u"Estoque", "0", taRightJustify);
}

void TSelectProdutosFr::ClientManager1PrepGrid1(QObject *)
{
    for (const auto &[nome, largura] :
         {std::pair("cod", 56), {"descricao", 230}, {"preco", 70}, {"estoque", 60}})
        DBGrid1->ColumnByField(QString::fromLatin1(nome))->SetWidth(largura);
    ClientManager1->Ordenar(QStringLiteral("descricao"));
}

void TSelectProdutosFr::ClientManager1ListUpDate(QObject *sender)
{
    TSelectFr::ClientManager1ListUpDate(sender);
    TCustomBRSQL produtos(QStringLiteral("select produtos_cod as cod, descricao, preco, estoque "
                                         "from produtos order by descricao"));
    ClientManager1->CopiarDe(produtos.Query());
}

} // namespace comercial
