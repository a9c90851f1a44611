#include "platform/toolkit/TRadioButton.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QButtonGroup>
#include <QEvent>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TRadioButton)

namespace
{

/** The group of a parent's radio buttons, owned by the parent. The toolkit's own exclusion takes
 * those of panels inside the parent for members. */
class TGrupo : public QButtonGroup
{
    Q_OBJECT

public:
    using QButtonGroup::QButtonGroup;
};

} // namespace

TRadioButton::TRadioButton(QWidget *owner) : QRadioButton(owner)
{
    setAutoExclusive(false); // the group sees to it
    Agrupar();
    Ligar(this, &QRadioButton::toggled, this, [this] {
        Indicar();
        if (isChecked())
            Disparar(OnClick, this);
    });
}

void TRadioButton::SetChecked(bool v)
{
    QButtonGroup *grupo = group();
    // An exclusive group refuses to uncheck the checked one.
    if (grupo && !v)
        grupo->setExclusive(false);
    setChecked(v);
    if (grupo)
        grupo->setExclusive(true);
}

bool TRadioButton::event(QEvent *evento)
{
    if (evento->type() == QEvent::ParentChange)
        Agrupar();
    return QRadioButton::event(evento);
}

void TRadioButton::Agrupar()
{
    if (group())
        group()->removeButton(this);
    QWidget *pai = parentWidget();
    if (!pai)
        return;
    auto *grupo = pai->findChild<TGrupo *>(QString(), Qt::FindDirectChildrenOnly);
    if (!grupo)
        grupo = new TGrupo(pai);
    grupo->addButton(this);
    Indicar();
}

/** The toolkit sees to the tab stops only when one of the buttons has the focus already. */
void TRadioButton::Indicar()
{
    if (!group())
        return;
    for (QAbstractButton *b : group()->buttons())
        b->setFocusPolicy(!group()->checkedButton() || b->isChecked() ? Qt::StrongFocus
                                                                      : Qt::ClickFocus);
}

} // namespace ficha

#include "TRadioButton.moc"
