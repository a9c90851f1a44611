#include "demo/UPasseio.h"

#include "demo/UProdutosF.h"
#include "input/UBarCodBasFr.h"
#include "input/UComboBoxCodBasFr.h"
#include "platform/core/Erros.h"
#include "platform/database/ConexD.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/Ocioso.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TForm.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TPageControl.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMdiSubWindow>
#include <QProcess>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <tuple>
#include <utility>

using namespace ficha;

namespace comercial
{

namespace
{

/** Where a person's keys would go. */
QWidget *Alvo()
{
    QWidget *janela = QApplication::activeModalWidget();
    if (!janela)
        janela = QApplication::activeWindow();
    // Without a display, nothing is activated in place of a combo box's list that closes by itself.
    while (janela && !janela->isVisible() && janela->parentWidget()) {
        janela = janela->parentWidget()->window();
        janela->activateWindow();
        QTest::qWait(1);
    }
    if (!janela)
        throw EErro(QStringLiteral("nenhuma janela está ativa"));
    return janela->focusWidget() ? janela->focusWidget() : janela;
}

} // namespace

TPasseio::TPasseio(TComercialF &principal, TSQLConnection &banco, const QDir &destino)
    : janela(principal), conexao(banco), pasta(destino)
{
    for (const QString &velha : pasta.entryList({QStringLiteral("*.png")}))
        pasta.remove(velha);
}

void TPasseio::Executar()
{
    janela.resize(900, 640);
    janela.Show();
    VigiarCaixas();
    Assentar();
    MostrarBanco("Antes");
    Grupos();
    InsercaoRecusada();
    Alteracao();
    Busca();
    Exclusao();
    Produto();
    GrupoPeloCombo();
    CodigoDeBarras();
    FiltroDaLista();
    PerguntaAoFechar();
    Clientes();
    Listas();
    Mostruario();
    SegundoPrograma();
    MostrarBanco("Depois");
    Dizer(QStringLiteral("%1 fotografias em %2").arg(fotos).arg(pasta.path()));
}

void TPasseio::FotografarCaixa(const QString &arquivo)
{
    QuandoHouverCaixa([arquivo](QWidget *caixa) {
        caixa->grab().save(arquivo);
        QTest::keyClick(caixa, Qt::Key_Escape);
    });
}

void TPasseio::MostrarBanco(const char *titulo)
{
    Dizer(QStringLiteral("== %1: %2 grupos, %3 produtos, %4 clientes")
              .arg(QString::fromUtf8(titulo),
                   DoBanco(QStringLiteral("select count(*) from grupos")),
                   DoBanco(QStringLiteral("select count(*) from produtos")),
                   DoBanco(QStringLiteral("select count(*) from clientes"))));
    TCustomBRSQL grupos(
        QStringLiteral("select grupos_cod, descricao from grupos order by grupos_cod"));
    for (; !grupos.Eof(); grupos.Next()) {
        Dizer(QStringLiteral("   %1  %2")
                  .arg(grupos.Fields(0)->AsString(), 3)
                  .arg(grupos.Fields(1)->AsString()));
    }
    const TCustomBRSQL ultimo(QStringLiteral(
        "select first 1 p.produtos_cod, p.descricao, g.descricao, p.preco from produtos p "
        "join grupos g on g.grupos_cod = p.grupos_cod order by p.produtos_cod desc"));
    Dizer(QStringLiteral("   último produto: %1 %2 (%3), R$ %4")
              .arg(ultimo.Fields(0)->AsString(), ultimo.Fields(1)->AsString(),
                   ultimo.Fields(2)->AsString(), ultimo.Fields(3)->AsString()));
    const TCustomBRSQL cliente(QStringLiteral(
        "select first 1 clientes_cod, nome, doc_c, logr || ', ' || num || ', ' || mun || '/' || uf "
        "from clientes order by clientes_cod desc"));
    Dizer(QStringLiteral("   último cliente: %1 %2, %3, %4")
              .arg(cliente.Fields(0)->AsString(), cliente.Fields(1)->AsString(),
                   cliente.Fields(2)->AsString(), cliente.Fields(3)->AsString()));
}

void TPasseio::Grupos()
{
    Tecla(Qt::Key_F2);
    Foto(QStringLiteral("grupos-lista"));
    Tecla(Qt::Key_Tab, Qt::ControlModifier);
    Foto(QStringLiteral("grupos-campos"));
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("Brinquedos"));
    Foto(QStringLiteral("grupos-inserindo"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    Exigir(DoBanco(QStringLiteral("select grupos_cod from grupos where descricao='Brinquedos'")) ==
               QStringLiteral("9"),
           "inserir um grupo");
    Foto(QStringLiteral("grupos-inserido"));
}

void TPasseio::InsercaoRecusada()
{
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("BEBIDAS"));
    ResponderCaixa(QStringLiteral("grupos-insercao-recusada"), Qt::Key_Return);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    Exigir(
        DoBanco(QStringLiteral("select count(*) from grupos where upper(descricao)='BEBIDAS'")) ==
            QStringLiteral("1"),
        "recusar um grupo repetido");
    Foto(QStringLiteral("grupos-continua-inserindo"));
    Tecla(Qt::Key_Escape);
}

void TPasseio::Alteracao()
{
    Tecla(Qt::Key_PageUp, Qt::ControlModifier);
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Tecla(Qt::Key_End);
    Digitar(QStringLiteral(" e grãos"));
    Foto(QStringLiteral("grupos-alterando"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    Exigir(DoBanco(QStringLiteral("select descricao from grupos where grupos_cod=1")) ==
               QStringLiteral("Alimentos básicos e grãos"),
           "alterar um grupo");
    Foto(QStringLiteral("grupos-alterado"));
}

void TPasseio::Busca()
{
    Tecla(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    Tecla(Qt::Key_Right);
    Tecla(Qt::Key_End, Qt::ControlModifier);
    Foto(QStringLiteral("busca-parte-do-fim"));
    Tecla(Qt::Key_L, Qt::ControlModifier);
    Digitar(QStringLiteral("Brinquedos"));
    Foto(QStringLiteral("busca"), QApplication::activeWindow());
    ResponderCaixa(QStringLiteral("busca-pergunta-a-direcao"), Qt::Key_S);
    Tecla(Qt::Key_Return);
    Tecla(Qt::Key_Escape);
    Foto(QStringLiteral("busca-achou"));
}

void TPasseio::Exclusao()
{
    ResponderCaixa(QStringLiteral("grupos-pergunta-ao-excluir"), Qt::Key_S);
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    Exigir(DoBanco(QStringLiteral("select count(*) from grupos where descricao='Brinquedos'")) ==
               QStringLiteral("0"),
           "excluir o grupo que a busca achou");
    Foto(QStringLiteral("grupos-excluido"));
    Tecla(Qt::Key_F4, Qt::ControlModifier);
}

void TPasseio::Produto()
{
    Tecla(Qt::Key_F3);
    Foto(QStringLiteral("produtos-lista"));
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("Vaso de cerâmica com prato, trinta litros"));
    Foto(QStringLiteral("produtos-descricao-longa"));
}

/** The button beside the group opens the groups' screen, which closes with the new code. */
void TPasseio::GrupoPeloCombo()
{
    auto *combo = janela.FilhoAtivo()->findChild<TComboBoxCodBasFr *>(QStringLiteral("GrupoFr"));
    Tecla(Qt::Key_Tab);
    QTest::mouseClick(combo->EditBitBtn, Qt::LeftButton);
    Assentar();
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("Jardim"));
    Foto(QStringLiteral("combo-abre-grupos"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    Exigir(combo->ComboBox1->GetText() == QStringLiteral("Jardim"),
           "trazer do cadastro de grupos o grupo novo");
    Foto(QStringLiteral("combo-volta-com-o-grupo"));
    Digitar(QStringLiteral("1234,5"));
}

/** A wrong check digit is refused, the right one completes the product. */
void TPasseio::CodigoDeBarras()
{
    auto *codigo = Achar<TBarCodBasFr>("CodBarrasFr");
    DigitarEm(codigo->LabeledEdit1, QStringLiteral("7891000315500"));
    ResponderCaixa(QStringLiteral("produtos-codigo-de-barras-recusado"), Qt::Key_Return);
    Tecla(Qt::Key_Tab);
    Exigir(codigo->Focused(), "recusar um código de barras inválido");
    DigitarEm(codigo->LabeledEdit1, QStringLiteral("7891000315507"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    Exigir(DoBanco(QStringLiteral("select g.descricao || ' ' || p.preco || ' ' || p.cod_barras "
                                  "from produtos p join grupos g on g.grupos_cod = p.grupos_cod "
                                  "where p.descricao starting 'Vaso'")) ==
               QStringLiteral("Jardim 1234.50 7891000315507"),
           "inserir um produto no grupo novo");
    Foto(QStringLiteral("produtos-inserido"));
}

/** Enter applies the filter; starting an alteration releases it and stays on the record. */
void TPasseio::FiltroDaLista()
{
    auto *tela = qobject_cast<TProdutosF *>(janela.FilhoAtivo());
    auto *preco = Achar<TNumOpcionalFr>("FiltroPrecoDeFr");
    tela->PageControl1->MudarComoUsuario(0);
    Assentar();
    Marcar(preco->AtivoCheckBox);
    DigitarEm(preco->TNumEditBRBasFr1->NumEditBR1, QStringLiteral("1000"));
    Tecla(Qt::Key_Return);
    Exigir(tela->SQLQuery1->RecordCount() == 1, "filtrar a lista pelo preço");
    Foto(QStringLiteral("produtos-filtro-aplicado"));
    Clicar(tela->FiltroImage);
    Foto(QStringLiteral("produtos-filtro-fechado"));
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Exigir(!tela->FiltroAtivo && tela->SQLQuery1->RecordCount() > 1, "liberar o filtro ao alterar");
    Exigir(Achar<TDescrReduzLabeledEditTextoBasFr>("DescrFr")->AsString().startsWith(
               QStringLiteral("Vaso")),
           "alterar o registro que a lista filtrada mostrava");
    Tecla(Qt::Key_Escape);
    tela->PageControl1->MudarComoUsuario(0);
    Clicar(tela->FiltroImage);
}

void TPasseio::PerguntaAoFechar()
{
    Tecla(Qt::Key_A, Qt::ControlModifier);
    ResponderCaixa(QStringLiteral("pergunta-ao-fechar"), Qt::Key_N);
    Tecla(Qt::Key_F4, Qt::ControlModifier);
    Exigir(janela.Filhos().size() == 1, "continuar na janela que não se quis fechar");
    Tecla(Qt::Key_Escape);
    Tecla(Qt::Key_F4, Qt::ControlModifier);
    Exigir(janela.Filhos().isEmpty(), "fechar a janela de produtos");
}

/** Every frame of the gallery, a screenful at a time. */
void TPasseio::Mostruario()
{
    Tecla(Qt::Key_F9);
    TForm *mostruario = janela.FilhoAtivo();
    mostruario->SubJanela()->showMaximized();
    auto *rolagem = mostruario->findChild<QScrollArea *>();
    QScrollBar *barra = rolagem->verticalScrollBar();
    Assentar();
    for (int y = 0;; y += barra->pageStep()) {
        barra->setValue(y);
        Foto(QStringLiteral("mostruario"));
        if (y >= barra->maximum())
            break;
    }
    FaixaDeDatas();
    FiltroOpcional();
    Tecla(Qt::Key_F4, Qt::ControlModifier);
}

void TPasseio::SegundoPrograma()
{
    const QString foto = Caminho(QStringLiteral("segundo-programa-recusado"));
    QProcess segundo;
    segundo.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--banco"), conexao.DatabaseName,
                   QStringLiteral("--foto-da-recusa"), foto});
    Exigir(segundo.waitForFinished(30000) && segundo.exitCode() == 1 && QFile::exists(foto),
           "recusar um segundo programa no mesmo banco");
    Dizer(QStringLiteral("   segundo programa: ") +
          QString::fromUtf8(segundo.readAllStandardError()).trimmed());
}

QString TPasseio::Caminho(const QString &nome)
{
    return pasta.absoluteFilePath(
        QStringLiteral("%1-%2.png").arg(++fotos, 2, 10, QChar(u'0')).arg(nome));
}

void TPasseio::Foto(const QString &nome, QWidget *oQue)
{
    Assentar();
    const QString arquivo = Caminho(nome);
    if (!(oQue ? oQue : &janela)->grab().save(arquivo))
        throw EErro(QStringLiteral("a fotografia %1 não pôde ser gravada").arg(arquivo));
    Dizer(QStringLiteral("   ") + QFileInfo(arquivo).fileName());
}

void TPasseio::Tecla(Qt::Key tecla, Qt::KeyboardModifiers estado)
{
    Assentar();
    QTest::keyClick(Alvo(), tecla, estado);
    Assentar();
}

void TPasseio::Digitar(const QString &texto)
{
    Assentar();
    for (const QChar letra : texto)
        QTest::sendKeyEvent(QTest::Click, Alvo(), Qt::Key(letra.toUpper().unicode()), letra,
                            Qt::NoModifier);
    Assentar();
}

void TPasseio::Clicar(QWidget *onde)
{
    Assentar();
    QTest::mouseClick(onde, Qt::LeftButton);
    Assentar();
}

void TPasseio::Marcar(QAbstractButton *botao)
{
    constexpr int Marca = 8;
    Assentar();
    QTest::mouseClick(botao, Qt::LeftButton, Qt::NoModifier, QPoint(Marca, botao->height() / 2));
    Assentar();
}

void TPasseio::DigitarEm(QWidget *entrada, const QString &texto)
{
    Clicar(entrada);
    Tecla(Qt::Key_Home);
    Tecla(Qt::Key_End, Qt::ShiftModifier);
    Digitar(texto);
}

void TPasseio::Mostrar(QWidget *frame)
{
    for (QWidget *w = frame->parentWidget(); w; w = w->parentWidget())
        if (auto *rolagem = qobject_cast<QScrollArea *>(w))
            rolagem->ensureWidgetVisible(frame);
    Assentar();
}

void TPasseio::ExigirComponente(const QObject *achado, const char *nome)
{
    if (!achado)
        throw EErro(QStringLiteral("Passeio: a tela não tem ") + QString::fromUtf8(nome));
}

void TPasseio::QuandoHouverCaixa(std::function<void(QWidget *)> f, int faltam)
{
    constexpr int Passo = 20;
    if (faltam <= 0)
        return;
    QTimer::singleShot(Passo, qApp, [f = std::move(f), faltam]() mutable {
        QWidget *caixa = QApplication::activeModalWidget();
        if (caixa && caixa->isVisible())
            f(caixa);
        else
            QuandoHouverCaixa(std::move(f), faltam - Passo);
    });
}

void TPasseio::Dizer(const QString &texto)
{
    std::fputs((texto + u'\n').toUtf8().constData(), stdout);
    std::fflush(stdout);
}

/** An exception must not cross the event loop that runs f; it is raised again by Exigir. */
void TPasseio::NaCaixa(std::function<void(QWidget *)> f)
{
    ++caixasPendentes;
    QuandoHouverCaixa([this, f = std::move(f)](QWidget *caixa) {
        const QPointer<QWidget> viva(caixa);
        try {
            f(caixa);
        } catch (...) {
            falhaNaCaixa = std::current_exception();
            if (viva)
                QTest::keyClick(viva, Qt::Key_Escape);
        }
        --caixasPendentes;
    });
}

void TPasseio::ResponderCaixa(const QString &foto, Qt::Key tecla)
{
    NaCaixa([this, foto, tecla](QWidget *caixa) {
        Foto(foto, caixa);
        QTest::keyClick(caixa->focusWidget() ? caixa->focusWidget() : caixa, tecla);
    });
}

void TPasseio::VigiarCaixas()
{
    auto *vigia = new QTimer(&janela);
    QObject::connect(vigia, &QTimer::timeout, &janela,
                     [this, antes = QPointer<QWidget>()]() mutable {
                         QWidget *caixa = QApplication::activeModalWidget();
                         if (caixa && caixa == antes && caixasPendentes == 0) {
                             caixaInesperada = true;
                             caixa->grab().save(Caminho(QStringLiteral("mensagem-inesperada")));
                             QTest::keyClick(caixa, Qt::Key_Escape);
                         }
                         antes = caixa;
                     });
    vigia->start(std::chrono::seconds(2));
}

void TPasseio::Assentar()
{
    // On a desktop the window manager hands the keyboard over in its own time; where nobody has it
    // in the end, the next key says so.
    if (QGuiApplication::platformName() == QStringLiteral("offscreen")) {
        QTest::qWait(1);
    } else {
        constexpr int Passagem = 60;
        constexpr int Espera = 3000;
        QTest::qWait(Passagem);
        std::ignore = QTest::qWaitFor(
            [] { return QApplication::activeModalWidget() || QApplication::activeWindow(); },
            Espera);
    }
    ExecutarOcioso();
}

void TPasseio::Exigir(bool feito, const char *passo)
{
    Assentar();
    if (falhaNaCaixa)
        std::rethrow_exception(std::exchange(falhaNaCaixa, nullptr));
    if (caixaInesperada)
        throw EErro(QStringLiteral("Passeio: houve uma mensagem inesperada em: ") +
                    QString::fromUtf8(passo));
    if (caixasPendentes != 0)
        throw EErro(QStringLiteral("Passeio: faltou uma mensagem em: ") + QString::fromUtf8(passo));
    if (!feito)
        throw EErro(QStringLiteral("Passeio: não deu certo: ") + QString::fromUtf8(passo));
}

QString TPasseio::DoBanco(const QString &sql)
{
    const TCustomBRSQL consulta(sql);
    return consulta.IsEmpty() ? QString() : consulta.Fields(0)->AsString();
}

} // namespace comercial
