// How the engine's failures read to a user.

#include "platform/database/MotorFirebird.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <cerrno>

namespace ficha::motor
{

namespace
{

/** The engine's texts come as UTF-8 or in the connection's character set. */
QString TextoDoMotor(const char *bytes, qsizetype tamanho)
{
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString texto = utf8.decode(QByteArrayView(bytes, tamanho));
    return utf8.hasError() ? QString::fromLatin1(bytes, tamanho) : texto;
}

/** One code of a status vector and the texts that go with it. */
struct TItem {
    std::int64_t codigo;
    std::vector<QString> textos;
};

struct TVetor {
    std::vector<TItem> itens;
    int erroDoSistema = 0;

    const TItem *Achar(std::int64_t codigo) const
    {
        const auto item = std::ranges::find(itens, codigo, &TItem::codigo);
        return item == itens.end() ? nullptr : &*item;
    }
};

/** A status vector carries its texts as addresses among numbers. */
const char *Texto(intptr_t endereco)
{
    return reinterpret_cast<const char *>(endereco); // NOLINT(performance-no-int-to-ptr)
}

TVetor Desmontar(const intptr_t *v)
{
    TVetor vetor;
    const auto guardarTexto = [&](const char *bytes, size_t tamanho) {
        if (!vetor.itens.empty())
            vetor.itens.back().textos.push_back(TextoDoMotor(bytes, qsizetype(tamanho)));
    };
    for (; *v != isc_arg_end; v += *v == isc_arg_cstring ? 3 : 2) {
        switch (*v) {
        case isc_arg_gds:
            if (v[1] != 0)
                vetor.itens.push_back({v[1], {}});
            break;
        case isc_arg_string:
        case isc_arg_interpreted:
            guardarTexto(Texto(v[1]), qstrlen(Texto(v[1])));
            break;
        case isc_arg_cstring:
            guardarTexto(Texto(v[2]), size_t(v[1]));
            break;
        case isc_arg_unix:
            vetor.erroDoSistema = int(v[1]);
            break;
        default:
            break;
        }
    }
    return vetor;
}

struct TRegra {
    std::int64_t codigo;
    TErroBanco tipo;
    const char16_t *mensagem;
    /** The code whose texts replace %1 and %2; 0: this one. */
    std::int64_t textosDe = 0;
};

constexpr const char16_t *SemRepeticao =
    u"Já existe um registro com este valor: a chave \"%1\" da tabela \"%2\" não aceita repetição.";
constexpr const char16_t *EmAlteracao =
    u"O registro está sendo alterado por outro usuário. Aguarde um momento e tente novamente.";
constexpr const char16_t *Perdida =
    u"A conexão com o banco de dados foi perdida. Tente novamente para reconectar.";
constexpr const char16_t *NaoEntendido = u"O banco de dados não entendeu o comando SQL.";
constexpr const char16_t *NaoEhBase =
    u"O arquivo não é um banco de dados Firebird que este programa "
    u"possa abrir, ou está danificado.";
constexpr const char16_t *ForaDoConjunto =
    u"O texto tem um caractere que não existe no conjunto ISO8859_1 do banco de dados.";

/** The first rule whose code stands anywhere in the vector is the one that holds. */
constexpr std::array Regras = {
    TRegra{isc_net_read_err, TErroBanco::ConexaoPerdida, Perdida},
    TRegra{isc_net_write_err, TErroBanco::ConexaoPerdida, Perdida},
    TRegra{isc_network_error, TErroBanco::ConexaoPerdida, Perdida},
    TRegra{isc_conn_lost, TErroBanco::ConexaoPerdida, Perdida},
    TRegra{isc_lost_db_connection, TErroBanco::ConexaoPerdida, Perdida},
    TRegra{isc_att_shutdown, TErroBanco::ConexaoPerdida, Perdida},
    TRegra{isc_shutdown, TErroBanco::ConexaoPerdida, Perdida},
    TRegra{isc_already_opened, TErroBanco::BancoEmUso,
           u"A base já está em uso por outro programa; use um servidor para compartilhá-la."},
    TRegra{isc_instance_conflict, TErroBanco::BancoEmUso,
           u"A base já está em uso por outro programa; use um servidor para compartilhá-la."},
    TRegra{isc_login, TErroBanco::Autenticacao,
           u"O usuário ou a senha do banco de dados não foi aceito."},
    TRegra{isc_login_error, TErroBanco::Autenticacao,
           u"O usuário ou a senha do banco de dados não foi aceito."},
    TRegra{isc_no_priv, TErroBanco::Autenticacao,
           u"O usuário do banco de dados não tem permissão para esta operação."},
    TRegra{isc_unique_key_violation, TErroBanco::ChaveUnica, SemRepeticao},
    TRegra{isc_no_dup, TErroBanco::ChaveUnica,
           u"Já existe um registro com este valor: o índice \"%1\" não aceita repetição."},
    TRegra{isc_foreign_key_references_present, TErroBanco::ChaveEstrangeira,
           u"O registro é usado pela tabela \"%2\" e por isso não pode ser excluído nem mudar de "
           u"chave (restrição \"%1\").",
           isc_foreign_key},
    TRegra{isc_foreign_key, TErroBanco::ChaveEstrangeira,
           u"O registro a que este se refere não existe (restrição \"%1\" da tabela \"%2\")."},
    TRegra{isc_string_truncation, TErroBanco::ValorMuitoLongo,
           u"O texto é mais longo do que o campo aceita."},
    TRegra{isc_numeric_out_of_range, TErroBanco::ValorMuitoLongo,
           u"O número está fora da faixa que o campo aceita."},
    TRegra{isc_check_constraint, TErroBanco::Outro,
           u"O valor não atende à regra \"%1\" da tabela \"%2\"."},
    TRegra{isc_lock_conflict, TErroBanco::ConflitoDeTrava, EmAlteracao},
    TRegra{isc_deadlock, TErroBanco::ConflitoDeTrava, EmAlteracao},
    TRegra{isc_update_conflict, TErroBanco::ConflitoDeTrava, EmAlteracao},
    TRegra{isc_lock_timeout, TErroBanco::ConflitoDeTrava, EmAlteracao},
    TRegra{isc_concurrent_transaction, TErroBanco::ConflitoDeTrava, EmAlteracao},
    TRegra{isc_transliteration_failed, TErroBanco::CaractereInvalido, ForaDoConjunto},
    TRegra{isc_malformed_string, TErroBanco::CaractereInvalido, ForaDoConjunto},
    TRegra{isc_read_only_database, TErroBanco::SomenteLeitura,
           u"O banco de dados só permite leitura."},
    TRegra{isc_read_only_trans, TErroBanco::Outro, u"Uma consulta não pode gravar."},
    TRegra{isc_bad_db_format, TErroBanco::NaoEhBanco, NaoEhBase},
    TRegra{isc_wrong_ods, TErroBanco::NaoEhBanco, NaoEhBase},
    TRegra{isc_db_corrupt, TErroBanco::NaoEhBanco, NaoEhBase},
    TRegra{isc_convert_error, TErroBanco::Outro,
           u"O valor \"%1\" não pode ser convertido para o tipo do campo."},
    TRegra{isc_unavailable, TErroBanco::PastaOuArquivoAusente,
           u"O banco de dados não pôde ser aberto: o endereço não existe, ou falta instalar o "
           u"Firebird."},
};

QString Preencher(const char16_t *modelo, const TItem *item)
{
    QString texto = QString::fromUtf16(modelo);
    for (size_t i = 0; i < 2; ++i) {
        const QString lugar = QStringLiteral("%%1").arg(i + 1);
        texto.replace(lugar, item && i < item->textos.size() ? item->textos[i] : QString());
    }
    return texto;
}

struct TLeitura {
    TErroBanco tipo;
    QString mensagem;
};

/** The operating system's reason. A server sends it as a text instead of a number. */
int ErroDoSistema(const TVetor &vetor)
{
    static const std::array<std::pair<int, QLatin1String>, 6> textos = {{
        {ENOENT, QLatin1String("No such file or directory")},
        {ENOTDIR, QLatin1String("Not a directory")},
        {EACCES, QLatin1String("Permission denied")},
        {EROFS, QLatin1String("Read-only file system")},
        {EEXIST, QLatin1String("File exists")},
        {ENOSPC, QLatin1String("No space left on device")},
    }};
    if (vetor.erroDoSistema != 0)
        return vetor.erroDoSistema;
    for (const auto &[erro, texto] : textos) {
        for (const TItem &item : vetor.itens) {
            if (std::ranges::find(item.textos, texto) != item.textos.end())
                return erro;
        }
    }
    return 0;
}

/** A file that could not be read or written. */
TLeitura LerErroDeArquivo(const TItem &item, int erro, TMomento momento)
{
    const QString arquivo = item.textos.size() > 1 ? item.textos[1] : QString();
    switch (erro) {
    case ENOENT:
    case ENOTDIR:
        return {
            TErroBanco::PastaOuArquivoAusente,
            QStringLiteral("O arquivo ou a pasta do banco de dados não existe: %1").arg(arquivo)};
    case EACCES:
    case EPERM:
    case EROFS:
        return {TErroBanco::SomenteLeitura,
                QStringLiteral("Sem permissão para gravar no banco de dados: %1").arg(arquivo)};
    case EEXIST:
        return {TErroBanco::Outro,
                QStringLiteral("O arquivo já existe e não foi alterado: %1").arg(arquivo)};
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return {TErroBanco::DiscoCheio,
                QStringLiteral("Não há espaço no disco para gravar; nada foi gravado.")};
    default:
        // No reason but that there is less of it than there should be.
        if (erro == 0 && momento == TMomento::Conectando)
            return {TErroBanco::NaoEhBanco, QString::fromUtf16(NaoEhBase)};
        return {
            TErroBanco::Outro,
            QStringLiteral("Falha ao ler ou gravar o arquivo do banco de dados: %1").arg(arquivo)};
    }
}

/** A column's own validation: a missing value, or one that its domain refuses. */
TLeitura LerValidacao(const TItem &item)
{
    const QString campo = item.textos.empty() ? QString() : item.textos[0];
    const QString valor = item.textos.size() > 1 ? item.textos[1] : QString();
    if (valor.isEmpty() || valor == QLatin1String("*** null ***"))
        return {TErroBanco::CampoObrigatorio,
                QStringLiteral("O campo %1 é obrigatório.").arg(campo)};
    return {TErroBanco::Outro,
            QStringLiteral("O valor %2 não é aceito no campo %1.").arg(campo, valor)};
}

TLeitura Ler(const TVetor &vetor, TMomento momento)
{
    for (const TRegra &regra : Regras) {
        const TItem *item = vetor.Achar(regra.codigo);
        if (!item)
            continue;
        if (regra.tipo == TErroBanco::ConexaoPerdida && momento == TMomento::Conectando)
            return {regra.tipo,
                    QStringLiteral("Não foi possível conectar ao servidor do banco de "
                                   "dados. Verifique o endereço e se ele está ligado.")};
        return {regra.tipo,
                Preencher(regra.mensagem, regra.textosDe ? vetor.Achar(regra.textosDe) : item)};
    }
    if (const TItem *item = vetor.Achar(isc_not_valid))
        return LerValidacao(*item);
    if (const TItem *item = vetor.Achar(isc_not_valid_for_var))
        return LerValidacao(*item);
    if (const TItem *item = vetor.Achar(isc_io_error))
        return LerErroDeArquivo(*item, ErroDoSistema(vetor), momento);
    if (vetor.Achar(isc_dsql_error) || vetor.Achar(isc_sqlerr))
        return {TErroBanco::Sintaxe, QString::fromUtf16(NaoEntendido)};
    return {TErroBanco::Outro, QStringLiteral("O banco de dados recusou a operação.")};
}

QString TextoCompleto(Firebird::IStatus *estado)
{
    std::vector<char> espaco(16384);
    const unsigned n = Motor().util->formatStatus(espaco.data(), unsigned(espaco.size()), estado);
    return TextoDoMotor(espaco.data(), qsizetype(n));
}

} // namespace

EDatabaseError TraduzirErro(Firebird::IStatus *estado, TMomento momento)
{
    const TVetor vetor = Desmontar(estado->getErrors());
    std::vector<std::int64_t> codigos;
    for (const TItem &item : vetor.itens)
        codigos.push_back(item.codigo);
    TLeitura leitura = Ler(vetor, momento);
    return {leitura.tipo, leitura.mensagem, TextoCompleto(estado), std::move(codigos)};
}

} // namespace ficha::motor
