#include "platform/toolkit/Teclas.h"

#include "platform/toolkit/Evento.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QPointer>

#include <array>
#include <deque>
#include <memory>
#include <utility>

namespace ficha
{

namespace
{

constexpr std::array<std::pair<Qt::Key, int>, 17> Pares{{
    {Qt::Key_Backspace, VK_BACK},
    {Qt::Key_Tab, VK_TAB},
    {Qt::Key_Return, VK_RETURN},
    {Qt::Key_Escape, VK_ESCAPE},
    {Qt::Key_Space, VK_SPACE},
    {Qt::Key_PageUp, VK_PRIOR},
    {Qt::Key_PageDown, VK_NEXT},
    {Qt::Key_End, VK_END},
    {Qt::Key_Home, VK_HOME},
    {Qt::Key_Left, VK_LEFT},
    {Qt::Key_Up, VK_UP},
    {Qt::Key_Right, VK_RIGHT},
    {Qt::Key_Down, VK_DOWN},
    {Qt::Key_Insert, VK_INSERT},
    {Qt::Key_Delete, VK_DELETE},
    // Keys that share a code: the first of each pair above is the one sent back.
    {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Enter, VK_RETURN},
}};

constexpr int PrimeiraF = 112;
constexpr int UltimaF = 135;

bool EhLetraOuDigito(int codigo)
{
    return (codigo >= '0' && codigo <= '9') || (codigo >= 'A' && codigo <= 'Z');
}

/** The character that a key types, 0 for a key that types none. Delete is no character, although
 * some platforms give it one; Ctrl with a letter is a command and its control character on every
 * platform, never the letter. */
QChar CaractereDaTecla(const QKeyEvent &evento)
{
    const bool letra = evento.key() >= Qt::Key_A && evento.key() <= Qt::Key_Z;
    if (letra && (evento.modifiers() & Qt::ControlModifier) &&
        !(evento.modifiers() & Qt::AltModifier))
        return QChar(char16_t(evento.key() - Qt::Key_A + 1));
    switch (evento.key()) {
    case Qt::Key_Delete:
        return {};
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return u'\r';
    case Qt::Key_Backspace:
        return u'\b';
    case Qt::Key_Escape:
        return u'\x1b';
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return u'\t';
    default:
        return evento.text().isEmpty() ? QChar() : evento.text().at(0);
    }
}

QString TextoEnviado(int tecla)
{
    switch (tecla) {
    case VK_RETURN:
        return QStringLiteral("\r");
    case VK_BACK:
        return QStringLiteral("\b");
    case VK_TAB:
        return QStringLiteral("\t");
    case VK_ESCAPE:
        return QStringLiteral("\x1b");
    case VK_SPACE:
        return QStringLiteral(" ");
    default:
        return EhLetraOuDigito(tecla) ? QString(QChar(char16_t(tecla))).toLower() : QString();
    }
}

/** QKeyEvent has no setters for what a handler may replace; its members are open to descendants. */
class TEventoAberto : public QKeyEvent
{
public:
    static void Trocar(QKeyEvent &evento, QString texto)
    {
        const QChar c = texto.at(0).toUpper();
        evento.*(&TEventoAberto::m_key) = c.unicode() >= 0x20 ? int(c.unicode()) : 0;
        evento.*(&TEventoAberto::m_text) = std::move(texto);
    }
};

/** The handlers of one control; its child, so that they go with it. */
class TFiltroDeTeclas : public QObject
{
public:
    explicit TFiltroDeTeclas(QWidget *dono) : QObject(dono), listas(std::make_shared<TListas>())
    {
        setObjectName(QStringLiteral("ficha_teclas"));
        dono->installEventFilter(this);
    }

    static TFiltroDeTeclas *De(QWidget *controle)
    {
        for (QObject *filho : controle->children()) {
            if (auto *filtro = dynamic_cast<TFiltroDeTeclas *>(filho))
                return filtro;
        }
        return new TFiltroDeTeclas(controle);
    }

    void Adicionar(std::function<void(int &, Qt::KeyboardModifiers)> handler)
    {
        listas->Descer.push_back(std::move(handler));
    }
    void Adicionar(std::function<void(QChar &)> handler)
    {
        listas->Teclar.push_back(std::move(handler));
    }

    bool eventFilter(QObject *, QEvent *evento) override
    {
        if (evento->type() == QEvent::KeyPress)
            return Tecla(*static_cast<QKeyEvent *>(evento));
        if (evento->type() == QEvent::InputMethod)
            return Entrada(*static_cast<QInputMethodEvent *>(evento));
        return false;
    }

private:
    struct TListas {
        std::deque<std::function<void(int &, Qt::KeyboardModifiers)>> Descer;
        std::deque<std::function<void(QChar &)>> Teclar;
    };

    /** Whether the key was swallowed. A handler may destroy the control: nothing of it, this
     * filter included, is touched then. */
    bool Tecla(QKeyEvent &evento)
    {
        const std::shared_ptr<TListas> meus = listas;
        const QPointer<QObject> vivo(this);
        const int original = TeclaVirtual(evento);
        int tecla = original;
        for (std::size_t i = 0; i < meus->Descer.size(); ++i) {
            Protegido([&] { meus->Descer[i](tecla, evento.modifiers()); });
            if (!vivo || (tecla == 0 && original != 0)) {
                evento.accept();
                return true;
            }
        }
        return !meus->Teclar.empty() && Caractere(evento, *meus, vivo);
    }

    static bool Caractere(QKeyEvent &evento, const TListas &meus, const QPointer<QObject> &vivo)
    {
        const QChar antes = CaractereDaTecla(evento);
        if (antes.isNull())
            return false;
        QString resultado;
        const QString texto = evento.text().size() > 1 ? evento.text() : QString(antes);
        if (!Passar(texto, meus, vivo, resultado) || resultado.isEmpty()) {
            evento.accept();
            return true;
        }
        if (resultado != texto)
            TEventoAberto::Trocar(evento, resultado);
        return false;
    }

    bool Entrada(QInputMethodEvent &evento)
    {
        const std::shared_ptr<TListas> meus = listas;
        if (meus->Teclar.empty() || evento.commitString().isEmpty())
            return false;
        QString resultado;
        if (!Passar(evento.commitString(), *meus, QPointer<QObject>(this), resultado)) {
            evento.accept();
            return true;
        }
        if (resultado != evento.commitString())
            evento.setCommitString(resultado, evento.replacementStart(),
                                   evento.replacementLength());
        return false;
    }

    /** Runs a text through the handlers, character by character; false when the control died. */
    static bool Passar(const QString &texto, const TListas &meus, const QPointer<QObject> &vivo,
                       QString &resultado)
    {
        for (QChar c : texto) {
            for (std::size_t i = 0; i < meus.Teclar.size() && !c.isNull(); ++i) {
                Protegido([&] { meus.Teclar[i](c); });
                if (!vivo)
                    return false;
            }
            if (!c.isNull())
                resultado += c;
        }
        return true;
    }

    std::shared_ptr<TListas> listas;
};

} // namespace

int TeclaVirtual(const QKeyEvent &evento)
{
    const int tecla = evento.key();
    if (EhLetraOuDigito(tecla))
        return tecla;
    if (tecla >= Qt::Key_F1 && tecla <= Qt::Key_F24)
        return tecla - Qt::Key_F1 + PrimeiraF;
    for (const auto &[qt, virtual_] : Pares) {
        if (qt == tecla)
            return virtual_;
    }
    return 0;
}

Qt::Key DeTeclaVirtual(int tecla)
{
    if (EhLetraOuDigito(tecla))
        return Qt::Key(tecla);
    if (tecla >= PrimeiraF && tecla <= UltimaF)
        return Qt::Key(Qt::Key_F1 + tecla - PrimeiraF);
    for (const auto &[qt, virtual_] : Pares) {
        if (virtual_ == tecla)
            return qt;
    }
    return Qt::Key_unknown;
}

void AoTeclaDescer(QWidget *controle,
                   std::function<void(int &tecla, Qt::KeyboardModifiers estado)> handler)
{
    TFiltroDeTeclas::De(controle)->Adicionar(std::move(handler));
}

void AoTeclar(QWidget *controle, std::function<void(QChar &caractere)> handler)
{
    TFiltroDeTeclas::De(controle)->Adicionar(std::move(handler));
}

void EnviarTecla(QWidget *alvo, int teclaVirtual)
{
    const Qt::Key tecla = DeTeclaVirtual(teclaVirtual);
    if (!alvo || tecla == Qt::Key_unknown)
        return;
    const QPointer<QWidget> vivo(alvo);
    const QString texto = TextoEnviado(teclaVirtual);
    QKeyEvent desce(QEvent::KeyPress, tecla, Qt::NoModifier, texto);
    QCoreApplication::sendEvent(alvo, &desce);
    if (!vivo)
        return;
    QKeyEvent sobe(QEvent::KeyRelease, tecla, Qt::NoModifier, texto);
    QCoreApplication::sendEvent(alvo, &sobe);
}

} // namespace ficha
