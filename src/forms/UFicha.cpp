#include "forms/UFicha.h"

#include "forms/UImg16D.h"
#include "forms/UImgD.h"
#include "forms/ULocalizBasF.h"
#include "forms/UTabLinearD.h"
#include "platform/core/Erros.h"
#include "platform/support/Traducao.h"

#include <QApplication>

namespace ficha
{

namespace
{

const QLocale &PortuguesDoBrasil()
{
    static const QLocale idioma(QLocale::Portuguese, QLocale::Brazil);
    return idioma;
}

} // namespace

TFicha::TFicha()
{
    if (!qApp)
        throw EErro(QStringLiteral("A biblioteca se inicia depois do QApplication."));
    if (TabLinearD)
        throw EErro(QStringLiteral("A biblioteca já está iniciada neste programa."));
    // Before the first widget is made: each takes the locale of its creation.
    QLocale::setDefault(PortuguesDoBrasil());
    InstalarTraducao();
    imagens = std::make_unique<TImgD>();
    imagens->Instalar();
    tabLinearD = std::make_unique<TTabLinearD>();
    img16D = std::make_unique<TImg16D>();
    localizBasF.reset(Criar<TLocalizBasF>(nullptr));
    TabLinearD = tabLinearD.get();
    Img16D = img16D.get();
    LocalizBasF = localizBasF.get();
}

TFicha::~TFicha()
{
    if (QLocale() == PortuguesDoBrasil())
        QLocale::setDefault(idiomaAntes);
    LocalizBasF = nullptr;
    Img16D = nullptr;
    TabLinearD = nullptr;
}

} // namespace ficha
