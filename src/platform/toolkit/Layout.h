#pragma once

#include "platform/core/Criar.h"

#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>

namespace ficha
{

/** Makes instances of registered classes for the layout loader. */
template <typename T>
class TFabrica
{
public:
    static QWidget *Nova(QWidget *pai)
    {
        std::unique_ptr<T> novo(new T(TChave()));
        novo->Create(pai);
        return novo.release();
    }
};

/**
 * Registers a widget class by name so that layouts can place it. Classes with creation in two
 * steps use FICHA_REGISTRAR; plain widgets with an ordinary (QWidget *) constructor use
 * FICHA_REGISTRAR_WIDGET. Registering the same name twice keeps the last.
 */
void RegistrarClasse(const QMetaObject &classe, std::function<QWidget *(QWidget *pai)> criar);
/** The bare names (no namespace) of all registered classes, sorted. */
QStringList ClassesRegistradas();

#define FICHA_REGISTRAR(Classe)                                                                    \
    namespace                                                                                      \
    {                                                                                              \
    static_assert(QtPrivate::HasQ_OBJECT_Macro<Classe>::Value, #Classe " sem Q_OBJECT");           \
    const bool registrada##Classe =                                                                \
        (::ficha::RegistrarClasse(                                                                 \
             Classe::staticMetaObject,                                                             \
             [](QWidget *pai) { return ::ficha::TFabrica<Classe>::Nova(pai); }),                   \
         true);                                                                                    \
    }
#define FICHA_REGISTRAR_WIDGET(Classe)                                                             \
    namespace                                                                                      \
    {                                                                                              \
    static_assert(QtPrivate::HasQ_OBJECT_Macro<Classe>::Value, #Classe " sem Q_OBJECT");           \
    const bool registrada##Classe =                                                                \
        (::ficha::RegistrarClasse(Classe::staticMetaObject,                                        \
                                  [](QWidget *pai) -> QWidget * { return new Classe(pai); }),      \
         true);                                                                                    \
    }

/** Registers a class by name for checks only: layouts cannot place it. For abstract classes. */
#define FICHA_REGISTRAR_ABSTRATA(Classe)                                                           \
    namespace                                                                                      \
    {                                                                                              \
    static_assert(QtPrivate::HasQ_OBJECT_Macro<Classe>::Value, #Classe " sem Q_OBJECT");           \
    const bool registrada##Classe =                                                                \
        (::ficha::RegistrarClasse(Classe::staticMetaObject, {}), true);                            \
    }
/** The meta-object of a registered class or of one of Qt's widgets, by bare name; else null. */
const QMetaObject *ClasseRegistrada(const QString &nome);
/** Makes an instance of a registered class as a layout would, owned by the parent; null when the
 * name is not registered or the class is abstract. */
QWidget *CriarPeloNome(const QString &nome, QWidget *pai);

/** Adds a resource folder (":/demo/layouts") in which layouts are looked for, before the
 * library's own ":/ficha/layouts". */
void RegistrarPastaDeLayouts(const QString &pasta);

/**
 * Loads the layouts of a widget's class chain into it, from the root class to the most derived
 * one: for each class the file "<ClassName>.ui" where it exists.
 *
 * The widget itself is the root of every file; a name that an earlier file brought is that child,
 * whose properties the later file changes; every other name is made new. Known children are named
 * flat under the root or inside the container that holds them. Each name, class and property is
 * checked against the meta-object before anything is built; each class's files are read once per
 * process.
 *
 * What the files may hold beyond Designer's widgets, properties, layouts and tab stops:
 * - Any registered class. Inside the element of an inline frame, the frame's own children by name:
 *   their properties are changed for this one frame.
 * - <actiongroup name="ActionList1"> with <action name="..."> inside: a TActionList with its
 *   TActions. An <action> straight under the root joins "ActionList1", made when missing.
 * - A property that points to an object ("action" of a button) is given its name.
 * - On every widget the dynamic properties "tag" (a number); "align" (alTop, alBottom, alLeft,
 *   alRight, alClient: the control sticks to that side of what its container has left, the first
 *   named outermost; see Alinhar) and "anchors" ("right", "bottom", "left right", ...: the control
 *   keeps its distance to those sides when the container is resized from its design size).
 *
 * Raises ELayoutError naming the file and the line of the first fault.
 */
void CarregarLayouts(QWidget *raiz);

/** The faults of one layout file for a class, each "file:line: text"; empty when it is sound. */
QStringList VerificarLayout(const QString &arquivo, const QMetaObject &classe);

/** A child by name and type; children of inline frames are not looked at. Raises ELayoutError
 * naming what is missing or of another type. */
QObject *PegarComponente(QObject *dono, const char *nome, const QMetaObject &classe);

/** Sides of a container. */
enum TAlign { alNone, alTop, alBottom, alLeft, alRight, alClient };
/**
 * Makes a control stick to a side of its parent, in the order of the calls: top and bottom keep
 * their height, left and right their width, the client takes what is left. Hidden controls take no
 * room. alNone lets it go. Refused (ELayoutError) when the parent has a layout of another kind.
 */
void Alinhar(QWidget *controle, TAlign lado);

/**
 * Walks the widgets inside a widget, depth first in child order, own windows left out. The visit
 * answers whether to go inside the widget; it may destroy any of them.
 */
void PercorrerFilhos(QWidget *raiz, const std::function<bool(QWidget *)> &visita);

/** Fetches a child of a layout into the member that carries its name. */
template <typename T>
void Pegar(QObject *dono, T *&membro, const char *nome)
{
    membro = static_cast<T *>(PegarComponente(dono, nome, T::staticMetaObject));
}

} // namespace ficha
