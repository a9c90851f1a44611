#pragma once

#include <QString>

#include <functional>

namespace ficha
{

class TCustomEdit;

/**
 * Runs the handler on a text that the user pastes or drops into an edit, before the edit takes it:
 * brought into one line, nothing but ISO8859_1 in it, not yet cut to the edit's limit.
 *
 * The handler may change the text. What it answers is why the text is refused: the edit then stays
 * as it is, its selection included, and the user is told; an empty answer takes the text. A text
 * that the handler empties is no input. Handlers run Protegido, in the order in which they were
 * added, and go with their edit; an error in one refuses the text, too.
 */
void AoColar(TCustomEdit *edit, std::function<QString(QString &texto)> handler);

/** For the edit: passes a text through its handlers and answers why it is refused. */
QString PassarColagem(const TCustomEdit &edit, QString &texto);

} // namespace ficha
