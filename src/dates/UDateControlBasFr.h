#pragma once

#include "base/UDBControlBasFr.h"

class QLabel;

namespace ficha
{

/**
 * Base of the inputs whose value is a date: it holds the date and has no editor of its own. The
 * value is a real number, the day count, always without a time of day. There is always a date:
 * Null is day 0, and an emptied input shows today.
 */
class TDateControlBasFr : public TDBControlBasFr
{
    Q_OBJECT

public:
    explicit TDateControlBasFr(TChave chave);

    /** A double, not a date-time. */
    Variant GetValor() const override;
    /** Null and unassigned are day 0, 30/12/1899; the time of day is dropped. EVariantError for
     * what is no number and no date-time. */
    void SetValor(const Variant &valor) override;
    /** Switches the phrases off and shows today. */
    void Zerar() override;
    /** dd/mm/yyyy. */
    QString AsString() const override;
    /** A literal that every dialect reads. */
    QString SQLString() const override;

    /** The date held. */
    TDateTime Data;
    QLabel *TitLabel = nullptr;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
