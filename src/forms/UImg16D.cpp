#include "forms/UImg16D.h"

#include "platform/toolkit/TImageList.h"

namespace ficha
{

TImg16D *Img16D = nullptr;

TImg16D::TImg16D(QObject *owner) : QObject(owner), ImageList16(new TImageList(this))
{
    setObjectName(QStringLiteral("Img16D"));
    ImageList16->setObjectName(QStringLiteral("ImageList16"));
    ImageList16->AddSvg(0, QStringLiteral("imprimir"));
    ImageList16->AddSvg(1, QStringLiteral("inserir"));
    ImageList16->AddSvg(2, QStringLiteral("alterar"));
    ImageList16->AddSvg(3, QStringLiteral("excluir"));
}

} // namespace ficha
