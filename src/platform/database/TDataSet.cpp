#include "platform/database/TDataSet.h"

#include "platform/database/EDatabaseError.h"

#include <QPointer>

#include <algorithm>
#include <exception>

namespace ficha
{

namespace
{

template <typename T>
TField *PorNome(const T &campos, const QString &nome)
{
    for (const auto &campo : campos) {
        if (campo->FieldName() == nome)
            return &*campo;
    }
    for (const auto &campo : campos) {
        if (campo->FieldName().compare(nome, Qt::CaseInsensitive) == 0)
            return &*campo;
    }
    return nullptr;
}

} // namespace

TDataSet::TDataSet(QObject *owner) : QObject(owner) {}

TDataSet::~TDataSet() = default;

void TDataSet::Open()
{
    if (aberto)
        return;
    // A handler may open the dataset itself, or destroy it.
    const QPointer<TDataSet> vivo(this);
    Q_EMIT BeforeOpen();
    if (!vivo || aberto)
        return;
    try {
        AbrirLinhas();
    } catch (...) {
        FecharLinhas();
        Desligar();
        throw;
    }
    aberto = true;
    recNo = IsEmpty() ? 0 : 1;
    bof = true;
    eof = recNo == 0;
    linhaLida = linhaEditada = 0;
    Q_EMIT AfterOpen();
    if (aberto && recNo > 0)
        AvisarRolagem();
}

void TDataSet::Close()
{
    if (!aberto)
        return;
    FecharLinhas();
    Desligar();
    aberto = false;
    recNo = linhaLida = linhaEditada = 0;
    eof = bof = true;
    rolouCalado = mudouCalado = false;
    Q_EMIT AfterClose();
}

void TDataSet::Desligar()
{
    for (TField *campo : abertos)
        campo->coluna = -1;
    abertos.clear();
}

int TDataSet::RecordCount() const
{
    return aberto ? ContarLinhas() : 0;
}

void TDataSet::First()
{
    EncerrarEdicao();
    eof = IsEmpty();
    IrPara(eof ? 0 : 1);
    bof = true;
}

void TDataSet::Last()
{
    EncerrarEdicao();
    const int total = RecordCount();
    bof = total == 0;
    IrPara(total);
    eof = true;
}

void TDataSet::Next()
{
    MoveBy(1);
}

void TDataSet::Prior()
{
    MoveBy(-1);
}

int TDataSet::MoveBy(int n)
{
    EncerrarEdicao();
    const int total = RecordCount();
    if (n == 0 || total == 0)
        return 0;
    const int antes = recNo;
    const qint64 alvo = qint64(recNo) + n;
    eof = alvo > total;
    bof = alvo < 1;
    IrPara(int(std::clamp<qint64>(alvo, 1, total)));
    return recNo - antes;
}

TField *TDataSet::Fields(int i) const
{
    if (i < 0 || i >= FieldCount()) {
        throw EDatabaseError(TErroBanco::Outro,
                             QStringLiteral("A consulta não tem a coluna de número %1.").arg(i));
    }
    return abertos[size_t(i)];
}

TField *TDataSet::FindField(const QString &nome) const
{
    return aberto ? PorNome(abertos, nome) : PorNome(campos, nome);
}

TField *TDataSet::FieldByName(const QString &nome) const
{
    if (TField *campo = FindField(nome))
        return campo;
    throw EDatabaseError(TErroBanco::Outro,
                         QStringLiteral("O campo '%1' não existe na consulta.").arg(nome));
}

void TDataSet::DisableControls()
{
    ++desabilitados;
}

void TDataSet::EnableControls()
{
    if (desabilitados == 0)
        return;
    std::exception_ptr erro;
    try {
        if (desabilitados == 1)
            AntesDeHabilitar();
    } catch (...) {
        // The rows stay as they stand; who shows them must know of them all the same.
        erro = std::current_exception();
    }
    if (--desabilitados == 0 && aberto) {
        if (std::exchange(mudouCalado, false))
            Q_EMIT DadosMudaram();
        if (std::exchange(rolouCalado, false) && aberto)
            Q_EMIT AfterScroll();
    }
    if (erro)
        std::rethrow_exception(erro);
}

QString TDataSet::CelulaTexto(int linha, int coluna) const
{
    return CelulaValor(linha, coluna).AsString();
}

QAnyStringView TDataSet::CelulaTextoDoValor(int linha, int coluna, TEspacoDeTexto &espaco) const
{
    espaco.texto = CelulaValor(linha, coluna).AsString();
    return espaco.texto;
}

void TDataSet::GravarCelula(const TField &campo, const Variant &)
{
    throw EDatabaseError(
        TErroBanco::SomenteLeitura,
        QStringLiteral("O campo '%1' é somente de leitura.").arg(campo.FieldName()));
}

int TDataSet::ColunaDoCampo(const TField &campo)
{
    return campo.coluna;
}

TField *TDataSet::NovoCampo(const TColuna &coluna)
{
    TField *campo = campos.emplace_back(std::make_unique<TField>(this, coluna.nome)).get();
    campo->tipo = coluna.tipo;
    campo->tamanho = coluna.tamanho;
    campo->escala = coluna.escala;
    return campo;
}

void TDataSet::Renumerar(int linha)
{
    recNo = linha;
    bof = eof = linha == 0;
}

void TDataSet::AvisarRolagem()
{
    if (ControlsDisabled())
        rolouCalado = true;
    else
        Q_EMIT AfterScroll();
}

void TDataSet::AvisarDados()
{
    if (ControlsDisabled())
        mudouCalado = true;
    else
        Q_EMIT DadosMudaram();
}

void TDataSet::DefinirColunas(const std::vector<TColuna> &colunas)
{
    Desligar();
    abertos.reserve(colunas.size());
    for (const TColuna &coluna : colunas) {
        TField *campo = CampoDaColuna(coluna.nome);
        campo->tipo = coluna.tipo;
        campo->tamanho = coluna.tamanho;
        campo->escala = coluna.escala;
        campo->coluna = FieldCount();
        abertos.push_back(campo);
    }
}

TField *TDataSet::CampoDaColuna(const QString &nome)
{
    // Opened again with the same columns, as most are: each stands where it stood.
    if (abertos.size() < campos.size()) {
        TField *mesmo = campos[abertos.size()].get();
        if (mesmo->coluna < 0 && mesmo->fieldName == nome && !nome.isEmpty())
            return mesmo;
    }
    QString livre = nome.isEmpty() ? QStringLiteral("F_1") : nome;
    const auto emUso = [&](const TField *campo) { return campo->fieldName == livre; };
    for (int n = 1; std::ranges::any_of(abertos, emUso); ++n)
        livre = QStringLiteral("%1_%2").arg(nome.isEmpty() ? QStringLiteral("F") : nome).arg(n);
    for (const auto &campo : campos) {
        if (campo->fieldName == livre)
            return campo.get();
    }
    return NovoCampo({livre, TFieldType::ftUnknown, 0, 0});
}

void TDataSet::IrPara(int linha)
{
    if (linha == recNo)
        return;
    if (!ControlsDisabled())
        Q_EMIT BeforeScroll();
    if (!aberto)
        return;
    recNo = linha;
    AvisarRolagem();
}

} // namespace ficha
