#include "platform/core/Caracteres.h"

namespace ficha
{

QString MaiusculasASCII(QString texto)
{
    for (QChar &c : texto) {
        if (c >= u'a' && c <= u'z')
            c = QChar(char16_t(c.unicode() - u'a' + u'A'));
    }
    return texto;
}

} // namespace ficha
