#include "platform/toolkit/TImageList.h"

#include "platform/core/Erros.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <memory>

namespace ficha
{

namespace
{

QString Caminho(const QString &figura)
{
    return figura.contains(QLatin1Char('/')) || figura.contains(QLatin1Char('.'))
               ? figura
               : QStringLiteral(":/ficha/layouts/pictures/%1.svg").arg(figura);
}

/** One reader per picture, however many icons show it. */
std::shared_ptr<QSvgRenderer> Desenhista(const QString &caminho)
{
    static QHash<QString, std::weak_ptr<QSvgRenderer>> prontos;
    if (auto pronto = prontos.value(caminho).lock())
        return pronto;
    auto novo = std::make_shared<QSvgRenderer>();
    if (!QFile::exists(caminho) || !novo->load(caminho))
        throw ELayoutError(QStringLiteral("a figura '%1' não existe").arg(caminho));
    prontos[caminho] = novo;
    return novo;
}

/** The disabled look: greys, paled. */
QPixmap Apagada(const QPixmap &figura)
{
    QImage imagem = figura.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < imagem.height(); ++y) {
        auto *linha = reinterpret_cast<QRgb *>(imagem.scanLine(y));
        for (int x = 0; x < imagem.width(); ++x) {
            const int cinza = 100 + qGray(linha[x]) / 2;
            linha[x] = qRgba(cinza, cinza, cinza, qAlpha(linha[x]) * 6 / 10);
        }
    }
    QPixmap apagada = QPixmap::fromImage(imagem);
    apagada.setDevicePixelRatio(figura.devicePixelRatio());
    return apagada;
}

/** Draws a vector picture at whatever size is asked for. */
class TSvgIconEngine : public QIconEngine
{
public:
    TSvgIconEngine(QString caminho_, std::shared_ptr<QSvgRenderer> desenhista_)
        : caminho(std::move(caminho_)), desenhista(std::move(desenhista_))
    {
    }

    void paint(QPainter *pintor, const QRect &onde, QIcon::Mode modo, QIcon::State estado) override
    {
        const qreal razao = pintor->device()->devicePixelRatioF();
        QPixmap figura = pixmap((QSizeF(onde.size()) * razao).toSize(), modo, estado);
        figura.setDevicePixelRatio(razao);
        pintor->drawPixmap(onde, figura);
    }

    QPixmap pixmap(const QSize &tamanho, QIcon::Mode modo, QIcon::State) override
    {
        const bool apagada = modo == QIcon::Disabled;
        const QString chave = QStringLiteral("ficha:%1:%2x%3:%4")
                                  .arg(caminho)
                                  .arg(tamanho.width())
                                  .arg(tamanho.height())
                                  .arg(int(apagada));
        QPixmap figura;
        if (QPixmapCache::find(chave, &figura))
            return figura;
        figura = QPixmap(tamanho);
        figura.fill(Qt::transparent);
        {
            QPainter pintor(&figura);
            desenhista->render(&pintor, QRectF(QPointF(), tamanho));
        }
        if (apagada)
            figura = Apagada(figura);
        QPixmapCache::insert(chave, figura);
        return figura;
    }

    QSize actualSize(const QSize &tamanho, QIcon::Mode, QIcon::State) override { return tamanho; }
    QString key() const override { return QStringLiteral("ficha.svg"); }
    bool isNull() override { return false; }
    QIconEngine *clone() const override { return new TSvgIconEngine(caminho, desenhista); }

private:
    QString caminho;
    std::shared_ptr<QSvgRenderer> desenhista;
};

/** Shows the disabled look of another icon in every state. */
class TIconeApagado : public QIconEngine
{
public:
    explicit TIconeApagado(QIcon icone_) : icone(std::move(icone_)) {}

    void paint(QPainter *pintor, const QRect &onde, QIcon::Mode, QIcon::State estado) override
    {
        icone.paint(pintor, onde, Qt::AlignCenter, QIcon::Disabled, estado);
    }
    QPixmap pixmap(const QSize &tamanho, QIcon::Mode, QIcon::State estado) override
    {
        return icone.pixmap(tamanho, 1.0, QIcon::Disabled, estado);
    }
    bool isNull() override { return icone.isNull(); }
    QIconEngine *clone() const override { return new TIconeApagado(icone); }

private:
    QIcon icone;
};

/** One icon while enabled and another while disabled. */
class TIconeDeEstados : public QIconEngine
{
public:
    TIconeDeEstados(QIcon normal_, QIcon apagado_)
        : normal(std::move(normal_)), apagado(std::move(apagado_))
    {
    }

    void paint(QPainter *pintor, const QRect &onde, QIcon::Mode modo, QIcon::State estado) override
    {
        Icone(modo).paint(pintor, onde, Qt::AlignCenter, QIcon::Normal, estado);
    }
    QPixmap pixmap(const QSize &tamanho, QIcon::Mode modo, QIcon::State estado) override
    {
        return Icone(modo).pixmap(tamanho, 1.0, QIcon::Normal, estado);
    }
    QSize actualSize(const QSize &tamanho, QIcon::Mode modo, QIcon::State estado) override
    {
        return Icone(modo).actualSize(tamanho, QIcon::Normal, estado);
    }
    bool isNull() override { return normal.isNull() && apagado.isNull(); }
    QIconEngine *clone() const override { return new TIconeDeEstados(normal, apagado); }

private:
    const QIcon &Icone(QIcon::Mode modo) const
    {
        return modo == QIcon::Disabled || normal.isNull() ? apagado : normal;
    }

    QIcon normal, apagado;
};

} // namespace

TImageList::TImageList(QObject *owner, QSize tamanho_) : QObject(owner), tamanho(tamanho_) {}

void TImageList::SetSize(QSize novo)
{
    if (tamanho == novo)
        return;
    tamanho = novo;
    Q_EMIT Change();
}

int TImageList::Count() const
{
    return icones.empty() ? 0 : icones.rbegin()->first + 1;
}

bool TImageList::Tem(int indice) const
{
    return icones.count(indice) > 0;
}

int TImageList::Add(const QIcon &icone)
{
    const int indice = Count();
    SetIcon(indice, icone);
    return indice;
}

void TImageList::SetIcon(int indice, const QIcon &icone)
{
    if (indice < 0)
        throw ELayoutError(QStringLiteral("não há figura de índice %1").arg(indice));
    icones[indice] = icone;
    Q_EMIT Change();
}

void TImageList::AddSvg(int indice, const QString &figura)
{
    SetIcon(indice, IconeSvg(figura));
}

void TImageList::AssignDisabled(const TImageList &de)
{
    std::map<int, QIcon> novos;
    for (const auto &[indice, icone] : de.icones)
        novos[indice] = QIcon(new TIconeApagado(icone));
    icones = std::move(novos);
    tamanho = de.tamanho;
    Q_EMIT Change();
}

void TImageList::Clear()
{
    icones.clear();
    Q_EMIT Change();
}

QIcon TImageList::GetIcon(int indice) const
{
    const auto achado = icones.find(indice);
    return achado == icones.end() ? QIcon() : achado->second;
}

QPixmap TImageList::GetPixmap(int indice, qreal razao, bool habilitada) const
{
    const QIcon icone = GetIcon(indice);
    return icone.isNull()
               ? QPixmap()
               : icone.pixmap(tamanho, razao, habilitada ? QIcon::Normal : QIcon::Disabled);
}

void TImageList::Draw(QPainter &pintor, QPoint onde, int indice, bool habilitada) const
{
    GetIcon(indice).paint(&pintor, QRect(onde, tamanho), Qt::AlignCenter,
                          habilitada ? QIcon::Normal : QIcon::Disabled);
}

QIcon IconeSvg(const QString &figura)
{
    const QString caminho = Caminho(figura);
    return QIcon(new TSvgIconEngine(caminho, Desenhista(caminho)));
}

QIcon IconeComApagado(const QIcon &normal, const QIcon &apagado)
{
    return QIcon(new TIconeDeEstados(normal, apagado));
}

QPixmap PixmapSvg(const QString &figura, QSize tamanho, qreal razao)
{
    const QString caminho = Caminho(figura);
    const auto desenhista = Desenhista(caminho);
    const QSize seu = tamanho.isEmpty() ? desenhista->defaultSize() : tamanho;
    QPixmap pixmap = IconeSvg(figura).pixmap(seu, razao);
    return pixmap;
}

} // namespace ficha
