#include "demo/UBancoComercial.h"
#include "demo/UComercialF.h"
#include "demo/UGuiaDeCeps.h"
#include "demo/UPasseio.h"
#include "demo/USaidaAoPintar.h"
#include "forms/UFicha.h"
#include "platform/core/Erros.h"
#include "platform/database/ConexD.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Layout.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>

#include <cstdio>
#include <memory>
#include <optional>

using namespace comercial;
using namespace ficha;

namespace
{

struct TOpcoes {
    QString Banco;
    bool Passeio = false;
    QString PastaDoPasseio;
    /** The second program of the tour: photographs the refusal and ends. */
    QString FotoDaRecusa;
    /** The screen to open at the start. */
    QString Abrir;
    /** Streets to add to the postal-code guide. */
    QString GerarGuia;
    /** Ends once the screen has been painted, saying when. */
    bool SairDepoisDePintar = false;
};

TOpcoes LerOpcoes(const QApplication &app)
{
    QCommandLineParser leitor;
    leitor.setApplicationDescription(QStringLiteral("Comercial: programa de demonstração"));
    leitor.addHelpOption();
    leitor.addOptions({
        {QStringLiteral("banco"), QStringLiteral("Arquivo, ou host:/caminho de um servidor"),
         QStringLiteral("endereço")},
        {QStringLiteral("tour"), QStringLiteral("Percorre o programa com teclas de verdade")},
        {QStringLiteral("pasta"), QStringLiteral("Onde o passeio deixa as fotografias"),
         QStringLiteral("pasta"), QStringLiteral("build/tour")},
        {QStringLiteral("abrir"),
         QStringLiteral("Abre uma tela pelo seu nome no menu, como produtos"),
         QStringLiteral("tela")},
        {QStringLiteral("gerar-guia"),
         QStringLiteral("Acrescenta ruas inventadas ao guia de CEPs, para medições, e termina"),
         QStringLiteral("quantidade")},
        {QStringLiteral("sair-depois-de-pintar"),
         QStringLiteral("Termina depois da primeira pintura da tela, para medir o início")},
        {QStringLiteral("foto-da-recusa"), QStringLiteral("Fotografa a mensagem de abertura"),
         QStringLiteral("arquivo")},
    });
    leitor.process(app);
    return {leitor.value(QStringLiteral("banco")),
            leitor.isSet(QStringLiteral("tour")),
            leitor.value(QStringLiteral("pasta")),
            leitor.value(QStringLiteral("foto-da-recusa")),
            leitor.value(QStringLiteral("abrir")),
            leitor.value(QStringLiteral("gerar-guia")),
            leitor.isSet(QStringLiteral("sair-depois-de-pintar"))};
}

int Percorrer(TSQLConnection &conexao, const TOpcoes &opcoes)
{
    const QDir pasta(opcoes.PastaDoPasseio);
    pasta.mkpath(QStringLiteral("."));
    const QString banco = pasta.absoluteFilePath(QStringLiteral("comercial.fdb"));
    QFile::remove(banco);
    AbrirBancoComercial(conexao, banco);
    const std::unique_ptr<TComercialF> janela(Criar<TComercialF>(nullptr));
    TPasseio(*janela, conexao, pasta).Executar();
    return 0;
}

int AumentarGuia(TSQLConnection &conexao, const TOpcoes &opcoes)
{
    bool numero = false;
    const int ruas = opcoes.GerarGuia.toInt(&numero);
    if (!numero || ruas < 1)
        throw EErro(QStringLiteral("A quantidade de ruas deve ser um número a partir de 1."));
    AbrirBancoComercial(conexao, opcoes.Banco);
    QElapsedTimer relogio;
    relogio.start();
    const int feitas = GerarGuia(conexao, ruas);
    std::printf("%s\n", QStringLiteral("Guia de CEPs: %1 ruas acrescentadas em %2 s")
                            .arg(feitas)
                            .arg(double(relogio.elapsed()) / 1000, 0, 'f', 1)
                            .toUtf8()
                            .constData());
    return 0;
}

int Trabalhar(TSQLConnection &conexao, const TOpcoes &opcoes)
{
    AbrirBancoComercial(conexao, opcoes.Banco);
    const std::unique_ptr<TComercialF> janela(Criar<TComercialF>(nullptr));
    janela->Show();
    if (!opcoes.Abrir.isEmpty() && !janela->AbrirTela(opcoes.Abrir))
        throw EErro(QStringLiteral("Não há uma tela chamada '%1'.").arg(opcoes.Abrir));
    std::optional<TSaidaAoPintar> saida;
    if (opcoes.SairDepoisDePintar) {
        const auto telas = janela->Filhos();
        saida.emplace(telas.isEmpty() ? janela.get() : telas.constLast());
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    // The tour and the guide's generator never need a display.
    for (int i = 1; i < argc; ++i) {
        const bool semTela =
            qstrcmp(argv[i], "--tour") == 0 || qstrncmp(argv[i], "--gerar-guia", 12) == 0;
        if (semTela && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("comercial"));
    QApplication::setApplicationDisplayName(QStringLiteral("Comercial"));
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 8));
    const TOpcoes opcoes = LerOpcoes(app);
    const TFicha biblioteca;
    RegistrarPastaDeLayouts(QStringLiteral(":/demo/layouts"));
    TSQLConnection conexao;
    try {
        if (!opcoes.GerarGuia.isEmpty())
            return AumentarGuia(conexao, opcoes);
        return opcoes.Passeio ? Percorrer(conexao, opcoes) : Trabalhar(conexao, opcoes);
    } catch (const EErro &e) {
        // The engine's own text, which follows the message, is for who looks into the log.
        const QString mensagem = e.Mensagem().section(QStringLiteral("\r\n\r\n"), 0, 0);
        std::fputs((e.Mensagem() + u'\n').toUtf8().constData(), stderr);
        if (!opcoes.FotoDaRecusa.isEmpty())
            TPasseio::FotografarCaixa(opcoes.FotoDaRecusa);
        if (!opcoes.Passeio && opcoes.GerarGuia.isEmpty())
            MensagemErro(mensagem);
        return 1;
    }
}
