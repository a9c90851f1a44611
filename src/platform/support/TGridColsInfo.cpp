#include "platform/support/TGridColsInfo.h"

#include "platform/core/Caracteres.h"
#include "platform/support/StringGridDrawCell.h"
#include "platform/toolkit/TStringGrid.h"

#include <algorithm>

namespace ficha
{

namespace
{
constexpr int PrimeirasLinhas = 64, LinhasEspalhadas = 64;
constexpr int MaiorTextoOlhado = 24; // no number or date is longer
constexpr int MaisDigitosDeNumero = 10;

/** The characters of a short text on the stack; length 0 for one too long to be asked about. */
struct TLetras {
    char16_t letra[MaiorTextoOlhado + 1] = {};
    int n = 0;

    explicit TLetras(QAnyStringView texto)
    {
        if (texto.size() > MaiorTextoOlhado)
            return;
        texto.visit([this](auto t) {
            if constexpr (!std::is_same_v<decltype(t), QUtf8StringView>) {
                for (const QChar c : t)
                    letra[n++] = c.unicode();
            } else {
                for (const QChar c : t.toString())
                    letra[n++] = c.unicode();
            }
        });
        while (n > 0 && letra[n - 1] == u' ')
            letra[--n] = 0;
    }
};

int ContarDigitos(const char16_t *p)
{
    int n = 0;
    while (EhDigito(p[n]))
        ++n;
    return n;
}

/** Skips "R$", spaces and a sign before a number. */
const char16_t *PularPrefixo(const char16_t *p)
{
    while (*p == u' ')
        ++p;
    if (p[0] == u'R' && p[1] == u'$')
        p += 2;
    while (*p == u' ')
        ++p;
    if (*p == u'-' || *p == u'+')
        ++p;
    return p;
}

/** The whole part with its groups of three; null when it is none. */
const char16_t *PularInteiro(const char16_t *p, bool &agrupado)
{
    const int n = ContarDigitos(p);
    const char16_t *fim = p + n;
    agrupado = false;
    if (n == 0 || (n > 1 && p[0] == u'0'))
        return nullptr;
    while (n <= 3 && fim[0] == u'.' && ContarDigitos(fim + 1) == 3) {
        agrupado = true;
        fim += 4;
    }
    return !agrupado && n > MaisDigitosDeNumero && *fim == 0 ? nullptr : fim;
}

/** A number of one or two digits followed by a separator; its value, or -1. */
int LerParte(const char16_t *&p, char16_t separador)
{
    const int n = ContarDigitos(p);
    if (n < 1 || n > 2 || (separador != 0 && p[n] != separador))
        return -1;
    const int valor = n == 1 ? p[0] - u'0' : (p[0] - u'0') * 10 + p[1] - u'0';
    p += separador != 0 ? n + 1 : n;
    return valor;
}

bool EhHora(const char16_t *p)
{
    const int hora = LerParte(p, u':');
    const int minuto = LerParte(p, 0);
    if (hora < 0 || hora > 23 || minuto < 0 || minuto > 59)
        return false;
    if (*p != u':')
        return *p == 0;
    const int segundo = LerParte(++p, 0);
    return segundo >= 0 && segundo <= 59 && *p == 0;
}

/** Narrows down what a column may hold by one more text. */
struct TPalpite {
    bool numero = true, data = true, algum = false;

    void Olhar(QAnyStringView texto)
    {
        if (texto.isEmpty() || EhMarcado(texto, MarcadorDaGrade()))
            return;
        algum = true;
        numero = numero && TGridColsInfo::EhNumero(texto);
        data = data && TGridColsInfo::EhData(texto);
    }
    bool Decidido() const { return !numero && !data; }
    TConteudoCol Conteudo() const
    {
        return !algum   ? TConteudoCol::Texto
               : numero ? TConteudoCol::Numero
               : data   ? TConteudoCol::Data
                        : TConteudoCol::Texto;
    }
};

TConteudoCol ConteudoDaColuna(const TStringGrid &grid, int col)
{
    TPalpite palpite;
    const int primeira = grid.GetFixedRows(), fim = grid.GetRowCount();
    const int meio = std::min(fim, primeira + PrimeirasLinhas);
    for (int r = primeira; r < meio && !palpite.Decidido(); ++r)
        palpite.Olhar(grid.CellTexto(col, r));
    const qint64 resto = fim - meio;
    for (int i = 0; i < std::min<qint64>(resto, LinhasEspalhadas) && !palpite.Decidido(); ++i)
        palpite.Olhar(grid.CellTexto(col, fim - 1 - int(i * resto / LinhasEspalhadas)));
    return palpite.Conteudo();
}
} // namespace

void TGridColsInfo::Atualizar(const TStringGrid &grid)
{
    colunas.resize(std::size_t(grid.GetColCount()));
    for (int c = 0; c < Count(); ++c)
        colunas[std::size_t(c)] = {grid.GetColWidth(c), ConteudoDaColuna(grid, c)};
}

Qt::Alignment TGridColsInfo::Alinhamento(int col) const
{
    switch (Conteudo(col)) {
    case TConteudoCol::Numero:
        return Qt::AlignRight;
    case TConteudoCol::Data:
        return Qt::AlignHCenter;
    case TConteudoCol::Texto:
        break;
    }
    return Qt::AlignLeft;
}

void TGridColsInfo::SetConteudo(int col, TConteudoCol conteudo)
{
    if (col >= 0 && col < Count())
        colunas[std::size_t(col)].conteudo = conteudo;
}

bool TGridColsInfo::EhNumero(QAnyStringView texto)
{
    const TLetras letras(texto);
    bool agrupado = false;
    const char16_t *p = PularInteiro(PularPrefixo(letras.letra), agrupado);
    if (!p)
        return false;
    if (*p == u',' || (*p == u'.' && !agrupado)) {
        const int decimais = ContarDigitos(++p);
        if (decimais == 0)
            return false;
        p += decimais;
    }
    if (p[0] == u'%' || (p[0] == u' ' && p[1] == u'%'))
        p += p[0] == u'%' ? 1 : 2;
    return *p == 0;
}

bool TGridColsInfo::EhData(QAnyStringView texto)
{
    const TLetras letras(texto);
    const char16_t *p = letras.letra;
    if (EhHora(p))
        return true;
    const int dia = LerParte(p, u'/');
    const int mes = dia < 0 ? -1 : LerParte(p, u'/');
    if (dia < 1 || dia > 31 || mes < 1 || mes > 12)
        return false;
    const int ano = ContarDigitos(p);
    if (ano != 2 && ano != 4)
        return false;
    p += ano;
    return *p == 0 || (*p == u' ' && EhHora(p + 1));
}

TGridColsInfo::TColuna TGridColsInfo::Coluna(int col) const
{
    return col >= 0 && col < Count() ? colunas[std::size_t(col)] : TColuna();
}

} // namespace ficha
