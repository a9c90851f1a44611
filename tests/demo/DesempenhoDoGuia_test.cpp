// What the address frame costs on a large guide. The figures are printed in every build and bounded
// in the release one. FICHA_GUIA_RUAS sets the number of streets; a million
// takes some ten seconds to make.

#include "demo/UBancoComercial.h"
#include "demo/UGuiaDeCeps.h"
#include "input/UConsultaDoGuia.h"
#include "input/UEnderecoBasFr.h"
#include "platform/database/ConexD.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TMaskEdit.h"
#include "support/BancoTemp.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include <algorithm>
#include <functional>

#include <gtest/gtest.h>

using namespace comercial;
using namespace ficha;

namespace
{

#ifdef NDEBUG
constexpr int RuasDeSempre = 200000;
constexpr bool Cobrar = true;
#else
constexpr int RuasDeSempre = 20000;
constexpr bool Cobrar = false;
#endif

class DesempenhoDoGuiaTest : public testing::Test
{
protected:
    DesempenhoDoGuiaTest() : pasta(PastaDeBancos()), antes(ConexD().SQLConnection)
    {
        AbrirBancoComercial(conexao, pasta.filePath(QStringLiteral("comercial.fdb")));
        bool numero = false;
        const int pedidas = qEnvironmentVariableIntValue("FICHA_GUIA_RUAS", &numero);
        const int ruas = numero ? pedidas : RuasDeSempre;
        QElapsedTimer relogio;
        relogio.start();
        GerarGuia(conexao, ruas);
        std::printf("guide of %d streets made in %.1f s\n", ruas, double(relogio.elapsed()) / 1000);
        fr = Criar<TEnderecoBasFr>(&janela);
        janela.resize(540, 200);
        janela.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&janela));
        fr->Tocado = true;
        fr->Zerar();
        fr->PegarState(dsInsert);
    }
    ~DesempenhoDoGuiaTest() override { ConexD().SQLConnection = antes; }

    /** First column of each of the rows. */
    QStringList Coluna(const QString &sql)
    {
        TCustomBRQuery linhas;
        linhas.Open(sql);
        QStringList valores;
        for (; !linhas.Eof(); linhas.Next())
            valores << linhas.Fields(0)->AsString();
        return valores;
    }
    int Numero(const QString &sql) { return ValorDoBanco(conexao, sql).AsInteger(); }

    /** The median time of something done once for each value, in milliseconds; what prepares each
     * of them is not counted. */
    static double Mediana(const char *nome, const QStringList &valores,
                          const std::function<void(const QString &)> &fazer,
                          const std::function<void()> &preparar = {})
    {
        std::vector<double> tempos;
        for (const QString &valor : valores) {
            if (preparar)
                preparar();
            QElapsedTimer relogio;
            relogio.start();
            fazer(valor);
            tempos.push_back(double(relogio.nsecsElapsed()) / 1e6);
        }
        std::sort(tempos.begin(), tempos.end());
        const double meio = tempos[tempos.size() / 2];
        std::printf("%s: median %.2f ms, worst %.2f ms of %zu\n", nome, meio, tempos.back(),
                    tempos.size());
        return meio;
    }
    static void Cobrado(double ms, double limite)
    {
        if (Cobrar) {
            EXPECT_LT(ms, limite);
        }
    }

    QTemporaryDir pasta;
    TSQLConnection conexao;
    TSQLConnection *antes;
    QWidget janela;
    TEnderecoBasFr *fr = nullptr;
};

} // namespace

TEST_F(DesempenhoDoGuiaTest, TheAddressAnswersAtOnce)
{
    const int passo =
        std::max(1, Numero(QStringLiteral("select max(logr_cod) from cep_logr")) / 50);
    const QStringList ceps =
        Coluna(QStringLiteral("select cep from cep_logr where mod(logr_cod, %1) = 0").arg(passo));
    Cobrado(Mediana("CEP typed and left", ceps,
                    [&](const QString &cep) {
                        fr->Zerar();
                        fr->CEPMaskEdit->setFocus();
                        fr->CEPMaskEdit->SetText(cep);
                        fr->UFComboBox->setFocus();
                        ASSERT_EQ(fr->CEPMaskEdit->GetText(), cep);
                        ASSERT_GE(fr->LogrComboBox->GetItemIndex(), 0);
                    }),
            50);
    fr->PegarState(dsBrowse);
    fr->Zerar();
    const auto escolhido = [](const TComboBox *lista) {
        return QString::number(lista->GetObjeto(lista->GetItemIndex()));
    };
    Cobrado(Mediana("state", fr->UFComboBox->GetItems(),
                    [&](const QString &sigla) {
                        fr->UFPegar(sigla);
                        const QChar uf(ushort(escolhido(fr->UFComboBox).toInt()));
                        ASSERT_EQ(fr->MunQ->Codigo(), QuotedStr(uf));
                        ASSERT_GT(fr->MunComboBox->Count(), 0);
                    }),
            20);
    fr->UFPegar(QStringLiteral("SP"));
    Cobrado(Mediana("município", fr->MunComboBox->GetItems().mid(0, 100),
                    [&](const QString &nome) {
                        fr->MunPegar(nome);
                        ASSERT_EQ(fr->BaiQ->Codigo(), escolhido(fr->MunComboBox));
                        ASSERT_GT(fr->BaiComboBox->Count(), 0);
                    }),
            20);
    fr->MunPegar(QStringLiteral("São Paulo"));
    Cobrado(Mediana("bairro", fr->BaiComboBox->GetItems().mid(0, 100),
                    [&](const QString &nome) {
                        fr->BaiPegar(nome);
                        ASSERT_EQ(fr->LogrQ->Codigo(), escolhido(fr->BaiComboBox));
                    }),
            20);
    Cobrado(
        Mediana("new address", QStringList(20, QString()), [&](const QString &) { fr->Zerar(); }),
        30);
}

TEST_F(DesempenhoDoGuiaTest, EveryQueryRunsThroughAnIndexOnALargeGuideToo)
{
    fr->MunQ->SetCodigo(QStringLiteral("'Y'"));
    fr->BaiQ->SetCodigo(QStringLiteral("5"));
    fr->LogrQ->SetCodigo(QStringLiteral("5"));
    fr->TestaCEPQ->SetCodigo(QStringLiteral("'01045001'"));
    for (TSQLQuery *q :
         {fr->UFQ, fr->MunQ, fr->BaiQ, fr->LogrQ, fr->CEPPeloLogrCodQ, fr->TestaCEPQ}) {
        const std::string plano = q->Plano().toStdString();
        EXPECT_EQ(plano.find("NATURAL"), std::string::npos) << plano;
        EXPECT_NE(plano.find(q == fr->UFQ ? "ORDER" : "INDEX"), std::string::npos) << plano;
    }
}

TEST_F(DesempenhoDoGuiaTest, LongListsCostTheirRowsAndNoMore)
{
    constexpr int Ruas = 5000;
    conexao.Executar(
        QStringLiteral("execute block as declare i integer = 0; declare c integer; begin select "
                       "max(logr_cod) from cep_logr into c; while (i < %1) do begin i = i + 1; "
                       "insert into cep_logr values (:c + :i, 1, 'R', 'Das Flores ' || lpad(:i, "
                       "5, '0'), '', '69900000'); end end")
            .arg(Ruas));
    Cobrado(Mediana("5,000 streets", QStringList(20, QString()),
                    [&](const QString &) { fr->PreencherLogrComboBox(1); }),
            50);
    ASSERT_GE(fr->LogrComboBox->Count(), Ruas);
    fr->LogrComboBox->setFocus();
    QCoreApplication::processEvents();
    // A list reads its texts once: only the first key after it was filled pays for them.
    const auto encher = [&] {
        fr->LogrComboBox->SetDroppedDown(false);
        fr->PreencherLogrComboBox(1);
        fr->LogrComboBox->SetText(QString());
        QCoreApplication::processEvents();
        ASSERT_FALSE(fr->LogrComboBox->DroppedDown());
    };
    const auto abrir = [&](const QString &letra) {
        QTest::keyClicks(fr->LogrComboBox, letra);
        ASSERT_TRUE(fr->LogrComboBox->DroppedDown());
    };
    const QStringList letras(11, QStringLiteral("r"));
    Cobrado(Mediana("key that opens the list", letras, abrir, encher), 100);
    EXPECT_TRUE(fr->LogrComboBox->DroppedDown());
    Cobrado(Mediana("key in the open list",
                    QStringLiteral("ua das flores 0499").split(QString(), Qt::SkipEmptyParts),
                    [&](const QString &c) { QTest::keyClicks(fr->LogrComboBox->view(), c); }),
            20);
    EXPECT_EQ(fr->LogrComboBox->GetText(), QStringLiteral("RUA DAS FLORES 04990"));
}
