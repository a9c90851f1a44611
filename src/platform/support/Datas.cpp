#include "platform/support/Datas.h"

#include "platform/core/Relogio.h"
#include "platform/support/Textos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

namespace ficha
{

namespace
{

/** The database knows no earlier year. */
constexpr int PrimeiroAno = 1;

TDateTime ComHoraDe(QDate dia, TDateTime momento)
{
    return TDateTime(QDateTime(dia, momento.Hora()));
}

/** The day of bare digits; invalid when they are none. */
QDate DiaDosDigitos(const QString &texto)
{
    constexpr int ComAnoCurto = 6;
    constexpr int ComAnoLongo = 8;
    qsizetype tamanho = texto.size();
    while (tamanho > 0 && texto[tamanho - 1] == u' ')
        --tamanho;
    const QString t = texto.left(tamanho);
    if (!EhSoDig(t) || (tamanho != ComAnoCurto && tamanho != ComAnoLongo))
        return {};
    const int ano = tamanho == ComAnoLongo
                        ? t.mid(4).toInt()
                        : AnoPeloSeculo(t.mid(4).toInt(), SeculoBasePadrao(), true);
    return ano < PrimeiroAno ? QDate() : QDate(ano, t.mid(2, 2).toInt(), t.left(2).toInt());
}

QString DoisDigitos(int n)
{
    return IntToStrZero(n, 2);
}

constexpr std::array DiasDaSemana = {u"segunda-feira", u"terça-feira", u"quarta-feira",
                                     u"quinta-feira",  u"sexta-feira", u"sábado",
                                     u"domingo"};
constexpr std::array Meses = {u"janeiro",  u"fevereiro", u"março",    u"abril",
                              u"maio",     u"junho",     u"julho",    u"agosto",
                              u"setembro", u"outubro",   u"novembro", u"dezembro"};
constexpr int TamanhoAbreviado = 3;

QString NomeOuNumero(int n, const char16_t *nome, qsizetype letras)
{
    constexpr qsizetype NomeInteiro = 4;
    if (letras >= NomeInteiro)
        return QString::fromUtf16(nome);
    if (letras == TamanhoAbreviado)
        return QString::fromUtf16(nome).left(TamanhoAbreviado);
    return letras == 2 ? DoisDigitos(n) : QString::number(n);
}

/** One run of the same format letter; empty when the letter is none. */
QString TrechoDaData(QChar letra, qsizetype vezes, QDate dia, QTime hora, bool depoisDeHora)
{
    const auto curto = [vezes](int n) { return vezes >= 2 ? DoisDigitos(n) : QString::number(n); };
    switch (letra.unicode()) {
    case u'd':
        return NomeOuNumero(dia.day(), DiasDaSemana[std::size_t(dia.dayOfWeek() - 1)], vezes);
    case u'm':
        return depoisDeHora ? curto(hora.minute())
                            : NomeOuNumero(dia.month(), Meses[std::size_t(dia.month() - 1)], vezes);
    case u'y':
        return vezes > 2 ? IntToStrZero(dia.year(), 4) : DoisDigitos(dia.year() % 100);
    case u'h':
        return curto(hora.hour());
    case u'n':
        return curto(hora.minute());
    case u's':
        return curto(hora.second());
    default:
        return IntToStrZero(hora.msec(), int(vezes));
    }
}

} // namespace

bool PassouTempo(TDateTime desde, double intervaloEmDias)
{
    constexpr double MsPorDia = 86400000.0;
    const double passados = std::round((Agora().Dias() - desde.Dias()) * MsPorDia);
    return passados >= 0 && passados < std::round(intervaloEmDias * MsPorDia);
}

TDateTime DataInteira(TDateTime data)
{
    return data.DataInteira();
}

TDateTime PrimeiroDateMes(TDateTime data)
{
    const QDate dia = data.Data();
    return TDateTime(QDate(dia.year(), dia.month(), 1));
}

TDateTime UltimoDateMes(TDateTime data)
{
    const QDate dia = data.Data();
    return TDateTime(QDate(dia.year(), dia.month(), dia.daysInMonth()));
}

TDateTime IncMonth(TDateTime data, int n)
{
    return ComHoraDe(data.Data().addMonths(n), data);
}

TDateTime MesAnt(TDateTime data)
{
    return IncMonth(data, -1);
}

int YearsBetween(TDateTime a, TDateTime b)
{
    const QDateTime cedo = std::min(a, b).DataHora();
    const QDateTime tarde = std::max(a, b).DataHora();
    const auto noAno = [](const QDateTime &m) {
        return std::tuple(m.date().month(), m.date().day(), m.time());
    };
    const int anos = tarde.date().year() - cedo.date().year();
    return noAno(tarde) < noAno(cedo) ? anos - 1 : anos;
}

QString FormatDateTime(const QString &formato, TDateTime data)
{
    const QDate dia = data.Data();
    const QTime hora = data.Hora();
    if (!dia.isValid())
        return {};
    QString texto;
    QChar anterior;
    for (qsizetype i = 0; i < formato.size();) {
        const QChar c = formato[i];
        if (c == u'\'' || c == u'"') {
            const qsizetype fecha = formato.indexOf(c, i + 1);
            texto += formato.mid(i + 1, fecha < 0 ? -1 : fecha - i - 1);
            i = fecha < 0 ? formato.size() : fecha + 1;
            continue;
        }
        const QChar letra = c.toLower();
        if (!QStringLiteral("dmyhnsz").contains(letra)) {
            texto += c;
            ++i;
            continue;
        }
        qsizetype fim = i;
        while (fim < formato.size() && formato[fim].toLower() == letra)
            ++fim;
        texto += TrechoDaData(letra, fim - i, dia, hora, anterior == u'h');
        anterior = letra;
        i = fim;
    }
    return texto;
}

int AnoPeloSeculo(int aa, int seculoBase, bool zeroEhCem)
{
    if (seculoBase >= 100)
        return seculoBase + (aa == 0 && zeroEhCem ? 100 : aa);
    return seculoBase < aa ? 1900 + aa : 2000 + aa;
}

int SeculoBasePadrao()
{
    constexpr int AnosParaTras = 80;
    return (Hoje().Data().year() - AnosParaTras) % 100;
}

TDateTime StrLimpaToDate(const QString &texto)
{
    const QDate dia = DiaDosDigitos(texto);
    return dia.isValid() ? TDateTime(dia) : SemData;
}

bool StrLimpaIsValidDate(const QString &texto)
{
    return DiaDosDigitos(texto).isValid();
}

QString DateToStrLimpa(TDateTime data)
{
    return FormatDateTime(QStringLiteral("ddmmyyyy"), data);
}

QString DatesToStrConfig(TDateTime inicio, TDateTime fim)
{
    const auto lado = [](TDateTime data) {
        return DataInteira(data) == SemData ? QString() : DateToStrLimpa(data);
    };
    return lado(inicio) + u';' + lado(fim);
}

void StrConfigToDates(const QString &texto, TDateTime &inicio, TDateTime &fim)
{
    inicio = StrLimpaToDate(texto.section(u';', 0, 0).trimmed());
    fim = StrLimpaToDate(texto.section(u';', 1, 1).trimmed());
}

QString DataSQL(TDateTime data)
{
    return QuotedStr(FormatDateTime(QStringLiteral("yyyy-mm-dd"), data));
}

QString DataSQLFirebird(TDateTime data)
{
    return QuotedStr(FormatDateTime(QStringLiteral("dd.mm.yyyy"), data));
}

QString DataHoraSQLFirebird(TDateTime momento)
{
    return QuotedStr(FormatDateTime(QStringLiteral("dd.mm.yyyy hh:nn:ss.zzz"), momento));
}

} // namespace ficha
