#include "platform/support/Textos.h"

#include <algorithm>

namespace ficha
{

namespace
{

/** The letter under all its marks; the character itself when it carries none. */
QChar LetraBase(QChar c)
{
    while (c.decompositionTag() == QChar::Canonical) {
        const QString partes = c.decomposition();
        if (partes.isEmpty() || !partes[0].isLetter())
            break;
        c = partes[0];
    }
    return c;
}

} // namespace

QString SoDig(const QString &texto)
{
    QString digitos;
    digitos.reserve(texto.size());
    for (const QChar c : texto) {
        if (EhDigito(c))
            digitos += c;
    }
    return digitos;
}

bool EhSoDig(const QString &texto)
{
    return !texto.isEmpty() && std::all_of(texto.begin(), texto.end(), EhDigito);
}

QString StrToIntStr(const QString &texto)
{
    QString digitos;
    bool negativo = false;
    bool viuDigito = false;
    for (const QChar c : texto) {
        if (c == u',')
            break;
        if (EhDigito(c)) {
            viuDigito = true;
            if (c != u'0' || !digitos.isEmpty())
                digitos += c;
        } else if (c == u'-' && !viuDigito) {
            negativo = true;
        }
    }
    if (digitos.isEmpty())
        return QStringLiteral("0");
    return negativo ? u'-' + digitos : digitos;
}

QString IntToStrZero(qint64 n, int tam)
{
    const QString digitos = QString::number(n).mid(n < 0 ? 1 : 0);
    const QString sinal = n < 0 ? QStringLiteral("-") : QString();
    return sinal + digitos.rightJustified(std::max<qsizetype>(0, tam - sinal.size()), u'0');
}

QChar CharSemAcento(QChar c, const QString &excecoes, bool minusculas, bool maiusculas)
{
    constexpr char16_t PrimeiraAcentuada = 0xC0;
    if (c.unicode() < PrimeiraAcentuada || !c.isLetter() || excecoes.contains(c))
        return c;
    if (c.isUpper() ? !maiusculas : !minusculas)
        return c;
    const QChar base = LetraBase(c);
    return base.unicode() < 0x80 ? base : c;
}

QString TextoSemAcentos(QString texto)
{
    for (QChar &c : texto)
        c = CharSemAcento(c);
    return texto;
}

QString CEPComMasc(const QString &cep)
{
    constexpr int AntesDoHifen = 5;
    constexpr int Tamanho = 8;
    QString digitos = SoDig(cep).left(Tamanho);
    if (digitos.size() <= AntesDoHifen)
        return digitos;
    return digitos.left(AntesDoHifen) + u'-' + digitos.mid(AntesDoHifen);
}

QString QuotedStr(const QString &texto)
{
    QString literal;
    literal.reserve(texto.size() + 2);
    literal += u'\'';
    for (const QChar c : texto) {
        literal += c;
        if (c == u'\'')
            literal += c;
    }
    literal += u'\'';
    return literal;
}

} // namespace ficha
