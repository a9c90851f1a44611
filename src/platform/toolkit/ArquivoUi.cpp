#include "platform/toolkit/ArquivoUi.h"

#include <QFile>
#include <QXmlStreamReader>

namespace ficha
{

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

void LerElemento(QXmlStreamReader &xml, TElementoUi &el)
{
    el.Nome = xml.name().toString();
    el.Linha = xml.lineNumber();
    const QXmlStreamAttributes atributos = xml.attributes();
    for (const QXmlStreamAttribute &a : atributos)
        el.Atributos.insert(a.name().toString(), a.value().toString());
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement())
            return;
        if (xml.isCharacters()) {
            el.Texto += xml.text();
        } else if (xml.isStartElement()) {
            el.Filhos.emplace_back();
            LerElemento(xml, el.Filhos.back());
        }
    }
}

} // namespace

TElementoUi LerArquivoUi(const QString &arquivo, QStringList &falhas)
{
    TElementoUi raiz;
    QFile dados(arquivo);
    if (!dados.open(QIODevice::ReadOnly)) {
        falhas << QStringLiteral("%1:0: não se pôde ler o layout: %2")
                      .arg(arquivo, dados.errorString());
        return raiz;
    }
    QXmlStreamReader xml(&dados);
    if (xml.readNextStartElement())
        LerElemento(xml, raiz);
    if (xml.hasError()) {
        falhas << QStringLiteral("%1:%2: XML mal formado: %3")
                      .arg(arquivo)
                      .arg(xml.lineNumber())
                      .arg(xml.errorString());
        return {};
    }
    return raiz;
}

} // namespace ficha
