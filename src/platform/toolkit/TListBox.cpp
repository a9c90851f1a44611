#include "platform/toolkit/TListBox.h"

#include "platform/toolkit/AlturaDeItem.h"
#include "platform/toolkit/Cores.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QKeyEvent>
#include <QPointer>

#include <utility>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TListBox)

TListBox::TListBox(QWidget *owner) : QListWidget(owner)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemClicked, this, [this] { clicada = true; });
}

QStringList TListBox::GetItems() const
{
    QStringList linhas;
    linhas.reserve(count());
    for (int i = 0; i < count(); ++i)
        linhas.append(item(i)->text());
    return linhas;
}

void TListBox::SetItems(const QStringList &linhas)
{
    clear();
    addItems(linhas);
    SetItemIndex(-1);
}

QString TListBox::GetText() const
{
    return GetItems().join(QLatin1String("\r\n"));
}

void TListBox::SetText(const QString &texto)
{
    QString linhas = texto;
    linhas.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    if (linhas.endsWith(u'\n'))
        linhas.chop(1);
    SetItems(texto.isEmpty() ? QStringList() : linhas.split(u'\n'));
}

int TListBox::AddItem(const QString &texto, std::intptr_t objeto)
{
    addItem(texto);
    SetObjeto(count() - 1, objeto);
    return count() - 1;
}

QString TListBox::Item(int i) const
{
    const QListWidgetItem *linha = item(i);
    return linha ? linha->text() : QString();
}

void TListBox::SetItem(int i, const QString &texto)
{
    if (QListWidgetItem *linha = item(i))
        linha->setText(texto);
}

std::intptr_t TListBox::GetObjeto(int i) const
{
    const QListWidgetItem *linha = item(i);
    return linha ? std::intptr_t(linha->data(Qt::UserRole).toLongLong()) : 0;
}

void TListBox::SetObjeto(int i, std::intptr_t objeto)
{
    if (QListWidgetItem *linha = item(i))
        linha->setData(Qt::UserRole, qlonglong(objeto));
}

int TListBox::IndexOf(const QString &texto) const
{
    for (int i = 0; i < count(); ++i) {
        if (item(i)->text().compare(texto, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

int TListBox::GetItemIndex() const
{
    // The focus makes the first line the current one without selecting it.
    const QListWidgetItem *atual = currentItem();
    return atual && atual->isSelected() ? currentRow() : -1;
}

void TListBox::SetItemIndex(int i)
{
    if (i >= 0 && i < count()) {
        setCurrentRow(i, QItemSelectionModel::ClearAndSelect);
    } else {
        setCurrentRow(-1);
        clearSelection();
    }
}

void TListBox::SetItemHeight(int pixels)
{
    itemHeight = pixels > 0 ? pixels : 0;
    setItemDelegate(new TAlturaDeItem(itemHeight, this));
}

TColor TListBox::GetColor() const
{
    return CorDoWidget(*this, QPalette::Base);
}
void TListBox::SetColor(TColor cor)
{
    SetCorDoWidget(*this, QPalette::Base, cor);
}

void TListBox::keyPressEvent(QKeyEvent *evento)
{
    const int antes = GetItemIndex();
    const QPointer<TListBox> vivo(this);
    QListWidget::keyPressEvent(evento);
    if (vivo && GetItemIndex() != antes)
        Disparar(OnClick, this);
}

void TListBox::mouseReleaseEvent(QMouseEvent *evento)
{
    const QPointer<TListBox> vivo(this);
    QListWidget::mouseReleaseEvent(evento);
    // Not from the list's own signal: the view goes on after it, and the handler may destroy it.
    if (vivo && std::exchange(clicada, false))
        Disparar(OnClick, this);
}

} // namespace ficha
