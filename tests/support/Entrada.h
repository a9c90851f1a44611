#pragma once

#include "base/UDBControlBasFr.h"
#include "platform/core/Servicos.h"
#include "platform/database/TSQLQuery.h"
#include "platform/support/Mensagens.h"
#include "records/UTabelaLinear.h"
#include "support/BancoTemp.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>

#include <optional>

#include <gtest/gtest.h>

namespace ficha::testes
{

/** A screen that starts alterations as a maintenance screen does, and counts the requests. */
class TTelaDeEntrada : public QWidget, public ITelaManutencao
{
public:
    bool AtivarAlteracao() override
    {
        ++pedidos;
        if (antesDeAtivar)
            antesDeAtivar();
        if (recusa) {
            MensagemAviso(QStringLiteral("ocupado"), 0);
            return false;
        }
        if (tabela->DataSet->IsEmpty())
            tabela->InsIni();
        else
            tabela->AltIni();
        return true;
    }
    TControlBasFr *GetChamador() const override { return nullptr; }
    void SetChamador(TControlBasFr *) override {}

    TTabelaLinear *tabela = nullptr;
    int pedidos = 0;
    bool recusa = false;
    std::function<void()> antesDeAtivar;
};

/**
 * One or more value frames between two plain edits on an active window, and a table to bind them
 * to. Warnings and error reports are recorded.
 */
class TEntradaTest : public testing::Test
{
protected:
    TEntradaTest()
    {
        Servicos().MensagemAviso = [this](const QString &texto, int opcao) {
            avisos << texto;
            EXPECT_EQ(opcao, 0);
            if (aoAvisar)
                aoAvisar();
        };
        Servicos().ReportarErro = [this](std::exception_ptr erro) { erros << TextoDoErro(erro); };
        antes->setObjectName(QStringLiteral("antes"));
        antes->move(10, 10);
    }
    void TearDown() override { EXPECT_EQ(erros, QStringList()); }

    /** A frame on the screen, after those before it in tab order. */
    template <typename T>
    T *Por()
    {
        auto *fr = Criar<T>(&tela);
        fr->move(10, 40);
        return fr;
    }

    /** Shows the screen, the focus in the edit before the frames. */
    void Mostrar()
    {
        depois = new QLineEdit(&tela);
        depois->setObjectName(QStringLiteral("depois"));
        depois->move(10, 250);
        tela.resize(450, 300);
        tela.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
        antes->setFocus();
        ASSERT_EQ(QApplication::focusWidget(), antes);
    }

    template <typename T>
    T *Mostrado()
    {
        T *fr = Por<T>();
        Mostrar();
        return fr;
    }

    /** Rows as the values of an insert: "1, 'um', 10.5, 7, 'A', 'texto'". */
    void AbrirTabela(const QStringList &linhas = {QStringLiteral("1, 'um', 10.5, 7, 'A', 'memo'")})
    {
        banco.emplace(QStringLiteral(
            "create table testes (testes_cod integer not null primary key, descr varchar(12000), "
            "num numeric(15,2), quant integer, letra char(1), obs blob sub_type text);"
            "create generator testes_cod_gen;"));
        for (const QString &linha : linhas)
            banco->Executar(QStringLiteral("insert into testes values (") + linha + u')');
        query.SetSQLConnection(&banco->Conexao());
        query.SetSQL(QStringLiteral("select * from testes order by testes_cod"));
        query.Open();
        tabela = Criar<TTabelaLinear>(&query, QStringLiteral("testes"));
        tela.tabela = tabela.get();
    }

    /** Binds a frame to a column and shows the first row. */
    TCampo *Prender(TDBControlBasFr *fr, const char *coluna, const QString &rotulo)
    {
        TField *campo = query.FieldByName(QString::fromLatin1(coluna));
        campo->SetDisplayLabel(rotulo);
        fr->SetFormTabela(&tela);
        TCampo *novo = nullptr;
        if (QByteArray(coluna) == "testes_cod") {
            novo = tabela->PegarCampoChave(campo, 50, fr);
        } else {
            if (tabela->Campos->Count() == 0)
                tabela->PegarCampoChave(query.FieldByName(QStringLiteral("testes_cod")));
            novo = tabela->PegarCampo(campo, 100, fr);
        }
        tabela->First();
        return novo;
    }

    /** Presses and releases the key of one character, accented ones too. */
    static void Teclar(QWidget *alvo, QChar c)
    {
        QTest::sendKeyEvent(QTest::Click, alvo, Qt::Key(c.toUpper().unicode()), QString(c),
                            Qt::NoModifier);
        QCoreApplication::processEvents();
    }
    static void Teclar(QWidget *alvo, Qt::Key tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
    {
        QTest::keyClick(alvo, tecla, com);
        QCoreApplication::processEvents();
    }
    static void Digitar(QWidget *alvo, const QString &texto)
    {
        for (const QChar c : texto)
            Teclar(alvo, c);
    }
    static void Colar(QWidget *alvo, const QString &texto)
    {
        QApplication::clipboard()->setText(texto);
        Teclar(alvo, Qt::Key_V, Qt::ControlModifier);
    }
    /** Drops a text of another program on a widget. */
    static void Soltar(QWidget *alvo, const QString &texto)
    {
        QMimeData dados;
        dados.setText(texto);
        QDragEnterEvent entra(QPoint(2, 5), Qt::CopyAction, &dados, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(alvo, &entra);
        QDragMoveEvent move(QPoint(2, 5), Qt::CopyAction, &dados, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(alvo, &move);
        QDropEvent solta(QPointF(2, 5), Qt::CopyAction, &dados, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(alvo, &solta);
        QCoreApplication::processEvents();
    }
    static QWidget *Foco() { return QApplication::focusWidget(); }

    /** Texts that have broken programs, and the blanks and letters of everyday. */
    static QStringList TextosHostis()
    {
        return {QStringLiteral("O'Brien"),
                QStringLiteral("'; drop table testes; --"),
                QStringLiteral("a;b -- c /* d */"),
                QStringLiteral("100% _ \\ \\' \" ` {0} %1 %s"),
                QStringLiteral("''"),
                QStringLiteral("ÁÉÍÓÚ çãõ ªº§ ÿ"),
                QString(10000, u'x'),
                QString(10000, u'\'')};
    }

    TServicosGuarda guarda;
    QStringList avisos;
    QStringList erros;
    /** Runs inside each warning, as the user sees it. */
    std::function<void()> aoAvisar;
    TTelaDeEntrada tela;
    QLineEdit *antes = new QLineEdit(&tela);
    QLineEdit *depois = nullptr;
    std::optional<TBancoTemp> banco;
    TSQLQuery query;
    std::unique_ptr<TTabelaLinear> tabela;
};

} // namespace ficha::testes
