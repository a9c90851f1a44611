#include "platform/support/Metafile.h"

#include "platform/support/DispositivoWmf.h"
#include "platform/support/EImagemInvalida.h"
#include "platform/support/RegistrosWmf.h"

#include <algorithm>
#include <utility>

namespace ficha
{

namespace
{
/** Drawn this many times finer than asked for and brought down: smooth edges, and no seams between
 * shapes that touch, which softened edges would leave. */
constexpr int MaiorFineza = 4;
constexpr int LadoDaTela = 4096;
} // namespace

TMetafile::TMetafile(const QByteArray &arquivo)
{
    TRegistrosWmf lido = LerRegistrosWmf(arquivo);
    registros = lido.bytes;
    bitmaps = std::move(lido.bitmaps);
    objetos = lido.objetos;
    origem = lido.origem;
    extensao = lido.extensao;
    natural = lido.natural;
}

QImage TMetafile::Desenhar(QSize pixels) const
{
    pixels = pixels.expandedTo({1, 1}).boundedTo({MaiorLado, MaiorLado});
    const int lado = std::max(pixels.width(), pixels.height());
    const int fineza = std::clamp(LadoDaTela / lado, 1, MaiorFineza);
    QImage tela(pixels * fineza, QImage::Format_RGB32);
    if (tela.isNull())
        throw EImagemInvalida(QStringLiteral("não há memória para mostrar o metarquivo"));
    tela.fill(Qt::white);
    TocarWmf(MontarWmf(registros, objetos, origem, extensao, tela.size()), bitmaps, tela, fineza,
             SegundosDePintura);
    return fineza == 1 ? tela
                       : tela.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace ficha
