#pragma once

#include "base/UBasFr.h"

namespace ficha
{

class TDTPBasFr;

/** A range of dates, "De" and "Até", both ends always given. Fresh, both are today. */
class TDatasFr : public TBasFr
{
    Q_OBJECT

public:
    explicit TDatasFr(TChave chave);

    void Create(QWidget *owner) override;

    /** True when the end is on or after the start; otherwise the user is told, in an information
     * box (kept as it is), and it is false. */
    bool DadosOk();

    TDTPBasFr *DTPFr1 = nullptr;
    TDTPBasFr *DTPFr2 = nullptr;

protected:
    void PegarComponentes() override;
    /** What the user does in the pickers; handed on to the frames that they are in. */
    virtual void DTPFr1DateTimePicker1Change(QObject *sender);
    virtual void DTPFr1DateTimePicker1Click(QObject *sender);
    virtual void DTPFr2DateTimePicker1Change(QObject *sender);
    virtual void DTPFr2DateTimePicker1Click(QObject *sender);
    /** Does nothing. */
    virtual void StaticText1Click(QObject *sender);
};

} // namespace ficha
