#include <QApplication>
#include <QFont>

#include <gtest/gtest.h>

/** Every test program: a real QApplication, offscreen unless told otherwise, then the tests. */
int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 8));
    return RUN_ALL_TESTS();
}
