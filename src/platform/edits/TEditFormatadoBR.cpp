#include "platform/edits/TEditFormatadoBR.h"

#include "platform/core/Caracteres.h"

#include <QFocusEvent>

#include <algorithm>

namespace ficha
{

namespace
{

/** Not a separator, in a text that is in form. */
bool EhCaractere(QChar c)
{
    return EhDigito(c) || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

int CaracteresAntes(const QString &texto, int posicao)
{
    return int(std::count_if(texto.begin(), texto.begin() + posicao, EhCaractere));
}

/** The position behind the n-th character. */
int PosicaoDe(const QString &texto, int n)
{
    int i = 0;
    while (n > 0 && i < texto.size()) {
        n -= EhCaractere(texto.at(i)) ? 1 : 0;
        ++i;
    }
    return i;
}

} // namespace

TEditFormatadoBR::TEditFormatadoBR(QWidget *owner) : TLabeledEdit(owner) {}

void TEditFormatadoBR::SetText(const QString &texto)
{
    EsquecerEdicoes();
    const auto nu = SemSeparadores(texto);
    const bool emForma = nu && TemLugar(*nu) && FormataDoPrograma(texto);
    const QString exibido = emForma ? Formatar(*nu) : texto;
    TrocarTexto({exibido, int(exibido.size())}, false);
}

QString TEditFormatadoBR::Citado(const QString &texto)
{
    constexpr int Maior = 60;
    return texto.size() > Maior ? texto.left(Maior) + QStringLiteral("...") : texto;
}

std::optional<QString> TEditFormatadoBR::Nu(const QString &exibido) const
{
    auto nu = SemSeparadores(exibido);
    return nu && TemLugar(*nu) && Formatar(*nu) == exibido ? nu : std::nullopt;
}

TCustomEdit::TResposta TEditFormatadoBR::Digitar(const TEstado &antes, const QString &texto,
                                                 TOrigem origem)
{
    completado.clear();
    const auto novos = SemSeparadores(texto);
    const auto nova = novos && !novos->isEmpty() ? Encaixar(antes, *novos, origem) : std::nullopt;
    if (!nova)
        return {std::nullopt, origem == TOrigem::Colagem ? RecusaDaColagem(texto) : QString()};
    const bool noFim = nova->Cursor == nova->Texto.size();
    if (origem == TOrigem::Teclado && noFim &&
        Completo(SemSeparadores(nova->Texto).value_or(QString())))
        completado = nova->Texto;
    return {nova, {}};
}

TCustomEdit::TResposta TEditFormatadoBR::Apagar(const TEstado &antes, TApagar modo)
{
    int inicio = antes.Inicio;
    int fim = antes.Fim;
    const bool emForma = Nu(antes.Texto).has_value();
    const auto separador = [&](int i) {
        return emForma && i >= 0 && i < antes.Texto.size() && !EhCaractere(antes.Texto.at(i));
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
    const auto nu = SemSeparadores(resto);
    if (!nu || !TemLugar(*nu))
        return {TEdicao{resto, inicio}, {}};
    const QString exibido = Formatar(*nu);
    return {TEdicao{exibido, PosicaoDe(exibido, CaracteresAntes(resto, inicio))}, {}};
}

void TEditFormatadoBR::AposDigitar()
{
    TLabeledEdit::AposDigitar();
    // A handler may have taken the key back, or sent the focus somewhere already.
    if (autoExit && hasFocus() && !completado.isEmpty() && TextoExibido() == completado)
        focusNextPrevChild(true);
}

void TEditFormatadoBR::TextoDeFora(const QString &texto)
{
    SetText(texto);
}

void TEditFormatadoBR::focusInEvent(QFocusEvent *evento)
{
    TLabeledEdit::focusInEvent(evento);
    if (evento->reason() == Qt::OtherFocusReason && GetAutoSelect())
        selectAll();
}

bool TEditFormatadoBR::Cabe(const QString &nu) const
{
    return TemLugar(nu) && (GetMaxLength() == 0 || Formatar(nu).size() <= GetMaxLength());
}

/** The text with what is typed or pasted in its place; none where there is no room for it. */
std::optional<TCustomEdit::TEdicao>
TEditFormatadoBR::Encaixar(const TEstado &antes, const QString &novos, TOrigem origem) const
{
    const bool colagem = origem == TOrigem::Colagem;
    const bool troca = antes.TudoSelecionado() || (colagem && Completo(novos));
    const auto nu = troca ? QString() : Nu(antes.Texto);
    if (!nu)
        return std::nullopt;
    const int inicio = troca ? 0 : CaracteresAntes(antes.Texto, antes.Inicio);
    const int fim = troca ? 0 : CaracteresAntes(antes.Texto, antes.Fim);
    QString novo = *nu;
    novo.replace(inicio, fim - inicio, novos);
    const bool porCima = !colagem && !antes.TemSelecao() && Completo(*nu) && inicio < nu->size();
    if (!Cabe(novo) && porCima) {
        novo = *nu;
        novo.replace(inicio, novos.size(), novos);
    }
    if (!Cabe(novo))
        return std::nullopt;
    const QString exibido = Formatar(novo);
    return TEdicao{exibido, PosicaoDe(exibido, inicio + int(novos.size()))};
}

} // namespace ficha
