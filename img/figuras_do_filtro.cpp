// Draws the two pictures of the filter panel's strip: figuras_do_filtro <folder>

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>

namespace
{

constexpr int Largura = 13;
constexpr int Altura = 96;
/** The strip's own colour, into which the picture runs at its ends. */
const QColor Faixa(239, 241, 245);
const QColor Sulco(168, 186, 203);
const QColor Seta(33, 77, 120);

/** An arrow head between two rows of grip lines; to the left it offers closing. */
QImage Desenhar(bool paraEsquerda)
{
    QImage imagem(Largura, Altura, QImage::Format_RGB32);
    imagem.fill(Faixa);
    QPainter p(&imagem);
    const int meio = Altura / 2;
    for (const int inicio : {10, meio + 16}) {
        for (int i = 0; i < 6; ++i)
            p.fillRect(3, inicio + 4 * i, Largura - 6, 1, Sulco);
    }
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(Seta);
    p.translate(Largura / 2.0, meio);
    if (!paraEsquerda)
        p.scale(-1, 1);
    p.drawPolygon(QPolygonF({{2.5, -6}, {2.5, 6}, {-3.5, 0}}));
    return imagem;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication programa(argc, argv);
    const QDir pasta(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("."));
    const bool fez = Desenhar(true).save(pasta.filePath("filtro fechar.jpg"), "JPG", 96) &&
                     Desenhar(false).save(pasta.filePath("filtro abrir.jpg"), "JPG", 96);
    if (!fez)
        std::fprintf(stderr, "The pictures could not be written to %s\n", qPrintable(pasta.path()));
    return fez ? 0 : 1;
}
