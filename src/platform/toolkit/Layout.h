#pragma once

#include "platform/core/Criar.h"

#include <QStringList>
#include <QWidget>

#include <functional>

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
    const bool registrada##Classe =                                                                \
        (::ficha::RegistrarClasse(Classe::staticMetaObject,                                        \
                                  [](QWidget *pai) { return ::ficha::TFabrica<Classe>::Nova(pai); }), \
         true);                                                                                    \
    }
#define FICHA_REGISTRAR_WIDGET(Classe)                                                             \
    namespace                                                                                      \
    {                                                                                              \
    const bool registrada##Classe =                                                                \
        (::ficha::RegistrarClasse(Classe::staticMetaObject,                                        \
                                  [](QWidget *pai) -> QWidget * { return new Classe(pai); }),      \
         true);                                                                                    \
    }

/** Adds a resource folder (":/demo/layouts") in which layouts are looked for, before the
 * library's own ":/ficha/layouts". */
void RegistrarPastaDeLayouts(const QString &pasta);

/**
 * Loads the layouts of a widget's class chain into it, from the root class to the most derived
 * one: for each class the file "<ClassName>.ui" where it exists.
 *
 * The widget itself is the root of every file; a name that an earlier file brought is that child,
 * whose properties the later file changes; every other name is made new. Each name, class and
 * property is checked against the meta-object before anything is built.
 *
 * Raises ELayoutError naming the file and the line of the first fault.
 */
void CarregarLayouts(QWidget *raiz);

/** The faults of one layout file for a class, each "file:line: text"; empty when it is sound. */
QStringList VerificarLayout(const QString &arquivo, const QMetaObject &classe);

/** A child by name and type; raises ELayoutError naming what is missing or of another type. */
QObject *PegarComponente(QObject *dono, const char *nome, const QMetaObject &classe);

/** Fetches a child of a layout into the member that carries its name. */
template <typename T>
void Pegar(QObject *dono, T *&membro, const char *nome)
{
    membro = static_cast<T *>(PegarComponente(dono, nome, T::staticMetaObject));
}

} // namespace ficha
