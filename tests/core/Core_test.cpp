#include "platform/core/Criar.h"
#include "platform/core/Erros.h"
#include "platform/core/Relogio.h"
#include "platform/core/Servicos.h"
#include "platform/core/TColor.h"
#include "platform/core/TLinhas.h"

#include <gtest/gtest.h>

#include <QPointer>

using namespace ficha;

TEST(TColor, IsBlueGreenRed)
{
    EXPECT_EQ(TColor(14732209).ParaQColor(), QColor(177, 203, 224));
    EXPECT_EQ(TColor::DeRGB(128, 0, 0), TColor(128));
    EXPECT_EQ(TColor::DeQColor(QColor(49, 91, 125)).valor, 8215345u);
}

TEST(TLinhas, KeepsTextsWithTheirSlots)
{
    TLinhas linhas;
    EXPECT_EQ(linhas.Add("um", 7), 0);
    EXPECT_EQ(linhas.Add("dois"), 1);
    linhas.SetObjeto(1, 9);
    linhas.SetTexto(0, "Um");
    EXPECT_EQ(linhas.Texto(0), QStringLiteral("Um"));
    EXPECT_EQ(linhas.Objeto(0), 7);
    EXPECT_EQ(linhas.IndexOf("dois"), 1);
    EXPECT_EQ(linhas.IndexOf("um"), -1);
    EXPECT_EQ(linhas.IndexOfObjeto(9), 1);
    linhas.Clear();
    EXPECT_EQ(linhas.Count(), 0);
}

TEST(Relogio, IsSetByTests)
{
    SetRelogio([] { return TDateTime(QDateTime({2026, 11, 20}, {13, 0})); });
    EXPECT_EQ(Hoje(), TDateTime::DeData(20, 11, 2026));
    EXPECT_EQ(Agora().Hora(), QTime(13, 0));
    SetRelogio({});
    EXPECT_NEAR(Agora().Dias(), TDateTime(QDateTime::currentDateTime()).Dias(), 1.0 / 1440);
}

namespace
{
class TCasa : public QObject
{
public:
    explicit TCasa(TChave) {}
    virtual void Create(QObject *owner)
    {
        setParent(owner);
        Preparar();
    }
    virtual void Preparar() { passos += "base;"; }
    QString passos;
};

class TSobrado : public TCasa
{
public:
    using TCasa::TCasa;
    void Create(QObject *owner) override
    {
        TCasa::Create(owner);
        passos += "corpo;";
    }
    void Preparar() override { passos += "sobrado;"; }
};

class TRuina : public TCasa
{
public:
    using TCasa::TCasa;
    static inline QPointer<QObject> ultima;
    void Create(QObject *owner) override
    {
        TCasa::Create(owner);
        ultima = this;
        throw EErro("caiu");
    }
};

class TSolto
{
public:
    explicit TSolto(TChave) {}
    virtual ~TSolto() = default;
    virtual void Create(int n) { valor = n; }
    int valor = 0;
};
} // namespace

TEST(Criar, RunsTheDescendantsVirtualBeforeItsOwnBody)
{
    QObject dono;
    TSobrado *sobrado = Criar<TSobrado>(&dono);
    EXPECT_EQ(sobrado->passos, QStringLiteral("sobrado;corpo;"));
    EXPECT_EQ(sobrado->parent(), &dono);
}

TEST(Criar, AnObjectWhoseCreationFailsIsDestroyed)
{
    QObject dono;
    EXPECT_THROW(Criar<TRuina>(&dono), EErro);
    EXPECT_TRUE(TRuina::ultima.isNull());
    EXPECT_TRUE(dono.children().isEmpty());
}

TEST(Criar, PlainObjectsComeOwned)
{
    const std::unique_ptr<TSolto> solto = Criar<TSolto>(42);
    EXPECT_EQ(solto->valor, 42);
}

TEST(Servicos, AnErrorReachesTheHostsReportOnce)
{
    TServicosGuarda guarda;
    QStringList relatos;
    Servicos().ReportarErro = [&](std::exception_ptr e) { relatos << TextoDoErro(e); };
    ReportarErro(std::make_exception_ptr(EErro(QStringLiteral("Não há conexão"))));
    ReportarErro(std::make_exception_ptr(std::runtime_error("outro")));
    EXPECT_EQ(relatos, QStringList({QStringLiteral("Não há conexão"), QStringLiteral("outro")}));
}

TEST(Servicos, AReportThatFailsDoesNotRaise)
{
    TServicosGuarda guarda;
    Servicos().ReportarErro = [](std::exception_ptr) { throw EErro("de novo"); };
    ReportarErro(std::make_exception_ptr(EErro("primeiro")));
    SUCCEED();
}
