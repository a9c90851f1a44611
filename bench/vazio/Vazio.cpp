// The least that a program with a window does: what the demo program's start is held against.

#include "demo/USaidaAoPintar.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QMainWindow janela;
    const comercial::TSaidaAoPintar saida(&janela);
    janela.show();
    return QApplication::exec();
}
