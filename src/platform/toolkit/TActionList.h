#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace ficha
{

class TAction;
class TImageList;

/**
 * The actions of a form or frame. Its owner is the widget in whose inside the short-cuts act; the
 * updates of the actions run at idle time while that widget is visible.
 */
class TActionList : public QObject
{
    Q_OBJECT

public:
    explicit TActionList(QWidget *owner);
    ~TActionList() override;

    QWidget *Dono() const { return dono; }
    int Count() const { return int(acoes.size()); }
    /** In the order in which they were made. */
    const QList<TAction *> &Actions() const { return acoes; }
    /** By object name; null when there is none. */
    TAction *ActionByName(const QString &nome) const;

    TImageList *GetImages() const;
    /** The pictures for imageIndex; referred to, not owned. */
    void SetImages(TImageList *lista);

    /** Runs the update event of every action, visible or not. */
    void Atualizar();

private:
    friend class TAction;
    void Entrar(TAction *acao);
    void Sair(TAction *acao);

    QWidget *dono;
    QList<TAction *> acoes;
    QPointer<TImageList> imagens;
    QMetaObject::Connection mudanca;
};

} // namespace ficha
