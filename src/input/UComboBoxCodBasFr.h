#pragma once

#include "input/UComboBoxBasFr.h"

namespace ficha
{

class TBitBtn;
class TItensDoCombo;
class TSQLQuery;

/**
 * A choice by code: the list is filled from a select that gives the code first and the description
 * second, and a button opens the screen where a record is chosen or created.
 */
class TComboBoxCodBasFr : public TComboBoxBasFr
{
    Q_OBJECT
    Q_PROPERTY(QString SQLText READ GetSQLText WRITE SetSQLText)

public:
    explicit TComboBoxCodBasFr(TChave chave);

    void Create(QWidget *owner) override;

    /** The selected item's code; 0 when nothing is selected. */
    Variant GetValor() const override;
    /**
     * Selects the first item of a code. One that is not in the list reads the list again, once,
     * before nothing is selected; without a select there is nothing to read. Null selects nothing;
     * what is no number counts as code 0. EDatabaseError when the list cannot be read.
     */
    void SetValor(const Variant &valor) override;
    /** The code in decimal, unquoted. */
    QString SQLString() const override;
    /** A record was chosen or created elsewhere: reads the list again, selects the code and moves
     * the focus on to the form's next control. Codes below 1 are passed over. */
    void PegueNovo(int codigo) override;

    /**
     * Replaces the items by the rows of the select, in its order; nothing is selected then.
     *
     * EDatabaseError (EVariantError for a code that is no number) leaves the old items and their
     * selection as they were.
     */
    void PreencherComboBox1();
    /** Whether some item carries the code. */
    bool TemCod(int cod) const;

    QString GetSQLText() const;
    /** Sets the select and fills the list from it; an empty one empties the list. */
    void SetSQLText(const QString &sql);

    TBitBtn *EditBitBtn = nullptr;
    /** On the host's shared connection, taken at the first fill; owned. */
    TSQLQuery *SQLQuery1 = nullptr;

protected:
    void PegarComponentes() override;
    int ItemDoObjeto(std::intptr_t objeto) const override;
    /** An emptied text is code 0. */
    void ComboBox1Change(QObject *sender) override;
    /**
     * Opens the selection screen. The button is disabled until that screen's side enables it again
     * (a maintenance form does when it closes); only a failure on the way gives it back at once.
     */
    virtual void EditBitBtnClick(QObject *sender);

private:
    void UsarListaLonga();

    /** The items of ComboBox1, owned by it. */
    TItensDoCombo *itens = nullptr;
};

} // namespace ficha
