#include "grids/UArvGridFr.h"

#include "platform/support/SisD.h"
#include "platform/support/StringGridDrawCell.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/Teclas.h"

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
    Expandir(item, row, !item->GetExpandido());
}

TArvItem *TArvGridFr::ArvItem(int row) const
{
    return TArvItem::De(StringGrid1->GetObjeto(0, row));
}

void TArvGridFr::PegarComponentes()
{
    TGridBasFr::PegarComponentes();
    AoTeclaDescer(StringGrid1, [this](int &tecla, Qt::KeyboardModifiers estado) {
        StringGrid1KeyDown(StringGrid1, tecla, estado);
    });
    AoTeclar(StringGrid1,
             [this](QChar &caractere) { StringGrid1KeyPress(StringGrid1, caractere); });
    StringGrid1->OnExpansao = [this](int col, int row) -> std::optional<bool> {
        const TArvItem *item = col == 0 && row >= 1 ? ArvItem(row) : nullptr;
        return item && item->NFilhos() > 0 ? std::optional(item->GetExpandido()) : std::nullopt;
    };
}

void TArvGridFr::StringGrid1DrawCell(QObject *sender, int col, int row, QPainter &pintor,
                                     const QRect &area, unsigned estado)
{
    if (col != 0 || row == 0 || StringGrid1->GetObjeto(0, row) == 0)
        TGridBasFr::StringGrid1DrawCell(sender, col, row, pintor, area, estado);
    else if (const TArvItem *item = ArvItem(row))
        PintarItem(*item, row, pintor, area);
}

void TArvGridFr::StringGrid1KeyDown(QObject *, int &tecla, Qt::KeyboardModifiers estado)
{
    TArvItem *item = estado & ~Qt::KeypadModifier ? nullptr : ItemDasTeclas();
    if (!item || (tecla != VK_LEFT && tecla != VK_RIGHT))
        return;
    const bool expandir = tecla == VK_RIGHT;
    if (PodeExpandir(*item, expandir)) {
        tecla = 0;
        Expandir(item, StringGrid1->GetRow(), expandir);
    } else if (const int pai = expandir ? 0 : LinhaDoPai(*item); pai > 0) {
        tecla = 0;
        StringGrid1->SetRow(pai);
        if (StringGrid1->GetRow() == pai && StringGrid1->OnClick)
            StringGrid1->OnClick(StringGrid1); // as for any key that moves the current cell
    }
}

void TArvGridFr::StringGrid1KeyPress(QObject *, QChar &caractere)
{
    if (caractere != u'+' && caractere != u'-')
        return;
    TArvItem *item = ItemDasTeclas();
    if (!item || item->NFilhos() == 0)
        return;
    const bool expandir = caractere == u'+';
    caractere = QChar();
    if (PodeExpandir(*item, expandir))
        Expandir(item, StringGrid1->GetRow(), expandir);
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

TArvItem *TArvGridFr::ItemDasTeclas() const
{
    const int col = StringGrid1->GetRowSelect() ? StringGrid1->GetLeftCol() : StringGrid1->GetCol();
    const int row = StringGrid1->GetRow();
    return col == 0 && row >= 1 ? ArvItem(row) : nullptr;
}

bool TArvGridFr::PodeExpandir(const TArvItem &item, bool v) const
{
    return item.NFilhos() > 0 && item.GetExpandido() != v;
}

void TArvGridFr::Expandir(TArvItem *item, int row, bool v)
{
    const QPointer<TArvGridFr> vivo(this);
    item->SetExpandido(v);
    AtualizarExibicao();
    if (vivo)
        StringGrid1->AnunciarExpansao(0, row);
}

/** 0 for an item of the top level. */
int TArvGridFr::LinhaDoPai(const TArvItem &item) const
{
    int row = StringGrid1->GetRow() - 1;
    while (row > 0 && ArvItem(row) != item.GetPai())
        --row;
    return row;
}

/** The rows outlive the items. */
void TArvGridFr::SoltarItens()
{
    for (int row = StringGrid1->GetRowCount() - 1; row >= 0; --row)
        if (ArvItem(row))
            StringGrid1->SetObjeto(0, row, 0);
}

} // namespace ficha
