#include "platform/database/TSQLQuery.h"

#include "platform/database/EDatabaseError.h"
#include "support/BancoTemp.h"

#include <QElapsedTimer>

#include <cfenv>
#include <cmath>

using namespace ficha;

namespace
{

const QString Tipos = QStringLiteral(R"(
    create table tipos (
        id integer not null primary key,
        c5 char(5), v40 varchar(40),
        si smallint, i integer, bi bigint,
        n92 numeric(9,2), n152 numeric(15,2), n184 numeric(18,4), n41 numeric(4,1),
        f float, d double precision,
        dt date, tm time, ts timestamp, b boolean,
        memo blob sub_type text, bin blob sub_type binary,
        oct char(3) character set octets, semc varchar(10) character set none,
        u8 varchar(20) character set utf8, mu8 blob sub_type text character set utf8);
)");

class TSQLQueryTest : public testing::Test
{
protected:
    TSQLQueryTest() { query.SetSQLConnection(&banco.Conexao()); }

    void Abrir(const QString &sql)
    {
        query.Close();
        query.SetSQL(sql);
        query.Open();
    }
    /** Stores one value in a column and reads the row back. */
    TField *Gravado(const QString &coluna, const QString &literal)
    {
        banco.Executar(QStringLiteral("update or insert into tipos (id, %1) values (1, %2)")
                           .arg(coluna, literal));
        Abrir(QStringLiteral("select %1 from tipos where id = 1").arg(coluna));
        return query.Fields(0);
    }

    TBancoTemp banco{Tipos};
    TSQLQuery query;
};

/** The amount as a screen would write it into a statement. */
QString Literal(double valor, int casas)
{
    return QString::number(valor, 'f', casas);
}

/** A query of one table whose text holds a value, which can be prepared ahead for any value. */
class TQueryAdiantada : public TSQLQuery
{
public:
    explicit TQueryAdiantada(TSQLConnection &na) { SetSQLConnection(&na); }
    using TSQLQuery::Adiantar;
    using TSQLQuery::Soltar;

    /** The rows whose column is this value, the text in quotes; what their v40 is. */
    QString Ler(const QString &coluna, const QString &valor)
    {
        Close();
        SetSQL(Texto(coluna, u'\'' + valor + u'\''));
        SetValorAdiantado(valor);
        Open();
        QStringList textos;
        for (; !Eof(); Next())
            textos << FieldByName(QStringLiteral("v40"))->AsString();
        return textos.join(u' ');
    }
    void AdiantarPor(const QString &coluna) { Adiantar(Texto(coluna, QStringLiteral("?"))); }

private:
    static QString Texto(const QString &coluna, const QString &valor)
    {
        return QStringLiteral("select id, v40 from tipos where %1=%2 order by id")
            .arg(coluna, valor);
    }
};

} // namespace

TEST_F(TSQLQueryTest, ColumnsTellTheirTypes)
{
    Abrir(QStringLiteral("select * from tipos"));
    const auto tipo = [&](const char *nome) {
        return query.FieldByName(QString::fromLatin1(nome))->DataType();
    };
    EXPECT_EQ(tipo("c5"), TFieldType::ftString);
    EXPECT_EQ(tipo("v40"), TFieldType::ftString);
    EXPECT_EQ(tipo("si"), TFieldType::ftSmallint);
    EXPECT_EQ(tipo("i"), TFieldType::ftInteger);
    EXPECT_EQ(tipo("bi"), TFieldType::ftFloat);
    EXPECT_EQ(tipo("n92"), TFieldType::ftFloat);
    EXPECT_EQ(tipo("n152"), TFieldType::ftFloat);
    EXPECT_EQ(tipo("n41"), TFieldType::ftFloat);
    EXPECT_EQ(tipo("f"), TFieldType::ftFloat);
    EXPECT_EQ(tipo("d"), TFieldType::ftFloat);
    EXPECT_EQ(tipo("dt"), TFieldType::ftDate);
    EXPECT_EQ(tipo("tm"), TFieldType::ftTime);
    EXPECT_EQ(tipo("ts"), TFieldType::ftDateTime);
    EXPECT_EQ(tipo("b"), TFieldType::ftBoolean);
    EXPECT_EQ(tipo("memo"), TFieldType::ftMemo);
    EXPECT_EQ(tipo("bin"), TFieldType::ftBlob);
    EXPECT_EQ(query.FieldByName(QStringLiteral("v40"))->Size(), 40);
    EXPECT_EQ(query.FieldByName(QStringLiteral("u8"))->Size(), 20);
    EXPECT_EQ(query.FieldByName(QStringLiteral("i"))->Size(), 0);
    EXPECT_EQ(query.FieldByName(QStringLiteral("n184"))->Escala(), 4);
    EXPECT_EQ(query.FieldByName(QStringLiteral("v40"))->FieldName(), QStringLiteral("V40"));
}

TEST_F(TSQLQueryTest, EveryTypeHoldsNull)
{
    banco.Executar(QStringLiteral("insert into tipos (id) values (1)"));
    Abrir(QStringLiteral("select * from tipos"));
    for (int i = 1; i < query.FieldCount(); ++i) {
        EXPECT_TRUE(query.Fields(i)->IsNull()) << query.Fields(i)->FieldName().toStdString();
        EXPECT_EQ(query.Fields(i)->Value(), Null);
        EXPECT_EQ(query.Fields(i)->AsString(), QString());
        EXPECT_EQ(query.Fields(i)->AsInteger(), 0);
    }
    EXPECT_FALSE(query.Fields(0)->IsNull());
}

TEST_F(TSQLQueryTest, Numeric152KeepsEveryCentavoBothWays)
{
    for (const char *texto : {"9999999999999.99", "-9999999999999.99", "0.01", "-0.01", "0.00",
                              "1234567890123.45", "7036874417766.07", "-1.10", "0.29", "4.35"}) {
        const TField *campo = Gravado(QStringLiteral("n152"), QString::fromLatin1(texto));
        const Variant valor = campo->Value();
        ASSERT_TRUE(valor.EhDouble());
        EXPECT_EQ(valor.AsFloat(), QString::fromLatin1(texto).toDouble()) << texto;
        EXPECT_EQ(campo->AsString(), valor.AsString()) << texto;
        const TField *deNovo = Gravado(QStringLiteral("n152"), Literal(valor.AsFloat(), 2));
        EXPECT_EQ(deNovo->Value(), valor) << texto;
    }
    EXPECT_EQ(Gravado(QStringLiteral("n152"), QStringLiteral("-0.01"))->AsString(),
              QStringLiteral("-0,01"));
    EXPECT_EQ(Gravado(QStringLiteral("n152"), QStringLiteral("9999999999999.99"))->AsString(),
              QStringLiteral("9999999999999,99"));
    EXPECT_EQ(Gravado(QStringLiteral("n152"), QStringLiteral("1234.50"))->AsString(),
              QStringLiteral("1234,5"));
}

TEST_F(TSQLQueryTest, SmallerScaledNumbers)
{
    EXPECT_EQ(Gravado(QStringLiteral("n92"), QStringLiteral("9999999.99"))->AsFloat(), 9999999.99);
    EXPECT_EQ(Gravado(QStringLiteral("n92"), QStringLiteral("-9999999.99"))->AsString(),
              QStringLiteral("-9999999,99"));
    EXPECT_EQ(Gravado(QStringLiteral("n41"), QStringLiteral("-999.9"))->AsFloat(), -999.9);
    EXPECT_EQ(Gravado(QStringLiteral("n41"), QStringLiteral("0.5"))->AsString(),
              QStringLiteral("0,5"));
}

TEST_F(TSQLQueryTest, Numeric184ShowsAllItsDigits)
{
    const TField *campo = Gravado(QStringLiteral("n184"), QStringLiteral("99999999999.9999"));
    EXPECT_EQ(campo->AsFloat(), 99999999999.9999);
    EXPECT_EQ(campo->AsString(), QStringLiteral("99999999999,9999"));
    campo = Gravado(QStringLiteral("n184"), QStringLiteral("-99999999999999.9999"));
    EXPECT_EQ(campo->AsString(), QStringLiteral("-99999999999999,9999"));
    EXPECT_EQ(campo->AsFloat(), -99999999999999.9999);
    EXPECT_EQ(Gravado(QStringLiteral("n184"), QStringLiteral("-0.0001"))->AsString(),
              QStringLiteral("-0,0001"));
}

TEST_F(TSQLQueryTest, IntegersAtTheirLimits)
{
    EXPECT_EQ(Gravado(QStringLiteral("si"), QStringLiteral("-32768"))->Value(), Variant(-32768));
    const TField *i = Gravado(QStringLiteral("i"), QStringLiteral("2147483647"));
    EXPECT_TRUE(i->Value().EhInteiro());
    EXPECT_EQ(i->AsInteger(), 2147483647);
    EXPECT_EQ(Gravado(QStringLiteral("i"), QStringLiteral("-2147483648"))->AsString(),
              QStringLiteral("-2147483648"));
    const TField *bi = Gravado(QStringLiteral("bi"), QStringLiteral("9223372036854775807"));
    EXPECT_TRUE(bi->Value().EhDouble());
    EXPECT_EQ(bi->AsString(), QStringLiteral("9223372036854775807"));
    EXPECT_THROW(bi->AsInteger(), EVariantError);
    EXPECT_EQ(Gravado(QStringLiteral("bi"), QStringLiteral("-9223372036854775808"))->AsString(),
              QStringLiteral("-9223372036854775808"));
}

TEST_F(TSQLQueryTest, FloatIsTheShortestDecimalAndDoubleIsExact)
{
    EXPECT_EQ(Gravado(QStringLiteral("f"), QStringLiteral("0.1"))->AsFloat(), 0.1);
    EXPECT_EQ(Gravado(QStringLiteral("f"), QStringLiteral("0.1"))->AsString(),
              QStringLiteral("0,1"));
    EXPECT_EQ(Gravado(QStringLiteral("f"), QStringLiteral("-1.5e30"))->AsFloat(), -1.5e30);
    EXPECT_EQ(Gravado(QStringLiteral("d"), QStringLiteral("3.141592653589793e0"))->AsFloat(),
              3.141592653589793);
    EXPECT_EQ(Gravado(QStringLiteral("d"), QStringLiteral("1e-300"))->AsFloat(), 1e-300);
}

TEST_F(TSQLQueryTest, ReadingLeavesTheCallersFloatingPointEnvironment)
{
    std::fenv_t antes;
    std::fegetenv(&antes);
    std::fesetround(FE_UPWARD);
    std::feraiseexcept(FE_DIVBYZERO);
    Abrir(QStringLiteral("select * from rdb$relations"));
    const int modo = std::fegetround();
    const int marcas = std::fetestexcept(FE_DIVBYZERO);
    std::fesetenv(&antes);
    EXPECT_EQ(modo, FE_UPWARD);
    EXPECT_EQ(marcas, FE_DIVBYZERO);
}

TEST_F(TSQLQueryTest, DatesFromTheFirstToTheLastTheEngineKnows)
{
    EXPECT_EQ(Gravado(QStringLiteral("dt"), QStringLiteral("date '1899-12-30'"))->Value(),
              Variant(TDateTime(0.0)));
    EXPECT_EQ(
        Gravado(QStringLiteral("dt"), QStringLiteral("date '1980-01-01'"))->AsDateTime().Dias(),
        29221.0);
    EXPECT_EQ(Gravado(QStringLiteral("dt"), QStringLiteral("date '0001-01-01'"))->AsString(),
              QStringLiteral("01/01/0001"));
    EXPECT_EQ(Gravado(QStringLiteral("dt"), QStringLiteral("date '9999-12-31'"))->AsString(),
              QStringLiteral("31/12/9999"));
    EXPECT_EQ(
        Gravado(QStringLiteral("dt"), QStringLiteral("date '2024-02-29'"))->AsDateTime().Data(),
        QDate(2024, 2, 29));
}

TEST_F(TSQLQueryTest, TimesAndTimestamps)
{
    EXPECT_EQ(Gravado(QStringLiteral("tm"), QStringLiteral("time '23:59:59'"))->AsString(),
              QStringLiteral("23:59:59"));
    EXPECT_EQ(Gravado(QStringLiteral("tm"), QStringLiteral("time '00:00:00'"))->AsString(),
              QStringLiteral("00:00:00"));
    EXPECT_EQ(Gravado(QStringLiteral("tm"), QStringLiteral("time '12:00:00'"))->AsFloat(), 0.5);
    const TField *ts =
        Gravado(QStringLiteral("ts"), QStringLiteral("timestamp '2024-03-05 14:07:09.1230'"));
    EXPECT_EQ(ts->AsString(), QStringLiteral("05/03/2024 14:07:09"));
    EXPECT_EQ(ts->AsDateTime().DataHora(), QDateTime(QDate(2024, 3, 5), QTime(14, 7, 9, 123)));
    EXPECT_EQ(Gravado(QStringLiteral("ts"), QStringLiteral("timestamp '1850-06-07 18:00:00'"))
                  ->AsDateTime()
                  .DataHora(),
              QDateTime(QDate(1850, 6, 7), QTime(18, 0)));
    EXPECT_EQ(Gravado(QStringLiteral("ts"), QStringLiteral("timestamp '2024-03-05 00:00:00'"))
                  ->AsString(),
              QStringLiteral("05/03/2024"));
}

TEST_F(TSQLQueryTest, BooleansAreOneAndZero)
{
    EXPECT_EQ(Gravado(QStringLiteral("b"), QStringLiteral("true"))->Value(), Variant(1));
    EXPECT_EQ(Gravado(QStringLiteral("b"), QStringLiteral("false"))->Value(), Variant(0));
    EXPECT_FALSE(query.Fields(0)->IsNull());
}

TEST_F(TSQLQueryTest, CharComesPaddedAndVarcharKeepsItsBlanks)
{
    EXPECT_EQ(Gravado(QStringLiteral("c5"), QStringLiteral("'ab'"))->AsString(),
              QStringLiteral("ab   "));
    EXPECT_EQ(Gravado(QStringLiteral("c5"), QStringLiteral("''"))->AsString(),
              QStringLiteral("     "));
    EXPECT_EQ(Gravado(QStringLiteral("c5"), QStringLiteral("' b'"))->AsString(),
              QStringLiteral(" b   "));
    EXPECT_EQ(Gravado(QStringLiteral("v40"), QStringLiteral("' x  '"))->AsString(),
              QStringLiteral(" x  "));
    const TField *vazio = Gravado(QStringLiteral("v40"), QStringLiteral("''"));
    EXPECT_FALSE(vazio->IsNull());
    EXPECT_EQ(vazio->Value(), Variant(QString()));
}

TEST_F(TSQLQueryTest, AccentsInEveryCharacterSet)
{
    const QString acentos = QStringLiteral("AÇÃO é ü ÿ ½");
    for (const char *coluna : {"v40", "u8", "memo", "mu8"}) {
        EXPECT_EQ(
            Gravado(QString::fromLatin1(coluna), QStringLiteral("'%1'").arg(acentos))->AsString(),
            acentos)
            << coluna;
    }
    EXPECT_EQ(Gravado(QStringLiteral("semc"), QStringLiteral("'ação'"))->AsString(),
              QStringLiteral("ação"));
    EXPECT_EQ(Gravado(QStringLiteral("oct"), QStringLiteral("x'41E900'"))->AsString(),
              QStringLiteral("Aé") + QChar(0));
}

TEST_F(TSQLQueryTest, CharacterThatLatin1LacksCannotBeReadAsText)
{
    banco.Executar(QStringLiteral("insert into tipos (id, u8) values (1, _utf8 x'E282AC')"));
    try {
        Abrir(QStringLiteral("select u8 from tipos"));
        FAIL() << "read as '" << query.Fields(0)->AsString().toStdString() << "'";
    } catch (const EDatabaseError &erro) {
        EXPECT_EQ(erro.Tipo, TErroBanco::CaractereInvalido);
    }
    EXPECT_FALSE(query.Active());
}

TEST_F(TSQLQueryTest, TheTextOfAValueIsTheOneThatItsVariantHas)
{
    const std::vector<std::pair<QString, QStringList>> valores = {
        {"c5", {"'ab'", "'abcde'", "''", "null"}},
        {"v40", {"' á b '", "''", "null", "'água e Sol'"}},
        {"si", {"0", "-32768", "7"}},
        {"i", {"0", "-2147483648", "2147483647", "100", "null"}},
        {"bi", {"0", "-10", "999999999999999", "1000000000000000", "-1234567890123456789"}},
        {"n92", {"0", "0.01", "-0.05", "10", "10.5", "-1234.56", "9999999.99"}},
        {"n152", {"0.10", "-0.01", "9999999999999.99", "-1234567890123.45", "100", "null"}},
        {"n184", {"0.0001", "-3.1400", "99999999999.9999", "12345678901234.5678"}},
        {"f", {"0.1", "-2.5", "0"}},
        {"d", {"1e300", "0.333333333333333", "-0e0"}},
        {"dt", {"'1899-12-30'", "'0001-01-01'", "'9999-12-31'", "'2024-02-29'", "null"}},
        {"tm", {"'00:00'", "'23:59:59'"}},
        {"ts", {"'2024-02-29 00:00'", "'2023-12-31 23:59:59.999'", "'1850-05-05 01:02:03'"}},
        {"b", {"true", "false", "null"}},
        {"memo", {"' muitas palavras '", "null"}},
        {"oct", {"x'414200'"}},
        {"semc", {"'sem '"}},
        {"u8", {"'ação'"}},
    };
    TEspacoDeTexto espaco;
    for (const auto &[coluna, literais] : valores) {
        for (const QString &literal : literais) {
            const TField *campo = Gravado(coluna, literal);
            EXPECT_EQ(campo->TextoDoValor(espaco).toString(), campo->Value().AsString())
                << qPrintable(coluna + u' ' + literal);
        }
    }
    query.Close();
    EXPECT_TRUE(query.FindField("u8")->TextoDoValor(espaco).isEmpty());
}

TEST_F(TSQLQueryTest, BlobsOfAnyLength)
{
    banco.Executar(QStringLiteral("insert into tipos (id, memo, bin) values (1, '', '')"));
    Abrir(QStringLiteral("select memo, bin from tipos"));
    EXPECT_FALSE(query.Fields(0)->IsNull());
    EXPECT_EQ(query.Fields(0)->AsString(), QString());
    banco.Executar(QStringLiteral(
        "execute block as declare n integer = 0; declare t blob sub_type text = ''; begin "
        "while (n < 100) do begin t = t || rpad('', 10000, 'ação '); n = n + 1; end "
        "update tipos set memo = :t, bin = x'00FF7F'; end"));
    Abrir(QStringLiteral("select id, memo, bin from tipos"));
    const QString memo = query.Fields(1)->AsString();
    EXPECT_EQ(memo.size(), 1000000);
    EXPECT_EQ(memo.left(10), QStringLiteral("ação ação "));
    EXPECT_EQ(memo.right(5), QStringLiteral("ação "));
    EXPECT_EQ(query.Fields(2)->AsString(), QString::fromLatin1("\x00\xFF\x7F", 3));
    EXPECT_EQ(query.Fields(0)->AsInteger(), 1);
}

TEST_F(TSQLQueryTest, RowsWiderThan64KiB)
{
    banco.Executar(
        QStringLiteral("create table larga (a varchar(32000), b varchar(32000), c integer)"));
    banco.Executar(QStringLiteral(
        "insert into larga values (rpad('', 32000, 'x'), rpad('', 31000, 'y') || 'fim', 7)"));
    banco.Executar(QStringLiteral("insert into larga values (null, 'b', 8)"));
    Abrir(QStringLiteral("select a.a, a.b, b.a aa, b.b bb, a.c from larga a, larga b "
                         "order by a.c, b.c"));
    EXPECT_EQ(query.RecordCount(), 4);
    EXPECT_EQ(query.Fields(0)->AsString(), QString(32000, u'x'));
    EXPECT_TRUE(query.Fields(3)->AsString().endsWith(QStringLiteral("yfim")));
    EXPECT_EQ(query.Fields(4)->AsInteger(), 7);
    query.Last();
    EXPECT_TRUE(query.Fields(0)->IsNull());
    EXPECT_EQ(query.Fields(1)->AsString(), QStringLiteral("b"));
    EXPECT_EQ(query.Fields(4)->AsInteger(), 8);
}

TEST_F(TSQLQueryTest, EmptyTableHasColumnsAndNoRows)
{
    Abrir(QStringLiteral("select * from tipos"));
    EXPECT_TRUE(query.Active());
    EXPECT_TRUE(query.IsEmpty());
    EXPECT_EQ(query.FieldCount(), 22);
    EXPECT_EQ(query.FieldByName(QStringLiteral("I"))->Value(), Null);
    Abrir(QStringLiteral("select max(id) from tipos"));
    EXPECT_EQ(query.RecordCount(), 1);
    EXPECT_TRUE(query.Fields(0)->IsNull());
    EXPECT_EQ(query.Fields(0)->AsInteger(), 0);
}

TEST_F(TSQLQueryTest, MoreThanThirtyTwoColumnsKeepTheirNulls)
{
    QStringList colunas;
    for (int i = 0; i < 40; ++i)
        colunas << (i % 3 ? QString::number(i) : QStringLiteral("cast(null as integer)")) +
                       QStringLiteral(" as C%1").arg(i);
    Abrir(QStringLiteral("select %1 from rdb$database").arg(colunas.join(u',')));
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(query.Fields(i)->IsNull(), i % 3 == 0) << i;
        EXPECT_EQ(query.Fields(i)->AsInteger(), i % 3 ? i : 0) << i;
    }
}

TEST_F(TSQLQueryTest, ColumnDroppedFromTheTableIsAnErrorThatNamesIt)
{
    banco.Executar(QStringLiteral("insert into tipos (id, v40) values (1, 'x')"));
    Abrir(QStringLiteral("select * from tipos"));
    TField *campo = query.FieldByName(QStringLiteral("V40"));
    query.Close();
    banco.Executar(QStringLiteral("alter table tipos drop v40"));
    query.Open();
    try {
        campo->Value();
        FAIL() << "a dropped column was read";
    } catch (const EDatabaseError &erro) {
        EXPECT_TRUE(erro.Mensagem().contains(QStringLiteral("V40")));
    }
}

TEST_F(TSQLQueryTest, TableCanBeAlteredWhileAListOfItIsOpen)
{
    Abrir(QStringLiteral("select id, v40 from tipos"));
    banco.Executar(QStringLiteral("alter table tipos drop v40"));
    EXPECT_EQ(query.FieldCount(), 2);
}

TEST_F(TSQLQueryTest, ReopeningSeesNewRowsOfTheSameConnection)
{
    Abrir(QStringLiteral("select id from tipos order by id"));
    EXPECT_EQ(query.RecordCount(), 0);
    banco.Executar(QStringLiteral("insert into tipos (id) values (5)"));
    EXPECT_EQ(query.RecordCount(), 0);
    query.Close();
    query.Open();
    EXPECT_EQ(query.RecordCount(), 1);
    EXPECT_EQ(query.Fields(0)->AsInteger(), 5);
}

TEST_F(TSQLQueryTest, SeesTheRowsOfItsOwnTransactionBeforeTheCommit)
{
    banco.Conexao().EmTransacao([&] {
        banco.Executar(QStringLiteral("insert into tipos (id) values (5)"));
        Abrir(QStringLiteral("select id from tipos"));
        EXPECT_EQ(query.RecordCount(), 1);
    });
}

TEST_F(TSQLQueryTest, RowsOutliveTheConnection)
{
    auto conexao = std::make_unique<TSQLConnection>();
    conexao->DatabaseName = banco.Arquivo();
    conexao->Open();
    banco.Executar(QStringLiteral("insert into tipos (id, memo) values (5, 'm')"));
    query.SetSQLConnection(conexao.get());
    Abrir(QStringLiteral("select id, memo from tipos"));
    conexao.reset();
    EXPECT_EQ(query.Fields(1)->AsString(), QStringLiteral("m"));
    query.Close();
    EXPECT_THROW(query.Open(), EDatabaseError);
}

TEST_F(TSQLQueryTest, MistakesAreErrorsAndLeaveItClosed)
{
    const auto tipo = [&](const char *sql) {
        try {
            Abrir(QString::fromLatin1(sql));
        } catch (const EDatabaseError &erro) {
            EXPECT_FALSE(query.Active());
            return erro.Tipo;
        }
        ADD_FAILURE() << "opened: " << sql;
        return TErroBanco::Outro;
    };
    EXPECT_EQ(tipo(""), TErroBanco::Sintaxe);
    EXPECT_EQ(tipo("   "), TErroBanco::Sintaxe);
    EXPECT_EQ(tipo("selecione tudo"), TErroBanco::Sintaxe);
    EXPECT_EQ(tipo("select * from nenhuma"), TErroBanco::Sintaxe);
    EXPECT_EQ(tipo("select nada from tipos"), TErroBanco::Sintaxe);
    EXPECT_EQ(tipo("insert into tipos (id) values (1)"), TErroBanco::Outro);
    EXPECT_EQ(tipo("select id / 0 from (select 1 as id from rdb$database)"), TErroBanco::Outro);
    TSQLQuery semConexao;
    semConexao.SetSQL(QStringLiteral("select 1 from rdb$database"));
    EXPECT_THROW(semConexao.Open(), EDatabaseError);
    Abrir(QStringLiteral("select 1 from rdb$database"));
    EXPECT_EQ(query.RecordCount(), 1);
}

TEST_F(TSQLQueryTest, SettingTheTextClosesOnlyWhenItDiffers)
{
    Abrir(QStringLiteral("select 1 from rdb$database"));
    query.SetSQL(QStringLiteral("select 1 from rdb$database"));
    EXPECT_TRUE(query.Active());
    query.SetSQL(QStringLiteral("select 2 from rdb$database"));
    EXPECT_FALSE(query.Active());
    EXPECT_EQ(query.BytesUsados(), 0);
}

TEST_F(TSQLQueryTest, TellsItsPlan)
{
    query.SetSQL(QStringLiteral("select * from tipos where id = 1"));
    EXPECT_TRUE(query.Plano().contains(QStringLiteral("INDEX"))) << query.Plano().toStdString();
}

TEST_F(TSQLQueryTest, UserTextOfAnyKindDoesNoHarm)
{
    const QString maldoso =
        QStringLiteral("it's; -- /* \"x\" \\ %1 %s '' ; drop table tipos; \r\n\t?:a :b");
    const QString texto = maldoso.repeated(10000 / maldoso.size() + 1).left(10000);
    QString literal = texto;
    literal.replace(u'\'', QStringLiteral("''"));
    EXPECT_EQ(banco.Executar(QStringLiteral("insert into tipos (id, memo) values (1, '") + literal +
                             QStringLiteral("')")),
              1);
    Abrir(QStringLiteral("select memo from tipos"));
    EXPECT_EQ(query.Fields(0)->AsString(), texto);
}

TEST_F(TSQLQueryTest, StatementsOfSeveralMegabytes)
{
    const QString comentario =
        QStringLiteral("/*") + QString(6 * 1024 * 1024, u'x') + QStringLiteral("*/");
    Abrir(QStringLiteral("select ") + comentario + QStringLiteral(" 7 from rdb$database"));
    EXPECT_EQ(query.Fields(0)->AsInteger(), 7);
    EXPECT_EQ(banco.Executar(QStringLiteral("insert into tipos (id) ") + comentario +
                             QStringLiteral(" values (1)")),
              1);
}

TEST_F(TSQLQueryTest, NameLookupsIgnoreLetterCaseButNotQuotedNames)
{
    Abrir(QStringLiteral("select 1 as \"Código\", 2 as outro from rdb$database"));
    EXPECT_EQ(query.Fields(0)->FieldName(), QStringLiteral("Código"));
    EXPECT_EQ(query.FieldByName(QStringLiteral("CÓDIGO"))->AsInteger(), 1);
    EXPECT_EQ(query.FieldByName(QStringLiteral("Outro"))->AsInteger(), 2);
}

class TSQLQueryAdiantadaTest : public TSQLQueryTest
{
protected:
    TSQLQueryAdiantadaTest() : adiantada(banco.Conexao())
    {
        banco.Executar(QStringLiteral("create index ix_c5 on tipos (c5)"));
        banco.Executar(QStringLiteral("insert into tipos (id, c5, v40, n92) values (1, 'ab', 'um', "
                                      "1.25)"));
        banco.Executar(
            QStringLiteral("insert into tipos (id, c5, v40, n92) values (2, 'ç', 'dois', "
                           "2)"));
        banco.Executar(QStringLiteral("insert into tipos (id, c5, v40, n92) values (3, 'ab', "
                                      "'três', 2)"));
    }
    /** Whether another connection may drop the index that a statement of column c5 runs through. */
    bool IndiceSolto()
    {
        TSQLConnection outra;
        outra.DatabaseName = banco.Arquivo();
        outra.Open();
        try {
            outra.Executar(QStringLiteral("drop index ix_c5"));
            return true;
        } catch (const EDatabaseError &) {
            return false;
        }
    }

    TQueryAdiantada adiantada;
};

TEST_F(TSQLQueryAdiantadaTest, PreparedAheadItReadsTheRowsOfEachValue)
{
    for (const bool antes : {false, true}) {
        if (antes)
            adiantada.AdiantarPor(QStringLiteral("c5"));
        EXPECT_EQ(adiantada.Ler(QStringLiteral("c5"), QStringLiteral("ab")),
                  QStringLiteral("um três"));
        EXPECT_EQ(adiantada.Ler(QStringLiteral("c5"), QStringLiteral("ç")), QStringLiteral("dois"));
        EXPECT_EQ(adiantada.Ler(QStringLiteral("c5"), QStringLiteral("não")), QString());
        EXPECT_TRUE(adiantada.IsEmpty());
        EXPECT_EQ(adiantada.FieldCount(), 2);
    }
    adiantada.AdiantarPor(QStringLiteral("id"));
    EXPECT_EQ(adiantada.Ler(QStringLiteral("id"), QStringLiteral("3")), QStringLiteral("três"));
    adiantada.AdiantarPor(QStringLiteral("n92"));
    EXPECT_EQ(adiantada.Ler(QStringLiteral("n92"), QStringLiteral("1.25")), QStringLiteral("um"));
    banco.Executar(QStringLiteral("update tipos set v40 = 'outro' where id = 1"));
    EXPECT_EQ(adiantada.Ler(QStringLiteral("n92"), QStringLiteral("1.25")),
              QStringLiteral("outro"));
}

TEST_F(TSQLQueryAdiantadaTest, PreparedAheadItSeesTheRowsOfItsOwnTransaction)
{
    adiantada.AdiantarPor(QStringLiteral("c5"));
    banco.Conexao().EmTransacao([&] {
        banco.Executar(QStringLiteral("update tipos set v40 = 'novo' where id = 2"));
        EXPECT_EQ(adiantada.Ler(QStringLiteral("c5"), QStringLiteral("ç")), QStringLiteral("novo"));
    });
}

TEST_F(TSQLQueryAdiantadaTest, WhatWasPreparedOnAnEarlierConnectionIsNotUsed)
{
    adiantada.AdiantarPor(QStringLiteral("c5"));
    banco.Conexao().Close();
    EXPECT_THROW(adiantada.Ler(QStringLiteral("c5"), QStringLiteral("ab")), EDatabaseError);
    banco.Conexao().Open();
    EXPECT_EQ(adiantada.Ler(QStringLiteral("c5"), QStringLiteral("ab")), QStringLiteral("um três"));
}

TEST_F(TSQLQueryAdiantadaTest, WhatIsOfNoUseAnyMoreGivesWayToTheText)
{
    adiantada.AdiantarPor(QStringLiteral("c5"));
    banco.Executar(QStringLiteral("alter index ix_c5 inactive"));
    EXPECT_EQ(adiantada.Ler(QStringLiteral("c5"), QStringLiteral("ab")), QStringLiteral("um três"));
    adiantada.AdiantarPor(QStringLiteral("c5"));
    const QString longo(65, u'x');
    EXPECT_EQ(adiantada.Ler(QStringLiteral("c5"), longo), QString()) << "too long to be a value";
    EXPECT_EQ(adiantada.Ler(QStringLiteral("c5"), QStringLiteral("abcdef")), QString())
        << "longer than the column";
    EXPECT_THROW(adiantada.Ler(QStringLiteral("c5"), QStringLiteral("日")), EDatabaseError)
        << "as in a text";
}

TEST_F(TSQLQueryAdiantadaTest, MistakesComeOutAtTheOpeningOnly)
{
    adiantada.AdiantarPor(QStringLiteral("nenhuma"));
    EXPECT_THROW(adiantada.Ler(QStringLiteral("nenhuma"), QStringLiteral("1")), EDatabaseError);
    EXPECT_FALSE(adiantada.Active());
    EXPECT_EQ(adiantada.Ler(QStringLiteral("c5"), QStringLiteral("ç")), QStringLiteral("dois"));
    TQueryAdiantada semConexao(banco.Conexao());
    semConexao.SetSQLConnection(nullptr);
    semConexao.AdiantarPor(QStringLiteral("c5"));
    EXPECT_THROW(semConexao.Ler(QStringLiteral("c5"), QStringLiteral("ç")), EDatabaseError);
}

TEST_F(TSQLQueryAdiantadaTest, OnlyWhatIsPreparedHoldsItsIndexAndSoltarLetsItGo)
{
    adiantada.AdiantarPor(QStringLiteral("c5"));
    adiantada.Ler(QStringLiteral("c5"), QStringLiteral("ab"));
    EXPECT_FALSE(IndiceSolto());
    adiantada.Soltar();
    EXPECT_TRUE(IndiceSolto());
    EXPECT_EQ(adiantada.Ler(QStringLiteral("c5"), QStringLiteral("ab")), QStringLiteral("um três"));
}

TEST_F(TSQLQueryTest, RowsOfALongListAreWholeFromTheFirstToTheLast)
{
    Abrir(QStringLiteral(R"(
        with recursive n as (select 1 i from rdb$database
                             union all select i + 1 from n where i < 1000)
        select a.i * 1000 + b.i as num,
               iif(mod(b.i, 3) = 0, null,
                   substring(lpad('', 120, 'ab') from 1 for mod(b.i, 120)) || b.i) as txt,
               mod(a.i, 2) as par, 'fim' || a.i as fim
        from n a, n b where a.i <= 120 order by 1)"));
    ASSERT_EQ(query.RecordCount(), 120000);
    EXPECT_GT(query.BytesUsados(), 6 * 1024 * 1024) << "large pages have come into it";
    const auto esperado = [](int b) {
        return b % 3 == 0 ? QString()
                          : QStringLiteral("ab").repeated(60).left(b % 120) + QString::number(b);
    };
    for (int i = 0; !query.Eof(); query.Next(), ++i) {
        const int a = i / 1000 + 1;
        const int b = i % 1000 + 1;
        ASSERT_EQ(query.Fields(0)->AsInteger(), a * 1000 + b);
        ASSERT_EQ(query.Fields(1)->AsString(), esperado(b)) << i;
        ASSERT_EQ(query.Fields(1)->IsNull(), b % 3 == 0);
        ASSERT_EQ(query.Fields(2)->AsInteger(), a % 2);
        ASSERT_EQ(query.Fields(3)->AsString(), QStringLiteral("fim%1").arg(a));
    }
    query.Close();
    EXPECT_EQ(query.BytesUsados(), 0);
}
