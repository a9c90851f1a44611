#include "platform/toolkit/PlanoLayout.h"

#include "platform/toolkit/Alinhamento.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TFrame.h"
#include "platform/toolkit/ValorUi.h"

#include <QBoxLayout>
#include <QFormLayout>
#include <QLabel>

#include <algorithm>
#include <map>

namespace ficha
{

namespace
{

/** Turns the elements of one file into a plan, noting every fault on the way. */
class TCompilador
{
public:
    TCompilador(QString arquivo_, const QMetaObject &classe_, TEscopoDeLayout &escopo_,
                QStringList &falhas_)
        : arquivo(std::move(arquivo_)), classeRaiz(classe_), escopo(escopo_), falhas(falhas_)
    {
    }

    std::unique_ptr<TPlanoArquivo> Compilar();

private:
    /** Where an element stands: its container, and the frame when it is inside an inline one. */
    struct TLugar {
        QString pai;
        const TEscopoDeLayout *interno = nullptr;
        const QMetaObject *quadro = nullptr;
    };

    void Falha(qint64 linha, const QString &texto);
    bool RaizServe(const TElementoUi &ui, const TElementoUi &raiz);
    void ElementoDoArquivo(const TElementoUi &el);

    bool Identificar(const TElementoUi &el, const TLugar &lugar, TPlanoWidget &w);
    bool Conhecido(const TElementoUi &el, const TNomeDeLayout &nome, const TLugar &lugar,
                   TPlanoWidget &w);
    void Conteudo(const TElementoUi &el, TPlanoWidget &w, const TLugar &dentro, bool raiz);
    void Parte(const TElementoUi &el, TPlanoWidget &w, const TLugar &dentro, bool raiz);
    void Filho(const TElementoUi &el, TPlanoWidget &w, const TLugar &dentro);
    void Disposicao(const TElementoUi &el, TPlanoWidget &w, const TLugar &dentro);
    bool Arranjar(const QString &conteiner, TArranjo arranjo, qint64 linha);

    std::unique_ptr<TPlanoDisposicao> LerDisposicao(const TElementoUi &el, TPlanoWidget &dono,
                                                    const TLugar &dentro);
    void PropriedadeDaDisposicao(const TElementoUi &el, const QMetaObject &meta,
                                 TPlanoDisposicao &d);
    TPlanoCelula LerCelula(const TElementoUi &el, TPlanoWidget &dono, const TLugar &dentro);
    void LerEspaco(const TElementoUi &el, TPlanoCelula &celula);
    int Numero(const TElementoUi &el, const char *atributo, int senao);

    void Lista(const TElementoUi &el, TPlanoWidget &raiz);
    TPlanoLista &ListaChamada(const QString &nome, qint64 linha, TPlanoWidget &raiz);
    void Acao(const TElementoUi &el, TPlanoLista &lista);

    void Propriedade(const TElementoUi &el, TPlanoWidget &w, const TLugar &lugar, bool raiz);
    bool PropriedadeComum(const TElementoUi &el, const TElementoUi &valor, TPlanoWidget &w,
                          const TLugar &lugar);
    bool Escrever(const TElementoUi &el, const QMetaObject &classe, TAtribuicao &a);
    bool Referir(const TElementoUi &valor, const QMetaProperty &p, TAtribuicao &a);
    void Atributo(const TElementoUi &el, TPlanoWidget &w);
    void Item(const TElementoUi &el, TPlanoWidget &w);
    void ConferirReferencias();
    void Tabulacao(const TElementoUi &el);

    QString arquivo;
    const QMetaObject &classeRaiz;
    TEscopoDeLayout &escopo;
    QStringList &falhas;
    std::unique_ptr<TPlanoArquivo> plano;

    struct TPendente {
        QString nome;
        const QMetaObject *classe;
        const TEscopoDeLayout *interno;
        qint64 linha;
    };
    std::vector<TPendente> referencias;
    const TLugar *lugarAtual = nullptr;
};

bool Herda(const QMetaObject *classe, const QMetaObject &base)
{
    return classe && classe->inherits(&base);
}

void TCompilador::Falha(qint64 linha, const QString &texto)
{
    falhas << QStringLiteral("%1:%2: %3").arg(arquivo).arg(linha).arg(texto);
}

std::unique_ptr<TPlanoArquivo> TCompilador::Compilar()
{
    plano = std::make_unique<TPlanoArquivo>();
    plano->arquivo = arquivo;
    const qsizetype antes = falhas.size();
    const TElementoUi ui = LerArquivoUi(arquivo, falhas);
    if (falhas.size() > antes)
        return std::move(plano);
    const TElementoUi *raiz = ui.Filho("widget");
    if (ui.Nome != QLatin1String("ui") || !raiz) {
        Falha(ui.Linha, QStringLiteral("não é um layout: falta <ui> com um <widget>"));
        return std::move(plano);
    }
    if (RaizServe(ui, *raiz)) {
        plano->raiz.classe = &classeRaiz;
        plano->raiz.nome = raiz->Atributo("name");
        const TLugar lugar;
        Conteudo(*raiz, plano->raiz, lugar, true);
        for (const TElementoUi &el : ui.Filhos)
            ElementoDoArquivo(el);
        ConferirReferencias();
    }
    return std::move(plano);
}

bool TCompilador::RaizServe(const TElementoUi &ui, const TElementoUi &raiz)
{
    const QString dita = ui.TextoDe("class");
    const QString nome = NomeDaClasse(classeRaiz);
    if (!dita.isEmpty() && dita != nome) {
        Falha(ui.Linha, QStringLiteral("o layout é de '%1', não de '%2'").arg(dita, nome));
        return false;
    }
    const QString daRaiz = raiz.Atributo("class");
    for (const QMetaObject *m = &classeRaiz; m; m = m->superClass())
        if (NomeDaClasse(*m) == daRaiz)
            return true;
    Falha(raiz.Linha, QStringLiteral("'%1' não é de classe '%2'").arg(nome, daRaiz));
    return false;
}

void TCompilador::ElementoDoArquivo(const TElementoUi &el)
{
    static const QStringList semEfeito = {
        QStringLiteral("class"),         QStringLiteral("widget"),
        QStringLiteral("author"),        QStringLiteral("comment"),
        QStringLiteral("customwidgets"), QStringLiteral("resources"),
        QStringLiteral("includes"),      QStringLiteral("designerdata"),
        QStringLiteral("exportmacro"),   QStringLiteral("layoutdefault")};
    if (el.Nome == QLatin1String("tabstops"))
        Tabulacao(el);
    else if (el.Nome == QLatin1String("connections") && el.Filhos.empty())
        return;
    else if (!semEfeito.contains(el.Nome))
        Falha(el.Linha, QStringLiteral("<%1> não se usa nos layouts").arg(el.Nome));
}

/** Finds out whether an element names a known child or makes a new one; false is a fault. */
bool TCompilador::Identificar(const TElementoUi &el, const TLugar &lugar, TPlanoWidget &w)
{
    w.nome = el.Atributo("name");
    if (w.nome.isEmpty()) {
        Falha(el.Linha, QStringLiteral("<widget> sem nome"));
        return false;
    }
    const TEscopoDeLayout &nomes = lugar.interno ? *lugar.interno : escopo;
    const auto achado = nomes.nomes.constFind(w.nome);
    if (achado != nomes.nomes.constEnd())
        return Conhecido(el, *achado, lugar, w);
    if (lugar.interno) {
        Falha(el.Linha,
              QStringLiteral("'%1' não existe em %2").arg(w.nome, NomeDaClasse(*lugar.quadro)));
        return false;
    }
    const QString classe = el.Atributo("class");
    w.nova = ClasseDeLayout(classe);
    if (!w.nova || !w.nova->criar) {
        Falha(el.Linha, (w.nova ? QStringLiteral("a classe '%1' de '%2' é abstrata")
                                : QStringLiteral("a classe '%1' de '%2' não está registrada"))
                            .arg(classe, w.nome));
        return false;
    }
    w.classe = w.nova->meta;
    w.lugar = escopo.lugares++;
    escopo.nomes.insert(w.nome, {TNomeDeLayout::Widget, w.classe, lugar.pai, w.lugar});
    return true;
}

bool TCompilador::Conhecido(const TElementoUi &el, const TNomeDeLayout &nome, const TLugar &lugar,
                            TPlanoWidget &w)
{
    const QString classe = el.Atributo("class");
    if (nome.especie != TNomeDeLayout::Widget || NomeDaClasse(*nome.classe) != classe) {
        Falha(el.Linha, QStringLiteral("'%1' já existe e é de classe '%2', não '%3'")
                            .arg(w.nome, NomeDaClasse(*nome.classe), classe));
        return false;
    }
    if (!lugar.pai.isEmpty() && lugar.pai != nome.pai) {
        Falha(el.Linha, QStringLiteral("'%1' está em '%2' e não pode passar para '%3'")
                            .arg(w.nome, nome.pai.isEmpty() ? QStringLiteral("(raiz)") : nome.pai,
                                 lugar.pai));
        return false;
    }
    w.classe = nome.classe;
    w.lugar = lugar.interno ? -1 : nome.lugar;
    return true;
}

void TCompilador::Conteudo(const TElementoUi &el, TPlanoWidget &w, const TLugar &dentro, bool raiz)
{
    for (const TElementoUi &parte : el.Filhos)
        Parte(parte, w, dentro, raiz);
    // A control is sized and filled before it sticks to a side.
    std::stable_partition(w.atribuicoes.begin(), w.atribuicoes.end(), [](const TAtribuicao &a) {
        return a.como != TEscrita::Alinhamento && a.como != TEscrita::Ancoras;
    });
}

void TCompilador::Parte(const TElementoUi &el, TPlanoWidget &w, const TLugar &dentro, bool raiz)
{
    if (el.Nome == QLatin1String("property")) {
        Propriedade(el, w, dentro, raiz);
    } else if (el.Nome == QLatin1String("attribute")) {
        Atributo(el, w);
    } else if (el.Nome == QLatin1String("widget")) {
        Filho(el, w, dentro);
    } else if (el.Nome == QLatin1String("layout")) {
        Disposicao(el, w, dentro);
    } else if (el.Nome == QLatin1String("item")) {
        Item(el, w);
    } else if (el.Nome == QLatin1String("zorder")) {
        w.ordem << el.Texto;
    } else if (raiz && el.Nome == QLatin1String("actiongroup")) {
        Lista(el, w);
    } else if (raiz && el.Nome == QLatin1String("action")) {
        Acao(el, ListaChamada(QStringLiteral("ActionList1"), el.Linha, w));
    } else {
        Falha(el.Linha, QStringLiteral("<%1> não se usa aqui").arg(el.Nome));
    }
}

void TCompilador::Filho(const TElementoUi &el, TPlanoWidget &w, const TLugar &dentro)
{
    TPlanoWidget filho;
    if (!Identificar(el, dentro, filho))
        return;
    TLugar dele{filho.nome, dentro.interno, dentro.quadro};
    std::shared_ptr<const TPlanoDeClasse> doQuadro;
    if (Herda(filho.classe, TFrame::staticMetaObject)) {
        doQuadro = PlanoDaClasse(*filho.classe);
        if (doQuadro->emCurso || Herda(filho.classe, classeRaiz)) {
            Falha(el.Linha, QStringLiteral("'%1' poria %2 dentro de si mesmo")
                                .arg(filho.nome, NomeDaClasse(*filho.classe)));
            return;
        }
        dele = {QString(), &doQuadro->escopo, filho.classe};
    }
    Conteudo(el, filho, dele, false);
    w.filhos.push_back(std::move(filho));
}

bool TCompilador::Arranjar(const QString &conteiner, TArranjo arranjo, qint64 linha)
{
    TArranjo &atual = escopo.arranjos[conteiner];
    const bool serve =
        atual == TArranjo::Livre || (atual == arranjo && arranjo == TArranjo::Alinhado);
    if (!serve)
        Falha(linha, QStringLiteral("'%1' já tem um layout")
                         .arg(conteiner.isEmpty() ? QStringLiteral("(raiz)") : conteiner));
    atual = arranjo;
    return serve;
}

void TCompilador::Disposicao(const TElementoUi &el, TPlanoWidget &w, const TLugar &dentro)
{
    if (dentro.interno) {
        Falha(el.Linha, QStringLiteral("o layout de um quadro é dele mesmo"));
        return;
    }
    if (Arranjar(dentro.pai, TArranjo::Disposto, el.Linha))
        w.disposicao = LerDisposicao(el, w, dentro);
}

const QMetaObject *ClasseDeDisposicao(const QString &nome)
{
    for (const QMetaObject *m : {&QVBoxLayout::staticMetaObject, &QHBoxLayout::staticMetaObject,
                                 &QGridLayout::staticMetaObject, &QFormLayout::staticMetaObject})
        if (nome == QLatin1String(m->className()))
            return m;
    return nullptr;
}

std::unique_ptr<TPlanoDisposicao>
TCompilador::LerDisposicao(const TElementoUi &el, TPlanoWidget &dono, const TLugar &dentro)
{
    auto d = std::make_unique<TPlanoDisposicao>();
    d->nome = el.Atributo("name");
    d->classe = el.Atributo("class");
    const QMetaObject *meta = ClasseDeDisposicao(d->classe);
    if (!meta) {
        Falha(el.Linha, QStringLiteral("layout de classe '%1' desconhecida").arg(d->classe));
        return nullptr;
    }
    QString erro;
    d->esticar = LerNumerosUi(el.Atributo("stretch"), erro);
    d->esticarLinhas = LerNumerosUi(el.Atributo("rowstretch"), erro);
    d->esticarColunas = LerNumerosUi(el.Atributo("columnstretch"), erro);
    d->minLinhas = LerNumerosUi(el.Atributo("rowminimumheight"), erro);
    d->minColunas = LerNumerosUi(el.Atributo("columnminimumwidth"), erro);
    if (!erro.isEmpty())
        Falha(el.Linha, erro);
    for (const TElementoUi &parte : el.Filhos) {
        if (parte.Nome == QLatin1String("property"))
            PropriedadeDaDisposicao(parte, *meta, *d);
        else if (parte.Nome == QLatin1String("item"))
            d->celulas.push_back(LerCelula(parte, dono, dentro));
        else
            Falha(parte.Linha, QStringLiteral("<%1> não se usa num layout").arg(parte.Nome));
    }
    return d;
}

void TCompilador::PropriedadeDaDisposicao(const TElementoUi &el, const QMetaObject &meta,
                                          TPlanoDisposicao &d)
{
    static const QStringList margens = {QStringLiteral("leftMargin"), QStringLiteral("topMargin"),
                                        QStringLiteral("rightMargin"),
                                        QStringLiteral("bottomMargin")};
    const QString nome = el.Atributo("name");
    bool certo = false;
    const int numero = el.TextoDe("number").toInt(&certo);
    const qsizetype margem = margens.indexOf(nome);
    if (margem >= 0 && certo) {
        d.margens[margem] = numero;
    } else if (nome == QLatin1String("margin") && certo) {
        std::fill(std::begin(d.margens), std::end(d.margens), numero);
    } else if (nome == QLatin1String("horizontalSpacing") && certo) {
        d.horizontal = numero;
    } else if (nome == QLatin1String("verticalSpacing") && certo) {
        d.vertical = numero;
    } else {
        TAtribuicao a;
        if (Escrever(el, meta, a))
            d.atribuicoes.push_back(std::move(a));
    }
}

int TCompilador::Numero(const TElementoUi &el, const char *atributo, int senao)
{
    const QString texto = el.Atributo(atributo);
    if (texto.isEmpty())
        return senao;
    bool certo = false;
    const int n = texto.toInt(&certo);
    if (!certo || n < 0)
        Falha(el.Linha, QStringLiteral("%1 com '%2'").arg(QString::fromLatin1(atributo), texto));
    return certo ? n : senao;
}

TPlanoCelula TCompilador::LerCelula(const TElementoUi &el, TPlanoWidget &dono, const TLugar &dentro)
{
    TPlanoCelula celula;
    celula.linha = Numero(el, "row", -1);
    celula.coluna = Numero(el, "column", -1);
    celula.linhas = Numero(el, "rowspan", 1);
    celula.colunas = Numero(el, "colspan", 1);
    QString erro;
    if (el.TemAtributo("alignment"))
        celula.alinhamento = Qt::Alignment::fromInt(
            LerEnumUi(el.Atributo("alignment"), QMetaEnum::fromType<Qt::Alignment>(), erro)
                .toInt());
    if (!erro.isEmpty())
        Falha(el.Linha, erro);
    for (const TElementoUi &parte : el.Filhos) {
        if (parte.Nome == QLatin1String("widget")) {
            Filho(parte, dono, dentro);
            if (!dono.filhos.empty() && dono.filhos.back().nome == parte.Atributo("name")) {
                celula.widget = std::make_unique<TPlanoWidget>(std::move(dono.filhos.back()));
                dono.filhos.pop_back();
            }
        } else if (parte.Nome == QLatin1String("layout")) {
            celula.disposicao = LerDisposicao(parte, dono, dentro);
        } else if (parte.Nome == QLatin1String("spacer")) {
            LerEspaco(parte, celula);
        } else {
            Falha(parte.Linha, QStringLiteral("<%1> não se usa num layout").arg(parte.Nome));
        }
    }
    return celula;
}

void TCompilador::LerEspaco(const TElementoUi &el, TPlanoCelula &celula)
{
    celula.espaco = true;
    celula.politica = QSizePolicy::Expanding;
    for (const TElementoUi &p : el.Filhos) {
        const QString nome = p.Atributo("name");
        const TElementoUi *valor = ElementoDoValor(p);
        QString erro;
        if (!valor)
            erro = QStringLiteral("<spacer> com um valor vazio");
        else if (nome == QLatin1String("orientation"))
            celula.vertical = valor->Texto.endsWith(QLatin1String("Vertical"));
        else if (nome == QLatin1String("sizeType"))
            celula.politica =
                LerEnumUi(valor->Texto, QMetaEnum::fromType<QSizePolicy::Policy>(), erro).toInt();
        else if (nome == QLatin1String("sizeHint"))
            celula.tamanho =
                QSize(valor->TextoDe("width").toInt(), valor->TextoDe("height").toInt());
        else
            erro = QStringLiteral("<spacer> não tem '%1'").arg(nome);
        if (!erro.isEmpty())
            Falha(p.Linha, erro);
    }
}

TPlanoLista &TCompilador::ListaChamada(const QString &nome, qint64 linha, TPlanoWidget &raiz)
{
    for (TPlanoLista &lista : raiz.listas)
        if (lista.nome == nome)
            return lista;
    TPlanoLista lista;
    lista.nome = nome;
    const auto achado = escopo.nomes.constFind(nome);
    if (achado != escopo.nomes.constEnd()) {
        lista.lugar = achado->lugar;
        if (achado->especie != TNomeDeLayout::Lista)
            Falha(linha, QStringLiteral("'%1' já existe e não é uma lista de ações").arg(nome));
    } else {
        lista.nova = true;
        lista.lugar = escopo.lugares++;
        escopo.nomes.insert(
            nome, {TNomeDeLayout::Lista, &TActionList::staticMetaObject, {}, lista.lugar});
    }
    raiz.listas.push_back(std::move(lista));
    return raiz.listas.back();
}

void TCompilador::Lista(const TElementoUi &el, TPlanoWidget &raiz)
{
    const QString nome = el.Atributo("name");
    if (nome.isEmpty()) {
        Falha(el.Linha, QStringLiteral("<actiongroup> sem nome"));
        return;
    }
    for (const TElementoUi &parte : el.Filhos) {
        if (parte.Nome == QLatin1String("action"))
            Acao(parte, ListaChamada(nome, el.Linha, raiz));
        else
            Falha(parte.Linha,
                  QStringLiteral("<%1> não se usa numa lista de ações").arg(parte.Nome));
    }
    ListaChamada(nome, el.Linha, raiz);
}

void TCompilador::Acao(const TElementoUi &el, TPlanoLista &lista)
{
    TPlanoAcao acao;
    acao.nome = el.Atributo("name");
    const auto achado = escopo.nomes.constFind(acao.nome);
    if (acao.nome.isEmpty()) {
        Falha(el.Linha, QStringLiteral("<action> sem nome"));
        return;
    }
    if (achado == escopo.nomes.constEnd()) {
        acao.nova = true;
        acao.lugar = escopo.lugares++;
        escopo.nomes.insert(acao.nome,
                            {TNomeDeLayout::Acao, &TAction::staticMetaObject, {}, acao.lugar});
    } else if (achado->especie != TNomeDeLayout::Acao) {
        Falha(el.Linha, QStringLiteral("'%1' já existe e não é uma ação").arg(acao.nome));
        return;
    } else {
        acao.lugar = achado->lugar;
    }
    for (const TElementoUi &p : el.Filhos) {
        TAtribuicao a;
        if (p.Nome != QLatin1String("property"))
            Falha(p.Linha, QStringLiteral("<%1> não se usa numa ação").arg(p.Nome));
        else if (Escrever(p, TAction::staticMetaObject, a))
            acao.atribuicoes.push_back(std::move(a));
    }
    lista.acoes.push_back(std::move(acao));
}

/** What must wait until the children and the items exist. */
bool EhTardia(const QByteArray &nome)
{
    return nome == "currentIndex" || nome == "currentText" || nome == "currentRow" ||
           nome == "itemIndex";
}

void TCompilador::Propriedade(const TElementoUi &el, TPlanoWidget &w, const TLugar &lugar,
                              bool raiz)
{
    lugarAtual = &lugar;
    const TElementoUi *valor = ElementoDoValor(el);
    const QByteArray nome = el.Atributo("name").toLatin1();
    TAtribuicao a;
    if (valor && PropriedadeComum(el, *valor, w, lugar))
        return;
    if (!Escrever(el, *w.classe, a))
        return;
    if (raiz && nome == "geometry")
        a.como = TEscrita::Geometria;
    const bool tarde =
        EhTardia(nome) || a.como == TEscrita::Referencia || a.como == TEscrita::Companheiro;
    (tarde ? w.tardias : w.atribuicoes).push_back(std::move(a));
}

TAlign LadoDe(const QString &texto)
{
    static const QStringList lados = {QStringLiteral("alNone"),   QStringLiteral("alTop"),
                                      QStringLiteral("alBottom"), QStringLiteral("alLeft"),
                                      QStringLiteral("alRight"),  QStringLiteral("alClient")};
    return TAlign(lados.indexOf(texto.section(QStringLiteral("::"), -1)));
}

unsigned AncorasDe(const QString &texto, QString &erro)
{
    unsigned lados = 0;
    const QStringList partes = texto.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &parte : partes) {
        const unsigned lado = parte == QLatin1String("left")     ? akEsquerda
                              : parte == QLatin1String("top")    ? akTopo
                              : parte == QLatin1String("right")  ? akDireita
                              : parte == QLatin1String("bottom") ? akBase
                                                                 : 0U;
        if (!lado)
            erro = QStringLiteral("'%1' não é um lado para anchors").arg(parte);
        lados |= lado;
    }
    return lados;
}

/** The settings that every widget takes, unless its class has a property of that name. */
bool TCompilador::PropriedadeComum(const TElementoUi &el, const TElementoUi &valor, TPlanoWidget &w,
                                   const TLugar &lugar)
{
    TAtribuicao a;
    a.nome = el.Atributo("name").toLatin1();
    a.linha = el.Linha;
    if (w.classe->indexOfProperty(a.nome.constData()) >= 0)
        return false;
    QString erro;
    if (a.nome == "tag") {
        bool certo = false;
        a.como = TEscrita::Dinamica;
        a.valor = valor.Texto.toInt(&certo);
        if (!certo)
            erro = QStringLiteral("tag com '%1'").arg(valor.Texto);
    } else if (a.nome == "align") {
        a.como = TEscrita::Alinhamento;
        a.valor = int(LadoDe(valor.Texto));
        if (a.valor.toInt() < 0)
            erro = QStringLiteral("'%1' não é um lado para align").arg(valor.Texto);
        else if (w.nome.isEmpty() || &w == &plano->raiz)
            erro = QStringLiteral("a raiz não se alinha");
        else if (!lugar.interno || Herda(w.classe, TFrame::staticMetaObject))
            Arranjar(escopo.nomes.value(w.nome).pai, TArranjo::Alinhado, el.Linha);
    } else if (a.nome == "anchors") {
        a.como = TEscrita::Ancoras;
        a.valor = AncorasDe(valor.Texto, erro);
        if (&w == &plano->raiz)
            erro = QStringLiteral("a raiz não se ancora");
    } else {
        return false;
    }
    if (erro.isEmpty())
        w.atribuicoes.push_back(std::move(a));
    else
        Falha(el.Linha, erro);
    return true;
}

/** Checks and converts one <property> for a class; false is a fault, already noted. */
bool TCompilador::Escrever(const TElementoUi &el, const QMetaObject &classe, TAtribuicao &a)
{
    const QString nome = el.Atributo("name");
    const TElementoUi *valor = ElementoDoValor(el);
    a.nome = nome.toLatin1();
    a.linha = el.Linha;
    if (!valor) {
        Falha(el.Linha, QStringLiteral("a propriedade '%1' não tem valor").arg(nome));
        return false;
    }
    if (nome == QLatin1String("buddy") && Herda(&classe, QLabel::staticMetaObject)) {
        a.como = TEscrita::Companheiro;
        a.referencia = valor->Texto;
        referencias.push_back({a.referencia, &QWidget::staticMetaObject,
                               lugarAtual ? lugarAtual->interno : nullptr, el.Linha});
        return true;
    }
    const int indice = classe.indexOfProperty(a.nome.constData());
    if (indice < 0) {
        Falha(el.Linha,
              QStringLiteral("%1 não tem a propriedade '%2'").arg(NomeDaClasse(classe), nome));
        return false;
    }
    a.propriedade = classe.property(indice);
    QString erro;
    if (!a.propriedade.isWritable())
        erro = QStringLiteral("não pode ser escrita");
    else if (a.propriedade.metaType().flags() & QMetaType::PointerToQObject)
        return Referir(*valor, a.propriedade, a);
    else if (valor->Nome == QLatin1String("palette"))
        a.como = TEscrita::Paleta, a.valor = LerPaletaUi(*valor, erro);
    else
        a.valor = LerValorUi(*valor, a.propriedade, erro);
    if (!erro.isEmpty())
        Falha(valor->Linha, QStringLiteral("%1.%2: %3").arg(NomeDaClasse(classe), nome, erro));
    return erro.isEmpty();
}

bool TCompilador::Referir(const TElementoUi &valor, const QMetaProperty &p, TAtribuicao &a)
{
    a.como = TEscrita::Referencia;
    a.referencia = valor.Texto.trimmed();
    referencias.push_back({a.referencia, p.metaType().metaObject(),
                           lugarAtual ? lugarAtual->interno : nullptr, valor.Linha});
    return true;
}

void TCompilador::Atributo(const TElementoUi &el, TPlanoWidget &w)
{
    const QString nome = el.Atributo("name");
    if (nome != QLatin1String("title") && nome != QLatin1String("label")) {
        Falha(el.Linha, QStringLiteral("<attribute> '%1' não se usa").arg(nome));
        return;
    }
    TAtribuicao a;
    a.como = TEscrita::Titulo;
    a.valor = el.TextoDe("string");
    w.tardias.push_back(std::move(a));
}

void TCompilador::Item(const TElementoUi &el, TPlanoWidget &w)
{
    const TElementoUi *texto = el.Filho("property");
    const bool cabe = w.classe->inherits(&QWidget::staticMetaObject) &&
                      (w.classe->indexOfMethod("addItems(QStringList)") >= 0 ||
                       w.classe->indexOfProperty("items") >= 0 ||
                       QByteArray(w.classe->className()).contains("Combo") ||
                       QByteArray(w.classe->className()).contains("List"));
    if (!cabe || !texto || texto->Atributo("name") != QLatin1String("text")) {
        Falha(el.Linha, QStringLiteral("<item> não se usa em %1").arg(NomeDaClasse(*w.classe)));
        return;
    }
    TAtribuicao *itens = nullptr;
    for (TAtribuicao &a : w.atribuicoes)
        if (a.como == TEscrita::Itens)
            itens = &a;
    if (!itens) {
        w.atribuicoes.emplace_back();
        itens = &w.atribuicoes.back();
        itens->como = TEscrita::Itens;
    }
    itens->valor = itens->valor.toStringList() << texto->TextoDe("string");
}

void TCompilador::ConferirReferencias()
{
    for (const TPendente &r : referencias) {
        TNomeDeLayout nome = escopo.nomes.value(r.nome);
        if (r.interno && r.interno->nomes.contains(r.nome))
            nome = r.interno->nomes.value(r.nome);
        if (!nome.classe)
            Falha(r.linha, QStringLiteral("'%1' não existe").arg(r.nome));
        else if (r.classe && !nome.classe->inherits(r.classe))
            Falha(r.linha, QStringLiteral("'%1' é de classe %2, não %3")
                               .arg(r.nome, NomeDaClasse(*nome.classe), NomeDaClasse(*r.classe)));
    }
}

void TCompilador::Tabulacao(const TElementoUi &el)
{
    for (const TElementoUi &parada : el.Filhos) {
        const auto nome = escopo.nomes.constFind(parada.Texto);
        if (nome == escopo.nomes.constEnd() || nome->especie != TNomeDeLayout::Widget)
            Falha(parada.Linha, QStringLiteral("<tabstop> '%1' não existe").arg(parada.Texto));
        else
            plano->tabulacao << parada.Texto;
    }
}

std::map<const QMetaObject *, std::shared_ptr<const TPlanoDeClasse>> &Planos()
{
    static std::map<const QMetaObject *, std::shared_ptr<const TPlanoDeClasse>> planos;
    return planos;
}

} // namespace

std::unique_ptr<TPlanoArquivo> CompilarArquivo(const QString &arquivo, const QMetaObject &classe,
                                               TEscopoDeLayout &escopo, QStringList &falhas)
{
    return TCompilador(arquivo, classe, escopo, falhas).Compilar();
}

std::shared_ptr<const TPlanoDeClasse> PlanoDaClasse(const QMetaObject &classe)
{
    static QList<const QMetaObject *> emCurso;
    if (const auto pronto = Planos().find(&classe); pronto != Planos().end())
        return pronto->second;
    auto plano = std::make_shared<TPlanoDeClasse>();
    if (emCurso.contains(&classe)) {
        plano->falhas
            << QStringLiteral("%1:0: o layout contém a si mesmo").arg(NomeDaClasse(classe));
        return plano;
    }
    emCurso << &classe;
    if (classe.superClass() && classe.superClass()->inherits(&QWidget::staticMetaObject)) {
        plano->base = PlanoDaClasse(*classe.superClass());
        plano->escopo = plano->base->escopo;
        plano->falhas = plano->base->falhas;
    }
    const QString arquivo = ArquivoDaClasse(NomeDaClasse(classe));
    if (!arquivo.isEmpty())
        plano->proprio = CompilarArquivo(arquivo, classe, plano->escopo, plano->falhas);
    emCurso.removeLast();
    Planos()[&classe] = plano;
    return plano;
}

void EsquecerPlanos()
{
    Planos().clear();
}

} // namespace ficha
