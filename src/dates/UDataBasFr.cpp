#include "dates/UDataBasFr.h"

#include "dates/UDataSelectF.h"
#include "dates/UPosicaoDoDialogo.h"
#include "dates/USeculo.h"
#include "platform/core/Relogio.h"
#include "platform/support/Datas.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TMonthCalendar.h"

#include <QLabel>
#include <QPointer>
#include <QScopeGuard>
#include <QScreen>

namespace ficha
{

FICHA_REGISTRAR(TDataBasFr)

namespace
{

/** Where the calendar opens, seen from the frame's corner. */
constexpr int ParaEsquerda = 250;
constexpr int ParaCima = 8;

} // namespace

TDataBasFr::TDataBasFr(TChave chave) : TBasFr(chave) {}

void TDataBasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    AceitaVazio = false;
    SeculoBase = SeculoBasePadrao();
    Tit1Lab->setBuddy(MaskEdit1);
    AoEntrar(MaskEdit1, [this] { MaskEdit1Enter(MaskEdit1); });
    AoSair(MaskEdit1, [this] { MaskEdit1Exit(MaskEdit1); });
    BitBtn1->OnClick = [this](QObject *sender) { BitBtn1Click(sender); };
}

TDateTime TDataBasFr::GetAsDate()
{
    TrateTextPeloSeculo(MaskEdit1);
    return StrLimpaToDate(MaskEdit1->GetText());
}

void TDataBasFr::SetAsDate(TDateTime dia)
{
    PreencherMaskEditStrLimpa(dia, MaskEdit1);
}

QString TDataBasFr::AsSQLFirebird()
{
    return DataSQLFirebird(GetAsDate());
}

void TDataBasFr::Zerar()
{
    MaskEdit1->Clear();
}

QString TDataBasFr::DiaSemanaAbrev()
{
    return FormatDateTime(QStringLiteral("ddd"), GetAsDate());
}

QString TDataBasFr::DiaSemanaExtenso()
{
    return FormatDateTime(QStringLiteral("dddd"), GetAsDate());
}

bool TDataBasFr::Date80()
{
    return GetAsDate() == SemData;
}

bool TDataBasFr::IsValidDate()
{
    if (AceitaVazio && MaskEdit1->GetText().trimmed().isEmpty())
        return true;
    TrateTextPeloSeculo(MaskEdit1);
    return StrLimpaIsValidDate(MaskEdit1->GetText());
}

int TDataBasFr::YearsBetween()
{
    return ficha::YearsBetween(Agora(), GetAsDate());
}

void TDataBasFr::AvancaMes(int n)
{
    SetAsDate(IncMonth(GetAsDate(), n));
}

void TDataBasFr::TrateTextPeloSeculo(TCustomMaskEdit *edit)
{
    const QString antes = edit->GetText();
    const QString depois = DigitosPeloSeculo(antes, SeculoBase, true);
    if (depois != antes)
        edit->SetText(depois);
}

void TDataBasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, Tit1Lab, "Tit1Lab");
    Pegar(this, MaskEdit1, "MaskEdit1");
    Pegar(this, BitBtn1, "BitBtn1");
}

void TDataBasFr::BitBtn1Click(QObject *)
{
    const QPointer<TDataBasFr> vivo(this);
    const QPointer<TDataSelectF> dialogo(Criar<TDataSelectF>(window()));
    const auto fim = qScopeGuard([&dialogo] {
        if (dialogo)
            dialogo->deleteLater();
    });
    dialogo->TitLab->setText(Tit1Lab->text());
    // From the frame's corner, which is in its parent's measure, seen as a point of the frame.
    const QPoint canto = mapToGlobal(geometry().topLeft() + QPoint(width(), height()));
    dialogo->move(PosicaoDoDialogo(canto - QPoint(ParaEsquerda, ParaCima), dialogo->size(),
                                   screen()->availableGeometry()));
    const QString texto = MaskEdit1->GetText();
    dialogo->MonthCalendar1->SetDate(StrLimpaIsValidDate(texto) ? StrLimpaToDate(texto) : Hoje());
    const bool confirmou = dialogo->Executar();
    if (!vivo)
        return;
    if (confirmou && dialogo)
        PreencherMaskEditStrLimpa(dialogo->MonthCalendar1->GetDate(), MaskEdit1);
    MaskEdit1->setFocus();
}

void TDataBasFr::MaskEdit1Enter(QObject *)
{
    MaskEdit1->SetColor(SisD().CorControlSelec);
}

void TDataBasFr::MaskEdit1Exit(QObject *)
{
    TrateTextPeloSeculo(MaskEdit1);
    MaskEdit1->SetColor(SisD().CorControlDesselec);
}

} // namespace ficha
