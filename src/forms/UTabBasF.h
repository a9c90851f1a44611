#pragma once

#include "platform/database/TSQLConnection.h"
#include "platform/database/TSQLQuery.h"
#include "platform/hostforms/TChildMDIBasF.h"

namespace ficha
{

class TAction;
class TPanel;
class TToolBar;

/**
 * Base of every table screen: a child window that owns the query of its list, the standard editing
 * actions and a bottom tool bar, and that keeps the process's search dialog pointed at the active
 * screen.
 *
 * A descendant supplies NomeJanela and PrepararTab; one that leaves them out fails with EErro when
 * they are called. The text of the list's query comes from a layout (property "SQLText") or from
 * the descendant's FormCreate, before it calls the inherited one.
 */
class TTabBasF : public TChildMDIBasF
{
    Q_OBJECT
    Q_PROPERTY(QString SQLText READ GetSQLText WRITE SetSQLText)

public:
    explicit TTabBasF(TChave chave);
    ~TTabBasF() override;

    /** The screen's name in messages. */
    virtual QString NomeJanela() const;
    virtual bool PodeLocalizar() const;
    virtual bool PodeImprimir() const;
    virtual bool PodeConfirmar() const;
    /** Reads the list again; here the code has no meaning. */
    virtual void Reler(int cod);
    /** Makes the table object and binds its fields; called by the linear screen's creation. */
    virtual void PrepararTab();

    /** The text of the list's query. */
    QString GetSQLText() const { return SQLQuery1->GetSQL(); }
    void SetSQLText(const QString &sql) { SQLQuery1->SetSQL(sql); }

    /** The list, on the host's connection; owned. */
    TSQLQuery *const SQLQuery1;
    TPanel *Panel2 = nullptr;
    TPanel *ToolbarPanel = nullptr;
    TToolBar *ToolBar1 = nullptr;
    TAction *InsAction = nullptr;
    TAction *AltAction = nullptr;
    TAction *ExclAction = nullptr;
    TAction *DesfazerAction = nullptr;
    TAction *ConfirmAction = nullptr;
    TAction *CancelarAction = nullptr;
    TAction *LocalizAction = nullptr;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void FormShow(QObject *sender) override;
    void FormActivate(QObject *sender) override;
    void FormClose(QObject *sender, TCloseAction &acao) override;
    /** Closes the screen and the search dialog that points at it. */
    void FecharActionExecute(QObject *sender) override;
    /** Nothing: InsAction's update refreshes the screen. */
    void FecharActionUpdate(QObject *sender) override;
    /** Each closes the search dialog; the descendants then start the operation. */
    virtual void InsActionExecute(QObject *sender);
    virtual void AltActionExecute(QObject *sender);
    virtual void ExclActionExecute(QObject *sender);
    /** Points the search dialog at this screen and shows it, not modal. */
    virtual void LocalizActionExecute(QObject *sender);
    /** Runs Atualizar: the moment at which all enabling rules are applied. */
    virtual void InsActionUpdate(QObject *sender);

    /** Closes the search dialog, whatever screen it points at. */
    void FecharLocaliz();
    /** Closes and opens the list's query. */
    void ReabrirLista();
    /** Whether the visible search dialog points at this screen. */
    bool LocalizApontaAqui() const;
};

} // namespace ficha
