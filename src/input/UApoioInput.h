#pragma once

#include "platform/core/TLinhas.h"

#include <QString>

class QWidget;

namespace ficha
{

/** Where the help phrases of the value frames stand in their lists. */
enum TFraseIndice : int {
    FraseJaExiste = 0,
    FraseObrigatorio = 1, /**< or the frame's own validity phrase */
    FraseMaxCaracteres = 2,
};

/** Switches a phrase on or off; one that the list does not hold yet is passed over. */
void LigarFrase(TLinhas &frases, int i, bool ligada);
/** Phrase 2 while a text has exactly the maximum length, naming it; no maximum (0) leaves the
 * phrase as it is. Both in characters. */
void LigarFraseDoMaximo(TLinhas &frases, qsizetype tamanho, int maximo);

/** Whether a typed character starts an alteration: the blank, digits, letters without accents, ç
 * and most signs; never Enter or another control character. */
bool IniciaEdicao(QChar caractere);

/** A number as a one-character literal for a char(1) column: the character of code n + 32 in
 * ISO8859_1, quoted. Codes above 255 are the caller's concern. */
QString SQLDoCaractere(int n);

/** Enter goes on to another input, entered as by Tab, and is used up: no default button of the form
 * hears it. Other keys pass, and so does Enter where that input is hidden or disabled. */
void AvancarComEnter(int &tecla, QWidget &para);

/** The refusal of a number outside its bounds; both are named, enforced or not. Without a label it
 * begins with "Deve". */
QString TextoForaDosLimites(const QString &rotulo, int minimo, int maximo);
/** The refusal of an identifier that is none, by its name ("CPF"). */
QString TextoDocumentoInvalido(const QString &documento);

} // namespace ficha
