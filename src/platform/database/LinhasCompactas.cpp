#include "platform/database/LinhasCompactas.h"

#include <array>
#include <charconv>
#include <cstring>

namespace ficha
{

namespace
{

constexpr size_t PrimeiraArena = 4096;
constexpr size_t MaiorArena = size_t(256) * 1024;
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

void TLinhasCompactas::Preparar(std::vector<TColunaFisica> novas)
{
    Limpar();
    colunas = std::move(novas);
    Distribuir();
}

void TLinhasCompactas::Distribuir()
{
    lugares.assign(colunas.size(), {});
    std::uint32_t posicao = std::uint32_t((colunas.size() + 7) / 8);
    std::int32_t textos = 0;
    std::uint64_t maiorTexto = 0;
    bool temBlob = false;
    for (size_t i = 0; i < colunas.size(); ++i) {
        if (EhTexto(colunas[i].tipo)) {
            lugares[i].texto = textos++;
            maiorTexto += colunas[i].largura;
            temBlob = temBlob || colunas[i].tipo == TFisico::Blob;
        } else {
            lugares[i].posicao = posicao;
            posicao += BytesFixos(colunas[i].tipo);
        }
    }
    comprimentos.assign(size_t(textos), 0);
    inicioDosFins = posicao;
    finsLargos = temBlob || posicao + 4 * std::uint64_t(textos) + maiorTexto > 0xFFFF;
    inicioDosTextos = posicao + std::uint32_t(textos) * (finsLargos ? 4 : 2);
}

void TLinhasCompactas::MedirTextos(const unsigned char *mensagem,
                                   const std::vector<QByteArray> &blobs)
{
    size_t texto = 0;
    for (size_t i = 0; i < colunas.size(); ++i) {
        const TColunaFisica &c = colunas[i];
        if (lugares[i].texto < 0)
            continue;
        std::uint32_t n = 0;
        if (Ler<std::int16_t>(mensagem + c.posicaoNulo) == 0) {
            if (c.tipo == TFisico::VarChar)
                n = Ler<std::uint16_t>(mensagem + c.posicao);
            else if (c.tipo == TFisico::Char)
                n = c.brancos ? SemBrancos(mensagem + c.posicao, c.largura) : c.largura;
            else
                n = std::uint32_t(blobs[i].size());
        }
        comprimentos[texto++] = n;
    }
}

void TLinhasCompactas::Acrescentar(const unsigned char *mensagem,
                                   const std::vector<QByteArray> &blobs)
{
    MedirTextos(mensagem, blobs);
    size_t total = inicioDosTextos;
    for (const std::uint32_t n : comprimentos)
        total += n;
    unsigned char *linha = Alocar(total);
    std::memset(linha, 0, (colunas.size() + 7) / 8);
    std::uint32_t fim = inicioDosTextos;
    for (size_t i = 0; i < colunas.size(); ++i) {
        const TColunaFisica &c = colunas[i];
        const bool nulo = Ler<std::int16_t>(mensagem + c.posicaoNulo) != 0;
        if (nulo)
            linha[i / 8] |= static_cast<unsigned char>(1U << (i % 8));
        if (lugares[i].texto >= 0)
            CopiarTexto(linha, i, mensagem, blobs, fim);
        else if (!nulo)
            std::memcpy(linha + lugares[i].posicao, mensagem + c.posicao, BytesFixos(c.tipo));
    }
    linhas.push_back(linha);
}

void TLinhasCompactas::CopiarTexto(unsigned char *linha, size_t i, const unsigned char *mensagem,
                                   const std::vector<QByteArray> &blobs, std::uint32_t &fim) const
{
    const TColunaFisica &c = colunas[i];
    const auto texto = size_t(lugares[i].texto);
    const std::uint32_t n = comprimentos[texto];
    if (n > 0) {
        const unsigned char *origem =
            c.tipo == TFisico::Blob ? reinterpret_cast<const unsigned char *>(blobs[i].constData())
                                    : mensagem + c.posicao + (c.tipo == TFisico::VarChar ? 2 : 0);
        std::memcpy(linha + fim, origem, n);
        fim += n;
    }
    if (finsLargos) {
        std::memcpy(linha + inicioDosFins + 4 * texto, &fim, 4);
    } else {
        const auto curto = std::uint16_t(fim);
        std::memcpy(linha + inicioDosFins + 2 * texto, &curto, 2);
    }
}

unsigned char *TLinhasCompactas::Alocar(size_t bytes)
{
    if (bytes > livre) {
        proximaArena = proximaArena == 0 ? PrimeiraArena : std::min(proximaArena * 4, MaiorArena);
        const size_t tamanho = std::max(bytes, proximaArena);
        arenas.push_back(std::make_unique_for_overwrite<unsigned char[]>(tamanho));
        proximo = arenas.back().get();
        livre = tamanho;
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
