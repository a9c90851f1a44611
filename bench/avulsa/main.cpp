#include "bench/QuadrosCriacao.h"
#include "bench/QuadrosPar.h"
#include "bench/QuadrosTeclas.h"
#include "bench/QuadrosTela.h"
#include "forms/UFicha.h"
#include "platform/core/Erros.h"
#include "platform/database/ConexD.h"
#include "platform/database/PrepararBanco.h"
#include "platform/database/TSQLConnection.h"
#include "platform/toolkit/Layout.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>

#include <memory>

using namespace ficha;

namespace
{

/** The database with the screen's tables, made when there is no such file. */
void AbrirBanco(TSQLConnection &conexao, const QString &arquivo)
{
    conexao.DatabaseName = arquivo;
    if (QFile::exists(arquivo)) {
        conexao.Open();
        return;
    }
    conexao.CriarBanco({});
    PrepararBanco(conexao);
    conexao.ExecutarScript(bancada::RoteiroDosQuadros());
}

/** Writes the peers' layouts anew from the screen. */
void Regravar(const QString &pasta)
{
    const std::unique_ptr<bancada::TQuadrosF> tela(Criar<bancada::TQuadrosF>(nullptr));
    for (const bool soVisiveis : {false, true}) {
        const QString classe =
            soVisiveis ? QStringLiteral("QuadrosVisiveis") : QStringLiteral("QuadrosTodos");
        QFile f(pasta + u'/' + classe + QStringLiteral(".ui"));
        const QByteArray texto = bancada::LayoutDoPar(tela.get(), classe, soVisiveis).toUtf8();
        if (!f.open(QIODevice::WriteOnly) || f.write(texto) != texto.size())
            throw EErro(f.errorString());
    }
}

/** With the library: "nossa" and "regravar", on a database file. */
bancada::TTempos ComABiblioteca(const QString &o_que, const QStringList &resto)
{
    bancada::AquecerQt();
    TSQLConnection conexao;
    AbrirBanco(conexao, resto.value(0));
    ConexD().SQLConnection = &conexao;
    const TFicha biblioteca;
    RegistrarPastaDeLayouts(QStringLiteral(":/bancada/layouts"));
    if (o_que == QStringLiteral("nossa"))
        return bancada::CriarNossa();
    Regravar(resto.value(1));
    return {};
}

bancada::TTempos Executar(const QString &o_que, const QStringList &resto)
{
    if (o_que.startsWith(QStringLiteral("par"))) {
        bancada::AquecerQt();
        return {{o_que, bancada::CriarPar(o_que == QStringLiteral("par-visiveis"))}};
    }
    const QSize tamanho(resto.value(0).toInt(), resto.value(1).toInt());
    const int quanto = resto.value(2).toInt();
    if (o_que == QStringLiteral("teclas"))
        return bancada::TeclasNoPar(tamanho, quanto);
    if (o_que == QStringLiteral("caret"))
        return {{o_que, bancada::TrocasNoPar(tamanho, quanto, resto.value(3).toInt())}};
    return ComABiblioteca(o_que, resto);
}

} // namespace

/**
 * What is measured in a process of its own, printed as names and numbers:
 *   nossa DATABASE                the first creation of the screen of forty frames
 *   par, par-visiveis             the first creation of the same from uic's code
 *   teclas WIDTH HEIGHT KEYS      a key in a bare QLineEdit, without the library's idle updates
 *   caret WIDTH HEIGHT MS FLASH   the wake-ups of such a window
 * and what the second needs: regravar NEWDATABASE bench/layouts writes its layouts anew.
 */
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 8));
    QApplication::setCursorFlashTime(0);
    const QStringList argumentos = QApplication::arguments();
    try {
        const auto numeros = Executar(argumentos.value(1), argumentos.mid(2));
        for (auto n = numeros.begin(); n != numeros.end(); ++n)
            QTextStream(stdout) << n.key() << ' ' << n.value() << '\n';
        return 0;
    } catch (const EErro &e) {
        QTextStream(stderr) << e.Mensagem() << '\n';
    } catch (const std::exception &e) {
        QTextStream(stderr) << e.what() << '\n';
    }
    return 2;
}
