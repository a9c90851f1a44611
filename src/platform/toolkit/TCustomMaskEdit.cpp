#include "platform/toolkit/TCustomMaskEdit.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace ficha
{

namespace
{

/** QLineEdit's own margin, left and right, which a tight text may use. */
constexpr int Margem = 2;
/** Closer than this the digits would touch. */
constexpr double MaiorAperto = -0.6;

} // namespace

TCustomMaskEdit::TCustomMaskEdit(QWidget *owner) : TCustomEdit(owner)
{
    connect(this, &QLineEdit::textChanged, this, &TCustomMaskEdit::Apertar);
}

QString TCustomMaskEdit::GetText() const
{
    const QString exibido = TextoExibido();
    return IsMasked() && mascara.Conforme(exibido) ? mascara.Texto(exibido) : exibido;
}

void TCustomMaskEdit::SetText(const QString &texto)
{
    if (!IsMasked()) {
        TCustomEdit::SetText(texto);
        return;
    }
    EsquecerEdicoes();
    const std::optional<QString> exibido = mascara.Encaixar(texto);
    const int cursor = exibido ? mascara.FimDoPreenchido(*exibido) : int(texto.size());
    TrocarTexto({exibido.value_or(texto), cursor}, false);
}

void TCustomMaskEdit::SetEditMask(const QString &nova)
{
    if (nova == editMask)
        return;
    const QString texto = GetText();
    editMask = nova;
    mascara = TMascara(nova);
    SetText(texto);
}

bool TCustomMaskEdit::IsEmpty() const
{
    return GetText().isEmpty();
}

bool TCustomMaskEdit::IsComplete() const
{
    return !IsMasked() || mascara.Completo(TextoExibido());
}

TCustomEdit::TResposta TCustomMaskEdit::Digitar(const TEstado &antes, const QString &texto,
                                                TOrigem origem)
{
    TEdicao edicao{antes.Texto, antes.Cursor};
    if (antes.TudoSelecionado()) {
        edicao = {mascara.Molde(), 0};
    } else if (!mascara.Conforme(antes.Texto)) {
        return {};
    } else if (antes.TemSelecao()) {
        Esvaziar(edicao, antes.Inicio, antes.Fim);
    }
    if (origem == TOrigem::Teclado)
        return DigitarUm(edicao, texto.at(0)) ? TResposta{edicao, {}} : TResposta{};
    if (ColarEm(edicao, texto))
        return {edicao, {}};
    return {std::nullopt,
            QStringLiteral("O texto \"%1\" não cabe na máscara deste campo e não foi colado.")
                .arg(texto)};
}

TCustomEdit::TResposta TCustomMaskEdit::Apagar(const TEstado &antes, TApagar modo)
{
    if (!mascara.Conforme(antes.Texto))
        return Livre(antes, modo);
    TEdicao edicao{antes.Texto, antes.Cursor};
    int inicio = antes.Inicio;
    int fim = antes.Fim;
    if (modo == TApagar::Anterior) {
        inicio = mascara.Anterior(antes.Cursor);
        fim = inicio + 1;
    } else if (modo == TApagar::Seguinte) {
        inicio = mascara.Proximo(antes.Cursor);
        fim = inicio + 1;
    } else if (modo == TApagar::AteInicio) {
        inicio = 0;
        fim = antes.Cursor;
    } else if (modo == TApagar::AteFim) {
        fim = int(antes.Texto.size());
    }
    if (inicio < 0 || inicio >= antes.Texto.size())
        return {};
    Esvaziar(edicao, inicio, fim);
    return {edicao, {}};
}

void TCustomMaskEdit::TextoDeFora(const QString &texto)
{
    if (!mascara.Conforme(texto))
        SetText(texto);
}

void TCustomMaskEdit::keyPressEvent(QKeyEvent *evento)
{
    const bool puro = !(evento->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier));
    if (IsMasked() && puro && evento->key() == Qt::Key_Home)
        setCursorPosition(mascara.Proximo(0));
    else if (IsMasked() && puro && evento->key() == Qt::Key_End)
        setCursorPosition(mascara.FimDoPreenchido(TextoExibido()));
    else
        TCustomEdit::keyPressEvent(evento);
}

void TCustomMaskEdit::focusInEvent(QFocusEvent *evento)
{
    TCustomEdit::focusInEvent(evento);
    const Qt::FocusReason motivo = evento->reason();
    const bool voltou = motivo == Qt::ActiveWindowFocusReason || motivo == Qt::PopupFocusReason;
    if (!IsMasked() || voltou || motivo == Qt::MouseFocusReason || hasSelectedText())
        return;
    // Behind the last filled place no key would do anything: what is full is typed over from its
    // beginning. A text with more than the mask's places is not, its rest would stay.
    const int vazio = mascara.PrimeiroVazio(TextoExibido());
    setCursorPosition(vazio == mascara.Tamanho() ? mascara.Proximo(0) : vazio);
}

void TCustomMaskEdit::mouseReleaseEvent(QMouseEvent *evento)
{
    TCustomEdit::mouseReleaseEvent(evento);
    // Where nothing is filled in yet, a click anywhere means the beginning.
    if (IsMasked() && !hasSelectedText() && mascara.TudoVazio(TextoExibido()))
        setCursorPosition(mascara.Proximo(0));
}

void TCustomMaskEdit::resizeEvent(QResizeEvent *evento)
{
    TCustomEdit::resizeEvent(evento);
    Apertar();
}

/** Makes a text with more characters than the mask fit an edit that was made for the mask. */
void TCustomMaskEdit::Apertar()
{
    const QString exibido = TextoExibido();
    double aperto = 0;
    if (IsMasked() && exibido.size() > mascara.Tamanho()) {
        QFont folgada = font();
        folgada.setLetterSpacing(QFont::AbsoluteSpacing, 0);
        const int moldura = 2 * (hasFrame() ? 1 : 0);
        const int falta =
            QFontMetrics(folgada).horizontalAdvance(exibido) + 1 - (width() - moldura);
        aperto = std::max(MaiorAperto, std::min(0.0, -double(falta) / double(exibido.size())));
        setTextMargins(falta > -2 * Margem ? QMargins(-Margem, 0, -Margem, 0) : QMargins());
    } else if (!textMargins().isNull()) {
        setTextMargins(QMargins());
    }
    if (font().letterSpacing() != aperto) {
        QFont justa = font();
        justa.setLetterSpacing(QFont::AbsoluteSpacing, aperto);
        setFont(justa);
    }
}

/** Empties the places of a range and takes out what stands behind the pattern; the caret goes to
 * the range's beginning. */
void TCustomMaskEdit::Esvaziar(TEdicao &edicao, int inicio, int fim) const
{
    if (fim > mascara.Tamanho()) {
        const int sobra = std::max(inicio, mascara.Tamanho());
        edicao.Texto.remove(sobra, fim - sobra);
    }
    for (int i = inicio; i < std::min(fim, mascara.Tamanho()); ++i) {
        if (mascara.EhLugar(i))
            edicao.Texto[i] = mascara.Branco();
    }
    edicao.Cursor = inicio;
}

/** Types one character; false when the mask refuses it at the caret. */
bool TCustomMaskEdit::DigitarUm(TEdicao &edicao, QChar c) const
{
    const int lugar = mascara.Proximo(edicao.Cursor);
    const auto aceito = lugar < edicao.Texto.size() ? mascara.Aceita(lugar, c) : std::nullopt;
    if (aceito) {
        edicao.Texto[lugar] = *aceito;
        edicao.Cursor = lugar + 1;
        const int seguinte = mascara.Proximo(lugar + 1);
        if (seguinte < edicao.Texto.size())
            edicao.Cursor = seguinte;
        return true;
    }
    // A separator typed by hand: go behind the next one, or stay where it was just passed.
    for (int i = edicao.Cursor; i < mascara.Tamanho(); ++i) {
        if (!mascara.EhLugar(i) && mascara.Literal(i) == c) {
            const bool recemPassado = edicao.Cursor > 0 && mascara.Literal(edicao.Cursor - 1) == c;
            if (!recemPassado)
                edicao.Cursor = i + 1;
            return true;
        }
    }
    return false;
}

/** Pastes from the caret on; false when something does not fit, the rest included. */
bool TCustomMaskEdit::ColarEm(TEdicao &edicao, const QString &texto) const
{
    if (edicao.Cursor <= mascara.Proximo(0) || mascara.TudoVazio(edicao.Texto)) {
        const auto inteiro = mascara.Encaixar(texto);
        if (inteiro && inteiro->size() == mascara.Tamanho() && mascara.TudoVazio(edicao.Texto)) {
            edicao = {*inteiro, mascara.FimDoPreenchido(*inteiro)};
            return true;
        }
    }
    for (const QChar c : texto.trimmed()) {
        const int lugar = mascara.Proximo(edicao.Cursor);
        const auto aceito = lugar < edicao.Texto.size() ? mascara.Aceita(lugar, c) : std::nullopt;
        if (aceito) {
            edicao.Texto[lugar] = *aceito;
            edicao.Cursor = lugar + 1;
        } else if (!mascara.EhLiteral(c) && c != u' ' && c != mascara.Branco()) {
            return false;
        }
    }
    return true;
}

/** Deleting from a text that the mask could not show: plain deleting, until the mask can. */
TCustomEdit::TResposta TCustomMaskEdit::Livre(const TEstado &antes, TApagar modo) const
{
    int inicio = antes.Inicio;
    int fim = antes.Fim;
    if (modo == TApagar::Anterior)
        inicio = std::max(0, antes.Cursor - 1);
    else if (modo == TApagar::Seguinte)
        fim = std::min(int(antes.Texto.size()), antes.Cursor + 1);
    else if (modo == TApagar::AteInicio)
        inicio = 0;
    else if (modo == TApagar::AteFim)
        fim = int(antes.Texto.size());
    if (inicio >= fim)
        return {};
    QString resto = antes.Texto;
    resto.remove(inicio, fim - inicio);
    const auto encaixado = mascara.Encaixar(resto);
    if (encaixado && encaixado->size() == mascara.Tamanho())
        return {TEdicao{*encaixado, mascara.FimDoPreenchido(*encaixado)}, {}};
    return {TEdicao{resto, inicio}, {}};
}

} // namespace ficha
