#include "input/UTituloDoDialogo.h"

#include <QLabel>

namespace ficha
{

namespace
{
constexpr int Folga = 6; // pixels between the title and what it pushed down
}

void AcomodarTitulo(QLabel &titulo, QWidget &abaixo)
{
    if (titulo.text().isEmpty())
        return;
    const int altura = titulo.heightForWidth(titulo.width());
    titulo.setFixedHeight(altura);
    const int falta = altura + Folga - abaixo.y();
    if (falta <= 0)
        return;
    QWidget *dialogo = titulo.parentWidget();
    dialogo->resize(dialogo->width(), dialogo->height() + falta);
    abaixo.move(abaixo.x(), abaixo.y() + falta);
}

} // namespace ficha
