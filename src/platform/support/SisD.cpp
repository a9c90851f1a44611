#include "platform/support/SisD.h"

#include "platform/support/Traducao.h"

#include <QFileDialog>

namespace ficha
{

bool TOpenDialog::Execute(QWidget *dono)
{
    if (AoExecutar)
        return AoExecutar(*this, dono);
    InstalarTraducao();
    const QString escolhido = QFileDialog::getOpenFileName(dono, Title, FileName, Filter);
    if (escolhido.isEmpty())
        return false;
    FileName = escolhido;
    return true;
}

TSisD &SisD()
{
    static TSisD modulo;
    return modulo;
}

} // namespace ficha
