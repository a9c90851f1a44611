#include "bench/QuadrosTeclas.h"

#include "bench/Bancada.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

#include <stdexcept>

namespace bancada
{

namespace
{

constexpr int Quadros = 40;
constexpr int Colunas = 5;
constexpr int UmDeles = 8;

/** Places and sizes of the inputs of the screen that they are held against. */
class TJanelaDoPar : public QWidget
{
public:
    explicit TJanelaDoPar(QSize tamanho)
    {
        resize(tamanho);
        for (int i = 0; i < Quadros; ++i) {
            auto *edit = new QLineEdit(this);
            edit->setGeometry(8 + i % Colunas * 182, 60 + i / Colunas * 56, 160, 21);
            if (i == UmDeles)
                Entrada = edit;
        }
    }

    QLineEdit *Entrada = nullptr;
};

/** What paints an input's text. */
QWidget *Superficie(QWidget *entrada)
{
    auto *area = qobject_cast<QAbstractScrollArea *>(entrada);
    return area ? area->viewport() : entrada;
}

} // namespace

void TDigitador::Mostrar(QWidget *janela)
{
    janela->show();
    janela->activateWindow();
    if (!QTest::qWaitForWindowActive(janela))
        throw std::runtime_error("the window did not become active");
    Laco.Esgotar();
}

void TDigitador::Focar(QWidget *entrada)
{
    Mostrar(entrada->window());
    entrada->setFocus();
    Laco.Esgotar();
    if (QApplication::focusWidget() != entrada)
        throw std::runtime_error("the input did not take the focus");
}

void TDigitador::Esvaziar(QWidget *entrada)
{
    QMetaObject::invokeMethod(entrada, "selectAll");
    QTest::keyClick(entrada, Qt::Key_Delete);
}

double TDigitador::Teclar(QWidget *entrada, QChar tecla)
{
    Laco.Observar(Superficie(entrada));
    const double segundos = Cronometrar([&] {
        QTest::keyClick(entrada, tecla.toLatin1());
        Laco.Esgotar();
    });
    if (Laco.Pinturas() == 0)
        throw std::runtime_error("a key without a repaint");
    return segundos;
}

QVector<double> TDigitador::Digitar(QWidget *entrada, const QString &teclas, int quantas)
{
    QVector<double> tempos;
    while (tempos.size() < quantas) {
        Esvaziar(entrada);
        Laco.Esgotar();
        for (const QChar tecla : teclas)
            tempos.append(Teclar(entrada, tecla));
    }
    return tempos;
}

TLaco::TDespertares TDigitador::Largar(QWidget *entrada, int milissegundos, int piscada)
{
    // An input asks for the blinking when it is given the focus.
    Mostrar(entrada->window());
    entrada->clearFocus();
    QApplication::setCursorFlashTime(piscada);
    Focar(entrada);
    const TLaco::TDespertares despertares = Laco.Esperar(milissegundos);
    QApplication::setCursorFlashTime(0);
    return despertares;
}

QMap<QString, double> TeclasNoPar(QSize tamanho, int quantas)
{
    TJanelaDoPar janela(tamanho);
    TDigitador digitador;
    digitador.Focar(janela.Entrada);
    digitador.Digitar(janela.Entrada, QStringLiteral("abcdefgh"), quantas);
    const auto mediana = [&](const QString &teclas) {
        return Mediana(digitador.Digitar(janela.Entrada, teclas, quantas));
    };
    return {{QStringLiteral("letters"), mediana(QStringLiteral("abcdefgh"))},
            {QStringLiteral("digits"), mediana(QStringLiteral("12345678"))}};
}

int TrocasNoPar(QSize tamanho, int milissegundos, int piscada)
{
    TJanelaDoPar janela(tamanho);
    TDigitador digitador;
    return digitador.Largar(janela.Entrada, milissegundos, piscada).Trocas;
}

} // namespace bancada
