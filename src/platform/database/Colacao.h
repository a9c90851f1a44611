#pragma once

#include <QAnyStringView>
#include <QString>

#include <vector>

namespace ficha
{

/**
 * The Brazilian order of texts: accents and case do not part "a" from "á" at the first level, they
 * only decide between texts that are otherwise equal ("avo" before "avó" before "Avó").
 *
 * It is the collation of the locale pt_BR. Texts of the everyday letters are turned into keys of a
 * byte or two per character that compare with memcmp; a text with any other character goes to the
 * locale's own collator, with the same outcome.
 */
class TColacao
{
public:
    /** Appends a text's key, of bytes from 1 up; false, nothing appended, for a text that needs the
     * collator. semCaixa leaves the case out: "a" and "A" are then equal. */
    static bool AcrescentarChave(QAnyStringView texto, bool semCaixa,
                                 std::vector<unsigned char> &saida);
    /** Below, equal to or above zero. */
    static int Comparar(QAnyStringView a, QAnyStringView b, bool semCaixa);
    /** For each text its place among all of them, equal texts having the same. By the collator. */
    static std::vector<quint32> Postos(const std::vector<QString> &textos, bool semCaixa);
    /** The text as searches see it: small letters without accents. */
    static QString Dobrar(QAnyStringView texto);
    /** Whether a text, seen so, begins with a folded one or has it somewhere. Without a copy: asked
     * of every row of a list at every key. */
    static bool ComecaCom(QAnyStringView texto, QStringView dobrado);
    static bool Contem(QAnyStringView texto, QStringView dobrado);
};

} // namespace ficha
