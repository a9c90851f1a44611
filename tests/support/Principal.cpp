#include "support/Filhos.h"

#include <QApplication>
#include <QFont>

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <string>

namespace
{

std::map<std::string, void (*)()> &Filhos()
{
    static std::map<std::string, void (*)()> filhos;
    return filhos;
}

constexpr char OpcaoFilho[] = "--filho=";

} // namespace

namespace ficha
{

TRegistroDeFilho::TRegistroDeFilho(const char *nome, void (*executar)())
{
    Filhos()[nome] = executar;
}

bool TRegistroDeFilho::Executar(const char *nome)
{
    const auto filho = Filhos().find(nome);
    if (filho == Filhos().end())
        return false;
    filho->second();
    return true;
}

} // namespace ficha

/** Every test program: a real QApplication, offscreen unless told otherwise, then the tests. */
int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 8));
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], OpcaoFilho, std::strlen(OpcaoFilho)) == 0) {
            ficha::TRegistroDeFilho::Executar(argv[i] + std::strlen(OpcaoFilho));
            return 1;
        }
    }
    return RUN_ALL_TESTS();
}
