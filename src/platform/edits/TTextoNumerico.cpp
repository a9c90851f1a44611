#include "platform/edits/TTextoNumerico.h"

#include "platform/core/Caracteres.h"
#include "platform/core/Variant.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ficha
{

namespace
{

constexpr int DigitosDoUsuario = 15;
constexpr int DigitosDoPrograma = 18;

bool SoDigitos(QStringView texto)
{
    return std::all_of(texto.begin(), texto.end(), EhDigito);
}

QString SemZerosNaFrente(const QString &digitos)
{
    qsizetype n = 0;
    while (n < digitos.size() && digitos.at(n) == u'0')
        ++n;
    return digitos.mid(n);
}

QString SemZerosNoFim(QString digitos)
{
    while (digitos.endsWith(u'0'))
        digitos.chop(1);
    return digitos;
}

/** The integer part as it is shown: padded, then grouped. */
QString ExibirInteiro(const QString &inteiro, const TFormatoNumerico &formato)
{
    QString exibido = inteiro.rightJustified(formato.MinDigitos, u'0');
    if (formato.Agrupa) {
        for (qsizetype i = exibido.size() - 3; i > 0; i -= 3)
            exibido.insert(i, u'.');
    }
    return exibido;
}

/** Whether a separator stands only before groups of exactly three digits, one to three in front. */
bool Agrupado(const QString &texto, QChar separador)
{
    const QStringList grupos = texto.split(separador);
    if (grupos.first().isEmpty() || grupos.first().size() > 3)
        return false;
    return std::all_of(grupos.begin() + 1, grupos.end(),
                       [](const QString &grupo) { return grupo.size() == 3; });
}

/** Splits at a decimal separator (npos for none) and drops the grouping before it; none when the
 * grouping is wrong or something is no digit. */
std::optional<TDecimal> Partir(const QString &texto, qsizetype decimal, QChar grupo)
{
    QString inteiro = decimal < 0 ? texto : texto.left(decimal);
    const QString decimais = decimal < 0 ? QString() : texto.mid(decimal + 1);
    if (inteiro.contains(grupo)) {
        if (!Agrupado(inteiro, grupo))
            return std::nullopt;
        inteiro.remove(grupo);
    }
    if ((inteiro.isEmpty() && decimais.isEmpty()) || !SoDigitos(inteiro) || !SoDigitos(decimais))
        return std::nullopt;
    return TDecimal{false, SemZerosNaFrente(inteiro), SemZerosNoFim(decimais)};
}

std::optional<TDecimal> LerSemSinal(const QString &texto)
{
    const qsizetype virgula = texto.lastIndexOf(u',');
    const qsizetype ponto = texto.lastIndexOf(u'.');
    if (virgula >= 0 && ponto >= 0)
        return virgula > ponto ? Partir(texto, virgula, u'.') : Partir(texto, ponto, u',');
    if (virgula >= 0)
        return texto.count(u',') > 1 ? Partir(texto, -1, u',') : Partir(texto, virgula, u'.');
    if (ponto >= 0 && !Agrupado(texto, u'.'))
        return Partir(texto, ponto, u'.');
    return Partir(texto, -1, u'.');
}

/** "R$" and blanks in front, blanks behind. */
QString SemMoeda(const QString &texto)
{
    QString nu = texto;
    nu.replace(QChar::Nbsp, u' ');
    nu = nu.trimmed();
    if (nu.startsWith(QLatin1String("R$"), Qt::CaseInsensitive))
        nu = nu.mid(2).trimmed();
    return nu;
}

/** Takes a minus off either end. */
bool TirarSinal(QString &texto)
{
    if (texto.startsWith(u'-'))
        texto.remove(0, 1);
    else if (texto.endsWith(u'-'))
        texto.chop(1);
    else
        return false;
    texto = texto.trimmed();
    return true;
}

} // namespace

int TFormatoNumerico::MaxEsq() const
{
    const int cabem = DigitosDoUsuario - Casas;
    return CasasEsq > 0 ? std::min(CasasEsq, cabem) : cabem;
}

void TFormatoNumerico::LerMascara(const QString &mascEsq)
{
    Agrupa = mascEsq.contains(u',');
    MinDigitos = std::max(1, int(mascEsq.count(u'0')));
}

std::optional<TDecimal> TDecimal::DeDouble(double numero)
{
    if (!std::isfinite(numero) || std::fabs(numero) >= 1e18)
        return std::nullopt;
    QString texto = DoubleParaTexto(numero);
    const bool negativo = TirarSinal(texto);
    std::optional<TDecimal> decimal = Partir(texto, texto.indexOf(u','), u'.');
    if (decimal)
        decimal->Negativo = negativo;
    return decimal;
}

TDecimal TDecimal::DeEscalado(std::int64_t escalado, int casas)
{
    const std::uint64_t modulo =
        escalado < 0 ? std::uint64_t(0) - std::uint64_t(escalado) : std::uint64_t(escalado);
    const QString digitos = QString::number(modulo).rightJustified(casas + 1, u'0');
    return {escalado < 0, SemZerosNaFrente(digitos.chopped(casas)),
            SemZerosNoFim(digitos.right(casas))};
}

std::optional<std::int64_t> TDecimal::Escalado(int casas) const
{
    const QString digitos = Inteiro + Decimais.left(casas).leftJustified(casas, u'0');
    if (SemZerosNaFrente(digitos).size() > DigitosDoPrograma)
        return std::nullopt;
    std::int64_t numero = digitos.toLongLong();
    if (Decimais.size() > casas && Decimais.at(casas) >= u'5')
        ++numero;
    if (numero > 999'999'999'999'999'999)
        return std::nullopt;
    return Negativo ? -numero : numero;
}

std::optional<TDecimal> LerDecimal(const QString &texto)
{
    QString nu = SemMoeda(texto);
    bool negativo = TirarSinal(nu);
    nu = SemMoeda(nu);
    if (!negativo)
        negativo = TirarSinal(nu);
    std::optional<TDecimal> decimal = LerSemSinal(nu);
    if (decimal)
        decimal->Negativo = negativo && !decimal->EhZero();
    return decimal;
}

QString FormatarEscalado(std::int64_t escalado, const TFormatoNumerico &formato)
{
    const TDecimal decimal = TDecimal::DeEscalado(escalado, formato.Casas);
    QString texto = decimal.Negativo ? QStringLiteral("-") : QString();
    texto += ExibirInteiro(decimal.Inteiro, formato);
    if (formato.Casas > 0)
        texto += u',' + decimal.Decimais.leftJustified(formato.Casas, u'0');
    return texto;
}

TTextoNumerico::TTextoNumerico(const QString &exibido, const TFormatoNumerico &como) : formato(como)
{
    const qsizetype virgula = exibido.indexOf(u',');
    QString inteiro = virgula < 0 ? exibido : exibido.left(virgula);
    Negativo = inteiro.startsWith(u'-');
    Inteiro = inteiro.removeIf([](QChar c) { return !EhDigito(c); });
    Decimais = virgula < 0 ? QString() : exibido.mid(virgula + 1);
    Normalizar();
}

QString TTextoNumerico::Exibir() const
{
    QString texto = Negativo ? QStringLiteral("-") : QString();
    texto += ExibirInteiro(Inteiro, formato);
    return formato.Casas > 0 ? texto + u',' + Decimais : texto;
}

std::int64_t TTextoNumerico::Escalado() const
{
    const std::int64_t modulo = (Inteiro + Decimais).toLongLong();
    return Negativo ? -modulo : modulo;
}

TTextoNumerico::TCursor TTextoNumerico::CursorEm(const QString &exibido, int posicao) const
{
    const qsizetype virgula = exibido.indexOf(u',');
    const int fim = int(virgula < 0 ? exibido.size() : virgula);
    if (posicao > fim)
        return {true, posicao - fim - 1};
    const auto direita = std::count_if(exibido.begin() + posicao, exibido.begin() + fim, EhDigito);
    return {false, int(direita)};
}

int TTextoNumerico::PosicaoDe(TCursor cursor) const
{
    const QString exibido = Exibir();
    const qsizetype virgula = exibido.indexOf(u',');
    int i = int(virgula < 0 ? exibido.size() : virgula);
    if (cursor.NosDecimais)
        return i + 1 + std::min(cursor.Digitos, formato.Casas);
    for (int faltam = cursor.Digitos; faltam > 0 && i > (Negativo ? 1 : 0); --i)
        faltam -= EhDigito(exibido.at(i - 1)) ? 1 : 0;
    return i;
}

bool TTextoNumerico::Digitar(QChar digito, TCursor &cursor)
{
    if (cursor.NosDecimais) {
        if (cursor.Digitos >= formato.Casas)
            return false;
        Decimais[cursor.Digitos++] = digito;
        return true;
    }
    const int esquerda = DigitosAEsquerda(cursor);
    cursor.Digitos = int(Inteiro.size()) - esquerda;
    if (digito == u'0' && esquerda == 0)
        return true; // a leading zero is none
    if (Inteiro.size() >= formato.MaxEsq())
        return false;
    Inteiro.insert(esquerda, digito);
    return true;
}

TTextoNumerico::TCursor TTextoNumerico::Remover(const QString &exibido, int inicio, int fim)
{
    const qsizetype achada = exibido.indexOf(u',');
    const int virgula = int(achada < 0 ? exibido.size() : achada);
    const TCursor de = CursorEm(exibido, inicio);
    const TCursor ate = CursorEm(exibido, fim);
    if (Negativo && inicio == 0 && fim > 0)
        Negativo = false;
    if (ate.NosDecimais) {
        const int primeiro = de.NosDecimais ? de.Digitos : 0;
        Decimais.remove(primeiro, ate.Digitos - primeiro);
    }
    if (inicio <= virgula) {
        const TCursor direita = ate.NosDecimais ? TCursor{false, 0} : ate;
        const int a = DigitosAEsquerda(de);
        const int b = DigitosAEsquerda(direita);
        Inteiro.remove(a, b - a);
        Normalizar();
        return direita;
    }
    Normalizar();
    return de;
}

bool TTextoNumerico::ApagarAnterior(TCursor &cursor)
{
    if (cursor.NosDecimais && cursor.Digitos > 0) {
        Decimais.remove(--cursor.Digitos, 1);
        Normalizar();
        return true;
    }
    cursor = cursor.NosDecimais ? TCursor{false, 0} : cursor;
    const int esquerda = DigitosAEsquerda(cursor);
    if (esquerda > 0) {
        Inteiro.remove(esquerda - 1, 1);
        cursor.Digitos = int(Inteiro.size()) - esquerda + 1;
        Normalizar();
    } else if (Negativo) {
        Negativo = false;
    } else {
        return false;
    }
    return true;
}

bool TTextoNumerico::ApagarSeguinte(TCursor &cursor)
{
    const int esquerda = DigitosAEsquerda(cursor);
    if (!cursor.NosDecimais && esquerda < Inteiro.size()) {
        Inteiro.remove(esquerda, 1);
        cursor.Digitos = int(Inteiro.size()) - esquerda;
        Normalizar();
        return true;
    }
    const int casa = cursor.NosDecimais ? cursor.Digitos : 0;
    if (casa >= formato.Casas)
        return false;
    Decimais.remove(casa, 1);
    Normalizar();
    return true;
}

/** No leading zeros, all decimals. */
void TTextoNumerico::Normalizar()
{
    Inteiro = SemZerosNaFrente(Inteiro);
    Decimais = Decimais.left(formato.Casas).leftJustified(formato.Casas, u'0');
}

/** Integer digits that count, left of a caret; padding zeros are none. */
int TTextoNumerico::DigitosAEsquerda(TCursor cursor) const
{
    return cursor.NosDecimais ? int(Inteiro.size())
                              : std::max(0, int(Inteiro.size()) - cursor.Digitos);
}

} // namespace ficha
