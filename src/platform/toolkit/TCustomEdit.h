#pragma once

#include "platform/core/TColor.h"

#include <QClipboard>
#include <QLineEdit>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace ficha
{

/**
 * What every single-line edit shares: the text that program and user see, a limit that binds the
 * user only, the gate for characters that the database cannot hold, and one announcement per
 * change.
 *
 * The program's text is kept whole, whatever it holds and however long it is. The user's input
 * (typed, pasted, dropped, from an input method) passes a gate: a character that ISO8859_1 cannot
 * hold is refused with one warning; a key is then ignored, a pasted or dropped text is refused
 * whole, and what stood there before stays as it was, its selection included. Typing beyond
 * maxLength is ignored; a pasted text is cut to what fits.
 *
 * Every change of the text, the program's too, emits textChanged and calls OnChange once; the
 * user's emits textEdited first. Entering by Tab selects the whole text, a click does not.
 *
 * Descendants may bring a text engine of their own (masks, numbers): then no input reaches
 * QLineEdit, which only shows the text.
 */
class TCustomEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString text READ GetText WRITE SetText USER true)
    Q_PROPERTY(int maxLength READ GetMaxLength WRITE SetMaxLength)
    Q_PROPERTY(bool autoSelect READ GetAutoSelect WRITE SetAutoSelect)
    Q_PROPERTY(int color READ GetColorInt WRITE SetColorInt)
    Q_PROPERTY(int fontColor READ GetFontColorInt WRITE SetFontColorInt)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TCustomEdit(QWidget *owner = nullptr);
    ~TCustomEdit() override;

    virtual QString GetText() const;
    /** Not limited by maxLength; the caret goes behind the text, the undo history starts anew. */
    virtual void SetText(const QString &texto);
    void Clear() { SetText(QString()); }
    /** The names of QLineEdit, with the meaning of GetText, SetText and Clear. */
    QString text() const { return GetText(); }
    void setText(const QString &texto) { SetText(texto); }
    void clear() { Clear(); }

    /** Characters that the user may type; 0 is no limit. */
    int GetMaxLength() const { return maxLength; }
    void SetMaxLength(int n);
    void setMaxLength(int n) { SetMaxLength(n); }
    /** Entering by Tab selects everything; default true. */
    bool GetAutoSelect() const { return autoSelect; }
    void SetAutoSelect(bool v) { autoSelect = v; }

    /** Background. */
    TColor GetColor() const;
    void SetColor(TColor cor);
    int GetColorInt() const { return int(GetColor().valor); }
    void SetColorInt(int cor) { SetColor(TColor(std::uint32_t(cor))); }
    TColor GetFontColor() const;
    void SetFontColor(TColor cor);
    int GetFontColorInt() const { return int(GetFontColor().valor); }
    void SetFontColorInt(int cor) { SetFontColor(TColor(std::uint32_t(cor))); }

    /** The user's commands, through the same gate as the keys. */
    void Colar(QClipboard::Mode de = QClipboard::Clipboard);
    void Recortar();
    void Desfazer();
    void Refazer();
    /** Hides QLineEdit's paste, which knows no gate. */
    void paste() { Colar(); }

    /** The text changed, by program or user. */
    std::function<void(QObject *)> OnChange;
    /** A left click ended inside the edit. */
    std::function<void(QObject *)> OnClick;

    int Tag = 0;

protected:
    /** What an engine works on: the shown text, the caret, and the selection (empty when equal). */
    struct TEstado {
        QString Texto;
        int Cursor = 0;
        int Inicio = 0;
        int Fim = 0;
        bool TemSelecao() const { return Inicio < Fim; }
        bool TudoSelecionado() const { return TemSelecao() && Fim - Inicio == Texto.size(); }
    };
    struct TEdicao {
        QString Texto;
        int Cursor = 0;
    };
    /** An engine's answer: the new content, or none when the input changes nothing, and a message
     * where the user must learn why. */
    struct TResposta {
        std::optional<TEdicao> Nova;
        QString Recusa;
    };
    enum class TOrigem { Teclado, Colagem };
    enum class TApagar { Selecao, Anterior, Seguinte, AteInicio, AteFim };

    /** Whether the class brings its own engine: Digitar and Apagar then see all input. */
    virtual bool TemMotor() const { return false; }
    /** Typed text comes character by character, pasted text whole; both passed the gate. */
    virtual TResposta Digitar(const TEstado &antes, const QString &texto, TOrigem origem);
    /** Never TApagar::Selecao without a selection; with one, no other. */
    virtual TResposta Apagar(const TEstado &antes, TApagar modo);
    /** The text that a key types. */
    virtual QString TextoDaTecla(const QKeyEvent &evento) const;
    /** After the user's typed text was taken in and announced. */
    virtual void AposDigitar() {}
    /** Someone wrote past SetText, through QLineEdit itself: bring the text into form. */
    virtual void TextoDeFora(const QString &texto);

    /** Shows a text of the engine's and announces it once; no announcement when it is shown
     * already. Answers whether it was not. */
    bool TrocarTexto(const TEdicao &nova, bool doUsuario);
    /** Forgets what could be undone: the program wrote. */
    void EsquecerEdicoes();
    TEstado Estado() const;
    QString TextoExibido() const { return QLineEdit::text(); }

    void keyPressEvent(QKeyEvent *evento) override;
    void inputMethodEvent(QInputMethodEvent *evento) override;
    void focusInEvent(QFocusEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void dropEvent(QDropEvent *evento) override;
    void contextMenuEvent(QContextMenuEvent *evento) override;

private:
    struct THistorico;

    void Mudou();
    bool TratarComando(QKeyEvent *evento);
    bool TratarApagar(QKeyEvent *evento);
    void DigitarTecla(QKeyEvent *evento);
    void DigitarNoMotor(const QString &texto);
    QString InserirTexto(const QString &texto);
    bool Aplicar(const TEstado &antes, TResposta resposta);
    void Excluir();
    void Voltar(std::vector<TEdicao> &de, std::vector<TEdicao> &para);
    int Espaco() const;

    std::unique_ptr<THistorico> historico;
    QString esperado; /**< what the engine last showed */
    int maxLength = 0;
    bool autoSelect = true;
};

} // namespace ficha
