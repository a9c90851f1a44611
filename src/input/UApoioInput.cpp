#include "input/UApoioInput.h"

#include "platform/support/Textos.h"
#include "platform/toolkit/Teclas.h"

#include <QWidget>

namespace ficha
{

void LigarFrase(TLinhas &frases, int i, bool ligada)
{
    if (i < frases.Count())
        frases.SetObjeto(i, ligada ? 1 : 0);
}

void LigarFraseDoMaximo(TLinhas &frases, qsizetype tamanho, int maximo)
{
    if (maximo <= 0 || FraseMaxCaracteres >= frases.Count())
        return;
    const bool cheio = tamanho == maximo;
    frases.SetObjeto(FraseMaxCaracteres, cheio ? 1 : 0);
    if (cheio)
        frases.SetTexto(FraseMaxCaracteres, QStringLiteral("Máx ") + QString::number(maximo) +
                                                QStringLiteral(" caracs."));
}

bool IniciaEdicao(QChar caractere)
{
    return QStringView(u" 1234567890!@#$%&*()QWERTYUIOPÇLKJHGFDSAZXCVBNMqwertyuiopçlkjhgfdsazxcvbnm"
                       u"<>,.;:/\\|?]}[{=-_+")
        .contains(caractere);
}

QString SQLDoCaractere(int n)
{
    return QuotedStr(QChar(char16_t(unsigned(n) + 32U)));
}

void AvancarComEnter(int &tecla, QWidget &para)
{
    if (tecla != VK_RETURN || !para.isVisible() || !para.isEnabled())
        return;
    // First: what is left may open a message box and be gone behind it.
    tecla = 0;
    para.setFocus(Qt::TabFocusReason);
}

QString TextoForaDosLimites(const QString &rotulo, int minimo, int maximo)
{
    const QString inicio =
        rotulo.isEmpty() ? QStringLiteral("Deve") : rotulo + QStringLiteral(" deve");
    return inicio + QStringLiteral(" estar entre ") + QString::number(minimo) +
           QStringLiteral(" e ") + QString::number(maximo) +
           QStringLiteral(". Ajuste o seu valor ou clique em Cancelar.");
}

QString TextoDocumentoInvalido(const QString &documento)
{
    return documento + QStringLiteral(" Inválido\r\nDigite o valor correto ou clique em Cancelar.");
}

} // namespace ficha
