#include "platform/support/Navegador.h"

#include "platform/core/Servicos.h"
#include "platform/support/Mensagens.h"

#include <QDesktopServices>
#include <QStringList>
#include <QUrl>

namespace ficha
{

namespace
{

/** The address as it can be opened; invalid when it must not or cannot be. */
QUrl EnderecoAceito(const QString &endereco)
{
    static const QStringList aceitos = {QStringLiteral("http"), QStringLiteral("https"),
                                        QStringLiteral("ftp"), QStringLiteral("mailto")};
    // "www.x.com.br:8080" reads as a scheme, so only "://" and "mailto:" count as one.
    const bool temEsquema = endereco.contains(QLatin1String("://")) ||
                            endereco.startsWith(QLatin1String("mailto:"), Qt::CaseInsensitive);
    const QUrl url(temEsquema ? endereco : QStringLiteral("http://") + endereco, QUrl::StrictMode);
    const bool completo = !url.host().isEmpty() || url.scheme() == QLatin1String("mailto");
    return url.isValid() && completo && aceitos.contains(url.scheme()) ? url : QUrl();
}

} // namespace

void AbrirBrowser(const QString &endereco)
{
    if (Servicos().AbrirBrowser) {
        Servicos().AbrirBrowser(endereco);
        return;
    }
    const QString limpo = endereco.trimmed();
    if (limpo.isEmpty()) {
        MensagemInfo(QStringLiteral("Não há endereço de página para abrir."));
        return;
    }
    const QUrl url = EnderecoAceito(limpo);
    if (!url.isValid())
        MensagemErro(QStringLiteral("O endereço da página não é válido:\r\n") + limpo);
    else if (!QDesktopServices::openUrl(url))
        MensagemErro(QStringLiteral("Não foi possível abrir a página:\r\n") + limpo);
}

} // namespace ficha
