#pragma once

#include "platform/toolkit/TForm.h"

namespace ficha
{

class TAction;
class TActionList;
class TPanel;

/**
 * The host's form base: a panel that fills the client area, an action list with the action that
 * closes the form, and a refresh that runs at idle time while the form is visible.
 */
class TBasF : public TForm
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)

public:
    explicit TBasF(TChave chave);

    /** The window caption; here the caption text of the form. */
    virtual QString TextoCaption();
    /** The periodic refresh, from the idle-time update of FecharAction; here it shows
     * TextoCaption in the title. Written only when it changed. */
    virtual void Atualizar();

    /** The caption text that TextoCaption starts from; shown at once. */
    void SetCaption(const QString &texto);

    /** Free for the program that opens the form; a child window gets it at its creation. */
    QString Parametro;

    /** Fills the client area. */
    TPanel *Panel1 = nullptr;
    TActionList *ActionList1 = nullptr;
    /** "Fechar", Ctrl+F4. */
    TAction *FecharAction = nullptr;

protected:
    void PegarComponentes() override;
    /** Closes the form. */
    virtual void FecharActionExecute(QObject *sender);
    /** Runs Atualizar. A form that refreshes from another action replaces it with nothing. */
    virtual void FecharActionUpdate(QObject *sender);
    /** Gives the focus to the first visible control whose tag is 1; false when there is none. */
    bool SelecionarTag1();

private:
    QString captionBase;
};

} // namespace ficha
