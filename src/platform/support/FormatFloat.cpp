#include "platform/support/FormatFloat.h"

#include "platform/core/Variant.h"

#include <QHash>
#include <QVarLengthArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

namespace ficha
{

namespace
{

/** The decimal digits of a number without its sign: the first stands before "10^expoente". */
struct TAlgarismos {
    static constexpr int Maximo = 17;
    char digitos[Maximo] = {};
    int n = 0;         /**< digits in use, the last one not zero; none for zero */
    int expoente = -1; /**< digits before the comma minus one; below -1 for small fractions */

    bool EhZero() const { return n == 0; }
    /** The digit that stands for 10^potencia. */
    char Digito(int potencia) const
    {
        const int i = expoente - potencia;
        return i >= 0 && i < n ? digitos[i] : '0';
    }
    void Aparar()
    {
        while (n > 0 && digitos[n - 1] == '0')
            --n;
        if (n == 0)
            expoente = -1;
    }
    void Arredondar(int decimais);
};

void TAlgarismos::Arredondar(int decimais)
{
    const int ficam = expoente + 1 + decimais;
    if (ficam >= n)
        return;
    if (ficam < 0) {
        n = 0;
        Aparar();
        return;
    }
    const bool sobe = digitos[ficam] >= '5';
    n = ficam;
    int i = n - 1;
    while (sobe && i >= 0 && digitos[i] == '9')
        digitos[i--] = '0';
    if (sobe && i >= 0) {
        ++digitos[i];
    } else if (sobe) {
        digitos[0] = '1';
        n = 1;
        ++expoente;
    }
    Aparar();
}

/** The digits of a whole number of the given decimal places. */
void DeInteiro(TAlgarismos &a, std::int64_t valor, int decimais)
{
    const auto fim = std::to_chars(a.digitos, a.digitos + TAlgarismos::Maximo, valor);
    a.n = int(fim.ptr - a.digitos);
    a.expoente = a.n - 1 - decimais;
}

/** The amount in centavos when it is a whole number of them, else -1. Up to 15 digits the decimal
 * that is nearest to a double is one only, so that a centavo's double has the centavo's digits. */
std::int64_t EmCentavos(double valor)
{
    constexpr double MaiorValor = 1e13;
    if (valor >= MaiorValor)
        return -1;
    const std::int64_t centavos = std::llround(valor * 100);
    return double(centavos) / 100 == valor ? centavos : -1;
}

/** The digits of |valor|: all of a whole number that a double holds exactly, else 15. */
TAlgarismos Algarismos(double valor)
{
    constexpr double MaiorInteiroExato = 9007199254740992.0;
    constexpr int Significativos = 15;
    TAlgarismos a;
    valor = std::fabs(valor);
    if (valor <= MaiorInteiroExato && valor == std::trunc(valor)) {
        DeInteiro(a, std::int64_t(valor), 0);
    } else if (const std::int64_t centavos = EmCentavos(valor); centavos > 0) {
        DeInteiro(a, centavos, 2);
    } else {
        char texto[40];
        const auto fim = std::to_chars(texto, texto + sizeof texto, valor,
                                       std::chars_format::scientific, Significativos - 1);
        a.digitos[0] = texto[0];
        std::copy(texto + 2, texto + 1 + Significativos, a.digitos + 1);
        a.n = Significativos;
        const char *expoente = texto + 2 + Significativos;
        std::from_chars(*expoente == '+' ? expoente + 1 : expoente, fim.ptr, a.expoente);
    }
    a.Aparar();
    return a;
}

/** One section of a pattern, taken apart. */
struct TSecao {
    enum TPeca : char16_t { Literal, Digito, Virgula };
    struct TPecaSecao {
        TPeca tipo;
        QChar c;
    };
    std::vector<TPecaSecao> pecas;
    int inteiros = 0;       /**< digit places before the comma */
    int minimoInteiros = 0; /**< of these, how many are always shown */
    int decimais = 0;
    int minimoDecimais = 0;
    bool agrupar = false;
    bool temVirgula = false;

    explicit TSecao(QStringView texto);
    void AcrescentarDigito(bool obrigatorio);
};

TSecao::TSecao(QStringView texto)
{
    QChar aspas;
    for (const QChar c : texto) {
        if (!aspas.isNull() || c == u'\'' || c == u'"') {
            if (aspas.isNull())
                aspas = c;
            else if (c == aspas)
                aspas = QChar();
            else
                pecas.push_back({Literal, c});
        } else if (c == u'0' || c == u'#') {
            AcrescentarDigito(c == u'0');
        } else if (c == u'.' && !temVirgula) {
            temVirgula = true;
            pecas.push_back({Virgula, c});
        } else if (c == u',' && !temVirgula) {
            agrupar = true;
        } else {
            pecas.push_back({Literal, c});
        }
    }
}

void TSecao::AcrescentarDigito(bool obrigatorio)
{
    pecas.push_back({Digito, QChar()});
    if (temVirgula) {
        ++decimais;
        if (obrigatorio)
            minimoDecimais = decimais;
    } else {
        ++inteiros;
        // From the leftmost required place on, every place is required.
        if (obrigatorio || minimoInteiros > 0)
            ++minimoInteiros;
    }
}

using TPadrao = std::vector<TSecao>;

TPadrao Desmontar(const QString &padrao)
{
    constexpr int MaximoDeSecoes = 3;
    TPadrao secoes;
    qsizetype inicio = 0;
    QChar aspas;
    for (qsizetype i = 0; i <= padrao.size(); ++i) {
        const bool fim = i == padrao.size();
        const QChar c = fim ? QChar(u';') : padrao[i];
        if (!fim && (c == u'\'' || c == u'"')) {
            if (aspas.isNull())
                aspas = c;
            else if (aspas == c)
                aspas = QChar();
        }
        if (!fim && (c != u';' || !aspas.isNull()))
            continue;
        if (int(secoes.size()) < MaximoDeSecoes)
            secoes.emplace_back(QStringView(padrao).mid(inicio, i - inicio));
        inicio = i + 1;
    }
    return secoes;
}

/** The pattern taken apart, from the patterns seen before; the last one is found at once. */
const TPadrao &PadraoPronto(const QString &padrao)
{
    constexpr int MaximoGuardado = 200;
    thread_local QHash<QString, TPadrao> prontos;
    thread_local QString ultimo;
    thread_local const TPadrao *doUltimo = nullptr;
    if (doUltimo && ultimo == padrao)
        return *doUltimo;
    auto achado = prontos.constFind(padrao);
    if (achado == prontos.constEnd()) {
        if (prontos.size() >= MaximoGuardado)
            prontos.clear();
        achado = prontos.insert(padrao, Desmontar(padrao));
    }
    ultimo = padrao;
    doUltimo = &*achado;
    return *doUltimo;
}

/** Lays the rounded digits into a section. */
class TEscrita
{
public:
    TEscrita(const TSecao &daSecao, const TAlgarismos &dosAlgarismos)
        : secao(daSecao), numero(dosAlgarismos),
          inteiros(std::max({numero.expoente + 1, secao.minimoInteiros, 0})),
          decimais(numero.EhZero() ? secao.minimoDecimais
                                   : std::max(secao.minimoDecimais, numero.n - 1 - numero.expoente))
    {
    }

    void Escrever(bool comSinal, QString &texto);

private:
    void EscreverInteiro(int potencia);
    void EscreverLugar();
    void EscreverVirgula();

    const TSecao &secao;
    const TAlgarismos &numero;
    const int inteiros;
    const int decimais;
    int lugar = 0; /**< places seen so far on this side of the comma */
    bool depoisDaVirgula = false;
    QVarLengthArray<QChar, 64> saida;
};

void TEscrita::Escrever(bool comSinal, QString &texto)
{
    if (comSinal)
        saida.append(u'-');
    for (const auto &peca : secao.pecas) {
        if (peca.tipo == TSecao::Literal)
            saida.append(peca.c);
        else if (peca.tipo == TSecao::Digito)
            EscreverLugar();
        else
            EscreverVirgula();
    }
    texto.append(saida.constData(), saida.size());
}

void TEscrita::EscreverInteiro(int potencia)
{
    saida.append(QLatin1Char(numero.Digito(potencia)));
    if (secao.agrupar && potencia > 0 && potencia % 3 == 0)
        saida.append(u'.');
}

void TEscrita::EscreverLugar()
{
    ++lugar;
    if (depoisDaVirgula) {
        if (lugar <= decimais)
            saida.append(QLatin1Char(numero.Digito(-lugar)));
        return;
    }
    // The first place also takes the digits for which the pattern has none.
    const int doLugar = secao.inteiros - lugar;
    for (int p = lugar == 1 ? std::max(inteiros - 1, doLugar) : doLugar; p >= doLugar; --p) {
        if (p < inteiros)
            EscreverInteiro(p);
    }
}

void TEscrita::EscreverVirgula()
{
    if (secao.inteiros == 0) {
        for (int p = inteiros - 1; p >= 0; --p)
            EscreverInteiro(p);
    }
    if (decimais > 0)
        saida.append(u',');
    depoisDaVirgula = true;
    lugar = 0;
}

/** By the section that serves this value; false, nothing written, when the rounding to its
 * decimals makes it a zero. */
bool EscreverPelaSecao(const TSecao &secao, double valor, bool comSinal, QString &texto)
{
    TAlgarismos numero = Algarismos(valor);
    numero.Arredondar(secao.decimais);
    if (numero.EhZero())
        return false;
    TEscrita(secao, numero).Escrever(comSinal, texto);
    return true;
}

} // namespace

QString FormatFloat(const QString &padrao, double valor)
{
    QString texto;
    FormatFloat(padrao, valor, texto);
    return texto;
}

void FormatFloat(const QString &padrao, double valor, QString &saida)
{
    saida.resize(0);
    if (!std::isfinite(valor))
        return;
    if (padrao.isEmpty()) {
        saida = DoubleParaTexto(valor);
        return;
    }
    const TPadrao &secoes = PadraoPronto(padrao);
    // An empty section leaves its values to the first one.
    const bool temNegativa = secoes.size() > 1 && !secoes[1].pecas.empty();
    const bool temZero = secoes.size() > 2 && !secoes[2].pecas.empty();
    const bool negativo = valor < 0;
    const TSecao &secao = negativo && temNegativa ? secoes[1] : secoes[0];
    if (valor != 0 && EscreverPelaSecao(secao, valor, negativo && !temNegativa, saida))
        return;
    TEscrita(temZero ? secoes[2] : secoes[0], TAlgarismos()).Escrever(false, saida);
}

} // namespace ficha
