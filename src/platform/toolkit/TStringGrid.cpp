#include "platform/toolkit/TStringGrid.h"

#include "platform/core/GradeTextos.h"
#include "platform/toolkit/Layout.h"

#include <QHash>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TStringGrid)

namespace
{
quint64 ChaveDoObjeto(int col, int row)
{
    return quint64(row) << 32 | quint32(col);
}
} // namespace

struct TStringGrid::TTextos {
    TTextos(int cols, int rows) : celulas(cols, rows) {}

    TGradeTextos celulas;
    QHash<quint64, std::intptr_t> objetos;
};

TStringGrid::TStringGrid(QWidget *owner)
    : TCustomGrid(owner), textos(std::make_unique<TTextos>(GetColCount(), GetRowCount()))
{
}

TStringGrid::~TStringGrid() = default;

void TStringGrid::SetCell(int col, int row, QAnyStringView texto)
{
    if (CelulaExiste(col, row) && textos->celulas.Gravar(col, row, texto))
        InvalidarLinha(row);
}

QAnyStringView TStringGrid::CellTexto(int col, int row) const
{
    return CelulaExiste(col, row) ? textos->celulas.Texto(col, row) : QAnyStringView();
}

void TStringGrid::CellTexto(int col, int row, QString &saida) const
{
    saida.resize(0);
    CellTexto(col, row).visit([&saida](auto texto) {
        if constexpr (std::is_same_v<decltype(texto), QUtf8StringView>)
            saida.append(texto.toString());
        else
            saida.append(texto);
    });
}

std::intptr_t TStringGrid::GetObjeto(int col, int row) const
{
    return textos->objetos.value(ChaveDoObjeto(col, row), 0);
}

void TStringGrid::SetObjeto(int col, int row, std::intptr_t objeto)
{
    if (!CelulaExiste(col, row))
        return;
    if (objeto != 0)
        textos->objetos.insert(ChaveDoObjeto(col, row), objeto);
    else
        textos->objetos.remove(ChaveDoObjeto(col, row));
    InvalidarLinha(row);
}

void TStringGrid::LimparLinha(int row)
{
    for (int c = 0; c < GetColCount(); ++c) {
        SetCell(c, row, QString());
        if (!textos->objetos.isEmpty())
            SetObjeto(c, row, 0);
    }
}

qint64 TStringGrid::BytesDosTextos() const
{
    return textos->celulas.Bytes();
}

void TStringGrid::VaiRedimensionar(int cols, int rows)
{
    textos->celulas.Redimensionar(cols, rows);
    if (cols >= GetColCount() && rows >= GetRowCount())
        return;
    textos->objetos.removeIf([=](const auto &par) {
        return int(par.key() >> 32) >= rows || int(quint32(par.key())) >= cols;
    });
}

} // namespace ficha
