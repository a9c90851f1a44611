#pragma once

#include "platform/core/TColor.h"

#include <QString>

#include <functional>

class QWidget;

namespace ficha
{

class TImageList;

/** The file-open dialog that all screens share. */
class TOpenDialog
{
public:
    /** Title of the window, "Abrir" until a screen sets its own. */
    QString Title = QStringLiteral("Abrir");
    /** What is offered, as "Imagens (*.jpg *.bmp);;Todos os arquivos (*)"; empty offers all. */
    QString Filter;
    /** The file to start on; after Execute, the one that was picked, with its whole path. */
    QString FileName;
    /** A host's own dialog: answers whether a file was picked and leaves it in FileName. */
    std::function<bool(TOpenDialog &dialogo, QWidget *dono)> AoExecutar;

    /** Runs the dialog modally; true when a file was picked. When none was, FileName stays. */
    bool Execute(QWidget *dono = nullptr);
};

/**
 * The process-wide module of shared settings. A host sets them before its first screen; screens
 * read them when they need them.
 */
class TSisD
{
public:
    /** Where new contacts and addresses start: area code, state and município. */
    QString DDDPadrao = QStringLiteral("11");
    QString UFPadrao = QStringLiteral("SP");
    QString MunicipioPadrao = QStringLiteral("São Paulo");

    /** Background of the input that has the focus, and of all the others. */
    TColor CorControlSelec = TColor::DeRGB(255, 255, 204);
    TColor CorControlDesselec = TColor::DeRGB(255, 255, 255);

    /** Pictures of the tool bars and actions at 16 pixels, and their disabled forms; not owned,
     * null until the host or the library's start sets them. */
    TImageList *ImageList16 = nullptr;
    TImageList *DisImageList16 = nullptr;
    /** The list with the markers of grids and trees (8 and 9 the sort arrows, 25 and 26 collapsed
     * and expanded); not owned. */
    TImageList *ImageList = nullptr;

    TOpenDialog OpenDialog;
};

/** The one instance. */
TSisD &SisD();

} // namespace ficha
