#include "grids/UArvGridFr.h"

#include "platform/support/SisD.h"
#include "platform/support/StringGridDrawCell.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TStringGrid.h"

#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>

namespace ficha
{

FICHA_REGISTRAR(TArvGridFr)

namespace
{
constexpr int PixelsPorNivel = 18;
constexpr QPoint FiguraAntesDoTexto(-15, -1);
constexpr int FiguraRecolhido = 25;
constexpr int FiguraExpandido = 26;
constexpr int NiveisPelaPilha = 500;
constexpr TColor Preto;
} // namespace

struct TArvGridFr::TCores {
    TColor fundo, texto;
};

TArvGridFr::TArvGridFr(TChave chave) : TGridBasFr(chave), Raiz(std::make_unique<TArvItem>()) {}

void TArvGridFr::ColocarFilhos(TArvItem *) {}

void TArvGridFr::ColocarCodBusca(TArvItem *) {}

void TArvGridFr::DadoParaGrid(TArvItem *) {}

void TArvGridFr::FilhosParaGrid(TArvItem *item)
{
    if (profundidade >= NiveisPelaPilha) {
        DescendentesParaGrid(item);
        return;
    }
    const QScopedValueRollback guarda(profundidade, profundidade + 1);
    for (int i = 0; item->GetExpandido() && i < item->NFilhos(); ++i) {
        LinhaParaGrid(item->GetFilhos(i));
        FilhosParaGrid(item->GetFilhos(i));
    }
}

void TArvGridFr::TratarFilho(TArvItem *item)
{
    if (ModoExpansao == 0)
        item->SetExpandido(ExpandirSempre);
    else if (ModoExpansao == 1)
        item->SetExpandido(item->GetNivel() <= NivelExpandido);
}

void TArvGridFr::AtualizarExibicao()
{
    TGridBasFr::AtualizarExibicao();
    const int n = Raiz->NLins();
    if (n == 0)
        return;
    LinhaAtual = 1;
    StringGrid1->SetRowCount(n);
    FilhosParaGrid(Raiz.get());
}

void TArvGridFr::RelerFonte()
{
    TGridBasFr::RelerFonte();
    SoltarItens();
    Raiz->LimparFilhos();
    ColocarFilhos(Raiz.get());
    ColocarCodBusca(Raiz.get());
}

void TArvGridFr::GridMouseDown(int col, int row)
{
    const QPointer<TArvGridFr> vivo(this);
    TGridBasFr::GridMouseDown(col, row);
    TArvItem *item = vivo && col == 0 && row >= 1 ? ArvItem(row) : nullptr;
    if (!item)
        return;
    item->SetExpandido(!item->GetExpandido());
    AtualizarExibicao();
}

TArvItem *TArvGridFr::ArvItem(int row) const
{
    return TArvItem::De(StringGrid1->GetObjeto(0, row));
}

void TArvGridFr::StringGrid1DrawCell(QObject *sender, int col, int row, QPainter &pintor,
                                     const QRect &area, unsigned estado)
{
    if (col != 0 || row == 0 || StringGrid1->GetObjeto(0, row) == 0)
        TGridBasFr::StringGrid1DrawCell(sender, col, row, pintor, area, estado);
    else if (const TArvItem *item = ArvItem(row))
        PintarItem(*item, row, pintor, area);
}

TArvGridFr::TCores TArvGridFr::CoresDaCelula(int row) const
{
    const TCoresDaGrade &cores = CoresDaGrade();
    if (row != StringGrid1->GetRow())
        return {row % 2 ? cores.FaixaImpar : cores.FaixaPar, Preto};
    if (StringGrid1->GetCol() == 0 || StringGrid1->GetRowSelect())
        return {cores.CelulaAtual, cores.TextoDaCelulaAtual};
    return {SisD().CorControlSelec, Preto};
}

void TArvGridFr::PintarItem(const TArvItem &item, int row, QPainter &pintor,
                            const QRect &area) const
{
    const TCores cores = CoresDaCelula(row);
    const QPoint onde(area.left() + item.Exibicao.DeslocHorizontal +
                          PixelsPorNivel * item.GetNivel(),
                      area.top() + item.Exibicao.DeslocVertical);
    pintor.save();
    pintor.setClipRect(area, Qt::IntersectClip);
    pintor.fillRect(area, cores.fundo.ParaQColor());
    pintor.setFont(item.Exibicao.Font.resolve(StringGrid1->font()));
    pintor.setPen(cores.texto.ParaQColor());
    EscreverNaCelula(pintor, QRect(onde, area.bottomRight()), StringGrid1->CellTexto(0, row),
                     Qt::AlignLeft | Qt::AlignTop);
    if (item.NFilhos() > 0 && SisD().ImageList)
        SisD().ImageList->Draw(pintor, onde + FiguraAntesDoTexto,
                               item.GetExpandido() ? FiguraExpandido : FiguraRecolhido);
    pintor.restore();
}

void TArvGridFr::LinhaParaGrid(TArvItem *item)
{
    StringGrid1->SetObjeto(0, LinhaAtual, item->Objeto());
    DadoParaGrid(item);
    ++LinhaAtual;
}

/** The same walk with a list of its own instead of the stack. */
void TArvGridFr::DescendentesParaGrid(TArvItem *item)
{
    struct TPasso {
        TArvItem *item;
        int proximo;
    };
    std::vector<TPasso> caminho{{item, 0}};
    while (!caminho.empty()) {
        TPasso &passo = caminho.back();
        if (!passo.item->GetExpandido() || passo.proximo >= passo.item->NFilhos()) {
            caminho.pop_back();
            continue;
        }
        TArvItem *filho = passo.item->GetFilhos(passo.proximo++);
        LinhaParaGrid(filho);
        caminho.push_back({filho, 0});
    }
}

/** The rows outlive the items. */
void TArvGridFr::SoltarItens()
{
    for (int row = StringGrid1->GetRowCount() - 1; row >= 0; --row)
        if (ArvItem(row))
            StringGrid1->SetObjeto(0, row, 0);
}

} // namespace ficha
