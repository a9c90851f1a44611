#pragma once

#include "platform/toolkit/ArquivoUi.h"
#include "platform/toolkit/Layout.h"

#include <QHash>
#include <QMetaProperty>
#include <QVariant>

#include <memory>
#include <vector>

namespace ficha
{

/** A class that layouts may name: its meta-object and, unless abstract, how one is made. */
struct TClasseDeLayout {
    const QMetaObject *meta = nullptr;
    std::function<QWidget *(QWidget *)> criar;
};
/** Null when the name is unknown. */
const TClasseDeLayout *ClasseDeLayout(const QString &nome);
/** A class name without its namespace. */
QString NomeDaClasse(const QMetaObject &classe);
/** The layout file of a class in the registered folders; empty when it has none. */
QString ArquivoDaClasse(const QString &nome);

/** How one setting of a layout reaches its object. */
enum class TEscrita {
    Propriedade,
    Geometria,
    Paleta,
    Dinamica,
    Referencia,
    Companheiro,
    Itens,
    Titulo,
    Alinhamento,
    Ancoras,
};

/** One setting, checked and converted. */
struct TAtribuicao {
    TEscrita como = TEscrita::Propriedade;
    QMetaProperty propriedade;
    QByteArray nome;
    QVariant valor;
    QString referencia;
    qint64 linha = 0;
};

struct TPlanoWidget;
struct TPlanoDisposicao;

/** A cell of a Qt layout: exactly one of widget, disposicao and espaco. */
struct TPlanoCelula {
    std::unique_ptr<TPlanoWidget> widget;
    std::unique_ptr<TPlanoDisposicao> disposicao;
    bool espaco = false;
    QSize tamanho;
    bool vertical = false;
    int politica = 0;
    int linha = -1, coluna = -1, linhas = 1, colunas = 1;
    Qt::Alignment alinhamento;
};

/** A Qt layout and what it holds. */
struct TPlanoDisposicao {
    QString nome, classe;
    std::vector<TAtribuicao> atribuicoes;
    int margens[4] = {-1, -1, -1, -1};
    int horizontal = -1, vertical = -1;
    QList<int> esticar, esticarLinhas, esticarColunas, minLinhas, minColunas;
    std::vector<TPlanoCelula> celulas;
};

struct TPlanoAcao {
    QString nome;
    int lugar = -1;
    bool nova = false;
    std::vector<TAtribuicao> atribuicoes;
};
struct TPlanoLista {
    QString nome;
    int lugar = -1;
    bool nova = false;
    std::vector<TPlanoAcao> acoes;
};

/** A widget of a layout: a new one, a known one, or a child of an inline frame. */
struct TPlanoWidget {
    QString nome;
    const QMetaObject *classe = nullptr;
    const TClasseDeLayout *nova = nullptr; /**< null: it exists already */
    int lugar = -1;                        /**< -1 for a child of an inline frame */
    std::vector<TAtribuicao> atribuicoes, tardias;
    std::vector<TPlanoWidget> filhos;
    std::unique_ptr<TPlanoDisposicao> disposicao;
    std::vector<TPlanoLista> listas;
    QStringList ordem; /**< zorder, from the bottom */
};

/** What a name of a class's layouts stands for. */
struct TNomeDeLayout {
    enum TEspecie { Widget, Acao, Lista } especie = Widget;
    const QMetaObject *classe = nullptr;
    QString pai; /**< the container; empty for the root */
    int lugar = -1;
};

/** How the inside of a container is laid out, as far as the files seen so far tell. */
enum class TArranjo { Livre, Disposto, Alinhado };

/** The names of a class chain's layouts. */
struct TEscopoDeLayout {
    QHash<QString, TNomeDeLayout> nomes;
    QHash<QString, TArranjo> arranjos;
    int lugares = 0;
};

/** One layout file, ready to be built. */
struct TPlanoArquivo {
    QString arquivo;
    TPlanoWidget raiz;
    QStringList tabulacao;
};

/** The layouts of a class chain. */
struct TPlanoDeClasse {
    std::shared_ptr<const TPlanoDeClasse> base;
    std::unique_ptr<TPlanoArquivo> proprio;
    TEscopoDeLayout escopo;
    QStringList falhas;
    bool emCurso = false; /**< asked for while it is being made: the class holds itself */
};

/** The plan of a class, made once per process; its faults are in the plan. */
std::shared_ptr<const TPlanoDeClasse> PlanoDaClasse(const QMetaObject &classe);
/** Forgets all plans: the folders changed. */
void EsquecerPlanos();
/** Compiles one file for a class upon the names of its base class. */
std::unique_ptr<TPlanoArquivo> CompilarArquivo(const QString &arquivo, const QMetaObject &classe,
                                               TEscopoDeLayout &escopo, QStringList &falhas);

} // namespace ficha
