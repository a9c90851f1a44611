#include "platform/toolkit/TMascara.h"

#include <QStringList>

#include <algorithm>

namespace ficha
{

namespace
{

/** Splits at the semicolons that no backslash precedes. */
QStringList Campos(const QString &texto)
{
    QStringList campos(QString{});
    for (int i = 0; i < texto.size(); ++i) {
        if (texto.at(i) == u'\\' && i + 1 < texto.size()) {
            campos.last() += texto.mid(i, 2);
            ++i;
        } else if (texto.at(i) == u';') {
            campos.append(QString());
        } else {
            campos.last() += texto.at(i);
        }
    }
    return campos;
}

bool AceitaNoTipo(char tipo, QChar c)
{
    switch (tipo) {
    case '0':
    case '9':
        return c >= u'0' && c <= u'9';
    case '#':
        return (c >= u'0' && c <= u'9') || c == u'+' || c == u'-';
    case 'L':
    case 'l':
        return c.isLetter();
    case 'A':
    case 'a':
        return c.isLetter() || (c >= u'0' && c <= u'9');
    default:
        return c.isPrint();
    }
}

} // namespace

TMascara::TMascara(const QString &texto)
{
    const QStringList campos = Campos(texto);
    guardaLiterais = campos.size() < 2 || campos.at(1) != QLatin1String("0");
    if (campos.size() > 2 && !campos.at(2).isEmpty())
        branco = campos.at(2).at(0);
    LerPadrao(campos.at(0));
    for (int i = 0; i < Tamanho(); ++i) {
        const TPosicao &p = posicoes[std::size_t(i)];
        molde += p.Tipo ? branco : p.Literal;
        if (p.Tipo)
            ultimoLugar = i;
    }
}

std::optional<QString> TMascara::Encaixar(const QString &texto) const
{
    const QString nu = texto.trimmed();
    if (nu.isEmpty() || nu == molde)
        return molde;
    auto a = Casar(texto, guardaLiterais);
    if (a && a->size() == Tamanho())
        return a;
    auto b = Casar(texto, !guardaLiterais);
    if (b && b->size() == Tamanho())
        return b;
    return a ? a : b;
}

bool TMascara::Conforme(const QString &exibido) const
{
    if (exibido.size() < Tamanho())
        return false;
    for (int i = 0; i < exibido.size(); ++i) {
        const QChar c = exibido.at(i);
        if (!EhLugar(i) ? c != Literal(i) : (c != branco && !Aceita(i, c)))
            return false;
    }
    return true;
}

QString TMascara::Texto(const QString &exibido) const
{
    if (TudoVazio(exibido))
        return {};
    QString texto;
    for (int i = 0; i < exibido.size(); ++i) {
        if (EhLugar(i))
            texto += exibido.at(i) == branco ? QChar(u' ') : exibido.at(i);
        else if (guardaLiterais)
            texto += exibido.at(i);
    }
    while (!guardaLiterais && !daDireita && texto.endsWith(u' '))
        texto.chop(1);
    while (!guardaLiterais && daDireita && texto.startsWith(u' '))
        texto.remove(0, 1);
    return texto;
}

bool TMascara::EhLugar(int i) const
{
    return i >= 0 && (i < Tamanho() ? posicoes[std::size_t(i)].Tipo != 0 : ultimoLugar >= 0);
}

QChar TMascara::Literal(int i) const
{
    return i >= 0 && i < Tamanho() ? posicoes[std::size_t(i)].Literal : QChar();
}

bool TMascara::EhLiteral(QChar c) const
{
    return std::any_of(posicoes.begin(), posicoes.end(),
                       [c](const TPosicao &p) { return !p.Tipo && p.Literal == c; });
}

int TMascara::Proximo(int i) const
{
    i = std::max(0, i);
    while (i < Tamanho() && !EhLugar(i))
        ++i;
    return i;
}

int TMascara::Anterior(int i) const
{
    --i;
    while (i >= 0 && !EhLugar(i))
        --i;
    return i;
}

std::optional<QChar> TMascara::Aceita(int i, QChar c) const
{
    if (!EhLugar(i))
        return std::nullopt;
    const TPosicao &lugar = Lugar(i);
    if (!AceitaNoTipo(lugar.Tipo, c))
        return std::nullopt;
    switch (lugar.Caixa) {
    case TCaixa::Maiuscula:
        return c.toUpper();
    case TCaixa::Minuscula:
        return c.toLower();
    default:
        return c;
    }
}

int TMascara::PrimeiroVazio(const QString &exibido) const
{
    for (int i = 0; i < exibido.size(); ++i) {
        if (VazioEm(exibido, i))
            return i;
    }
    return int(exibido.size());
}

int TMascara::FimDoPreenchido(const QString &exibido) const
{
    for (int i = int(exibido.size()) - 1; i >= 0; --i) {
        if (EhLugar(i) && !VazioEm(exibido, i))
            return i + 1;
    }
    return Proximo(0);
}

bool TMascara::TudoVazio(const QString &exibido) const
{
    for (int i = 0; i < exibido.size(); ++i) {
        if (EhLugar(i) && !VazioEm(exibido, i))
            return false;
    }
    return true;
}

bool TMascara::TudoPreenchido(const QString &exibido) const
{
    return PrimeiroVazio(exibido) == exibido.size();
}

bool TMascara::Completo(const QString &exibido) const
{
    for (int i = 0; i < Tamanho() && i < exibido.size(); ++i) {
        const char tipo = posicoes[std::size_t(i)].Tipo;
        const bool obrigatorio = tipo == '0' || tipo == 'L' || tipo == 'A' || tipo == 'C';
        if (obrigatorio && VazioEm(exibido, i))
            return false;
    }
    return true;
}

/** What stands behind the pattern is of the kind of its last place. */
const TMascara::TPosicao &TMascara::Lugar(int i) const
{
    return posicoes[std::size_t(i < Tamanho() ? i : ultimoLugar)];
}

void TMascara::LerPadrao(QStringView padrao)
{
    static constexpr QStringView Tipos = u"09#LlAaCc";
    TCaixa caixa = TCaixa::Livre;
    for (qsizetype i = 0; i < padrao.size(); ++i) {
        QChar c = padrao.at(i);
        if (c == u'!') {
            daDireita = true;
        } else if (c == u'<' && i + 1 < padrao.size() && padrao.at(i + 1) == u'>') {
            caixa = TCaixa::Livre;
            ++i;
        } else if (c == u'>' || c == u'<') {
            caixa = c == u'>' ? TCaixa::Maiuscula : TCaixa::Minuscula;
        } else if (Tipos.contains(c)) {
            posicoes.push_back({char(c.toLatin1()), QChar(), caixa});
        } else {
            if (c == u'\\' && i + 1 < padrao.size())
                c = padrao.at(++i);
            posicoes.push_back({0, c, caixa});
        }
    }
}

bool TMascara::VazioEm(const QString &exibido, int i) const
{
    return i < Tamanho() && EhLugar(i) && exibido.at(i) == branco;
}

/** The literal that ends the group of places i is in: "1/2/03" for 99/99/99. */
bool TMascara::LiteralLogoDepois(int i, QChar c) const
{
    while (i < Tamanho() && EhLugar(i))
        ++i;
    return i < Tamanho() && Literal(i) == c;
}

std::optional<QString> TMascara::Casar(const QString &texto, bool comLiterais) const
{
    QString exibido = molde;
    int j = 0;
    for (int i = 0; i < Tamanho() && j < texto.size(); ++i) {
        const QChar c = texto.at(j);
        if (!EhLugar(i)) {
            if (comLiterais && c != Literal(i))
                return std::nullopt;
            j += comLiterais ? 1 : 0;
            continue;
        }
        if (c == branco || (c == u' ' && !Aceita(i, c))) {
            ++j;
        } else if (const auto aceito = Aceita(i, c)) {
            exibido[i] = *aceito;
            ++j;
        } else if (!comLiterais || !LiteralLogoDepois(i, c)) {
            return std::nullopt;
        }
    }
    if (!Sobra(QStringView(texto).mid(j), exibido))
        return std::nullopt;
    return exibido;
}

/** Puts what the pattern has no room for behind it; a blank there is nothing. */
bool TMascara::Sobra(QStringView resto, QString &exibido) const
{
    for (const QChar c : resto.trimmed()) {
        const auto aceito = Aceita(Tamanho(), c);
        if (!aceito)
            return false;
        exibido += *aceito;
    }
    return true;
}

} // namespace ficha
