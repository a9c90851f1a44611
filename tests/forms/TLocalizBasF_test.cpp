#include "forms/ULocalizBasF.h"

#include "forms/TelasDeTeste.h"
#include "platform/toolkit/TRadioGroup.h"

namespace ficha::testes
{

class TLocalizBasFTest : public TTelasTest
{
protected:
    void TearDown() override
    {
        LocalizBasF->Close();
        TTelasTest::TearDown();
    }
    void Nomes(const QStringList &nomes)
    {
        for (int i = 0; i < nomes.size(); ++i)
            Inserir(i + 1, nomes[i]);
    }
    /** A screen with the dialog over it, the list on row 1 of the column of descriptions. */
    TGruposF *AbrirBusca()
    {
        TGruposF *tela = Abrir();
        tela->StringGrid1->SetCelula(1, 1);
        Tecla(Qt::Key_L, Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitForWindowActive(LocalizBasF));
        return tela;
    }
    void Procurar(const QString &texto, int modo)
    {
        LocalizBasF->OndeRadioGroup->SetItemIndex(modo);
        LocalizBasF->LocalizLabeledEdit->setText(texto);
        LocalizBasF->BuscaLinear();
    }
    static QString Rotulo() { return LocalizBasF->CampoLabel->text(); }
};

TEST_F(TLocalizBasFTest, TheWindowIsAsStated)
{
    EXPECT_EQ(LocalizBasF->size(), QSize(195, 313));
    EXPECT_EQ(LocalizBasF->pos(), QPoint(589, 74));
    EXPECT_EQ(LocalizBasF->GetBorderStyle(), TForm::bsToolWindow);
    EXPECT_TRUE(LocalizBasF->GetStayOnTop());
    EXPECT_EQ(LocalizBasF->parentWidget(), nullptr);
    EXPECT_EQ(LocalizBasF->Direcao, 1);
    EXPECT_EQ(LocalizBasF->LocalizLabeledEdit->GetCaption(), QStringLiteral("Texto a localizar"));
    EXPECT_EQ(LocalizBasF->LocalizLabeledEdit->property("tag").toInt(), 1);
    EXPECT_EQ(LocalizBasF->OndeRadioGroup->GetCaption(), QStringLiteral("Modo de busca"));
    EXPECT_EQ(LocalizBasF->OndeRadioGroup->GetItems(),
              QStringList({"Campo inteiro", "Início do campo", "Qualquer parte do campo"}));
    EXPECT_EQ(LocalizBasF->OndeRadioGroup->GetItemIndex(), 0);
    EXPECT_EQ(LocalizBasF->DirecRadioGroup->GetCaption(), QStringLiteral("Direção da busca"));
    EXPECT_EQ(LocalizBasF->DirecRadioGroup->GetItems(), QStringList({"Acima", "Abaixo"}));
    EXPECT_EQ(LocalizBasF->DirecRadioGroup->GetColumns(), 2);
    EXPECT_EQ(LocalizBasF->DirecRadioGroup->GetItemIndex(), 1);
    EXPECT_EQ(LocalizBasF->ExecButton->text(), QStringLiteral("Localizar"));
    EXPECT_TRUE(LocalizBasF->ExecButton->isDefault());
    EXPECT_EQ(LocalizBasF->Button1->text(), QStringLiteral("Fechar"));
    EXPECT_TRUE(LocalizBasF->Button1->GetCancel());
}

TEST_F(TLocalizBasFTest, BeginningAndAnyPart_AnaMatchesAnaMariaAndInMode2AlsoMariana)
{
    Nomes({QStringLiteral("Bia"), QStringLiteral("Mariana"), QStringLiteral("Ana Maria")});
    TGruposF *tela = AbrirBusca();
    Procurar(QStringLiteral("ana"), 1);
    EXPECT_EQ(tela->StringGrid1->GetRow(), 3);
    EXPECT_EQ(tela->Tab->RecNo, 3);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("Ana Maria"));
    tela->StringGrid1->SetRow(1);
    Procurar(QStringLiteral("ana"), 2);
    EXPECT_EQ(tela->StringGrid1->GetRow(), 2);
    Procurar(QStringLiteral("ana"), 2);
    EXPECT_EQ(tela->StringGrid1->GetRow(), 3);
}

TEST_F(TLocalizBasFTest, WholeField_BlanksAroundAreIgnored)
{
    Nomes({QStringLiteral("Bia"), QStringLiteral("Mariana"), QStringLiteral("Ana")});
    TGruposF *tela = AbrirBusca();
    Procurar(QStringLiteral("  aNa "), 0);
    EXPECT_EQ(tela->Tab->RecNo, 3);
}

TEST_F(TLocalizBasFTest, OnlyAsciiLettersAreFolded)
{
    Nomes({QStringLiteral("Bia"), QStringLiteral("JOÃO"), QStringLiteral("joão")});
    TGruposF *tela = AbrirBusca();
    Procurar(QStringLiteral("João"), 0);
    EXPECT_EQ(tela->Tab->RecNo, 3);
    tela->StringGrid1->SetRow(1);
    Procurar(QStringLiteral("joÃo"), 0);
    EXPECT_EQ(tela->Tab->RecNo, 2);
}

TEST_F(TLocalizBasFTest, AnUnknownModeNeverMatches)
{
    Nomes({QStringLiteral("Bia"), QStringLiteral("Ana")});
    TGruposF *tela = AbrirBusca();
    Procurar(QStringLiteral("ana"), -1);
    EXPECT_EQ(tela->Tab->RecNo, 1);
    avisos.clear();
}

TEST_F(TLocalizBasFTest, OnTheLastRowTheQuestionTurnsTheSearchAround)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia"), QStringLiteral("Cida")});
    TGruposF *tela = AbrirBusca();
    tela->StringGrid1->SetRow(3);
    Procurar(QStringLiteral("ana"), 0);
    EXPECT_EQ(perguntas,
              QStringList(QStringLiteral("Ao buscar abaixo a tabela já estava no extremo.\r\n"
                                         "Deseja buscar na outra direção?")));
    EXPECT_EQ(LocalizBasF->DirecRadioGroup->GetItemIndex(), 0);
    EXPECT_EQ(LocalizBasF->Direcao, -1);
    EXPECT_EQ(tela->Tab->RecNo, 1);
    perguntas.clear();
    Procurar(QStringLiteral("cida"), 0);
    EXPECT_EQ(perguntas,
              QStringList(QStringLiteral("Ao buscar acima a tabela já estava no extremo.\r\n"
                                         "Deseja buscar na outra direção?")));
    EXPECT_EQ(LocalizBasF->Direcao, 1);
    EXPECT_EQ(tela->Tab->RecNo, 3);
    LocalizBasF->DirecRadioGroup->SetItemIndex(1);
}

TEST_F(TLocalizBasFTest, ANoToTheQuestionIsAMiss)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia")});
    TGruposF *tela = AbrirBusca();
    tela->StringGrid1->SetRow(2);
    responde = false;
    Procurar(QStringLiteral("ana"), 0);
    EXPECT_EQ(tela->Tab->RecNo, 2);
    EXPECT_EQ(LocalizBasF->Direcao, 1);
    EXPECT_EQ(avisos, QStringList(QStringLiteral("Nenhum registro com 'ana' foi encontrado")));
    avisos.clear();
}

TEST_F(TLocalizBasFTest, AMissReturnsToTheStartAndNamesTheTextAsTyped)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia"), QStringLiteral("Cida")});
    TGruposF *tela = AbrirBusca();
    tela->StringGrid1->SetRow(2);
    Procurar(QStringLiteral(" ana "), 0); // above: the row the search starts on and those before
    EXPECT_EQ(tela->StringGrid1->GetRow(), 2);
    EXPECT_EQ(tela->Tab->RecNo, 2);
    EXPECT_EQ(avisos, QStringList(QStringLiteral("Nenhum registro com ' ana ' foi encontrado")));
    avisos.clear();
    EXPECT_TRUE(tela->SelecaoNavega);
    EXPECT_TRUE(tela->AtualizarLigado);
}

TEST_F(TLocalizBasFTest, TheRowTheSearchStartsOnIsNotTested)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia")});
    TGruposF *tela = AbrirBusca();
    Procurar(QStringLiteral("ana"), 0);
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(tela->Tab->RecNo, 1);
}

TEST_F(TLocalizBasFTest, AnEmptyTableFindsNothingAndAsksNothing)
{
    TGruposF *tela = Abrir();
    LocalizBasF->SetTabF(tela);
    Procurar(QStringLiteral("ana"), 0);
    EXPECT_TRUE(perguntas.isEmpty());
    EXPECT_EQ(avisos, QStringList(QStringLiteral("Nenhum registro com 'ana' foi encontrado")));
    avisos.clear();
}

TEST_F(TLocalizBasFTest, OneRecordHasNothingElseToSearch)
{
    Nomes({QStringLiteral("Ana")});
    TGruposF *tela = AbrirBusca();
    Procurar(QStringLiteral("ana"), 0);
    EXPECT_EQ(perguntas.size(), 1);
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(tela->Tab->RecNo, 1);
    LocalizBasF->DirecRadioGroup->SetItemIndex(1);
}

TEST_F(TLocalizBasFTest, TheListIsMovedOnceWhateverTheDistance)
{
    QStringList nomes;
    for (int i = 0; i < 60; ++i)
        nomes << QStringLiteral("n%1").arg(i);
    Nomes(nomes);
    TGruposF *tela = AbrirBusca();
    int passos = 0;
    const auto antes = tela->StringGrid1->OnSelectCell;
    tela->StringGrid1->OnSelectCell = [&](QObject *s, int c, int r, bool &pode) {
        ++passos;
        antes(s, c, r, pode);
    };
    Procurar(QStringLiteral("n59"), 0);
    EXPECT_EQ(passos, 1);
    EXPECT_EQ(tela->Tab->RecNo, 60);
    Procurar(QStringLiteral("nada"), 0);
    avisos.clear();
    EXPECT_EQ(passos, 1);
}

TEST_F(TLocalizBasFTest, ARowThatTheScreenVetoesIsNotMovedTo)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia"), QStringLiteral("Cida")});
    TGruposF *tela = AbrirBusca();
    tela->StringGrid1->OnSelectCell = [](QObject *, int, int row, bool &pode) { pode = row != 3; };
    Procurar(QStringLiteral("cida"), 0);
    EXPECT_EQ(tela->StringGrid1->GetRow(), 1);
    EXPECT_EQ(tela->Tab->RecNo, 1);
}

// ---- with the keyboard ----------------------------------------------------------------------

TEST_F(TLocalizBasFTest, EnterSearchesAndEscCloses)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia"), QStringLiteral("Cida")});
    TGruposF *tela = AbrirBusca();
    EXPECT_EQ(Foco(), LocalizBasF->LocalizLabeledEdit);
    EXPECT_FALSE(LocalizBasF->LocalizAction->GetEnabled());
    Digitar(QStringLiteral("cida"));
    EXPECT_TRUE(LocalizBasF->LocalizAction->GetEnabled());
    Tecla(Qt::Key_Return);
    EXPECT_EQ(tela->Tab->RecNo, 3);
    EXPECT_TRUE(LocalizBasF->isVisible());
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(LocalizBasF->isVisible());
    EXPECT_EQ(LocalizBasF->LocalizLabeledEdit->text(), QString());
}

TEST_F(TLocalizBasFTest, ATextOfBlanksCannotBeSearched)
{
    Nomes({QStringLiteral("Ana")});
    AbrirBusca();
    Digitar(QStringLiteral("   "));
    EXPECT_FALSE(LocalizBasF->LocalizAction->GetEnabled());
    EXPECT_TRUE(LocalizBasF->FecharAction->GetEnabled());
    Tecla(Qt::Key_Return);
    EXPECT_TRUE(avisos.isEmpty());
}

TEST_F(TLocalizBasFTest, AReaderThatTypesAndPressesEnterInOneGoSearches)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia")});
    TGruposF *tela = AbrirBusca();
    QTest::keyClicks(LocalizBasF->LocalizLabeledEdit, QStringLiteral("bia\r"));
    EXPECT_EQ(tela->Tab->RecNo, 2);
}

TEST_F(TLocalizBasFTest, TheDirectionGroupSetsTheDirection)
{
    LocalizBasF->DirecRadioGroup->SetItemIndex(0);
    EXPECT_EQ(LocalizBasF->Direcao, -1);
    LocalizBasF->DirecRadioGroup->SetItemIndex(1);
    EXPECT_EQ(LocalizBasF->Direcao, 1);
}

// ---- which screen ----------------------------------------------------------------------------

TEST_F(TLocalizBasFTest, TheLabelFollowsTheColumnOfTheList)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia")});
    TGruposF *tela = AbrirBusca();
    EXPECT_EQ(LocalizBasF->GetTabF(), tela);
    EXPECT_EQ(LocalizBasF->GetCaption(), tela->GetCaption());
    EXPECT_EQ(Rotulo(), QStringLiteral("Buscando por Descrição"));
    QTest::mouseClick(tela->StringGrid1->viewport(), Qt::LeftButton, {},
                      tela->StringGrid1->CellRect(0, 1).center());
    EXPECT_EQ(Rotulo(), QStringLiteral("Buscando por Código"));
    tela->StringGrid1->SetCol(1);
    EXPECT_EQ(Rotulo(), QStringLiteral("Buscando por Descrição"));
}

TEST_F(TLocalizBasFTest, ActivatingASecondScreenRetargetsAndClosingTheFirstLeavesTheDialogOpen)
{
    Nomes({QStringLiteral("Ana")});
    TGruposF *primeira = AbrirBusca();
    auto *segunda = Abrir<TTiposF>();
    EXPECT_EQ(LocalizBasF->GetTabF(), segunda);
    EXPECT_EQ(LocalizBasF->GetCaption(), segunda->GetCaption());
    primeira->FecharAction->Execute();
    Assentar();
    EXPECT_TRUE(LocalizBasF->isVisible());
    EXPECT_EQ(LocalizBasF->GetTabF(), segunda);
}

TEST_F(TLocalizBasFTest, ClosingTheScreenThatIsSearchedClosesTheDialog)
{
    Nomes({QStringLiteral("Ana")});
    Abrir<TTiposF>();
    TGruposF *tela = AbrirBusca();
    tela->FecharAction->Execute();
    EXPECT_FALSE(LocalizBasF->isVisible());
}

TEST_F(TLocalizBasFTest, IncluirClosesTheDialog)
{
    Nomes({QStringLiteral("Ana")});
    TGruposF *tela = AbrirBusca();
    tela->InsAction->Execute();
    EXPECT_FALSE(LocalizBasF->isVisible());
}

TEST_F(TLocalizBasFTest, AlterarAndExcluirCloseTheDialog)
{
    Nomes({QStringLiteral("Ana")});
    TGruposF *tela = AbrirBusca();
    tela->AltAction->Execute();
    EXPECT_FALSE(LocalizBasF->isVisible());
    tela->CancelarAction->Execute();
    LocalizBasF->SetTabF(tela);
    LocalizBasF->Show();
    tela->ExclAction->Execute();
    EXPECT_FALSE(LocalizBasF->isVisible());
}

TEST_F(TLocalizBasFTest, AnAlterationStartedByTypingClosesTheDialogToo)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia")});
    TGruposF *tela = AbrirBusca();
    ASSERT_TRUE(tela->AtivarAlteracao());
    EXPECT_FALSE(LocalizBasF->isVisible());
    tela->Descr()->setText(QStringLiteral("digitado"));
    // Shown again behind the screen's back, it moves nothing.
    LocalizBasF->SetTabF(tela);
    Procurar(QStringLiteral("bia"), 0);
    EXPECT_EQ(tela->Tab->RecNo, 1);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("digitado"));
}

TEST_F(TLocalizBasFTest, AScreenThatDiesWhileTheDialogIsOpenIsForgotten)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia")});
    TGruposF *tela = AbrirBusca();
    delete tela;
    EXPECT_EQ(LocalizBasF->GetTabF(), nullptr);
    Procurar(QStringLiteral("bia"), 0);
    EXPECT_TRUE(avisos.isEmpty());
}

TEST_F(TLocalizBasFTest, AScreenThatDiesInsideTheWarning)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia")});
    TGruposF *tela = AbrirBusca();
    aoAvisar = [&] { delete tela; };
    Procurar(QStringLiteral("nada"), 0);
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(LocalizBasF->GetTabF(), nullptr);
}

TEST_F(TLocalizBasFTest, AScreenThatDiesInsideTheQuestion)
{
    Nomes({QStringLiteral("Ana"), QStringLiteral("Bia")});
    TGruposF *tela = AbrirBusca();
    tela->StringGrid1->SetRow(2);
    aoPerguntar = [&] { delete tela; };
    Procurar(QStringLiteral("ana"), 0);
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    LocalizBasF->DirecRadioGroup->SetItemIndex(1);
}

} // namespace ficha::testes
