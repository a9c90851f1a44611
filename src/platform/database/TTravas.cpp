#include "platform/database/TTravas.h"

#include "platform/core/Latin1.h"
#include "platform/core/Relogio.h"
#include "platform/database/TSQLConnectionPrivado.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QSysInfo>

#include <map>
#include <tuple>

#include <pwd.h>
#include <unistd.h>

namespace ficha
{

namespace
{

struct TTrava {
    motor::TRef<Firebird::ITransaction> transacao;
    TDonoDaTrava dono;
    qint64 numero = 0;
};

qint64 ProximoNumero()
{
    static qint64 ultimo = 0;
    return ++ultimo;
}

/** The name and key under which a lock stands in the table. */
struct TNomeDaTrava {
    QString tabela;
    QString chave;

    friend bool operator<(const TNomeDaTrava &a, const TNomeDaTrava &b)
    {
        return std::tie(a.tabela, a.chave) < std::tie(b.tabela, b.chave);
    }
};

QString Resumo(const QString &texto)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(texto.toUtf8(), QCryptographicHash::Sha1).toHex());
}

/** Readable when short, always exact: the closing bar keeps trailing blanks from being ignored by
 * the index, and the hash stands for what is too long for it or outside the character set. */
TNomeDaTrava Nomear(const QString &tabela, const QString &chaves)
{
    constexpr qsizetype MaiorLegivel = 150;
    const bool cabe = chaves.size() <= MaiorLegivel && CabeEmLatin1(chaves);
    return {tabela.toUpper(), cabe ? chaves + u'|'
                                   : QString::fromLatin1(chaves.left(MaiorLegivel).toLatin1()) +
                                         u'#' + Resumo(chaves)};
}

QString Identidade(const TNomeDaTrava &nome)
{
    return Resumo(nome.tabela + u'\n' + nome.chave);
}

QString EntreAspas(QString texto)
{
    return u'\'' + texto.replace(u'\'', QLatin1String("''")) + u'\'';
}

QString UsuarioDaMaquina()
{
    const struct passwd *conta = ::getpwuid(::getuid());
    return conta ? QString::fromLocal8Bit(conta->pw_name) : QString::number(::getuid());
}

/** Short enough, with the moment and the identity, for a context variable's 255 characters. */
QString EuMesmo()
{
    const QString quem = QStringLiteral("%1@%2 (%3)")
                             .arg(UsuarioDaMaquina(), QSysInfo::machineHostName(),
                                  QCoreApplication::applicationName());
    return QString::fromLatin1(quem.left(180).toLatin1());
}

const QString &FormatoDoMomento()
{
    static const QString formato = QStringLiteral("yyyy-MM-dd HH:mm:ss");
    return formato;
}

/** One round trip: the row that is the lock, and the note that tells others whose it is. */
QByteArray ComandoDeTravar(const TNomeDaTrava &nome, const TDonoDaTrava &dono)
{
    const QString nota =
        QStringList{Identidade(nome), dono.Desde.DataHora().toString(FormatoDoMomento()), dono.Quem}
            .join(u'|');
    return motor::ParaLatin1(
        QStringLiteral("execute block as declare r integer; begin "
                       "insert into FICHA_TRAVA (TABELA, CHAVE) values (") +
        EntreAspas(nome.tabela) + QStringLiteral(", ") + EntreAspas(nome.chave) +
        QStringLiteral("); r = rdb$set_context('USER_TRANSACTION', 'FICHA_TRAVA', ") +
        EntreAspas(nota) + QStringLiteral("); end"));
}

bool EhRecusa(const EDatabaseError &erro)
{
    return erro.Tipo == TErroBanco::ChaveUnica || erro.Tipo == TErroBanco::ConflitoDeTrava;
}

} // namespace

struct TTravas::TPrivado {
    TSQLConnection &conexao;
    std::map<TNomeDaTrava, TTrava> minhas;

    TDonoDaTrava Procurar(const TNomeDaTrava &nome);
};

TTravas::TTravas(TSQLConnection &conexao) : d(new TPrivado{conexao, {}}) {}

TTravas::~TTravas() = default;

bool TTravas::Tentar(const QString &tabela, const QString &chaves, TDonoDaTrava *dono)
{
    const TNomeDaTrava nome = Nomear(tabela, chaves);
    TSQLConnection::TPrivado &con = d->conexao.Privado();
    con.Garantir();
    if (const auto minha = d->minhas.find(nome); minha != d->minhas.end()) {
        if (dono)
            *dono = minha->second.dono;
        return false;
    }
    const TDonoDaTrava eu{EuMesmo(), Agora(), true};
    const QByteArray comando = ComandoDeTravar(nome, eu);
    TTransacaoCurta transacao(con, TModo::Gravacao);
    try {
        con.ExecutarEm(*transacao, comando);
    } catch (const EDatabaseError &erro) {
        if (!EhRecusa(erro))
            throw;
        if (dono)
            *dono = d->Procurar(nome);
        return false;
    }
    d->minhas.emplace(nome, TTrava{transacao.Entregar(), eu, ProximoNumero()});
    return true;
}

void TTravas::Liberar(const QString &tabela, const QString &chaves) noexcept
{
    const auto minha = d->minhas.find(Nomear(tabela, chaves));
    if (minha == d->minhas.end())
        return;
    auto transacao = std::move(minha->second.transacao);
    d->minhas.erase(minha);
    d->conexao.Privado().Desfazer(transacao);
}

void TTravas::LiberarTodas() noexcept
{
    auto todas = std::move(d->minhas);
    d->minhas.clear();
    for (auto &[nome, trava] : todas)
        d->conexao.Privado().Desfazer(trava.transacao);
}

bool TTravas::Detem(const QString &tabela, const QString &chaves) const
{
    return Numero(tabela, chaves) != 0;
}

qint64 TTravas::Numero(const QString &tabela, const QString &chaves) const
{
    if (!d->conexao.Connected())
        return 0;
    const auto minha = d->minhas.find(Nomear(tabela, chaves));
    return minha == d->minhas.end() ? 0 : minha->second.numero;
}

int TTravas::Count() const
{
    return d->conexao.Connected() ? int(d->minhas.size()) : 0;
}

TDonoDaTrava TTravas::Dono(const QString &tabela, const QString &chaves)
{
    const TNomeDaTrava nome = Nomear(tabela, chaves);
    d->conexao.Privado().Garantir();
    const auto minha = d->minhas.find(nome);
    return minha != d->minhas.end() ? minha->second.dono : d->Procurar(nome);
}

/** In a transaction of its own: the monitoring tables are frozen at their first reading in one. */
TDonoDaTrava TTravas::TPrivado::Procurar(const TNomeDaTrava &nome)
{
    TSQLConnection::TPrivado &con = conexao.Privado();
    TTransacaoCurta transacao(con, TModo::Leitura);
    TLinhasCompactas linhas;
    TSelectPreparado(
        con, *transacao,
        motor::ParaLatin1(QStringLiteral("select MON$VARIABLE_VALUE from MON$CONTEXT_VARIABLES "
                                         "where MON$VARIABLE_NAME = 'FICHA_TRAVA' and "
                                         "MON$VARIABLE_VALUE starting with ") +
                          EntreAspas(Identidade(nome) + u'|')))
        .Ler(con, *transacao, linhas);
    if (linhas.Count() == 0)
        return {};
    const QString nota = linhas.Texto(0, 0);
    return {nota.section(u'|', 2),
            TDateTime(QDateTime::fromString(nota.section(u'|', 1, 1), FormatoDoMomento())), true};
}

} // namespace ficha
