#include "platform/toolkit/EntradaDeTexto.h"

#include "platform/core/Latin1.h"

#include <QKeyEvent>

namespace ficha
{

bool EhTeclaDeTexto(const QKeyEvent &evento)
{
    const QString texto = evento.text();
    if (texto.isEmpty())
        return false;
    const Qt::KeyboardModifiers estado = evento.modifiers() & ~(Qt::KeypadModifier);
    if ((estado & Qt::ControlModifier) && !(estado & Qt::AltModifier))
        return false;
    const QChar primeiro = texto.at(0);
    return primeiro.isPrint() || primeiro.isSurrogate() ||
           primeiro.category() == QChar::Other_Format ||
           primeiro.category() == QChar::Other_PrivateUse;
}

QString NormalizarEntrada(const QString &texto, bool umaLinha)
{
    if (texto.size() == 1 && texto.at(0).isPrint())
        return texto;
    QString limpo = texto.normalized(QString::NormalizationForm_C);
    limpo.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar &c : limpo) {
        if (c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = u'\n';
        else if (c == u'\t')
            c = u' ';
    }
    if (umaLinha) {
        while (limpo.startsWith(u'\n'))
            limpo.remove(0, 1);
        while (limpo.endsWith(u'\n'))
            limpo.chop(1);
        limpo.replace(u'\n', u' ');
    }
    limpo.removeIf([](QChar c) { return c.category() == QChar::Other_Control && c != u'\n'; });
    return limpo;
}

namespace
{

/** A character for a message: itself where it can be seen, else its code. */
QString Citado(const QString &caractere)
{
    const char32_t codigo = caractere.toUcs4().value(0);
    return QChar::isPrint(codigo) && !QChar::isSpace(codigo)
               ? u'"' + caractere + u'"'
               : QStringLiteral("invisível ") + NomeDoCaractere(caractere);
}

} // namespace

QString RecusaDoTexto(const QString &texto)
{
    QString invalido;
    if (CabeEmLatin1(texto, &invalido))
        return {};
    return QStringLiteral(
               "O caractere %1 não pode ser gravado no banco de dados e foi recusado.\r\n"
               "Use apenas letras, números e sinais do teclado.")
        .arg(Citado(invalido));
}

} // namespace ficha
