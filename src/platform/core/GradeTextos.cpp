#include "platform/core/GradeTextos.h"

#include <algorithm>
#include <cstring>

namespace ficha
{

namespace
{
constexpr int BitsDoBloco = 8;
constexpr int LinhasPorBloco = 1 << BitsDoBloco;
constexpr int MaxCurto = 7;
constexpr unsigned char LongoLatin1 = 0xF0, LongoUtf16 = 0xF1;
constexpr std::uint32_t PrimeiroBloco = 4 * 1024, MaiorBloco = 256 * 1024;
constexpr qint64 PerdaIgnorada = 65'536;

bool EhLongo(unsigned char tipo)
{
    return tipo > MaxCurto;
}

bool CabeEmLatin1(QStringView texto)
{
    char16_t juntos = 0;
    for (const QChar c : texto)
        juntos = char16_t(juntos | c.unicode());
    return juntos < 0x100;
}

void Estreitar(QStringView texto, unsigned char *para)
{
    const char16_t *de = texto.utf16();
    for (qsizetype i = 0, n = texto.size(); i < n; ++i)
        para[i] = static_cast<unsigned char>(de[i]);
}

void Estreitar(QLatin1StringView texto, unsigned char *para)
{
    if (!texto.isEmpty())
        std::memcpy(para, texto.data(), std::size_t(texto.size()));
}

/** An entry is its length in characters, then the characters, filled up to whole words. */
std::uint32_t TamanhoDaEntradaDe(std::uint32_t caracteres, bool latin1)
{
    const std::uint32_t bytes = latin1 ? caracteres : caracteres * 2;
    return std::uint32_t(sizeof(std::uint32_t)) + ((bytes + 3) & ~3u);
}
} // namespace

void TGradeTextos::Redimensionar(int cols, int rows)
{
    if (rows < linhas)
        SoltarLinhas(rows);
    linhas = rows;
    if (cols != colunas)
        MudarColunas(cols);
    CompactarSeValer();
}

QAnyStringView TGradeTextos::Texto(int col, int row) const
{
    const TCelula *celula = Celula(col, row);
    return celula ? Texto(*celula) : QAnyStringView();
}

bool TGradeTextos::Gravar(int col, int row, QAnyStringView texto)
{
    return texto.visit([&](auto t) {
        if constexpr (std::is_same_v<decltype(t), QLatin1StringView>) {
            return Gravar(col, row, t, true);
        } else if constexpr (std::is_same_v<decltype(t), QUtf8StringView>) {
            return Gravar(col, row, QAnyStringView(t.toString()));
        } else {
            return Gravar(col, row, t, CabeEmLatin1(t));
        }
    });
}

template <typename TTexto>
bool TGradeTextos::Gravar(int col, int row, TTexto texto, bool latin1)
{
    TCelula *atual = const_cast<TCelula *>(Celula(col, row));
    if (atual ? IgualA(*atual, texto) : texto.isEmpty())
        return false;
    TCelula &celula = atual ? *atual : NovaCelula(col, row);
    const bool perde = EhLongo(celula.tipo);
    if (latin1 && texto.size() <= MaxCurto)
        GravarCurto(celula, texto);
    else
        GravarLongo(celula, texto, latin1);
    if (perde)
        CompactarSeValer();
    return true;
}

qint64 TGradeTextos::Bytes() const
{
    qint64 soma = qint64(blocos.capacity() * sizeof(std::vector<TCelula>)) +
                  qint64(arena.blocos.capacity() * sizeof(TBlocoTextos));
    for (const auto &bloco : blocos)
        soma += qint64(bloco.capacity() * sizeof(TCelula));
    for (const TBlocoTextos &bloco : arena.blocos)
        soma += bloco.tamanho;
    return soma;
}

const TGradeTextos::TCelula *TGradeTextos::Celula(int col, int row) const
{
    const auto i = std::size_t(row) >> BitsDoBloco;
    if (i >= blocos.size())
        return nullptr;
    const auto &bloco = blocos[i];
    const auto j =
        std::size_t(row & (LinhasPorBloco - 1)) * std::size_t(colunas) + std::size_t(col);
    return j < bloco.size() ? &bloco[j] : nullptr;
}

/** Makes the memory of a cell that has none yet. */
TGradeTextos::TCelula &TGradeTextos::NovaCelula(int col, int row)
{
    const auto i = std::size_t(row) >> BitsDoBloco;
    if (i >= blocos.size())
        blocos.resize(i + 1);
    auto &bloco = blocos[i];
    const int noBloco = std::min(LinhasPorBloco, linhas - int(i << BitsDoBloco));
    celulas -= qint64(bloco.size());
    bloco.resize(std::size_t(noBloco) * std::size_t(colunas));
    celulas += qint64(bloco.size());
    return bloco[std::size_t(row & (LinhasPorBloco - 1)) * std::size_t(colunas) + std::size_t(col)];
}

bool TGradeTextos::IgualA(const TCelula &celula, QAnyStringView texto) const
{
    if (!EhLongo(celula.tipo) && celula.tipo != texto.size())
        return false; // most writes of a fill end here
    return Texto(celula) == texto;
}

QAnyStringView TGradeTextos::Texto(const TCelula &celula) const
{
    if (!EhLongo(celula.tipo))
        return QLatin1StringView(reinterpret_cast<const char *>(celula.dados), celula.tipo);
    const char *entrada = Entrada(celula);
    std::uint32_t n;
    std::memcpy(&n, entrada, sizeof n);
    entrada += sizeof n;
    if (celula.tipo == LongoLatin1)
        return QLatin1StringView(entrada, qsizetype(n));
    return QStringView(reinterpret_cast<const char16_t *>(entrada), qsizetype(n));
}

char *TGradeTextos::Entrada(const TCelula &celula) const
{
    std::uint32_t onde;
    std::memcpy(&onde, celula.dados, sizeof onde);
    const auto bloco = std::size_t(celula.dados[4]) | std::size_t(celula.dados[5]) << 8 |
                       std::size_t(celula.dados[6]) << 16;
    return arena.blocos[bloco].memoria.get() + onde;
}

char *TGradeTextos::NovaEntrada(TArena &arena, TCelula &celula, std::uint32_t bytes)
{
    if (arena.blocos.empty() || arena.blocos.back().tamanho - arena.blocos.back().usado < bytes) {
        std::uint32_t tamanho = arena.blocos.empty()
                                    ? PrimeiroBloco
                                    : std::min(arena.blocos.back().tamanho, MaiorBloco) * 2;
        tamanho = std::max(std::min(tamanho, MaiorBloco), bytes);
        Q_ASSERT_X(arena.blocos.size() < 0xFFFFFF, "TGradeTextos", "more text than fits");
        arena.blocos.push_back({std::unique_ptr<char[]>(new char[tamanho]), tamanho, 0});
    }
    TBlocoTextos &bloco = arena.blocos.back();
    const std::uint32_t onde = bloco.usado;
    const auto i = arena.blocos.size() - 1;
    bloco.usado += bytes;
    arena.usado += bytes;
    std::memcpy(celula.dados, &onde, sizeof onde);
    celula.dados[4] = static_cast<unsigned char>(i);
    celula.dados[5] = static_cast<unsigned char>(i >> 8);
    celula.dados[6] = static_cast<unsigned char>(i >> 16);
    return bloco.memoria.get() + onde;
}

std::uint32_t TGradeTextos::TamanhoDaEntrada(const TCelula &celula) const
{
    std::uint32_t n;
    std::memcpy(&n, Entrada(celula), sizeof n);
    return TamanhoDaEntradaDe(n, celula.tipo == LongoLatin1);
}

template <typename TTexto>
void TGradeTextos::GravarCurto(TCelula &celula, TTexto texto)
{
    Soltar(celula);
    Estreitar(texto, celula.dados);
    celula.tipo = static_cast<unsigned char>(texto.size());
}

template <typename TTexto>
void TGradeTextos::GravarLongo(TCelula &celula, TTexto texto, bool latin1)
{
    const auto n = std::uint32_t(texto.size());
    const std::uint32_t novo = TamanhoDaEntradaDe(n, latin1);
    const std::uint32_t antes = EhLongo(celula.tipo) ? TamanhoDaEntrada(celula) : 0;
    char *entrada = novo <= antes ? Entrada(celula) : NovaEntrada(arena, celula, novo);
    vivos += qint64(novo) - qint64(antes);
    celula.tipo = latin1 ? LongoLatin1 : LongoUtf16;
    std::memcpy(entrada, &n, sizeof n);
    entrada += sizeof n;
    if constexpr (std::is_same_v<TTexto, QStringView>) {
        if (!latin1) {
            std::memcpy(entrada, texto.utf16(), std::size_t(n) * 2);
            return;
        }
    }
    Estreitar(texto, reinterpret_cast<unsigned char *>(entrada));
}

void TGradeTextos::Soltar(TCelula &celula)
{
    if (EhLongo(celula.tipo))
        vivos -= TamanhoDaEntrada(celula);
    celula = TCelula();
}

void TGradeTextos::SoltarLinhas(int de)
{
    const auto ficam = (std::size_t(de) + LinhasPorBloco - 1) >> BitsDoBloco;
    for (std::size_t i = std::size_t(de) >> BitsDoBloco; i < blocos.size(); ++i) {
        auto &bloco = blocos[i];
        const std::size_t primeira = i << BitsDoBloco;
        const std::size_t linhasQueFicam =
            primeira < std::size_t(de) ? std::size_t(de) - primeira : 0;
        const auto corte = std::min(linhasQueFicam * std::size_t(colunas), bloco.size());
        for (auto j = corte; j < bloco.size(); ++j)
            Soltar(bloco[j]);
        celulas -= qint64(bloco.size() - corte);
        bloco.resize(corte);
        bloco.shrink_to_fit();
    }
    if (ficam < blocos.size())
        blocos.resize(ficam);
}

void TGradeTextos::MudarColunas(int cols)
{
    const auto antes = std::size_t(colunas), depois = std::size_t(cols);
    celulas = 0;
    for (auto &bloco : blocos) {
        const std::size_t n = bloco.size() / antes;
        std::vector<TCelula> novo(n * depois);
        for (std::size_t r = 0; r < n; ++r) {
            for (std::size_t c = 0; c < antes; ++c) {
                TCelula &celula = bloco[r * antes + c];
                if (c < depois)
                    novo[r * depois + c] = celula;
                else
                    Soltar(celula);
            }
        }
        bloco = std::move(novo);
        celulas += qint64(bloco.size());
    }
    colunas = cols;
}

void TGradeTextos::CompactarSeValer()
{
    const qint64 perda = arena.usado - vivos;
    if (vivos == 0 && perda > 0)
        arena = TArena();
    else if (perda > PerdaIgnorada && perda > vivos && perda > celulas * 4)
        Compactar();
}

void TGradeTextos::Compactar()
{
    TArena nova;
    for (auto &bloco : blocos) {
        for (TCelula &celula : bloco) {
            if (!EhLongo(celula.tipo))
                continue;
            const char *de = Entrada(celula);
            const std::uint32_t bytes = TamanhoDaEntrada(celula);
            std::memcpy(NovaEntrada(nova, celula, bytes), de, bytes);
        }
    }
    arena = std::move(nova);
}

} // namespace ficha
