#include "forms/TelasDeTeste.h"
#include "input/UImgBasFr.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/TPaintBox.h"
#include "support/Imagens.h"
#include "support/Layouts.h"

namespace ficha::testes
{

/** A code, a picture, and a name behind it. */
class TFotosF : public TTabLinearBasF
{
    Q_OBJECT

public:
    using TTabLinearBasF::ConfirmActionExecute;
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("Fotos"); }

    TNumEditBRCodBasFr *CodFr = nullptr;
    TImgBasFr *FotoFr = nullptr;
    TLabeledEditTextoBasFr *NomeFr = nullptr;

protected:
    void FormCreate(QObject *sender) override
    {
        CodFr = Criar<TNumEditBRCodBasFr>(CamposTabSheet);
        CodFr->move(16, 16);
        FotoFr = Criar<TImgBasFr>(CamposTabSheet);
        FotoFr->move(300, 16);
        NomeFr = Criar<TLabeledEditTextoBasFr>(CamposTabSheet);
        NomeFr->move(16, 72);
        NomeFr->LabeledEdit1->SetCaption(QStringLiteral("Nome"));
        NomeFr->AceitaVazio = true;
        NomeFr->Tag = 1;
        SetCaption(QStringLiteral("Cadastro de fotos"));
        SetSQLText(QStringLiteral("select * from fotos order by fotos_cod"));
        TTabLinearBasF::FormCreate(sender);
    }
    void PrepararTab() override
    {
        Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("fotos"));
        Tab->PegarCampoChave(SQLQuery1->FieldByName("fotos_cod"), 60, CodFr);
        Tab->PegarCampo(SQLQuery1->FieldByName("foto"), 100, FotoFr);
        Tab->PegarCampo(SQLQuery1->FieldByName("nome"), 200, NomeFr);
    }
    void AntesInserir() override
    {
        SQLInserir = QStringLiteral("insert into fotos values (") + StringProxCod() + u',' +
                     FotoFr->SQLString() + u',' + NomeFr->SQLString() + u')';
        SQLUltimoInserido = QStringLiteral("select max(fotos_cod) from fotos");
    }
    void AntesAlterar() override
    {
        SQLAlterar = QStringLiteral("update fotos set foto=") + FotoFr->SQLString() +
                     QStringLiteral(", nome=") + NomeFr->SQLString();
    }
};

/** A maintenance screen with a picture, driven as a user does. */
class TImagemNaTelaTest : public TTelasTest
{
protected:
    TImagemNaTelaTest()
    {
        banco.Executar(QStringLiteral("create table fotos (fotos_cod integer not null primary key, "
                                      "foto varchar(200), nome varchar(20))"));
        banco.Executar(QStringLiteral("create generator fotos_cod_gen"));
    }
    ~TImagemNaTelaTest() override { SisD().OpenDialog = TOpenDialog(); }

    void Gravar(int cod, const QString &foto, const QString &nome)
    {
        banco.Executar(
            QStringLiteral("insert into fotos values (%1, '%2', '%3')").arg(cod).arg(foto, nome));
    }
    QString NoBanco(const char *coluna, int cod)
    {
        return banco
            .Valor(QStringLiteral("select %1 from fotos where fotos_cod=%2")
                       .arg(QLatin1String(coluna))
                       .arg(cod))
            .AsString();
    }
    QString Foto(const QString &nome, QColor cor)
    {
        return pasta.Gravar(nome, TPastaDeImagens::Lisa({80, 60}, cor), "jpeg");
    }
    QString Danificada()
    {
        const QString arquivo = pasta.Gravar(QStringLiteral("ruim.jpg"), QByteArray("ruim"));
        QTest::qWait(70);
        return arquivo;
    }
    TFotosF *NosCampos()
    {
        auto *tela = Abrir<TFotosF>();
        tela->PageControl1->MudarComoUsuario(1);
        Ocioso();
        return tela;
    }
    static QColor Mostrada(const TFotosF *tela)
    {
        const TPaintBox *caixa = tela->FotoFr->PaintBox1;
        const QPoint onde = caixa->mapTo(tela->window(), caixa->rect().center());
        return tela->window()->grab().toImage().pixelColor(onde);
    }
    void Escolher(const QString &arquivo)
    {
        SisD().OpenDialog.AoExecutar = [arquivo](TOpenDialog &d, QWidget *) {
            d.FileName = arquivo;
            return true;
        };
    }
    void Clicar(QWidget *botao)
    {
        QTest::mouseClick(botao, Qt::LeftButton);
        Ocioso();
    }

    TPastaDeImagens pasta;
};

TEST_F(TImagemNaTelaTest, APictureIsFoundStoredShownAndCleared)
{
    Gravar(1, QString(), QStringLiteral("um"));
    TFotosF *tela = NosCampos();
    const QString foto = Foto(QStringLiteral("praça.jpg"), Qt::red);
    Escolher(foto);
    Clicar(tela->FotoFr->ToolButton1);
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_TRUE(Parecida(Mostrada(tela), Qt::red));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(NoBanco("foto", 1), foto);
    EXPECT_TRUE(Parecida(Mostrada(tela), Qt::red));
    Retratar(&janela, QStringLiteral("TImgBasFr-na-tela"));
    Clicar(tela->FotoFr->ToolButton3);
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    tela->ConfirmActionExecute(nullptr);
    Ocioso();
    EXPECT_EQ(NoBanco("foto", 1), QString());
}

TEST_F(TImagemNaTelaTest, CancellingBringsTheStoredPictureBack)
{
    Gravar(1, Foto(QStringLiteral("a.jpg"), Qt::red), QStringLiteral("um"));
    TFotosF *tela = NosCampos();
    Escolher(Foto(QStringLiteral("b.jpg"), Qt::blue));
    Clicar(tela->FotoFr->ToolButton1);
    EXPECT_TRUE(Parecida(Mostrada(tela), Qt::blue));
    tela->CancelarAction->Execute();
    Ocioso();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_TRUE(Parecida(Mostrada(tela), Qt::red));
}

TEST_F(TImagemNaTelaTest, AnInsertionOfTheFirstRecordCanBeCancelled)
{
    TFotosF *tela = Abrir<TFotosF>();
    tela->InsAction->Execute();
    Ocioso();
    ASSERT_EQ(tela->Tab->Status, TStatus::Inserindo);
    tela->CancelarAction->Execute();
    Assentar();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso)
        << "emptying the inputs behind it asks for no other insertion";
}

TEST_F(TImagemNaTelaTest, AnInsertionStartsWithAnEmptyPictureAndStoresTheNewOne)
{
    Gravar(1, Foto(QStringLiteral("a.jpg"), Qt::red), QStringLiteral("um"));
    TFotosF *tela = NosCampos();
    tela->InsAction->Execute();
    Ocioso();
    EXPECT_EQ(tela->FotoFr->ArquivoImagem, QString());
    EXPECT_EQ(Mostrada(tela), QColor(Qt::white));
    const QString nova = Foto(QStringLiteral("b.jpg"), Qt::blue);
    Escolher(nova);
    Clicar(tela->FotoFr->ToolButton1);
    tela->ConfirmActionExecute(nullptr);
    Assentar();
    EXPECT_EQ(banco.Valor(QStringLiteral("select foto from fotos where fotos_cod>1")),
              Variant(nova));
}

TEST_F(TImagemNaTelaTest, DeletingTheLastRecordLeavesAnIdleScreen)
{
    Gravar(1, Foto(QStringLiteral("a.jpg"), Qt::red), QStringLiteral("um"));
    TFotosF *tela = NosCampos();
    tela->ExclAction->Execute();
    Assentar();
    perguntas.clear();
    EXPECT_EQ(Quantos(QStringLiteral("fotos")), 0);
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->FotoFr->ArquivoImagem, QString());
}

TEST_F(TImagemNaTelaTest, ADamagedPictureIsToldAndTheWholeRecordIsShownAllTheSame)
{
    Gravar(1, Foto(QStringLiteral("a.jpg"), Qt::red), QStringLiteral("um"));
    Gravar(2, Danificada(), QStringLiteral("dois"));
    Gravar(3, Foto(QStringLiteral("c.jpg"), Qt::blue), QStringLiteral("tres"));
    TFotosF *tela = NosCampos();
    tela->NextAction->trigger();
    Assentar();
    ASSERT_EQ(erros.size(), 1);
    EXPECT_TRUE(erros.takeFirst().contains(QStringLiteral("ruim.jpg")));
    EXPECT_EQ(tela->CodFr->GetValor(), Variant(2));
    EXPECT_EQ(tela->NomeFr->GetValor(), Variant(u"dois")) << "not the name of the record before";
    EXPECT_EQ(Mostrada(tela), QColor(Qt::white));
    EXPECT_EQ(tela->StringGrid1->GetRow(), 2) << "the list stands on the same record";
    tela->NextAction->trigger();
    Assentar();
    EXPECT_EQ(tela->NomeFr->GetValor(), Variant(u"tres"));
    EXPECT_TRUE(Parecida(Mostrada(tela), Qt::blue));
    EXPECT_EQ(erros, QStringList());
}

TEST_F(TImagemNaTelaTest, ARecordWithADamagedPictureIsAlteredAndCancelledLikeAnyOther)
{
    const QString ruim = Danificada();
    Gravar(1, ruim, QStringLiteral("um"));
    TFotosF *tela = NosCampos();
    Assentar();
    ASSERT_EQ(erros.size(), 1);
    erros.clear();
    tela->NomeFr->SetFocus();
    Digitar(QStringLiteral("x"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    Assentar();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_TRUE(NoBanco("nome", 1).contains(u'x'));
    EXPECT_EQ(NoBanco("foto", 1), ruim) << "a picture that cannot be shown is not lost";
    tela->NomeFr->SetFocus();
    Digitar(QStringLiteral("y"));
    tela->CancelarAction->Execute();
    Assentar();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_FALSE(tela->NomeFr->AsString().contains(u'y'));
    EXPECT_EQ(erros, QStringList()) << "told once";
}

TEST_F(TImagemNaTelaTest, MovingInTheListReadsNoPictures)
{
    Gravar(1, Foto(QStringLiteral("a.jpg"), Qt::red), QStringLiteral("um"));
    Gravar(2, Danificada(), QStringLiteral("dois"));
    Gravar(3, Foto(QStringLiteral("c.jpg"), Qt::blue), QStringLiteral("tres"));
    TFotosF *tela = Abrir<TFotosF>();
    tela->StringGrid1->setFocus();
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Down);
    EXPECT_EQ(tela->CodFr->GetValor(), Variant(3));
    EXPECT_EQ(erros, QStringList());
    tela->PageControl1->MudarComoUsuario(1);
    Ocioso();
    EXPECT_TRUE(Parecida(Mostrada(tela), Qt::blue));
}

} // namespace ficha::testes

#include "ImagemNaTela_test.moc"
