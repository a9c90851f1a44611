#pragma once

#include "input/ULabeledEditTextoBasFr.h"

class QLabel;

namespace ficha
{

/**
 * A short description with a live count of its characters beside the caption: green up to MaxLen,
 * red above.
 *
 * MaxLen only advises: the edit takes longer texts, and the frame accepts everything on purpose.
 * That it is marked required and unique shows in its phrases alone.
 */
class TDescrReduzLabeledEditTextoBasFr : public TLabeledEditTextoBasFr
{
    Q_OBJECT
    /** Advised maximum, in characters. */
    Q_PROPERTY(int MaxLen READ GetMaxLen WRITE SetMaxLen)
    /** What the caption starts with, for example the field's name. */
    Q_PROPERTY(QString Cap READ GetCap WRITE SetCap)

public:
    explicit TDescrReduzLabeledEditTextoBasFr(TChave chave);

    /** Makes the counter. */
    void Create(QWidget *owner) override;

    /** Rebuilds the caption and the counter beside it; writes only what changes. */
    void Atualizar() override;
    /** Always true, and asks nothing. */
    bool ValorAceitavel() override;

    int GetMaxLen() const { return maxLen; }
    void SetMaxLen(int caracteres);
    QString GetCap() const { return cap; }
    void SetCap(const QString &texto);

    /** Number of characters of the text as it stands, blanks included; owned by the frame. */
    QLabel *ContadorLabel = nullptr;

protected:
    /** Does nothing: this frame is never checked on leaving. */
    void FrameExit(QObject *sender) override;
    /** Takes the focus back should the value ever be refused. */
    virtual void LabeledEdit1Exit(QObject *sender);

private:
    void CriarContador();

    int maxLen = 30;
    QString cap;
};

} // namespace ficha
