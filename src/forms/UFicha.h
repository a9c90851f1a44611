#pragma once

#include <QLocale>

#include <memory>

namespace ficha
{

class TImgD;
class TImg16D;
class TLocalizBasF;
class TTabLinearD;

/**
 * The library as a program uses it: made after the QApplication and before the first screen, it
 * creates the three objects that live for the whole process (LocalizBasF, TabLinearD, Img16D) and
 * gives SisD() pictures where the host installed none; its end frees them all.
 *
 * The language of the program becomes Brazilian Portuguese, whatever the desktop's is: the default
 * locale is pt_BR (calendars, date pickers, the weekday and month names of Qt's widgets) and Qt's
 * own texts (buttons of its dialogs, context menus, the file dialog) are translated. The texts and
 * numbers that the library itself reads and writes never depend on the locale. A host that wants
 * another locale sets it afterwards; the end gives back the earlier one unless the host did so.
 *
 *     QApplication app(argc, argv);
 *     ficha::TFicha biblioteca;
 *
 * There is one at a time; a second raises EErro.
 */
class TFicha
{
public:
    TFicha();
    ~TFicha();
    TFicha(const TFicha &) = delete;
    TFicha &operator=(const TFicha &) = delete;

private:
    QLocale idiomaAntes;
    std::unique_ptr<TImgD> imagens;
    std::unique_ptr<TTabLinearD> tabLinearD;
    std::unique_ptr<TImg16D> img16D;
    std::unique_ptr<TLocalizBasF> localizBasF;
};

} // namespace ficha
