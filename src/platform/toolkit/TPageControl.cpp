#include "platform/toolkit/TPageControl.h"

#include "platform/core/TColor.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TImageList.h"

#include <QKeyEvent>
#include <QTabBar>
#include <QWheelEvent>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TTabSheet)
FICHA_REGISTRAR_WIDGET(TPageControl)

namespace
{

/** Tabs that ask their page control before the user changes the page. */
class TAbas : public QTabBar
{
public:
    explicit TAbas(TPageControl *dono_) : QTabBar(dono_), dono(dono_)
    {
        setExpanding(false);
        setElideMode(Qt::ElideRight);
    }

protected:
    QSize tabSizeHint(int indice) const override
    {
        QSize s = QTabBar::tabSizeHint(indice);
        if (dono->GetTabWidth() > 0)
            s.setWidth(dono->GetTabWidth());
        if (dono->GetTabHeight() > 0)
            s.setHeight(dono->GetTabHeight());
        return s;
    }
    QSize minimumTabSizeHint(int indice) const override
    {
        return dono->GetTabWidth() > 0 ? tabSizeHint(indice) : QTabBar::minimumTabSizeHint(indice);
    }
    void mousePressEvent(QMouseEvent *evento) override
    {
        const int aba = tabAt(evento->position().toPoint());
        if (evento->button() == Qt::LeftButton && aba >= 0)
            dono->MudarComoUsuario(aba);
        evento->accept();
    }
    void mouseReleaseEvent(QMouseEvent *evento) override { evento->accept(); }
    void wheelEvent(QWheelEvent *evento) override
    {
        const int giro =
            evento->angleDelta().y() ? evento->angleDelta().y() : evento->angleDelta().x();
        Passar(giro < 0 ? 1 : giro > 0 ? -1 : 0);
        evento->accept();
    }
    void keyPressEvent(QKeyEvent *evento) override
    {
        const int tecla = evento->key();
        if (tecla == Qt::Key_Left || tecla == Qt::Key_Right)
            Passar(tecla == Qt::Key_Right ? 1 : -1);
        else
            evento->ignore();
    }

private:
    /** To the next tab on that side that can be chosen, if any. */
    void Passar(int passo)
    {
        for (int i = currentIndex() + passo; passo && i >= 0 && i < count(); i += passo)
            if (isTabVisible(i) && isTabEnabled(i)) {
                dono->MudarComoUsuario(i);
                return;
            }
    }

    TPageControl *dono;
};

} // namespace

TTabSheet::TTabSheet(QWidget *owner) : QWidget(owner)
{
    if (auto *dono = qobject_cast<TPageControl *>(owner))
        dono->addTab(this, QString());
}

void TTabSheet::SetCaption(const QString &texto)
{
    caption = texto;
    if (TPageControl *dono = PageControl())
        dono->AtualizarAba(this);
}

void TTabSheet::SetImageIndex(int indice)
{
    imageIndex = indice;
    if (TPageControl *dono = PageControl())
        dono->AtualizarAba(this);
}

void TTabSheet::SetTabVisible(bool v)
{
    tabVisible = v;
    if (TPageControl *dono = PageControl())
        dono->AtualizarAba(this);
}

int TTabSheet::PageIndex() const
{
    const TPageControl *dono = PageControl();
    return dono ? dono->indexOf(const_cast<TTabSheet *>(this)) : -1;
}

TPageControl *TTabSheet::PageControl() const
{
    QWidget *pilha = parentWidget();
    return qobject_cast<TPageControl *>(pilha ? pilha->parentWidget() : nullptr);
}

TPageControl::TPageControl(QWidget *owner) : QTabWidget(owner)
{
    setTabBar(new TAbas(this));
}

void TPageControl::SetTabWidth(int pixels)
{
    tabWidth = pixels;
    tabBar()->setIconSize(tabBar()->iconSize());
    updateGeometry();
}

void TPageControl::SetTabHeight(int pixels)
{
    tabHeight = pixels;
    updateGeometry();
}

QFont TPageControl::GetTabFont() const
{
    return tabBar()->font();
}

void TPageControl::SetTabFont(const QFont &fonte)
{
    tabBar()->setFont(fonte);
}

int TPageControl::GetTabColor() const
{
    return int(TColor::DeQColor(tabBar()->palette().color(QPalette::WindowText)).valor);
}

void TPageControl::SetTabColor(int cor)
{
    QPalette paleta = tabBar()->palette();
    for (const auto papel : {QPalette::WindowText, QPalette::ButtonText})
        for (const auto grupo : {QPalette::Active, QPalette::Inactive})
            paleta.setColor(grupo, papel, TColor(std::uint32_t(cor)).ParaQColor());
    tabBar()->setPalette(paleta);
}

TTabSheet *TPageControl::GetPage(int indice) const
{
    return qobject_cast<TTabSheet *>(widget(indice));
}

void TPageControl::SetActivePageIndex(int indice)
{
    setCurrentIndex(indice);
}

TTabSheet *TPageControl::GetActivePage() const
{
    return GetPage(currentIndex());
}

void TPageControl::SetActivePage(TTabSheet *pagina)
{
    setCurrentWidget(pagina);
}

void TPageControl::SelectNextPage(bool goForward, bool checkTabVisible)
{
    const int nova = Vizinha(currentIndex(), goForward ? 1 : -1, checkTabVisible, true);
    if (nova < 0 || nova == currentIndex())
        return;
    const QPointer<TPageControl> vivo = this;
    setCurrentIndex(nova);
    if (vivo)
        Disparar(OnChange, this);
}

bool TPageControl::MudarComoUsuario(int indice)
{
    const QPointer<QWidget> pagina = widget(indice);
    if (!pagina || indice == currentIndex() || !isTabVisible(indice) || !isTabEnabled(indice))
        return false;
    const QPointer<TPageControl> vivo = this;
    bool pode = true;
    if (!Disparar(OnChanging, this, pode))
        pode = false;
    if (!vivo || !pode || !pagina)
        return false;
    setCurrentWidget(pagina);
    if (vivo)
        Disparar(OnChange, this);
    return true;
}

TImageList *TPageControl::GetImages() const
{
    return imagens;
}

void TPageControl::SetImages(TImageList *lista)
{
    disconnect(mudanca);
    imagens = lista;
    const auto mostrar = [this] {
        if (imagens)
            tabBar()->setIconSize(imagens->GetSize());
        for (int i = 0; i < count(); ++i)
            if (TTabSheet *pagina = GetPage(i))
                AtualizarAba(pagina);
    };
    if (lista)
        mudanca = connect(lista, &TImageList::Change, this, mostrar);
    mostrar();
}

void TPageControl::keyPressEvent(QKeyEvent *evento)
{
    const bool volta = evento->key() == Qt::Key_Backtab;
    const bool ctrlTab =
        (volta || evento->key() == Qt::Key_Tab) && (evento->modifiers() & Qt::ControlModifier);
    if (!ctrlTab) {
        evento->ignore();
        return;
    }
    const bool paraTras = volta || (evento->modifiers() & Qt::ShiftModifier);
    MudarComoUsuario(Vizinha(currentIndex(), paraTras ? -1 : 1, true, true));
    evento->accept();
}

void TPageControl::tabInserted(int indice)
{
    QTabWidget::tabInserted(indice);
    if (TTabSheet *pagina = GetPage(indice))
        AtualizarAba(pagina);
}

/** The next page on one side, around the ends; -1 when there is no other. */
int TPageControl::Vizinha(int de, int passo, bool soComAba, bool daVolta) const
{
    const int n = count();
    for (int k = 1; k < n; ++k) {
        const int i = de + passo * k;
        if (!daVolta && (i < 0 || i >= n))
            break;
        const int j = ((i % n) + n) % n;
        if (!soComAba || (isTabVisible(j) && isTabEnabled(j)))
            return j;
    }
    return -1;
}

void TPageControl::AtualizarAba(TTabSheet *pagina)
{
    const int i = indexOf(pagina);
    if (i < 0)
        return;
    QString texto = pagina->caption;
    setTabText(i, texto.replace(QLatin1Char('&'), QStringLiteral("&&")));
    setTabIcon(i, imagens ? imagens->GetIcon(pagina->imageIndex) : QIcon());
    if (isTabVisible(i) != pagina->tabVisible)
        setTabVisible(i, pagina->tabVisible);
}

} // namespace ficha
