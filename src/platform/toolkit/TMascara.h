#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace ficha
{

/**
 * An edit mask, "mask;literals;blank": the pattern, 0 when the literals are not part of the text
 * (1, and when left out, that they are), and the character that shows an empty place (left out:
 * "_").
 *
 * In the pattern: 0 a required digit, 9 an optional one, # an optional digit or sign, L/l a
 * required/optional letter, A/a letter or digit, C/c any character; > turns what follows to
 * capitals, < to small letters, <> ends both; \ makes the next character a literal; ! makes
 * the text drop its leading instead of its trailing empty places; everything else, / and :
 * included, is a literal.
 *
 * A shown text has one character for each position of the pattern, literals in their places, and
 * behind them whatever the program wrote that the pattern has no room for.
 */
class TMascara
{
public:
    TMascara() = default;
    explicit TMascara(const QString &texto);

    bool Vazia() const { return posicoes.empty(); }
    int Tamanho() const { return int(posicoes.size()); }
    bool GuardaLiterais() const { return guardaLiterais; }
    QChar Branco() const { return branco; }

    /** What an empty edit shows. */
    const QString &Molde() const { return molde; }
    /** How a text, with or without its literals, is shown; none where it does not fit the kinds
     * of the places. A text that is too long has its rest behind the pattern. */
    std::optional<QString> Encaixar(const QString &texto) const;
    /** Whether a text is one that the mask could show. */
    bool Conforme(const QString &exibido) const;
    /** The text behind a shown one, by the literal rule: empty when every place is, else with a
     * blank for each empty place; without the literals the blanks at the end are dropped. */
    QString Texto(const QString &exibido) const;

    /** A place for the user, in the pattern or behind it; not a literal. */
    bool EhLugar(int i) const;
    QChar Literal(int i) const;
    bool EhLiteral(QChar c) const;
    /** The next place from i on; the size of the pattern when there is none. */
    int Proximo(int i) const;
    /** The last place before i; -1 when there is none. */
    int Anterior(int i) const;
    /** What a typed character becomes in a place, none when it is refused there. */
    std::optional<QChar> Aceita(int i, QChar c) const;

    /** The first empty place of a shown text; its length when all are filled. */
    int PrimeiroVazio(const QString &exibido) const;
    /** Behind the last filled place; the first place when all are empty. */
    int FimDoPreenchido(const QString &exibido) const;
    bool TudoVazio(const QString &exibido) const;
    /** Every place is filled, the optional ones too. */
    bool TudoPreenchido(const QString &exibido) const;
    /** Every required place is filled. */
    bool Completo(const QString &exibido) const;

private:
    enum class TCaixa { Livre, Maiuscula, Minuscula };
    struct TPosicao {
        char Tipo = 0; /**< one of 09#LlAaCc; 0 is a literal */
        QChar Literal;
        TCaixa Caixa = TCaixa::Livre;
    };
    const TPosicao &Lugar(int i) const;
    void LerPadrao(QStringView padrao);
    bool VazioEm(const QString &exibido, int i) const;
    bool LiteralLogoDepois(int i, QChar c) const;
    std::optional<QString> Casar(const QString &texto, bool comLiterais) const;
    bool Sobra(QStringView resto, QString &exibido) const;

    std::vector<TPosicao> posicoes;
    QString molde;
    QChar branco = u'_';
    int ultimoLugar = -1;
    bool guardaLiterais = true;
    bool daDireita = false;
};

} // namespace ficha
