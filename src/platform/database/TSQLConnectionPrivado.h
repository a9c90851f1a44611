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
    int anexacoes = 0; /**< how often it was attached: what was prepared before has gone */
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

/**
 * A select, prepared and described, that can be read again and again. Outlives its connection, but
 * is then of no use; what it throws at a reading leaves it so too.
 */
class TSelectPreparado
{
public:
    /** The longest text that a parameter takes. */
    static constexpr int MaiorValor = 64;

    TSelectPreparado(TSQLConnection::TPrivado &con, Firebird::ITransaction *t,
                     const QByteArray &sql);

    /** The select has a parameter: its readings are given a value. */
    void AceitarValor(TSQLConnection::TPrivado &con);
    /** Reads all rows; the cursor is closed before it ends. The value of a parameter is a text,
     * which the engine converts. */
    void Ler(TSQLConnection::TPrivado &con, Firebird::ITransaction *t, TLinhasCompactas &linhas,
             const QByteArray &valor = {});
    const std::vector<TColunaLida> &Colunas() const { return colunas; }

private:
    void Descrever(TSQLConnection::TPrivado &con);
    TColunaLida DescreverColuna(TSQLConnection::TPrivado &con, unsigned i);
    void PorValor(const QByteArray &valor);
    void LerBlobs(TSQLConnection::TPrivado &con, Firebird::ITransaction *t,
                  std::vector<QByteArray> &blobs);
    void LerBlob(TSQLConnection::TPrivado &con, Firebird::ITransaction *t,
                 const TColunaLida &coluna, QByteArray &bytes);

    motor::TRef<Firebird::IStatement> comando;
    motor::TRef<Firebird::IMessageMetadata> formato;
    motor::TRef<Firebird::IMessageMetadata> formatoDoValor;
    std::vector<TColunaLida> colunas;
    std::vector<unsigned char> mensagem;
    std::vector<unsigned char> parametro;
    unsigned posicaoDoValor = 0;
    std::vector<char> segmento;
    bool temBlob = false;
};

} // namespace ficha
