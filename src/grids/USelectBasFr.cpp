#include "grids/USelectBasFr.h"

#include "platform/support/Textos.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/Teclas.h"

#include <QPointer>

namespace ficha
{

FICHA_REGISTRAR(TSelectBasFr)

TSelectBasFr::TSelectBasFr(TChave chave) : TBasFr(chave) {}

void TSelectBasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, DescrLabeledEdit, "DescrLabeledEdit");
    Pegar(this, SelectBitBtn, "SelectBitBtn");
    AoTeclaDescer(DescrLabeledEdit, [this](int &tecla, Qt::KeyboardModifiers estado) {
        DescrLabeledEditKeyDown(DescrLabeledEdit, tecla, estado);
    });
    AoTeclar(DescrLabeledEdit,
             [this](QChar &key) { DescrLabeledEditKeyPress(DescrLabeledEdit, key); });
    SelectBitBtn->OnClick = [this](QObject *sender) { SelectBitBtnClick(sender); };
}

void TSelectBasFr::DescrLabeledEditKeyPress(QObject *, QChar &key)
{
    key = CharSemAcento(key);
}

void TSelectBasFr::DescrLabeledEditKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    if (tecla != VK_RETURN || !OnBuscarDescr)
        return;
    tecla = 0;
    Perguntar(OnBuscarDescr, DescrLabeledEdit->GetText());
}

void TSelectBasFr::SelectBitBtnClick(QObject *)
{
    DescrLabeledEdit->setFocus();
}

bool TSelectBasFr::Perguntar(const TBuscar &evento, const QString &descr)
{
    const QPointer<TSelectBasFr> vivo(this);
    const TBuscar handler = evento; // it goes with the frame, which it may destroy
    std::int32_t codigo = Codigo;
    QString texto = descr;
    const bool achou = handler(codigo, texto);
    if (!vivo)
        return false;
    Codigo = codigo;
    if (achou)
        MostrarAchado(texto);
    else
        SelectBitBtn->click();
    return achou;
}

void TSelectBasFr::MostrarAchado(const QString &descr)
{
    DescrLabeledEdit->SetText(descr);
}

} // namespace ficha
