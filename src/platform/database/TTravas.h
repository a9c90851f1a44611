#pragma once

#include "platform/core/TDateTime.h"

#include <QString>

#include <memory>

namespace ficha
{

class TSQLConnection;

/** Who holds a record lock, as far as the database tells. */
struct TDonoDaTrava {
    /** "user@machine (program)". */
    QString Quem;
    /** When it was taken, by the holder's clock. */
    TDateTime Desde;
    /** False when nobody holds it or the holder cannot be seen: Firebird shows other connections
     * only to the same database user and to administrators. */
    bool Conhecido = false;
};

/**
 * Record locks, held in the database so that every workstation sees them.
 *
 * A lock is an uncommitted row of the table FICHA_TRAVA (made by PrepararBanco) in a transaction of
 * its own, kept open while the lock is held and rolled back to release it: whoever dies holding one
 * frees it. Table names are compared without letter case, key texts to the letter; a long key text
 * is told apart by its hash.
 *
 * Two screens of one process are two holders: a lock that this connection already holds is refused
 * like anybody else's. Owned by its connection; closing or losing that drops all locks.
 */
class TTravas
{
public:
    explicit TTravas(TSQLConnection &conexao);
    ~TTravas();
    TTravas(const TTravas &) = delete;
    TTravas &operator=(const TTravas &) = delete;

    /**
     * Takes the lock without waiting; false when it is held already, and then dono, if given, is
     * told who holds it. Raises EDatabaseError when the database cannot answer.
     */
    bool Tentar(const QString &tabela, const QString &chaves, TDonoDaTrava *dono = nullptr);
    /** Releases a lock of this connection; one that is not held is no mistake. Never raises. */
    void Liberar(const QString &tabela, const QString &chaves) noexcept;
    void LiberarTodas() noexcept;
    /** Whether this connection holds the lock; false again after the connection was lost. */
    bool Detem(const QString &tabela, const QString &chaves) const;
    /** The number of the lock that this connection holds, 0 when it holds none. Every lock taken in
     * this process has another one, so that a holder tells its own from one taken since. */
    qint64 Numero(const QString &tabela, const QString &chaves) const;
    int Count() const;
    /** Who holds the lock now, on whatever workstation. */
    TDonoDaTrava Dono(const QString &tabela, const QString &chaves);

private:
    struct TPrivado;
    std::unique_ptr<TPrivado> d;
};

} // namespace ficha
