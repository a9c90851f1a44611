#include "platform/database/Script.h"

#include <QRegularExpression>

#include <algorithm>

namespace ficha
{

namespace
{

/** Walks a script and tells text that counts from quotes and comments. */
class TLeitorDeScript
{
public:
    explicit TLeitorDeScript(const QString &texto) : script(texto) {}

    std::vector<TComandoDoScript> Ler()
    {
        while (i < script.size())
            Passo();
        Terminar(0);
        return std::move(comandos);
    }

private:
    void Passo()
    {
        const QChar c = script[i];
        if (ComecaCom(QStringLiteral("--")))
            PularAte(QStringLiteral("\n"), 0);
        else if (ComecaCom(QStringLiteral("/*")))
            PularAte(QStringLiteral("*/"), 2);
        else if (ComecaCom(terminador))
            Terminar(terminador.size());
        else if (c == u'\'' || c == u'"')
            CopiarAteFechar(QString(c));
        else if (EhAspasAlternativas())
            CopiarAspasAlternativas();
        else
            Copiar(1);
    }

    bool ComecaCom(const QString &s) const { return QStringView(script).mid(i).startsWith(s); }

    /** Comments stay out of the statement; a blank takes their place. */
    void PularAte(const QString &fim, qsizetype mais)
    {
        const qsizetype achado = script.indexOf(fim, i + mais);
        const qsizetype proximo = achado < 0 ? script.size() : achado + mais;
        linha += int(QStringView(script).mid(i, proximo - i).count(u'\n'));
        i = proximo;
        if (temTexto)
            atual += u' ';
    }

    void Copiar(qsizetype n)
    {
        const QStringView pedaco = QStringView(script).mid(i, n);
        if (!temTexto && !pedaco.trimmed().isEmpty()) {
            temTexto = true;
            linhaDoComando = linha;
        }
        if (temTexto)
            atual += pedaco;
        linha += int(pedaco.count(u'\n'));
        i += pedaco.size();
    }

    /** A doubled quote closes and opens again, which comes to the same. */
    void CopiarAteFechar(const QString &aspas)
    {
        const qsizetype fim = script.indexOf(aspas, i + 1);
        Copiar(fim < 0 ? script.size() - i : fim + 1 - i);
    }

    bool EhAspasAlternativas() const
    {
        const bool q = script[i] == u'q' || script[i] == u'Q';
        const bool palavra = i > 0 && (script[i - 1].isLetterOrNumber() || script[i - 1] == u'_');
        return q && !palavra && i + 2 < script.size() && script[i + 1] == u'\'';
    }

    void CopiarAspasAlternativas()
    {
        static const QString abre = QStringLiteral("({[<");
        static const QString fecha = QStringLiteral(")}]>");
        const QChar delimitador = script[i + 2];
        const qsizetype par = abre.indexOf(delimitador);
        const QString fim = QString(par < 0 ? delimitador : fecha[par]) + u'\'';
        const qsizetype achado = script.indexOf(fim, i + 3);
        Copiar(achado < 0 ? script.size() - i : achado + 2 - i);
    }

    void Terminar(qsizetype pular)
    {
        i += pular;
        const QString texto = atual.trimmed();
        if (!texto.isEmpty() && !TrocaTerminador(texto) && !SoDaFerramenta(texto))
            comandos.push_back({texto, linhaDoComando});
        atual.clear();
        temTexto = false;
    }

    bool TrocaTerminador(const QString &texto)
    {
        static const QRegularExpression setTerm(QStringLiteral("^set\\s+term\\s+(\\S+)$"),
                                                QRegularExpression::CaseInsensitiveOption);
        const auto achado = setTerm.match(texto);
        if (!achado.hasMatch())
            return false;
        terminador = achado.captured(1);
        return true;
    }

    static bool SoDaFerramenta(const QString &texto)
    {
        static const QRegularExpression ferramenta(
            QStringLiteral("^(commit(\\s+work)?|set\\s+(sql\\s+dialect|names|autoddl)\\b.*)$"),
            QRegularExpression::CaseInsensitiveOption);
        return ferramenta.match(texto).hasMatch();
    }

    const QString &script;
    QString terminador = QStringLiteral(";");
    QString atual;
    std::vector<TComandoDoScript> comandos;
    qsizetype i = 0;
    int linha = 1;
    int linhaDoComando = 1;
    bool temTexto = false;
};

} // namespace

std::vector<TComandoDoScript> SepararScript(const QString &script)
{
    return TLeitorDeScript(script).Ler();
}

} // namespace ficha
