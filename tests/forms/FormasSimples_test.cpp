#include "platform/core/FormasSimples.h"

#include "dates/UDTPBasFr.h"
#include "forms/TelasDeTeste.h"
#include "forms/ULocalizBasF.h"
#include "forms/UTabLinFiltroBasF.h"
#include "input/UNumEditBRBasFr.h"
#include "platform/core/Relogio.h"
#include "platform/database/TTravas.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/TRadioGroup.h"
#include "platform/toolkit/TScrollBox.h"

#include <QCryptographicHash>

/* Every operation of a maintenance screen, once the way programs run it and once in the simple
 * forms: fields, inputs, list, selection, messages and database must come out the same. */

namespace ficha::testes
{

namespace
{

/** 300 records whose list is in another order than their keys and than the table, with gaps in the
 * codes, repeated names, and Nulls in every column that may have one. */
const QString Esquema = QStringLiteral(R"(
    create table tipos (tipos_cod integer not null primary key, rotulo varchar(20));
    create table clientes (clientes_cod integer not null, serie integer not null,
        nome varchar(40), limite numeric(15,2), nascimento date, tipos_cod integer,
        situacao char(1), sigla char(5), nivel smallint, gravado timestamp,
        primary key (clientes_cod, serie));
    create generator clientes_cod_gen;
    insert into tipos values (1, 'Varejo');
    insert into tipos values (2, 'Atacado');
    set term ^;
    execute block as declare i integer = 1; begin
        while (i <= 300) do begin
            insert into clientes values (mod(:i * 37, 401) + 1, mod(:i, 3) + 1,
                iif(mod(:i, 23) = 0, null, decode(mod(:i * 5, 7), 0, 'Ana ', 1, 'Érica ',
                    2, 'joão ', 3, 'Zélia ', 4, 'Bia ', 5, 'Águeda ', 'Caio ') || mod(:i, 40)),
                iif(mod(:i, 17) = 0, null, mod(:i * 117, 10000) / 10.00),
                iif(mod(:i, 11) = 0, null, date '1960-01-01' + :i * 7),
                iif(mod(:i, 5) = 0, null, mod(:i, 2) + 1),
                iif(mod(:i, 13) = 0, null, iif(mod(:i, 2) = 0, 'A', 'I')),
                iif(mod(:i, 9) = 0, null, 'S' || mod(:i, 90)),
                iif(mod(:i, 8) = 0, null, mod(:i, 4)),
                iif(mod(:i, 6) = 0, null, timestamp '2024-02-28 08:00:00' + :i * 0.13));
            i = i + 1;
        end
    end^)");

/** The list of the screen, with and without the filter's condition. */
QString Consulta(const QString &colunas, const QString &onde)
{
    return QStringLiteral("select ") + colunas +
           QStringLiteral(" from clientes c left join tipos t on t.tipos_cod = c.tipos_cod ") +
           (onde.isEmpty() ? QString() : QStringLiteral("where ") + onde) +
           QStringLiteral(" order by c.nome desc nulls last, c.clientes_cod desc");
}

class TClientesF : public TTabLinFiltroBasF
{
public:
    using TTabLinFiltroBasF::TTabLinFiltroBasF;
    QString NomeJanela() const override { return QStringLiteral("Clientes"); }

    QString Onde() const
    {
        const QString parte = FiltroEdit ? FiltroEdit->GetText().trimmed() : QString();
        return parte.isEmpty() ? QString()
                               : QStringLiteral("c.nome like ") + QuotedStr(parte + u'%');
    }
    void PrepararSQL() override
    {
        FiltroAtivo = !Onde().isEmpty();
        FiltroStatusLabel->setText(FiltroAtivo ? QStringLiteral("Exibindo alguns")
                                               : QStringLiteral("Exibindo todos"));
        SetSQLText(Consulta(Codigo + QStringLiteral(" as clientes_cod, c.serie, c.nome, c.limite, "
                                                    "c.nascimento, c.tipos_cod, c.situacao, "
                                                    "c.sigla, c.nivel, c.gravado, "
                                                    "t.rotulo"),
                            Onde()));
    }
    void ZerarFiltro() override { FiltroEdit->clear(); }

    TNumEditBRCodBasFr *CodFr = nullptr;
    TNumEditBRBasFr *SerieFr = nullptr;
    TLabeledEditTextoBasFr *NomeFr = nullptr;
    TNumEditBRBasFr *LimiteFr = nullptr;
    TDTPBasFr *NascimentoFr = nullptr;
    TComboBoxCodBasFr *TipoFr = nullptr;
    TLabeledEdit *FiltroEdit = nullptr;
    /** What the list takes for the code. */
    static inline QString Codigo = QStringLiteral("c.clientes_cod");

protected:
    template <typename T>
    void Por(T *&fr, int y)
    {
        fr = Criar<T>(CamposTabSheet);
        fr->move(16, y);
    }
    void FormCreate(QObject *sender) override
    {
        FiltroEdit = new TLabeledEdit(ScrollBox1);
        FiltroEdit->SetCaption(QStringLiteral("Nome"));
        FiltroEdit->setGeometry(10, 40, 150, 21);
        Por(CodFr, 8);
        Por(SerieFr, 56);
        Por(NomeFr, 104);
        NomeFr->Tag = 1;
        NomeFr->AceitaVazio = false;
        Por(LimiteFr, 156);
        Por(NascimentoFr, 208);
        Por(TipoFr, 260);
        TipoFr->AceitaVazio = true;
        niveis.Clear();
        for (const char *nivel : {"baixo", "médio", "alto"})
            niveis.Add(QString::fromUtf8(nivel));
        TTabLinFiltroBasF::FormCreate(sender);
        TipoFr->SetSQLText(QStringLiteral("select tipos_cod, rotulo from tipos order by rotulo"));
    }
    void PrepararTab() override
    {
        const auto campo = [this](const char *nome) { return SQLQuery1->FieldByName(nome); };
        Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("clientes"));
        Tab->PegarCampoChave(campo("clientes_cod"), 60, CodFr);
        Tab->PegarCampoChave(campo("serie"), 40, SerieFr);
        Tab->PegarCampo(campo("nome"), 160, NomeFr);
        Tab->PegarCampo(campo("limite"), 80, LimiteFr)->Tipo = 4;
        Tab->PegarCampo(campo("nascimento"), 80, NascimentoFr)->Tipo = 1;
        Tab->PegarCampoChaveEstrangeira(campo("tipos_cod"), campo("rotulo"), 60, TipoFr);
        // Its text looks at another field of the row.
        if (ComEvento) {
            Tab->PegarCampo(campo("situacao"), 80)->OnAsString = [this](TCampo *c, QString &texto) {
                texto = c->Valor.AsString() + u'/' + Tab->Campos->Campos(5)->TextoEstrangeiro;
            };
        } else {
            TCampo *situacao = Tab->PegarCampo(campo("situacao"), 80);
            situacao->Tipo = 5;
            situacao->ListaChar = std::make_unique<TLinhas>();
            situacao->ListaChar->Add(QStringLiteral("ativo"), u'A');
            situacao->ListaChar->Add(QStringLiteral("sem"), u' ');
        }
        Tab->PegarCampo(campo("sigla"), 50);
        Tab->PegarCampo(campo("nivel"), 60)->Lista = &niveis;
        Tab->PegarCampo(campo("nivel"), 40)->Tipo = 6;
        Tab->PegarCampo(campo("gravado"), 130);
    }
    void AntesInserir() override
    {
        const QString cod = StringProxCod();
        SQLInserir = QStringLiteral("insert into clientes values (") +
                     QStringList{cod,
                                 SerieFr->SQLString(),
                                 NomeFr->SQLString(),
                                 LimiteFr->SQLString(),
                                 NascimentoFr->SQLString(),
                                 Tipo(),
                                 QStringLiteral("'A', 'S', 1, timestamp '2026-11-20 09:30:00'")}
                         .join(u',') +
                     u')';
        SQLUltimoInserido =
            QStringLiteral("select clientes_cod from clientes where clientes_cod=") + cod;
    }
    void AntesAlterar() override
    {
        SQLAlterar = QStringLiteral("update clientes set nome=%1, limite=%2, tipos_cod=%3")
                         .arg(NomeFr->SQLString(), LimiteFr->SQLString(), Tipo());
    }

public:
    static inline bool ComEvento = false;

private:
    TLinhas niveis;

    QString Tipo() const
    {
        return TipoFr->GetValor() == Variant(0) ? QStringLiteral("null") : TipoFr->SQLString();
    }
};

QString Texto(const Variant &v)
{
    return v.EhNulo() ? QStringLiteral("Null") : v.AsString();
}

QString SimOuNao(bool b)
{
    return b ? QStringLiteral("sim") : QStringLiteral("não");
}

/** Everything that a user or the program's next operation gets to see of the screen. */
class TRetrato
{
public:
    TRetrato(TClientesF &daTela, TBancoTemp &doBanco) : tela(daTela), banco(doBanco)
    {
        Mesa();
        Campos();
        Entradas();
        Lista();
        Barra();
        Banco();
    }
    QStringList Linhas;

private:
    void Por(const QString &nome, const QString &valor) { Linhas << nome + u'=' + valor; }
    void Por(const QString &nome, int valor) { Por(nome, QString::number(valor)); }

    void Mesa()
    {
        const TTabelaLinear &tab = *tela.Tab;
        Por(QStringLiteral("RecNo"), tab.RecNo);
        Por(QStringLiteral("Fim"), SimOuNao(tab.Fim));
        Por(QStringLiteral("NLinhas"), tab.NLinhas);
        Por(QStringLiteral("Status"), int(tab.Status));
        Por(QStringLiteral("AtualizarControles"), SimOuNao(tab.AtualizarControles));
        Por(QStringLiteral("AtualizarLigado"), SimOuNao(tela.AtualizarLigado));
        Por(QStringLiteral("SelecaoNavega"), SimOuNao(tela.SelecaoNavega));
        Por(QStringLiteral("cursor"), tela.SQLQuery1->RecNo());
        Por(QStringLiteral("CodUltimoInserido"), tela.CodUltimoInserido);
        Por(QStringLiteral("CodAlterado"), tela.CodAlterado);
        Por(QStringLiteral("chaves"), tab.ChavesGarantia());
        Por(QStringLiteral("onde"), tab.WhereStr());
    }
    void Campos()
    {
        for (int i = 0; i < tela.Tab->Campos->Count(); ++i) {
            const TCampo *c = tela.Tab->Campos->Campos(i);
            Por(QStringLiteral("campo %1").arg(c->Field->FieldName()),
                Texto(c->Valor) + u'|' + c->AsString() + u'|' + c->TextoEstrangeiro + u'|' +
                    SimOuNao(c->CanUndo()));
        }
    }
    void Entradas()
    {
        for (const QLineEdit *e : tela.findChildren<QLineEdit *>()) {
            Por(QStringLiteral("entrada de ") + e->parentWidget()->objectName(),
                e->text() + u'|' + SimOuNao(e->isReadOnly()));
        }
        for (const TControlBasFr *fr : tela.findChildren<TControlBasFr *>())
            Por(QStringLiteral("valor de ") + fr->metaObject()->className(), Texto(fr->GetValor()));
        const QWidget *foco = QApplication::focusWidget();
        Por(QStringLiteral("foco"),
            foco ? foco->objectName() + u' ' + foco->parentWidget()->objectName() : QString());
    }
    void Lista()
    {
        const TStringGrid &g = *tela.StringGrid1;
        for (int r = 0; r < g.GetRowCount(); ++r) {
            QStringList celulas;
            for (int c = 0; c < g.GetColCount(); ++c)
                celulas << g.GetCell(c, r);
            Por(QStringLiteral("linha %1").arg(r), celulas.join(u'|'));
        }
        for (int c = 0; c < g.GetColCount(); ++c)
            Por(QStringLiteral("largura"), g.GetColWidth(c));
        const TGridRect s = g.GetSelection();
        Por(QStringLiteral("célula"), QStringLiteral("%1,%2 topo %3,%4 seleção %5,%6-%7,%8")
                                          .arg(g.GetCol())
                                          .arg(g.GetRow())
                                          .arg(g.GetLeftCol())
                                          .arg(g.GetTopRow())
                                          .arg(s.Esquerda)
                                          .arg(s.Topo)
                                          .arg(s.Direita)
                                          .arg(s.Base));
        const QImage figura = tela.StringGrid1->grab().toImage();
        QCryptographicHash resumo(QCryptographicHash::Sha1);
        resumo.addData(QByteArrayView(figura.constBits(), figura.sizeInBytes()));
        Por(QStringLiteral("pintura"), QString::fromLatin1(resumo.result().toHex()));
    }
    void Barra()
    {
        Por(QStringLiteral("página"), tela.PageControl1->GetActivePageIndex());
        Por(QStringLiteral("título"), tela.windowTitle());
        Por(QStringLiteral("registros"), tela.NRegsLabel->text());
        Por(QStringLiteral("filtro"),
            tela.FiltroStatusLabel->text() + u'|' + SimOuNao(tela.FiltroAtivLab->isVisible()));
        for (const TAction *a : tela.findChildren<TAction *>()) {
            Por(QStringLiteral("ação ") + a->objectName(),
                SimOuNao(a->GetEnabled()) + u'|' + SimOuNao(a->GetVisible()));
        }
    }
    void Banco()
    {
        Por(QStringLiteral("travas"), banco.Conexao().Travas().Count());
        TSQLQuery q;
        q.SetSQLConnection(&banco.Conexao());
        q.SetSQL(QStringLiteral("select * from clientes order by clientes_cod, serie"));
        for (q.Open(); !q.Eof(); q.Next()) {
            QStringList valores;
            for (int i = 0; i < q.FieldCount(); ++i)
                valores << Texto(q.Fields(i)->Value());
            Por(QStringLiteral("gravado"), valores.join(u'|'));
        }
    }

    TClientesF &tela;
    TBancoTemp &banco;
};

/** One run of an operation: a database, a screen, and what it looked like after every step. */
class TVez
{
public:
    explicit TVez(bool simples, const QString &antes = {}) : formas(simples)
    {
        Servicos().MensagemAviso = [this](const QString &texto, int) { ditos << texto; };
        Servicos().Pergunta = [this](const QString &texto) {
            ditos << texto;
            return Responde;
        };
        Servicos().PerguntaDeletar = [this] {
            ditos << QStringLiteral("(excluir)");
            return Responde;
        };
        SetRelogio([] { return TDateTime(QDateTime(QDate(2026, 11, 20), QTime(9, 30))); });
        if (!antes.isEmpty())
            Banco.Executar(antes);
        outra.DatabaseName = Banco.Arquivo();
        janela.resize(900, 640);
        janela.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&janela));
        Tela = Criar<TClientesF>(nullptr);
        janela.addSubWindow(Tela);
        Tela->Show();
        Ocioso();
        Retratar();
    }
    ~TVez()
    {
        LocalizBasF->Close();
        SetRelogio({});
    }
    TVez(const TVez &) = delete;
    TVez &operator=(const TVez &) = delete;

    void Ocioso()
    {
        QCoreApplication::processEvents();
        ExecutarOcioso();
        QCoreApplication::processEvents();
    }
    void Retratar()
    {
        TRetrato retrato(*Tela, Banco);
        retrato.Linhas << QStringLiteral("ditos=") + ditos.join(u'#');
        Passos << retrato.Linhas;
    }
    void Tecla(int tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
    {
        QWidget *foco = QApplication::focusWidget();
        ASSERT_TRUE(foco);
        QTest::keyClick(foco, Qt::Key(tecla), com);
        Ocioso();
        Retratar();
    }
    void Ctrl(int tecla) { Tecla(tecla, Qt::ControlModifier); }
    void Digitar(const QString &texto)
    {
        for (const QChar c : texto) {
            ASSERT_TRUE(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
            Ocioso();
        }
        Retratar();
    }
    void NaLinha(int linha)
    {
        Tela->StringGrid1->SetRow(linha);
        Ocioso();
        Retratar();
    }
    void Incluir() { Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier); }
    void Alterar() { Ctrl(Qt::Key_A); }
    void Confirmar() { Ctrl(Qt::Key_Return); }
    void Cancelar() { Tecla(Qt::Key_Escape); }
    void Excluir() { Ctrl(Qt::Key_Delete); }
    /** The search dialog: a text, from the keyboard, in a mode and a direction (0 upwards). */
    void Procurar(const QString &texto, int modo, int direcao)
    {
        Ctrl(Qt::Key_L);
        ASSERT_TRUE(QTest::qWaitForWindowActive(LocalizBasF));
        LocalizBasF->OndeRadioGroup->SetItemIndex(modo);
        LocalizBasF->DirecRadioGroup->SetItemIndex(direcao);
        LocalizBasF->Direcao = 2 * direcao - 1;
        Digitar(texto);
        Tecla(Qt::Key_Return);
        Tecla(Qt::Key_Escape);
        janela.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
        Ocioso();
    }
    void Filtrar(const QString &texto)
    {
        Tela->FiltroEdit->setFocus();
        Tela->FiltroEdit->setText(texto);
        Tecla(Qt::Key_Return);
        Tela->StringGrid1->setFocus();
    }
    /** Another user's connection. */
    TSQLConnection &Outra()
    {
        if (!outra.Connected())
            outra.Open();
        return outra;
    }
    QString Chaves() const { return Tela->Tab->ChavesGarantia(); }
    QString Onde() const { return Tela->Tab->WhereStr(); }
    int Quantos()
    {
        return Banco.Valor(QStringLiteral("select count(*) from clientes")).AsInteger();
    }
    /** Something more to compare. */
    void Anotar(const QStringList &linhas) { Passos << linhas; }
    /** The messages since the last time. */
    QStringList Ditos() { return std::exchange(ditos, {}); }

    /** The list as another program would have it, put together by the database itself. */
    void ConferirLista(const QString &onde = {})
    {
        TSQLQuery q;
        q.SetSQLConnection(&Banco.Conexao());
        q.SetSQL(Consulta(
            QStringLiteral("c.clientes_cod || '|' || c.serie || '|' || coalesce(trim(c.nome), '')"
                           " || '|' || replace(coalesce(c.limite, 0), '.', ',') || '|' || "
                           "coalesce(lpad(extract(day from c.nascimento), 2, '0') || '/' || "
                           "lpad(extract(month from c.nascimento), 2, '0') || '/' || "
                           "extract(year from c.nascimento), '')"),
            onde));
        q.Open();
        const TStringGrid &g = *Tela->StringGrid1;
        ASSERT_EQ(g.GetRowCount(), q.RecordCount() + 1);
        for (int r = 1; r < g.GetRowCount(); ++r, q.Next()) {
            QStringList celulas;
            for (int c = 0; c < 5; ++c)
                celulas << g.GetCell(c, r);
            ASSERT_EQ(celulas.join(u'|'), q.Fields(0)->AsString()) << "row " << r;
        }
    }

    TServicosGuarda servicos;
    TFormasSimples formas;
    TBancoTemp Banco{Esquema};
    TFicha biblioteca;
    TClientesF *Tela = nullptr;
    bool Responde = true;
    QVector<QStringList> Passos;

private:
    TMdiArea janela;
    TSQLConnection outra;
    QStringList ditos;
};

struct TOperacao {
    const char *nome;
    std::function<void(TVez &)> f;
    const char *antes = "";
    bool comEvento = false;
    const char *codigo = "c.clientes_cod";
};

void PrintTo(const TOperacao &o, std::ostream *saida)
{
    *saida << o.nome;
}

void SumirDoBanco(TVez &v)
{
    v.NaLinha(77);
    v.Outra().Executar(QStringLiteral("delete from clientes") + v.Onde());
}

void Travar(TVez &v)
{
    v.NaLinha(77);
    ASSERT_TRUE(v.Outra().Travas().Tentar(QStringLiteral("clientes"), v.Chaves()));
}

const TOperacao Operacoes[] = {
    {"Opening", [](TVez &v) { v.ConferirLista(); }},
    {"OpeningWithTextsThatLookAtOtherFields", [](TVez &v) { v.ConferirLista(); }, "", true},
    {"EveryFieldIntoAStringList",
     [](TVez &v) {
         v.NaLinha(77);
         TTabelaLinear &tab = *v.Tela->Tab;
         for (int i = 0; i < tab.Campos->Count(); ++i) {
             TLinhas lista;
             tab.PreencherStringList(lista, i);
             ASSERT_EQ(lista.Count(), 300);
             QStringList textos;
             for (int n = 0; n < lista.Count(); ++n) {
                 textos << lista.Texto(n);
                 ASSERT_EQ(textos.last(), v.Tela->StringGrid1->GetCell(i, n + 1));
             }
             v.Anotar(textos);
             EXPECT_EQ(tab.RecNo, 77);
         }
     },
     "", true},
    {"Walking",
     [](TVez &v) {
         v.Ctrl(Qt::Key_PageDown);
         EXPECT_EQ(v.Tela->Tab->RecNo, 300);
         v.Ctrl(Qt::Key_Up);
         v.Ctrl(Qt::Key_Up);
         v.Ctrl(Qt::Key_Down);
         EXPECT_EQ(v.Tela->Tab->RecNo, 299);
         v.Ctrl(Qt::Key_PageUp);
         v.Ctrl(Qt::Key_Down);
         EXPECT_EQ(v.Tela->Tab->RecNo, 2);
         v.Tecla(Qt::Key_PageDown);
         v.Tecla(Qt::Key_Down);
         v.Tecla(Qt::Key_Up);
     }},
    {"InsertConfirmed",
     [](TVez &v) {
         v.Incluir();
         v.Digitar(QStringLiteral("Bia nova"));
         v.Confirmar();
         EXPECT_EQ(v.Quantos(), 301);
         EXPECT_EQ(v.Tela->Tab->Status, TStatus::Ocioso);
         EXPECT_EQ(v.Tela->NomeFr->GetValor().AsString(), QStringLiteral("Bia nova"));
         v.ConferirLista();
     }},
    {"InsertConfirmedWithTextsThatLookAtOtherFields",
     [](TVez &v) {
         v.Incluir();
         v.Digitar(QStringLiteral("Bia nova"));
         v.Confirmar();
         v.ConferirLista();
     },
     "", true},
    {"InsertRefusedThenCancelled",
     [](TVez &v) {
         v.NaLinha(40);
         v.Incluir();
         v.Confirmar();
         EXPECT_EQ(v.Tela->Tab->Status, TStatus::Inserindo);
         v.Cancelar();
         EXPECT_EQ(v.Quantos(), 300);
         v.ConferirLista();
     }},
    {"InsertCancelled",
     [](TVez &v) {
         v.NaLinha(123);
         v.Incluir();
         v.Digitar(QStringLiteral("Ningu"));
         v.Cancelar();
         EXPECT_EQ(v.Quantos(), 300);
         v.ConferirLista();
     }},
    {"InsertIntoAnEmptyTable",
     [](TVez &v) {
         v.Incluir();
         v.Cancelar();
         v.Incluir();
         v.Digitar(QStringLiteral("Primeira"));
         v.Confirmar();
         EXPECT_EQ(v.Quantos(), 1);
         v.ConferirLista();
         v.Excluir();
         EXPECT_EQ(v.Tela->Tab->RecNo, -1);
     },
     "delete from clientes"},
    {"AlterationConfirmed",
     [](TVez &v) {
         v.NaLinha(150);
         const QString chaves = v.Chaves();
         v.Alterar();
         v.Tecla(Qt::Key_End);
         v.Digitar(QStringLiteral(" x"));
         v.Confirmar();
         EXPECT_EQ(v.Tela->Tab->Status, TStatus::Ocioso);
         EXPECT_EQ(v.Chaves(), chaves);
         EXPECT_TRUE(v.Tela->StringGrid1->GetCell(2, v.Tela->Tab->RecNo).endsWith(u'x'));
         v.ConferirLista();
     }},
    {"AlterationThatMovesTheRecordInTheList",
     [](TVez &v) {
         v.NaLinha(250);
         const QString chaves = v.Chaves();
         v.Alterar();
         v.Tecla(Qt::Key_Home);
         v.Digitar(QStringLiteral("Zz"));
         v.Confirmar();
         EXPECT_EQ(v.Chaves(), chaves);
         EXPECT_NE(v.Tela->Tab->RecNo, 250);
         v.ConferirLista();
     }},
    {"AlterationStartedByTypingCancelled",
     [](TVez &v) {
         v.NaLinha(33);
         v.Tela->PageControl1->MudarComoUsuario(1);
         v.Tela->NomeFr->SetFocus();
         v.Digitar(QStringLiteral("quase"));
         EXPECT_EQ(v.Tela->Tab->Status, TStatus::Alterando);
         v.Cancelar();
         EXPECT_EQ(v.Tela->Tab->RecNo, 33);
         v.ConferirLista();
     }},
    {"AlterationAbandonedForARefusedValue",
     [](TVez &v) {
         v.NaLinha(90);
         v.Alterar();
         v.Ctrl(Qt::Key_A);
         v.Tecla(Qt::Key_Delete);
         v.Confirmar();
         v.ConferirLista();
     }},
    {"AlterationOfWhatAnotherUserChanged",
     [](TVez &v) {
         v.NaLinha(77);
         v.Outra().Executar(QStringLiteral("update clientes set limite=12.34, nome='Zz'") +
                            v.Onde());
         const QString chaves = v.Chaves();
         v.Alterar();
         EXPECT_EQ(v.Chaves(), chaves);
         EXPECT_NE(v.Tela->Tab->RecNo, 77);
         v.Cancelar();
         v.ConferirLista();
     }},
    {"AlterationOfARecordThatIsGone",
     [](TVez &v) {
         SumirDoBanco(v);
         v.Alterar();
         EXPECT_EQ(v.Ditos().size(), 1);
         EXPECT_EQ(v.Tela->Tab->Status, TStatus::Ocioso);
         v.ConferirLista();
     }},
    {"AlterationRefusedByTheLock",
     [](TVez &v) {
         Travar(v);
         v.Alterar();
         EXPECT_EQ(v.Ditos().size(), 1);
         EXPECT_EQ(v.Tela->Tab->Status, TStatus::Ocioso);
         EXPECT_EQ(v.Tela->Tab->RecNo, 77);
     }},
    {"DeletionInTheMiddle",
     [](TVez &v) {
         v.NaLinha(150);
         v.Excluir();
         EXPECT_EQ(v.Quantos(), 299);
         v.ConferirLista();
     }},
    {"DeletionAtBothEnds",
     [](TVez &v) {
         v.Excluir();
         v.Ctrl(Qt::Key_PageDown);
         v.Excluir();
         EXPECT_EQ(v.Quantos(), 298);
         v.ConferirLista();
     }},
    {"DeletionDeclined",
     [](TVez &v) {
         v.Responde = false;
         v.NaLinha(150);
         v.Excluir();
         EXPECT_EQ(v.Quantos(), 300);
         EXPECT_EQ(v.Tela->Tab->RecNo, 150);
     }},
    {"DeletionOfARecordThatIsGone",
     [](TVez &v) {
         SumirDoBanco(v);
         v.Excluir();
         EXPECT_EQ(v.Quantos(), 299);
         v.ConferirLista();
     }},
    {"DeletionRefusedByTheLock",
     [](TVez &v) {
         Travar(v);
         v.Excluir();
         EXPECT_EQ(v.Quantos(), 300);
     }},
    {"SearchFoundBelowAndAbove",
     [](TVez &v) {
         v.Tela->StringGrid1->SetCelula(2, 60);
         v.Procurar(QStringLiteral("ana 2"), 1, 1);
         EXPECT_TRUE(v.Tela->NomeFr->GetValor().AsString().startsWith(QStringLiteral("Ana 2")));
         const int achada = v.Tela->Tab->RecNo;
         EXPECT_GT(achada, 60);
         v.Procurar(QStringLiteral("caio"), 2, 0);
         EXPECT_LT(v.Tela->Tab->RecNo, achada);
     }},
    {"SearchMissed",
     [](TVez &v) {
         v.Tela->StringGrid1->SetCelula(2, 60);
         v.Procurar(QStringLiteral("xyz"), 2, 1);
         EXPECT_EQ(v.Tela->Tab->RecNo, 60);
         v.Procurar(QStringLiteral("xyz"), 2, 0);
         EXPECT_EQ(v.Tela->Tab->RecNo, 60);
         EXPECT_EQ(v.Ditos().size(), 2);
     }},
    {"FilterOnAndOff",
     [](TVez &v) {
         v.NaLinha(200);
         v.Filtrar(QStringLiteral("Bia"));
         EXPECT_TRUE(v.Tela->FiltroAtivo);
         EXPECT_LT(v.Tela->Tab->NLinhas, 100);
         v.ConferirLista(v.Tela->Onde());
         v.Ctrl(Qt::Key_PageDown);
         v.Filtrar({});
         v.ConferirLista();
     }},
    {"FilterThatFindsNothing",
     [](TVez &v) {
         v.Filtrar(QStringLiteral("Xyz"));
         EXPECT_EQ(v.Tela->Tab->RecNo, -1);
         v.Filtrar({});
         v.ConferirLista();
     }},
    {"AlterationWhileFiltered",
     [](TVez &v) {
         v.Filtrar(QStringLiteral("Bia"));
         v.NaLinha(9);
         const QString chaves = v.Chaves();
         v.Alterar();
         EXPECT_EQ(v.Chaves(), chaves);
         v.Digitar(QStringLiteral("Ana trocada"));
         v.Confirmar();
         EXPECT_EQ(v.Chaves(), chaves);
         v.ConferirLista();
     }},
    {"DeletionWhileFiltered",
     [](TVez &v) {
         v.Filtrar(QStringLiteral("Bia"));
         v.NaLinha(9);
         v.Excluir();
         EXPECT_EQ(v.Quantos(), 299);
         v.ConferirLista();
     }},
    {"AListWithARowWithoutACode",
     [](TVez &v) {
         EXPECT_NE(v.Tela->StringGrid1->GetCell(0, 1), QString());
         v.Ctrl(Qt::Key_PageDown);
         v.Ctrl(Qt::Key_Up);
         v.Incluir();
         v.Cancelar();
         v.Filtrar(QStringLiteral("Ana"));
         v.Filtrar({});
     },
     "", false, "nullif(c.clientes_cod, 200)"},
};

} // namespace

class TFormasSimplesTest : public testing::TestWithParam<TOperacao>
{
protected:
    TFormasSimplesTest()
    {
        TClientesF::ComEvento = GetParam().comEvento;
        TClientesF::Codigo = QString::fromLatin1(GetParam().codigo);
    }
    ~TFormasSimplesTest() override
    {
        TClientesF::ComEvento = false;
        TClientesF::Codigo = QStringLiteral("c.clientes_cod");
    }
    static QVector<QStringList> Passos(bool simples)
    {
        TVez vez(simples, QString::fromLatin1(GetParam().antes));
        GetParam().f(vez);
        vez.Ocioso();
        vez.Retratar();
        return vez.Passos;
    }
};

TEST_P(TFormasSimplesTest, TheStateAfterEveryStepIsThatOfTheSimpleForms)
{
    const auto curtas = Passos(false);
    const auto simples = Passos(true);
    ASSERT_EQ(curtas.size(), simples.size());
    for (qsizetype passo = 0; passo < curtas.size(); ++passo) {
        ASSERT_EQ(curtas[passo].size(), simples[passo].size()) << "step " << passo;
        for (qsizetype i = 0; i < curtas[passo].size(); ++i)
            EXPECT_EQ(curtas[passo][i], simples[passo][i]) << "step " << passo;
    }
    EXPECT_FALSE(FormasSimples());
}

INSTANTIATE_TEST_SUITE_P(Operations, TFormasSimplesTest, testing::ValuesIn(Operacoes),
                         [](const auto &caso) { return std::string(caso.param.nome); });

} // namespace ficha::testes
