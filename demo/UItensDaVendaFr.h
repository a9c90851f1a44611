#pragma once

#include "grids/USQLGridBasFr.h"
#include "platform/support/TGridColsInfo.h"

namespace comercial
{

/** The items of one sale: a product is added, a quantity altered, an item taken away. The last item
 * of a sale stays. */
class TItensDaVendaFr : public ficha::TSQLGridBasFr
{
    Q_OBJECT

public:
    using TSQLGridBasFr::TSQLGridBasFr;

    void Create(QWidget *owner) override;
    /** The sale, 0 for none. */
    ficha::Variant GetValor() const override;
    void SetValor(const ficha::Variant &valor) override;
    void Zerar() override;

    /** The product that "Inserir" adds; 0 for none, which the user is told. */
    std::function<int()> OnProduto;
    /** The sale comes to something else now. */
    std::function<void()> OnMudou;

private:
    void Reler();
    void Inserir();
    void Alterar();
    void Excluir();
    /** The item of the current row, 0 for none. */
    int Item() const;
    /** Asks for a quantity; 0 when the user did not confirm. */
    int PedirQuantidade(const QString &produto, int quantidade);
    void Gravar(const QString &sql);

    int venda = 0;
    ficha::TGridColsInfo colsInfo;
};

} // namespace comercial
