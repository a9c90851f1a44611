// A CEP looked up in a large guide until the address stands in the frame, against the four queries
// that it is made of, prepared once and fetched whole.

#include "bench/Bancada.h"
#include "bench/PecasPuras.h"
#include "demo/UBancoComercial.h"
#include "demo/UGuiaDeCeps.h"
#include "input/UConsultaDoGuia.h"
#include "input/UEnderecoBasFr.h"
#include "platform/database/ConexD.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TMaskEdit.h"
#include "support/BancoTemp.h"

#include <QTemporaryDir>
#include <QtTest/QTest>

#include <array>
#include <cstring>
#include <stdexcept>

using namespace ficha;

namespace
{

const QString Naturais = QStringLiteral("natural");

/** A select with one parameter, prepared once: executed, fetched until the end, rows discarded. */
class TConsultaPura
{
public:
    TConsultaPura(Firebird::IAttachment *anexo, Firebird::ITransaction *aLer, const char *sql)
        : t(aLer)
    {
        comando.reset(
            anexo->prepare(api, t, 0, sql, 3, Firebird::IStatement::PREPARE_PREFETCH_METADATA));
        entrada.reset(comando->getInputMetadata(api));
        saida.reset(comando->getOutputMetadata(api));
        parametro.resize(entrada->getMessageLength(api));
        linha.resize(saida->getMessageLength(api));
        if (entrada->getCount(api) != 1 || estado.Falhou())
            throw std::runtime_error("not a select with one parameter");
    }

    /** Answers how many rows there were. */
    int Ler(const QByteArray &valor)
    {
        if ((entrada->getType(api, 0) & ~1U) != SQL_TEXT ||
            entrada->getLength(api, 0) != unsigned(valor.size()))
            throw std::runtime_error("the parameter is no text of that length");
        std::memcpy(parametro.data() + entrada->getOffset(api, 0), valor.constData(),
                    std::size_t(valor.size()));
        return Buscar();
    }
    int Ler(int valor)
    {
        if ((entrada->getType(api, 0) & ~1U) != SQL_LONG)
            throw std::runtime_error("the parameter is no integer");
        std::memcpy(parametro.data() + entrada->getOffset(api, 0), &valor, sizeof valor);
        return Buscar();
    }

    /** Where a column stands in the row; the last one fetched stays readable. */
    const unsigned char *Coluna(const char *nome)
    {
        for (unsigned i = 0; i < saida->getCount(api); ++i) {
            if (std::strcmp(saida->getAlias(api, i), nome) == 0)
                return linha.data() + saida->getOffset(api, i);
        }
        throw std::runtime_error("no such column");
    }

private:
    int Buscar()
    {
        motor::TRef<Firebird::IResultSet> cursor(
            comando->openCursor(api, t, entrada.get(), parametro.data(), saida.get(), 0));
        int n = 0;
        while (cursor->fetchNext(api, linha.data()) == Firebird::IStatus::RESULT_OK)
            ++n;
        if (estado.Falhou())
            throw std::runtime_error(estado.Erro().what());
        motor::Encerrar(estado, cursor, [](auto *c, auto *e) { c->close(e); });
        return n;
    }

    motor::TEstado estado;
    Firebird::CheckStatusWrapper *api = estado.Api();
    Firebird::ITransaction *t;
    motor::TRef<Firebird::IStatement> comando;
    motor::TRef<Firebird::IMessageMetadata> entrada, saida;
    std::vector<unsigned char> parametro, linha;
};

/** The queries of a look-up without a frame: the address of the CEP, then the lists of its state,
 * município and bairro. */
class TPuras
{
public:
    explicit TPuras(const QString &arquivo)
        : anexo(bancada::Anexar(arquivo)), t(bancada::TransacaoDeLeitura(anexo.get())),
          cep(anexo.get(), t.get(),
              "select cep_logr.* , cep_bai.nome as Bai , cep_mun.nome as Mun , cep_uf.sigla as UF "
              ", cep_uf.uf_cod as UFCod , cep_tipologr.nome as TipoLogr "
              ", cep_logr.logr_cod as LogrCod , cep_mun.mun_cod as MunCod "
              "from cep_logr, cep_bai, cep_mun, cep_uf, cep_tipologr where cep=? "
              "and cep_tipologr.tipologr_cod=cep_logr.tipologr_cod "
              "and cep_logr.bai_cod=cep_bai.bai_cod and cep_bai.mun_cod=cep_mun.mun_cod "
              "and cep_mun.uf_cod=cep_uf.uf_cod"),
          municipios(anexo.get(), t.get(), "select * from cep_mun where uf_cod=? order by nome"),
          bairros(anexo.get(), t.get(), "select * from cep_bai where mun_cod=? order by nome"),
          ruas(anexo.get(), t.get(),
               "select cep_logr.*, cep_tipologr.nome as TipoLogr from cep_logr, cep_tipologr "
               "where cep_logr.tipologr_cod=cep_tipologr.tipologr_cod and cep_logr.bai_cod=? "
               "order by cep_logr.nome")
    {
    }

    void Procurar(const QString &numero)
    {
        const motor::TAmbienteNumericoLimpo ambiente;
        if (cep.Ler(numero.toLatin1()) == 0)
            throw std::runtime_error("a CEP that the guide does not have");
        const QByteArray uf(reinterpret_cast<const char *>(cep.Coluna("UFCOD")), 1);
        const int n =
            municipios.Ler(uf) + bairros.Ler(Inteiro("MUNCOD")) + ruas.Ler(Inteiro("BAI_COD"));
        if (n < 3)
            throw std::runtime_error("an empty list");
    }

private:
    int Inteiro(const char *coluna)
    {
        int valor = 0;
        std::memcpy(&valor, cep.Coluna(coluna), sizeof valor);
        return valor;
    }

    motor::TRef<Firebird::IAttachment> anexo;
    motor::TRef<Firebird::ITransaction> t;
    TConsultaPura cep, municipios, bairros, ruas;
};

/** The guide, a shown address frame on it, and the CEPs to look up. */
class TCena
{
public:
    TCena(int ruas, int quantos) : pasta(PastaDeBancos()), antes(ConexD().SQLConnection)
    {
        comercial::AbrirBancoComercial(conexao, pasta.filePath(QStringLiteral("comercial.fdb")));
        comercial::GerarGuia(conexao, ruas);
        const int passo =
            ValorDoBanco(conexao, QStringLiteral("select max(logr_cod) from cep_logr"))
                .AsInteger() /
            quantos;
        TCustomBRQuery linhas;
        linhas.Open(QStringLiteral("select cep from cep_logr where mod(logr_cod, %1) = 0")
                        .arg(std::max(1, passo)));
        for (; !linhas.Eof(); linhas.Next())
            ceps.append(linhas.Fields(0)->AsString());
        fr = Criar<TEnderecoBasFr>(&janela);
        janela.resize(540, 200);
        janela.show();
        if (!QTest::qWaitForWindowActive(&janela))
            throw std::runtime_error("the window was not shown");
        fr->Tocado = true;
        fr->PegarState(dsInsert);
        puras = std::make_unique<TPuras>(conexao.DatabaseName);
    }
    ~TCena()
    {
        puras.reset();
        ConexD().SQLConnection = antes;
    }

    /** Each CEP typed into an empty frame and left: timed until the whole address stands there. */
    bancada::TMedida ComATela()
    {
        bancada::TAmostras tempos;
        for (const QString &cep : ceps) {
            Digitar(cep);
            tempos.Juntar(bancada::Cronometrar([&] { fr->UFComboBox->setFocus(); }));
            Conferir(cep);
        }
        bancada::TMedida medida = tempos.Medida();
        medida.Contadores[Naturais] = BuscasNaturais();
        return medida;
    }

    bancada::TMedida ComAsPuras()
    {
        bancada::TAmostras tempos;
        for (const QString &cep : ceps) {
            Digitar(cep);
            tempos.Juntar(bancada::Cronometrar([&] { puras->Procurar(cep); }));
            fr->TratarSaidaCEP = false;
            fr->UFComboBox->setFocus();
        }
        return tempos.Medida();
    }

private:
    /** Both find the machine as it is when a user has just typed the CEP. */
    void Digitar(const QString &cep)
    {
        // What an earlier CEP left to be done late is done.
        QCoreApplication::processEvents();
        fr->Zerar();
        fr->CEPMaskEdit->setFocus();
        QTest::keyClicks(fr->CEPMaskEdit, cep);
        QCoreApplication::processEvents();
    }

    void Conferir(const QString &cep) const
    {
        for (const TComboBox *lista : {fr->UFComboBox, fr->MunComboBox, fr->BaiComboBox}) {
            if (lista->GetItemIndex() < 0)
                throw std::runtime_error("the address is not whole");
        }
        if (fr->CEPMaskEdit->GetText() != cep || fr->LogrComboBox->GetItemIndex() < 0)
            throw std::runtime_error("the address is not the CEP's");
    }

    /** How often a table is read from end to end in the plans of the frame's queries. */
    int BuscasNaturais()
    {
        fr->TestaCEPQ->SetCodigo(u'\'' + ceps.constLast() + u'\'');
        int n = 0;
        for (TSQLQuery *consulta :
             {fr->UFQ, fr->MunQ, fr->BaiQ, fr->LogrQ, fr->CEPPeloLogrCodQ, fr->TestaCEPQ})
            n += int(consulta->Plano().count(QStringLiteral("NATURAL")));
        return n;
    }

    QTemporaryDir pasta;
    TSQLConnection conexao;
    TSQLConnection *antes;
    QStringList ceps;
    QWidget janela;
    TEnderecoBasFr *fr = nullptr;
    std::unique_ptr<TPuras> puras;
};

} // namespace

BANCADA_GRUPO(guia)
{
    const int ruas = bancada::Tamanho(1000000, 50000);
    const auto cena = std::make_shared<TCena>(ruas, bancada::Tamanho(200, 50));
    const QString nosso = QStringLiteral("CEP look-up in the frame");
    const QString bruto = QStringLiteral("its four queries, prepared once, rows discarded");
    bancada::Medir(nosso, [cena] { return cena->ComATela(); });
    bancada::Medir(bruto, [cena] { return cena->ComAsPuras(); });
    bancada::Exigir(
        {.Linha = "13a",
         .Trabalho = QStringLiteral("look up a CEP in a guide of %1 streets, embedded, until the "
                                    "frame is filled")
                         .arg(bancada::Milhares(ruas)),
         .Nosso = {nosso, {}},
         .Par = {bruto, {}},
         .Limite = 2,
         .NaVerificacao = 8,
         .Nota = "the address of the CEP, then the lists of its state's municípios, its "
                 "município's bairros and its bairro's streets; ours from leaving the CEP until "
                 "every list is filled and stands on its item, the queries having been prepared "
                 "while it was typed; both after the same typing"});
    bancada::Exigir({.Linha = "13b",
                     .Trabalho = "tables read from end to end in the plans of its queries",
                     .Nosso = {nosso, Naturais, bancada::TUnidade::Numero},
                     .Limite = 0,
                     .NaVerificacao = 0});
}
