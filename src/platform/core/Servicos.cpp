#include "platform/core/Servicos.h"

#include "platform/core/Erros.h"

#include <QDebug>

namespace ficha
{

namespace
{
void (*reportarPadrao)(const QString &) = nullptr;
void (*avisarPadrao)(const QString &) = nullptr;
} // namespace

TServicos &Servicos()
{
    static TServicos servicos;
    return servicos;
}

QString TextoDoErro(std::exception_ptr erro)
{
    try {
        std::rethrow_exception(std::move(erro));
    } catch (const EErro &e) {
        return e.Mensagem();
    } catch (const std::exception &e) {
        return QString::fromUtf8(e.what());
    } catch (...) {
        return QStringLiteral("Erro desconhecido");
    }
}

void ReportarErro(std::exception_ptr erro) noexcept
{
    try {
        if (const auto &doHost = Servicos().ReportarErro) {
            doHost(std::move(erro));
            return;
        }
        const QString texto = TextoDoErro(std::move(erro));
        qWarning().noquote() << "ficha:" << texto;
        if (reportarPadrao)
            reportarPadrao(texto);
    } catch (const std::exception &e) {
        qCritical() << "ficha: o relato de um erro falhou:" << e.what();
    } catch (...) {
        qCritical() << "ficha: o relato de um erro falhou";
    }
}

void SetReportarErroPadrao(void (*reportar)(const QString &))
{
    reportarPadrao = reportar;
}

void MensagemAvisoPadrao(const QString &texto)
{
    if (avisarPadrao)
        avisarPadrao(texto);
    else
        qWarning().noquote() << "ficha: Aviso:" << texto;
}

void SetMensagemAvisoPadrao(void (*mostrar)(const QString &))
{
    avisarPadrao = mostrar;
}

} // namespace ficha
