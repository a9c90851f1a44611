#pragma once

#include "platform/hostforms/TChildMDIBasF.h"

namespace comercial
{

/**
 * A gallery of the whole library: every frame class, each with its name, alive and ready to be
 * typed into; every dialog and window, behind a button; the bases, and the classes that are not
 * seen, by their names. What is registered with the library appears here by itself.
 *
 * Frames stand with their kind. A frame that cannot be made, or shows nothing until a program
 * supplies something, is represented by one of this program's own that derives from it.
 */
class TMostruarioF : public ficha::TChildMDIBasF
{
    Q_OBJECT

public:
    using TChildMDIBasF::TChildMDIBasF;

protected:
    void FormCreate(QObject *sender) override;

private:
    /** What a section shows of a class: its name, and what is shown under it, if anything. */
    struct TAmostra {
        QString Classe;
        QWidget *Frame = nullptr;
        QString Observacao;
    };

    TAmostra Amostra(const QString &classe, QWidget *lista);
    void MostrarFrames(QWidget *lista);
    void MostrarTipo(QWidget *lista, const QString &titulo, const QList<TAmostra> &amostras);
    void MostrarJanelas(QWidget *lista);
    void MostrarObjetos(QWidget *lista);
    /** Shows a dialog or window of a class until the user closes it. */
    void AbrirJanela(const QString &classe);
};

} // namespace comercial
