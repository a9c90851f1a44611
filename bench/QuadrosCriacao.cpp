#include "bench/QuadrosCriacao.h"

#include "bench/Bancada.h"
#include "bench/QuadrosTela.h"
#include "ui_QuadrosPar.h"

#include <QtWidgets>

#include <memory>

using namespace ficha;

namespace bancada
{

namespace
{

std::unique_ptr<QWidget> NovoPar()
{
    auto par = std::make_unique<QWidget>();
    Ui::QuadrosPar ui;
    ui.setupUi(par.get());
    return par;
}

} // namespace

TTempos CriarNossa()
{
    std::unique_ptr<TQuadrosF> tela;
    const double tudo = Cronometrar([&] { tela.reset(Criar<TQuadrosF>(nullptr)); });
    return {{QStringLiteral("nossa"), tudo - tela->SegundosDoBanco},
            {QStringLiteral("banco"), tela->SegundosDoBanco}};
}

TTempos CriarPar()
{
    std::unique_ptr<QWidget> par;
    return {{QStringLiteral("par"), Cronometrar([&] { par = NovoPar(); })}};
}

void AquecerQt()
{
    QWidget janela;
    janela.resize(400, 300);
    new QLabel(QStringLiteral("Nome"), &janela);
    new QLineEdit(QStringLiteral("Maria"), &janela);
    new QPushButton(QStringLiteral("Confirmar"), &janela);
    new QCheckBox(QStringLiteral("Ativo"), &janela);
    new QGroupBox(QStringLiteral("Tipo"), &janela);
    new QRadioButton(QStringLiteral("Um"), &janela);
    new QComboBox(&janela);
    new QPlainTextEdit(&janela);
    new QListWidget(&janela);
    new QTabWidget(&janela);
    new QTableWidget(3, 3, &janela);
    new QDateEdit(&janela);
    new QToolButton(&janela);
    janela.show();
    QCoreApplication::processEvents();
}

int ContarWidgets(const QWidget *raiz)
{
    return 1 + int(raiz->findChildren<QWidget *>().size());
}

QMap<QString, int> WidgetsDasTelas()
{
    const std::unique_ptr<TQuadrosF> tela(Criar<TQuadrosF>(nullptr));
    return {{QStringLiteral("nossa"), ContarWidgets(tela.get())},
            {QStringLiteral("par"), ContarWidgets(NovoPar().get())}};
}

} // namespace bancada
