#include "forms/ULocalizBasF.h"

#include "platform/core/FormasSimples.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TRadioGroup.h"
#include "platform/toolkit/TStringGrid.h"

#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR(TLocalizBasF)

TLocalizBasF *LocalizBasF = nullptr;

namespace
{

enum TModo { CampoInteiro, InicioDoCampo, QualquerParte };

/** Trimmed, a to z in capitals; accented letters stay as they are. */
void Normalizar(QString &texto)
{
    texto = std::move(texto).trimmed();
    for (QChar &c : texto) {
        if (c >= u'a' && c <= u'z')
            c = QChar(char16_t(c.unicode() - (u'a' - u'A')));
    }
}

bool Confere(int modo, const QString &celula, const QString &procurado)
{
    switch (modo) {
    case CampoInteiro:
        return celula == procurado;
    case InicioDoCampo:
        return celula.startsWith(procurado);
    case QualquerParte:
        return celula.contains(procurado);
    default:
        return false;
    }
}

} // namespace

TLocalizBasF::TLocalizBasF(TChave chave) : TBasF(chave) {}

void TLocalizBasF::SetTabF(TForm *form)
{
    TabF = form;
    if (!form)
        return;
    SetCaption(form->windowTitle());
    if (const ITelaComGrade *tela = Tela())
        PegarCampo(tela->GradeDaBusca(), tela->GradeDaBusca()->GetCol());
}

void TLocalizBasF::PegarCampo(const TStringGrid *grade, int coluna)
{
    const QString texto = QStringLiteral("Buscando por ") + grade->GetCell(coluna, 0);
    if (CampoLabel->text() != texto)
        CampoLabel->setText(texto);
}

ITelaComGrade *TLocalizBasF::Tela() const
{
    return dynamic_cast<ITelaComGrade *>(TabF.data());
}

void TLocalizBasF::BuscaLinear()
{
    ITelaComGrade *tela = Tela();
    if (!tela || !tela->PodeMoverNaBusca())
        return;
    const QPointer<TForm> viva = TabF;
    const bool navegava = tela->GetSelecaoNavega();
    tela->SetSelecaoNavega(false);
    const auto religar = qScopeGuard([&] {
        if (viva)
            tela->SetSelecaoNavega(navegava);
    });
    if (!Localizou()) {
        MensagemAviso(QStringLiteral("Nenhum registro com '") + LocalizLabeledEdit->text() +
                          QStringLiteral("' foi encontrado"),
                      0);
    }
    // The boxes above let other events in: the screen may have gone, or an edit begun.
    if (viva && tela->PodeMoverNaBusca())
        tela->MoverParaLinha(tela->GradeDaBusca()->GetRow());
}

bool TLocalizBasF::Localizou()
{
    ITelaComGrade *tela = Tela();
    const int registros = tela ? tela->NRegistrosDaBusca() : 0;
    if (registros == 0)
        return false;
    if (tela->GradeDaBusca()->GetRow() == LinhaFinal(registros)) {
        if (!PerguntarOutraDirecao() || Tela() != tela)
            return false;
    }
    TStringGrid *grade = tela->GradeDaBusca();
    const int achada =
        FormasSimples() ? AndarAteConferir(*grade, registros) : LinhaQueConfere(*grade, registros);
    if (achada > 0)
        grade->SetRow(achada);
    return achada > 0;
}

int TLocalizBasF::LinhaFinal(int registros) const
{
    return Direcao < 0 ? 1 : registros;
}

bool TLocalizBasF::PerguntarOutraDirecao()
{
    const QString direcao = Direcao < 0 ? QStringLiteral("acima") : QStringLiteral("abaixo");
    if (!Pergunta(QStringLiteral("Ao buscar ") + direcao +
                  QStringLiteral(" a tabela já estava no extremo.\r\n"
                                 "Deseja buscar na outra direção?")))
        return false;
    const int nova = -Direcao;
    DirecRadioGroup->SetItemIndex((nova + 1) / 2);
    Direcao = nova;
    return true;
}

/** The next row in the direction whose cell in the current column matches; 0 when there is none. */
int TLocalizBasF::LinhaQueConfere(const TStringGrid &grade, int registros) const
{
    QString procurado = LocalizLabeledEdit->text();
    Normalizar(procurado);
    const int modo = OndeRadioGroup->GetItemIndex();
    const int coluna = grade.GetCol();
    int linha = grade.GetRow() + Direcao;
    if (Direcao < 0)
        linha = std::min(linha, registros);
    QString celula;
    for (; linha >= 1 && linha <= registros; linha += Direcao) {
        grade.CellTexto(coluna, linha, celula);
        Normalizar(celula);
        if (Confere(modo, celula, procurado))
            return linha;
    }
    return 0;
}

/** The same with the list going along; a miss puts it back, the view with it. */
int TLocalizBasF::AndarAteConferir(TStringGrid &grade, int registros) const
{
    QString procurado = LocalizLabeledEdit->text();
    Normalizar(procurado);
    const int inicio = grade.GetRow(), topo = grade.GetTopRow();
    for (int linha = inicio + Direcao; linha >= 1 && linha <= registros; linha += Direcao) {
        grade.SetRow(linha);
        QString celula = grade.GetCell(grade.GetCol(), linha);
        Normalizar(celula);
        if (Confere(OndeRadioGroup->GetItemIndex(), celula, procurado))
            return linha;
    }
    grade.SetRow(inicio);
    grade.SetTopRow(topo);
    return 0;
}

void TLocalizBasF::PegarComponentes()
{
    TBasF::PegarComponentes();
    Pegar(this, CampoLabel, "CampoLabel");
    Pegar(this, LocalizLabeledEdit, "LocalizLabeledEdit");
    Pegar(this, OndeRadioGroup, "OndeRadioGroup");
    Pegar(this, DirecRadioGroup, "DirecRadioGroup");
    Pegar(this, ExecButton, "ExecButton");
    Pegar(this, Button1, "Button1");
    Pegar(this, Image2, "Image2");
    Pegar(this, LocalizAction, "LocalizAction");
    LocalizAction->OnExecute = [this](QObject *sender) { LocalizActionExecute(sender); };
    FecharAction->OnUpdate = [this](QObject *sender) { FecharActionUpdate(sender); };
    DirecRadioGroup->OnClick = [this](QObject *sender) { DirecRadioGroupClick(sender); };
    // A bar-code reader types and presses Enter in one go, with no idle moment in between.
    Ligar(LocalizLabeledEdit, &QLineEdit::textChanged, this,
          [this] { FecharActionUpdate(FecharAction); });
}

void TLocalizBasF::FormCreate(QObject *sender)
{
    TBasF::FormCreate(sender);
    Direcao = 1;
    move(589, 74);
}

void TLocalizBasF::FormShow(QObject *sender)
{
    TBasF::FormShow(sender);
    SetActiveControl(LocalizLabeledEdit);
}

void TLocalizBasF::FormClose(QObject *sender, TCloseAction &acao)
{
    TBasF::FormClose(sender, acao);
    acao = caHide;
    LocalizLabeledEdit->clear();
    // The user goes on in the screen that was searched, wherever the window manager would go.
    if (isActiveWindow() && TabF)
        TabF->activateWindow();
}

void TLocalizBasF::LocalizActionExecute(QObject *)
{
    BuscaLinear();
}

void TLocalizBasF::FecharActionUpdate(QObject *sender)
{
    TBasF::FecharActionUpdate(sender);
    const bool pode = !LocalizLabeledEdit->text().trimmed().isEmpty();
    if (LocalizAction->GetEnabled() != pode)
        LocalizAction->SetEnabled(pode);
}

void TLocalizBasF::DirecRadioGroupClick(QObject *)
{
    Direcao = 2 * DirecRadioGroup->GetItemIndex() - 1;
}

} // namespace ficha
