#include "demo/UPlanoDeContasF.h"

#include "forms/UBotaoHelpFr.h"
#include "forms/UDescrDiagBasF.h"
#include "grids/USelectFrVelho.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/UDisplayFloatFr.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "platform/database/ConexD.h"
#include "platform/support/Mensagens.h"
#include "platform/support/SisD.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TStringGrid.h"

#include <QKeyEvent>
#include <QLabel>

#include <memory>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TPlanoDeContasF)

namespace
{

/** What opens an account in the tree, and what closes it. */
constexpr int FiguraRecolhido = 25;
constexpr int FiguraExpandido = 26;
constexpr QSize TamanhoDoBotao(20, 20);

const char16_t Ajuda[] = u"Plano de contas\r\n"
                         "Seta à direita ou +: abre a conta\r\n"
                         "Seta à esquerda ou -: fecha a conta\r\n"
                         "Seta à esquerda em conta fechada: vai à que está acima dela\r\n"
                         "Espaço, ou um clique na conta: abre ou fecha\r\n"
                         "Ctrl+A: muda a descrição da conta\r\n"
                         "Na busca, Enter vai à próxima conta com esse código ou nome.";

} // namespace

void TPlanoDeContasF::PegarComponentes()
{
    TChildMDIBasF::PegarComponentes();
    Pegar(this, RamoFr, "RamoFr");
    Pegar(this, BuscaFr, "BuscaFr");
    Pegar(this, ExpandirFr, "ExpandirFr");
    Pegar(this, RecolherFr, "RecolherFr");
    Pegar(this, AjudaFr, "AjudaFr");
    Pegar(this, RenomearAct, "RenomearAct");
    Pegar(this, AtivoFr, "AtivoFr");
    Pegar(this, PassivoFr, "PassivoFr");
    Pegar(this, ResultadoFr, "ResultadoFr");
    Pegar(this, ContasFr, "ContasFr");
}

void TPlanoDeContasF::FormCreate(QObject *sender)
{
    TChildMDIBasF::FormCreate(sender);
    ActionList1->SetImages(SisD().ImageList16);
    RamoFr->SetSQLText(QStringLiteral(
        "select 0, cast('Todas as contas' as varchar(60)) from rdb$database union all "
        "select contas_cod, codigo || '  ' || descricao from contas where codigo not containing "
        "'.'"));
    RamoFr->SetValor(0);
    Ligar(RamoFr->ComboBox1, &TComboBox::UserChanged, this, [this] { MostrarRamo(); });
    const auto botao = [](TBotaoFr *fr, int figura, const QString &dica, std::function<void()> f) {
        fr->Image1->setPixmap(
            SisD()
                .ImageList->GetPixmap(figura, fr->devicePixelRatio())
                .scaled(TamanhoDoBotao, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        fr->Image1->setToolTip(dica);
        fr->setAccessibleName(dica);
        fr->OnClick = [f = std::move(f)](QObject *) { f(); };
    };
    botao(ExpandirFr, FiguraRecolhido, QStringLiteral("Abrir todas as contas"),
          [this] { ContasFr->Expandir(true); });
    botao(RecolherFr, FiguraExpandido, QStringLiteral("Fechar todas as contas"),
          [this] { ContasFr->Expandir(false); });
    BuscaFr->BitBtn1->OnClick = [this](QObject *) { Localizar(); };
    AjudaFr->OnClick = [](QObject *) { MensagemInfo(QString::fromUtf16(Ajuda)); };
    RenomearAct->OnUpdate = [this](QObject *) { RenomearAct->SetEnabled(ContasFr->Atual()); };
    RenomearAct->OnExecute = [this](QObject *) { Renomear(); };
}

void TPlanoDeContasF::FormShow(QObject *sender)
{
    TChildMDIBasF::FormShow(sender);
    ContasFr->SetCod1(0);
    MostrarTotais();
    SetActiveControl(ContasFr->StringGrid1);
}

/** Enter in the search edit searches. */
void TPlanoDeContasF::keyPressEvent(QKeyEvent *evento)
{
    const bool enter = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (enter && !evento->modifiers().testFlag(Qt::ControlModifier) &&
        ActiveControl() == BuscaFr->LabeledEdit1)
        Protegido([this] { Localizar(); });
    else
        TChildMDIBasF::keyPressEvent(evento);
}

void TPlanoDeContasF::MostrarRamo()
{
    ContasFr->SetCod1(RamoFr->GetValor().AsInteger());
    ContasFr->StringGrid1->SetRow(1);
}

/** Of the whole chart, whatever is shown of it. */
void TPlanoDeContasF::MostrarTotais()
{
    const double ativo = ContasFr->SaldoDe(QStringLiteral("1"));
    const double passivo = ContasFr->SaldoDe(QStringLiteral("2"));
    AtivoFr->SetValor(ativo);
    PassivoFr->SetValor(passivo);
    ResultadoFr->SetValor(ContasFr->SaldoDe(QStringLiteral("3")) -
                          ContasFr->SaldoDe(QStringLiteral("4")));
}

void TPlanoDeContasF::Localizar()
{
    if (!ContasFr->Localizar(BuscaFr->LabeledEdit1->GetText()))
        MensagemAviso(QStringLiteral("Nenhuma conta com '") + BuscaFr->LabeledEdit1->GetText() +
                      QStringLiteral("' foi encontrada"));
}

void TPlanoDeContasF::Renomear()
{
    const TConta *conta = ContasFr->Atual();
    const QString codigo = conta->Codigo;
    const std::unique_ptr<TDescrDiagBasF> dialogo(Criar<TDescrDiagBasF>(this));
    dialogo->TitLabel->setText(QStringLiteral("Descrição da conta ") + codigo);
    dialogo->DescrLabeledEditTextoBasFr->LabeledEdit1->SetMaxLength(60);
    dialogo->DescrLabeledEditTextoBasFr->SetValor(conta->Descricao);
    if (!dialogo->Executar())
        return;
    ConexD().Executar(
        QStringLiteral("update contas set descricao=%1 where codigo=%2")
            .arg(dialogo->DescrLabeledEditTextoBasFr->SQLString(), QuotedStr(codigo)));
    ContasFr->RelerFonte();
    ContasFr->AtualizarExibicao();
    ContasFr->Localizar(codigo);
}

} // namespace comercial
