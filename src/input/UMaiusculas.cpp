#include "input/UMaiusculas.h"

#include <QLineEdit>
#include <QValidator>

namespace ficha
{

namespace
{

/** Accepts every text, as capitals. */
class TMaiusculas : public QValidator
{
public:
    using QValidator::QValidator;
    State validate(QString &texto, int &) const override
    {
        texto = Maiusculas(texto);
        return Acceptable;
    }
};

} // namespace

QChar Maiuscula(QChar c)
{
    constexpr char16_t UltimoLatin1 = 0xFF;
    // Most characters are these, and the tables of all the world's capitals need not be asked.
    if (c.unicode() < 0x80)
        return c >= u'a' && c <= u'z' ? QChar(char16_t(c.unicode() - 0x20)) : c;
    const QChar maiuscula = c.toUpper();
    return c.unicode() <= UltimoLatin1 && maiuscula.unicode() > UltimoLatin1 ? c : maiuscula;
}

QString Maiusculas(QString texto)
{
    for (QChar &c : texto)
        c = Maiuscula(c);
    return texto;
}

void SempreMaiusculas(QLineEdit &edit)
{
    edit.setValidator(new TMaiusculas(&edit));
    edit.setText(edit.text());
}

} // namespace ficha
