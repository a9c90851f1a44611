#pragma once

#include "platform/database/TDataSet.h"
#include "platform/database/TDataSetState.h"

#include <functional>
#include <initializer_list>
#include <memory>

namespace ficha
{

/** Options of an index, to be combined. */
enum TIndexOptions : unsigned {
    ixNenhuma = 0,
    ixDescending = 1,
    ixCaseInsensitive = 2, /**< letters of either case are equal */
};

/** Options of a search, to be combined. */
enum TLocateOptions : unsigned {
    loNenhuma = 0,
    loCaseInsensitive = 1, /**< neither case nor accents count */
    loPartialKey = 2,      /**< texts may go on behind the value */
    loContains = 4,        /**< texts may go on behind the value and start before it */
};

struct TCriterio;

/** One definition of an index. */
struct TIndexDef {
    QString Nome;
    QStringList Campos;
    unsigned Opcoes = ixNenhuma;
};

/** A row to come back to; valid until the row is deleted. */
struct TBookmark {
    quint32 id = 0;
    friend bool operator==(TBookmark, TBookmark) = default;
};

/**
 * Rows that live in memory alone, with fields made in code, indexes and a filter.
 *
 * AddField declares the columns, CreateDataSet makes the empty rows' store, Open shows them. Close
 * hides the rows and keeps them, as nobody else has them; EmptyDataSet drops them. Rows are held
 * compactly, column by column.
 *
 * Rows are written between Append, Insert or Edit and Post; Cancel drops what was written, and so
 * does Close. A move posts what was written. New rows stand last in the order of insertion, Insert
 * being the same as Append.
 *
 * Order: of insertion while IndexName is empty, else that of the index. Texts stand in Brazilian
 * order (see TColacao), Null before every value. Rows that are equal under an index keep their
 * order of insertion, under a descending one as well. An index is sorted when it is first used and
 * kept until a row changes; another index or filter keeps the current row.
 *
 * AfterScroll is announced when another row became current, DadosMudaram when the list is another
 * one. While controls are disabled, rows posted under an index stand at the end until
 * EnableControls puts them in their places.
 */
class TClientDataSet : public TDataSet
{
    Q_OBJECT

public:
    explicit TClientDataSet(QObject *owner = nullptr);
    ~TClientDataSet() override;

    /**
     * Declares a column before CreateDataSet; tamanho is the longest text in characters, 0 for any.
     * EDatabaseError for an empty name, one that is there already in any case of letters, a kind
     * that cannot be held, or a dataset that was created. The dataset owns the field.
     */
    TField *AddField(const QString &nome, TFieldType tipo, int tamanho = 0);
    /** Makes the store. EDatabaseError when there are no fields or it was made before. */
    void CreateDataSet();
    bool Criado() const { return criado; }
    /** Columns declared so far. */
    int FieldDefCount() const { return int(definicoes.size()); }

    TDataSetState State() const { return estado; }
    void Append();
    void Insert() { Append(); }
    /** EDatabaseError without a current row. */
    void Edit();
    /** Writes the row; it becomes the current one, or the first row does where the filter does not
     * let it through. EDatabaseError outside of an edit state. A filter that raises does not keep
     * the row from being written and shown: the caller learns of it afterwards. */
    void Post();
    /** Back to the row that was current. Nothing outside of an edit state. */
    void Cancel();
    /** Deletes the current row (an edit is dropped first); the next one becomes current. */
    void Delete();
    /** Append, values in the order of the columns (missing ones Null), Post. */
    void AppendRecord(std::initializer_list<Variant> valores);
    void EmptyDataSet();

    /**
     * Defines an index over fields named "a;b". EDatabaseError for a name that is used, an unknown
     * field, or no field. Costs nothing until the index is used.
     */
    void AddIndex(const QString &nome, const QString &nomes, unsigned opcoes = ixNenhuma);
    /** The current one gives way to the order of insertion. Nothing when there is none. */
    void DeleteIndex(const QString &nome);
    bool HasIndex(const QString &nome) const { return Indice(nome) != nullptr; }
    const std::vector<TIndexDef> &IndexDefs() const { return indices; }
    const QString &GetIndexName() const { return indexName; }
    /** Orders the rows by an index, "" by insertion; the current row stays current.
     * EDatabaseError for an unknown name, nothing is changed then. */
    void SetIndexName(const QString &nome);

    /** A filter written as text (see LerFiltro); EDatabaseError when it makes no sense. Needs a
     * created dataset. */
    void SetFilter(const QString &texto);
    const QString &GetFilter() const { return filtro; }
    /**
     * The filter of a text that is being typed: rows with the text in one of the fields (named
     * "a;b"), compared as Locate does. The empty text lets every row through. Needs an open
     * dataset. Fast enough for every key of a user in lists of a hundred thousand rows, which
     * filters in words and questions are not.
     */
    void SetFilterText(const QString &nomes, const QString &texto, unsigned opcoes);
    /** Asked for every row, whose values the fields then have; must not change the dataset. Rows
     * have to pass all filters. What it raises reaches the caller, the list shown stays. */
    void SetOnFilterRecord(std::function<bool(const TDataSet &)> pergunta);
    bool GetFiltered() const { return filtrado; }
    /** Only the rows that pass the filters are there. The current row stays where it is let
     * through, else the first row becomes current. */
    void SetFiltered(bool v);
    /** Asks again: what the filter looks at beside the rows is another one now. */
    void AtualizarFiltro();
    /** Rows posted under an index while controls are disabled go to their places now, instead of
     * with EnableControls. The current row stays. */
    void PorEmOrdem();

    /**
     * Makes the first row with these values current, in the order shown. Fields are named "a;b".
     * False, nothing is moved, when there is none; EDatabaseError for an unknown field. With
     * loPartialKey or loContains numbers are texts of their digits.
     */
    bool Locate(const QString &nomes, const std::vector<Variant> &valores,
                unsigned opcoes = loNenhuma);

    /** Of the current row; none (id 0) without one. */
    TBookmark GetBookmark() const;
    bool BookmarkValid(TBookmark marca) const;
    /** False when the row is gone or not let through by the filter. */
    bool GotoBookmark(TBookmark marca);

    /** Memory of the rows and of the orders kept. */
    qint64 BytesUsados() const;

protected:
    void AbrirLinhas() override;
    void FecharLinhas() override;
    int ContarLinhas() const override;
    bool CelulaNula(int linha, int coluna) const override;
    Variant CelulaValor(int linha, int coluna) const override;
    QString CelulaTexto(int linha, int coluna) const override;
    void GravarCelula(const TField &campo, const Variant &valor) override;
    void EncerrarEdicao() override;
    void AntesDeHabilitar() override;

private:
    struct TPrivado;
    struct TAlvo;

    const TIndexDef *Indice(const QString &nome) const;
    TCriterio CriterioDe(const TIndexDef &indice) const;
    void ExigirCriado() const;
    void ExigirAberto() const;
    void EntrarEm(TDataSetState novo);
    void SairDaEdicao();
    Variant Converter(const TField &campo, const Variant &valor) const;
    std::vector<TAlvo> Alvos(const QString &nomes, const std::vector<Variant> &valores,
                             unsigned opcoes) const;
    void Mostrar(int slot, bool nova, bool passa);
    bool Serve(int slot, const TAlvo &alvo) const;
    bool ServemTodos(int slot, const std::vector<TAlvo> &alvos) const;
    bool PassaDigitado(int slot) const;
    int SlotAtual() const;
    int SlotDa(int linha) const;
    int LinhaDo(int slot) const;
    void Reordenar();
    void Refazer();
    bool Passa(int slot);
    bool PassaPerguntas(int slot);
    void Colocar(int slot);
    void FicarEm(int slot);
    void CompactarSeValer();

    std::unique_ptr<TPrivado> d;
    std::vector<TColuna> definicoes;
    std::vector<TIndexDef> indices;
    QString indexName;
    QString filtro;
    TDataSetState estado = dsInactive;
    bool criado = false;
    bool filtrado = false;
};

} // namespace ficha
