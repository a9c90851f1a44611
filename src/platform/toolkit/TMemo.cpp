#include "platform/toolkit/TMemo.h"

#include "platform/toolkit/AvisarUsuario.h"
#include "platform/toolkit/Cores.h"
#include "platform/toolkit/EntradaDeTexto.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/MenuDeEdicao.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTimer>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TMemo)

namespace
{

/** The text as the document takes it: "\n" between lines. */
QString ParaLinhas(QString texto)
{
    texto.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return texto.replace(u'\r', u'\n');
}

/** The length of a text with "\n" as it counts towards the limit. */
int Tamanho(const QString &texto)
{
    return int(texto.size() + texto.count(u'\n'));
}

bool EhQuebra(const QKeyEvent &evento)
{
    return evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter;
}

} // namespace

TMemo::TMemo(QWidget *owner) : QPlainTextEdit(owner)
{
    setTabChangesFocus(true);
    Ligar(this, &QPlainTextEdit::textChanged, this, [this] {
        if (doUsuario)
            Q_EMIT UserChanged();
        Disparar(OnChange, this);
    });
}

QString TMemo::GetText() const
{
    QString texto;
    texto.reserve(GetTamanho());
    for (QTextBlock bloco = document()->begin(); bloco.isValid(); bloco = bloco.next()) {
        if (bloco.blockNumber() > 0)
            texto += QLatin1String("\r\n");
        texto += bloco.text();
    }
    return texto;
}

void TMemo::SetText(const QString &texto)
{
    const QString linhas = ParaLinhas(texto);
    if (linhas == toPlainText())
        return;
    // Also where a handler of the user's input writes.
    const QScopedValueRollback programa(doUsuario, false);
    {
        // The document announces an emptying and a filling.
        const QSignalBlocker calado(this);
        QPlainTextEdit::setPlainText(linhas);
    }
    Q_EMIT textChanged();
}

QStringList TMemo::GetLinhas() const
{
    return GetTamanho() == 0 ? QStringList() : toPlainText().split(u'\n');
}

void TMemo::SetLinhas(const QStringList &linhas)
{
    SetText(linhas.join(u'\n'));
}

int TMemo::GetTamanho() const
{
    return document()->characterCount() - 1 + document()->blockCount() - 1;
}

TColor TMemo::GetColor() const
{
    return CorDoWidget(*this, QPalette::Base);
}
void TMemo::SetColor(TColor cor)
{
    SetCorDoWidget(*this, QPalette::Base, cor);
}
TColor TMemo::GetFontColor() const
{
    return CorDoWidget(*this, QPalette::Text);
}
void TMemo::SetFontColor(TColor cor)
{
    SetCorDoWidget(*this, QPalette::Text, cor);
}

/** Runs what takes the user's input in. */
template <typename F>
void TMemo::PeloUsuario(F &&f)
{
    const QScopedValueRollback usuario(doUsuario, true);
    f();
}

void TMemo::keyPressEvent(QKeyEvent *evento)
{
    PeloUsuario([&] { Teclar(evento); });
}

void TMemo::Teclar(QKeyEvent *evento)
{
    const bool quebra = EhQuebra(*evento);
    if (isReadOnly() || (!quebra && !EhTeclaDeTexto(*evento))) {
        QPlainTextEdit::keyPressEvent(evento);
        return;
    }
    const QString texto = quebra ? QStringLiteral("\n") : NormalizarEntrada(evento->text(), false);
    if (Recusar(texto) || (maxLength > 0 && Tamanho(texto) > Espaco()))
        evento->accept();
    else if (quebra || texto == evento->text())
        QPlainTextEdit::keyPressEvent(evento);
    else
        textCursor().insertText(texto);
}

void TMemo::inputMethodEvent(QInputMethodEvent *evento)
{
    const QString escrito = evento->commitString();
    if (isReadOnly() || escrito.isEmpty()) {
        QPlainTextEdit::inputMethodEvent(evento);
        return;
    }
    const QString texto = NormalizarEntrada(escrito, false);
    const QString recusa = RecusaDoTexto(texto);
    const bool cabe = maxLength == 0 || Tamanho(texto) <= Espaco();
    QInputMethodEvent passado(evento->preeditString(), evento->attributes());
    if (recusa.isEmpty() && cabe)
        passado.setCommitString(texto, evento->replacementStart(), evento->replacementLength());
    PeloUsuario([&] { QPlainTextEdit::inputMethodEvent(&passado); });
    evento->accept();
    if (!recusa.isEmpty())
        AvisarUsuario(recusa);
}

void TMemo::mouseMoveEvent(QMouseEvent *evento)
{
    // A text that is dragged away to another control leaves the memo here.
    PeloUsuario([&] { QPlainTextEdit::mouseMoveEvent(evento); });
}

void TMemo::dropEvent(QDropEvent *evento)
{
    const QScopedValueRollback solta(soltando, true);
    const bool daqui = evento->source() == this || evento->source() == viewport();
    const QScopedValueRollback movendo(soltandoDaqui, daqui);
    PeloUsuario([&] { QPlainTextEdit::dropEvent(evento); });
}

void TMemo::contextMenuEvent(QContextMenuEvent *evento)
{
    TComandosDeEdicao c;
    c.Desfazer = [this] { PeloUsuario([this] { undo(); }); };
    c.Refazer = [this] { PeloUsuario([this] { redo(); }); };
    c.Recortar = [this] { PeloUsuario([this] { cut(); }); };
    c.Copiar = [this] { copy(); };
    c.Colar = [this] { paste(); };
    c.Excluir = [this] { PeloUsuario([this] { textCursor().removeSelectedText(); }); };
    c.SelecionarTudo = [this] { selectAll(); };
    c.PodeDesfazer = document()->isUndoAvailable();
    c.PodeRefazer = document()->isRedoAvailable();
    c.TemSelecao = textCursor().hasSelection();
    c.PodeColar = canPaste();
    c.TemTexto = GetTamanho() > 0;
    c.SomenteLeitura = isReadOnly();
    NovoMenuDeEdicao(this, c)->popup(evento->globalPos());
}

bool TMemo::canInsertFromMimeData(const QMimeData *dados) const
{
    return dados->hasText();
}

void TMemo::insertFromMimeData(const QMimeData *dados)
{
    if (isReadOnly() || !dados->hasText())
        return;
    QString texto = NormalizarEntrada(dados->text(), false);
    if (!soltandoDaqui && !Disparar(OnPaste, texto))
        return;
    // A text moved inside the memo was let in before, and is already taken from its old place.
    if (!soltandoDaqui && Recusar(texto))
        return;
    const QString cortado = soltandoDaqui ? texto : Cortar(texto);
    if (!cortado.isEmpty()) {
        QTextCursor cursor = textCursor();
        PeloUsuario([&] { cursor.insertText(cortado); });
        setTextCursor(cursor);
        ensureCursorVisible();
    }
}

/** Length that the user may still add, the selection counting as gone. */
int TMemo::Espaco() const
{
    const QTextCursor cursor = textCursor();
    const int quebras = int(cursor.selectedText().count(QChar::ParagraphSeparator));
    const int selecao = cursor.selectionEnd() - cursor.selectionStart() + quebras;
    return maxLength - (GetTamanho() - selecao);
}

QString TMemo::Cortar(const QString &texto) const
{
    if (maxLength == 0)
        return texto;
    int espaco = Espaco();
    qsizetype n = 0;
    while (n < texto.size() && (espaco -= texto.at(n) == u'\n' ? 2 : 1) >= 0)
        ++n;
    return texto.left(n);
}

bool TMemo::Recusar(const QString &texto)
{
    const QString recusa = RecusaDoTexto(texto);
    if (recusa.isEmpty())
        return false;
    // A box opened inside a drop would hold up the program that the text is dragged from.
    if (soltando)
        QTimer::singleShot(0, this, [recusa] { AvisarUsuario(recusa); });
    else
        AvisarUsuario(recusa);
    return true;
}

} // namespace ficha
