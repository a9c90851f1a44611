#pragma once

#include "grids/USelectFr.h"
#include "platform/edits/TClientManager.h"
#include "platform/support/TDBGrid.h"

#include <QStringList>

#include <functional>

namespace ficha::testes
{

/**
 * What a screen derives: the products, found by their code or by any part of their description, in
 * the order of the description.
 */
class TSelectProdutosFr : public TSelectFr
{
public:
    explicit TSelectProdutosFr(TChave chave) : TSelectFr(chave) {}

    void FiltrarSoDig(const QString &texto) override
    {
        ClientManager1->CDS1->SetFilterText(QStringLiteral("cod"), texto, loPartialKey);
    }
    void PosicionarSoDig(const QString &texto) override
    {
        PosicionarNoCodigo(QStringLiteral("cod"), texto);
    }
    void FiltrarTexto(const QString &texto) override
    {
        FiltrarContendo(QStringLiteral("descr"), texto);
    }
    void PosicionarTexto(const QString &texto) override
    {
        PosicionarNoInicio(QStringLiteral("descr"), texto);
    }

    int Cod() const { return Campo("cod")->AsInteger(); }
    QString Descr() const { return Campo("descr")->AsString(); }

    /** Where the rows come from: a query's rows, on a screen of a program. */
    std::function<void(TClientDataSet &)> Ler;

protected:
    void ClientManager1CreateFields1(QObject *) override
    {
        const auto campo = [this](const char *nome, TFieldType tipo, const char16_t *titulo) {
            TField *novo = ClientManager1->CDS1->AddField(QString::fromLatin1(nome), tipo);
            novo->SetDisplayLabel(QString::fromUtf16(titulo));
            return novo;
        };
        TField *cod = campo("cod", TFieldType::ftInteger, u"Código");
        cod->SetDisplayFormat(QStringLiteral("000000"));
        cod->SetAlignment(taCenter);
        campo("descr", TFieldType::ftString, u"Descrição");
        TField *preco = campo("preco", TFieldType::ftFloat, u"Preço");
        preco->SetDisplayFormat(QStringLiteral("#,##0.00"));
        preco->SetAlignment(taRightJustify);
    }
    void ClientManager1PrepGrid1(QObject *) override
    {
        DBGrid1->ColumnByField(QStringLiteral("cod"))->SetWidth(60);
        DBGrid1->ColumnByField(QStringLiteral("descr"))->SetWidth(260);
        DBGrid1->ColumnByField(QStringLiteral("preco"))->SetWidth(90);
        ClientManager1->Ordenar(QStringLiteral("descr"));
    }
    void ClientManager1ListUpDate(QObject *sender) override
    {
        TSelectFr::ClientManager1ListUpDate(sender);
        if (Ler)
            Ler(*ClientManager1->CDS1);
    }

private:
    TField *Campo(const char *nome) const
    {
        return ClientManager1->CDS1->FieldByName(QString::fromLatin1(nome));
    }
};

} // namespace ficha::testes
