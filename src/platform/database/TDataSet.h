#pragma once

#include "platform/database/TField.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <utility>
#include <vector>

namespace ficha
{

/**
 * Rows with a current one. Positioning is O(1) and announces nothing by itself beyond
 * AfterScroll; RecordCount is exact as soon as the dataset is open.
 *
 * AfterScroll is emitted only when the row number really changes, and once by Open() when there is
 * a row; BeforeScroll just before a row number changes. Columns of equal names get "_1", "_2", ...
 * appended from the second on, so that every name binds one column; a column without a name is
 * called "F_1", and so on.
 *
 * Row numbers run from 1; RecNo() is 0 when there is no row. A closed dataset has no rows and
 * answers every question as an empty one does.
 *
 * The handlers of a dataset's events may close it and open it. They must not delete it, except that
 * of BeforeOpen: deleteLater is the way.
 */
class TDataSet : public QObject
{
    Q_OBJECT

public:
    explicit TDataSet(QObject *owner = nullptr);
    ~TDataSet() override;

    /** Opens a closed dataset and stands on its first row; an open one is left alone. */
    void Open();
    /** Forgets the rows; the fields stay. */
    void Close();
    bool Active() const { return aberto; }

    int RecordCount() const;
    bool IsEmpty() const { return RecordCount() == 0; }
    int RecNo() const { return recNo; }
    void First();
    void Last();
    void Next();
    void Prior();
    /** Moves by n rows, stopping at either end; answers the rows really moved, with their sign. */
    int MoveBy(int n);
    /** The last move tried to go past the last row, or was Last(), or there is no row. */
    bool Eof() const { return eof; }
    /** The last move tried to go before the first row, or was First() or Open(), or no row. */
    bool Bof() const { return bof; }

    int FieldCount() const { return int(abertos.size()); }
    /** The i-th column of the open dataset, from 0. */
    TField *Fields(int i) const;
    /** By name, letter case ignored (an exact match wins); null when there is none. An open dataset
     * knows its columns, a closed one every field that it ever had. */
    TField *FindField(const QString &nome) const;
    /** By name; EDatabaseError naming the field when there is none. */
    TField *FieldByName(const QString &nome) const;

    /**
     * Between the two nothing announces itself: neither scrolling nor changed rows. Calls nest; the
     * last EnableControls announces once what happened in between.
     */
    void DisableControls();
    void EnableControls();
    bool ControlsDisabled() const { return desabilitados > 0; }

Q_SIGNALS:
    /** Open was asked for and nothing is read yet: the place to write a query's text. */
    void BeforeOpen();
    void AfterOpen();
    void AfterClose();
    void BeforeScroll();
    /** The current row changed. */
    void AfterScroll();
    /** Rows came, went, changed their order or their values while the dataset stays open. */
    void DadosMudaram();

protected:
    struct TColuna {
        QString nome;
        TFieldType tipo = TFieldType::ftUnknown;
        int tamanho = 0;
        int escala = 0;
    };

    /** Reads the rows. Raises EDatabaseError and leaves the dataset closed. */
    virtual void AbrirLinhas() = 0;
    virtual void FecharLinhas() = 0;
    virtual int ContarLinhas() const = 0;
    /** Row from 0, column from 0, both in range. */
    virtual bool CelulaNula(int linha, int coluna) const = 0;
    virtual Variant CelulaValor(int linha, int coluna) const = 0;
    virtual QString CelulaTexto(int linha, int coluna) const;
    /** The text of the value (see Variant), which may stand in espaco. */
    virtual QAnyStringView CelulaTextoDoValor(int linha, int coluna, TEspacoDeTexto &espaco) const;
    /** Writes a value into the row under edit. Refused here: most datasets only read. */
    virtual void GravarCelula(const TField &campo, const Variant &valor);
    /** The current row is about to be left: a dataset with an edit state ends it. */
    virtual void EncerrarEdicao() {}
    /** The controls come back and nothing was announced yet. */
    virtual void AntesDeHabilitar() {}

    /** Column of a field among the open ones, -1 when it has none. */
    static int ColunaDoCampo(const TField &campo);
    /** A new field, owned; the name must be a new one. */
    TField *NovoCampo(const TColuna &coluna);
    /** The current row from now on, from 1; 0 for none. Announces nothing. */
    void Renumerar(int linha);
    /** Row (from 1) that the fields read while a row is edited; 0 for the current one. */
    void SetLinhaDosCampos(int linha) { linhaEditada = linha; }
    /** Announces, or remembers it until EnableControls. */
    void AvisarRolagem();
    void AvisarDados();
    /** Matches the columns to the fields by name; keeps the fields of columns that are gone, which
     * then raise EDatabaseError when they are read. */
    void DefinirColunas(const std::vector<TColuna> &colunas);

private:
    friend class TField;
    friend class TLerLinha;
    int LinhaDosCampos() const
    {
        return linhaLida > 0 ? linhaLida : linhaEditada > 0 ? linhaEditada : recNo;
    }
    void Desligar();
    TField *CampoDaColuna(const QString &nome);
    void IrPara(int linha);

    std::vector<std::unique_ptr<TField>> campos; /**< every field ever made, owned */
    std::vector<TField *> abertos;               /**< the open columns in their order */
    int recNo = 0;
    int linhaLida = 0;    /**< read by the fields for a TLerLinha */
    int linhaEditada = 0; /**< read by the fields during an edit */
    int desabilitados = 0;
    bool rolouCalado = false, mudouCalado = false;
    bool aberto = false;
    bool eof = true;
    bool bof = true;
};

/**
 * While it lives, the fields of a dataset read another row than the current one, for lists that
 * paint their rows. The current row stays and nothing is announced.
 */
class TLerLinha
{
public:
    /** The row's number, from 1 to RecordCount. */
    TLerLinha(TDataSet *dataset, int linha)
        : dono(dataset), antes(std::exchange(dataset->linhaLida, linha))
    {
    }
    ~TLerLinha()
    {
        if (dono)
            dono->linhaLida = antes;
    }
    TLerLinha(const TLerLinha &) = delete;
    TLerLinha &operator=(const TLerLinha &) = delete;

private:
    QPointer<TDataSet> dono;
    int antes;
};

} // namespace ficha
