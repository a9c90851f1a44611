#include "input/UEnderecoBasFr.h"

#include "base/UControlBasFr.h"
#include "input/UConsultaDoGuia.h"
#include "input/UItensDoCombo.h"
#include "input/UListaDoCombo.h"
#include "input/UMaiusculas.h"
#include "platform/database/ConexD.h"
#include "platform/support/Mensagens.h"
#include "platform/support/SisD.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/Teclas.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPointer>
#include <QScopeGuard>
#include <QTimer>

#include <array>

namespace ficha
{

FICHA_REGISTRAR(TEnderecoBasFr)

namespace
{

constexpr int DigitosDoCep = 8;
constexpr int EsperaDoFoco = 150;
/** How long what was prepared for a CEP is kept after its last key. */
constexpr int EsperaDoCep = 5000;

using TItem = TItensDoCombo::TItem;

TItensDoCombo *Itens(const TComboBox *lista)
{
    return static_cast<TItensDoCombo *>(lista->model());
}

/** A text of the guide as the boxes show it. */
QString TextoDoGuia(const TField *campo)
{
    return Maiusculas(campo->AsString().trimmed());
}

QString NomeDoLogradouro(const TField *tipo, const TField *nome)
{
    return (TextoDoGuia(tipo) + u' ' + TextoDoGuia(nome)).trimmed();
}

std::intptr_t CodigoDaUF(const TField *campo)
{
    const QString codigo = campo->AsString();
    return codigo.isEmpty() ? 0 : codigo.at(0).unicode();
}

/** The selected item, else the one whose text was typed, with or without its accents; -1 when
 * there is none. */
int Escolhido(const TComboBox *lista)
{
    const int i = lista->GetItemIndex();
    return i >= 0 || lista->GetText().isEmpty() ? i : lista->IndexOfSemAcentos(lista->GetText());
}

/** Selects the item of a code, or shows its text where the list does not have it. */
void Mostrar(TComboBox *lista, std::intptr_t codigo, const QString &texto)
{
    const int i = Itens(lista)->IndexOfObjeto(codigo);
    if (i >= 0)
        lista->SetItemIndex(i);
    else
        lista->SetText(texto);
}

/** The text of a list, with what is selected of it: who enters a list by Tab types over its text,
 * also when it is read anew at that moment. */
class TTextoMantido
{
public:
    explicit TTextoMantido(TComboBox *deLista)
        : lista(deLista), texto(deLista->GetText()), cursor(deLista->lineEdit()->cursorPosition()),
          inicio(deLista->lineEdit()->selectionStart()),
          tamanho(int(deLista->lineEdit()->selectedText().size()))
    {
    }
    void Devolver() const
    {
        if (lista->GetText() == texto)
            return;
        lista->SetText(texto);
        // From its end, so that the beginning of a long text is in view.
        if (tamanho > 0)
            lista->lineEdit()->setSelection(inicio + tamanho, -tamanho);
        else if (lista->hasFocus())
            lista->lineEdit()->setCursorPosition(cursor);
    }

private:
    TComboBox *lista;
    QString texto;
    int cursor, inicio, tamanho;
};

/** Runs what reads a list anew and puts its text back, also when that fails. */
template <typename F>
void MantendoTexto(TComboBox *lista, F ler)
{
    const TTextoMantido texto(lista);
    const auto devolver = qScopeGuard([&] { texto.Devolver(); });
    ler();
}

/** A text as it is compared: neither accents nor letter case nor blanks make a difference. */
QString Comparavel(const QString &texto)
{
    QString comparavel = Maiusculas(texto.simplified());
    for (QChar &c : comparavel)
        c = CharSemAcento(c);
    return comparavel;
}

QString EnderecoPorExtenso(const QString &logradouro, const QString &bairro,
                           const QString &municipio, const QString &uf)
{
    QStringList partes = {logradouro.trimmed(),
                          bairro.trimmed().isEmpty() ? QString()
                                                     : QStringLiteral("Bairro ") + bairro.trimmed(),
                          municipio.trimmed(), uf.trimmed()};
    partes.removeAll(QString());
    return partes.join(u' ');
}

void Pintar(QObject *entrada, TColor cor)
{
    if (auto *lista = qobject_cast<TComboBox *>(entrada))
        lista->SetColor(cor);
    else if (auto *edit = qobject_cast<TCustomEdit *>(entrada))
        edit->SetColor(cor);
}
void PintarSelecionada(QObject *entrada)
{
    Pintar(entrada, SisD().CorControlSelec);
}
void PintarDesselecionada(QObject *entrada)
{
    Pintar(entrada, SisD().CorControlDesselec);
}

/** Swallows Enter, and Tab where it is asked for, and hands the focus on; with Shift, Ctrl or Alt
 * they are other keys. An input that cannot take the focus leaves the key as it is. */
void Avancar(int &tecla, Qt::KeyboardModifiers estado, QWidget *proximo, bool comTab = true)
{
    const bool avanca = tecla == VK_RETURN || (comTab && tecla == VK_TAB);
    if (!avanca || (estado & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) || !proximo->isVisible() ||
        !proximo->isEnabled())
        return;
    tecla = 0;
    proximo->setFocus(Qt::TabFocusReason);
}

} // namespace

/** An address of the guide. */
struct TEnderecoBasFr::TEndereco {
    std::intptr_t CodUF = 0;
    int CodMun = 0, CodBai = 0, CodLogr = 0;
    QString UF, Municipio, Bairro, Logradouro;

    QString PorExtenso() const { return EnderecoPorExtenso(Logradouro, Bairro, Municipio, UF); }
};

TEnderecoBasFr::TEnderecoBasFr(TChave chave) : TBasFr(chave) {}

TEnderecoBasFr::~TEnderecoBasFr() = default;

void TEnderecoBasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    LigarEntradas();
    // A screen without its address lists is better than no screen.
    if (ConexD().SQLConnection)
        Protegido([this] { PrepUFComboBox(); });
}

void TEnderecoBasFr::PrepUFComboBox()
{
    Preencher(UFComboBox, UFQ, {}, [this] {
        const TField *codigo = UFQ->FieldByName(QStringLiteral("UF_COD"));
        const TField *sigla = UFQ->FieldByName(QStringLiteral("SIGLA"));
        return [=] { return TItem{TextoDoGuia(sigla), CodigoDaUF(codigo)}; };
    });
    UFComboBox->SetItemIndex(0);
    PrepMun();
}

void TEnderecoBasFr::PreencherMunComboBox(QChar uf)
{
    LerMunicipios(uf);
}

void TEnderecoBasFr::PreencherBaiComboBox(int mun)
{
    LerBairros(mun);
}

void TEnderecoBasFr::PreencherLogrComboBox(int bai)
{
    LerLogradouros(bai, false);
}

void TEnderecoBasFr::PrepMun()
{
    if (UFComboBox->GetItemIndex() >= 0)
        LerMunicipios(UFSelecionada(UFComboBox->GetItemIndex()));
}

int TEnderecoBasFr::UFCodToIndex(QChar c) const
{
    return Itens(UFComboBox)->IndexOfObjeto(c.unicode());
}

void TEnderecoBasFr::UFPegar(const QString &sigla)
{
    const int i = UFComboBox->IndexOf(sigla);
    if (i < 0)
        return;
    UFComboBox->SetItemIndex(i);
    UFComboBoxChange(UFComboBox);
}

void TEnderecoBasFr::MunPegar(const QString &nome)
{
    MunComboBox->SetText(nome);
    MunComboBoxChange(MunComboBox);
}

void TEnderecoBasFr::BaiPegar(const QString &nome)
{
    BaiComboBox->SetText(nome);
    BaiComboBoxChange(BaiComboBox);
}

void TEnderecoBasFr::PegarState(int estado)
{
    EstadoDataSet = estado;
}

void TEnderecoBasFr::PegarReadOnly(bool b)
{
    setEnabled(b);
}

void TEnderecoBasFr::Zerar()
{
    NumFocusTimer->stop();
    CEPFocusTimer->stop();
    CEPMaskEdit->Clear();
    if (SemPadrao) {
        UFComboBox->SetItemIndex(-1);
        Limpar(MunComboBox);
        Limpar(BaiComboBox);
    } else {
        SelecionarPadrao();
    }
    BaiComboBox->SetItemIndex(-1);
    Limpar(LogrComboBox);
    NumLabeledEdit->Clear();
    ComplLabeledEdit->Clear();
}

bool TEnderecoBasFr::ValorAceitavel() const
{
    return true;
}

void TEnderecoBasFr::Editar()
{
    PedirAlteracao();
}

void TEnderecoBasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, CEPMaskEdit, "CEPMaskEdit");
    Pegar(this, UFComboBox, "UFComboBox");
    Pegar(this, MunComboBox, "MunComboBox");
    Pegar(this, BaiComboBox, "BaiComboBox");
    Pegar(this, LogrComboBox, "LogrComboBox");
    Pegar(this, NumLabeledEdit, "NumLabeledEdit");
    Pegar(this, ComplLabeledEdit, "ComplLabeledEdit");
    const auto rotular = [this](const char *nome, QWidget *entrada) {
        QLabel *rotulo = nullptr;
        Pegar(this, rotulo, nome);
        rotulo->setBuddy(entrada);
    };
    rotular("CEPLabel", CEPMaskEdit);
    rotular("UFLabel", UFComboBox);
    rotular("MunLabel", MunComboBox);
    rotular("BaiLabel", BaiComboBox);
    rotular("LogrLabel", LogrComboBox);
    const auto novoTimer = [this](const char *nome) {
        auto *timer = new QTimer(this);
        timer->setObjectName(QString::fromLatin1(nome));
        timer->setInterval(EsperaDoFoco);
        timer->setSingleShot(true);
        return timer;
    };
    NumFocusTimer = novoTimer("NumFocusTimer");
    CEPFocusTimer = novoTimer("CEPFocusTimer");
    AdiantarTimer = novoTimer("AdiantarTimer");
    SoltarTimer = novoTimer("SoltarTimer");
    CriarConsultas();
}

void TEnderecoBasFr::PreencheEnderPeloCep()
{
    if (!PodePreencher())
        return;
    const QPointer<TEnderecoBasFr> vivo(this);
    TEndereco guia;
    if (!LerEnderecoDoCep(SoDig(CEPMaskEdit->GetText()), guia))
        return;
    const bool aceito = AceitaEnderecoDoGuia(guia);
    // The question lets the host do anything meanwhile.
    if (!vivo || !PodePreencher())
        return;
    if (aceito)
        MostrarEndereco(guia);
    if (vivo)
        NumFocusTimer->start();
}

void TEnderecoBasFr::CEPMaskEditEnter(QObject *)
{
    Tocado = true;
    TratarSaidaCEP = true;
}

void TEnderecoBasFr::CEPMaskEditExit(QObject *sender)
{
    PintarDesselecionada(sender);
    AdiantarTimer->stop();
    // After the look-up, whose wait panel lets events in, and out of its time.
    const auto soltar = qScopeGuard([vivo = QPointer(this)] {
        if (vivo && vivo->SoltarTimer->isActive())
            vivo->SoltarTimer->start(0);
    });
    if (!Cascatear || !TratarSaidaCEP || EstadoDataSet == dsBrowse)
        return;
    const QString cep = SoDig(CEPMaskEdit->GetText());
    if (cep.isEmpty())
        return;
    if (cep.size() == DigitosDoCep) {
        PreencheEnderPeloCep();
        return;
    }
    CEPMaskEdit->setFocus();
    // What the message lets in may take the focus elsewhere.
    CEPFocusTimer->start();
    MensagemErro(QStringLiteral("O CEP deve ter 8 dígitos\r\nou ficar em branco"));
}

void TEnderecoBasFr::UFComboBoxChange(QObject *)
{
    if (!Cascatear || !Tocado)
        return;
    const int i = Escolhido(UFComboBox);
    if (i >= 0)
        MantendoTexto(MunComboBox, [&] { LerMunicipios(UFSelecionada(i)); });
    else
        Esvaziar(MunComboBox);
}

void TEnderecoBasFr::UFComboBoxEnter(QObject *sender)
{
    Tocado = true;
    PintarSelecionada(sender);
}

void TEnderecoBasFr::UFComboBoxExit(QObject *sender)
{
    PintarDesselecionada(sender);
    if (!Cascatear)
        return;
    if (UFComboBox->GetItemIndex() >= 0) {
        // The município stays: leaving a state that nobody changed must not empty the address.
        MantendoTexto(MunComboBox, [this] { PrepMun(); });
        return;
    }
    for (TComboBox *lista : {MunComboBox, BaiComboBox, LogrComboBox})
        Limpar(lista);
}

void TEnderecoBasFr::UFComboBoxKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers estado)
{
    Avancar(tecla, estado, MunComboBox, false);
}

void TEnderecoBasFr::MunComboBoxChange(QObject *)
{
    if (!Cascatear || !Tocado)
        return;
    const int i = Escolhido(MunComboBox);
    if (i >= 0)
        MantendoTexto(BaiComboBox, [&] { LerBairros(int(MunComboBox->GetObjeto(i))); });
    else
        Esvaziar(BaiComboBox);
}

void TEnderecoBasFr::MunComboBoxEnter(QObject *)
{
    Tocado = true;
    const int i = UFComboBox->GetItemIndex();
    if (Cascatear && i >= 0 && MunQ->Codigo() != QuotedStr(UFSelecionada(i)))
        MantendoTexto(MunComboBox, [this] { PrepMun(); });
}

void TEnderecoBasFr::MunComboBoxExit(QObject *sender)
{
    PintarDesselecionada(sender);
}

void TEnderecoBasFr::MunComboBoxKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers estado)
{
    Avancar(tecla, estado, BaiComboBox);
}

void TEnderecoBasFr::BaiComboBoxChange(QObject *)
{
    if (!Cascatear || !Tocado)
        return;
    const int i = Escolhido(BaiComboBox);
    if (i >= 0)
        LerLogradouros(int(BaiComboBox->GetObjeto(i)), true);
    else
        Esvaziar(LogrComboBox);
}

void TEnderecoBasFr::BaiComboBoxEnter(QObject *sender)
{
    Tocado = true;
    PintarSelecionada(sender);
    const int i = MunComboBox->GetItemIndex();
    const int mun = int(MunComboBox->GetObjeto(i));
    if (Cascatear && i >= 0 && BaiQ->Codigo() != QString::number(mun))
        MantendoTexto(BaiComboBox, [&] { LerBairros(mun); });
}

void TEnderecoBasFr::BaiComboBoxExit(QObject *sender)
{
    PintarDesselecionada(sender);
}

void TEnderecoBasFr::BaiComboBoxKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers estado)
{
    Avancar(tecla, estado, LogrComboBox);
}

void TEnderecoBasFr::LogrComboBoxEnter(QObject *sender)
{
    Tocado = true;
    PintarSelecionada(sender);
    const int i = BaiComboBox->GetItemIndex();
    const int bai = int(BaiComboBox->GetObjeto(i));
    if (Cascatear && i >= 0 && LogrQ->Codigo() != QString::number(bai))
        LerLogradouros(bai, true);
}

void TEnderecoBasFr::LogrComboBoxExit(QObject *sender)
{
    PintarDesselecionada(sender);
    const int i = LogrComboBox->GetItemIndex();
    if (i < 0)
        return;
    const QString guia = CepDoLogradouro(int(LogrComboBox->GetObjeto(i)));
    const QString atual = CEPComMasc(SoDig(CEPMaskEdit->GetText()));
    if (guia.isEmpty() || guia == atual)
        return;
    const QPointer<TEnderecoBasFr> vivo(this);
    const bool troca =
        atual.isEmpty() ||
        Pergunta(QStringLiteral("No Guia de CEPs o logradouro\r\n") + LogrComboBox->GetText() +
                 QStringLiteral(" tem o CEP ") + guia + QStringLiteral("\r\n e o CEP atual é ") +
                 atual + QStringLiteral(".\r\nDeseja substituir o CEP atual?"));
    if (vivo && troca)
        EscreverCep(guia);
}

void TEnderecoBasFr::LogrComboBoxKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers estado)
{
    Avancar(tecla, estado, NumLabeledEdit);
}

void TEnderecoBasFr::NumLabeledEditEnter(QObject *sender)
{
    PintarSelecionada(sender);
}

void TEnderecoBasFr::NumLabeledEditExit(QObject *sender)
{
    PintarDesselecionada(sender);
}

void TEnderecoBasFr::NumLabeledEditKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers estado)
{
    Avancar(tecla, estado, ComplLabeledEdit);
}

void TEnderecoBasFr::ComplLabeledEditEnter(QObject *sender)
{
    PintarSelecionada(sender);
}

void TEnderecoBasFr::ComplLabeledEditExit(QObject *sender)
{
    PintarDesselecionada(sender);
}

void TEnderecoBasFr::EntradaKeyPress(QObject *, QChar &caractere)
{
    if (caractere != u'\b')
        caractere = Maiuscula(CharSemAcento(caractere));
}

void TEnderecoBasFr::NumFocusTimerTimer(QObject *)
{
    NumFocusTimer->stop();
    // Another page may be in view by now.
    if (NumLabeledEdit->isVisible())
        NumLabeledEdit->setFocus(Qt::TabFocusReason);
}

void TEnderecoBasFr::CEPFocusTimerTimer(QObject *)
{
    CEPFocusTimer->stop();
    // Only where the frame and all that holds it are visible too.
    if (CEPMaskEdit->isVisible())
        CEPMaskEdit->setFocus();
}

void TEnderecoBasFr::CriarConsultas()
{
    const auto nova = [this](const char *nome, QStringList linhas, int lugar = -1) {
        return new TConsultaDoGuia(this, nome, std::move(linhas), lugar);
    };
    const auto lista = [](const char *coluna, const char *tabela, const char *projeto) {
        return QStringList{QStringLiteral("select * from ") + QLatin1String(tabela) +
                               QStringLiteral(" where ") + QLatin1String(coluna) + u'=',
                           QLatin1String(projeto), QStringLiteral("order by nome")};
    };
    UFQ = nova("UFQ", {QStringLiteral("select * from cep_UF "), QStringLiteral("order by sigla")});
    MunQ = nova("MunQ", lista("uf_cod", "cep_mun", "'-1'"), 1);
    BaiQ = nova("BaiQ", lista("mun_cod", "cep_bai", "-1"), 1);
    LogrQ = nova("LogrQ",
                 {QStringLiteral("select cep_logr.*, cep_tipologr.nome as TipoLogr"),
                  QStringLiteral("from cep_logr, cep_tipologr"),
                  QStringLiteral("where cep_logr.tipologr_cod=cep_tipologr.tipologr_cod"),
                  QStringLiteral("and cep_logr.bai_cod="), QStringLiteral("-4"),
                  QStringLiteral("order by cep_logr.nome")},
                 4);
    CEPPeloLogrCodQ = nova("CEPPeloLogrCodQ",
                           {QStringLiteral("select cep"), QStringLiteral("from cep_logr"),
                            QStringLiteral("where logr_cod="), QStringLiteral("3")},
                           3);
    TestaCEPQ =
        nova("TestaCEPQ",
             {QStringLiteral("select"), QStringLiteral("cep_logr.*"),
              QStringLiteral(", cep_bai.nome as Bai"), QStringLiteral(", cep_mun.nome as Mun"),
              QStringLiteral(", cep_uf.sigla as UF"), QStringLiteral(", cep_uf.uf_cod as UFCod"),
              QStringLiteral(", cep_tipologr.nome as TipoLogr"),
              QStringLiteral(", cep_logr.logr_cod as LogrCod"),
              QStringLiteral(", cep_mun.mun_cod as MunCod"), QString(),
              QStringLiteral("from cep_logr, cep_bai, cep_mun, cep_uf, cep_tipologr"),
              QStringLiteral("where cep="), QStringLiteral("'12'"),
              QStringLiteral("and cep_tipologr.tipologr_cod=cep_logr.tipologr_cod"),
              QStringLiteral("and cep_logr.bai_cod=cep_bai.bai_cod"),
              QStringLiteral("and cep_bai.mun_cod=cep_mun.mun_cod"),
              QStringLiteral("and cep_mun.uf_cod=cep_uf.uf_cod")},
             12);
}

void TEnderecoBasFr::LigarEntradas()
{
    using T = TEnderecoBasFr;
    LigarEdit(CEPMaskEdit, nullptr);
    LigarFoco(CEPMaskEdit, &T::CEPMaskEditEnter, &T::CEPMaskEditExit);
    LigarLista(UFComboBox, &T::UFComboBoxChange, &T::UFComboBoxKeyDown);
    LigarFoco(UFComboBox, &T::UFComboBoxEnter, &T::UFComboBoxExit);
    LigarLista(MunComboBox, &T::MunComboBoxChange, &T::MunComboBoxKeyDown);
    LigarFoco(MunComboBox, &T::MunComboBoxEnter, &T::MunComboBoxExit);
    LigarLista(BaiComboBox, &T::BaiComboBoxChange, &T::BaiComboBoxKeyDown);
    LigarFoco(BaiComboBox, &T::BaiComboBoxEnter, &T::BaiComboBoxExit);
    LigarLista(LogrComboBox, nullptr, &T::LogrComboBoxKeyDown);
    LigarFoco(LogrComboBox, &T::LogrComboBoxEnter, &T::LogrComboBoxExit);
    SempreMaiusculas(*NumLabeledEdit);
    LigarEdit(NumLabeledEdit, &T::NumLabeledEditKeyDown);
    LigarFoco(NumLabeledEdit, &T::NumLabeledEditEnter, &T::NumLabeledEditExit);
    SempreMaiusculas(*ComplLabeledEdit);
    LigarEdit(ComplLabeledEdit, nullptr);
    LigarFoco(ComplLabeledEdit, &T::ComplLabeledEditEnter, &T::ComplLabeledEditExit);
    Ligar(NumFocusTimer, &QTimer::timeout, this, [this] { NumFocusTimerTimer(NumFocusTimer); });
    Ligar(CEPFocusTimer, &QTimer::timeout, this, [this] { CEPFocusTimerTimer(CEPFocusTimer); });
    Ligar(AdiantarTimer, &QTimer::timeout, this, [this] { AdiantarConsultas(); });
    Ligar(SoltarTimer, &QTimer::timeout, this, [this] { SoltarConsultas(); });
}

void TEnderecoBasFr::LigarLista(TComboBox *lista, TEvento mudar, TTeclaDescida descer)
{
    const QString texto = lista->GetText();
    lista->setModel(new TItensDoCombo(lista));
    SempreMaiusculas(*lista->lineEdit());
    lista->SetText(texto);
    PrepararLista(*lista);
    lista->OnDropDown = [lista](QObject *) { AlargarLista(*lista); };
    LigarTeclas(lista, descer);
    // Enter in the open list takes the item and goes on, as Tab does there by itself.
    AoTeclaDescer(lista->view(), [lista](int &tecla, Qt::KeyboardModifiers) {
        if (tecla != VK_RETURN || !lista->view()->currentIndex().isValid())
            return;
        tecla = 0;
        EnviarTecla(lista->view(), VK_TAB);
    });
    Ligar(lista, &TComboBox::UserChanged, this, [this, lista, mudar] {
        const QPointer<TEnderecoBasFr> vivo(this);
        Protegido([this] { Editar(); });
        if (vivo && mudar)
            (this->*mudar)(lista);
    });
}

void TEnderecoBasFr::LigarEdit(TCustomEdit *edit, TTeclaDescida descer)
{
    LigarTeclas(edit, descer);
    Ligar(edit, &QLineEdit::textEdited, this, [this, edit] { EditadoNoEdit(edit); });
}

void TEnderecoBasFr::LigarTeclas(QWidget *entrada, TTeclaDescida descer)
{
    if (descer) {
        AoTeclaDescer(entrada, [=, this](int &tecla, Qt::KeyboardModifiers estado) {
            (this->*descer)(entrada, tecla, estado);
        });
    }
    AoTeclar(entrada, [=, this](QChar &caractere) { EntradaKeyPress(entrada, caractere); });
}

void TEnderecoBasFr::LigarFoco(QWidget *entrada, TEvento entrar, TEvento sair)
{
    const auto enquantoVive = [this, entrada, viva = std::weak_ptr(vida)](TEvento evento) {
        return [=, this] {
            if (!viva.expired())
                (this->*evento)(entrada);
        };
    };
    AoEntrar(entrada, enquantoVive(entrar));
    AoSair(entrada, enquantoVive(sair));
}

/** Replaces the items by the rows of a code; `preparar` finds the columns once and answers what
 * makes an item of the current row. */
template <typename F>
void TEnderecoBasFr::Preencher(TComboBox *lista, TConsultaDoGuia *consulta, const QString &codigo,
                               F preparar)
{
    // The old items belong to another code.
    auto falhou = qScopeGuard([&] { Esvaziar(lista); });
    const auto fechar = qScopeGuard([&] { consulta->Close(); });
    if (!codigo.isEmpty())
        consulta->SetCodigo(codigo);
    consulta->Ler();
    const auto item = preparar();
    std::vector<TItem> novos;
    novos.reserve(std::size_t(consulta->RecordCount()));
    for (; !consulta->Eof(); consulta->Next())
        novos.push_back(item());
    falhou.dismiss();
    Itens(lista)->Trocar(std::move(novos));
    lista->SetItemIndex(-1);
}

void TEnderecoBasFr::LerMunicipios(QChar uf)
{
    Preencher(MunComboBox, MunQ, QuotedStr(uf), [this] {
        const TField *codigo = MunQ->FieldByName(QStringLiteral("MUN_COD"));
        const TField *nome = MunQ->FieldByName(QStringLiteral("NOME"));
        return [=] { return TItem{TextoDoGuia(nome), codigo->AsInteger()}; };
    });
}

void TEnderecoBasFr::LerBairros(int mun)
{
    Preencher(BaiComboBox, BaiQ, QString::number(mun), [this] {
        const TField *codigo = BaiQ->FieldByName(QStringLiteral("BAI_COD"));
        const TField *nome = BaiQ->FieldByName(QStringLiteral("NOME"));
        return [=] { return TItem{TextoDoGuia(nome), codigo->AsInteger()}; };
    });
}

/** Reads a bairro's streets behind the wait panel; false when another reading replaced this one,
 * or the frame is gone. */
bool TEnderecoBasFr::LerLogradouros(int bai, bool manterTexto)
{
    const QPointer<TEnderecoBasFr> vivo(this);
    const int esta = ++leituraLogr;
    const auto esconder = qScopeGuard([&] {
        if (vivo)
            AguardePanel->hide();
    });
    AguardeExibir();
    if (!vivo || leituraLogr != esta)
        return false;
    const TTextoMantido texto(LogrComboBox);
    Preencher(LogrComboBox, LogrQ, QString::number(bai), [this] {
        const TField *codigo = LogrQ->FieldByName(QStringLiteral("LOGR_COD"));
        const TField *tipo = LogrQ->FieldByName(QStringLiteral("TIPOLOGR"));
        const TField *nome = LogrQ->FieldByName(QStringLiteral("NOME"));
        return [=] { return TItem{NomeDoLogradouro(tipo, nome), codigo->AsInteger()}; };
    });
    if (manterTexto)
        texto.Devolver();
    AguardeEsconder();
    return vivo && leituraLogr == esta;
}

/** Removes the items; the text stays. What was read counts no longer. */
void TEnderecoBasFr::Esvaziar(TComboBox *lista)
{
    MantendoTexto(lista, [lista] { Itens(lista)->Trocar({}); });
    if (lista == LogrComboBox)
        ++leituraLogr;
    if (lista != UFComboBox)
        ConsultaDe(lista)->Esquecer();
}

/** Removes items and text. */
void TEnderecoBasFr::Limpar(TComboBox *lista)
{
    Esvaziar(lista);
    lista->SetItemIndex(-1);
}

TConsultaDoGuia *TEnderecoBasFr::ConsultaDe(const TComboBox *lista) const
{
    if (lista == MunComboBox)
        return MunQ;
    return lista == BaiComboBox ? BaiQ : LogrQ;
}

QChar TEnderecoBasFr::UFSelecionada(int i) const
{
    return {char16_t(UFComboBox->GetObjeto(i))};
}

void TEnderecoBasFr::SelecionarPadrao()
{
    // Made before the host had a connection.
    if (UFComboBox->Count() == 0 && ConexD().SQLConnection)
        PrepUFComboBox();
    UFComboBox->SetItemIndex(std::max(0, UFComboBox->IndexOf(SisD().UFPadrao.trimmed())));
    Limpar(MunComboBox);
    PrepMun();
    if (MunComboBox->Count() == 0) {
        Limpar(BaiComboBox);
        return;
    }
    MunComboBox->SetText(SisD().MunicipioPadrao.trimmed());
    MunComboBox->SetItemIndex(std::max(0, Escolhido(MunComboBox)));
    LerBairros(int(MunComboBox->GetObjeto(MunComboBox->GetItemIndex())));
}

/** A street's CEP with its hyphen; empty where the guide has none. */
QString TEnderecoBasFr::CepDoLogradouro(int logr)
{
    const auto fechar = qScopeGuard([this] { CEPPeloLogrCodQ->Close(); });
    CEPPeloLogrCodQ->SetCodigo(QString::number(logr));
    CEPPeloLogrCodQ->Ler();
    const TField *cep = CEPPeloLogrCodQ->FieldByName(QStringLiteral("cep"));
    return CEPComMasc(cep->AsString().left(DigitosDoCep));
}

bool TEnderecoBasFr::PodePreencher() const
{
    return EstadoDataSet == dsEdit || EstadoDataSet == dsInsert;
}

/** The user is typing a CEP: what its look-up will run is made ready once the key is painted. */
void TEnderecoBasFr::CepDigitado()
{
    if (!Cascatear || !TratarSaidaCEP || !PodePreencher())
        return;
    if (!SoltarTimer->isActive())
        AdiantarTimer->start(0);
    SoltarTimer->start(EsperaDoCep);
}

void TEnderecoBasFr::AdiantarConsultas()
{
    for (TConsultaDoGuia *consulta : {TestaCEPQ, MunQ, BaiQ, LogrQ})
        consulta->Adiantar();
}

void TEnderecoBasFr::SoltarConsultas()
{
    AdiantarTimer->stop();
    SoltarTimer->stop();
    for (TConsultaDoGuia *consulta : {TestaCEPQ, MunQ, BaiQ, LogrQ})
        consulta->Soltar();
}

/** Looks a CEP up behind the wait panel. False when the guide does not know it, when another
 * look-up replaced this one, or the frame is gone. */
bool TEnderecoBasFr::LerEnderecoDoCep(const QString &cep, TEndereco &endereco)
{
    const QPointer<TEnderecoBasFr> vivo(this);
    const int esta = ++leituraCep;
    const auto esconder = qScopeGuard([&] {
        if (vivo)
            AguardePanel->hide();
    });
    AguardeExibir();
    if (!vivo || leituraCep != esta)
        return false;
    TestaCEPQ->SetCodigo(QuotedStr(cep));
    QApplication::clipboard()->setText(TestaCEPQ->GetSQL());
    const auto fechar = qScopeGuard([q = QPointer(TestaCEPQ)] {
        if (q)
            q->Close();
    });
    TestaCEPQ->Ler();
    const bool achou = !TestaCEPQ->IsEmpty();
    if (achou) {
        const auto campo = [this](const char *nome) {
            return TestaCEPQ->FieldByName(QLatin1String(nome));
        };
        endereco = {
            CodigoDaUF(campo("UFCOD")),    campo("MUNCOD")->AsInteger(),
            campo("BAI_COD")->AsInteger(), campo("LOGRCOD")->AsInteger(),
            TextoDoGuia(campo("UF")),      TextoDoGuia(campo("MUN")),
            TextoDoGuia(campo("BAI")),     NomeDoLogradouro(campo("TIPOLOGR"), campo("NOME"))};
    }
    AguardeEsconder();
    return achou && vivo && leituraCep == esta;
}

/** Whether the guide's address may be put in. State and município alone, which a new address
 * starts with, are no typed address. */
bool TEnderecoBasFr::AceitaEnderecoDoGuia(const TEndereco &guia) const
{
    const QString digitado = EnderecoPorExtenso(LogrComboBox->GetText(), BaiComboBox->GetText(),
                                                MunComboBox->GetText(), UFComboBox->GetText());
    const bool vazio =
        LogrComboBox->GetText().trimmed().isEmpty() && BaiComboBox->GetText().trimmed().isEmpty();
    if (vazio || Comparavel(digitado) == Comparavel(guia.PorExtenso()))
        return true;
    return Pergunta(QStringLiteral("O CEP atual é referente a \r\n") + guia.PorExtenso() +
                    QStringLiteral("\r\nporém, o endereço digitado é\r\n") + digitado +
                    QStringLiteral("\r\nDeseja substituir o endereço digitado\r\npelo do Guia de "
                                   "CEPs?"));
}

void TEnderecoBasFr::MostrarEndereco(const TEndereco &guia)
{
    Mostrar(UFComboBox, guia.CodUF, guia.UF);
    LerMunicipios(QChar(char16_t(guia.CodUF)));
    Mostrar(MunComboBox, guia.CodMun, guia.Municipio);
    LerBairros(guia.CodMun);
    Mostrar(BaiComboBox, guia.CodBai, guia.Bairro);
    if (LerLogradouros(guia.CodBai, false))
        Mostrar(LogrComboBox, guia.CodLogr, guia.Logradouro);
}

void TEnderecoBasFr::EscreverCep(const QString &cep)
{
    const bool antes = std::exchange(TratarSaidaCEP, false);
    CEPMaskEdit->SetText(SoDig(cep));
    TratarSaidaCEP = antes;
}

/** The maintenance screen that holds the frame; null when none does. */
ITelaManutencao *TEnderecoBasFr::TelaDona() const
{
    for (QWidget *w = parentWidget(); w; w = w->parentWidget()) {
        if (auto *tela = dynamic_cast<ITelaManutencao *>(w))
            return tela;
    }
    return nullptr;
}

/** Answers whether an alteration was started. */
bool TEnderecoBasFr::PedirAlteracao()
{
    ITelaManutencao *tela = TelaDona();
    if (!tela)
        return false;
    const std::array<TTextoMantido, 4> textos{TTextoMantido(UFComboBox), TTextoMantido(MunComboBox),
                                              TTextoMantido(BaiComboBox),
                                              TTextoMantido(LogrComboBox)};
    const QPointer<TEnderecoBasFr> vivo(this);
    if (!tela->AtivarAlteracao() || !vivo)
        return false;
    for (const TTextoMantido &texto : textos)
        texto.Devolver();
    return true;
}

/** The user changed an edit's text, which survives the switch to an alteration. */
void TEnderecoBasFr::EditadoNoEdit(TCustomEdit *edit)
{
    const QPointer<TEnderecoBasFr> vivo(this);
    const QString texto = edit->GetText();
    const int cursor = edit->cursorPosition();
    if (PedirAlteracao() && vivo && edit->GetText() != texto) {
        edit->SetText(texto);
        edit->setCursorPosition(cursor);
    }
    if (vivo && edit == CEPMaskEdit)
        CepDigitado();
}

} // namespace ficha
