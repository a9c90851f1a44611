#include "platform/toolkit/Ocioso.h"

#include "platform/core/Servicos.h"
#include "support/Girar.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <ctime>

using namespace ficha;
using ficha::testes::Girar;

TEST(Ocioso, RunsWhenTheQueueHasDrained)
{
    QObject dono;
    int vezes = 0, naFila = 0, antesDaPrimeira = -1;
    AoOcioso(&dono, [&] {
        if (++vezes == 1)
            antesDaPrimeira = naFila;
    });
    for (int i = 0; i < 3; ++i)
        QMetaObject::invokeMethod(
            &dono, [&] { ++naFila; }, Qt::QueuedConnection);
    Girar();
    EXPECT_GE(vezes, 1);
    EXPECT_EQ(antesDaPrimeira, 3) << "what was posted came first";
}

TEST(Ocioso, DoesNotRunWhileNothingHappensAndUsesNoProcessor)
{
    QObject dono;
    int vezes = 0;
    AoOcioso(&dono, [&] { ++vezes; });
    Girar();
    vezes = 0;
    const std::clock_t antes = std::clock();
    Girar(300);
    const double ms = 1000.0 * double(std::clock() - antes) / CLOCKS_PER_SEC;
    EXPECT_LE(vezes, 6) << "only around the timers that ended the wait";
    EXPECT_LT(ms, 60);
}

TEST(Ocioso, UpdatesGoWithTheirOwner)
{
    int vezes = 0;
    {
        QObject dono;
        AoOcioso(&dono, [&] { ++vezes; });
        ExecutarOcioso();
    }
    ExecutarOcioso();
    EXPECT_EQ(vezes, 1);
}

TEST(Ocioso, CanBeCancelledFromInside)
{
    QObject dono;
    int vezes = 0;
    quint64 numero = 0;
    numero = AoOcioso(&dono, [&] {
        ++vezes;
        CancelarOcioso(numero);
    });
    EXPECT_NE(numero, 0U);
    ExecutarOcioso();
    ExecutarOcioso();
    EXPECT_EQ(vezes, 1);
    CancelarOcioso(numero);
    CancelarOcioso(999999);
}

TEST(Ocioso, OwnerDestroyedByAnEarlierUpdateIsLeftOut)
{
    QObject primeiro;
    auto *segundo = new QObject;
    int vezes = 0;
    AoOcioso(&primeiro, [&] {
        delete segundo;
        segundo = nullptr;
    });
    AoOcioso(segundo, [&] { ++vezes; });
    ExecutarOcioso();
    EXPECT_EQ(vezes, 0);
}

TEST(Ocioso, NoSecondPassBeginsInsideOne)
{
    QObject dono;
    int vezes = 0;
    AoOcioso(&dono, [&] {
        if (++vezes == 1) {
            Girar(10);
            ExecutarOcioso();
        }
    });
    ExecutarOcioso();
    EXPECT_EQ(vezes, 1);
}

TEST(Ocioso, FailingUpdateIsReportedOnceUntilItSucceeds)
{
    const TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    QObject dono;
    bool falha = true;
    int vezes = 0, depois = 0;
    AoOcioso(&dono, [&] {
        ++vezes;
        if (falha)
            throw std::runtime_error("x");
    });
    AoOcioso(&dono, [&] { ++depois; });
    ExecutarOcioso();
    ExecutarOcioso();
    EXPECT_EQ(erros, 1);
    EXPECT_EQ(vezes, 2) << "it is tried again";
    EXPECT_EQ(depois, 2) << "the others run";
    falha = false;
    ExecutarOcioso();
    falha = true;
    ExecutarOcioso();
    EXPECT_EQ(erros, 2);
}
