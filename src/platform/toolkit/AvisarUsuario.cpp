#include "platform/toolkit/AvisarUsuario.h"

#include "platform/toolkit/Evento.h"

#include <QApplication>
#include <QMessageBox>

namespace ficha
{

void AvisarUsuario(const QString &texto)
{
    Protegido([&] {
        if (Servicos().MensagemAviso) {
            Servicos().MensagemAviso(texto, 0);
            return;
        }
        QString linhas = texto;
        linhas.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        QMessageBox caixa(QMessageBox::Warning, QStringLiteral("Aviso"), linhas,
                          QMessageBox::NoButton, QApplication::activeWindow());
        caixa.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
        caixa.exec();
    });
}

} // namespace ficha
