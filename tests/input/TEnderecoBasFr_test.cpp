#include "input/UConsultaDoGuia.h"
#include "input/UEnderecoBasFr.h"
#include "platform/database/ConexD.h"
#include "platform/support/SisD.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TPanel.h"
#include "support/Entrada.h"
#include "support/Girar.h"
#include "support/GuiaDeCeps.h"
#include "support/Layouts.h"

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** The host's defaults of one test. */
class TPadroes
{
public:
    TPadroes() : antes(SisD()) {}
    ~TPadroes() { SisD() = antes; }

private:
    TSisD antes;
};

class TEnderecoBasFrTest : public TEntradaTest
{
protected:
    TEnderecoBasFrTest()
    {
        Servicos().MensagemErro = [this](const QString &texto) {
            mensagens << texto;
            if (aoMostrarErro)
                aoMostrarErro();
        };
        Servicos().Pergunta = [this](const QString &texto) {
            perguntas << texto;
            return aoPerguntar ? aoPerguntar() : resposta;
        };
    }
    void SetUp() override { banco.emplace(RoteiroDoGuia()); }

    /** The frame in a window between two plain edits, the first one focused. */
    void Abrir()
    {
        antes->setParent(&janela);
        fr = Criar<TEnderecoBasFr>(&janela);
        fr->move(10, 40);
        depois = new QLineEdit(&janela);
        depois->move(10, 250);
        janela.resize(540, 300);
        janela.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
        // What activation still does to the edits is done before a key arrives.
        QCoreApplication::processEvents();
        antes->setFocus();
        ASSERT_EQ(Foco(), antes);
    }
    /** The same as a screen leaves it where a record is inserted. */
    void Inserir()
    {
        Abrir();
        fr->Zerar();
        fr->PegarState(dsInsert);
    }

    static QStringList Itens(const TComboBox *lista)
    {
        QStringList itens;
        for (int i = 0; i < lista->Count(); ++i)
            itens << QStringLiteral("%1=%2").arg(lista->GetObjeto(i)).arg(lista->Item(i));
        return itens;
    }
    /** What the seven inputs show. */
    QStringList Textos() const
    {
        return {fr->CEPMaskEdit->GetText(),     fr->UFComboBox->GetText(),
                fr->MunComboBox->GetText(),     fr->BaiComboBox->GetText(),
                fr->LogrComboBox->GetText(),    fr->NumLabeledEdit->GetText(),
                fr->ComplLabeledEdit->GetText()};
    }
    int Codigo(const char *daTabela, const char *coluna, const QString &nome)
    {
        return banco
            ->Valor(QStringLiteral("select %1 from %2 where nome=%3")
                        .arg(QString::fromLatin1(coluna), QString::fromLatin1(daTabela),
                             QuotedStr(nome)))
            .AsInteger();
    }
    int Mun(const char *nome) { return Codigo("cep_mun", "mun_cod", QString::fromUtf8(nome)); }
    int BaiDe(const char *mun, const char *bai)
    {
        return banco
            ->Valor(QStringLiteral("select bai_cod from cep_bai where mun_cod=%1 and nome=%2")
                        .arg(Mun(mun))
                        .arg(QuotedStr(QString::fromUtf8(bai))))
            .AsInteger();
    }
    QChar UF(const char *sigla)
    {
        return banco
            ->Valor(QStringLiteral("select uf_cod from cep_uf where sigla='%1'")
                        .arg(QString::fromLatin1(sigla)))
            .AsString()
            .at(0);
    }
    /** Types into an input that a click or Tab has just entered. */
    void DigitarEm(QWidget *entrada, const char *texto)
    {
        entrada->setFocus(Qt::TabFocusReason);
        for (const QChar c : QString::fromUtf8(texto))
            Teclar(Teclado(entrada), c);
    }
    /** What has the keyboard while an input is used: the open list of a combo box. */
    static QWidget *Teclado(QWidget *entrada)
    {
        auto *lista = qobject_cast<TComboBox *>(entrada);
        return lista && lista->DroppedDown() ? lista->view() : entrada;
    }
    void Tab(QWidget *de, Qt::Key tecla = Qt::Key_Tab) { Teclar(Teclado(de), tecla); }
    /** A CEP, typed and left. */
    void EntrarCep(const char *cep)
    {
        DigitarEm(fr->CEPMaskEdit, cep);
        Tab(fr->CEPMaskEdit);
    }
    /** Whether somebody else can drop the index of the CEPs, which no prepared look-up then uses.
     */
    bool IndiceDosCepsSolto()
    {
        TSQLConnection outra;
        outra.DatabaseName = banco->Arquivo();
        outra.Open();
        try {
            outra.Executar(QStringLiteral("drop index ix_cep_logr_cep"));
            return true;
        } catch (const EDatabaseError &) {
            return false;
        }
    }
    QTimer *SoltarTimer() const { return fr->findChild<QTimer *>(QStringLiteral("SoltarTimer")); }
    /** Until no timer is about to move the focus, however busy the machine is. */
    void EsperarTimers()
    {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return !fr->NumFocusTimer->isActive() && !fr->CEPFocusTimer->isActive(); }));
        QCoreApplication::processEvents();
    }
    static TColor Selec() { return SisD().CorControlSelec; }
    static TColor Desselec() { return SisD().CorControlDesselec; }
    /** Enters a street of the guide by its list, the lists above filled from its CEP. */
    void EscolherRua(const char *cep)
    {
        EntrarCep(cep);
        fr->LogrComboBox->setFocus();
        fr->CEPMaskEdit->Clear();
    }

    TPadroes padroes;
    /** What stood on the screen when a query had run. */
    QColor foto;
    bool aberta = false;
    QWidget janela;
    TEnderecoBasFr *fr = nullptr;
    QStringList mensagens;
    QStringList perguntas;
    bool resposta = false;
    std::function<void()> aoMostrarErro;
    std::function<bool()> aoPerguntar;

    const QStringList Arapiraca = {QStringLiteral("57303807"),
                                   QStringLiteral("AL"),
                                   QStringLiteral("ARAPIRACA"),
                                   QStringLiteral("OLHO D'ÁGUA DOS CAZUZINHAS"),
                                   QStringLiteral("RUA DAMIANA CORREIA DE ALBUQUERQUE"),
                                   QString(),
                                   QString()};
};

} // namespace

TEST_F(TEnderecoBasFrTest, Layout)
{
    banco.reset();
    ConexD().SQLConnection = nullptr;
    Abrir();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TEnderecoBasFr")));
    EXPECT_EQ(fr->size(), QSize(514, 123));
    EXPECT_EQ(fr->CEPMaskEdit->pos(), QPoint(0, 14));
    EXPECT_EQ(fr->CEPMaskEdit->width(), 61);
    EXPECT_EQ(fr->CEPMaskEdit->GetEditMask(), QStringLiteral("99999-999;0;_"));
    EXPECT_EQ(fr->CEPMaskEdit->GetMaxLength(), 9);
    const auto confere = [](const TComboBox *lista, QPoint onde, int largura, int maximo,
                            int linhas) {
        EXPECT_EQ(lista->pos(), onde);
        EXPECT_EQ(lista->width(), largura);
        EXPECT_EQ(lista->GetMaxLength(), maximo);
        EXPECT_EQ(lista->maxVisibleItems(), linhas);
        EXPECT_EQ(lista->GetStyle(), TComboBox::csDropDown);
    };
    confere(fr->UFComboBox, {63, 14}, 43, 2, 12);
    confere(fr->MunComboBox, {108, 14}, 205, 30, 16);
    confere(fr->BaiComboBox, {315, 14}, 199, 20, 16);
    confere(fr->LogrComboBox, {0, 60}, 515, 50, 18);
    EXPECT_EQ(fr->NumLabeledEdit->pos(), QPoint(0, 100));
    EXPECT_EQ(fr->NumLabeledEdit->width(), 49);
    EXPECT_EQ(fr->NumLabeledEdit->GetMaxLength(), 6);
    EXPECT_EQ(fr->ComplLabeledEdit->pos(), QPoint(53, 100));
    EXPECT_EQ(fr->ComplLabeledEdit->width(), 218);
    EXPECT_EQ(fr->ComplLabeledEdit->GetMaxLength(), 20);
    for (const QTimer *timer : {fr->NumFocusTimer, fr->CEPFocusTimer}) {
        EXPECT_EQ(timer->interval(), 150);
        EXPECT_FALSE(timer->isActive());
    }
    EXPECT_EQ(fr->AguardePanel->fontInfo().pixelSize(), 21);
    for (const TComboBox *lista :
         {fr->UFComboBox, fr->MunComboBox, fr->BaiComboBox, fr->LogrComboBox})
        EXPECT_TRUE(lista->hasFrame()) << "no box may vanish into a white page";
    const auto rotula = [this](const char *nome, const QWidget *entrada) {
        const auto *rotulo = fr->findChild<QLabel *>(QString::fromLatin1(nome));
        ASSERT_NE(rotulo, nullptr) << nome;
        EXPECT_EQ(rotulo->buddy(), entrada) << nome;
    };
    rotula("CEPLabel", fr->CEPMaskEdit);
    rotula("UFLabel", fr->UFComboBox);
    rotula("MunLabel", fr->MunComboBox);
    rotula("BaiLabel", fr->BaiComboBox);
    rotula("LogrLabel", fr->LogrComboBox);
}

TEST_F(TEnderecoBasFrTest, TheTabKeyGoesThroughTheInputsInTheirOrder)
{
    Abrir();
    for (QWidget *entrada : std::initializer_list<QWidget *>{
             fr->CEPMaskEdit, fr->UFComboBox, fr->MunComboBox, fr->BaiComboBox, fr->LogrComboBox,
             fr->NumLabeledEdit, fr->ComplLabeledEdit, depois}) {
        Tab(Foco());
        EXPECT_EQ(Foco(), entrada);
    }
    for (QWidget *entrada : std::initializer_list<QWidget *>{
             fr->ComplLabeledEdit, fr->NumLabeledEdit, fr->LogrComboBox, fr->BaiComboBox,
             fr->MunComboBox, fr->UFComboBox, fr->CEPMaskEdit, antes}) {
        Teclar(Foco(), Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(Foco(), entrada) << "backwards too";
    }
}

TEST_F(TEnderecoBasFrTest, TheQueriesAreTheStatedOnes)
{
    Abrir();
    const auto sql = [](const TSQLQuery *q) { return q->GetSQL().split(QStringLiteral("\r\n")); };
    EXPECT_EQ(sql(fr->UFQ), (QStringList{QStringLiteral("select * from cep_UF "),
                                         QStringLiteral("order by sigla")}));
    EXPECT_EQ(sql(fr->BaiQ), (QStringList{QStringLiteral("select * from cep_bai where mun_cod="),
                                          QStringLiteral("-1"), QStringLiteral("order by nome")}));
    EXPECT_EQ(sql(fr->LogrQ),
              (QStringList{QStringLiteral("select cep_logr.*, cep_tipologr.nome as TipoLogr"),
                           QStringLiteral("from cep_logr, cep_tipologr"),
                           QStringLiteral("where cep_logr.tipologr_cod=cep_tipologr.tipologr_cod"),
                           QStringLiteral("and cep_logr.bai_cod="), QStringLiteral("-4"),
                           QStringLiteral("order by cep_logr.nome")}));
    EXPECT_EQ(sql(fr->CEPPeloLogrCodQ),
              (QStringList{QStringLiteral("select cep"), QStringLiteral("from cep_logr"),
                           QStringLiteral("where logr_cod="), QStringLiteral("3")}));
    EXPECT_EQ(sql(fr->TestaCEPQ),
              (QStringList{QStringLiteral("select"), QStringLiteral("cep_logr.*"),
                           QStringLiteral(", cep_bai.nome as Bai"),
                           QStringLiteral(", cep_mun.nome as Mun"),
                           QStringLiteral(", cep_uf.sigla as UF"),
                           QStringLiteral(", cep_uf.uf_cod as UFCod"),
                           QStringLiteral(", cep_tipologr.nome as TipoLogr"),
                           QStringLiteral(", cep_logr.logr_cod as LogrCod"),
                           QStringLiteral(", cep_mun.mun_cod as MunCod"), QString(),
                           QStringLiteral("from cep_logr, cep_bai, cep_mun, cep_uf, cep_tipologr"),
                           QStringLiteral("where cep="), QStringLiteral("'12'"),
                           QStringLiteral("and cep_tipologr.tipologr_cod=cep_logr.tipologr_cod"),
                           QStringLiteral("and cep_logr.bai_cod=cep_bai.bai_cod"),
                           QStringLiteral("and cep_bai.mun_cod=cep_mun.mun_cod"),
                           QStringLiteral("and cep_mun.uf_cod=cep_uf.uf_cod")}));
    EXPECT_EQ(sql(fr->MunQ), (QStringList{QStringLiteral("select * from cep_mun where uf_cod="),
                                          QuotedStr(UF("AC")), QStringLiteral("order by nome")}))
        << "the code of the first state stands in its line";
}

TEST_F(TEnderecoBasFrTest, EveryQueryRunsThroughAnIndex)
{
    Abrir();
    fr->MunQ->SetCodigo(QuotedStr(UF("SP")));
    fr->BaiQ->SetCodigo(QString::number(Mun("São Paulo")));
    fr->LogrQ->SetCodigo(QString::number(BaiDe("São Paulo", "República")));
    fr->TestaCEPQ->SetCodigo(QStringLiteral("'01045001'"));
    const auto plano = [](TSQLQuery *q) {
        const QString texto = q->Plano();
        EXPECT_FALSE(texto.contains(QStringLiteral("NATURAL"))) << texto.toStdString();
        return texto;
    };
    EXPECT_TRUE(plano(fr->UFQ).contains(QStringLiteral("UK_CEP_UF_SIGLA")));
    EXPECT_TRUE(plano(fr->MunQ).contains(QStringLiteral("FK_CEP_MUN_UF")));
    EXPECT_TRUE(plano(fr->BaiQ).contains(QStringLiteral("FK_CEP_BAI_MUN")));
    EXPECT_TRUE(plano(fr->LogrQ).contains(QStringLiteral("FK_CEP_LOGR_BAI")));
    EXPECT_TRUE(plano(fr->CEPPeloLogrCodQ).contains(QStringLiteral("PK_CEP_LOGR")));
    EXPECT_TRUE(plano(fr->TestaCEPQ).contains(QStringLiteral("IX_CEP_LOGR_CEP")));
}

TEST_F(TEnderecoBasFrTest, AFreshFrameShowsTheFirstStateAndListsItsMunicipios)
{
    Abrir();
    EXPECT_EQ(fr->UFComboBox->Count(), 27);
    EXPECT_EQ(fr->UFComboBox->Item(0), QStringLiteral("AC"));
    EXPECT_EQ(fr->UFComboBox->Item(26), QStringLiteral("TO"));
    EXPECT_EQ(fr->UFComboBox->GetItemIndex(), 0);
    EXPECT_EQ(Itens(fr->MunComboBox),
              QStringList{QStringLiteral("%1=RIO BRANCO").arg(Mun("Rio Branco"))});
    EXPECT_EQ(fr->MunComboBox->GetItemIndex(), -1);
    EXPECT_EQ(fr->MunComboBox->GetText(), QString());
    EXPECT_EQ(fr->BaiComboBox->Count() + fr->LogrComboBox->Count(), 0);
    EXPECT_FALSE(fr->Tocado);
    EXPECT_EQ(fr->EstadoDataSet, dsInactive);
    EXPECT_TRUE(fr->Cascatear);
    EXPECT_FALSE(fr->SemPadrao);
    EXPECT_TRUE(fr->TratarSaidaCEP);
    EXPECT_TRUE(fr->ValorAceitavel());
    for (TSQLQuery *q :
         {fr->UFQ, fr->MunQ, fr->BaiQ, fr->LogrQ, fr->CEPPeloLogrCodQ, fr->TestaCEPQ})
        EXPECT_EQ(q->GetSQLConnection(), ConexD().SQLConnection);
}

TEST_F(TEnderecoBasFrTest, WithoutAConnectionEverythingCanStillBeTyped)
{
    TSQLConnection *conexao = ConexD().SQLConnection;
    ConexD().SQLConnection = nullptr;
    Abrir();
    EXPECT_EQ(fr->UFComboBox->Count(), 0);
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("RJ")) << "as designed";
    DigitarEm(fr->UFComboBox, "sp");
    DigitarEm(fr->MunComboBox, "santos");
    DigitarEm(fr->BaiComboBox, "centro");
    DigitarEm(fr->LogrComboBox, "rua um");
    EntrarCep("11085005");
    EXPECT_EQ(Textos().mid(0, 5), (QStringList{QStringLiteral("11085005"), QStringLiteral("SP"),
                                               QStringLiteral("SANTOS"), QStringLiteral("CENTRO"),
                                               QStringLiteral("RUA UM")}));
    fr->Zerar();
    EXPECT_EQ(Textos(), QStringList(7, QString()));
    ConexD().SQLConnection = conexao;
    fr->Zerar();
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("SP"))
        << "the guide is read as soon as there is one";
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SÃO PAULO"));
}

TEST_F(TEnderecoBasFrTest, ADatabaseWithoutAGuideIsReportedAndTheFrameStands)
{
    banco.emplace(QString());
    Abrir();
    ASSERT_EQ(erros.size(), 1);
    EXPECT_TRUE(erros.takeFirst().contains(QStringLiteral("CEP_UF"), Qt::CaseInsensitive));
    EXPECT_EQ(fr->UFComboBox->Count(), 0);
    EXPECT_FALSE(fr->AguardePanel->isVisible());
}

TEST_F(TEnderecoBasFrTest, TheListsAreFilledWithTheRowsOfACode)
{
    Abrir();
    fr->MunComboBox->SetText(QStringLiteral("x"));
    fr->PreencherMunComboBox(UF("SP"));
    EXPECT_EQ(Itens(fr->MunComboBox),
              (QStringList{QStringLiteral("%1=ARAÇATUBA").arg(Mun("Araçatuba")),
                           QStringLiteral("%1=SANTOS").arg(Mun("Santos")),
                           QStringLiteral("%1=SÃO PAULO").arg(Mun("São Paulo"))}));
    EXPECT_EQ(fr->MunComboBox->GetItemIndex(), -1);
    EXPECT_EQ(fr->MunComboBox->GetText(), QString());
    EXPECT_EQ(fr->MunQ->Codigo(), QuotedStr(UF("SP")));
    EXPECT_FALSE(fr->MunQ->Active());

    banco->Executar(QStringLiteral("insert into cep_bai values (900, %1, '  Açude D''Água  ')")
                        .arg(Mun("Santos")));
    fr->PreencherBaiComboBox(Mun("Santos"));
    EXPECT_EQ(Itens(fr->BaiComboBox),
              (QStringList{QStringLiteral("900=AÇUDE D'ÁGUA"),
                           QStringLiteral("%1=SABOÓ").arg(BaiDe("Santos", "Saboó"))}))
        << "trimmed";
    EXPECT_EQ(fr->BaiComboBox->GetItemIndex(), -1);

    fr->PreencherLogrComboBox(BaiDe("Brasília", "Guará I"));
    EXPECT_EQ(Itens(fr->LogrComboBox), QStringList{QStringLiteral("28=QE 11 ÁREA ESPECIAL C")})
        << "no kind of street, no blank before the name";
    fr->PreencherLogrComboBox(BaiDe("Natal", "Quintas"));
    EXPECT_EQ(fr->LogrComboBox->Item(0), QStringLiteral("1ª TRAV MANOEL MIRANDA"));
    EXPECT_EQ(fr->LogrComboBox->GetText(), QString());
    EXPECT_EQ(fr->LogrQ->Codigo(), QString::number(BaiDe("Natal", "Quintas")));
    EXPECT_FALSE(fr->AguardePanel->isVisible());
}

TEST_F(TEnderecoBasFrTest, AStateIsFoundByItsCode)
{
    Abrir();
    EXPECT_EQ(fr->UFCodToIndex(UF("AC")), 0);
    EXPECT_EQ(fr->UFComboBox->Item(fr->UFCodToIndex(UF("TO"))), QStringLiteral("TO"));
    EXPECT_EQ(fr->UFCodToIndex(u'?'), -1);
    fr->UFComboBox->SetItemIndex(fr->UFCodToIndex(UF("RJ")));
    fr->PrepMun();
    EXPECT_EQ(fr->MunComboBox->Item(0), QStringLiteral("CAMPOS DOS GOYTACAZES"));
    fr->UFComboBox->SetItemIndex(-1);
    fr->PrepMun();
    EXPECT_EQ(fr->MunComboBox->Count(), 2) << "without a state nothing happens";
}

TEST_F(TEnderecoBasFrTest, TheListsFollowOnlyAfterTheUserEnteredAnInput)
{
    Abrir();
    fr->UFPegar(QStringLiteral("SP"));
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("SP"));
    EXPECT_EQ(fr->MunComboBox->Item(0), QStringLiteral("RIO BRANCO")) << "not yet";
    fr->NumLabeledEdit->setFocus();
    EXPECT_FALSE(fr->Tocado) << "number and complement do not count";
    fr->UFComboBox->setFocus();
    EXPECT_TRUE(fr->Tocado);
    fr->UFPegar(QStringLiteral("SP"));
    EXPECT_EQ(fr->MunComboBox->Count(), 3);
    for (QWidget *entrada : std::initializer_list<QWidget *>{fr->CEPMaskEdit, fr->MunComboBox,
                                                             fr->BaiComboBox, fr->LogrComboBox}) {
        antes->setFocus();
        fr->Tocado = false;
        entrada->setFocus();
        EXPECT_TRUE(fr->Tocado) << entrada->objectName().toStdString();
    }
}

TEST_F(TEnderecoBasFrTest, TheListsStandStillWithoutTheCascade)
{
    Abrir();
    fr->Cascatear = false;
    const QStringList municipios = Itens(fr->MunComboBox);
    DigitarEm(fr->UFComboBox, "sp");
    fr->MunComboBox->setFocus();
    EXPECT_EQ(Itens(fr->MunComboBox), municipios);
    DigitarEm(fr->UFComboBox, "xx");
    fr->MunComboBox->setFocus();
    EXPECT_EQ(Itens(fr->MunComboBox), municipios);
    fr->PegarState(dsInsert);
    EntrarCep("1234");
    EXPECT_EQ(mensagens, QStringList());
    EXPECT_EQ(Foco(), fr->UFComboBox);
}

TEST_F(TEnderecoBasFrTest, PegarSelectsTheItemOfATextAndTheListsFollow)
{
    Abrir();
    fr->Tocado = true;
    fr->UFPegar(QStringLiteral("SP"));
    fr->MunPegar(QStringLiteral("São Paulo"));
    EXPECT_EQ(fr->MunComboBox->GetObjeto(fr->MunComboBox->GetItemIndex()), Mun("São Paulo"))
        << "the box shows capitals, the text is the same";
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SÃO PAULO"));
    EXPECT_EQ(fr->BaiComboBox->Count(), 3);
    fr->BaiPegar(QStringLiteral("República"));
    EXPECT_EQ(Itens(fr->LogrComboBox), QStringList{QStringLiteral("1=PRAÇA DA REPÚBLICA")});
}

TEST_F(TEnderecoBasFrTest, PegarOfATextWithoutAnItemPutsItIntoTheBox)
{
    Abrir();
    fr->Tocado = true;
    fr->UFPegar(QStringLiteral("RJ"));
    fr->MunPegar(QStringLiteral("Rio de Janeiro"));
    fr->BaiPegar(QStringLiteral("Centro"));
    ASSERT_EQ(fr->LogrComboBox->Count(), 1);
    fr->BaiPegar(QStringLiteral("Sertãozinho"));
    EXPECT_EQ(fr->BaiComboBox->GetText(), QStringLiteral("SERTÃOZINHO"));
    EXPECT_EQ(fr->BaiComboBox->GetItemIndex(), -1);
    EXPECT_EQ(fr->LogrComboBox->Count(), 0) << "no streets of another bairro";
    fr->MunPegar(QStringLiteral("Lugar Nenhum"));
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("LUGAR NENHUM"));
    EXPECT_EQ(fr->BaiComboBox->Count(), 0);
    EXPECT_EQ(fr->BaiComboBox->GetText(), QStringLiteral("SERTÃOZINHO"));
    const QStringList municipios = Itens(fr->MunComboBox);
    fr->UFPegar(QStringLiteral("XX"));
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("RJ")) << "a state stays as it is";
    EXPECT_EQ(Itens(fr->MunComboBox), municipios);
}

TEST_F(TEnderecoBasFrTest, APickedStateFillsItsMunicipiosAndKeepsTheTypedOne)
{
    Inserir();
    fr->UFComboBox->setFocus();
    fr->MunComboBox->SetText(QStringLiteral("SANTOS"));
    fr->UFComboBox->SetText(QStringLiteral("RS"));
    Teclar(fr->UFComboBox, Qt::Key_Down);
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("SC"));
    EXPECT_EQ(Itens(fr->MunComboBox).size(), 2);
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SANTOS"));
    EXPECT_EQ(fr->MunComboBox->GetItemIndex(), -1);
    Teclar(fr->UFComboBox, Qt::Key_Down);
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("SE"));
    Teclar(fr->UFComboBox, Qt::Key_Down);
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SANTOS"));
    EXPECT_EQ(fr->MunComboBox->GetObjeto(fr->MunComboBox->GetItemIndex()), Mun("Santos"))
        << "and it is selected where the state has it";
}

TEST_F(TEnderecoBasFrTest, ATypedMunicipioFillsItsBairrosAndATypedBairroItsStreets)
{
    Inserir();
    DigitarEm(fr->UFComboBox, "rj");
    Tab(fr->UFComboBox);
    DigitarEm(fr->MunComboBox, "campos");
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("CAMPOS DOS GOYTACAZES"));
    Tab(fr->MunComboBox);
    EXPECT_EQ(Foco(), fr->BaiComboBox);
    EXPECT_EQ(fr->BaiComboBox->Count(), 1);
    DigitarEm(fr->BaiComboBox, "cen");
    Tab(fr->BaiComboBox);
    EXPECT_EQ(Foco(), fr->LogrComboBox);
    EXPECT_EQ(Itens(fr->LogrComboBox),
              QStringList{QStringLiteral("6=RUA TENENTE-CORONEL CARDOSO")});
}

TEST_F(TEnderecoBasFrTest, ATextThatNoItemHasEmptiesTheItemsBelowAndKeepsTheirText)
{
    Inserir();
    EntrarCep("57303807");
    fr->BaiComboBox->setFocus();
    fr->BaiComboBox->SelectAll();
    Teclar(fr->BaiComboBox, u'z');
    EXPECT_EQ(fr->BaiComboBox->GetText(), QStringLiteral("Z"));
    EXPECT_EQ(fr->LogrComboBox->Count(), 0);
    EXPECT_EQ(fr->LogrComboBox->GetText(), Arapiraca[4]);
    Teclar(Teclado(fr->BaiComboBox), Qt::Key_Escape);
    fr->MunComboBox->setFocus(Qt::TabFocusReason);
    Teclar(fr->MunComboBox, u'z');
    EXPECT_EQ(fr->BaiComboBox->Count(), 0);
    EXPECT_EQ(fr->BaiComboBox->GetText(), QStringLiteral("Z"));
}

TEST_F(TEnderecoBasFrTest, LeavingAnUnknownStateEmptiesTheThreeListsBelow)
{
    Inserir();
    EntrarCep("57303807");
    EsperarTimers();
    DigitarEm(fr->UFComboBox, "xx");
    EXPECT_EQ(fr->BaiComboBox->GetText(), Arapiraca[3]) << "not before it is left";
    Tab(fr->UFComboBox);
    EXPECT_EQ(Foco(), fr->MunComboBox);
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("XX"));
    for (const TComboBox *lista : {fr->MunComboBox, fr->BaiComboBox, fr->LogrComboBox}) {
        EXPECT_EQ(lista->Count(), 0);
        EXPECT_EQ(lista->GetText(), QString());
    }
    DigitarEm(fr->UFComboBox, "rj");
    Tab(fr->UFComboBox);
    EXPECT_EQ(fr->MunComboBox->Count(), 2);
}

TEST_F(TEnderecoBasFrTest, LeavingAStateThatNobodyChangedKeepsTheAddress)
{
    Inserir();
    EntrarCep("57303807");
    EsperarTimers();
    EXPECT_EQ(Textos(), Arapiraca) << "the focus went through the state to the number";
    fr->UFComboBox->setFocus();
    Tab(fr->UFComboBox);
    EXPECT_EQ(Textos(), Arapiraca);
    EXPECT_EQ(fr->MunComboBox->GetObjeto(fr->MunComboBox->GetItemIndex()), Mun("Arapiraca"));
}

TEST_F(TEnderecoBasFrTest, AListIsReadWhenItIsEnteredWithAnotherCodeSelectedAbove)
{
    Abrir();
    fr->PreencherBaiComboBox(Mun("Rio de Janeiro"));
    fr->BaiComboBox->SetItemIndex(0);
    fr->LogrComboBox->SetText(QStringLiteral("avenida rio branco"));
    fr->LogrComboBox->setFocus();
    EXPECT_EQ(fr->LogrComboBox->Count(), 1);
    EXPECT_EQ(fr->LogrComboBox->GetItemIndex(), 0) << "its text stays, and is the item's now";
    antes->setFocus();
    QSignalSpy leituras(fr->LogrQ, &TDataSet::AfterOpen);
    fr->LogrComboBox->setFocus();
    EXPECT_EQ(leituras.count(), 0) << "the same bairro is not read again";
    antes->setFocus();
    fr->BaiComboBox->SetItemIndex(-1);
    fr->LogrComboBox->setFocus();
    EXPECT_EQ(leituras.count(), 0) << "nor is none";
    // A record shown by the program, the lists still those of another one.
    antes->setFocus();
    fr->Tocado = false;
    fr->UFPegar(QStringLiteral("SP"));
    fr->MunPegar(QStringLiteral("Santos"));
    fr->BaiPegar(QStringLiteral("Saboó"));
    fr->MunComboBox->setFocus();
    EXPECT_EQ(fr->MunComboBox->Count(), 3);
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SANTOS"));
    fr->BaiComboBox->setFocus();
    EXPECT_EQ(Itens(fr->BaiComboBox),
              QStringList{QStringLiteral("%1=SABOÓ").arg(BaiDe("Santos", "Saboó"))});
    EXPECT_EQ(fr->BaiComboBox->GetItemIndex(), 0);
}

TEST_F(TEnderecoBasFrTest, ACepOfSevenDigitsIsRefusedAndKeepsTheFocus)
{
    Inserir();
    EntrarCep("5730380");
    EXPECT_EQ(mensagens,
              QStringList{QStringLiteral("O CEP deve ter 8 dígitos\r\nou ficar em branco")});
    EXPECT_EQ(Foco(), fr->CEPMaskEdit);
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QStringLiteral("5730380"));
    QTest::mouseClick(fr->BaiComboBox->lineEdit(), Qt::LeftButton);
    Girar();
    EXPECT_EQ(mensagens.size(), 2) << "by a click too";
    EXPECT_EQ(Foco(), fr->CEPMaskEdit);
    EsperarTimers();
    EXPECT_EQ(Foco(), fr->CEPMaskEdit);
    EXPECT_EQ(mensagens.size(), 2);
    Teclar(fr->CEPMaskEdit, u'7');
    Tab(fr->CEPMaskEdit);
    EXPECT_EQ(mensagens.size(), 2);
    EXPECT_EQ(Textos(), Arapiraca);
}

TEST_F(TEnderecoBasFrTest, AGapInTheCepIsADigitMissing)
{
    Inserir();
    EntrarCep("57303807");
    EsperarTimers();
    fr->CEPMaskEdit->setFocus();
    fr->CEPMaskEdit->setCursorPosition(2);
    Teclar(fr->CEPMaskEdit, Qt::Key_Delete);
    Tab(fr->CEPMaskEdit);
    EXPECT_EQ(mensagens.size(), 1);
    EXPECT_EQ(Foco(), fr->CEPMaskEdit);
}

TEST_F(TEnderecoBasFrTest, ABlankCepPassesSilently)
{
    Inserir();
    const QStringList textos = Textos();
    fr->CEPMaskEdit->setFocus();
    Tab(fr->CEPMaskEdit);
    EXPECT_EQ(Foco(), fr->UFComboBox);
    EXPECT_EQ(mensagens, QStringList());
    EXPECT_EQ(Textos(), textos);
    EXPECT_FALSE(fr->NumFocusTimer->isActive());
}

TEST_F(TEnderecoBasFrTest, WhileBrowsingLeavingTheCepDoesNothing)
{
    Abrir();
    fr->PegarState(dsBrowse);
    EntrarCep("573");
    EXPECT_EQ(Foco(), fr->UFComboBox);
    EntrarCep("57303807");
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("AC"));
    EXPECT_EQ(mensagens, QStringList());
}

TEST_F(TEnderecoBasFrTest, AnInactiveDatasetChecksTheCepButDoesNotLookItUp)
{
    Abrir();
    QApplication::clipboard()->clear();
    EntrarCep("573");
    EXPECT_EQ(mensagens.size(), 1);
    EntrarCep("57303807");
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("AC"));
    fr->PreencheEnderPeloCep();
    EXPECT_EQ(QApplication::clipboard()->text(), QString());
}

TEST_F(TEnderecoBasFrTest, ACompleteCepFillsTheAddressAndSendsTheFocusToTheNumber)
{
    Inserir();
    EntrarCep("57303807");
    EXPECT_EQ(Textos(), Arapiraca);
    EXPECT_EQ(fr->MunComboBox->GetObjeto(fr->MunComboBox->GetItemIndex()), Mun("Arapiraca"));
    EXPECT_EQ(fr->LogrComboBox->GetObjeto(fr->LogrComboBox->GetItemIndex()), 14);
    EXPECT_EQ(perguntas, QStringList()) << "state and município of a new address are no address";
    EXPECT_EQ(Foco(), fr->UFComboBox);
    EXPECT_TRUE(fr->NumFocusTimer->isActive()) << "a moment later";
    EsperarTimers();
    EXPECT_EQ(Foco(), fr->NumLabeledEdit);
    EXPECT_FALSE(fr->NumFocusTimer->isActive());
    EXPECT_FALSE(fr->AguardePanel->isVisible());
    EXPECT_FALSE(fr->TestaCEPQ->Active());
    fr->PegarState(dsEdit);
    fr->Zerar();
    EntrarCep("04144070");
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("RUA PEREIRA ESTÉFANO"))
        << "while altering too";
}

TEST_F(TEnderecoBasFrTest, TheLookUpLeavesItsStatementOnTheClipboard)
{
    Inserir();
    EntrarCep("57303807");
    EXPECT_EQ(QApplication::clipboard()->text(), fr->TestaCEPQ->GetSQL());
    EXPECT_EQ(fr->TestaCEPQ->Codigo(), QStringLiteral("'57303807'"));
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(
        QStringLiteral("select\r\ncep_logr.*\r\n, cep_bai.nome as Bai\r\n")));
}

TEST_F(TEnderecoBasFrTest, ACepOfAWholeTownHasNoStreet)
{
    banco->Executar(
        QStringLiteral("insert into cep_mun values (900, '%1', 'Vila D''Oeste')").arg(UF("MT")));
    banco->Executar(QStringLiteral("insert into cep_bai values (900, 900, 'Centro')"));
    banco->Executar(
        QStringLiteral("insert into cep_logr values (900, 900, '-', '', '', '78210000')"));
    Inserir();
    EntrarCep("78210000");
    EXPECT_EQ(Textos(), (QStringList{QStringLiteral("78210000"), QStringLiteral("MT"),
                                     QStringLiteral("VILA D'OESTE"), QStringLiteral("CENTRO"),
                                     QString(), QString(), QString()}));
    DigitarEm(fr->LogrComboBox, "rua das flores");
    Tab(fr->LogrComboBox);
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("RUA DAS FLORES"));
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QStringLiteral("78210000"));
    EXPECT_EQ(perguntas, QStringList());
}

TEST_F(TEnderecoBasFrTest, ACepThatTheGuideDoesNotKnowChangesNothing)
{
    Inserir();
    const QStringList antesDisso = Textos();
    EntrarCep("99999999");
    EXPECT_EQ(Textos().mid(1), antesDisso.mid(1));
    EXPECT_EQ(mensagens, QStringList());
    EsperarTimers();
    EXPECT_EQ(Foco(), fr->UFComboBox) << "the address is still to be typed";
}

TEST_F(TEnderecoBasFrTest, AnotherTypedAddressIsReplacedOnlyWhenTheUserSaysSo)
{
    Inserir();
    EntrarCep("57303807");
    DigitarEm(fr->NumLabeledEdit, "12");
    fr->NumFocusTimer->stop();
    EntrarCep("71020631");
    ASSERT_EQ(perguntas,
              QStringList{QStringLiteral(
                  "O CEP atual é referente a \r\n"
                  "QE 11 ÁREA ESPECIAL C Bairro GUARÁ I BRASÍLIA DF\r\n"
                  "porém, o endereço digitado é\r\n"
                  "RUA DAMIANA CORREIA DE ALBUQUERQUE Bairro OLHO D'ÁGUA DOS CAZUZINHAS ARAPIRACA "
                  "AL\r\n"
                  "Deseja substituir o endereço digitado\r\npelo do Guia de CEPs?")});
    EXPECT_EQ(Textos().mid(1, 5), Arapiraca.mid(1, 4) << QStringLiteral("12")) << "no keeps it";
    EsperarTimers();
    EXPECT_EQ(Foco(), fr->NumLabeledEdit) << "the number is next whatever the answer";
    EXPECT_EQ(fr->NumLabeledEdit->selectedText(), QStringLiteral("12"))
        << "entered as by Tab: what is typed replaces it";
    resposta = true;
    EntrarCep("71020631");
    EXPECT_EQ(perguntas.size(), 2);
    EXPECT_EQ(Textos().mid(0, 6),
              (QStringList{QStringLiteral("71020631"), QStringLiteral("DF"),
                           QStringLiteral("BRASÍLIA"), QStringLiteral("GUARÁ I"),
                           QStringLiteral("QE 11 ÁREA ESPECIAL C"), QStringLiteral("12")}));
}

TEST_F(TEnderecoBasFrTest, TheGuidesOwnAddressIsNoOtherAddress)
{
    Inserir();
    fr->UFComboBox->SetText(QStringLiteral("RJ"));
    fr->MunComboBox->SetText(QStringLiteral("CAMPOS DOS GOYTACAZES"));
    fr->BaiComboBox->SetText(QStringLiteral("centro "));
    fr->LogrComboBox->SetText(QStringLiteral("RUA  TENENTE-CORONEL CARDOSO"));
    EntrarCep("28035042");
    EXPECT_EQ(perguntas, QStringList());
    EXPECT_EQ(fr->LogrComboBox->GetObjeto(fr->LogrComboBox->GetItemIndex()), 6);
    fr->Zerar();
    fr->UFComboBox->SetText(QStringLiteral("SP"));
    fr->MunComboBox->SetText(QStringLiteral("SAO PAULO"));
    fr->BaiComboBox->SetText(QStringLiteral("VILA DA SAUDE"));
    fr->LogrComboBox->SetText(QStringLiteral("RUA PEREIRA ESTEFANO"));
    EntrarCep("04144070");
    EXPECT_EQ(perguntas, QStringList()) << "accents aside, as typed";
    fr->Zerar();
    fr->BaiComboBox->SetText(QStringLiteral("OUTRO"));
    EntrarCep("04144070");
    EXPECT_EQ(perguntas.size(), 1) << "a bairro alone is a typed address";
}

TEST_F(TEnderecoBasFrTest, AStreetGivesItsCepToAnEmptyInputWithoutAskingOrLookingItUp)
{
    Inserir();
    EscolherRua("57303807");
    QApplication::clipboard()->clear();
    fr->TestaCEPQ->Esquecer();
    fr->NumFocusTimer->stop();
    Tab(fr->LogrComboBox);
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QStringLiteral("57303807"));
    EXPECT_EQ(fr->CEPMaskEdit->GetEditText(), QStringLiteral("57303-807"));
    EXPECT_EQ(Foco(), fr->NumLabeledEdit);
    EXPECT_EQ(perguntas, QStringList());
    Girar(250);
    EXPECT_EQ(fr->TestaCEPQ->Codigo(), QStringLiteral("'12'"));
    EXPECT_EQ(QApplication::clipboard()->text(), QString());
    EXPECT_TRUE(fr->TratarSaidaCEP);
    EXPECT_EQ(fr->CEPPeloLogrCodQ->Codigo(), QStringLiteral("14"));
}

TEST_F(TEnderecoBasFrTest, AStreetOfAnotherCepAsksWhichOneHolds)
{
    Inserir();
    EscolherRua("57303807");
    fr->CEPMaskEdit->SetText(QStringLiteral("01045001"));
    Tab(fr->LogrComboBox);
    ASSERT_EQ(perguntas, QStringList{QStringLiteral(
                             "No Guia de CEPs o logradouro\r\n"
                             "RUA DAMIANA CORREIA DE ALBUQUERQUE tem o CEP 57303-807\r\n"
                             " e o CEP atual é 01045-001.\r\nDeseja substituir o CEP atual?")});
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QStringLiteral("01045001"));
    resposta = true;
    fr->LogrComboBox->setFocus();
    Tab(fr->LogrComboBox);
    EXPECT_EQ(perguntas.size(), 2);
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QStringLiteral("57303807"));
    fr->LogrComboBox->setFocus();
    Tab(fr->LogrComboBox);
    EXPECT_EQ(perguntas.size(), 2) << "the same CEP is not asked about";
    EXPECT_EQ(Foco(), fr->NumLabeledEdit);
}

TEST_F(TEnderecoBasFrTest, AStreetOfNoListOffersNothing)
{
    Inserir();
    EscolherRua("57303807");
    fr->NumFocusTimer->stop();
    DigitarEm(fr->LogrComboBox, "rua nova");
    Tab(fr->LogrComboBox);
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QString());
    fr->PreencherLogrComboBox(BaiDe("Arapiraca", "Olho D'Água dos Cazuzinhas"));
    fr->LogrComboBox->SetItemIndex(0);
    banco->Executar(QStringLiteral("update cep_logr set cep='' where logr_cod=14"));
    fr->LogrComboBox->setFocus();
    Tab(fr->LogrComboBox);
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QString()) << "nor one without a CEP";
    fr->CEPMaskEdit->SetText(QStringLiteral("01045001"));
    fr->LogrComboBox->setFocus();
    Tab(fr->LogrComboBox);
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QStringLiteral("01045001"));
    EXPECT_EQ(perguntas, QStringList());
}

TEST_F(TEnderecoBasFrTest, EnterAndTabHandTheFocusOn)
{
    Inserir();
    const auto vai = [&](QWidget *de, QWidget *para, Qt::Key tecla) {
        de->setFocus();
        Teclar(de, tecla);
        EXPECT_EQ(Foco(), para) << de->objectName().toStdString() << " key " << int(tecla);
    };
    for (const Qt::Key tecla : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter}) {
        vai(fr->UFComboBox, fr->MunComboBox, tecla);
        vai(fr->MunComboBox, fr->BaiComboBox, tecla);
        vai(fr->BaiComboBox, fr->LogrComboBox, tecla);
        vai(fr->LogrComboBox, fr->NumLabeledEdit, tecla);
        vai(fr->NumLabeledEdit, fr->ComplLabeledEdit, tecla);
    }
    vai(fr->ComplLabeledEdit, depois, Qt::Key_Tab);
    fr->BaiComboBox->setEnabled(false);
    fr->MunComboBox->setFocus();
    Tab(fr->MunComboBox);
    EXPECT_EQ(Foco(), fr->LogrComboBox) << "past an input that cannot take it";
}

TEST_F(TEnderecoBasFrTest, ATypedCharacterOpensTheListAndIsNotLost)
{
    Inserir();
    fr->UFPegar(QStringLiteral("SP"));
    for (TComboBox *lista : {fr->BaiComboBox, fr->LogrComboBox, fr->MunComboBox}) {
        lista->AddItem(QStringLiteral("QUALQUER"), 1);
        lista->SetText({});
        lista->setFocus();
        Teclar(lista, u'q');
        EXPECT_TRUE(lista->DroppedDown()) << lista->objectName().toStdString();
        EXPECT_EQ(lista->GetText(), QStringLiteral("QUALQUER"));
        EXPECT_EQ(lista->lineEdit()->selectedText(), QStringLiteral("UALQUER"));
        EXPECT_EQ(lista->view()->currentIndex().row(), lista->GetItemIndex());
        Teclar(lista->view(), Qt::Key_Escape);
        EXPECT_FALSE(lista->DroppedDown());
        Teclar(lista, Qt::Key_Backspace);
        EXPECT_FALSE(lista->DroppedDown()) << "deleting does not open it";
    }
    fr->UFComboBox->setFocus();
    Teclar(fr->UFComboBox, u'r');
    EXPECT_FALSE(fr->UFComboBox->DroppedDown()) << "the state list stays closed";
}

TEST_F(TEnderecoBasFrTest, TypingSearchesTheOpenListWhateverItsAccents)
{
    Inserir();
    fr->MunComboBox->setFocus(Qt::TabFocusReason);
    Teclar(fr->MunComboBox, u's');
    ASSERT_TRUE(fr->MunComboBox->DroppedDown());
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SANTOS"));
    Teclar(fr->MunComboBox->view(), u'ã');
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SANTOS"));
    Teclar(fr->MunComboBox->view(), u'o');
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SÃO PAULO"));
    EXPECT_EQ(fr->MunComboBox->view()->currentIndex().row(), 2);
    Teclar(fr->MunComboBox->view(), Qt::Key_Up);
    Teclar(fr->MunComboBox->view(), Qt::Key_Return);
    EXPECT_FALSE(fr->MunComboBox->DroppedDown());
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SANTOS")) << "Enter takes the item";
    EXPECT_EQ(Foco(), fr->BaiComboBox) << "and goes on";
    EXPECT_EQ(fr->BaiComboBox->Count(), 1) << "its bairros are there";
}

TEST_F(TEnderecoBasFrTest, EnterWithATextOfNoItemInTheOpenListGoesOnToo)
{
    Inserir();
    DigitarEm(fr->BaiComboBox, "jardim novo");
    ASSERT_TRUE(fr->BaiComboBox->DroppedDown());
    Teclar(fr->BaiComboBox->view(), Qt::Key_Return);
    EXPECT_FALSE(fr->BaiComboBox->DroppedDown());
    EXPECT_EQ(fr->BaiComboBox->GetText(), QStringLiteral("JARDIM NOVO"));
    EXPECT_EQ(Foco(), fr->LogrComboBox);
}

TEST_F(TEnderecoBasFrTest, TypedCharactersLoseTheirAccentsAndBecomeCapitals)
{
    Inserir();
    DigitarEm(fr->LogrComboBox, "praça são josé");
    DigitarEm(fr->NumLabeledEdit, "s/nº");
    DigitarEm(fr->ComplLabeledEdit, "fundos à esquerda");
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("PRACA SAO JOSE"));
    EXPECT_EQ(fr->NumLabeledEdit->GetText(), QStringLiteral("S/Nº"));
    EXPECT_EQ(fr->ComplLabeledEdit->GetText(), QStringLiteral("FUNDOS A ESQUERDA"));
}

TEST_F(TEnderecoBasFrTest, EverythingStandsInCapitalsHoweverItCame)
{
    Inserir();
    int mudancas = 0;
    fr->ComplLabeledEdit->OnChange = [&](QObject *) { ++mudancas; };
    fr->ComplLabeledEdit->setFocus();
    Colar(fr->ComplLabeledEdit, QStringLiteral("bloco ç"));
    EXPECT_EQ(fr->ComplLabeledEdit->GetText(), QStringLiteral("BLOCO Ç"))
        << "only what is typed loses its accents";
    EXPECT_EQ(mudancas, 1);
    fr->ComplLabeledEdit->SetText(QStringLiteral("apto 3ª ÿ"));
    EXPECT_EQ(fr->ComplLabeledEdit->GetText(), QStringLiteral("APTO 3ª ÿ"))
        << "the capital of ÿ is not in the database's character set";
    EXPECT_EQ(mudancas, 2);
    fr->BaiComboBox->setFocus();
    Colar(fr->BaiComboBox, QStringLiteral("água verde"));
    EXPECT_EQ(fr->BaiComboBox->GetText(), QStringLiteral("ÁGUA VERDE"));
    fr->LogrComboBox->SetText(QStringLiteral("rua a"));
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("RUA A"));
}

TEST_F(TEnderecoBasFrTest, APastedTextWithoutAccentsFindsItsItemForTheListsBelow)
{
    Inserir();
    fr->MunComboBox->setFocus();
    fr->MunComboBox->SelectAll();
    Colar(fr->MunComboBox, QStringLiteral("sao paulo"));
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SAO PAULO"));
    EXPECT_EQ(fr->BaiComboBox->Count(), 3);
}

TEST_F(TEnderecoBasFrTest, TheUserIsHeldToTheMaximumLengths)
{
    Inserir();
    DigitarEm(fr->BaiComboBox, "abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(fr->BaiComboBox->GetText().size(), 20);
    DigitarEm(fr->NumLabeledEdit, "12345678");
    EXPECT_EQ(fr->NumLabeledEdit->GetText(), QStringLiteral("123456"));
    EntrarCep("57303807");
    EXPECT_EQ(perguntas.size(), 1);
    DigitarEm(fr->UFComboBox, "abc");
    EXPECT_EQ(fr->UFComboBox->GetText().size(), 2);
}

TEST_F(TEnderecoBasFrTest, TheInputsShowWhichOneHasTheFocus)
{
    SisD().CorControlSelec = TColor::DeRGB(1, 2, 3);
    SisD().CorControlDesselec = TColor::DeRGB(200, 210, 220);
    Abrir();
    const auto cor = [](QWidget *w) {
        const auto *lista = qobject_cast<TComboBox *>(w);
        return lista ? lista->GetColor() : qobject_cast<TCustomEdit *>(w)->GetColor();
    };
    for (QWidget *entrada :
         std::initializer_list<QWidget *>{fr->UFComboBox, fr->BaiComboBox, fr->LogrComboBox,
                                          fr->NumLabeledEdit, fr->ComplLabeledEdit}) {
        entrada->setFocus();
        EXPECT_EQ(cor(entrada), Selec()) << entrada->objectName().toStdString();
        antes->setFocus();
        EXPECT_EQ(cor(entrada), Desselec()) << entrada->objectName().toStdString();
    }
    for (QWidget *entrada : std::initializer_list<QWidget *>{fr->CEPMaskEdit, fr->MunComboBox}) {
        const TColor inicial = cor(entrada);
        entrada->setFocus();
        EXPECT_EQ(cor(entrada), inicial) << "CEP and município are not painted on entering";
        antes->setFocus();
        EXPECT_EQ(cor(entrada), Desselec()) << "but on leaving";
    }
}

TEST_F(TEnderecoBasFrTest, ZerarSelectsTheHostsDefaults)
{
    Abrir();
    fr->PegarState(dsInsert);
    EntrarCep("57303807");
    DigitarEm(fr->NumLabeledEdit, "12");
    DigitarEm(fr->ComplLabeledEdit, "a");
    fr->Zerar();
    EXPECT_EQ(Textos(), (QStringList{QString(), QStringLiteral("SP"), QStringLiteral("SÃO PAULO"),
                                     QString(), QString(), QString(), QString()}));
    EXPECT_EQ(fr->MunComboBox->GetObjeto(fr->MunComboBox->GetItemIndex()), Mun("São Paulo"));
    EXPECT_EQ(fr->BaiComboBox->Count(), 3);
    EXPECT_EQ(fr->LogrComboBox->Count(), 0) << "no streets of the last address";
    EXPECT_FALSE(fr->NumFocusTimer->isActive());
    SisD().UFPadrao = QStringLiteral("RJ");
    SisD().MunicipioPadrao = QStringLiteral("Niterói");
    fr->Zerar();
    EXPECT_EQ(Textos().mid(0, 3), (QStringList{QString(), QStringLiteral("RJ"),
                                               QStringLiteral("CAMPOS DOS GOYTACAZES")}))
        << "the first município where the default is not in the guide";
    SisD().UFPadrao = QStringLiteral("XX");
    fr->Zerar();
    EXPECT_EQ(Textos().mid(0, 3),
              (QStringList{QString(), QStringLiteral("AC"), QStringLiteral("RIO BRANCO")}))
        << "the first state likewise";
}

TEST_F(TEnderecoBasFrTest, TheDefaultMunicipioIsFoundInAGuideWithoutAccents)
{
    banco->Executar(QStringLiteral("update cep_mun set nome='SAO PAULO' where nome='São Paulo'"));
    Inserir();
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SAO PAULO"));
    EXPECT_EQ(fr->BaiComboBox->Count(), 3);
}

TEST_F(TEnderecoBasFrTest, ZerarWithoutDefaultsEmptiesStateAndMunicipio)
{
    Abrir();
    fr->SemPadrao = true;
    fr->PegarState(dsInsert);
    EntrarCep("57303807");
    fr->Zerar();
    EXPECT_EQ(Textos(), QStringList(7, QString()));
    EXPECT_EQ(fr->UFComboBox->GetItemIndex(), -1);
    EXPECT_EQ(fr->UFComboBox->Count(), 27);
    EXPECT_EQ(fr->MunComboBox->Count() + fr->BaiComboBox->Count() + fr->LogrComboBox->Count(), 0);
}

TEST_F(TEnderecoBasFrTest, PegarReadOnlyEnablesForTrue)
{
    Abrir();
    fr->PegarReadOnly(false);
    EXPECT_FALSE(fr->isEnabled());
    fr->PegarReadOnly(true);
    EXPECT_TRUE(fr->isEnabled());
}

TEST_F(TEnderecoBasFrTest, TheCepTimerGivesTheFocusOnlyToWhatIsVisible)
{
    Abrir();
    fr->CEPFocusTimer->start();
    EsperarTimers();
    EXPECT_EQ(Foco(), fr->CEPMaskEdit);
    EXPECT_FALSE(fr->CEPFocusTimer->isActive());
    antes->setFocus();
    fr->hide();
    fr->CEPFocusTimer->start();
    EsperarTimers();
    EXPECT_EQ(Foco(), antes);
    EXPECT_EQ(janela.focusWidget(), antes);
}

TEST_F(TEnderecoBasFrTest, TheNumberTimerLeavesTheFocusWhereTheFrameIsNotInView)
{
    Inserir();
    EntrarCep("57303807");
    ASSERT_TRUE(fr->NumFocusTimer->isActive());
    antes->setFocus();
    fr->hide();
    EsperarTimers();
    fr->show();
    EXPECT_EQ(Foco(), antes);
}

TEST_F(TEnderecoBasFrTest, AListBelowStandsStillWithoutTheCascadeAndBeforeAnInputWasEntered)
{
    Abrir();
    fr->PreencherBaiComboBox(Mun("Rio de Janeiro"));
    fr->PreencherLogrComboBox(BaiDe("Natal", "Quintas"));
    const QStringList bairros = Itens(fr->BaiComboBox), ruas = Itens(fr->LogrComboBox);
    const auto pegar = [&](const char *quando) {
        fr->MunPegar(QStringLiteral("Rio Branco"));
        EXPECT_EQ(Itens(fr->BaiComboBox), bairros) << quando;
        fr->BaiPegar(QStringLiteral("Centro"));
        EXPECT_EQ(Itens(fr->LogrComboBox), ruas) << quando;
    };
    pegar("before an input was entered");
    fr->Cascatear = false;
    fr->Tocado = true;
    pegar("without the cascade");
    fr->BaiComboBox->setFocus();
    EXPECT_EQ(Itens(fr->BaiComboBox), bairros) << "nor does entering a list read it";
    fr->LogrComboBox->setFocus();
    EXPECT_EQ(Itens(fr->LogrComboBox), ruas);
    fr->Cascatear = true;
    antes->setFocus();
    fr->LogrComboBox->setFocus();
    EXPECT_NE(Itens(fr->LogrComboBox), ruas);
}

TEST_F(TEnderecoBasFrTest, ACepThatTheFrameItselfWritesIsNotTreatedOnLeavingItUntilItIsEnteredAgain)
{
    Inserir();
    fr->CEPMaskEdit->setFocus();
    EXPECT_TRUE(fr->TratarSaidaCEP);
    fr->TratarSaidaCEP = false;
    Digitar(fr->CEPMaskEdit, QStringLiteral("123"));
    Tab(fr->CEPMaskEdit);
    EXPECT_EQ(mensagens, QStringList());
    EXPECT_EQ(Foco(), fr->UFComboBox);
    fr->CEPMaskEdit->setFocus();
    EXPECT_TRUE(fr->TratarSaidaCEP) << "entering switches it on";
    Tab(fr->CEPMaskEdit);
    EXPECT_EQ(mensagens.size(), 1);
}

TEST_F(TEnderecoBasFrTest, TheFocusComesBackToTheCepAlsoWhenTheMessageTookItElsewhere)
{
    Inserir();
    aoMostrarErro = [this] {
        fr->CEPMaskEdit->Clear();
        antes->setFocus();
    };
    EntrarCep("123");
    EXPECT_EQ(Foco(), antes);
    EsperarTimers();
    EXPECT_EQ(Foco(), fr->CEPMaskEdit);
    EXPECT_EQ(mensagens.size(), 1);
    EntrarCep("123");
    EXPECT_TRUE(fr->CEPFocusTimer->isActive());
    fr->Zerar();
    EXPECT_FALSE(fr->CEPFocusTimer->isActive()) << "another record is on the screen";
}

TEST_F(TEnderecoBasFrTest, NeitherTimerSendsTheKeysToAnInputBehindAHiddenPage)
{
    QWidget pagina(&janela);
    pagina.setGeometry(0, 30, 540, 200);
    Inserir();
    fr->setParent(&pagina);
    fr->show();
    pagina.show();
    for (QTimer *timer : {fr->NumFocusTimer, fr->CEPFocusTimer}) {
        pagina.show();
        timer->start();
        pagina.hide();
        depois->setFocus();
        EsperarTimers();
        EXPECT_EQ(Foco(), depois) << timer->objectName().toStdString();
        EXPECT_FALSE(timer->isActive());
        pagina.show();
        QCoreApplication::processEvents();
        EXPECT_EQ(Foco(), depois) << "nor when the page comes back";
    }
    delete std::exchange(fr, nullptr);
}

TEST_F(TEnderecoBasFrTest, AStreetOffersItsCepInEveryStateAndWithoutTheCascadeToo)
{
    Abrir();
    fr->PreencherLogrComboBox(BaiDe("São Paulo", "República"));
    fr->Cascatear = false;
    for (const int estado : {int(dsInactive), int(dsBrowse), int(dsEdit), int(dsInsert)}) {
        fr->PegarState(estado);
        fr->CEPMaskEdit->Clear();
        fr->LogrComboBox->SetItemIndex(0);
        fr->LogrComboBox->setFocus();
        Tab(fr->LogrComboBox);
        EXPECT_EQ(fr->CEPMaskEdit->GetText(), QStringLiteral("01045001")) << estado;
    }
}

TEST_F(TEnderecoBasFrTest, OnlyTheFirstEightCharactersOfTheGuidesCepCount)
{
    banco->Executar(QStringLiteral("drop view logr"));
    banco->Executar(QStringLiteral("alter table cep_logr alter cep type varchar(9)"));
    banco->Executar(QStringLiteral("update cep_logr set cep='573038079' where logr_cod=14"));
    Inserir();
    fr->PreencherLogrComboBox(BaiDe("Arapiraca", "Olho D'Água dos Cazuzinhas"));
    fr->LogrComboBox->SetItemIndex(0);
    fr->LogrComboBox->setFocus();
    Tab(fr->LogrComboBox);
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QStringLiteral("57303807"));
    fr->LogrComboBox->setFocus();
    Tab(fr->LogrComboBox);
    EXPECT_EQ(perguntas, QStringList()) << "it is the same one";
}

TEST_F(TEnderecoBasFrTest, AnInputEnteredByEnterIsTypedOver)
{
    Inserir();
    for (TComboBox *lista : {fr->MunComboBox, fr->BaiComboBox, fr->LogrComboBox})
        lista->SetText(QStringLiteral("VELHO"));
    fr->NumLabeledEdit->SetText(QStringLiteral("VELHO"));
    fr->ComplLabeledEdit->SetText(QStringLiteral("VELHO"));
    fr->UFComboBox->setFocus();
    for (TComboBox *lista : {fr->MunComboBox, fr->BaiComboBox, fr->LogrComboBox}) {
        Teclar(Foco(), Qt::Key_Return);
        EXPECT_EQ(lista->lineEdit()->selectedText(), QStringLiteral("VELHO"))
            << lista->objectName().toStdString();
    }
    for (QLineEdit *edit : {fr->NumLabeledEdit, fr->ComplLabeledEdit}) {
        Teclar(Foco(), Qt::Key_Return);
        EXPECT_EQ(edit->selectedText(), QStringLiteral("VELHO"));
    }
}

TEST_F(TEnderecoBasFrTest, EscClosesTheListAndKeepsWhatWasTypedReadyToGoOn)
{
    Inserir();
    DigitarEm(fr->MunComboBox, "sa");
    ASSERT_TRUE(fr->MunComboBox->DroppedDown());
    Teclar(fr->MunComboBox->view(), Qt::Key_Escape);
    EXPECT_FALSE(fr->MunComboBox->DroppedDown());
    EXPECT_EQ(Foco(), fr->MunComboBox);
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SANTOS"));
    Teclar(fr->MunComboBox, u'b');
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SAB"))
        << "the completion is typed over, nothing is lost";
}

TEST_F(TEnderecoBasFrTest, ALetterOfADeadKeyIsTypedIntoTheOpenListWithoutItsAccent)
{
    Inserir();
    fr->LogrComboBox->AddItem(QStringLiteral("QUALQUER"), 1);
    const auto compor = [](QWidget *alvo, const QString &texto) {
        QInputMethodEvent composto;
        composto.setCommitString(texto);
        QApplication::sendEvent(alvo, &composto);
        QCoreApplication::processEvents();
    };
    fr->LogrComboBox->setFocus(Qt::TabFocusReason);
    compor(fr->LogrComboBox, QStringLiteral("á"));
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("A"));
    ASSERT_TRUE(fr->LogrComboBox->DroppedDown());
    compor(Foco(), QStringLiteral("ç"));
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("AC"));
    compor(fr->LogrComboBox->view(), QStringLiteral("ã"));
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("ACA"));
}

TEST_F(TEnderecoBasFrTest, TheOpenListIsAsWideAsItsLongestItem)
{
    Inserir();
    const QString longo(60, u'M');
    fr->MunComboBox->setFocus();
    fr->MunComboBox->AddItem(longo, 1);
    fr->MunComboBox->SetDroppedDown(true);
    const QAbstractItemView *lista = fr->MunComboBox->view();
    EXPECT_GE(lista->width(), lista->fontMetrics().horizontalAdvance(longo));
    fr->MunComboBox->SetDroppedDown(false);
}

TEST_F(TEnderecoBasFrTest, AStateWithoutMunicipiosEmptiesTheBairrosToo)
{
    banco->Executar(QStringLiteral("insert into cep_uf (uf_cod, sigla) values ('~', 'ZZ')"));
    Inserir();
    EXPECT_GT(fr->BaiComboBox->Count(), 0);
    SisD().UFPadrao = QStringLiteral(" ZZ ");
    fr->Zerar();
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("ZZ"));
    EXPECT_EQ(fr->MunComboBox->Count() + fr->BaiComboBox->Count(), 0);
    EXPECT_EQ(fr->MunComboBox->GetText(), QString());
    SisD().UFPadrao = QStringLiteral("RJ");
    SisD().MunicipioPadrao = QStringLiteral(" Rio de Janeiro ");
    fr->Zerar();
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("RIO DE JANEIRO"));
}

TEST_F(TEnderecoBasFrTest, TimersDoNotOutliveTheFrame)
{
    Inserir();
    EntrarCep("57303807");
    ASSERT_TRUE(fr->NumFocusTimer->isActive());
    fr->CEPFocusTimer->start();
    delete fr;
    Girar(250);
    EXPECT_TRUE(janela.isVisible());
}

TEST_F(TEnderecoBasFrTest, TheFrameMayDieWithTheFocusInside)
{
    Inserir();
    for (int i = 0; i < 3; ++i) {
        fr->CEPMaskEdit->setFocus();
        Digitar(fr->CEPMaskEdit, QStringLiteral("123"));
        delete fr;
        Girar();
        EXPECT_EQ(mensagens, QStringList()) << "nobody is left to be told";
        fr = Criar<TEnderecoBasFr>(&janela);
        fr->PegarState(dsInsert);
        fr->show();
    }
    fr->LogrComboBox->setFocus();
    Teclar(fr->LogrComboBox, u'a');
    delete fr;
    Girar();
}

TEST_F(TEnderecoBasFrTest, AMessageBoxInsideTheExitKeepsTheFocusOnTheCep)
{
    Inserir();
    Servicos().MensagemErro = {};
    QStringList textos;
    QTimer relogio;
    QObject::connect(&relogio, &QTimer::timeout, &janela, [&] {
        auto *caixa = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!caixa || !caixa->isActiveWindow())
            return;
        textos << caixa->text() + u'\n' + caixa->informativeText();
        QTest::keyClick(static_cast<QWidget *>(caixa->defaultButton()), Qt::Key_Return);
    });
    relogio.start(200); // longer than the timer that gives the focus back
    EntrarCep("1234");
    EXPECT_EQ(textos.size(), 1);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    Girar();
    EXPECT_EQ(Foco(), fr->CEPMaskEdit);
    fr->CEPMaskEdit->Clear();
    Tab(fr->CEPMaskEdit);
    EXPECT_EQ(Foco(), fr->UFComboBox);
    Girar(250);
    EXPECT_EQ(textos.size(), 1);
    EXPECT_EQ(Foco(), fr->UFComboBox);
}

TEST_F(TEnderecoBasFrTest, QuestionsInsideAnExitAreRealBoxes)
{
    Inserir();
    Servicos().Pergunta = {};
    QStringList textos;
    QPointer<QMessageBox> respondida;
    QTimer relogio;
    QObject::connect(&relogio, &QTimer::timeout, &janela, [&] {
        auto *caixa = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!caixa || !caixa->isActiveWindow() || caixa == respondida)
            return;
        respondida = caixa;
        textos << caixa->text();
        QTest::keyClick(static_cast<QWidget *>(caixa), Qt::Key_S);
    });
    relogio.start(5);
    EscolherRua("57303807");
    fr->CEPMaskEdit->SetText(QStringLiteral("01045001"));
    fr->NumFocusTimer->stop();
    Tab(fr->LogrComboBox);
    EXPECT_EQ(textos.size(), 1);
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QStringLiteral("57303807"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    EXPECT_EQ(Foco(), fr->NumLabeledEdit);
    EntrarCep("71020631");
    EXPECT_EQ(textos.size(), 2);
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("DF"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    EsperarTimers();
    EXPECT_EQ(Foco(), fr->NumLabeledEdit);
}

TEST_F(TEnderecoBasFrTest, TheFrameMayGoWhileItAsksOrTells)
{
    Inserir();
    // As a screen that closes: gone from view at once, destroyed when the event loop comes round.
    const auto fechar = [this] {
        fr->hide();
        std::exchange(fr, nullptr)->deleteLater();
    };
    const auto outro = [this] {
        Girar();
        fr = Criar<TEnderecoBasFr>(&janela);
        fr->show();
        fr->Zerar();
        fr->PegarState(dsInsert);
    };
    aoMostrarErro = fechar;
    EntrarCep("1234");
    EXPECT_EQ(fr, nullptr);
    aoPerguntar = [&] {
        fechar();
        return true;
    };
    outro();
    fr->BaiComboBox->SetText(QStringLiteral("OUTRO"));
    EntrarCep("57303807");
    EXPECT_EQ(fr, nullptr);
    outro();
    EscolherRua("57303807");
    fr->CEPMaskEdit->SetText(QStringLiteral("01045001"));
    Tab(fr->LogrComboBox);
    EXPECT_EQ(fr, nullptr);
    EXPECT_EQ(perguntas.size(), 2);
    aoPerguntar = [this] {
        delete std::exchange(fr, nullptr);
        return true;
    };
    outro();
    fr->BaiComboBox->SetText(QStringLiteral("OUTRO"));
    fr->CEPMaskEdit->SetText(QStringLiteral("57303807"));
    fr->PreencheEnderPeloCep();
    EXPECT_EQ(fr, nullptr) << "the program's own call may lose it at once";
    Girar(200);
}

TEST_F(TEnderecoBasFrTest, AnAnswerThatComesAfterTheEditEndedChangesNothing)
{
    Inserir();
    fr->BaiComboBox->SetText(QStringLiteral("OUTRO"));
    aoPerguntar = [this] {
        fr->PegarState(dsBrowse);
        return true;
    };
    EntrarCep("57303807");
    EXPECT_EQ(fr->BaiComboBox->GetText(), QStringLiteral("OUTRO"));
    EXPECT_FALSE(fr->NumFocusTimer->isActive());
}

TEST_F(TEnderecoBasFrTest, AFailingLookUpIsReportedAndTheFrameStaysSound)
{
    Inserir();
    banco->Executar(QStringLiteral("drop view logr"));
    banco->Executar(QStringLiteral("alter table cep_logr alter cep to codigo"));
    EntrarCep("57303807");
    ASSERT_EQ(erros.size(), 1);
    EXPECT_FALSE(erros.takeFirst().isEmpty());
    EXPECT_FALSE(fr->AguardePanel->isVisible());
    EXPECT_EQ(Foco(), fr->UFComboBox);
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SÃO PAULO")) << "the address stays";
    banco->Executar(QStringLiteral("alter table cep_logr alter codigo to cep"));
    EntrarCep("57303807");
    EXPECT_EQ(Textos(), Arapiraca) << "and it works again";
}

TEST_F(TEnderecoBasFrTest, AFailureOnTheWayLeavesListsThatAreReadAgain)
{
    Inserir();
    fr->Tocado = true;
    fr->UFPegar(QStringLiteral("RJ"));
    fr->MunPegar(QStringLiteral("Rio de Janeiro"));
    const auto quebrar = [this](bool quebra) {
        if (quebra)
            banco->Executar(QStringLiteral("drop view logr"));
        banco->Executar(quebra ? QStringLiteral("alter table cep_logr alter nome to x")
                               : QStringLiteral("alter table cep_logr alter x to nome"));
    };
    fr->LogrComboBox->SetText(QStringLiteral("RUA DIGITADA"));
    quebrar(true);
    DigitarEm(fr->BaiComboBox, "centro");
    EXPECT_GE(erros.size(), 1);
    erros.clear();
    EXPECT_FALSE(fr->AguardePanel->isVisible());
    EXPECT_EQ(fr->LogrComboBox->Count(), 0);
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("RUA DIGITADA"));
    EXPECT_EQ(fr->BaiComboBox->GetText(), QStringLiteral("CENTRO"));
    EXPECT_EQ(fr->LogrQ->Codigo(), QStringLiteral("-4"));
    quebrar(false);
    Tab(fr->BaiComboBox);
    EXPECT_EQ(fr->LogrComboBox->Count(), 1) << "entering the list reads it";
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("RUA DIGITADA"));
}

TEST_F(TEnderecoBasFrTest, ThePanelIsOnTheScreenWhileTheGuideIsSlow)
{
    // Streets that take a procedure's time.
    for (const char *sql :
         {"drop view logr",
          "create procedure devagar returns (n integer) as declare i integer = 0; begin while (i < "
          "1000000) do i = i + 1; n = 0; suspend; end",
          "create table ruas (logr_cod integer, bai_cod integer, tipologr_cod char(1), nome "
          "varchar(60), compl varchar(51), cep char(8))",
          "insert into ruas select * from cep_logr", "drop table cep_logr",
          "create view cep_logr as select r.* from ruas r join devagar d on d.n = 0"})
        banco->Executar(QString::fromLatin1(sql));
    Inserir();
    class TPinturas : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *evento) override
        {
            if (evento->type() == QEvent::Paint && primeira < 0)
                primeira = relogio.elapsed();
            return false;
        }
        QElapsedTimer relogio;
        qint64 primeira = -1;
    } pinturas;
    fr->AguardePanel->installEventFilter(&pinturas);
    const auto naTela = [this](TSQLQuery *consulta) {
        return QObject::connect(consulta, &TDataSet::AfterOpen, fr, [this] {
            const QPoint meio = fr->AguardePanel->mapTo(&janela, QPoint(200, 6));
            foto = janela.screen()->grabWindow(janela.winId()).toImage().pixelColor(meio);
            aberta = true;
        });
    };
    const auto confere = [&] {
        EXPECT_TRUE(aberta);
        EXPECT_EQ(foto, QColor(177, 203, 224)) << "painted when the rows came";
        EXPECT_GE(pinturas.primeira, 0);
        EXPECT_GT(pinturas.relogio.elapsed() - pinturas.primeira, 30) << "well before they came";
        EXPECT_FALSE(fr->AguardePanel->isVisible());
    };
    const auto doCep = naTela(fr->TestaCEPQ);
    pinturas.relogio.start();
    fr->CEPMaskEdit->SetText(QStringLiteral("57303807"));
    fr->PreencheEnderPeloCep();
    confere();
    EXPECT_EQ(Textos(), Arapiraca);
    QObject::disconnect(doCep);
    naTela(fr->LogrQ);
    aberta = false;
    foto = QColor();
    pinturas.primeira = -1;
    pinturas.relogio.start();
    fr->PreencherLogrComboBox(BaiDe("São Paulo", "República"));
    confere();
}

TEST_F(TEnderecoBasFrTest, ABairroChosenWhileStreetsAreReadIsTheOneThatCounts)
{
    Inserir();
    fr->Tocado = true;
    fr->LogrComboBox->SetText(QStringLiteral("RUA DIGITADA"));
    QTimer::singleShot(0, fr, [this] { fr->BaiPegar(QStringLiteral("República")); });
    fr->BaiPegar(QStringLiteral("Vila da Saúde"));
    EXPECT_EQ(fr->BaiComboBox->GetText(), QStringLiteral("REPÚBLICA"));
    EXPECT_EQ(Itens(fr->LogrComboBox), QStringList{QStringLiteral("1=PRAÇA DA REPÚBLICA")});
    EXPECT_EQ(fr->LogrQ->Codigo(), QString::number(BaiDe("São Paulo", "República")));
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("RUA DIGITADA"));
    EXPECT_FALSE(fr->AguardePanel->isVisible());
    QTimer::singleShot(0, fr, [this] { fr->BaiPegar(QStringLiteral("NENHUM")); });
    fr->BaiPegar(QStringLiteral("Vila da Saúde"));
    EXPECT_EQ(fr->LogrComboBox->Count(), 0);
    EXPECT_FALSE(fr->AguardePanel->isVisible());
}

TEST_F(TEnderecoBasFrTest, ABairroChosenWhileTheStreetsOfACepAreShownIsTheOneThatCounts)
{
    Inserir();
    fr->Tocado = true;
    const auto ligacao = QObject::connect(fr->LogrQ, &TDataSet::AfterOpen, fr, [this] {
        if (fr->LogrQ->Codigo() != QString::number(BaiDe("São Paulo", "República")))
            QTimer::singleShot(0, fr, [this] {
                fr->PreencherBaiComboBox(Mun("São Paulo"));
                fr->BaiPegar(QStringLiteral("República"));
            });
    });
    fr->CEPMaskEdit->SetText(QStringLiteral("57303807"));
    fr->PreencheEnderPeloCep();
    QObject::disconnect(ligacao);
    EXPECT_EQ(fr->BaiComboBox->GetText(), QStringLiteral("REPÚBLICA"));
    EXPECT_EQ(Itens(fr->LogrComboBox), QStringList{QStringLiteral("1=PRAÇA DA REPÚBLICA")});
    EXPECT_EQ(fr->LogrComboBox->GetText(), QString()) << "no street of another bairro";
}

TEST_F(TEnderecoBasFrTest, ACepTypedWhileAnotherIsLookedUpIsTheOneThatCounts)
{
    Inserir();
    QTimer::singleShot(0, fr, [this] {
        fr->CEPMaskEdit->SetText(QStringLiteral("04144070"));
        fr->PreencheEnderPeloCep();
    });
    fr->CEPMaskEdit->SetText(QStringLiteral("57303807"));
    fr->PreencheEnderPeloCep();
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("RUA PEREIRA ESTÉFANO"));
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QStringLiteral("04144070"));
    EXPECT_EQ(perguntas, QStringList());
}

TEST_F(TEnderecoBasFrTest, TheFrameMayGoWhileTheWaitPanelLetsEventsIn)
{
    for (const bool cep : {true, false}) {
        if (!fr)
            Inserir();
        QTimer::singleShot(0, fr, [this] { delete std::exchange(fr, nullptr); });
        if (cep) {
            fr->CEPMaskEdit->SetText(QStringLiteral("57303807"));
            fr->PreencheEnderPeloCep();
        } else {
            fr->PreencherLogrComboBox(1);
        }
        EXPECT_EQ(fr, nullptr);
        fr = cep ? Criar<TEnderecoBasFr>(&janela) : nullptr;
    }
}

TEST_F(TEnderecoBasFrTest, TypingStartsAnAlterationAndTheTextsSurviveIt)
{
    const QString roteiro = RoteiroDoGuia();
    AbrirTabela();
    banco->Conexao().ExecutarScript(roteiro);
    ConexD().SQLConnection = &banco->Conexao();
    fr = Por<TEnderecoBasFr>();
    Mostrar();
    fr->Zerar();
    // The screen shows the record anew when an alteration begins.
    tela.antesDeAtivar = [this] {
        if (tabela->Status != TStatus::Ocioso)
            return;
        for (TComboBox *lista :
             {fr->UFComboBox, fr->MunComboBox, fr->BaiComboBox, fr->LogrComboBox})
            lista->SetText({});
        fr->NumLabeledEdit->Clear();
        fr->ComplLabeledEdit->SetText(QStringLiteral("DO BANCO"));
    };
    fr->BaiComboBox->SetText(QStringLiteral("CENTRO"));
    fr->LogrComboBox->SetText(QStringLiteral("RUA UM"));
    EXPECT_EQ(tela.pedidos, 0) << "never what the program writes";
    DigitarEm(fr->NumLabeledEdit, "12");
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(Textos(), (QStringList{QString(), QStringLiteral("SP"), QStringLiteral("SÃO PAULO"),
                                     QStringLiteral("CENTRO"), QStringLiteral("RUA UM"),
                                     QStringLiteral("12"), QStringLiteral("DO BANCO")}));
    tabela->AltFim();
    fr->NumLabeledEdit->SetText(QStringLiteral("13"));
    fr->NumLabeledEdit->setCursorPosition(1);
    Digitar(fr->NumLabeledEdit, QStringLiteral("7b"));
    EXPECT_EQ(fr->NumLabeledEdit->GetText(), QStringLiteral("17B3"))
        << "the caret stays where it was typed";
    tabela->AltFim();
    DigitarEm(fr->MunComboBox, "san");
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(fr->MunComboBox->GetText(), QStringLiteral("SANTOS"));
    EXPECT_EQ(fr->MunComboBox->lineEdit()->selectedText(), QStringLiteral("TOS"))
        << "the next key types over what was completed";
    Teclar(fr->MunComboBox->view(), Qt::Key_Escape);
    tabela->AltFim();
    fr->CEPMaskEdit->setFocus();
    Colar(fr->CEPMaskEdit, QStringLiteral("57303-807"));
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(fr->CEPMaskEdit->GetText(), QStringLiteral("57303807"));
    fr->UFComboBox->SetText(QStringLiteral("RJ"));
    tabela->AltFim();
    fr->Editar();
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(fr->UFComboBox->GetText(), QStringLiteral("RJ"));
}

TEST_F(TEnderecoBasFrTest, ARefusedAlterationLeavesTheInputsToTheScreen)
{
    AbrirTabela();
    fr = Por<TEnderecoBasFr>();
    erros.clear(); // no guide in this database
    Mostrar();
    tela.recusa = true;
    tela.antesDeAtivar = [this] { fr->NumLabeledEdit->SetText(QStringLiteral("7")); };
    DigitarEm(fr->NumLabeledEdit, "1");
    EXPECT_EQ(fr->NumLabeledEdit->GetText(), QStringLiteral("7"));
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
}

TEST_F(TEnderecoBasFrTest, EditarAsksNobodyWhereNoMaintenanceScreenHoldsTheFrame)
{
    Abrir();
    fr->Editar();
    DigitarEm(fr->NumLabeledEdit, "12");
    EXPECT_EQ(fr->NumLabeledEdit->GetText(), QStringLiteral("12"));
}

namespace
{

/** The address as a plain reading of its rules has it, from the guide's tables. */
class TEnderecoModelo
{
public:
    struct TLista {
        QString Texto;
        QStringList Itens;
        std::vector<int> Codigos;
        QString CodigoLido;
        int Escolhido() const { return int(Itens.indexOf(Texto)); }
        int Codigo() const { return Escolhido() < 0 ? -1 : Codigos[std::size_t(Escolhido())]; }
    };
    enum { UF, Mun, Bai, Logr };

    TLista l[4];
    QString cep;
    int perguntas = 0;
    bool resposta = false;

    void Ler(int qual, int codigo)
    {
        static const char *const consultas[] = {
            "select ascii_val(uf_cod), sigla from cep_uf order by sigla",
            "select mun_cod, nome from cep_mun where ascii_val(uf_cod) = %1 order by nome",
            "select bai_cod, nome from cep_bai where mun_cod = %1 order by nome",
            "select l.logr_cod, trim(trim(t.nome) || ' ' || trim(l.nome)) from cep_logr l join "
            "cep_tipologr t on t.tipologr_cod = l.tipologr_cod where l.bai_cod = %1 order by "
            "l.nome"};
        TCustomBRQuery linhas;
        const QString sql = QString::fromLatin1(consultas[qual]);
        linhas.Open(qual == UF ? sql : sql.arg(codigo));
        Esvaziar(qual);
        for (; !linhas.Eof(); linhas.Next()) {
            l[qual].Codigos.push_back(linhas.Fields(0)->AsInteger());
            l[qual].Itens << linhas.Fields(1)->AsString().trimmed().toUpper();
        }
        l[qual].CodigoLido = QString::number(codigo);
    }
    void Esvaziar(int qual)
    {
        l[qual].Itens.clear();
        l[qual].Codigos.clear();
        l[qual].CodigoLido.clear();
    }
    void Limpar(int qual)
    {
        Esvaziar(qual);
        l[qual].Texto.clear();
    }
    void Mudou(int qual)
    {
        if (qual == Logr)
            return;
        if (l[qual].Escolhido() >= 0)
            Ler(qual + 1, l[qual].Codigo());
        else
            Esvaziar(qual + 1);
    }
    void Entrar(int qual)
    {
        if (qual != UF && l[qual - 1].Escolhido() >= 0 &&
            l[qual].CodigoLido != QString::number(l[qual - 1].Codigo()))
            Ler(qual, l[qual - 1].Codigo());
    }
    void Sair(int qual)
    {
        if (qual == UF && l[UF].Escolhido() >= 0) {
            Ler(Mun, l[UF].Codigo());
        } else if (qual == UF) {
            for (const int abaixo : {Mun, Bai, Logr})
                Limpar(abaixo);
        } else if (qual == Logr && l[Logr].Escolhido() >= 0) {
            const QString guia =
                Texto("select cep from cep_logr where logr_cod=", l[Logr].Codigo());
            if (cep.isEmpty())
                cep = guia;
            else if (cep != guia && Perguntar())
                cep = guia;
        }
    }
    void Digitar(int qual, const QString &texto)
    {
        l[qual].Texto = texto;
        Mudou(qual);
    }
    void SairDoCep()
    {
        const int logr =
            cep.isEmpty() ? 0 : Inteiro("select logr_cod from cep_logr where cep=", cep);
        if (logr == 0)
            return;
        const int bai =
            Inteiro("select bai_cod from cep_logr where logr_cod=", QString::number(logr));
        const int mun = Inteiro("select mun_cod from cep_bai where bai_cod=", QString::number(bai));
        const int uf =
            Inteiro("select ascii_val(u.uf_cod) from cep_uf u join cep_mun m on m.uf_cod "
                    "= u.uf_cod where m.mun_cod=",
                    QString::number(mun));
        TEnderecoModelo guia;
        for (const auto &[qual, acima, codigo] :
             {std::tuple{UF, 0, uf}, {Mun, uf, mun}, {Bai, mun, bai}, {Logr, bai, logr}}) {
            TLista &lista = guia.l[qual];
            guia.Ler(qual, acima);
            const auto achado = std::find(lista.Codigos.begin(), lista.Codigos.end(), codigo);
            lista.Texto = lista.Itens[achado - lista.Codigos.begin()];
        }
        const auto textos = [](const TEnderecoModelo &m) {
            return QStringList{m.l[UF].Texto, m.l[Mun].Texto, m.l[Bai].Texto, m.l[Logr].Texto};
        };
        const bool digitado = !l[Bai].Texto.isEmpty() || !l[Logr].Texto.isEmpty();
        if (digitado && textos(*this) != textos(guia) && !Perguntar())
            return;
        std::copy(guia.l, guia.l + 4, l);
    }
    void Zerar()
    {
        cep.clear();
        l[UF].Texto = QStringLiteral("SP");
        Ler(Mun, l[UF].Codigo());
        l[Mun].Texto = QStringLiteral("SÃO PAULO");
        Ler(Bai, l[Mun].Codigo());
        l[Bai].Texto.clear();
        Limpar(Logr);
    }

private:
    bool Perguntar()
    {
        ++perguntas;
        return resposta;
    }
    static QString Texto(const char *sql, int codigo)
    {
        TCustomBRQuery q;
        q.Open(QString::fromLatin1(sql) + QString::number(codigo));
        return q.Fields(0)->AsString();
    }
    static int Inteiro(const char *sql, const QString &codigo)
    {
        TCustomBRQuery q;
        return q.Open(QString::fromLatin1(sql) + codigo) ? q.Fields(0)->AsInteger() : 0;
    }
};

} // namespace

TEST_F(TEnderecoBasFrTest, WhateverTheUserDoesTheListsAreThoseOfAPlainReading)
{
    Inserir();
    fr->Tocado = true;
    TEnderecoModelo modelo;
    modelo.Ler(TEnderecoModelo::UF, 0);
    modelo.Zerar();
    TComboBox *const listas[] = {fr->UFComboBox, fr->MunComboBox, fr->BaiComboBox,
                                 fr->LogrComboBox};
    const QStringList ceps = {QStringLiteral("57303807"), QStringLiteral("71020631"),
                              QStringLiteral("04144070"), QStringLiteral("20040002"),
                              QStringLiteral("99999999"), QString()};
    unsigned semente = 20240317;
    const auto sorte = [&semente](qsizetype n) {
        semente = semente * 1103515245U + 12345U;
        return qsizetype((semente >> 16) % unsigned(n));
    };
    int dentro = -1; // the list that has the focus
    const auto ir = [&](QWidget *para, int lista) {
        para->setFocus(Qt::TabFocusReason);
        if (dentro >= 0 && dentro != lista)
            modelo.Sair(dentro);
        if (lista >= 0 && dentro != lista)
            modelo.Entrar(lista);
        dentro = lista;
    };
    QStringList passos;
    for (int passo = 0; passo < 400; ++passo) {
        resposta = modelo.resposta = sorte(2) == 0;
        const int acao = int(sorte(10));
        if (acao < 6) {
            const int qual = int(sorte(4));
            ir(listas[qual], qual);
            const QStringList &itens = modelo.l[qual].Itens;
            const QString texto = itens.isEmpty() || sorte(5) == 0 ? QStringLiteral("ZZ")
                                                                   : itens[sorte(itens.size())];
            passos << QStringLiteral("list %1: %2").arg(qual).arg(texto);
            // The text that stands there already is no change to be told.
            listas[qual]->SetText({});
            if (sorte(2) == 0)
                Colar(listas[qual], texto);
            else
                for (const QChar c : texto)
                    Teclar(Teclado(listas[qual]), c);
            listas[qual]->SetDroppedDown(false);
            modelo.Digitar(qual, texto.left(listas[qual]->GetMaxLength()));
            if (listas[qual]->GetText() != modelo.l[qual].Texto)
                modelo.Digitar(qual, listas[qual]->GetText());
        } else if (acao == 6) {
            fr->CEPMaskEdit->Clear();
            ir(fr->CEPMaskEdit, -1);
            modelo.cep = ceps[sorte(ceps.size())];
            passos << QStringLiteral("CEP ") + modelo.cep;
            fr->CEPMaskEdit->Clear();
            Digitar(fr->CEPMaskEdit, modelo.cep);
            ir(fr->NumLabeledEdit, -1);
            modelo.SairDoCep();
        } else if (acao == 7) {
            passos << QStringLiteral("elsewhere");
            ir(antes, -1);
        } else if (acao == 8) {
            passos << QStringLiteral("Zerar");
            ir(antes, -1);
            fr->Zerar();
            modelo.Zerar();
        } else {
            passos << QStringLiteral("Pegar");
            fr->UFPegar(QStringLiteral("RJ"));
            modelo.Digitar(0, QStringLiteral("RJ"));
            fr->MunPegar(QStringLiteral("Rio de Janeiro"));
            modelo.Digitar(1, QStringLiteral("RIO DE JANEIRO"));
        }
        fr->NumFocusTimer->stop();
        const std::string onde =
            passos.mid(passos.size() - 4).join(QStringLiteral("; ")).toStdString();
        ASSERT_EQ(fr->CEPMaskEdit->GetText(), modelo.cep) << passo << ": " << onde;
        ASSERT_EQ(perguntas.size(), modelo.perguntas) << passo << ": " << onde;
        for (int i = 0; i < 4; ++i) {
            ASSERT_EQ(listas[i]->GetText(), modelo.l[i].Texto) << passo << " " << i << ": " << onde;
            ASSERT_EQ(listas[i]->GetItems(), modelo.l[i].Itens)
                << passo << " " << i << ": " << onde;
            const int codigo = int(listas[i]->GetObjeto(listas[i]->GetItemIndex()));
            ASSERT_EQ(codigo, std::max(0, modelo.l[i].Codigo()))
                << passo << " " << i << ": " << onde;
        }
    }
    EXPECT_GT(perguntas.size(), 10);
}

TEST_F(TEnderecoBasFrTest, TypingACepPreparesItsLookUpAndLeavingItLetsGo)
{
    Inserir();
    const auto *adiantar = fr->findChild<QTimer *>(QStringLiteral("AdiantarTimer"));
    fr->CEPMaskEdit->setFocus();
    QTest::keyClick(fr->CEPMaskEdit, Qt::Key_5);
    EXPECT_TRUE(adiantar->isActive()) << "once the key is painted";
    Teclar(fr->CEPMaskEdit, u'7');
    Teclar(fr->CEPMaskEdit, u'3');
    EXPECT_FALSE(adiantar->isActive());
    EXPECT_FALSE(IndiceDosCepsSolto());
    EXPECT_TRUE(SoltarTimer()->isActive());
    for (const QChar c : QStringLiteral("03807"))
        Teclar(fr->CEPMaskEdit, c);
    Tab(fr->CEPMaskEdit);
    EXPECT_EQ(Textos(), Arapiraca);
    EXPECT_EQ(fr->TestaCEPQ->Codigo(), QStringLiteral("'57303807'"));
    EXPECT_EQ(fr->MunQ->Codigo(), QuotedStr(UF("AL")));
    Girar();
    EXPECT_FALSE(SoltarTimer()->isActive());
    EXPECT_TRUE(IndiceDosCepsSolto());
    fr->Zerar();
    EntrarCep("04144070");
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("RUA PEREIRA ESTÉFANO"))
        << "and without the index";
}

TEST_F(TEnderecoBasFrTest, WhoStopsInTheMiddleOfACepHoldsNothingOfTheDatabase)
{
    Inserir();
    DigitarEm(fr->CEPMaskEdit, "573");
    ASSERT_TRUE(SoltarTimer()->isActive());
    EXPECT_EQ(SoltarTimer()->interval(), 5000);
    SoltarTimer()->start(0);
    Girar();
    EXPECT_FALSE(SoltarTimer()->isActive());
    EXPECT_TRUE(IndiceDosCepsSolto());
    for (const QChar c : QStringLiteral("03807"))
        Teclar(fr->CEPMaskEdit, c);
    Tab(fr->CEPMaskEdit);
    EXPECT_EQ(Textos(), Arapiraca) << "the next key prepares it again";
}

TEST_F(TEnderecoBasFrTest, ACepThatWillNotBeLookedUpPreparesNothing)
{
    Inserir();
    for (const int estado : {int(dsBrowse), int(dsInactive)}) {
        fr->PegarState(estado);
        DigitarEm(fr->CEPMaskEdit, "5");
        EXPECT_FALSE(SoltarTimer()->isActive());
    }
    fr->PegarState(dsInsert);
    fr->Cascatear = false;
    DigitarEm(fr->CEPMaskEdit, "5");
    EXPECT_FALSE(SoltarTimer()->isActive());
    EXPECT_TRUE(IndiceDosCepsSolto());
}
