#pragma once

#include "records/UTabela.h"

#include <optional>

namespace ficha
{

class TStringGrid;

/**
 * The table of a maintenance screen: rows walked by a number from 1, a primary key made of the
 * leading key fields, edits protected by a record lock held in the database.
 *
 * The lock is taken by GarantiaRegistro and released when the alteration or deletion ends, at the
 * latest when the table is destroyed. Rows that are only walked over are never shown in the
 * inputs, and only the fields that the walk asks for are read from them; the state after each
 * operation is that of walking row by row, as FormasSimples has it done.
 */
class TTabelaLinear : public TTabela
{
public:
    explicit TTabelaLinear(TChave chave);
    /** Releases the lock that is still held; the fields unbind the frames that point here. */
    ~TTabelaLinear() override;

    void Create(TDataSet *dataset, const QString &nomeTabela) override;

    /** Empties every bound input when the state really became inserting. */
    void InsIni() override;
    void AltIni() override;
    void ExclIni() override;
    void InsFim() override;
    void AltFim() override;
    void ExclFim() override;
    /** Shows the current row again; empties the inputs when there is none. */
    void InsCancel() override;
    void AltCancel() override;
    void ExclCancel() override;
    /**
     * Takes the lock of the current record, re-reads the dataset in either case and stands on the
     * same record again (the first when it is gone). The inputs are not touched. A lock that the
     * table still holds from an earlier edit is given back first. False without a dataset.
     */
    bool GarantiaRegistro() override;
    /**
     * Makes sure that this table still holds the lock of the record being altered or deleted, to be
     * asked before the change is written: a lost connection takes its locks along. A lock that is
     * gone is taken again without re-reading the dataset. False when someone else has the record by
     * now or it was deleted, which the user has then been told; EDatabaseError while the connection
     * cannot be made again. Either way a later call tries again.
     */
    bool GarantirTrava();

    /** Binding of columns, key fields first; the fields are owned by the table, columns and
     * controls are not. Each answers the new field. */
    TCampo *PegarCampo(TField *field);
    TCampo *PegarCampo(TField *field, int largura);
    TCampo *PegarCampoChave(TField *field);
    TCampo *PegarCampo(TField *field, int largura, QWidget *control);
    TCampo *PegarCampoChave(TField *field, int largura, QWidget *control);
    TCampo *PegarCampoChaveEstrangeira(TField *field, TField *fieldDescricao, int largura,
                                       QWidget *control);

    /** " where key=value and ..." of the current record, values as AsString has them, unquoted;
     * " where " alone without key fields. */
    QString WhereStr() const;
    /** The key of the current record as text, its fields joined by ";". */
    QString ChavesGarantia() const;

    void First();
    void Last();
    /** On the last row only Fim is set. */
    void Next();
    void Prior();
    bool PodeFirst() const;
    bool PodePrior() const;
    bool PodeNext() const;
    bool PodeLast() const;
    bool PodeTabChange() const;
    /** Makes row n current, clamped into the rows; -1 is the number of an empty dataset. */
    void SetRecno(int n);
    /** Moves the dataset's cursor only. */
    void PosicionarDataSet(int n);
    /** Extension point: always false here. */
    bool Locate(const QString &texto);
    /** Makes current the row whose key text is exactly this one, else the first row. */
    void LocalizarPelaChave(const QString &chaves);
    /** Fills a grid with the visible fields of all rows. A row whose first field's column is Null
     * in the database, a text column's included, ends the filling: the grid's further rows keep
     * what they held. */
    void PreencherStringGrid(TStringGrid *grid);
    /** Fills a list with the text of field i of every row; AtualizarControles is left on. */
    void PreencherStringList(TLinhas &lista, int i);
    /** Gives the lock of a record back when this table holds it; else nothing. */
    void LiberarRegistro(const QString &chaves);

    /** Number of the current row, -1 when the dataset is empty. */
    int RecNo = -1;
    /** Rows found by the last PreencherStringGrid. */
    int NLinhas = 0;
    /** The walk has passed the last row. */
    bool Fim = true;
    /** Reserved. */
    bool Reservado = false;
    /** Show every change of the current row in the bound inputs. */
    bool AtualizarControles = true;

private:
    TCampo *NovoCampo(TField *field, bool chave, int largura, bool visivel);
    void LigarControl(TCampo *campo, QWidget *control);
    int NRegistros() const;
    void LerRegistro();
    template <typename F>
    void PercorrerLinhas(F f);
    static bool TemEvento(const std::vector<TCampo *> &campos);
    static bool LinhaTemChave(const std::vector<TCampo *> &campos, QStringView chaves);
    void PreencherTitulos(TStringGrid *grid) const;
    void PreencherLinhas(TStringGrid *grid);
    void AndarAteAChave(const QString &chaves);
    void PreencherLinhaALinha(TStringGrid *grid);
    bool Travar(const QString &chaves, const QString &onde);
    bool DetemTrava() const;
    void LiberarTrava();

    /** What the lock was taken on: the current row may be another one by now. */
    struct TTravado {
        QString chaves;
        QString onde;
        qint64 numero; /**< tells this table's lock from one that another screen took since */
    };
    std::optional<TTravado> travado;
    const std::shared_ptr<const char> vida = std::make_shared<const char>(); /**< as long as this */
};

} // namespace ficha
