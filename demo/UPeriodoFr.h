#pragma once

#include "dates/UDatasBasFr.h"

#include <functional>

namespace comercial
{

/** A range of dates that tells when it is another one: after an edit was left or Enter was pressed
 * in it, and after the dialog was confirmed. */
class TPeriodoFr : public ficha::TDatasBasFr
{
    Q_OBJECT

public:
    using TDatasBasFr::TDatasBasFr;

    void Create(QWidget *owner) override;
    /** The thirty days up to today; announces nothing. */
    void UltimosTrintaDias();

    std::function<void()> OnMudou;

protected:
    void DtSelectBitBtnClick(QObject *sender) override;
    void MaskEdit1Exit(QObject *sender) override;
    void MaskEdit2Exit(QObject *sender) override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void Avisar();

    QString avisado;
};

} // namespace comercial
