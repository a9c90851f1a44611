#pragma once

#include "platform/database/TSQLConnection.h"

#include <QProcess>
#include <QTemporaryDir>

#include <memory>

namespace ficha
{

/**
 * A private Firebird server on the loopback interface, run by an ordinary user out of a temporary
 * folder: own configuration, own security database (SYSDBA / masterkey), own lock files. It stops
 * when the object goes, and with the test program whatever happens to that.
 *
 * The server's program is the one that FICHA_FIREBIRD names, else an unpacked package in
 * build/firebird-server (baixar-firebird.sh fetches it), else the installed one; the rest comes
 * from the engine that the embedded tests use anyway.
 */
class TServidorFirebird
{
public:
    /** The server's program; empty when there is none on this machine. */
    static QString Programa();

    TServidorFirebird();
    ~TServidorFirebird();
    TServidorFirebird(const TServidorFirebird &) = delete;
    TServidorFirebird &operator=(const TServidorFirebird &) = delete;

    /** Starts it, on the same port each time; true when it accepts connections. */
    bool Iniciar();
    /** Asks it to end and waits. */
    void Parar();
    /** Kills it. */
    void Matar();

    int Porta() const { return porta; }
    /** "127.0.0.1/port:path" of a database in the server's folder. */
    QString Endereco(const QString &nome) const;
    /** A connection to it, with user and password, not yet open. */
    std::unique_ptr<TSQLConnection> Conexao(const QString &nome) const;

private:
    void PrepararRaiz();
    void CriarBancoDeSeguranca();
    void EntregarAoUsuario();
    bool Esperar();

    /** The program where the server's user may run it: a copy, when it lies in a folder that is
     * closed to that user (a clone in root's home, say). */
    QString ProgramaAlcancavel();

    QTemporaryDir pasta;
    QTemporaryDir pastaDoPrograma;
    QProcess processo;
    int porta = 0;
};

} // namespace ficha

/** Fails a test that needs a server where there is no server program. */
#define FICHA_PRECISA_DE_SERVIDOR()                                                                \
    ASSERT_FALSE(ficha::TServidorFirebird::Programa().isEmpty())                                   \
        << "no Firebird server program; see tests/support/baixar-firebird.sh"
