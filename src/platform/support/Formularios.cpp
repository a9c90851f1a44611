#include "platform/support/Formularios.h"

#include "platform/toolkit/TForm.h"

namespace ficha
{

TForm *NameToForm(const QString &nome)
{
    if (nome.isEmpty())
        return nullptr;
    const auto &todos = TForm::Formularios();
    TForm *escondido = nullptr;
    for (auto i = todos.crbegin(); i != todos.crend(); ++i) {
        if ((*i)->objectName().compare(nome, Qt::CaseInsensitive) != 0)
            continue;
        if (!(*i)->isHidden())
            return *i;
        if (!escondido)
            escondido = *i;
    }
    return escondido;
}

} // namespace ficha
