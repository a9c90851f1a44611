#include "platform/toolkit/TCustomEdit.h"

#include "platform/toolkit/AvisarUsuario.h"
#include "platform/toolkit/Colagem.h"
#include "platform/toolkit/Cores.h"
#include "platform/toolkit/EntradaDeTexto.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/MenuDeEdicao.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <limits>
#include <utility>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TCustomEdit)

namespace
{

constexpr std::size_t MaiorHistorico = 200;

} // namespace

/** Undo and redo of an engine's edits, whole contents; QLineEdit keeps its own for the rest. */
struct TCustomEdit::THistorico {
    std::vector<TEdicao> Feitas;
    std::vector<TEdicao> Desfeitas;

    void Guardar(TEdicao antes)
    {
        if (Feitas.size() == MaiorHistorico)
            Feitas.erase(Feitas.begin());
        Feitas.push_back(std::move(antes));
        Desfeitas.clear();
    }
};

TCustomEdit::TCustomEdit(QWidget *owner)
    : QLineEdit(owner), historico(std::make_unique<THistorico>())
{
    // QLineEdit cuts the program's text at its limit; ours binds the user only.
    QLineEdit::setMaxLength(std::numeric_limits<int>::max());
    connect(this, &QLineEdit::textChanged, this, &TCustomEdit::Mudou);
}

TCustomEdit::~TCustomEdit() = default;

QString TCustomEdit::GetText() const
{
    return QLineEdit::text();
}

void TCustomEdit::SetText(const QString &texto)
{
    QLineEdit::setText(texto);
}

void TCustomEdit::SetMaxLength(int n)
{
    maxLength = n > 0 ? n : 0;
}

TColor TCustomEdit::GetColor() const
{
    return CorDoWidget(*this, QPalette::Base);
}
void TCustomEdit::SetColor(TColor cor)
{
    SetCorDoWidget(*this, QPalette::Base, cor);
}
TColor TCustomEdit::GetFontColor() const
{
    return CorDoWidget(*this, QPalette::Text);
}
void TCustomEdit::SetFontColor(TColor cor)
{
    SetCorDoWidget(*this, QPalette::Text, cor);
}

void TCustomEdit::Colar(QClipboard::Mode de)
{
    if (isReadOnly())
        return;
    const QString recusa = InserirTexto(QGuiApplication::clipboard()->text(de));
    if (!recusa.isEmpty())
        AvisarUsuario(recusa);
}

void TCustomEdit::Recortar()
{
    if (isReadOnly() || !hasSelectedText())
        return;
    if (!TemMotor()) {
        QLineEdit::cut();
        return;
    }
    copy();
    Excluir();
}

void TCustomEdit::Desfazer()
{
    if (!TemMotor())
        undo();
    else if (!isReadOnly())
        Voltar(historico->Feitas, historico->Desfeitas);
}

void TCustomEdit::Refazer()
{
    if (!TemMotor())
        redo();
    else if (!isReadOnly())
        Voltar(historico->Desfeitas, historico->Feitas);
}

TCustomEdit::TResposta TCustomEdit::Digitar(const TEstado &, const QString &, TOrigem)
{
    return {};
}

TCustomEdit::TResposta TCustomEdit::Apagar(const TEstado &, TApagar)
{
    return {};
}

QString TCustomEdit::TextoDaTecla(const QKeyEvent &evento) const
{
    return evento.text();
}

void TCustomEdit::TextoDeFora(const QString &) {}

bool TCustomEdit::TrocarTexto(const TEdicao &nova, bool doUsuario)
{
    if (nova.Texto == TextoExibido()) {
        setCursorPosition(nova.Cursor);
        return false;
    }
    {
        // The caret belongs where it will be before anyone hears of the new text.
        const QSignalBlocker calado(this);
        QLineEdit::setText(nova.Texto);
        setCursorPosition(nova.Cursor);
    }
    esperado = nova.Texto;
    const QPointer<TCustomEdit> vivo(this);
    if (doUsuario)
        Q_EMIT textEdited(nova.Texto);
    if (vivo)
        Q_EMIT textChanged(nova.Texto);
    return true;
}

void TCustomEdit::EsquecerEdicoes()
{
    historico->Feitas.clear();
    historico->Desfeitas.clear();
}

TCustomEdit::TEstado TCustomEdit::Estado() const
{
    TEstado estado{TextoExibido(), cursorPosition(), 0, 0};
    estado.Inicio = hasSelectedText() ? selectionStart() : estado.Cursor;
    estado.Fim = hasSelectedText() ? selectionEnd() : estado.Cursor;
    return estado;
}

void TCustomEdit::keyPressEvent(QKeyEvent *evento)
{
    if (isReadOnly()) {
        QLineEdit::keyPressEvent(evento);
        return;
    }
    if (TratarComando(evento)) {
        evento->accept();
        return;
    }
    if (EhTeclaDeTexto(*evento))
        DigitarTecla(evento);
    else
        QLineEdit::keyPressEvent(evento);
}

void TCustomEdit::inputMethodEvent(QInputMethodEvent *evento)
{
    const QString escrito = evento->commitString();
    if (isReadOnly() || escrito.isEmpty()) {
        QLineEdit::inputMethodEvent(evento);
        return;
    }
    const QString texto = NormalizarEntrada(escrito, true);
    const QString recusa = RecusaDoTexto(texto);
    const bool daqui =
        !TemMotor() && recusa.isEmpty() && (maxLength == 0 || texto.size() <= Espaco());
    QInputMethodEvent passado(evento->preeditString(), evento->attributes());
    if (daqui)
        passado.setCommitString(texto, evento->replacementStart(), evento->replacementLength());
    const QPointer<TCustomEdit> vivo(this);
    QLineEdit::inputMethodEvent(&passado);
    evento->accept();
    if (vivo && !recusa.isEmpty())
        AvisarUsuario(recusa);
    else if (vivo && daqui)
        AposDigitar();
    else if (vivo && TemMotor())
        DigitarNoMotor(texto);
}

void TCustomEdit::focusInEvent(QFocusEvent *evento)
{
    QLineEdit::focusInEvent(evento);
    const Qt::FocusReason motivo = evento->reason();
    if (motivo != Qt::TabFocusReason && motivo != Qt::BacktabFocusReason &&
        motivo != Qt::ShortcutFocusReason)
        return;
    if (autoSelect)
        selectAll();
    else
        deselect();
}

void TCustomEdit::mouseReleaseEvent(QMouseEvent *evento)
{
    if (evento->button() == Qt::MiddleButton) {
        if (!isReadOnly() && QGuiApplication::clipboard()->supportsSelection()) {
            setCursorPosition(cursorPositionAt(evento->position().toPoint()));
            Colar(QClipboard::Selection);
        }
        return;
    }
    QLineEdit::mouseReleaseEvent(evento);
    if (evento->button() == Qt::LeftButton && rect().contains(evento->pos()))
        Disparar(OnClick, this);
}

void TCustomEdit::dropEvent(QDropEvent *evento)
{
    const bool daqui = evento->source() == this;
    if (isReadOnly() || !evento->mimeData()->hasText() || (daqui && TemMotor())) {
        evento->ignore();
        return;
    }
    if (daqui) {
        QLineEdit::dropEvent(evento);
        return;
    }
    deselect();
    setCursorPosition(cursorPositionAt(evento->position().toPoint()));
    evento->acceptProposedAction();
    const QPointer<TCustomEdit> vivo(this);
    const QString recusa = InserirTexto(evento->mimeData()->text());
    // A box opened inside the drop would hold up the program that the text is dragged from.
    if (vivo && !recusa.isEmpty())
        QTimer::singleShot(0, this, [recusa] { AvisarUsuario(recusa); });
}

void TCustomEdit::contextMenuEvent(QContextMenuEvent *evento)
{
    TComandosDeEdicao c;
    c.Desfazer = [this] { Desfazer(); };
    c.Refazer = [this] { Refazer(); };
    c.Recortar = [this] { Recortar(); };
    c.Copiar = [this] { copy(); };
    c.Colar = [this] { Colar(); };
    c.Excluir = [this] { Excluir(); };
    c.SelecionarTudo = [this] { selectAll(); };
    c.PodeDesfazer = TemMotor() ? !historico->Feitas.empty() : isUndoAvailable();
    c.PodeRefazer = TemMotor() ? !historico->Desfeitas.empty() : isRedoAvailable();
    c.TemSelecao = hasSelectedText();
    c.PodeColar = !QGuiApplication::clipboard()->text().isEmpty();
    c.TemTexto = !TextoExibido().isEmpty();
    c.SomenteLeitura = isReadOnly();
    NovoMenuDeEdicao(this, c)->popup(evento->globalPos());
}

void TCustomEdit::Mudou()
{
    if (TemMotor() && TextoExibido() != esperado) {
        const QString texto = esperado = TextoExibido();
        const QPointer<TCustomEdit> vivo(this);
        TextoDeFora(texto);
        // What was brought into form was announced by itself.
        if (!vivo || esperado != texto)
            return;
    }
    Disparar(OnChange, this);
}

bool TCustomEdit::TratarComando(QKeyEvent *evento)
{
    if (evento->matches(QKeySequence::Paste)) {
        Colar();
        return true;
    }
    if (!TemMotor())
        return false;
    if (evento->matches(QKeySequence::Undo))
        Desfazer();
    else if (evento->matches(QKeySequence::Redo))
        Refazer();
    else if (evento->matches(QKeySequence::Cut))
        Recortar();
    else
        return TratarApagar(evento);
    return true;
}

bool TCustomEdit::TratarApagar(QKeyEvent *evento)
{
    TApagar modo = TApagar::Anterior;
    if (evento->matches(QKeySequence::DeleteStartOfWord))
        modo = TApagar::AteInicio;
    else if (evento->matches(QKeySequence::DeleteEndOfWord) ||
             evento->matches(QKeySequence::DeleteEndOfLine))
        modo = TApagar::AteFim;
    else if (evento->matches(QKeySequence::Delete))
        modo = TApagar::Seguinte;
    else if (evento->key() != Qt::Key_Backspace)
        return false;
    const TEstado antes = Estado();
    Aplicar(antes, Apagar(antes, antes.TemSelecao() ? TApagar::Selecao : modo));
    return true;
}

void TCustomEdit::DigitarTecla(QKeyEvent *evento)
{
    const QString texto = NormalizarEntrada(TextoDaTecla(*evento), true);
    const QString recusa = RecusaDoTexto(texto);
    if (!recusa.isEmpty()) {
        evento->accept();
        AvisarUsuario(recusa);
        return;
    }
    if (TemMotor()) {
        evento->accept();
        DigitarNoMotor(texto);
        return;
    }
    if (texto.isEmpty() || (maxLength > 0 && texto.size() > Espaco())) {
        evento->accept();
        return;
    }
    const QPointer<TCustomEdit> vivo(this);
    if (texto == evento->text())
        QLineEdit::keyPressEvent(evento);
    else
        insert(texto);
    if (vivo)
        AposDigitar();
}

void TCustomEdit::DigitarNoMotor(const QString &texto)
{
    const QPointer<TCustomEdit> vivo(this);
    for (const QChar c : texto) {
        const TEstado antes = Estado();
        TResposta resposta = Digitar(antes, QString(c), TOrigem::Teclado);
        const bool aceito = resposta.Nova.has_value();
        Aplicar(antes, std::move(resposta));
        if (vivo && aceito)
            AposDigitar();
        if (!vivo)
            return;
    }
}

/** Pastes or drops; answers why not. */
QString TCustomEdit::InserirTexto(const QString &texto)
{
    QString entrada = NormalizarEntrada(texto, true);
    QString recusa = RecusaDoTexto(entrada);
    if (recusa.isEmpty())
        recusa = PassarColagem(*this, entrada);
    if (!recusa.isEmpty() || entrada.isEmpty())
        return recusa;
    if (TemMotor()) {
        const TEstado antes = Estado();
        TResposta resposta = Digitar(antes, entrada, TOrigem::Colagem);
        QString motivo = std::exchange(resposta.Recusa, QString());
        Aplicar(antes, std::move(resposta));
        return motivo;
    }
    if (maxLength > 0)
        entrada.truncate(std::max(0, Espaco()));
    if (!entrada.isEmpty())
        insert(entrada);
    return {};
}

bool TCustomEdit::Aplicar(const TEstado &antes, TResposta resposta)
{
    const QPointer<TCustomEdit> vivo(this);
    bool mudou = false;
    if (resposta.Nova) {
        if (resposta.Nova->Texto != antes.Texto)
            historico->Guardar({antes.Texto, antes.Cursor});
        mudou = TrocarTexto(*resposta.Nova, true);
    }
    if (vivo && !resposta.Recusa.isEmpty())
        AvisarUsuario(resposta.Recusa);
    return mudou;
}

void TCustomEdit::Excluir()
{
    if (!TemMotor()) {
        del();
        return;
    }
    const TEstado antes = Estado();
    if (antes.TemSelecao())
        Aplicar(antes, Apagar(antes, TApagar::Selecao));
}

void TCustomEdit::Voltar(std::vector<TEdicao> &de, std::vector<TEdicao> &para)
{
    if (de.empty())
        return;
    const TEdicao volta = std::move(de.back());
    de.pop_back();
    para.push_back({TextoExibido(), cursorPosition()});
    TrocarTexto(volta, true);
}

/** Characters that the user may still type, the selection counting as gone. */
int TCustomEdit::Espaco() const
{
    return maxLength - int(TextoExibido().size() - selectedText().size());
}

} // namespace ficha
