#include "demo/UPrestacoesFr.h"

#include "demo/UCentavos.h"
#include "platform/core/Relogio.h"
#include "platform/support/Datas.h"
#include "platform/support/TDBGrid.h"
#include "platform/toolkit/Layout.h"

#include <QScopeGuard>

#include <cmath>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TPrestacoesFr)

namespace
{
constexpr int Prestacoes = 12;
constexpr double Valor = 5400, JurosAoMes = 0.0199;
} // namespace

void TPrestacoesFr::CriarCampos()
{
    const QString dinheiro = QStringLiteral("#,##0.00");
    AdIntegerField(QStringLiteral("numero"), QStringLiteral("Nº"), QStringLiteral("00"), taCenter);
    AdDateTimeField(QStringLiteral("vencimento"), QStringLiteral("Vencimento"),
                    QStringLiteral("dd/mm/yyyy"), taCenter);
    AdStringField(QStringLiteral("dia"), 15, QStringLiteral("Dia da semana"), taLeftJustify);
    AdFloatField(QStringLiteral("juros"), QStringLiteral("Juros"), dinheiro, taRightJustify);
    AdFloatField(QStringLiteral("prestacao"), QStringLiteral("Prestação"), dinheiro,
                 taRightJustify);
    AdFloatField(QStringLiteral("saldo"), QStringLiteral("Saldo"), dinheiro, taRightJustify);
    AdBooleanFieldInvisivel(QStringLiteral("ultima"));
}

void TPrestacoesFr::PreencherDados()
{
    const double prestacao =
        EmCentavos(Valor * JurosAoMes / (1 - std::pow(1 + JurosAoMes, -Prestacoes)));
    double saldo = Valor;
    CDS->DisableControls();
    const auto mostrar = qScopeGuard([this] { CDS->EnableControls(); });
    CDS->EmptyDataSet();
    for (int i = 1; i <= Prestacoes; ++i) {
        const TDateTime vencimento = IncMonth(Hoje(), i);
        const double juros = EmCentavos(saldo * JurosAoMes);
        const bool ultima = i == Prestacoes;
        const double paga = ultima ? EmCentavos(saldo + juros) : prestacao;
        saldo = EmCentavos(saldo + juros - paga);
        CDS->AppendRecord({i, vencimento, FormatDateTime(QStringLiteral("dddd"), vencimento), juros,
                           paga, saldo, int(ultima)});
    }
    // Sorted first: the row that is first now need not stay it.
    CDS->PorEmOrdem();
    CDS->First();
}

void TPrestacoesFr::AtualizarListas()
{
    TitulosNormais(DBGrid1);
    int coluna = 0;
    PrepGridAjustarCol(DBGrid1, coluna, 40, taCenter);
    PrepGridAjustarCol(DBGrid1, coluna, 90, taCenter);
    PrepGridAjustarCol(DBGrid1, coluna, 120, taLeftJustify);
    PrepGridAjustarCol(DBGrid1, coluna, 80, taRightJustify);
    PrepGridAjustarCol(DBGrid1, coluna, 95, taRightJustify);
    PrepGridAjustarCol(DBGrid1, coluna, 95, taRightJustify);
    PrepGridEsconderCol(DBGrid1, coluna);
}

} // namespace comercial
