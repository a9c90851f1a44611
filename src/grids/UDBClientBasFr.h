#pragma once

#include "base/UBasFr.h"
#include "platform/core/TAlignment.h"
#include "platform/database/TClientDataSet.h"

class QPainter;

namespace ficha
{

class TColumn;
class TDataSource;
class TDBGrid;

/**
 * Base of the frames that show a read-only list which the program computes in memory: the
 * descendant declares the columns and fills the rows, the frame paints them in bands and sorts them
 * by a click on a column's title, rising and falling in turn.
 *
 * The dataset is made and opened, empty, while the frame is created; DoShow builds the indexes and
 * loads the rows. Until the first click the rows stand as they were inserted. What the dataset
 * raises (a field name used twice, no fields) goes to the caller.
 */
class TDBClientBasFr : public TBasFr
{
    Q_OBJECT
    /** Dates on or before 01/01/1980, which stand for "no date", are painted too. */
    Q_PROPERTY(bool MostrarDataNula MEMBER MostrarDataNula)

public:
    explicit TDBClientBasFr(TChave chave);

    void Create(QWidget *owner) override;
    /** Builds the indexes, loads the rows, refreshes the lists. */
    void DoShow() override;

    /** Stores Filtrando and refreshes the lists. */
    virtual void SetFiltrando(bool value);
    /** Makes the dataset with the descendant's fields, binds it to the grid and opens it. */
    virtual void CriarClientDataSet();
    /** The descendant adds its fields, with the Ad... operations. */
    virtual void CriarCampos() = 0;
    /** The descendant loads the rows. */
    virtual void PreencherDados() = 0;
    virtual void CDS1AfterOpen(TDataSet *dataset);
    virtual void CDS1AfterScroll(TDataSet *dataset);
    virtual void AtualizarListas();

    /** Each adds a field of that name to the dataset, with what lists show of it: its label, its
     * pattern for numbers or dates, its alignment. Those that are "Invisivel" carry none of these;
     * whether a column is shown is the grid's business. */
    void AdStringField(const QString &nome, int tamanho, const QString &titulo,
                       TAlignment alinhamento);
    void AdStringFieldInvisivel(const QString &nome, int tamanho);
    void AdIntegerField(const QString &nome, const QString &titulo, const QString &formato,
                        TAlignment alinhamento);
    TField *AdIntegerFieldInvisivel(const QString &nome);
    void AdFloatField(const QString &nome, const QString &titulo, const QString &formato,
                      TAlignment alinhamento);
    void AdDateTimeField(const QString &nome, const QString &titulo, const QString &formato,
                         TAlignment alinhamento);
    void AdBooleanFieldInvisivel(const QString &nome);

    /** For laying the columns out in their order: each serves the column of that number and
     * advances the number by one. */
    void PrepGridAjustarCol(TDBGrid *grid, int &coluna, int largura, TAlignment alinhamento);
    void PrepGridEsconderCol(TDBGrid *grid, int &coluna);

    /** Two indexes for each field, "a" and "d" before its name, rising and falling; the first
     * field becomes the sort column. The order of the rows stays. */
    void AjustarIndices();
    void TitulosNormais(TDBGrid *grid);

    /** The descendant shows a filtered list; see SetFiltrando. */
    bool Filtrando = false;
    bool Ascendente = true;
    /** Field name of the sort column. */
    QString CampoOrdem;
    /** Of the descendants; nothing here reads them. */
    int Numero = 0;
    bool Opcao = true;
    bool MostrarDataNula = false;

    TDBGrid *DBGrid1 = nullptr;
    /** Owned by the frame, as is CDS. */
    TDataSource *DataSource1 = nullptr;
    TClientDataSet *CDS = nullptr;

protected:
    void PegarComponentes() override;
    /** Sorts by the column: rising, or falling when it is sorted rising already. */
    virtual void DBGrid1TitleClick(TColumn *column);
    virtual void DBGrid1DrawColumnCell(QObject *sender, QPainter &p, const QRect &rect, int dataCol,
                                       TColumn *column, unsigned state);

private:
    TField *Adicionar(const QString &nome, TFieldType tipo, int tamanho = 0);
};

} // namespace ficha
