#include "platform/edits/TClientManager.h"

#include "platform/support/DBGridDrawCell.h"
#include "platform/support/TDBGrid.h"
#include "platform/support/TDataSource.h"
#include "platform/toolkit/Evento.h"

#include <utility>
#include <vector>

namespace ficha
{

namespace
{

constexpr int SetaAscendente = 8, SetaDescendente = 9;

void Chamar(const std::function<void(QObject *)> &evento, QObject *sender)
{
    const auto handler = evento; // it may be replaced, or its owner destroyed, while it runs
    if (handler)
        handler(sender);
}

/**
 * Nothing announces itself until Terminar, which raises what putting the rows in order raises (a
 * filter of the host's, asked again). Left by another error the controls come back too, and what
 * that raises goes to the host's error report.
 */
class TCalado
{
public:
    explicit TCalado(TDataSet *calar) : dataset(calar) { dataset->DisableControls(); }
    ~TCalado()
    {
        Protegido([this] { Terminar(); });
    }
    TCalado(const TCalado &) = delete;
    TCalado &operator=(const TCalado &) = delete;

    void Terminar()
    {
        // Forgotten first: an error must not have the controls enabled twice.
        if (const QPointer<TDataSet> calado = std::exchange(dataset, nullptr))
            calado->EnableControls();
    }

private:
    QPointer<TDataSet> dataset;
};

} // namespace

TClientManager::TClientManager(QObject *owner)
    : QObject(owner), CDS1(new TClientDataSet(this)), DataSource1(new TDataSource(this))
{
    CDS1->setObjectName(QStringLiteral("CDS1"));
    DataSource1->setObjectName(QStringLiteral("DataSource1"));
    DataSource1->SetDataSet(CDS1);
}

TDBGrid *TClientManager::GetDBGrid1() const
{
    return grid;
}

void TClientManager::SetDBGrid1(TDBGrid *nova)
{
    grid = nova;
    if (!nova)
        return;
    nova->SetDataSource(DataSource1);
    nova->OnGetText = [vivo = QPointer<TClientManager>(this)](const TColumn *column) {
        const TField *campo = column->Field();
        return vivo && campo ? TextoParaLista(*campo, vivo->MostrarDataNula) : QString();
    };
}

void TClientManager::Carregar()
{
    const QPointer<TClientManager> vivo(this);
    if (!Preparar())
        return;
    vencida = true;
    TCalado calado(CDS1);
    try {
        CDS1->EmptyDataSet();
        Chamar(OnListUpDate, this);
        if (vivo && CDS1) {
            // Sorted first: the row that is first now need not stay it.
            CDS1->PorEmOrdem();
            CDS1->First();
        }
        calado.Terminar();
    } catch (...) {
        // Half a list would be taken for the whole one.
        if (vivo && CDS1)
            CDS1->EmptyDataSet();
        throw;
    }
    if (!vivo || !CDS1)
        return;
    vencida = false;
    Q_EMIT Carregou();
}

void TClientManager::Atualizar()
{
    if (!vencida || !CDS1 || !CDS1->Active()) {
        if (grid)
            grid->Invalidate();
        return;
    }
    const QPointer<TClientManager> vivo(this);
    const QString chave = CDS1->Fields(0)->FieldName();
    const Variant valor = CDS1->IsEmpty() ? Variant(Null) : CDS1->Fields(0)->Value();
    Carregar();
    if (vivo && CDS1 && !valor.EhNulo())
        CDS1->Locate(chave, {valor});
}

void TClientManager::CopiarDe(TDataSet &origem)
{
    std::vector<std::pair<const TField *, TField *>> pares;
    for (int i = 0; i < CDS1->FieldCount(); ++i) {
        TField *para = CDS1->Fields(i);
        if (const TField *de = origem.FindField(para->FieldName()))
            pares.emplace_back(de, para);
    }
    TCalado calado(CDS1);
    for (int linha = 1; linha <= origem.RecordCount(); ++linha) {
        const TLerLinha ler(&origem, linha);
        CDS1->Append();
        for (const auto &[de, para] : pares)
            para->SetValue(de->Value());
        CDS1->Post();
    }
    calado.Terminar();
}

void TClientManager::TitleClick(TDBGrid *, TColumn *column)
{
    if (CDS1 && CDS1->Active())
        ordem = DBGridTitleClick(*CDS1, *column);
}

void TClientManager::Ordenar(const QString &campo, bool ascendente)
{
    TColumn *column = grid ? grid->ColumnByField(campo) : nullptr;
    if (column && CDS1 && CDS1->Active())
        ordem = DBGridOrdenar(*CDS1, *column, ascendente);
}

void TClientManager::DrawColumnCell(QPainter &p, const QRect &rect, TColumn *column,
                                    unsigned estado) const
{
    DBGridDrawColumnCell(p, rect, *column, estado,
                         {ordem.Campo, ordem.Ascendente, MostrarDataNula, ImageList8x8,
                          SetaAscendente, SetaDescendente});
}

/** Makes the dataset and lays the grid out, once. False: there is no list. */
bool TClientManager::Preparar()
{
    const QPointer<TClientManager> vivo(this);
    if (CDS1 && !CDS1->Criado()) {
        Chamar(OnCreateFields1, this);
        if (!vivo || !CDS1 || CDS1->FieldDefCount() == 0)
            return false;
        CDS1->CreateDataSet();
    }
    if (!CDS1)
        return false;
    CDS1->Open();
    DBGridCriarIndices(*CDS1);
    if (grid && !gradePronta) {
        DBGridTitulosNormais(*grid);
        Chamar(OnPrepGrid1, this);
        if (!vivo || !CDS1)
            return false;
        gradePronta = true;
    }
    return true;
}

} // namespace ficha
