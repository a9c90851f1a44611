#include "platform/support/TDataSource.h"

namespace ficha
{

void TDataSource::SetDataSet(TDataSet *novo)
{
    if (dataSet == novo)
        return;
    if (dataSet)
        disconnect(dataSet, nullptr, this, nullptr);
    dataSet = novo;
    if (novo) {
        connect(novo, &TDataSet::AfterOpen, this, &TDataSource::EstruturaMudou);
        connect(novo, &TDataSet::AfterClose, this, &TDataSource::EstruturaMudou);
        connect(novo, &TDataSet::DadosMudaram, this, &TDataSource::DadosMudaram);
        connect(novo, &TDataSet::AfterScroll, this, &TDataSource::Rolou);
        connect(novo, &QObject::destroyed, this, &TDataSource::EstruturaMudou);
    }
    Q_EMIT EstruturaMudou();
}

} // namespace ficha
