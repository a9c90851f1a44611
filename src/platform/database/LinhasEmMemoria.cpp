#include "platform/database/LinhasEmMemoria.h"

namespace ficha
{

namespace
{
constexpr int LinhasPorVez = 256; // as the cells of the texts are made

int ArredondarLinhas(int n)
{
    return (n + LinhasPorVez - 1) / LinhasPorVez * LinhasPorVez;
}
} // namespace

bool TLinhasEmMemoria::EhInteira(TFieldType tipo)
{
    return tipo == TFieldType::ftInteger || tipo == TFieldType::ftSmallint ||
           tipo == TFieldType::ftBoolean;
}

void TLinhasEmMemoria::Preparar(const std::vector<TFieldType> &tipos)
{
    colunas.clear();
    textosPorLinha = 0;
    for (const TFieldType tipo : tipos) {
        TColuna coluna;
        coluna.tipo = tipo;
        if (tipo == TFieldType::ftString || tipo == TFieldType::ftMemo)
            coluna.texto = textosPorLinha++;
        colunas.push_back(std::move(coluna));
    }
    Esvaziar();
}

void TLinhasEmMemoria::Esvaziar()
{
    slots = 0;
    textos = std::make_unique<TGradeTextos>(std::max(textosPorLinha, 1), 0);
    for (TColuna &coluna : colunas) {
        coluna.tem = {};
        coluna.inteiros = {};
        coluna.numeros = {};
    }
}

int TLinhasEmMemoria::Nova()
{
    if (slots % LinhasPorVez == 0 && textosPorLinha > 0)
        textos->Redimensionar(textosPorLinha, slots + LinhasPorVez);
    for (TColuna &coluna : colunas) {
        coluna.tem.push_back(false);
        if (coluna.texto >= 0)
            continue;
        if (EhInteira(coluna.tipo))
            coluna.inteiros.push_back(0);
        else
            coluna.numeros.push_back(0);
    }
    return slots++;
}

void TLinhasEmMemoria::Limpar(int slot)
{
    for (int c = 0; c < int(colunas.size()); ++c)
        Gravar(slot, c, Null);
}

void TLinhasEmMemoria::Manter(const std::vector<int> &ficam)
{
    auto antes = std::move(textos);
    textos = std::make_unique<TGradeTextos>(std::max(textosPorLinha, 1), 0);
    textos->Redimensionar(std::max(textosPorLinha, 1), ArredondarLinhas(int(ficam.size())));
    QString texto;
    for (TColuna &coluna : colunas) {
        for (size_t novo = 0; novo < ficam.size(); ++novo) {
            const auto velho = size_t(ficam[novo]);
            coluna.tem[novo] = coluna.tem[velho];
            if (coluna.texto >= 0) {
                texto = antes->Texto(coluna.texto, int(velho)).toString();
                textos->Gravar(coluna.texto, int(novo), texto);
            } else if (EhInteira(coluna.tipo)) {
                coluna.inteiros[novo] = coluna.inteiros[velho];
            } else {
                coluna.numeros[novo] = coluna.numeros[velho];
            }
        }
        coluna.tem.resize(ficam.size());
        coluna.inteiros.resize(std::min(coluna.inteiros.size(), ficam.size()));
        coluna.numeros.resize(std::min(coluna.numeros.size(), ficam.size()));
    }
    slots = int(ficam.size());
}

bool TLinhasEmMemoria::Nula(int slot, int coluna) const
{
    return !colunas[size_t(coluna)].tem[size_t(slot)];
}

Variant TLinhasEmMemoria::Valor(int slot, int coluna) const
{
    const TColuna &c = colunas[size_t(coluna)];
    if (Nula(slot, coluna))
        return Null;
    if (c.texto >= 0)
        return Texto(slot, coluna).toString();
    if (EhInteira(c.tipo))
        return int(c.inteiros[size_t(slot)]);
    if (c.tipo == TFieldType::ftFloat)
        return c.numeros[size_t(slot)];
    return TDateTime(c.numeros[size_t(slot)]);
}

QAnyStringView TLinhasEmMemoria::Texto(int slot, int coluna) const
{
    return textos->Texto(colunas[size_t(coluna)].texto, slot);
}

double TLinhasEmMemoria::Numero(int slot, int coluna) const
{
    const TColuna &c = colunas[size_t(coluna)];
    return EhInteira(c.tipo) ? c.inteiros[size_t(slot)] : c.numeros[size_t(slot)];
}

void TLinhasEmMemoria::Gravar(int slot, int coluna, const Variant &valor)
{
    TColuna &c = colunas[size_t(coluna)];
    const bool tem = !valor.EhNulo() && !valor.EhNaoAtribuido();
    c.tem[size_t(slot)] = tem;
    if (c.texto >= 0)
        textos->Gravar(c.texto, slot, tem ? valor.AsString() : QString());
    else if (EhInteira(c.tipo))
        c.inteiros[size_t(slot)] = valor.AsInteger();
    else
        c.numeros[size_t(slot)] = valor.AsFloat();
}

qint64 TLinhasEmMemoria::BytesUsados() const
{
    qint64 soma = textos ? textos->Bytes() : 0;
    for (const TColuna &c : colunas) {
        soma += qint64(c.tem.capacity() / 8 + c.inteiros.capacity() * sizeof(std::int32_t) +
                       c.numeros.capacity() * sizeof(double));
    }
    return soma;
}

} // namespace ficha
