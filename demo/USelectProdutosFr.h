#pragma once

#include "grids/USelectFr.h"

namespace comercial
{

/** The products under a search edit, found by their code or by a part of their description. */
class TSelectProdutosFr : public ficha::TSelectFr
{
    Q_OBJECT

public:
    using TSelectFr::TSelectFr;

    void Create(QWidget *owner) override;
    void FiltrarSoDig(const QString &texto) override;
    void PosicionarSoDig(const QString &texto) override;
    void FiltrarTexto(const QString &texto) override;
    void PosicionarTexto(const QString &texto) override;

    /** Of the current row. */
    int Cod() const;
    QString Descricao() const;

    /** The search edit was emptied. */
    std::function<void()> OnVazio;

protected:
    void BuscaLabeledEditChange(QObject *sender) override;
    void ClientManager1CreateFields1(QObject *sender) override;
    void ClientManager1PrepGrid1(QObject *sender) override;
    void ClientManager1ListUpDate(QObject *sender) override;
};

} // namespace comercial
