#pragma once

#include <QString>

#include <vector>

namespace ficha
{

/** One statement of a script, without its terminator. */
struct TComandoDoScript {
    QString texto;
    int linha = 1; /**< of the statement's first character, from 1 */
};

/**
 * Cuts a script into its statements. The terminator is ";" until "set term" changes it; it does not
 * count inside quotes ('...', "...", q'{...}'), comments (two dashes to the end of the line, and
 * slash-star). Statements of nothing but blanks and comments are left out, and so are "commit" and
 * the "set" lines that only mean something to the engine's own command-line tool (term, sql
 * dialect, names, autoddl).
 */
std::vector<TComandoDoScript> SepararScript(const QString &script);

} // namespace ficha
