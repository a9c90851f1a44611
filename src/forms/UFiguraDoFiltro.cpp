#include "forms/UFiguraDoFiltro.h"

#include "platform/core/Erros.h"
#include "platform/core/Servicos.h"
#include "platform/support/ArquivoDeImagem.h"
#include "platform/support/Instalacao.h"

#include <QFileInfo>
#include <QSet>

namespace ficha
{

namespace
{

QPixmap Ler(const QString &caminho)
{
    const QString arquivo = ArquivoDaInstalacao(caminho);
    if (arquivo.isEmpty()) {
        const QStringList lugares = LugaresDoArquivo(caminho);
        throw EErro(
            QStringLiteral("A figura '%1', que faz parte da instalação do programa, não "
                           "foi encontrada.\r\nEla foi procurada em:\r\n%2")
                .arg(QFileInfo(lugares.value(0)).fileName(), lugares.join(QStringLiteral("\r\n"))));
    }
    return QPixmap::fromImage(TArquivoDeImagem(arquivo).LerNatural());
}

} // namespace

QPixmap LerFiguraDoFiltro(const QString &caminho)
{
    static QSet<QString> avisadas;
    try {
        QPixmap figura = Ler(caminho);
        avisadas.remove(caminho);
        return figura;
    } catch (...) {
        if (!avisadas.contains(caminho)) {
            avisadas.insert(caminho);
            ReportarErro(std::current_exception());
        }
        return {};
    }
}

} // namespace ficha
