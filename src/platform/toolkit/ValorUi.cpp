#include "platform/toolkit/ValorUi.h"

#include "platform/core/Erros.h"
#include "platform/toolkit/TImageList.h"

#include <QColor>
#include <QCursor>
#include <QDate>
#include <QFile>
#include <QFont>
#include <QKeySequence>
#include <QPalette>
#include <QRect>
#include <QSizePolicy>

namespace ficha
{

const TElementoUi *ElementoDoValor(const TElementoUi &propriedade)
{
    return propriedade.Filhos.empty() ? nullptr : &propriedade.Filhos.front();
}

namespace
{

bool LerInteiro(QStringView texto, int &valor)
{
    bool certo = false;
    valor = texto.trimmed().toInt(&certo);
    return certo;
}

/** The whole-number children of an element (x, y, width, ...), each by name. */
bool LerPartes(const TElementoUi &el, std::initializer_list<std::pair<const char *, int *>> partes,
               QString &erro)
{
    for (const auto &[nome, destino] : partes) {
        const TElementoUi *parte = el.Filho(nome);
        if (!parte || !LerInteiro(parte->Texto, *destino)) {
            erro = QStringLiteral("<%1> sem um número em <%2>")
                       .arg(el.Nome, QString::fromLatin1(nome));
            return false;
        }
    }
    return true;
}

QVariant LerBool(const QString &texto, QString &erro)
{
    if (texto == QLatin1String("true"))
        return true;
    if (texto == QLatin1String("false"))
        return false;
    erro = QStringLiteral("<bool> com '%1'").arg(texto);
    return {};
}

QColor LerCor(const TElementoUi &el, QString &erro)
{
    int r = 0, g = 0, b = 0, a = 255;
    if (!LerPartes(el, {{"red", &r}, {"green", &g}, {"blue", &b}}, erro))
        return {};
    if (el.TemAtributo("alpha"))
        LerInteiro(el.Atributo("alpha"), a);
    const QColor cor(r, g, b, a);
    if (!cor.isValid())
        erro = QStringLiteral("<color> fora de 0 a 255");
    return cor;
}

QVariant LerRetangulo(const TElementoUi &el, QString &erro)
{
    int x = 0, y = 0, l = 0, a = 0;
    if (!LerPartes(el, {{"x", &x}, {"y", &y}, {"width", &l}, {"height", &a}}, erro))
        return {};
    return QRect(x, y, l, a);
}

QVariant LerTamanho(const TElementoUi &el, QString &erro)
{
    int l = 0, a = 0;
    if (!LerPartes(el, {{"width", &l}, {"height", &a}}, erro))
        return {};
    return QSize(l, a);
}

QVariant LerPonto(const TElementoUi &el, QString &erro)
{
    int x = 0, y = 0;
    if (!LerPartes(el, {{"x", &x}, {"y", &y}}, erro))
        return {};
    return QPoint(x, y);
}

QVariant LerData(const TElementoUi &el, QString &erro)
{
    int d = 0, m = 0, a = 0;
    if (!LerPartes(el, {{"year", &a}, {"month", &m}, {"day", &d}}, erro))
        return {};
    return QDate(a, m, d);
}

/** Sets one trait of a font; false when the element is not known. */
bool LerTracoDaFonte(QFont &fonte, const TElementoUi &traco)
{
    const bool sim = traco.Texto == QLatin1String("true");
    int n = 0;
    if (traco.Nome == QLatin1String("family"))
        fonte.setFamilies({traco.Texto});
    else if (traco.Nome == QLatin1String("pointsize") && LerInteiro(traco.Texto, n) && n > 0)
        fonte.setPointSize(n);
    else if (traco.Nome == QLatin1String("bold"))
        fonte.setBold(sim);
    else if (traco.Nome == QLatin1String("italic"))
        fonte.setItalic(sim);
    else if (traco.Nome == QLatin1String("underline"))
        fonte.setUnderline(sim);
    else if (traco.Nome == QLatin1String("strikeout"))
        fonte.setStrikeOut(sim);
    else
        return traco.Nome == QLatin1String("weight") || traco.Nome == QLatin1String("fontweight");
    return true;
}

QVariant LerFonte(const TElementoUi &el, QString &erro)
{
    QFont fonte;
    for (const TElementoUi &traco : el.Filhos) {
        if (!LerTracoDaFonte(fonte, traco)) {
            erro = QStringLiteral("<font> com <%1>%2").arg(traco.Nome, traco.Texto);
            return {};
        }
    }
    return fonte;
}

QVariant LerPoliticaDeTamanho(const TElementoUi &el, QString &erro)
{
    const auto politicas = QMetaEnum::fromType<QSizePolicy::Policy>();
    const QVariant h = LerEnumUi(el.Atributo("hsizetype"), politicas, erro);
    const QVariant v = LerEnumUi(el.Atributo("vsizetype"), politicas, erro);
    int eh = 0, ev = 0;
    if (!erro.isEmpty() || !LerPartes(el, {{"horstretch", &eh}, {"verstretch", &ev}}, erro))
        return {};
    QSizePolicy politica(QSizePolicy::Policy(h.toInt()), QSizePolicy::Policy(v.toInt()));
    politica.setHorizontalStretch(uchar(eh));
    politica.setVerticalStretch(uchar(ev));
    return QVariant::fromValue(politica);
}

QVariant LerTextos(const TElementoUi &el)
{
    QStringList textos;
    for (const TElementoUi &t : el.Filhos)
        textos << t.Texto;
    return textos;
}

QVariant LerFigura(const TElementoUi &el, bool icone, QString &erro)
{
    const TElementoUi *normal = el.Filho("normaloff");
    const QString caminho = (normal ? normal->Texto : el.Texto).trimmed();
    if (caminho.isEmpty())
        return icone ? QVariant::fromValue(QIcon()) : QVariant::fromValue(QPixmap());
    try {
        if (caminho.endsWith(QLatin1String(".svg")))
            return icone ? QVariant::fromValue(IconeSvg(caminho))
                         : QVariant::fromValue(PixmapSvg(caminho));
    } catch (const ELayoutError &e) {
        erro = e.Mensagem();
        return {};
    }
    const QPixmap figura(caminho);
    if (figura.isNull())
        erro = QStringLiteral("a figura '%1' não existe").arg(caminho);
    return icone ? QVariant::fromValue(QIcon(figura)) : QVariant::fromValue(figura);
}

QVariant LerCursor(const TElementoUi &el, QString &erro)
{
    const QVariant forma = LerEnumUi(el.Texto, QMetaEnum::fromType<Qt::CursorShape>(), erro);
    return forma.isValid() ? QVariant::fromValue(QCursor(Qt::CursorShape(forma.toInt())))
                           : QVariant();
}

QVariant LerTexto(const TElementoUi &el, const QMetaProperty &propriedade, QString &erro)
{
    if (propriedade.isEnumType())
        return LerEnumUi(el.Texto, propriedade.enumerator(), erro);
    if (propriedade.metaType() != QMetaType::fromType<QKeySequence>())
        return el.Texto;
    const QKeySequence tecla = QKeySequence::fromString(el.Texto, QKeySequence::PortableText);
    if (tecla.isEmpty() || tecla[0].key() == Qt::Key_unknown)
        erro = QStringLiteral("'%1' não é um atalho").arg(el.Texto);
    return QVariant::fromValue(tecla);
}

QVariant LerNumero(const TElementoUi &el, QString &erro)
{
    bool certo = false;
    QVariant valor = el.Nome == QLatin1String("double")
                         ? QVariant(el.Texto.trimmed().toDouble(&certo))
                         : QVariant(el.Texto.trimmed().toInt(&certo));
    if (!certo)
        erro = QStringLiteral("<%1> com '%2'").arg(el.Nome, el.Texto);
    return valor;
}

using TLeitor = QVariant (*)(const TElementoUi &, const QMetaProperty &, QString &);

const QHash<QString, TLeitor> &Leitores()
{
    using E = const TElementoUi &;
    using P = const QMetaProperty &;
    static const TLeitor texto = [](E e, P p, QString &r) { return LerTexto(e, p, r); };
    static const TLeitor numero = [](E e, P, QString &r) { return LerNumero(e, r); };
    static const QHash<QString, TLeitor> leitores = {
        {QStringLiteral("string"), texto},
        {QStringLiteral("cstring"), texto},
        {QStringLiteral("enum"), texto},
        {QStringLiteral("set"), texto},
        {QStringLiteral("number"), numero},
        {QStringLiteral("double"), numero},
        {QStringLiteral("bool"), [](E e, P, QString &r) { return LerBool(e.Texto, r); }},
        {QStringLiteral("rect"), [](E e, P, QString &r) { return LerRetangulo(e, r); }},
        {QStringLiteral("size"), [](E e, P, QString &r) { return LerTamanho(e, r); }},
        {QStringLiteral("point"), [](E e, P, QString &r) { return LerPonto(e, r); }},
        {QStringLiteral("date"), [](E e, P, QString &r) { return LerData(e, r); }},
        {QStringLiteral("color"), [](E e, P, QString &r) { return QVariant(LerCor(e, r)); }},
        {QStringLiteral("font"), [](E e, P, QString &r) { return LerFonte(e, r); }},
        {QStringLiteral("stringlist"), [](E e, P, QString &) { return LerTextos(e); }},
        {QStringLiteral("pixmap"), [](E e, P, QString &r) { return LerFigura(e, false, r); }},
        {QStringLiteral("iconset"), [](E e, P, QString &r) { return LerFigura(e, true, r); }},
        {QStringLiteral("cursorShape"), [](E e, P, QString &r) { return LerCursor(e, r); }},
        {QStringLiteral("sizepolicy"),
         [](E e, P, QString &r) { return LerPoliticaDeTamanho(e, r); }},
    };
    return leitores;
}

} // namespace

QVariant LerValorUi(const TElementoUi &valor, const QMetaProperty &propriedade, QString &erro)
{
    const TLeitor ler = Leitores().value(valor.Nome);
    if (!ler) {
        erro = QStringLiteral("valor <%1> que o leitor não conhece").arg(valor.Nome);
        return {};
    }
    QVariant lido = ler(valor, propriedade, erro);
    if (!erro.isEmpty())
        return {};
    if (propriedade.isEnumType())
        return lido.metaType() == QMetaType::fromType<int>()
                   ? lido
                   : (erro = QStringLiteral("não é uma das opções"), QVariant());
    const QMetaType tipo = propriedade.metaType();
    const bool textoPorNumero =
        lido.metaType() == QMetaType::fromType<QString>() &&
        (tipo == QMetaType::fromType<int>() || tipo == QMetaType::fromType<bool>() ||
         tipo == QMetaType::fromType<double>());
    if (textoPorNumero || (lido.metaType() != tipo && !lido.convert(tipo))) {
        erro = QStringLiteral("<%1> não serve para o tipo %2")
                   .arg(valor.Nome, QString::fromLatin1(tipo.name()));
        return {};
    }
    return lido;
}

namespace
{

bool LerPapel(const TElementoUi &papel, QPalette::ColorGroup grupo, QPalette &paleta, QString &erro)
{
    const QVariant qual =
        LerEnumUi(papel.Atributo("role"), QMetaEnum::fromType<QPalette::ColorRole>(), erro);
    const TElementoUi *pincel = papel.Filho("brush");
    const TElementoUi *cor = pincel ? pincel->Filho("color") : nullptr;
    if (!cor && erro.isEmpty())
        erro = QStringLiteral("<colorrole> sem cor");
    if (!erro.isEmpty())
        return false;
    paleta.setColor(grupo, QPalette::ColorRole(qual.toInt()), LerCor(*cor, erro));
    return erro.isEmpty();
}

} // namespace

QVariant LerPaletaUi(const TElementoUi &valor, QString &erro)
{
    QPalette paleta;
    for (const TElementoUi &grupo : valor.Filhos) {
        const bool ativo = grupo.Nome == QLatin1String("active");
        const bool inativo = grupo.Nome == QLatin1String("inactive");
        if (!ativo && !inativo && grupo.Nome != QLatin1String("disabled")) {
            erro = QStringLiteral("<palette> com <%1>").arg(grupo.Nome);
            return {};
        }
        for (const TElementoUi &papel : grupo.Filhos)
            if (!LerPapel(papel,
                          ativo     ? QPalette::Active
                          : inativo ? QPalette::Inactive
                                    : QPalette::Disabled,
                          paleta, erro))
                return {};
    }
    return paleta;
}

QVariant LerEnumUi(const QString &texto, const QMetaEnum &tipo, QString &erro)
{
    int valor = 0;
    const QStringList chaves = texto.split(QLatin1Char('|'));
    for (const QString &chave : chaves) {
        const QString nua = chave.section(QStringLiteral("::"), -1).trimmed();
        bool certo = false;
        valor |= tipo.keyToValue(nua.toLatin1().constData(), &certo);
        if (!certo && !(tipo.isFlag() && nua.isEmpty())) {
            erro = QStringLiteral("'%1' não é de %2").arg(nua, QString::fromLatin1(tipo.name()));
            return {};
        }
    }
    return valor;
}

QList<int> LerNumerosUi(const QString &texto, QString &erro)
{
    QList<int> numeros;
    if (texto.isEmpty())
        return numeros;
    for (const QString &parte : texto.split(QLatin1Char(','))) {
        int n = 0;
        if (!LerInteiro(parte, n))
            erro = QStringLiteral("'%1' não é um número").arg(parte);
        numeros << n;
    }
    return numeros;
}

} // namespace ficha
