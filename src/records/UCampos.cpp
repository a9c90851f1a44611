#include "records/UCampos.h"

#include <algorithm>
#include <exception>

namespace ficha
{

int TCampos::Add(std::unique_ptr<TCampo> campo)
{
    itens.push_back(std::move(campo));
    return Count() - 1;
}

TCampo *TCampos::GetCampos(int i) const
{
    Q_ASSERT_X(i >= 0 && i < Count(), "TCampos", "index outside the list");
    return itens[size_t(i)].get();
}

TCampo *TCampos::CampoPeloNome(const QString &nome) const
{
    TCampo *achado = nullptr;
    for (const auto &campo : itens) {
        if (campo->Field && campo->Field->FieldName().compare(nome, Qt::CaseInsensitive) == 0)
            achado = campo.get();
    }
    return achado;
}

int TCampos::NChaves() const
{
    const auto fim = std::ranges::find_if(itens, [](const auto &c) { return !c->Chave; });
    return int(fim - itens.begin());
}

int TCampos::NVisiveis() const
{
    return int(std::ranges::count_if(itens, [](const auto &c) { return c->Visivel; }));
}

void TCampos::PegarValores()
{
    for (const auto &campo : itens)
        campo->PegarValor();
}

void TCampos::PreencherControls()
{
    std::exception_ptr primeiro;
    for (const auto &campo : itens) {
        try {
            campo->PreencherControl();
        } catch (...) {
            if (!primeiro)
                primeiro = std::current_exception();
        }
    }
    if (primeiro)
        std::rethrow_exception(primeiro);
}

void TCampos::Undo()
{
    for (const auto &campo : itens)
        campo->Undo();
}

bool TCampos::CanUndo() const
{
    return std::ranges::any_of(itens, [](const auto &c) { return c->CanUndo(); });
}

void TCampos::ZerarControles()
{
    for (const auto &campo : itens) {
        if (campo->ControlInfo)
            campo->ControlInfo->Zerar();
    }
}

} // namespace ficha
