#include "platform/database/TClientDataSet.h"

#include "platform/database/Colacao.h"
#include "platform/database/EDatabaseError.h"
#include "platform/database/FiltroDeTexto.h"
#include "platform/database/LinhasEmMemoria.h"
#include "platform/database/OrdemDeLinhas.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <exception>
#include <limits>

namespace ficha
{

namespace
{

/** The row number under which the fields read a row that stands in no list. */
constexpr int LinhaAparte = std::numeric_limits<int>::max();
constexpr qsizetype PoucasLinhas = 256; // looked at in the order shown before all are asked
constexpr int PoucosMortos = 1024;      // rows whose loss is not worth moving the others
constexpr size_t TextosLembrados = 32;  // of those that were typed last

[[noreturn]] void Recusar(const QString &texto)
{
    throw EDatabaseError(TErroBanco::Outro, texto);
}

bool Guardavel(TFieldType tipo)
{
    return tipo != TFieldType::ftUnknown && tipo != TFieldType::ftBlob;
}

bool EhTexto(TFieldType tipo)
{
    return tipo == TFieldType::ftString || tipo == TFieldType::ftMemo;
}

} // namespace

/** A value that is looked for in a column. */
struct TClientDataSet::TAlvo {
    int coluna = 0;
    unsigned opcoes = loNenhuma;
    bool comoTexto = false;
    Variant valor;
    QString procurado; /**< folded where neither case nor accents count */

    /** Whether every row that serves this serves the other too: this text was typed on from it. */
    bool Continua(const TAlvo &outro) const
    {
        if (coluna != outro.coluna || opcoes != outro.opcoes || !comoTexto || !outro.comoTexto)
            return false;
        return opcoes & loContains     ? procurado.contains(outro.procurado)
               : opcoes & loPartialKey ? procurado.startsWith(outro.procurado)
                                       : procurado == outro.procurado;
    }
};

struct TClientDataSet::TPrivado {
    TLinhasEmMemoria linhas;
    std::vector<quint32> ids; /**< by slot, rising; 0 for a deleted row */
    quint32 proximoId = 1;
    int mortos = 0;

    std::vector<int> visiveis; /**< slots in the order shown, those the filter lets through */
    bool desordenado = false;  /**< rows at the end wait for EnableControls */
    unsigned refeitas = 0;     /**< how often the list was made anew */
    struct TGuardada {
        TCriterio criterio;
        TOrdem ordem;
    };
    std::vector<TGuardada> ordens; /**< of all rows, until one of them changes */
    struct TAchados {
        std::vector<TAlvo> alvos;
        std::vector<bool> passam; /**< by slot */
    };
    std::vector<TAchados> achados; /**< by the texts typed last, until a row changes */

    std::vector<Variant> escrita; /**< the row under edit */
    bool modificada = false;
    int aparte = -1; /**< slot read under LinhaAparte, -1 for the row under edit */

    std::function<bool()> filtroDeTexto;
    std::vector<TAlvo> digitado; /**< of which one has to be there; none: every row passes */
    std::function<bool(const TDataSet &)> pergunta;

    std::vector<int> Vivas() const
    {
        std::vector<int> vivas;
        vivas.reserve(ids.size());
        for (size_t i = 0; i < ids.size(); ++i) {
            if (ids[i] != 0)
                vivas.push_back(int(i));
        }
        return vivas;
    }
    /** Asks about every living row in the order in which they lie in memory, which is many times
     * faster than the order shown; about those of a narrower choice only where there is one. */
    template <typename F>
    std::vector<bool> Perguntar(F &&serve, const std::vector<bool> *entre = nullptr) const
    {
        std::vector<bool> respostas(ids.size());
        for (size_t slot = 0; slot < ids.size(); ++slot)
            respostas[slot] = (entre ? (*entre)[slot] : ids[slot] != 0) && serve(int(slot));
        return respostas;
    }
    static bool Continuam(const std::vector<TAlvo> &estes, const std::vector<TAlvo> &outros)
    {
        return std::equal(
            estes.begin(), estes.end(), outros.begin(), outros.end(),
            [](const TAlvo &este, const TAlvo &outro) { return este.Continua(outro); });
    }
    /** The rows that the text being typed lets through. One that is typed on asks those only that
     * its beginning let through, one that is taken back is remembered. */
    template <typename F>
    const std::vector<bool> &Achados(F &&serve)
    {
        const std::vector<bool> *entre = nullptr;
        qsizetype letras = -1;
        for (const TAchados &outros : achados) {
            const qsizetype destes = outros.alvos.front().procurado.size();
            if (destes <= letras || !Continuam(digitado, outros.alvos))
                continue;
            if (destes == digitado.front().procurado.size())
                return outros.passam;
            entre = &outros.passam;
            letras = destes;
        }
        std::vector<bool> passam = Perguntar(serve, entre);
        if (achados.size() >= TextosLembrados)
            achados.erase(achados.begin());
        achados.push_back({digitado, std::move(passam)});
        return achados.back().passam;
    }
    void LinhasMudaram()
    {
        ordens.clear();
        achados.clear();
    }
    const TOrdem &Ordem(const TCriterio &criterio)
    {
        for (const TGuardada &guardada : ordens) {
            if (guardada.criterio == criterio)
                return guardada.ordem;
        }
        ordens.push_back({criterio, Ordenar(linhas, Vivas(), criterio)});
        return ordens.back().ordem;
    }
};

TClientDataSet::TClientDataSet(QObject *owner) : TDataSet(owner), d(std::make_unique<TPrivado>()) {}

TClientDataSet::~TClientDataSet() = default;

TField *TClientDataSet::AddField(const QString &nome, TFieldType tipo, int tamanho)
{
    if (criado)
        Recusar(QStringLiteral("O campo '%1' não pode ser criado depois do dataset.").arg(nome));
    if (nome.trimmed().isEmpty())
        Recusar(QStringLiteral("Um campo precisa de nome."));
    if (!Guardavel(tipo))
        Recusar(QStringLiteral("O tipo do campo '%1' não pode ser guardado.").arg(nome));
    for (const TColuna &outra : definicoes) {
        if (outra.nome.compare(nome, Qt::CaseInsensitive) == 0)
            Recusar(QStringLiteral("O nome de campo '%1' já está em uso.").arg(nome));
    }
    const TColuna &nova =
        definicoes.emplace_back(TColuna{nome, tipo, EhTexto(tipo) ? std::max(tamanho, 0) : 0, 0});
    return NovoCampo(nova);
}

void TClientDataSet::CreateDataSet()
{
    if (definicoes.empty())
        Recusar(QStringLiteral("O dataset não tem campos."));
    if (criado)
        Recusar(QStringLiteral("O dataset já foi criado."));
    std::vector<TFieldType> tipos;
    for (const TColuna &coluna : definicoes)
        tipos.push_back(coluna.tipo);
    d->linhas.Preparar(tipos);
    d->escrita.resize(tipos.size(), Null);
    criado = true;
}

void TClientDataSet::Append()
{
    ExigirAberto();
    EncerrarEdicao();
    std::fill(d->escrita.begin(), d->escrita.end(), Null);
    EntrarEm(dsInsert);
}

void TClientDataSet::Edit()
{
    ExigirAberto();
    if (estado != dsBrowse)
        return;
    if (RecNo() == 0)
        Recusar(QStringLiteral("Não há registro para alterar."));
    for (size_t c = 0; c < d->escrita.size(); ++c)
        d->escrita[c] = d->linhas.Valor(SlotAtual(), int(c));
    EntrarEm(dsEdit);
}

void TClientDataSet::Post()
{
    if (estado != dsEdit && estado != dsInsert)
        Recusar(QStringLiteral("O dataset não está em edição."));
    const bool nova = estado == dsInsert;
    const int slot = nova ? d->linhas.Nova() : SlotAtual();
    if (nova)
        d->ids.push_back(d->proximoId++);
    for (size_t c = 0; c < d->escrita.size(); ++c)
        d->linhas.Gravar(slot, int(c), d->escrita[c]);
    d->LinhasMudaram();
    SairDaEdicao();
    // A filter that fails hides nothing: the row is written and has to be somewhere.
    bool passa = true;
    std::exception_ptr falha;
    try {
        passa = !filtrado || Passa(slot);
    } catch (...) {
        falha = std::current_exception();
    }
    const unsigned refeitas = d->refeitas;
    if (nova && !ControlsDisabled())
        Q_EMIT BeforeScroll();
    // A handler may have closed the dataset, or had the list made anew, the row being in it.
    if (Active() && d->refeitas == refeitas)
        Mostrar(slot, nova, passa);
    if (falha)
        std::rethrow_exception(falha);
}

void TClientDataSet::Cancel()
{
    if (estado != dsEdit && estado != dsInsert)
        return;
    SairDaEdicao();
    AvisarDados();
}

void TClientDataSet::Delete()
{
    ExigirAberto();
    Cancel();
    if (RecNo() == 0)
        Recusar(QStringLiteral("Não há registro para excluir."));
    if (!ControlsDisabled())
        Q_EMIT BeforeScroll();
    if (RecNo() == 0)
        return; // a handler closed or emptied the list
    const int linha = RecNo(), slot = SlotAtual();
    d->ids[size_t(slot)] = 0;
    d->linhas.Limpar(slot);
    ++d->mortos;
    d->LinhasMudaram();
    d->visiveis.erase(d->visiveis.begin() + (linha - 1));
    Renumerar(std::min(linha, int(d->visiveis.size())));
    CompactarSeValer();
    AvisarDados();
    AvisarRolagem();
}

void TClientDataSet::AppendRecord(std::initializer_list<Variant> valores)
{
    Append();
    int i = 0;
    for (const Variant &valor : valores)
        Fields(i++)->SetValue(valor);
    Post();
}

void TClientDataSet::EmptyDataSet()
{
    ExigirCriado();
    Cancel();
    const bool tinha = RecNo() > 0;
    d->linhas.Esvaziar();
    d->ids = {};
    d->mortos = 0;
    d->LinhasMudaram();
    d->visiveis = {};
    d->desordenado = false;
    ++d->refeitas;
    if (!Active())
        return;
    Renumerar(0);
    AvisarDados();
    if (tinha)
        AvisarRolagem();
}

void TClientDataSet::AddIndex(const QString &nome, const QString &nomes, unsigned opcoes)
{
    if (nome.isEmpty() || HasIndex(nome))
        Recusar(QStringLiteral("O nome de índice '%1' já está em uso.").arg(nome));
    const QStringList lista = nomes.split(u';', Qt::SkipEmptyParts);
    if (lista.isEmpty())
        Recusar(QStringLiteral("O índice '%1' não tem campos.").arg(nome));
    for (const QString &campo : lista)
        FieldByName(campo);
    indices.push_back({nome, lista, opcoes});
}

void TClientDataSet::DeleteIndex(const QString &nome)
{
    if (nome == indexName)
        SetIndexName(QString());
    std::erase_if(indices, [&](const TIndexDef &indice) { return indice.Nome == nome; });
}

void TClientDataSet::SetIndexName(const QString &nome)
{
    if (!nome.isEmpty() && !HasIndex(nome))
        Recusar(QStringLiteral("O índice '%1' não existe.").arg(nome));
    if (nome == indexName)
        return;
    if (Active())
        EncerrarEdicao();
    indexName = nome;
    Reordenar();
}

void TClientDataSet::SetFilter(const QString &texto)
{
    ExigirCriado();
    d->filtroDeTexto = texto.trimmed().isEmpty() ? nullptr : LerFiltro(texto, *this);
    filtro = texto;
    if (filtrado)
        Reordenar();
}

void TClientDataSet::SetFilterText(const QString &nomes, const QString &texto, unsigned opcoes)
{
    ExigirAberto();
    const std::vector<Variant> valores(size_t(nomes.count(u';') + 1), texto);
    std::vector<TAlvo> novos = Alvos(nomes, valores, opcoes);
    if (texto.isEmpty())
        novos.clear();
    d->digitado = std::move(novos);
    if (filtrado)
        Reordenar();
}

void TClientDataSet::SetOnFilterRecord(std::function<bool(const TDataSet &)> pergunta)
{
    d->pergunta = std::move(pergunta);
    if (filtrado)
        Reordenar();
}

void TClientDataSet::SetFiltered(bool v)
{
    if (filtrado == v)
        return;
    filtrado = v;
    Reordenar();
}

void TClientDataSet::AtualizarFiltro()
{
    if (filtrado)
        Reordenar();
}

void TClientDataSet::PorEmOrdem()
{
    if (d->desordenado)
        Reordenar();
}

bool TClientDataSet::Locate(const QString &nomes, const std::vector<Variant> &valores,
                            unsigned opcoes)
{
    ExigirAberto();
    EncerrarEdicao();
    const std::vector<TAlvo> alvos = Alvos(nomes, valores, opcoes);
    const auto serve = [&](int slot) { return ServemTodos(slot, alvos); };
    const auto perto = d->visiveis.begin() + std::min(qsizetype(d->visiveis.size()), PoucasLinhas);
    auto achado = std::find_if(d->visiveis.begin(), perto, serve);
    if (achado == perto && perto != d->visiveis.end()) {
        const std::vector<bool> servem = d->Perguntar(serve);
        achado =
            std::find_if(perto, d->visiveis.end(), [&](int slot) { return servem[size_t(slot)]; });
    }
    if (alvos.empty() || achado == d->visiveis.end())
        return false;
    MoveBy(int(achado - d->visiveis.begin()) + 1 - RecNo());
    return true;
}

TBookmark TClientDataSet::GetBookmark() const
{
    return RecNo() > 0 ? TBookmark{d->ids[size_t(SlotAtual())]} : TBookmark();
}

bool TClientDataSet::BookmarkValid(TBookmark marca) const
{
    return marca.id != 0 && std::find(d->ids.begin(), d->ids.end(), marca.id) != d->ids.end();
}

bool TClientDataSet::GotoBookmark(TBookmark marca)
{
    if (!Active() || !BookmarkValid(marca))
        return false;
    EncerrarEdicao();
    const auto i = std::find(d->ids.begin(), d->ids.end(), marca.id);
    const int linha = LinhaDo(int(i - d->ids.begin()));
    if (linha == 0)
        return false;
    MoveBy(linha - RecNo());
    return true;
}

qint64 TClientDataSet::BytesUsados() const
{
    qint64 soma = d->linhas.BytesUsados() + qint64(d->ids.capacity() * sizeof(quint32)) +
                  qint64(d->visiveis.capacity() * sizeof(int));
    for (const auto &guardada : d->ordens) {
        soma += qint64(guardada.ordem.slots.capacity() * sizeof(int)) +
                qint64(guardada.ordem.igual.capacity() / 8);
    }
    for (const auto &achados : d->achados)
        soma += qint64(achados.passam.capacity() / 8);
    return soma;
}

void TClientDataSet::AbrirLinhas()
{
    ExigirCriado();
    DefinirColunas(definicoes);
    estado = dsBrowse;
    Refazer();
}

void TClientDataSet::FecharLinhas()
{
    SairDaEdicao();
    estado = dsInactive;
    d->visiveis = {};
    d->LinhasMudaram();
}

int TClientDataSet::ContarLinhas() const
{
    return int(d->visiveis.size());
}

bool TClientDataSet::CelulaNula(int linha, int coluna) const
{
    const int slot = SlotDa(linha);
    return slot < 0 ? d->escrita[size_t(coluna)].EhNulo() : d->linhas.Nula(slot, coluna);
}

Variant TClientDataSet::CelulaValor(int linha, int coluna) const
{
    const int slot = SlotDa(linha);
    return slot < 0 ? d->escrita[size_t(coluna)] : d->linhas.Valor(slot, coluna);
}

QString TClientDataSet::CelulaTexto(int linha, int coluna) const
{
    const int slot = SlotDa(linha);
    if (slot >= 0 && d->linhas.EhTexto(coluna))
        return d->linhas.Texto(slot, coluna).toString();
    const Variant valor = CelulaValor(linha, coluna);
    return definicoes[size_t(coluna)].tipo == TFieldType::ftTime && valor.EhDataHora()
               ? valor.AsDateTime().Hora().toString(QStringLiteral("HH:mm:ss"))
               : valor.AsString();
}

void TClientDataSet::GravarCelula(const TField &campo, const Variant &valor)
{
    if (estado != dsEdit && estado != dsInsert)
        Recusar(QStringLiteral("O campo '%1' só pode ser escrito durante uma edição.")
                    .arg(campo.FieldName()));
    d->escrita[size_t(ColunaDoCampo(campo))] = Converter(campo, valor);
    d->modificada = true;
}

void TClientDataSet::EncerrarEdicao()
{
    if (estado != dsEdit && estado != dsInsert)
        return;
    if (d->modificada)
        Post();
    else
        Cancel();
}

void TClientDataSet::AntesDeHabilitar()
{
    PorEmOrdem();
}

const TIndexDef *TClientDataSet::Indice(const QString &nome) const
{
    const auto i = std::find_if(indices.begin(), indices.end(),
                                [&](const TIndexDef &indice) { return indice.Nome == nome; });
    return i == indices.end() ? nullptr : &*i;
}

TCriterio TClientDataSet::CriterioDe(const TIndexDef &indice) const
{
    TCriterio criterio{{}, (indice.Opcoes & ixCaseInsensitive) != 0};
    for (const QString &nome : indice.Campos)
        criterio.colunas.push_back(ColunaDoCampo(*FieldByName(nome)));
    return criterio;
}

void TClientDataSet::ExigirCriado() const
{
    if (!criado)
        Recusar(QStringLiteral("O dataset ainda não foi criado."));
}

void TClientDataSet::ExigirAberto() const
{
    if (!Active())
        Recusar(QStringLiteral("O dataset está fechado."));
}

void TClientDataSet::EntrarEm(TDataSetState novo)
{
    estado = novo;
    d->modificada = false;
    d->aparte = -1;
    SetLinhaDosCampos(LinhaAparte);
}

void TClientDataSet::SairDaEdicao()
{
    if (estado == dsEdit || estado == dsInsert)
        estado = dsBrowse;
    d->modificada = false;
    SetLinhaDosCampos(0);
}

/** A value as its column holds it. */
Variant TClientDataSet::Converter(const TField &campo, const Variant &valor) const
{
    if (valor.EhNulo() || valor.EhNaoAtribuido())
        return Null;
    switch (campo.DataType()) {
    case TFieldType::ftString:
    case TFieldType::ftMemo: {
        QString texto = valor.AsString();
        if (campo.Size() > 0 && texto.size() > campo.Size()) {
            throw EDatabaseError(TErroBanco::ValorMuitoLongo,
                                 QStringLiteral("O valor do campo '%1' passa de %2 caracteres.")
                                     .arg(campo.DisplayLabel())
                                     .arg(campo.Size()));
        }
        return texto;
    }
    case TFieldType::ftSmallint:
    case TFieldType::ftInteger:
        return valor.AsInteger();
    case TFieldType::ftBoolean:
        return valor.AsFloat() != 0 ? 1 : 0;
    case TFieldType::ftFloat:
        return valor.AsFloat();
    default:
        return valor.AsDateTime();
    }
}

std::vector<TClientDataSet::TAlvo> TClientDataSet::Alvos(const QString &nomes,
                                                         const std::vector<Variant> &valores,
                                                         unsigned opcoes) const
{
    const bool parte = opcoes & (loPartialKey | loContains);
    std::vector<TAlvo> alvos;
    const QStringList lista = nomes.split(u';', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < lista.size() && i < qsizetype(valores.size()); ++i) {
        const TField *campo = FieldByName(lista[i]);
        const Variant &valor = valores[size_t(i)];
        const bool nulo = valor.EhNulo() || valor.EhNaoAtribuido();
        TAlvo alvo{ColunaDoCampo(*campo), opcoes, false, nulo ? Null : valor, {}};
        alvo.comoTexto = !nulo && (parte || EhTexto(campo->DataType()));
        if (alvo.comoTexto) {
            const QString texto = valor.AsString();
            alvo.procurado = opcoes & loCaseInsensitive ? TColacao::Dobrar(texto) : texto;
        }
        alvos.push_back(std::move(alvo));
    }
    return alvos;
}

/** Lists a row that was just written, and announces it. */
void TClientDataSet::Mostrar(int slot, bool nova, bool passa)
{
    if (!nova)
        d->visiveis.erase(d->visiveis.begin() + (RecNo() - 1));
    if (passa)
        Colocar(slot);
    else
        Renumerar(d->visiveis.empty() ? 0 : 1);
    AvisarDados();
    if (nova || SlotAtual() != slot)
        AvisarRolagem();
}

bool TClientDataSet::Serve(int slot, const TAlvo &alvo) const
{
    if (!alvo.comoTexto || d->linhas.Nula(slot, alvo.coluna))
        return d->linhas.Valor(slot, alvo.coluna) == alvo.valor;
    const bool dobrar = alvo.opcoes & loCaseInsensitive;
    const auto confere = [&](QAnyStringView texto) {
        if (alvo.opcoes & loContains)
            return dobrar ? TColacao::Contem(texto, alvo.procurado)
                          : texto.toString().contains(alvo.procurado);
        if (!(alvo.opcoes & loPartialKey) && texto.size() != alvo.procurado.size())
            return false;
        return dobrar ? TColacao::ComecaCom(texto, alvo.procurado)
                      : texto.toString().startsWith(alvo.procurado);
    };
    if (d->linhas.EhTexto(alvo.coluna))
        return confere(d->linhas.Texto(slot, alvo.coluna));
    const TFieldType tipo = definicoes[size_t(alvo.coluna)].tipo;
    if (tipo != TFieldType::ftInteger && tipo != TFieldType::ftSmallint)
        return confere(d->linhas.Valor(slot, alvo.coluna).AsString());
    std::array<char, 12> digitos{};
    const auto [fim, erro] = std::to_chars(digitos.data(), digitos.data() + digitos.size(),
                                           int(d->linhas.Numero(slot, alvo.coluna)));
    return confere(QLatin1StringView(digitos.data(), fim));
}

bool TClientDataSet::ServemTodos(int slot, const std::vector<TAlvo> &alvos) const
{
    return std::all_of(alvos.begin(), alvos.end(),
                       [&](const TAlvo &alvo) { return Serve(slot, alvo); });
}

bool TClientDataSet::PassaDigitado(int slot) const
{
    return d->digitado.empty() || std::any_of(d->digitado.begin(), d->digitado.end(),
                                              [&](const TAlvo &alvo) { return Serve(slot, alvo); });
}

int TClientDataSet::SlotAtual() const
{
    return RecNo() > 0 ? d->visiveis[size_t(RecNo() - 1)] : -1;
}

/** The slot behind a row number from 0; -1 for the row under edit. */
int TClientDataSet::SlotDa(int linha) const
{
    return linha == LinhaAparte - 1 ? d->aparte : d->visiveis[size_t(linha)];
}

/** The row number of a slot in the list shown, 0 when it is not there. */
int TClientDataSet::LinhaDo(int slot) const
{
    const auto i = std::find(d->visiveis.begin(), d->visiveis.end(), slot);
    return i == d->visiveis.end() ? 0 : int(i - d->visiveis.begin()) + 1;
}

/** Order or filter changed: the list is made anew around the current row. */
void TClientDataSet::Reordenar()
{
    if (!Active())
        return;
    EncerrarEdicao();
    const int slot = SlotAtual();
    Refazer();
    FicarEm(slot);
}

/** Makes the list shown from the order and the filter. */
void TClientDataSet::Refazer()
{
    std::vector<int> novas;
    if (const TIndexDef *indice = Indice(indexName)) {
        const TOrdem &ordem = d->Ordem(CriterioDe(*indice));
        novas = indice->Opcoes & ixDescending ? ordem.Decrescente() : ordem.slots;
    } else {
        novas = d->Vivas();
    }
    if (filtrado && !d->digitado.empty()) {
        const std::vector<bool> &passam =
            d->Achados([this](int slot) { return PassaDigitado(slot); });
        std::erase_if(novas, [&](int slot) { return !passam[size_t(slot)]; });
    }
    if (filtrado && (d->filtroDeTexto || d->pergunta))
        std::erase_if(novas, [this](int slot) { return !PassaPerguntas(slot); });
    d->visiveis = std::move(novas);
    d->desordenado = false;
    ++d->refeitas;
}

/** Whether the filters let a row through. */
bool TClientDataSet::Passa(int slot)
{
    return PassaDigitado(slot) && PassaPerguntas(slot);
}

/** Whether the filters in words and questions do, the row's values being the fields' meanwhile. */
bool TClientDataSet::PassaPerguntas(int slot)
{
    if (!d->filtroDeTexto && !d->pergunta)
        return true;
    struct TAparte {
        TClientDataSet *dataset;
        ~TAparte() { dataset->SetLinhaDosCampos(0); }
    } const guarda{this};
    d->aparte = slot;
    SetLinhaDosCampos(LinhaAparte);
    return (!d->filtroDeTexto || d->filtroDeTexto()) && (!d->pergunta || d->pergunta(*this));
}

/** Puts a row that is not in the list where it belongs and makes it current. */
void TClientDataSet::Colocar(int slot)
{
    const TIndexDef *indice = Indice(indexName);
    auto onde = d->visiveis.end();
    if (indice && ControlsDisabled()) {
        d->desordenado = true;
    } else if (indice) {
        const TCriterio criterio = CriterioDe(*indice);
        const int sentido = indice->Opcoes & ixDescending ? -1 : 1;
        onde = std::upper_bound(
            d->visiveis.begin(), d->visiveis.end(), slot, [&](int este, int outro) {
                const int r = CompararLinhas(d->linhas, este, outro, criterio) * sentido;
                return r != 0 ? r < 0 : este < outro;
            });
    } else if (!d->visiveis.empty() && d->visiveis.back() > slot) {
        onde = std::upper_bound(d->visiveis.begin(), d->visiveis.end(), slot);
    }
    onde = d->visiveis.insert(onde, slot);
    Renumerar(int(onde - d->visiveis.begin()) + 1);
}

/** After the list was made anew: the row stays current, or the first one becomes it. */
void TClientDataSet::FicarEm(int slot)
{
    const int linha = slot >= 0 ? LinhaDo(slot) : 0;
    Renumerar(linha > 0 ? linha : d->visiveis.empty() ? 0 : 1);
    AvisarDados();
    if (SlotAtual() != slot)
        AvisarRolagem();
}

/** Deleted rows are given up once they outnumber the living. */
void TClientDataSet::CompactarSeValer()
{
    if (d->mortos <= PoucosMortos || size_t(d->mortos) * 2 < d->ids.size())
        return;
    const std::vector<int> vivas = d->Vivas();
    std::vector<int> novo(d->ids.size(), -1);
    for (size_t i = 0; i < vivas.size(); ++i)
        novo[size_t(vivas[i])] = int(i);
    d->linhas.Manter(vivas);
    std::erase(d->ids, 0u);
    for (int &slot : d->visiveis)
        slot = novo[size_t(slot)];
    d->mortos = 0;
}

} // namespace ficha
