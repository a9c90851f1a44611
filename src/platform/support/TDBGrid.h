#pragma once

#include "platform/core/TAlignment.h"
#include "platform/support/TDataSource.h"
#include "platform/toolkit/TCustomGrid.h"

#include <QFont>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace ficha
{

class TDBGrid;

/** Options of a data grid, to be combined. */
enum TDBGridOption : unsigned {
    dgTitles = 1,       /**< the row of titles */
    dgColumnResize = 2, /**< the user may drag the right borders of the titles */
    dgColLines = 4,     /**< lines between the columns */
    dgRowLines = 8,     /**< lines between the rows */
    dgTabs =
        16, /**< Tab goes from cell to cell and leaves at the ends, and where there are no rows */
    dgRowSelect = 32,     /**< the current cell is the whole row */
    dgConfirmDelete = 64, /**< of editing, which this grid does not offer: without effect */
    dgCancelOnExit = 128, /**< likewise */
};

/** The title of a column. What is not set follows the field and the grid. */
class TColumnTitle
{
public:
    explicit TColumnTitle(class TColumn *dona) : coluna(dona) {}

    /** The field's display label until set. */
    QString GetCaption() const;
    void SetCaption(const QString &texto);
    /** The column's until set. */
    TAlignment GetAlignment() const;
    void SetAlignment(TAlignment novo);
    /** Pixels kept free at the right edge, for a mark that is painted there; 0 at first. */
    int GetRightMargin() const { return margemDireita; }
    void SetRightMargin(int pixels);
    /** The grid's title font until set. */
    QFont GetFont() const;
    void SetFont(const QFont &nova);
    TColor GetFontColor() const;
    void SetFontColor(TColor nova);
    /** The grid's FixedColor until set. */
    TColor GetColor() const;
    void SetColor(TColor nova);

private:
    void Mudou();

    class TColumn *coluna;
    QString legenda;
    std::optional<TAlignment> alinhamento;
    int margemDireita = 0;
    std::optional<QFont> fonte;
    std::optional<TColor> corDaFonte, cor;
};

/** One column of a data grid, owned by it. */
class TColumn
{
public:
    TColumn(TDBGrid *grade, QString campo);
    TColumn(const TColumn &) = delete;
    TColumn &operator=(const TColumn &) = delete;

    TDBGrid *Grid() const { return grid; }
    /** Place among the grid's columns, from 0. */
    int Index() const;
    const QString &GetFieldName() const { return fieldName; }
    void SetFieldName(const QString &nome);
    /** The field of that name in the grid's dataset; null when there is none. */
    TField *Field() const;
    /** Pixels without the line. */
    int GetWidth() const;
    void SetWidth(int pixels);
    bool GetVisible() const { return visivel; }
    void SetVisible(bool v);
    /** The field's alignment until set. */
    TAlignment GetAlignment() const;
    void SetAlignment(TAlignment novo);

    TColumnTitle Title;

private:
    friend class TDBGrid;
    TDBGrid *grid;
    QString fieldName;
    int largura = 64; /**< while hidden */
    bool visivel = true;
    std::optional<TAlignment> alinhamento;
};

/**
 * A read-only list of the rows of a dataset.
 *
 * The dataset's current row and the grid's are the same: keys and clicks move the dataset, and the
 * grid follows wherever the dataset is moved; scrolling with the bar or the wheel takes the current
 * row along, so that it stays in view. A dataset that goes elsewhere than it was sent has the grid
 * follow it there. Rows are read when they are painted; without rows, or with the
 * dataset closed, there is one blank row.
 *
 * Columns: those that were added by name; while none was, one for each field of the dataset, made
 * when it opens. Columns made by themselves stay, with their widths and titles, until the dataset
 * opens with other fields.
 *
 * The state handed to OnDrawColumnCell has gdSelecionada for all cells of the current row, of which
 * there is none without rows.
 *
 * Rows are 17 pixels high and a line of one, 18 in all. Font and painting are the toolkit's unless
 * DefaultDrawing is off. See TCustomGrid for keys and mouse.
 */
class TDBGrid : public TCustomGrid
{
    Q_OBJECT
    Q_PROPERTY(int options READ GetOptionsInt WRITE SetOptionsInt)

public:
    static constexpr unsigned OpcoesPadrao = dgTitles | dgColumnResize | dgColLines | dgRowLines |
                                             dgTabs | dgConfirmDelete | dgCancelOnExit;

    explicit TDBGrid(QWidget *owner = nullptr);
    ~TDBGrid() override;

    TDataSource *GetDataSource() const { return dataSource; }
    /** Not owned. */
    void SetDataSource(TDataSource *nova);
    /** Of the data source; null when there is none. */
    TDataSet *DataSet() const { return dataSource ? dataSource->GetDataSet() : nullptr; }

    int ColumnCount() const { return int(colunas.size()); }
    /** From 0 to ColumnCount() - 1. */
    TColumn *Columns(int i) const;
    /** The column of a field, letter case ignored; null when there is none. */
    TColumn *ColumnByField(const QString &nome) const;
    /** Adds a column; the first one takes the place of those made by themselves. */
    TColumn *AddColumn(const QString &fieldName);
    /** Gives the columns that were added up: there is again one for each field. */
    void ClearColumns();

    unsigned GetOptions() const { return opcoes; }
    void SetOptions(unsigned novas);
    int GetOptionsInt() const { return int(opcoes); }
    void SetOptionsInt(int novas) { SetOptions(unsigned(novas)); }
    QFont GetTitleFont() const { return fonteDosTitulos.value_or(font()); }
    void SetTitleFont(const QFont &nova);

    QAnyStringView CellTexto(int col, int row) const override;

    /**
     * Paints one cell of a row, whose values the fields have meanwhile. Not clipped to the cell: a
     * handler may paint into the lines and the titles. The default painting comes before it unless
     * DefaultDrawing is off.
     */
    std::function<void(QObject *, QPainter &, const QRect &rect, int dataCol, TColumn *column,
                       unsigned estado)>
        OnDrawColumnCell;
    /** What a cell says in words, to the default painting and to assistive tools, the fields having
     * the row's values. Without it, TextoParaLista of the field. */
    std::function<QString(const TColumn *)> OnGetText;
    /** A click on a title: pressed and let go over it. */
    std::function<void(TColumn *)> OnTitleClick;

protected:
    bool PodeSelecionar(int col, int row) override;
    void CliqueFixo(int col, int row) override;
    void PintarCelula(QPainter &p, const QRect &ret, int col, int row, unsigned estado) override;
    bool PintaTudo() const override { return true; }
    bool focusNextPrevChild(bool proximo) override;
    void RolouPelaBarra() override;

private:
    friend class TColumn;
    friend class TColumnTitle;
    void LerEstrutura();
    void LerDados();
    void Acompanhar();
    void FazerColunas();
    void PorColunas(const QStringList &campos);
    int LarguraPadrao(const TColumn &coluna) const;
    bool TemLinhas() const;
    QString TextoDe(const TColumn &coluna) const;
    int NumeroDaLinha(int row) const { return row - GetFixedRows() + 1; }
    void PintarTitulo(QPainter &p, const QRect &ret, const TColumn &coluna);
    void PintarPadrao(QPainter &p, const QRect &ret, const TColumn &coluna, unsigned estado);
    void PintarLinhas(QPainter &p, const QRect &ret, const QColor &cor);

    QPointer<TDataSource> dataSource;
    std::vector<std::unique_ptr<TColumn>> colunas;
    bool colunasDeclaradas = false;
    bool movendo = false;      /**< the grid moves the dataset */
    bool acompanhando = false; /**< the dataset moves the grid */
    unsigned opcoes = 0;
    std::optional<QFont> fonteDosTitulos;
    mutable QString texto; /**< behind the view that CellTexto answers */
};

} // namespace ficha
