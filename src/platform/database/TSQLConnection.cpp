#include "platform/database/TSQLConnection.h"

#include "platform/database/ArquivoDoBanco.h"
#include "platform/database/ConexD.h"
#include "platform/database/Script.h"
#include "platform/database/TSQLConnectionPrivado.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <array>

namespace ficha
{

namespace
{

constexpr unsigned Dialeto = 3;
constexpr int PaginaDeBancoNovo = 16384;
constexpr int SegundosParaConectar = 15;

/** "c:/base.fdb" and "c:\base.fdb". */
bool ComecaComUnidade(const QString &nome)
{
    return nome.size() > 2 && nome[0].isLetter() && nome[1] == u':' &&
           (nome[2] == u'/' || nome[2] == u'\\');
}

/** A DPB under construction. */
class TParametros
{
public:
    explicit TParametros(motor::TEstado &aEncher) : estado(aEncher)
    {
        dpb = motor::Motor().util->getXpbBuilder(estado.Api(), Firebird::IXpbBuilder::DPB, nullptr,
                                                 0);
    }
    ~TParametros() { dpb->dispose(); }
    TParametros(const TParametros &) = delete;
    TParametros &operator=(const TParametros &) = delete;

    void Marca(unsigned char qual) { dpb->insertTag(estado.Api(), qual); }
    void Inteiro(unsigned char qual, int valor) { dpb->insertInt(estado.Api(), qual, valor); }
    void Texto(unsigned char qual, const QByteArray &valor)
    {
        dpb->insertString(estado.Api(), qual, valor.constData());
    }
    unsigned Tamanho() { return dpb->getBufferLength(estado.Api()); }
    const unsigned char *Bytes() { return dpb->getBuffer(estado.Api()); }

private:
    motor::TEstado &estado;
    Firebird::IXpbBuilder *dpb;
};

void PreencherParametros(TParametros &p, const TSQLConnection &conexao, bool criar)
{
    p.Marca(isc_dpb_utf8_filename);
    p.Texto(isc_dpb_lc_ctype, "ISO8859_1");
    p.Inteiro(isc_dpb_sql_dialect, int(Dialeto));
    if (conexao.Embutido()) {
        p.Texto(isc_dpb_config, "Providers=Engine12");
        p.Texto(isc_dpb_user_name,
                conexao.UserName.isEmpty() ? QByteArray("SYSDBA") : conexao.UserName.toUtf8());
    } else {
        p.Texto(isc_dpb_config, "Providers=Remote");
        p.Inteiro(isc_dpb_connect_timeout, SegundosParaConectar);
        p.Texto(isc_dpb_user_name, conexao.UserName.toUtf8());
        p.Texto(isc_dpb_password, conexao.Password.toUtf8());
    }
    if (criar) {
        // Without this the engine drops an existing database of that name first.
        p.Inteiro(isc_dpb_overwrite, 0);
        p.Inteiro(isc_dpb_page_size, PaginaDeBancoNovo);
        p.Texto(isc_dpb_set_db_charset, "ISO8859_1");
    }
}

/** The error again, telling where in the script it happened. */
EDatabaseError NaLinha(const EDatabaseError &erro, int linha)
{
    QString mensagem = erro.Mensagem();
    if (!erro.TextoDoBanco.isEmpty())
        mensagem.chop(erro.TextoDoBanco.size() + 4);
    return {erro.Tipo, QStringLiteral("Comando da linha %1 do script: %2").arg(linha).arg(mensagem),
            erro.TextoDoBanco, erro.Codigos};
}

void RecusarTipo(unsigned tipo)
{
    switch (tipo) {
    case isc_info_sql_stmt_select:
    case isc_info_sql_stmt_select_for_upd:
        throw EDatabaseError(
            TErroBanco::Outro,
            QStringLiteral("Um comando que devolve linhas deve ser aberto por uma consulta."));
    case isc_info_sql_stmt_start_trans:
    case isc_info_sql_stmt_commit:
    case isc_info_sql_stmt_rollback:
    case isc_info_sql_stmt_savepoint:
        throw EDatabaseError(
            TErroBanco::Outro,
            QStringLiteral("A transação é da conexão: um comando não a inicia nem termina."));
    default:
        break;
    }
}

} // namespace

TSQLConnection::TSQLConnection(QObject *owner) : QObject(owner), d(new TPrivado(this)) {}

TSQLConnection::~TSQLConnection()
{
    Close();
    if (ConexD().SQLConnection == this)
        ConexD().SQLConnection = nullptr;
}

void TSQLConnection::Open()
{
    if (Connected())
        return;
    QString nome = DatabaseName;
    if (Embutido()) {
        nome = DatabaseName.isEmpty() ? QString() : QFileInfo(DatabaseName).absoluteFilePath();
        VerificarArquivoParaAbrir(nome);
    }
    d->Soltar();
    d->anexo = d->Anexar(nome, false);
    ++d->anexacoes;
    d->situacao = TPrivado::TSituacao::Aberta;
}

void TSQLConnection::Close()
{
    d->Soltar();
    d->situacao = TPrivado::TSituacao::Fechada;
}

bool TSQLConnection::Connected() const
{
    return d->situacao == TPrivado::TSituacao::Aberta;
}

bool TSQLConnection::Embutido() const
{
    return DatabaseName.startsWith(u'/') || DatabaseName.startsWith(u'.') ||
           ComecaComUnidade(DatabaseName) || !DatabaseName.contains(u':');
}

void TSQLConnection::CriarBanco(const QString &script)
{
    Close();
    const bool arquivo = Embutido();
    const QString nome = arquivo && !DatabaseName.isEmpty()
                             ? QFileInfo(DatabaseName).absoluteFilePath()
                             : DatabaseName;
    QString emObras = nome;
    if (arquivo) {
        VerificarArquivoParaCriar(nome);
        emObras += QStringLiteral(".criando-%1").arg(QCoreApplication::applicationPid());
    }
    d->anexo = d->Anexar(emObras, true);
    ++d->anexacoes;
    d->situacao = TPrivado::TSituacao::Aberta;
    try {
        ExecutarScript(script);
    } catch (...) {
        d->Apagar();
        if (arquivo)
            QFile::remove(emObras);
        throw;
    }
    if (arquivo)
        Inaugurar(emObras, nome);
}

void TSQLConnection::Inaugurar(const QString &emObras, const QString &nome)
{
    Close();
    if (!QFile::rename(emObras, nome)) {
        QFile::remove(emObras);
        throw EDatabaseError(
            TErroBanco::Outro,
            QStringLiteral("Não foi possível dar ao banco de dados o nome %1").arg(nome));
    }
    Open();
}

void TSQLConnection::ExecutarScript(const QString &script)
{
    for (const TComandoDoScript &comando : SepararScript(script)) {
        try {
            Executar(comando.texto);
        } catch (const EDatabaseError &erro) {
            throw NaLinha(erro, comando.linha);
        }
    }
}

int TSQLConnection::Executar(const QString &sql)
{
    if (d->agrupando) {
        d->VerificarGrupo();
        try {
            return d->ExecutarEm(d->grupo.get(), motor::ParaLatin1(sql));
        } catch (const EDatabaseError &erro) {
            d->CondenarGrupo(erro);
            throw;
        }
    }
    const QByteArray texto = motor::ParaLatin1(sql);
    d->Garantir();
    TTransacaoCurta transacao(*d, TModo::Gravacao);
    const int linhas = d->ExecutarEm(*transacao, texto);
    transacao.Confirmar();
    return linhas;
}

void TSQLConnection::EmTransacao(const std::function<void()> &f)
{
    if (d->agrupando) {
        f();
        return;
    }
    struct TFimDoGrupo {
        TPrivado &d;
        ~TFimDoGrupo()
        {
            d.agrupando = false;
            d.Desfazer(d.grupo);
        }
    };
    d->Garantir();
    d->falhaDoGrupo.reset();
    d->grupo = d->Iniciar(TModo::Gravacao);
    d->agrupando = true;
    const TFimDoGrupo fim{*d};
    f();
    d->VerificarGrupo();
    d->Confirmar(d->grupo);
}

TTravas &TSQLConnection::Travas() const
{
    return d->travas;
}

void TSQLConnection::TPrivado::Garantir()
{
    if (situacao == TSituacao::Perdida)
        dono->Open();
    if (situacao == TSituacao::Fechada) {
        throw EDatabaseError(TErroBanco::Outro,
                             QStringLiteral("A conexão com o banco de dados está fechada."));
    }
}

Firebird::ITransaction *TSQLConnection::TPrivado::ParaLer()
{
    if (agrupando) {
        VerificarGrupo();
        return grupo.get();
    }
    Garantir();
    if (!leitura)
        leitura = Iniciar(TModo::Leitura);
    return leitura.get();
}

motor::TRef<Firebird::ITransaction> TSQLConnection::TPrivado::Iniciar(TModo modo)
{
    const std::array<unsigned char, 5> tpb = {
        isc_tpb_version3,
        static_cast<unsigned char>(modo == TModo::Leitura ? isc_tpb_read : isc_tpb_write),
        isc_tpb_read_committed, isc_tpb_rec_version, isc_tpb_nowait};
    motor::TRef<Firebird::ITransaction> transacao(
        anexo->startTransaction(estado.Api(), unsigned(tpb.size()), tpb.data()));
    Verificar();
    return transacao;
}

int TSQLConnection::TPrivado::ExecutarEm(Firebird::ITransaction *transacao, const QByteArray &sql)
{
    if (sql.trimmed().isEmpty())
        throw EDatabaseError(TErroBanco::Sintaxe, QStringLiteral("O comando SQL está vazio."));
    const motor::TRef<Firebird::IStatement> comando(
        anexo->prepare(estado.Api(), transacao, unsigned(sql.size()), sql.constData(), Dialeto,
                       Firebird::IStatement::PREPARE_PREFETCH_METADATA));
    Verificar();
    RecusarTipo(comando->getType(estado.Api()));
    Verificar();
    const motor::TRef<Firebird::IMessageMetadata> saida(comando->getOutputMetadata(estado.Api()));
    Verificar();
    std::vector<unsigned char> devolvido(saida->getMessageLength(estado.Api()));
    Verificar();
    comando->execute(estado.Api(), transacao, nullptr, nullptr,
                     devolvido.empty() ? nullptr : saida.get(),
                     devolvido.empty() ? nullptr : devolvido.data());
    Verificar();
    const auto linhas = comando->getAffectedRecords(estado.Api());
    Verificar();
    return int(linhas);
}

void TSQLConnection::TPrivado::Confirmar(motor::TRef<Firebird::ITransaction> &transacao)
{
    transacao->commit(estado.Api());
    if (!estado.Falhou()) {
        static_cast<void>(transacao.release());
        return;
    }
    const EDatabaseError erro = estado.Erro();
    Desfazer(transacao);
    if (erro.Tipo != TErroBanco::ConexaoPerdida)
        throw EDatabaseError(erro);
    situacao = TSituacao::Perdida;
    throw EDatabaseError(
        erro.Tipo,
        QStringLiteral("A conexão com o banco de dados foi perdida no momento de "
                       "gravar. Confira se a gravação foi feita antes de repeti-la."),
        erro.TextoDoBanco, erro.Codigos);
}

void TSQLConnection::TPrivado::Desfazer(motor::TRef<Firebird::ITransaction> &transacao) noexcept
{
    motor::TEstado proprio;
    motor::Encerrar(proprio, transacao, [](auto *t, auto *e) { t->rollback(e); });
}

void TSQLConnection::TPrivado::Verificar()
{
    if (!estado.Falhou())
        return;
    const EDatabaseError erro = estado.Erro();
    if (erro.Tipo == TErroBanco::ConexaoPerdida && situacao == TSituacao::Aberta)
        situacao = TSituacao::Perdida;
    throw EDatabaseError(erro);
}

void TSQLConnection::TPrivado::Soltar() noexcept
{
    if (!anexo)
        return;
    travas.LiberarTodas();
    Desfazer(grupo);
    if (agrupando && !falhaDoGrupo) {
        falhaDoGrupo.emplace(TErroBanco::Outro,
                             QStringLiteral("A conexão foi fechada no meio de uma gravação."));
    }
    Desfazer(leitura);
    motor::TEstado proprio;
    motor::Encerrar(proprio, anexo, [](auto *a, auto *e) { a->detach(e); });
}

void TSQLConnection::TPrivado::Apagar() noexcept
{
    Desfazer(leitura);
    motor::TEstado proprio;
    motor::Encerrar(proprio, anexo, [](auto *a, auto *e) { a->dropDatabase(e); });
    situacao = TSituacao::Fechada;
}

void TSQLConnection::TPrivado::CondenarGrupo(const EDatabaseError &erro) noexcept
{
    if (!falhaDoGrupo)
        falhaDoGrupo.emplace(erro);
    Desfazer(grupo);
}

void TSQLConnection::TPrivado::VerificarGrupo() const
{
    if (falhaDoGrupo)
        throw EDatabaseError(*falhaDoGrupo);
}

motor::TRef<Firebird::IAttachment> TSQLConnection::TPrivado::Anexar(const QString &arquivo,
                                                                    bool criar)
{
    const QByteArray nome = arquivo.toUtf8();
    TParametros p(estado);
    PreencherParametros(p, *dono, criar);
    Verificar();
    auto *provedor = motor::Motor().provedor;
    auto *novo =
        criar ? provedor->createDatabase(estado.Api(), nome.constData(), p.Tamanho(), p.Bytes())
              : provedor->attachDatabase(estado.Api(), nome.constData(), p.Tamanho(), p.Bytes());
    if (estado.Falhou())
        throw estado.Erro(motor::TMomento::Conectando);
    return motor::TRef<Firebird::IAttachment>(novo);
}

} // namespace ficha
