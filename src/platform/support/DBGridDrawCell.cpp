#include "platform/support/DBGridDrawCell.h"

#include "platform/support/Datas.h"
#include "platform/support/FormatFloat.h"
#include "platform/support/StringGridDrawCell.h"
#include "platform/support/TDBGrid.h"
#include "platform/toolkit/TImageList.h"

#include <QPainter>

namespace ficha
{

namespace
{
constexpr int AlturaDaFaixa = 18, Margem = 3, AlturaDoTexto = 2;
constexpr int EspacoDaSeta = 11;
constexpr TColor OrdemImpar = TColor::DeRGB(0xF2, 0xF9, 0xFF);
constexpr TColor OrdemPar = TColor::DeRGB(0xD0, 0xE1, 0xEE);
constexpr TColor TituloNormal = TColor::DeRGB(0x58, 0x82, 0xB5);
constexpr TColor TituloDaOrdem = TColor::DeRGB(0x42, 0x68, 0x97);
constexpr TColor Branco = TColor::DeRGB(0xFF, 0xFF, 0xFF);

bool EhNumero(TFieldType tipo)
{
    return tipo == TFieldType::ftFloat || tipo == TFieldType::ftInteger ||
           tipo == TFieldType::ftSmallint;
}

bool EhData(TFieldType tipo)
{
    return tipo == TFieldType::ftDateTime || tipo == TFieldType::ftDate;
}

bool EhDoCampo(const TColumn &column, const QString &campo)
{
    return !campo.isEmpty() && column.GetFieldName().compare(campo, Qt::CaseInsensitive) == 0;
}

int XDir(const QRect &rect, int largura)
{
    return rect.left() + rect.width() - largura;
}

int XCentro(const QRect &rect, int largura)
{
    const int sobra = rect.width() - largura;
    return rect.left() + (sobra >= 0 ? sobra / 2 : (sobra - 1) / 2);
}

TColor CorDaFaixa(const QRect &rect, bool daOrdem)
{
    const TCoresDaGrade &cores = CoresDaGrade();
    if (NumEhImpar(rect.top() / AlturaDaFaixa))
        return daOrdem ? OrdemImpar : cores.FaixaImpar;
    return daOrdem ? OrdemPar : cores.FaixaPar;
}

/** At its place where it fits, cut where it does not: a number must never lose its first digits. */
void Escrever(QPainter &p, const QRect &rect, const QString &texto, TAlignment alinhamento,
              TColor cor)
{
    p.setPen(cor.ParaQColor());
    const QRect area = rect.adjusted(Margem, AlturaDoTexto, -Margem, 0);
    const QFontMetrics medida = p.fontMetrics();
    // Of a longer text the beginning is measured, which is more than fits.
    const int largura = medida.horizontalAdvance(texto.left(area.width() + 1));
    if (largura > area.width()) {
        EscreverNaCelula(p, area, texto, Qt::AlignLeft | Qt::AlignTop);
        return;
    }
    const int x = alinhamento == taRightJustify ? XDir(rect, largura) - Margem
                  : alinhamento == taCenter     ? XCentro(rect, largura)
                                                : rect.left() + Margem;
    p.drawText(x, area.top() + medida.ascent(), texto);
}

} // namespace

int XDir(const QPainter &p, const QRect &rect, const QString &texto)
{
    return XDir(rect, p.fontMetrics().horizontalAdvance(texto));
}

int XCentro(const QPainter &p, const QRect &rect, const QString &texto)
{
    return XCentro(rect, p.fontMetrics().horizontalAdvance(texto));
}

QString TextoParaLista(const TField &campo, bool mostrarDataNula)
{
    if (campo.IsNull())
        return {};
    const bool data = EhData(campo.DataType());
    if (data && !mostrarDataNula && campo.AsDateTime().DataInteira() <= SemData)
        return {};
    const QString &formato = campo.DisplayFormat();
    if (!formato.isEmpty() && data)
        return FormatDateTime(formato, campo.AsDateTime());
    if (!formato.isEmpty() && EhNumero(campo.DataType()))
        return FormatFloat(formato, campo.AsFloat());
    return campo.AsString().trimmed();
}

void DBGridDrawColumnCell(QPainter &p, const QRect &rect, const TColumn &column, unsigned estado,
                          const TPinturaDaLista &pintura)
{
    const TField *campo = column.Field();
    const QString texto = campo ? TextoParaLista(*campo, pintura.MostrarDataNula) : QString();
    const bool daOrdem = EhDoCampo(column, pintura.CampoOrdem);
    p.fillRect(rect.adjusted(-1, -1, 1, 1), CorDaFaixa(rect, daOrdem).ParaQColor());
    if (estado & gdSelecionada) {
        p.fillRect(rect, CoresDaGrade().CelulaAtual.ParaQColor());
        Escrever(p, rect, texto, column.GetAlignment(), CoresDaGrade().TextoDaCelulaAtual);
    } else {
        Escrever(p, rect, texto, column.GetAlignment(), TColor());
    }
    if (daOrdem && pintura.Imagens) {
        const int imagem =
            pintura.Ascendente ? pintura.ImagemAscendente : pintura.ImagemDescendente;
        // Into the title, from whatever row: the title itself knows no arrow.
        pintura.Imagens->Draw(p, QPoint(rect.left() + rect.width() - EspacoDaSeta, 1), imagem);
    }
}

void DBGridTitulosNormais(TDBGrid &grid)
{
    QFont fonte = grid.GetTitleFont();
    fonte.setBold(false);
    for (int i = 0; i < grid.ColumnCount(); ++i) {
        TColumnTitle &titulo = grid.Columns(i)->Title;
        titulo.SetFont(fonte);
        titulo.SetColor(TituloNormal);
        titulo.SetFontColor(Branco);
    }
}

void DBGridMarcarTitulo(TColumn &column)
{
    QFont fonte = column.Title.GetFont();
    fonte.setBold(true);
    column.Title.SetFont(fonte);
    column.Title.SetColor(TituloDaOrdem);
    column.Title.SetFontColor(Branco);
}

void DBGridReservarSeta(TDBGrid &grid, const QString &campoOrdem)
{
    for (int i = 0; i < grid.ColumnCount(); ++i) {
        TColumn *column = grid.Columns(i);
        column->Title.SetRightMargin(EhDoCampo(*column, campoOrdem) ? EspacoDaSeta : 0);
    }
}

} // namespace ficha
