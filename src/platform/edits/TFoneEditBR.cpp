#include "platform/edits/TFoneEditBR.h"

#include "platform/core/Documentos.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Layout.h"

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TFoneEditBR)

namespace
{

constexpr int DigitosFixo = 8;
constexpr int DigitosCelular = 9;

/** Digits with what people write between them; no letters. */
bool EhNumero(const QString &texto)
{
    return std::all_of(texto.begin(), texto.end(), [](QChar c) {
        return EhDigito(c) || c == u'-' || c == u' ' || c == u'.' || c == u'(' || c == u')' ||
               c == QChar::Nbsp;
    });
}

} // namespace

TFoneEditBR::TFoneEditBR(QWidget *owner) : TEditFormatadoBR(owner)
{
    SetMaxLength(DigitosCelular + 1);
}

QString TFoneEditBR::SoDigitos() const
{
    return SoDig(GetText());
}

std::optional<QString> TFoneEditBR::SemSeparadores(const QString &texto) const
{
    return EhNumero(texto) ? std::optional(SoDig(texto)) : std::nullopt;
}

QString TFoneEditBR::Formatar(const QString &nu) const
{
    const auto n = nu.size();
    const bool celular = n == DigitosCelular || (n < DigitosFixo && nu.startsWith(u'9'));
    const int antes = celular ? 5 : 4;
    return n > antes ? nu.left(antes) + u'-' + nu.mid(antes) : nu;
}

bool TFoneEditBR::TemLugar(const QString &nu) const
{
    return nu.size() <= DigitosCelular;
}

bool TFoneEditBR::Completo(const QString &nu) const
{
    return nu.size() == DigitosCelular || TipoDoFone(nu) == TTipoFone::Fixo;
}

bool TFoneEditBR::FormataDoPrograma(const QString &texto) const
{
    const auto n = SoDig(texto).size();
    return n == DigitosFixo || n == DigitosCelular;
}

QString TFoneEditBR::RecusaDaColagem(const QString &texto) const
{
    return QStringLiteral("O texto \"%1\" não é um telefone de oito ou nove dígitos e não foi "
                          "colado.\r\nO DDD tem o seu próprio campo.")
        .arg(Citado(texto));
}

} // namespace ficha
