// A list opened and read whole into the dataset, against the bare fetch loop and against Qt's own
// driver; and what the rows then take.

#include "bench/Bancada.h"
#include "bench/Dados.h"
#include "bench/Memoria.h"
#include "bench/PecasPuras.h"
#include "platform/database/TSQLQuery.h"
#include "support/BancoTemp.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <stdexcept>

using namespace ficha;

namespace
{

const QString Bytes = QStringLiteral("bytes");
/** What a row's data takes at least, and the pointer to it. */
constexpr double BytesDeUmaLinha = 96 + sizeof(void *);
const QString Lista = QStringLiteral("select * from cliente");

struct TCena {
    explicit TCena(int linhas)
        : banco(bancada::RoteiroDeClientes(QStringLiteral("cliente"), linhas)), Linhas(linhas)
    {
        query.SetSQLConnection(&banco.Conexao());
        query.SetSQL(Lista);
        anexo = bancada::Anexar(banco.Arquivo());
        qt = QSqlDatabase::addDatabase(QStringLiteral("QIBASE"), QStringLiteral("leitura"));
        qt.setDatabaseName(banco.Arquivo());
        qt.setUserName(QStringLiteral("SYSDBA"));
        qt.setConnectOptions(QStringLiteral("ISC_DPB_LC_CTYPE=ISO8859_1"));
        if (!qt.open())
            throw std::runtime_error(qt.lastError().text().toStdString());
    }

    ~TCena()
    {
        qt.close();
        qt = {};
        QSqlDatabase::removeDatabase(QStringLiteral("leitura"));
    }

    void Conferir(int n) const
    {
        if (n != Linhas)
            throw std::runtime_error("not every row was read");
    }

    TBancoTemp banco;
    int Linhas;
    TSQLQuery query;
    motor::TRef<Firebird::IAttachment> anexo;
    QSqlDatabase qt;
};

/** Every value of every row, forward only, from a prepared statement. */
int LerComQt(const QSqlDatabase &banco)
{
    QSqlQuery query(banco);
    query.setForwardOnly(true);
    if (!query.prepare(Lista) || !query.exec())
        throw std::runtime_error(query.lastError().text().toStdString());
    int n = 0;
    while (query.next()) {
        for (int i = 0; i < 8; ++i) {
            const QVariant valor = query.value(i);
            if (!valor.isValid())
                throw std::runtime_error("a column without a value");
        }
        ++n;
    }
    return n;
}

} // namespace

BANCADA_GRUPO(leitura)
{
    const int linhas = bancada::Tamanho(200000, 20000);
    const auto cena = std::make_shared<TCena>(linhas);
    const QString tamanho = bancada::Milhares(linhas) + " rows";
    const QString nosso = QStringLiteral("dataset read");
    const QString laco = QStringLiteral("bare fetch loop");
    const QString driver = QStringLiteral("Qt's Firebird driver, forward only, every value");
    bancada::Medir(nosso, [cena] {
        bancada::TMedida medida;
        cena->query.Close();
        const qint64 antes = bancada::MemoriaEmUso() + bancada::MemoriaMapeada();
        medida.Segundos = bancada::Cronometrar([&] { cena->query.Open(); });
        cena->Conferir(cena->query.RecordCount());
        medida.Contadores[Bytes] =
            double(bancada::MemoriaEmUso() + bancada::MemoriaMapeada() - antes);
        return medida;
    });
    bancada::MedirTempo(laco,
                        [cena] { cena->Conferir(bancada::BuscarTudo(cena->anexo.get(), Lista)); });
    bancada::MedirTempo(driver, [cena] { cena->Conferir(LerComQt(cena->qt)); });
    bancada::Medir("96 bytes a row and a pointer", [linhas] {
        return bancada::TMedida{0, {{Bytes, BytesDeUmaLinha * linhas}}};
    });
    const bancada::TGrandeza ler{nosso, {}};
    bancada::Exigir({.Linha = "1",
                     .Trabalho = "open a query and read " + tamanho + ", embedded",
                     .Nosso = ler,
                     .Par = {laco, {}},
                     .Limite = 1.15,
                     .NaVerificacao = 1.5});
    bancada::Exigir({.Linha = "2",
                     .Trabalho = "the same",
                     .Nosso = ler,
                     .Par = {driver, {}},
                     .Sentido = bancada::TSentido::NoMinimo,
                     .Limite = 3,
                     .NaVerificacao = 2});
    bancada::Exigir({.Linha = "3",
                     .Trabalho = "memory of that dataset",
                     .Nosso = {nosso, Bytes, bancada::TUnidade::Bytes},
                     .Par = {"96 bytes a row and a pointer", Bytes, bancada::TUnidade::Bytes},
                     .Limite = 1.3,
                     .NaVerificacao = 1.3,
                     .Nota = "what the allocator has handed out and what is mapped beside it, "
                             "before and after"});
}
