// How a select's rows come from the engine into memory.

#include "platform/database/TSQLConnectionPrivado.h"

namespace ficha
{

namespace
{

constexpr unsigned Dialeto = 3;
constexpr int ConjuntoNenhum = 0;
constexpr int ConjuntoBytes = 1;
constexpr int ConjuntoLatin1 = 21;

struct TTipoDoMotor {
    TFisico fisico;
    bool conhecido = true;
};

TTipoDoMotor TipoFisico(unsigned tipo)
{
    switch (tipo & ~1U) {
    case SQL_TEXT:
        return {TFisico::Char};
    case SQL_VARYING:
        return {TFisico::VarChar};
    case SQL_SHORT:
        return {TFisico::Int16};
    case SQL_LONG:
        return {TFisico::Int32};
    case SQL_INT64:
        return {TFisico::Int64};
    case SQL_FLOAT:
        return {TFisico::Float};
    case SQL_DOUBLE:
    case SQL_D_FLOAT:
        return {TFisico::Double};
    case SQL_TYPE_DATE:
        return {TFisico::Data};
    case SQL_TYPE_TIME:
        return {TFisico::Hora};
    case SQL_TIMESTAMP:
        return {TFisico::Momento};
    case SQL_BOOLEAN:
        return {TFisico::Booleano};
    case SQL_BLOB:
        return {TFisico::Blob};
    default:
        return {TFisico::Int32, false};
    }
}

/** Text kept in another character set is converted by the engine to the connection's. */
std::vector<unsigned char> Conversao(const TColunaLida &coluna)
{
    if (coluna.binario || coluna.conjunto == ConjuntoNenhum || coluna.conjunto == ConjuntoBytes ||
        coluna.conjunto == ConjuntoLatin1)
        return {};
    return {isc_bpb_version1,
            isc_bpb_source_type,
            1,
            isc_blob_text,
            isc_bpb_target_type,
            1,
            isc_blob_text,
            isc_bpb_source_interp,
            1,
            static_cast<unsigned char>(coluna.conjunto),
            isc_bpb_target_interp,
            1,
            ConjuntoLatin1};
}

} // namespace

TSelectPreparado::TSelectPreparado(TSQLConnection::TPrivado &con, Firebird::ITransaction *t,
                                   const QByteArray &sql)
{
    if (sql.trimmed().isEmpty())
        throw EDatabaseError(TErroBanco::Sintaxe, QStringLiteral("O comando SQL está vazio."));
    comando.reset(con.anexo->prepare(con.estado.Api(), t, unsigned(sql.size()), sql.constData(),
                                     Dialeto, Firebird::IStatement::PREPARE_PREFETCH_METADATA));
    con.Verificar();
    const unsigned marcas = comando->getFlags(con.estado.Api());
    con.Verificar();
    if (!(marcas & Firebird::IStatement::FLAG_HAS_CURSOR)) {
        throw EDatabaseError(TErroBanco::Outro,
                             QStringLiteral("O comando não devolve linhas; não é uma consulta."));
    }
    Descrever(con);
}

void TSelectPreparado::Descrever(TSQLConnection::TPrivado &con)
{
    Firebird::CheckStatusWrapper *api = con.estado.Api();
    formato.reset(comando->getOutputMetadata(api));
    con.Verificar();
    const unsigned n = formato->getCount(api);
    for (unsigned i = 0; i < n; ++i)
        colunas.push_back(DescreverColuna(con, i));
    mensagem.resize(formato->getMessageLength(api) + TLinhasCompactas::Folga);
    con.Verificar();
}

TColunaLida TSelectPreparado::DescreverColuna(TSQLConnection::TPrivado &con, unsigned i)
{
    Firebird::CheckStatusWrapper *api = con.estado.Api();
    TColunaLida c;
    c.nome = QString::fromLatin1(formato->getAlias(api, i));
    const TTipoDoMotor tipo = TipoFisico(formato->getType(api, i));
    if (!tipo.conhecido) {
        throw EDatabaseError(
            TErroBanco::Outro,
            QStringLiteral("O tipo da coluna '%1' não é lido por esta biblioteca.").arg(c.nome));
    }
    const int subtipo = formato->getSubType(api, i);
    c.conjunto = int(formato->getCharSet(api, i) & 0xFF);
    c.fisica.tipo = tipo.fisico;
    c.fisica.posicao = formato->getOffset(api, i);
    c.fisica.posicaoNulo = formato->getNullOffset(api, i);
    c.fisica.escala = -formato->getScale(api, i);
    c.texto = tipo.fisico == TFisico::Char || tipo.fisico == TFisico::VarChar;
    if (c.texto) {
        c.fisica.largura = formato->getLength(api, i);
        c.fisica.escala = 0;
        c.fisica.brancos = tipo.fisico == TFisico::Char && c.conjunto != ConjuntoBytes;
    } else if (tipo.fisico == TFisico::Blob) {
        c.binario = subtipo != isc_blob_text;
        c.fisica.escala = 0;
        temBlob = true;
    }
    con.Verificar();
    return c;
}

void TSelectPreparado::Ler(TSQLConnection::TPrivado &con, Firebird::ITransaction *t,
                           TLinhasCompactas &linhas, const QByteArray &valor)
{
    Firebird::CheckStatusWrapper *api = con.estado.Api();
    std::vector<TColunaFisica> fisicas;
    fisicas.reserve(colunas.size());
    for (const TColunaLida &coluna : colunas)
        fisicas.push_back(coluna.fisica);
    linhas.Preparar(std::move(fisicas));
    if (!valor.isNull())
        PorValor(valor);
    const motor::TAmbienteNumericoLimpo ambiente;
    motor::TRef<Firebird::IResultSet> cursor(
        comando->openCursor(api, t, valor.isNull() ? nullptr : formatoDoValor.get(),
                            valor.isNull() ? nullptr : parametro.data(), formato.get(), 0));
    con.Verificar();
    std::vector<QByteArray> blobs(temBlob ? colunas.size() : 0);
    while (cursor->fetchNext(api, mensagem.data()) == Firebird::IStatus::RESULT_OK) {
        if (temBlob)
            LerBlobs(con, t, blobs);
        linhas.Acrescentar(mensagem.data(), blobs);
    }
    con.Verificar();
    linhas.Concluir();
    motor::Encerrar(con.estado, cursor, [](auto *c, auto *e) { c->close(e); });
    con.Verificar();
}

/** Whatever the type of the parameter is: a text, which the engine converts. */
void TSelectPreparado::AceitarValor(TSQLConnection::TPrivado &con)
{
    Firebird::CheckStatusWrapper *api = con.estado.Api();
    const motor::TRef<Firebird::IMetadataBuilder> construtor(
        motor::Motor().master->getMetadataBuilder(api, 1));
    con.Verificar();
    construtor->setType(api, 0, SQL_VARYING);
    construtor->setLength(api, 0, MaiorValor);
    construtor->setCharSet(api, 0, ConjuntoLatin1);
    con.Verificar();
    formatoDoValor.reset(construtor->getMetadata(api));
    con.Verificar();
    parametro.assign(formatoDoValor->getMessageLength(api), 0);
    posicaoDoValor = formatoDoValor->getOffset(api, 0);
    con.Verificar();
}

void TSelectPreparado::PorValor(const QByteArray &valor)
{
    if (valor.size() > MaiorValor) {
        throw EDatabaseError(TErroBanco::Outro,
                             QStringLiteral("O valor é longo demais para um parâmetro."));
    }
    unsigned char *onde = parametro.data() + posicaoDoValor;
    const auto n = std::uint16_t(valor.size());
    memcpy(onde, &n, sizeof n);
    memcpy(onde + sizeof n, valor.constData(), n);
}

void TSelectPreparado::LerBlobs(TSQLConnection::TPrivado &con, Firebird::ITransaction *t,
                                std::vector<QByteArray> &blobs)
{
    for (size_t i = 0; i < colunas.size(); ++i) {
        const TColunaFisica &c = colunas[i].fisica;
        if (c.tipo != TFisico::Blob)
            continue;
        short nulo = 0;
        memcpy(&nulo, mensagem.data() + c.posicaoNulo, sizeof nulo);
        blobs[i].truncate(0);
        if (nulo == 0)
            LerBlob(con, t, colunas[i], blobs[i]);
    }
}

void TSelectPreparado::LerBlob(TSQLConnection::TPrivado &con, Firebird::ITransaction *t,
                               const TColunaLida &coluna, QByteArray &bytes)
{
    Firebird::CheckStatusWrapper *api = con.estado.Api();
    ISC_QUAD id = {};
    memcpy(&id, mensagem.data() + coluna.fisica.posicao, sizeof id);
    const auto bpb = Conversao(coluna);
    motor::TRef<Firebird::IBlob> blob(
        con.anexo->openBlob(api, t, &id, unsigned(bpb.size()), bpb.data()));
    con.Verificar();
    segmento.resize(32768);
    int resultado = Firebird::IStatus::RESULT_OK;
    do {
        unsigned n = 0;
        resultado = blob->getSegment(api, unsigned(segmento.size()), segmento.data(), &n);
        con.Verificar();
        bytes.append(segmento.data(), n);
    } while (resultado == Firebird::IStatus::RESULT_OK ||
             resultado == Firebird::IStatus::RESULT_SEGMENT);
    motor::Encerrar(con.estado, blob, [](auto *b, auto *e) { b->close(e); });
    con.Verificar();
}

} // namespace ficha
