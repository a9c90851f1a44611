#include "platform/support/Mensagens.h"

#include "platform/core/Erros.h"
#include "platform/core/Servicos.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>
#include <QThread>
#include <QTimer>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

using namespace ficha;

namespace
{

QMessageBox *CaixaAberta()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

QList<QMessageBox *> TodasAsCaixas()
{
    QList<QMessageBox *> caixas;
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (auto *caixa = qobject_cast<QMessageBox *>(w); caixa && caixa->isVisible())
            caixas << caixa;
    }
    return caixas;
}

QPushButton *Botao(const QMessageBox *caixa, const QString &texto)
{
    for (auto *botao : caixa->buttons()) {
        if (botao->text().remove(u'&') == texto)
            return qobject_cast<QPushButton *>(botao);
    }
    return nullptr;
}

QLabel *Rotulo(const QMessageBox *caixa, const char *nome)
{
    return caixa->findChild<QLabel *>(QLatin1String(nome));
}

/** What the library itself shows, looked at and answered while its box stands open. */
class Mensagens : public testing::Test
{
protected:
    void SetUp() override { Servicos() = TServicos(); }
    void TearDown() override { EXPECT_TRUE(TodasAsCaixas().isEmpty()); }

    /** Runs f on the box that opens next, once it is on the screen. */
    void NaCaixa(std::function<void(QMessageBox *)> f)
    {
        QTimer::singleShot(0, qApp, [this, f = std::move(f)] {
            auto *caixa = CaixaAberta();
            ASSERT_NE(caixa, nullptr);
            ASSERT_TRUE(QTest::qWaitForWindowActive(caixa));
            ++vistas;
            f(caixa);
        });
    }

    TServicosGuarda guarda;
    int vistas = 0;
};

void ConferirCaixa(const QMessageBox *caixa, QMessageBox::Icon icone, const char *titulo,
                   const char *destaque, const char *resto)
{
    EXPECT_EQ(caixa->icon(), icone);
    EXPECT_EQ(caixa->windowTitle(), QString::fromUtf8(titulo));
    EXPECT_EQ(caixa->text(), QString::fromUtf8(destaque));
    EXPECT_EQ(caixa->informativeText(), QString::fromUtf8(resto));
    EXPECT_EQ(Rotulo(caixa, "qt_msgbox_label")->font().bold(), *resto != 0);
    EXPECT_TRUE(Rotulo(caixa, "qt_msgbox_label")->textInteractionFlags() &
                Qt::TextSelectableByMouse);
}

} // namespace

TEST_F(Mensagens, AWarningShowsItsFirstLineInBoldAndTheRestBelow)
{
    NaCaixa([](QMessageBox *caixa) {
        ConferirCaixa(caixa, QMessageBox::Warning, "Aviso", "Campo incompleto",
                      "Este é um campo obrigatório\n (não pode ser deixado em branco).");
        auto *resto = Rotulo(caixa, "qt_msgbox_informativelabel");
        EXPECT_TRUE(resto->textInteractionFlags() & Qt::TextSelectableByMouse);
        EXPECT_FALSE(resto->font().bold());
        ASSERT_EQ(caixa->buttons().size(), 1);
        EXPECT_EQ(caixa->defaultButton(), Botao(caixa, QStringLiteral("OK")));
        QTest::mouseClick(Botao(caixa, QStringLiteral("OK")), Qt::LeftButton);
    });
    MensagemAviso(
        QStringLiteral("Campo incompleto\r\nEste é um campo obrigatório\r\n (não pode ser "
                       "deixado em branco)."));
    EXPECT_EQ(vistas, 1);
}

TEST_F(Mensagens, EachKindHasItsIconAndTitle)
{
    const auto fechar = [](QMessageBox *caixa) { QTest::keyClick(caixa, Qt::Key_Return); };
    NaCaixa([=](QMessageBox *caixa) {
        ConferirCaixa(caixa, QMessageBox::Critical, "Erro", "O DDD é obrigatório", "");
        fechar(caixa);
    });
    MensagemErro(QStringLiteral("O DDD é obrigatório"), 0);
    NaCaixa([=](QMessageBox *caixa) {
        ConferirCaixa(caixa, QMessageBox::Information, "Informação",
                      "A data inicial está maior que a final.", "");
        fechar(caixa);
    });
    MensagemInfo(QStringLiteral("A data inicial está maior que a final."));
    NaCaixa([=](QMessageBox *caixa) {
        ConferirCaixa(caixa, QMessageBox::NoIcon, qPrintable(QCoreApplication::applicationName()),
                      "uma\nduas", "");
        fechar(caixa);
    });
    MensagemSimples(QStringLiteral("uma\r\nduas"));
    EXPECT_EQ(vistas, 3);
}

TEST_F(Mensagens, TextIsNeverReadAsMarkup)
{
    NaCaixa([](QMessageBox *caixa) {
        EXPECT_EQ(Rotulo(caixa, "qt_msgbox_label")->textFormat(), Qt::PlainText);
        EXPECT_EQ(Rotulo(caixa, "qt_msgbox_informativelabel")->textFormat(), Qt::PlainText);
        EXPECT_EQ(caixa->text(), QStringLiteral("<b>1 < 2 & 3</b>"));
        QTest::keyClick(caixa, Qt::Key_Escape);
    });
    MensagemAviso(QStringLiteral("<b>1 < 2 & 3</b>\r\n<i>resto</i>"));
    EXPECT_EQ(vistas, 1);
}

TEST_F(Mensagens, AQuestionIsAnsweredByItsButtonsAndTheirLetters)
{
    NaCaixa([](QMessageBox *caixa) {
        ConferirCaixa(caixa, QMessageBox::Question, "Confirmação", "Deseja continuar?", "");
        ASSERT_EQ(caixa->buttons().size(), 2);
        QTest::mouseClick(Botao(caixa, QStringLiteral("Sim")), Qt::LeftButton);
    });
    EXPECT_TRUE(Pergunta(QStringLiteral("Deseja continuar?")));
    NaCaixa([](QMessageBox *caixa) {
        QTest::mouseClick(Botao(caixa, QStringLiteral("Não")), Qt::LeftButton);
    });
    EXPECT_FALSE(Pergunta(QStringLiteral("Deseja continuar?")));
    NaCaixa([](QMessageBox *caixa) { QTest::keyClick(caixa, Qt::Key_S); });
    EXPECT_TRUE(Pergunta(QStringLiteral("Deseja continuar?")));
    NaCaixa([](QMessageBox *caixa) { QTest::keyClick(caixa, Qt::Key_N); });
    EXPECT_FALSE(Pergunta(QStringLiteral("Deseja continuar?")));
    EXPECT_EQ(vistas, 4);
}

TEST_F(Mensagens, EnterEscAndClosingAllMeanNo)
{
    NaCaixa([](QMessageBox *caixa) { QTest::keyClick(caixa, Qt::Key_Return); });
    EXPECT_FALSE(Pergunta(QStringLiteral("Abandonar?")));
    NaCaixa([](QMessageBox *caixa) { QTest::keyClick(caixa, Qt::Key_Escape); });
    EXPECT_FALSE(Pergunta(QStringLiteral("Abandonar?")));
    NaCaixa([](QMessageBox *caixa) { caixa->close(); });
    EXPECT_FALSE(Pergunta(QStringLiteral("Abandonar?")));
    EXPECT_EQ(vistas, 3);
}

TEST_F(Mensagens, TheDeleteQuestionDefaultsToNo)
{
    NaCaixa([](QMessageBox *caixa) {
        ConferirCaixa(caixa, QMessageBox::Warning, "Excluir", "Excluir o registro?",
                      "O registro selecionado será excluído definitivamente.");
        EXPECT_EQ(caixa->defaultButton(), Botao(caixa, QStringLiteral("Não")));
        QTest::keyClick(caixa, Qt::Key_Return);
    });
    EXPECT_FALSE(PerguntaDeletar());
    NaCaixa([](QMessageBox *caixa) { QTest::keyClick(caixa, Qt::Key_Escape); });
    EXPECT_FALSE(PerguntaDeletar());
    NaCaixa([](QMessageBox *caixa) {
        QTest::mouseClick(Botao(caixa, QStringLiteral("Sim")), Qt::LeftButton);
    });
    EXPECT_TRUE(PerguntaDeletar());
    EXPECT_EQ(vistas, 3);
}

TEST_F(Mensagens, TheBoxBelongsToTheActiveWindowAndGivesTheFocusBack)
{
    QWidget janela;
    QLineEdit edit(&janela);
    janela.show();
    edit.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    NaCaixa([&](QMessageBox *caixa) {
        EXPECT_EQ(caixa->parentWidget(), &janela);
        QTest::keyClick(caixa, Qt::Key_Return);
    });
    MensagemAviso(QStringLiteral("texto"));
    EXPECT_EQ(vistas, 1);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    EXPECT_TRUE(edit.hasFocus());
}

TEST_F(Mensagens, ABoxWhoseWindowIsDestroyedAnswersNo)
{
    auto *janela = new QWidget;
    janela->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(janela));
    NaCaixa([&](QMessageBox *) { delete janela; });
    EXPECT_FALSE(Pergunta(QStringLiteral("Ainda?")));
    EXPECT_EQ(vistas, 1);
}

TEST_F(Mensagens, AHostsOwnServicesComeFirst)
{
    QStringList ouvidas;
    auto &s = Servicos();
    s.MensagemAviso = [&](const QString &t, int o) { ouvidas << t + QString::number(o); };
    s.MensagemErro = [&](const QString &t) { ouvidas << t; };
    s.MensagemInfo = [&](const QString &t) { ouvidas << t; };
    s.MensagemSimples = [&](const QString &t) { ouvidas << t; };
    s.Pergunta = [&](const QString &t) { return ouvidas << t, true; };
    s.PerguntaDeletar = [&] { return ouvidas << QStringLiteral("deletar"), true; };
    MensagemAviso(QStringLiteral("a\r\nb"), 7);
    MensagemErro(QStringLiteral("e"));
    MensagemInfo(QStringLiteral("i"));
    MensagemSimples(QStringLiteral("s"));
    EXPECT_TRUE(Pergunta(QStringLiteral("p")));
    EXPECT_TRUE(PerguntaDeletar());
    EXPECT_EQ(ouvidas,
              QStringList({QStringLiteral("a\r\nb7"), QStringLiteral("e"), QStringLiteral("i"),
                           QStringLiteral("s"), QStringLiteral("p"), QStringLiteral("deletar")}));
}

TEST_F(Mensagens, FromAnotherThreadTheTextIsOnlyLogged)
{
    bool resposta = true;
    QTest::ignoreMessage(QtWarningMsg, "ficha: Confirmação: de longe");
    QTest::ignoreMessage(QtWarningMsg, "ficha: Aviso: de longe");
    std::unique_ptr<QThread> fio(QThread::create([&] {
        MensagemAviso(QStringLiteral("de longe"));
        resposta = Pergunta(QStringLiteral("de longe"));
    }));
    fio->start();
    ASSERT_TRUE(fio->wait(5000));
    EXPECT_FALSE(resposta);
    EXPECT_TRUE(TodasAsCaixas().isEmpty());
}

namespace
{

void Falhar(const std::string &texto)
{
    ReportarErro(std::make_exception_ptr(std::runtime_error(texto)));
}

} // namespace

TEST_F(Mensagens, AnErrorNobodyCaughtIsShownWithTheEnginesWordsUnderDetails)
{
    ReportarErro(std::make_exception_ptr(
        EErro(QStringLiteral("O código já existe.\r\n\r\nviolation of PRIMARY\r\nor UNIQUE KEY"))));
    EXPECT_TRUE(TodasAsCaixas().isEmpty()) << "the failing code is left first";
    NaCaixa([](QMessageBox *caixa) {
        ConferirCaixa(caixa, QMessageBox::Critical, "Erro", "O código já existe.", "");
        EXPECT_EQ(caixa->detailedText(), QStringLiteral("violation of PRIMARY\nor UNIQUE KEY"));
        auto *detalhes = Botao(caixa, QStringLiteral("Detalhes"));
        ASSERT_NE(detalhes, nullptr);
        auto *texto = caixa->findChild<QTextEdit *>();
        ASSERT_NE(texto, nullptr);
        EXPECT_FALSE(texto->isVisible());
        QTest::mouseClick(detalhes, Qt::LeftButton);
        EXPECT_TRUE(texto->isVisible());
        EXPECT_NE(Botao(caixa, QStringLiteral("Ocultar detalhes")), nullptr);
        QTest::mouseClick(Botao(caixa, QStringLiteral("OK")), Qt::LeftButton);
    });
    EXPECT_TRUE(QTest::qWaitFor([this] { return vistas == 1 && TodasAsCaixas().isEmpty(); }));
}

TEST_F(Mensagens, TheSameErrorIsNotShownTwiceAtOnce)
{
    Falhar("o mesmo erro");
    Falhar("o mesmo erro");
    NaCaixa([](QMessageBox *caixa) {
        for (int i = 0; i < 100; ++i)
            Falhar("o mesmo erro");
        QTest::qWait(10);
        EXPECT_EQ(TodasAsCaixas().size(), 1);
        QTest::keyClick(caixa, Qt::Key_Return);
    });
    ASSERT_TRUE(QTest::qWaitFor([this] { return vistas == 1 && TodasAsCaixas().isEmpty(); }));
    QTest::qWait(10);
    ASSERT_TRUE(TodasAsCaixas().isEmpty());

    Falhar("o mesmo erro");
    NaCaixa([](QMessageBox *caixa) { QTest::keyClick(caixa, Qt::Key_Return); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return vistas == 2 && TodasAsCaixas().isEmpty(); }))
        << "shown again once the first box was closed";
}

TEST_F(Mensagens, AtMostThreeErrorBoxesStandOpen)
{
    for (int i = 0; i < 20; ++i)
        Falhar("erro " + std::to_string(i));
    int abertas = 0;
    QTimer::singleShot(30, qApp, [&] {
        abertas = int(TodasAsCaixas().size());
        while (auto *caixa = CaixaAberta()) {
            caixa->accept();
            if (CaixaAberta() == caixa)
                break;
        }
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return abertas > 0 && TodasAsCaixas().isEmpty(); }));
    EXPECT_EQ(abertas, 3);
}

TEST_F(Mensagens, AHostsErrorBoxServesTheErrorReportToo)
{
    QString ouvido;
    Servicos().MensagemErro = [&](const QString &t) { ouvido = t; };
    ReportarErro(std::make_exception_ptr(EErro(QStringLiteral("falhou"))));
    EXPECT_TRUE(QTest::qWaitFor([&] { return ouvido == QStringLiteral("falhou"); }));
}

TEST_F(Mensagens, AnErrorBoxThatFailsItselfIsOnlyLogged)
{
    bool chamada = false;
    Servicos().MensagemErro = [&](const QString &) {
        chamada = true;
        throw std::runtime_error("a caixa falhou");
    };
    Falhar("falhou");
    EXPECT_TRUE(QTest::qWaitFor([&] { return chamada; }));
    QTest::qWait(1);
}
