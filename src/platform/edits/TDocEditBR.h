#pragma once

#include "platform/core/Variant.h"
#include "platform/edits/TEditFormatadoBR.h"

namespace ficha
{

/**
 * Base of the edits for an identifier of fixed length (CPF, CNPJ, CEP). See TEditFormatadoBR for
 * the keys.
 *
 * Three forms: the text is what is shown, separators included ("529.982.247-25"; as far as typed,
 * "529.9"); the value is the characters alone ("52998224725"), as a column keeps them; the SQL text
 * is the value in quotes, '' when there is none, as with every text. (A column that allows one
 * without the identifier but no two alike wants Null there: nullif(<SQL text>, '').)
 *
 * A text that the mask could not show ("ISENTO", a digit too many) is kept, shown and given as it
 * is, blanks around it aside: nothing that stood in a column is lost by being read.
 */
class TDocEditBR : public TEditFormatadoBR
{
    Q_OBJECT
    Q_PROPERTY(QString Valor READ GetValor WRITE SetValor USER true)

public:
    /** The characters without their separators. */
    QString GetValor() const;
    /** Bare or masked, whole or in part; never filled up with zeros. */
    void SetValor(const QString &valor);

    /** Null, unassigned and 0 empty the edit. A number that was kept without its leading zeros
     * (1045001 for the CEP 01045-001) gets them back, where it is whole and not too long; a text
     * gets none, since a text column has them. */
    virtual void SetValorVariant(const Variant &valor);
    /** A text, the empty one too. */
    virtual Variant GetValorVariant() const;
    /** The value in quotes, for a column of text. */
    virtual QString SQLText() const;
    /** Whether it is one: complete, and with its check digits right where it has some. An empty one
     * is not. */
    virtual bool Valido() const = 0;

protected:
    /** padrao: 0 a digit, S a digit or letter, all else a separator. nome: for messages, with its
     * article ("um CPF"). maxLength becomes the pattern's. */
    TDocEditBR(QWidget *owner, const QString &padrao, const QString &nome);

    std::optional<QString> SemSeparadores(const QString &texto) const override;
    QString Formatar(const QString &nu) const override;
    bool TemLugar(const QString &nu) const override;
    bool Completo(const QString &nu) const override;
    bool FormataDoPrograma(const QString &texto) const override;
    QString RecusaDaColagem(const QString &texto) const override;

    /** Enter moves to the next control too, where AutoExit is on. */
    void keyPressEvent(QKeyEvent *evento) override;

private:
    QString padrao;
    QString lugares; /**< the pattern without its separators */
    QString nome;
};

} // namespace ficha
