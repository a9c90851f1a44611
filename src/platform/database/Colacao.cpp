#include "platform/database/Colacao.h"

#include <QCollator>

#include <algorithm>
#include <array>
#include <compare>
#include <map>
#include <numeric>

namespace ficha
{

namespace
{

constexpr int Latinos = 256;
constexpr unsigned char Separador = 1, PrimeiroPeso = 2;

const QCollator &Colador(bool semCaixa)
{
    static const auto novo = [](Qt::CaseSensitivity caixa) {
        QCollator c(QLocale(QLocale::Portuguese, QLocale::Brazil));
        c.setCaseSensitivity(caixa);
        return c;
    };
    static const QCollator com = novo(Qt::CaseSensitive), sem = novo(Qt::CaseInsensitive);
    return semCaixa ? sem : com;
}

/** A character taken apart: the letter without its mark, small. */
char16_t Base(char16_t c)
{
    const QChar qc(c);
    const auto tipo = qc.decompositionTag();
    const bool separavel = tipo == QChar::Canonical || tipo == QChar::Super;
    const QString partes = separavel ? qc.decomposition() : QString(qc);
    return partes.isEmpty() ? c : partes.at(0).toLower().unicode();
}

/** Characters whose order is told by one weight on each of the three levels. */
bool UmPesoPorNivel(char16_t c)
{
    if (c < 0x20 || (c > 0x7E && c < 0xA1))
        return false;
    // Marks that stand alone, what is ignored, fractions, and letters that expand into two or are
    // no variants of another.
    static constexpr std::u16string_view fora =
        u"\u00A8\u00AD\u00AF\u00B4\u00B8\u00BC\u00BD\u00BE"
        u"\u00C6\u00D0\u00D8\u00DE\u00DF\u00E6\u00F0\u00F8\u00FE";
    return fora.find(c) == std::u16string_view::npos;
}

/** The weights of the Latin-1 characters on the three levels, found once by asking the collator. */
struct TPesos {
    std::array<unsigned char, Latinos> letra{}, acento{}, caixa{};
    std::array<char16_t, Latinos> dobrada{};

    TPesos()
    {
        std::map<char16_t, std::vector<char16_t>> familias;
        for (char16_t c = 0; c < Latinos; ++c) {
            dobrada[c] = Base(c);
            if (UmPesoPorNivel(c))
                familias[Base(c)].push_back(c);
        }
        PesarLetras(familias);
        for (auto &[base, membros] : familias)
            PesarVariantes(membros);
    }

private:
    static bool Antes(bool semCaixa, char16_t a, char16_t b)
    {
        return Colador(semCaixa).compare(QString(QChar(a)), QString(QChar(b))) < 0;
    }

    void PesarLetras(const std::map<char16_t, std::vector<char16_t>> &familias)
    {
        std::vector<char16_t> bases;
        bases.reserve(familias.size());
        for (const auto &[base, membros] : familias)
            bases.push_back(base);
        std::sort(bases.begin(), bases.end(),
                  [](char16_t a, char16_t b) { return Antes(false, a, b); });
        unsigned char peso = PrimeiroPeso;
        for (const char16_t base : bases) {
            for (const char16_t c : familias.at(base))
                letra[c] = peso;
            ++peso;
        }
    }

    /** The members of one family: accents part them first, then the case. */
    void PesarVariantes(std::vector<char16_t> &membros)
    {
        std::sort(membros.begin(), membros.end(),
                  [](char16_t a, char16_t b) { return Antes(false, a, b); });
        unsigned char nivel2 = PrimeiroPeso, nivel3 = PrimeiroPeso;
        for (size_t i = 0; i < membros.size(); ++i) {
            if (i > 0 && Antes(true, membros[i - 1], membros[i])) {
                nivel2 = PesoDoAcento(membros[i]);
                nivel3 = PrimeiroPeso;
            }
            acento[membros[i]] = nivel2;
            caixa[membros[i]] = nivel3++;
        }
    }

    /** Of the same mark on every letter the same weight. */
    static unsigned char PesoDoAcento(char16_t c)
    {
        static constexpr std::array<char16_t, 8> marcas = {0x301, 0x300, 0x306, 0x302,
                                                           0x30A, 0x308, 0x303, 0x327};
        const QString partes = QChar(c).decomposition();
        const auto i = std::find(marcas.begin(), marcas.end(), partes.back().unicode());
        return static_cast<unsigned char>(PrimeiroPeso + 1 + (i - marcas.begin()));
    }
};

const TPesos &Pesos()
{
    static const TPesos pesos;
    return pesos;
}

using TTabela = std::array<unsigned char, Latinos>;

/** One level of a key: weights, those of plain letters at the end left out. */
template <typename TTexto>
void AcrescentarNivel(const TTexto &texto, const TTabela &tabela, std::vector<unsigned char> &saida)
{
    saida.push_back(Separador);
    qsizetype n = texto.size();
    while (n > 0 && tabela[QChar(texto[n - 1]).unicode()] == PrimeiroPeso)
        --n;
    const size_t antes = saida.size();
    saida.resize(antes + size_t(n));
    for (qsizetype i = 0; i < n; ++i)
        saida[antes + size_t(i)] = tabela[QChar(texto[i]).unicode()];
}

template <typename TTexto>
bool ChaveDe(const TTexto &texto, bool semCaixa, std::vector<unsigned char> &saida)
{
    const TPesos &pesos = Pesos();
    const size_t antes = saida.size();
    const auto n = size_t(texto.size());
    saida.resize(antes + n);
    for (size_t i = 0; i < n; ++i) {
        const char16_t c = QChar(texto[qsizetype(i)]).unicode();
        const unsigned char peso = c < Latinos ? pesos.letra[c] : 0;
        if (peso == 0) {
            saida.resize(antes);
            return false;
        }
        saida[antes + i] = peso;
    }
    AcrescentarNivel(texto, pesos.acento, saida);
    if (!semCaixa)
        AcrescentarNivel(texto, pesos.caixa, saida);
    return true;
}

char16_t Dobrado(char16_t c)
{
    return c < Latinos ? Pesos().dobrada[c] : Base(c);
}

/** The same with the table at hand, for loops over many letters. */
char16_t Dobrado(QChar c, const std::array<char16_t, Latinos> &tabela)
{
    return c.unicode() < Latinos ? tabela[c.unicode()] : Base(c.unicode());
}

template <typename TTexto>
bool AchaAte(const TTexto &texto, QStringView dobrado, qsizetype ultimo)
{
    if (dobrado.isEmpty())
        return true;
    const auto &tabela = Pesos().dobrada;
    const auto seguem = [&](qsizetype onde) {
        qsizetype i = 1;
        while (i < dobrado.size() && Dobrado(QChar(texto[onde + i]), tabela) == dobrado[i])
            ++i;
        return i == dobrado.size();
    };
    ultimo = std::min(ultimo, texto.size() - dobrado.size());
    for (qsizetype onde = 0; onde <= ultimo; ++onde) {
        if (Dobrado(QChar(texto[onde]), tabela) == dobrado[0] && seguem(onde))
            return true;
    }
    return false;
}

bool Acha(QAnyStringView texto, QStringView dobrado, qsizetype ultimo)
{
    return texto.visit([&](auto t) {
        if constexpr (std::is_same_v<decltype(t), QUtf8StringView>)
            return AchaAte(t.toString(), dobrado, ultimo);
        else
            return AchaAte(t, dobrado, ultimo);
    });
}

} // namespace

bool TColacao::AcrescentarChave(QAnyStringView texto, bool semCaixa,
                                std::vector<unsigned char> &saida)
{
    return texto.visit([&](auto t) {
        if constexpr (std::is_same_v<decltype(t), QUtf8StringView>)
            return ChaveDe(t.toString(), semCaixa, saida);
        else
            return ChaveDe(t, semCaixa, saida);
    });
}

int TColacao::Comparar(QAnyStringView a, QAnyStringView b, bool semCaixa)
{
    std::vector<unsigned char> ca, cb;
    if (!AcrescentarChave(a, semCaixa, ca) || !AcrescentarChave(b, semCaixa, cb))
        return Colador(semCaixa).compare(a.toString(), b.toString());
    const auto ordem =
        std::lexicographical_compare_three_way(ca.begin(), ca.end(), cb.begin(), cb.end());
    return std::is_lt(ordem) ? -1 : std::is_gt(ordem) ? 1 : 0;
}

std::vector<quint32> TColacao::Postos(const std::vector<QString> &textos, bool semCaixa)
{
    std::vector<QCollatorSortKey> chaves;
    chaves.reserve(textos.size());
    for (const QString &texto : textos)
        chaves.push_back(Colador(semCaixa).sortKey(texto));
    std::vector<quint32> ordem(textos.size()), postos(textos.size());
    std::iota(ordem.begin(), ordem.end(), 0u);
    std::sort(ordem.begin(), ordem.end(),
              [&](quint32 a, quint32 b) { return chaves[a].compare(chaves[b]) < 0; });
    for (size_t i = 1; i < ordem.size(); ++i) {
        const bool outro = chaves[ordem[i - 1]].compare(chaves[ordem[i]]) != 0;
        postos[ordem[i]] = postos[ordem[i - 1]] + (outro ? 1 : 0);
    }
    return postos;
}

QString TColacao::Dobrar(QAnyStringView texto)
{
    QString dobrado = texto.toString();
    for (QChar &c : dobrado)
        c = QChar(Dobrado(c.unicode()));
    return dobrado;
}

bool TColacao::ComecaCom(QAnyStringView texto, QStringView dobrado)
{
    return Acha(texto, dobrado, 0);
}

bool TColacao::Contem(QAnyStringView texto, QStringView dobrado)
{
    return Acha(texto, dobrado, texto.size());
}

} // namespace ficha
