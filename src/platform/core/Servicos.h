#pragma once

#include <QString>

#include <exception>
#include <functional>

class QWidget;

namespace ficha
{

/**
 * What a host supplies, each with a real default: the one place where a host, or a test, installs
 * its own.
 *
 * An empty function means the default of the library. Set them from the user-interface thread,
 * before the first screen is made, or in a test's set-up (TServicosGuarda puts them back).
 */
struct TServicos {
    /** A warning that the user acknowledges. The second argument is passed through. */
    std::function<void(const QString &texto, int opcao)> MensagemAviso;
    std::function<void(const QString &texto)> MensagemErro;
    std::function<void(const QString &texto)> MensagemInfo;
    /** The toolkit's plain message box, for mistakes of a programmer. */
    std::function<void(const QString &texto)> MensagemSimples;
    /** A yes-or-no question; true is yes. */
    std::function<bool(const QString &texto)> Pergunta;
    /** The standard question before a record is deleted; true is yes. */
    std::function<bool()> PerguntaDeletar;
    /** An error that nobody caught: a database failure above all. Must not raise. */
    std::function<void(std::exception_ptr erro)> ReportarErro;
    /** Opens an address in the desktop's own program. */
    std::function<void(const QString &endereco)> AbrirBrowser;
    /** Sets the printer up, over the screen that asks for it. */
    std::function<void(QWidget *dono)> ConfigurarImpressao;
};

/** The installed services of the process. */
TServicos &Servicos();

/** Remembers the installed services and puts them back when it goes. */
class TServicosGuarda
{
public:
    TServicosGuarda() : antes(Servicos()) {}
    ~TServicosGuarda() { Servicos() = antes; }
    TServicosGuarda(const TServicosGuarda &) = delete;
    TServicosGuarda &operator=(const TServicosGuarda &) = delete;

private:
    TServicos antes;
};

/**
 * Hands an error to the host's report. Without a host's own: a log line and, once the support
 * floor is linked in and a QApplication exists, an error box. Never raises.
 */
void ReportarErro(std::exception_ptr erro) noexcept;
/** The text of any error, for a user: an EErro's own message, else what(). */
QString TextoDoErro(std::exception_ptr erro);
/** The support floor installs how an error is shown when the host has no report of its own. */
void SetReportarErroPadrao(void (*reportar)(const QString &texto));

/**
 * A warning without a host's own MensagemAviso: the box that the support floor installed, so that
 * the floors below it show the same one; a log line where that floor is not linked in.
 */
void MensagemAvisoPadrao(const QString &texto);
/** The support floor installs its box. */
void SetMensagemAvisoPadrao(void (*mostrar)(const QString &texto));

} // namespace ficha
