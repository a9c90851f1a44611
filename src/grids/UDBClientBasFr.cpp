#include "grids/UDBClientBasFr.h"

#include "platform/support/DBGridDrawCell.h"
#include "platform/support/DBGridOrdem.h"
#include "platform/support/SisD.h"
#include "platform/support/TDBGrid.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR_ABSTRATA(TDBClientBasFr)

TDBClientBasFr::TDBClientBasFr(TChave chave) : TBasFr(chave) {}

void TDBClientBasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    Numero = 0;
    Opcao = true;
    Filtrando = false;
    Ascendente = true;
    CriarClientDataSet();
    MostrarDataNula = false;
}

void TDBClientBasFr::DoShow()
{
    AjustarIndices();
    PreencherDados();
    AtualizarListas();
}

void TDBClientBasFr::SetFiltrando(bool value)
{
    Filtrando = value;
    AtualizarListas();
}

void TDBClientBasFr::CriarClientDataSet()
{
    CDS = new TClientDataSet(this);
    CDS->setObjectName(QStringLiteral("CDS1"));
    CriarCampos();
    CDS->CreateDataSet();
    Ligar(CDS, &TDataSet::AfterOpen, this, [this] { CDS1AfterOpen(CDS); });
    Ligar(CDS, &TDataSet::AfterScroll, this, [this] { CDS1AfterScroll(CDS); });
    DataSource1->SetDataSet(CDS);
    CDS->Open();
}

void TDBClientBasFr::CDS1AfterOpen(TDataSet *) {}

void TDBClientBasFr::CDS1AfterScroll(TDataSet *) {}

void TDBClientBasFr::AtualizarListas() {}

void TDBClientBasFr::AdStringField(const QString &nome, int tamanho, const QString &titulo,
                                   TAlignment alinhamento)
{
    TField *campo = Adicionar(nome, TFieldType::ftString, tamanho);
    campo->SetDisplayLabel(titulo);
    campo->SetAlignment(alinhamento);
}

void TDBClientBasFr::AdStringFieldInvisivel(const QString &nome, int tamanho)
{
    Adicionar(nome, TFieldType::ftString, tamanho);
}

void TDBClientBasFr::AdIntegerField(const QString &nome, const QString &titulo,
                                    const QString &formato, TAlignment alinhamento)
{
    TField *campo = AdIntegerFieldInvisivel(nome);
    campo->SetAlignment(alinhamento);
    campo->SetDisplayLabel(titulo);
    campo->SetDisplayFormat(formato);
}

TField *TDBClientBasFr::AdIntegerFieldInvisivel(const QString &nome)
{
    return Adicionar(nome, TFieldType::ftInteger);
}

void TDBClientBasFr::AdFloatField(const QString &nome, const QString &titulo,
                                  const QString &formato, TAlignment alinhamento)
{
    TField *campo = Adicionar(nome, TFieldType::ftFloat);
    campo->SetDisplayLabel(titulo);
    campo->SetAlignment(alinhamento);
    campo->SetDisplayFormat(formato);
}

void TDBClientBasFr::AdDateTimeField(const QString &nome, const QString &titulo,
                                     const QString &formato, TAlignment alinhamento)
{
    TField *campo = Adicionar(nome, TFieldType::ftDateTime);
    campo->SetAlignment(alinhamento);
    campo->SetDisplayFormat(formato);
    campo->SetDisplayLabel(titulo);
}

void TDBClientBasFr::AdBooleanFieldInvisivel(const QString &nome)
{
    Adicionar(nome, TFieldType::ftBoolean);
}

void TDBClientBasFr::PrepGridAjustarCol(TDBGrid *grid, int &coluna, int largura,
                                        TAlignment alinhamento)
{
    TColumn *column = grid->Columns(coluna++);
    column->SetWidth(largura);
    column->Title.SetAlignment(alinhamento);
}

void TDBClientBasFr::PrepGridEsconderCol(TDBGrid *grid, int &coluna)
{
    grid->Columns(coluna++)->SetVisible(false);
}

void TDBClientBasFr::AjustarIndices()
{
    DBGridCriarIndices(*CDS);
    CampoOrdem = CDS->Fields(0)->FieldName();
    DBGridReservarSeta(*DBGrid1, CampoOrdem);
}

void TDBClientBasFr::TitulosNormais(TDBGrid *grid)
{
    DBGridTitulosNormais(*grid);
}

void TDBClientBasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, DBGrid1, "DBGrid1");
    DataSource1 = new TDataSource(this);
    DataSource1->setObjectName(QStringLiteral("DataSource1"));
    DBGrid1->SetDataSource(DataSource1);
    DBGrid1->OnTitleClick = [this](TColumn *column) { DBGrid1TitleClick(column); };
    DBGrid1->OnGetText = [this](const TColumn *column) {
        const TField *campo = column->Field();
        return campo ? TextoParaLista(*campo, MostrarDataNula) : QString();
    };
    DBGrid1->OnDrawColumnCell = [this](QObject *sender, QPainter &p, const QRect &rect, int dataCol,
                                       TColumn *column, unsigned state) {
        DBGrid1DrawColumnCell(sender, p, rect, dataCol, column, state);
    };
}

void TDBClientBasFr::DBGrid1TitleClick(TColumn *column)
{
    const TOrdemDaLista ordem = DBGridTitleClick(*CDS, *column);
    Ascendente = ordem.Ascendente;
    CampoOrdem = ordem.Campo;
}

void TDBClientBasFr::DBGrid1DrawColumnCell(QObject *, QPainter &p, const QRect &rect, int,
                                           TColumn *column, unsigned state)
{
    DBGridDrawColumnCell(p, rect, *column, state,
                         {CampoOrdem, Ascendente, MostrarDataNula, SisD().ImageList, 8, 9});
}

/** The component's name is that of the dataset and the field's. */
TField *TDBClientBasFr::Adicionar(const QString &nome, TFieldType tipo, int tamanho)
{
    TField *campo = CDS->AddField(nome, tipo, tamanho);
    campo->SetName(CDS->objectName() + nome);
    return campo;
}

} // namespace ficha
