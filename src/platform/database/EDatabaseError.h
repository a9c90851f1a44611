#pragma once

#include "platform/core/Erros.h"

#include <cstdint>
#include <vector>

namespace ficha
{

/** What went wrong, as far as a user or a screen may care. */
enum class TErroBanco {
    Outro,
    ChaveUnica,
    ChaveEstrangeira,
    ValorMuitoLongo,
    CampoObrigatorio,
    ConflitoDeTrava,
    ConexaoPerdida,
    BancoEmUso,
    NaoEhBanco,
    SomenteLeitura,
    PastaOuArquivoAusente,
    DiscoCheio,
    Autenticacao,
    CaractereInvalido,
    Sintaxe,
};

/**
 * A failure of the database or of the layer in front of it. The message is Portuguese; the
 * engine's own text stands behind it where there is one.
 */
class EDatabaseError : public EErro
{
public:
    EDatabaseError(TErroBanco tipo, const QString &mensagem, QString textoDoBanco = {},
                   std::vector<std::int64_t> codigos = {})
        : EErro(textoDoBanco.isEmpty() ? mensagem
                                       : mensagem + QStringLiteral("\r\n\r\n") + textoDoBanco),
          Tipo(tipo), TextoDoBanco(std::move(textoDoBanco)), Codigos(std::move(codigos))
    {
    }

    const TErroBanco Tipo;
    /** The engine's own text, empty when the failure is not the engine's. */
    const QString TextoDoBanco;
    /** The engine's codes (335544665 and the like), outermost first. */
    const std::vector<std::int64_t> Codigos;
};

} // namespace ficha
