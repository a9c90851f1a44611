#include "platform/core/Documentos.h"

#include "platform/core/Caracteres.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace ficha
{

namespace
{

constexpr int TamCPF = 11;
constexpr int TamCNPJ = 14;
constexpr int TamCEP = 8;
constexpr int TamPrefixoCEP = 5;
constexpr int TamVerificadores = 2;

bool EhCapital(QChar c)
{
    return c >= u'A' && c <= u'Z';
}

bool SoDigitos(QStringView texto)
{
    return !texto.isEmpty() && std::all_of(texto.begin(), texto.end(), EhDigito);
}

bool EhSeparador(QChar c)
{
    return c == u'.' || c == u'-' || c == u'/' || c.isSpace();
}

/** Without blanks around it and separators inside; one at an end is no mask's and stays. */
QString SemSeparadores(const QString &texto)
{
    QString nu = texto.trimmed();
    if (nu.isEmpty() || EhSeparador(nu.front()) || EhSeparador(nu.back()))
        return nu;
    return nu.removeIf(EhSeparador);
}

/** Whether a text is the first characters of a CNPJ, whose check digits are digits. */
bool FormaDeCNPJ(QStringView texto)
{
    const QStringView base = texto.left(TamCNPJ - TamVerificadores);
    const QStringView digitos = texto.mid(base.size());
    return std::all_of(base.begin(), base.end(),
                       [](QChar c) { return EhDigito(c) || EhCapital(c); }) &&
           std::all_of(digitos.begin(), digitos.end(), EhDigito);
}

/** The modulo 11 digit with weights from 2 at the right end to maiorPeso, then from 2 again. A
 * character weighs its distance from "0". */
QChar DigitoModulo11(QStringView texto, int maiorPeso)
{
    constexpr int MenorPeso = 2;
    constexpr int Modulo = 11;
    int soma = 0;
    int peso = MenorPeso;
    for (auto c = texto.rbegin(); c != texto.rend(); ++c) {
        soma += (c->unicode() - u'0') * peso;
        peso = peso == maiorPeso ? MenorPeso : peso + 1;
    }
    const int resto = soma % Modulo;
    return QChar(char16_t(u'0' + (resto < 2 ? 0 : Modulo - resto)));
}

QString DoisDigitos(const QString &base, int maiorPeso)
{
    const QChar primeiro = DigitoModulo11(base, maiorPeso);
    return QString(primeiro) + DigitoModulo11(base + primeiro, maiorPeso);
}

/** Eleven weights are never used up, so that the CPF's do not start anew. */
constexpr int MaiorPesoCPF = TamCPF;
constexpr int MaiorPesoCNPJ = 9;

struct TDDDs {
    const char *UF;
    std::array<int, 9> Lista; /**< zeros behind the last */
};

constexpr TDDDs Dddes[] = {
    {"AC", {68}},
    {"AL", {82}},
    {"AM", {92, 97}},
    {"AP", {96}},
    {"BA", {71, 73, 74, 75, 77}},
    {"CE", {85, 88}},
    {"DF", {61}},
    {"ES", {27, 28}},
    {"GO", {62, 64}},
    {"MA", {98, 99}},
    {"MG", {31, 32, 33, 34, 35, 37, 38}},
    {"MS", {67}},
    {"MT", {65, 66}},
    {"PA", {91, 93, 94}},
    {"PB", {83}},
    {"PE", {81, 87}},
    {"PI", {86, 89}},
    {"PR", {41, 42, 43, 44, 45, 46}},
    {"RJ", {21, 22, 24}},
    {"RN", {84}},
    {"RO", {69}},
    {"RR", {95}},
    {"RS", {51, 53, 54, 55}},
    {"SC", {47, 48, 49}},
    {"SE", {79}},
    {"SP", {11, 12, 13, 14, 15, 16, 17, 18, 19}},
    {"TO", {63}},
};

/** First and last five digits; the three digits behind them are all there are. */
struct TFaixaDePrefixo {
    const char *UF;
    int Primeiro;
    int Ultimo;
};

constexpr TFaixaDePrefixo Faixas[] = {
    {"SP", 1000, 19999},  {"RJ", 20000, 28999}, {"ES", 29000, 29999}, {"MG", 30000, 39999},
    {"BA", 40000, 48999}, {"SE", 49000, 49999}, {"PE", 50000, 56999}, {"AL", 57000, 57999},
    {"PB", 58000, 58999}, {"RN", 59000, 59999}, {"CE", 60000, 63999}, {"PI", 64000, 64999},
    {"MA", 65000, 65999}, {"PA", 66000, 68899}, {"AP", 68900, 68999}, {"AM", 69000, 69299},
    {"RR", 69300, 69399}, {"AM", 69400, 69899}, {"AC", 69900, 69999}, {"DF", 70000, 72799},
    {"GO", 72800, 72999}, {"DF", 73000, 73699}, {"GO", 73700, 76799}, {"RO", 76800, 76999},
    {"TO", 77000, 77999}, {"MT", 78000, 78899}, {"MS", 79000, 79999}, {"PR", 80000, 87999},
    {"SC", 88000, 89999}, {"RS", 90000, 99999},
};

QString Prefixo(int n)
{
    return QString::number(n).rightJustified(TamPrefixoCEP, u'0');
}

} // namespace

bool CPFValido(const QString &texto)
{
    const QString cpf = CPFSemMasc(texto);
    return !cpf.isEmpty() && cpf.count(cpf.front()) < TamCPF &&
           cpf.endsWith(DigitosCPF(cpf.left(TamCPF - TamVerificadores)));
}

QString DigitosCPF(const QString &base)
{
    const QString nu = SemSeparadores(base);
    if (nu.size() != TamCPF - TamVerificadores || !SoDigitos(nu))
        return {};
    return DoisDigitos(nu, MaiorPesoCPF);
}

QString CPFComMasc(const QString &texto)
{
    const QString cpf = CPFSemMasc(texto);
    if (cpf.isEmpty())
        return texto;
    return cpf.left(3) + u'.' + cpf.mid(3, 3) + u'.' + cpf.mid(6, 3) + u'-' + cpf.mid(9);
}

QString CPFSemMasc(const QString &texto)
{
    const QString nu = SemSeparadores(texto);
    return nu.size() == TamCPF && SoDigitos(nu) ? nu : QString();
}

bool CNPJValido(const QString &texto)
{
    const QString cnpj = CNPJSemMasc(texto);
    return !cnpj.isEmpty() && cnpj.count(u'0') < TamCNPJ &&
           cnpj.endsWith(DigitosCNPJ(cnpj.left(TamCNPJ - TamVerificadores)));
}

QString DigitosCNPJ(const QString &base)
{
    const QString nu = MaiusculasASCII(SemSeparadores(base));
    if (nu.size() != TamCNPJ - TamVerificadores || !FormaDeCNPJ(nu))
        return {};
    return DoisDigitos(nu, MaiorPesoCNPJ);
}

QString CNPJComMasc(const QString &texto)
{
    const QString cnpj = CNPJSemMasc(texto);
    if (cnpj.isEmpty())
        return texto;
    return cnpj.left(2) + u'.' + cnpj.mid(2, 3) + u'.' + cnpj.mid(5, 3) + u'/' + cnpj.mid(8, 4) +
           u'-' + cnpj.mid(12);
}

QString CNPJSemMasc(const QString &texto)
{
    const QString nu = MaiusculasASCII(SemSeparadores(texto));
    return nu.size() == TamCNPJ && FormaDeCNPJ(nu) ? nu : QString();
}

bool GTINValido(const QString &texto)
{
    const QString gtin = texto.trimmed();
    if (gtin.isEmpty())
        return false;
    const QString digito = DigitoGTIN(gtin.chopped(1));
    return !digito.isEmpty() && gtin.endsWith(digito);
}

QString DigitoGTIN(const QString &corpo)
{
    constexpr std::array<qsizetype, 4> Tamanhos{7, 11, 12, 13};
    if (std::find(Tamanhos.begin(), Tamanhos.end(), corpo.size()) == Tamanhos.end() ||
        !SoDigitos(corpo))
        return {};
    int soma = 0;
    int peso = 3;
    for (auto c = corpo.rbegin(); c != corpo.rend(); ++c) {
        soma += (c->unicode() - u'0') * peso;
        peso = 4 - peso;
    }
    return QString::number((10 - soma % 10) % 10);
}

bool DDDValido(int ddd)
{
    return !UFDoDDD(ddd).isEmpty();
}

QString UFDoDDD(int ddd)
{
    const auto uf = std::find_if(std::begin(Dddes), std::end(Dddes), [ddd](const TDDDs &d) {
        return ddd > 0 && std::find(d.Lista.begin(), d.Lista.end(), ddd) != d.Lista.end();
    });
    return uf == std::end(Dddes) ? QString() : QString::fromLatin1(uf->UF);
}

QString CEPSemMasc(const QString &texto)
{
    const QString nu = SemSeparadores(texto);
    return nu.size() == TamCEP && SoDigitos(nu) ? nu : QString();
}

QString UFDoCEP(const QString &cep)
{
    const QString nu = CEPSemMasc(cep);
    if (nu.isEmpty())
        return {};
    const int prefixo = QStringView(nu).left(TamPrefixoCEP).toInt();
    const auto faixa =
        std::find_if(std::begin(Faixas), std::end(Faixas), [prefixo](const TFaixaDePrefixo &f) {
            return prefixo >= f.Primeiro && prefixo <= f.Ultimo;
        });
    return faixa == std::end(Faixas) ? QString() : QString::fromLatin1(faixa->UF);
}

QList<TFaixaCEP> CEPDaUF(const QString &uf)
{
    QList<TFaixaCEP> faixas;
    for (const TFaixaDePrefixo &f : Faixas) {
        if (uf == QLatin1String(f.UF))
            faixas.append({Prefixo(f.Primeiro) + QStringLiteral("000"),
                           Prefixo(f.Ultimo) + QStringLiteral("999")});
    }
    return faixas;
}

TTipoFone TipoDoFone(const QString &texto)
{
    constexpr int TamFixo = 8;
    constexpr int TamCelular = 9;
    const QString nu = SemSeparadores(texto);
    if (!SoDigitos(nu))
        return TTipoFone::Nenhum;
    if (nu.size() == TamFixo && nu.front() >= u'2' && nu.front() <= u'5')
        return TTipoFone::Fixo;
    if (nu.size() == TamCelular && nu.front() == u'9')
        return TTipoFone::Celular;
    return TTipoFone::Nenhum;
}

} // namespace ficha
