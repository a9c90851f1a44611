#include "platform/database/OrdemDeLinhas.h"

#include "platform/database/Colacao.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace ficha
{

namespace
{

using TBytes = std::vector<unsigned char>;
constexpr unsigned char Nulo = 1, Presente = 2, FimDoTexto = 0;

void AcrescentarInteiro(TBytes &saida, quint64 valor, int bytes)
{
    for (int i = bytes - 1; i >= 0; --i)
        saida.push_back(static_cast<unsigned char>(valor >> (8 * i)));
}

/** The bits of a number so that they compare as unsigned ones; what is no number comes first. */
quint64 BitsOrdenados(double valor)
{
    if (valor != valor)
        return 0;
    const auto bits = std::bit_cast<quint64>(valor == 0 ? 0.0 : valor);
    constexpr quint64 sinal = quint64(1) << 63;
    return bits & sinal ? ~bits : bits | sinal;
}

/** The first sixteen bytes of a key as numbers, by which most pairs are told apart. */
using TComeco = std::pair<quint64, quint64>;

/** The keys of all rows one behind the other, and where each begins. */
class TChaves
{
public:
    TChaves(const TLinhasEmMemoria &lidas, const std::vector<int> &quais, const TCriterio &por)
        : linhas(lidas), slots(quais), criterio(por), postos(por.colunas.size())
    {
        while (!Fazer()) {
            // A column was found that has to be ranked first.
        }
    }

    TComeco Comeco(size_t i) const
    {
        unsigned char bytesDoComeco[16] = {};
        std::memcpy(bytesDoComeco, bytes.data() + inicios[i], std::min<size_t>(16, Tamanho(i)));
        return {qFromBigEndian<quint64>(bytesDoComeco), qFromBigEndian<quint64>(bytesDoComeco + 8)};
    }
    int Comparar(size_t a, size_t b) const
    {
        const size_t na = Tamanho(a), nb = Tamanho(b);
        const int r =
            std::memcmp(bytes.data() + inicios[a], bytes.data() + inicios[b], std::min(na, nb));
        return r != 0 ? r : na < nb ? -1 : na > nb ? 1 : 0;
    }

private:
    size_t Tamanho(size_t i) const { return inicios[i + 1] - inicios[i]; }

    bool Fazer()
    {
        bytes.clear();
        inicios.clear();
        inicios.reserve(slots.size() + 1);
        for (size_t i = 0; i < slots.size(); ++i) {
            inicios.push_back(bytes.size());
            for (size_t c = 0; c < criterio.colunas.size(); ++c) {
                if (!AcrescentarColuna(i, c))
                    return false;
            }
        }
        inicios.push_back(bytes.size());
        return true;
    }

    bool AcrescentarColuna(size_t i, size_t c)
    {
        const int slot = slots[i], coluna = criterio.colunas[c];
        if (linhas.Nula(slot, coluna)) {
            bytes.push_back(Nulo);
            return true;
        }
        bytes.push_back(Presente);
        if (!linhas.EhTexto(coluna)) {
            AcrescentarInteiro(bytes, BitsOrdenados(linhas.Numero(slot, coluna)), 8);
        } else if (!postos[c].empty()) {
            AcrescentarInteiro(bytes, postos[c][i], 4);
        } else if (TColacao::AcrescentarChave(linhas.Texto(slot, coluna), criterio.semCaixa,
                                              bytes)) {
            bytes.push_back(FimDoTexto);
        } else {
            PorPostos(c);
            return false;
        }
        return true;
    }

    /** A column with a text beyond the everyday letters is ranked whole by the collator. */
    void PorPostos(size_t c)
    {
        std::vector<QString> textos;
        textos.reserve(slots.size());
        for (const int slot : slots)
            textos.push_back(linhas.Texto(slot, criterio.colunas[c]).toString());
        postos[c] = TColacao::Postos(textos, criterio.semCaixa);
    }

    const TLinhasEmMemoria &linhas;
    const std::vector<int> &slots;
    const TCriterio &criterio;
    TBytes bytes;
    std::vector<size_t> inicios;
    std::vector<std::vector<quint32>> postos; /**< by column of the criterion */
};

int CompararValores(const TLinhasEmMemoria &linhas, int a, int b, int coluna, bool semCaixa)
{
    const bool nulaA = linhas.Nula(a, coluna), nulaB = linhas.Nula(b, coluna);
    if (nulaA || nulaB)
        return int(nulaB) - int(nulaA);
    if (linhas.EhTexto(coluna))
        return TColacao::Comparar(linhas.Texto(a, coluna), linhas.Texto(b, coluna), semCaixa);
    const quint64 x = BitsOrdenados(linhas.Numero(a, coluna));
    const quint64 y = BitsOrdenados(linhas.Numero(b, coluna));
    return x < y ? -1 : x > y ? 1 : 0;
}

} // namespace

std::vector<int> TOrdem::Decrescente() const
{
    std::vector<int> ao;
    ao.reserve(slots.size());
    for (size_t fim = slots.size(); fim > 0;) {
        size_t inicio = fim - 1;
        while (igual[inicio])
            --inicio;
        ao.insert(ao.end(), slots.begin() + qsizetype(inicio), slots.begin() + qsizetype(fim));
        fim = inicio;
    }
    return ao;
}

TOrdem Ordenar(const TLinhasEmMemoria &linhas, const std::vector<int> &slots,
               const TCriterio &criterio)
{
    struct TItem {
        TComeco comeco;
        quint32 posicao;
    };
    const TChaves chaves(linhas, slots, criterio);
    std::vector<TItem> itens;
    itens.reserve(slots.size());
    for (size_t i = 0; i < slots.size(); ++i)
        itens.push_back({chaves.Comeco(i), quint32(i)});
    const auto comparar = [&](const TItem &a, const TItem &b) {
        return a.comeco != b.comeco ? (a.comeco < b.comeco ? -1 : 1)
                                    : chaves.Comparar(a.posicao, b.posicao);
    };
    std::sort(itens.begin(), itens.end(), [&](const TItem &a, const TItem &b) {
        const int r = comparar(a, b);
        return r != 0 ? r < 0 : a.posicao < b.posicao;
    });
    TOrdem ordem;
    ordem.slots.reserve(itens.size());
    ordem.igual.reserve(itens.size());
    for (size_t i = 0; i < itens.size(); ++i) {
        ordem.slots.push_back(slots[itens[i].posicao]);
        ordem.igual.push_back(i > 0 && comparar(itens[i - 1], itens[i]) == 0);
    }
    return ordem;
}

int CompararLinhas(const TLinhasEmMemoria &linhas, int a, int b, const TCriterio &criterio)
{
    for (const int coluna : criterio.colunas) {
        if (const int r = CompararValores(linhas, a, b, coluna, criterio.semCaixa))
            return r;
    }
    return 0;
}

} // namespace ficha
