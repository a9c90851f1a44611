#include "records/UTabelaLinear.h"

#include "base/UControlBasFr.h"
#include "platform/support/BancoApoio.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/TStringGrid.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace ficha
{

TTabelaLinear::TTabelaLinear(TChave chave) : TTabela(chave) {}

TTabelaLinear::~TTabelaLinear()
{
    Protegido([this] { LiberarTrava(); });
    for (int i = 0; Campos && i < Campos->Count(); ++i) {
        const TCampo *campo = Campos->Campos(i);
        if (TControlBasFr *frame = campo->ControlInfo ? campo->ControlInfo->Frame() : nullptr)
            frame->DesligarColuna(campo);
    }
}

void TTabelaLinear::Create(TDataSet *dataset, const QString &nomeTabela)
{
    TTabela::Create(dataset, nomeTabela);
    AtualizarControles = true;
    const bool temLinhas = NRegistros() > 0;
    RecNo = temLinhas ? 1 : -1;
    Fim = !temLinhas;
}

int TTabelaLinear::NRegistros() const
{
    return DataSet ? DataSet->RecordCount() : 0;
}

void TTabelaLinear::InsIni()
{
    const bool abre = Status == TStatus::Ocioso;
    TTabela::InsIni();
    if (abre && Status == TStatus::Inserindo)
        Campos->ZerarControles();
}

void TTabelaLinear::AltIni()
{
    TTabela::AltIni();
}

void TTabelaLinear::ExclIni()
{
    TTabela::ExclIni();
}

void TTabelaLinear::InsFim()
{
    TTabela::InsFim();
}

void TTabelaLinear::AltFim()
{
    TTabela::AltFim();
    LiberarTrava();
}

void TTabelaLinear::ExclFim()
{
    TTabela::ExclFim();
    LiberarTrava();
}

void TTabelaLinear::InsCancel()
{
    TTabela::InsCancel();
    if (NRegistros() == 0)
        Campos->ZerarControles();
    else
        Campos->PreencherControls();
}

void TTabelaLinear::AltCancel()
{
    TTabela::AltCancel();
    LiberarTrava();
}

void TTabelaLinear::ExclCancel()
{
    TTabela::ExclCancel();
    LiberarTrava();
}

bool TTabelaLinear::GarantiaRegistro()
{
    const QString chaves = ChavesGarantia();
    // One record at a time: a lock that an edit left behind would else never be given back.
    LiberarTrava();
    const bool obtida = Travar(chaves, WhereStr());
    const auto relerNoMesmo = [&] {
        DataSet->Close();
        DataSet->Open();
        AtualizarControles = false;
        const auto religar = qScopeGuard([this] { AtualizarControles = true; });
        LocalizarPelaChave(chaves);
    };
    try {
        relerNoMesmo();
    } catch (...) {
        // The edit does not start: a lock without an edit would shut every other user out.
        Protegido([this] { LiberarTrava(); });
        throw;
    }
    return obtida;
}

bool TTabelaLinear::GarantirTrava()
{
    if (DetemTrava())
        return true;
    return travado ? Travar(QString(travado->chaves), QString(travado->onde))
                   : Travar(ChavesGarantia(), WhereStr());
}

bool TTabelaLinear::Travar(const QString &chaves, const QString &onde)
{
    if (!GarantiaTentar(NomeTabela, chaves, onde))
        return false;
    travado = {chaves, onde, GarantiaNumero(NomeTabela, chaves)};
    return true;
}

bool TTabelaLinear::DetemTrava() const
{
    return travado && GarantiaNumero(NomeTabela, travado->chaves) == travado->numero;
}

void TTabelaLinear::LiberarTrava()
{
    if (DetemTrava())
        GarantiaLiberar(NomeTabela, travado->chaves);
    travado.reset();
}

void TTabelaLinear::LiberarRegistro(const QString &chaves)
{
    if (travado && chaves == travado->chaves)
        LiberarTrava();
}

TCampo *TTabelaLinear::NovoCampo(TField *field, bool chave, int largura, bool visivel)
{
    auto campo = std::make_unique<TCampo>();
    campo->Field = field;
    campo->Chave = chave;
    campo->ColInfo->Largura = largura;
    campo->Visivel = visivel;
    TCampo *novo = campo.get();
    Campos->Add(std::move(campo));
    return novo;
}

void TTabelaLinear::LigarControl(TCampo *campo, QWidget *control)
{
    campo->ControlInfo = std::make_unique<TControlInfo>();
    campo->ControlInfo->SetControl(control);
    if (TControlBasFr *frame = campo->ControlInfo->Frame())
        frame->PegarColuna(campo, this);
}

TCampo *TTabelaLinear::PegarCampo(TField *field)
{
    return NovoCampo(field, false, 0, false);
}

TCampo *TTabelaLinear::PegarCampo(TField *field, int largura)
{
    return NovoCampo(field, false, largura, true);
}

TCampo *TTabelaLinear::PegarCampoChave(TField *field)
{
    return NovoCampo(field, true, 0, false);
}

TCampo *TTabelaLinear::PegarCampo(TField *field, int largura, QWidget *control)
{
    TCampo *campo = NovoCampo(field, false, largura, true);
    LigarControl(campo, control);
    return campo;
}

TCampo *TTabelaLinear::PegarCampoChave(TField *field, int largura, QWidget *control)
{
    TCampo *campo = NovoCampo(field, true, largura, true);
    LigarControl(campo, control);
    return campo;
}

TCampo *TTabelaLinear::PegarCampoChaveEstrangeira(TField *field, TField *fieldDescricao,
                                                  int largura, QWidget *control)
{
    TCampo *campo = PegarCampo(field, largura, control);
    campo->FieldEstrangeiro = fieldDescricao;
    campo->TemEstrangeiro = true;
    return campo;
}

QString TTabelaLinear::WhereStr() const
{
    QString texto;
    const int chaves = Campos->NChaves();
    for (int i = 0; i < chaves; ++i) {
        const TCampo *campo = Campos->Campos(i);
        if (!texto.isEmpty())
            texto += QStringLiteral(" and ");
        texto += campo->Field->FieldName() + u'=' + campo->AsString();
    }
    return QStringLiteral(" where ") + texto;
}

QString TTabelaLinear::ChavesGarantia() const
{
    return TextoDaChave(false);
}

/** The key as text; with relerCampos the key fields first take the dataset's current row. */
QString TTabelaLinear::TextoDaChave(bool relerCampos) const
{
    QString texto;
    const int chaves = Campos->NChaves();
    for (int i = 0; i < chaves; ++i) {
        TCampo *campo = Campos->Campos(i);
        if (relerCampos && campo->OnAsString)
            Campos->PegarValores();
        else if (relerCampos)
            campo->PegarValor();
        if (i > 0)
            texto += u';';
        texto += campo->AsString();
    }
    return texto;
}

void TTabelaLinear::First()
{
    Fim = false;
    SetRecno(1);
}

void TTabelaLinear::Last()
{
    Fim = false;
    SetRecno(NRegistros());
}

void TTabelaLinear::Next()
{
    Fim = NRegistros() == RecNo;
    if (!Fim)
        SetRecno(RecNo + 1);
}

void TTabelaLinear::Prior()
{
    Fim = false;
    if (RecNo > 1)
        SetRecno(RecNo - 1);
}

bool TTabelaLinear::PodeFirst() const
{
    return Status == TStatus::Ocioso && RecNo >= 2;
}

bool TTabelaLinear::PodePrior() const
{
    return PodeFirst();
}

bool TTabelaLinear::PodeNext() const
{
    return Status == TStatus::Ocioso && RecNo >= 1 && NRegistros() > RecNo;
}

bool TTabelaLinear::PodeLast() const
{
    return PodeNext();
}

bool TTabelaLinear::PodeTabChange() const
{
    return Status == TStatus::Ocioso;
}

void TTabelaLinear::SetRecno(int n)
{
    const int registros = NRegistros();
    if (registros == 0) {
        Fim = true;
        RecNo = -1;
    } else {
        RecNo = std::max(1, std::min(n, registros));
        PosicionarDataSet(RecNo);
    }
    Campos->PegarValores();
    if (AtualizarControles)
        Campos->PreencherControls();
    if (registros > 0)
        Fim = false;
}

void TTabelaLinear::PosicionarDataSet(int n)
{
    if (!DataSet)
        return;
    DataSet->First();
    if (n >= 2)
        DataSet->MoveBy(n - 1);
}

bool TTabelaLinear::Locate(const QString &)
{
    return false;
}

void TTabelaLinear::LocalizarPelaChave(const QString &chaves)
{
    const int registros = NRegistros();
    if (registros == 0)
        return;
    int achada = 1;
    DataSet->First();
    for (int n = 1; n <= registros; ++n) {
        if (TextoDaChave(true) == chaves) {
            achada = n;
            break;
        }
        DataSet->MoveBy(1);
    }
    SetRecno(achada);
}

void TTabelaLinear::PreencherStringGrid(TStringGrid *grid)
{
    const int lembrado = RecNo;
    const int visiveis = Campos->NVisiveis();
    if (visiveis == 0)
        return;
    grid->SetColCount(visiveis);
    NLinhas = NLinsDataSet(DataSet);
    if (NLinhas + 1 < 2) {
        grid->SetRowCount(2);
        grid->LimparLinha(1);
    } else {
        grid->SetRowCount(NLinhas + 1);
    }
    PreencherTitulos(grid);
    const QScopedValueRollback<bool> guarda(AtualizarControles);
    if (NRegistros() > 0) {
        AtualizarControles = false;
        PreencherLinhas(grid);
    }
    SetRecno(lembrado);
}

void TTabelaLinear::PreencherTitulos(TStringGrid *grid) const
{
    int coluna = 0;
    for (int i = 0; i < Campos->Count(); ++i) {
        const TCampo *campo = Campos->Campos(i);
        if (!campo->Visivel)
            continue;
        grid->SetCell(coluna, 0, campo->Field ? campo->Field->DisplayLabel().trimmed() : QString());
        grid->SetColWidth(coluna, campo->ColInfo->Largura);
        ++coluna;
    }
}

/** Only the visible fields are read from each row, save where a field renders itself through its
 * event, which may look at any other field. */
void TTabelaLinear::PreencherLinhas(TStringGrid *grid)
{
    std::vector<TCampo *> lidos;
    std::vector<TCampo *> visiveis;
    bool temEvento = false;
    for (int i = 0; i < Campos->Count(); ++i) {
        TCampo *campo = Campos->Campos(i);
        temEvento = temEvento || (campo->Visivel && campo->OnAsString);
        if (campo->Visivel)
            visiveis.push_back(campo);
        if (campo->Visivel || i == 0)
            lidos.push_back(campo);
    }
    const TCampo *primeiro = Campos->Campos(0);
    const int registros = NRegistros();
    DataSet->First();
    for (int r = 1; r <= registros; ++r) {
        RecNo = r;
        if (temEvento)
            Campos->PegarValores();
        else
            std::ranges::for_each(lidos, &TCampo::PegarValor);
        if (primeiro->Field && primeiro->Field->IsNull())
            break;
        for (size_t c = 0; c < visiveis.size(); ++c)
            grid->SetCell(int(c), r, visiveis[c]->AsString());
        DataSet->MoveBy(1);
    }
}

void TTabelaLinear::PreencherStringList(TLinhas &lista, int i)
{
    const int lembrado = RecNo;
    AtualizarControles = false;
    const auto religar = qScopeGuard([this] { AtualizarControles = true; });
    lista.Clear();
    TCampo *campo = Campos->Campos(i);
    const int registros = NRegistros();
    if (registros > 0)
        DataSet->First();
    for (int n = 1; n <= registros; ++n) {
        RecNo = n;
        if (campo->OnAsString)
            Campos->PegarValores();
        else
            campo->PegarValor();
        lista.Add(campo->AsString());
        DataSet->MoveBy(1);
    }
    SetRecno(lembrado);
}

} // namespace ficha
