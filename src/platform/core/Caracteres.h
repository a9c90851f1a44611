#pragma once

#include <QString>

namespace ficha
{

/** 0 to 9; digits of other scripts are none. */
inline bool EhDigito(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/** The letters a to z as capitals; every other character, accented letters too, as it is. */
QString MaiusculasASCII(QString texto);

} // namespace ficha
