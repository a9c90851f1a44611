#include "input/UBarCodes.h"

#include "platform/core/Erros.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

using namespace ficha;

namespace
{

QString T(const char *texto)
{
    return QString::fromUtf8(texto);
}

const QStringList Validos = {T("96385074"),       T("11111115"),       T("23456785"),
                             T("036000291452"),   T("012345000058"),   T("074887615305"),
                             T("7891000315507"),  T("4012345678901"),  T("5901234123457"),
                             T("7896094910553"),  T("10012345678902"), T("11111111111113"),
                             T("05001234567890"), T("00000000")};

/** A code of the length with its check digit right, found by trying. */
QString Sorteado(std::mt19937 &sorte, int tamanho)
{
    QString codigo;
    for (int i = 0; i < tamanho - 1; ++i)
        codigo += QChar(char16_t(u'0' + sorte() % 10));
    QString achado;
    for (char16_t c = u'0'; c <= u'9'; ++c) {
        if (!BarCodValido(codigo + QChar(c)))
            continue;
        EXPECT_EQ(achado, QString()) << "only one check digit is right";
        achado = codigo + QChar(c);
    }
    EXPECT_NE(achado, QString()) << "every body has a check digit: " << codigo.toStdString();
    return achado;
}

} // namespace

TEST(BarCodes, KnownCodesAreValid)
{
    for (const QString &codigo : Validos)
        EXPECT_TRUE(BarCodValido(codigo)) << codigo.toStdString();
}

TEST(BarCodes, KnownWrongCodesAreInvalid)
{
    for (const char *codigo :
         {"40113455", "11111116", "883484708909", "017000046493", "4012342678901", "1012345678905",
          "6291041500214", "11111111111112", "02345678901281", "7891000315500", "96385075"})
        EXPECT_FALSE(BarCodValido(T(codigo))) << codigo;
}

TEST(BarCodes, EachLengthHasItsOwnFunctionAndRefusesTheOthers)
{
    EXPECT_TRUE(EAN8Valido(T("96385074")));
    EXPECT_FALSE(EAN8Valido(T("96385075")));
    EXPECT_TRUE(UPCAValido(T("036000291452")));
    EXPECT_FALSE(UPCAValido(T("036000291453")));
    EXPECT_TRUE(EAN13Valido(T("7891000315507")));
    EXPECT_FALSE(EAN13Valido(T("7891000315500")));
    EXPECT_TRUE(EAN14Valido(T("10012345678902")));
    EXPECT_FALSE(EAN14Valido(T("10012345678901")));
    for (const QString &codigo : Validos) {
        const auto n = codigo.size();
        EXPECT_EQ(EAN8Valido(codigo), n == 8);
        EXPECT_EQ(UPCAValido(codigo), n == 12);
        EXPECT_EQ(EAN13Valido(codigo), n == 13);
        EXPECT_EQ(EAN14Valido(codigo), n == 14);
    }
}

TEST(BarCodes, OtherLengthsAreInvalidAndNotRead)
{
    for (const int n : {0, 1, 7, 9, 10, 11, 15, 18, 100}) {
        EXPECT_FALSE(BarCodValido(QString(n, u'0'))) << n;
        EXPECT_NO_THROW(EXPECT_FALSE(BarCodValido(QString(n, u'x')))) << n;
    }
}

TEST(BarCodes, BlanksAroundTheCodeArePassedOver)
{
    EXPECT_TRUE(BarCodValido(T("  7891000315507\t ")));
    EXPECT_TRUE(BarCodValido(T(" 96385074")));
    EXPECT_FALSE(BarCodValido(T("   ")));
    EXPECT_FALSE(EAN8Valido(T(" 96385074"))) << "the functions of one length trim nothing";
}

TEST(BarCodes, ASumThatEndsInZeroHasTheCheckDigitZero)
{
    EXPECT_TRUE(EAN8Valido(T("17000000")));
    EXPECT_TRUE(EAN13Valido(T("0310000000000"))) << "9 + 1";
    for (char16_t c = u'1'; c <= u'9'; ++c)
        EXPECT_FALSE(EAN8Valido(T("1700000") + QChar(c)));
}

TEST(BarCodes, WhatIsNoDigitRaisesWhereADigitIsRead)
{
    for (const QString &codigo : Validos) {
        for (const char *mau : {"x", "-", " ", ",", "+", "٣", "５", "²"}) {
            for (qsizetype i = 0; i < codigo.size() - 1; ++i) {
                QString errado = codigo;
                errado.replace(i, 1, T(mau));
                if (errado.trimmed().size() == errado.size()) {
                    EXPECT_THROW((void)BarCodValido(errado), EVariantError) << errado.toStdString();
                }
            }
            if (!T(mau).trimmed().isEmpty()) {
                EXPECT_FALSE(BarCodValido(codigo.chopped(1) + T(mau)))
                    << "the last character is compared as text";
            }
        }
    }
    EXPECT_THROW((void)EAN8Valido(T(" 6385074")), EVariantError);
}

TEST(BarCodes, EverySingleWrongDigitIsCaught)
{
    std::mt19937 sorte(7891);
    for (const int tamanho : {8, 12, 13, 14}) {
        for (int vez = 0; vez < 40; ++vez) {
            const QString codigo = Sorteado(sorte, tamanho);
            for (int i = 0; i < tamanho; ++i) {
                for (char16_t c = u'0'; c <= u'9'; ++c) {
                    QString outro = codigo;
                    outro[i] = c;
                    EXPECT_EQ(BarCodValido(outro), outro == codigo) << outro.toStdString();
                }
            }
        }
    }
}

TEST(BarCodes, EveryTranspositionOfNeighboursIsCaughtExceptDifferencesOfFive)
{
    std::mt19937 sorte(5507);
    int escaparam = 0;
    for (const int tamanho : {8, 12, 13, 14}) {
        for (int vez = 0; vez < 60; ++vez) {
            const QString codigo = Sorteado(sorte, tamanho);
            for (int i = 0; i + 1 < tamanho; ++i) {
                QString trocado = codigo;
                trocado[i] = codigo[i + 1];
                trocado[i + 1] = codigo[i];
                const int diferenca = std::abs(codigo[i].digitValue() - codigo[i + 1].digitValue());
                const bool escapa = diferenca == 0 || diferenca == 5;
                EXPECT_EQ(BarCodValido(trocado), escapa) << trocado.toStdString();
                escaparam += diferenca == 5 ? 1 : 0;
            }
        }
    }
    EXPECT_GT(escaparam, 0) << "the exception was met";
}
