// A maintenance screen over a long list: opened, and its confirms and its deletion, from the key
// press until the list stands painted.

#include "bench/Bancada.h"
#include "bench/Dados.h"
#include "bench/PecasPuras.h"
#include "bench/Rodada.h"
#include "bench/TelaDeClientes.h"
#include "forms/UFicha.h"
#include "platform/core/Servicos.h"
#include "platform/hostforms/TMdiArea.h"
#include "platform/toolkit/Ocioso.h"
#include "platform/toolkit/TPageControl.h"
#include "platform/toolkit/TStringGrid.h"
#include "support/BancoTemp.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQueryModel>
#include <QTableView>
#include <QTest>

#include <stdexcept>

using namespace ficha;

namespace
{

void Conferir(bool certo, const char *oQue)
{
    if (!certo)
        throw std::runtime_error(oQue);
}

/** Counts the paintings of a widget. */
class TPinturas : public QObject
{
public:
    explicit TPinturas(QWidget *alvo) : QObject(alvo) { alvo->installEventFilter(this); }
    int Quantas = 0;

protected:
    bool eventFilter(QObject *, QEvent *evento) override
    {
        Quantas += evento->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/** Delivers what is due until the widget was painted and nothing more is due. */
void AtePintar(const TPinturas &pinturas, int antes)
{
    QElapsedTimer tempo;
    tempo.start();
    QCoreApplication::processEvents();
    ExecutarOcioso();
    QCoreApplication::processEvents();
    while (pinturas.Quantas == antes && tempo.elapsed() < 10000)
        QCoreApplication::processEvents();
    Conferir(pinturas.Quantas > antes, "the list was not painted");
}

struct TCena {
    explicit TCena(int linhas)
        : Linhas(linhas), Meio(linhas / 2),
          banco(bancada::RoteiroDeClientes(QStringLiteral("cliente"), linhas) +
                QStringLiteral("\nset term ;^ create generator cliente_cod_gen;"))
    {
        Servicos().MensagemAviso = [](const QString &texto, int) {
            throw std::runtime_error(texto.toStdString());
        };
        Servicos().PerguntaDeletar = [] { return true; };
        banco.Executar(QStringLiteral("set generator cliente_cod_gen to %1").arg(linhas));
        anexo = bancada::Anexar(banco.Arquivo());
        qt = QSqlDatabase::addDatabase(QStringLiteral("QIBASE"), QStringLiteral("manutencao"));
        qt.setDatabaseName(banco.Arquivo());
        qt.setUserName(QStringLiteral("SYSDBA"));
        qt.setConnectOptions(QStringLiteral("ISC_DPB_LC_CTYPE=ISO8859_1"));
        if (!qt.open())
            throw std::runtime_error(qt.lastError().text().toStdString());
        janela.resize(1024, 700);
        janela.show();
        Conferir(QTest::qWaitForWindowActive(&janela), "the window is not active");
    }

    ~TCena()
    {
        Fechar();
        qt.close();
        qt = {};
        QSqlDatabase::removeDatabase(QStringLiteral("manutencao"));
    }

    /** From Criar to the painted list. */
    void Abrir()
    {
        Tela = Criar<bancada::TTelaDeClientes>(nullptr);
        const TPinturas pinturas(Tela->StringGrid1->viewport());
        janela.addSubWindow(Tela);
        Tela->Show();
        AtePintar(pinturas, 0);
        Conferir(Tela->StringGrid1->GetRowCount() == Linhas + 1, "not every row is in the list");
    }

    void Fechar()
    {
        if (Tela)
            delete Tela->parentWidget();
        Tela = nullptr;
        QCoreApplication::processEvents();
    }

    /** The screen stays open from one measurement to the next, over the table as it was. */
    void Preparar()
    {
        if (Tela)
            Tela->Reler(1);
        else
            Abrir();
        Assentar();
    }

    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers com)
    {
        QWidget *foco = QApplication::focusWidget();
        Conferir(foco && Tela->isAncestorOf(foco), "the focus is not on the screen");
        QTest::keyClick(foco, tecla, com);
    }

    void Assentar()
    {
        QCoreApplication::processEvents();
        ExecutarOcioso();
        QCoreApplication::processEvents();
    }

    /** A key press that works on the record, then the list, painted; seconds. */
    double Operar(Qt::Key tecla)
    {
        const TPinturas pinturas(Tela->StringGrid1->viewport());
        return bancada::Cronometrar([&] {
            Tecla(tecla, Qt::ControlModifier);
            Tela->PageControl1->MudarComoUsuario(0);
            AtePintar(pinturas, 0);
        });
    }

    double ConfirmarInsercao()
    {
        Preparar();
        Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Iolanda Nova"));
        Assentar();
        const double segundos = Operar(Qt::Key_Return);
        Conferir(Tela->Tab->RecNo == Linhas + 1, "the new record is not current");
        banco.Executar(QStringLiteral("delete from cliente where cliente_cod > %1").arg(Linhas));
        return segundos;
    }

    double ConfirmarAlteracao()
    {
        Preparar();
        NoRegistro(Meio);
        Tecla(Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
        Assentar();
        const double segundos = Operar(Qt::Key_Return);
        Conferir(Tela->Tab->RecNo == Meio && Tela->Tab->Status == TStatus::Ocioso,
                 "the alteration was not confirmed");
        Conferir(Tela->StringGrid1->GetCell(1, Meio).contains(u'x'), "the list is not the new one");
        banco.Executar(QStringLiteral("update cliente set nome = 'Clara Meio' ") + DoMeio());
        return segundos;
    }

    double Excluir()
    {
        Preparar();
        NoRegistro(Meio);
        const double segundos = Operar(Qt::Key_Delete);
        Conferir(Tela->StringGrid1->GetRowCount() == Linhas, "the record was not deleted");
        banco.Executar(
            QStringLiteral("insert into cliente select %1, nome, cidade, limite, nascimento, tipo, "
                           "alterado, endereco from cliente where cliente_cod = 1")
                .arg(Meio));
        return segundos;
    }

    /** On the list's page, with the record current: what a click on its row does. */
    void NoRegistro(int n)
    {
        Tela->PageControl1->MudarComoUsuario(0);
        Tela->StringGrid1->SetRow(n);
        Assentar();
        Conferir(Tela->Tab->RecNo == n, "the record is not current");
    }

    QString DoMeio() const { return QStringLiteral("where cliente_cod = %1").arg(Meio); }

    int BuscarTudo() const
    {
        return bancada::BuscarTudo(anexo.get(), bancada::TTelaDeClientes::Consulta());
    }

    int Linhas, Meio;
    TServicosGuarda servicos;
    TBancoTemp banco;
    TFicha biblioteca;
    motor::TRef<Firebird::IAttachment> anexo;
    QSqlDatabase qt;
    TMdiArea janela;
    bancada::TTelaDeClientes *Tela = nullptr;
};

/** A table bound as the screen's, and a grid that keeps what the last filling wrote. */
struct TEnchimento {
    explicit TEnchimento(TCena &cena, const QString &onde)
    {
        query.SetSQLConnection(&cena.banco.Conexao());
        query.SetSQL(QStringLiteral("select * from cliente ") + onde +
                     QStringLiteral(" order by cliente_cod"));
        query.Open();
        Tab = Criar<TTabelaLinear>(&query, QStringLiteral("cliente"));
        const auto campo = [this](const char *nome) { return query.FieldByName(nome); };
        Tab->PegarCampoChave(campo("cliente_cod"));
        Tab->Campos->Campos(0)->Visivel = true;
        for (const char *nome :
             {"nome", "cidade", "limite", "nascimento", "tipo", "alterado", "endereco"})
            Tab->PegarCampo(campo(nome), 80);
        Tab->Campos->Campos(3)->Tipo = 4;
        Tab->Campos->Campos(4)->Tipo = 1;
    }

    TSQLQuery query;
    std::unique_ptr<TTabelaLinear> Tab;
};

/** What the operations are bound to do, measured piece by piece. */
struct TObrigacao {
    explicit TObrigacao(const std::shared_ptr<TCena> &daCena)
        : cena(daCena), todas(*daCena, {}),
          menosUma(*daCena, QStringLiteral("where cliente_cod <> %1").arg(daCena->Meio))
    {
    }

    double Releitura() const
    {
        return bancada::Cronometrar(
            [this] { Conferir(cena->BuscarTudo() >= cena->Linhas, "not every row was read"); });
    }
    /** The same rows again, as after a confirm. */
    double EncherDeNovo()
    {
        todas.Tab->PreencherStringGrid(&grade);
        return bancada::Cronometrar([this] { todas.Tab->PreencherStringGrid(&grade); });
    }
    /** One row less, as after a deletion: half of the rows move up. */
    double EncherSemUma()
    {
        todas.Tab->PreencherStringGrid(&grade);
        return bancada::Cronometrar([this] { menosUma.Tab->PreencherStringGrid(&grade); });
    }

    std::shared_ptr<TCena> cena;
    TEnchimento todas, menosUma;
    TStringGrid grade;
};

void AbrirComQt(const TCena &cena, QWidget *&aFechar)
{
    auto *lista = new QTableView;
    aFechar = lista;
    auto *modelo = new QSqlQueryModel(lista);
    const TPinturas pinturas(lista->viewport());
    modelo->setQuery(bancada::TTelaDeClientes::Consulta(), cena.qt);
    while (modelo->canFetchMore())
        modelo->fetchMore();
    Conferir(modelo->rowCount() == cena.Linhas, "not every row is in the model");
    lista->setModel(modelo);
    lista->resize(1024, 700);
    lista->show();
    AtePintar(pinturas, 0);
}

} // namespace

BANCADA_GRUPO(manutencao)
{
    const int linhas = bancada::Tamanho(100000, 10000);
    const auto cena = std::make_shared<TCena>(linhas);
    const auto obrigacao = std::make_shared<TObrigacao>(cena);
    const QString tamanho = bancada::Milhares(linhas) + " rows";
    const QString abrir = QStringLiteral("maintenance screen opened");
    const QString abrirQt = QStringLiteral("QSqlQueryModel, everything fetched, and QTableView");
    const QString inserir = QStringLiteral("insert confirmed");
    const QString alterar = QStringLiteral("alteration confirmed");
    const QString excluir = QStringLiteral("record deleted");
    const QString doisEDois = QStringLiteral("2 bare re-reads and 2 grid fills");
    const QString doisEUm = QStringLiteral("2 bare re-reads and 1 grid fill");
    const auto rodada = std::make_shared<bancada::TRodada>();
    rodada->Medir(abrir, [cena] {
        cena->Fechar();
        return bancada::Cronometrar([&] { cena->Abrir(); });
    });
    rodada->Medir(abrirQt, [cena] {
        QWidget *lista = nullptr;
        const double segundos = bancada::Cronometrar([&] { AbrirComQt(*cena, lista); });
        delete lista;
        cena->janela.activateWindow();
        Conferir(QTest::qWaitForWindowActive(&cena->janela), "the window is not active");
        return segundos;
    });
    rodada->Medir(inserir, [cena] { return cena->ConfirmarInsercao(); });
    rodada->Medir(doisEDois, [obrigacao] {
        double segundos = 0;
        for (int i = 0; i < 2; ++i)
            segundos += obrigacao->Releitura() + obrigacao->EncherDeNovo();
        return segundos;
    });
    rodada->Medir(alterar, [cena] { return cena->ConfirmarAlteracao(); });
    rodada->Medir(excluir, [cena] { return cena->Excluir(); });
    rodada->Medir(doisEUm, [obrigacao] {
        const double segundos = obrigacao->Releitura() + obrigacao->Releitura();
        return segundos + obrigacao->EncherSemUma();
    });
    bancada::Exigir(
        {.Linha = "6",
         .Trabalho = "a maintenance screen over " + tamanho + ", from `Criar` to the painted list",
         .Nosso = {abrir, {}},
         .Par = {abrirQt, {}},
         .Sentido = bancada::TSentido::NoMinimo,
         .Limite = 2,
         .NaVerificacao = 1.2,
         .Nota = "the peer is Qt's QIBASE driver on the same file and fills no inputs"});
    const struct {
        const char *linha;
        QString trabalho, nosso, par, nota;
    } operacoes[] = {
        {"7a", "confirm of an insertion", inserir, doisEDois,
         "the list is read and filled after the insert, and read and filled again when the screen "
         "goes back to browsing"},
        {"7b", "confirm of an alteration", alterar, doisEDois,
         "the list is read and filled after the update, and read and filled again when the screen "
         "goes back to browsing"},
        {"7c", "deletion", excluir, doisEUm,
         "the list is read under the record's lock, and read and filled after the deletion; the "
         "fill is that of a grid in which half of the rows move up"},
    };
    for (const auto &o : operacoes) {
        bancada::Exigir({.Linha = o.linha,
                         .Trabalho = o.trabalho + ", " + tamanho + ", from the key to the list",
                         .Nosso = {o.nosso, {}},
                         .Par = {o.par, {}},
                         .Limite = 1.3,
                         .NaVerificacao = 2,
                         .Nota = o.nota});
    }
}
