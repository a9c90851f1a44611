#include "bench/Medidas.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <limits>

namespace bancada
{

namespace
{

QJsonArray ParaArranjo(const QVector<double> &valores)
{
    QJsonArray arranjo;
    for (const double v : valores)
        arranjo.append(v);
    return arranjo;
}

QVector<double> DeArranjo(const QJsonArray &arranjo)
{
    QVector<double> valores;
    for (const auto &v : arranjo)
        valores.append(v.toDouble());
    return valores;
}

QJsonObject ParaObjeto(const TGrandeza &g)
{
    return {{"medida", g.Medida}, {"contador", g.Contador}, {"unidade", int(g.Unidade)}};
}

TGrandeza DeObjeto(const QJsonObject &o)
{
    return {o["medida"].toString(), o["contador"].toString(), TUnidade(o["unidade"].toInt())};
}

QJsonObject ParaObjeto(const TExigencia &e)
{
    return {{"linha", e.Linha},
            {"trabalho", e.Trabalho},
            {"nosso", ParaObjeto(e.Nosso)},
            {"par", ParaObjeto(e.Par)},
            {"sentido", int(e.Sentido)},
            {"limite", e.Limite},
            {"verificacao", e.NaVerificacao},
            {"nota", e.Nota}};
}

TExigencia ExigenciaDe(const QJsonObject &o)
{
    return {o["linha"].toString(),           o["trabalho"].toString(),
            DeObjeto(o["nosso"].toObject()), DeObjeto(o["par"].toObject()),
            TSentido(o["sentido"].toInt()),  o["limite"].toDouble(),
            o["verificacao"].toDouble(),     o["nota"].toString()};
}

} // namespace

QJsonObject TResultado::ParaJson() const
{
    QJsonObject series;
    for (auto serie = Series.begin(); serie != Series.end(); ++serie) {
        QJsonObject contadores;
        for (auto c = serie->Contadores.begin(); c != serie->Contadores.end(); ++c)
            contadores[c.key()] = ParaArranjo(c.value());
        series[serie.key()] =
            QJsonObject{{"segundos", ParaArranjo(serie->Segundos)}, {"contadores", contadores}};
    }
    QJsonArray exigencias;
    for (const TExigencia &e : Exigencias)
        exigencias.append(ParaObjeto(e));
    return {{"series", series}, {"exigencias", exigencias}};
}

TResultado TResultado::DeJson(const QJsonObject &objeto)
{
    TResultado r;
    const QJsonObject series = objeto["series"].toObject();
    for (const QString &nome : series.keys()) {
        const QJsonObject o = series[nome].toObject();
        TSerie &serie = r.Series[nome];
        serie.Segundos = DeArranjo(o["segundos"].toArray());
        const QJsonObject contadores = o["contadores"].toObject();
        for (const QString &c : contadores.keys())
            serie.Contadores[c] = DeArranjo(contadores[c].toArray());
    }
    for (const auto &e : objeto["exigencias"].toArray())
        r.Exigencias.append(ExigenciaDe(e.toObject()));
    return r;
}

double Mediana(QVector<double> valores)
{
    if (valores.isEmpty())
        return std::numeric_limits<double>::quiet_NaN();
    std::sort(valores.begin(), valores.end());
    const qsizetype meio = valores.size() / 2;
    return valores.size() % 2 ? valores[meio] : (valores[meio - 1] + valores[meio]) / 2;
}

double Quantil(QVector<double> valores, double p)
{
    if (valores.isEmpty())
        return std::numeric_limits<double>::quiet_NaN();
    std::sort(valores.begin(), valores.end());
    const auto posto = qsizetype(std::ceil(p * double(valores.size())));
    return valores[std::clamp<qsizetype>(posto, 1, valores.size()) - 1];
}

} // namespace bancada
