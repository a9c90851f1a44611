#pragma once

#include "records/UCampo.h"

#include <vector>

namespace ficha
{

/**
 * The fields of a record in the order in which the table added them, key fields first. Owns them.
 */
class TCampos
{
public:
    /** Appends, takes ownership, answers the index. */
    int Add(std::unique_ptr<TCampo> campo);
    int Count() const { return int(itens.size()); }
    /** The i-th field, from 0; an index outside is a programming mistake. */
    TCampo *GetCampos(int i) const;
    TCampo *Campos(int i) const { return GetCampos(i); }
    void Clear() { itens.clear(); }
    /** By column name, letter case ignored; the last of several, null when there is none. */
    TCampo *CampoPeloNome(const QString &nome) const;
    /** Leading key fields: counting stops at the first that is none. */
    int NChaves() const;
    int NVisiveis() const;
    void PegarValores();
    /** Shows every field in its input. An input that raises, as a picture does whose file is
     * damaged, keeps no other from its value: the first error is raised when all are shown. */
    void PreencherControls();
    void Undo();
    bool CanUndo() const;
    /** Empties every bound input; the stored values stay. */
    void ZerarControles();

private:
    std::vector<std::unique_ptr<TCampo>> itens;
};

} // namespace ficha
