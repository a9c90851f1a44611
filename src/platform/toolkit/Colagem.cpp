#include "platform/toolkit/Colagem.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/TCustomEdit.h"

#include <utility>

namespace ficha
{

namespace
{

/** One handler of an edit; its child, so that it goes with it. */
class TFiltroDeColagem : public QObject
{
public:
    TFiltroDeColagem(QObject *dono, std::function<QString(QString &)> h)
        : QObject(dono), handler(std::move(h))
    {
        setObjectName(QStringLiteral("ficha_colagem"));
    }

    std::function<QString(QString &)> handler;
};

} // namespace

void AoColar(TCustomEdit *edit, std::function<QString(QString &texto)> handler)
{
    new TFiltroDeColagem(edit, std::move(handler));
}

QString PassarColagem(const TCustomEdit &edit, QString &texto)
{
    QString recusa;
    const auto filhos =
        edit.findChildren<QObject *>(QStringLiteral("ficha_colagem"), Qt::FindDirectChildrenOnly);
    for (QObject *filho : filhos) {
        auto *filtro = dynamic_cast<TFiltroDeColagem *>(filho);
        if (!filtro)
            continue;
        const auto handler = filtro->handler;
        if (!Protegido([&] { recusa = handler(texto); }))
            texto.clear();
        if (!recusa.isEmpty() || texto.isEmpty())
            break;
    }
    return recusa;
}

} // namespace ficha
