#pragma once

// Private to this floor: the engine's own interface stays out of every other header.

#include "platform/database/EDatabaseError.h"

#include <QByteArray>

#include <firebird/Interface.h>

#include <cfenv>
#include <memory>
#include <vector>

namespace ficha::motor
{

/** The client library's entry points, prepared for embedded use at the first call. */
struct TMotor {
    Firebird::IMaster *master;
    Firebird::IProvider *provedor;
    Firebird::IUtil *util;
};
/** Raises EDatabaseError when no folder for the engine's lock files can be made. */
const TMotor &Motor();

/** What the caller was doing, where the same engine code means different things to a user. */
enum class TMomento { Conectando, Trabalhando };

/** The error of an engine's status vector: class, Portuguese message, engine's text and codes. */
EDatabaseError TraduzirErro(Firebird::IStatus *estado, TMomento momento = TMomento::Trabalhando);

/** A status vector to call the engine with. */
class TEstado
{
public:
    TEstado() : cru(Motor().master->getStatus()), api(cru) {}
    ~TEstado() { cru->dispose(); }
    TEstado(const TEstado &) = delete;
    TEstado &operator=(const TEstado &) = delete;

    Firebird::CheckStatusWrapper *Api() { return &api; }
    bool Falhou() const { return api.hasData(); }
    EDatabaseError Erro(TMomento momento = TMomento::Trabalhando) const
    {
        return TraduzirErro(cru, momento);
    }

private:
    Firebird::IStatus *cru;
    Firebird::CheckStatusWrapper api;
};

struct TSolta {
    template <typename T>
    void operator()(T *interface) const
    {
        interface->release();
    }
};
/** A counted reference to an engine's object; letting go of it never fails. */
template <typename T>
using TRef = std::unique_ptr<T, TSolta>;

/**
 * Ends an engine's object with its closing call (commit, rollback, close, free, detach). A call
 * that succeeds takes the reference with it; one that fails does not. Answers whether it succeeded.
 */
template <typename T, typename F>
bool Encerrar(TEstado &estado, TRef<T> &objeto, F &&fechar)
{
    if (!objeto)
        return true;
    fechar(objeto.get(), estado.Api());
    if (estado.Falhou()) {
        objeto.reset();
        return false;
    }
    static_cast<void>(objeto.release());
    return true;
}

/**
 * While it lives, the floating-point environment is the default one, without the flags that earlier
 * divisions left. The client library compares it with that at every call and writes it several
 * times over where they differ, which is a tenth of the time of fetching a row.
 */
class TAmbienteNumericoLimpo
{
public:
    TAmbienteNumericoLimpo()
    {
        std::fegetenv(&antes);
        std::fesetenv(FE_DFL_ENV);
    }
    ~TAmbienteNumericoLimpo() { std::fesetenv(&antes); }
    TAmbienteNumericoLimpo(const TAmbienteNumericoLimpo &) = delete;
    TAmbienteNumericoLimpo &operator=(const TAmbienteNumericoLimpo &) = delete;

private:
    std::fenv_t antes{};
};

/** The connection's bytes of a text; EDatabaseError (CaractereInvalido) when one does not fit. */
QByteArray ParaLatin1(const QString &texto);

} // namespace ficha::motor
