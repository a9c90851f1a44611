#include "grids/UGridBasFr.h"

#include "platform/support/StringGridDrawCell.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TStringGrid.h"

#include <QMouseEvent>

namespace ficha
{

FICHA_REGISTRAR(TGridBasFr)

TGridBasFr::TGridBasFr(TChave chave) : TActBasFr(chave), ColsInfo(std::make_unique<TGridColsInfo>())
{
}

TGridBasFr::~TGridBasFr() = default;

void TGridBasFr::Create(QWidget *owner)
{
    TActBasFr::Create(owner);
    StringGrid1->SetColor(TColor::DeQColor(palette().color(QPalette::Button)));
}

void TGridBasFr::Atualizar()
{
    TActBasFr::Atualizar();
    if (!StringGrid1 ||
        (StringGrid1->GetCol() == ultimaCol && StringGrid1->GetRow() == ultimaLinha))
        return;
    ultimaCol = StringGrid1->GetCol();
    ultimaLinha = StringGrid1->GetRow();
    StringGrid1->Invalidate();
}

void TGridBasFr::SetFocus()
{
    StringGrid1->setFocus(Qt::OtherFocusReason);
}

void TGridBasFr::GridMouseDown(int, int) {}

void TGridBasFr::PrepGrid() {}

void TGridBasFr::PegarComponentes()
{
    TActBasFr::PegarComponentes();
    Pegar(this, StringGrid1, "StringGrid1");
    StringGrid1->OnClick = [this](QObject *s) { StringGrid1Click(s); };
    StringGrid1->OnMouseMove = [this](QObject *s, QMouseEvent *e) { StringGrid1MouseMove(s, e); };
    StringGrid1->OnMouseDown = [this](QObject *s, QMouseEvent *e) { StringGrid1MouseDown(s, e); };
    StringGrid1->OnDrawCell = [this](QObject *s, int col, int row, QPainter &pintor,
                                     const QRect &area, unsigned estado) {
        StringGrid1DrawCell(s, col, row, pintor, area, estado);
    };
}

void TGridBasFr::StringGrid1Click(QObject *)
{
    StringGrid1->Invalidate();
}

void TGridBasFr::StringGrid1MouseMove(QObject *, QMouseEvent *evento)
{
    if (evento->buttons() & Qt::LeftButton)
        StringGrid1->Invalidate();
}

void TGridBasFr::StringGrid1MouseDown(QObject *, QMouseEvent *evento)
{
    const TGridCoord onde = StringGrid1->MouseToCell(evento->position().toPoint());
    GridMouseDown(onde.Col, onde.Row);
}

void TGridBasFr::StringGrid1DrawCell(QObject *, int col, int row, QPainter &pintor,
                                     const QRect &area, unsigned estado)
{
    StringGridDrawCell(StringGrid1, pintor, col, row, area, estado, nullptr, -1, 2, 1, true,
                       ColsInfo.get(), true, false, TColor(), MarcadorDaGrade());
}

} // namespace ficha
