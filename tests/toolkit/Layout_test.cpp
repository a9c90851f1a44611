#include "platform/toolkit/Layout.h"

#include "platform/core/Erros.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TFrame.h"
#include "platform/toolkit/TPageControl.h"
#include "support/PastaDeLayouts.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <gmock/gmock.h>

using namespace ficha;
using ficha::testes::TPastaDeLayouts;

namespace
{

class TAvo : public TFrame
{
    Q_OBJECT
public:
    using TFrame::TFrame;
    QLabel *Rotulo = nullptr;
    QLineEdit *Edit = nullptr;

protected:
    void PegarComponentes() override
    {
        TFrame::PegarComponentes();
        Pegar(this, Rotulo, "Rotulo");
        Pegar(this, Edit, "Edit");
    }
};

class TPaiFr : public TAvo
{
    Q_OBJECT
public:
    using TAvo::TAvo;
    QPushButton *Botao = nullptr;

protected:
    void PegarComponentes() override
    {
        TAvo::PegarComponentes();
        Pegar(this, Botao, "Botao");
    }
};

class TFilho : public TPaiFr
{
    Q_OBJECT
public:
    using TPaiFr::TPaiFr;
};

class TCaixa : public TFrame
{
    Q_OBJECT
public:
    using TFrame::TFrame;
    TAvo *Dentro = nullptr;
    QLineEdit *Edit = nullptr;

protected:
    void PegarComponentes() override
    {
        TFrame::PegarComponentes();
        Pegar(this, Dentro, "Dentro");
        Pegar(this, Edit, "Edit");
    }
};

class TSolto : public TFrame
{
    Q_OBJECT
public:
    using TFrame::TFrame;
};

class TAbstrato : public TFrame
{
    Q_OBJECT
public:
    using TFrame::TFrame;
    virtual void Falta() = 0;
};

FICHA_REGISTRAR(TAvo)
FICHA_REGISTRAR(TPaiFr)
FICHA_REGISTRAR(TFilho)
FICHA_REGISTRAR(TCaixa)
FICHA_REGISTRAR(TSolto)
FICHA_REGISTRAR_ABSTRATA(TAbstrato)

const QString avo = QStringLiteral(R"(<class>TAvo</class>
<widget class="QFrame" name="Avo">
 <property name="geometry"><rect><x>0</x><y>0</y><width>200</width><height>80</height></rect></property>
 <widget class="QLabel" name="Rotulo">
  <property name="geometry"><rect><x>5</x><y>3</y><width>60</width><height>14</height></rect></property>
  <property name="text"><string>Nome</string></property>
  <property name="font"><font><family>Arial</family><pointsize>10</pointsize><bold>true</bold></font></property>
  <property name="buddy"><cstring>Edit</cstring></property>
 </widget>
 <widget class="QLineEdit" name="Edit">
  <property name="geometry"><rect><x>5</x><y>18</y><width>120</width><height>21</height></rect></property>
  <property name="maxLength"><number>30</number></property>
  <property name="alignment"><set>Qt::AlignRight|Qt::AlignVCenter</set></property>
  <property name="tag" stdset="0"><number>1</number></property>
 </widget>
</widget>)");

const QString paiFr = QStringLiteral(R"(<class>TPaiFr</class>
<widget class="TAvo" name="PaiFr">
 <widget class="QLabel" name="Rotulo">
  <property name="text"><string>Razão social</string></property>
 </widget>
 <widget class="QPushButton" name="Botao">
  <property name="geometry"><rect><x>130</x><y>18</y><width>25</width><height>21</height></rect></property>
 </widget>
</widget>)");

const QString filho = QStringLiteral(R"(<class>TFilho</class>
<widget class="TPaiFr" name="Filho">
 <property name="geometry"><rect><x>0</x><y>0</y><width>300</width><height>90</height></rect></property>
 <widget class="QPushButton" name="Botao">
  <property name="text"><string>...</string></property>
  <property name="enabled"><bool>false</bool></property>
 </widget>
</widget>)");

class Layout : public testing::Test
{
protected:
    void SetUp() override
    {
        pasta.Escrever(QStringLiteral("TAvo"), avo);
        pasta.Escrever(QStringLiteral("TPaiFr"), paiFr);
        pasta.Escrever(QStringLiteral("TFilho"), filho);
    }

    /** The one fault of a body for a class, without the file name. */
    QString Falha(const QMetaObject &classe, const QString &corpo)
    {
        const QString arquivo = pasta.Escrever(QStringLiteral("Teste"), corpo);
        const QStringList falhas = VerificarLayout(arquivo, classe);
        EXPECT_EQ(falhas.size(), 1) << testing::PrintToString(falhas);
        if (falhas.isEmpty())
            return {};
        EXPECT_TRUE(falhas.first().startsWith(arquivo + QLatin1Char(':')));
        return falhas.first().mid(arquivo.size() + 1);
    }
    QString FalhaNoFilho(const QString &dentro)
    {
        return Falha(
            TFilho::staticMetaObject,
            QStringLiteral("<widget class=\"TPaiFr\" name=\"Filho\">\n%1\n</widget>").arg(dentro));
    }

    TPastaDeLayouts pasta;
};

} // namespace

TEST_F(Layout, ChainIsLoadedFromTheRootClassToTheMostDerived)
{
    std::unique_ptr<TFilho> fr(Criar<TFilho>(nullptr));
    EXPECT_EQ(fr->size(), QSize(300, 90));
    EXPECT_EQ(fr->Rotulo->text(), QStringLiteral("Razão social"));
    EXPECT_EQ(fr->Rotulo->geometry(), QRect(5, 3, 60, 14));
    EXPECT_TRUE(fr->Rotulo->font().bold());
    EXPECT_EQ(fr->Rotulo->buddy(), fr->Edit);
    EXPECT_EQ(fr->Edit->maxLength(), 30);
    EXPECT_EQ(fr->Edit->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(fr->Edit->property("tag").toInt(), 1);
    EXPECT_EQ(fr->Botao->text(), QStringLiteral("..."));
    EXPECT_FALSE(fr->Botao->isEnabled());
    EXPECT_EQ(fr->findChildren<QPushButton *>().size(), 1);
}

TEST_F(Layout, BaseClassIsNotTouchedByWhatItsDescendantsAdd)
{
    std::unique_ptr<TFilho> fr(Criar<TFilho>(nullptr));
    std::unique_ptr<TAvo> base(Criar<TAvo>(nullptr));
    EXPECT_EQ(base->size(), QSize(200, 80));
    EXPECT_EQ(base->Rotulo->text(), QStringLiteral("Nome"));
    EXPECT_EQ(base->findChild<QPushButton *>(), nullptr);
}

TEST_F(Layout, ClassWithoutAFileOfItsOwnHasItsBasesLook)
{
    class TSemArquivo : public TPaiFr
    {
    public:
        using TPaiFr::TPaiFr;
    };
    std::unique_ptr<TSemArquivo> fr(Criar<TSemArquivo>(nullptr));
    EXPECT_EQ(fr->Rotulo->text(), QStringLiteral("Razão social"));
}

TEST_F(Layout, InlineFrameIsMadeByItsClassAndItsChildrenCanBeChangedFromOutside)
{
    pasta.Escrever(QStringLiteral("TCaixa"), QStringLiteral(R"(<class>TCaixa</class>
<widget class="QFrame" name="Caixa">
 <widget class="TAvo" name="Dentro">
  <property name="geometry"><rect><x>10</x><y>20</y><width>200</width><height>80</height></rect></property>
  <widget class="QLabel" name="Rotulo"><property name="text"><string>Cliente</string></property></widget>
 </widget>
 <widget class="QLineEdit" name="Edit"/>
</widget>)"));
    std::unique_ptr<TCaixa> fr(Criar<TCaixa>(nullptr));
    EXPECT_EQ(fr->Dentro->geometry(), QRect(10, 20, 200, 80));
    EXPECT_EQ(fr->Dentro->Rotulo->text(), QStringLiteral("Cliente"));
    EXPECT_EQ(fr->Dentro->Edit->maxLength(), 30);
    EXPECT_NE(fr->Edit, fr->Dentro->Edit) << "the name of the outer frame's own child";
    EXPECT_EQ(fr->Edit->parentWidget(), fr.get());

    std::unique_ptr<TAvo> outro(Criar<TAvo>(nullptr));
    EXPECT_EQ(outro->Rotulo->text(), QStringLiteral("Nome"));
}

TEST_F(Layout, InlineFrameOfAnInlineFrameIsReachedFromTheOutermost)
{
    pasta.Escrever(QStringLiteral("TCaixa"), QStringLiteral(R"(<class>TCaixa</class>
<widget class="QFrame" name="Caixa"><widget class="TAvo" name="Dentro"/><widget class="QLineEdit" name="Edit"/></widget>)"));
    pasta.Escrever(QStringLiteral("TSolto"), QStringLiteral(R"(<class>TSolto</class>
<widget class="QFrame" name="Solto"><widget class="TCaixa" name="Cx">
 <widget class="TAvo" name="Dentro"><widget class="QLineEdit" name="Edit">
  <property name="maxLength"><number>7</number></property></widget></widget></widget></widget>)"));
    std::unique_ptr<TSolto> fr(Criar<TSolto>(nullptr));
    auto *cx = fr->findChild<TCaixa *>(QStringLiteral("Cx"));
    ASSERT_TRUE(cx);
    EXPECT_EQ(cx->Dentro->Edit->maxLength(), 7);
    EXPECT_EQ(cx->Edit->maxLength(), 32767);
}

TEST_F(Layout, NameUnknownInsideAnInlineFrameIsAFault)
{
    EXPECT_THAT(
        FalhaNoFilho(
            QStringLiteral(
                R"(<widget class="TAvo" name="A"><widget class="QLabel" name="Rotulu"/></widget>)"))
            .toStdString(),
        testing::HasSubstr("'Rotulu' não existe em TAvo"));
}

TEST_F(Layout, MisspeltPropertyIsAFaultWithItsLine)
{
    EXPECT_EQ(FalhaNoFilho(
                  QStringLiteral("<widget class=\"QLabel\" name=\"Rotulo\">\n"
                                 "<property name=\"txet\"><string>x</string></property></widget>")),
              QStringLiteral("4: QLabel não tem a propriedade 'txet'"));
}

TEST_F(Layout, WrongClassForAKnownNameIsAFault)
{
    EXPECT_EQ(FalhaNoFilho(QStringLiteral("<widget class=\"QLineEdit\" name=\"Rotulo\"/>")),
              QStringLiteral("3: 'Rotulo' já existe e é de classe 'QLabel', não 'QLineEdit'"));
}

TEST_F(Layout, UnknownClassIsAFault)
{
    EXPECT_EQ(FalhaNoFilho(QStringLiteral("<widget class=\"TNaoHa\" name=\"X\"/>")),
              QStringLiteral("3: a classe 'TNaoHa' de 'X' não está registrada"));
}

TEST_F(Layout, AbstractClassCannotBePlaced)
{
    EXPECT_EQ(FalhaNoFilho(QStringLiteral("<widget class=\"TAbstrato\" name=\"X\"/>")),
              QStringLiteral("3: a classe 'TAbstrato' de 'X' é abstrata"));
}

TEST_F(Layout, MovingAKnownChildIntoAnotherContainerIsAFault)
{
    EXPECT_EQ(FalhaNoFilho(QStringLiteral("<widget class=\"QWidget\" name=\"Novo\">\n"
                                          "<widget class=\"QLabel\" name=\"Rotulo\"/></widget>")),
              QStringLiteral("4: 'Rotulo' está em '(raiz)' e não pode passar para 'Novo'"));
}

TEST_F(Layout, RepeatedBoxLayoutIsAFault)
{
    pasta.Escrever(QStringLiteral("TSolto"), QStringLiteral(R"(<class>TSolto</class>
<widget class="QFrame" name="Solto"><layout class="QVBoxLayout" name="v"/></widget>)"));
    class TDoSolto : public TSolto
    {
    public:
        using TSolto::TSolto;
    };
    QMetaObject derivada = TSolto::staticMetaObject;
    derivada.d.superdata = QMetaObject::SuperData(&TSolto::staticMetaObject);
    EXPECT_EQ(
        Falha(derivada, QStringLiteral("<widget class=\"TSolto\" name=\"S\">\n"
                                       "<layout class=\"QVBoxLayout\" name=\"v\"/></widget>")),
        QStringLiteral("3: '(raiz)' já tem um layout"));
}

TEST_F(Layout, PageCannotBeNestedAgain)
{
    pasta.Escrever(QStringLiteral("TSolto"), QStringLiteral(R"(<class>TSolto</class>
<widget class="QFrame" name="Solto"><widget class="TPageControl" name="P1">
<widget class="TTabSheet" name="Pag"/></widget><widget class="TPageControl" name="P2"/></widget>)"));
    QMetaObject derivada = TSolto::staticMetaObject;
    derivada.d.superdata = QMetaObject::SuperData(&TSolto::staticMetaObject);
    EXPECT_EQ(Falha(derivada, QStringLiteral("<widget class=\"TSolto\" name=\"S\">\n"
                                             "<widget class=\"TPageControl\" name=\"P2\">\n"
                                             "<widget class=\"TTabSheet\" name=\"Pag\"/>"
                                             "</widget></widget>")),
              QStringLiteral("4: 'Pag' está em 'P1' e não pode passar para 'P2'"));
}

TEST_F(Layout, ValueOfTheWrongKindIsAFault)
{
    EXPECT_THAT(FalhaNoFilho(QStringLiteral(
                                 R"(<widget class="QLineEdit" name="Edit">
<property name="maxLength"><string>30</string></property></widget>)"))
                    .toStdString(),
                testing::HasSubstr("QLineEdit.maxLength: <string> não serve para o tipo int"));
    EXPECT_THAT(FalhaNoFilho(QStringLiteral(
                                 R"(<widget class="QLineEdit" name="Edit">
<property name="alignment"><set>Qt::AlignRigth</set></property></widget>)"))
                    .toStdString(),
                testing::HasSubstr("'AlignRigth' não é de"));
}

TEST_F(Layout, FileOfAnotherClassIsAFault)
{
    EXPECT_THAT(Falha(TFilho::staticMetaObject, avo).toStdString(),
                testing::HasSubstr("o layout é de 'TAvo', não de 'TFilho'"));
}

TEST_F(Layout, ConnectionsAreRefused)
{
    EXPECT_THAT(
        Falha(TFilho::staticMetaObject,
              QStringLiteral("<widget class=\"TPaiFr\" name=\"F\"/><connections><connection/>"
                             "</connections>"))
            .toStdString(),
        testing::HasSubstr("<connections> não se usa"));
}

TEST_F(Layout, BrokenXmlIsAFaultWithItsLine)
{
    const QString falha = Falha(TFilho::staticMetaObject,
                                QStringLiteral("<widget class=\"TPaiFr\" name=\"F\">\n</wodget>"));
    EXPECT_TRUE(falha.startsWith(QStringLiteral("3: XML mal formado"))) << falha.toStdString();
}

TEST_F(Layout, AllFaultsOfAFileAreFound)
{
    const QString arquivo = pasta.Escrever(
        QStringLiteral("Teste"), QStringLiteral("<widget class=\"TPaiFr\" name=\"F\">"
                                                "<property name=\"a\"><string/></property>\n"
                                                "<widget class=\"TNada\" name=\"n\"/></widget>"));
    EXPECT_EQ(VerificarLayout(arquivo, TFilho::staticMetaObject).size(), 2);
}

TEST_F(Layout, FaultyLayoutRaisesBeforeAnythingIsBuilt)
{
    pasta.Escrever(QStringLiteral("TSolto"), QStringLiteral(R"(<class>TSolto</class>
<widget class="QFrame" name="Solto"><widget class="QLabel" name="L"/>
<widget class="QLabel" name="M"><property name="nada"><string/></property></widget></widget>)"));
    QWidget dono;
    EXPECT_THROW(Criar<TSolto>(&dono), ELayoutError);
    EXPECT_TRUE(dono.children().isEmpty());
}

TEST_F(Layout, FrameInsideItselfIsRefused)
{
    pasta.Escrever(QStringLiteral("TSolto"), QStringLiteral(R"(<class>TSolto</class>
<widget class="QFrame" name="Solto"><widget class="TSolto" name="Eu"/></widget>)"));
    EXPECT_THROW(Criar<TSolto>(nullptr), ELayoutError);
}

TEST_F(Layout, MissingAndMistypedComponentsAreNamed)
{
    std::unique_ptr<TAvo> fr(Criar<TAvo>(nullptr));
    QPushButton *botao = nullptr;
    try {
        Pegar(fr.get(), botao, "NaoHa");
        FAIL();
    } catch (const ELayoutError &e) {
        EXPECT_EQ(e.Mensagem(), QStringLiteral("TAvo não tem o componente 'NaoHa'"));
    }
    try {
        Pegar(fr.get(), botao, "Edit");
        FAIL();
    } catch (const ELayoutError &e) {
        EXPECT_EQ(e.Mensagem(),
                  QStringLiteral("'Edit' de TAvo é de classe QLineEdit, não QPushButton"));
    }
}

TEST_F(Layout, ActionsAndListsAreMadeAndInherited)
{
    pasta.Escrever(QStringLiteral("TAvo"),
                   QString(avo).replace(QStringLiteral("<widget class=\"QLabel\""),
                                        QStringLiteral(R"(<actiongroup name="ActionList1">
<action name="InsAction"><property name="caption"><string>Incluir</string></property>
<property name="hint"><string>Inserir</string></property>
<property name="shortcut"><string>Ctrl+Alt+I</string></property>
<property name="imageIndex"><number>45</number></property></action></actiongroup>
<widget class="QLabel")")));
    pasta.Escrever(
        QStringLiteral("TPaiFr"),
        QString(paiFr).replace(QStringLiteral("<widget class=\"QPushButton\" name=\"Botao\">"),
                               QStringLiteral(R"(<action name="InsAction">
<property name="imageIndex"><number>9</number></property></action>
<action name="NovaAction"><property name="caption"><string>Nova</string></property></action>
<widget class="TBitBtn" name="BitBtn"><property name="action"><cstring>NovaAction</cstring></property></widget>
<widget class="QPushButton" name="Botao">)")));
    std::unique_ptr<TPaiFr> fr(Criar<TPaiFr>(nullptr));
    TActionList *lista = nullptr;
    TAction *ins = nullptr, *nova = nullptr;
    TBitBtn *botao = nullptr;
    Pegar(fr.get(), lista, "ActionList1");
    Pegar(fr.get(), ins, "InsAction");
    Pegar(fr.get(), nova, "NovaAction");
    Pegar(fr.get(), botao, "BitBtn");
    EXPECT_EQ(lista->Actions(), (QList<TAction *>{ins, nova}));
    EXPECT_EQ(ins->GetCaption(), QStringLiteral("Incluir"));
    EXPECT_EQ(ins->GetImageIndex(), 9);
    EXPECT_EQ(ins->shortcut(), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_I));
    EXPECT_EQ(ins->toolTip(), QStringLiteral("Inserir (Ctrl+Alt+I)"));
    EXPECT_EQ(botao->GetAction(), nova);
    EXPECT_EQ(botao->text(), QStringLiteral("Nova"));
}

TEST_F(Layout, ReferenceToWhatDoesNotExistOrIsOfAnotherClassIsAFault)
{
    EXPECT_EQ(
        FalhaNoFilho(QStringLiteral(
            R"(<widget class="TBitBtn" name="B"><property name="action"><cstring>Nada</cstring></property></widget>)")),
        QStringLiteral("3: 'Nada' não existe"));
    EXPECT_EQ(
        FalhaNoFilho(QStringLiteral(
            R"(<widget class="TBitBtn" name="B"><property name="action"><cstring>Edit</cstring></property></widget>)")),
        QStringLiteral("3: 'Edit' é de classe QLineEdit, não TAction"));
}

TEST_F(Layout, PagesItemsAndQtLayouts)
{
    pasta.Escrever(QStringLiteral("TSolto"), QStringLiteral(R"(<class>TSolto</class>
<widget class="QFrame" name="Solto">
<layout class="QGridLayout" name="g" columnstretch="0,1"><property name="leftMargin"><number>3</number></property>
 <property name="horizontalSpacing"><number>7</number></property>
 <item row="0" column="0"><widget class="QLabel" name="L"/></item>
 <item row="0" column="1"><layout class="QHBoxLayout" name="h" stretch="1,0"><item><widget class="QComboBox" name="Combo">
   <property name="currentIndex"><number>1</number></property>
   <item><property name="text"><string>Um</string></property></item>
   <item><property name="text"><string>Dois</string></property></item></widget></item>
  <item><spacer name="s"><property name="orientation"><enum>Qt::Horizontal</enum></property>
   <property name="sizeHint" stdset="0"><size><width>9</width><height>1</height></size></property></spacer></item></layout></item>
 <item row="1" column="0" colspan="2"><widget class="TPageControl" name="P">
  <property name="currentIndex"><number>1</number></property>
  <widget class="TTabSheet" name="A"><attribute name="title"><string>Lista</string></attribute></widget>
  <widget class="TTabSheet" name="B"><property name="caption"><string>Campos</string></property></widget></widget></item>
</layout></widget>
<tabstops><tabstop>P</tabstop><tabstop>Combo</tabstop></tabstops>)"));
    std::unique_ptr<TSolto> fr(Criar<TSolto>(nullptr));
    auto *grade = qobject_cast<QGridLayout *>(fr->layout());
    ASSERT_TRUE(grade);
    EXPECT_EQ(grade->contentsMargins().left(), 3);
    EXPECT_EQ(grade->horizontalSpacing(), 7);
    EXPECT_EQ(grade->columnStretch(1), 1);
    auto *combo = fr->findChild<QComboBox *>();
    EXPECT_EQ(combo->currentText(), QStringLiteral("Dois"));
    auto *p = fr->findChild<TPageControl *>();
    EXPECT_EQ(p->currentIndex(), 1);
    EXPECT_EQ(p->tabText(0), QStringLiteral("Lista"));
    EXPECT_EQ(p->tabText(1), QStringLiteral("Campos"));
}

TEST_F(Layout, TheLastControlMadeMayBeTheFirstTabStopOfAWindow)
{
    pasta.Escrever(QStringLiteral("TSolto"), QStringLiteral(R"(<class>TSolto</class>
<widget class="QFrame" name="Solto"><widget class="QLineEdit" name="A"/><widget class="QLineEdit" name="B"/>
<widget class="QLineEdit" name="C"/></widget>
<tabstops><tabstop>C</tabstop><tabstop>A</tabstop><tabstop>B</tabstop></tabstops>)"));
    QWidget janela;
    Criar<TSolto>(&janela);
    QString ordem;
    for (QWidget *w = janela.nextInFocusChain(); w != &janela; w = w->nextInFocusChain())
        if (w->focusPolicy() & Qt::TabFocus)
            ordem += w->objectName();
    EXPECT_EQ(ordem, QStringLiteral("CAB"));
}

TEST_F(Layout, AlignedControlsStickToTheirSidesAcrossTheChain)
{
    pasta.Escrever(QStringLiteral("TAvo"), QStringLiteral(R"(<class>TAvo</class>
<widget class="QFrame" name="Avo">
 <property name="geometry"><rect><x>0</x><y>0</y><width>200</width><height>100</height></rect></property>
 <widget class="QLabel" name="Rotulo"><property name="geometry"><rect><x>0</x><y>0</y><width>9</width><height>20</height></rect></property>
  <property name="align" stdset="0"><string>alTop</string></property></widget>
 <widget class="QLineEdit" name="Edit"><property name="geometry"><rect><x>0</x><y>0</y><width>9</width><height>25</height></rect></property>
  <property name="align" stdset="0"><string>alBottom</string></property></widget></widget>)"));
    pasta.Escrever(QStringLiteral("TPaiFr"), QStringLiteral(R"(<class>TPaiFr</class>
<widget class="QFrame" name="Pai"><widget class="QPushButton" name="Botao">
<property name="align" stdset="0"><string>alClient</string></property></widget></widget>)"));
    std::unique_ptr<TPaiFr> fr(Criar<TPaiFr>(nullptr));
    EXPECT_EQ(fr->Rotulo->geometry(), QRect(0, 0, 200, 20));
    EXPECT_EQ(fr->Edit->geometry(), QRect(0, 75, 200, 25));
    EXPECT_EQ(fr->Botao->geometry(), QRect(0, 20, 200, 55));
    fr->show();
    fr->resize(300, 120);
    EXPECT_EQ(fr->Botao->geometry(), QRect(0, 20, 300, 75));
    fr->Rotulo->hide();
    QTest::qWait(1);
    EXPECT_EQ(fr->Botao->geometry(), QRect(0, 0, 300, 95));
    fr->Edit->resize(300, 50);
    QTest::qWait(1);
    EXPECT_EQ(fr->Botao->geometry(), QRect(0, 0, 300, 70));
}

TEST_F(Layout, AnchoredControlsKeepTheirDistance)
{
    pasta.Escrever(
        QStringLiteral("TAvo"),
        QString(avo).replace(QStringLiteral("<property name=\"maxLength\">"),
                             QStringLiteral("<property name=\"anchors\" stdset=\"0\"><string>"
                                            "left right bottom</string></property>"
                                            "<property name=\"maxLength\">")));
    std::unique_ptr<TFilho> fr(Criar<TFilho>(nullptr));
    EXPECT_EQ(fr->Edit->geometry(), QRect(5, 28, 220, 21))
        << "the descendant's frame is 100 wider and 10 higher";
    fr->show();
    fr->resize(310, 80);
    EXPECT_EQ(fr->Edit->geometry(), QRect(5, 18, 230, 21));
}

TEST_F(Layout, AlignAndQtLayoutExcludeEachOther)
{
    EXPECT_EQ(FalhaNoFilho(QStringLiteral(R"(<widget class="QWidget" name="W">
<layout class="QVBoxLayout" name="v"/><widget class="QLabel" name="x"><property name="align"><string>alTop</string></property></widget></widget>)")),
              QStringLiteral("4: 'W' já tem um layout"));
}

TEST_F(Layout, ControlsCanBeAlignedByCode)
{
    QWidget janela;
    janela.resize(100, 100);
    auto *topo = new QLabel(&janela);
    topo->resize(10, 30);
    auto *resto = new QLabel(&janela);
    Alinhar(topo, alTop);
    Alinhar(resto, alClient);
    janela.show();
    EXPECT_EQ(topo->geometry(), QRect(0, 0, 100, 30));
    EXPECT_EQ(resto->geometry(), QRect(0, 30, 100, 70));
    Alinhar(topo, alNone);
    QTest::qWait(1);
    EXPECT_EQ(resto->geometry(), QRect(0, 0, 100, 100));
    delete resto;
    janela.resize(50, 50);

    QWidget com;
    new QVBoxLayout(&com);
    auto *filho = new QLabel(&com);
    EXPECT_THROW(Alinhar(filho, alTop), ELayoutError);
    EXPECT_THROW(Alinhar(&com, alTop), ELayoutError);
}

TEST_F(Layout, WalkGoesDepthFirstInChildOrderAndSurvivesDestruction)
{
    QWidget raiz;
    auto *a = new QWidget(&raiz);
    a->setObjectName(QStringLiteral("a"));
    auto *a1 = new QWidget(a);
    a1->setObjectName(QStringLiteral("a1"));
    auto *b = new QWidget(&raiz);
    b->setObjectName(QStringLiteral("b"));
    auto *c = new QWidget(&raiz);
    c->setObjectName(QStringLiteral("c"));
    auto *c1 = new QWidget(c);
    c1->setObjectName(QStringLiteral("c1"));
    QStringList nomes;
    PercorrerFilhos(&raiz, [&](QWidget *w) {
        nomes << w->objectName();
        return w != c;
    });
    EXPECT_EQ(nomes.join(QLatin1Char(' ')), QStringLiteral("a a1 b c"));
    nomes.clear();
    PercorrerFilhos(&raiz, [&](QWidget *w) {
        nomes << w->objectName();
        if (w == a)
            delete b;
        if (w == c) {
            delete c;
            return true;
        }
        return true;
    });
    EXPECT_EQ(nomes.join(QLatin1Char(' ')), QStringLiteral("a a1 c"));
}

TEST_F(Layout, SecondInstanceCostsNoParsing)
{
    delete Criar<TFilho>(nullptr);
    QFile::remove(pasta.Caminho() + QStringLiteral("/TFilho.ui"));
    std::unique_ptr<TFilho> fr(Criar<TFilho>(nullptr));
    EXPECT_EQ(fr->Botao->text(), QStringLiteral("..."));
    QElapsedTimer relogio;
    relogio.start();
    constexpr int vezes = 500;
    for (int i = 0; i < vezes; ++i)
        delete Criar<TFilho>(nullptr);
    const double ms = double(relogio.nsecsElapsed()) / 1e6 / vezes;
    RecordProperty("ms_por_quadro", std::to_string(ms));
    // A loose bound: fifty times the time of a release build.
    EXPECT_LT(ms, 3.0);
}

#include "Layout_test.moc"
