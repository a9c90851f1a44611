#pragma once

#include "platform/database/EDatabaseError.h"

#include <QObject>

#include <functional>
#include <memory>

namespace ficha
{

class TTravas;

/**
 * A connection to a Firebird database: a file through the embedded engine, or a server.
 *
 * Settings are made before Open(). The character set is ISO8859_1 throughout; text that it cannot
 * hold is refused with EDatabaseError (CaractereInvalido) before anything is sent. Not shared
 * between threads.
 */
class TSQLConnection : public QObject
{
    Q_OBJECT

public:
    explicit TSQLConnection(QObject *owner = nullptr);
    ~TSQLConnection() override;

    /** A file's path for the embedded engine, or "host:path" / "host/port:path" for a server. */
    QString DatabaseName;
    /** For a server; embedded needs neither. */
    QString UserName;
    QString Password;

    /** Connects; an open connection is left alone. One clear EDatabaseError on failure. */
    void Open();
    void Close();
    /**
     * Connected as far as is known: a lost connection says false from its first failure on, and the
     * next action that needs it connects again by itself. After Close() an action raises
     * EDatabaseError instead.
     */
    bool Connected() const;
    /** DatabaseName is a file of this machine; else it names a server. */
    bool Embutido() const;

    /**
     * Makes a new database file (page size 16384, default character set ISO8859_1), connects to it
     * and runs the script. When anything fails no half-made file is left behind: a local file gets
     * its name only when the script is through. An existing file is refused.
     */
    void CriarBanco(const QString &script);
    /** Runs the statements of a script, separated by ";" ("set term" understood), each committed
     * by itself (inside EmTransacao all together). An error names the line of its statement. */
    void ExecutarScript(const QString &script);

    /**
     * Runs one statement without a result in its own short read-write NOWAIT transaction,
     * committed at once; rolled back on any error. Answers the rows it changed. Inside
     * EmTransacao it joins that transaction. What a "returning" clause answers is dropped; selects
     * and statements that start or end a transaction are refused.
     */
    int Executar(const QString &sql);
    /** Runs f with every Executar in it in one transaction, committed when f ends, rolled back
     * when it raises. Nested calls join the outer one. A statement that fails rolls everything back
     * at once: when f goes on regardless, its further statements and the end raise that error. */
    void EmTransacao(const std::function<void()> &f);

    /** The record locks held through this connection; they live and die with it. */
    TTravas &Travas() const;

    struct TPrivado;
    TPrivado &Privado() const { return *d; }

private:
    /** Gives a finished database file its name and opens it. */
    void Inaugurar(const QString &emObras, const QString &nome);

    std::unique_ptr<TPrivado> d;
};

} // namespace ficha
