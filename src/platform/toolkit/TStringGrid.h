#pragma once

#include "platform/toolkit/TCustomGrid.h"

namespace ficha
{

/**
 * A grid that holds its texts itself, compactly: 100,000 rows of eight texts are some 17 MB.
 * Reading a cell outside answers the empty text, writing one does nothing. Rows and columns that
 * are cut off lose their texts and objects.
 */
class TStringGrid : public TCustomGrid
{
    Q_OBJECT
    Q_PROPERTY(int colCount READ GetColCount WRITE SetColCount)
    Q_PROPERTY(int rowCount READ GetRowCount WRITE SetRowCount)
    Q_PROPERTY(int fixedCols READ GetFixedCols WRITE SetFixedCols)
    Q_PROPERTY(int fixedRows READ GetFixedRows WRITE SetFixedRows)
    Q_PROPERTY(int defaultColWidth READ GetDefaultColWidth WRITE SetDefaultColWidth)

public:
    explicit TStringGrid(QWidget *owner = nullptr);
    ~TStringGrid() override;

    using TCustomGrid::SetColCount;
    using TCustomGrid::SetDefaultColWidth;
    using TCustomGrid::SetFixedCols;
    using TCustomGrid::SetFixedRows;
    using TCustomGrid::SetRowCount;

    /** Writing the text that a cell holds already changes and repaints nothing. The text must not
     * be one that this grid handed out without a copy. */
    void SetCell(int col, int row, QAnyStringView texto);
    QAnyStringView CellTexto(int col, int row) const override;
    /** The text of a cell into a string of the caller's, whose memory is used again. */
    void CellTexto(int col, int row, QString &saida) const;
    /** A pointer or number of the caller's, carried by a cell; 0 where none was set. */
    std::intptr_t GetObjeto(int col, int row) const;
    void SetObjeto(int col, int row, std::intptr_t objeto);
    /** Empties the texts and objects of one row. */
    void LimparLinha(int row);
    /** Bytes held for the texts and their cells, for measuring. */
    qint64 BytesDosTextos() const;

protected:
    void VaiRedimensionar(int cols, int rows) override;

private:
    struct TTextos;
    std::unique_ptr<TTextos> textos;
};

} // namespace ficha
