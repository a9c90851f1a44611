#pragma once

#include <QString>

namespace ficha
{

/*
 * Message boxes and questions. Each asks the host's service of its name (core/Servicos.h) and
 * otherwise shows the library's own modal box over the active window.
 *
 * The library's box shows the first line of the text in bold and the rest below it; the text can
 * be selected and copied. Its buttons are "OK", or "Sim" and "Não", which S and N answer. Esc,
 * closing the box, and the box going away with its window all mean "Não". "Não" is also what
 * Enter answers, since it is the answer that changes nothing.
 *
 * Without a QApplication, and outside its thread, the text only goes to the log, and a question is
 * answered false.
 *
 * This floor also shows the errors that nobody caught, unless the host has a report of its own: in
 * an error box once the event loop comes round, the engine's own words under "Detalhes". The same
 * error is not shown again while its box stands open, and at most three boxes stand open at once;
 * the log has them all.
 */

/** A warning, titled "Aviso". The option is passed through to the host's service. */
void MensagemAviso(const QString &texto, int opcao = 0);
/** An error, titled "Erro". The option has no meaning here. */
void MensagemErro(const QString &texto, int opcao = 0);
/** Information, titled "Informação". The option has no meaning here. */
void MensagemInfo(const QString &texto, int opcao = 0);
/** The toolkit's plain message box, for a programmer's mistakes: no icon, nothing in bold, titled
 * with the program's name. */
void MensagemSimples(const QString &texto);
/** A yes-or-no question, titled "Confirmação"; true is yes. */
bool Pergunta(const QString &texto);
/** The question before a record is deleted: "Excluir o registro?\r\nO registro selecionado será
 * excluído definitivamente."; true is yes. */
bool PerguntaDeletar();

} // namespace ficha
