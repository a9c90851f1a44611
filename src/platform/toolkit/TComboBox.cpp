#include "platform/toolkit/TComboBox.h"

#include "platform/toolkit/AlturaDeItem.h"
#include "platform/toolkit/Cores.h"
#include "platform/toolkit/EntradaDeTexto.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TCustomEdit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QListView>
#include <QPointer>
#include <QWheelEvent>

#include <algorithm>
#include <iterator>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TComboBox)

namespace
{

/** A text without its accents; every character stays one. */
QString SemAcentos(QString texto)
{
    constexpr char16_t PrimeiraAcentuada = 0xC0;
    for (QChar &c : texto) {
        if (c.unicode() >= PrimeiraAcentuada && c.decompositionTag() == QChar::Canonical)
            c = c.decomposition().at(0);
    }
    return texto;
}

} // namespace

/** The edit inside: the gate of every edit, and the combo box learns of what was typed. */
class TComboLineEdit : public TCustomEdit
{
public:
    explicit TComboLineEdit(TComboBox *dono) : TCustomEdit(dono), combo(dono) {}

protected:
    void AposDigitar() override { combo->Digitado(); }

private:
    TComboBox *combo;
};

/** While the user's event runs; at its end what changed is announced, once. */
class TComboBox::TEscopo
{
public:
    explicit TEscopo(TComboBox *de) : combo(de)
    {
        if (combo->escopos++ == 0)
            combo->anunciado = combo->Estado();
    }
    ~TEscopo()
    {
        if (combo && --combo->escopos == 0)
            combo->AnunciarSeMudou();
    }
    TEscopo(const TEscopo &) = delete;
    TEscopo &operator=(const TEscopo &) = delete;

private:
    QPointer<TComboBox> combo;
};

namespace
{

/** One for all combos; none of them keeps it. */
QCompleter *SemComplemento()
{
    static QPointer<QCompleter> nenhum;
    if (!nenhum)
        nenhum = new QCompleter(qApp);
    return nenhum;
}

} // namespace

TComboBox::TComboBox(QWidget *owner) : QComboBox(owner)
{
    setFocusPolicy(Qt::StrongFocus);
    setInsertPolicy(QComboBox::NoInsert);
    setMinimumContentsLength(1);
    connect(this, &QComboBox::currentIndexChanged, this, [this] { indiceVelho = true; });
    connect(this, &QComboBox::activated, this, [this] {
        // Selected from its end, so that the beginning is in view.
        if (isEditable())
            lineEdit()->setSelection(int(currentText().size()), -int(currentText().size()));
        if (escopos == 0)
            AnunciarSeMudou();
    });
    AcompanharModelo();
    MontarEdit();
}

QString TComboBox::GetText() const
{
    return currentText();
}

void TComboBox::SetText(const QString &texto)
{
    const auto &todos = Textos();
    const auto igual = std::find(todos.begin(), todos.end(), texto);
    const int exato = igual == todos.end() ? -1 : int(igual - todos.begin());
    if (!isEditable()) {
        SetItemIndex(exato >= 0 ? exato : IndexOf(texto));
    } else if (exato >= 0) {
        SetItemIndex(exato);
    } else {
        setCurrentIndex(-1);
        setEditText(texto);
        MostrarInicio();
        indiceVelho = true;
    }
}

int TComboBox::GetItemIndex() const
{
    if (!isEditable())
        return currentIndex();
    if (indiceVelho) {
        const QString texto = currentText();
        const int atual = currentIndex();
        const bool mesmo = atual >= 0 && itemText(atual) == texto;
        indice = mesmo ? atual : texto.isEmpty() ? -1 : IndexOf(texto);
        indiceVelho = false;
    }
    return indice;
}

void TComboBox::SetItemIndex(int i)
{
    const int valido = i >= 0 && i < count() ? i : -1;
    setCurrentIndex(valido);
    // The list's index does not move when only the typed text had left the item.
    if (isEditable() && currentText() != itemText(valido))
        setEditText(itemText(valido));
    MostrarInicio();
    indiceVelho = true;
}

QStringList TComboBox::GetItems() const
{
    QStringList textos;
    textos.reserve(count());
    for (int i = 0; i < count(); ++i)
        textos.append(itemText(i));
    return textos;
}

void TComboBox::SetItems(const QStringList &textos)
{
    Clear();
    addItems(textos);
    SetItemIndex(-1);
}

int TComboBox::AddItem(const QString &texto, std::intptr_t objeto)
{
    // The list selects the first item that it gets by itself.
    const bool primeiro = count() == 0;
    const QString antes = currentText();
    addItem(texto, QVariant::fromValue(qlonglong(objeto)));
    if (primeiro) {
        setCurrentIndex(-1);
        if (isEditable())
            setEditText(antes);
    }
    indiceVelho = true;
    return count() - 1;
}

void TComboBox::Clear()
{
    clear();
    if (isEditable())
        clearEditText();
    indiceVelho = true;
}

QString TComboBox::ItemMaisLongo() const
{
    const auto &todos = Textos();
    const auto maior =
        std::max_element(todos.begin(), todos.end(),
                         [](const QString &a, const QString &b) { return a.size() < b.size(); });
    return maior == todos.end() ? QString() : *maior;
}

std::intptr_t TComboBox::GetObjeto(int i) const
{
    return std::intptr_t(itemData(i).toLongLong());
}

void TComboBox::SetObjeto(int i, std::intptr_t objeto)
{
    setItemData(i, QVariant::fromValue(qlonglong(objeto)));
}

int TComboBox::IndexOf(const QString &texto) const
{
    // What equals a text begins with it.
    const int primeiro = PrimeiroComecadoPor(texto);
    const auto &todos = Textos();
    for (int i = primeiro; i >= 0 && i < int(todos.size()); ++i) {
        const QString &item = todos[std::size_t(i)];
        if (item.size() == texto.size() && item.compare(texto, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

int TComboBox::IndexOfSemAcentos(const QString &texto) const
{
    const QString procurado = SemAcentos(texto);
    const auto &todos = Textos();
    for (std::size_t i = 0; i < todos.size(); ++i) {
        if (todos[i].size() == procurado.size() &&
            SemAcentos(todos[i]).compare(procurado, Qt::CaseInsensitive) == 0)
            return int(i);
    }
    return -1;
}

int TComboBox::IndexOfObjeto(std::intptr_t objeto) const
{
    for (int i = 0; i < count(); ++i) {
        if (GetObjeto(i) == objeto)
            return i;
    }
    return -1;
}

TComboBox::Style TComboBox::GetStyle() const
{
    return isEditable() ? csDropDown : csDropDownList;
}

void TComboBox::SetStyle(Style v)
{
    if (v == GetStyle())
        return;
    const int atual = GetItemIndex();
    if (v == csDropDown)
        MontarEdit();
    else
        setEditable(false);
    SetItemIndex(atual);
}

void TComboBox::SetIgnoraAcentos(bool v)
{
    ignoraAcentos = v;
    lidosVelhos = true;
}

void TComboBox::SetItemHeight(int pixels)
{
    itemHeight = pixels > 0 ? pixels : 0;
    if (listaPreparada)
        setItemDelegate(new TAlturaDeItem(itemHeight, this));
}

void TComboBox::SetLinhasIguais(bool v)
{
    linhasIguais = v;
    if (listaPreparada)
        AplicarLinhasIguais();
}

void TComboBox::SetMaxLength(int n)
{
    maxLength = n > 0 ? n : 0;
    if (auto *edit = dynamic_cast<TComboLineEdit *>(lineEdit()))
        edit->SetMaxLength(maxLength);
}

TColor TComboBox::GetColor() const
{
    return CorDoWidget(*this, QPalette::Base);
}

void TComboBox::SetColor(TColor cor)
{
    SetCorDoWidget(*this, QPalette::Base, cor);
    if (lineEdit())
        SetCorDoWidget(*lineEdit(), QPalette::Base, cor);
}

bool TComboBox::DroppedDown() const
{
    return listaPreparada && view()->isVisible();
}

void TComboBox::SetDroppedDown(bool aberta)
{
    if (aberta && !DroppedDown())
        showPopup();
    else if (!aberta && DroppedDown())
        hidePopup();
}

void TComboBox::SelectAll()
{
    if (lineEdit())
        lineEdit()->selectAll();
}

void TComboBox::setModel(QAbstractItemModel *novo)
{
    QComboBox::setModel(novo);
    AcompanharModelo();
}

QSize TComboBox::sizeHint() const
{
    DispensarItens();
    return QComboBox::sizeHint();
}

QSize TComboBox::minimumSizeHint() const
{
    DispensarItens();
    return QComboBox::minimumSizeHint();
}

void TComboBox::showPopup()
{
    const QPointer<TComboBox> vivo(this);
    Disparar(OnDropDown, this);
    if (!vivo)
        return;
    PrepararLista();
    if (escopos == 0)
        anunciado = Estado();
    // The list takes the keyboard, and the edit forgets its selection; the completion is one.
    const QLineEdit *edit = lineEdit();
    const int inicio = edit ? edit->selectionStart() : -1;
    const int tamanho = edit ? edit->selectionLength() : 0;
    QComboBox::showPopup();
    if (!vivo)
        return;
    if (lineEdit() && inicio >= 0)
        lineEdit()->setSelection(inicio + tamanho, -tamanho);
    AcompanharLista();
}

void TComboBox::hidePopup()
{
    const bool aberta = DroppedDown();
    const QPointer<TComboBox> vivo(this);
    QComboBox::hidePopup();
    if (vivo && aberta)
        Disparar(OnCloseUp, this);
}

bool TComboBox::eventFilter(QObject *alvo, QEvent *evento)
{
    if (evento->type() == QEvent::KeyPress && listaPreparada && alvo == view() &&
        TeclaNaLista(static_cast<QKeyEvent *>(evento)))
        return true;
    // What a dead key or an input method composes belongs to the edit too.
    if (evento->type() == QEvent::InputMethod && listaPreparada && alvo == view() && isEditable()) {
        QCoreApplication::sendEvent(this, evento);
        return true;
    }
    return QComboBox::eventFilter(alvo, evento);
}

void TComboBox::keyPressEvent(QKeyEvent *evento)
{
    const TEscopo escopo(this);
    QComboBox::keyPressEvent(evento);
}

void TComboBox::inputMethodEvent(QInputMethodEvent *evento)
{
    const TEscopo escopo(this);
    QComboBox::inputMethodEvent(evento);
}

void TComboBox::wheelEvent(QWheelEvent *evento)
{
    evento->ignore();
}

void TComboBox::focusOutEvent(QFocusEvent *evento)
{
    // On leaving, the list moves to the item of the text; the user changed nothing by that. In the
    // middle of a key the focus only goes to the list, and the key's change is still to be told.
    const bool saindo = escopos == 0;
    if (saindo)
        anunciado = Estado();
    const QPointer<TComboBox> vivo(this);
    QComboBox::focusOutEvent(evento);
    const bool volta =
        evento->reason() == Qt::ActiveWindowFocusReason || evento->reason() == Qt::PopupFocusReason;
    if (vivo && saindo && !volta && !DroppedDown())
        MostrarInicio();
}

/** The list makes itself when it is first asked for, and that takes longer than everything else in
 * a combo: not before it opens. */
void TComboBox::PrepararLista()
{
    if (listaPreparada)
        return;
    listaPreparada = true;
    view()->installEventFilter(this);
    if (itemHeight > 0)
        setItemDelegate(new TAlturaDeItem(itemHeight, this));
    if (linhasIguais)
        AplicarLinhasIguais();
}

void TComboBox::AplicarLinhasIguais()
{
    view()->setTextElideMode(linhasIguais ? Qt::ElideRight : Qt::ElideMiddle);
    if (auto *lista = qobject_cast<QListView *>(view()))
        lista->setUniformItemSizes(linhasIguais);
}

/** The size is not taken from the items; a policy that somebody has set stays. Only when a size is
 * asked for, because the policy makes the list. */
void TComboBox::DispensarItens() const
{
    if (itensDispensados)
        return;
    itensDispensados = true;
    if (sizeAdjustPolicy() == QComboBox::AdjustToContentsOnFirstShow)
        const_cast<TComboBox *>(this)->setSizeAdjustPolicy(
            QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void TComboBox::MontarEdit()
{
    auto *edit = new TComboLineEdit(this);
    // Completion is ours: the list must know which item the text is. An edit that comes with a
    // completer is spared the making of one, which takes as long as the rest of the combo.
    edit->setCompleter(SemComplemento());
    setLineEdit(edit);
    setCompleter(nullptr);
    edit->SetMaxLength(maxLength);
    connect(edit, &QLineEdit::textChanged, this, [this] { indiceVelho = true; });
    connect(edit, &QLineEdit::textEdited, this, [this] {
        // Outside of a key: pasted, dropped, undone.
        if (escopos == 0)
            Protegido([this] {
                anunciado = {QString(), -2};
                AnunciarSeMudou();
            });
    });
}

void TComboBox::AnunciarSeMudou()
{
    TEstado agora = Estado();
    if (agora == anunciado)
        return;
    anunciado = std::move(agora);
    const QPointer<TComboBox> vivo(this);
    AcompanharLista();
    Disparar(OnChange, this);
    if (vivo)
        Q_EMIT UserChanged();
}

void TComboBox::Digitado()
{
    const TEscopo escopo(this);
    if (autoComplete)
        Completar();
    const QPointer<TComboBox> vivo(this);
    if (autoDropDown && !DroppedDown() && isVisible())
        showPopup();
    if (vivo && autoCloseUp && DroppedDown() && !lineEdit()->hasSelectedText()) {
        const int unico = PrimeiroComecadoPor(currentText());
        if (unico >= 0 && itemText(unico).size() == currentText().size() &&
            ComecadoPor(Procurado(currentText()), unico + 1) < 0)
            hidePopup();
    }
}

/** Fills the text up to the first item that begins so, the added part selected. */
void TComboBox::Completar()
{
    const QString digitado = currentText();
    if (digitado.isEmpty() || lineEdit()->cursorPosition() != digitado.size())
        return;
    const int i = PrimeiroComecadoPor(digitado);
    if (i < 0)
        return;
    const QString texto = itemText(i);
    if (texto != digitado)
        setEditText(texto);
    lineEdit()->setSelection(int(texto.size()), -int(texto.size() - digitado.size()));
    if (texto.size() == digitado.size())
        lineEdit()->end(false);
}

void TComboBox::MostrarInicio()
{
    if (isEditable())
        lineEdit()->home(false);
}

/** Every change of the list makes what was read of it old. */
void TComboBox::AcompanharModelo()
{
    const auto esquecer = [this] {
        lidosVelhos = true;
        indiceVelho = true;
        busca.reset();
    };
    for (const QMetaObject::Connection &ligacao : doModelo)
        disconnect(ligacao);
    const QAbstractItemModel *m = model();
    doModelo = {connect(m, &QAbstractItemModel::dataChanged, this, esquecer),
                connect(m, &QAbstractItemModel::rowsInserted, this, esquecer),
                connect(m, &QAbstractItemModel::rowsRemoved, this, esquecer),
                connect(m, &QAbstractItemModel::rowsMoved, this, esquecer),
                connect(m, &QAbstractItemModel::layoutChanged, this, esquecer),
                connect(m, &QAbstractItemModel::modelReset, this, esquecer)};
    esquecer();
}

const std::vector<QString> &TComboBox::Textos() const
{
    // A listener that hears of a change before this object does must not see the old ones.
    if (lidosVelhos || int(lidos.size()) != count()) {
        lidos.clear();
        lidos.reserve(std::size_t(count()));
        for (int i = 0; i < count(); ++i)
            lidos.push_back(itemText(i));
        semAcentos.clear();
        if (ignoraAcentos)
            std::transform(lidos.begin(), lidos.end(), std::back_inserter(semAcentos), SemAcentos);
        lidosVelhos = false;
        busca.reset();
    }
    return lidos;
}

/** A text as the items are searched. */
QString TComboBox::Procurado(const QString &texto) const
{
    return ignoraAcentos ? SemAcentos(texto) : texto;
}

/** The first item that begins with a text, letter case aside; -1 for none. A text that continues
 * the last one cannot stand before that one's item, nor anywhere where that one had none. */
int TComboBox::PrimeiroComecadoPor(const QString &digitado) const
{
    (void)Textos();
    const QString texto = Procurado(digitado);
    const bool continua = busca && texto.startsWith(busca->Texto, Qt::CaseInsensitive);
    const int achado =
        continua && busca->Achado < 0 ? -1 : ComecadoPor(texto, continua ? busca->Achado : 0);
    busca = TBusca{texto, achado};
    return achado;
}

/** As PrimeiroComecadoPor, from an item on; the text is as the items are searched. */
int TComboBox::ComecadoPor(const QString &texto, int desde) const
{
    (void)Textos();
    const auto &todos = ignoraAcentos ? semAcentos : lidos;
    for (std::size_t i = std::size_t(desde); i < todos.size(); ++i) {
        if (todos[i].startsWith(texto, Qt::CaseInsensitive))
            return int(i);
    }
    return -1;
}

/** In the open list the item of the text is the current one, none for a text of no item: Enter
 * there must not pick what the user has typed away from. */
void TComboBox::AcompanharLista()
{
    if (!DroppedDown() || !isEditable())
        return;
    const int i = GetItemIndex();
    view()->setCurrentIndex(i >= 0 ? model()->index(i, modelColumn(), rootModelIndex())
                                   : QModelIndex());
}

/** The open list has the keyboard; what edits the text goes on to the edit. */
bool TComboBox::TeclaNaLista(QKeyEvent *evento)
{
    if (!isEditable())
        return false;
    const int tecla = evento->key();
    const bool sai = tecla == Qt::Key_Tab || tecla == Qt::Key_Backtab;
    const bool entra = tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
    const bool edita = EhTeclaDeTexto(*evento) || tecla == Qt::Key_Backspace ||
                       tecla == Qt::Key_Delete || tecla == Qt::Key_Left || tecla == Qt::Key_Right ||
                       tecla == Qt::Key_Home || tecla == Qt::Key_End ||
                       evento->matches(QKeySequence::Paste);
    if (!edita && !sai && !(entra && !view()->currentIndex().isValid()))
        return false;
    const QPointer<TComboBox> vivo(this);
    if (sai && view()->currentIndex().isValid() && view()->currentIndex().row() != GetItemIndex()) {
        const TEscopo escopo(this);
        SetItemIndex(view()->currentIndex().row());
    }
    if (vivo && (sai || entra))
        hidePopup();
    if (vivo)
        QCoreApplication::sendEvent(this, evento);
    evento->accept();
    return true;
}

} // namespace ficha
