#include "bench/QuadrosCriacao.h"

#include "bench/Processador.h"
#include "bench/QuadrosTela.h"
#include "ui_QuadrosTodos.h"
#include "ui_QuadrosVisiveis.h"

#include <QtWidgets>

#include <memory>

using namespace ficha;

namespace bancada
{

namespace
{

template <class TUi>
std::unique_ptr<QWidget> Novo()
{
    auto par = std::make_unique<QWidget>();
    TUi ui;
    ui.setupUi(par.get());
    return par;
}

std::unique_ptr<QWidget> NovoPar(bool soVisiveis)
{
    return soVisiveis ? Novo<Ui::QuadrosVisiveis>() : Novo<Ui::QuadrosTodos>();
}

} // namespace

TTempos CriarNossa()
{
    std::unique_ptr<TQuadrosF> tela;
    const double tudo = CronometrarProcessador([&] { tela.reset(Criar<TQuadrosF>(nullptr)); });
    return {{QStringLiteral("nossa"), tudo - tela->SegundosDoBanco},
            {QStringLiteral("banco"), tela->SegundosDoBanco}};
}

double CriarPar(bool soVisiveis)
{
    std::unique_ptr<QWidget> par;
    return CronometrarProcessador([&] { par = NovoPar(soVisiveis); });
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
            {QStringLiteral("par"), ContarWidgets(NovoPar(false).get())},
            {QStringLiteral("par-visiveis"), ContarWidgets(NovoPar(true).get())}};
}

} // namespace bancada
