#include "base/UBasFr.h"
#include "demo/UBancoComercial.h"
#include "demo/UComercialF.h"
#include "demo/UGruposF.h"
#include "demo/UMostruarioF.h"
#include "demo/UPasseio.h"
#include "demo/UProdutosF.h"
#include "forms/UFicha.h"
#include "platform/core/Servicos.h"
#include "platform/database/ConexD.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TFrame.h"
#include "support/BancoTemp.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <fstream>

using namespace comercial;
using namespace ficha;

namespace
{

/** The demo program as a process of its own, offscreen, its data in a temporary folder. */
class TProcesso : public QProcess
{
public:
    explicit TProcesso(const QString &pasta)
    {
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        ambiente.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        ambiente.insert(QStringLiteral("XDG_DATA_HOME"), pasta);
        ambiente.insert(QStringLiteral("XDG_RUNTIME_DIR"), pasta);
        setProcessEnvironment(ambiente);
        setWorkingDirectory(pasta);
    }
    ~TProcesso() override
    {
        kill();
        waitForFinished();
    }
    void Comecar(const QStringList &argumentos)
    {
        start(QStringLiteral(FICHA_COMERCIAL), argumentos);
        ASSERT_TRUE(waitForStarted());
    }
    QString Erros() { return QString::fromUtf8(readAllStandardError()); }
};

/** User and system time of a process, in clock ticks, and its voluntary switches. */
struct TConsumo {
    long Tiques = 0;
    long Trocas = 0;
};

TConsumo ConsumoDe(qint64 pid)
{
    TConsumo consumo;
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    std::string campo;
    for (int i = 1; i <= 15 && stat >> campo; ++i) {
        if (i >= 14)
            consumo.Tiques += std::stol(campo);
    }
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    for (std::string linha; std::getline(status, linha);) {
        if (linha.rfind("voluntary_ctxt_switches", 0) == 0)
            consumo.Trocas = std::stol(linha.substr(linha.find(':') + 1));
    }
    return consumo;
}

class ComercialTest : public testing::Test
{
protected:
    QTemporaryDir pasta;
    QString Arquivo(const char *nome) const { return pasta.filePath(QString::fromLatin1(nome)); }

    /** Opens a database and expects one clear refusal of this kind, and nothing new in the folder.
     */
    void EsperarRecusa(const QString &endereco, TErroBanco tipo)
    {
        const QStringList antes = Conteudo();
        TSQLConnection conexao;
        try {
            AbrirBancoComercial(conexao, endereco);
            ADD_FAILURE() << "opened " << endereco.toStdString();
        } catch (const EDatabaseError &e) {
            EXPECT_EQ(int(e.Tipo), int(tipo)) << e.Mensagem().toStdString();
            EXPECT_FALSE(e.Mensagem().section(QStringLiteral("\r\n"), 0, 0).isEmpty());
        }
        EXPECT_FALSE(conexao.Connected());
        EXPECT_EQ(Conteudo(), antes);
    }
    QStringList Conteudo() const
    {
        return QDir(pasta.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }
};

TEST_F(ComercialTest, TheFirstRunMakesTheDatabaseWithItsData)
{
    const QString arquivo = Arquivo("comercial.fdb");
    {
        TSQLConnection conexao;
        AbrirBancoComercial(conexao, arquivo);
        EXPECT_EQ(ConexD().SQLConnection, &conexao);
        EXPECT_EQ(ValorDoBanco(conexao, QStringLiteral("select count(*) from grupos")), Variant(8));
        EXPECT_EQ(ValorDoBanco(conexao, QStringLiteral("select count(*) from produtos")),
                  Variant(256));
        EXPECT_EQ(ValorDoBanco(conexao, QStringLiteral(
                                            "select gen_id(grupos_cod_gen, 0) from rdb$database")),
                  Variant(8));
        conexao.Executar(QStringLiteral("delete from produtos where grupos_cod=8"));
    }
    EXPECT_EQ(Conteudo(), (QStringList{QStringLiteral("comercial.fdb"), QStringLiteral("fotos")}));
    TSQLConnection denovo;
    AbrirBancoComercial(denovo, arquivo);
    EXPECT_EQ(ValorDoBanco(denovo, QStringLiteral("select count(*) from produtos")), Variant(224))
        << "everything is found as it was left";
}

TEST_F(ComercialTest, AMissingFolderIsRefused)
{
    EsperarRecusa(Arquivo("nao/existe/comercial.fdb"), TErroBanco::PastaOuArquivoAusente);
}

TEST_F(ComercialTest, AFileThatIsNoDatabaseIsRefusedAndLeftAsItWas)
{
    QFile texto(Arquivo("comercial.fdb"));
    ASSERT_TRUE(texto.open(QIODevice::WriteOnly));
    const QByteArray conteudo(20000, 'x');
    texto.write(conteudo);
    texto.close();
    EsperarRecusa(texto.fileName(), TErroBanco::NaoEhBanco);
    ASSERT_TRUE(texto.open(QIODevice::ReadOnly));
    EXPECT_EQ(texto.readAll(), conteudo);
}

TEST_F(ComercialTest, AReadOnlyFileIsRefused)
{
    const QString arquivo = Arquivo("comercial.fdb");
    {
        TSQLConnection conexao;
        AbrirBancoComercial(conexao, arquivo);
    }
    QFile::setPermissions(arquivo, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    EsperarRecusa(arquivo, TErroBanco::SomenteLeitura);
}

TEST_F(ComercialTest, ASecondProgramIsRefusedWhileTheDatabaseIsInUse)
{
    const QString arquivo = Arquivo("comercial.fdb");
    TSQLConnection conexao;
    AbrirBancoComercial(conexao, arquivo);
    TProcesso segundo(pasta.path());
    const QString foto = Arquivo("recusa.png");
    segundo.Comecar({QStringLiteral("--banco"), arquivo, QStringLiteral("--foto-da-recusa"), foto});
    ASSERT_TRUE(segundo.waitForFinished(60000));
    EXPECT_EQ(segundo.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(segundo.exitCode(), 1);
    EXPECT_TRUE(segundo.Erros().contains(QStringLiteral("já está em uso por outro programa")));
    EXPECT_TRUE(QFile::exists(foto)) << "one message box, closed with Esc";
    EXPECT_EQ(ValorDoBanco(conexao, QStringLiteral("select count(*) from grupos")), Variant(8));
}

TEST_F(ComercialTest, TheGalleryShowsEveryFrameByItsName)
{
    const TFicha biblioteca;
    TSQLConnection conexao;
    AbrirBancoComercial(conexao, Arquivo("comercial.fdb"));
    RegistrarPastaDeLayouts(QStringLiteral(":/demo/layouts"));
    const std::unique_ptr<TMostruarioF> mostruario(Criar<TMostruarioF>(nullptr));
    mostruario->Show();
    QStringList nomes;
    for (const QLabel *rotulo : mostruario->findChildren<QLabel *>())
        nomes << rotulo->text();
    int frames = 0;
    for (const QString &classe : ClassesRegistradas()) {
        const QMetaObject *meta = ClasseRegistrada(classe);
        if (!meta->inherits(&TFrame::staticMetaObject) ||
            !QByteArray(meta->className()).startsWith("ficha::"))
            continue;
        ++frames;
        EXPECT_EQ(nomes.count(classe), 1) << classe.toStdString();
        // It, or one that derives from it.
        EXPECT_TRUE(std::ranges::any_of(mostruario->findChildren<TFrame *>(), [&](TFrame *frame) {
            return frame->metaObject()->inherits(meta);
        })) << classe.toStdString();
    }
    EXPECT_GE(frames, 20);
}

TEST_F(ComercialTest, TheGalleryStandsByKindsWithTheBasesAtTheEnd)
{
    const TFicha biblioteca;
    TSQLConnection conexao;
    AbrirBancoComercial(conexao, Arquivo("comercial.fdb"));
    RegistrarPastaDeLayouts(QStringLiteral(":/demo/layouts"));
    const std::unique_ptr<TMostruarioF> mostruario(Criar<TMostruarioF>(nullptr));
    mostruario->Show();
    const auto ordem = [&](const char *texto) {
        for (const QLabel *rotulo : mostruario->findChildren<QLabel *>())
            if (rotulo->text() == QString::fromUtf8(texto))
                return rotulo->mapTo(mostruario.get(), QPoint()).y();
        ADD_FAILURE() << texto;
        return -1;
    };
    EXPECT_LT(ordem("Documentos, endereço e contato"), ordem("TCPFEditBRBasFr"));
    EXPECT_LT(ordem("TCPFEditBRBasFr"), ordem("Números"));
    EXPECT_LT(ordem("Números"), ordem("TNumEditBRCodBasFr"));
    EXPECT_LT(ordem("TNumEditBRCodBasFr"), ordem("Escolhas"));
    EXPECT_LT(ordem("Escolhas"), ordem("TComboBoxCodBasFr"));
    EXPECT_LT(ordem("TComboBoxCodBasFr"), ordem("Bases, sem aparência própria"));
    EXPECT_LT(ordem("Bases, sem aparência própria"), ordem("TControlBasFr"));
    EXPECT_LT(ordem("TControlBasFr"), ordem("TNumDiagF"));
}

TEST_F(ComercialTest, TheProgramIdlesWithoutWakingUp)
{
    TProcesso programa(pasta.path());
    programa.Comecar({QStringLiteral("--banco"), Arquivo("comercial.fdb"),
                      QStringLiteral("--abrir"), QStringLiteral("produtos")});
    // Started and settled: no more time is used than the clock can tell.
    TConsumo antes = ConsumoDe(programa.processId());
    for (int i = 0; i < 120; ++i) {
        QTest::qWait(500);
        const TConsumo depois = ConsumoDe(programa.processId());
        const bool calmo = depois.Tiques > 0 && depois.Tiques == antes.Tiques &&
                           QFile::exists(Arquivo("comercial.fdb"));
        antes = depois;
        if (calmo)
            break;
    }
    QTest::qWait(5000);
    const TConsumo depois = ConsumoDe(programa.processId());
    ASSERT_EQ(programa.state(), QProcess::Running) << programa.Erros().toStdString();
    EXPECT_EQ(depois.Tiques, antes.Tiques) << "no processor time in five seconds";
    EXPECT_EQ(depois.Trocas, antes.Trocas) << "the user-interface thread never woke up";
}

TEST_F(ComercialTest, TheTourRunsToItsEnd)
{
    TProcesso passeio(pasta.path());
    passeio.Comecar({QStringLiteral("--tour"), QStringLiteral("--pasta"), Arquivo("passeio")});
    ASSERT_TRUE(passeio.waitForFinished(240000));
    EXPECT_EQ(passeio.exitCode(), 0) << passeio.Erros().toStdString();
    const QStringList fotos = QDir(Arquivo("passeio")).entryList({QStringLiteral("*.png")});
    EXPECT_GE(fotos.size(), 50);
    const QString dito = QString::fromUtf8(passeio.readAllStandardOutput());
    EXPECT_TRUE(dito.contains(QStringLiteral("Antes: 8 grupos, 256 produtos, 320 clientes")));
    EXPECT_TRUE(dito.contains(QStringLiteral("Depois: 9 grupos, 257 produtos, 321 clientes")));
    EXPECT_TRUE(dito.contains(QStringLiteral("Vaso de cerâmica")));
    EXPECT_TRUE(dito.contains(QStringLiteral("último cliente: 321 Inês Araújo de Souza")));
}

} // namespace
