#include "platform/support/TDBGrid.h"

#include "platform/support/DBGridDrawCell.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QPainter>

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TDBGrid)

namespace
{
constexpr int AlturaDaLinha = 17;
constexpr int Margem = 3;
constexpr int LetrasDeNumero = 12, LetrasDeTexto = 20;
constexpr int MaiorTextoVisto = 40; // characters by which a column of long texts starts
const QColor CorDasLinhas(192, 192, 192);

Qt::Alignment Horizontal(TAlignment alinhamento)
{
    return alinhamento == taRightJustify ? Qt::AlignRight
           : alinhamento == taCenter     ? Qt::AlignHCenter
                                         : Qt::AlignLeft;
}
} // namespace

QString TColumnTitle::GetCaption() const
{
    if (!legenda.isNull())
        return legenda;
    const TField *campo = coluna->Field();
    return campo ? campo->DisplayLabel() : coluna->GetFieldName();
}

void TColumnTitle::SetCaption(const QString &texto)
{
    legenda = texto.isNull() ? QStringLiteral("") : texto;
    Mudou();
}

TAlignment TColumnTitle::GetAlignment() const
{
    return alinhamento.value_or(coluna->GetAlignment());
}

void TColumnTitle::SetAlignment(TAlignment novo)
{
    alinhamento = novo;
    Mudou();
}

void TColumnTitle::SetRightMargin(int pixels)
{
    margemDireita = std::max(pixels, 0);
    Mudou();
}

QFont TColumnTitle::GetFont() const
{
    return fonte.value_or(coluna->Grid()->GetTitleFont());
}

void TColumnTitle::SetFont(const QFont &nova)
{
    fonte = nova;
    Mudou();
}

TColor TColumnTitle::GetFontColor() const
{
    return corDaFonte.value_or(
        TColor::DeQColor(coluna->Grid()->palette().color(QPalette::WindowText)));
}

void TColumnTitle::SetFontColor(TColor nova)
{
    corDaFonte = nova;
    Mudou();
}

TColor TColumnTitle::GetColor() const
{
    return cor.value_or(coluna->Grid()->GetFixedColor());
}

void TColumnTitle::SetColor(TColor nova)
{
    cor = nova;
    Mudou();
}

void TColumnTitle::Mudou()
{
    coluna->Grid()->Invalidate();
}

TColumn::TColumn(TDBGrid *grade, QString campo)
    : Title(this), grid(grade), fieldName(std::move(campo))
{
}

int TColumn::Index() const
{
    const auto i = std::find_if(grid->colunas.begin(), grid->colunas.end(),
                                [this](const auto &coluna) { return coluna.get() == this; });
    return int(i - grid->colunas.begin());
}

void TColumn::SetFieldName(const QString &nome)
{
    fieldName = nome;
    grid->Invalidate();
}

TField *TColumn::Field() const
{
    const TDataSet *dataset = grid->DataSet();
    return dataset ? dataset->FindField(fieldName) : nullptr;
}

int TColumn::GetWidth() const
{
    return visivel ? grid->GetColWidth(Index()) : largura;
}

void TColumn::SetWidth(int pixels)
{
    largura = std::max(pixels, 1);
    if (visivel)
        grid->SetColWidth(Index(), largura);
}

void TColumn::SetVisible(bool v)
{
    if (v == visivel)
        return;
    largura = GetWidth();
    visivel = v;
    grid->SetColWidth(Index(), v ? largura : 0);
}

TAlignment TColumn::GetAlignment() const
{
    if (alinhamento)
        return *alinhamento;
    const TField *campo = Field();
    return campo ? campo->Alignment() : taLeftJustify;
}

void TColumn::SetAlignment(TAlignment novo)
{
    alinhamento = novo;
    grid->Invalidate();
}

TDBGrid::TDBGrid(QWidget *owner) : TCustomGrid(owner)
{
    SetColCount(1);
    SetRowCount(2);
    SetDefaultRowHeight(AlturaDaLinha);
    SetThumbTracking(true);
    SetOptions(OpcoesPadrao);
}

TDBGrid::~TDBGrid() = default;

void TDBGrid::SetDataSource(TDataSource *nova)
{
    if (dataSource == nova)
        return;
    if (dataSource)
        disconnect(dataSource, nullptr, this, nullptr);
    dataSource = nova;
    if (nova) {
        Ligar(nova, &TDataSource::EstruturaMudou, this, [this] { LerEstrutura(); });
        Ligar(nova, &TDataSource::DadosMudaram, this, [this] { LerDados(); });
        Ligar(nova, &TDataSource::Rolou, this, [this] { Acompanhar(); });
        Ligar(nova, &QObject::destroyed, this, [this] { LerEstrutura(); });
    }
    LerEstrutura();
}

TColumn *TDBGrid::Columns(int i) const
{
    Q_ASSERT_X(i >= 0 && i < ColumnCount(), "TDBGrid::Columns", "no such column");
    return colunas[size_t(i)].get();
}

TColumn *TDBGrid::ColumnByField(const QString &nome) const
{
    const auto i = std::find_if(colunas.begin(), colunas.end(), [&](const auto &coluna) {
        return coluna->GetFieldName().compare(nome, Qt::CaseInsensitive) == 0;
    });
    return i == colunas.end() ? nullptr : i->get();
}

TColumn *TDBGrid::AddColumn(const QString &fieldName)
{
    if (!std::exchange(colunasDeclaradas, true))
        colunas.clear();
    colunas.push_back(std::make_unique<TColumn>(this, fieldName));
    TColumn *nova = colunas.back().get();
    SetColCount(ColumnCount());
    nova->SetWidth(LarguraPadrao(*nova));
    Invalidate();
    return nova;
}

void TDBGrid::ClearColumns()
{
    colunasDeclaradas = false;
    PorColunas({});
    LerEstrutura();
}

void TDBGrid::SetOptions(unsigned novas)
{
    opcoes = novas;
    SetFixedRows(novas & dgTitles ? 1 : 0);
    SetColSizing(novas & dgColumnResize);
    SetGridLines(novas & (dgColLines | dgRowLines));
    SetRowSelect(novas & dgRowSelect);
    LerDados();
}

void TDBGrid::SetTitleFont(const QFont &nova)
{
    fonteDosTitulos = nova;
    Invalidate();
}

QAnyStringView TDBGrid::CellTexto(int col, int row) const
{
    texto.clear();
    if (col < 0 || col >= ColumnCount() || row < 0)
        return texto;
    const TColumn &coluna = *colunas[size_t(col)];
    if (row < GetFixedRows()) {
        texto = coluna.Title.GetCaption();
    } else if (TDataSet *dataset = DataSet();
               dataset && NumeroDaLinha(row) <= dataset->RecordCount()) {
        const TLerLinha ler(dataset, NumeroDaLinha(row));
        texto = TextoDe(coluna);
    }
    return texto;
}

/** The dataset goes there first; what happened to it on the way decides. */
bool TDBGrid::PodeSelecionar(int col, int row)
{
    if (acompanhando)
        return true;
    const QPointer<TDBGrid> vivo(this);
    if (!TCustomGrid::PodeSelecionar(col, row) || !vivo)
        return false;
    const int numero = NumeroDaLinha(row);
    if (!TemLinhas() || DataSet()->RecNo() == numero)
        return true;
    struct TGuarda {
        QPointer<TDBGrid> vivo;
        ~TGuarda()
        {
            if (vivo)
                vivo->movendo = false;
        }
    };
    {
        const TGuarda guarda{this};
        movendo = true;
        DataSet()->MoveBy(numero - DataSet()->RecNo());
    }
    if (!vivo)
        return false;
    if (DataSet() && DataSet()->RecNo() == numero)
        return true;
    Acompanhar();
    return false;
}

void TDBGrid::CliqueFixo(int col, int row)
{
    const QPointer<TDBGrid> vivo(this);
    TCustomGrid::CliqueFixo(col, row);
    if (!vivo || !OnTitleClick || col >= ColumnCount())
        return;
    const auto handler = OnTitleClick; // the grid may destroy its own handler
    Protegido([&] { handler(Columns(col)); });
}

void TDBGrid::PintarCelula(QPainter &p, const QRect &ret, int col, int row, unsigned estado)
{
    if (col >= ColumnCount())
        return;
    TColumn *coluna = Columns(col);
    if (estado & gdFixa)
        return PintarTitulo(p, ret, *coluna);
    PintarLinhas(p, ret, CorDasLinhas);
    TDataSet *dataset = DataSet();
    const bool tem = TemLinhas();
    if (!dataset || !dataset->Active() || (tem && NumeroDaLinha(row) > dataset->RecordCount()))
        return;
    estado &= ~unsigned(gdSelecionada);
    if (tem && row == GetRow())
        estado |= gdSelecionada;
    const TLerLinha ler(dataset, tem ? NumeroDaLinha(row) : 0);
    const auto doDono = [&] {
        p.save();
        const bool foi = OnDrawColumnCell && Desenhar([&] {
                             if (GetDefaultDrawing())
                                 PintarPadrao(p, ret, *coluna, estado);
                             OnDrawColumnCell(this, p, ret, col, coluna, estado);
                         });
        p.restore();
        return foi;
    };
    if (!doDono() && (GetDefaultDrawing() || OnDrawColumnCell))
        PintarPadrao(p, ret, *coluna, estado);
}

bool TDBGrid::focusNextPrevChild(bool proximo)
{
    if (!(opcoes & dgTabs) || (opcoes & dgRowSelect) || !TemLinhas())
        return TCustomGrid::focusNextPrevChild(proximo);
    const int passo = proximo ? 1 : -1;
    int col = GetCol() + passo, row = GetRow();
    for (;; col += passo) {
        if (col < 0 || col >= GetColCount()) {
            row += passo;
            col = proximo ? 0 : GetColCount() - 1;
        }
        if (row < GetFixedRows() || row >= GetRowCount())
            return TCustomGrid::focusNextPrevChild(proximo);
        if (GetColWidth(col) > 0)
            break;
    }
    Protegido([&] { SetCelula(col, row); });
    return true;
}

/** The current row comes along, to the nearest row in view. */
void TDBGrid::RolouPelaBarra()
{
    const int ultima = GetTopRow() + std::max(VisibleRowCount(), 1) - 1;
    const int row = std::clamp(GetRow(), GetTopRow(), ultima);
    if (row != GetRow())
        Protegido([&] { SetRow(row); });
}

void TDBGrid::LerEstrutura()
{
    FazerColunas();
    LerDados();
}

void TDBGrid::LerDados()
{
    const TDataSet *dataset = DataSet();
    SetRowCount(GetFixedRows() + std::max(dataset ? dataset->RecordCount() : 0, 1));
    Acompanhar();
    Invalidate();
}

/** The dataset is elsewhere, or its row has another number. */
void TDBGrid::Acompanhar()
{
    const TDataSet *dataset = DataSet();
    if (movendo || acompanhando || !dataset)
        return;
    const QPointer<TDBGrid> vivo(this);
    acompanhando = true;
    SetRow(GetFixedRows() + std::max(dataset->RecNo(), 1) - 1);
    if (vivo)
        acompanhando = false;
}

/** One column for each field, unless columns were declared or these are the same fields. */
void TDBGrid::FazerColunas()
{
    const TDataSet *dataset = DataSet();
    if (colunasDeclaradas || (dataset && !dataset->Active()))
        return;
    QStringList campos, atuais;
    for (int i = 0; dataset && i < dataset->FieldCount(); ++i)
        campos << dataset->Fields(i)->FieldName();
    for (const auto &coluna : colunas)
        atuais << coluna->GetFieldName();
    if (campos != atuais)
        PorColunas(campos);
}

void TDBGrid::PorColunas(const QStringList &campos)
{
    colunas.clear();
    for (const QString &campo : campos)
        colunas.push_back(std::make_unique<TColumn>(this, campo));
    SetColCount(std::max(ColumnCount(), 1));
    for (const auto &coluna : colunas)
        coluna->SetWidth(LarguraPadrao(*coluna));
}

/** What the longest value or the title needs, as far as the field tells. */
int TDBGrid::LarguraPadrao(const TColumn &coluna) const
{
    const QFontMetrics medida(font()), doTitulo(GetTitleFont());
    const TField *campo = coluna.Field();
    int letras = LetrasDeNumero;
    if (campo && campo->Size() > 0)
        letras = std::min(campo->Size(), MaiorTextoVisto);
    else if (campo &&
             (campo->DataType() == TFieldType::ftString || campo->DataType() == TFieldType::ftMemo))
        letras = LetrasDeTexto;
    return 2 * Margem + std::max(letras * medida.horizontalAdvance(u'0'),
                                 doTitulo.horizontalAdvance(coluna.Title.GetCaption()));
}

bool TDBGrid::TemLinhas() const
{
    const TDataSet *dataset = DataSet();
    return dataset && !dataset->IsEmpty();
}

QString TDBGrid::TextoDe(const TColumn &coluna) const
{
    QString dito;
    if (OnGetText)
        Protegido([&] { dito = OnGetText(&coluna); });
    else if (const TField *campo = coluna.Field())
        dito = TextoParaLista(*campo);
    return dito;
}

void TDBGrid::PintarTitulo(QPainter &p, const QRect &ret, const TColumn &coluna)
{
    const QColor fundo = coluna.Title.GetColor().ParaQColor();
    p.fillRect(ret, fundo);
    PintarLinhas(p, ret, fundo.darker(130));
    p.save();
    p.setFont(coluna.Title.GetFont());
    p.setPen(coluna.Title.GetFontColor().ParaQColor());
    const QRect area = ret.adjusted(Margem, 0, -Margem - coluna.Title.GetRightMargin(), 0);
    EscreverNaCelula(p, area, coluna.Title.GetCaption(),
                     Horizontal(coluna.Title.GetAlignment()) | Qt::AlignVCenter);
    p.restore();
}

void TDBGrid::PintarPadrao(QPainter &p, const QRect &ret, const TColumn &coluna, unsigned estado)
{
    const auto grupo = !isEnabled() ? QPalette::Disabled
                       : hasFocus() ? QPalette::Active
                                    : QPalette::Inactive;
    const bool marcada = estado & gdSelecionada;
    p.fillRect(ret,
               marcada ? palette().color(grupo, QPalette::Highlight) : GetColor().ParaQColor());
    p.setPen(palette().color(grupo, marcada ? QPalette::HighlightedText : QPalette::Text));
    EscreverNaCelula(p, ret.adjusted(Margem, 0, -Margem, 0), TextoDe(coluna),
                     Horizontal(coluna.GetAlignment()) | Qt::AlignVCenter);
    if (estado & gdFocada) {
        p.setPen(QPen(p.pen().color(), 1, Qt::DotLine));
        p.drawRect(ret.adjusted(0, 0, -1, -1));
    }
}

void TDBGrid::PintarLinhas(QPainter &p, const QRect &ret, const QColor &cor)
{
    if (opcoes & dgColLines)
        p.fillRect(QRect(ret.right() + 1, ret.top(), 1, ret.height() + 1), cor);
    if (opcoes & dgRowLines)
        p.fillRect(QRect(ret.left(), ret.bottom() + 1, ret.width(), 1), cor);
}

} // namespace ficha
