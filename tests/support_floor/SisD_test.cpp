#include "platform/support/SisD.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <functional>

using namespace ficha;

namespace
{

/** Runs f on the file dialog that opens next. */
void NoDialogo(const std::function<void(QFileDialog *)> &f)
{
    QTimer::singleShot(0, qApp, [f] {
        auto *dialogo = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        ASSERT_NE(dialogo, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialogo));
        f(dialogo);
    });
}

} // namespace

TEST(SisD, IsOneModuleWithUsableSettingsFromTheStart)
{
    EXPECT_EQ(&SisD(), &SisD());
    const TSisD novo;
    EXPECT_EQ(novo.DDDPadrao, QStringLiteral("11"));
    EXPECT_EQ(novo.UFPadrao, QStringLiteral("SP"));
    EXPECT_EQ(novo.MunicipioPadrao, QStringLiteral("São Paulo"));
    EXPECT_EQ(novo.CorControlDesselec, TColor(16777215));
    EXPECT_NE(novo.CorControlSelec.valor, novo.CorControlDesselec.valor);
    EXPECT_EQ(novo.ImageList16, nullptr);
    EXPECT_EQ(novo.DisImageList16, nullptr);
    EXPECT_EQ(novo.ImageList, nullptr);
}

TEST(OpenDialog, AHostsOwnDialogServesInsteadOfTheLibrarys)
{
    TOpenDialog dialogo;
    QWidget dono;
    dialogo.AoExecutar = [&](TOpenDialog &d, QWidget *w) {
        EXPECT_EQ(d.Title, QStringLiteral("Escolha a imagem"));
        EXPECT_EQ(w, &dono);
        d.FileName = QStringLiteral("foto.jpg");
        return true;
    };
    dialogo.Title = QStringLiteral("Escolha a imagem");
    EXPECT_TRUE(dialogo.Execute(&dono));
    EXPECT_EQ(dialogo.FileName, QStringLiteral("foto.jpg"));
}

TEST(OpenDialog, AnswersTheFileThatWasPicked)
{
    const QTemporaryDir pasta;
    const QString arquivo = pasta.filePath(QStringLiteral("foto.jpg"));
    QFile f(arquivo);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    TOpenDialog dialogo;
    dialogo.Title = QStringLiteral("Escolha a imagem");
    NoDialogo([&](QFileDialog *d) {
        EXPECT_EQ(d->windowTitle(), QStringLiteral("Escolha a imagem"));
        auto *nome = d->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(nome, nullptr);
        nome->setText(arquivo);
        QTest::keyClick(nome, Qt::Key_Return);
    });
    EXPECT_TRUE(dialogo.Execute());
    EXPECT_EQ(QDir::cleanPath(dialogo.FileName), QDir::cleanPath(arquivo));
}

TEST(OpenDialog, SpeaksPortugueseAndLeavesTheFileNameWhenNothingIsPicked)
{
    TOpenDialog dialogo;
    dialogo.FileName = QDir::tempPath();
    NoDialogo([](QFileDialog *d) {
        EXPECT_EQ(d->windowTitle(), QStringLiteral("Abrir"));
        const auto *botoes = d->findChild<QDialogButtonBox *>();
        ASSERT_NE(botoes, nullptr);
        EXPECT_EQ(botoes->button(QDialogButtonBox::Open)->text(), QStringLiteral("&Abrir"));
        EXPECT_EQ(botoes->button(QDialogButtonBox::Cancel)->text().remove(u'&'),
                  QStringLiteral("Cancelar"));
        EXPECT_EQ(d->labelText(QFileDialog::FileName), QStringLiteral("&Nome do arquivo:"));
        EXPECT_EQ(d->labelText(QFileDialog::LookIn), QStringLiteral("Examinar:"));
        QTest::keyClick(d, Qt::Key_Escape);
    });
    EXPECT_FALSE(dialogo.Execute());
    EXPECT_EQ(dialogo.FileName, QDir::tempPath());
}
