#include "platform/core/Documentos.h"

#include <QRandomGenerator>
#include <QSet>
#include <QStringList>

#include <array>
#include <numeric>

using namespace ficha;

namespace
{

QStringList Palavras(const char *texto)
{
    return QString::fromLatin1(texto).split(u' ');
}

QStringList CPFsValidos()
{
    return Palavras("15886489070 90889477086 40364478829 96271845860 36641876870 29537995593 "
                    "76616598837 24843803480 88641577947 34608514300 47393545608 35629682563 "
                    "52998224725");
}

QStringList CNPJsValidos()
{
    return Palavras("11017153000249 11980459000115 14847283000540 16727230000197 61882613000194 "
                    "69435154000102 01838723000127 73797980000179 23693443000100 B1222333000103 "
                    "C1222333000167 E1222333000174 12ABC345000188");
}

QStringList GTINsValidos()
{
    return Palavras("96385074 11111115 23456785 036000291452 012345000058 074887615305 "
                    "7891000315507 4012345678901 5901234123457 7896094910553 10012345678902 "
                    "11111111111113 05001234567890");
}

/** Random digits, the same at each run. */
QString Digitos(QRandomGenerator &acaso, int n)
{
    QString texto;
    for (int i = 0; i < n; ++i)
        texto += QChar(u'0' + acaso.bounded(10));
    return texto;
}

QString BaseAlfanumerica(QRandomGenerator &acaso)
{
    static const QString Letras = QStringLiteral("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    QString texto;
    for (int i = 0; i < 12; ++i)
        texto += Letras.at(acaso.bounded(int(Letras.size())));
    return texto;
}

/** The remainder of a sum with the given weights, reckoned apart from the code under test. */
template <std::size_t N>
int Resto(const QString &texto, const std::array<int, N> &pesos)
{
    int soma = 0;
    for (std::size_t i = 0; i < N; ++i)
        soma += (texto.at(int(i)).unicode() - '0') * pesos[i];
    return soma % 11;
}

constexpr std::array<int, 9> PesosCPF1{10, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr std::array<int, 10> PesosCPF2{11, 10, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr std::array<int, 12> PesosCNPJ1{5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr std::array<int, 13> PesosCNPJ2{6, 5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2};

/** The remainders 0 and 1 share the check digit 0: all that the modulo 11 rule cannot tell. */
bool TrocaZeroEUm(int antes, int depois)
{
    return antes + depois == 1;
}

/** The last digit of the base swapped with the first check digit: the first sum agrees with the new
 * digit only for 0 and 1, and for 1 and 0 only where that 0 stands for the remainder 1. */
bool EscapaNoVerificador(const QString &numero, int i, int resto1)
{
    const QChar ultimo = numero.at(i);
    const QChar verificador = numero.at(i + 1);
    return (ultimo == u'0' && verificador == u'1') ||
           (ultimo == u'1' && verificador == u'0' && resto1 == 1);
}

QString ComCaractere(QString texto, int i, QChar c)
{
    texto[i] = c;
    return texto;
}

QString Trocado(QString texto, int i)
{
    const QChar c = texto.at(i);
    texto[i] = texto.at(i + 1);
    texto[i + 1] = c;
    return texto;
}

} // namespace

TEST(CPF, AcceptsTheValidOnesBareAndMasked)
{
    for (const QString &cpf : CPFsValidos()) {
        EXPECT_TRUE(CPFValido(cpf)) << cpf.toStdString();
        const QString masc =
            cpf.left(3) + u'.' + cpf.mid(3, 3) + u'.' + cpf.mid(6, 3) + u'-' + cpf.mid(9);
        EXPECT_TRUE(CPFValido(masc));
        EXPECT_TRUE(CPFValido(u' ' + masc + QStringLiteral("\r\n")));
        EXPECT_EQ(CPFComMasc(cpf), masc);
        EXPECT_EQ(CPFComMasc(masc), masc);
        EXPECT_EQ(CPFSemMasc(masc), cpf);
        EXPECT_EQ(DigitosCPF(cpf.left(9)), cpf.mid(9));
        EXPECT_EQ(DigitosCPF(masc.left(11)), cpf.mid(9));
    }
    EXPECT_TRUE(CPFValido(QStringLiteral("529982247-25")));
    EXPECT_TRUE(CPFValido(QStringLiteral("529 982 247 25")));
}

TEST(CPF, RefusesTheInvalidOnes)
{
    for (const QString &cpf :
         Palavras("11144477732 33378271000 20044826079 24172316085 25886489070 11257245286 "
                  "21319801320 29537995592 29537995594 09907586561 52998224735 22222222222 "
                  "88888888888"))
        EXPECT_FALSE(CPFValido(cpf)) << cpf.toStdString();
}

TEST(CPF, OneDigitElevenTimesMeetsTheArithmeticAndIsRefused)
{
    for (int d = 0; d < 10; ++d) {
        const QString cpf(11, QChar(u'0' + d));
        EXPECT_EQ(DigitosCPF(cpf.left(9)), cpf.mid(9));
        EXPECT_FALSE(CPFValido(cpf));
        EXPECT_FALSE(CPFValido(CPFComMasc(cpf)));
    }
}

TEST(CPF, OnlyElevenDigitsAreOne)
{
    for (const char *texto : {"", " ", "5299822472", "529982247250", "12ABC345000188",
                              "52998224725x", "x52998224725", "529,982,247-25", "529.982.247_25",
                              "-52998224725", "52998224725-", "5.2998224725e10", "...", "____"}) {
        EXPECT_FALSE(CPFValido(QString::fromLatin1(texto))) << texto;
        EXPECT_EQ(CPFSemMasc(QString::fromLatin1(texto)), QString());
        EXPECT_EQ(CPFComMasc(QString::fromLatin1(texto)), QString::fromLatin1(texto));
    }
    EXPECT_FALSE(CPFValido(QStringLiteral("٥٢٩٩٨٢٢٤٧٢٥"))) << "digits of another script";
    EXPECT_EQ(DigitosCPF(QStringLiteral("52998224")), QString());
    EXPECT_EQ(DigitosCPF(QStringLiteral("52998224a")), QString());
    EXPECT_EQ(DigitosCPF(QStringLiteral("5299822472")), QString());
}

/*
 * The remainders 0 and 1 both give the digit 0, so that the arithmetic itself has holes. Their
 * exact set: the first digit off by one where the first sum changes between those two (its weight
 * in the second sum is 11, that is none), and the sixth off by two or nine where both sums do.
 */
TEST(CPF, EverySingleWrongDigitIsCaughtSaveWhereTheArithmeticCannot)
{
    QRandomGenerator acaso(11);
    int escapam = 0;
    int escapamNaSexta = 0;
    for (int n = 0; n < 2000; ++n) {
        const QString base = Digitos(acaso, 9);
        const QString cpf = base + DigitosCPF(base);
        for (int i = 0; i < 11; ++i) {
            for (char16_t c = u'0'; c <= u'9'; ++c) {
                if (cpf.at(i) == c)
                    continue;
                const QString errado = ComCaractere(cpf, i, c);
                const int passo = std::abs(c - cpf.at(i).unicode());
                const bool r1 = TrocaZeroEUm(Resto(cpf, PesosCPF1), Resto(errado, PesosCPF1));
                const bool r2 = TrocaZeroEUm(Resto(cpf, PesosCPF2), Resto(errado, PesosCPF2));
                const bool escapa = (i == 0 && passo == 1 && r1) ||
                                    (i == 5 && (passo == 2 || passo == 9) && r1 && r2);
                ASSERT_EQ(CPFValido(errado), escapa)
                    << cpf.toStdString() << " " << errado.toStdString();
                escapam += escapa ? 1 : 0;
                escapamNaSexta += escapa && i == 5 ? 1 : 0;
            }
        }
    }
    // About 2 in 11 numbers have one such neighbour among their 99.
    EXPECT_GT(escapam, 2000 * 2 / 11 * 8 / 10);
    EXPECT_LT(escapam, 2000 * 2 / 11 * 12 / 10);
    EXPECT_GT(escapamNaSexta, 0);
}

/* Neighbours swapped change both sums by the same step: it escapes where the digits differ by one
 * and both sums change between the remainders 0 and 1. */
TEST(CPF, EverySwapOfUnlikeNeighboursIsCaughtSaveWhereTheArithmeticCannot)
{
    QRandomGenerator acaso(12);
    int escapam = 0;
    for (int n = 0; n < 10000; ++n) {
        const QString base = Digitos(acaso, 9);
        const QString cpf = base + DigitosCPF(base);
        for (int i = 0; i + 1 < 11; ++i) {
            if (cpf.at(i) == cpf.at(i + 1))
                continue;
            const QString errado = Trocado(cpf, i);
            const int passo = std::abs(cpf.at(i).unicode() - cpf.at(i + 1).unicode());
            const bool r1 = TrocaZeroEUm(Resto(cpf, PesosCPF1), Resto(errado, PesosCPF1));
            const bool r2 = TrocaZeroEUm(Resto(cpf, PesosCPF2), Resto(errado, PesosCPF2));
            const bool daBase = i < 8 && passo == 1 && r1 && r2;
            const bool doVerificador =
                i == 8 && r2 && EscapaNoVerificador(cpf, i, Resto(cpf, PesosCPF1));
            ASSERT_EQ(CPFValido(errado), daBase || doVerificador) << cpf.toStdString() << " " << i;
            escapam += daBase ? 1 : 0;
        }
    }
    EXPECT_GT(escapam, 0);
    EXPECT_LT(escapam, 10000 * 8 / 100);
}

TEST(CNPJ, AcceptsTheValidOnesBareAndMasked)
{
    for (const QString &cnpj : CNPJsValidos()) {
        EXPECT_TRUE(CNPJValido(cnpj)) << cnpj.toStdString();
        const QString masc = cnpj.left(2) + u'.' + cnpj.mid(2, 3) + u'.' + cnpj.mid(5, 3) + u'/' +
                             cnpj.mid(8, 4) + u'-' + cnpj.mid(12);
        EXPECT_TRUE(CNPJValido(masc));
        EXPECT_TRUE(CNPJValido(u' ' + masc + u' '));
        EXPECT_EQ(CNPJComMasc(cnpj), masc);
        EXPECT_EQ(CNPJSemMasc(masc), cnpj);
        EXPECT_EQ(DigitosCNPJ(cnpj.left(12)), cnpj.mid(12));
        EXPECT_EQ(DigitosCNPJ(masc.left(15)), cnpj.mid(12));
    }
}

TEST(CNPJ, SmallLettersAreTheirCapitals)
{
    EXPECT_TRUE(CNPJValido(QStringLiteral("12.abc.345/0001-88")));
    EXPECT_EQ(CNPJSemMasc(QStringLiteral("12abc345000188")), QStringLiteral("12ABC345000188"));
    EXPECT_EQ(CNPJComMasc(QStringLiteral("12abc345000188")), QStringLiteral("12.ABC.345/0001-88"));
    EXPECT_EQ(DigitosCNPJ(QStringLiteral("12abc3450001")), QStringLiteral("88"));
    // A capital of the alphabet, and yet no letter of it: dotless i.
    EXPECT_FALSE(CNPJValido(QStringLiteral("\u01312ABC345000188")));
    EXPECT_EQ(CNPJSemMasc(QStringLiteral("\u01312ABC34500018")), QString());
}

TEST(CNPJ, RefusesTheInvalidOnes)
{
    for (const QString &cnpj :
         Palavras("53797980000179 36946762000161 26051576000157 41142260007182 54550752000154 "
                  "26637142000168 74221325000160 12ABC34501DE36 ABCDEFGHIJKL81 AA345678000199"))
        EXPECT_FALSE(CNPJValido(cnpj)) << cnpj.toStdString();
}

TEST(CNPJ, OfOneDigitRepeatedOnlyZerosMeetTheArithmeticAndAreRefused)
{
    EXPECT_EQ(DigitosCNPJ(QString(12, u'0')), QStringLiteral("00"));
    EXPECT_FALSE(CNPJValido(QString(14, u'0')));
    for (int d = 1; d < 10; ++d) {
        const QString cnpj(14, QChar(u'0' + d));
        EXPECT_NE(DigitosCNPJ(cnpj.left(12)), cnpj.mid(12));
        EXPECT_FALSE(CNPJValido(cnpj));
    }
}

TEST(CNPJ, OnlyFourteenCharactersOfItsShapeAreOne)
{
    for (const char *texto :
         {"", "1101715300024", "110171530002490", "12ABC3450001A8", "12ABC34500018A", "12.ABC",
          "11017153000249x", "11,017,153/0002-49", "-11017153000249", "52998224725",
          "12ABC345\x1f"
          "0188"}) {
        EXPECT_FALSE(CNPJValido(QString::fromLatin1(texto))) << texto;
        EXPECT_EQ(CNPJSemMasc(QString::fromLatin1(texto)), QString()) << texto;
        EXPECT_EQ(CNPJComMasc(QString::fromLatin1(texto)), QString::fromLatin1(texto));
    }
    EXPECT_FALSE(CNPJValido(QStringLiteral("12ÁBC345000188")));
    EXPECT_EQ(DigitosCNPJ(QStringLiteral("12ABC345000")), QString());
    EXPECT_EQ(DigitosCNPJ(QStringLiteral("12ABC345000188")), QString());
}

TEST(CNPJ, IsNeverACPF)
{
    for (const QString &cnpj : CNPJsValidos())
        EXPECT_FALSE(CPFValido(cnpj));
    for (const QString &cpf : CPFsValidos())
        EXPECT_FALSE(CNPJValido(cpf));
}

/*
 * Its holes: a character for another whose value is 11, 22 or 33 away (6 and A, A and L: no
 * remainder of 11 tells them apart), and the first, fifth and ninth place, whose two weights are
 * opposites, where both sums change between the remainders 0 and 1.
 */
TEST(CNPJ, EverySingleWrongCharacterIsCaughtSaveWhereTheArithmeticCannot)
{
    QRandomGenerator acaso(13);
    int numericos = 0;
    int congruentes = 0;
    for (int n = 0; n < 600; ++n) {
        const bool numerico = n % 2 == 0;
        const QString base = numerico ? Digitos(acaso, 12) : BaseAlfanumerica(acaso);
        const QString cnpj = base + DigitosCNPJ(base);
        for (int i = 0; i < 14; ++i) {
            const char16_t maior = numerico || i >= 12 ? u'9' : u'Z';
            for (char16_t c = u'0'; c <= maior; ++c) {
                if (cnpj.at(i) == c || (c > u'9' && c < u'A'))
                    continue;
                const QString errado = ComCaractere(cnpj, i, c);
                const bool congruente = i < 12 && (c - cnpj.at(i).unicode()) % 11 == 0;
                const bool r1 = TrocaZeroEUm(Resto(cnpj, PesosCNPJ1), Resto(errado, PesosCNPJ1));
                const bool r2 = TrocaZeroEUm(Resto(cnpj, PesosCNPJ2), Resto(errado, PesosCNPJ2));
                const bool oposto = (i == 0 || i == 4 || i == 8) && r1 && r2;
                ASSERT_EQ(CNPJValido(errado), congruente || oposto)
                    << cnpj.toStdString() << " " << errado.toStdString();
                numericos += numerico && oposto ? 1 : 0;
                congruentes += congruente ? 1 : 0;
                ASSERT_FALSE(numerico && congruente);
            }
        }
    }
    // Nine in two hundred numbers have such a neighbour among their 126.
    EXPECT_GT(numericos, 0);
    EXPECT_LT(numericos, 300 * 8 / 100);
    EXPECT_GT(congruentes, 0);
}

/* As with the CPF, save at the two places where the weights start anew: there a swap that is not
 * between values a multiple of 11 apart is always caught. */
TEST(CNPJ, EverySwapOfUnlikeNeighboursIsCaughtSaveWhereTheArithmeticCannot)
{
    QRandomGenerator acaso(14);
    int escapam = 0;
    for (int n = 0; n < 8000; ++n) {
        const QString base = n % 2 ? Digitos(acaso, 12) : BaseAlfanumerica(acaso);
        const QString cnpj = base + DigitosCNPJ(base);
        for (int i = 0; i + 1 < 14; ++i) {
            if (cnpj.at(i) == cnpj.at(i + 1))
                continue;
            const QString errado = Trocado(cnpj, i);
            const int passo = cnpj.at(i).unicode() - cnpj.at(i + 1).unicode();
            const bool r1 = TrocaZeroEUm(Resto(cnpj, PesosCNPJ1), Resto(errado, PesosCNPJ1));
            const bool r2 = TrocaZeroEUm(Resto(cnpj, PesosCNPJ2), Resto(errado, PesosCNPJ2));
            const bool daBase = i < 11 && (passo % 11 == 0 || (r1 && r2 && i != 3 && i != 4));
            const bool doVerificador =
                i == 11 && r2 && EscapaNoVerificador(cnpj, i, Resto(cnpj, PesosCNPJ1));
            ASSERT_EQ(CNPJValido(errado), daBase || doVerificador)
                << cnpj.toStdString() << " " << i;
            escapam += daBase ? 1 : 0;
        }
    }
    EXPECT_GT(escapam, 0);
}

TEST(GTIN, AcceptsTheValidOnesOfEveryLength)
{
    for (const QString &gtin : GTINsValidos()) {
        EXPECT_TRUE(GTINValido(gtin)) << gtin.toStdString();
        EXPECT_TRUE(GTINValido(QStringLiteral("  ") + gtin + u' '));
        EXPECT_EQ(DigitoGTIN(gtin.chopped(1)), gtin.right(1));
    }
}

TEST(GTIN, RefusesTheInvalidOnes)
{
    for (const QString &gtin :
         Palavras("40113455 11111116 883484708909 017000046493 4012342678901 1012345678905 "
                  "6291041500214 11111111111112 02345678901281"))
        EXPECT_FALSE(GTINValido(gtin)) << gtin.toStdString();
}

TEST(GTIN, OnlyDigitsOfTheFourLengthsAreOne)
{
    for (const char *texto :
         {"", " ", "0", "789100031550", "78910003155070", "963850749", "7891000 315507",
          "7-891000-315507", "789100031550x", "A891000315507", "00000000000000000"})
        EXPECT_FALSE(GTINValido(QString::fromLatin1(texto))) << texto;
    EXPECT_EQ(DigitoGTIN(QStringLiteral("963850")), QString());
    EXPECT_EQ(DigitoGTIN(QStringLiteral("96385O7")), QString());
    // A sum that is a multiple of ten gives 0, never 10.
    EXPECT_EQ(DigitoGTIN(QStringLiteral("0000000")), QStringLiteral("0"));
    EXPECT_TRUE(GTINValido(QStringLiteral("00000000")));
}

/* No hole here: the weights 1 and 3 have no divisor in common with 10. */
TEST(GTIN, EverySingleWrongDigitIsCaught)
{
    QRandomGenerator acaso(15);
    for (const int tamanho : {8, 12, 13, 14}) {
        for (int n = 0; n < 300; ++n) {
            const QString corpo = Digitos(acaso, tamanho - 1);
            const QString gtin = corpo + DigitoGTIN(corpo);
            ASSERT_TRUE(GTINValido(gtin));
            for (int i = 0; i < tamanho; ++i) {
                for (char16_t c = u'0'; c <= u'9'; ++c) {
                    ASSERT_EQ(GTINValido(ComCaractere(gtin, i, c)), gtin.at(i) == c)
                        << gtin.toStdString();
                }
            }
        }
    }
}

/* Weights that differ by two: digits five apart change the sum by ten. */
TEST(GTIN, EverySwapOfUnlikeNeighboursIsCaughtUnlessTheyAreFiveApart)
{
    QRandomGenerator acaso(16);
    int escapam = 0;
    for (const int tamanho : {8, 12, 13, 14}) {
        for (int n = 0; n < 1000; ++n) {
            const QString corpo = Digitos(acaso, tamanho - 1);
            const QString gtin = corpo + DigitoGTIN(corpo);
            for (int i = 0; i + 1 < tamanho; ++i) {
                const int passo = std::abs(gtin.at(i).unicode() - gtin.at(i + 1).unicode());
                if (passo == 0)
                    continue;
                ASSERT_EQ(GTINValido(Trocado(gtin, i)), passo == 5) << gtin.toStdString();
                escapam += passo == 5 ? 1 : 0;
            }
        }
    }
    EXPECT_GT(escapam, 0);
}

TEST(DDD, ThereAreSixtySevenInTheTwentySevenStates)
{
    int validos = 0;
    QSet<QString> ufs;
    for (int ddd = -200; ddd <= 300; ++ddd) {
        EXPECT_EQ(DDDValido(ddd), !UFDoDDD(ddd).isEmpty());
        validos += DDDValido(ddd) ? 1 : 0;
        if (DDDValido(ddd))
            ufs.insert(UFDoDDD(ddd));
    }
    EXPECT_EQ(validos, 67);
    EXPECT_EQ(ufs.size(), 27);
}

TEST(DDD, BelongsToItsState)
{
    const QList<std::pair<int, const char *>> casos{
        {11, "SP"}, {19, "SP"}, {21, "RJ"}, {24, "RJ"}, {27, "ES"}, {38, "MG"},
        {41, "PR"}, {46, "PR"}, {47, "SC"}, {55, "RS"}, {61, "DF"}, {62, "GO"},
        {63, "TO"}, {66, "MT"}, {67, "MS"}, {68, "AC"}, {69, "RO"}, {77, "BA"},
        {79, "SE"}, {82, "AL"}, {83, "PB"}, {84, "RN"}, {87, "PE"}, {88, "CE"},
        {89, "PI"}, {91, "PA"}, {95, "RR"}, {96, "AP"}, {97, "AM"}, {99, "MA"}};
    for (const auto &[ddd, uf] : casos)
        EXPECT_EQ(UFDoDDD(ddd), QString::fromLatin1(uf)) << ddd;
    for (const int ddd : {0,  -11, 1,  10, 20, 23, 25, 26, 29, 30, 36, 39,  40,
                          50, 52,  56, 57, 60, 70, 72, 76, 78, 80, 90, 100, 111})
        EXPECT_FALSE(DDDValido(ddd)) << ddd;
}

TEST(CEP, BelongsToTheStateOfItsRange)
{
    const QList<std::pair<const char *, const char *>> casos{
        {"01045-001", "SP"}, {"01000000", "SP"},  {"19999999", "SP"},  {"20000000", "RJ"},
        {"29704-790", "ES"}, {"38057-090", "MG"}, {"45051-100", "BA"}, {"49004-000", "SE"},
        {"54230-640", "PE"}, {"57303-807", "AL"}, {"58416-300", "PB"}, {"59607-815", "RN"},
        {"62011-140", "CE"}, {"64000-290", "PI"}, {"65058-689", "MA"}, {"68040-835", "PA"},
        {"68899999", "PA"},  {"68900000", "AP"},  {"69039-736", "AM"}, {"69299999", "AM"},
        {"69300000", "RR"},  {"69399999", "RR"},  {"69400000", "AM"},  {"69900-156", "AC"},
        {"71020-631", "DF"}, {"72799999", "DF"},  {"72922-578", "GO"}, {"73000000", "DF"},
        {"73699999", "DF"},  {"73700000", "GO"},  {"76900-032", "RO"}, {"77410-140", "TO"},
        {"78020-290", "MT"}, {"79321-041", "MS"}, {"87999999", "PR"},  {"88330-514", "SC"},
        {"90000000", "RS"},  {"99999999", "RS"}};
    for (const auto &[cep, uf] : casos)
        EXPECT_EQ(UFDoCEP(QString::fromLatin1(cep)), QString::fromLatin1(uf)) << cep;
    for (const char *cep :
         {"", "00999999", "78900000", "78999-999", "0104500", "010450011", "O1045001", "-01045001"})
        EXPECT_EQ(UFDoCEP(QString::fromLatin1(cep)), QString()) << cep;
    EXPECT_EQ(CEPSemMasc(QStringLiteral("01.045-001")), QStringLiteral("01045001"));
    EXPECT_EQ(CEPSemMasc(QStringLiteral("01045")), QString());
}

TEST(CEP, EveryRangeOfAStateIsItsOwn)
{
    const QStringList ufs = Palavras(
        "AC AL AM AP BA CE DF ES GO MA MG MS MT PA PB PE PI PR RJ RN RO RR RS SC SE SP TO");
    for (const QString &uf : ufs) {
        const QList<TFaixaCEP> faixas = CEPDaUF(uf);
        const bool duas =
            uf == QStringLiteral("AM") || uf == QStringLiteral("DF") || uf == QStringLiteral("GO");
        EXPECT_EQ(faixas.size(), duas ? 2 : 1) << uf.toStdString();
        QString antes;
        for (const TFaixaCEP &f : faixas) {
            EXPECT_EQ(UFDoCEP(f.Primeiro), uf);
            EXPECT_EQ(UFDoCEP(f.Ultimo), uf);
            EXPECT_LT(f.Primeiro, f.Ultimo);
            EXPECT_LT(antes, f.Primeiro);
            antes = f.Ultimo;
        }
    }
    EXPECT_EQ(CEPDaUF(QStringLiteral("AM")),
              (QList<TFaixaCEP>{{QStringLiteral("69000000"), QStringLiteral("69299999")},
                                {QStringLiteral("69400000"), QStringLiteral("69899999")}}));
    EXPECT_EQ(CEPDaUF(QStringLiteral("SP")).front().Primeiro, QStringLiteral("01000000"));
    EXPECT_TRUE(CEPDaUF(QStringLiteral("XX")).isEmpty());
    EXPECT_TRUE(CEPDaUF(QString()).isEmpty());
}

TEST(Telefone, ItsShapeTellsFixedLineFromMobile)
{
    for (const char *fixo : {"32345678", "2123-4567", "5555 5555", " 4000-0000 "})
        EXPECT_EQ(TipoDoFone(QString::fromLatin1(fixo)), TTipoFone::Fixo) << fixo;
    for (const char *celular : {"987654321", "98765-4321", "9 8765-4321"})
        EXPECT_EQ(TipoDoFone(QString::fromLatin1(celular)), TTipoFone::Celular) << celular;
    for (const char *outro :
         {"", "12345678", "62345678", "98765432", "887654321", "3234567", "1132345678",
          "11987654321", "0800-123-4567", "ramal 23", "-32345678", "(11)32345678"})
        EXPECT_EQ(TipoDoFone(QString::fromLatin1(outro)), TTipoFone::Nenhum) << outro;
}
