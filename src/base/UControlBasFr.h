#pragma once

#include "base/UBasFr.h"
#include "platform/core/TLinhas.h"
#include "platform/core/Variant.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TForm.h"

#include <QPointer>

namespace ficha
{

class TCampo;
class TControlBasFr;
class TTabelaLinear;

/**
 * What a value frame asks of the maintenance screen that holds it or that it opens. The screen is
 * a TForm that also implements this.
 */
class ITelaManutencao
{
public:
    virtual ~ITelaManutencao() = default;

    /** Starts an alteration of the current record; false when it did not start. */
    virtual bool AtivarAlteracao() = 0;
    /** The frame that opened the screen to create or choose a record; null when none did. */
    virtual TControlBasFr *GetChamador() const = 0;
    virtual void SetChamador(TControlBasFr *chamador) = 0;
};

/**
 * The contract of every input: one value as a Variant, whether it may be kept, its display text
 * and its SQL literal, and a selection screen to pick it from. Also a list of help phrases, each
 * switched on (1) or off (0).
 */
class TControlBasFr : public TBasFr
{
    Q_OBJECT

public:
    explicit TControlBasFr(TChave chave);
    /** Undoes the link of Selecionar: a screen that outlives the frame forgets it. */
    ~TControlBasFr() override;

    void Create(QWidget *owner) override;

    /** Composes the phrases that are switched on; descendants show them. No other effect. */
    void Atualizar() override;

    virtual Variant GetValor() const;
    virtual void SetValor(const Variant &valor);
    /** Whether the focus may leave: asks ValorAceitavel, then refreshes whatever the answer. */
    virtual bool CanExit();
    /** Empties the input and switches every phrase off. */
    virtual void Zerar();
    /** False when the value must not be kept; the frame has then told the user why. */
    virtual bool ValorAceitavel();
    /** Runs SelecionarAction and links the screen that it opened to this frame. */
    virtual void Selecionar();
    /** Receives the code of a record chosen or created on the selection screen. */
    virtual void PegueNovo(int codigo);
    /** The value as display text. */
    virtual QString AsString() const;
    /** The value as a literal ready for a SQL statement. */
    virtual QString SQLString() const;

    /** Whether the frame edits a column of a table. */
    virtual bool EhDeColuna() const;
    /** Binds the frame to a field and its table; column-bound frames keep both. */
    virtual void PegarColuna(TCampo *campo, TTabelaLinear *tabela);
    /** Forgets the field and its table, if this is the field it is bound to. */
    virtual void DesligarColuna(const TCampo *campo);
    /** Whether what the user typed here counts for undoing a record. */
    virtual bool PodeDesfazer() const;

    void DesligarFrases();
    /** The phrases switched on, joined by ". ". */
    QString FrasesLigadas() const;

    /** Called at the end of Selecionar with the frame as sender. */
    std::function<void(QObject *)> OnSelecionar;
    /** The screen that Selecionar found; not owned, null until then and after its end. */
    QPointer<TForm> FormSelecionar;
    /** Help phrases with their flag (1 on, 0 off); their indices are fixed by the constructors. */
    TLinhas Frases;
    /** Opens the selection screen; set by the host screen, not owned. */
    QPointer<TAction> SelecionarAction;
    /** Name of the screen that SelecionarAction opens. */
    QString NomeFormSelecionar;

protected:
    /** The focus left: an unacceptable value takes it back, its phrases staying on. */
    virtual void FrameExit(QObject *sender);
    /** For descendants to hook up to the enter event. */
    virtual void FrameEnter(QObject *sender);
};

} // namespace ficha
