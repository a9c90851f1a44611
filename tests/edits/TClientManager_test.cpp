#include "platform/edits/TClientManager.h"

#include "platform/core/Erros.h"
#include "platform/core/Servicos.h"
#include "platform/database/EDatabaseError.h"
#include "platform/support/TDBGrid.h"
#include "platform/support/TDataSource.h"
#include "support/Girar.h"

#include <QPainter>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TClientManagerTest : public testing::Test
{
protected:
    TClientManagerTest()
    {
        lista.SetDBGrid1(&grid);
        lista.OnCreateFields1 = [this](QObject *sender) {
            EXPECT_EQ(sender, &lista);
            eventos << QStringLiteral("campos");
            lista.CDS1->AddField(QStringLiteral("cod"), TFieldType::ftInteger);
            lista.CDS1->AddField(QStringLiteral("nome"), TFieldType::ftString, 20);
            lista.CDS1->AddField(QStringLiteral("dia"), TFieldType::ftDateTime);
        };
        lista.OnPrepGrid1 = [this](QObject *) {
            EXPECT_EQ(grid.ColumnCount(), 3) << "it has its columns";
            eventos << QStringLiteral("grade");
        };
        lista.OnListUpDate = [this](QObject *) {
            eventos << QStringLiteral("linhas");
            for (const char *nome : {"b", "C", "á"})
                lista.CDS1->AppendRecord(
                    {++proximo, QString::fromUtf8(nome), TDateTime(29220 + proximo)});
        };
    }
    QString Nomes()
    {
        QString nomes;
        for (int row = 1; row < grid.GetRowCount(); ++row)
            nomes += grid.GetCell(1, row);
        return nomes;
    }
    void Clicar(const char *campo)
    {
        lista.TitleClick(&grid, grid.ColumnByField(QString::fromLatin1(campo)));
    }

    TDBGrid grid;
    TClientManager lista;
    QStringList eventos;
    int proximo = 0;
};

QStringList L(const char *textos)
{
    return QString::fromUtf8(textos).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

TEST_F(TClientManagerTest, LoadingMakesTheDatasetOnceAndPutsTheRowsIn)
{
    EXPECT_FALSE(lista.CDS1->Active());
    EXPECT_EQ(lista.CDS1->objectName(), QStringLiteral("CDS1"));
    QSignalSpy carregou(&lista, &TClientManager::Carregou);
    lista.Carregar();
    EXPECT_EQ(eventos, L("campos grade linhas"));
    EXPECT_EQ(Nomes(), QStringLiteral("bCá")) << "as they came";
    EXPECT_EQ(lista.CDS1->RecNo(), 1);
    EXPECT_EQ(lista.Ordem().Campo, QString());
    lista.Carregar();
    EXPECT_EQ(eventos, L("campos grade linhas linhas"));
    EXPECT_EQ(lista.CDS1->RecordCount(), 3) << "read anew, not added";
    EXPECT_EQ(carregou.count(), 2);
}

TEST_F(TClientManagerTest, NothingIsAnnouncedForEachRowThatIsRead)
{
    lista.Carregar();
    lista.CDS1->Last();
    QSignalSpy rolou(lista.CDS1, &TDataSet::AfterScroll);
    QSignalSpy dados(lista.CDS1, &TDataSet::DadosMudaram);
    lista.Carregar();
    EXPECT_LE(rolou.count(), 2);
    EXPECT_EQ(dados.count(), 1);
}

TEST_F(TClientManagerTest, ALoadedListAnnouncesItsFirstRowOnce)
{
    QStringList vistas;
    QObject::connect(lista.CDS1, &TDataSet::AfterScroll, [&] {
        vistas << lista.CDS1->FieldByName(QStringLiteral("nome"))->AsString();
    });
    lista.Carregar();
    EXPECT_EQ(vistas, L("b")) << "details are read once, and for no other row";
    lista.CDS1->Last();
    vistas.clear();
    lista.Carregar();
    EXPECT_EQ(vistas, L("b"));
    Clicar("nome");
    vistas.clear();
    lista.Carregar();
    EXPECT_EQ(vistas, L("á")) << "the first one of the order";
    EXPECT_EQ(lista.CDS1->RecNo(), 1);
    EXPECT_EQ(Nomes(), QStringLiteral("ábC"));
}

TEST_F(TClientManagerTest, TitlesSortRisingAndFallingInTurn)
{
    lista.Carregar();
    Clicar("nome");
    EXPECT_EQ(Nomes(), QStringLiteral("ábC"));
    EXPECT_TRUE(lista.Ordem().Ascendente);
    EXPECT_EQ(lista.Ordem().Campo, QStringLiteral("nome"));
    EXPECT_TRUE(grid.Columns(1)->Title.GetFont().bold());
    Clicar("nome");
    EXPECT_EQ(Nomes(), QStringLiteral("Cbá"));
    EXPECT_FALSE(lista.Ordem().Ascendente);
    Clicar("nome");
    EXPECT_EQ(Nomes(), QStringLiteral("ábC"));
    Clicar("cod");
    EXPECT_EQ(Nomes(), QStringLiteral("bCá"));
    EXPECT_FALSE(grid.Columns(1)->Title.GetFont().bold());
    Clicar("nome");
    EXPECT_TRUE(lista.Ordem().Ascendente) << "another column in between starts over";
    lista.Carregar();
    EXPECT_EQ(Nomes(), QStringLiteral("ábC")) << "the order stays when the rows are read again";
    EXPECT_EQ(lista.CDS1->RecNo(), 1);
}

TEST_F(TClientManagerTest, TheGridMayBeSortedFromTheStart)
{
    lista.OnPrepGrid1 = [this](QObject *) {
        lista.Ordenar(QStringLiteral("nome"), false);
        lista.Ordenar(QStringLiteral("nada"));
    };
    lista.Carregar();
    EXPECT_EQ(Nomes(), QStringLiteral("Cbá"));
    EXPECT_FALSE(lista.Ordem().Ascendente);
}

TEST_F(TClientManagerTest, RefreshingReadsOnlyWhatIsOutOfDateAndStaysOnItsRow)
{
    lista.OnListUpDate = [this](QObject *) {
        ++proximo;
        for (int cod : {1, 2, 3})
            lista.CDS1->AppendRecord({proximo == 1 ? cod : 4 - cod, QString::number(proximo)});
    };
    lista.Carregar();
    lista.CDS1->Last();
    lista.Atualizar();
    EXPECT_EQ(proximo, 1);
    lista.Invalidar();
    lista.Atualizar();
    EXPECT_EQ(proximo, 2);
    EXPECT_EQ(lista.CDS1->Fields(0)->AsInteger(), 3);
    EXPECT_EQ(lista.CDS1->RecNo(), 1);
    lista.Atualizar();
    EXPECT_EQ(proximo, 2);
}

TEST_F(TClientManagerTest, AFailedReadLeavesAnEmptyListThatIsReadAgain)
{
    lista.Carregar();
    const auto certo = lista.OnListUpDate;
    lista.OnListUpDate = [&](QObject *) {
        lista.CDS1->AppendRecord({9});
        throw EErro(QStringLiteral("caiu"));
    };
    EXPECT_THROW(lista.Carregar(), EErro);
    EXPECT_EQ(lista.CDS1->RecordCount(), 0);
    EXPECT_FALSE(lista.CDS1->ControlsDisabled());
    lista.OnListUpDate = certo;
    lista.Atualizar();
    EXPECT_EQ(lista.CDS1->RecordCount(), 3);
}

TEST_F(TClientManagerTest, AFilterThatFailsAtTheEndOfAReadIsTheReadersError)
{
    lista.Carregar();
    Clicar("nome");
    bool falha = false;
    lista.CDS1->SetOnFilterRecord([&](const TDataSet &) {
        if (falha)
            throw EErro(QStringLiteral("filtro"));
        return true;
    });
    lista.CDS1->SetFiltered(true);
    TServicosGuarda guarda;
    QStringList relatados;
    Servicos().ReportarErro = [&](std::exception_ptr erro) { relatados << TextoDoErro(erro); };
    const auto certo = lista.OnListUpDate;
    lista.OnListUpDate = [&](QObject *sender) {
        certo(sender);
        falha = true;
    };
    EXPECT_THROW(lista.Carregar(), EErro);
    EXPECT_EQ(lista.CDS1->RecordCount(), 0);
    EXPECT_FALSE(lista.CDS1->ControlsDisabled());
    EXPECT_EQ(grid.GetRowCount(), 2) << "the grid knows: one blank row";
    lista.OnListUpDate = [&](QObject *) {
        falha = false;
        lista.CDS1->AppendRecord({9, QStringLiteral("z")});
        falha = true;
        throw EErro(QStringLiteral("leitura"));
    };
    try {
        lista.Carregar();
        ADD_FAILURE() << "the read failed";
    } catch (const EErro &) {
        EXPECT_EQ(TextoDoErro(std::current_exception()), QStringLiteral("leitura"));
    }
    EXPECT_EQ(relatados, QStringList()) << "nothing is left to be filtered";
    falha = false;
    lista.OnListUpDate = certo;
    lista.Atualizar();
    EXPECT_EQ(lista.CDS1->RecordCount(), 3);
    EXPECT_EQ(Nomes().size(), 3);
}

TEST_F(TClientManagerTest, WhatFailsWhenAFailedCopyShowsItsRowsIsReported)
{
    lista.Carregar();
    Clicar("nome");
    int permitidas = 3 + 1; // the rows there, and the first that comes
    lista.CDS1->SetOnFilterRecord([&](const TDataSet &) {
        if (--permitidas < 0)
            throw EErro(QStringLiteral("filtro"));
        return true;
    });
    lista.CDS1->SetFiltered(true);
    TServicosGuarda guarda;
    QStringList relatados;
    Servicos().ReportarErro = [&](std::exception_ptr erro) { relatados << TextoDoErro(erro); };
    TClientDataSet origem;
    origem.AddField(QStringLiteral("cod"), TFieldType::ftString, 20);
    origem.CreateDataSet();
    origem.Open();
    origem.AppendRecord({QStringLiteral("7")});
    origem.AppendRecord({QStringLiteral("letras")});
    QString erroDaCopia;
    try {
        lista.CopiarDe(origem);
    } catch (...) {
        erroDaCopia = TextoDoErro(std::current_exception());
    }
    EXPECT_NE(erroDaCopia, QString());
    EXPECT_NE(erroDaCopia, QStringLiteral("filtro")) << "the copy's own error is its caller's";
    EXPECT_EQ(relatados, L("filtro"));
    EXPECT_FALSE(lista.CDS1->ControlsDisabled());
    EXPECT_EQ(grid.GetRowCount(), 1 + 4) << "the grid knows of the row that came";
}

TEST_F(TClientManagerTest, WithoutFieldsThereIsNoListAndNoFault)
{
    lista.OnCreateFields1 = nullptr;
    QSignalSpy carregou(&lista, &TClientManager::Carregou);
    lista.Carregar();
    lista.Atualizar();
    EXPECT_FALSE(lista.CDS1->Active());
    EXPECT_EQ(carregou.count(), 0);
    EXPECT_EQ(eventos, QStringList());
    EXPECT_EQ(grid.GetRowCount(), 2) << "one blank row";
}

TEST_F(TClientManagerTest, RowsOfAnotherDatasetAreTakenByTheNamesOfTheFields)
{
    TClientDataSet origem;
    origem.AddField(QStringLiteral("NOME"), TFieldType::ftString);
    origem.AddField(QStringLiteral("outro"), TFieldType::ftInteger);
    origem.AddField(QStringLiteral("COD"), TFieldType::ftInteger);
    origem.CreateDataSet();
    origem.Open();
    for (int i = 0; i < 5; ++i)
        origem.AppendRecord({QStringLiteral("n%1").arg(i), 99, i});
    origem.MoveBy(-2);
    const int onde = origem.RecNo();
    lista.OnListUpDate = [&](QObject *) { lista.CopiarDe(origem); };
    lista.Carregar();
    EXPECT_EQ(lista.CDS1->RecordCount(), 5);
    EXPECT_EQ(Nomes(), QStringLiteral("n0n1n2n3n4"));
    lista.CDS1->Last();
    EXPECT_EQ(lista.CDS1->Fields(0)->AsInteger(), 4);
    EXPECT_TRUE(lista.CDS1->Fields(2)->IsNull());
    EXPECT_EQ(origem.RecNo(), onde);
}

TEST_F(TClientManagerTest, CellsAndWordsHideNoDateUntilAskedFor)
{
    lista.Carregar();
    EXPECT_EQ(grid.GetCell(2, 1), QString());
    EXPECT_EQ(grid.GetCell(2, 2), QStringLiteral("02/01/1980"));
    lista.MostrarDataNula = true;
    EXPECT_EQ(grid.GetCell(2, 1), QStringLiteral("01/01/1980"));
    TImageList setas(nullptr, QSize(8, 8));
    QPixmap vermelha(8, 8), verde(8, 8);
    vermelha.fill(Qt::red);
    verde.fill(Qt::green);
    setas.SetIcon(8, QIcon(vermelha));
    setas.SetIcon(9, QIcon(verde));
    lista.ImageList8x8 = &setas;
    QImage foto(100, 60, QImage::Format_RGB32);
    QPainter p(&foto);
    const auto seta = [&](int col) {
        foto.fill(Qt::white);
        lista.DrawColumnCell(p, QRect(0, 18, 100, 17), grid.Columns(col), 0);
        return foto.pixelColor(100 - 11 + 3, 4);
    };
    EXPECT_EQ(seta(1), QColor(Qt::white)) << "unsorted";
    Clicar("nome");
    EXPECT_EQ(seta(1), QColor(Qt::red));
    EXPECT_EQ(seta(0), QColor(Qt::white));
    Clicar("nome");
    EXPECT_EQ(seta(1), QColor(Qt::green));
}

TEST(TClientManager, GridAndManagerMayGoInAnyOrder)
{
    for (const bool gradeAntes : {true, false}) {
        auto grid = std::make_unique<TDBGrid>();
        auto lista = std::make_unique<TClientManager>();
        lista->SetDBGrid1(grid.get());
        lista->OnCreateFields1 = [&](QObject *) {
            lista->CDS1->AddField(QStringLiteral("a"), TFieldType::ftString);
        };
        lista->OnListUpDate = [&](QObject *) { lista->CDS1->AppendRecord({QStringLiteral("x")}); };
        lista->Carregar();
        if (gradeAntes) {
            grid.reset();
            lista->Carregar();
            lista->Ordenar(QStringLiteral("a"));
            lista->Atualizar();
            EXPECT_EQ(lista->GetDBGrid1(), nullptr);
        } else {
            lista.reset();
            EXPECT_EQ(grid->GetCell(0, 1), QString());
            grid->grab();
        }
    }
}
