#include "platform/toolkit/TCustomGridPrivado.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>
#include <limits>
#include <numeric>

namespace ficha
{

namespace
{

constexpr int MaxCelulasDaLista = 1000; // of a list of what is selected: nobody reads out more

/** One cell of a grid: made when it is asked for, by its grid's interface, which owns it. */
class TCelulaAcessivel : public QAccessibleInterface,
                         public QAccessibleTableCellInterface,
                         public QAccessibleActionInterface
{
public:
    TCelulaAcessivel(TCustomGrid *grade, int col, int row) : grid(grade), coluna(col), linha(row) {}

    bool isValid() const override
    {
        return grid && coluna < grid->GetColCount() && linha < grid->GetRowCount();
    }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override
    {
        return isValid() ? grid->window()->windowHandle() : nullptr;
    }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(grid);
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QString text(QAccessible::Text qual) const override
    {
        const bool tem = isValid() && (qual == QAccessible::Name || qual == QAccessible::Value);
        return tem ? grid->GetCell(coluna, linha) : QString();
    }
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect ret = grid->CellRect(coluna, linha);
        return ret.isEmpty() ? ret
                             : QRect(grid->viewport()->mapToGlobal(ret.topLeft()), ret.size());
    }
    QAccessible::Role role() const override
    {
        if (EhTitulo())
            return QAccessible::ColumnHeader;
        return isValid() && coluna < grid->GetFixedCols() ? QAccessible::RowHeader
                                                          : QAccessible::Cell;
    }
    QAccessible::State state() const override
    {
        QAccessible::State estado;
        estado.readOnly = true;
        if (!isValid()) {
            estado.invalid = true;
            return estado;
        }
        estado.disabled = !grid->isEnabled();
        estado.invisible = grid->GetColWidth(coluna) == 0;
        estado.offscreen = grid->CellRect(coluna, linha).isEmpty();
        if (!EhFixa()) {
            estado.selectable = estado.focusable = true;
            estado.selected = isSelected();
            estado.focused = EhAtual() && grid->hasFocus();
            DizerExpansao(estado);
        }
        return estado;
    }
    void *interface_cast(QAccessible::InterfaceType tipo) override
    {
        if (tipo == QAccessible::TableCellInterface)
            return static_cast<QAccessibleTableCellInterface *>(this);
        if (tipo == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface *>(this);
        return nullptr;
    }

    bool isSelected() const override
    {
        if (!isValid() || EhFixa())
            return false;
        const TGridRect faixa = grid->GetSelection();
        return coluna >= faixa.Esquerda && coluna <= faixa.Direita && linha >= faixa.Topo &&
               linha <= faixa.Base;
    }
    QList<QAccessibleInterface *> columnHeaderCells() const override
    {
        QList<QAccessibleInterface *> titulos;
        for (int r = 0; isValid() && !EhTitulo() && r < grid->GetFixedRows(); ++r)
            titulos.append(parent()->child(r * grid->GetColCount() + coluna));
        return titulos;
    }
    QList<QAccessibleInterface *> rowHeaderCells() const override
    {
        QList<QAccessibleInterface *> titulos;
        for (int c = 0; isValid() && !EhFixa() && c < grid->GetFixedCols(); ++c)
            titulos.append(parent()->child(linha * grid->GetColCount() + c));
        return titulos;
    }
    int columnIndex() const override { return coluna; }
    int rowIndex() const override { return isValid() ? linha - grid->GetFixedRows() : -1; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

    QStringList actionNames() const override
    {
        return isValid() && !EhFixa() ? QStringList{setFocusAction()} : QStringList();
    }
    void doAction(const QString &nome) override
    {
        if (nome != setFocusAction() || !isValid() || EhFixa())
            return;
        Protegido([this] {
            grid->setFocus();
            grid->SetCelula(coluna, linha);
        });
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    bool EhTitulo() const { return isValid() && linha < grid->GetFixedRows(); }
    bool EhFixa() const { return EhTitulo() || (isValid() && coluna < grid->GetFixedCols()); }
    void DizerExpansao(QAccessible::State &estado) const
    {
        std::optional<bool> aberta;
        if (grid->OnExpansao)
            Protegido([&] { aberta = grid->OnExpansao(coluna, linha); });
        estado.expandable = aberta.has_value();
        estado.expanded = aberta.value_or(false);
        estado.collapsed = !aberta.value_or(true);
    }
    bool EhAtual() const { return grid->GetCol() == coluna && grid->GetRow() == linha; }

    QPointer<TCustomGrid> grid;
    int coluna, linha;
};

/**
 * A grid as a table. Its children are all cells, titles included, row after row; the rows and
 * columns of the table interface are those below the title rows.
 */
class TGradeAcessivel : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit TGradeAcessivel(TCustomGrid *grade) : QAccessibleWidget(grade, QAccessible::Table) {}
    ~TGradeAcessivel() override { Esvaziar(); }

    int childCount() const override
    {
        const qint64 n = qint64(Grid()->GetRowCount()) * Grid()->GetColCount();
        return int(std::min<qint64>(n, std::numeric_limits<int>::max()));
    }
    QAccessibleInterface *child(int i) const override
    {
        const int cols = Grid()->GetColCount();
        return i < 0 || i >= childCount() ? nullptr : Celula(i % cols, i / cols);
    }
    int indexOfChild(const QAccessibleInterface *filho) const override
    {
        auto *como = const_cast<QAccessibleInterface *>(filho);
        const auto *celula = como ? como->tableCellInterface() : nullptr;
        if (!celula || !como->isValid())
            return -1;
        const int row = celula->rowIndex() + Grid()->GetFixedRows();
        return row * Grid()->GetColCount() + celula->columnIndex();
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        const TGridCoord c = Grid()->MouseToCell(Grid()->viewport()->mapFromGlobal(QPoint(x, y)));
        return c.Row < 0 ? nullptr : Celula(c.Col, c.Row);
    }
    QAccessibleInterface *focusChild() const override
    {
        return Grid()->hasFocus() ? Celula(Grid()->GetCol(), Grid()->GetRow()) : nullptr;
    }
    void *interface_cast(QAccessible::InterfaceType tipo) override
    {
        if (tipo == QAccessible::TableInterface)
            return static_cast<QAccessibleTableInterface *>(this);
        return QAccessibleWidget::interface_cast(tipo);
    }

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int col) const override
    {
        const bool tem = row >= 0 && col >= 0 && row < rowCount() && col < columnCount();
        return tem ? Celula(col, row + Grid()->GetFixedRows()) : nullptr;
    }
    int rowCount() const override { return Grid()->GetRowCount() - Grid()->GetFixedRows(); }
    int columnCount() const override { return Grid()->GetColCount(); }
    QString columnDescription(int col) const override
    {
        return Grid()->GetFixedRows() > 0 ? Grid()->GetCell(col, 0) : QString();
    }
    QString rowDescription(int row) const override
    {
        return Grid()->GetFixedCols() > 0 ? Grid()->GetCell(0, row + Grid()->GetFixedRows())
                                          : QString();
    }
    int selectedCellCount() const override
    {
        const TGridRect f = Grid()->GetSelection();
        return (f.Direita - f.Esquerda + 1) * (f.Base - f.Topo + 1);
    }
    QList<QAccessibleInterface *> selectedCells() const override
    {
        QList<QAccessibleInterface *> lista;
        const TGridRect f = Grid()->GetSelection();
        for (int r = f.Topo; r <= f.Base && lista.size() < MaxCelulasDaLista; ++r)
            for (int c = f.Esquerda; c <= f.Direita && lista.size() < MaxCelulasDaLista; ++c)
                lista.append(Celula(c, r));
        return lista;
    }
    int selectedRowCount() const override
    {
        const TGridRect f = Grid()->GetSelection();
        return LinhasInteiras(f) ? f.Base - f.Topo + 1 : 0;
    }
    int selectedColumnCount() const override
    {
        const TGridRect f = Grid()->GetSelection();
        return ColunasInteiras(f) ? f.Direita - f.Esquerda + 1 : 0;
    }
    QList<int> selectedRows() const override
    {
        QList<int> linhas(std::min(selectedRowCount(), MaxCelulasDaLista));
        std::iota(linhas.begin(), linhas.end(),
                  Grid()->GetSelection().Topo - Grid()->GetFixedRows());
        return linhas;
    }
    QList<int> selectedColumns() const override
    {
        QList<int> colunas(selectedColumnCount());
        std::iota(colunas.begin(), colunas.end(), Grid()->GetSelection().Esquerda);
        return colunas;
    }
    bool isRowSelected(int row) const override
    {
        const TGridRect f = Grid()->GetSelection();
        const int r = row + Grid()->GetFixedRows();
        return LinhasInteiras(f) && r >= f.Topo && r <= f.Base;
    }
    bool isColumnSelected(int col) const override
    {
        const TGridRect f = Grid()->GetSelection();
        return ColunasInteiras(f) && col >= f.Esquerda && col <= f.Direita;
    }
    bool selectRow(int row) override
    {
        if (row < 0 || row >= rowCount())
            return false;
        const int r = row + Grid()->GetFixedRows();
        return Selecionar({Grid()->GetFixedCols(), r, columnCount() - 1, r});
    }
    bool selectColumn(int col) override
    {
        if (col < Grid()->GetFixedCols() || col >= columnCount())
            return false;
        return Selecionar({col, Grid()->GetFixedRows(), col, Grid()->GetRowCount() - 1});
    }
    /** There is always a current cell: the range shrinks to it. */
    bool unselectRow(int row) override { return isRowSelected(row) && Recolher(); }
    bool unselectColumn(int col) override { return isColumnSelected(col) && Recolher(); }
    void modelChange(QAccessibleTableModelChangeEvent *) override { Esvaziar(); }

private:
    TCustomGrid *Grid() const { return static_cast<TCustomGrid *>(object()); }

    bool LinhasInteiras(const TGridRect &f) const
    {
        return f.Esquerda == Grid()->GetFixedCols() && f.Direita == columnCount() - 1;
    }
    bool ColunasInteiras(const TGridRect &f) const
    {
        return f.Topo == Grid()->GetFixedRows() && f.Base == Grid()->GetRowCount() - 1;
    }
    bool Selecionar(const TGridRect &faixa)
    {
        bool foi = false;
        Protegido([&] {
            Grid()->SetSelection(faixa);
            foi = Grid()->GetSelection() == faixa;
        });
        return foi;
    }
    bool Recolher()
    {
        const int c = Grid()->GetCol(), r = Grid()->GetRow();
        return Selecionar({c, r, c, r});
    }
    QAccessibleInterface *Celula(int col, int row) const
    {
        const quint64 chave = quint64(row) << 32 | quint32(col);
        if (const auto achada = celulas.constFind(chave); achada != celulas.constEnd())
            return QAccessible::accessibleInterface(*achada);
        auto *nova = new TCelulaAcessivel(Grid(), col, row);
        celulas.insert(chave, QAccessible::registerAccessibleInterface(nova));
        return nova;
    }
    void Esvaziar()
    {
        for (const QAccessible::Id id : std::exchange(celulas, {}))
            QAccessible::deleteAccessibleInterface(id);
    }

    mutable QHash<quint64, QAccessible::Id> celulas;
};

QAccessibleInterface *Fabricar(const QString &classe, QObject *objeto)
{
    if (classe != QLatin1StringView(TCustomGrid::staticMetaObject.className()))
        return nullptr;
    auto *grid = qobject_cast<TCustomGrid *>(objeto);
    return grid ? new TGradeAcessivel(grid) : nullptr;
}

} // namespace

void TCustomGrid::AnunciarExpansao(int col, int row)
{
    if (!QAccessible::isActive() || !CelulaExiste(col, row))
        return;
    QAccessible::State mudou;
    mudou.expanded = mudou.collapsed = true;
    QAccessibleStateChangeEvent evento(this, mudou);
    evento.setChild(row * GetColCount() + col);
    QAccessible::updateAccessibility(&evento);
}

void InstalarGradeAcessivel()
{
    static const bool instalada = (QAccessible::installFactory(Fabricar), true);
    Q_UNUSED(instalada)
}

} // namespace ficha
