// A maintenance screen with forty frames bound to a table: what a key costs, what an idle pass
// does, and how long the screen takes to make.

#include "bench/Bancada.h"
#include "bench/QuadrosCriacao.h"
#include "bench/QuadrosTeclas.h"
#include "bench/QuadrosTela.h"
#include "forms/UFicha.h"
#include "platform/core/Erros.h"
#include "platform/core/Servicos.h"
#include "platform/edits/TFoneEditBR.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/Ocioso.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TPageControl.h"
#include "support/BancoTemp.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <stdexcept>

using namespace ficha;

namespace
{

constexpr int TeclasPorVez = 8; /**< then the input is emptied, unmeasured */

/** What is typed into a frame's input, and how it is called in the table. */
struct TEspecie {
    QString Nome;
    QString Teclas;
    QWidget *Entrada = nullptr;
};

/** The screen on its fields page. */
struct TCena {
    TCena();

    void PegarEspecies();
    void ConferirOcioso();
    bancada::TMedida Teclas(int quantas);
    bancada::TMedida PrimeiraTecla(int quantas);
    bancada::TMedida Navegando(int quantas);
    bancada::TMedida Alterando(int quantas);
    bancada::TMedida Largada(int ms, int piscada);
    void AbrirAlteracao();
    void AbandonarAlteracao();

    TServicosGuarda servicos;
    TBancoTemp banco{bancada::RoteiroDosQuadros()};
    TFicha biblioteca;
    std::unique_ptr<bancada::TQuadrosF> tela;
    QList<TEspecie> especies;
    bancada::TDigitador digitador;
};

TCena::TCena()
{
    RegistrarPastaDeLayouts(QStringLiteral(":/bancada/layouts"));
    // A message box would wait for ever.
    Servicos().MensagemAviso = [](const QString &texto, int) { qFatal("%s", qPrintable(texto)); };
    Servicos().ReportarErro = [](std::exception_ptr erro) {
        qFatal("%s", qPrintable(TextoDoErro(std::move(erro))));
    };
    tela.reset(Criar<bancada::TQuadrosF>(nullptr));
    digitador.Mostrar(tela.get());
    tela->PageControl1->MudarComoUsuario(1);
    PegarEspecies();
    ConferirOcioso();
}

void TCena::PegarEspecies()
{
    const QString letras = QStringLiteral("abcdefgh");
    const QString algarismos = QStringLiteral("12345678");
    const auto edit = [this](const char *nome) {
        return tela->Quadro(nome)->findChild<QLineEdit *>();
    };
    especies = {
        {QStringLiteral("text"), letras, edit("NomeFr")},
        {QStringLiteral("counted text"), letras, edit("DescricaoFr")},
        {QStringLiteral("memo"), letras, tela->Quadro("NotasFr")->findChild<QPlainTextEdit *>()},
        {QStringLiteral("whole number"), algarismos, edit("NumeroFr")},
        {QStringLiteral("money"), algarismos, edit("LimiteFr")},
        {QStringLiteral("CPF"), algarismos, edit("CPFFr")},
        {QStringLiteral("CNPJ"), algarismos, edit("CNPJFr")},
        // One digit less than would be complete and send the focus on.
        {QStringLiteral("CEP"), algarismos.left(7), edit("CepFr")},
        {QStringLiteral("bar code"), algarismos, edit("BarrasFr")},
        {QStringLiteral("date"), algarismos.left(7), tela->NascimentoFr->MaskEdit1},
        {QStringLiteral("telephone"), algarismos.left(7), tela->ContatoFr->Fone1EditBR},
    };
}

/** A pass in which nobody looks at the screen's state would be no figure. */
void TCena::ConferirOcioso()
{
    for (const bool ativo : {true, false}) {
        tela->FiltroAtivo = ativo;
        ExecutarOcioso();
        if (tela->FiltroAtivLab->isHidden() == ativo)
            throw std::runtime_error("the idle pass did not update the screen");
    }
}

void TCena::AbrirAlteracao()
{
    tela->AltAction->Execute();
    digitador.Laco.Esgotar();
    if (tela->Tab->Status != TStatus::Alterando)
        throw std::runtime_error("the alteration is not open");
}

void TCena::AbandonarAlteracao()
{
    tela->CancelarAction->Execute();
    digitador.Laco.Esgotar();
    if (tela->Tab->Status != TStatus::Ocioso)
        throw std::runtime_error("the alteration was not abandoned");
}

bancada::TMedida TCena::Teclas(int quantas)
{
    bancada::TAmostras todas;
    QMap<QString, double> medianas;
    for (const TEspecie &especie : especies) {
        digitador.Focar(especie.Entrada);
        AbrirAlteracao();
        const auto tempos = digitador.Digitar(especie.Entrada, especie.Teclas, quantas);
        for (const double segundos : tempos)
            todas.Juntar(segundos);
        medianas[especie.Nome] = bancada::Mediana(tempos);
        AbandonarAlteracao();
    }
    bancada::TMedida medida = todas.Medida();
    medida.Contadores.insert(medianas);
    return medida;
}

/** The key that starts an alteration: takes the lock, reads the list again, shows the buttons. */
bancada::TMedida TCena::PrimeiraTecla(int quantas)
{
    bancada::TAmostras amostras;
    for (int i = 0; i < quantas; ++i) {
        digitador.Focar(especies[0].Entrada);
        amostras.Juntar(digitador.Teclar(especies[0].Entrada, u'x'));
        if (tela->Tab->Status != TStatus::Alterando)
            throw std::runtime_error("the key started no alteration");
        AbandonarAlteracao();
    }
    return amostras.Medida();
}

/** The idle pass of a screen that browses. */
bancada::TMedida TCena::Navegando(int quantas)
{
    digitador.Focar(especies[0].Entrada);
    bancada::TAmostras amostras;
    for (int i = 0; i < quantas; ++i)
        amostras.Juntar(bancada::Cronometrar([] { ExecutarOcioso(); }));
    return amostras.Medida();
}

/** The idle pass after each key of an alteration; what there was to repaint is repainted. */
bancada::TMedida TCena::Alterando(int quantas)
{
    QWidget *entrada = tela->ContatoFr->EMailLabeledEdit;
    digitador.Focar(entrada);
    AbrirAlteracao();
    bancada::TAmostras amostras;
    for (int i = 0; i < quantas; ++i) {
        if (i % TeclasPorVez == 0)
            bancada::TDigitador::Esvaziar(entrada);
        else
            QTest::keyClick(entrada, 'a');
        QCoreApplication::processEvents();
        amostras.Juntar(bancada::Cronometrar([] { ExecutarOcioso(); }));
    }
    AbandonarAlteracao();
    return amostras.Medida();
}

/** The loop for some time with nothing happening, the focus in an input. */
bancada::TMedida TCena::Largada(int ms, int piscada)
{
    const auto [despertares, trocas] = digitador.Largar(especies[0].Entrada, ms, piscada);
    return {double(ms) / 1000,
            {{QStringLiteral("despertares"), despertares}, {QStringLiteral("trocas"), trocas}}};
}

/** What a process of its own measures. */
QMap<QString, double> Avulsa(const QStringList &argumentos)
{
    QProcess processo;
    processo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processo.start(QStringLiteral(FICHA_AVULSA), argumentos);
    if (!processo.waitForFinished() || processo.exitCode() != 0)
        throw std::runtime_error("the program that measures in a process of its own failed");
    QMap<QString, double> numeros;
    while (processo.canReadLine()) {
        const QByteArrayList partes = processo.readLine().trimmed().split(' ');
        numeros[QString::fromLatin1(partes.value(0))] = partes.value(1).toDouble();
    }
    return numeros;
}

/** The first creation in a process of its own, on a copy of a database. */
bancada::TMedida PrimeiraCriacao(const QString &arquivo, const QString &qual)
{
    const QTemporaryDir pasta(PastaDeBancos());
    const QString copia = pasta.filePath(QStringLiteral("banco.fdb"));
    if (!arquivo.isEmpty() && !QFile::copy(arquivo, copia))
        throw std::runtime_error("the database could not be copied");
    const auto tempos = Avulsa({qual, copia});
    if (tempos.value(qual) <= 0)
        throw std::runtime_error("the first creation was not measured");
    return {tempos[qual], {}};
}

QStringList Lados(const QWidget *w)
{
    return {QString::number(w->width()), QString::number(w->height())};
}

using TPonteiro = std::shared_ptr<TCena>;
using bancada::TUnidade;

const QString TeclaNossa = QStringLiteral("a key in a 40-frame screen");
const QString TeclaDoPar = QStringLiteral("the same key in a bare QLineEdit");

void MedirTeclas(const TPonteiro &cena)
{
    const int teclas = bancada::Tamanho(160, 16);
    constexpr int Repeticoes = 31;
    bancada::Medir(
        TeclaNossa, [=] { return cena->Teclas(teclas); }, Repeticoes);
    const auto doPar = [=] {
        // The same number of keys in all.
        const QString quantas = QString::number(teclas * int(cena->especies.size()) / 2);
        return bancada::TMedida{
            0, Avulsa(QStringList{QStringLiteral("teclas")} + Lados(cena->tela.get()) << quantas)};
    };
    bancada::Medir(TeclaDoPar, doPar, Repeticoes);
    const QString nota = QStringLiteral(
        "the median key of an open alteration, pressed and released, until a running event loop "
        "has nothing left to do: the repaint, the edit's state, actions, labels and the idle pass; "
        "the peer is a bare QLineEdit of that size among 40 in a window of that size, in the same "
        "loop in a process without the library, typing the same letters or digits");
    char letra = 'a';
    for (const TEspecie &especie : cena->especies) {
        const bool texto = especie.Teclas[0].isLetter();
        bancada::Exigir(
            {.Linha = QStringLiteral("8%1").arg(QLatin1Char(letra)),
             .Trabalho = QStringLiteral("a key typed into a bound frame (%1) of a screen with "
                                        "40, to the repaint")
                             .arg(especie.Nome),
             .Nosso = {TeclaNossa, especie.Nome},
             .Par = {TeclaDoPar, texto ? QStringLiteral("letters") : QStringLiteral("digits")},
             .Limite = 2,
             .NaVerificacao = 4,
             .Nota = letra == 'a' ? nota : QString()});
        ++letra;
    }
    bancada::Exigir({.Linha = "8l",
                     .Trabalho = "the same, 99 in 100 keys of all those frames",
                     .Nosso = {TeclaNossa, QStringLiteral("p99")},
                     .Limite = 0.002});
    const QString primeira = QStringLiteral("the key that starts an alteration");
    const int alteracoes = bancada::Tamanho(20, 5);
    bancada::Medir(primeira, [=] { return cena->PrimeiraTecla(alteracoes); });
    bancada::Exigir({.Linha = "8m",
                     .Trabalho = primeira + QStringLiteral(" in that screen"),
                     .Nosso = {primeira},
                     .Limite = 0.1,
                     .Nota = "takes the record's lock in the database, reads the list of 100 "
                             "records again and shows what changed"});
}

void MedirOcioso(const TPonteiro &cena)
{
    const QString navegando = QStringLiteral("idle pass, browsing");
    const QString alterando = QStringLiteral("idle pass, after a key");
    const QString parada = QStringLiteral("the screen left alone");
    const int passadas = bancada::Tamanho(1000, 100);
    const int ms = bancada::Tamanho(5000, 1000);
    bancada::Medir(navegando, [=] { return cena->Navegando(passadas); });
    bancada::Medir(alterando, [=] { return cena->Alterando(passadas); });
    bancada::Medir(parada, [=] { return cena->Largada(ms, 0); });
    for (const auto &[linha, medida] : {std::pair("9a", navegando), std::pair("9b", alterando)})
        bancada::Exigir({.Linha = QLatin1String(linha),
                         .Trabalho = medida + QStringLiteral(", a screen with 40 frames"),
                         .Nosso = {medida},
                         .Limite = 50e-6});
    bancada::Exigir({.Linha = "9c",
                     .Trabalho = QStringLiteral("wake-ups in %1 s without events").arg(ms / 1000),
                     .Nosso = {parada, QStringLiteral("despertares"), TUnidade::Numero},
                     .Limite = 0,
                     .NaVerificacao = 0,
                     .Nota = "a running event loop, the screen shown, the focus in an input, the "
                             "caret's blinking switched off"});
    bancada::Exigir({.Linha = "9d",
                     .Trabalho = "voluntary context switches of the thread in that time",
                     .Nosso = {parada, QStringLiteral("trocas"), TUnidade::Numero},
                     .Limite = 0,
                     .NaVerificacao = 2});
}

void MedirCaret(const TPonteiro &cena)
{
    if (bancada::Verificando())
        return; // two seconds for each time
    const QString nosso = QStringLiteral("the screen left alone with a blinking caret");
    const QString par = QStringLiteral("a bare QLineEdit left alone with a blinking caret");
    constexpr int Ms = 1900; // away from the caret's own beats
    constexpr int Piscada = 1000;
    bancada::Medir(nosso, [=] { return cena->Largada(Ms, Piscada); });
    bancada::Medir(par, [=] {
        const QStringList argumentos =
            QStringList{QStringLiteral("caret")} + Lados(cena->tela.get())
            << QString::number(Ms) << QString::number(Piscada);
        return bancada::TMedida{0, {{QStringLiteral("trocas"), Avulsa(argumentos)["caret"]}}};
    });
    bancada::Exigir({.Linha = "9e",
                     .Trabalho = "wake-ups while the caret blinks as Qt has it",
                     .Nosso = {nosso, QStringLiteral("trocas"), TUnidade::Numero},
                     .Par = {par, QStringLiteral("trocas"), TUnidade::Numero},
                     .Limite = 1.25,
                     .NaVerificacao = 1.5,
                     .Nota = "voluntary context switches, which are the caret's own timer"});
}

void MedirCriacao(const TPonteiro &cena)
{
    const QString primeira = QStringLiteral("first creation in a process");
    const QString seguinte = QStringLiteral("each later creation");
    const QString primeiraDoPar = QStringLiteral("first creation from uic's code");
    const QString seguinteDoPar = QStringLiteral("each later creation from uic's code");
    const QString visiveis = QStringLiteral("the same, only what is shown");
    const QString arquivo = cena->banco.Arquivo();
    bancada::Medir(primeira, [=] { return PrimeiraCriacao(arquivo, QStringLiteral("nossa")); });
    bancada::Medir(primeiraDoPar, [] { return PrimeiraCriacao({}, QStringLiteral("par")); });
    bancada::Medir(seguinte, [] { return bancada::TMedida{bancada::CriarNossa()["nossa"], {}}; });
    bancada::Medir(seguinteDoPar, [] { return bancada::TMedida{bancada::CriarPar(false), {}}; });
    bancada::Medir(visiveis, [] { return bancada::TMedida{bancada::CriarPar(true), {}}; });
    const auto exigir = [](const char *linha, const QString &qual, const QString &nosso,
                           const QString &par, const QString &nota) {
        bancada::Exigir({.Linha = QLatin1String(linha),
                         .Trabalho = QStringLiteral("creation of a screen with 40 frames, layouts "
                                                    "included, ") +
                                     qual,
                         .Nosso = {nosso},
                         .Par = {par},
                         .Limite = 4,
                         .NaVerificacao = 8,
                         .Nota = nota});
    };
    const auto widgets = bancada::WidgetsDasTelas();
    exigir("10a", QStringLiteral("the first one"), primeira, primeiraDoPar,
           QStringLiteral(
               "processor time of Criar<TForm>() up to before showing, without the time in which "
               "the query and the code combos are opened; the first one in a process in which a "
               "window with the common widgets was shown; the peer is the same screen (%1 "
               "widgets, ours %2) as stock classes through uic, without pictures and data")
               .arg(widgets["par"])
               .arg(widgets["nossa"]));
    exigir("10b", QStringLiteral("each later one"), seguinte, seguinteDoPar, {});
    exigir("10c", QStringLiteral("each later one"), seguinte, visiveis,
           QStringLiteral("%1 widgets: the peer without those that ours has hidden, two wait "
                          "panels in every frame above all")
               .arg(widgets["par-visiveis"]));
}

} // namespace

BANCADA_GRUPO(quadros)
{
    QApplication::setCursorFlashTime(0);
    const auto cena = std::make_shared<TCena>();
    MedirTeclas(cena);
    MedirOcioso(cena);
    MedirCaret(cena);
    MedirCriacao(cena);
}
