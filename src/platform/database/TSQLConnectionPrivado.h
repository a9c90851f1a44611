#pragma once

// Private to this floor: a connection as queries and locks use it.

#include "platform/database/LinhasCompactas.h"
#include "platform/database/MotorFirebird.h"
#include "platform/database/TSQLConnection.h"
#include "platform/database/TTravas.h"

#include <optional>

namespace ficha
{

/** How a transaction starts; all of them refuse at once instead of waiting. */
enum class TModo { Leitura, Gravacao };

struct TSQLConnection::TPrivado {
    enum class TSituacao { Fechada, Aberta, Perdida };

    explicit TPrivado(TSQLConnection *conexao) : dono(conexao), travas(*conexao) {}

    /** Reconnects after a loss; EDatabaseError when the connection was never opened or was closed.
     */
    void Garantir();
    /** The transaction that reads: the one of EmTransacao, else the long read-only one. */
    Firebird::ITransaction *ParaLer();
    motor::TRef<Firebird::ITransaction> Iniciar(TModo modo);
    /** Runs a statement without a result; answers the rows it changed. */
    int ExecutarEm(Firebird::ITransaction *transacao, const QByteArray &sql);
    void Confirmar(motor::TRef<Firebird::ITransaction> &transacao);
    /** Rolls back; a failure to do so changes nothing, for the engine rolls back what is lost. */
    void Desfazer(motor::TRef<Firebird::ITransaction> &transacao) noexcept;
    /** Raises what the status vector says, when it says so, and notices a lost connection. */
    void Verificar();
    /** Ends everything that hangs on the attachment, and the attachment. */
    void Soltar() noexcept;
    /** Drops the database that is attached. */
    void Apagar() noexcept;
    /** A statement of the group failed: nothing of it will be committed. */
    void CondenarGrupo(const EDatabaseError &erro) noexcept;
    void VerificarGrupo() const;

    motor::TRef<Firebird::IAttachment> Anexar(const QString &arquivo, bool criar);

    TSQLConnection *dono;
    motor::TEstado estado;
    TSituacao situacao = TSituacao::Fechada;
    motor::TRef<Firebird::IAttachment> anexo;
    motor::TRef<Firebird::ITransaction> leitura;
    bool agrupando = false;
    motor::TRef<Firebird::ITransaction> grupo;
    std::optional<EDatabaseError> falhaDoGrupo;
    TTravas travas;
};

/** A short transaction of its own: rolled back unless it was committed. */
class TTransacaoCurta
{
public:
    TTransacaoCurta(TSQLConnection::TPrivado &con, TModo modo) : conexao(con), t(con.Iniciar(modo))
    {
    }
    ~TTransacaoCurta() { conexao.Desfazer(t); }
    TTransacaoCurta(const TTransacaoCurta &) = delete;
    TTransacaoCurta &operator=(const TTransacaoCurta &) = delete;

    Firebird::ITransaction *operator*() const { return t.get(); }
    void Confirmar() { conexao.Confirmar(t); }
    /** Hands the open transaction over. */
    motor::TRef<Firebird::ITransaction> Entregar() { return std::move(t); }

private:
    TSQLConnection::TPrivado &conexao;
    motor::TRef<Firebird::ITransaction> t;
};

/** What a select's column is called and how it reads. */
struct TColunaLida {
    QString nome;
    TColunaFisica fisica;
    bool texto = false;
    bool binario = false;
    int conjunto = 0; /**< character set of a text blob */
};

/** Runs a select and reads all of its rows; the cursor is closed before it answers. */
std::vector<TColunaLida> LerSelect(TSQLConnection::TPrivado &conexao,
                                   Firebird::ITransaction *transacao, const QByteArray &sql,
                                   TLinhasCompactas &linhas);

} // namespace ficha
