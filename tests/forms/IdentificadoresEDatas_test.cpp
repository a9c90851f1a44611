#include "dates/UDTPBasFr.h"
#include "dates/UDataBasFr.h"
#include "dates/UDataSelectF.h"
#include "dates/UDatasBasFr.h"
#include "dates/UDatasSelectF.h"
#include "forms/TelasDeTeste.h"
#include "input/UBarCodBasFr.h"
#include "input/UCPFEditBRBasFr.h"
#include "input/UCepEditBRFr.h"
#include "input/UContatoBasFr.h"
#include "input/UNomeBasFr.h"
#include "platform/core/Relogio.h"
#include "platform/edits/TCPFEditBR.h"
#include "platform/edits/TCepEditBR.h"
#include "platform/edits/TFoneEditBR.h"
#include "platform/edits/TMaskEditBR.h"
#include "platform/toolkit/TMaskEdit.h"
#include "support/CaixasDeVerdade.h"
#include "support/NoDialogo.h"

namespace ficha::testes
{

namespace
{

/** A maintenance screen with identifiers, a birthday, the contact row and two date inputs that
 * belong to no column. */
class TPessoasF : public TTabLinearBasF
{
public:
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("Pessoas"); }

    TNumEditBRCodBasFr *CodFr = nullptr;
    TNomeBasFr *NomeFr = nullptr;
    TCPFEditBRBasFr *CPFFr = nullptr;
    TDTPBasFr *NascFr = nullptr;
    TCepEditBRFr *CepFr = nullptr;
    TBarCodBasFr *BarFr = nullptr;
    TContatoBasFr *ContatoFr = nullptr;
    TDataBasFr *DataFr = nullptr;
    TDatasBasFr *FaixaFr = nullptr;

protected:
    template <typename T>
    void Por(T *&fr, int x, int y)
    {
        fr = Criar<T>(CamposTabSheet);
        fr->move(x, y);
    }
    void FormCreate(QObject *sender) override
    {
        Por(CodFr, 16, 8);
        Por(NomeFr, 16, 56);
        NomeFr->NomeLabeledEditTextoBasFr->Tag = 1;
        Por(CPFFr, 16, 128);
        Por(NascFr, 140, 128);
        Por(CepFr, 270, 128);
        Por(BarFr, 360, 128);
        Por(ContatoFr, 16, 180);
        Por(DataFr, 16, 270);
        Por(FaixaFr, 160, 280);
        SetSQLText(QStringLiteral("select * from pessoas order by pessoas_cod"));
        TTabLinearBasF::FormCreate(sender);
    }
    void PrepararTab() override
    {
        const auto campo = [this](const char *nome) { return SQLQuery1->FieldByName(nome); };
        Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("pessoas"));
        Tab->PegarCampoChave(campo("pessoas_cod"), 60, CodFr);
        Tab->PegarCampo(campo("nome"), 200, NomeFr->NomeLabeledEditTextoBasFr);
        Tab->PegarCampo(campo("menor"), 200, NomeFr->MenorEditTextoBasFr);
        Tab->PegarCampo(campo("cpf"), 60, CPFFr);
        Tab->PegarCampo(campo("nasc"), 60, NascFr);
        Tab->PegarCampo(campo("cep"), 60, CepFr);
        Tab->PegarCampo(campo("barras"), 60, BarFr);
    }
    void AntesInserir() override
    {
        QStringList valores{StringProxCod()};
        for (const TControlBasFr *fr : std::initializer_list<TControlBasFr *>{
                 NomeFr->NomeLabeledEditTextoBasFr, NomeFr->MenorEditTextoBasFr, CPFFr, NascFr,
                 CepFr, BarFr})
            valores << fr->SQLString();
        SQLInserir = QStringLiteral("insert into pessoas values (") + valores.join(u',') + u')';
        SQLUltimoInserido = QStringLiteral("select max(pessoas_cod) from pessoas");
    }
};

class TIdentificadoresEDatas : public TTelasTest
{
protected:
    void SetUp() override
    {
        SetRelogio([] { return TDateTime(QDateTime(QDate(2026, 11, 20), QTime(9, 30))); });
        banco.Executar(QStringLiteral(
            "create table pessoas (pessoas_cod integer not null primary key, nome varchar(40), "
            "menor varchar(30), cpf varchar(14), nasc date, cep varchar(9), barras varchar(13))"));
        banco.Executar(QStringLiteral("create generator pessoas_cod_gen"));
        banco.Executar(QStringLiteral("insert into pessoas values (1, 'Ana', 'Ana', '52998224725', "
                                      "'1990-03-15', '01045001', '96385074')"));
        tela = Abrir<TPessoasF>();
        Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
        ASSERT_EQ(Foco(), tela->NomeFr->NomeLabeledEditTextoBasFr->LabeledEdit1);
    }
    void TearDown() override
    {
        SetRelogio({});
        TTelasTest::TearDown();
    }
    /** The boxes that came up since the last time, without their titles. */
    QStringList Caixas()
    {
        QTest::qWait(20);
        Ocioso();
        return std::exchange(caixas.textos, {});
    }
    /** One key after the other, each where the focus is by then. */
    void Teclas(const char *teclas)
    {
        for (const char *c = teclas; *c; ++c)
            Digitar(QString(QLatin1Char(*c)));
    }

    TPessoasF *tela = nullptr;
    TCaixasDeVerdade caixas;
};

TEST_F(TIdentificadoresEDatas, ARecordIsTypedThroughAndEachMistakeIsToldOnce)
{
    Teclas("Carlos da Silva");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(tela->NomeFr->MenorEditTextoBasFr->AsString(), QStringLiteral("Carlos da Silva"));
    Tecla(Qt::Key_Tab);
    ASSERT_EQ(Foco(), tela->CPFFr->CPFEditBR1);
    Teclas("11144477736");
    EXPECT_EQ(Caixas().size(), 1) << "the last digit leaves, and is wrong";
    ASSERT_EQ(Foco(), tela->CPFFr->CPFEditBR1);
    Teclas("11144477735");
    EXPECT_EQ(Caixas(), QStringList());
    ASSERT_EQ(Foco(), tela->NascFr->DateTimePicker1);
    Teclas("15031985");
    Tecla(Qt::Key_Tab);
    ASSERT_EQ(Foco(), tela->CepFr->CepEditBR1);
    Teclas("01045");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Caixas(), QStringList()) << "a part of an optional one is refused in silence";
    ASSERT_EQ(Foco(), tela->CepFr->CepEditBR1);
    Teclas("001");
    EXPECT_EQ(tela->CepFr->AsString(), QStringLiteral("01045-001"));
    Teclas("789100031550");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Caixas().size(), 1);
    ASSERT_EQ(Foco(), tela->BarFr->LabeledEdit1);
    Teclas("7");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Caixas(), QStringList());
    EXPECT_EQ(Foco(), tela->ContatoFr->Fone1EditBR);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Caixas(), QStringList());
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(banco
                  .Valor(QStringLiteral("select nome||'|'||menor||'|'||cpf||'|'||nasc||'|'||cep||"
                                        "'|'||barras from pessoas where pessoas_cod=2"))
                  .AsString(),
              QStringLiteral("Carlos da Silva|Carlos da Silva|11144477735|1985-03-15|01045001|"
                             "7891000315507"));
}

TEST_F(TIdentificadoresEDatas, AnIncompleteDDDIsToldOnceAndTheFocusGoesWhereItWasSent)
{
    const TContatoBasFr *contato = tela->ContatoFr;
    Teclas("Carlos");
    for (const auto &sair : std::initializer_list<std::function<void()>>{
             [&] { Tecla(Qt::Key_Return); },
             [&] { QTest::mouseClick(contato->Fone1EditBR, Qt::LeftButton); }}) {
        contato->DDDMaskEditBR->setFocus();
        contato->DDDMaskEditBR->Clear();
        Teclas("1");
        sair();
        EXPECT_EQ(Caixas().size(), 1);
        EXPECT_EQ(Foco(), contato->Fone1EditBR);
    }
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo) << "the row belongs to no column";
}

TEST_F(TIdentificadoresEDatas, DatesAreTypedAndChosenByKeysAndTheRecordStaysIdle)
{
    Tecla(Qt::Key_Escape);
    ASSERT_EQ(tela->Tab->Status, TStatus::Ocioso);
    const TMaskEdit *data = tela->DataFr->MaskEdit1;
    tela->DataFr->MaskEdit1->setFocus();
    Teclas("010203");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(data->GetEditText(), QStringLiteral("01/02/2003"));
    {
        const TNoDialogo<TDataSelectF> calendario([this](TDataSelectF &) {
            Tecla(Qt::Key_Right);
            Tecla(Qt::Key_PageDown);
            Tecla(Qt::Key_Return);
        });
        Tecla(Qt::Key_Space);
        EXPECT_TRUE(calendario.Aberto());
    }
    EXPECT_EQ(data->GetEditText(), QStringLiteral("02/03/2003"));
    EXPECT_EQ(Foco(), data);
    Tecla(Qt::Key_Tab);
    Tecla(Qt::Key_Tab);
    Teclas("01012026");
    Tecla(Qt::Key_Tab);
    Teclas("31122026");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(tela->FaixaFr->WhereStr(QStringLiteral("c")),
              QStringLiteral("(c>='01.01.2026' and c<='31.12.2026')"));
    {
        const TNoDialogo<TDatasSelectF> faixa([this](TDatasSelectF &) {
            Tecla(Qt::Key_Tab, Qt::ShiftModifier);
            Tecla(Qt::Key_Left);
            Tecla(Qt::Key_Return);
        });
        Tecla(Qt::Key_Space);
        EXPECT_TRUE(faixa.Aberto());
    }
    EXPECT_EQ(tela->FaixaFr->WhereStr(QStringLiteral("c")), QStringLiteral("(c<='31.12.2026')"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(Caixas(), QStringList());
}

TEST_F(TIdentificadoresEDatas, EscTakesTheTypedBirthdayBack)
{
    Tecla(Qt::Key_Escape);
    tela->NascFr->DateTimePicker1->setFocus();
    Teclas("07");
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->NascFr->AsString(), QStringLiteral("07/03/1990"));
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->NascFr->AsString(), QStringLiteral("15/03/1990"));
    EXPECT_EQ(Caixas(), QStringList());
}

} // namespace

} // namespace ficha::testes
