#include "platform/support/ArquivoDeImagem.h"
#include "platform/support/EImagemInvalida.h"
#include "support/Imagens.h"

#include <QBuffer>

#include <sys/resource.h>
#include <sys/stat.h>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TArquivoDeImagemTest : public testing::Test
{
protected:
    /** Why a file is refused; empty when it is not. */
    static QString Recusa(const QString &arquivo)
    {
        try {
            (void)TArquivoDeImagem(arquivo).Ler({20, 20});
            return {};
        } catch (const EImagemInvalida &e) {
            return e.Mensagem();
        }
    }
    static QByteArray Em(const QImage &imagem, const char *formato)
    {
        QByteArray bytes;
        QBuffer dados(&bytes);
        dados.open(QIODevice::WriteOnly);
        EXPECT_TRUE(imagem.save(&dados, formato, 95));
        return bytes;
    }

    TPastaDeImagens pasta;
};

} // namespace

TEST_F(TArquivoDeImagemTest, TheExtensionAloneSaysTheKindWhateverItsCase)
{
    EXPECT_EQ(TipoDeImagem(QStringLiteral("/a/foto.JPG")), TTipoDeImagem::Jpeg);
    EXPECT_EQ(TipoDeImagem(QStringLiteral("foto.Jpeg")), TTipoDeImagem::Jpeg);
    EXPECT_EQ(TipoDeImagem(QStringLiteral("a.b.bmp")), TTipoDeImagem::Bitmap);
    EXPECT_EQ(TipoDeImagem(QStringLiteral("x.ICO")), TTipoDeImagem::Icone);
    EXPECT_EQ(TipoDeImagem(QStringLiteral("x.wmf")), TTipoDeImagem::Metafile);
    for (const char *nome : {"x.gif", "x.png", "x", "", "jpg", "x.jpg.txt", "/a.jpg/x", "x.emf"})
        EXPECT_EQ(TipoDeImagem(QString::fromLatin1(nome)), TTipoDeImagem::Nenhum) << nome;
}

TEST_F(TArquivoDeImagemTest, AVersionChangesWithContentSizeTimeAndFile)
{
    const QString a = pasta.Gravar(QStringLiteral("a.jpg"), QByteArray("um"));
    const TVersaoDoArquivo antes = VersaoDoArquivo(a);
    EXPECT_TRUE(antes.Existe());
    EXPECT_TRUE(antes.Recente());
    EXPECT_EQ(VersaoDoArquivo(a), antes);
    TPastaDeImagens::Envelhecer(a, 60);
    EXPECT_NE(VersaoDoArquivo(a), antes);
    const QString b = pasta.Gravar(QStringLiteral("b.jpg"), QByteArray("um"));
    EXPECT_NE(VersaoDoArquivo(a), VersaoDoArquivo(b));
}

TEST_F(TArquivoDeImagemTest, FoldersPipesAndWhatIsMissingDoNotExist)
{
    EXPECT_FALSE(VersaoDoArquivo(QString()).Existe());
    EXPECT_FALSE(VersaoDoArquivo(pasta.Caminho(QStringLiteral("nada.jpg"))).Existe());
    const QString dir = pasta.Caminho(QStringLiteral("dir.jpg"));
    ASSERT_TRUE(QDir().mkdir(dir));
    EXPECT_FALSE(VersaoDoArquivo(dir).Existe());
    const QString cano = pasta.Caminho(QStringLiteral("cano.jpg"));
    ASSERT_EQ(mkfifo(QFile::encodeName(cano).constData(), 0600), 0);
    EXPECT_FALSE(VersaoDoArquivo(cano).Existe());
    EXPECT_NE(Recusa(cano), QString()) << "never opened: reading it would wait for ever";
}

TEST_F(TArquivoDeImagemTest, JpegBitmapAndIconAreReadAtTheSizeAskedFor)
{
    const QImage metades = TPastaDeImagens::Metades({60, 30}, Qt::red, Qt::blue);
    for (const auto &[nome, formato] :
         {std::pair("f.jpg", "jpeg"), std::pair("f.bmp", "bmp"), std::pair("f.ico", "ico")}) {
        const TArquivoDeImagem lida(pasta.Gravar(QString::fromLatin1(nome), metades, formato));
        EXPECT_EQ(lida.Tamanho(), QSize(60, 30)) << nome;
        for (const QSize tamanho : {QSize(20, 10), QSize(60, 30), QSize(120, 60)}) {
            const QImage i = lida.Ler(tamanho);
            ASSERT_EQ(i.size(), tamanho) << nome;
            EXPECT_TRUE(Parecida(i.pixelColor(2, 5), Qt::red)) << nome;
            EXPECT_TRUE(Parecida(i.pixelColor(tamanho.width() - 3, 5), Qt::blue)) << nome;
        }
        EXPECT_EQ(lida.LerNatural().size(), QSize(60, 30));
    }
}

TEST_F(TArquivoDeImagemTest, AMetafileIsReadAtTheSizeAskedFor)
{
    TGravadorWmf w;
    w.Janela(0, 0, 10, 10);
    w.Pena(TGravadorWmf::SemContorno, 0, 0);
    w.Pincel(0x0000FF);
    w.Retangulo(0, 0, 5, 10);
    const TArquivoDeImagem lida(pasta.Gravar(QStringLiteral("f.WMF"), w.Arquivo()));
    EXPECT_EQ(lida.Tamanho(), QSize(10, 10));
    const QImage i = lida.Ler({200, 200});
    EXPECT_EQ(i.pixelColor(98, 100), QColor(Qt::red)) << "drawn at the size, not enlarged";
    EXPECT_EQ(i.pixelColor(101, 100), QColor(Qt::white));
}

TEST_F(TArquivoDeImagemTest, APhotoStandsUprightAsItsCameraNoted)
{
    const QByteArray jpeg = Em(TPastaDeImagens::Metades({200, 100}, Qt::red, Qt::blue), "jpeg");
    const TArquivoDeImagem lida(
        pasta.Gravar(QStringLiteral("foto.jpg"), TPastaDeImagens::Deitada(jpeg)));
    EXPECT_EQ(lida.Tamanho(), QSize(100, 200));
    for (const QSize tamanho : {QSize(25, 50), QSize(100, 200), QSize(200, 400)}) {
        const QImage i = lida.Ler(tamanho);
        ASSERT_EQ(i.size(), tamanho);
        EXPECT_TRUE(Parecida(i.pixelColor(tamanho.width() / 2, 3), Qt::red));
        EXPECT_TRUE(Parecida(i.pixelColor(tamanho.width() / 2, tamanho.height() - 4), Qt::blue));
    }
}

TEST_F(TArquivoDeImagemTest, WhatIsTransparentIsWhite)
{
    QImage icone(32, 32, QImage::Format_ARGB32);
    icone.fill(Qt::transparent);
    QPainter(&icone).fillRect(0, 0, 16, 32, Qt::red);
    const QImage i =
        TArquivoDeImagem(pasta.Gravar(QStringLiteral("x.ico"), icone, "ico")).Ler({32, 32});
    EXPECT_EQ(i.pixelColor(5, 5), QColor(Qt::red));
    EXPECT_EQ(i.pixelColor(25, 5), QColor(Qt::white));
}

TEST_F(TArquivoDeImagemTest, OfAnIconsPicturesTheLargestCounts)
{
    const QByteArray pequeno = Em(TPastaDeImagens::Lisa({16, 16}, Qt::red), "ico");
    const QByteArray grande = Em(TPastaDeImagens::Lisa({48, 48}, Qt::blue), "ico");
    QByteArray juntos("\0\0\1\0\2\0", 6);
    QByteArray entrada1 = pequeno.mid(6, 16), entrada2 = grande.mid(6, 16);
    qToLittleEndian<quint32>(6 + 32, entrada1.data() + 12);
    qToLittleEndian<quint32>(quint32(6 + 32 + pequeno.size() - 22), entrada2.data() + 12);
    juntos += entrada1 + entrada2 + pequeno.mid(22) + grande.mid(22);
    const TArquivoDeImagem lida(pasta.Gravar(QStringLiteral("dois.ico"), juntos));
    EXPECT_EQ(lida.Tamanho(), QSize(48, 48));
    EXPECT_EQ(lida.Ler({48, 48}).pixelColor(20, 20), QColor(Qt::blue));
}

TEST_F(TArquivoDeImagemTest, AFileOfAnotherKindUnderTheNameIsDamaged)
{
    const QImage lisa = TPastaDeImagens::Lisa({20, 20}, Qt::red);
    const QByteArray png = Em(lisa, "png");
    for (const char *nome : {"x.jpg", "x.bmp", "x.ico", "x.wmf"}) {
        const QString arquivo = pasta.Gravar(QString::fromLatin1(nome), png);
        EXPECT_TRUE(Recusa(arquivo).contains(arquivo)) << "the message names the file";
    }
    EXPECT_NE(Recusa(pasta.Gravar(QStringLiteral("y.jpg"), Em(lisa, "bmp"))), QString());
    EXPECT_NE(Recusa(pasta.Gravar(QStringLiteral("y.bmp"), Em(lisa, "jpeg"))), QString());
}

TEST_F(TArquivoDeImagemTest, AFileCutShortIsDamagedNotHalfAPicture)
{
    const QImage lisa = TPastaDeImagens::Metades({40, 40}, Qt::red, Qt::blue);
    for (const char *formato : {"jpeg", "bmp", "ico"}) {
        const QByteArray inteira = Em(lisa, formato);
        const QString nome = QStringLiteral("corte.") + QString::fromLatin1(formato);
        ASSERT_EQ(Recusa(pasta.Gravar(nome, inteira)), QString()) << formato;
        for (qsizetype n = 0; n < inteira.size(); n += qMax<qsizetype>(1, inteira.size() / 40))
            ASSERT_NE(Recusa(pasta.Gravar(nome, inteira.first(n))), QString())
                << formato << " cut to " << n;
        EXPECT_NE(Recusa(pasta.Gravar(nome, inteira.chopped(1))), QString()) << formato;
    }
}

TEST_F(TArquivoDeImagemTest, WhatFollowsAJpegDoesNotMatter)
{
    const QByteArray jpeg = Em(TPastaDeImagens::Lisa({40, 40}, Qt::red), "jpeg");
    EXPECT_EQ(Recusa(pasta.Gravar(QStringLiteral("x.jpg"), jpeg + QByteArray(500, 'x'))),
              QString());
}

TEST_F(TArquivoDeImagemTest, DamagedBytesAreShownOrRefusedButNeverEndTheProgram)
{
    const QImage lisa = TPastaDeImagens::Metades({40, 40}, Qt::red, Qt::blue);
    quint32 acaso = 12345;
    const auto proximo = [&acaso] { return acaso = acaso * 1664525U + 1013904223U, acaso >> 8; };
    for (const char *formato : {"jpeg", "bmp", "ico"}) {
        const QByteArray inteira = Em(lisa, formato);
        for (int n = 0; n < 200; ++n) {
            QByteArray ruim = inteira;
            for (int k = 0; k < 4; ++k)
                ruim[qsizetype(proximo() % quint32(k ? qMin<qsizetype>(200, ruim.size())
                                                     : ruim.size()))] = char(proximo());
            (void)Recusa(pasta.Gravar(QStringLiteral("x.") + QString::fromLatin1(formato), ruim));
        }
    }
}

TEST_F(TArquivoDeImagemTest, APictureThatIsTooLargeSaysSo)
{
    QByteArray jpeg = Em(TPastaDeImagens::Lisa({40, 40}, Qt::red), "jpeg");
    const qsizetype quadro = jpeg.indexOf(QByteArray("\xFF\xC0", 2));
    ASSERT_GT(quadro, 0);
    qToBigEndian<quint16>(65000, jpeg.data() + quadro + 5);
    qToBigEndian<quint16>(65000, jpeg.data() + quadro + 7);
    EXPECT_TRUE(Recusa(pasta.Gravar(QStringLiteral("x.jpg"), jpeg))
                    .contains(QStringLiteral("grande demais")));
}

TEST_F(TArquivoDeImagemTest, TheLimitsHoldForOneSideForBitmapsAndForTheFileItself)
{
    const auto grande = [this](const char *nome, const QByteArray &bytes) {
        const QString recusa = Recusa(pasta.Gravar(QString::fromLatin1(nome), bytes));
        EXPECT_TRUE(recusa.contains(QStringLiteral("grande demais"))) << qPrintable(recusa);
    };
    QByteArray jpeg = Em(TPastaDeImagens::Lisa({40, 40}, Qt::red), "jpeg");
    const qsizetype quadro = jpeg.indexOf(QByteArray("\xFF\xC0", 2));
    ASSERT_GT(quadro, 0);
    qToBigEndian<quint16>(65000, jpeg.data() + quadro + 7);
    grande("comprida.jpg", jpeg);
    // Compressed, so that the file need not hold each pixel.
    QByteArray bmp = Em(TPastaDeImagens::Lisa({40, 40}, Qt::red), "bmp");
    qToLittleEndian<qint32>(20'000, bmp.data() + 18);
    qToLittleEndian<qint32>(10'000, bmp.data() + 22);
    qToLittleEndian<quint16>(8, bmp.data() + 28);
    qToLittleEndian<quint32>(1, bmp.data() + 30);
    grande("rle.bmp", bmp);
    const QString enorme =
        pasta.Gravar(QStringLiteral("x.jpg"), Em(TPastaDeImagens::Lisa({40, 40}, Qt::red), "jpeg"));
    ASSERT_EQ(Recusa(enorme), QString());
    ASSERT_TRUE(QFile::resize(enorme, TArquivoDeImagem::MaisBytes + 1));
    EXPECT_TRUE(Recusa(enorme).contains(QStringLiteral("grande demais")));
}

TEST_F(TArquivoDeImagemTest, BitmapsThatRunDownwardsOrHaveTheOldHeaderAreRead)
{
    QByteArray bmp = Em(TPastaDeImagens::Lisa({40, 30}, Qt::blue), "bmp");
    qToLittleEndian<qint32>(-30, bmp.data() + 22);
    const TArquivoDeImagem descendo(pasta.Gravar(QStringLiteral("a.bmp"), bmp));
    EXPECT_EQ(descendo.Tamanho(), QSize(40, 30));
    EXPECT_EQ(descendo.Ler({40, 30}).pixelColor(20, 15), QColor(Qt::blue));
    QByteArray antigo("BM");
    antigo.resize(26);
    antigo.replace(2, 24, QByteArray(24, '\0'));
    qToLittleEndian<quint32>(26, antigo.data() + 10);
    qToLittleEndian<quint32>(12, antigo.data() + 14);
    qToLittleEndian<quint16>(4, antigo.data() + 18);
    qToLittleEndian<quint16>(3, antigo.data() + 20);
    qToLittleEndian<quint16>(1, antigo.data() + 22);
    qToLittleEndian<quint16>(24, antigo.data() + 24);
    for (int i = 0; i < 12; ++i)
        antigo += QByteArray("\x00\x00\xFF", 3);
    qToLittleEndian<quint32>(quint32(antigo.size()), antigo.data() + 2);
    const TArquivoDeImagem lido(pasta.Gravar(QStringLiteral("b.bmp"), antigo));
    EXPECT_EQ(lido.Tamanho(), QSize(4, 3));
    EXPECT_EQ(lido.Ler({4, 3}).pixelColor(1, 1), QColor(Qt::red));
    EXPECT_NE(Recusa(pasta.Gravar(QStringLiteral("c.bmp"), antigo.chopped(1))), QString());
}

TEST_F(TArquivoDeImagemTest, ALongPictureKeepsItsProportionsWhenItIsBroughtDown)
{
    const TArquivoDeImagem lida(pasta.Gravar(
        QStringLiteral("x.jpg"), TPastaDeImagens::Lisa({20'000, 800}, Qt::red), "jpeg"));
    EXPECT_EQ(lida.LerNatural().size(), QSize(7'500, 300)) << "by three eighths";
    EXPECT_EQ(lida.Ler({0, 0}).size(), QSize(1, 1)) << "a pixel each way at least";
}

TEST_F(TArquivoDeImagemTest, AFileGivenAnOldDateJustNowIsRecent)
{
    const QString arquivo = pasta.Gravar(QStringLiteral("a.jpg"), QByteArray("um"));
    TPastaDeImagens::Envelhecer(arquivo, 60);
    EXPECT_TRUE(VersaoDoArquivo(arquivo).Recente()) << "its content may be as new as that";
}

TEST_F(TArquivoDeImagemTest, AMissingOrUnknownFileSaysSo)
{
    EXPECT_TRUE(
        Recusa(pasta.Caminho(QStringLiteral("nada.jpg"))).contains(QStringLiteral("não existe")));
    EXPECT_TRUE(Recusa(pasta.Gravar(QStringLiteral("x.gif"), QByteArray("GIF89a")))
                    .contains(QStringLiteral("tipo não é conhecido")));
}

TEST_F(TArquivoDeImagemTest, APhotoOfMoreThanThirtyMillionPixelsIsShownSmaller)
{
    const TArquivoDeImagem lida(pasta.Gravar(
        QStringLiteral("x.jpg"), TPastaDeImagens::Lisa({8'000, 3'800}, Qt::red), "jpeg"));
    EXPECT_EQ(lida.Tamanho(), QSize(8'000, 3'800));
    const QSize natural = lida.LerNatural().size();
    EXPECT_EQ(natural, QSize(7'000, 3'325)) << "by seven eighths";
}

TEST_F(TArquivoDeImagemTest, AFileThatCannotBeOpenedIsToldSo)
{
    const QString a = pasta.Gravar(QStringLiteral("a.jpg"), QByteArray("um"));
    // Whose file it is stops no administrator; having no file left to open does.
    rlimit antes{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &antes), 0);
    rlimit nenhum = antes;
    nenhum.rlim_cur = 0;
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &nenhum), 0);
    const QString recusa = Recusa(a);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &antes), 0);
    EXPECT_EQ(recusa, QStringLiteral("A imagem não pode ser mostrada: o arquivo não pode ser lido."
                                     "\r\nArquivo: ") +
                          a);
}
