#include "platform/edits/TNumEditBR.h"

#include "platform/core/Caracteres.h"
#include "platform/core/Erros.h"
#include "platform/toolkit/Layout.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TNumEditBR)

namespace
{

constexpr int MaisCasas = 9;

QString NaoCabe(const QString &texto)
{
    return QStringLiteral("O número %1 não cabe neste campo.").arg(texto);
}

std::int64_t EscaladoOuErro(const TDecimal &decimal, int casas)
{
    const auto escalado = decimal.Escalado(casas);
    if (!escalado)
        throw EVariantError(NaoCabe(decimal.Inteiro));
    return *escalado;
}

} // namespace

TNumEditBR::TNumEditBR(QWidget *owner) : TLabeledEdit(owner)
{
    SetMascEsq(QStringLiteral("###,###,##0"));
    Reescrever();
}

void TNumEditBR::SetText(const QString &texto)
{
    if (texto.trimmed().isEmpty()) {
        SetDecimal({});
        return;
    }
    const auto decimal = LerDecimal(texto);
    if (!decimal)
        throw EVariantError(QStringLiteral("\"%1\" não é um número.").arg(texto));
    SetDecimal(*decimal);
}

double TNumEditBR::GetValor() const
{
    // Both numbers are exact up to 15 digits, so that the quotient is the nearest double.
    return double(GetEscalado()) / std::pow(10.0, formato.Casas);
}

void TNumEditBR::SetValor(double valor)
{
    const auto decimal = TDecimal::DeDouble(valor);
    if (!decimal)
        throw EVariantError(NaoCabe(QString::number(valor)));
    SetDecimal(*decimal);
}

std::int64_t TNumEditBR::GetEscalado() const
{
    return TTextoNumerico(TextoExibido(), formato).Escalado();
}

void TNumEditBR::SetEscalado(std::int64_t escalado)
{
    SetDecimal(TDecimal::DeEscalado(escalado, formato.Casas));
}

void TNumEditBR::SetValorVariant(const Variant &valor)
{
    if (valor.EhTexto())
        SetText(valor.AsString());
    else if (valor.EhInteiro())
        SetDecimal(TDecimal::DeEscalado(valor.AsInteger(), 0));
    else
        SetValor(valor.AsFloat());
}

Variant TNumEditBR::GetValorVariant() const
{
    const std::int64_t escalado = GetEscalado();
    const bool inteiro = formato.Casas == 0 &&
                         escalado >= std::numeric_limits<std::int32_t>::min() &&
                         escalado <= std::numeric_limits<std::int32_t>::max();
    return inteiro ? Variant(int(escalado)) : Variant(GetValor());
}

QString TNumEditBR::SQLText() const
{
    TFormatoNumerico nu;
    nu.Casas = formato.Casas;
    return FormatarEscalado(GetEscalado(), nu).replace(u',', u'.');
}

void TNumEditBR::SetNCasas(int n)
{
    n = std::clamp(n, 0, MaisCasas);
    if (n == formato.Casas)
        return;
    const TDecimal decimal = TextoExibido() == textoDoOriginal
                                 ? original
                                 : TDecimal::DeEscalado(GetEscalado(), formato.Casas);
    const int antes = formato.Casas;
    formato.Casas = n;
    if (!decimal.Escalado(n)) {
        formato.Casas = antes;
        throw EVariantError(NaoCabe(decimal.Inteiro));
    }
    SetDecimal(decimal);
}

void TNumEditBR::SetNCasasEsq(int n)
{
    formato.CasasEsq = std::max(0, n);
}

void TNumEditBR::SetMascEsq(const QString &mascara)
{
    if (mascara == mascEsq)
        return;
    const std::int64_t escalado = GetEscalado();
    const bool doPrograma = TextoExibido() == textoDoOriginal;
    const TDecimal antes = original;
    mascEsq = mascara;
    formato.LerMascara(mascara);
    SetEscalado(escalado);
    if (doPrograma)
        original = antes;
}

TCustomEdit::TResposta TNumEditBR::Digitar(const TEstado &antes, const QString &texto,
                                           TOrigem origem)
{
    return origem == TOrigem::Teclado ? DigitarTecla(antes, texto.at(0)) : Colar(antes, texto);
}

TCustomEdit::TResposta TNumEditBR::Apagar(const TEstado &antes, TApagar modo)
{
    TTextoNumerico numero(antes.Texto, formato);
    TTextoNumerico::TCursor cursor = numero.CursorEm(antes.Texto, antes.Cursor);
    switch (modo) {
    case TApagar::Selecao:
        cursor = numero.Remover(antes.Texto, antes.Inicio, antes.Fim);
        break;
    case TApagar::Anterior:
        numero.ApagarAnterior(cursor);
        break;
    case TApagar::Seguinte:
        if (antes.Cursor == 0 && numero.Negativo)
            numero.Negativo = false;
        else
            numero.ApagarSeguinte(cursor);
        break;
    case TApagar::AteInicio:
        cursor = numero.Remover(antes.Texto, 0, antes.Cursor);
        break;
    case TApagar::AteFim:
        cursor = numero.Remover(antes.Texto, antes.Cursor, int(antes.Texto.size()));
        break;
    }
    return {TEdicao{numero.Exibir(), numero.PosicaoDe(cursor)}, {}};
}

QString TNumEditBR::TextoDaTecla(const QKeyEvent &evento) const
{
    const bool ponto = evento.key() == Qt::Key_Period || evento.text() == QLatin1String(".");
    return ponto && (evento.modifiers() & Qt::KeypadModifier) ? QStringLiteral(",") : evento.text();
}

void TNumEditBR::AposDigitar()
{
    TLabeledEdit::AposDigitar();
    const TTextoNumerico numero(TextoExibido(), formato);
    const bool cheio = formato.Casas > 0 || numero.Inteiro.size() >= formato.MaxEsq();
    const bool noFim = cursorPosition() == TextoExibido().size();
    if (autoExit && formato.CasasEsq > 0 && cheio && noFim && hasFocus())
        focusNextPrevChild(true);
}

void TNumEditBR::TextoDeFora(const QString &texto)
{
    const auto decimal = LerDecimal(texto);
    const bool cabe = decimal && decimal->Escalado(formato.Casas);
    SetDecimal(cabe ? *decimal : TDecimal());
}

void TNumEditBR::keyPressEvent(QKeyEvent *evento)
{
    const bool entra = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (!entra || !autoExit) {
        TLabeledEdit::keyPressEvent(evento);
        return;
    }
    const QPointer<TNumEditBR> vivo(this);
    Q_EMIT returnPressed();
    evento->accept();
    // A handler may have sent the focus somewhere already.
    if (vivo && hasFocus() && !focusNextPrevChild(true))
        evento->ignore();
}

void TNumEditBR::focusInEvent(QFocusEvent *evento)
{
    TLabeledEdit::focusInEvent(evento);
    if (evento->reason() == Qt::OtherFocusReason && GetAutoSelect())
        selectAll();
}

void TNumEditBR::focusOutEvent(QFocusEvent *evento)
{
    TLabeledEdit::focusOutEvent(evento);
    const bool volta =
        evento->reason() == Qt::ActiveWindowFocusReason || evento->reason() == Qt::PopupFocusReason;
    if (!volta && GetEscalado() == 0 && TextoExibido().startsWith(u'-'))
        SetEscalado(0);
}

/** Shows a number of the program's. */
void TNumEditBR::SetDecimal(const TDecimal &decimal)
{
    const std::int64_t escalado = EscaladoOuErro(decimal, formato.Casas);
    EsquecerEdicoes();
    original = decimal;
    textoDoOriginal = FormatarEscalado(escalado, formato);
    const TTextoNumerico numero(textoDoOriginal, formato);
    TrocarTexto({textoDoOriginal, numero.PosicaoDe({false, 0})}, false);
}

void TNumEditBR::Reescrever()
{
    SetEscalado(GetEscalado());
}

TCustomEdit::TResposta TNumEditBR::DigitarTecla(const TEstado &antes, QChar tecla) const
{
    if (tecla == u'-' || tecla == u'+')
        return Sinal(antes, tecla == u'-');
    const bool virgula = tecla == u',' && formato.Casas > 0;
    const bool digito = tecla >= u'0' && tecla <= u'9';
    if (!virgula && !digito)
        return {};
    TTextoNumerico numero(antes.Texto, formato);
    TTextoNumerico::TCursor cursor = antes.TemSelecao()
                                         ? numero.Remover(antes.Texto, antes.Inicio, antes.Fim)
                                         : numero.CursorEm(antes.Texto, antes.Cursor);
    if (virgula)
        cursor = {true, 0};
    else if (!numero.Digitar(tecla, cursor))
        return {};
    return {TEdicao{numero.Exibir(), numero.PosicaoDe(cursor)}, {}};
}

TCustomEdit::TResposta TNumEditBR::Sinal(const TEstado &antes, bool menos) const
{
    TTextoNumerico numero(antes.Texto, formato);
    TTextoNumerico::TCursor cursor = numero.CursorEm(antes.Texto, antes.Cursor);
    if (menos && antes.TudoSelecionado()) {
        cursor = numero.Remover(antes.Texto, antes.Inicio, antes.Fim);
        numero.Negativo = true;
    } else {
        numero.Negativo = menos && !numero.Negativo;
    }
    return {TEdicao{numero.Exibir(), numero.PosicaoDe(cursor)}, {}};
}

TCustomEdit::TResposta TNumEditBR::Colar(const TEstado &antes, const QString &texto) const
{
    const auto decimal = LerDecimal(texto);
    if (!decimal)
        return {std::nullopt,
                QStringLiteral("\"%1\" não é um número e não foi colado.").arg(texto)};
    const QString nu = texto.trimmed();
    const bool soDigitos = std::all_of(nu.begin(), nu.end(), EhDigito);
    if (soDigitos && !antes.TudoSelecionado())
        return ColarDigitos(antes, nu);
    if (decimal->Decimais.size() > formato.Casas)
        return {std::nullopt,
                QStringLiteral("O número %1 tem %2 casas decimais e este campo aceita %3. Ele não "
                               "foi colado.")
                    .arg(nu)
                    .arg(decimal->Decimais.size())
                    .arg(formato.Casas)};
    if (decimal->Inteiro.size() > formato.MaxEsq())
        return {std::nullopt, NaoCabe(nu)};
    const TTextoNumerico numero(
        FormatarEscalado(decimal->Escalado(formato.Casas).value_or(0), formato), formato);
    const QString exibido = numero.Exibir();
    return {TEdicao{exibido, int(exibido.size())}, {}};
}

/** As if typed at the caret; refused whole when there is no room for all. */
TCustomEdit::TResposta TNumEditBR::ColarDigitos(const TEstado &antes, const QString &digitos) const
{
    TTextoNumerico numero(antes.Texto, formato);
    TTextoNumerico::TCursor cursor = antes.TemSelecao()
                                         ? numero.Remover(antes.Texto, antes.Inicio, antes.Fim)
                                         : numero.CursorEm(antes.Texto, antes.Cursor);
    for (const QChar digito : digitos) {
        if (!numero.Digitar(digito, cursor))
            return {std::nullopt, NaoCabe(digitos)};
    }
    return {TEdicao{numero.Exibir(), numero.PosicaoDe(cursor)}, {}};
}

} // namespace ficha
