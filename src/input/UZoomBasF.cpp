#include "input/UZoomBasF.h"

#include "platform/support/ArquivoDeImagem.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TPanel.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScroller>
#include <QStyle>

namespace ficha
{

FICHA_REGISTRAR(TZoomBasF)

TZoomBasF *ZoomBasF = nullptr;

namespace
{
constexpr int LadoDeProjeto = 105;
/** Room for a window's frame where none can be measured. */
constexpr QSize MolduraSuposta(16, 48);

/** What the frame of a window takes, told by another window of the program. */
QSize Moldura(const QWidget *outra)
{
    if (!outra || !outra->isVisible())
        return MolduraSuposta;
    return outra->frameGeometry().size() - outra->geometry().size();
}
} // namespace

TZoomBasF::TZoomBasF(TChave chave) : TBasF(chave) {}

TZoomBasF::~TZoomBasF()
{
    if (ZoomBasF == this)
        ZoomBasF = nullptr;
}

void TZoomBasF::Exibir(const QString &arquivo)
{
    Image1->setPixmap(QPixmap::fromImage(TArquivoDeImagem(arquivo).LerNatural()));
    Image1->adjustSize();
    ShowModal();
}

void TZoomBasF::PegarComponentes()
{
    TBasF::PegarComponentes();
    Pegar(this, Image1, "Image1");
    rolagem = new QScrollArea(Panel1);
    rolagem->setObjectName(QStringLiteral("ScrollBox1"));
    rolagem->setFrameShape(QFrame::NoFrame);
    rolagem->setWidget(Image1);
    Alinhar(rolagem, alClient);
    QScroller::grabGesture(rolagem->viewport(), QScroller::LeftMouseButtonGesture);
}

void TZoomBasF::FormShow(QObject *sender)
{
    TBasF::FormShow(sender);
    AjustarTamanho();
    const QRect tela = screen()->geometry();
    move(tela.x() + (tela.width() - frameGeometry().width()) / 2,
         tela.y() + (tela.height() - frameGeometry().height()) / 2);
    rolagem->setFocus();
}

/** The picture's size, as far as the screen has room for it and the window's frame. */
void TZoomBasF::AjustarTamanho()
{
    const QSize lugar = screen()->availableGeometry().size() -
                        Moldura(parentWidget() ? parentWidget()->window() : nullptr);
    QSize tamanho = Image1->size();
    // A bar on one side takes room from the other.
    const int barra = rolagem->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (tamanho.width() > lugar.width())
        tamanho.rheight() += barra;
    if (tamanho.height() > lugar.height())
        tamanho.rwidth() += barra;
    resize(tamanho.boundedTo(lugar).expandedTo({LadoDeProjeto, LadoDeProjeto}));
}

void TZoomBasF::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape && evento->modifiers() == Qt::NoModifier)
        Close();
    else
        TBasF::keyPressEvent(evento);
}

} // namespace ficha
