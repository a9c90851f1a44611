#include "forms/TelasDeTeste.h"
#include "input/UDescrReduzLabeledEditTextoBasFr.h"
#include "input/UMemoBasFr.h"
#include "platform/toolkit/TMemo.h"

#include <QClipboard>

namespace ficha::testes
{

/** A screen with every input that takes free text. */
class TTextosF : public TTabLinearBasF
{
public:
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("Textos"); }

    QList<QWidget *> Edits() const { return {DescrFr->LabeledEdit1, ReduzFr->LabeledEdit1, Obs()}; }
    QWidget *Obs() const { return ObsFr->Memo1; }

    TNumEditBRCodBasFr *CodFr = nullptr;
    TLabeledEditTextoBasFr *DescrFr = nullptr;
    TDescrReduzLabeledEditTextoBasFr *ReduzFr = nullptr;
    TMemoBasFr *ObsFr = nullptr;

protected:
    void FormCreate(QObject *sender) override
    {
        CodFr = Criar<TNumEditBRCodBasFr>(CamposTabSheet);
        CodFr->move(16, 8);
        DescrFr = Criar<TLabeledEditTextoBasFr>(CamposTabSheet);
        DescrFr->move(16, 64);
        DescrFr->Tag = 1;
        DescrFr->NaoRepetir = true;
        ReduzFr = Criar<TDescrReduzLabeledEditTextoBasFr>(CamposTabSheet);
        ReduzFr->move(16, 120);
        ObsFr = Criar<TMemoBasFr>(CamposTabSheet);
        ObsFr->move(16, 176);
        SetSQLText(QStringLiteral("select * from textos order by textos_cod"));
        TTabLinearBasF::FormCreate(sender);
    }
    void PrepararTab() override
    {
        Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("textos"));
        Tab->PegarCampoChave(SQLQuery1->FieldByName("textos_cod"), 60, CodFr);
        Tab->PegarCampo(SQLQuery1->FieldByName("descr"), 200, DescrFr);
        Tab->PegarCampo(SQLQuery1->FieldByName("reduz"), 200, ReduzFr);
        Tab->PegarCampo(SQLQuery1->FieldByName("obs"), 200, ObsFr);
    }
    void AntesInserir() override
    {
        SQLInserir = QStringLiteral("insert into textos values (") + StringProxCod() + u',' +
                     DescrFr->SQLString() + u',' + ReduzFr->SQLString() + u',' +
                     ObsFr->SQLString() + u')';
        SQLUltimoInserido = QStringLiteral("select max(textos_cod) from textos");
    }
    void AntesAlterar() override
    {
        SQLAlterar = QStringLiteral("update textos set descr=") + DescrFr->SQLString() +
                     QStringLiteral(", reduz=") + ReduzFr->SQLString() + QStringLiteral(", obs=") +
                     ObsFr->SQLString();
    }
};

class TTextosHostisTest : public TTelasTest, public testing::WithParamInterface<QString>
{
protected:
    void SetUp() override
    {
        banco.Executar(
            QStringLiteral("create table textos (textos_cod integer not null primary key, "
                           "descr varchar(12000), reduz varchar(12000), obs blob sub_type text)"));
        banco.Executar(QStringLiteral("create generator textos_cod_gen"));
        banco.Executar(
            QStringLiteral("insert into textos values (1, 'primeiro', 'primeiro', 'primeiro')"));
        tela = Abrir<TTextosF>();
    }
    /** Into the input that has the focus: short texts key by key, long ones from the clipboard. */
    void Escrever(const QString &texto)
    {
        Tecla(Qt::Key_A, Qt::ControlModifier);
        if (texto.size() > 200) {
            QApplication::clipboard()->setText(texto);
            Tecla(Qt::Key_V, Qt::ControlModifier);
            return;
        }
        for (const QChar c : texto)
            QTest::sendKeyEvent(QTest::Click, Foco(), Qt::Key(c.toUpper().unicode()), QString(c),
                                Qt::NoModifier);
        Ocioso();
    }
    void EscreverEmTodos(const QString &texto)
    {
        for (QWidget *edit : tela->Edits()) {
            edit->setFocus();
            Ocioso();
            ASSERT_EQ(Foco(), edit);
            Escrever(texto);
        }
    }
    QString NoBanco(const char *coluna, int cod)
    {
        return banco
            .Valor(QStringLiteral("select %1 from textos where textos_cod=%2")
                       .arg(QLatin1String(coluna))
                       .arg(cod))
            .AsString();
    }
    /** What the inputs hold, to be compared with the database after the confirm. */
    QStringList NosInputs() const
    {
        return {tela->DescrFr->AsString(), tela->ReduzFr->AsString(), tela->ObsFr->AsString()};
    }
    QStringList NoBanco(int cod)
    {
        return {NoBanco("descr", cod), NoBanco("reduz", cod), NoBanco("obs", cod)};
    }
    TTextosF *tela = nullptr;
};

TEST_P(TTextosHostisTest, AnInsertAndAnAlterationStoreThemToTheLetter)
{
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    EscreverEmTodos(GetParam());
    QStringList escritos = NosInputs();
    EXPECT_EQ(escritos[0], GetParam());
    EXPECT_EQ(escritos[1], GetParam());
    EXPECT_FALSE(escritos[2].isEmpty());
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(NoBanco(2), escritos);
    EXPECT_EQ(NosInputs(), escritos);
    // The first record gets another text made of the same, since the description may not repeat.
    tela->PageControl1->MudarComoUsuario(0);
    Tecla(Qt::Key_PageUp, Qt::ControlModifier);
    Tecla(Qt::Key_A, Qt::ControlModifier);
    ASSERT_EQ(tela->Tab->Status, TStatus::Alterando);
    EscreverEmTodos(u'1' + GetParam());
    escritos = NosInputs();
    EXPECT_EQ(escritos[0], u'1' + GetParam());
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(NoBanco(1), escritos);
    EXPECT_EQ(Quantos(QStringLiteral("textos")), 2);
    EXPECT_EQ(tela->StringGrid1->GetCell(1, 1), escritos[0]);
}

class TTextosRepetidosTest : public TTextosHostisTest
{
};

TEST_P(TTextosRepetidosTest, TheUniquenessLookUpFindsThem)
{
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    EscreverEmTodos(GetParam());
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(tela->Tab->Status, TStatus::Ocioso);
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    tela->DescrFr->SetFocus();
    Escrever(GetParam());
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(Foco(), tela->DescrFr->LabeledEdit1);
}

/** Texts that have broken programs, with runs of one character of this length. */
QStringList Hostis(int longo)
{
    return {QStringLiteral("O'Brien"),
            QStringLiteral("'; drop table textos; --"),
            QStringLiteral("a;b -- c /* d */ e"),
            QStringLiteral("100% _ \\ \\' \" ` {0} %1 %s"),
            QStringLiteral("''''"),
            QStringLiteral("ÁÉÍÓÚ çãõ ªº§ ÿ"),
            QString(longo, u'x'),
            QString(longo, u'\'')};
}

INSTANTIATE_TEST_SUITE_P(Textos, TTextosHostisTest, testing::ValuesIn(Hostis(10000)),
                         [](const auto &caso) { return std::to_string(caso.index); });
// The trimming functions of the look-up end at 8191 characters.
INSTANTIATE_TEST_SUITE_P(Textos, TTextosRepetidosTest, testing::ValuesIn(Hostis(8000)),
                         [](const auto &caso) { return std::to_string(caso.index); });

// ---- characters that the database's character set does not have ------------------------------

class TForaDoLatin1Test : public TTextosHostisTest
{
protected:
    void ConfereRecusa(const QString &caractere)
    {
        ASSERT_EQ(avisos.size(), 1);
        EXPECT_TRUE(avisos[0].startsWith(QStringLiteral("O caractere \"") + caractere +
                                         QStringLiteral("\" não pode ser gravado")))
            << avisos[0].toStdString();
        avisos.clear();
    }
};

TEST_F(TForaDoLatin1Test, TypedOrPastedTheyAreRefusedAndNothingTypedIsLost)
{
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    EscreverEmTodos(QStringLiteral("bom"));
    for (QWidget *edit : tela->Edits()) {
        edit->setFocus();
        Tecla(Qt::Key_End);
        QTest::sendKeyEvent(QTest::Click, edit, Qt::Key(0x20ac), QStringLiteral("€"),
                            Qt::NoModifier);
        ConfereRecusa(QStringLiteral("€"));
        QApplication::clipboard()->setText(QStringLiteral("dez – vinte"));
        Tecla(Qt::Key_V, Qt::ControlModifier);
        ConfereRecusa(QStringLiteral("–"));
        EXPECT_EQ(Foco(), edit);
    }
    EXPECT_EQ(NosInputs(), QStringList({"bom", "bom", "bom"}));
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(NoBanco(2), QStringList({"bom", "bom", "bom"}));
}

TEST_F(TForaDoLatin1Test, PastedWhileBrowsingTheyChangeNothing)
{
    tela->PageControl1->MudarComoUsuario(1);
    QApplication::clipboard()->setText(QStringLiteral("\u2192"));
    for (QWidget *edit : tela->Edits()) {
        edit->setFocus();
        Tecla(Qt::Key_End);
        Tecla(Qt::Key_V, Qt::ControlModifier);
        ConfereRecusa(QStringLiteral("\u2192"));
        EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso) << "nothing landed";
    }
    EXPECT_EQ(NosInputs(), QStringList({"primeiro", "primeiro", "primeiro"}));
    EXPECT_EQ(NoBanco(1), NosInputs());
}

TEST_F(TForaDoLatin1Test, PutInByTheProgramTheyAreReportedOnceAndNothingIsWritten)
{
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    EscreverEmTodos(QStringLiteral("bom"));
    tela->ReduzFr->LabeledEdit1->setText(QStringLiteral("10 €"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(erros.size(), 1);
    EXPECT_TRUE(erros[0].contains(QStringLiteral("ISO8859_1"))) << erros[0].toStdString();
    erros.clear();
    EXPECT_EQ(Quantos(QStringLiteral("textos")), 1);
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(NosInputs(), QStringList({"bom", "10 €", "bom"}));
    tela->ReduzFr->LabeledEdit1->setText(QStringLiteral("10 euros"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(NoBanco(2), QStringList({"bom", "10 euros", "bom"}));
}

} // namespace ficha::testes
