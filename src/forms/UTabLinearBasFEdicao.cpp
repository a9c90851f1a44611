#include "forms/UTabLinearBasF.h"

#include "forms/UApoioForms.h"
#include "input/UNumEditBRCodBasFr.h"
#include "platform/core/Erros.h"
#include "platform/core/FormasSimples.h"
#include "platform/database/ConexD.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TPageControl.h"

#include <QCoreApplication>
#include <QDebug>
#include <QScopeGuard>
#include <QScopedValueRollback>

/* The edit cycle of the maintenance screen: insert, alter, confirm, cancel, delete, new codes. */

namespace ficha
{

namespace
{

/** What a confirm writes is stored as a whole or not at all. */
void EmUmaTransacao(const std::function<void()> &f)
{
    if (TSQLConnection *conexao = ConexD().SQLConnection)
        conexao->EmTransacao(f);
    else
        f();
}

} // namespace

void TTabLinearBasF::SugerirCod()
{
    if (EditCod)
        EditCod->SetValor(SugestaoNovoCod());
}

int TTabLinearBasF::SugestaoNovoCod()
{
    const QString coluna = Tab->Campos->Campos(0)->Field->FieldName();
    TCustomBRSQL codigos(QStringLiteral("select ") + coluna + QStringLiteral(" from ") +
                         Tab->NomeTabela + QStringLiteral(" order by ") + coluna);
    int n = 1;
    const TField *codigo = codigos.Fields(0);
    for (; !codigos.Eof() && codigo->AsInteger() == n; codigos.Next())
        ++n;
    return n;
}

void TTabLinearBasF::AntesInserir() {}

void TTabLinearBasF::AntesAlterar() {}

void TTabLinearBasF::AntesExcluir() {}

void TTabLinearBasF::AposInserir() {}

void TTabLinearBasF::AposAlterar() {}

void TTabLinearBasF::AposExcluir() {}

void TTabLinearBasF::SelecionarPrimeiroControl() {}

bool TTabLinearBasF::AtivarAlteracao()
{
    // An input that is emptied may ask for an alteration itself; there is nothing to alter then.
    if (!Navegando() || ativando || !AtualizarLigado || !RelerSeFechada())
        return false;
    if (SQLQuery1->IsEmpty())
        return AtivarInsersao();
    return IniciarAlteracao();
}

bool TTabLinearBasF::IniciarAlteracao()
{
    const QPointer<TTabLinearBasF> viva(this);
    const TFlagGuarda guarda(this, &TTabLinearBasF::ativando, true);
    bool iniciou = false;
    // The key that asked for the alteration is typed into its input after this returns.
    const auto recusada = qScopeGuard([&] {
        if (viva && !iniciou)
            MostrarRegistroDepois();
    });
    CodAlterado = 0;
    const std::vector<Variant> antes = ValoresAtuais();
    if (!TravarRegistro())
        return false;
    FecharLocaliz();
    MostrarPagina(PaginaCampos);
    Tab->AltIni();
    iniciou = true;
    MostrarOQueMudou(antes);
    return true;
}

/** Takes the lock; refused, it shows the record as it now stands. A record that is locked but that
 * the list no longer brings is refused too: another one is current by then. */
bool TTabLinearBasF::TravarRegistro()
{
    const QPointer<TTabLinearBasF> viva(this);
    const QString chaves = Tab->ChavesGarantia();
    const bool travado = Tab->GarantiaRegistro();
    if (!viva || fechou)
        return false;
    if (travado && Tab->ChavesGarantia() == chaves)
        return true;
    Tab->LiberarRegistro(chaves);
    Reler(0);
    MostrarRegistro();
    return false;
}

bool TTabLinearBasF::AtivarInsersao()
{
    if (Navegando() && !ativando)
        IniciarInsersao();
    return true;
}

void TTabLinearBasF::IniciarInsersao()
{
    const QPointer<TTabLinearBasF> viva(this);
    const TFlagGuarda guarda(this, &TTabLinearBasF::ativando, true);
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    CodUltimoInserido = 0;
    insersaoGravada = false;
    MostrarPagina(PaginaCampos);
    // What the user types meanwhile waits: it belongs into the empty inputs.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!viva || fechou || !Navegando())
        return;
    ReabrirLista();
    FecharLocaliz();
    SelecionarPrimeiroControl();
    Tab->InsIni();
    if (EditCod)
        SugerirCod();
}

bool TTabLinearBasF::Inseriu()
{
    // A record that is stored already would refuse its own code as repeated.
    if (!insersaoGravada && !PodeInserir()) {
        // Also in an empty table, where a refill shows the absent record, what was typed stays.
        const QScopedValueRollback<bool> controles(Tab->AtualizarControles, false);
        PreencherStringGrid();
        return false;
    }
    GravarInsersao();
    ReabrirLista();
    ReposicionarAposInserir();
    insersaoGravada = false;
    return true;
}

/** Stores the record, once: when the re-reading after it failed, the next confirm goes on from
 * there. */
void TTabLinearBasF::GravarInsersao()
{
    if (insersaoGravada)
        return;
    EmUmaTransacao([this] {
        AntesInserir();
        ConexD().Executar(SQLInserir);
        AposInserir();
        if (!SQLUltimoInserido.isEmpty())
            LerUltimoInserido();
    });
    insersaoGravada = true;
    if (SQLUltimoInserido.isEmpty()) {
        MensagemAviso(QStringLiteral("Avisar o Suporte Técnico:\r\nfaltou SQL do último inserido"),
                      0);
        LerUltimoInserido();
    }
}

void TTabLinearBasF::LerUltimoInserido()
{
    TCustomBRQuery consulta;
    if (consulta.Open(SQLUltimoInserido))
        CodUltimoInserido = consulta.Fields(0)->AsInteger();
}

void TTabLinearBasF::ReposicionarAposInserir()
{
    if (SQLQuery1->RecordCount() < 2)
        return;
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    const QScopedValueRollback<bool> controles(Tab->AtualizarControles, false);
    if (FormasSimples())
        AndarAteNaoDesfazer();
    else
        PararNoQueNaoDesfaz();
    PreencherStringGrid();
}

bool TTabLinearBasF::Alterou()
{
    if (!PodeAlterar()) {
        CancelarAction->Execute();
        return false;
    }
    CodAlterado = CodigoAtual();
    EmUmaTransacao([&] {
        AntesAlterar();
        ConexD().Executar(SQLAlterar + Tab->WhereStr());
        AposAlterar();
    });
    ReabrirLista();
    const TFlagGuarda sincronia(this, &TTabLinearBasF::SincronizarLinha, false);
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    AndarAteNaoDesfazer();
    PreencherStringGrid();
    return true;
}

bool TTabLinearBasF::PodeInserir()
{
    const QPointer<TDBControlBasFr> errado = PrimeiroErrado();
    if (!errado)
        return true;
    FocarErrado(errado);
    if (errado)
        errado->Atualizar();
    return false;
}

bool TTabLinearBasF::PodeAlterar()
{
    TDBControlBasFr *errado = PrimeiroErrado();
    if (!errado)
        return true;
    FocarErrado(errado);
    return false;
}

bool TTabLinearBasF::PodeExcluir()
{
    return true;
}

void TTabLinearBasF::AposChange()
{
    if (AtualizarLigado && Navegando())
        AtivarAlteracao();
}

int TTabLinearBasF::MaiorCodGravado()
{
    const TCustomBRSQL consulta(QStringLiteral("select max(") +
                                Tab->Campos->Campos(0)->Field->FieldName() +
                                QStringLiteral(") from ") + Tab->NomeTabela);
    return consulta.Fields(0)->AsInteger();
}

QString TTabLinearBasF::StringProxCod()
{
    const Variant digitado = EditCod ? EditCod->GetValor() : Variant(0);
    if (digitado == Variant(0)) {
        return QStringLiteral("GEN_ID(") + Tab->Campos->Campos(0)->Field->FieldName() +
               QStringLiteral("_gen, 1)");
    }
    if (digitado.EhNulo())
        return {};
    const int proximo = MaiorCodGravado() + 1;
    return digitado > Variant(proximo) ? QString::number(proximo) : digitado.AsString();
}

void TTabLinearBasF::InsActionExecute(QObject *sender)
{
    TTabBasF::InsActionExecute(sender);
    const QPointer<TTabLinearBasF> viva(this);
    AtivarInsersao();
    if (viva && PodeConfirmar())
        FocarPagina();
}

/** Nothing was typed yet: the inputs show the record as it stands under the lock. */
void TTabLinearBasF::AltActionExecute(QObject *sender)
{
    TTabBasF::AltActionExecute(sender);
    const QPointer<TTabLinearBasF> viva(this);
    const bool iniciou = AtivarAlteracao();
    if (!viva || !iniciou)
        return;
    if (Tab->Status == TStatus::Alterando)
        MostrarRegistro();
    FocarPagina();
}

void TTabLinearBasF::ExclActionExecute(QObject *sender)
{
    TTabBasF::ExclActionExecute(sender);
    // A short-cut can be faster than the idle update that switches the action off.
    if (!Tab || !Tab->PodeExcluir())
        return;
    const QPointer<TTabLinearBasF> viva(this);
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    std::exception_ptr falha;
    QString chaves;
    try {
        TentarExcluir(chaves);
    } catch (...) {
        falha = std::current_exception();
    }
    try {
        if (viva)
            TerminarExclusao(chaves);
    } catch (...) {
        // The first failure is the one to tell.
        if (!falha)
            throw;
    }
    if (falha)
        std::rethrow_exception(falha);
}

void TTabLinearBasF::TentarExcluir(QString &chaves)
{
    const QPointer<TTabLinearBasF> viva(this);
    Tab->ExclIni();
    if (!PodeExcluir()) {
        Tab->ExclCancel();
        return;
    }
    chaves = Tab->ChavesGarantia();
    const QString onde = Tab->WhereStr();
    const bool pode = Tab->GarantiaRegistro() && (!PerguntarExcluir || PerguntaDeletar());
    if (!viva)
        return;
    if (!pode) {
        Tab->ExclCancel();
        return;
    }
    EmUmaTransacao([&] {
        AntesExcluir();
        ConexD().Executar(QStringLiteral("delete from ") + Tab->NomeTabela + onde);
        AposExcluir();
    });
}

/** Runs whatever became of the deletion. Only a lock that this table holds is given back: when it
 * was refused, another screen of this program may have it. */
void TTabLinearBasF::TerminarExclusao(const QString &chaves)
{
    if (ManterPagina == 0)
        PageControl1->SelectNextPage(false, false);
    MostrarPagina(PaginaLista);
    Tab->ExclFim();
    Tab->LiberarRegistro(chaves);
    Reler(0);
}

void TTabLinearBasF::ConfirmActionExecute(QObject *)
{
    if (confirmando || !PodeConfirmar())
        return;
    const QPointer<TTabLinearBasF> viva(this);
    const TFlagGuarda guarda(this, &TTabLinearBasF::confirmando, true);
    const auto ligar = qScopeGuard([viva] {
        if (viva)
            viva->AtualizarLigado = true;
    });
    AtualizarLigado = false;
    GarantirListaAberta();
    if (Tab->Status == TStatus::Inserindo)
        ConfirmarInsersao();
    else if (Tab->Status == TStatus::Alterando)
        ConfirmarAlteracao();
}

void TTabLinearBasF::ConfirmarInsersao()
{
    const QPointer<TTabLinearBasF> viva(this);
    const bool inseriu = Inseriu();
    if (!viva)
        return;
    if (!inseriu) {
        if (Chamador)
            Close();
        return;
    }
    // When the way to the new record fails, another one is current: the inputs must show that one,
    // or the next key would start its alteration with the new record's values.
    auto mostrar = qScopeGuard([&] {
        if (viva && Navegando())
            Protegido([this] { MostrarRegistro(); });
    });
    Tab->InsFim();
    if (!AtenderChamador(CodUltimoInserido)) {
        Reler(0);
        IrParaCodigo(CodUltimoInserido);
    }
    mostrar.dismiss();
}

/** With a requesting frame AltFim is left out: the record's lock goes with the table, when the
 * screen that closes here is destroyed. */
void TTabLinearBasF::ConfirmarAlteracao()
{
    const QPointer<TTabLinearBasF> viva(this);
    const int cod = CodigoAtual();
    // A lost connection took the lock along, and somebody else may alter the record by now.
    if (!Tab->GarantirTrava() || !viva || Tab->Status != TStatus::Alterando)
        return;
    if (!Alterou() || !viva)
        return;
    if (AtenderChamador(CodAlterado))
        return;
    Tab->AltFim();
    Reler(cod);
}

/** Hands a code to the requesting frame and closes the screen. False when there is none, or when
 * serving it failed: the screen then goes on as if there were none. */
bool TTabLinearBasF::AtenderChamador(int cod)
{
    if (!Chamador)
        return false;
    const QPointer<TTabLinearBasF> viva(this);
    try {
        const QPointer<TControlBasFr> quem = Chamador;
        quem->PegueNovo(cod);
        if (!viva)
            return true;
        LiberarBotaoDoChamador(quem);
        Chamador = nullptr;
        FecharAposChamador = true;
        Close();
        return true;
    } catch (...) {
        qWarning().noquote() << "ficha:" << TextoDoErro(std::current_exception());
        if (viva)
            FecharAposChamador = false;
        return !viva;
    }
}

void TTabLinearBasF::CancelarActionExecute(QObject *)
{
    if (!Tab)
        return;
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    insersaoGravada = false;
    if (Tab->Status == TStatus::Inserindo) {
        // An input that is emptied may ask for an alteration, which without records would be the
        // next insertion.
        const TFlagGuarda guarda(this, &TTabLinearBasF::ativando, true);
        Tab->InsCancel();
    } else if (Tab->Status == TStatus::Alterando) {
        Tab->AltCancel();
        Tab->Campos->PreencherControls();
    }
    if (Chamador)
        Close();
    else
        Reler(0);
}

TDBControlBasFr *TTabLinearBasF::PrimeiroErrado()
{
    QPointer<TDBControlBasFr> errado;
    PercorrerFilhos(CamposTabSheet, [&errado](QWidget *w) {
        if (errado || !EstaVisivel(w))
            return false;
        auto *frame = qobject_cast<TDBControlBasFr *>(w);
        const QPointer<QWidget> vivo(w);
        if (frame && !frame->ValorAceitavel()) {
            errado = vivo ? frame : nullptr;
            return false;
        }
        return !vivo.isNull();
    });
    return errado;
}

void TTabLinearBasF::AndarAteNaoDesfazer()
{
    Tab->First();
    while (!Tab->Fim && Tab->Campos->CanUndo())
        Tab->Next();
}

/** Stands on the first record for which no input could undo anything, or past the last one; only
 * the fields that can be undone are looked at on the way. */
void TTabLinearBasF::PararNoQueNaoDesfaz()
{
    std::vector<TCampo *> campos;
    for (int i = 0; i < Tab->Campos->Count(); ++i) {
        TCampo *campo = Tab->Campos->Campos(i);
        const TControlBasFr *frame = campo->ControlInfo ? campo->ControlInfo->Frame() : nullptr;
        if (frame && frame->PodeDesfazer())
            campos.push_back(campo);
    }
    const int registros = SQLQuery1->RecordCount();
    SQLQuery1->First();
    for (int n = 1; n <= registros; ++n) {
        bool desfaz = false;
        for (TCampo *campo : campos) {
            campo->PegarValor();
            desfaz = desfaz || campo->CanUndo();
        }
        if (!desfaz) {
            Tab->SetRecno(n);
            return;
        }
        SQLQuery1->MoveBy(1);
    }
    Tab->Last();
    Tab->Fim = true;
}

/** After a failed re-reading the list is closed. While browsing it is read and shown again: false
 * when another record is current then. */
bool TTabLinearBasF::RelerSeFechada()
{
    if (SQLQuery1->Active())
        return true;
    const QString chaves = Tab->ChavesGarantia();
    Reler(0);
    return Tab->ChavesGarantia() == chaves;
}

/** The same in the middle of an edit: the inputs keep what was typed. */
void TTabLinearBasF::GarantirListaAberta()
{
    if (SQLQuery1->Active())
        return;
    const QString chaves = Tab->ChavesGarantia();
    ReabrirLista();
    const QScopedValueRollback<bool> controles(Tab->AtualizarControles, false);
    Tab->LocalizarPelaChave(chaves);
    if (Tab->Status == TStatus::Alterando && Tab->ChavesGarantia() != chaves)
        throw EErro(QStringLiteral("O registro em alteração não está mais na lista."));
}

/** Gives the focus to an input that refuses its value, past the page's own choice of input. */
void TTabLinearBasF::FocarErrado(TDBControlBasFr *errado)
{
    if (!FocoDentroDe(CamposTabSheet))
        focoPrometido = errado;
    errado->SetFocus();
}

void TTabLinearBasF::MostrarRegistroDepois()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            Protegido([this] {
                if (Navegando())
                    MostrarRegistro();
            });
        },
        Qt::QueuedConnection);
}

std::vector<Variant> TTabLinearBasF::ValoresAtuais() const
{
    std::vector<Variant> valores;
    valores.reserve(std::size_t(Tab->Campos->Count()));
    for (int i = 0; i < Tab->Campos->Count(); ++i)
        valores.push_back(Tab->Campos->Campos(i)->Valor);
    return valores;
}

/** Shows what others changed in the record since it was last read, or this alteration would write
 * the old values back. The input in which the user is typing stays. */
void TTabLinearBasF::MostrarOQueMudou(const std::vector<Variant> &antes)
{
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    for (int i = 0; i < Tab->Campos->Count(); ++i) {
        TCampo *campo = Tab->Campos->Campos(i);
        const QWidget *controle = campo->ControlInfo ? campo->ControlInfo->Control() : nullptr;
        if (controle && !(campo->Valor == antes[size_t(i)]) && !FocoDentroDe(controle))
            campo->PreencherControl();
    }
}

} // namespace ficha
