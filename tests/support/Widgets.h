#pragma once

#include "platform/core/Servicos.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QStringList>
#include <QWidget>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace ficha::testes
{

/** A window with the keyboard, for widgets placed in it. */
class TJanela : public QWidget
{
public:
    TJanela() { resize(400, 300); }

    /** Shows everything placed so far. */
    void Abrir()
    {
        show();
        activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(this));
    }
};

/** Keeps the warnings instead of showing them, while it lives. */
class TAvisos
{
public:
    TAvisos()
    {
        Servicos().MensagemAviso = [this](const QString &texto, int) { textos.append(texto); };
    }

    QStringList textos;

private:
    TServicosGuarda guarda;
};

/** What an input method commits (a dead key and its letter, an emoji panel). */
inline void Compor(QWidget *alvo, const QString &texto)
{
    QInputMethodEvent evento;
    evento.setCommitString(texto);
    QApplication::sendEvent(alvo, &evento);
}

inline void ColarTexto(QWidget *alvo, const QString &texto)
{
    QApplication::clipboard()->setText(texto);
    QTest::keyClick(alvo, Qt::Key_V, Qt::ControlModifier);
}

/** A text dragged in from another program. */
inline void Soltar(QWidget *alvo, QPoint ponto, const QString &texto)
{
    QMimeData dados;
    dados.setText(texto);
    QDragEnterEvent entra(ponto, Qt::CopyAction, &dados, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(alvo, &entra);
    QDropEvent evento(ponto, Qt::CopyAction, &dados, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(alvo, &evento);
}

/** Keys that QTest has no name for. */
inline void Tecla(QWidget *alvo, int tecla, const QString &texto,
                  Qt::KeyboardModifiers estado = Qt::NoModifier)
{
    QKeyEvent desce(QEvent::KeyPress, tecla, estado, texto);
    QApplication::sendEvent(alvo, &desce);
    QKeyEvent sobe(QEvent::KeyRelease, tecla, estado, texto);
    QApplication::sendEvent(alvo, &sobe);
}

} // namespace ficha::testes
