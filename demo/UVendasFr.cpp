#include "demo/UVendasFr.h"

#include "demo/UCentavos.h"
#include "platform/database/ConexD.h"
#include "platform/support/Datas.h"
#include "platform/support/TDBGrid.h"
#include "platform/toolkit/Layout.h"

#include <QScopeGuard>
#include <QScopedValueRollback>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TVendasFr)

void TVendasFr::DoShow()
{
    Calado([this] {
        TDBClientBasFr::DoShow();
        // Rising first, then falling.
        DBGrid1TitleClick(DBGrid1->Columns(0));
        DBGrid1TitleClick(DBGrid1->Columns(0));
        CDS->First();
    });
}

void TVendasFr::CriarCampos()
{
    const QString dinheiro = QStringLiteral("#,##0.00");
    const QString dia = QStringLiteral("dd/mm/yyyy");
    AdIntegerField(QStringLiteral("venda"), QStringLiteral("Venda"), QStringLiteral("0"),
                   taRightJustify);
    AdDateTimeField(QStringLiteral("data"), QStringLiteral("Data"), dia, taCenter);
    AdStringField(QStringLiteral("cliente"), 60, QStringLiteral("Cliente"), taLeftJustify);
    AdIntegerField(QStringLiteral("itens"), QStringLiteral("Itens"), QStringLiteral("0"), taCenter);
    AdFloatField(QStringLiteral("bruto"), QStringLiteral("Bruto"), dinheiro, taRightJustify);
    AdFloatField(QStringLiteral("desconto"), QStringLiteral("Desconto"), dinheiro, taRightJustify);
    AdFloatField(QStringLiteral("liquido"), QStringLiteral("Líquido"), dinheiro, taRightJustify);
    AdDateTimeField(QStringLiteral("vencimento"), QStringLiteral("Vencimento"), dia, taCenter);
}

void TVendasFr::PreencherDados()
{
    LerVendas();
    // In the order shown, which the rows have only now.
    CDS->First();
}

void TVendasFr::LerVendas()
{
    TCustomBRSQL vendas(SQL());
    CDS->DisableControls();
    const auto mostrar = qScopeGuard([this] { CDS->EnableControls(); });
    CDS->EmptyDataSet();
    Quantas = 0;
    Bruto = Descontos = Liquido = 0;
    for (; !vendas.Eof(); vendas.Next()) {
        const double bruto = vendas.Fields(4)->AsFloat();
        const double desconto = EmCentavos(bruto * vendas.Fields(5)->AsFloat() / 100);
        const TField *vencimento = vendas.Fields(6);
        CDS->AppendRecord({vendas.Fields(0)->AsInteger(), vendas.Fields(1)->Value(),
                           vendas.Fields(2)->AsString(), vendas.Fields(3)->AsInteger(), bruto,
                           desconto, EmCentavos(bruto - desconto),
                           vencimento->IsNull() ? Variant(SemData) : vencimento->Value()});
        ++Quantas;
        Bruto += bruto;
        Descontos += desconto;
    }
    Liquido = EmCentavos(Bruto - Descontos);
}

QString TVendasFr::SQL() const
{
    QStringList condicoes = Condicoes;
    condicoes.removeAll(QString());
    QString sql = QStringLiteral(
        "select v.vendas_cod, v.data, v.cliente, count(*), sum(i.quantidade * i.preco), "
        "v.desconto, v.vencimento from vendas v join vendas_itens i on i.vendas_cod = "
        "v.vendas_cod");
    if (!condicoes.isEmpty())
        sql += QStringLiteral(" where ") + condicoes.join(QStringLiteral(" and "));
    sql += QStringLiteral(" group by 1, 2, 3, 6, 7");
    if (!CondicaoDoBruto.isEmpty())
        sql += QStringLiteral(" having sum(i.quantidade * i.preco)") + CondicaoDoBruto;
    return sql;
}

void TVendasFr::AtualizarListas()
{
    TitulosNormais(DBGrid1);
    int coluna = 0;
    PrepGridAjustarCol(DBGrid1, coluna, 52, taRightJustify);
    PrepGridAjustarCol(DBGrid1, coluna, 76, taCenter);
    PrepGridAjustarCol(DBGrid1, coluna, 176, taLeftJustify);
    PrepGridAjustarCol(DBGrid1, coluna, 48, taCenter);
    PrepGridAjustarCol(DBGrid1, coluna, 76, taRightJustify);
    PrepGridAjustarCol(DBGrid1, coluna, 76, taRightJustify);
    PrepGridAjustarCol(DBGrid1, coluna, 76, taRightJustify);
    PrepGridAjustarCol(DBGrid1, coluna, 84, taCenter);
}

void TVendasFr::CDS1AfterScroll(TDataSet *dataset)
{
    TDBClientBasFr::CDS1AfterScroll(dataset);
    if (!calado)
        AnunciarVenda();
}

void TVendasFr::SetFocus()
{
    DBGrid1->setFocus(Qt::OtherFocusReason);
}

void TVendasFr::Reler()
{
    Calado([this] {
        const int venda = Venda();
        PreencherDados();
        IrPara(venda);
    });
}

int TVendasFr::Venda() const
{
    return CDS->IsEmpty() ? 0 : CDS->Fields(0)->AsInteger();
}

bool TVendasFr::IrPara(int venda)
{
    return CDS->Locate(QStringLiteral("venda"), {Variant(venda)});
}

void TVendasFr::Calado(const std::function<void()> &mudar)
{
    {
        const QScopedValueRollback guarda(calado, true);
        mudar();
    }
    AnunciarVenda();
}

void TVendasFr::AnunciarVenda()
{
    if (OnVenda)
        OnVenda();
}

} // namespace comercial
