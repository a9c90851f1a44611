#pragma once

#include "dates/UDataBasFr.h"
#include "forms/UTabLinearBasF.h"
#include "input/UContatoBasFr.h"

#include <QHash>

namespace bancada
{

/**
 * A maintenance screen with forty frames on its fields page, of every sort that keeps a column and
 * the two composites whose inputs do, made as a host program makes its own: the look in a layout,
 * the columns bound in PrepararTab.
 */
class TQuadrosF : public ficha::TTabLinearBasF
{
    Q_OBJECT

public:
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("Quarenta quadros"); }

    /** A frame of the fields page by name. */
    ficha::TBasFr *Quadro(const char *nome) const { return quadros.value(nome); }
    ficha::TDataBasFr *NascimentoFr = nullptr;
    ficha::TContatoBasFr *ContatoFr = nullptr;
    /** What opening the list and filling the code combos took at the creation, in seconds
     * of the processor. */
    double SegundosDoBanco = 0;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void PrepararTab() override;

private:
    void PegarColuna(const char *coluna, QWidget *controle, int largura = 0);

    QHash<QByteArray, ficha::TBasFr *> quadros;
};

/** The script of the screen's tables, with a few records. */
QString RoteiroDosQuadros();

} // namespace bancada
