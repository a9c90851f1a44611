#include "platform/toolkit/Layout.h"

#include "platform/core/Erros.h"
#include "platform/toolkit/Alinhamento.h"
#include "platform/toolkit/PlanoLayout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TFrame.h"
#include "platform/toolkit/TPageControl.h"

#include <QtWidgets>

#include <map>

namespace ficha
{

namespace
{

template <typename T>
std::pair<QString, TClasseDeLayout> DoQt()
{
    return {QString::fromLatin1(T::staticMetaObject.className()),
            {&T::staticMetaObject, [](QWidget *pai) -> QWidget * { return new T(pai); }}};
}

std::map<QString, TClasseDeLayout> &Classes()
{
    static std::map<QString, TClasseDeLayout> classes = {
        DoQt<QWidget>(),        DoQt<QFrame>(),          DoQt<QLabel>(),
        DoQt<QLineEdit>(),      DoQt<QTextEdit>(),       DoQt<QPlainTextEdit>(),
        DoQt<QPushButton>(),    DoQt<QToolButton>(),     DoQt<QCheckBox>(),
        DoQt<QRadioButton>(),   DoQt<QComboBox>(),       DoQt<QFontComboBox>(),
        DoQt<QGroupBox>(),      DoQt<QTabWidget>(),      DoQt<QStackedWidget>(),
        DoQt<QScrollArea>(),    DoQt<QSplitter>(),       DoQt<QListWidget>(),
        DoQt<QTreeWidget>(),    DoQt<QTableWidget>(),    DoQt<QListView>(),
        DoQt<QTreeView>(),      DoQt<QTableView>(),      DoQt<QSpinBox>(),
        DoQt<QDoubleSpinBox>(), DoQt<QDateEdit>(),       DoQt<QTimeEdit>(),
        DoQt<QDateTimeEdit>(),  DoQt<QCalendarWidget>(), DoQt<QProgressBar>(),
        DoQt<QSlider>(),        DoQt<QScrollBar>(),      DoQt<QDial>(),
        DoQt<QMdiArea>(),       DoQt<QStatusBar>(),      DoQt<QTextBrowser>(),
    };
    return classes;
}

QStringList &Pastas()
{
    static QStringList pastas;
    return pastas;
}

} // namespace

const TClasseDeLayout *ClasseDeLayout(const QString &nome)
{
    const auto achada = Classes().find(nome);
    return achada == Classes().end() ? nullptr : &achada->second;
}

QString NomeDaClasse(const QMetaObject &classe)
{
    return QString::fromLatin1(classe.className()).section(QStringLiteral("::"), -1);
}

QString ArquivoDaClasse(const QString &nome)
{
    for (const QString &pasta : Pastas() + QStringList{QStringLiteral(":/ficha/layouts")}) {
        QString arquivo = pasta + QLatin1Char('/') + nome + QStringLiteral(".ui");
        if (QFile::exists(arquivo))
            return arquivo;
    }
    return {};
}

void RegistrarClasse(const QMetaObject &classe, std::function<QWidget *(QWidget *pai)> criar)
{
    Classes()[NomeDaClasse(classe)] = {&classe, std::move(criar)};
}

QStringList ClassesRegistradas()
{
    QStringList nomes;
    for (const auto &[nome, classe] : Classes())
        if (!nome.startsWith(QLatin1Char('Q')))
            nomes << nome;
    return nomes;
}

const QMetaObject *ClasseRegistrada(const QString &nome)
{
    const TClasseDeLayout *classe = ClasseDeLayout(nome);
    return classe ? classe->meta : nullptr;
}

QWidget *CriarPeloNome(const QString &nome, QWidget *pai)
{
    const TClasseDeLayout *classe = ClasseDeLayout(nome);
    return classe && classe->criar ? classe->criar(pai) : nullptr;
}

void RegistrarPastaDeLayouts(const QString &pasta)
{
    Pastas().removeAll(pasta);
    Pastas().prepend(pasta);
    EsquecerPlanos();
}

namespace
{

/** Builds the files of a class chain into one instance. */
class TConstrutor
{
public:
    TConstrutor(QWidget *raiz_, int lugares) : raiz(raiz_), objetos(std::size_t(lugares)) {}

    void Montar(const TPlanoDeClasse &plano);
    void Terminar();

private:
    void Preencher(const TPlanoWidget &w, QWidget *alvo);
    void Filho(const TPlanoWidget &w, QWidget *pai);
    QWidget *Fazer(const TPlanoWidget &w, QWidget *pai);
    void PorNoConteiner(QWidget *pai, QWidget *filho);
    void Listas(const TPlanoWidget &w);
    void Escrever(const TAtribuicao &a, QObject *alvo);
    void EscreverPaleta(const QPalette &nova, QWidget *alvo);
    void EscreverTitulo(const QString &titulo, QWidget *pagina);
    void EscreverAlinhamento(TAlign lado, QWidget *alvo);
    void EscreverReferencia(const TAtribuicao &a, QObject *alvo);
    void EscreverItens(const QStringList &itens, QWidget *alvo);
    QObject *Referido(const QString &nome, const QObject *quem);

    void Dispor(const TPlanoDisposicao &d, QWidget *alvo);
    QLayout *FazerLayout(const TPlanoDisposicao &d, QWidget *conteiner);
    void Encher(const TPlanoDisposicao &d, QLayout *layout, QWidget *conteiner);
    QLayoutItem *FazerEspaco(const TPlanoCelula &celula);
    void Tabular(const QStringList &nomes);

    QWidget *raiz;
    std::vector<QObject *> objetos;
    const TPlanoDeClasse *plano = nullptr;
    std::vector<TAlinhador *> alinhadores;
    struct TTardia {
        const TAtribuicao *a;
        QPointer<QObject> alvo;
    };
    std::vector<TTardia> referencias;
    QList<QWidget *> quadros;
};

QObject *Buscar(const QObject *dono, const QString &nome)
{
    for (QObject *filho : dono->children())
        if (filho->objectName() == nome)
            return filho;
    for (QObject *filho : dono->children()) {
        const auto *w = qobject_cast<const QWidget *>(filho);
        if (w && (w->isWindow() || qobject_cast<const TFrame *>(w)))
            continue;
        if (QObject *achado = Buscar(filho, nome))
            return achado;
    }
    return nullptr;
}

void TConstrutor::Montar(const TPlanoDeClasse &p)
{
    if (p.base)
        Montar(*p.base);
    plano = &p;
    if (!p.proprio)
        return;
    Preencher(p.proprio->raiz, raiz);
    for (const TTardia &t : referencias)
        if (t.alvo)
            EscreverReferencia(*t.a, t.alvo);
    referencias.clear();
    if (!p.proprio->tabulacao.isEmpty())
        Tabular(p.proprio->tabulacao);
}

void TConstrutor::Terminar()
{
    for (const TAlinhador *a : alinhadores)
        if (a->parentWidget())
            ArrumarConteiner(a->parentWidget());
}

void TConstrutor::Preencher(const TPlanoWidget &w, QWidget *alvo)
{
    for (const TAtribuicao &a : w.atribuicoes)
        Escrever(a, alvo);
    Listas(w);
    for (const TPlanoWidget &filho : w.filhos)
        Filho(filho, alvo);
    if (w.disposicao)
        Dispor(*w.disposicao, alvo);
    for (const TAtribuicao &a : w.tardias) {
        if (a.como == TEscrita::Referencia || a.como == TEscrita::Companheiro)
            referencias.push_back({&a, alvo});
        else
            Escrever(a, alvo);
    }
    for (const QString &nome : w.ordem)
        if (auto *filho = qobject_cast<QWidget *>(Referido(nome, alvo)))
            filho->raise();
}

void TConstrutor::Filho(const TPlanoWidget &w, QWidget *pai)
{
    QWidget *filho = Fazer(w, pai);
    if (w.nova)
        PorNoConteiner(pai, filho);
    Preencher(w, filho);
}

/** The widget of a plan: a new one, or the one that is already there. */
QWidget *TConstrutor::Fazer(const TPlanoWidget &w, QWidget *pai)
{
    if (w.nova) {
        QWidget *novo = w.nova->criar(pai);
        novo->setObjectName(w.nome);
        objetos[std::size_t(w.lugar)] = novo;
        return novo;
    }
    auto *conhecido =
        static_cast<QWidget *>(w.lugar >= 0 ? objetos[std::size_t(w.lugar)] : Buscar(pai, w.nome));
    // A child of an inline frame may have been named flat under it while it sits deeper.
    for (QWidget *acima = pai; !conhecido && acima != raiz; acima = acima->parentWidget())
        conhecido = qobject_cast<QWidget *>(Buscar(acima, w.nome));
    if (!conhecido)
        throw ELayoutError(QStringLiteral("%1: '%2' já não existe em '%3'")
                               .arg(plano->proprio->arquivo, w.nome, pai->objectName()));
    return conhecido;
}

void TConstrutor::PorNoConteiner(QWidget *pai, QWidget *filho)
{
    if (auto *abas = qobject_cast<QTabWidget *>(pai)) {
        if (abas->indexOf(filho) < 0)
            abas->addTab(filho, QString());
    } else if (auto *pilha = qobject_cast<QStackedWidget *>(pai)) {
        pilha->addWidget(filho);
    } else if (auto *rolagem = qobject_cast<QScrollArea *>(pai)) {
        if (!rolagem->widget())
            rolagem->setWidget(filho);
    } else if (auto *divisor = qobject_cast<QSplitter *>(pai)) {
        divisor->addWidget(filho);
    }
}

void TConstrutor::Listas(const TPlanoWidget &w)
{
    for (const TPlanoLista &l : w.listas) {
        if (l.nova) {
            objetos[std::size_t(l.lugar)] = new TActionList(raiz);
            objetos[std::size_t(l.lugar)]->setObjectName(l.nome);
        }
        auto *lista = static_cast<TActionList *>(objetos[std::size_t(l.lugar)]);
        for (const TPlanoAcao &a : l.acoes) {
            if (a.nova) {
                objetos[std::size_t(a.lugar)] = new TAction(lista);
                objetos[std::size_t(a.lugar)]->setObjectName(a.nome);
            }
            for (const TAtribuicao &p : a.atribuicoes)
                Escrever(p, objetos[std::size_t(a.lugar)]);
        }
    }
}

void TConstrutor::Escrever(const TAtribuicao &a, QObject *alvo)
{
    auto *w = qobject_cast<QWidget *>(alvo);
    switch (a.como) {
    case TEscrita::Propriedade:
        a.propriedade.write(alvo, a.valor);
        if (w && a.nome == "geometry")
            ArrumarConteiner(w);
        break;
    case TEscrita::Geometria:
        w->resize(a.valor.toRect().size());
        ArrumarConteiner(w);
        break;
    case TEscrita::Paleta:
        EscreverPaleta(a.valor.value<QPalette>(), w);
        break;
    case TEscrita::Dinamica:
        alvo->setProperty(a.nome.constData(), a.valor);
        break;
    case TEscrita::Itens:
        EscreverItens(a.valor.toStringList(), w);
        break;
    case TEscrita::Titulo:
        EscreverTitulo(a.valor.toString(), w);
        break;
    case TEscrita::Alinhamento:
        EscreverAlinhamento(TAlign(a.valor.toInt()), w);
        break;
    case TEscrita::Ancoras:
        TAncoras::Ancorar(w, a.valor.toUInt());
        break;
    case TEscrita::Referencia:
    case TEscrita::Companheiro:
        EscreverReferencia(a, alvo);
        break;
    }
}

/** Sets the stated roles and leaves the others as they are. */
void TConstrutor::EscreverPaleta(const QPalette &nova, QWidget *alvo)
{
    QPalette paleta = alvo->palette();
    for (int g = 0; g < QPalette::NColorGroups; ++g)
        for (int p = 0; p < QPalette::NColorRoles; ++p) {
            const auto grupo = QPalette::ColorGroup(g);
            const auto papel = QPalette::ColorRole(p);
            if (nova.isBrushSet(grupo, papel))
                paleta.setBrush(grupo, papel, nova.brush(grupo, papel));
        }
    alvo->setPalette(paleta);
}

void TConstrutor::EscreverTitulo(const QString &titulo, QWidget *pagina)
{
    if (auto *folha = qobject_cast<TTabSheet *>(pagina)) {
        folha->SetCaption(titulo);
        return;
    }
    for (QWidget *p = pagina->parentWidget(); p; p = p->parentWidget())
        if (auto *abas = qobject_cast<QTabWidget *>(p); abas && abas->indexOf(pagina) >= 0) {
            abas->setTabText(abas->indexOf(pagina), titulo);
            return;
        }
}

void TConstrutor::EscreverAlinhamento(TAlign lado, QWidget *alvo)
{
    Alinhar(alvo, lado);
    auto *alinhador = qobject_cast<TAlinhador *>(alvo->parentWidget()->layout());
    if (alinhador &&
        std::find(alinhadores.begin(), alinhadores.end(), alinhador) == alinhadores.end())
        alinhadores.push_back(alinhador);
}

void TConstrutor::EscreverReferencia(const TAtribuicao &a, QObject *alvo)
{
    QObject *referido = Referido(a.referencia, alvo);
    if (!referido)
        throw ELayoutError(QStringLiteral("%1:%2: '%3' não foi achado")
                               .arg(plano->proprio->arquivo)
                               .arg(a.linha)
                               .arg(a.referencia));
    if (a.como == TEscrita::Companheiro)
        static_cast<QLabel *>(alvo)->setBuddy(static_cast<QWidget *>(referido));
    else
        a.propriedade.write(alvo, QVariant(a.propriedade.metaType(), &referido));
}

/** An object by name as seen from another: of the inline frame it is in, else of the root. */
QObject *TConstrutor::Referido(const QString &nome, const QObject *quem)
{
    for (const QObject *p = quem->parent(); p && p != raiz; p = p->parent())
        if (qobject_cast<const TFrame *>(p))
            if (QObject *achado = Buscar(p, nome))
                return achado;
    const auto achado = plano->escopo.nomes.constFind(nome);
    return achado == plano->escopo.nomes.constEnd() ? nullptr : objetos[std::size_t(achado->lugar)];
}

void TConstrutor::EscreverItens(const QStringList &itens, QWidget *alvo)
{
    if (auto *combo = qobject_cast<QComboBox *>(alvo))
        combo->addItems(itens);
    else if (auto *lista = qobject_cast<QListWidget *>(alvo))
        lista->addItems(itens);
    else
        alvo->setProperty("items", itens);
}

void TConstrutor::Dispor(const TPlanoDisposicao &d, QWidget *alvo)
{
    Encher(d, FazerLayout(d, alvo), alvo);
}

QLayout *TConstrutor::FazerLayout(const TPlanoDisposicao &d, QWidget *conteiner)
{
    QLayout *layout = nullptr;
    if (d.classe == QLatin1String("QVBoxLayout"))
        layout = new QVBoxLayout(conteiner);
    else if (d.classe == QLatin1String("QHBoxLayout"))
        layout = new QHBoxLayout(conteiner);
    else if (d.classe == QLatin1String("QGridLayout"))
        layout = new QGridLayout(conteiner);
    else
        layout = new QFormLayout(conteiner);
    layout->setObjectName(d.nome);
    return layout;
}

void Configurar(const TPlanoDisposicao &d, QLayout *layout)
{
    const QMargins m = layout->contentsMargins();
    const auto margem = [&d](int i, int senao) { return d.margens[i] >= 0 ? d.margens[i] : senao; };
    layout->setContentsMargins(margem(0, m.left()), margem(1, m.top()), margem(2, m.right()),
                               margem(3, m.bottom()));
    for (const TAtribuicao &a : d.atribuicoes)
        a.propriedade.write(layout, a.valor);
    if (auto *caixa = qobject_cast<QBoxLayout *>(layout))
        for (qsizetype i = 0; i < d.esticar.size(); ++i)
            caixa->setStretch(int(i), d.esticar[i]);
    auto *grade = qobject_cast<QGridLayout *>(layout);
    if (!grade)
        return;
    if (d.horizontal >= 0)
        grade->setHorizontalSpacing(d.horizontal);
    if (d.vertical >= 0)
        grade->setVerticalSpacing(d.vertical);
    for (qsizetype i = 0; i < d.esticarLinhas.size(); ++i)
        grade->setRowStretch(int(i), d.esticarLinhas[i]);
    for (qsizetype i = 0; i < d.esticarColunas.size(); ++i)
        grade->setColumnStretch(int(i), d.esticarColunas[i]);
    for (qsizetype i = 0; i < d.minLinhas.size(); ++i)
        grade->setRowMinimumHeight(int(i), d.minLinhas[i]);
    for (qsizetype i = 0; i < d.minColunas.size(); ++i)
        grade->setColumnMinimumWidth(int(i), d.minColunas[i]);
}

/** Adds a part to a layout; exactly one of the three is not null. */
void Acrescentar(QLayout *layout, const TPlanoCelula &c, QWidget *widget, QLayout *interno,
                 QLayoutItem *espaco)
{
    if (auto *grade = qobject_cast<QGridLayout *>(layout)) {
        const int linha = qMax(c.linha, 0), coluna = qMax(c.coluna, 0);
        if (widget)
            grade->addWidget(widget, linha, coluna, c.linhas, c.colunas, c.alinhamento);
        else if (interno)
            grade->addLayout(interno, linha, coluna, c.linhas, c.colunas, c.alinhamento);
        else
            grade->addItem(espaco, linha, coluna, c.linhas, c.colunas, c.alinhamento);
    } else if (auto *ficha = qobject_cast<QFormLayout *>(layout)) {
        const auto papel = c.colunas > 1   ? QFormLayout::SpanningRole
                           : c.coluna == 0 ? QFormLayout::LabelRole
                                           : QFormLayout::FieldRole;
        const int linha = qMax(c.linha, 0);
        if (widget)
            ficha->setWidget(linha, papel, widget);
        else if (interno)
            ficha->setLayout(linha, papel, interno);
        else
            ficha->setItem(linha, papel, espaco);
    } else if (auto *caixa = static_cast<QBoxLayout *>(layout); widget) {
        caixa->addWidget(widget, 0, c.alinhamento);
    } else if (interno) {
        caixa->addLayout(interno);
    } else {
        caixa->addItem(espaco);
    }
}

void TConstrutor::Encher(const TPlanoDisposicao &d, QLayout *layout, QWidget *conteiner)
{
    for (const TPlanoCelula &c : d.celulas) {
        if (c.widget) {
            QWidget *filho = Fazer(*c.widget, conteiner);
            Preencher(*c.widget, filho);
            Acrescentar(layout, c, filho, nullptr, nullptr);
        } else if (c.disposicao) {
            QLayout *interno = FazerLayout(*c.disposicao, nullptr);
            Acrescentar(layout, c, nullptr, interno, nullptr);
            Encher(*c.disposicao, interno, conteiner);
        } else if (c.espaco) {
            Acrescentar(layout, c, nullptr, nullptr, FazerEspaco(c));
        }
    }
    Configurar(d, layout);
}

QLayoutItem *TConstrutor::FazerEspaco(const TPlanoCelula &c)
{
    const auto politica = QSizePolicy::Policy(c.politica);
    return new QSpacerItem(c.tamanho.width(), c.tamanho.height(),
                           c.vertical ? QSizePolicy::Minimum : politica,
                           c.vertical ? politica : QSizePolicy::Minimum);
}

/** The focusable widgets of a control in their present tab order: itself, or what it holds. */
QList<QWidget *> Paradas(QWidget *controle)
{
    // A stop that hands the focus on to a part of its own (a calendar to its days) moves as a
    // whole; left behind, it would be a second stop.
    if ((controle->focusPolicy() & Qt::TabFocus) && controle->focusProxy() &&
        controle->isAncestorOf(controle->focusProxy()))
        return {controle};
    QList<QWidget *> paradas;
    QWidget *w = controle;
    // They stand together as a rule, and the way round the whole window is long.
    auto faltam = 1 + controle->findChildren<QWidget *>().size();
    do {
        const bool dentro = w == controle || controle->isAncestorOf(w);
        if (dentro && !w->focusProxy() && w->focusPolicy() != Qt::NoFocus)
            paradas << w;
        faltam -= dentro ? 1 : 0;
        w = w->nextInFocusChain();
    } while (faltam > 0 && w && w != controle);
    return paradas;
}

void TConstrutor::Tabular(const QStringList &nomes)
{
    // Qt leaves a stop alone that is the next one already, also around the end of the window: the
    // last control made would stay the last stop of a frame that has the window for itself.
    QWidget fim(nomes.isEmpty() ? nullptr : raiz);
    fim.setFocusPolicy(Qt::TabFocus);
    QWidget *antes = nullptr;
    for (const QString &nome : nomes) {
        auto *controle = static_cast<QWidget *>(Referido(nome, raiz));
        for (QWidget *parada : Paradas(controle)) {
            if (antes)
                QWidget::setTabOrder(antes, parada);
            antes = parada;
        }
    }
}

} // namespace

void CarregarLayouts(QWidget *raiz)
{
    const auto plano = PlanoDaClasse(*raiz->metaObject());
    if (!plano->falhas.isEmpty())
        throw ELayoutError(plano->falhas.first());
    if (plano->escopo.lugares == 0 && !plano->proprio && !plano->base)
        return;
    TConstrutor construtor(raiz, plano->escopo.lugares);
    construtor.Montar(*plano);
    construtor.Terminar();
}

QStringList VerificarLayout(const QString &arquivo, const QMetaObject &classe)
{
    QStringList falhas;
    TEscopoDeLayout escopo;
    if (classe.superClass() && classe.superClass()->inherits(&QWidget::staticMetaObject))
        escopo = PlanoDaClasse(*classe.superClass())->escopo;
    CompilarArquivo(arquivo, classe, escopo, falhas);
    return falhas;
}

void PercorrerFilhos(QWidget *raiz, const std::function<bool(QWidget *)> &visita)
{
    QList<QPointer<QWidget>> filhos;
    for (QObject *filho : raiz->children())
        if (auto *w = qobject_cast<QWidget *>(filho); w && !w->isWindow())
            filhos << w;
    for (const QPointer<QWidget> &filho : filhos)
        if (filho && visita(filho) && filho)
            PercorrerFilhos(filho, visita);
}

QObject *PegarComponente(QObject *dono, const char *nome, const QMetaObject &classe)
{
    QObject *achado = Buscar(dono, QLatin1String(nome));
    if (!achado)
        throw ELayoutError(QStringLiteral("%1 não tem o componente '%2'")
                               .arg(NomeDaClasse(*dono->metaObject()), QLatin1String(nome)));
    if (!achado->metaObject()->inherits(&classe))
        throw ELayoutError(QStringLiteral("'%1' de %2 é de classe %3, não %4")
                               .arg(QLatin1String(nome), NomeDaClasse(*dono->metaObject()),
                                    NomeDaClasse(*achado->metaObject()), NomeDaClasse(classe)));
    return achado;
}

} // namespace ficha
