#pragma once

#include <QStringList>

namespace ficha
{
class TComboCodOpcionalFr;
class TDatasBasFr;
class TNumOpcionalFr;
class TRadioGroup;
} // namespace ficha

namespace comercial
{

/**
 * What a filter panel holds, as a condition for the list's query and in words for the line above
 * the list. Each operation adds the criterion of one input of the panel, or nothing when it is
 * switched off or left empty. Columns are written as the query names them.
 */
class TCriterios
{
public:
    /** A group, of the combo box's entries; switched on without a choice it chooses nothing. */
    void JuntarGrupo(const ficha::TComboCodOpcionalFr &fr, const QString &coluna);
    /** A limit on a column, with ">=" or "<=". The phrase goes before the number. */
    void JuntarNumero(const ficha::TNumOpcionalFr &fr, const QString &coluna, const QString &sinal,
                      const QString &frase);
    /** All, those with 'S' in the column, or those with 'N', in the order of the options. */
    void JuntarSituacao(const ficha::TRadioGroup &grupo, const QString &coluna);
    /** The days of registration, first and last one included. */
    void JuntarCadastro(ficha::TDatasBasFr &fr, const QString &coluna);

    bool Vazio() const { return condicoes.isEmpty(); }
    /** "where ... " with a space at its end; empty without a criterion. */
    QString Where() const;
    /** What the list shows, of things with this name ("produtos"). */
    QString Status(const QString &coisas) const;

private:
    void Juntar(const QString &condicao, const QString &frase);

    QStringList condicoes;
    QStringList frases;
};

/** Switches a criterion off and empties it. */
void Desligar(ficha::TComboCodOpcionalFr &fr);
void Desligar(ficha::TNumOpcionalFr &fr);

} // namespace comercial
