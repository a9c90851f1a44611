#include "records/UTabelaLinear.h"

#include "base/UControlBasFr.h"
#include "platform/core/FormasSimples.h"
#include "platform/support/BancoApoio.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/TStringGrid.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace ficha
{

namespace
{

/** A visible field on its way through the rows: its texts go from the column into the grid without
 * passing through Valor, where that shows the same. Valor ends as the walk row by row leaves it. */
class TColunaDaGrade
{
public:
    explicit TColunaDaGrade(TCampo *doCampo) : campo(doCampo) {}

    /** From the dataset's row of that number into a row of the grid. */
    void Escrever(int doDataSet, TStringGrid *grid, TGridCoord onde, TEspacoDeTexto &espaco)
    {
        if (direta) {
            lida = doDataSet;
            grid->SetCell(onde.Col, onde.Row, campo->TextoDaColuna(espaco));
            return;
        }
        campo->LerColuna();
        grid->SetCell(onde.Col, onde.Row, campo->AsString());
        direta = campo->MostraAColuna();
    }
    /** Takes the value of the last row that was written. */
    void Assentar(TDataSet *dataset)
    {
        if (lida == 0 || !dataset || lida > dataset->RecordCount())
            return;
        const TLerLinha ler(dataset, lida);
        campo->LerColuna();
    }

private:
    TCampo *campo;
    bool direta = false;
    int lida = 0; /**< row whose text was written past Valor */
};

} // namespace

TTabelaLinear::TTabelaLinear(TChave chave) : TTabela(chave) {}

TTabelaLinear::~TTabelaLinear()
{
    Protegido([this] { LiberarTrava(); });
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
    if (!DataSet)
        return false;
    const QString chaves = ChavesGarantia();
    const std::weak_ptr<const char> viva = vida;
    // One record at a time: a lock that an edit left behind would else never be given back.
    LiberarTrava();
    const bool obtida = Travar(chaves, WhereStr());
    if (viva.expired())
        return false;
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

/** A refusal is told in a message box, behind which the table may have gone with its screen. */
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
    QString texto;
    const int chaves = Campos->NChaves();
    for (int i = 0; i < chaves; ++i) {
        if (i > 0)
            texto += u';';
        texto += Campos->Campos(i)->AsString();
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
        LerRegistro();
        return;
    }
    RecNo = std::max(1, std::min(n, registros));
    PosicionarDataSet(RecNo);
    Fim = false;
    LerRegistro();
}

void TTabelaLinear::LerRegistro()
{
    Campos->PegarValores();
    if (AtualizarControles)
        Campos->PreencherControls();
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
    if (NRegistros() == 0)
        return;
    if (FormasSimples()) {
        AndarAteAChave(chaves);
        return;
    }
    std::vector<TCampo *> campos;
    campos.reserve(std::size_t(Campos->NChaves()));
    for (int i = 0; i < Campos->NChaves(); ++i)
        campos.push_back(Campos->Campos(i));
    const bool todos = TemEvento(campos);
    int achada = 1;
    PercorrerLinhas([&] {
        if (todos)
            Campos->PegarValores();
        if (!LinhaTemChave(campos, chaves))
            return true;
        achada = RecNo;
        return false;
    });
    SetRecno(achada);
}

void TTabelaLinear::AndarAteAChave(const QString &chaves)
{
    First();
    while (!Fim && ChavesGarantia() != chaves)
        Next();
    if (Fim)
        First();
}

/**
 * Stands on each row in turn, from the first one on, until f answers false: the walk of First and
 * Next, save that nothing is read or shown. What f needs of a row it reads itself; the caller ends
 * with SetRecno, which brings all fields and inputs to the row that stays.
 */
template <typename F>
void TTabelaLinear::PercorrerLinhas(F f)
{
    const int registros = NRegistros();
    if (registros == 0)
        return;
    Fim = false;
    DataSet->First();
    for (RecNo = 1; f() && RecNo < registros; ++RecNo)
        DataSet->MoveBy(1);
}

/** An event may look at every field of its row. */
bool TTabelaLinear::TemEvento(const std::vector<TCampo *> &campos)
{
    return std::ranges::any_of(campos, [](const TCampo *c) { return bool(c->OnAsString); });
}

/** Whether ChavesGarantia of the row would be this text, compared piece by piece: most rows differ
 * in their first key field already. */
bool TTabelaLinear::LinhaTemChave(const std::vector<TCampo *> &campos, QStringView chaves)
{
    for (size_t i = 0; i < campos.size(); ++i) {
        if (i > 0 && !chaves.startsWith(u';'))
            return false;
        campos[i]->LerColuna();
        const QString texto = campos[i]->AsString();
        chaves = chaves.mid(i > 0 ? 1 : 0);
        if (!chaves.startsWith(texto))
            return false;
        chaves = chaves.mid(texto.size());
    }
    return chaves.isEmpty();
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
        if (FormasSimples())
            PreencherLinhaALinha(grid);
        else
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

/** Only the visible fields are read from each row, save where one of them renders itself through
 * its event. */
void TTabelaLinear::PreencherLinhas(TStringGrid *grid)
{
    std::vector<TCampo *> visiveis;
    for (int i = 0; i < Campos->Count(); ++i) {
        if (Campos->Campos(i)->Visivel)
            visiveis.push_back(Campos->Campos(i));
    }
    const TField *primeira = Campos->Campos(0)->Field;
    const auto temChave = [primeira] { return !primeira || !primeira->IsNull(); };
    if (TemEvento(visiveis)) {
        PercorrerLinhas([&] {
            if (!temChave())
                return false;
            Campos->PegarValores();
            for (size_t c = 0; c < visiveis.size(); ++c)
                grid->SetCell(int(c), RecNo, visiveis[c]->AsString());
            return true;
        });
        return;
    }
    std::vector<TColunaDaGrade> colunas(visiveis.begin(), visiveis.end());
    const auto assentar = [&] {
        for (TColunaDaGrade &coluna : colunas)
            coluna.Assentar(DataSet);
    };
    TEspacoDeTexto espaco;
    try {
        PercorrerLinhas([&] {
            if (!temChave())
                return false;
            for (size_t c = 0; c < colunas.size(); ++c)
                colunas[c].Escrever(DataSet->RecNo(), grid, {int(c), RecNo}, espaco);
            return true;
        });
    } catch (...) {
        assentar();
        throw;
    }
    assentar();
}

void TTabelaLinear::PreencherLinhaALinha(TStringGrid *grid)
{
    const TField *primeira = Campos->Campos(0)->Field;
    First();
    for (int r = 1; !primeira || !primeira->IsNull(); ++r) {
        int coluna = 0;
        for (int i = 0; i < Campos->Count(); ++i) {
            if (Campos->Campos(i)->Visivel)
                grid->SetCell(coluna++, r, Campos->Campos(i)->AsString());
        }
        if (NRegistros() == r)
            break;
        Next();
    }
}

void TTabelaLinear::PreencherStringList(TLinhas &lista, int i)
{
    const int lembrado = RecNo;
    AtualizarControles = false;
    const auto religar = qScopeGuard([this] { AtualizarControles = true; });
    lista.Clear();
    TCampo *campo = Campos->Campos(i);
    const bool todos = FormasSimples() || campo->OnAsString;
    PercorrerLinhas([&] {
        if (todos)
            Campos->PegarValores();
        else
            campo->LerColuna();
        lista.Add(campo->AsString());
        return true;
    });
    SetRecno(lembrado);
}

} // namespace ficha
