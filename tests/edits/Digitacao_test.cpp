#include "platform/edits/TCNPJEditBR.h"
#include "platform/edits/TCPFEditBR.h"
#include "platform/edits/TCepEditBR.h"
#include "platform/edits/TFoneEditBR.h"
#include "platform/edits/TMaskEditBR.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/TMaskEdit.h"
#include "support/Widgets.h"

#include <QLocale>
#include <QSignalSpy>
#include <QWindow>

#include <functional>
#include <memory>
#include <random>

using namespace ficha;
using namespace ficha::testes;

/*
 * Bursts: two hundred keys stand in the queue before the edit sees the first one. What it shows
 * at the end is compared with a model that knows nothing of the edit's own code.
 */
namespace
{

constexpr int TamanhoDaRajada = 200;

/** Signs for the keys that write nothing. */
constexpr char16_t Apaga = u'<';
constexpr char16_t Deleta = u'>';
constexpr char16_t Esquerda = u'[';
constexpr char16_t Direita = u']';
constexpr char16_t Inicio = u'{';
constexpr char16_t Fim = u'}';

int CodigoDa(char16_t tecla)
{
    switch (tecla) {
    case Apaga:
        return Qt::Key_Backspace;
    case Deleta:
        return Qt::Key_Delete;
    case Esquerda:
        return Qt::Key_Left;
    case Direita:
        return Qt::Key_Right;
    case Inicio:
        return Qt::Key_Home;
    case Fim:
        return Qt::Key_End;
    default:
        return QChar(tecla).toUpper().unicode();
    }
}

void PostarTeclas(QObject *alvo, const QString &teclas)
{
    static const QString SemTexto = QStringLiteral("<>[]{}");
    for (const QChar c : teclas) {
        const QString texto = SemTexto.contains(c) ? QString() : QString(c);
        for (const QEvent::Type tipo : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(
                alvo, new QKeyEvent(tipo, CodigoDa(c.unicode()), Qt::NoModifier, texto));
    }
}

/** What an edit should show: text, caret, and how often the text changed. */
struct TModelo {
    virtual ~TModelo() = default;
    virtual void Tecla(QChar c) = 0;

    void Teclar(QChar c)
    {
        const QString antes = Texto;
        Tecla(c);
        Mudancas += Texto == antes ? 0 : 1;
    }

    QString Texto;
    int Cursor = 0;
    int Mudancas = 0;
};

/** Characters in a row, separators written between them. */
struct TModeloFormatado : TModelo {
    void Tecla(QChar c) override
    {
        switch (c.unicode()) {
        case Apaga:
            Tirar(Antes(Cursor) - 1);
            break;
        case Deleta:
            Tirar(Antes(Cursor));
            break;
        case Esquerda:
            Cursor = std::max(0, Cursor - 1);
            break;
        case Direita:
            Cursor = std::min(int(Texto.size()), Cursor + 1);
            break;
        case Inicio:
            Cursor = 0;
            break;
        case Fim:
            Cursor = int(Texto.size());
            break;
        default:
            Escrever(c.toUpper());
        }
    }
    void Escrever(QChar c)
    {
        if (!c.isLetterOrNumber())
            return;
        const int i = Antes(Cursor);
        QString novo = Nu;
        if (Cabe(QString(Nu).insert(i, c)))
            novo.insert(i, c);
        else if (Cheio(Nu) && i < Nu.size() && Cabe(QString(Nu).replace(i, 1, c)))
            novo.replace(i, 1, c);
        else
            return;
        Mostrar(novo, i + 1);
    }
    void Tirar(int i)
    {
        if (i >= 0 && i < Nu.size())
            Mostrar(QString(Nu).remove(i, 1), i);
    }
    void Mostrar(const QString &nu, int depoisDe)
    {
        Nu = nu;
        Texto = Formata(nu);
        Cursor = 0;
        while (Antes(Cursor) < depoisDe)
            ++Cursor;
    }
    int Antes(int posicao) const
    {
        int n = 0;
        for (int i = 0; i < posicao; ++i)
            n += Texto.at(i).isLetterOrNumber() ? 1 : 0;
        return n;
    }

    std::function<QString(QString)> Formata;
    std::function<bool(QString)> Cabe;
    std::function<bool(QString)> Cheio;
    QString Nu;
};

/** Places that are filled and emptied, none moving. */
struct TModeloMascara : TModelo {
    explicit TModeloMascara(const QString &molde) : Molde(molde) { Texto = molde; }

    void Tecla(QChar c) override
    {
        const int fim = int(Molde.size());
        if (c == Apaga || c == Deleta) {
            int i = c == Apaga ? Cursor - 1 : Cursor;
            while (i >= 0 && i < fim && Molde.at(i) != u'_')
                i += c == Apaga ? -1 : 1;
            if (i >= 0 && i < fim) {
                Texto[i] = u'_';
                Cursor = i;
            }
        } else if (c == Esquerda) {
            Cursor = std::max(0, Cursor - 1);
        } else if (c == Direita) {
            Cursor = std::min(fim, Cursor + 1);
        } else if (c == Inicio) {
            Cursor = 0;
        } else if (c.isDigit() && Lugar(Cursor) < fim) {
            Texto[Lugar(Cursor)] = c;
            Cursor = Lugar(Cursor) + 1;
            Cursor = Lugar(Cursor) < fim ? Lugar(Cursor) : Cursor;
        }
    }
    int Lugar(int i) const
    {
        while (i < Molde.size() && Molde.at(i) != u'_')
            ++i;
        return i;
    }

    QString Molde;
};

/** A whole number typed at its end. */
struct TModeloNumero : TModelo {
    TModeloNumero() { Texto = QStringLiteral("0"); }

    void Tecla(QChar c) override
    {
        if (c.isDigit() && Numero < 100'000'000'000'000)
            Numero = Numero * 10 + c.digitValue();
        else if (c == Apaga)
            Numero /= 10;
        else if (c == u'-')
            Negativo = !Negativo;
        QLocale brasil(QLocale::Portuguese, QLocale::Brazil);
        Texto = (Negativo ? QStringLiteral("-") : QString()) + brasil.toString(Numero);
        Cursor = int(Texto.size());
    }

    qint64 Numero = 0;
    bool Negativo = false;
};

QString NoPadrao(const QString &padrao, const QString &nu)
{
    QString texto;
    int j = 0;
    for (int i = 0; i < padrao.size() && j < nu.size(); ++i)
        texto += padrao.at(i) == u'0' ? nu.at(j++) : padrao.at(i);
    return texto;
}

std::unique_ptr<TModelo> ModeloDoPadrao(const QString &padrao, int letrasAte)
{
    auto modelo = std::make_unique<TModeloFormatado>();
    const auto lugares = padrao.count(u'0');
    modelo->Formata = [padrao](const QString &nu) { return NoPadrao(padrao, nu); };
    modelo->Cheio = [lugares](const QString &nu) { return nu.size() == lugares; };
    modelo->Cabe = [lugares, letrasAte](const QString &nu) {
        for (int i = letrasAte; i < nu.size(); ++i) {
            if (!nu.at(i).isDigit())
                return false;
        }
        return nu.size() <= lugares;
    };
    return modelo;
}

std::unique_ptr<TModelo> ModeloDoFone()
{
    auto modelo = std::make_unique<TModeloFormatado>();
    modelo->Formata = [](const QString &nu) {
        const bool celular = nu.size() == 9 || (nu.size() < 8 && nu.startsWith(u'9'));
        const QString padrao =
            celular ? QStringLiteral("00000-0000") : QStringLiteral("0000-00000");
        return NoPadrao(padrao, nu);
    };
    modelo->Cabe = [](const QString &nu) {
        return nu.size() <= 9 &&
               std::all_of(nu.begin(), nu.end(), [](QChar c) { return c.isDigit(); });
    };
    modelo->Cheio = [](const QString &nu) {
        const bool fixo = nu.size() == 8 && nu.front() >= u'2' && nu.front() <= u'5';
        return fixo || nu.size() == 9;
    };
    return modelo;
}

struct TCaso {
    const char *Nome;
    std::function<TCustomEdit *(QWidget *)> Novo;
    std::function<std::unique_ptr<TModelo>()> Modelo;
    /** What the keys are drawn from: more digits than anything else. */
    QString Teclas;
};

template <typename T>
TCustomEdit *Novo(QWidget *pai)
{
    return new T(pai);
}

template <typename T>
std::function<TCustomEdit *(QWidget *)> ComMascara(const char *mascara)
{
    return [mascara](QWidget *pai) {
        auto *edit = new T(pai);
        edit->SetEditMask(QString::fromLatin1(mascara));
        return edit;
    };
}

std::ostream &operator<<(std::ostream &saida, const TCaso &caso)
{
    return saida << caso.Nome;
}

QList<TCaso> Casos()
{
    const QString digitos = QStringLiteral("012345678901234567890123456789");
    const QString andar = QStringLiteral("<<<<>>[[[]]{{{{}.-/x");
    const auto padrao = [](const char *texto, int letrasAte) {
        return [texto, letrasAte] { return ModeloDoPadrao(QString::fromLatin1(texto), letrasAte); };
    };
    const auto molde = [](const char *texto) {
        return [texto]() -> std::unique_ptr<TModelo> {
            return std::make_unique<TModeloMascara>(QString::fromLatin1(texto));
        };
    };
    return {
        {"TCPFEditBR", Novo<TCPFEditBR>, padrao("000.000.000-00", 0), digitos + andar},
        {"TCepEditBR", Novo<TCepEditBR>, padrao("00000-000", 0), digitos + andar},
        {"TCNPJEditBR", Novo<TCNPJEditBR>, padrao("00.000.000/0000-00", 12),
         digitos + andar + QStringLiteral("abcABCzZ")},
        {"TFoneEditBR", Novo<TFoneEditBR>, ModeloDoFone, digitos + andar},
        {"TMaskEdit", ComMascara<TMaskEdit>("99/99/9999;0;_"), molde("__/__/____"),
         digitos + QStringLiteral("<<<<<>>[[[[]{{{{{{{{x")},
        {"TMaskEditBR", ComMascara<TMaskEditBR>("99"), molde("__"),
         digitos + QStringLiteral("<<<<<>>[[[[]{{{{{{{{x")},
        {"TNumEditBR", Novo<TNumEditBR>,
         []() -> std::unique_ptr<TModelo> { return std::make_unique<TModeloNumero>(); },
         digitos.left(20) + QStringLiteral("<<<<<<<<<<-x")},
    };
}

class Rajada : public testing::TestWithParam<TCaso>
{
};

} // namespace

TEST_P(Rajada, TwoHundredQueuedKeysLoseNone)
{
    const TCaso &caso = GetParam();
    std::mt19937 sorte(20260701);
    for (int vez = 0; vez < 10; ++vez) {
        const std::unique_ptr<TCustomEdit> edit(caso.Novo(nullptr));
        const std::unique_ptr<TModelo> modelo = caso.Modelo();
        edit->setCursorPosition(modelo->Texto == QStringLiteral("0") ? 1 : 0);
        QSignalSpy mudou(edit.get(), &QLineEdit::textChanged);
        QSignalSpy editou(edit.get(), &QLineEdit::textEdited);
        QString teclas;
        for (int i = 0; i < TamanhoDaRajada; ++i)
            teclas += caso.Teclas.at(int(sorte() % unsigned(caso.Teclas.size())));
        PostarTeclas(edit.get(), teclas);
        EXPECT_EQ(mudou.count(), 0) << "all of them wait";
        QCoreApplication::sendPostedEvents(edit.get());
        for (const QChar c : teclas)
            modelo->Teclar(c);
        const auto *mascara = qobject_cast<const TCustomMaskEdit *>(edit.get());
        EXPECT_EQ(mascara ? mascara->GetEditText() : edit->GetText(), modelo->Texto)
            << teclas.toStdString();
        EXPECT_EQ(edit->cursorPosition(), modelo->Cursor) << teclas.toStdString();
        EXPECT_EQ(mudou.count(), modelo->Mudancas);
        EXPECT_EQ(editou.count(), modelo->Mudancas);
        EXPECT_GT(modelo->Mudancas, TamanhoDaRajada / 5);
    }
}

INSTANTIATE_TEST_SUITE_P(Edits, Rajada, testing::ValuesIn(Casos()),
                         [](const auto &caso) { return std::string(caso.param.Nome); });

/* As in a form: each edit sends the focus on at its last place, and the keys behind it, typed
 * without a pause, go to the next one. */
TEST(Corrente, TypingOnThroughAChainOfEditsLosesNoKey)
{
    TJanela janela;
    auto *cpf = new TCPFEditBR(&janela);
    auto *cep = new TCepEditBR(&janela);
    auto *ddd = new TMaskEditBR(&janela);
    ddd->SetEditMask(QStringLiteral("99"));
    ddd->SetAutoExit(true);
    auto *fone = new TFoneEditBR(&janela);
    auto *cnpj = new TCNPJEditBR(&janela);
    for (TEditFormatadoBR *edit : QList<TEditFormatadoBR *>{cpf, cep, fone, cnpj})
        edit->SetAutoExit(true);
    janela.Abrir();
    const QString uma = QStringLiteral("52998224725"
                                       "01045001"
                                       "11"
                                       "32345678"
                                       "12abc345000188");
    for (int vez = 0; vez < 5; ++vez) {
        cpf->setFocus(Qt::TabFocusReason);
        for (const QChar c : uma)
            QTest::keyClick(janela.windowHandle(), c.toLatin1());
        EXPECT_EQ(cpf->GetText(), QStringLiteral("529.982.247-25"));
        EXPECT_EQ(cep->GetText(), QStringLiteral("01045-001"));
        EXPECT_EQ(ddd->GetText(), QStringLiteral("11"));
        EXPECT_EQ(fone->GetText(), QStringLiteral("3234-5678"));
        EXPECT_EQ(cnpj->GetText(), QStringLiteral("12.ABC.345/0001-88"));
        EXPECT_TRUE(cpf->hasFocus()) << "and around again";
    }
}
