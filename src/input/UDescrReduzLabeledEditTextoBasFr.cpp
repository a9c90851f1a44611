#include "input/UDescrReduzLabeledEditTextoBasFr.h"

#include "platform/core/TColor.h"
#include "platform/toolkit/Cores.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TLabeledEdit.h"

#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR(TDescrReduzLabeledEditTextoBasFr)

namespace
{
constexpr TColor Verde{32768};
constexpr TColor Vermelho{255};
constexpr int TopoDoContador = 1;
constexpr int VaoDoContador = 2;
} // namespace

TDescrReduzLabeledEditTextoBasFr::TDescrReduzLabeledEditTextoBasFr(TChave chave)
    : TLabeledEditTextoBasFr(chave)
{
    NaoRepetir = true;
    AceitaVazio = false;
}

void TDescrReduzLabeledEditTextoBasFr::Create(QWidget *owner)
{
    TLabeledEditTextoBasFr::Create(owner);
    AoSair(LabeledEdit1, [this] { LabeledEdit1Exit(LabeledEdit1); });
    CriarContador();
    SetMaxLen(maxLen);
}

void TDescrReduzLabeledEditTextoBasFr::Atualizar()
{
    TLabeledEditTextoBasFr::Atualizar();
    if (!ContadorLabel)
        return;
    const QString titulo = cap + QStringLiteral("   Máx:") + QString::number(maxLen) +
                           QStringLiteral(" letras   Atual:");
    const TBoundLabel *rotulo = LabeledEdit1->EditLabel;
    if (rotulo->text() != titulo)
        LabeledEdit1->SetCaption(titulo);
    ContadorLabel->move(rotulo->x() + rotulo->width() + VaoDoContador, TopoDoContador);
    const qsizetype tamanho = LabeledEdit1->text().size();
    SetCorDoWidget(*ContadorLabel, QPalette::WindowText, tamanho <= maxLen ? Verde : Vermelho);
    const QString contagem = QString::number(tamanho);
    if (ContadorLabel->text() == contagem)
        return;
    ContadorLabel->setText(contagem);
    ContadorLabel->adjustSize();
}

bool TDescrReduzLabeledEditTextoBasFr::ValorAceitavel()
{
    return true;
}

void TDescrReduzLabeledEditTextoBasFr::SetMaxLen(int caracteres)
{
    maxLen = caracteres;
    Atualizar();
}

void TDescrReduzLabeledEditTextoBasFr::SetCap(const QString &texto)
{
    if (cap == texto)
        return;
    cap = texto;
    Atualizar();
}

void TDescrReduzLabeledEditTextoBasFr::FrameExit(QObject *) {}

void TDescrReduzLabeledEditTextoBasFr::LabeledEdit1Exit(QObject *)
{
    if (!ValorAceitavel())
        SetFocus();
}

void TDescrReduzLabeledEditTextoBasFr::CriarContador()
{
    ContadorLabel = new QLabel(QStringLiteral("0"), this);
    ContadorLabel->setObjectName(QStringLiteral("ContadorLabel"));
    ContadorLabel->setTextFormat(Qt::PlainText);
    QFont fonte = ContadorLabel->font();
    fonte.setBold(false);
    fonte.setItalic(false);
    fonte.setUnderline(false);
    ContadorLabel->setFont(fonte);
    ContadorLabel->move(0, TopoDoContador);
    ContadorLabel->adjustSize();
    ContadorLabel->show();
}

} // namespace ficha
