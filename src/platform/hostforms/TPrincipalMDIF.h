#pragma once

#include "platform/toolkit/TForm.h"

class QLabel;
class QMdiArea;
class QMenu;
class QMenuBar;

namespace ficha
{

class TAction;
class TActionList;

/**
 * The program's main window: a menu bar, an area in which child windows live, and a status line.
 *
 * The menu "Janela" arranges, closes and lists the child windows. Closing the main window closes
 * them first; one that refuses keeps everything open.
 */
class TPrincipalMDIF : public TForm
{
    Q_OBJECT

public:
    explicit TPrincipalMDIF(TChave chave);
    ~TPrincipalMDIF() override;

    void Create(QWidget *owner) override;

    /** The main window of the program, the last one made; null when there is none. */
    static TPrincipalMDIF *Atual();

    /** A new menu, placed before "Janela". */
    QMenu *AcrescentarMenu(const QString &titulo);
    /** Puts a form into a sub window of the size for which it was designed; Show shows it. */
    QMdiSubWindow *Acolher(TForm *form);
    /** The child windows that are open, in the order of their creation. */
    QList<TForm *> Filhos() const;
    TForm *FilhoAtivo() const;
    /** The open child window of exactly this class, brought to the front, or a new one. */
    template <typename T>
    T *Abrir()
    {
        for (TForm *form : Filhos()) {
            if (form->metaObject() == &T::staticMetaObject) {
                form->Show();
                return static_cast<T *>(form);
            }
        }
        T *novo = Criar<T>(static_cast<QWidget *>(this));
        novo->Show();
        return novo;
    }
    /** Closes the child windows one by one; false when one refused. */
    bool FecharFilhos();

    /** The text of the status line. */
    void SetStatus(const QString &texto);

    QMenuBar *MenuPrincipal = nullptr;
    QMenu *JanelaMenu = nullptr;
    QMdiArea *MdiArea = nullptr;
    QLabel *StatusLabel = nullptr;
    TActionList *ActionList1 = nullptr;
    TAction *LadoALadoAction = nullptr;
    TAction *EmCascataAction = nullptr;
    TAction *ProximaAction = nullptr;
    TAction *FecharJanelaAction = nullptr;
    TAction *FecharTodasAction = nullptr;

protected:
    void PegarComponentes() override;
    void FormCloseQuery(QObject *sender, bool &pode) override;

private:
    void MontarJanelaMenu();
    void ListarJanelas();
};

} // namespace ficha
