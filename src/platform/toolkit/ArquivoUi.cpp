#include "platform/toolkit/ArquivoUi.h"

#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>

namespace ficha
{

QString TElementoUi::Atributo(const char *nome) const
{
    for (const auto &[chave, valor] : Atributos)
        if (chave == QLatin1String(nome))
            return valor;
    return {};
}

bool TElementoUi::TemAtributo(const char *nome) const
{
    return std::ranges::any_of(Atributos,
                               [nome](const auto &a) { return a.first == QLatin1String(nome); });
}

const TElementoUi *TElementoUi::Filho(const char *nome) const
{
    for (const TElementoUi &filho : Filhos)
        if (filho.Nome == QLatin1String(nome))
            return &filho;
    return nullptr;
}

QString TElementoUi::TextoDe(const char *filho) const
{
    const TElementoUi *el = Filho(filho);
    return el ? el->Texto : QString();
}

namespace
{

bool EhBranco(char c)
{
    return c == ' ' || c == '\n' || c == '\t';
}

bool EhDeNome(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.';
}

bool SoBrancos(QStringView texto)
{
    return std::ranges::all_of(
        texto, [](QChar c) { return c == u' ' || c == u'\n' || c == u'\t' || c == u'\r'; });
}

/** A name; the usual ones are made once for all. */
QString Palavra(QByteArrayView nome)
{
    struct TUsual {
        explicit TUsual(const char *letras) : Letras(letras), Texto(QLatin1String(letras)) {}
        QByteArrayView Letras;
        QString Texto;
    };
    static const TUsual usuais[] = {
        TUsual("name"),   TUsual("property"), TUsual("string"), TUsual("number"), TUsual("x"),
        TUsual("y"),      TUsual("width"),    TUsual("height"), TUsual("rect"),   TUsual("widget"),
        TUsual("class"),  TUsual("bool"),     TUsual("enum"),   TUsual("set"),    TUsual("stdset"),
        TUsual("action"), TUsual("font"),     TUsual("tabstop")};
    for (const TUsual &usual : usuais)
        if (usual.Letras == nome)
            return usual.Texto;
    return QString::fromLatin1(nome);
}

/** A child comes: what stood before it is text only when it is more than the indentation. */
void LargarBrancos(TElementoUi &el)
{
    if (SoBrancos(el.Texto))
        el.Texto.clear();
}

/**
 * Reads what Designer writes, several times as fast as the general reader: the layouts of a screen
 * and of its frames are read when it opens for the first time. Gives up at anything unusual.
 */
class TLeitorSimples
{
public:
    explicit TLeitorSimples(const QByteArray &bytes) : p(bytes.constData()), fim(p + bytes.size())
    {
    }

    bool Arquivo(TElementoUi &raiz) { return Prologo() && Abertura(raiz) && Conteudo(raiz); }

private:
    bool Comeca(const char *texto) const
    {
        const std::size_t n = qstrlen(texto);
        return std::size_t(fim - p) >= n && memcmp(p, texto, n) == 0;
    }
    bool Pegar(char c)
    {
        if (p == fim || *p != c)
            return false;
        ++p;
        return true;
    }
    void Brancos()
    {
        for (; p != fim && EhBranco(*p); ++p)
            linha += *p == '\n';
    }
    QByteArrayView Nome();
    bool Prologo();
    bool Comentario();
    bool Abertura(TElementoUi &el);
    bool Atributo(TElementoUi &el);
    bool Conteudo(TElementoUi &el);
    bool SaltarBrancos(const TElementoUi &el);
    bool Fechamento(const TElementoUi &el);
    bool Caracteres(char ate, QString &texto);
    bool Entidade(QString &texto);

    const char *p;
    const char *const fim;
    qint64 linha = 1;
    bool vazia = false; /**< the tag that was opened last has closed itself */
};

/** A name of plain letters; empty for any other. */
QByteArrayView TLeitorSimples::Nome()
{
    const char *inicio = p;
    const bool letra =
        p != fim && EhDeNome(*p) && *p != '-' && *p != '.' && !(*p >= '0' && *p <= '9');
    while (letra && p != fim && EhDeNome(*p))
        ++p;
    return {inicio, p - inicio};
}

/** What Designer's files begin with, or nothing. */
bool TLeitorSimples::Prologo()
{
    static constexpr char Declaracao[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    if (Comeca(Declaracao))
        p += sizeof Declaracao - 1;
    Brancos();
    while (Comeca("<!--")) {
        if (!Comentario())
            return false;
        Brancos();
    }
    return Pegar('<');
}

bool TLeitorSimples::Comentario()
{
    p += 4;
    const auto tamanho = QByteArrayView(p, fim - p).indexOf("--");
    if (tamanho < 0)
        return false;
    linha += std::count(p, p + tamanho, '\n');
    p += tamanho + 2;
    return Pegar('>');
}

/** The opening tag, behind its "<". */
bool TLeitorSimples::Abertura(TElementoUi &el)
{
    el.Nome = Palavra(Nome());
    if (el.Nome.isEmpty())
        return false;
    for (;;) {
        const char *antes = p;
        Brancos();
        vazia = Pegar('/');
        if (Pegar('>'))
            break;
        if (vazia || p == antes || !Atributo(el))
            return false;
    }
    el.Linha = linha;
    return true;
}

bool TLeitorSimples::Atributo(TElementoUi &el)
{
    QString nome = Palavra(Nome());
    QString valor;
    const auto repetido = [&nome](const auto &a) { return a.first == nome; };
    if (nome.isEmpty() || nome == QLatin1String("xmlns") || !Pegar('=') || !Pegar('"') ||
        !Caracteres('"', valor) || std::ranges::any_of(el.Atributos, repetido))
        return false;
    ++p;
    el.Atributos.emplace_back(std::move(nome), std::move(valor));
    return true;
}

/** What stands between the tags, and the closing one. */
bool TLeitorSimples::Conteudo(TElementoUi &el)
{
    if (vazia)
        return true;
    for (;;) {
        if (!SaltarBrancos(el) && !Caracteres('<', el.Texto))
            return false;
        if (Comeca("</"))
            return Fechamento(el);
        if (Comeca("<!--")) {
            if (!Comentario())
                return false;
            continue;
        }
        ++p;
        LargarBrancos(el);
        TElementoUi &filho = el.Filhos.emplace_back();
        if (!Abertura(filho) || !Conteudo(filho))
            return false;
    }
}

/** Blanks around child elements are no text; false, and nothing read, when it is anything else. */
bool TLeitorSimples::SaltarBrancos(const TElementoUi &el)
{
    const char *antes = p;
    const qint64 linhaAntes = linha;
    Brancos();
    const bool leva = !el.Filhos.empty() || (!Comeca("</") && !Comeca("<!--"));
    if (p != fim && *p == '<' && leva)
        return true;
    p = antes;
    linha = linhaAntes;
    return false;
}

bool TLeitorSimples::Fechamento(const TElementoUi &el)
{
    p += 2;
    if (el.Nome != QLatin1String(Nome()))
        return false;
    Brancos();
    return Pegar('>');
}

/** The characters up to a mark, which is left standing. */
bool TLeitorSimples::Caracteres(char ate, QString &texto)
{
    for (;;) {
        const char *inicio = p;
        while (p != fim && *p != ate && *p != '&' && *p != '<') {
            const char c = *p++;
            linha += c == '\n';
            // Blanks are written otherwise in a value, and these three never stand in a text.
            if (ate == '"' && (c == '\n' || c == '\t'))
                return false;
            if (c == ']' && Comeca("]>"))
                return false;
        }
        if (p != inicio)
            texto += QString::fromUtf8(inicio, p - inicio);
        if (p == fim)
            return false;
        if (*p == ate)
            return true;
        if (*p == '<' || !Entidade(texto))
            return false;
    }
}

bool TLeitorSimples::Entidade(QString &texto)
{
    static constexpr std::pair<const char *, char16_t> entidades[] = {
        {"&lt;", u'<'}, {"&gt;", u'>'}, {"&amp;", u'&'}, {"&quot;", u'"'}, {"&apos;", u'\''}};
    for (const auto &[nome, caractere] : entidades) {
        if (Comeca(nome)) {
            p += qstrlen(nome);
            texto += QChar(caractere);
            return true;
        }
    }
    return false;
}

/** Bytes that mean something else to the general reader than to the simple one. U+F000 and beyond
 * have among them the marks and the codes that are no characters. */
bool TemEstranhos(const QByteArray &bytes)
{
    unsigned tem = 0;
    for (const char c : bytes) {
        const uchar u = uchar(c);
        tem |=
            (unsigned(u < 0x20) & unsigned(u != '\n') & unsigned(u != '\t')) | unsigned(u == 0xEF);
    }
    return tem != 0 || !QByteArrayView(bytes).isValidUtf8();
}

void LerElemento(QXmlStreamReader &xml, TElementoUi &el)
{
    el.Nome = xml.name().toString();
    el.Linha = xml.lineNumber();
    const QXmlStreamAttributes atributos = xml.attributes();
    for (const QXmlStreamAttribute &a : atributos)
        el.Atributos.emplace_back(a.name().toString(), a.value().toString());
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement())
            break;
        if (xml.isCharacters()) {
            if (el.Filhos.empty() || !xml.isWhitespace())
                el.Texto += xml.text();
        } else if (xml.isStartElement()) {
            LargarBrancos(el);
            el.Filhos.emplace_back();
            LerElemento(xml, el.Filhos.back());
        }
    }
}

} // namespace

bool LerUiSimples(const QByteArray &bytes, TElementoUi &raiz)
{
    return !TemEstranhos(bytes) && TLeitorSimples(bytes).Arquivo(raiz);
}

TElementoUi LerUiGeral(const QByteArray &bytes, QString &erro)
{
    TElementoUi raiz;
    QXmlStreamReader xml(bytes);
    if (xml.readNextStartElement())
        LerElemento(xml, raiz);
    if (!xml.hasError())
        return raiz;
    erro = QStringLiteral("%1: %2").arg(xml.lineNumber()).arg(xml.errorString());
    return {};
}

TElementoUi LerArquivoUi(const QString &arquivo, QStringList &falhas)
{
    QFile dados(arquivo);
    if (!dados.open(QIODevice::ReadOnly)) {
        falhas << QStringLiteral("%1:0: não se pôde ler o layout: %2")
                      .arg(arquivo, dados.errorString());
        return {};
    }
    const QByteArray bytes = dados.readAll();
    TElementoUi raiz;
    if (LerUiSimples(bytes, raiz))
        return raiz;
    QString erro;
    raiz = LerUiGeral(bytes, erro);
    if (!erro.isEmpty())
        falhas << QStringLiteral("%1:%2: XML mal formado: %3")
                      .arg(arquivo, erro.section(QStringLiteral(": "), 0, 0),
                           erro.section(QStringLiteral(": "), 1));
    return raiz;
}

} // namespace ficha
