#include "platform/edits/TFoneEditBR.h"

#include "platform/toolkit/Layout.h"

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TFoneEditBR)

namespace
{

constexpr int DigitosFixo = 8;
constexpr int DigitosCelular = 9;

bool EhDigito(QChar c)
{
    return c >= u'0' && c <= u'9';
}

QString Digitos(const QString &texto)
{
    QString digitos = texto;
    return digitos.removeIf([](QChar c) { return !EhDigito(c); });
}

/** Digits with what people write between them; no letters. */
bool EhNumero(const QString &texto)
{
    return std::all_of(texto.begin(), texto.end(), [](QChar c) {
        return EhDigito(c) || c == u'-' || c == u' ' || c == u'.' || c == u'(' || c == u')' ||
               c == QChar::Nbsp;
    });
}

QString Formatar(const QString &digitos)
{
    const auto n = digitos.size();
    const bool celular = n == DigitosCelular || (n < DigitosFixo && digitos.startsWith(u'9'));
    const int antes = celular ? 5 : 4;
    return n > antes ? digitos.left(antes) + u'-' + digitos.mid(antes) : digitos;
}

int DigitosAntes(const QString &texto, int posicao)
{
    return int(std::count_if(texto.begin(), texto.begin() + posicao, EhDigito));
}

/** The position behind the n-th digit. */
int PosicaoDe(const QString &texto, int digitos)
{
    int i = 0;
    while (digitos > 0 && i < texto.size()) {
        digitos -= EhDigito(texto.at(i)) ? 1 : 0;
        ++i;
    }
    return i;
}

bool Formatado(const QString &texto)
{
    return texto == Formatar(Digitos(texto));
}

} // namespace

TFoneEditBR::TFoneEditBR(QWidget *owner) : TLabeledEdit(owner)
{
    SetMaxLength(DigitosCelular + 1);
}

void TFoneEditBR::SetText(const QString &texto)
{
    EsquecerEdicoes();
    const QString digitos = Digitos(texto);
    const bool numero =
        EhNumero(texto) && (digitos.size() == DigitosFixo || digitos.size() == DigitosCelular);
    const QString exibido = numero ? Formatar(digitos) : texto;
    TrocarTexto({exibido, int(exibido.size())}, false);
}

QString TFoneEditBR::SoDigitos() const
{
    return Digitos(GetText());
}

TCustomEdit::TResposta TFoneEditBR::Digitar(const TEstado &antes, const QString &texto,
                                            TOrigem origem)
{
    const bool colagem = origem == TOrigem::Colagem;
    const QString novos = Digitos(texto);
    const QString recusa =
        colagem ? QStringLiteral("O texto \"%1\" não é um telefone de oito ou nove dígitos e não "
                                 "foi colado.\r\nO DDD tem o seu próprio campo.")
                      .arg(texto)
                : QString();
    if (novos.isEmpty() || !EhNumero(texto))
        return {std::nullopt, recusa};
    if (!Formatado(antes.Texto) && !antes.TudoSelecionado())
        return {std::nullopt, recusa};
    QString digitos = Digitos(antes.Texto);
    const int inicio = DigitosAntes(antes.Texto, antes.Inicio);
    digitos.remove(inicio, DigitosAntes(antes.Texto, antes.Fim) - inicio);
    if (antes.TudoSelecionado())
        digitos.clear();
    digitos.insert(inicio, novos);
    if (!CabeNoEdit(digitos))
        return {std::nullopt, recusa};
    const QString exibido = Formatar(digitos);
    return {TEdicao{exibido, PosicaoDe(exibido, inicio + int(novos.size()))}, {}};
}

TCustomEdit::TResposta TFoneEditBR::Apagar(const TEstado &antes, TApagar modo)
{
    int inicio = antes.Inicio;
    int fim = antes.Fim;
    const bool salta = Formatado(antes.Texto);
    const auto separador = [&](int i) {
        return salta && i >= 0 && i < antes.Texto.size() && !EhDigito(antes.Texto.at(i));
    };
    if (modo == TApagar::Anterior)
        inicio -= separador(inicio - 1) ? 2 : 1;
    else if (modo == TApagar::Seguinte)
        fim += separador(fim) ? 2 : 1;
    else if (modo == TApagar::AteInicio)
        inicio = 0;
    else if (modo == TApagar::AteFim)
        fim = int(antes.Texto.size());
    inicio = std::max(0, inicio);
    fim = std::min(fim, int(antes.Texto.size()));
    if (inicio >= fim)
        return {};
    QString resto = antes.Texto;
    resto.remove(inicio, fim - inicio);
    const QString digitos = Digitos(resto);
    const int cursor = DigitosAntes(antes.Texto, inicio);
    if (!EhNumero(resto) || !CabeNoEdit(digitos))
        return {TEdicao{resto, inicio}, {}};
    const QString exibido = Formatar(digitos);
    return {TEdicao{exibido, PosicaoDe(exibido, cursor)}, {}};
}

void TFoneEditBR::AposDigitar()
{
    TLabeledEdit::AposDigitar();
    const QString digitos = SoDigitos();
    const bool fixo = !digitos.isEmpty() && digitos.at(0) >= u'2' && digitos.at(0) <= u'5';
    const bool completo = digitos.size() == (fixo ? DigitosFixo : DigitosCelular);
    if (autoExit && completo && hasFocus() && cursorPosition() == TextoExibido().size())
        focusNextPrevChild(true);
}

void TFoneEditBR::TextoDeFora(const QString &texto)
{
    SetText(texto);
}

bool TFoneEditBR::CabeNoEdit(const QString &digitos) const
{
    return digitos.size() <= DigitosCelular &&
           (GetMaxLength() == 0 || Formatar(digitos).size() <= GetMaxLength());
}

} // namespace ficha
