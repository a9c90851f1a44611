#include "platform/toolkit/TDateTimePicker.h"

#include "platform/core/Caracteres.h"
#include "platform/core/Relogio.h"
#include "platform/toolkit/AvisarUsuario.h"
#include "platform/toolkit/EntradaDeTexto.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/MenuDeEdicao.h"
#include "platform/toolkit/TMonthCalendar.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyleOption>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TDateTimePicker)

namespace
{

enum TParte { Dia, Mes, Ano };
constexpr int UltimaParte = Ano;
constexpr std::array Inicio = {0, 3, 6};
constexpr std::array Tamanho = {2, 2, 4};
constexpr std::array Maior = {31, 12, 9999};
constexpr QChar Vazio = u'_';

/** The year of two digits nearest to today, 19 years ahead at most. */
int AnoDeDoisDigitos(int aa)
{
    constexpr int Adiante = 20;
    constexpr int Seculo = 100;
    const int ultimo = Hoje().Data().year() + Adiante;
    return ultimo - (ultimo - aa) % Seculo;
}

int AnoDosDigitos(const QString &digitos)
{
    return digitos.size() == 2 ? AnoDeDoisDigitos(digitos.toInt()) : digitos.toInt();
}

/** What the digits typed so far say for a part; 0 while they say nothing. */
int NumeroDaParte(int parte, const QString &digitos)
{
    if (parte < UltimaParte)
        return digitos.toInt();
    return digitos.size() == 2 || digitos.size() == 4 ? AnoDosDigitos(digitos) : 0;
}

/** Whether digits are, or may become, a number of the part. */
bool CabeNaParte(int parte, const QString &digitos)
{
    if (digitos.size() < Tamanho[std::size_t(parte)])
        return true;
    const int n = digitos.toInt();
    return n >= 1 && n <= Maior[std::size_t(parte)];
}

/** Whether no further digit can follow. */
bool ParteCompleta(int parte, const QString &digitos)
{
    const int tamanho = Tamanho[std::size_t(parte)];
    if (digitos.size() >= tamanho)
        return true;
    return parte < UltimaParte && digitos.toInt() * 10 > Maior[std::size_t(parte)];
}

QString ComZeros(int numero, int tamanho)
{
    return QString::number(numero).rightJustified(tamanho, u'0');
}

/** A text from outside as a date; invalid when it is none. */
QDate DataDoTexto(const QString &texto)
{
    static const QRegularExpression brasileira(QStringLiteral(
        R"(^\s*(\d{1,2})[/.\-](\d{1,2})[/.\-](\d{4}|\d{2})\s*$|^\s*(\d\d)(\d\d)(\d{4}|\d{2})\s*$)"));
    static const QRegularExpression tecnica(QStringLiteral(R"(^\s*(\d{4})-(\d\d)-(\d\d)\s*$)"));
    if (const auto achada = tecnica.match(texto); achada.hasMatch())
        return {achada.captured(1).toInt(), achada.captured(2).toInt(), achada.captured(3).toInt()};
    const auto achada = brasileira.match(texto);
    if (!achada.hasMatch())
        return {};
    const int desde = achada.captured(1).isEmpty() ? 4 : 1;
    const int ano = AnoDosDigitos(achada.captured(desde + 2));
    if (ano < 1)
        return {};
    return {ano, achada.captured(desde + 1).toInt(), achada.captured(desde).toInt()};
}

/** The calendar that drops down. Closes itself; the picked day is told when it has closed. */
class TCalendarioSuspenso : public QFrame
{
public:
    TCalendarioSuspenso(QWidget *dono, QDate dia)
        : QFrame(dono, Qt::Popup), calendario(new TMonthCalendar(this))
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
        auto *caixa = new QVBoxLayout(this);
        caixa->setContentsMargins(0, 0, 0, 0);
        caixa->addWidget(calendario);
        calendario->SetDate(TDateTime(dia));
        Ligar(calendario, &QCalendarWidget::clicked, this, [this] { Escolher(); });
    }

    /** Under the field, or above it where the screen ends. */
    void Abrir()
    {
        const QWidget *campo = parentWidget();
        const QRect tela = campo->screen()->availableGeometry();
        resize(sizeHint());
        QPoint onde = campo->mapToGlobal(QPoint(0, campo->height()));
        if (onde.y() + height() > tela.bottom())
            onde.setY(campo->mapToGlobal(QPoint()).y() - height());
        onde.setX(
            std::clamp(onde.x(), tela.left(), std::max(tela.left(), tela.right() - width() + 1)));
        onde.setY(std::max(onde.y(), tela.top()));
        move(onde);
        show();
        calendario->setFocus(Qt::PopupFocusReason);
    }

    std::function<void(QDate)> AoEscolher;
    std::function<void()> AoFechar;

protected:
    void keyPressEvent(QKeyEvent *evento) override
    {
        const int tecla = evento->key();
        if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter)
            Escolher();
        else if (tecla == Qt::Key_Escape || tecla == Qt::Key_F4 ||
                 (evento->modifiers() & Qt::AltModifier && tecla == Qt::Key_Up))
            close();
        else
            QFrame::keyPressEvent(evento);
    }
    void mousePressEvent(QMouseEvent *evento) override
    {
        // The click on the arrow that closes the calendar must not open it again.
        const QWidget *campo = parentWidget();
        if (campo->rect().contains(campo->mapFromGlobal(evento->globalPosition().toPoint())))
            setAttribute(Qt::WA_NoMouseReplay);
        QFrame::mousePressEvent(evento);
    }
    void closeEvent(QCloseEvent *evento) override
    {
        QFrame::closeEvent(evento);
        if (AoFechar)
            QMetaObject::invokeMethod(parentWidget(), AoFechar, Qt::QueuedConnection);
        if (escolhido.isValid())
            QMetaObject::invokeMethod(
                parentWidget(), [escolher = AoEscolher, dia = escolhido] { escolher(dia); },
                Qt::QueuedConnection);
    }

private:
    void Escolher()
    {
        escolhido = calendario->selectedDate();
        close();
    }

    TMonthCalendar *calendario;
    QDate escolhido;
};

} // namespace

/** What is being typed: the parts, which may be no date yet, and the digits of the present one. */
struct TDateTimePicker::TRascunho {
    struct TPartes {
        std::array<int, 3> Numero;
        /** The nearest date: a day that the month does not have is its last one. */
        QDate Data() const
        {
            const QDate primeiro(Numero[Ano], Numero[Mes], 1);
            return {Numero[Ano], Numero[Mes], std::min(Numero[Dia], primeiro.daysInMonth())};
        }
    };
    explicit TRascunho(QDate d) : Partes{{d.day(), d.month(), d.year()}}, Antes(Partes) {}

    /** The parts now, and as they were before the present one was begun. */
    TPartes Partes, Antes;
    int Parte = Dia;
    QString Digitos;
    /** The last digit completed the part before: a separator typed now is that one's. */
    bool RecemPassado = false;
    /** The part was emptied or has digits: it is shown as typed. */
    bool Aberta = false;
};

TDateTimePicker::TDateTimePicker(QWidget *owner) : QDateEdit(owner)
{
    // Not of the machine: neither its language nor its clock, whose summer time lacks midnights.
    setLocale(QLocale(QLocale::Portuguese, QLocale::Brazil));
    setTimeSpec(Qt::UTC);
    setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    // The wheel does not even take the focus here.
    setFocusPolicy(Qt::StrongFocus);
    setCalendarPopup(true);
    setDateRange(QDate(1, 1, 1), QDate(Maior[Ano], 12, 31));
    lineEdit()->installEventFilter(this);
    lineEdit()->setAcceptDrops(false);
    SetDate(Hoje());
    Ligar(this, &QDateEdit::dateChanged, this, [this] { MudouPorFora(); });
}

TDateTimePicker::~TDateTimePicker() = default;

void TDateTimePicker::SetDate(TDateTime dia)
{
    setDate(dia.Data());
}

void TDateTimePicker::setDate(QDate dia)
{
    const bool digitando = rascunho != nullptr;
    rascunho.reset();
    Trocar(dia);
    if (digitando)
        SelecionarParte(currentSectionIndex());
}

bool TDateTimePicker::DroppedDown() const
{
    return calendario && calendario->isVisible();
}

void TDateTimePicker::SetDroppedDown(bool aberto)
{
    if (aberto == DroppedDown() || (aberto && isReadOnly()))
        return;
    if (!aberto) {
        calendario->close();
        return;
    }
    const QPointer<TDateTimePicker> vivo(this);
    Concluir();
    Disparar(OnDropDown, this);
    // The handler may have opened the calendar itself, or forbidden the field.
    if (!vivo || DroppedDown() || isReadOnly())
        return;
    auto *novo = new TCalendarioSuspenso(this, date());
    novo->AoEscolher = [this](QDate dia) { Escolhido(dia); };
    novo->AoFechar = [this] { Disparar(OnCloseUp, this); };
    calendario = novo;
    novo->Abrir();
}

void TDateTimePicker::Colar(const QString &texto)
{
    const QDate dia = DataDoTexto(texto);
    if (!dia.isValid()) {
        AvisarUsuario(QStringLiteral("O texto \"%1\" não é uma data e não foi colado.").arg(texto));
        return;
    }
    Escolhido(dia);
}

void TDateTimePicker::stepBy(int passos)
{
    Concluir();
    const int parte = std::clamp(currentSectionIndex(), 0, UltimaParte);
    const QDate antes = date();
    const bool mudou = Trocar(parte == Dia   ? antes.addDays(passos)
                              : parte == Mes ? antes.addMonths(passos)
                                             : antes.addYears(passos));
    SelecionarParte(parte);
    if (mudou)
        Anunciar(mdPasso);
}

/** What is being typed need not be a date. */
QValidator::State TDateTimePicker::validate(QString &texto, int &cursor) const
{
    return rascunho ? QValidator::Acceptable : QDateEdit::validate(texto, cursor);
}

QAbstractSpinBox::StepEnabled TDateTimePicker::stepEnabled() const
{
    return isReadOnly() ? StepEnabled(StepNone) : StepUpEnabled | StepDownEnabled;
}

/** Tab leaves the field; it does not walk through its parts. */
bool TDateTimePicker::focusNextPrevChild(bool seguinte)
{
    return QWidget::focusNextPrevChild(seguinte); // NOLINT(bugprone-parent-virtual-call)
}

bool TDateTimePicker::event(QEvent *evento)
{
    // The inner edit would take it past the field's own rules.
    if (evento->type() == QEvent::InputMethod) {
        inputMethodEvent(static_cast<QInputMethodEvent *>(evento));
        return true;
    }
    return QDateEdit::event(evento);
}

bool TDateTimePicker::eventFilter(QObject *alvo, QEvent *evento)
{
    const bool desce = evento->type() == QEvent::MouseButtonPress;
    const bool sobe = evento->type() == QEvent::MouseButtonRelease;
    if (alvo != lineEdit() || !(desce || sobe))
        return QDateEdit::eventFilter(alvo, evento);
    const auto *mouse = static_cast<const QMouseEvent *>(evento);
    // The middle button would paste past the field's own rules.
    if (mouse->button() == Qt::MiddleButton)
        return true;
    const QPointer<TDateTimePicker> vivo(this);
    if (desce) {
        Concluir();
    } else if (mouse->button() == Qt::LeftButton) {
        if (!lineEdit()->hasSelectedText())
            SelecionarParte(currentSectionIndex());
        if (lineEdit()->rect().contains(mouse->position().toPoint()))
            Disparar(OnClick, this);
    }
    return !vivo || QDateEdit::eventFilter(alvo, evento);
}

void TDateTimePicker::keyPressEvent(QKeyEvent *evento)
{
    if (TeclaDeComando(evento) || TeclaDeParte(*evento))
        return;
    if (EhTeclaDeTexto(*evento)) {
        const QPointer<TDateTimePicker> vivo(this);
        const QString texto = evento->text();
        for (const QChar c : texto)
            if (vivo && !isReadOnly())
                Digitar(c);
        return;
    }
    switch (evento->key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        evento->ignore();
        return;
    default:
        Concluir();
        QDateEdit::keyPressEvent(evento);
    }
}

/** The keys with a meaning of their own here. */
bool TDateTimePicker::TeclaDeComando(QKeyEvent *evento)
{
    const int tecla = evento->key();
    if (tecla == Qt::Key_F4 || (evento->modifiers() & Qt::AltModifier && tecla == Qt::Key_Down)) {
        SetDroppedDown(!DroppedDown());
    } else if (evento->matches(QKeySequence::Paste)) {
        if (!isReadOnly())
            Colar(QGuiApplication::clipboard()->text());
    } else if (evento->matches(QKeySequence::Copy) || evento->matches(QKeySequence::Cut)) {
        // There is always a date: cutting takes nothing away.
        QGuiApplication::clipboard()->setText(GetDate().TextoData());
    } else if (tecla == Qt::Key_Backspace || tecla == Qt::Key_Delete) {
        if (!isReadOnly())
            Apagar(tecla == Qt::Key_Backspace);
    } else if (!evento->matches(QKeySequence::Undo) && !evento->matches(QKeySequence::Redo)) {
        return false;
    }
    return true;
}

/** The keys that go to a part. */
bool TDateTimePicker::TeclaDeParte(const QKeyEvent &evento)
{
    if (evento.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier))
        return false;
    const int atual = rascunho ? rascunho->Parte : currentSectionIndex();
    int nova = atual;
    switch (evento.key()) {
    case Qt::Key_Left:
        nova = atual - 1;
        break;
    case Qt::Key_Right:
        nova = atual + 1;
        break;
    case Qt::Key_Home:
        nova = Dia;
        break;
    case Qt::Key_End:
        nova = Ano;
        break;
    default:
        return false;
    }
    Concluir();
    SelecionarParte(nova);
    return true;
}

void TDateTimePicker::inputMethodEvent(QInputMethodEvent *evento)
{
    const QPointer<TDateTimePicker> vivo(this);
    const QString texto = evento->commitString();
    for (const QChar c : texto)
        if (vivo && !isReadOnly())
            Digitar(c);
    evento->accept();
}

void TDateTimePicker::mousePressEvent(QMouseEvent *evento)
{
    if (evento->button() == Qt::LeftButton && evento->pos().x() > lineEdit()->geometry().right())
        SetDroppedDown(true);
    else
        QDateEdit::mousePressEvent(evento);
}

void TDateTimePicker::wheelEvent(QWheelEvent *evento)
{
    evento->ignore();
}

void TDateTimePicker::focusInEvent(QFocusEvent *evento)
{
    QDateEdit::focusInEvent(evento);
    const Qt::FocusReason motivo = evento->reason();
    if (motivo != Qt::MouseFocusReason && motivo != Qt::PopupFocusReason &&
        motivo != Qt::ActiveWindowFocusReason)
        SelecionarParte(Dia);
}

void TDateTimePicker::focusOutEvent(QFocusEvent *evento)
{
    Concluir();
    QDateEdit::focusOutEvent(evento);
}

void TDateTimePicker::contextMenuEvent(QContextMenuEvent *evento)
{
    const QString texto = QGuiApplication::clipboard()->text();
    TComandosDeEdicao c;
    c.Copiar = [this] { QGuiApplication::clipboard()->setText(GetDate().TextoData()); };
    c.Colar = [this] { Colar(QGuiApplication::clipboard()->text()); };
    c.SelecionarTudo = [this] { selectAll(); };
    c.Desfazer = c.Refazer = c.Recortar = c.Excluir = [] {};
    c.PodeColar = !texto.isEmpty();
    c.TemTexto = true;
    c.TemSelecao = true;
    c.SomenteLeitura = isReadOnly();
    NovoMenuDeEdicao(this, c)->popup(evento->globalPos());
}

/** As QDateEdit paints it, but whole where it stands a little to the left of its parent. */
void TDateTimePicker::paintEvent(QPaintEvent *)
{
    QStyleOptionSpinBox campo;
    initStyleOption(&campo);
    QStyleOptionComboBox opcao;
    opcao.initFrom(this);
    opcao.editable = true;
    opcao.frame = campo.frame;
    opcao.subControls = campo.subControls;
    opcao.activeSubControls = campo.activeSubControls;
    opcao.rect.setLeft(std::max(0, -x()));
    if (isReadOnly())
        opcao.state &= ~QStyle::State_Enabled;
    QPainter pintor(this);
    style()->drawComplexControl(QStyle::CC_ComboBox, &opcao, &pintor, this);
}

void TDateTimePicker::Digitar(QChar c)
{
    if (EhDigito(c))
        DigitarAlgarismo(c);
    else if (QStringView(u"/-.,").contains(c))
        Separador();
}

void TDateTimePicker::DigitarAlgarismo(QChar c)
{
    Comecar();
    const QString digitos = rascunho->Digitos + c;
    if (!CabeNaParte(rascunho->Parte, digitos))
        return;
    rascunho->Digitos = digitos;
    rascunho->RecemPassado = false;
    rascunho->Aberta = true;
    Aplicar();
}

void TDateTimePicker::Separador()
{
    Comecar();
    if (rascunho->RecemPassado)
        rascunho->RecemPassado = false;
    else if (rascunho->Parte < UltimaParte)
        Avancar(false);
    MostrarRascunho();
}

void TDateTimePicker::Apagar(bool anterior)
{
    Comecar();
    if (anterior && rascunho->RecemPassado) {
        --rascunho->Parte;
        rascunho->Antes = rascunho->Partes;
    }
    rascunho->RecemPassado = false;
    rascunho->Digitos.chop(anterior ? 1 : int(rascunho->Digitos.size()));
    rascunho->Aberta = true;
    Aplicar();
}

/** The typing starts at the part of the caret; with everything selected, at the day. */
void TDateTimePicker::Comecar()
{
    if (rascunho)
        return;
    const bool tudo = lineEdit()->selectedText().size() == lineEdit()->text().size();
    rascunho = std::make_unique<TRascunho>(date());
    rascunho->Parte = tudo ? int(Dia) : std::clamp(currentSectionIndex(), 0, UltimaParte);
}

void TDateTimePicker::Avancar(bool sozinho)
{
    ++rascunho->Parte;
    rascunho->Antes = rascunho->Partes;
    rascunho->Digitos.clear();
    rascunho->Aberta = false;
    rascunho->RecemPassado = sozinho;
}

/** Takes in what the present part says by now, and goes on where it is complete. */
void TDateTimePicker::Aplicar()
{
    const int parte = rascunho->Parte;
    const int numero = NumeroDaParte(parte, rascunho->Digitos);
    rascunho->Partes = rascunho->Antes;
    if (numero > 0)
        rascunho->Partes.Numero[std::size_t(parte)] = numero;
    const bool mudou = Trocar(rascunho->Partes.Data());
    if (!ParteCompleta(parte, rascunho->Digitos)) {
        MostrarRascunho();
    } else if (parte < UltimaParte) {
        Avancar(true);
        MostrarRascunho();
    } else {
        Concluir();
    }
    if (mudou)
        Anunciar(mdDigitada);
}

/** Ends the typing: the date as it is taken in is shown. */
void TDateTimePicker::Concluir()
{
    if (!rascunho)
        return;
    const int parte = rascunho->Parte;
    rascunho.reset();
    Trocar(date());
    SelecionarParte(parte);
}

void TDateTimePicker::MostrarRascunho()
{
    QString texto;
    for (int parte = Dia; parte <= UltimaParte; ++parte) {
        const int tamanho = Tamanho[std::size_t(parte)];
        const bool aberta = parte == rascunho->Parte && rascunho->Aberta;
        if (parte != Dia)
            texto += u'/';
        texto += aberta ? rascunho->Digitos.leftJustified(tamanho, Vazio)
                        : ComZeros(rascunho->Partes.Numero[std::size_t(parte)], tamanho);
    }
    // The field would read the text as a date at once.
    const QSignalBlocker silencio(lineEdit());
    lineEdit()->setText(texto);
    const auto parte = std::size_t(rascunho->Parte);
    if (rascunho->Aberta)
        lineEdit()->setCursorPosition(Inicio[parte] + int(rascunho->Digitos.size()));
    else
        lineEdit()->setSelection(Inicio[parte], Tamanho[parte]);
}

void TDateTimePicker::SelecionarParte(int parte)
{
    setSelectedSection(sectionAt(std::clamp(parte, 0, UltimaParte)));
}

/** Shows a date and answers whether it is another one than before. */
bool TDateTimePicker::Trocar(QDate nova)
{
    const QScopedValueRollback guarda(calado, true);
    const QDate antes = date();
    QDateEdit::setDate(std::clamp(nova, minimumDate(), maximumDate()));
    conhecida = date();
    return conhecida != antes;
}

void TDateTimePicker::Anunciar(TMudanca como)
{
    const QPointer<TDateTimePicker> vivo(this);
    Disparar(OnChange, this);
    if (vivo)
        Q_EMIT UserChanged(como);
}

/** A whole date at once. */
void TDateTimePicker::Escolhido(QDate dia)
{
    rascunho.reset();
    const bool mudou = Trocar(dia);
    SelecionarParte(Dia);
    if (mudou)
        Anunciar(mdEscolha);
}

/** Whoever else writes into the field (tools for the disabled do) is the user. Enter only tells of
 * the same date again. */
void TDateTimePicker::MudouPorFora()
{
    if (calado || date() == conhecida)
        return;
    conhecida = date();
    Anunciar(mdEscolha);
}

} // namespace ficha
