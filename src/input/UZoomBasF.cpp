#include "input/UZoomBasF.h"

#include "platform/support/ArquivoDeImagem.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TPanel.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QWindow>

namespace ficha
{

FICHA_REGISTRAR(TZoomBasF)

TZoomBasF *ZoomBasF = nullptr;

namespace
{
constexpr int LadoDeProjeto = 105;
/** Room for a window's frame where none can be measured. */
constexpr QSize MolduraSuposta(16, 48);

/** What the frame of a window takes, told by another window of the program; invalid when that is
 * not to be seen. Our own has none before it is on the screen. */
QSize Moldura(const QWidget *outra)
{
    if (!outra || !outra->window()->isVisible())
        return {};
    return outra->window()->frameGeometry().size() - outra->window()->geometry().size();
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
    Image1->installEventFilter(this);
}

void TZoomBasF::FormShow(QObject *sender)
{
    TBasF::FormShow(sender);
    AjustarTamanho();
    const QRect tela = screen()->geometry();
    const QSize janela = size() + Moldura(parentWidget()).expandedTo({0, 0});
    const QPoint onde = tela.topLeft() + QPoint((tela.width() - janela.width()) / 2,
                                                (tela.height() - janela.height()) / 2);
    // A widget is moved without the frame that it does not have yet.
    if (windowHandle())
        windowHandle()->setFramePosition(onde);
    else
        move(onde);
    rolagem->setFocus();
}

/** The picture's size, as far as the screen has room for it and the window's frame. */
void TZoomBasF::AjustarTamanho()
{
    const QSize medida = Moldura(parentWidget());
    const QSize lugar =
        screen()->availableGeometry().size() - (medida.isValid() ? medida : MolduraSuposta);
    QSize tamanho = Image1->size();
    // A bar on one side takes room from the other.
    const int barra = rolagem->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (tamanho.width() > lugar.width())
        tamanho.rheight() += barra;
    if (tamanho.height() > lugar.height())
        tamanho.rwidth() += barra;
    resize(tamanho.boundedTo(lugar).expandedTo({LadoDeProjeto, LadoDeProjeto}));
}

/** Dragging the picture scrolls it: it follows the mouse. */
bool TZoomBasF::eventFilter(QObject *objeto, QEvent *evento)
{
    if (objeto == Image1 && evento->type() == QEvent::MouseButtonPress) {
        arrastado = static_cast<QMouseEvent *>(evento)->globalPosition().toPoint();
    } else if (objeto == Image1 && evento->type() == QEvent::MouseMove) {
        const auto *mouse = static_cast<QMouseEvent *>(evento);
        const QPoint aqui = mouse->globalPosition().toPoint();
        if (mouse->buttons() & Qt::LeftButton) {
            QScrollBar *deLado = rolagem->horizontalScrollBar();
            QScrollBar *emPe = rolagem->verticalScrollBar();
            deLado->setValue(deLado->value() + arrastado.x() - aqui.x());
            emPe->setValue(emPe->value() + arrastado.y() - aqui.y());
        }
        arrastado = aqui;
    }
    return TBasF::eventFilter(objeto, evento);
}

void TZoomBasF::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape && evento->modifiers() == Qt::NoModifier)
        Close();
    else
        TBasF::keyPressEvent(evento);
}

} // namespace ficha
