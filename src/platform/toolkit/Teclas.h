#pragma once

#include <QKeyEvent>
#include <QWidget>

#include <functional>

namespace ficha
{

/** Virtual-key codes that the screens speak in. */
enum TTeclaVirtual : int {
    VK_BACK = 8,
    VK_TAB = 9,
    VK_RETURN = 13,
    VK_ESCAPE = 27,
    VK_SPACE = 32,
    VK_PRIOR = 33,
    VK_NEXT = 34,
    VK_END = 35,
    VK_HOME = 36,
    VK_LEFT = 37,
    VK_UP = 38,
    VK_RIGHT = 39,
    VK_DOWN = 40,
    VK_INSERT = 45,
    VK_DELETE = 46,
};

/** The virtual-key code of a key event, 0 for a key that has none. Letters and digits are
 * their upper-case ASCII codes, F1 to F24 are 112 to 135. */
int TeclaVirtual(const QKeyEvent &evento);
/** The toolkit's key for a virtual-key code; Qt::Key_unknown for one that stands for none. */
Qt::Key DeTeclaVirtual(int tecla);

/**
 * Runs the handler before the control itself sees a key that goes down. Setting the key to 0
 * swallows it. Handlers run Protegido and go with their control.
 */
void AoTeclaDescer(QWidget *controle,
                   std::function<void(int &tecla, Qt::KeyboardModifiers estado)> handler);
/**
 * Runs the handler before the control itself sees a typed character (control characters such as
 * Enter U+000D and Backspace U+0008 included). The handler may replace the character; setting it
 * to U+0000 swallows it. Runs after the AoTeclaDescer handlers of the same key. A text of several
 * characters in one event (input methods) is taken character by character.
 */
void AoTeclar(QWidget *controle, std::function<void(QChar &caractere)> handler);

/** Delivers one key press and its release to a control, synchronously, past the event queue. */
void EnviarTecla(QWidget *alvo, int teclaVirtual);

} // namespace ficha
