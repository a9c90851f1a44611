#pragma once

#include "forms/UFicha.h"
#include "forms/UTabLinearBasF.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/ULabeledEditCodBasFr.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "input/UNumEditBRCodBasFr.h"
#include "platform/core/Servicos.h"
#include "platform/database/ConexD.h"
#include "platform/database/EDatabaseError.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/hostforms/TMdiArea.h"
#include "platform/toolkit/Ocioso.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TPageControl.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"
#include "support/BancoTemp.h"

#include <QLabel>
#include <QMdiSubWindow>

#include <gtest/gtest.h>

namespace ficha::testes
{

inline const QString EsquemaDeTeste = QStringLiteral(
    "create table tipos (tipos_cod integer not null primary key, nome varchar(20));"
    "create generator tipos_cod_gen;"
    "create table grupos (grupos_cod integer not null primary key, descr varchar(10), "
    "tipos_cod integer references tipos);"
    "create unique index grupos_descr on grupos(descr);"
    "create generator grupos_cod_gen;"
    "create table itens (itens_cod integer not null primary key, grupos_cod integer not null "
    "references grupos);");

/** The shortest screen: a code and a name. */
class TTiposF : public TTabLinearBasF
{
    Q_OBJECT

public:
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("Tipos"); }

    TNumEditBRCodBasFr *CodFr = nullptr;
    TLabeledEditTextoBasFr *NomeFr = nullptr;

protected:
    void FormCreate(QObject *sender) override
    {
        CodFr = Criar<TNumEditBRCodBasFr>(CamposTabSheet);
        CodFr->move(16, 16);
        NomeFr = Criar<TLabeledEditTextoBasFr>(CamposTabSheet);
        NomeFr->move(16, 72);
        NomeFr->Tag = 1;
        SetCaption(QStringLiteral("Cadastro de tipos"));
        SetSQLText(QStringLiteral("select * from tipos order by tipos_cod"));
        TTabLinearBasF::FormCreate(sender);
    }
    void PrepararTab() override
    {
        Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("tipos"));
        Tab->PegarCampoChave(SQLQuery1->FieldByName("tipos_cod"), 60, CodFr);
        Tab->PegarCampo(SQLQuery1->FieldByName("nome"), 200, NomeFr);
    }
    void AntesInserir() override
    {
        SQLInserir = QStringLiteral("insert into tipos values (") + StringProxCod() + u',' +
                     NomeFr->SQLString() + u')';
        SQLUltimoInserido = QStringLiteral("select max(tipos_cod) from tipos");
    }
    void AntesAlterar() override
    {
        SQLAlterar = QStringLiteral("update tipos set nome=") + NomeFr->SQLString();
    }
};

/** A code, a description that must not repeat, and a type chosen from another screen. Everything
 * protected that the tests look at is public here. */
class TGruposF : public TTabLinearBasF
{
    Q_OBJECT

public:
    using TTabLinearBasF::CamposTabSheetEnter;
    using TTabLinearBasF::ConfirmActionExecute;
    using TTabLinearBasF::ExclActionExecute;
    using TTabLinearBasF::PrimeiroErrado;
    using TTabLinearBasF::TemEditCod;
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("Grupos"); }

    void AntesInserir() override
    {
        ganchos << QStringLiteral("AntesInserir");
        SQLInserir = QStringLiteral("insert into grupos values (") + StringProxCod() + u',' +
                     DescrFr->SQLString() + u',' + TipoOuNulo() + u')';
        if (comUltimo)
            SQLUltimoInserido =
                QStringLiteral("select grupos_cod from grupos where descr=") + DescrFr->SQLString();
    }
    void AntesAlterar() override
    {
        ganchos << QStringLiteral("AntesAlterar");
        SQLAlterar = QStringLiteral("update grupos set descr=") + DescrFr->SQLString() +
                     QStringLiteral(", tipos_cod=") + TipoOuNulo();
    }
    void AntesExcluir() override { ganchos << QStringLiteral("AntesExcluir"); }
    void AposInserir() override
    {
        ganchos << QStringLiteral("AposInserir");
        if (aoAposInserir)
            aoAposInserir();
    }
    void AposAlterar() override { ganchos << QStringLiteral("AposAlterar"); }
    void AposExcluir() override { ganchos << QStringLiteral("AposExcluir"); }
    bool PodeExcluir() override { return podeExcluir; }
    void PreencherStringGrid() override
    {
        ++enchimentos;
        TTabLinearBasF::PreencherStringGrid();
    }
    void Reler(int cod) override
    {
        ++releituras;
        TTabLinearBasF::Reler(cod);
    }

    QLineEdit *Descr() const { return DescrFr->LabeledEdit1; }
    QString Codigo() const { return CodFr->NumEditBR1->text(); }

    TNumEditBRCodBasFr *CodFr = nullptr;
    TLabeledEditTextoBasFr *DescrFr = nullptr;
    TComboBoxCodBasFr *TipoFr = nullptr;
    TAction *AbrirTipos = nullptr;
    QStringList ganchos;
    std::function<void()> aoAposInserir;
    bool comUltimo = true;
    bool podeExcluir = true;
    int releituras = 0;
    int enchimentos = 0;

protected:
    void FormCreate(QObject *sender) override
    {
        CodFr = Criar<TNumEditBRCodBasFr>(CamposTabSheet);
        CodFr->move(16, 16);
        CodFr->NumEditBR1->EditLabel->setText(QStringLiteral("Código"));
        DescrFr = Criar<TLabeledEditTextoBasFr>(CamposTabSheet);
        DescrFr->move(16, 72);
        DescrFr->LabeledEdit1->SetCaption(QStringLiteral("Descrição"));
        DescrFr->Tag = 1;
        DescrFr->AceitaVazio = false;
        DescrFr->NaoRepetir = true;
        TipoFr = Criar<TComboBoxCodBasFr>(CamposTabSheet);
        TipoFr->move(16, 130);
        TipoFr->SetTitulo(QStringLiteral("Tipo"));
        TipoFr->AceitaVazio = true;
        AbrirTipos = new TAction(ActionList1);
        TipoFr->SelecionarAction = AbrirTipos;
        TipoFr->NomeFormSelecionar = QStringLiteral("TiposF");
        SetCaption(QStringLiteral("Cadastro de grupos"));
        SetSQLText(QStringLiteral("select * from grupos order by grupos_cod"));
        TTabLinearBasF::FormCreate(sender);
        TipoFr->SetSQLText(QStringLiteral("select tipos_cod, nome from tipos order by nome"));
    }
    void PrepararTab() override
    {
        SQLQuery1->FieldByName("grupos_cod")->SetDisplayLabel(QStringLiteral("Código"));
        SQLQuery1->FieldByName("descr")->SetDisplayLabel(QStringLiteral("Descrição"));
        Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("grupos"));
        Tab->PegarCampoChave(SQLQuery1->FieldByName("grupos_cod"), 60, CodFr);
        Tab->PegarCampo(SQLQuery1->FieldByName("descr"), 200, DescrFr);
        Tab->PegarCampo(SQLQuery1->FieldByName("tipos_cod"), 60, TipoFr);
    }

private:
    QString TipoOuNulo() const
    {
        return TipoFr->GetValor() == Variant(0) ? QStringLiteral("null") : TipoFr->SQLString();
    }
};

/** A database with a few groups, the library, an MDI window, recorded messages and errors. */
class TTelasTest : public testing::Test
{
protected:
    TTelasTest()
    {
        Servicos().MensagemAviso = [this](const QString &texto, int) {
            avisos << texto;
            Chamar(aoAvisar);
        };
        Servicos().Pergunta = [this](const QString &texto) {
            perguntas << texto;
            Chamar(aoPerguntar);
            return responde;
        };
        Servicos().PerguntaDeletar = [this] {
            perguntas << QStringLiteral("(excluir)");
            Chamar(aoPerguntar);
            return responde;
        };
        Servicos().ReportarErro = [this](std::exception_ptr erro) { erros << TextoDoErro(erro); };
    }
    ~TTelasTest() override { Servicos().ReportarErro = {}; }

    void TearDown() override
    {
        EXPECT_EQ(erros, QStringList());
        EXPECT_EQ(avisos, QStringList());
    }

    void Inserir(int cod, const QString &descr)
    {
        banco.Executar(
            QStringLiteral("insert into grupos values (%1, '%2', null)").arg(cod).arg(descr));
    }
    /** Codes 1, 2, 3: azul, verde, lilas. */
    void TresGrupos()
    {
        Inserir(1, QStringLiteral("azul"));
        Inserir(2, QStringLiteral("verde"));
        Inserir(3, QStringLiteral("lilas"));
    }
    QString DescrNoBanco(int cod)
    {
        return banco.Valor(QStringLiteral("select descr from grupos where grupos_cod=%1").arg(cod))
            .AsString();
    }
    int Quantos(const QString &tabela = QStringLiteral("grupos"))
    {
        return banco.Valor(QStringLiteral("select count(*) from ") + tabela).AsInteger();
    }

    /** A screen in the MDI window, shown and active. */
    template <typename T = TGruposF>
    T *Abrir()
    {
        if (!janela.isVisible()) {
            janela.resize(900, 640);
            janela.show();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&janela));
        }
        auto *tela = Criar<T>(nullptr);
        janela.addSubWindow(tela);
        tela->Show();
        Ocioso();
        return tela;
    }
    /** Lets the program fall idle, so that the enabling rules are applied. */
    void Ocioso()
    {
        QCoreApplication::processEvents();
        ExecutarOcioso();
        QCoreApplication::processEvents();
    }
    /** Events that were put off (deleteLater included). */
    void Assentar()
    {
        Ocioso();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Ocioso();
    }
    /** A real key press where the focus is. */
    void Tecla(int tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
    {
        QWidget *foco = QApplication::focusWidget();
        ASSERT_TRUE(foco);
        QTest::keyClick(foco, Qt::Key(tecla), com);
        Ocioso();
    }
    void Digitar(const QString &texto)
    {
        QWidget *foco = QApplication::focusWidget();
        ASSERT_TRUE(foco);
        QTest::keyClicks(foco, texto);
        Ocioso();
    }
    static QWidget *Foco() { return QApplication::focusWidget(); }

    /** Erased by the test that expects them. */
    QStringList avisos, perguntas, erros;
    bool responde = true;
    std::function<void()> aoAvisar, aoPerguntar;

    TServicosGuarda servicos;
    TBancoTemp banco{EsquemaDeTeste};
    TFicha biblioteca;
    TMdiArea janela;

private:
    static void Chamar(const std::function<void()> &f)
    {
        if (f) {
            const auto copia = f;
            copia();
        }
    }
};

} // namespace ficha::testes
