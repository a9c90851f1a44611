#include "platform/toolkit/Alinhamento.h"

#include "platform/core/Erros.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QWidget>

#include <algorithm>

namespace ficha
{

TAlinhador::TAlinhador(QWidget *conteiner) : QLayout(conteiner)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(0);
}

TAlinhador::~TAlinhador()
{
    for (const TItem &i : itens)
        delete i.item;
}

void TAlinhador::Por(QWidget *controle, TAlign lado)
{
    const int i = IndiceDe(controle);
    if (i >= 0) {
        itens[std::size_t(i)].lado = lado;
    } else {
        addWidget(controle);
        itens.back().lado = lado;
        controle->installEventFilter(this);
    }
    invalidate();
}

void TAlinhador::Tirar(QWidget *controle)
{
    controle->removeEventFilter(this);
    removeWidget(controle);
}

void TAlinhador::addItem(QLayoutItem *item)
{
    itens.push_back({item, alNone});
}

QLayoutItem *TAlinhador::itemAt(int indice) const
{
    return indice >= 0 && indice < count() ? itens[std::size_t(indice)].item : nullptr;
}

QLayoutItem *TAlinhador::takeAt(int indice)
{
    if (indice < 0 || indice >= count())
        return nullptr;
    QLayoutItem *item = itens[std::size_t(indice)].item;
    itens.erase(itens.begin() + indice);
    return item;
}

QSize TAlinhador::sizeHint() const
{
    const QWidget *conteiner = parentWidget();
    return conteiner ? conteiner->size() : QSize();
}

void TAlinhador::setGeometry(const QRect &area)
{
    QLayout::setGeometry(area);
    const QScopedValueRollback guarda(dispondo, true);
    QRect resto = area;
    for (const TAlign lado : {alTop, alBottom, alLeft, alRight, alClient})
        Dispor(lado, resto);
}

void TAlinhador::Dispor(TAlign lado, QRect &resto)
{
    for (const TItem &i : itens) {
        QWidget *controle = i.item->widget();
        if (i.lado != lado || !controle || i.item->isEmpty())
            continue;
        const bool medido = controle->testAttribute(Qt::WA_Resized);
        const QSize seu = medido ? controle->size() : controle->sizeHint();
        QRect r = resto;
        if (lado == alTop)
            r.setHeight(seu.height());
        else if (lado == alBottom)
            r.setTop(resto.bottom() - seu.height() + 1);
        else if (lado == alLeft)
            r.setWidth(seu.width());
        else if (lado == alRight)
            r.setLeft(resto.right() - seu.width() + 1);
        controle->setGeometry(r);
        ArrumarConteiner(controle);
        if (lado == alTop)
            resto.setTop(r.bottom() + 1);
        else if (lado == alBottom)
            resto.setBottom(r.top() - 1);
        else if (lado == alLeft)
            resto.setLeft(r.right() + 1);
        else if (lado == alRight)
            resto.setRight(r.left() - 1);
    }
}

bool TAlinhador::eventFilter(QObject *objeto, QEvent *evento)
{
    if (evento->type() == QEvent::Resize && !dispondo && parentWidget()) {
        invalidate();
        activate();
    }
    return QLayout::eventFilter(objeto, evento);
}

int TAlinhador::IndiceDe(const QWidget *controle) const
{
    for (std::size_t i = 0; i < itens.size(); ++i)
        if (itens[i].item->widget() == controle)
            return int(i);
    return -1;
}

void Alinhar(QWidget *controle, TAlign lado)
{
    QWidget *conteiner = controle->parentWidget();
    if (!conteiner)
        throw ELayoutError(
            QStringLiteral("'%1' não tem onde se alinhar").arg(controle->objectName()));
    auto *alinhador = qobject_cast<TAlinhador *>(conteiner->layout());
    if (conteiner->layout() && !alinhador)
        throw ELayoutError(QStringLiteral("'%1' não pode se alinhar em '%2', que já tem um layout")
                               .arg(controle->objectName(), conteiner->objectName()));
    if (lado == alNone) {
        if (alinhador)
            alinhador->Tirar(controle);
        return;
    }
    if (!alinhador)
        alinhador = new TAlinhador(conteiner);
    alinhador->Por(controle, lado);
}

TAncoras::TAncoras(QWidget *conteiner_)
    : QObject(conteiner_), conteiner(conteiner_), ultimo(conteiner_->size())
{
    conteiner->installEventFilter(this);
}

TAncoras *TAncoras::De(QWidget *conteiner)
{
    return conteiner->findChild<TAncoras *>({}, Qt::FindDirectChildrenOnly);
}

void TAncoras::Ancorar(QWidget *controle, unsigned lados)
{
    QWidget *conteiner = controle->parentWidget();
    TAncoras *ancoras = De(conteiner);
    if (!ancoras)
        ancoras = new TAncoras(conteiner);
    ancoras->Mover();
    for (TItem &i : ancoras->itens)
        if (i.controle == controle) {
            i.lados = lados;
            return;
        }
    ancoras->itens.push_back({controle, lados});
}

void TAncoras::Aplicar(QWidget *conteiner)
{
    if (TAncoras *ancoras = De(conteiner))
        ancoras->Mover();
}

void TAncoras::Mover()
{
    const QSize agora = conteiner->size();
    const QSize d = agora - ultimo;
    ultimo = agora;
    if (d.isNull())
        return;
    std::erase_if(itens, [this](const TItem &i) {
        return !i.controle || i.controle->parentWidget() != conteiner;
    });
    for (const TItem &i : itens) {
        QRect r = i.controle->geometry();
        if (i.lados & akDireita) {
            r.setRight(r.right() + d.width());
            if (!(i.lados & akEsquerda))
                r.setLeft(r.left() + d.width());
        }
        if (i.lados & akBase) {
            r.setBottom(r.bottom() + d.height());
            if (!(i.lados & akTopo))
                r.setTop(r.top() + d.height());
        }
        i.controle->setGeometry(r);
        ArrumarConteiner(i.controle);
    }
}

void ArrumarConteiner(QWidget *conteiner)
{
    TAncoras::Aplicar(conteiner);
    if (auto *alinhador = qobject_cast<TAlinhador *>(conteiner->layout()))
        alinhador->setGeometry(conteiner->contentsRect());
}

bool TAncoras::eventFilter(QObject *objeto, QEvent *evento)
{
    if (objeto == conteiner && evento->type() == QEvent::Resize)
        Mover();
    return QObject::eventFilter(objeto, evento);
}

} // namespace ficha
