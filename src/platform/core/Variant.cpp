#include "platform/core/Variant.h"

#include "platform/core/Erros.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace ficha
{

namespace
{

[[noreturn]] void NaoConverte(const QString &texto, const char *para)
{
    throw EVariantError(
        QStringLiteral("Não é possível converter '%1' em %2").arg(texto, QString::fromUtf8(para)));
}

bool EhNumerico(const Variant &v)
{
    return v.EhInteiro() || v.EhDouble() || v.EhDataHora();
}

/** The value as a number where it is one, or a text that reads as one. */
std::optional<double> Numero(const Variant &v)
{
    if (EhNumerico(v))
        return v.AsFloat();
    double n = 0;
    if (v.EhTexto() && TextoParaDouble(v.AsString(), &n))
        return n;
    return std::nullopt;
}

} // namespace

bool TextoParaDouble(const QString &texto, double *numero)
{
    QString t = texto.trimmed();
    if (t.isEmpty() || t.contains(u'.'))
        return false;
    for (const QChar c : t) {
        if (!(c >= u'0' && c <= u'9') && c != u',' && c != u'+' && c != u'-' && c != u'e' &&
            c != u'E')
            return false;
    }
    t.replace(u',', u'.');
    bool ok = false;
    const double lido = QLocale::c().toDouble(t, &ok);
    if (!ok || !std::isfinite(lido))
        return false;
    *numero = lido;
    return true;
}

QString DoubleParaTexto(double numero)
{
    constexpr int Algarismos = 15;
    if (!std::isfinite(numero) || numero == 0)
        return QString::number(numero == 0 ? 0 : numero);
    const QString cientifico = QString::number(numero, 'e', Algarismos - 1);
    const int expoente = cientifico.mid(cientifico.indexOf(u'e') + 1).toInt();
    QString t = QString::number(numero, 'f', std::max(0, Algarismos - 1 - expoente));
    if (t.contains(u'.')) {
        qsizetype fim = t.size();
        while (t[fim - 1] == u'0')
            --fim;
        if (t[fim - 1] == u'.')
            --fim;
        t.truncate(fim);
    }
    return t.replace(u'.', u',');
}

QString Variant::AsString() const
{
    switch (valor.index()) {
    case 2:
        return QString::number(std::get<std::int32_t>(valor));
    case 3:
        return DoubleParaTexto(std::get<double>(valor));
    case 4:
        return std::get<QString>(valor);
    case 5:
        return std::get<TDateTime>(valor).Texto();
    default:
        return {};
    }
}

int Variant::AsInteger() const
{
    if (EhInteiro())
        return std::get<std::int32_t>(valor);
    const double n = std::nearbyint(AsFloat());
    if (!(n >= double(std::numeric_limits<std::int32_t>::min()) &&
          n <= double(std::numeric_limits<std::int32_t>::max())))
        NaoConverte(AsString(), "número inteiro");
    return int(n);
}

double Variant::AsFloat() const
{
    switch (valor.index()) {
    case 2:
        return std::get<std::int32_t>(valor);
    case 3:
        return std::get<double>(valor);
    case 4: {
        double n = 0;
        if (!TextoParaDouble(std::get<QString>(valor), &n))
            NaoConverte(std::get<QString>(valor), "número");
        return n;
    }
    case 5:
        return std::get<TDateTime>(valor).Dias();
    default:
        return 0;
    }
}

TDateTime Variant::AsDateTime() const
{
    if (EhDataHora())
        return std::get<TDateTime>(valor);
    if (!EhTexto())
        return TDateTime(AsFloat());
    const QString t = std::get<QString>(valor).trimmed();
    for (const auto &formato : {u"dd/MM/yyyy", u"dd/MM/yyyy HH:mm", u"dd/MM/yyyy HH:mm:ss"}) {
        const QDateTime lido = QDateTime::fromString(t, QString::fromUtf16(formato));
        if (lido.isValid())
            return TDateTime(lido);
    }
    NaoConverte(t, "data");
}

bool operator==(const Variant &a, const Variant &b)
{
    if (a.valor.index() < 2 || b.valor.index() < 2)
        return a.valor.index() == b.valor.index();
    if (a.EhTexto() && b.EhTexto())
        return std::get<QString>(a.valor) == std::get<QString>(b.valor);
    const auto x = Numero(a);
    const auto y = Numero(b);
    return x && y && *x == *y;
}

std::partial_ordering operator<=>(const Variant &a, const Variant &b)
{
    if (a.valor.index() < 2 && a.valor.index() == b.valor.index())
        return std::partial_ordering::equivalent;
    if (a.EhTexto() && b.EhTexto())
        return QString::compare(std::get<QString>(a.valor), std::get<QString>(b.valor)) <=> 0;
    if (a.valor.index() < 2 || b.valor.index() < 2)
        throw EVariantError(QStringLiteral("Um valor nulo não tem ordem"));
    const auto x = Numero(a);
    const auto y = Numero(b);
    if (!x)
        NaoConverte(a.AsString(), "número");
    if (!y)
        NaoConverte(b.AsString(), "número");
    return *x <=> *y;
}

} // namespace ficha
