#pragma once

#include <QString>

class QLineEdit;

namespace ficha
{

/** A character as a capital, accented letters too. The letters whose capital the database cannot
 * hold (ÿ, µ, ß) stay as they are. */
QChar Maiuscula(QChar c);
/** The same for a text, character by character. */
QString Maiusculas(QString texto);

/** Keeps the text of an edit in capitals, whether it is typed, pasted, dropped or written by the
 * program; every change is still announced once. Not for edits with a mask. */
void SempreMaiusculas(QLineEdit &edit);

} // namespace ficha
