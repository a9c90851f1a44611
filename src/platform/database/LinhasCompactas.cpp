#include "platform/database/LinhasCompactas.h"

#include <array>
#include <charconv>
#include <cstring>
#include <new>

#include <sys/mman.h>

namespace ficha
{

namespace
{

constexpr size_t PrimeiraArena = 4096;
constexpr size_t MaiorArena = size_t(256) * 1024;
/** From here on the rows lie in pages of this size: the first touch of small ones, one after the
 * other, would cost a long list more than the copying of its rows. */
constexpr qint64 ListaLonga = qint64(4) * 1024 * 1024;
constexpr size_t PaginaGrande = size_t(2) * 1024 * 1024;
/** The engine counts days from 17/11/1858, TDateTime from 30/12/1899. */
constexpr int DiaZeroDoMotor = 15018;
constexpr double TiquesPorDia = 864000000.0;

template <typename T>
T Ler(const unsigned char *onde)
{
    T valor;
    std::memcpy(&valor, onde, sizeof valor);
    return valor;
}

std::uint32_t BytesFixos(TFisico tipo)
{
    switch (tipo) {
    case TFisico::Int16:
        return 2;
    case TFisico::Int32:
    case TFisico::Float:
    case TFisico::Data:
    case TFisico::Hora:
        return 4;
    case TFisico::Int64:
    case TFisico::Double:
    case TFisico::Momento:
        return 8;
    case TFisico::Booleano:
        return 1;
    default:
        return 0;
    }
}

bool EhTexto(TFisico tipo)
{
    return tipo == TFisico::Char || tipo == TFisico::VarChar || tipo == TFisico::Blob;
}

std::uint32_t SemBrancos(const unsigned char *texto, std::uint32_t n)
{
    while (n > 0 && texto[n - 1] == ' ')
        --n;
    return n;
}

constexpr std::array<double, 19> Potencias = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,
                                              1e7,  1e8,  1e9,  1e10, 1e11, 1e12, 1e13,
                                              1e14, 1e15, 1e16, 1e17, 1e18};

/** The nearest double; both operands of the division are exact. */
double Escalado(std::int64_t valor, int escala)
{
    constexpr std::int64_t Exato = std::int64_t(1) << 53;
    const double potencia = Potencias.at(size_t(escala));
    if (valor >= -Exato && valor <= Exato)
        return double(valor) / potencia;
    return double(static_cast<long double>(valor) / static_cast<long double>(potencia));
}

/** All digits, also those that a double cannot hold: "-0,01", "1234,5", "7". */
QString TextoEscalado(std::int64_t valor, int escala)
{
    const auto modulo = valor < 0 ? 0 - std::uint64_t(valor) : std::uint64_t(valor);
    QString t = QString::number(qulonglong(modulo)).rightJustified(escala + 1, u'0');
    if (escala > 0) {
        t.insert(t.size() - escala, u',');
        while (t.endsWith(u'0'))
            t.chop(1);
        if (t.endsWith(u','))
            t.chop(1);
    }
    return valor < 0 ? u'-' + t : t;
}

/** Writes a scaled number as the double that stands for it is written, "-0,01" or "1234,5", and
 * answers how many characters; 0 where the double does not have all of its digits. */
int EscreverNumero(TEspacoDeTexto &espaco, std::int64_t valor, int escala)
{
    constexpr std::int64_t QuinzeAlgarismos = 1'000'000'000'000'000;
    if (valor <= -QuinzeAlgarismos || valor >= QuinzeAlgarismos)
        return 0;
    for (; escala > 0 && valor % 10 == 0; --escala)
        valor /= 10;
    std::uint64_t resto = valor < 0 ? std::uint64_t(-valor) : std::uint64_t(valor);
    char *const fim = espaco.letras.data() + espaco.letras.size();
    char *inicio = fim;
    for (int casa = 0; resto > 0 || casa <= escala; ++casa, resto /= 10) {
        if (casa == escala && escala > 0)
            *--inicio = ',';
        *--inicio = char('0' + resto % 10);
    }
    if (valor < 0)
        *--inicio = '-';
    std::memmove(espaco.letras.data(), inicio, size_t(fim - inicio));
    return int(fim - inicio);
}

/** The shortest decimal that is this float, as a double: 0.1f is 0.1, not 0.100000001490116. */
double DeFloat(float valor)
{
    std::array<char, 32> espaco{};
    const auto fim = std::to_chars(espaco.data(), espaco.data() + espaco.size(), valor);
    double lido = valor;
    std::from_chars(espaco.data(), fim.ptr, lido);
    return lido;
}

TDateTime DeMomento(const unsigned char *onde)
{
    return TDateTime(double(Ler<std::int32_t>(onde) - DiaZeroDoMotor) +
                     double(Ler<std::uint32_t>(onde + 4)) / TiquesPorDia);
}

} // namespace

TLinhasCompactas::TArena TLinhasCompactas::NovaArena(size_t bytes)
{
    if (bytes != PaginaGrande)
        return {new unsigned char[bytes], {0}};
    // The system gives pages of this size only where they are aligned, so twice as much is asked
    // for and the ends are given back. A system without them gives small ones.
    void *tudo =
        mmap(nullptr, 2 * PaginaGrande, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (tudo == MAP_FAILED)
        throw std::bad_alloc();
    auto *const inicio = static_cast<unsigned char *>(tudo);
    const size_t antes = (PaginaGrande - size_t(inicio) % PaginaGrande) % PaginaGrande;
    if (antes > 0)
        munmap(inicio, antes);
    munmap(inicio + antes + PaginaGrande, PaginaGrande - antes);
    madvise(inicio + antes, PaginaGrande, MADV_HUGEPAGE);
    return {inicio + antes, {PaginaGrande}};
}

void TLinhasCompactas::TSoltaArena::operator()(unsigned char *arena) const
{
    if (mapeados > 0)
        munmap(arena, mapeados);
    else
        delete[] arena;
}

void TLinhasCompactas::Preparar(std::vector<TColunaFisica> novas)
{
    Limpar();
    colunas = std::move(novas);
    Distribuir();
}

void TLinhasCompactas::Distribuir()
{
    lugares.assign(colunas.size(), {});
    nulos.clear();
    fixos.clear();
    textos.clear();
    std::uint32_t posicao = std::uint32_t((colunas.size() + 7) / 8);
    std::uint64_t maiorTexto = 0;
    bool temBlob = false;
    for (size_t i = 0; i < colunas.size(); ++i) {
        const TColunaFisica &c = colunas[i];
        nulos.push_back(c.posicaoNulo);
        if (EhTexto(c.tipo)) {
            lugares[i].texto = std::int32_t(textos.size());
            textos.push_back({c.tipo, c.brancos, c.posicao, c.posicaoNulo, c.largura, i, 0});
            maiorTexto += c.largura;
            temBlob = temBlob || c.tipo == TFisico::Blob;
        } else {
            lugares[i].posicao = posicao;
            fixos.push_back({BytesFixos(c.tipo), c.posicao, posicao});
            posicao += BytesFixos(c.tipo);
        }
    }
    inicioDosFins = posicao;
    finsLargos = temBlob || posicao + 4 * std::uint64_t(textos.size()) + maiorTexto > 0xFFFF;
    inicioDosTextos = posicao + std::uint32_t(textos.size()) * (finsLargos ? 4 : 2);
}

void TLinhasCompactas::Acrescentar(const unsigned char *mensagem,
                                   const std::vector<QByteArray> &blobs)
{
    unsigned char *linha = Alocar(inicioDosTextos + MedirTextos(mensagem, blobs));
    CopiarNulos(linha, mensagem);
    CopiarFixos(linha, mensagem);
    CopiarTextos(linha, mensagem, blobs);
    linhas.push_back(linha);
}

/** Answers the bytes of all texts of the row. */
size_t TLinhasCompactas::MedirTextos(const unsigned char *mensagem,
                                     const std::vector<QByteArray> &blobs)
{
    size_t total = 0;
    for (TTexto &t : textos) {
        std::uint32_t n = 0;
        if (Ler<std::int16_t>(mensagem + t.posicaoNulo) == 0) {
            if (t.tipo == TFisico::VarChar)
                n = Ler<std::uint16_t>(mensagem + t.posicao);
            else if (t.tipo == TFisico::Char)
                n = t.brancos ? SemBrancos(mensagem + t.posicao, t.largura) : t.largura;
            else
                n = std::uint32_t(blobs[t.coluna].size());
        }
        t.bytes = n;
        total += n;
    }
    return total;
}

void TLinhasCompactas::CopiarNulos(unsigned char *linha, const unsigned char *mensagem) const
{
    for (size_t i = 0; i < nulos.size(); i += 8) {
        const size_t n = std::min<size_t>(8, nulos.size() - i);
        unsigned bits = 0;
        for (size_t j = 0; j < n; ++j)
            bits |= unsigned(Ler<std::int16_t>(mensagem + nulos[i + j]) != 0) << j;
        linha[i / 8] = static_cast<unsigned char>(bits);
    }
}

/** Null values too: nobody looks at what stands there, and asking costs more than copying. */
void TLinhasCompactas::CopiarFixos(unsigned char *linha, const unsigned char *mensagem) const
{
    for (const TFixo &f : fixos) {
        // Of a size that the compiler knows, each is one instruction and no call.
        switch (f.bytes) {
        case 1:
            linha[f.destino] = mensagem[f.origem];
            break;
        case 2:
            std::memcpy(linha + f.destino, mensagem + f.origem, 2);
            break;
        case 4:
            std::memcpy(linha + f.destino, mensagem + f.origem, 4);
            break;
        default:
            std::memcpy(linha + f.destino, mensagem + f.origem, 8);
            break;
        }
    }
}

void TLinhasCompactas::CopiarTextos(unsigned char *linha, const unsigned char *mensagem,
                                    const std::vector<QByteArray> &blobs) const
{
    std::uint32_t fim = inicioDosTextos;
    unsigned char *ondeOFim = linha + inicioDosFins;
    for (const TTexto &t : textos) {
        if (t.tipo == TFisico::Blob) {
            if (t.bytes > 0)
                std::memcpy(linha + fim, blobs[t.coluna].constData(), t.bytes);
        } else {
            const unsigned char *origem =
                mensagem + t.posicao + (t.tipo == TFisico::VarChar ? sizeof(std::uint16_t) : 0);
            // Whole blocks: what is too much is overwritten by what follows.
            for (std::uint32_t n = 0; n < t.bytes; n += Folga)
                std::memcpy(linha + fim + n, origem + n, Folga);
        }
        fim += t.bytes;
        if (finsLargos) {
            std::memcpy(ondeOFim, &fim, 4);
            ondeOFim += 4;
        } else {
            const auto curto = std::uint16_t(fim);
            std::memcpy(ondeOFim, &curto, 2);
            ondeOFim += 2;
        }
    }
}

unsigned char *TLinhasCompactas::Alocar(size_t bytes)
{
    if (bytes > livre) {
        proximaArena = proximaArena == 0 ? PrimeiraArena : std::min(proximaArena * 4, MaiorArena);
        const size_t proxima = bytesDasArenas < ListaLonga ? proximaArena : PaginaGrande;
        const size_t tamanho = std::max(bytes + Folga, proxima);
        arenas.push_back(NovaArena(tamanho));
        proximo = arenas.back().get();
        livre = tamanho - Folga;
        bytesDasArenas += qint64(tamanho);
    }
    unsigned char *pedaco = proximo;
    proximo += bytes;
    livre -= bytes;
    return pedaco;
}

void TLinhasCompactas::Limpar()
{
    std::vector<unsigned char *>().swap(linhas);
    arenas.clear();
    livre = 0;
    proximo = nullptr;
    proximaArena = 0;
    bytesDasArenas = 0;
}

bool TLinhasCompactas::Nula(int linha, int coluna) const
{
    return linhas[size_t(linha)][coluna / 8] & (1U << (coluna % 8));
}

Variant TLinhasCompactas::Valor(int linha, int coluna) const
{
    if (Nula(linha, coluna))
        return Null;
    const unsigned char *l = linhas[size_t(linha)];
    const auto i = size_t(coluna);
    const TColunaFisica &c = colunas[i];
    const unsigned char *onde = l + lugares[i].posicao;
    switch (c.tipo) {
    case TFisico::Int16:
    case TFisico::Int32:
        return c.escala ? Variant(Escalado(Inteiro(l, i), c.escala)) : Variant(int(Inteiro(l, i)));
    case TFisico::Int64:
        return Escalado(Inteiro(l, i), c.escala);
    case TFisico::Float:
        return DeFloat(Ler<float>(onde));
    case TFisico::Double:
        return Ler<double>(onde);
    case TFisico::Data:
        return TDateTime(double(Ler<std::int32_t>(onde) - DiaZeroDoMotor));
    case TFisico::Hora:
        return TDateTime(double(Ler<std::uint32_t>(onde)) / TiquesPorDia);
    case TFisico::Momento:
        return DeMomento(onde);
    case TFisico::Booleano:
        return *onde ? 1 : 0;
    default:
        return TextoGuardado(l, i);
    }
}

QString TLinhasCompactas::Texto(int linha, int coluna) const
{
    if (Nula(linha, coluna))
        return {};
    const unsigned char *l = linhas[size_t(linha)];
    const auto i = size_t(coluna);
    switch (colunas[i].tipo) {
    case TFisico::Int16:
    case TFisico::Int32:
    case TFisico::Int64:
        return TextoEscalado(Inteiro(l, i), colunas[i].escala);
    case TFisico::Hora:
        return Valor(linha, coluna).AsDateTime().Hora().toString(QStringLiteral("HH:mm:ss"));
    case TFisico::Char:
    case TFisico::VarChar:
    case TFisico::Blob:
        return TextoGuardado(l, i);
    default:
        return Valor(linha, coluna).AsString();
    }
}

QAnyStringView TLinhasCompactas::TextoDoValor(int linha, int coluna, TEspacoDeTexto &espaco) const
{
    if (Nula(linha, coluna))
        return {};
    const unsigned char *l = linhas[size_t(linha)];
    const auto i = size_t(coluna);
    int n = 0;
    switch (colunas[i].tipo) {
    case TFisico::Int16:
    case TFisico::Int32:
    case TFisico::Int64:
        n = EscreverNumero(espaco, Inteiro(l, i), colunas[i].escala);
        break;
    case TFisico::Data:
    case TFisico::Momento:
        n = Valor(linha, coluna).AsDateTime().EscreverTexto(std::span(espaco.letras).first<19>());
        break;
    case TFisico::Char:
    case TFisico::VarChar:
    case TFisico::Blob:
        if (const QLatin1StringView texto = Guardado(l, i);
            !colunas[i].brancos || texto.size() >= qsizetype(colunas[i].largura))
            return texto;
        break;
    default:
        break;
    }
    if (n > 0)
        return QLatin1StringView(espaco.letras.data(), n);
    espaco.texto = Valor(linha, coluna).AsString();
    return espaco.texto;
}

qint64 TLinhasCompactas::BytesUsados() const
{
    return bytesDasArenas + qint64(linhas.capacity() * sizeof(unsigned char *));
}

std::uint32_t TLinhasCompactas::LerFim(const unsigned char *linha, std::int32_t texto) const
{
    if (texto < 0)
        return inicioDosTextos;
    return finsLargos ? Ler<std::uint32_t>(linha + inicioDosFins + 4 * size_t(texto))
                      : Ler<std::uint16_t>(linha + inicioDosFins + 2 * size_t(texto));
}

/** The text as it lies in the row, without the blanks that were dropped. */
QLatin1StringView TLinhasCompactas::Guardado(const unsigned char *linha, size_t i) const
{
    const std::uint32_t inicio = LerFim(linha, lugares[i].texto - 1);
    const std::uint32_t n = LerFim(linha, lugares[i].texto) - inicio;
    return {reinterpret_cast<const char *>(linha + inicio), qsizetype(n)};
}

QString TLinhasCompactas::TextoGuardado(const unsigned char *linha, size_t i) const
{
    QString texto = Guardado(linha, i);
    const auto largura = qsizetype(colunas[i].largura);
    if (colunas[i].brancos && texto.size() < largura)
        texto.append(QString(largura - texto.size(), u' '));
    return texto;
}

std::int64_t TLinhasCompactas::Inteiro(const unsigned char *linha, size_t i) const
{
    const unsigned char *onde = linha + lugares[i].posicao;
    switch (colunas[i].tipo) {
    case TFisico::Int16:
        return Ler<std::int16_t>(onde);
    case TFisico::Int32:
        return Ler<std::int32_t>(onde);
    default:
        return Ler<std::int64_t>(onde);
    }
}

} // namespace ficha
