#pragma once

#include "dates/UComboCodOpcionalFr.h"
#include "dates/UDataOpcionalFr.h"
#include "forms/TelasDeTeste.h"
#include "forms/UTabLinFiltroBasF.h"
#include "input/UCheckBoxBasFr.h"
#include "input/UNumEditBRBasFr.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TScrollBox.h"
#include "platform/toolkit/TSplitter.h"

namespace ficha::testes
{

/** The shortest screen with a filter panel: a list that nothing filters. */
class TTiposComFiltroF : public TTabLinFiltroBasF
{
    Q_OBJECT

public:
    using TTabLinFiltroBasF::TTabLinFiltroBasF;
    QString NomeJanela() const override { return QStringLiteral("Tipos"); }

protected:
    void FormCreate(QObject *sender) override
    {
        SetSQLText(QStringLiteral("select * from tipos order by tipos_cod"));
        TTabLinFiltroBasF::FormCreate(sender);
    }
    void PrepararTab() override
    {
        Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("tipos"));
        Tab->PegarCampoChave(SQLQuery1->FieldByName("tipos_cod"), 60, nullptr);
        Tab->PegarCampo(SQLQuery1->FieldByName("nome"), 200);
    }
};

/** A screen with a filter panel: by group, by a piece of the description, by the day of
 * registration. Two key columns, so that a code alone does not tell a record. */
class TPecasF : public TTabLinFiltroBasF
{
    Q_OBJECT

public:
    using TTabLinFiltroBasF::TTabLinFiltroBasF;
    QString NomeJanela() const override { return QStringLiteral("Peças"); }

    void PrepararSQL() override
    {
        chamadas << QStringLiteral("PrepararSQL");
        if (falhaDoSQL)
            throw EErro(QStringLiteral("critério inválido"));
        QStringList onde;
        if (GrupoFr && GrupoFr->AtivoCheckBox->isChecked())
            onde << QStringLiteral("grupos_cod=") + GrupoFr->ComboBoxCodFr->SQLString();
        if (!Texto().isEmpty())
            onde << QStringLiteral("descr like ") + QuotedStr(u'%' + Texto() + u'%');
        if (CadastroFr) {
            CadastroFr->Atualizar();
            const QString periodo = CadastroFr->WhereStr(QStringLiteral("cadastro"));
            if (!periodo.isEmpty())
                onde << periodo;
        }
        if (!extra.isEmpty())
            onde << extra;
        FiltroAtivo = !onde.isEmpty();
        SetSQLText(QStringLiteral("select * from pecas") +
                   (onde.isEmpty()
                        ? QString()
                        : QStringLiteral(" where ") + onde.join(QStringLiteral(" and "))) +
                   QStringLiteral(" order by pecas_cod, serie"));
        FiltroStatusLabel->setText(FiltroAtivo ? QStringLiteral("Exibindo peças filtradas")
                                               : QStringLiteral("Exibindo todas as peças"));
    }
    void AtualizarFiltroPanel() override { chamadas << QStringLiteral("AtualizarFiltroPanel"); }
    void ZerarFiltro() override
    {
        chamadas << QStringLiteral("ZerarFiltro");
        TextoEdit->clear();
        GrupoFr->AtivoCheckBox->setChecked(false);
        CadastroFr->AtivoCheckBox->setChecked(false);
        extra.clear();
    }
    void SetFiltroAberto(bool aberto) override
    {
        chamadas << (aberto ? QStringLiteral("abre") : QStringLiteral("fecha"));
        TTabLinFiltroBasF::SetFiltroAberto(aberto);
    }
    void PrepTit() override
    {
        chamadas << QStringLiteral("PrepTit");
        TTabLinFiltroBasF::PrepTit();
    }
    bool PodeExcluir() override { return podeExcluir; }

    QString Texto() const { return TextoEdit ? TextoEdit->GetText() : QString(); }
    QLineEdit *Descr() const { return DescrFr->LabeledEdit1; }
    /** What the list shows, row by row: code and description. */
    QStringList Lista() const
    {
        QStringList linhas;
        for (int i = 1; i < StringGrid1->GetRowCount(); ++i)
            linhas << StringGrid1->GetCell(0, i) + u' ' + StringGrid1->GetCell(2, i);
        return linhas;
    }
    QString Atual() const { return Tab->ChavesGarantia(); }

    TComboCodOpcionalFr *GrupoFr = nullptr;
    TLabeledEdit *TextoEdit = nullptr;
    TDataOpcionalFr *CadastroFr = nullptr;
    TNumEditBRBasFr *CodFr = nullptr;
    TNumEditBRBasFr *SerieFr = nullptr;
    TLabeledEditTextoBasFr *DescrFr = nullptr;
    TComboBoxCodBasFr *GrupoDaPecaFr = nullptr;
    TCheckBoxBasFr *AtivoFr = nullptr;
    /** One more condition, as a filter that nothing on the panel shows. */
    QString extra;
    QStringList chamadas;
    bool falhaDoSQL = false;
    bool podeExcluir = true;

protected:
    void FormCreate(QObject *sender) override
    {
        GrupoFr = Criar<TComboCodOpcionalFr>(ScrollBox1);
        GrupoFr->SetTitulo(QStringLiteral("Grupo"));
        TextoEdit = new TLabeledEdit(ScrollBox1);
        TextoEdit->SetCaption(QStringLiteral("Descrição contém"));
        TextoEdit->setGeometry(10, 324, 150, 21);
        ToolBar4->move(10, 360);
        CadastroFr = Criar<TDataOpcionalFr>(ScrollBox1);
        CadastroFr->SetTitulo(QStringLiteral("Cadastro"));
        CodFr = Campo<TNumEditBRBasFr>(16);
        SerieFr = Campo<TNumEditBRBasFr>(72);
        DescrFr = Campo<TLabeledEditTextoBasFr>(128);
        DescrFr->Tag = 1;
        GrupoDaPecaFr = Campo<TComboBoxCodBasFr>(184);
        AtivoFr = Campo<TCheckBoxBasFr>(240);
        AtivoFr->SetTitulo(QStringLiteral("Ativa"));
        SetCaption(QStringLiteral("Cadastro de peças"));
        TTabLinFiltroBasF::FormCreate(sender);
        const QString grupos = QStringLiteral("select grupos_cod, descr from grupos order by 2");
        GrupoFr->ComboBoxCodFr->SetSQLText(grupos);
        GrupoDaPecaFr->SetSQLText(grupos);
    }
    void PrepararTab() override
    {
        TSQLQuery *q = SQLQuery1;
        Tab = Criar<TTabelaLinear>(q, QStringLiteral("pecas"));
        Tab->PegarCampoChave(q->FieldByName("pecas_cod"), 50, CodFr);
        Tab->PegarCampoChave(q->FieldByName("serie"), 40, SerieFr);
        Tab->PegarCampo(q->FieldByName("descr"), 160, DescrFr);
        Tab->PegarCampo(q->FieldByName("grupos_cod"), 50, GrupoDaPecaFr);
        Tab->PegarCampo(q->FieldByName("ativo"), 40, AtivoFr);
    }
    void AntesInserir() override
    {
        SQLInserir = QStringLiteral("insert into pecas values (") + CodFr->SQLString() + u',' +
                     SerieFr->SQLString() + u',' + DescrFr->SQLString() +
                     QStringLiteral(", 1, 'S', current_date)");
        SQLUltimoInserido = QStringLiteral("select max(pecas_cod) from pecas");
    }
    void AntesAlterar() override
    {
        SQLAlterar = QStringLiteral("update pecas set descr=") + DescrFr->SQLString() +
                     QStringLiteral(", ativo=") + AtivoFr->SQLString();
    }

private:
    template <typename T>
    T *Campo(int y)
    {
        T *fr = Criar<T>(CamposTabSheet);
        fr->move(16, y);
        return fr;
    }
};

} // namespace ficha::testes
