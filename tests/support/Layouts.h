#pragma once

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <QWidget>

#include <gtest/gtest.h>

/*
 * Golden texts of layouts: one line per widget with its class, name, geometry and caption, kept in
 * tests/golden/<Class>.txt. FICHA_REGRAVAR_GOLDEN=1 writes the files anew; look at the difference
 * before committing it. FICHA_RETRATOS=<folder> also leaves a picture of each layout there.
 */
namespace ficha::testes
{

inline QString LegendaDe(const QWidget *w)
{
    for (const char *nome : {"caption", "text", "title", "plainText"}) {
        const QVariant v = w->property(nome);
        if (v.isValid() && !v.toString().isEmpty())
            return QStringLiteral(" \"") + v.toString() + u'"';
    }
    return {};
}

inline QString FonteDe(const QWidget *w)
{
    const QFont fonte = w->font();
    if (fonte == QApplication::font())
        return {};
    return QStringLiteral(" [%1%2]")
        .arg(fonte.pointSizeF())
        .arg(fonte.bold() ? QStringLiteral(" bold") : QString());
}

inline void DescreverWidget(const QWidget *w, int nivel, QString &texto)
{
    const QString classe = QString::fromLatin1(w->metaObject()->className()).section(u':', -1);
    texto += QString(nivel * 2, u' ') + classe + u' ' + w->objectName() +
             QStringLiteral(" (%1, %2) %3x%4")
                 .arg(nivel ? w->x() : 0)
                 .arg(nivel ? w->y() : 0)
                 .arg(w->width())
                 .arg(w->height()) +
             LegendaDe(w) + FonteDe(w) +
             (w->isHidden() && nivel ? QStringLiteral(" hidden") : QString()) + u'\n';
    if (qobject_cast<const QAbstractScrollArea *>(w))
        return;
    for (const QWidget *filho : w->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        if (!filho->objectName().startsWith(QStringLiteral("qt_")) && !filho->isWindow())
            DescreverWidget(filho, nivel + 1, texto);
}

/** Depth first, in the order of creation; what belongs to Qt's own widgets is left out. */
inline QString DescreverLayout(const QWidget *raiz)
{
    QString texto;
    DescreverWidget(raiz, 0, texto);
    return texto;
}

inline void Retratar(QWidget *w, const QString &nome)
{
    const QString pasta = qEnvironmentVariable("FICHA_RETRATOS");
    if (pasta.isEmpty())
        return;
    QDir().mkpath(pasta);
    w->grab().save(pasta + u'/' + nome + QStringLiteral(".png"));
}

/** Compares a layout with its golden text. */
inline testing::AssertionResult ConfereLayout(QWidget *raiz, const QString &nome)
{
    Retratar(raiz, nome);
    const QString atual = DescreverLayout(raiz);
    QFile arquivo(QStringLiteral(FICHA_FONTES "/tests/golden/") + nome + QStringLiteral(".txt"));
    if (qEnvironmentVariableIntValue("FICHA_REGRAVAR_GOLDEN") == 1) {
        QDir().mkpath(QStringLiteral(FICHA_FONTES "/tests/golden"));
        if (!arquivo.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return testing::AssertionFailure() << "cannot write " << qPrintable(arquivo.fileName());
        arquivo.write(atual.toUtf8());
        return testing::AssertionSuccess();
    }
    if (!arquivo.open(QIODevice::ReadOnly))
        return testing::AssertionFailure() << "no golden text " << qPrintable(arquivo.fileName());
    const QString esperado = QString::fromUtf8(arquivo.readAll());
    if (esperado == atual)
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << "layout of " << qPrintable(nome) << " changed.\nexpected:\n"
           << qPrintable(esperado) << "now:\n"
           << qPrintable(atual);
}

} // namespace ficha::testes
