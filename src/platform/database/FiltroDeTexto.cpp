#include "platform/database/FiltroDeTexto.h"

#include "platform/core/Erros.h"
#include "platform/database/Colacao.h"
#include "platform/database/EDatabaseError.h"
#include "platform/database/TDataSet.h"

#include <QStringList>

namespace ficha
{

namespace
{

using TPergunta = std::function<bool()>;

/** A pattern with % and _ against a text, both folded already. */
bool Combina(QStringView texto, QStringView padrao)
{
    qsizetype t = 0, p = 0, estrela = -1, volta = 0;
    while (t < texto.size()) {
        if (p < padrao.size() && padrao[p] == u'%') {
            estrela = p++;
            volta = t;
        } else if (p < padrao.size() && (padrao[p] == u'_' || padrao[p] == texto[t])) {
            ++p;
            ++t;
        } else if (estrela >= 0) {
            p = estrela + 1;
            t = ++volta;
        } else {
            return false;
        }
    }
    while (p < padrao.size() && padrao[p] == u'%')
        ++p;
    return p == padrao.size();
}

/** Which outcomes of a comparison an operator lets through. */
class TOperador
{
public:
    explicit TOperador(QStringView s)
        : menor(s.startsWith(u'<')), igual(s.endsWith(u'=')),
          maior(s == u"<>" || s.startsWith(u'>'))
    {
    }
    bool Serve(int comparacao) const
    {
        return comparacao < 0 ? menor : comparacao > 0 ? maior : igual;
    }

private:
    bool menor, igual, maior;
};

/** Reads one filter from left to right. */
class TLeitor
{
public:
    TLeitor(const QString &lido, const TDataSet &de) : texto(lido), dataset(de) { Avancar(); }

    TPergunta Tudo()
    {
        TPergunta pergunta = Ou();
        if (!peca.isEmpty() || entreAspas)
            Recusar();
        return pergunta;
    }

private:
    [[noreturn]] void Recusar() const
    {
        throw EDatabaseError(
            TErroBanco::Sintaxe,
            QStringLiteral("Filtro inválido na posição %1: %2").arg(inicio + 1).arg(texto));
    }

    /** Cuts the next piece out: a name, a number, a quoted text, an operator. */
    void Avancar()
    {
        while (fim < texto.size() && texto[fim].isSpace())
            ++fim;
        inicio = fim;
        entreAspas = fim < texto.size() && texto[fim] == u'\'';
        if (entreAspas)
            return AvancarAspas();
        if (fim < texto.size() && DeNome(texto[fim])) {
            while (fim < texto.size() && DeNome(texto[fim]))
                ++fim;
        } else if (fim < texto.size()) {
            const QStringView dois = QStringView(texto).mid(fim, 2);
            fim += dois == u"<>" || dois == u"<=" || dois == u">=" ? 2 : 1;
        }
        peca = texto.mid(inicio, fim - inicio);
    }
    void AvancarAspas()
    {
        peca.clear();
        for (++fim; fim < texto.size(); ++fim) {
            if (texto[fim] == u'\'' && (++fim >= texto.size() || texto[fim] != u'\''))
                return;
            peca += texto[fim];
        }
        Recusar();
    }
    static bool DeNome(QChar c)
    {
        return c.isLetterOrNumber() || c == u'_' || c == u'.' || c == u'$' || c == u'-';
    }

    bool Vem(QStringView palavra) const
    {
        return !entreAspas && peca.compare(palavra, Qt::CaseInsensitive) == 0;
    }
    bool Tomar(QStringView palavra)
    {
        if (!Vem(palavra))
            return false;
        Avancar();
        return true;
    }
    void Exigir(QStringView palavra)
    {
        if (!Tomar(palavra))
            Recusar();
    }

    TPergunta Ou()
    {
        TPergunta a = E();
        while (Tomar(u"or"))
            a = [a, b = E()] { return a() || b(); };
        return a;
    }
    TPergunta E()
    {
        TPergunta a = Termo();
        while (Tomar(u"and"))
            a = [a, b = Termo()] { return a() && b(); };
        return a;
    }
    TPergunta Termo()
    {
        if (Tomar(u"not"))
            return [a = Termo()] { return !a(); };
        if (Tomar(u"(")) {
            TPergunta dentro = Ou();
            Exigir(u")");
            return dentro;
        }
        return Comparacao();
    }

    TPergunta Comparacao()
    {
        if (entreAspas || peca.isEmpty() || !DeNome(peca[0]))
            Recusar();
        const TField *campo = dataset.FieldByName(peca);
        Avancar();
        if (Tomar(u"is")) {
            const bool nao = Tomar(u"not");
            Exigir(u"null");
            return [campo, nao] { return campo->IsNull() != nao; };
        }
        const QString operador = peca.toLower();
        static const QStringList operadores = {
            QStringLiteral("="), QStringLiteral("<>"), QStringLiteral("<"),   QStringLiteral("<="),
            QStringLiteral(">"), QStringLiteral(">="), QStringLiteral("like")};
        if (entreAspas || !operadores.contains(operador))
            Recusar();
        Avancar();
        TPergunta pergunta = Contra(campo, operador);
        Avancar();
        return pergunta;
    }

    TPergunta Contra(const TField *campo, const QString &operador) const
    {
        if (operador == u"like") {
            if (!entreAspas)
                Recusar();
            return [campo, padrao = TColacao::Dobrar(peca)] {
                return !campo->IsNull() && Combina(TColacao::Dobrar(campo->AsString()), padrao);
            };
        }
        const auto tipo = campo->DataType();
        if (tipo == TFieldType::ftString || tipo == TFieldType::ftMemo) {
            if (!entreAspas)
                Recusar();
            return [campo, op = TOperador(operador), dobrado = TColacao::Dobrar(peca)] {
                return !campo->IsNull() && op.Serve(TColacao::Comparar(
                                               TColacao::Dobrar(campo->AsString()), dobrado, true));
            };
        }
        return [campo, op = TOperador(operador), numero = Numero(tipo)] {
            if (campo->IsNull())
                return false;
            const double v = campo->AsFloat();
            return op.Serve(v < numero ? -1 : v > numero ? 1 : 0);
        };
    }

    double Numero(TFieldType tipo) const
    {
        if (entreAspas) {
            const bool deData = tipo == TFieldType::ftDate || tipo == TFieldType::ftDateTime;
            try {
                return deData ? Variant(peca).AsDateTime().Dias() : Variant(peca).AsFloat();
            } catch (const EVariantError &) {
                Recusar();
            }
        }
        bool ok = false;
        const double numero = peca.toDouble(&ok);
        if (!ok)
            Recusar();
        return numero;
    }

    const QString texto;
    const TDataSet &dataset;
    qsizetype inicio = 0, fim = 0;
    QString peca;
    bool entreAspas = false;
};

} // namespace

std::function<bool()> LerFiltro(const QString &texto, const TDataSet &dataset)
{
    return TLeitor(texto, dataset).Tudo();
}

} // namespace ficha
