#include "input/UBarCodBasFr.h"

#include "input/UApoioInput.h"
#include "input/UBarCodes.h"
#include "platform/support/Mensagens.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Colagem.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TLabeledEdit.h"

namespace ficha
{

FICHA_REGISTRAR(TBarCodBasFr)

namespace
{

/** Where the frame's own phrase stands. */
constexpr int FraseCodBarInvalido = 3;
/** A refused text is named in the message as far as it can be read there. */
constexpr int MaiorCitacao = 60;

/** What people write between the groups of a code. */
bool EhSeparador(QChar c)
{
    return c.isSpace() || c == u'-' || c == u'.';
}

QString Citado(const QString &texto)
{
    return texto.size() <= MaiorCitacao ? texto : texto.left(MaiorCitacao) + QStringLiteral("...");
}

} // namespace

TBarCodBasFr::TBarCodBasFr(TChave chave) : TLabeledEditTextoBasFr(chave) {}

void TBarCodBasFr::Create(QWidget *owner)
{
    TLabeledEditTextoBasFr::Create(owner);
    Frases.Add(QStringLiteral("Cód.Bar. inválido"));
    NaoRepetir = true;
    AoColar(LabeledEdit1, [this](QString &texto) { return LabeledEdit1Colar(texto); });
}

bool TBarCodBasFr::ValorAceitavel()
{
    if (!TLabeledEditTextoBasFr::ValorAceitavel())
        return false;
    const QString codigo = AsString();
    const bool valido =
        !ValidarCodBar || codigo.isEmpty() || (EhSoDig(codigo) && BarCodValido(codigo));
    LigarFrase(Frases, FraseCodBarInvalido, !valido);
    if (!valido)
        MensagemAviso(QStringLiteral("Código de barras inválido. Corrija o ou deixe o campo em "
                                     "branco."),
                      0);
    return valido;
}

void TBarCodBasFr::LabeledEdit1KeyPress(QObject *sender, QChar &caractere)
{
    TLabeledEditTextoBasFr::LabeledEdit1KeyPress(sender, caractere);
    // Keys that type no character (Tab, Enter, Esc, copy and paste) come as control characters.
    const bool digita = caractere.unicode() >= u' ';
    if (digita && (caractere < u'0' || caractere > u'9'))
        caractere = QChar();
}

QString TBarCodBasFr::LabeledEdit1Colar(QString &texto)
{
    const QString original = texto.trimmed();
    texto.removeIf(EhSeparador);
    if (original.isEmpty())
        return {};
    if (!EhSoDig(texto))
        return QStringLiteral("O texto \"%1\" não é um código de barras e não foi colado.")
            .arg(Citado(original));
    const int maximo = LabeledEdit1->GetMaxLength();
    const auto ficam = LabeledEdit1->text().size() - LabeledEdit1->selectedText().size();
    if (maximo > 0 && texto.size() > maximo - ficam)
        return QStringLiteral("O texto \"%1\" não cabe neste campo de %2 dígitos e não foi colado.")
            .arg(Citado(original))
            .arg(maximo);
    return {};
}

} // namespace ficha
