#include "platform/toolkit/TRadioGroup.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QRadioButton>
#include <QScopedValueRollback>

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TRadioGroup)

TRadioGroup::TRadioGroup(QWidget *owner) : QGroupBox(owner), grupo(new QButtonGroup(this))
{
    auto *grade = new QGridLayout(this);
    grade->setContentsMargins(5, 2, 2, 4);
    grade->setSpacing(0);
}

QStringList TRadioGroup::GetItems() const
{
    QStringList textos;
    for (const TItem &item : itens)
        textos.append(item.Botao->text());
    return textos;
}

void TRadioGroup::SetItems(const QStringList &textos)
{
    const QScopedValueRollback guarda(calado, true);
    const int escolhido = pendente >= 0 ? pendente : GetItemIndex();
    setFocusProxy(nullptr);
    for (const TItem &item : itens)
        Descartar(item.Botao);
    itens.clear();
    for (const QString &texto : textos)
        itens.push_back({NovoBotao(texto), 0, {}});
    Arrumar();
    Marcar(escolhido);
    if (!itens.empty())
        pendente = -1;
}

int TRadioGroup::AddItem(const QString &texto)
{
    itens.push_back({NovoBotao(texto), 0, {}});
    Arrumar();
    return Count() - 1;
}

QString TRadioGroup::Item(int i) const
{
    return Existe(i) ? Botao(i)->text() : QString();
}

void TRadioGroup::SetColumns(int n)
{
    columns = std::max(1, n);
    Arrumar();
}

int TRadioGroup::GetItemIndex() const
{
    for (int i = 0; i < Count(); ++i) {
        if (Botao(i)->isChecked())
            return i;
    }
    return -1;
}

void TRadioGroup::SetItemIndex(int i)
{
    if (itens.empty())
        pendente = std::max(-1, i);
    else if (i != GetItemIndex())
        Marcar(i);
}

std::intptr_t TRadioGroup::GetObjeto(int i) const
{
    return Existe(i) ? itens[std::size_t(i)].Objeto : 0;
}

void TRadioGroup::SetObjeto(int i, std::intptr_t objeto)
{
    if (Existe(i))
        itens[std::size_t(i)].Objeto = objeto;
}

QWidget *TRadioGroup::GetControle(int i) const
{
    return Existe(i) ? itens[std::size_t(i)].Controle.data() : nullptr;
}

void TRadioGroup::SetControle(int i, QWidget *controle)
{
    if (Existe(i))
        itens[std::size_t(i)].Controle = controle;
}

QRadioButton *TRadioGroup::Botao(int i) const
{
    return Existe(i) ? itens[std::size_t(i)].Botao : nullptr;
}

QRadioButton *TRadioGroup::NovoBotao(const QString &texto)
{
    auto *botao = new QRadioButton(texto, this);
    Encadear(botao);
    grupo->addButton(botao);
    Ligar(botao, &QRadioButton::toggled, this, [this, botao] {
        if (botao->isChecked())
            Marcado();
    });
    if (isVisible())
        botao->show();
    return botao;
}

/** Options often come after the other controls of the window: Tab must still find them where the
 * group stands. */
void TRadioGroup::Encadear(QRadioButton *botao)
{
    if (!itens.empty()) {
        setTabOrder(itens.back().Botao, botao);
        return;
    }
    // The toolkit orders only what can have the focus.
    setFocusPolicy(Qt::TabFocus);
    setTabOrder(this, botao);
    setFocusPolicy(Qt::NoFocus);
}

/** Not destroyed at once: it may be the button whose click brings the new items. */
void TRadioGroup::Descartar(QRadioButton *botao)
{
    layout()->removeWidget(botao);
    grupo->removeButton(botao);
    botao->disconnect(this);
    botao->hide();
    botao->deleteLater();
}

/** Puts the buttons into the grid, column by column. */
void TRadioGroup::Arrumar()
{
    auto *grade = static_cast<QGridLayout *>(layout());
    const int linhas = std::max(1, (Count() + columns - 1) / columns);
    for (int i = 0; i < Count(); ++i)
        grade->addWidget(Botao(i), i % linhas, i / linhas);
    for (int l = 0; l < grade->rowCount(); ++l)
        grade->setRowStretch(l, l < linhas ? 1 : 0);
    for (int c = 0; c < grade->columnCount(); ++c)
        grade->setColumnStretch(c, c < columns ? 1 : 0);
    Indicar();
}

/** Selects an item, or nothing where there is none of that index. */
void TRadioGroup::Marcar(int i)
{
    if (QRadioButton *botao = Botao(i)) {
        botao->setChecked(true);
        return;
    }
    grupo->setExclusive(false);
    for (const TItem &item : itens)
        item.Botao->setChecked(false);
    grupo->setExclusive(true);
    Indicar();
}

void TRadioGroup::Marcado()
{
    Indicar();
    if (calado)
        return;
    const QPointer<TRadioGroup> vivo(this);
    Disparar(OnClick, this);
    if (vivo)
        Q_EMIT Clicked();
}

/** The focus given to the group, and Tab, reach the selected button, or the first. */
void TRadioGroup::Indicar()
{
    QRadioButton *alvo = Botao(std::max(0, GetItemIndex()));
    if (focusProxy() != alvo)
        setFocusProxy(alvo);
    for (const TItem &item : itens)
        item.Botao->setFocusPolicy(item.Botao == alvo ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace ficha
