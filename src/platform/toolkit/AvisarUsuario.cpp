#include "platform/toolkit/AvisarUsuario.h"

#include "platform/toolkit/Evento.h"

namespace ficha
{

void AvisarUsuario(const QString &texto)
{
    Protegido([&] {
        if (Servicos().MensagemAviso)
            Servicos().MensagemAviso(texto, 0);
        else
            MensagemAvisoPadrao(texto);
    });
}

} // namespace ficha
