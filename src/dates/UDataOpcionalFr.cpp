#include "dates/UDataOpcionalFr.h"

#include "dates/UDTPBasFr.h"
#include "dates/UDatasFr.h"
#include "input/UUpDownBRFr.h"
#include "platform/core/Relogio.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/support/Datas.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TRadioButton.h"
#include "platform/toolkit/TUpDown.h"

#include <QLabel>
#include <QMouseEvent>

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR(TDataOpcionalFr)

namespace
{

constexpr int DiasDaSemana = 7;

TDateTime Somar(TDateTime dia, double dias)
{
    return TDateTime(dia.Dias() + dias);
}

} // namespace

TDataOpcionalFr::TDataOpcionalFr(TChave chave) : TOpcionalBasFr(chave) {}

void TDataOpcionalFr::Create(QWidget *owner)
{
    TOpcionalBasFr::Create(owner);
    DataInicial = Hoje();
    DataFinal = Somar(Hoje(), 1);
    ColorirTitulo();
    LigarRadios();
    LigarNumero(DiasUpDownBRFr, &TDataOpcionalFr::DiasUpDownBRFrUpDown1MouseUp);
    LigarNumero(SemanasUpDownBRFr, &TDataOpcionalFr::SemanasUpDownBRFrUpDown1MouseUp);
    LigarNumero(MesesUpDownBRFr, &TDataOpcionalFr::MesesUpDownBRFrUpDown1MouseUp);
    LigarFaixa();
}

void TDataOpcionalFr::Atualizar()
{
    TOpcionalBasFr::Atualizar();
    if (!AtivoCheckBox->isChecked())
        return;
    if (DiasRadioButton->isChecked())
        AjustarParaDias();
    else if (SemanasRadioButton->isChecked())
        AjustarParaSemanas();
    else if (MesesRadioButton->isChecked())
        AjustarParaMeses();
    else
        AjustarParaFaixa();
    FaixaTexto = QStringLiteral(" entre ") + DataInicial.TextoData() + QStringLiteral(" e ") +
                 Somar(DataFinal, -1).TextoData();
}

QString TDataOpcionalFr::WhereStr(const QString &campo) const
{
    if (!AtivoCheckBox->isChecked())
        return {};
    return u' ' + campo + QStringLiteral(">=") + DataSQLFirebird(DataInicial) +
           QStringLiteral(" and ") + campo + u'<' + DataSQLFirebird(DataFinal);
}

void TDataOpcionalFr::AjustarParaDias()
{
    DataFinal = Somar(Hoje(), 1);
    DataInicial = Somar(DataFinal, -DiasUpDownBRFr->UpDown1->GetPosition());
}

void TDataOpcionalFr::AjustarParaSemanas()
{
    DataFinal = Somar(Hoje(), 1);
    DataInicial = Somar(DataFinal, -DiasDaSemana * SemanasUpDownBRFr->UpDown1->GetPosition());
}

void TDataOpcionalFr::AjustarParaMeses()
{
    DataFinal = Somar(Hoje(), 1);
    DataInicial = DataFinal;
    for (int n = MesesUpDownBRFr->UpDown1->GetPosition(); n >= 1; --n)
        DataInicial = MesAnt(DataInicial);
}

void TDataOpcionalFr::AjustarParaFaixa()
{
    DataInicial = TDateTime(DatasFr1->DTPFr1->GetValor().AsFloat());
    DataFinal = TDateTime(DatasFr1->DTPFr2->GetValor().AsFloat() + 1);
}

void TDataOpcionalFr::PegarComponentes()
{
    TOpcionalBasFr::PegarComponentes();
    Pegar(this, DiasRadioButton, "DiasRadioButton");
    Pegar(this, SemanasRadioButton, "SemanasRadioButton");
    Pegar(this, MesesRadioButton, "MesesRadioButton");
    Pegar(this, FaixaRadioButton, "FaixaRadioButton");
    Pegar(this, DiasUpDownBRFr, "DiasUpDownBRFr");
    Pegar(this, SemanasUpDownBRFr, "SemanasUpDownBRFr");
    Pegar(this, MesesUpDownBRFr, "MesesUpDownBRFr");
    Pegar(this, DatasFr1, "DatasFr1");
    Pegar(this, Label3, "Label3");
}

void TDataOpcionalFr::DiasRadioButtonMouseUp(QObject *)
{
    FocarNumero(DiasUpDownBRFr);
}

void TDataOpcionalFr::SemanasRadioButtonMouseUp(QObject *)
{
    FocarNumero(SemanasUpDownBRFr);
}

void TDataOpcionalFr::MesesRadioButtonMouseUp(QObject *)
{
    FocarNumero(MesesUpDownBRFr);
}

void TDataOpcionalFr::FaixaRadioButtonMouseUp(QObject *)
{
    DatasFr1->DTPFr1->SetFocus();
}

void TDataOpcionalFr::DiasUpDownBRFrUpDown1MouseUp(QObject *)
{
    DiasRadioButton->SetChecked(true);
}

void TDataOpcionalFr::SemanasUpDownBRFrUpDown1MouseUp(QObject *)
{
    SemanasRadioButton->SetChecked(true);
}

void TDataOpcionalFr::MesesUpDownBRFrUpDown1MouseUp(QObject *)
{
    MesesRadioButton->SetChecked(true);
}

void TDataOpcionalFr::DTPFr1DateTimePicker1Change(QObject *sender)
{
    DatasFr1->DTPFr1->DateTimePicker1Change(sender);
    FaixaRadioButton->SetChecked(true);
}

void TDataOpcionalFr::DTPFr2DateTimePicker1Change(QObject *sender)
{
    DatasFr1->DTPFr2->DateTimePicker1Change(sender);
    FaixaRadioButton->SetChecked(true);
}

void TDataOpcionalFr::DTPFr1DateTimePicker1Click(QObject *sender)
{
    DatasFr1->DTPFr1->DateTimePicker1Click(sender);
}

void TDataOpcionalFr::DTPFr2DateTimePicker1Click(QObject *sender)
{
    DatasFr1->DTPFr2->DateTimePicker1Click(sender);
}

void TDataOpcionalFr::DTPFr1TitLabelClick(QObject *)
{
    FaixaRadioButton->SetChecked(true);
}

void TDataOpcionalFr::DTPFr2TitLabelClick(QObject *)
{
    FaixaRadioButton->SetChecked(true);
}

void TDataOpcionalFr::DiasRadioButtonClick(QObject *) {}
void TDataOpcionalFr::SemanasRadioButtonClick(QObject *) {}
void TDataOpcionalFr::MesesRadioButtonClick(QObject *) {}
void TDataOpcionalFr::FaixaRadioButtonClick(QObject *) {}

/** Runs the handler of a released button after the control itself took it: a radio button that
 * loses the focus in the middle of a click is not checked. */
bool TDataOpcionalFr::eventFilter(QObject *objeto, QEvent *evento)
{
    const TSolto solto =
        evento->type() == QEvent::MouseButtonRelease ? soltos.value(objeto) : TSolto();
    const auto *mouse = static_cast<const QMouseEvent *>(evento);
    if (!solto.Handler || mouse->button() != Qt::LeftButton)
        return TOpcionalBasFr::eventFilter(objeto, evento);
    const auto *controle = static_cast<const QWidget *>(objeto);
    const bool dentro =
        controle->isEnabled() && controle->rect().contains(mouse->position().toPoint());
    const QPointer<TDataOpcionalFr> vivo(this);
    objeto->event(evento);
    if (vivo && dentro)
        Protegido([&] { (this->*solto.Handler)(solto.Sender); });
    return true;
}

void TDataOpcionalFr::LigarRadios()
{
    AoSoltar(DiasRadioButton, DiasRadioButton, &TDataOpcionalFr::DiasRadioButtonMouseUp);
    AoSoltar(SemanasRadioButton, SemanasRadioButton, &TDataOpcionalFr::SemanasRadioButtonMouseUp);
    AoSoltar(MesesRadioButton, MesesRadioButton, &TDataOpcionalFr::MesesRadioButtonMouseUp);
    AoSoltar(FaixaRadioButton, FaixaRadioButton, &TDataOpcionalFr::FaixaRadioButtonMouseUp);
    DiasRadioButton->OnClick = [this](QObject *s) { DiasRadioButtonClick(s); };
    SemanasRadioButton->OnClick = [this](QObject *s) { SemanasRadioButtonClick(s); };
    MesesRadioButton->OnClick = [this](QObject *s) { MesesRadioButtonClick(s); };
    FaixaRadioButton->OnClick = [this](QObject *s) { FaixaRadioButtonClick(s); };
}

/** The title has the colour of windows, switched off as well: it shows where a screen gives the
 * frame a darker ground. On its own ground the check box's caption is the title. */
void TDataOpcionalFr::ColorirTitulo()
{
    QPalette paleta = Label3->palette();
    paleta.setColor(QPalette::WindowText, paleta.color(QPalette::Active, QPalette::Base));
    Label3->setPalette(paleta);
}

/** The pickers tell this frame, which hands on to the frames that they are in. */
void TDataOpcionalFr::LigarFaixa()
{
    TDTPBasFr *de = DatasFr1->DTPFr1;
    TDTPBasFr *ate = DatasFr1->DTPFr2;
    de->DateTimePicker1->OnChange = [this](QObject *s) { DTPFr1DateTimePicker1Change(s); };
    de->DateTimePicker1->OnClick = [this](QObject *s) { DTPFr1DateTimePicker1Click(s); };
    ate->DateTimePicker1->OnChange = [this](QObject *s) { DTPFr2DateTimePicker1Change(s); };
    ate->DateTimePicker1->OnClick = [this](QObject *s) { DTPFr2DateTimePicker1Click(s); };
    AoSoltar(de->TitLabel, de->TitLabel, &TDataOpcionalFr::DTPFr1TitLabelClick);
    AoSoltar(ate->TitLabel, ate->TitLabel, &TDataOpcionalFr::DTPFr2TitLabelClick);
}

/** Whatever way the user changes a number checks its mode, and what is typed is the spin button's
 * position, too. */
void TDataOpcionalFr::LigarNumero(TUpDownBRFr *frame, THandler mudou)
{
    TUpDown *passos = frame->UpDown1;
    AoSoltar(passos, passos, mudou);
    for (auto *seta : passos->findChildren<QWidget *>())
        AoSoltar(seta, passos, mudou);
    passos->OnClick = [this, mudou, passos, antes = passos->OnClick](QObject *s, bool paraCima) {
        const QPointer<TDataOpcionalFr> vivo(this);
        antes(s, paraCima);
        if (vivo)
            (this->*mudou)(passos);
    };
    Ligar(frame->NumEditBR1, &TNumEditBR::textEdited, this, [this, frame, mudou] {
        const double numero = frame->GetValor().AsFloat();
        frame->UpDown1->SetPosition(int(std::clamp(numero, 0.0, 32767.0)));
        (this->*mudou)(frame->UpDown1);
    });
}

void TDataOpcionalFr::AoSoltar(QWidget *controle, QObject *sender, THandler handler)
{
    soltos.insert(controle, {sender, handler});
    controle->installEventFilter(this);
}

void TDataOpcionalFr::FocarNumero(TUpDownBRFr *frame)
{
    frame->NumEditBR1->setFocus();
    frame->NumEditBR1->selectAll();
}

} // namespace ficha
