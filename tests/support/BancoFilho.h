#pragma once

#include "support/Filhos.h"

#include <QProcess>
#include <QStringList>

namespace ficha
{

/**
 * A second process for a test: this same test program, running what FICHA_FILHO(name) defines
 * beside the tests which need it. Killed when the object goes.
 */
class TFilho
{
public:
    explicit TFilho(const QString &nome, const QStringList &argumentos);
    ~TFilho();
    TFilho(const TFilho &) = delete;
    TFilho &operator=(const TFilho &) = delete;

    /** Waits until the child says that it is ready (AvisarEEsperar). */
    bool Pronto();
    /** Kills it without a chance to clean up, and waits until it is gone. */
    void Matar();
    /** Waits for its end; answers its exit code, -1 when it crashed. */
    int EsperarFim();

    // For the child:
    static QString Argumento(int i);
    /** Tells the parent that all is set up, then sleeps until it is killed. */
    [[noreturn]] static void AvisarEEsperar();

private:
    QProcess processo;
};

} // namespace ficha
