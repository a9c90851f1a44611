#include "dates/UDatasBasFr.h"

#include "dates/UDatasSelectF.h"
#include "dates/UPosicaoDoDialogo.h"
#include "dates/USeculo.h"
#include "platform/core/Relogio.h"
#include "platform/support/Datas.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TMonthCalendar.h"
#include "platform/toolkit/TRadioButton.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QScopeGuard>
#include <QScreen>

namespace ficha
{

FICHA_REGISTRAR(TDatasBasFr)

namespace
{

/** One end of the range in the dialog: its calendar where the edit has a date, else open. */
void MostrarLado(const TMaskEdit &edit, TMonthCalendar &calendario, TRadioButton &indicada,
                 TRadioButton &qualquer)
{
    const bool temData = StrLimpaIsValidDate(edit.GetText());
    if (temData)
        calendario.SetDate(StrLimpaToDate(edit.GetText()));
    (temData ? indicada : qualquer).SetChecked(true);
}

void PegarLado(TMaskEdit &edit, const TMonthCalendar &calendario, const TRadioButton &qualquer)
{
    if (qualquer.GetChecked())
        edit.Clear();
    else
        PreencherMaskEditStrLimpa(calendario.GetDate(), &edit);
}

} // namespace

TDatasBasFr::TDatasBasFr(TChave chave) : TBasFr(chave) {}

void TDatasBasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    DtSelectBitBtn->OnClick = [this](QObject *sender) { DtSelectBitBtnClick(sender); };
    AoSair(MaskEdit1, [this] { MaskEdit1Exit(MaskEdit1); });
    AoSair(MaskEdit2, [this] { MaskEdit2Exit(MaskEdit2); });
}

TDateTime TDatasBasFr::GetAsDate1()
{
    return Ler(MaskEdit1);
}

TDateTime TDatasBasFr::GetAsDate2()
{
    return Ler(MaskEdit2);
}

void TDatasBasFr::SetAsDate1(TDateTime dia)
{
    PreencherMaskEditStrLimpa(dia, MaskEdit1);
}

void TDatasBasFr::SetAsDate2(TDateTime dia)
{
    PreencherMaskEditStrLimpa(dia, MaskEdit2);
}

QString TDatasBasFr::AsSQLFirebird1()
{
    return DataSQLFirebird(GetAsDate1());
}

QString TDatasBasFr::AsSQLFirebird2()
{
    return DataSQLFirebird(GetAsDate2());
}

bool TDatasBasFr::EscolheuDt1()
{
    return GetAsDate1() != SemData;
}

bool TDatasBasFr::EscolheuDt2()
{
    return GetAsDate2() != SemData;
}

bool TDatasBasFr::DataNaFaixa(TDateTime momento)
{
    if (EscolheuDt1() && GetAsDate1() > momento)
        return false;
    return !EscolheuDt2() || GetAsDate2() >= momento;
}

QString TDatasBasFr::WhereStr(const QString &campo)
{
    QString condicao;
    if (EscolheuDt1())
        condicao = campo + QStringLiteral(">=") + AsSQLFirebird1();
    if (EscolheuDt2()) {
        if (!condicao.isEmpty())
            condicao += QStringLiteral(" and ");
        condicao += campo + QStringLiteral("<=") + AsSQLFirebird2();
    }
    return condicao.isEmpty() ? condicao : u'(' + condicao + u')';
}

QString TDatasBasFr::FaixaString(const QString &formato)
{
    const QString inicio = FormatDateTime(formato, GetAsDate1());
    const QString fim = FormatDateTime(formato, GetAsDate2());
    if (!EscolheuDt1())
        return EscolheuDt2() ? fim + QStringLiteral(" e anteriores")
                             : QStringLiteral("Todas as datas");
    if (!EscolheuDt2())
        return inicio + QStringLiteral(" e posteriores");
    return QStringLiteral("De ") + inicio + QStringLiteral(" ate ") + fim;
}

QString TDatasBasFr::StringConfig()
{
    return DatesToStrConfig(GetAsDate1(), GetAsDate2());
}

void TDatasBasFr::PegarStringConfig(const QString &texto)
{
    TDateTime inicio;
    TDateTime fim;
    StrConfigToDates(texto, inicio, fim);
    SetAsDate1(inicio);
    SetAsDate2(fim);
}

void TDatasBasFr::PegarMesAnterior()
{
    const TDateTime umMesAntes = IncMonth(Hoje(), -1);
    SetAsDate1(PrimeiroDateMes(umMesAntes));
    SetAsDate2(UltimoDateMes(umMesAntes));
}

void TDatasBasFr::Zerar()
{
    MaskEdit1->Clear();
    MaskEdit2->Clear();
}

void TDatasBasFr::TrateTextPeloSeculo(TMaskEdit *edit)
{
    const QString texto = edit->GetText();
    const QString tratado = DigitosPeloSeculo(texto, SeculoBase, false);
    // What is so already is not written: the caret and what can be undone stay.
    if (tratado != texto)
        edit->SetText(tratado);
}

void TDatasBasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, Label2, "Label2");
    Pegar(this, DtSelectBitBtn, "DtSelectBitBtn");
    Pegar(this, MaskEdit2, "MaskEdit2");
    Pegar(this, MaskEdit1, "MaskEdit1");
}

void TDatasBasFr::DtSelectBitBtnClick(QObject *)
{
    const QPointer<TDatasSelectF> dialogo = Criar<TDatasSelectF>(this);
    const auto destruir = qScopeGuard([&dialogo] { delete dialogo; });
    Posicionar(*dialogo);
    MostrarNoDialogo(*dialogo);
    // A frame that is destroyed meanwhile takes its dialog along.
    if (dialogo->Executar() && dialogo)
        PegarDoDialogo(*dialogo);
}

void TDatasBasFr::MaskEdit1Exit(QObject *)
{
    TrateTextPeloSeculo(MaskEdit1);
}

void TDatasBasFr::MaskEdit2Exit(QObject *)
{
    TrateTextPeloSeculo(MaskEdit2);
}

TDateTime TDatasBasFr::Ler(TMaskEdit *edit)
{
    TrateTextPeloSeculo(edit);
    return StrLimpaToDate(edit->GetText());
}

void TDatasBasFr::Posicionar(TDatasSelectF &dialogo)
{
    const QRect botao = DtSelectBitBtn->geometry();
    const QScreen *tela = QGuiApplication::screenAt(mapToGlobal(botao.center()));
    if (!tela)
        tela = screen();
    const QPoint canto = mapToGlobal(botao.topLeft() + QPoint(botao.width(), botao.height()));
    dialogo.move(PosicaoDoDialogo(canto, dialogo.size(), tela->availableGeometry()));
}

void TDatasBasFr::MostrarNoDialogo(TDatasSelectF &dialogo)
{
    TrateTextPeloSeculo(MaskEdit1);
    MostrarLado(*MaskEdit1, *dialogo.MonthCalendar1, *dialogo.DeIRadioButton,
                *dialogo.DeQRadioButton);
    TrateTextPeloSeculo(MaskEdit2);
    MostrarLado(*MaskEdit2, *dialogo.MonthCalendar2, *dialogo.AteIRadioButton,
                *dialogo.AteQRadioButton);
    dialogo.PreencherSelecStr();
}

void TDatasBasFr::PegarDoDialogo(const TDatasSelectF &dialogo)
{
    PegarLado(*MaskEdit1, *dialogo.MonthCalendar1, *dialogo.DeQRadioButton);
    PegarLado(*MaskEdit2, *dialogo.MonthCalendar2, *dialogo.AteQRadioButton);
}

} // namespace ficha
