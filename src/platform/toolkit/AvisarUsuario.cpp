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
        QMessageBox caixa(QMessageBox::Warning, QStringLiteral("Aviso"), texto,
                          QMessageBox::NoButton, QApplication::activeWindow());
        caixa.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
        caixa.exec();
    });
}

} // namespace ficha
