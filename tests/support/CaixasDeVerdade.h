#pragma once

#include "platform/core/Servicos.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace ficha::testes
{

/**
 * Lets the library's own message boxes come up instead of recording the warnings: each is read and
 * answered with Enter, as a user would.
 */
class TCaixasDeVerdade : public QObject
{
public:
    TCaixasDeVerdade()
    {
        Servicos().MensagemAviso = {};
        connect(&relogio, &QTimer::timeout, this, &TCaixasDeVerdade::Olhar);
        relogio.start(2);
    }

    /** Texts of the boxes that came up, in their order. */
    QStringList textos;

private:
    void Olhar()
    {
        auto *caixa = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!caixa || !caixa->isActiveWindow())
            return;
        if (caixa != ultima)
            textos << caixa->text() + u'\n' + caixa->informativeText();
        ultima = caixa;
        // Boxes without end would end no test.
        if (textos.size() > 5)
            Servicos().MensagemAviso = [](const QString &, int) {};
        QTest::keyClick(static_cast<QWidget *>(caixa->defaultButton()), Qt::Key_Return);
    }

    QTimer relogio;
    QPointer<QMessageBox> ultima;
};

} // namespace ficha::testes
