#pragma once

#include "base/UBasFr.h"

namespace ficha
{

class TBitBtn;
class TFoneEditBR;
class TLabeledEdit;
class TMaskEditBR;

/**
 * The contact data of a person or a company in one row: area code, two telephones, fax, e-mail and
 * web page, with a button that opens the page. No value frame: screens read and write the edits.
 *
 * The row is meant to be typed through: the second digit of the area code and the last one of a
 * number go on by themselves, and so does Enter, which is used up; the page is the end of the row,
 * where Enter is left to the screen. In tab order the area code comes last.
 *
 * An area code left incomplete, empty included, is told once; the focus goes where it was sent.
 * Which codes are in use is not asked.
 */
class TContatoBasFr : public TBasFr
{
    Q_OBJECT

public:
    explicit TContatoBasFr(TChave chave);

    void Create(QWidget *owner) override;

    /** The host's area code (SisD's DDDPadrao), everything else empty; the focus stays. */
    void Zerar();

    TMaskEditBR *DDDMaskEditBR = nullptr;
    TFoneEditBR *Fone1EditBR = nullptr;
    TFoneEditBR *Fone2EditBR = nullptr;
    TFoneEditBR *FaxEditBR = nullptr;
    TLabeledEdit *EMailLabeledEdit = nullptr;
    TLabeledEdit *PaginaLabeledEdit = nullptr;
    TBitBtn *WebBitBtn = nullptr;

protected:
    void PegarComponentes() override;

    virtual void DDDMaskEditBRLastType(QObject *sender);
    virtual void DDDMaskEditBRUncomplete(QObject *sender);

    virtual void DDDMaskEditBRKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    virtual void Fone1EditBRKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    virtual void Fone2EditBRKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    /** Goes on only while the e-mail can be seen. */
    virtual void FaxEditBRKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    virtual void EMailLabeledEditKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    /** No component's; for descendants whose area code is another edit. */
    virtual void DDDNumEditBRKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);

    /** Paint the entered or left edit, the sender, with the host's colours. The page runs EditEnter
     * only and keeps the colour when it is left (kept as it is). */
    virtual void EditEnter(QObject *sender);
    virtual void EditExit(QObject *sender);

    /** Opens the page as typed, without blanks around it; an empty one, too. */
    virtual void WebBitBtnClick(QObject *sender);

private:
    void LigarTeclas();
    void LigarCores();
};

} // namespace ficha
