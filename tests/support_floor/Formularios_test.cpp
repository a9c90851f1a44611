#include "platform/support/Formularios.h"

#include "platform/toolkit/TForm.h"

#include <gtest/gtest.h>

#include <memory>

using namespace ficha;

namespace
{

std::unique_ptr<TForm> NovoForm(const char *nome)
{
    std::unique_ptr<TForm> form(Criar<TForm>(nullptr));
    form->setObjectName(QLatin1String(nome));
    return form;
}

} // namespace

TEST(Formularios, AFormIsFoundByItsNameWhateverTheLetterCase)
{
    const auto clientes = NovoForm("ClientesF");
    const auto produtos = NovoForm("ProdutosF");
    EXPECT_EQ(NameToForm(QStringLiteral("ClientesF")), clientes.get());
    EXPECT_EQ(NameToForm(QStringLiteral("PRODUTOSf")), produtos.get());
}

TEST(Formularios, NoFormOfThatNameIsNull)
{
    const auto clientes = NovoForm("ClientesF");
    EXPECT_EQ(NameToForm(QStringLiteral("Clientes")), nullptr);
    EXPECT_EQ(NameToForm(QString()), nullptr);
}

TEST(Formularios, ADestroyedFormIsNotFound)
{
    auto clientes = NovoForm("ClientesF");
    clientes.reset();
    EXPECT_EQ(NameToForm(QStringLiteral("ClientesF")), nullptr);
}

TEST(Formularios, OfSeveralTheNewestThatIsShownIsFound)
{
    const auto primeiro = NovoForm("ClientesF");
    const auto segundo = NovoForm("ClientesF");
    EXPECT_EQ(NameToForm(QStringLiteral("ClientesF")), segundo.get());
    primeiro->Show();
    EXPECT_EQ(NameToForm(QStringLiteral("ClientesF")), primeiro.get());
    segundo->Show();
    EXPECT_EQ(NameToForm(QStringLiteral("ClientesF")), segundo.get());
}
