#include "platform/support/Navegador.h"

#include "platform/core/Servicos.h"

#include <QDesktopServices>
#include <QStringList>
#include <QUrl>

#include <gtest/gtest.h>

using namespace ficha;

namespace
{

/** Stands where the desktop's browser would. */
class TNavegadorFalso : public QObject
{
    Q_OBJECT

public:
    TNavegadorFalso()
    {
        for (const QString &esquema : esquemas)
            QDesktopServices::setUrlHandler(esquema, this, "Abrir");
    }
    ~TNavegadorFalso() override
    {
        for (const QString &esquema : esquemas)
            QDesktopServices::unsetUrlHandler(esquema);
    }
    Q_INVOKABLE void Abrir(const QUrl &url) { abertos << url.toString(); }

    QStringList abertos;

private:
    const QStringList esquemas = {QStringLiteral("http"), QStringLiteral("https"),
                                  QStringLiteral("mailto"), QStringLiteral("file"),
                                  QStringLiteral("javascript")};
};

class Navegador : public testing::Test
{
protected:
    void SetUp() override
    {
        Servicos() = TServicos();
        Servicos().MensagemErro = [this](const QString &t) { avisos << t; };
        Servicos().MensagemInfo = [this](const QString &t) { avisos << t; };
    }

    TServicosGuarda guarda;
    TNavegadorFalso navegador;
    QStringList avisos;
};

} // namespace

TEST_F(Navegador, OpensAnAddressWithOrWithoutAScheme)
{
    const struct {
        const char *endereco;
        const char *aberto;
    } casos[] = {
        {"https://www.exemplo.com.br/a?b=c", "https://www.exemplo.com.br/a?b=c"},
        {"www.exemplo.com.br", "http://www.exemplo.com.br"},
        {"  www.exemplo.com.br  ", "http://www.exemplo.com.br"},
        {"exemplo.com.br:8080/x", "http://exemplo.com.br:8080/x"},
        {"HTTP://exemplo.com.br", "http://exemplo.com.br"},
        {"mailto:fulano@exemplo.com.br", "mailto:fulano@exemplo.com.br"},
    };
    for (const auto &caso : casos) {
        navegador.abertos.clear();
        AbrirBrowser(QString::fromUtf8(caso.endereco));
        EXPECT_EQ(navegador.abertos, QStringList(QString::fromUtf8(caso.aberto))) << caso.endereco;
    }
    EXPECT_TRUE(avisos.isEmpty());
}

TEST_F(Navegador, TellsOfAnEmptyAddress)
{
    AbrirBrowser(QStringLiteral("  "));
    EXPECT_EQ(avisos, QStringList(QStringLiteral("Não há endereço de página para abrir.")));
    EXPECT_TRUE(navegador.abertos.isEmpty());
}

TEST_F(Navegador, RefusesWhatIsNoPage)
{
    for (const char *endereco :
         {"file:///etc/passwd", "javascript:alert(1)", "http://", "://", "um texto qualquer"}) {
        avisos.clear();
        AbrirBrowser(QString::fromUtf8(endereco));
        EXPECT_EQ(avisos, QStringList(QStringLiteral("O endereço da página não é válido:\r\n") +
                                      QString::fromUtf8(endereco)));
    }
    EXPECT_TRUE(navegador.abertos.isEmpty());
}

TEST_F(Navegador, AHostsOwnServiceGetsTheAddressAsItIs)
{
    QStringList pedidos;
    Servicos().AbrirBrowser = [&](const QString &e) { pedidos << e; };
    AbrirBrowser(QString());
    AbrirBrowser(QStringLiteral(" x "));
    EXPECT_EQ(pedidos, QStringList({QString(), QStringLiteral(" x ")}));
    EXPECT_TRUE(navegador.abertos.isEmpty() && avisos.isEmpty());
}

#include "Navegador_test.moc"
