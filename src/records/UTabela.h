#pragma once

#include "platform/core/Criar.h"
#include "records/UCampos.h"

namespace ficha
{

/** Edit state of a table. */
enum class TStatus : unsigned char { Ocioso = 0, Inserindo = 1, Alterando = 2, Excluindo = 3 };

/**
 * One database table as a maintenance screen sees it: the dataset with its rows, the fields bound
 * to the screen's inputs, and the edit state. Never touches the dataset in a change of state: the
 * screen posts, cancels and deletes itself. A second start while a state is open is ignored.
 *
 * Made by Criar<TTabela>(dataset, nome); the dataset is not owned. Database errors go to the
 * caller.
 */
class TTabela
{
public:
    explicit TTabela(TChave);
    virtual ~TTabela();
    TTabela(const TTabela &) = delete;
    TTabela &operator=(const TTabela &) = delete;

    virtual void Create(TDataSet *dataset, const QString &nomeTabela);

    virtual void SetDataSet(TDataSet *dataset);
    virtual void InsIni();
    virtual void AltIni();
    virtual void ExclIni();
    /** Closes the state and brings the generator up to the highest code in use. */
    virtual void InsFim();
    virtual void AltFim();
    virtual void ExclFim();
    virtual void InsCancel();
    virtual void AltCancel();
    virtual void ExclCancel();
    virtual bool PodeInserir() const;
    /** Idle, with at least one row. */
    virtual bool PodeAlterar() const;
    virtual bool PodeExcluir() const;
    /** Makes sure of the current record for this screen; the base cannot and answers false. */
    virtual bool GarantiaRegistro();

    /** Empty when idle, else "Inserindo", "Alterando" or "Excluindo". */
    QString StatusStr() const;
    /** Takes the values of all fields but the keys from the columns of the same names of another
     * dataset and shows them. */
    void LerCamposDoDataSet(const TDataSet *dataset);
    /** Highest code stored in a table; 0 for an empty one, EVariantError beyond 32 bits. */
    int GenMaiorCod(const QString &tabela) const;
    /** The table's generator, named after it; EVariantError when its value is beyond 32 bits. */
    int GenVal(const QString &tabela) const;
    void GenSet(const QString &tabela, int valor) const;
    /** Moves the generator up to the highest code in use, never down. */
    void GenUpDate(const QString &tabela) const;

    /** Not owned; null once it was destroyed. */
    QPointer<TDataSet> DataSet;
    std::unique_ptr<TCampos> Campos;
    TStatus Status = TStatus::Ocioso;
    /** Also the stem of the code column (+ "_cod") and of the generator (+ "_cod_gen"). */
    QString NomeTabela;
};

} // namespace ficha
