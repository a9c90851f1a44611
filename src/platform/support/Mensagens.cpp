#include "platform/support/Mensagens.h"

#include "platform/core/Servicos.h"
#include "platform/support/Traducao.h"

#include <QApplication>
#include <QDebug>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace ficha
{

namespace
{

/** A box can be shown: there is an application with windows, still running, and this is its
 * thread. */
bool PodeMostrar()
{
    const auto *app = qobject_cast<QApplication *>(QCoreApplication::instance());
    return app && !QCoreApplication::closingDown() && QThread::currentThread() == app->thread();
}

void Registrar(const QString &titulo, const QString &texto)
{
    qWarning().noquote().nospace() << "ficha: " << titulo << ": " << texto;
}

QWidget *JanelaDona()
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

QString ComLinhas(QString texto)
{
    return texto.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

void PrepararRotulo(QMessageBox &caixa, const char *nome, bool negrito)
{
    auto *rotulo = caixa.findChild<QLabel *>(QLatin1String(nome));
    if (!rotulo)
        return;
    rotulo->setTextFormat(Qt::PlainText);
    rotulo->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont fonte = rotulo->font();
    fonte.setBold(negrito);
    rotulo->setFont(fonte);
}

/** Room for the lines as they were written, up to a width that is still easily read. */
void AlargarRotulo(QMessageBox &caixa, const char *nome)
{
    constexpr int LarguraMaxima = 420;
    if (auto *rotulo = caixa.findChild<QLabel *>(QLatin1String(nome))) {
        const int texto = rotulo->fontMetrics().size(Qt::TextExpandTabs, rotulo->text()).width();
        rotulo->setMinimumWidth(std::min(texto + 2 * rotulo->margin() + 2, LarguraMaxima));
    }
}

/** A box over the active window, without buttons yet; the caller deletes it where it still is. */
QPointer<QMessageBox> NovaCaixa(QMessageBox::Icon icone, const QString &titulo,
                                const QString &texto, bool comDestaque = true)
{
    InstalarTraducao();
    QPointer<QMessageBox> caixa = new QMessageBox(JanelaDona());
    const QString linhas = ComLinhas(texto);
    const qsizetype fim = comDestaque ? linhas.indexOf(u'\n') : -1;
    caixa->setWindowTitle(titulo);
    caixa->setIcon(icone);
    caixa->setTextFormat(Qt::PlainText);
    caixa->setText(fim < 0 ? linhas : linhas.left(fim));
    if (fim >= 0)
        caixa->setInformativeText(linhas.mid(fim + 1));
    PrepararRotulo(*caixa, "qt_msgbox_label", fim >= 0);
    PrepararRotulo(*caixa, "qt_msgbox_informativelabel", false);
    AlargarRotulo(*caixa, "qt_msgbox_informativelabel");
    return caixa;
}

/** Runs the box and frees it; its window may have taken it along meanwhile. Answers whether it was
 * left by that button. */
bool Executar(const QPointer<QMessageBox> &caixa, const QAbstractButton *botao)
{
    const QPointer<QWidget> dona = caixa->parentWidget();
    caixa->exec();
    const bool peloBotao = caixa && caixa->clickedButton() == botao;
    delete caixa.data();
    // Not every window system goes back to the window below by itself.
    if (dona && dona->isVisible() && !QApplication::activeWindow())
        dona->activateWindow();
    return peloBotao;
}

void Mostrar(QMessageBox::Icon icone, const QString &titulo, const QString &texto,
             bool comDestaque = true, const QString &detalhe = {})
{
    if (!PodeMostrar()) {
        Registrar(titulo, texto);
        return;
    }
    const QPointer<QMessageBox> caixa = NovaCaixa(icone, titulo, texto, comDestaque);
    QPushButton *ok = caixa->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    caixa->setDefaultButton(ok);
    caixa->setEscapeButton(ok);
    if (!detalhe.isEmpty())
        caixa->setDetailedText(ComLinhas(detalhe));
    Executar(caixa, ok);
}

bool Perguntar(QMessageBox::Icon icone, const QString &titulo, const QString &texto)
{
    if (!PodeMostrar()) {
        Registrar(titulo, texto);
        return false;
    }
    const QPointer<QMessageBox> caixa = NovaCaixa(icone, titulo, texto);
    const QAbstractButton *sim = caixa->addButton(QStringLiteral("&Sim"), QMessageBox::YesRole);
    QPushButton *nao = caixa->addButton(QStringLiteral("&Não"), QMessageBox::NoRole);
    caixa->setDefaultButton(nao);
    caixa->setEscapeButton(nao);
    return Executar(caixa, sim);
}

QString TituloErro()
{
    return QStringLiteral("Erro");
}

/** The errors whose boxes stand open or wait to be shown. A failing timer or refresh must not pile
 * boxes up: the same error is not shown twice, and no more than a few at once. Those left out are
 * in the log. */
class TErroAberto
{
public:
    explicit TErroAberto(QString doErro) : texto(std::move(doErro)) { abertos.append(texto); }
    ~TErroAberto() { abertos.removeOne(texto); }
    TErroAberto(const TErroAberto &) = delete;
    TErroAberto &operator=(const TErroAberto &) = delete;

    static bool HaLugarPara(const QString &texto)
    {
        return abertos.size() < MaximoAberto && !abertos.contains(texto);
    }
    const QString &Texto() const { return texto; }

private:
    static constexpr qsizetype MaximoAberto = 3;
    static inline QStringList abertos;
    QString texto;
};

/** An empty line parts the message from the engine's own words, which go under "Detalhes". */
void MostrarErroComDetalhes(const QString &texto)
{
    const QString separador = QStringLiteral("\r\n\r\n");
    const qsizetype fim = texto.indexOf(separador);
    if (Servicos().MensagemErro)
        Servicos().MensagemErro(texto);
    else
        Mostrar(QMessageBox::Critical, TituloErro(), fim < 0 ? texto : texto.left(fim), true,
                fim < 0 ? QString() : texto.mid(fim + separador.size()));
}

/** How an error that nobody caught is shown; the log line is already written. The box waits for
 * the event loop: the error may come out of a paint event or of an idle-time update, where nothing
 * modal can run. */
void MostrarErro(const QString &texto)
{
    if (!PodeMostrar() || !TErroAberto::HaLugarPara(texto))
        return;
    const auto aberto = std::make_shared<TErroAberto>(texto);
    QTimer::singleShot(0, qApp, [aberto] {
        try {
            MostrarErroComDetalhes(aberto->Texto());
        } catch (...) {
            Registrar(TituloErro(), TextoDoErro(std::current_exception()));
        }
    });
}

void MostrarAviso(const QString &texto)
{
    Mostrar(QMessageBox::Warning, QStringLiteral("Aviso"), texto);
}

/** Installed as soon as this floor is part of the program. */
[[maybe_unused]] const bool instalado = [] {
    SetReportarErroPadrao(MostrarErro);
    SetMensagemAvisoPadrao(MostrarAviso);
    return true;
}();

} // namespace

void MensagemAviso(const QString &texto, int opcao)
{
    if (Servicos().MensagemAviso)
        Servicos().MensagemAviso(texto, opcao);
    else
        MostrarAviso(texto);
}

void MensagemErro(const QString &texto, int)
{
    if (Servicos().MensagemErro)
        Servicos().MensagemErro(texto);
    else
        Mostrar(QMessageBox::Critical, TituloErro(), texto);
}

void MensagemInfo(const QString &texto, int)
{
    if (Servicos().MensagemInfo)
        Servicos().MensagemInfo(texto);
    else
        Mostrar(QMessageBox::Information, QStringLiteral("Informação"), texto);
}

void MensagemSimples(const QString &texto)
{
    if (Servicos().MensagemSimples)
        Servicos().MensagemSimples(texto);
    else
        Mostrar(QMessageBox::NoIcon, QCoreApplication::applicationName(), texto, false);
}

bool Pergunta(const QString &texto)
{
    if (Servicos().Pergunta)
        return Servicos().Pergunta(texto);
    return Perguntar(QMessageBox::Question, QStringLiteral("Confirmação"), texto);
}

bool PerguntaDeletar()
{
    if (Servicos().PerguntaDeletar)
        return Servicos().PerguntaDeletar();
    return Perguntar(QMessageBox::Warning, QStringLiteral("Excluir"),
                     QStringLiteral("Excluir o registro?\r\n"
                                    "O registro selecionado será excluído definitivamente."));
}

} // namespace ficha
