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
