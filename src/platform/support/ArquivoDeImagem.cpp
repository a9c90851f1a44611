#include "platform/support/ArquivoDeImagem.h"

#include "platform/support/EImagemInvalida.h"
#include "platform/support/IntegridadeDeImagem.h"
#include "platform/support/Metafile.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <utility>

#include <sys/stat.h>

namespace ficha
{

namespace
{

constexpr qint64 NanosPorSegundo = 1'000'000'000;
/** Coarser than the clock of any file system that a picture lies on at home. */
constexpr qint64 Resolucao = 50'000'000;
constexpr int LadoPedido = 8192;
constexpr double PixelsNaturais = 30e6;

QString Danificada()
{
    return QStringLiteral("o arquivo está danificado, incompleto ou não é do tipo que a sua "
                          "extensão indica");
}

QString GrandeDemais()
{
    return QStringLiteral("ela é grande demais");
}

qint64 Nanos(const timespec &t)
{
    return qint64(t.tv_sec) * NanosPorSegundo + t.tv_nsec;
}

const char *Formato(TTipoDeImagem tipo)
{
    switch (tipo) {
    case TTipoDeImagem::Jpeg:
        return "jpeg";
    case TTipoDeImagem::Bitmap:
        return "bmp";
    case TTipoDeImagem::Icone:
        return "ico";
    default:
        return "";
    }
}

/** Hands a reader of the right kind, over the bytes, to a function. */
template <typename F>
auto ComLeitor(const QByteArray &bytes, TTipoDeImagem tipo, F usar)
{
    QBuffer dados;
    dados.setData(bytes);
    dados.open(QIODevice::ReadOnly);
    QImageReader leitor(&dados, Formato(tipo));
    leitor.setAutoDetectImageFormat(false);
    leitor.setAutoTransform(true);
    return usar(leitor);
}

QImage SobreBranco(const QImage &imagem)
{
    if (!imagem.hasAlphaChannel())
        return imagem.convertToFormat(QImage::Format_RGB32);
    QImage opaca(imagem.size(), QImage::Format_RGB32);
    opaca.fill(Qt::white);
    QPainter(&opaca).drawImage(QPoint(0, 0), imagem);
    return opaca;
}

} // namespace

TTipoDeImagem TipoDeImagem(const QString &arquivo)
{
    const QString extensao = QFileInfo(arquivo).suffix().toLower();
    if (extensao == QLatin1String("jpg") || extensao == QLatin1String("jpeg"))
        return TTipoDeImagem::Jpeg;
    if (extensao == QLatin1String("bmp"))
        return TTipoDeImagem::Bitmap;
    if (extensao == QLatin1String("ico"))
        return TTipoDeImagem::Icone;
    if (extensao == QLatin1String("wmf"))
        return TTipoDeImagem::Metafile;
    return TTipoDeImagem::Nenhum;
}

bool TVersaoDoArquivo::Recente() const
{
    using namespace std::chrono;
    const qint64 agora = duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
    return Existe() && std::max(escrita, mudanca) > agora - Resolucao;
}

TVersaoDoArquivo VersaoDoArquivo(const QString &arquivo)
{
    struct stat dados = {};
    if (arquivo.isEmpty() || ::stat(QFile::encodeName(arquivo).constData(), &dados) != 0 ||
        !S_ISREG(dados.st_mode))
        return {};
    return {dados.st_dev, dados.st_ino, dados.st_size, Nanos(dados.st_mtim), Nanos(dados.st_ctim)};
}

TArquivoDeImagem::TArquivoDeImagem(QString arquivo)
    : caminho(std::move(arquivo)), tipo(TipoDeImagem(caminho))
{
    if (tipo == TTipoDeImagem::Nenhum)
        Recusar(QStringLiteral("o seu tipo não é conhecido"));
    LerBytes();
    Medir();
    if (tamanho.isEmpty())
        Recusar(Danificada());
    const qint64 pixels = qint64(tamanho.width()) * tamanho.height();
    if (std::max(tamanho.width(), tamanho.height()) > MaiorLado || pixels > MaisPixels)
        Recusar(GrandeDemais());
    // Bitmaps are decoded whole, which the toolkit refuses beyond a limit of its own.
    if (tipo == TTipoDeImagem::Bitmap && pixels * 4 > qint64(QImageReader::allocationLimit()) << 20)
        Recusar(GrandeDemais());
}

TArquivoDeImagem::~TArquivoDeImagem() = default;

void TArquivoDeImagem::LerBytes()
{
    if (!VersaoDoArquivo(caminho).Existe())
        Recusar(QStringLiteral("o arquivo não existe"));
    QFile arquivo(caminho);
    if (!arquivo.open(QIODevice::ReadOnly))
        Recusar(QStringLiteral("o arquivo não pode ser lido"));
    if (arquivo.size() > MaisBytes)
        Recusar(GrandeDemais());
    bytes = arquivo.readAll();
}

void TArquivoDeImagem::Medir()
{
    switch (tipo) {
    case TTipoDeImagem::Metafile:
        try {
            metafile = std::make_unique<TMetafile>(bytes);
        } catch (const EImagemInvalida &e) {
            Recusar(e.Mensagem());
        }
        tamanho = metafile->TamanhoNatural();
        return;
    case TTipoDeImagem::Icone:
        if (!IconeInteiro(bytes))
            Recusar(Danificada());
        MedirIcone();
        return;
    case TTipoDeImagem::Jpeg:
        if (!JpegInteiro(bytes))
            Recusar(Danificada());
        break;
    default:
        if (!BitmapInteiro(bytes))
            Recusar(Danificada());
        break;
    }
    ComLeitor(bytes, tipo, [this](const QImageReader &leitor) {
        deitada = leitor.transformation().testFlag(QImageIOHandler::TransformationRotate90);
        // The height of a bitmap that runs downwards is told as a negative one.
        const QSize lida(leitor.size().width(), std::abs(leitor.size().height()));
        tamanho = deitada ? lida.transposed() : lida;
    });
}

void TArquivoDeImagem::MedirIcone()
{
    ComLeitor(bytes, tipo, [this](QImageReader &leitor) {
        const int quantas = leitor.imageCount();
        for (int i = 0; i < quantas && leitor.jumpToImage(i); ++i) {
            const QImage uma = leitor.read();
            if (uma.width() * uma.height() > icone.width() * icone.height())
                icone = uma;
        }
    });
    tamanho = icone.size();
}

QImage TArquivoDeImagem::Ler(QSize pixels) const
{
    pixels = pixels.expandedTo({1, 1}).boundedTo({LadoPedido, LadoPedido});
    QImage lida = SobreBranco(Decodificar(pixels));
    if (lida.isNull())
        Recusar(Danificada());
    if (lida.size() == pixels)
        return lida;
    return lida.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage TArquivoDeImagem::LerNatural() const
{
    const double pixels = double(tamanho.width()) * tamanho.height();
    const double lado = std::max(tamanho.width(), tamanho.height());
    const double cabe = std::min({1.0, std::sqrt(PixelsNaturais / pixels), LadoPedido / lado});
    // Eighths are what a JPEG decodes to at once: in between it would first take more than cabe.
    const double fator = std::max(1.0, std::floor(cabe * 8)) / 8;
    return Ler((QSizeF(tamanho) * fator).toSize());
}

/** Of the size asked for where the decoder can do so on its way, else of any size. */
QImage TArquivoDeImagem::Decodificar(QSize pixels) const
{
    if (metafile) {
        try {
            return metafile->Desenhar(pixels);
        } catch (const EImagemInvalida &e) {
            Recusar(e.Mensagem());
        }
    }
    if (tipo == TTipoDeImagem::Icone)
        return icone;
    return ComLeitor(bytes, tipo, [&](QImageReader &leitor) {
        const bool menor = pixels.width() < tamanho.width() && pixels.height() < tamanho.height();
        if (tipo == TTipoDeImagem::Jpeg && menor)
            leitor.setScaledSize(deitada ? pixels.transposed() : pixels);
        QImage lida = leitor.read();
        if (lida.isNull())
            Recusar(Danificada());
        return lida;
    });
}

void TArquivoDeImagem::Recusar(const QString &motivo) const
{
    throw EImagemInvalida(
        QStringLiteral("A imagem não pode ser mostrada: %1.\r\nArquivo: %2").arg(motivo, caminho));
}

} // namespace ficha
