#include "bench/QuadrosPar.h"

#include <QtWidgets>

namespace bancada
{

namespace
{

/** Writes one widget tree. */
class TEscritor
{
public:
    explicit TEscritor(bool soVisiveis_) : soVisiveis(soVisiveis_) {}

    QString Escrever(const QWidget *tela, const QString &classe);

private:
    void Widget(const QWidget *w, int aba = -1);
    void Filhos(const QWidget *w);
    void Abas(const QTabWidget *abas);
    void Proprias(const QWidget *w);
    void Texto(const char *nome, const QString &valor);
    void Valor(const char *nome, const char *tipo, const QString &valor);
    void Fonte(const QWidget *w);
    void Retangulo(const QRect &r);
    void Itens(const QStringList &textos);
    QString Nome(const QObject *o);

    QString texto;
    QXmlStreamWriter xml{&texto};
    QHash<QString, int> nomes;
    bool soVisiveis;
};

/** Qt's widgets that make their own insides; nothing below them is written. */
bool EhFolha(const QWidget *w)
{
    return qobject_cast<const QLineEdit *>(w) || qobject_cast<const QComboBox *>(w) ||
           qobject_cast<const QAbstractButton *>(w) || qobject_cast<const QAbstractSpinBox *>(w) ||
           qobject_cast<const QAbstractScrollArea *>(w);
}

QString ClassePura(const QWidget *w)
{
    // Drawn by the library itself: the nearest that Qt has.
    if (w->inherits("ficha::TCustomGrid"))
        return QStringLiteral("QTableWidget");
    if (w->inherits("ficha::TPanel") && !w->property("caption").toString().isEmpty())
        return QStringLiteral("QLabel");
    const QMetaObject *classe = w->metaObject();
    while (QByteArray(classe->className()).contains("::"))
        classe = classe->superClass();
    return QString::fromLatin1(classe->className());
}

QString TEscritor::Nome(const QObject *o)
{
    QString nome = o->objectName();
    nome.replace(QRegularExpression(QStringLiteral("\\W")), QStringLiteral("_"));
    if (nome.isEmpty())
        nome = QStringLiteral("sem_nome");
    const int vez = ++nomes[nome];
    return vez == 1 ? nome : QStringLiteral("%1_%2").arg(nome).arg(vez);
}

void TEscritor::Valor(const char *nome, const char *tipo, const QString &valor)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QLatin1String(nome));
    xml.writeTextElement(QLatin1String(tipo), valor);
    xml.writeEndElement();
}

void TEscritor::Texto(const char *nome, const QString &valor)
{
    if (!valor.isEmpty())
        Valor(nome, "string", valor);
}

void TEscritor::Retangulo(const QRect &r)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("geometry"));
    xml.writeStartElement(QStringLiteral("rect"));
    xml.writeTextElement(QStringLiteral("x"), QString::number(r.x()));
    xml.writeTextElement(QStringLiteral("y"), QString::number(r.y()));
    xml.writeTextElement(QStringLiteral("width"), QString::number(r.width()));
    xml.writeTextElement(QStringLiteral("height"), QString::number(r.height()));
    xml.writeEndElement();
    xml.writeEndElement();
}

void TEscritor::Fonte(const QWidget *w)
{
    if (!w->testAttribute(Qt::WA_SetFont))
        return;
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("font"));
    xml.writeStartElement(QStringLiteral("font"));
    xml.writeTextElement(QStringLiteral("family"), w->font().family());
    xml.writeTextElement(QStringLiteral("pointsize"), QString::number(w->font().pointSize()));
    xml.writeTextElement(QStringLiteral("bold"),
                         w->font().bold() ? QStringLiteral("true") : QStringLiteral("false"));
    xml.writeEndElement();
    xml.writeEndElement();
}

void TEscritor::Itens(const QStringList &textos)
{
    for (const QString &t : textos) {
        xml.writeStartElement(QStringLiteral("item"));
        Texto("text", t);
        xml.writeEndElement();
    }
}

/** What the sort of widget has beyond place and font. */
void TEscritor::Proprias(const QWidget *w)
{
    if (const auto *edit = qobject_cast<const QLineEdit *>(w)) {
        const int limite = w->property("maxLength").toInt();
        if (limite > 0)
            Valor("maxLength", "number", QString::number(limite));
        Texto("text", edit->text());
        Valor("alignment", "set",
              edit->alignment() & Qt::AlignRight     ? QStringLiteral("Qt::AlignRight")
              : edit->alignment() & Qt::AlignHCenter ? QStringLiteral("Qt::AlignCenter")
                                                     : QStringLiteral("Qt::AlignLeft"));
        if (edit->isReadOnly())
            Valor("readOnly", "bool", QStringLiteral("true"));
    } else if (const auto *rotulo = qobject_cast<const QLabel *>(w)) {
        Texto("text", rotulo->text());
    } else if (const auto *botao = qobject_cast<const QAbstractButton *>(w)) {
        Texto("text", botao->text());
    } else if (const auto *grupo = qobject_cast<const QGroupBox *>(w)) {
        Texto("title", grupo->title());
    } else if (const auto *combo = qobject_cast<const QComboBox *>(w)) {
        QStringList textos;
        for (int i = 0; i < combo->count(); ++i)
            textos << combo->itemText(i);
        Itens(textos);
    } else if (ClassePura(w) == QStringLiteral("QLabel")) {
        Texto("text", w->property("caption").toString());
    }
}

void TEscritor::Abas(const QTabWidget *abas)
{
    for (int i = 0; i < abas->count(); ++i)
        Widget(abas->widget(i), i);
}

void TEscritor::Filhos(const QWidget *w)
{
    if (EhFolha(w))
        return;
    if (const auto *abas = qobject_cast<const QTabWidget *>(w)) {
        Abas(abas);
        return;
    }
    for (const QObject *filho : w->children()) {
        const auto *f = qobject_cast<const QWidget *>(filho);
        if (f && !f->isWindow() && !(soVisiveis && f->isHidden()) &&
            !f->objectName().startsWith(QStringLiteral("qt_")))
            Widget(f);
    }
}

void TEscritor::Widget(const QWidget *w, int aba)
{
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), ClassePura(w));
    xml.writeAttribute(QStringLiteral("name"), Nome(w));
    if (aba < 0)
        Retangulo(w->geometry());
    Fonte(w);
    if (w->isHidden() && aba < 0 && !w->isWindow())
        Valor("visible", "bool", QStringLiteral("false"));
    if (!w->toolTip().isEmpty())
        Texto("toolTip", w->toolTip());
    Proprias(w);
    if (aba >= 0) {
        const auto *abas = qobject_cast<const QTabWidget *>(w->parentWidget()->parentWidget());
        xml.writeStartElement(QStringLiteral("attribute"));
        xml.writeAttribute(QStringLiteral("name"), QStringLiteral("title"));
        xml.writeTextElement(QStringLiteral("string"), abas ? abas->tabText(aba) : QString());
        xml.writeEndElement();
    }
    Filhos(w);
    if (w->isWindow()) {
        for (const auto *acao : w->findChildren<QAction *>()) {
            xml.writeStartElement(QStringLiteral("action"));
            xml.writeAttribute(QStringLiteral("name"), Nome(acao));
            Texto("text", acao->text());
            Texto("toolTip", acao->toolTip());
            Texto("shortcut", acao->shortcut().toString());
            xml.writeEndElement();
        }
    }
    xml.writeEndElement();
}

QString TEscritor::Escrever(const QWidget *tela, const QString &classe)
{
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("4.0"));
    xml.writeTextElement(QStringLiteral("class"), classe);
    Widget(tela);
    xml.writeEndElement();
    xml.writeEndDocument();
    return texto;
}

} // namespace

QString LayoutDoPar(const QWidget *tela, const QString &classe, bool soVisiveis)
{
    return TEscritor(soVisiveis).Escrever(tela, classe);
}

} // namespace bancada
