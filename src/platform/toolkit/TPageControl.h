#pragma once

#include <QPointer>
#include <QTabWidget>

#include <functional>

namespace ficha
{

class TImageList;
class TPageControl;

/** A page of a TPageControl; joins the page control that is its parent. */
class TTabSheet : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(int imageIndex READ GetImageIndex WRITE SetImageIndex)
    Q_PROPERTY(bool tabVisible READ GetTabVisible WRITE SetTabVisible)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TTabSheet(QWidget *owner = nullptr);

    /** Plain text: an ampersand is shown as one. */
    const QString &GetCaption() const { return caption; }
    void SetCaption(const QString &texto);
    /** Index into the images of the page control; -1 is none. */
    int GetImageIndex() const { return imageIndex; }
    void SetImageIndex(int indice);
    bool GetTabVisible() const { return tabVisible; }
    /** A page without a tab can still be shown by the program. */
    void SetTabVisible(bool v);

    /** -1 when the page belongs to no page control. */
    int PageIndex() const;
    TPageControl *PageControl() const;

    int Tag = 0;

private:
    friend class TPageControl;
    QString caption;
    int imageIndex = -1;
    bool tabVisible = true;
};

/**
 * Pages with tabs. Changes by the user (mouse, wheel, arrow keys, Ctrl+Tab) ask OnChanging first
 * and announce OnChange after; changes by the program do neither, save SelectNextPage, which
 * announces.
 */
class TPageControl : public QTabWidget
{
    Q_OBJECT
    Q_PROPERTY(int tabWidth READ GetTabWidth WRITE SetTabWidth)
    Q_PROPERTY(int tabHeight READ GetTabHeight WRITE SetTabHeight)
    Q_PROPERTY(QFont tabFont READ GetTabFont WRITE SetTabFont)
    Q_PROPERTY(int tabColor READ GetTabColor WRITE SetTabColor)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TPageControl(QWidget *owner = nullptr);

    /** Width of every tab in pixels; 0 (the start) fits each tab to its text. */
    int GetTabWidth() const { return tabWidth; }
    void SetTabWidth(int pixels);
    /** Height of the tabs in pixels; 0 fits the text. */
    int GetTabHeight() const { return tabHeight; }
    void SetTabHeight(int pixels);
    /** Font and text colour (0x00BBGGRR) of the tabs alone; the pages keep theirs. */
    QFont GetTabFont() const;
    void SetTabFont(const QFont &fonte);
    int GetTabColor() const;
    void SetTabColor(int cor);

    int PageCount() const { return count(); }
    TTabSheet *GetPage(int indice) const;
    /** -1 when there is no page. */
    int GetActivePageIndex() const { return currentIndex(); }
    /** Asks nothing and announces nothing; an index that does not exist does nothing. */
    void SetActivePageIndex(int indice);
    TTabSheet *GetActivePage() const;
    void SetActivePage(TTabSheet *pagina);
    /**
     * Goes one page on or back, around the ends, past pages without a tab when checkTabVisible is
     * set, and announces OnChange when the page changed. Asks no OnChanging.
     */
    void SelectNextPage(bool goForward, bool checkTabVisible = true);
    /** A change as the user's: asks, changes, announces. Answers whether the page changed. */
    bool MudarComoUsuario(int indice);

    TImageList *GetImages() const;
    /** The pictures for imageIndex; referred to, not owned. */
    void SetImages(TImageList *lista);

    /** The user is about to leave the active page; false refuses. A failure refuses too. */
    std::function<void(QObject *, bool &pode)> OnChanging;
    std::function<void(QObject *)> OnChange;

    int Tag = 0;

protected:
    void keyPressEvent(QKeyEvent *evento) override;
    void tabInserted(int indice) override;

private:
    friend class TTabSheet;
    int Vizinha(int de, int passo, bool soComAba, bool daVolta) const;
    void AtualizarAba(TTabSheet *pagina);

    int tabWidth = 0, tabHeight = 0;
    QPointer<TImageList> imagens;
    QMetaObject::Connection mudanca;
};

} // namespace ficha
