#include "bench/PecasPuras.h"

#include <QFile>

#include <array>
#include <vector>

namespace bancada
{

using namespace ficha;

motor::TRef<Firebird::IAttachment> Anexar(const QString &arquivo)
{
    motor::TEstado estado;
    const auto &m = motor::Motor();
    auto *dpb = m.util->getXpbBuilder(estado.Api(), Firebird::IXpbBuilder::DPB, nullptr, 0);
    dpb->insertString(estado.Api(), isc_dpb_config, "Providers=Engine12");
    dpb->insertString(estado.Api(), isc_dpb_user_name, "SYSDBA");
    dpb->insertString(estado.Api(), isc_dpb_lc_ctype, "ISO8859_1");
    motor::TRef<Firebird::IAttachment> anexo(m.provedor->attachDatabase(
        estado.Api(), QFile::encodeName(arquivo).constData(), dpb->getBufferLength(estado.Api()),
        dpb->getBuffer(estado.Api())));
    dpb->dispose();
    return anexo;
}

motor::TRef<Firebird::ITransaction> TransacaoDeLeitura(Firebird::IAttachment *anexo)
{
    motor::TEstado estado;
    constexpr std::array<unsigned char, 5> modo{isc_tpb_version3, isc_tpb_read,
                                                isc_tpb_read_committed, isc_tpb_rec_version,
                                                isc_tpb_nowait};
    return motor::TRef<Firebird::ITransaction>(
        anexo->startTransaction(estado.Api(), unsigned(modo.size()), modo.data()));
}

int BuscarTudo(Firebird::IAttachment *anexo, const QString &sql)
{
    const motor::TAmbienteNumericoLimpo ambiente;
    motor::TEstado estado;
    const QByteArray texto = sql.toLatin1();
    auto t = TransacaoDeLeitura(anexo);
    motor::TRef<Firebird::IStatement> comando(
        anexo->prepare(estado.Api(), t.get(), 0, texto.constData(), 3,
                       Firebird::IStatement::PREPARE_PREFETCH_METADATA));
    motor::TRef<Firebird::IMessageMetadata> formato(comando->getOutputMetadata(estado.Api()));
    std::vector<unsigned char> mensagem(formato->getMessageLength(estado.Api()));
    motor::TRef<Firebird::IResultSet> cursor(
        comando->openCursor(estado.Api(), t.get(), nullptr, nullptr, formato.get(), 0));
    int n = 0;
    while (cursor->fetchNext(estado.Api(), mensagem.data()) == Firebird::IStatus::RESULT_OK)
        ++n;
    motor::Encerrar(estado, cursor, [](auto *c, auto *e) { c->close(e); });
    comando.reset();
    motor::Encerrar(estado, t, [](auto *objeto, auto *e) { objeto->commit(e); });
    return n;
}

} // namespace bancada
