#include "platform/toolkit/ArquivoUi.h"

#include <QDataStream>
#include <QFile>
#include <QHash>
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

/** What a compiled layout begins with; no text begins so. */
constexpr quint32 Marca = 0x0146'4C59;
constexpr quint16 Versao = 1;

/** A child comes: what stood before it is text only when it is more than the indentation. */
void LargarBrancos(TElementoUi &el)
{
    const auto branco = [](QChar c) { return c == u' ' || c == u'\n' || c == u'\t' || c == u'\r'; };
    if (std::ranges::all_of(el.Texto, branco))
        el.Texto.clear();
}

/** Both directions of the compiled form. */
void Combinar(QDataStream &fluxo)
{
    fluxo.setVersion(QDataStream::Qt_6_0);
    fluxo.setByteOrder(QDataStream::LittleEndian);
}

/** Writes elements whose words are numbers of a table. */
class TEscritor
{
public:
    QByteArray Escrever(const TElementoUi &raiz)
    {
        QByteArray arvore;
        QDataStream paraArvore(&arvore, QIODevice::WriteOnly);
        Combinar(paraArvore);
        Elemento(paraArvore, raiz);
        QByteArray bytes;
        QDataStream fluxo(&bytes, QIODevice::WriteOnly);
        Combinar(fluxo);
        fluxo << Marca << Versao << quint32(palavras.size());
        for (const QString &palavra : palavras)
            fluxo << palavra;
        fluxo.writeRawData(arvore.constData(), int(arvore.size()));
        return bytes;
    }

private:
    void Elemento(QDataStream &fluxo, const TElementoUi &el)
    {
        fluxo << Numero(el.Nome) << Numero(el.Texto) << quint32(el.Linha)
              << quint32(el.Atributos.size()) << quint32(el.Filhos.size());
        for (const auto &[nome, valor] : el.Atributos)
            fluxo << Numero(nome) << Numero(valor);
        for (const TElementoUi &filho : el.Filhos)
            Elemento(fluxo, filho);
    }
    quint32 Numero(const QString &palavra)
    {
        const auto achada = numeros.constFind(palavra);
        if (achada != numeros.constEnd())
            return *achada;
        palavras.append(palavra);
        return *numeros.insert(palavra, quint32(palavras.size() - 1));
    }

    QStringList palavras;
    QHash<QString, quint32> numeros;
};

/** Reads what TEscritor wrote; every number is checked against what can be there. */
class TLeitor
{
public:
    explicit TLeitor(const QByteArray &bytes) : fluxo(bytes) { Combinar(fluxo); }

    /** False when the bytes are no compiled layout, or a damaged one. */
    bool Ler(TElementoUi &raiz)
    {
        quint32 marca = 0;
        quint16 versao = 0;
        fluxo >> marca >> versao;
        if (marca != Marca || versao != Versao)
            return false;
        return Palavras() && Elemento(raiz) && fluxo.atEnd();
    }

private:
    /** What each takes at least: more of them than there are bytes left for cannot follow. */
    static constexpr qint64 BytesDeElemento = 5 * sizeof(quint32);
    static constexpr qint64 BytesDeAtributo = 2 * sizeof(quint32);
    static constexpr qint64 BytesDePalavra = sizeof(quint32);

    bool Palavras()
    {
        quint32 quantas = 0;
        fluxo >> quantas;
        if (quantas * BytesDePalavra > fluxo.device()->bytesAvailable())
            return false;
        palavras.resize(quantas);
        for (QString &palavra : palavras)
            fluxo >> palavra;
        return fluxo.status() == QDataStream::Ok;
    }
    bool Elemento(TElementoUi &el)
    {
        quint32 linha = 0;
        quint32 atributos = 0;
        quint32 filhos = 0;
        if (!Palavra(el.Nome) || !Palavra(el.Texto))
            return false;
        fluxo >> linha >> atributos >> filhos;
        const qint64 restam = fluxo.device()->bytesAvailable();
        if (fluxo.status() != QDataStream::Ok ||
            atributos * BytesDeAtributo + filhos * BytesDeElemento > restam)
            return false;
        el.Linha = linha;
        el.Atributos.resize(atributos);
        for (auto &[nome, valor] : el.Atributos)
            if (!Palavra(nome) || !Palavra(valor))
                return false;
        el.Filhos.resize(filhos);
        return std::ranges::all_of(el.Filhos, [this](TElementoUi &f) { return Elemento(f); });
    }
    bool Palavra(QString &palavra)
    {
        quint32 numero = 0;
        fluxo >> numero;
        if (fluxo.status() != QDataStream::Ok || numero >= quint32(palavras.size()))
            return false;
        palavra = palavras[numero];
        return true;
    }

    QDataStream fluxo;
    QStringList palavras;
};

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

TElementoUi LerUi(const QByteArray &bytes, QString &erro)
{
    TElementoUi raiz;
    QXmlStreamReader xml(bytes);
    if (xml.readNextStartElement())
        LerElemento(xml, raiz);
    if (!xml.hasError())
        return raiz;
    erro = QStringLiteral("%1: XML mal formado: %2").arg(xml.lineNumber()).arg(xml.errorString());
    return {};
}

QByteArray CompilarUi(const TElementoUi &raiz)
{
    return TEscritor().Escrever(raiz);
}

bool LerUiCompilado(const QByteArray &bytes, TElementoUi &raiz)
{
    return TLeitor(bytes).Ler(raiz);
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
    if (LerUiCompilado(bytes, raiz))
        return raiz;
    QString erro;
    raiz = LerUi(bytes, erro);
    if (!erro.isEmpty())
        falhas << arquivo + u':' + erro;
    return raiz;
}

} // namespace ficha
