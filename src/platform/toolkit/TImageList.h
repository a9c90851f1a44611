#pragma once

#include <QIcon>
#include <QObject>
#include <QPixmap>
#include <QSize>

#include <map>

class QPainter;

namespace ficha
{

/**
 * A list of pictures of one size, addressed by index. Indices may have gaps; an index without a
 * picture, a negative one included, answers an empty icon.
 *
 * Vector pictures are drawn at the resolution of the screen on which they appear; their disabled
 * look is a pale grey.
 */
class TImageList : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QSize size READ GetSize WRITE SetSize)

public:
    explicit TImageList(QObject *owner = nullptr, QSize tamanho = QSize(16, 16));

    /** The size of each picture in pixels of 96 dpi. */
    QSize GetSize() const { return tamanho; }
    void SetSize(QSize novo);
    /** The highest index in use plus one. */
    int Count() const;
    bool Tem(int indice) const;

    /** Puts a picture behind the last one and answers its index. */
    int Add(const QIcon &icone);
    /** Puts a picture at an index, replacing what was there. Negative indices are refused. */
    void SetIcon(int indice, const QIcon &icone);
    /**
     * Puts a vector picture at an index: a resource (":/ficha/layouts/pictures/inserir.svg") or
     * the bare name of one of the library's own pictures ("inserir"). Raises ELayoutError when
     * there is no such picture.
     */
    void AddSvg(int indice, const QString &figura);
    /** Fills the list with the disabled looks of another list's pictures, same indices and size. */
    void AssignDisabled(const TImageList &de);
    void Clear();

    QIcon GetIcon(int indice) const;
    /** The picture at the list's size for a screen of that pixel ratio; null when there is none. */
    QPixmap GetPixmap(int indice, qreal razao = 1, bool habilitada = true) const;
    void Draw(QPainter &pintor, QPoint onde, int indice, bool habilitada = true) const;

Q_SIGNALS:
    /** Pictures or size changed. */
    void Change();

private:
    QSize tamanho;
    std::map<int, QIcon> icones;
};

/** An icon that looks like the second one where it is disabled; both draw when they are shown. */
QIcon IconeComApagado(const QIcon &normal, const QIcon &apagado);
/** A vector picture as an icon; the same names as TImageList::AddSvg, the same refusal. */
QIcon IconeSvg(const QString &figura);
/** A vector picture drawn at a size; an empty size means the picture's own. */
QPixmap PixmapSvg(const QString &figura, QSize tamanho = {}, qreal razao = 1);

} // namespace ficha
