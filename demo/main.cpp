#include "demo/UBancoComercial.h"
#include "demo/UComercialF.h"
#include "demo/UPasseio.h"
#include "forms/UFicha.h"
#include "platform/core/Erros.h"
#include "platform/database/ConexD.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Layout.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>
#include <memory>

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
        {QStringLiteral("foto-da-recusa"), QStringLiteral("Fotografa a mensagem de abertura"),
         QStringLiteral("arquivo")},
    });
    leitor.process(app);
    return {leitor.value(QStringLiteral("banco")), leitor.isSet(QStringLiteral("tour")),
            leitor.value(QStringLiteral("pasta")), leitor.value(QStringLiteral("foto-da-recusa"))};
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

int Trabalhar(TSQLConnection &conexao, const TOpcoes &opcoes)
{
    AbrirBancoComercial(conexao, opcoes.Banco);
    const std::unique_ptr<TComercialF> janela(Criar<TComercialF>(nullptr));
    janela->Show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    // The tour never needs a display.
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--tour") == 0 && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
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
        return opcoes.Passeio ? Percorrer(conexao, opcoes) : Trabalhar(conexao, opcoes);
    } catch (const EErro &e) {
        std::fputs((e.Mensagem() + u'\n').toUtf8().constData(), stderr);
        if (!opcoes.FotoDaRecusa.isEmpty())
            TPasseio::FotografarCaixa(opcoes.FotoDaRecusa);
        if (!opcoes.Passeio)
            MensagemErro(e.Mensagem());
        return 1;
    }
}
