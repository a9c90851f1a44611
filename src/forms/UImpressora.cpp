#include "forms/UImpressora.h"

#include "platform/core/Servicos.h"

#include <QCoreApplication>
#include <QPageSetupDialog>
#include <QPrinter>

#include <memory>

namespace ficha
{

namespace
{
std::unique_ptr<QPrinter> impressora;
}

/** Goes with the application, which it cannot outlive. */
QPrinter &Impressora()
{
    if (!impressora) {
        impressora = std::make_unique<QPrinter>(QPrinter::HighResolution);
        qAddPostRoutine([] { impressora.reset(); });
    }
    return *impressora;
}

void ConfigurarImpressao(QWidget *dono)
{
    if (const auto &doHost = Servicos().ConfigurarImpressao) {
        doHost(dono);
        return;
    }
    QPageSetupDialog dialogo(&Impressora(), dono);
    dialogo.setWindowTitle(QStringLiteral("Configurar a impressão"));
    dialogo.exec();
}

} // namespace ficha
