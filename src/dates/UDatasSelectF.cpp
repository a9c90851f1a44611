#include "dates/UDatasSelectF.h"

#include "platform/core/Relogio.h"
#include "platform/support/Datas.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/Cores.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TMonthCalendar.h"
#include "platform/toolkit/TRadioButton.h"
#include "platform/toolkit/TToolBar.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>

#include <cmath>

namespace ficha
{

FICHA_REGISTRAR(TDatasSelectF)

namespace
{

constexpr TColor Marrom = TColor::DeRGB(128, 0, 0);

QString DiaMesAno(const TMonthCalendar &calendario)
{
    return FormatDateTime(QStringLiteral("dd/mm/yyyy"), calendario.GetDate());
}

} // namespace

TDatasSelectF::TDatasSelectF(TChave chave) : TDiagBitBtnBasF(chave) {}

bool TDatasSelectF::PodeOk()
{
    return DeltaDias() >= 1;
}

QString TDatasSelectF::AsString1() const
{
    return DiaMesAno(*MonthCalendar1);
}

QString TDatasSelectF::AsString2() const
{
    return DiaMesAno(*MonthCalendar2);
}

int TDatasSelectF::DeltaDias() const
{
    const TDateTime inicio = DataInteira(MonthCalendar1->GetDate());
    const TDateTime fim = DataInteira(MonthCalendar2->GetDate());
    return int(std::lround(fim.Dias() + 1 - inicio.Dias()));
}

QString TDatasSelectF::SelecStr()
{
    const bool inicioAberto = DeQRadioButton->isChecked();
    const bool fimAberto = AteQRadioButton->isChecked();
    if (inicioAberto && fimAberto)
        return QStringLiteral("Todas as datas");
    if (inicioAberto)
        return AsString2() + QStringLiteral(" e todas as datas anteriores");
    if (fimAberto)
        return AsString1() + QStringLiteral(" e todas as datas posteriores");
    const int n = DeltaDias();
    const TColor cor =
        n < 1 ? Marrom : TColor::DeQColor(QApplication::palette().color(QPalette::WindowText));
    SetCorDoWidget(*SelecStrLab, QPalette::WindowText, cor);
    if (n < 1)
        return QStringLiteral("Erro. Data inicial deve ser igual o menor que a final.");
    if (n == 1)
        return AsString1();
    return QStringLiteral("De %1 até %2 (%3 dias)").arg(AsString1(), AsString2()).arg(n);
}

void TDatasSelectF::PreencherSelecStr()
{
    SelecStrLab->setText(SelecStr());
}

void TDatasSelectF::PegarComponentes()
{
    TDiagBitBtnBasF::PegarComponentes();
    Pegar(this, Label1, "Label1");
    Pegar(this, Label2, "Label2");
    Pegar(this, Label3, "Label3");
    Pegar(this, SelecStrLab, "SelecStrLab");
    Pegar(this, MonthCalendar1, "MonthCalendar1");
    Pegar(this, MonthCalendar2, "MonthCalendar2");
    Pegar(this, DeQRadioButton, "DeQRadioButton");
    Pegar(this, DeIRadioButton, "DeIRadioButton");
    Pegar(this, AteQRadioButton, "AteQRadioButton");
    Pegar(this, AteIRadioButton, "AteIRadioButton");
    Pegar(this, ToolBar1, "ToolBar1");
    Pegar(this, ToolBar2, "ToolBar2");
    Pegar(this, TodasAct, "TodasAct");
    Pegar(this, AnterioresAct, "AnterioresAct");
    Pegar(this, PosterioresAct, "PosterioresAct");
    Pegar(this, Dias1Act, "Dias1Act");
    Pegar(this, Dias7Act, "Dias7Act");
    Pegar(this, Dias4Act, "Dias4Act");
    Pegar(this, MesAct, "MesAct");
    Pegar(this, MesAnteriorAct, "MesAnteriorAct");
    Pegar(this, MesSeguinteAct, "MesSeguinteAct");
    LigarEventos();
    LigarAcoes();
}

void TDatasSelectF::FormCreate(QObject *sender)
{
    TDiagBitBtnBasF::FormCreate(sender);
    for (TToolBar *barra : {ToolBar1, ToolBar2}) {
        barra->SetImages(SisD().ImageList16);
        barra->SetDisabledImages(SisD().DisImageList16);
    }
}

void TDatasSelectF::FormShow(QObject *sender)
{
    TDiagBitBtnBasF::FormShow(sender);
    PreencherSelecStr();
}

bool TDatasSelectF::eventFilter(QObject *objeto, QEvent *evento)
{
    if (objeto == Label3 && evento->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<const QMouseEvent *>(evento);
        if (mouse->button() == Qt::LeftButton &&
            Label3->rect().contains(mouse->position().toPoint()))
            Protegido([this] { Label3Click(Label3); });
    }
    return TDiagBitBtnBasF::eventFilter(objeto, evento);
}

void TDatasSelectF::DeQRadioButtonClick(QObject *)
{
    MonthCalendar1->hide();
    PreencherSelecStr();
}

void TDatasSelectF::DeIRadioButtonClick(QObject *)
{
    MonthCalendar1->show();
    PreencherSelecStr();
}

void TDatasSelectF::AteQRadioButtonClick(QObject *)
{
    MonthCalendar2->hide();
    PreencherSelecStr();
}

void TDatasSelectF::AteIRadioButtonClick(QObject *)
{
    MonthCalendar2->show();
    PreencherSelecStr();
}

void TDatasSelectF::MonthCalendar1Click(QObject *)
{
    PreencherSelecStr();
}

void TDatasSelectF::MonthCalendar2Click(QObject *)
{
    PreencherSelecStr();
}

void TDatasSelectF::Label3Click(QObject *)
{
    PreencherSelecStr();
}

void TDatasSelectF::TodasActExecute(QObject *)
{
    InicioAberto();
    FimAberto();
    PreencherSelecStr();
}

void TDatasSelectF::AnterioresActExecute(QObject *)
{
    InicioAberto();
    FimEm(Hoje());
    PreencherSelecStr();
}

void TDatasSelectF::PosterioresActExecute(QObject *)
{
    InicioEm(Hoje());
    FimAberto();
    PreencherSelecStr();
}

void TDatasSelectF::Dias1ActExecute(QObject *)
{
    InicioEm(Hoje());
    FimEm(Hoje());
    PreencherSelecStr();
}

void TDatasSelectF::Dias7ActExecute(QObject *)
{
    constexpr int DiasAntes = 6;
    InicioEm(TDateTime(Hoje().Dias() - DiasAntes));
    FimEm(Hoje());
    PreencherSelecStr();
}

void TDatasSelectF::Dias4ActExecute(QObject *)
{
    InicioEm(TDateTime(MesAnt(Hoje()).Dias() + 1));
    FimEm(Hoje());
    PreencherSelecStr();
}

void TDatasSelectF::MesActExecute(QObject *)
{
    MesInteiro(Hoje());
}

void TDatasSelectF::MesAnteriorActExecute(QObject *)
{
    MesInteiro(IncMonth(Hoje(), -1));
}

void TDatasSelectF::MesSeguinteActExecute(QObject *)
{
    MesInteiro(IncMonth(Hoje(), 1));
}

void TDatasSelectF::LigarEventos()
{
    DeQRadioButton->OnClick = [this](QObject *sender) { DeQRadioButtonClick(sender); };
    DeIRadioButton->OnClick = [this](QObject *sender) { DeIRadioButtonClick(sender); };
    AteQRadioButton->OnClick = [this](QObject *sender) { AteQRadioButtonClick(sender); };
    AteIRadioButton->OnClick = [this](QObject *sender) { AteIRadioButtonClick(sender); };
    MonthCalendar1->OnClick = [this](QObject *sender) { MonthCalendar1Click(sender); };
    MonthCalendar2->OnClick = [this](QObject *sender) { MonthCalendar2Click(sender); };
    Label3->installEventFilter(this);
}

void TDatasSelectF::LigarAcoes()
{
    TodasAct->OnExecute = [this](QObject *sender) { TodasActExecute(sender); };
    AnterioresAct->OnExecute = [this](QObject *sender) { AnterioresActExecute(sender); };
    PosterioresAct->OnExecute = [this](QObject *sender) { PosterioresActExecute(sender); };
    Dias1Act->OnExecute = [this](QObject *sender) { Dias1ActExecute(sender); };
    Dias7Act->OnExecute = [this](QObject *sender) { Dias7ActExecute(sender); };
    Dias4Act->OnExecute = [this](QObject *sender) { Dias4ActExecute(sender); };
    MesAct->OnExecute = [this](QObject *sender) { MesActExecute(sender); };
    MesAnteriorAct->OnExecute = [this](QObject *sender) { MesAnteriorActExecute(sender); };
    MesSeguinteAct->OnExecute = [this](QObject *sender) { MesSeguinteActExecute(sender); };
}

void TDatasSelectF::InicioAberto()
{
    DeQRadioButton->SetChecked(true);
}

void TDatasSelectF::FimAberto()
{
    AteQRadioButton->SetChecked(true);
}

void TDatasSelectF::InicioEm(TDateTime dia)
{
    MonthCalendar1->SetDate(dia);
    DeIRadioButton->SetChecked(true);
}

void TDatasSelectF::FimEm(TDateTime dia)
{
    MonthCalendar2->SetDate(dia);
    AteIRadioButton->SetChecked(true);
}

void TDatasSelectF::MesInteiro(TDateTime dia)
{
    InicioEm(PrimeiroDateMes(dia));
    FimEm(UltimoDateMes(dia));
    PreencherSelecStr();
}

} // namespace ficha
