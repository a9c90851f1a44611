#include "platform/edits/TDocEditBR.h"

#include "platform/core/Caracteres.h"
#include "platform/support/Textos.h"

#include <QKeyEvent>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace ficha
{

namespace
{

bool EhLugar(QChar c)
{
    return c == u'0' || c == u'S';
}

} // namespace

TDocEditBR::TDocEditBR(QWidget *owner, const QString &padraoNovo, const QString &nomeNovo)
    : TEditFormatadoBR(owner), padrao(padraoNovo), nome(nomeNovo)
{
    std::copy_if(padrao.begin(), padrao.end(), std::back_inserter(lugares), EhLugar);
    SetMaxLength(int(padrao.size()));
}

QString TDocEditBR::GetValor() const
{
    return Nu(TextoExibido()).value_or(TextoExibido().trimmed());
}

void TDocEditBR::SetValor(const QString &valor)
{
    SetText(valor);
}

void TDocEditBR::SetValorVariant(const Variant &valor)
{
    QString texto = valor.AsString().trimmed();
    if (valor.EhInteiro() || valor.EhDouble()) {
        const double numero = valor.AsFloat();
        const bool inteiro = numero >= 0 && std::trunc(numero) == numero;
        if (numero == 0)
            texto.clear();
        else if (inteiro)
            texto = texto.rightJustified(lugares.size(), u'0');
    }
    SetText(texto);
}

Variant TDocEditBR::GetValorVariant() const
{
    return GetValor();
}

QString TDocEditBR::SQLText() const
{
    return QuotedStr(GetValor());
}

std::optional<QString> TDocEditBR::SemSeparadores(const QString &texto) const
{
    QString nu;
    for (const QChar c : MaiusculasASCII(texto)) {
        if (EhDigito(c) || (c >= u'A' && c <= u'Z'))
            nu += c;
        else if (c != u'.' && c != u'-' && c != u'/' && !c.isSpace())
            return std::nullopt;
    }
    return nu;
}

QString TDocEditBR::Formatar(const QString &nu) const
{
    QString exibido;
    auto c = nu.begin();
    for (auto p = padrao.begin(); p != padrao.end() && c != nu.end(); ++p)
        exibido += EhLugar(*p) ? *c++ : *p;
    return exibido;
}

bool TDocEditBR::TemLugar(const QString &nu) const
{
    return nu.size() <= lugares.size() &&
           std::equal(nu.begin(), nu.end(), lugares.begin(),
                      [](QChar c, QChar lugar) { return lugar == u'S' || EhDigito(c); });
}

bool TDocEditBR::Completo(const QString &nu) const
{
    return nu.size() == lugares.size() && TemLugar(nu);
}

/** One that begins with a separator is something else: "-5". */
bool TDocEditBR::FormataDoPrograma(const QString &texto) const
{
    const QString aparado = texto.trimmed();
    return aparado.isEmpty() || aparado.front().isLetterOrNumber();
}

QString TDocEditBR::RecusaDaColagem(const QString &texto) const
{
    return QStringLiteral("O texto \"%1\" não é %2 e não foi colado.").arg(Citado(texto), nome);
}

void TDocEditBR::keyPressEvent(QKeyEvent *evento)
{
    const bool entra = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (!entra || !GetAutoExit()) {
        TEditFormatadoBR::keyPressEvent(evento);
        return;
    }
    const QPointer<TDocEditBR> vivo(this);
    Q_EMIT returnPressed();
    evento->accept();
    // A handler may have sent the focus somewhere already.
    if (vivo && hasFocus() && !focusNextPrevChild(true))
        evento->ignore();
}

} // namespace ficha
