// A long in-memory list scrolled: every step is painted at once, and rightly.

#include "grids/UDBClientBasFr.h"

#include "platform/support/TDBGrid.h"

#include <QElapsedTimer>
#include <QScreen>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

using namespace ficha;

namespace
{

constexpr int Linhas = 10000;
/** Figures are held to their bounds in the release build only. */
#ifdef NDEBUG
constexpr bool Cobrar = true;
#else
constexpr bool Cobrar = false;
#endif

class TListaFr : public TDBClientBasFr
{
public:
    explicit TListaFr(TChave chave) : TDBClientBasFr(chave) {}
    void CriarCampos() override
    {
        AdStringField(QStringLiteral("nome"), 60, QStringLiteral("Nome"), taLeftJustify);
        AdFloatField(QStringLiteral("valor"), QStringLiteral("Valor"), QStringLiteral("#,##0.00"),
                     taRightJustify);
    }
    void PreencherDados() override
    {
        CDS->DisableControls();
        for (int i = 0; i < Linhas; ++i)
            CDS->AppendRecord({QStringLiteral("Conceição %1").arg(i), i * 1.17});
        CDS->First();
        CDS->EnableControls();
    }
};

/** Milliseconds. */
template <typename F>
double Medir(F &&f)
{
    QElapsedTimer relogio;
    relogio.start();
    f();
    return double(relogio.nsecsElapsed()) / 1e6;
}

} // namespace

/** The median is what is charged: the slowest steps of a busy machine are those that another
 * program took its turn in. Each page, row and turn of the wheel is painted at once, and what
 * stands on the screen afterwards is what a window painted afresh would show. */
TEST(Rolagem, TenThousandRowsScrollWithoutTearingOrLag)
{
    QWidget tela;
    TListaFr *fr = Criar<TListaFr>(&tela);
    tela.resize(541, 217);
    fr->DoShow();
    tela.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
    TDBGrid *grid = fr->DBGrid1;
    grid->setFocus();
    std::vector<double> tempos;
    const auto passo = [&](const std::function<void()> &agir) {
        tempos.push_back(Medir([&] {
            agir();
            QCoreApplication::processEvents();
        }));
        if (tempos.size() % 25 == 0) {
            const QImage aVista = tela.screen()->grabWindow(tela.winId()).toImage();
            EXPECT_EQ(aVista.convertToFormat(QImage::Format_RGB32),
                      tela.grab().toImage().convertToFormat(QImage::Format_RGB32))
                << "after step " << tempos.size();
        }
    };
    const auto rodar = [&](int graus) {
        const QPoint meio = grid->viewport()->rect().center();
        QWheelEvent roda(meio, grid->viewport()->mapToGlobal(meio), {}, QPoint(0, graus * 8),
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(grid->viewport(), &roda);
    };
    for (int i = 0; i < 100; ++i)
        passo([&] { QTest::keyClick(grid, Qt::Key_PageDown); });
    for (int i = 0; i < 100; ++i)
        passo([&] { QTest::keyClick(grid, Qt::Key_Down); });
    for (int i = 0; i < 100; ++i)
        passo([&] { rodar(i < 50 ? -15 : 15); });
    for (int i = 0; i < 50; ++i)
        passo([&] {
            QTest::keyClick(grid, i % 2 ? Qt::Key_Home : Qt::Key_End, Qt::ControlModifier);
        });
    EXPECT_EQ(fr->CDS->RecNo(), 1);
    std::sort(tempos.begin(), tempos.end());
    const double mediana = tempos[tempos.size() / 2];
    const double quase = tempos[tempos.size() * 99 / 100];
    std::printf("[ FIGURES  ] 10000 rows, scrolled and painted: median %.2f ms, 99 in 100 within "
                "%.2f ms, worst %.2f ms\n",
                mediana, quase, tempos.back());
    EXPECT_TRUE(!Cobrar || mediana < 16);
}
