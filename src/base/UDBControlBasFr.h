#pragma once

#include "base/UControlBasFr.h"

namespace ficha
{

/**
 * A value frame that knows the table column it edits: it can refuse a value that the column
 * already holds, describe itself in one phrase, and turn its screen to alteration as soon as the
 * user starts typing.
 */
class TDBControlBasFr : public TControlBasFr
{
    Q_OBJECT
    /** The value must be unique in its column. */
    Q_PROPERTY(bool NaoRepetir MEMBER NaoRepetir)

public:
    explicit TDBControlBasFr(TChave chave);

    /** Adds phrase 0, "Já existe". */
    void Create(QWidget *owner) override;

    bool CanExit() override;
    /** With NaoRepetir, warns of and refuses a value that another record has. */
    bool ValorAceitavel() override;
    bool EhDeColuna() const override;
    void PegarColuna(TCampo *campo, TTabelaLinear *tabela) override;
    void DesligarColuna(const TCampo *campo) override;

    /** " <label>:  [Tab]Avançar", and "  Não pode ser repetido" where that is so; empty for a
     * frame that is not bound. */
    virtual QString FraseRef() const;

    /** Whether another record has this value, asked of the database. Never while the table is
     * idle or the frame is not bound. */
    bool Repetido() const;
    /** The bound field's own test; true for a frame that is not bound. */
    bool IsNull() const;
    /** Asks the screen for an alteration when the table is idle. */
    void Editar();

    /** The screen that holds the frame; not owned. Forgotten when the screen is gone. */
    ITelaManutencao *FormTabela() const;
    void SetFormTabela(ITelaManutencao *tela);
    /** The bound column's display label; "Este" when there is none. */
    QString RotuloDoCampo() const;
    /** Whether a column gives the frame a display label. */
    bool TemRotulo() const;

    bool NaoRepetir = false;
    /** Set together by PegarColuna, taken back when the table dies; not owned. */
    TTabelaLinear *Tabela = nullptr;
    TCampo *Campo = nullptr;

protected:
    void FrameExit(QObject *sender) override;
    void FrameEnter(QObject *sender) override;

private:
    QString InstrucaoRepetido() const;

    ITelaManutencao *tela = nullptr;
    QPointer<QObject> telaViva;
};

} // namespace ficha
