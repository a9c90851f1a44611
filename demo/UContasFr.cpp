#include "demo/UContasFr.h"

#include "platform/database/ConexD.h"
#include "platform/support/FormatFloat.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TStringGrid.h"

#include <algorithm>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TContasFr)

namespace
{

const QString Dinheiro = QStringLiteral("###,###,##0.00");

/** 1.1 for 1.1.01; empty for 1. */
QString CodigoAcima(const QString &codigo)
{
    return codigo.left(std::max<qsizetype>(codigo.lastIndexOf(u'.'), 0));
}

/** Adds up from below, and shows the accounts that hold others in bold. */
double Somar(TArvItem *item)
{
    auto *conta = dynamic_cast<TConta *>(item);
    double soma = conta ? conta->Saldo : 0;
    for (int i = 0; i < item->NFilhos(); ++i)
        soma += Somar(item->GetFilhos(i));
    if (conta) {
        conta->Saldo = soma;
        conta->Exibicao.Font.setBold(item->NFilhos() > 0);
    }
    return soma;
}

/** As Localizar compares. */
QString Plano(const QString &texto)
{
    return TextoSemAcentos(texto.toUpper());
}

} // namespace

void TContasFr::Create(QWidget *owner)
{
    TArvGridFr::Create(owner);
    ModoExpansao = 1;
    StringGrid1->SetRowSelect(true);
    StringGrid1->SetColSizing(true);
    PrepGrid();
}

void TContasFr::PrepGrid()
{
    TArvGridFr::PrepGrid();
    const std::pair<const char16_t *, int> colunas[] = {
        {u"Conta", 440}, {u"Saldo (R$)", 120}, {u"% do grupo", 90}};
    StringGrid1->SetColCount(int(std::size(colunas)));
    StringGrid1->SetRowCount(2);
    for (int i = 0; i < StringGrid1->GetColCount(); ++i) {
        StringGrid1->SetCell(i, 0, QString::fromUtf16(colunas[i].first));
        StringGrid1->SetColWidth(i, colunas[i].second);
    }
}

void TContasFr::ColocarFilhos(TArvItem *item)
{
    TArvGridFr::ColocarFilhos(item);
    contas.clear();
    QString ramo;
    if (GetCod1() > 0) {
        const TCustomBRSQL conta(
            QStringLiteral("select codigo from contas where contas_cod=%1").arg(GetCod1()));
        ramo = conta.IsEmpty() ? QString() : conta.Fields(0)->AsString();
    }
    LerContas(ramo, item);
}

void TContasFr::LerContas(const QString &ramo, TArvItem *raiz)
{
    TCustomBRSQL linhas(
        QStringLiteral("select contas_cod, codigo, descricao, saldo from contas where codigo=%1 or "
                       "codigo starting %2 order by codigo")
            .arg(QuotedStr(ramo), QuotedStr(ramo.isEmpty() ? ramo : ramo + u'.')));
    for (; !linhas.Eof(); linhas.Next()) {
        auto conta = std::make_unique<TConta>();
        conta->Cod = linhas.Fields(0)->AsInteger();
        conta->Codigo = linhas.Fields(1)->AsString();
        conta->Descricao = linhas.Fields(2)->AsString();
        conta->Saldo = linhas.Fields(3)->AsFloat();
        TConta *acima = contas.value(CodigoAcima(conta->Codigo));
        TConta *nova = (acima ? static_cast<TArvItem *>(acima) : raiz)->AddFilho(std::move(conta));
        contas.insert(nova->Codigo, nova);
        TratarFilho(nova);
    }
    Somar(raiz);
}

void TContasFr::DadoParaGrid(TArvItem *item)
{
    const auto &conta = *static_cast<const TConta *>(item);
    StringGrid1->SetCell(0, LinhaAtual, conta.Codigo + QStringLiteral("  ") + conta.Descricao);
    StringGrid1->SetCell(1, LinhaAtual, FormatFloat(Dinheiro, conta.Saldo));
    const auto *acima = dynamic_cast<const TConta *>(conta.GetPai());
    StringGrid1->SetCell(2, LinhaAtual,
                         acima && acima->Saldo != 0
                             ? FormatFloat(QStringLiteral("0.0"), conta.Saldo / acima->Saldo * 100)
                             : QString());
}

void TContasFr::AtualizarExibicao()
{
    TArvGridFr::AtualizarExibicao();
    ColsInfo->Atualizar(*StringGrid1);
    ColsInfo->SetConteudo(1, TConteudoCol::Numero);
    ColsInfo->SetConteudo(2, TConteudoCol::Numero);
}

void TContasFr::Expandir(bool tudo)
{
    TConta *atual = Atual();
    for (TConta *conta : Todas())
        conta->SetExpandido(tudo || conta->GetNivel() <= 0);
    AtualizarExibicao();
    // What is closed stands on the account that it is under.
    while (!tudo && atual && dynamic_cast<TConta *>(atual->GetPai()))
        atual = static_cast<TConta *>(atual->GetPai());
    IrPara(atual);
}

TConta *TContasFr::Atual() const
{
    return static_cast<TConta *>(ArvItem(StringGrid1->GetRow()));
}

bool TContasFr::Localizar(const QString &texto)
{
    const QString procurado = Plano(texto.trimmed());
    QList<TConta *> ordem = Todas();
    if (procurado.isEmpty() || ordem.isEmpty())
        return false;
    const qsizetype atual = ordem.indexOf(Atual());
    std::rotate(ordem.begin(), ordem.begin() + (atual + 1) % ordem.size(), ordem.end());
    const auto achada = std::ranges::find_if(ordem, [&](const TConta *conta) {
        return conta->Codigo.startsWith(procurado) || Plano(conta->Descricao).contains(procurado);
    });
    if (achada == ordem.end())
        return false;
    for (TArvItem *acima = (*achada)->GetPai(); acima; acima = acima->GetPai())
        acima->SetExpandido(true);
    AtualizarExibicao();
    IrPara(*achada);
    return true;
}

double TContasFr::SaldoDe(const QString &codigo) const
{
    const TConta *conta = contas.value(codigo);
    return conta ? conta->Saldo : 0;
}

/** Space is the one of plus and minus that the current account has a use for. */
void TContasFr::StringGrid1KeyPress(QObject *sender, QChar &caractere)
{
    const TConta *conta = Atual();
    if (caractere == u' ' && conta && conta->NFilhos() > 0)
        caractere = conta->GetExpandido() ? u'-' : u'+';
    TArvGridFr::StringGrid1KeyPress(sender, caractere);
}

void TContasFr::IrPara(const TConta *conta)
{
    for (int row = 1; conta && row < StringGrid1->GetRowCount(); ++row) {
        if (ArvItem(row) == conta) {
            StringGrid1->SetRow(row);
            return;
        }
    }
}

QList<TConta *> TContasFr::Todas() const
{
    return contas.values();
}

} // namespace comercial
