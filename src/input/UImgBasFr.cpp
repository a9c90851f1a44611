#include "input/UImgBasFr.h"

#include "input/UZoomBasF.h"
#include "platform/support/EImagemInvalida.h"
#include "platform/support/Imagens.h"
#include "platform/support/Mensagens.h"
#include "platform/support/SisD.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/EntradaDeTexto.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TPaintBox.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TToolBar.h"
#include "records/UTabelaLinear.h"

#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QPainter>
#include <QScopeGuard>
#include <QScopedValueRollback>

namespace ficha
{

FICHA_REGISTRAR(TImgBasFr)

TImgBasFr::TImgBasFr(TChave chave) : TDBControlBasFr(chave) {}

void TImgBasFr::Create(QWidget *owner)
{
    TDBControlBasFr::Create(owner);
    ApagarCanvas();
    ActionList1->SetImages(SisD().ImageList16);
    ToolBar2->SetImages(SisD().ImageList16);
    ToolBar2->SetDisabledImages(SisD().DisImageList16);
}

Variant TImgBasFr::GetValor() const
{
    return ArquivoImagem;
}

void TImgBasFr::SetValor(const Variant &valor)
{
    TDBControlBasFr::SetValor(valor);
    ArquivoImagem = valor.AsString().trimmed();
    DesenharCanvas();
}

void TImgBasFr::Zerar()
{
    TDBControlBasFr::Zerar();
    const QPointer<TImgBasFr> vivo(this);
    {
        const QScopedValueRollback<bool> guarda(zerando, true);
        LimparAction->Execute();
    }
    // A host may have switched the action off; an input that is emptied is empty.
    if (vivo && !ArquivoImagem.isEmpty())
        SetValor(QString());
}

QString TImgBasFr::SQLString() const
{
    return QuotedStr(ArquivoImagem);
}

void TImgBasFr::ApagarCanvas()
{
    PaintBox1->Desenhar([this](QPainter &pintor) {
        pintor.fillRect(CopiarRect(0, 0, PaintBox1->width() - 1, PaintBox1->height() - 1),
                        Qt::white);
    });
}

void TImgBasFr::DesenharCanvas()
{
    ApagarCanvas();
    const TVersaoDoArquivo versao = VersaoDoArquivo(ArquivoImagem);
    if (!versao.Existe() || TipoDeImagem(ArquivoImagem) == TTipoDeImagem::Nenhum) {
        lida = {};
        return;
    }
    if (!PaintBox1->Pintando() && !PaintBox1->isVisible())
        return;
    if (!Ler(versao))
        return;
    PaintBox1->Desenhar([this](QPainter &pintor) {
        const QSizeF tamanho = QSizeF(lida.imagem.size()) / lida.razao;
        const QSizeF sobra = (QSizeF(lida.caixa) - tamanho) / 2;
        pintor.drawImage(QPointF(int(sobra.width()), int(sobra.height())), lida.imagem);
    });
}

/** Brings what was read last up to the file and the box; false for a file known to be damaged,
 * which raises only when it is met. */
bool TImgBasFr::Ler(const TVersaoDoArquivo &versao)
{
    const qreal razao = PaintBox1->devicePixelRatioF();
    const bool mesmo = lida.arquivo == ArquivoImagem && lida.versao == versao && !lida.recente;
    if (mesmo && lida.danificado)
        return false;
    if (mesmo && lida.caixa == PaintBox1->size() && lida.razao == razao)
        return true;
    const bool jaContado =
        lida.danificado && lida.arquivo == ArquivoImagem && lida.versao == versao;
    lida = {ArquivoImagem, versao, PaintBox1->size(), razao, {}, false, versao.Recente()};
    try {
        lida.imagem = LerImagem(ArquivoImagem, PaintBox1->size(), razao);
        lida.imagem.setDevicePixelRatio(razao);
        return true;
    } catch (const EImagemInvalida &) {
        lida.danificado = true;
        if (!jaContado)
            throw;
        return false;
    }
}

QImage TImgBasFr::LerImagem(const QString &arquivo, QSize caixa, qreal razao)
{
    const TArquivoDeImagem imagem(arquivo);
    const QRect de = CopiarRect(0, 0, imagem.Tamanho().width() - 1, imagem.Tamanho().height() - 1);
    const QRect para = CopiarRect(0, 0, caixa.width() - 1, caixa.height() - 1);
    return imagem.Ler((QSizeF(StretchRect(de, para).size()) * razao).toSize());
}

void TImgBasFr::PegarComponentes()
{
    TDBControlBasFr::PegarComponentes();
    Pegar(this, TitLabel, "TitLabel");
    Pegar(this, Panel1, "Panel1");
    Pegar(this, PaintBox1, "PaintBox1");
    Pegar(this, ToolBar2, "ToolBar2");
    Pegar(this, ToolButton2, "ToolButton2");
    Pegar(this, ToolButton1, "ToolButton1");
    Pegar(this, ToolButton3, "ToolButton3");
    Pegar(this, ActionList1, "ActionList1");
    Pegar(this, LocalizarAction, "LocalizarAction");
    Pegar(this, LimparAction, "LimparAction");
    Pegar(this, ZoomAction, "ZoomAction");
    PaintBox1->OnPaint = [this](QObject *sender) { PaintBox1Paint(sender); };
    LocalizarAction->OnExecute = [this](QObject *sender) { LocalizarActionExecute(sender); };
    LocalizarAction->OnUpdate = [this](QObject *sender) { LocalizarActionUpdate(sender); };
    LimparAction->OnExecute = [this](QObject *sender) { LimparActionExecute(sender); };
    ZoomAction->OnExecute = [this](QObject *sender) { ZoomActionExecute(sender); };
}

void TImgBasFr::PaintBox1Paint(QObject *)
{
    DesenharCanvas();
}

void TImgBasFr::LocalizarActionExecute(QObject *)
{
    const QPointer<TImgBasFr> vivo(this);
    const auto voltar =
        qScopeGuard([] { QDir::setCurrent(QCoreApplication::applicationDirPath()); });
    TOpenDialog &dialogo = SisD().OpenDialog;
    dialogo.Title = QStringLiteral("Escolha a imagem");
    // Shared with screens that look for other files.
    const QScopedValueRollback<QString> filtro(
        dialogo.Filter,
        QStringLiteral("Imagens (*.jpg *.jpeg *.bmp *.ico *.wmf);;Todos os arquivos (*)"));
    dialogo.FileName = ArquivoImagem;
    if (!dialogo.Execute(this) || !vivo || !CaminhoAceito(dialogo.FileName) || !vivo)
        return;
    const QString escolhido = dialogo.FileName;
    Editar();
    if (!vivo || Recusado())
        return;
    // Whoever picks a damaged file again is told again.
    lida = {};
    SetValor(escolhido);
}

bool TImgBasFr::CaminhoAceito(const QString &caminho) const
{
    const QString recusa = RecusaDoTexto(caminho);
    if (!recusa.isEmpty()) {
        MensagemAviso(QStringLiteral("O nome do arquivo, ou de uma das suas pastas, não serve.\r\n"
                                     "%1\r\nArquivo: %2")
                          .arg(recusa, caminho),
                      0);
        return false;
    }
    const int maximo = TemRotulo() ? Campo->Field->Size() : 0;
    if (maximo == 0 || caminho.trimmed().size() <= maximo)
        return true;
    MensagemAviso(QStringLiteral("O caminho do arquivo tem %1 letras, e %2 guarda no máximo %3. "
                                 "Escolha um arquivo de nome mais curto.\r\nArquivo: %4")
                      .arg(caminho.trimmed().size())
                      .arg(RotuloDoCampo())
                      .arg(maximo)
                      .arg(caminho),
                  0);
    return false;
}

/** The screen was asked for an alteration and did not start one. */
bool TImgBasFr::Recusado() const
{
    return Tabela && FormTabela() && Tabela->Status == TStatus::Ocioso;
}

void TImgBasFr::LocalizarActionUpdate(QObject *)
{
    const bool existe = VersaoDoArquivo(ArquivoImagem).Existe();
    if (existe != ZoomAction->GetEnabled())
        ZoomAction->SetEnabled(existe);
}

void TImgBasFr::LimparActionExecute(QObject *)
{
    const QPointer<TImgBasFr> vivo(this);
    Editar();
    if (!vivo || (Recusado() && !zerando))
        return;
    SetValor(QString());
    ApagarCanvas();
}

void TImgBasFr::ZoomActionExecute(QObject *)
{
    const QPointer<TZoomBasF> zoom = Criar<TZoomBasF>(this);
    ZoomBasF = zoom;
    const auto liberar = qScopeGuard([zoom] { delete zoom; });
    zoom->Exibir(ArquivoImagem);
}

} // namespace ficha
