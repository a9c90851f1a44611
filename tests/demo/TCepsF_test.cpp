#include "demo/UBancoComercial.h"
#include "demo/UCepsF.h"
#include "demo/UComercialF.h"
#include "forms/UFicha.h"
#include "platform/core/Servicos.h"
#include "platform/database/ConexD.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TStringGrid.h"
#include "support/BancoTemp.h"
#include "support/Girar.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include <gtest/gtest.h>

using namespace comercial;
using namespace ficha;
using namespace ficha::testes;

namespace
{

class TCepsFTest : public testing::Test
{
protected:
    TCepsFTest() : pasta(PastaDeBancos()), antes(ConexD().SQLConnection)
    {
        AbrirBancoComercial(conexao, pasta.filePath(QStringLiteral("comercial.fdb")));
        RegistrarPastaDeLayouts(QStringLiteral(":/demo/layouts"));
        Servicos().MensagemAviso = [this](const QString &texto, int) { avisos << texto; };
        Servicos().ReportarErro = [this](std::exception_ptr erro) { erros << TextoDoErro(erro); };
        Servicos().PerguntaDeletar = [] { return true; };
        janela.reset(Criar<TComercialF>(nullptr));
        janela->resize(900, 640);
        janela->Show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(janela.get()));
        EXPECT_TRUE(janela->AbrirTela(QStringLiteral("ceps")));
        Girar();
        tela = qobject_cast<TCepsF *>(janela->FilhoAtivo());
    }
    ~TCepsFTest() override
    {
        EXPECT_EQ(avisos, QStringList());
        EXPECT_EQ(erros, QStringList());
        tela = nullptr;
        janela.reset();
        ConexD().SQLConnection = antes;
    }

    QString Celula(int linha, int coluna) const
    {
        return tela->StringGrid1->GetCell(coluna, linha);
    }
    void Teclas(const QString &texto)
    {
        for (const QChar c : texto) {
            QTest::sendKeyEvent(QTest::Click, Teclado(), Qt::Key(c.toUpper().unicode()), c,
                                Qt::NoModifier);
            Girar();
        }
    }
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
    {
        QTest::keyClick(Teclado(), tecla, com);
        Girar();
    }
    static QWidget *Teclado()
    {
        QWidget *lista = QApplication::activePopupWidget();
        return lista && lista->focusWidget() ? lista->focusWidget() : QApplication::focusWidget();
    }
    int Numero(const char *sql)
    {
        return ValorDoBanco(conexao, QString::fromUtf8(sql)).AsInteger();
    }
    QString Texto(const char *sql)
    {
        return ValorDoBanco(conexao, QString::fromUtf8(sql)).AsString();
    }

    const TFicha biblioteca;
    TServicosGuarda guarda;
    QTemporaryDir pasta;
    TSQLConnection conexao;
    TSQLConnection *antes;
    QStringList avisos, erros;
    std::unique_ptr<TComercialF> janela;
    TCepsF *tela = nullptr;
};

} // namespace

TEST_F(TCepsFTest, TheStreetsOfTheDefaultMunicipioAreListed)
{
    ASSERT_TRUE(tela);
    EXPECT_EQ(tela->UFComboBox->GetText(), QStringLiteral("SP"));
    EXPECT_EQ(tela->MunComboBox->GetText(), QStringLiteral("São Paulo"));
    ASSERT_EQ(tela->SQLQuery1->RecordCount(), 2);
    EXPECT_EQ(Celula(1, 1), QStringLiteral("Praça"));
    EXPECT_EQ(Celula(1, 2), QStringLiteral("da República"));
    EXPECT_EQ(Celula(1, 3), QStringLiteral("01045-001"));
    EXPECT_EQ(Celula(1, 4), QStringLiteral("República"));
}

TEST_F(TCepsFTest, AnotherStateAndMunicipioListTheirStreets)
{
    ASSERT_TRUE(tela);
    tela->UFComboBox->setFocus();
    Teclas(QStringLiteral("a"));
    EXPECT_EQ(tela->UFComboBox->GetText(), QStringLiteral("AC"));
    EXPECT_EQ(tela->MunComboBox->GetText(), QStringLiteral("Rio Branco"));
    EXPECT_EQ(Celula(1, 2), QStringLiteral("da Ligação I"));
    for (int i = 0; i < 4; ++i)
        Tecla(Qt::Key_Down);
    EXPECT_EQ(tela->UFComboBox->GetText(), QStringLiteral("BA"));
    tela->MunComboBox->setFocus(Qt::TabFocusReason);
    Teclas(QStringLiteral("vit"));
    EXPECT_EQ(tela->MunComboBox->GetText(), QStringLiteral("Vitória da Conquista"));
    EXPECT_EQ(Celula(1, 2), QStringLiteral("Piauí"));
    EXPECT_EQ(tela->SQLQuery1->RecordCount(), 1);
}

TEST_F(TCepsFTest, AStreetIsInsertedAlteredAndDeletedWithRealKeys)
{
    ASSERT_TRUE(tela);
    tela->StringGrid1->setFocus();
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_FALSE(tela->MunComboBox->isEnabled()) << "no other list during an edit";
    Teclas(QStringLiteral("Vila"));
    Tecla(Qt::Key_Tab);
    Teclas(QStringLiteral("Rua"));
    Tecla(Qt::Key_Tab);
    Teclas(QStringLiteral("Álvares d'Além"));
    Tecla(Qt::Key_Tab);
    Teclas(QStringLiteral("04144071"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_TRUE(tela->MunComboBox->isEnabled());
    EXPECT_EQ(Numero("select logr_cod from cep_logr where cep='04144071'"), 42)
        << "the code after the highest one";
    EXPECT_EQ(Texto("select l.tipologr_cod || ' ' || l.nome || ', ' || b.nome from cep_logr l join "
                    "cep_bai b on b.bai_cod = l.bai_cod where l.logr_cod = 42"),
              QStringLiteral("R Álvares d'Além, Vila da Saúde"));
    auto *nome = tela->findChild<TLabeledEditTextoBasFr *>(QStringLiteral("NomeFr"));
    nome->SetFocus();
    nome->LabeledEdit1->selectAll();
    Teclas(QStringLiteral("Nova"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Texto("select nome from cep_logr where logr_cod = 42"), QStringLiteral("Nova"));
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(Numero("select count(*) from cep_logr where logr_cod = 42"), 0);
    EXPECT_EQ(tela->SQLQuery1->RecordCount(), 2);
    if (const QString foto = qEnvironmentVariable("FICHA_RETRATOS"); !foto.isEmpty()) {
        janela->grab().save(foto + QStringLiteral("/ceps-lista.png"));
        Tecla(Qt::Key_Tab, Qt::ControlModifier);
        janela->grab().save(foto + QStringLiteral("/ceps-campos.png"));
    }
}
