#include "demo/UCriterios.h"

#include "dates/UComboCodOpcionalFr.h"
#include "dates/UDatasBasFr.h"
#include "dates/UNumOpcionalFr.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/UNumEditBRBasFr.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TRadioGroup.h"

using namespace ficha;

namespace comercial
{

namespace
{

enum TSituacao { Todos, Ativos, Inativos };

} // namespace

void TCriterios::JuntarGrupo(const TComboCodOpcionalFr &fr, const QString &coluna)
{
    const TComboBoxCodBasFr *grupo = fr.ComboBoxCodFr;
    if (fr.AtivoCheckBox->isChecked() && grupo->GetValor() != Variant(0))
        Juntar(coluna + u'=' + grupo->SQLString(),
               QStringLiteral("do grupo ") + grupo->ComboBox1->currentText());
}

void TCriterios::JuntarNumero(const TNumOpcionalFr &fr, const QString &coluna, const QString &sinal,
                              const QString &frase)
{
    const TNumEditBRBasFr *numero = fr.TNumEditBRBasFr1;
    if (fr.AtivoCheckBox->isChecked())
        Juntar(coluna + sinal + numero->SQLString(), frase + numero->NumEditBR1->text());
}

void TCriterios::JuntarSituacao(const TRadioGroup &grupo, const QString &coluna)
{
    if (grupo.GetItemIndex() == Ativos)
        Juntar(coluna + QStringLiteral("='S'"), QStringLiteral("ativos"));
    else if (grupo.GetItemIndex() == Inativos)
        Juntar(coluna + QStringLiteral("='N'"), QStringLiteral("inativos"));
}

void TCriterios::JuntarCadastro(TDatasBasFr &fr, const QString &coluna)
{
    const QString periodo = fr.WhereStr(coluna);
    if (!periodo.isEmpty())
        Juntar(periodo,
               QStringLiteral("cadastro: ") + fr.FaixaString(QStringLiteral("dd/mm/yyyy")));
}

QString TCriterios::Where() const
{
    return Vazio() ? QString()
                   : QStringLiteral("where ") + condicoes.join(QStringLiteral(" and ")) + u' ';
}

QString TCriterios::Status(const QString &coisas) const
{
    return Vazio()
               ? QStringLiteral("Exibindo todos os ") + coisas
               : QStringLiteral("Exibindo os %1 ").arg(coisas) + frases.join(QStringLiteral(", "));
}

void TCriterios::Juntar(const QString &condicao, const QString &frase)
{
    condicoes << condicao;
    frases << frase;
}

void Desligar(TComboCodOpcionalFr &fr)
{
    fr.AtivoCheckBox->setChecked(false);
    fr.ComboBoxCodFr->Zerar();
}

void Desligar(TNumOpcionalFr &fr)
{
    fr.AtivoCheckBox->setChecked(false);
    fr.TNumEditBRBasFr1->Zerar();
}

} // namespace comercial
