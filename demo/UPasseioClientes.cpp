#include "demo/UPasseio.h"

#include "dates/UDataBasFr.h"
#include "dates/UDataOpcionalFr.h"
#include "dates/UDatasBasFr.h"
#include "dates/UDatasSelectF.h"
#include "demo/UClientesF.h"
#include "input/UCPFEditBRBasFr.h"
#include "input/UEnderecoBasFr.h"
#include "input/UImgBasFr.h"
#include "platform/core/Erros.h"
#include "platform/core/Relogio.h"
#include "platform/edits/TCPFEditBR.h"
#include "platform/edits/TMaskEditBR.h"
#include "platform/support/Datas.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TRadioButton.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"

#include <QFileInfo>
#include <QLabel>
#include <QMdiSubWindow>
#include <QScopeGuard>
#include <QScrollArea>
#include <QTest>

/* The tour of the clients' screen, and of the date frames in the gallery. */

using namespace ficha;

namespace comercial
{

namespace
{

/** A little more than the address waits before it gives the focus to the number. */
constexpr int EsperaDoNumero = 250;

} // namespace

void TPasseio::Clientes()
{
    Tecla(Qt::Key_F4);
    Foto(QStringLiteral("clientes-lista"));
    ClientesDeUmGrupo();
    Tecla(Qt::Key_Tab, Qt::ControlModifier);
    Foto(QStringLiteral("clientes-campos"));
    ClienteNovo();
    CepPreencheOEndereco();
    CepDeOutroEndereco();
    RuaOfereceOCep();
    CepQueNaoEODaRua();
    FotoDoCliente();
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    Exigir(DoBanco(QStringLiteral("select cpf || ' ' || nascimento || ' ' || cep || ' ' || logr || "
                                  "', ' || num || ' (' || ddd || ') ' || fone1 from clientes "
                                  "where nome = 'Inês Araújo de Souza'")) ==
               QStringLiteral("52998224725 1978-03-09 01045001 PRAÇA DA REPÚBLICA, 42 (13) "
                              "98765-4321"),
           "inserir um cliente");
    Foto(QStringLiteral("clientes-inserido"));
    Tecla(Qt::Key_F4, Qt::ControlModifier);
}

/** The group's name is typed and Enter applies the filter; "Liberar" shows everybody again. */
void TPasseio::ClientesDeUmGrupo()
{
    auto *tela = qobject_cast<TClientesF *>(janela.FilhoAtivo());
    Marcar(Achar<TComboCodOpcionalFr>("FiltroGrupoFr")->AtivoCheckBox);
    Tecla(Qt::Key_Tab);
    Digitar(QStringLiteral("Bebidas"));
    Tecla(Qt::Key_Return);
    Exigir(QString::number(tela->SQLQuery1->RecordCount()) ==
               DoBanco(QStringLiteral("select count(*) from clientes c join grupos g on "
                                      "g.grupos_cod = c.grupos_cod where g.descricao='Bebidas'")),
           "mostrar os clientes de um grupo");
    Foto(QStringLiteral("clientes-de-um-grupo"));
    Clicar(tela->ToolBar4->findChild<TToolButton *>(QStringLiteral("ToolButton3")));
    Exigir(!tela->FiltroAtivo && tela->SQLQuery1->RecordCount() == 320, "liberar o filtro");
    tela->StringGrid1->setFocus();
}

/** A name, a CPF that is none and is refused, the right one, a birth date, a telephone. */
void TPasseio::ClienteNovo()
{
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("Inês Araújo de Souza"));
    auto *cpf = Achar<TCPFEditBR>("CPFEditBR1");
    ResponderCaixa(QStringLiteral("clientes-cpf-recusado"), Qt::Key_Return);
    DigitarEm(cpf, QStringLiteral("52998224735")); // its last digit goes on by itself
    Exigir(cpf->hasFocus() && cpf->GetText() == QStringLiteral("529.982.247-35"),
           "recusar um CPF inválido");
    DigitarEm(cpf, QStringLiteral("52998224725"));
    DigitarEm(Achar<TDataBasFr>("NascimentoFr")->MaskEdit1, QStringLiteral("090378"));
    DigitarEm(Achar<QWidget>("DDDMaskEditBR"), QStringLiteral("13"));
    Digitar(QStringLiteral("987654321"));
    Foto(QStringLiteral("clientes-inserindo"));
}

void TPasseio::CepPreencheOEndereco()
{
    DigitarEm(Achar<QWidget>("CEPMaskEdit"), QStringLiteral("11085005"));
    Tecla(Qt::Key_Tab);
    QTest::qWait(EsperaDoNumero);
    Exigir(Endereco() == QStringLiteral("11085-005 SP SANTOS, SABOÓ, RUA BRIGADEIRO NEWTON BRAGA"),
           "preencher o endereço pelo CEP");
    Digitar(QStringLiteral("42"));
    Foto(QStringLiteral("cep-preenche-o-endereco"));
}

/** The first question: another CEP than that of the address that is there. */
void TPasseio::CepDeOutroEndereco()
{
    ResponderCaixa(QStringLiteral("cep-pergunta-pelo-endereco"), Qt::Key_S);
    DigitarEm(Achar<QWidget>("CEPMaskEdit"), QStringLiteral("04144070"));
    Tecla(Qt::Key_Tab);
    QTest::qWait(EsperaDoNumero);
    Exigir(Endereco() == QStringLiteral("04144-070 SP SÃO PAULO, VILA DA SAÚDE, RUA PEREIRA "
                                        "ESTÉFANO"),
           "substituir o endereço pelo do guia");
    Foto(QStringLiteral("cep-substituiu-o-endereco"));
}

void TPasseio::RuaOfereceOCep()
{
    Clicar(Achar<QWidget>("CEPMaskEdit"));
    Tecla(Qt::Key_Home);
    Tecla(Qt::Key_End, Qt::ShiftModifier);
    Tecla(Qt::Key_Delete);
    DigitarEm(Achar<QWidget>("BaiComboBox"), QStringLiteral("República"));
    Tecla(Qt::Key_Return);
    DigitarEm(Achar<QWidget>("LogrComboBox"), QStringLiteral("Praça da República"));
    Foto(QStringLiteral("rua-escolhida"));
    Tecla(Qt::Key_Return);
    Exigir(Endereco() == QStringLiteral("01045-001 SP SÃO PAULO, REPÚBLICA, PRAÇA DA REPÚBLICA"),
           "trazer o CEP da rua escolhida");
    Foto(QStringLiteral("rua-oferece-o-cep"));
}

/** The second question: a CEP that is not that of the street. The first one, about the address,
 * comes before it and is answered no. */
void TPasseio::CepQueNaoEODaRua()
{
    ResponderCaixa(QStringLiteral("cep-mantem-o-endereco"), Qt::Key_N);
    DigitarEm(Achar<QWidget>("CEPMaskEdit"), QStringLiteral("04144070"));
    Tecla(Qt::Key_Tab);
    Exigir(Endereco() == QStringLiteral("04144-070 SP SÃO PAULO, REPÚBLICA, PRAÇA DA REPÚBLICA"),
           "manter o endereço digitado");
    Clicar(Achar<QWidget>("LogrComboBox"));
    ResponderCaixa(QStringLiteral("rua-pergunta-pelo-cep"), Qt::Key_S);
    Tecla(Qt::Key_Tab);
    Exigir(Endereco() == QStringLiteral("01045-001 SP SÃO PAULO, REPÚBLICA, PRAÇA DA REPÚBLICA"),
           "substituir o CEP pelo da rua");
    Foto(QStringLiteral("rua-substituiu-o-cep"));
}

/** The picture is found with the button, the file dialog answering as a person would; then shown in
 * its natural size. */
void TPasseio::FotoDoCliente()
{
    auto *foto = Achar<TImgBasFr>("FotoFr");
    const QString arquivo =
        QFileInfo(conexao.DatabaseName).absoluteDir().filePath(QStringLiteral("fotos/pessoa.jpg"));
    SisD().OpenDialog.AoExecutar = [&](TOpenDialog &dialogo, QWidget *) {
        dialogo.FileName = arquivo;
        return true;
    };
    const auto devolver = qScopeGuard([] { SisD().OpenDialog.AoExecutar = nullptr; });
    Clicar(foto->ToolButton1);
    Exigir(foto->ArquivoImagem == arquivo, "escolher a foto");
    Foto(QStringLiteral("clientes-foto"));
    ResponderCaixa(QStringLiteral("foto-no-tamanho-original"), Qt::Key_Escape);
    Clicar(foto->ToolButton2);
    Exigir(janela.FilhoAtivo() != nullptr, "ver a foto no tamanho original");
}

QString TPasseio::Endereco() const
{
    const auto texto = [this](const char *nome) { return Achar<TComboBox>(nome)->GetText(); };
    return Achar<TEnderecoBasFr>("EnderecoFr")->CEPMaskEdit->QLineEdit::text() + u' ' +
           texto("UFComboBox") + u' ' + texto("MunComboBox") + QStringLiteral(", ") +
           texto("BaiComboBox") + QStringLiteral(", ") + texto("LogrComboBox");
}

/** In the gallery: the dialog of the range frame, each of its presets, and what it brings back. */
void TPasseio::FaixaDeDatas()
{
    auto *faixa = NoMostruario<TDatasBasFr>();
    NaCaixa([this](QWidget *caixa) {
        auto *dialogo = qobject_cast<TDatasSelectF *>(caixa);
        ExigirComponente(dialogo, "TDatasSelectF");
        Predefinicoes(*dialogo);
        QTest::keyClick(dialogo->focusWidget() ? dialogo->focusWidget() : dialogo, Qt::Key_Return);
    });
    Clicar(faixa->DtSelectBitBtn);
    const TDateTime mes = PrimeiroDateMes(MesAnt(Hoje()));
    Exigir(faixa->GetAsDate1() == mes && faixa->GetAsDate2() == UltimoDateMes(mes),
           "trazer a faixa do mês anterior");
    Dizer(QStringLiteral("   mês anterior: ") + faixa->WhereStr(QStringLiteral("data")));
    Foto(QStringLiteral("faixa-escolhida"));
}

/** The previous month last, so that it is what the dialog confirms. */
void TPasseio::Predefinicoes(TDatasSelectF &dialogo)
{
    QStringList vistas;
    for (const TAction *acao : {dialogo.TodasAct, dialogo.AnterioresAct, dialogo.PosterioresAct,
                                dialogo.Dias1Act, dialogo.Dias7Act, dialogo.Dias4Act,
                                dialogo.MesAct, dialogo.MesSeguinteAct, dialogo.MesAnteriorAct}) {
        TToolButton *botao = nullptr;
        for (TToolButton *b : dialogo.findChildren<TToolButton *>())
            if (b->GetAction() == acao)
                botao = b;
        ExigirComponente(botao, "o botão de uma faixa");
        Clicar(botao);
        const QString nome = acao->GetCaption();
        Foto(QStringLiteral("faixa-%1").arg(vistas.size() + 1), &dialogo);
        Dizer(QStringLiteral("   %1: %2").arg(nome, dialogo.SelecStrLab->text()));
        vistas << dialogo.SelecStrLab->text();
    }
    vistas.removeDuplicates();
    if (vistas.size() != 9)
        throw EErro(QStringLiteral("Passeio: as faixas não são nove: ") +
                    vistas.join(QStringLiteral("; ")));
}

/** In the gallery: a criterion that is switched on, and the last two weeks. */
void TPasseio::FiltroOpcional()
{
    auto *filtro = NoMostruario<TDataOpcionalFr>();
    filtro->Atualizar();
    Exigir(filtro->WhereStr(QStringLiteral("data")).isEmpty(), "começar sem filtro");
    Marcar(filtro->AtivoCheckBox);
    Marcar(filtro->SemanasRadioButton);
    Digitar(QStringLiteral("2"));
    filtro->Atualizar();
    Foto(QStringLiteral("filtro-opcional"));
    Dizer(QStringLiteral("   filtro:") + filtro->WhereStr(QStringLiteral("data")));
    const double fim = Hoje().Dias() + 1;
    Exigir(filtro->WhereStr(QStringLiteral("data")) ==
               QStringLiteral(" data>=%1 and data<%2")
                   .arg(DataSQLFirebird(TDateTime(fim - 14)), DataSQLFirebird(TDateTime(fim))),
           "filtrar pelas últimas duas semanas");
}

} // namespace comercial
