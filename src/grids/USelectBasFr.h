#pragma once

#include "base/UBasFr.h"

#include <cstdint>

namespace ficha
{

class TBitBtn;
class TLabeledEdit;

/**
 * A description with a search button. Enter in the description asks the screen what it stands for;
 * where the screen does not know, the search button is clicked, of which a descendant or the screen
 * makes a list or a dialog.
 *
 * Accented letters are typed as their plain ones. Enter is used up where there is someone to ask.
 */
class TSelectBasFr : public TBasFr
{
    Q_OBJECT

public:
    explicit TSelectBasFr(TChave chave);

    /** Asks what a description stands for: answers true where it knows, and may then rewrite both.
     * The code is kept whatever the answer. Null at first. */
    std::function<bool(std::int32_t &codigo, QString &descr)> OnBuscarDescr;
    /** The code found last; 0 at first. */
    std::int32_t Codigo = 0;

    TLabeledEdit *DescrLabeledEdit = nullptr;
    TBitBtn *SelectBitBtn = nullptr;

protected:
    void PegarComponentes() override;
    virtual void DescrLabeledEditKeyPress(QObject *sender, QChar &key);
    virtual void DescrLabeledEditKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    /** The focus goes to the description. */
    virtual void SelectBitBtnClick(QObject *sender);

    using TBuscar = std::function<bool(std::int32_t &, QString &)>;
    /** Asks with Codigo and a description and shows what was found; else clicks the button. Answers
     * whether it was found. The frame may be destroyed meanwhile. */
    bool Perguntar(const TBuscar &evento, const QString &descr);
    /** What was found: the description here, with its code in descendants. */
    virtual void MostrarAchado(const QString &descr);
};

} // namespace ficha
