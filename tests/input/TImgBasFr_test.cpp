#include "input/UImgBasFr.h"
#include "input/UZoomBasF.h"
#include "platform/support/EImagemInvalida.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TPaintBox.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TToolBar.h"
#include "support/Entrada.h"
#include "support/Girar.h"
#include "support/Imagens.h"
#include "support/Layouts.h"

#include <QLabel>
#include <QScopeGuard>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TContadaFr : public TImgBasFr
{
    Q_OBJECT
public:
    using TImgBasFr::TImgBasFr;
    int leituras = 0;

protected:
    QImage LerImagem(const QString &arquivo, QSize caixa, qreal razao) override
    {
        ++leituras;
        return TImgBasFr::LerImagem(arquivo, caixa, razao);
    }
};

class TImgBasFrTest : public TEntradaTest
{
protected:
    TImgBasFrTest() { SisD().OpenDialog = TOpenDialog(); }
    ~TImgBasFrTest() override { SisD().OpenDialog = TOpenDialog(); }
    void TearDown() override
    {
        if (!errosEsperados)
            TEntradaTest::TearDown();
    }

    /** A shown frame bound to a column that holds the paths, one row for each. */
    TContadaFr *Preso(const QStringList &caminhos, const char *coluna = "descr")
    {
        QStringList linhas;
        for (const QString &caminho : caminhos)
            linhas << QStringLiteral("%1, '%2', 0, 0, '', ''").arg(linhas.size() + 1).arg(caminho);
        AbrirTabela(linhas);
        auto *fr = Mostrado<TContadaFr>();
        Prender(fr, coluna, QStringLiteral("Foto"));
        Girar();
        return fr;
    }
    /** Red on the left, blue on the right, twice as wide as high. */
    QString Foto(const QString &nome = QStringLiteral("foto.jpg"))
    {
        const QString arquivo =
            pasta.Gravar(nome, TPastaDeImagens::Metades({400, 200}, Qt::red, Qt::blue), "jpeg");
        TPastaDeImagens::Envelhecer(arquivo, 60);
        Assentar();
        return arquivo;
    }
    QString Danificada(const QString &nome = QStringLiteral("ruim.jpg"))
    {
        const QString arquivo = pasta.Gravar(nome, QByteArray("nada que se veja"));
        Assentar();
        return arquivo;
    }
    /** Until the times of what was written lie safely behind. */
    static void Assentar() { QTest::qWait(70); }

    /** The box as the user sees it. */
    static QImage Caixa(const TImgBasFr *fr)
    {
        const QPoint onde = fr->PaintBox1->mapTo(fr->window(), QPoint(0, 0));
        return fr->window()->grab().toImage().copy(QRect(onde, fr->PaintBox1->size()));
    }
    static QColor Em(const QImage &caixa, double x, double y)
    {
        return caixa.pixelColor(int(caixa.width() * x), int(caixa.height() * y));
    }
    static QColor NoMeio(const TImgBasFr *fr) { return Em(Caixa(fr), .5, .5); }
    static bool Branca(const TImgBasFr *fr)
    {
        const QImage caixa = Caixa(fr);
        QImage branca = caixa;
        branca.fill(Qt::white);
        return caixa == branca;
    }
    static bool MostraAFoto(const TImgBasFr *fr)
    {
        const QImage caixa = Caixa(fr);
        return Parecida(Em(caixa, .25, .5), Qt::red) && Parecida(Em(caixa, .75, .5), Qt::blue) &&
               Em(caixa, .5, .05) == QColor(Qt::white) && Em(caixa, .5, .95) == QColor(Qt::white);
    }
    /** The file dialog picks this; an empty name is a cancelled dialog. */
    void Escolher(const QString &arquivo)
    {
        SisD().OpenDialog.AoExecutar = [this, arquivo](TOpenDialog &d, QWidget *dono) {
            ++dialogos;
            titulo = d.Title;
            filtro = d.Filter;
            inicio = d.FileName;
            EXPECT_NE(dono, nullptr);
            QDir::setCurrent(QDir::tempPath());
            if (!arquivo.isEmpty())
                d.FileName = arquivo;
            return !arquivo.isEmpty();
        };
    }
    static void Clicar(TToolButton *botao)
    {
        QTest::mouseClick(botao, Qt::LeftButton);
        Girar();
    }
    /** Runs on the zoom form once it is shown, and closes it afterwards. */
    static void NoZoom(std::function<void(TZoomBasF *)> fazer)
    {
        QTimer::singleShot(0, qApp, [fazer] {
            ASSERT_NE(ZoomBasF, nullptr);
            ASSERT_TRUE(ZoomBasF->isVisible());
            const QPointer<TZoomBasF> zoom = ZoomBasF;
            fazer(zoom);
            if (zoom)
                zoom->Close();
        });
    }
    static QString PastaDoPrograma()
    {
        return QDir(QCoreApplication::applicationDirPath()).canonicalPath();
    }

    TPastaDeImagens pasta;
    bool errosEsperados = false;
    int dialogos = 0;
    QString titulo, filtro, inicio;
};

} // namespace

TEST_F(TImgBasFrTest, Layout)
{
    auto *fr = Por<TImgBasFr>();
    fr->ToolBar2->Ajustar();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TImgBasFr")));
    EXPECT_EQ(fr->size(), QSize(178, 195));
    EXPECT_EQ(fr->Panel1->GetBevel(), TPanel::bvLowered);
    EXPECT_EQ(fr->Panel1->GetCaption(), QStringLiteral(" "));
    EXPECT_EQ(fr->PaintBox1->size(), QSize(176, 155));
    EXPECT_EQ(fr->ToolBar2->height(), 25);
    EXPECT_EQ(fr->ToolBar2->frameWidth(), 0);
    EXPECT_EQ(fr->ToolButton2->x(), 0);
    EXPECT_EQ(fr->ToolButton1->x(), 23);
    EXPECT_EQ(fr->ToolButton3->x(), 46);
}

TEST_F(TImgBasFrTest, TheThreeActionsAndTheirPictures)
{
    TImageList normais, apagadas;
    SisD().ImageList16 = &normais;
    SisD().DisImageList16 = &apagadas;
    const auto devolver = qScopeGuard([] { SisD().ImageList16 = SisD().DisImageList16 = nullptr; });
    auto *fr = Por<TImgBasFr>();
    EXPECT_EQ(fr->ActionList1->GetImages(), &normais);
    EXPECT_EQ(fr->ToolBar2->GetImages(), &normais);
    EXPECT_EQ(fr->ToolBar2->GetDisabledImages(), &apagadas);
    EXPECT_EQ(fr->ToolButton2->GetAction(), fr->ZoomAction);
    EXPECT_EQ(fr->ToolButton1->GetAction(), fr->LocalizarAction);
    EXPECT_EQ(fr->ToolButton3->GetAction(), fr->LimparAction);
    EXPECT_EQ(fr->LocalizarAction->GetCaption(), QStringLiteral(" "));
    EXPECT_EQ(fr->LocalizarAction->GetHint(), QStringLiteral("Localizar imagem"));
    EXPECT_EQ(fr->LocalizarAction->GetImageIndex(), 18);
    EXPECT_EQ(fr->LimparAction->GetCaption(), QStringLiteral(" "));
    EXPECT_EQ(fr->LimparAction->GetHint(), QStringLiteral("Limpar imagem"));
    EXPECT_EQ(fr->LimparAction->GetImageIndex(), 16);
    EXPECT_EQ(fr->ZoomAction->GetCaption(), QStringLiteral("Visualizar"));
    EXPECT_EQ(fr->ZoomAction->GetHint(), QStringLiteral("Tamanho original"));
    EXPECT_EQ(fr->ZoomAction->GetImageIndex(), 1);
    delete fr;
}

TEST_F(TImgBasFrTest, StartsEmptyAndWhite)
{
    auto *fr = Mostrado<TImgBasFr>();
    EXPECT_TRUE(fr->ArquivoImagem.isEmpty());
    EXPECT_EQ(fr->GetValor(), Variant(u""));
    EXPECT_TRUE(fr->GetValor().EhTexto());
    EXPECT_EQ(fr->SQLString(), QStringLiteral("''"));
    EXPECT_TRUE(Branca(fr));
}

TEST_F(TImgBasFrTest, TheValueIsTheTrimmedPathAndShownAtOnce)
{
    auto *fr = Mostrado<TImgBasFr>();
    const QString foto = Foto();
    fr->SetValor(QStringLiteral("  ") + foto + QStringLiteral(" "));
    EXPECT_EQ(fr->GetValor(), Variant(foto));
    EXPECT_TRUE(MostraAFoto(fr));
    fr->SetValor(Null);
    EXPECT_EQ(fr->GetValor(), Variant(u""));
    EXPECT_TRUE(Branca(fr));
    fr->ArquivoImagem = QStringLiteral("d'água.jpg");
    EXPECT_EQ(fr->SQLString(), QStringLiteral("'d''água.jpg'"));
}

TEST_F(TImgBasFrTest, AnUpperCaseExtensionIsDrawn)
{
    auto *fr = Mostrado<TImgBasFr>();
    fr->SetValor(Foto(QStringLiteral("PHOTO.JPG")));
    EXPECT_TRUE(MostraAFoto(fr));
    fr->SetValor(Null);
    fr->SetValor(Foto(QStringLiteral("outra.JpEg")));
    EXPECT_TRUE(MostraAFoto(fr));
}

TEST_F(TImgBasFrTest, BitmapsIconsAndMetafilesAreDrawnToo)
{
    auto *fr = Mostrado<TImgBasFr>();
    const QImage metades = TPastaDeImagens::Metades({200, 100}, Qt::red, Qt::blue);
    fr->SetValor(pasta.Gravar(QStringLiteral("x.bmp"), metades, "bmp"));
    EXPECT_TRUE(MostraAFoto(fr));
    fr->SetValor(pasta.Gravar(QStringLiteral("x.ico"), metades, "ico"));
    EXPECT_TRUE(MostraAFoto(fr));
    TGravadorWmf w;
    w.Janela(0, 0, 200, 100);
    w.Pena(TGravadorWmf::SemContorno, 0, 0);
    w.Pincel(0x0000FF);
    w.Retangulo(0, 0, 100, 100);
    w.Pincel(0xFF0000);
    w.Retangulo(100, 0, 200, 100);
    fr->SetValor(pasta.Gravar(QStringLiteral("x.wmf"), w.Arquivo()));
    EXPECT_TRUE(MostraAFoto(fr));
}

TEST_F(TImgBasFrTest, AGifStaysWhiteAndIsStillTheValue)
{
    auto *fr = Mostrado<TImgBasFr>();
    const QString gif = pasta.Gravar(QStringLiteral("x.gif"), TPastaDeImagens::Bytes(Foto()));
    fr->SetValor(Foto());
    fr->SetValor(gif);
    EXPECT_TRUE(Branca(fr));
    EXPECT_EQ(fr->GetValor(), Variant(gif));
    Girar();
    EXPECT_TRUE(fr->ZoomAction->GetEnabled()) << "the file exists";
}

TEST_F(TImgBasFrTest, AMissingFileIsWhiteAndCannotBeZoomed)
{
    auto *fr = Mostrado<TImgBasFr>();
    const QString foto = Foto();
    fr->SetValor(foto);
    Girar();
    EXPECT_TRUE(fr->ZoomAction->GetEnabled());
    EXPECT_TRUE(fr->ToolButton2->isEnabled());
    fr->SetValor(pasta.Caminho(QStringLiteral("nada.jpg")));
    Girar();
    EXPECT_TRUE(Branca(fr));
    EXPECT_FALSE(fr->ZoomAction->GetEnabled());
    EXPECT_FALSE(fr->ToolButton2->isEnabled());
    fr->SetValor(foto);
    Girar();
    ASSERT_TRUE(QFile::remove(foto));
    fr->PaintBox1->repaint();
    Girar();
    EXPECT_TRUE(Branca(fr)) << "a file that goes away is gone at the next repaint";
    EXPECT_FALSE(fr->ZoomAction->GetEnabled());
}

TEST_F(TImgBasFrTest, AFolderIsNoFile)
{
    auto *fr = Mostrado<TImgBasFr>();
    const QString dir = pasta.Caminho(QStringLiteral("fotos.jpg"));
    ASSERT_TRUE(QDir().mkdir(dir));
    fr->SetValor(dir);
    Girar();
    EXPECT_TRUE(Branca(fr));
    EXPECT_FALSE(fr->ZoomAction->GetEnabled());
}

TEST_F(TImgBasFrTest, TheUpdateOfTheFindActionWritesTheZoomActionOnlyWhenItChanges)
{
    auto *fr = Mostrado<TImgBasFr>();
    fr->SetValor(Foto());
    Girar();
    int mudancas = 0;
    QObject::connect(fr->ZoomAction, &QAction::changed, fr, [&] { ++mudancas; });
    fr->ZoomAction->Update();
    fr->LocalizarAction->Update();
    EXPECT_EQ(mudancas, 0);
    fr->ArquivoImagem.clear();
    fr->ZoomAction->Update();
    EXPECT_TRUE(fr->ZoomAction->GetEnabled()) << "the zoom has no update of its own";
    fr->LocalizarAction->Update();
    EXPECT_EQ(mudancas, 1);
    EXPECT_FALSE(fr->ZoomAction->GetEnabled());
    EXPECT_TRUE(fr->LocalizarAction->GetEnabled());
}

TEST_F(TImgBasFrTest, ApagarCanvasIsWhiteUntilTheNextRepaint)
{
    auto *fr = Mostrado<TImgBasFr>();
    fr->SetValor(Foto());
    fr->ApagarCanvas();
    EXPECT_TRUE(Branca(fr));
    fr->PaintBox1->repaint();
    EXPECT_TRUE(MostraAFoto(fr));
    fr->ApagarCanvas();
    fr->DesenharCanvas();
    EXPECT_TRUE(MostraAFoto(fr));
}

TEST_F(TImgBasFrTest, RepaintsDoNotReadTheFileAgain)
{
    auto *fr = Mostrado<TContadaFr>();
    fr->SetValor(Foto());
    EXPECT_EQ(fr->leituras, 1);
    for (int i = 0; i < 5; ++i)
        fr->PaintBox1->repaint();
    fr->SetValor(fr->GetValor());
    EXPECT_EQ(fr->leituras, 1);
    EXPECT_TRUE(MostraAFoto(fr));
    fr->resize(200, 205);
    QCoreApplication::processEvents();
    EXPECT_EQ(fr->leituras, 2) << "once more for the new size";
    EXPECT_TRUE(MostraAFoto(fr));
}

TEST_F(TImgBasFrTest, AFileChangedOnDiskIsSeenAtTheNextRepaint)
{
    auto *fr = Mostrado<TContadaFr>();
    const QString foto =
        pasta.Gravar(QStringLiteral("x.bmp"), TPastaDeImagens::Lisa({20, 20}, Qt::red), "bmp");
    Assentar();
    fr->SetValor(foto);
    EXPECT_EQ(NoMeio(fr), QColor(Qt::red));
    const qint64 tamanho = QFileInfo(foto).size();
    pasta.Gravar(QStringLiteral("x.bmp"), TPastaDeImagens::Lisa({20, 20}, Qt::green), "bmp");
    ASSERT_EQ(QFileInfo(foto).size(), tamanho);
    fr->PaintBox1->repaint();
    EXPECT_EQ(NoMeio(fr), QColor(Qt::green));
    // Faster than the file system's clock ticks.
    for (const QColor cor : {QColor(Qt::blue), QColor(Qt::red), QColor(Qt::cyan)}) {
        pasta.Gravar(QStringLiteral("x.bmp"), TPastaDeImagens::Lisa({20, 20}, cor), "bmp");
        fr->PaintBox1->repaint();
        ASSERT_EQ(NoMeio(fr), cor);
    }
}

TEST_F(TImgBasFrTest, ABoxThatNobodySeesReadsNothing)
{
    auto *fr = Por<TContadaFr>();
    fr->SetValor(Foto());
    EXPECT_EQ(fr->leituras, 0);
    Mostrar();
    EXPECT_TRUE(MostraAFoto(fr));
    EXPECT_EQ(fr->leituras, 1);
}

TEST_F(TImgBasFrTest, ADamagedFileReachesTheCallerOfTheSetterOnceAndLeavesTheBoxWhite)
{
    auto *fr = Mostrado<TContadaFr>();
    fr->SetValor(Foto());
    const QString ruim = Danificada();
    QString mensagem;
    try {
        fr->SetValor(ruim);
    } catch (const EImagemInvalida &e) {
        mensagem = e.Mensagem();
    }
    EXPECT_TRUE(mensagem.contains(QStringLiteral("danificado"))) << qPrintable(mensagem);
    EXPECT_TRUE(mensagem.contains(ruim)) << "it names the file";
    EXPECT_EQ(fr->GetValor(), Variant(ruim));
    EXPECT_TRUE(Branca(fr));
    const int leituras = fr->leituras;
    for (int i = 0; i < 3; ++i) {
        fr->PaintBox1->repaint();
        Girar();
    }
    EXPECT_NO_THROW(fr->SetValor(ruim)) << "told already";
    EXPECT_EQ(fr->leituras, leituras);
    EXPECT_TRUE(Branca(fr));
    EXPECT_EQ(erros, QStringList());
    fr->SetValor(Null);
    EXPECT_THROW(fr->SetValor(ruim), EImagemInvalida) << "met again after another value";
}

TEST_F(TImgBasFrTest, AFileDamagedWhileItIsShownIsReportedOncePerVersionAndTheScreenGoesOn)
{
    errosEsperados = true;
    auto *fr = Mostrado<TImgBasFr>();
    const QString foto = Foto();
    fr->SetValor(foto);
    pasta.Gravar(QStringLiteral("foto.jpg"), QByteArray("cortada"));
    Assentar();
    for (int i = 0; i < 4; ++i) {
        fr->PaintBox1->repaint();
        Girar();
    }
    ASSERT_EQ(erros.size(), 1);
    EXPECT_TRUE(erros[0].contains(foto));
    EXPECT_TRUE(Branca(fr));
    pasta.Gravar(QStringLiteral("foto.jpg"), QByteArray("cortada outra vez"));
    Assentar();
    for (int i = 0; i < 4; ++i) {
        fr->PaintBox1->repaint();
        Girar();
    }
    EXPECT_EQ(erros.size(), 2) << "another version of it";
    Foto();
    fr->PaintBox1->repaint();
    EXPECT_TRUE(MostraAFoto(fr)) << "mended";
    EXPECT_EQ(erros.size(), 2);
}

TEST_F(TImgBasFrTest, AFileJustDamagedIsReportedOnceHoweverFastItIsRepainted)
{
    errosEsperados = true;
    auto *fr = Mostrado<TImgBasFr>();
    fr->SetValor(Foto());
    pasta.Gravar(QStringLiteral("foto.jpg"), QByteArray("cortada"));
    for (int i = 0; i < 5; ++i)
        fr->PaintBox1->repaint();
    Girar();
    EXPECT_EQ(erros.size(), 1);
}

TEST_F(TImgBasFrTest, ADamagedFileBehindAHiddenPageIsReportedWhenItComesToBeSeen)
{
    errosEsperados = true;
    auto *fr = Por<TImgBasFr>();
    EXPECT_NO_THROW(fr->SetValor(Danificada()));
    EXPECT_EQ(erros, QStringList());
    Mostrar();
    Girar();
    EXPECT_EQ(erros.size(), 1);
}

TEST_F(TImgBasFrTest, TheRowOfTheTableShowsItsPictureAndStartsNoAlteration)
{
    const QString foto = Foto();
    auto *fr = Preso({foto, QString()});
    EXPECT_TRUE(MostraAFoto(fr));
    tabela->Next();
    EXPECT_EQ(fr->GetValor(), Variant(u""));
    EXPECT_TRUE(Branca(fr));
    tabela->Prior();
    EXPECT_TRUE(MostraAFoto(fr));
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TImgBasFrTest, FindingAFileStartsAnAlterationAndShowsIt)
{
    auto *fr = Preso({QString()});
    const QString foto = Foto();
    Escolher(foto);
    Clicar(fr->ToolButton1);
    EXPECT_EQ(dialogos, 1);
    EXPECT_EQ(titulo, QStringLiteral("Escolha a imagem"));
    for (const char *tipo : {"*.jpg", "*.jpeg", "*.bmp", "*.ico", "*.wmf"})
        EXPECT_TRUE(filtro.contains(QLatin1String(tipo))) << tipo;
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(fr->GetValor(), Variant(foto));
    EXPECT_TRUE(MostraAFoto(fr));
    EXPECT_EQ(QDir::current().canonicalPath(), PastaDoPrograma());
    EXPECT_TRUE(SisD().OpenDialog.Filter.isEmpty()) << "the dialog is shared";
    Clicar(fr->ToolButton1);
    EXPECT_EQ(inicio, foto) << "it opens on the file that is shown";
    EXPECT_EQ(tela.pedidos, 1);
}

TEST_F(TImgBasFrTest, CancellingTheFileDialogChangesNothingButTheCurrentDirectory)
{
    const QString foto = Foto();
    auto *fr = Preso({foto});
    QDir::setCurrent(QDir::rootPath());
    Escolher(QString());
    Clicar(fr->ToolButton1);
    EXPECT_EQ(dialogos, 1);
    EXPECT_EQ(fr->GetValor(), Variant(foto));
    EXPECT_TRUE(MostraAFoto(fr));
    EXPECT_EQ(tela.pedidos, 0);
    EXPECT_EQ(tabela->Status, TStatus::Ocioso);
    EXPECT_EQ(QDir::current().canonicalPath(), PastaDoPrograma());
}

TEST_F(TImgBasFrTest, ADamagedPickIsReportedEachTimeAndTheCurrentDirectoryIsBack)
{
    errosEsperados = true;
    auto *fr = Preso({QString()});
    const QString ruim = Danificada();
    Escolher(ruim);
    for (int vezes = 1; vezes <= 2; ++vezes) {
        Clicar(fr->ToolButton1);
        EXPECT_EQ(erros.size(), vezes);
        EXPECT_EQ(QDir::current().canonicalPath(), PastaDoPrograma());
    }
    EXPECT_EQ(fr->GetValor(), Variant(ruim));
    EXPECT_TRUE(Branca(fr));
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
}

TEST_F(TImgBasFrTest, APathThatTheDatabaseCannotHoldIsRefusedBeforeAnythingChanges)
{
    const QString foto = Foto();
    auto *fr = Preso({foto});
    Escolher(Foto(QStringLiteral("praça–nova.jpg")));
    Clicar(fr->ToolButton1);
    ASSERT_EQ(avisos.size(), 1);
    EXPECT_TRUE(avisos[0].contains(QStringLiteral("O caractere \"–\" não pode ser gravado")));
    EXPECT_TRUE(avisos[0].contains(QStringLiteral("praça–nova.jpg")));
    EXPECT_EQ(fr->GetValor(), Variant(foto));
    EXPECT_EQ(tela.pedidos, 0);
    EXPECT_EQ(QDir::current().canonicalPath(), PastaDoPrograma());
    const QString acentos = Foto(QStringLiteral("praça São João.jpg"));
    Escolher(acentos);
    Clicar(fr->ToolButton1);
    EXPECT_EQ(avisos.size(), 1);
    EXPECT_EQ(fr->GetValor(), Variant(acentos));
    EXPECT_TRUE(MostraAFoto(fr));
    banco->Executar(QStringLiteral("update testes set descr=") + fr->SQLString());
    EXPECT_EQ(banco->Valor(QStringLiteral("select descr from testes")), Variant(acentos));
}

TEST_F(TImgBasFrTest, APathLongerThanItsColumnIsRefused)
{
    auto *fr = Preso({QString()}, "letra");
    Escolher(Foto());
    Clicar(fr->ToolButton1);
    ASSERT_EQ(avisos.size(), 1);
    EXPECT_TRUE(avisos[0].contains(QStringLiteral("Foto guarda no máximo 1")))
        << qPrintable(avisos[0]);
    EXPECT_EQ(tela.pedidos, 0);
    EXPECT_EQ(fr->GetValor(), Variant(u""));
    Escolher(QStringLiteral("x"));
    Clicar(fr->ToolButton1);
    EXPECT_EQ(avisos.size(), 1) << "one that fills it is taken";
    EXPECT_EQ(fr->GetValor(), Variant(u"x"));
}

TEST_F(TImgBasFrTest, WhereTheAlterationIsRefusedTheStoredPictureStays)
{
    const QString foto = Foto();
    auto *fr = Preso({foto});
    tela.recusa = true;
    Escolher(Foto(QStringLiteral("outra.jpg")));
    Clicar(fr->ToolButton1);
    EXPECT_EQ(avisos, QStringList(QStringLiteral("ocupado")));
    EXPECT_EQ(fr->GetValor(), Variant(foto));
    Clicar(fr->ToolButton3);
    EXPECT_EQ(avisos.size(), 2);
    EXPECT_EQ(fr->GetValor(), Variant(foto));
    EXPECT_TRUE(MostraAFoto(fr));
}

TEST_F(TImgBasFrTest, ClearingStartsAnAlterationAndEmptiesTheBox)
{
    auto *fr = Preso({Foto()});
    Clicar(fr->ToolButton3);
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(fr->GetValor(), Variant(u""));
    EXPECT_TRUE(Branca(fr));
    EXPECT_FALSE(fr->ZoomAction->GetEnabled());
}

TEST_F(TImgBasFrTest, AScreenWithoutRecordsInsertsOneWithThePickedFile)
{
    auto *fr = Preso({});
    const QString foto = Foto();
    Escolher(foto);
    Clicar(fr->ToolButton1);
    EXPECT_EQ(tabela->Status, TStatus::Inserindo);
    EXPECT_EQ(fr->GetValor(), Variant(foto));
    EXPECT_TRUE(MostraAFoto(fr));
}

TEST_F(TImgBasFrTest, ZerarEmptiesTheValuePutsTheRecordIntoEditAndPaintsWhite)
{
    auto *fr = Preso({Foto()});
    fr->Frases.SetObjeto(0, 1);
    fr->Zerar();
    EXPECT_EQ(fr->Frases.Objeto(0), 0);
    EXPECT_EQ(fr->GetValor(), Variant(u""));
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_TRUE(Branca(fr));
}

TEST_F(TImgBasFrTest, ZerarEmptiesAlsoWhereTheActionIsOffOrTheAlterationRefused)
{
    const QString foto = Foto();
    auto *fr = Preso({foto});
    fr->LimparAction->SetEnabled(false);
    fr->Zerar();
    EXPECT_EQ(fr->GetValor(), Variant(u""));
    EXPECT_EQ(tela.pedidos, 0);
    fr->LimparAction->SetEnabled(true);
    fr->SetValor(foto);
    tela.recusa = true;
    fr->Zerar();
    EXPECT_EQ(fr->GetValor(), Variant(u""));
    EXPECT_EQ(tela.pedidos, 1);
}

TEST_F(TImgBasFrTest, AnInsertionEmptiesTheBoxWithoutAskingForAnother)
{
    auto *fr = Preso({Foto()});
    tabela->InsIni();
    EXPECT_EQ(tabela->Status, TStatus::Inserindo);
    EXPECT_EQ(fr->GetValor(), Variant(u""));
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TImgBasFrTest, WithoutATableTheActionsWorkToo)
{
    auto *fr = Mostrado<TImgBasFr>();
    const QString foto = Foto();
    Escolher(foto);
    Clicar(fr->ToolButton1);
    EXPECT_TRUE(MostraAFoto(fr));
    Clicar(fr->ToolButton3);
    EXPECT_TRUE(Branca(fr));
    EXPECT_EQ(fr->FraseRef(), QString());
}

TEST_F(TImgBasFrTest, AFrameDestroyedInsideTheFileDialogOrTheAlterationGoesQuietly)
{
    QPointer<TContadaFr> fr = Preso({QString()});
    SisD().OpenDialog.AoExecutar = [&](TOpenDialog &d, QWidget *) {
        delete fr.data();
        d.FileName = QStringLiteral("x.jpg");
        return true;
    };
    fr->LocalizarAction->Execute();
    EXPECT_TRUE(fr.isNull());
    EXPECT_EQ(QDir::current().canonicalPath(), PastaDoPrograma());
    QPointer<TImgBasFr> outro = Por<TImgBasFr>();
    Prender(outro, "descr", QStringLiteral("Foto"));
    outro->show();
    tela.antesDeAtivar = [&] { delete outro.data(); };
    outro->LimparAction->Execute();
    EXPECT_TRUE(outro.isNull());
}

TEST_F(TImgBasFrTest, TheZoomShowsThePictureInItsNaturalSizeAndIsGoneAfterwards)
{
    auto *fr = Mostrado<TImgBasFr>();
    fr->SetValor(Foto());
    Girar();
    bool visto = false;
    NoZoom([&](TZoomBasF *zoom) {
        visto = true;
        EXPECT_TRUE(zoom->EhModal());
        EXPECT_EQ(zoom->parentWidget(), fr);
        EXPECT_EQ(zoom->Image1->pixmap().size(), QSize(400, 200));
    });
    Clicar(fr->ToolButton2);
    EXPECT_TRUE(visto);
    EXPECT_EQ(ZoomBasF, nullptr);
    EXPECT_TRUE(fr->findChildren<TZoomBasF *>().isEmpty());
}

TEST_F(TImgBasFrTest, ZoomingADamagedOrUnknownFileIsReportedAndLeavesNoForm)
{
    errosEsperados = true;
    auto *fr = Mostrado<TImgBasFr>();
    EXPECT_THROW(fr->SetValor(Danificada()), EImagemInvalida);
    Girar();
    for (int vezes = 1; vezes <= 2; ++vezes) {
        Clicar(fr->ToolButton2);
        EXPECT_EQ(erros.size(), vezes) << "asked for again, told again";
    }
    fr->SetValor(pasta.Gravar(QStringLiteral("x.gif"), QByteArray("GIF89a")));
    Girar();
    Clicar(fr->ToolButton2);
    EXPECT_EQ(erros.size(), 3);
    EXPECT_EQ(ZoomBasF, nullptr);
    EXPECT_TRUE(fr->findChildren<TZoomBasF *>().isEmpty());
}

TEST_F(TImgBasFrTest, AFrameDestroyedWhileItsZoomIsOpenTakesItAlong)
{
    QPointer<TImgBasFr> fr = Mostrado<TImgBasFr>();
    fr->SetValor(Foto());
    Girar();
    NoZoom([&](TZoomBasF *) { delete fr.data(); });
    fr->ZoomAction->Execute();
    EXPECT_TRUE(fr.isNull());
    EXPECT_EQ(ZoomBasF, nullptr);
}

#include "TImgBasFr_test.moc"
