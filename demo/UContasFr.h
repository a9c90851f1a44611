#pragma once

#include "grids/UArvGridFr.h"

#include <QMap>

namespace comercial
{

/** An account; one that has others below it shows what these come to. */
class TConta : public ficha::TArvItem
{
public:
    int Cod = 0;
    QString Codigo;
    QString Descricao;
    double Saldo = 0;
};

/**
 * The chart of accounts as a tree. Cod1 is the account whose branch is shown, 0 for all of them. A
 * new reading opens the first level. Space opens and closes the current account, as plus and minus
 * do.
 */
class TContasFr : public ficha::TArvGridFr
{
    Q_OBJECT

public:
    using TArvGridFr::TArvGridFr;

    void Create(QWidget *owner) override;
    void PrepGrid() override;
    void ColocarFilhos(ficha::TArvItem *item) override;
    void DadoParaGrid(ficha::TArvItem *item) override;
    void AtualizarExibicao() override;

    /** Opens or closes every account. */
    void Expandir(bool tudo);
    /** The account of the current row; null without one. */
    TConta *Atual() const;
    /** Goes to the next account, after the current one and around, whose code starts with the text
     * or whose description contains it, accents and case aside; opens what it stands under. False
     * when there is none. */
    bool Localizar(const QString &texto);
    /** What an account among those that were read comes to; 0 for none such. */
    double SaldoDe(const QString &codigo) const;

protected:
    void StringGrid1KeyPress(QObject *sender, QChar &caractere) override;

private:
    void LerContas(const QString &ramo, ficha::TArvItem *raiz);
    void IrPara(const TConta *conta);
    QList<TConta *> Todas() const;

    /** By code, all that were read. */
    QMap<QString, TConta *> contas;
};

} // namespace comercial
