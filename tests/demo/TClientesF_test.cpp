#include "demo/UClientesF.h"

#include "demo/UBancoComercial.h"
#include "demo/UComercialF.h"
#include "forms/UFicha.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "platform/core/Servicos.h"
#include "platform/database/ConexD.h"
#include "platform/edits/TCNPJEditBR.h"
#include "platform/edits/TCPFEditBR.h"
#include "platform/edits/TFoneEditBR.h"
#include "platform/edits/TMaskEditBR.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/support/BancoApoio.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/Ocioso.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TMemo.h"
#include "platform/toolkit/TPageControl.h"
#include "platform/toolkit/TRadioGroup.h"
#include "platform/toolkit/TScrollBox.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"
#include "support/BancoTemp.h"
#include "support/Girar.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QRadioButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

using namespace comercial;
using namespace ficha;

namespace
{

/** The sample database, made once for all tests. */
const QString &Modelo()
{
    static const QTemporaryDir pasta(PastaDeBancos());
    static const QString arquivo = [] {
        const QString nome = pasta.filePath(QStringLiteral("modelo.fdb"));
        TSQLConnection conexao;
        AbrirBancoComercial(conexao, nome);
        ConexD().SQLConnection = nullptr;
        return nome;
    }();
    return arquivo;
}

/** The clients' screen in the program's main window, on a copy of the sample database. */
class TClientesFTest : public testing::Test
{
protected:
    TClientesFTest() : pasta(PastaDeBancos())
    {
        const QString arquivo = pasta.filePath(QStringLiteral("comercial.fdb"));
        QFile::copy(Modelo(), arquivo);
        AbrirBancoComercial(conexao, arquivo);
        Servicos().MensagemAviso = [this](const QString &texto, int) { avisos << texto; };
        Servicos().MensagemErro = [this](const QString &texto) { avisos << texto; };
        Servicos().ReportarErro = [this](std::exception_ptr e) { avisos << TextoDoErro(e); };
        Servicos().Pergunta = [this](const QString &texto) {
            perguntas << texto;
            return responde;
        };
        RegistrarPastaDeLayouts(QStringLiteral(":/demo/layouts"));
        janela.reset(Criar<TComercialF>(nullptr));
        janela->resize(1000, 760);
        janela->Show();
    }
    ~TClientesFTest() override
    {
        responde = true;
        janela->FecharFilhos();
        testes::Girar();
        janela.reset();
        ConexD().SQLConnection = nullptr;
    }
    void TearDown() override { EXPECT_EQ(avisos, QStringList()); }

    void Abrir()
    {
        ASSERT_TRUE(QTest::qWaitForWindowActive(janela.get()));
        tela = janela->Abrir<TClientesF>();
        Assentar();
    }
    /** On the fields page of the client with this code. */
    void AbrirEm(int codigo)
    {
        Abrir();
        tela->Reler(codigo);
        tela->PageControl1->MudarComoUsuario(1);
        Assentar();
    }
    static void Assentar()
    {
        testes::Girar();
        ExecutarOcioso();
    }
    template <typename T>
    T *Frame(const char *nome) const
    {
        return tela->findChild<T *>(QString::fromLatin1(nome));
    }
    /** Where a person's keys would go: offscreen, a list that closes leaves no window active. */
    QWidget *Alvo() const
    {
        QWidget *foco = QApplication::focusWidget();
        return foco ? foco : janela->focusWidget();
    }
    void Tecla(int tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
    {
        QTest::keyClick(Alvo(), Qt::Key(tecla), com);
        Assentar();
    }
    void Digitar(const QString &texto)
    {
        for (const QChar letra : texto)
            QTest::sendKeyEvent(QTest::Click, Alvo(), Qt::Key(letra.toUpper().unicode()), letra,
                                Qt::NoModifier);
        Assentar();
    }
    /** Clicks into an input and types over what it holds. */
    void DigitarEm(QWidget *entrada, const QString &texto)
    {
        QTest::mouseClick(entrada, Qt::LeftButton);
        Tecla(Qt::Key_Home);
        Tecla(Qt::Key_End, Qt::ShiftModifier);
        Digitar(texto);
    }
    QString Coluna(const char *coluna, int codigo)
    {
        return ValorDoBanco(conexao,
                            QStringLiteral("select coalesce(cast(%1 as varchar(500)), '(nulo)') "
                                           "from clientes where clientes_cod=%2")
                                .arg(QString::fromLatin1(coluna))
                                .arg(codigo))
            .AsString();
    }
    int Quantos(const QString &onde = QStringLiteral("1=1"))
    {
        return ValorDoBanco(conexao, QStringLiteral("select count(*) from clientes where ") + onde)
            .AsInteger();
    }
    int NaLista() const { return tela->SQLQuery1->RecordCount(); }
    QString Status() const { return tela->FiltroStatusLabel->text(); }
    /** Ticks a criterion's box with the space bar and goes into its input. */
    void LigarCriterio(const char *criterio)
    {
        auto *caixa =
            Frame<QWidget>(criterio)->findChild<TCheckBox *>(QStringLiteral("AtivoCheckBox"));
        caixa->setFocus();
        Tecla(Qt::Key_Space);
        ASSERT_TRUE(caixa->isChecked());
        Tecla(Qt::Key_Tab);
    }
    /** Ticks the group, types its name and presses Enter. */
    void FiltrarGrupo(const QString &nome)
    {
        LigarCriterio("FiltroGrupoFr");
        Digitar(nome);
        Tecla(Qt::Key_Return);
    }
    QString NomeMostrado() const
    {
        return Frame<TNomeBasFr>("NomeFr")->NomeLabeledEditTextoBasFr->AsString();
    }
    /** Every input of the screen, as it stands. */
    QStringList Entradas() const
    {
        QStringList textos;
        for (const QWidget *w : tela->CamposTabSheet->findChildren<QWidget *>()) {
            if (const auto *edit = qobject_cast<const TCustomEdit *>(w))
                textos << edit->objectName() + u'=' + edit->GetText();
            else if (const auto *lista = qobject_cast<const TComboBox *>(w))
                textos << lista->objectName() + u'=' + lista->GetText();
            else if (const auto *caixa = qobject_cast<const TCheckBox *>(w))
                textos << caixa->objectName() + u'=' + QString::number(caixa->isChecked());
            else if (const auto *memo = qobject_cast<const TMemo *>(w))
                textos << memo->objectName() + u'=' + memo->GetText();
        }
        textos << QString::number(Frame<TRadioGroup>("RadioGroup1")->GetItemIndex())
               << Frame<TImgBasFr>("FotoFr")->ArquivoImagem;
        return textos;
    }

    QTemporaryDir pasta;
    TSQLConnection conexao;
    TServicosGuarda servicos;
    const TFicha biblioteca;
    std::unique_ptr<TComercialF> janela;
    TClientesF *tela = nullptr;
    QStringList avisos, perguntas;
    bool responde = true;
};

/** An input of one of the composite frames, and something to type into it. */
struct TEntrada {
    const char *frame;
    const char *entrada;
    const char *texto;
    const char *coluna;
    const char *gravado;
};

void PrintTo(const TEntrada &entrada, std::ostream *em)
{
    *em << entrada.coluna;
}

class TEntradasDoClienteTest : public TClientesFTest, public testing::WithParamInterface<TEntrada>
{
protected:
    QWidget *Entrada() const
    {
        QWidget *fr = Frame<QWidget>(GetParam().frame);
        QWidget *dentro = fr;
        for (const QByteArray &nome : QByteArray(GetParam().entrada).split('.'))
            dentro = dentro->findChild<QWidget *>(QString::fromLatin1(nome));
        return dentro;
    }
};

TEST_P(TEntradasDoClienteTest, TypingStartsAnAlterationThatIsStored)
{
    AbrirEm(1);
    ASSERT_EQ(tela->Tab->Status, TStatus::Ocioso);
    DigitarEm(Entrada(), QString::fromUtf8(GetParam().texto));
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Coluna(GetParam().coluna, 1), QString::fromUtf8(GetParam().gravado));
}

TEST_P(TEntradasDoClienteTest, CancellingShowsWhatIsStored)
{
    AbrirEm(1);
    const QStringList antes = Entradas();
    const QString gravado = Coluna(GetParam().coluna, 1);
    DigitarEm(Entrada(), QString::fromUtf8(GetParam().texto));
    EXPECT_NE(Entradas(), antes);
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Entradas(), antes);
    EXPECT_EQ(Coluna(GetParam().coluna, 1), gravado);
}

const TEntrada EntradasDoCliente[] = {
    {"NomeFr", "NomeLabeledEditTextoBasFr.LabeledEdit1", "José da Conceição", "nome",
     "José da Conceição"},
    {"NomeFr", "MenorEditTextoBasFr.LabeledEdit1", "Zé", "nome_menor", "Zé"},
    {"CPFFr", "CPFEditBR1", "52998224725", "cpf", "52998224725"},
    {"DocFr", "ILabeledEditTextoBasFr.LabeledEdit1", "12.345-X", "doc_i", "12.345-X"},
    {"DocFr", "MLabeledEditTextoBasFr.LabeledEdit1", "SSP/SP", "doc_m", "SSP/SP"},
    {"NascimentoFr", "MaskEdit1", "010180", "nascimento", "1980-01-01"},
    {"EnderecoFr", "NumLabeledEdit", "99a", "num", "99A"},
    {"EnderecoFr", "ComplLabeledEdit", "loja", "compl", "LOJA"},
    {"EnderecoFr", "BaiComboBox", "qualquer", "bai", "QUALQUER"},
    {"EnderecoFr", "LogrComboBox", "rua sem guia", "logr", "RUA SEM GUIA"},
    {"ContatoFr", "DDDMaskEditBR", "21", "ddd", "21"},
    {"ContatoFr", "Fone1EditBR", "32145678", "fone1", "3214-5678"},
    {"ContatoFr", "Fone2EditBR", "987654321", "fone2", "98765-4321"},
    {"ContatoFr", "FaxEditBR", "32145679", "fax", "3214-5679"},
    {"ContatoFr", "EMailLabeledEdit", "a@exemplo.com.br", "email", "a@exemplo.com.br"},
    {"ContatoFr", "PaginaLabeledEdit", "exemplo.com.br", "pagina", "exemplo.com.br"},
    {"NotasFr", "Memo1", "Telefonar antes", "notas", "Telefonar antes"},
    {"LimiteFr", "NumEditBR1", "1234,56", "limite", "1234.56"},
};

TEST_P(TEntradasDoClienteTest, TypingIntoALockedClientIsToldAndTakenBack)
{
    AbrirEm(1);
    const QStringList antes = Entradas();
    ASSERT_TRUE(GarantiaTentar(QStringLiteral("clientes"), QStringLiteral("1"),
                               QStringLiteral(" where clientes_cod=1")));
    DigitarEm(Entrada(), QStringLiteral("7"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    Assentar();
    EXPECT_EQ(Entradas(), antes);
    GarantiaLiberar(QStringLiteral("clientes"), QStringLiteral("1"));
}

INSTANTIATE_TEST_SUITE_P(Entradas, TEntradasDoClienteTest, testing::ValuesIn(EntradasDoCliente),
                         [](const auto &e) { return std::string(e.param.coluna); });

} // namespace

TEST_F(TClientesFTest, TheListShowsCodeNameDocumentTownTelephoneLimitAndRegistration)
{
    Abrir();
    tela->Reler(2);
    Assentar();
    TStringGrid *lista = tela->StringGrid1;
    QStringList titulos;
    QStringList linha;
    for (int c = 0; c < lista->GetColCount(); ++c) {
        titulos << lista->GetCell(c, 0);
        linha << lista->GetCell(c, tela->Tab->RecNo);
    }
    EXPECT_EQ(titulos, (QStringList{QStringLiteral("Código"), QStringLiteral("Nome"),
                                    QStringLiteral("Documento"), QStringLiteral("Cidade/UF"),
                                    QStringLiteral("Telefone"), QStringLiteral("Limite (R$)"),
                                    QStringLiteral("Cadastro")}));
    EXPECT_EQ(linha[0], QStringLiteral("2"));
    EXPECT_EQ(linha[2].size(), 18) << linha[2].toStdString();
    EXPECT_EQ(linha[3], Coluna("mun || '/' || uf", 2));
    EXPECT_EQ(linha[4], Coluna("'(' || ddd || ') ' || fone1", 2));
    conexao.Executar(QStringLiteral(
        "update clientes set limite=1234.5, cadastro=date '2024-03-05' where clientes_cod=2"));
    tela->Reler(2);
    Assentar();
    EXPECT_EQ(lista->GetCell(5, tela->Tab->RecNo), QStringLiteral("1.234,50"));
    EXPECT_EQ(lista->GetCell(6, tela->Tab->RecNo), QStringLiteral("05/03/2024"));
}

TEST_F(TClientesFTest, APersonIsInsertedWithKeysAloneAndFoundAgain)
{
    Abrir();
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    ASSERT_EQ(tela->Tab->Status, TStatus::Inserindo);
    Digitar(QStringLiteral("Inês Araújo"));
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Frame<TNomeBasFr>("NomeFr")->MenorEditTextoBasFr->AsString(),
              QStringLiteral("Inês Araújo"))
        << "the short name is proposed";
    Digitar(QStringLiteral("Inês"));
    QTest::mouseClick(Frame<TCPFEditBR>("CPFEditBR1"), Qt::LeftButton);
    Digitar(QStringLiteral("52998224725"));
    EXPECT_EQ(Frame<TDocBasFr>("DocFr")->CLabeledEditTextoBasFr->AsString(),
              QStringLiteral("529.982.247-25"));
    QTest::mouseClick(Frame<TDataBasFr>("NascimentoFr")->MaskEdit1, Qt::LeftButton);
    Digitar(QStringLiteral("090378"));
    QTest::mouseClick(Frame<TMaskEdit>("CEPMaskEdit"), Qt::LeftButton);
    Digitar(QStringLiteral("11085005"));
    Tecla(Qt::Key_Tab);
    const QWidget *numero = Frame<QWidget>("NumLabeledEdit");
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == numero; }))
        << "the CEP has filled the rest";
    Digitar(QStringLiteral("42"));
    Tecla(Qt::Key_Return);
    Digitar(QStringLiteral("casa 2"));
    QTest::mouseClick(Frame<TMaskEditBR>("DDDMaskEditBR"), Qt::LeftButton);
    EXPECT_EQ(Frame<TMaskEditBR>("DDDMaskEditBR")->GetText(), SisD().DDDPadrao);
    Tecla(Qt::Key_Home);
    Digitar(QStringLiteral("13"));
    Digitar(QStringLiteral("987654321"));
    Digitar(QStringLiteral("32145678"));
    Tecla(Qt::Key_Return);
    Digitar(QStringLiteral("ines@exemplo.com.br"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->CodUltimoInserido, 321);
    EXPECT_EQ(tela->Tab->Campos->Campos(0)->AsInteger(), 321) << "the new client is current";
    EXPECT_EQ(Coluna("nome || ';' || nome_menor || ';' || tipo_pess || ';' || cpf || ';' || "
                     "coalesce(cnpj, '-') || ';' || doc_c || ';' || nascimento",
                     321),
              QStringLiteral("Inês Araújo;Inês;0;52998224725;-;529.982.247-25;1978-03-09"));
    EXPECT_EQ(Coluna("cep || ';' || uf || ';' || mun || ';' || bai || ';' || logr || ';' || num "
                     "|| ';' || compl",
                     321),
              QStringLiteral("11085005;SP;SANTOS;SABOÓ;RUA BRIGADEIRO NEWTON BRAGA;42;CASA 2"));
    EXPECT_EQ(Coluna("ddd || ';' || fone1 || ';' || fone2 || ';' || fax || ';' || email", 321),
              QStringLiteral("13;98765-4321;3214-5678;;ines@exemplo.com.br"));
    EXPECT_EQ(Coluna("grupos_cod", 321), QStringLiteral("(nulo)"));
}

TEST_F(TClientesFTest, ANewClientStartsWithTheHostsDefaultsAndACancelBringsTheOldOneBack)
{
    AbrirEm(2);
    const QStringList antes = Entradas();
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    auto *endereco = Frame<TEnderecoBasFr>("EnderecoFr");
    EXPECT_EQ(endereco->UFComboBox->GetText(), QStringLiteral("SP"));
    EXPECT_EQ(endereco->MunComboBox->GetText(), QStringLiteral("SÃO PAULO"));
    EXPECT_EQ(endereco->LogrComboBox->GetText(), QString());
    EXPECT_EQ(endereco->EstadoDataSet, int(dsInsert));
    EXPECT_EQ(Frame<TMaskEditBR>("DDDMaskEditBR")->GetText(), QStringLiteral("11"));
    EXPECT_EQ(Frame<TDataBasFr>("NascimentoFr")->MaskEdit1->GetText(), QString());
    EXPECT_EQ(Frame<TRadioGroup>("RadioGroup1")->GetItemIndex(), 0);
    Digitar(QStringLiteral("Alguém"));
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Entradas(), antes);
    EXPECT_EQ(endereco->EstadoDataSet, int(dsBrowse));
    EXPECT_EQ(Quantos(), 320);
}

TEST_F(TClientesFTest, AnEmptyTableStaysIdleUntilTheUserInserts)
{
    conexao.Executar(QStringLiteral("delete from clientes where clientes_cod > 1"));
    AbrirEm(1);
    Servicos().PerguntaDeletar = [] { return true; };
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(Quantos(), 0);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso) << "the last one was deleted";
    tela->Close();
    Assentar();
    Abrir();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("Alguém"));
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Frame<TNomeBasFr>("NomeFr")->NomeLabeledEditTextoBasFr->AsString(), QString());
}

TEST_F(TClientesFTest, TheKindOfPersonDecidesWhichNumberIsAskedFor)
{
    AbrirEm(1);
    auto *cpf = Frame<TCPFEditBRBasFr>("CPFFr");
    auto *cnpj = Frame<TCNPJEditBRBasFr>("CNPJFr");
    auto *doc = Frame<TDocBasFr>("DocFr");
    EXPECT_TRUE(cpf->isVisible());
    EXPECT_FALSE(cnpj->isVisible());
    EXPECT_EQ(doc->GetTipoPess(), 0);
    const QString antes = cpf->AsString();
    EXPECT_EQ(doc->CLabeledEditTextoBasFr->AsString(), antes);
    QTest::mouseClick(Frame<TRadioGroup>("RadioGroup1")->Botao(1), Qt::LeftButton);
    Assentar();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_FALSE(cpf->isVisible());
    EXPECT_TRUE(cnpj->isVisible());
    EXPECT_EQ(doc->GetTipoPess(), 1);
    EXPECT_EQ(doc->CLabeledEditTextoBasFr->AsString(), QString());
    DigitarEm(cnpj->CNPJEditBR1, QStringLiteral("12abc345000188"));
    EXPECT_EQ(doc->CLabeledEditTextoBasFr->AsString(), QStringLiteral("12.ABC.345/0001-88"));
    QTest::mouseClick(Frame<TRadioGroup>("RadioGroup1")->Botao(0), Qt::LeftButton);
    Assentar();
    EXPECT_EQ(cpf->AsString(), antes) << "what was there is not lost on the way";
    QTest::mouseClick(Frame<TRadioGroup>("RadioGroup1")->Botao(1), Qt::LeftButton);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Coluna("tipo_pess", 1), QStringLiteral("1"));
    EXPECT_EQ(Coluna("cpf", 1), QStringLiteral("(nulo)")) << "only the shown number is kept";
    EXPECT_EQ(Coluna("cnpj", 1), QStringLiteral("12ABC345000188"));
    EXPECT_EQ(Coluna("doc_c", 1), QStringLiteral("12.ABC.345/0001-88"));
}

TEST_F(TClientesFTest, WalkingThroughTheClientsShowsEachWithItsOwnDocumentsAndStartsNothing)
{
    AbrirEm(1);
    for (const int codigo : {2, 1, 5, 3, 4}) {
        tela->Reler(codigo);
        Assentar();
        EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
        const auto *doc = Frame<TDocBasFr>("DocFr");
        EXPECT_EQ(doc->CLabeledEditTextoBasFr->AsString(), Coluna("doc_c", codigo));
        EXPECT_EQ(QString::number(doc->GetTipoPess()), Coluna("tipo_pess", codigo));
        EXPECT_EQ(Frame<TComboBox>("LogrComboBox")->GetText(), Coluna("logr", codigo));
        EXPECT_EQ(Frame<TDataBasFr>("NascimentoFr")->GetAsDate().Data(),
                  QDate::fromString(Coluna("nascimento", codigo), Qt::ISODate));
    }
    EXPECT_EQ(perguntas, QStringList());
}

TEST_F(TClientesFTest, ABirthDateThatDoesNotExistKeepsTheAlterationOpen)
{
    AbrirEm(1);
    auto *data = Frame<TDataBasFr>("NascimentoFr");
    const QString antes = Coluna("nascimento", 1);
    DigitarEm(data->MaskEdit1, QStringLiteral("310299"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(avisos, QStringList(QStringLiteral(
                          "A data não existe.\r\nCorrija-a ou deixe o campo em branco.")));
    avisos.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(QApplication::focusWidget(), data->MaskEdit1);
    EXPECT_EQ(data->MaskEdit1->GetText(), QStringLiteral("31021999")) << "as typed";
    EXPECT_EQ(Coluna("nascimento", 1), antes);
    Tecla(Qt::Key_Home);
    Tecla(Qt::Key_End, Qt::ShiftModifier);
    Tecla(Qt::Key_Delete);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Coluna("nascimento", 1), QStringLiteral("(nulo)"));
}

TEST_F(TClientesFTest, ACpfThatSomebodyElseHasLeavesEverythingAsTyped)
{
    Abrir();
    const QString repetido = Coluna("cpf", 1);
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("Repetida"));
    DigitarEm(Frame<TCPFEditBR>("CPFEditBR1"), repetido);
    DigitarEm(Frame<QWidget>("NumLabeledEdit"), QStringLiteral("77"));
    DigitarEm(Frame<QWidget>("EMailLabeledEdit"), QStringLiteral("r@exemplo.com.br"));
    const QStringList digitado = Entradas();
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(avisos.size(), 1);
    EXPECT_TRUE(avisos[0].contains(QStringLiteral("UK_CLIENTES_CPF"))) << avisos[0].toStdString();
    avisos.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(Entradas(), digitado);
    EXPECT_EQ(Quantos(), 320);
    DigitarEm(Frame<TCPFEditBR>("CPFEditBR1"), QStringLiteral("52998224725"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Coluna("num || email", 321), QStringLiteral("77r@exemplo.com.br"));
}

TEST_F(TClientesFTest, TheListsOfTheAddressAreThoseOfTheClientShown)
{
    AbrirEm(1);
    auto *endereco = Frame<TEnderecoBasFr>("EnderecoFr");
    for (const int codigo : {1, 7, 8}) { // AC, SP, SP in Santos and São Paulo, MG
        tela->Reler(codigo);
        Assentar();
        QTest::mouseClick(endereco->MunComboBox, Qt::LeftButton);
        Assentar();
        EXPECT_EQ(endereco->MunComboBox->Item(endereco->MunComboBox->GetItemIndex()).toUpper(),
                  Coluna("mun", codigo).toUpper())
            << codigo;
        QTest::mouseClick(endereco->BaiComboBox, Qt::LeftButton);
        Assentar();
        EXPECT_GE(endereco->BaiComboBox->GetItemIndex(), 0) << codigo;
        QTest::mouseClick(endereco->LogrComboBox, Qt::LeftButton);
        Assentar();
        EXPECT_GE(endereco->LogrComboBox->GetItemIndex(), 0) << codigo;
        QTest::mouseClick(Frame<QWidget>("Memo1"), Qt::LeftButton);
        EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso) << "looking alters nothing";
    }
    EXPECT_EQ(perguntas, QStringList());
}

TEST_F(TClientesFTest, AGroupIsChosenByItsNameAndMayBeLeftEmpty)
{
    AbrirEm(3);
    auto *grupo = Frame<TComboBoxCodBasFr>("GrupoFr");
    EXPECT_EQ(Coluna("grupos_cod", 3), QStringLiteral("(nulo)"));
    EXPECT_EQ(grupo->ComboBox1->GetText(), QString());
    DigitarEm(grupo->ComboBox1, QStringLiteral("Limpeza"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Coluna("grupos_cod", 3), QStringLiteral("3"));
    QTest::mouseClick(grupo->ComboBox1, Qt::LeftButton);
    Tecla(Qt::Key_End);
    Tecla(Qt::Key_Home, Qt::ShiftModifier);
    Tecla(Qt::Key_Delete);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Coluna("grupos_cod", 3), QStringLiteral("(nulo)"));
}

TEST_F(TClientesFTest, APictureIsChosenAndCleared)
{
    AbrirEm(1);
    auto *foto = Frame<TImgBasFr>("FotoFr");
    const QString pessoa = foto->ArquivoImagem;
    EXPECT_TRUE(pessoa.endsWith(QStringLiteral("/fotos/pessoa.jpg"))) << pessoa.toStdString();
    EXPECT_TRUE(foto->ZoomAction->GetEnabled());
    const QString empresa = QFileInfo(pessoa).dir().filePath(QStringLiteral("empresa.jpg"));
    SisD().OpenDialog.AoExecutar = [&](TOpenDialog &dialogo, QWidget *) {
        dialogo.FileName = empresa;
        return true;
    };
    QTest::mouseClick(foto->ToolButton1, Qt::LeftButton);
    Assentar();
    SisD().OpenDialog.AoExecutar = nullptr;
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Coluna("foto", 1), empresa);
    QTest::mouseClick(foto->ToolButton3, Qt::LeftButton);
    Assentar();
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Coluna("foto", 1), QString());
}

TEST_F(TClientesFTest, TabWalksThroughTheFieldsAsTheyStand)
{
    AbrirEm(1);
    QTest::mouseClick(Frame<TNomeBasFr>("NomeFr")->NomeLabeledEditTextoBasFr->LabeledEdit1,
                      Qt::LeftButton);
    QStringList caminho;
    for (int i = 0; i < 24 && !caminho.contains(QStringLiteral("Memo1")); ++i) {
        caminho << QApplication::focusWidget()->objectName();
        Tecla(Qt::Key_Tab);
    }
    // The frames in the order of the screen; inside them, their own.
    const QStringList marcos = {
        QStringLiteral("LabeledEdit1"),   QStringLiteral("CPFEditBR1"),
        QStringLiteral("MaskEdit1"),      QStringLiteral("CEPMaskEdit"),
        QStringLiteral("UFComboBox"),     QStringLiteral("MunComboBox"),
        QStringLiteral("BaiComboBox"),    QStringLiteral("LogrComboBox"),
        QStringLiteral("NumLabeledEdit"), QStringLiteral("ComplLabeledEdit"),
        QStringLiteral("Fone1EditBR"),    QStringLiteral("EMailLabeledEdit"),
        QStringLiteral("DDDMaskEditBR"),  QStringLiteral("Memo1")};
    qsizetype antes = -1;
    for (const QString &marco : marcos) {
        const qsizetype onde = caminho.indexOf(marco);
        EXPECT_GT(onde, antes) << marco.toStdString() << " in " << caminho.join(u' ').toStdString();
        antes = onde;
    }
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
}

TEST_F(TClientesFTest, TheLimitIsKeptWithItsCentsAndANewClientIsActiveAndRegisteredToday)
{
    AbrirEm(1);
    auto *limite = Frame<TNumEditBRBasFr>("LimiteFr");
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(limite->NumEditBR1->text(), QStringLiteral("0,00"));
    EXPECT_TRUE(Frame<TCheckBoxBasFr>("AtivoFr")->CheckBox1->isChecked());
    Digitar(QStringLiteral("Inês Araújo"));
    DigitarEm(Frame<TCPFEditBR>("CPFEditBR1"), QStringLiteral("52998224725"));
    DigitarEm(limite->NumEditBR1, QStringLiteral("2500,75"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Quantos(QStringLiteral("clientes_cod=321 and limite=2500.75 and ativo='S' and "
                                     "cadastro=current_date")),
              1);
    EXPECT_EQ(limite->NumEditBR1->text(), QStringLiteral("2.500,75"));
}

TEST_F(TClientesFTest, UntickingActiveStartsAnAlterationThatIsStored)
{
    AbrirEm(1);
    auto *ativo = Frame<TCheckBoxBasFr>("AtivoFr")->CheckBox1;
    ativo->setFocus();
    Tecla(Qt::Key_Space);
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_FALSE(ativo->isChecked());
    Tecla(Qt::Key_Escape);
    EXPECT_TRUE(ativo->isChecked());
    ativo->setFocus();
    Tecla(Qt::Key_Space);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Coluna("ativo", 1), QStringLiteral("N"));
    tela->Reler(17);
    EXPECT_FALSE(ativo->isChecked());
    tela->Reler(2);
    EXPECT_TRUE(ativo->isChecked());
}

TEST_F(TClientesFTest, UntickingALockedClientIsToldAndTakenBack)
{
    AbrirEm(1);
    ASSERT_TRUE(GarantiaTentar(QStringLiteral("clientes"), QStringLiteral("1"),
                               QStringLiteral(" where clientes_cod=1")));
    auto *ativo = Frame<TCheckBoxBasFr>("AtivoFr")->CheckBox1;
    ativo->setFocus();
    Tecla(Qt::Key_Space);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    Assentar();
    EXPECT_TRUE(ativo->isChecked());
    GarantiaLiberar(QStringLiteral("clientes"), QStringLiteral("1"));
}

TEST_F(TClientesFTest, AnAlterationLeavesTheDayOfRegistrationAlone)
{
    conexao.Executar(
        QStringLiteral("update clientes set cadastro=date '2001-02-03' where clientes_cod=1"));
    AbrirEm(1);
    DigitarEm(Frame<QWidget>("NumLabeledEdit"), QStringLiteral("99"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Coluna("num || ' ' || cadastro", 1), QStringLiteral("99 2001-02-03"));
}

TEST_F(TClientesFTest, TheListIsWholeUntilAFilterIsApplied)
{
    Abrir();
    EXPECT_EQ(NaLista(), 320);
    EXPECT_EQ(Status(), QStringLiteral("Exibindo todos os clientes"));
    EXPECT_FALSE(tela->FiltroAtivLab->isVisible());
    LigarCriterio("FiltroGrupoFr");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(NaLista(), 320) << "a group that is ticked but not chosen filters nothing";
    EXPECT_FALSE(tela->FiltroAtivo);
}

TEST_F(TClientesFTest, TheClientsOfAGroupAreShownUntilTheFilterIsReleased)
{
    Abrir();
    FiltrarGrupo(QStringLiteral("Bebidas"));
    EXPECT_EQ(NaLista(), Quantos(QStringLiteral("grupos_cod=2")));
    EXPECT_GT(NaLista(), 0);
    EXPECT_LT(NaLista(), 320);
    EXPECT_EQ(Status(), QStringLiteral("Exibindo os clientes do grupo Bebidas"));
    EXPECT_TRUE(tela->FiltroAtivLab->isVisible());
    tela->FiltroZerarAct->Execute();
    Assentar();
    EXPECT_EQ(NaLista(), 320);
    EXPECT_EQ(Status(), QStringLiteral("Exibindo todos os clientes"));
}

TEST_F(TClientesFTest, TheCriteriaOfTheFilterAreAllAskedFor)
{
    Abrir();
    LigarCriterio("FiltroLimiteDeFr");
    Digitar(QStringLiteral("1000,50"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(NaLista(), Quantos(QStringLiteral("limite>=1000.50")));
    LigarCriterio("FiltroLimiteAteFr");
    Digitar(QStringLiteral("16000"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(NaLista(), Quantos(QStringLiteral("limite>=1000.50 and limite<=16000")));
    auto *situacao = Frame<TRadioGroup>("FiltroSituacaoGroup");
    QTest::mouseClick(situacao->Botao(2), Qt::LeftButton, {}, QPoint(6, 8));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(NaLista(),
              Quantos(QStringLiteral("limite>=1000.50 and limite<=16000 and ativo='N'")));
    const int deTodosOsGrupos = NaLista();
    FiltrarGrupo(QStringLiteral("Bebidas"));
    EXPECT_EQ(NaLista(), Quantos(QStringLiteral("limite>=1000.50 and limite<=16000 and ativo='N' "
                                                "and grupos_cod=2")));
    EXPECT_GT(NaLista(), 0);
    EXPECT_LT(NaLista(), deTodosOsGrupos);
    EXPECT_EQ(Status(), QStringLiteral("Exibindo os clientes do grupo Bebidas, com limite a partir "
                                       "de R$ 1.000,50, com limite até R$ 16.000,00, inativos"));
}

TEST_F(TClientesFTest, ThePeriodOfRegistrationIncludesBothDays)
{
    conexao.Executar(QStringLiteral("update clientes set cadastro=null"));
    conexao.Executar(QStringLiteral("update clientes set cadastro=date '2024-03-04' + clientes_cod "
                                    "where clientes_cod<=9"));
    Abrir();
    auto *cadastro = Frame<TDatasBasFr>("FiltroCadastroFr");
    cadastro->MaskEdit1->setFocus();
    Digitar(QStringLiteral("06032024"));
    cadastro->MaskEdit2->setFocus();
    Digitar(QStringLiteral("080324"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(NaLista(), 3) << "and none of those whose day is not known";
    EXPECT_EQ(Status(),
              QStringLiteral("Exibindo os clientes cadastro: De 06/03/2024 ate 08/03/2024"));
}

TEST_F(TClientesFTest, AnAlterationFromTheFilteredListIsOfTheClientThatWasSeen)
{
    Abrir();
    FiltrarGrupo(QStringLiteral("Bebidas"));
    tela->MoverParaLinha(5);
    Assentar();
    const int codigo = tela->StringGrid1->GetCell(0, 5).toInt();
    const QString nome = tela->StringGrid1->GetCell(1, 5);
    tela->StringGrid1->setFocus();
    Tecla(Qt::Key_A, Qt::ControlModifier);
    ASSERT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(NaLista(), 320) << "the filter was released";
    EXPECT_EQ(NomeMostrado(), nome);
    EXPECT_EQ(Frame<TEnderecoBasFr>("EnderecoFr")->EstadoDataSet, int(dsEdit));
    DigitarEm(Frame<QWidget>("NumLabeledEdit"), QStringLiteral("777"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Coluna("num", codigo), QStringLiteral("777"));
    EXPECT_EQ(Quantos(QStringLiteral("num='777'")), 1);
    EXPECT_EQ(Frame<TEnderecoBasFr>("EnderecoFr")->EstadoDataSet, int(dsBrowse));
}

TEST_F(TClientesFTest, TypingIntoACompositeInputWhileTheListIsFilteredKeepsWhatIsTyped)
{
    Abrir();
    FiltrarGrupo(QStringLiteral("Bebidas"));
    tela->MoverParaLinha(7);
    const int codigo = tela->StringGrid1->GetCell(0, 7).toInt();
    tela->PageControl1->MudarComoUsuario(1);
    Assentar();
    const QStringList antes = Entradas();
    DigitarEm(Frame<QWidget>("Fone1EditBR"), QStringLiteral("32145678"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(NaLista(), 320);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Coluna("fone1", codigo), QStringLiteral("3214-5678"));
    DigitarEm(Frame<QWidget>("Fone1EditBR"), QStringLiteral("11111111"));
    Tecla(Qt::Key_Escape);
    QStringList depois = Entradas();
    EXPECT_EQ(depois.removeAll(QStringLiteral("Fone1EditBR=3214-5678")), 1);
    EXPECT_EQ(depois.size(), antes.size() - 1);
    for (const QString &entrada : std::as_const(depois))
        EXPECT_TRUE(antes.contains(entrada)) << entrada.toStdString();
}

TEST_F(TClientesFTest, AnInsertionFromTheFilteredListReleasesItAndStartsWithTheDefaults)
{
    Abrir();
    FiltrarGrupo(QStringLiteral("Bebidas"));
    tela->StringGrid1->setFocus();
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    ASSERT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_FALSE(tela->FiltroAtivo);
    auto *endereco = Frame<TEnderecoBasFr>("EnderecoFr");
    EXPECT_EQ(endereco->UFComboBox->GetText(), QStringLiteral("SP"));
    EXPECT_EQ(endereco->EstadoDataSet, int(dsInsert));
    Digitar(QStringLiteral("Inês Araújo"));
    DigitarEm(Frame<TCPFEditBR>("CPFEditBR1"), QStringLiteral("52998224725"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Tab->Campos->Campos(0)->AsInteger(), 321);
    EXPECT_EQ(NaLista(), 321);
}

TEST_F(TClientesFTest, DeletingInTheFilteredListDeletesTheClientThatWasSeen)
{
    Servicos().PerguntaDeletar = [] { return true; };
    Abrir();
    FiltrarGrupo(QStringLiteral("Bebidas"));
    tela->StringGrid1->setFocus();
    tela->MoverParaLinha(4);
    Assentar();
    const QString codigo = tela->StringGrid1->GetCell(0, 4);
    const int doGrupo = NaLista();
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(Quantos(QStringLiteral("clientes_cod=") + codigo), 0);
    EXPECT_EQ(Quantos(QStringLiteral("grupos_cod=2")), doGrupo - 1);
    EXPECT_EQ(Quantos(), 319);
    EXPECT_EQ(NaLista(), 319);
}

TEST_F(TClientesFTest, ThePanelsInputsLieInsideItAboveItsButtons)
{
    Abrir();
    const QWidget *corpo = tela->ScrollBox1;
    for (const char *nome : {"FiltroGrupoFr", "FiltroLimiteDeFr", "FiltroLimiteAteFr",
                             "FiltroSituacaoGroup", "FiltroCadastroFr"}) {
        const auto *w = Frame<QWidget>(nome);
        EXPECT_LT(w->geometry().bottom(), tela->ToolBar4->y()) << nome;
        EXPECT_LE(w->geometry().right(), corpo->width()) << nome;
    }
}

TEST_F(TClientesFTest, TabGoesOnFromTheNotesToTheLimitAndToActive)
{
    AbrirEm(1);
    QTest::mouseClick(Frame<QWidget>("Memo1"), Qt::LeftButton);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Frame<TNumEditBRBasFr>("LimiteFr")->NumEditBR1);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Frame<TCheckBoxBasFr>("AtivoFr")->CheckBox1);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
}
