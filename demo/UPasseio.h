#pragma once

#include "demo/UComercialF.h"
#include "platform/database/TSQLConnection.h"

#include <QDir>

namespace comercial
{

/**
 * The written tour: drives the program with real key presses as a person would, checks after each
 * step that the database holds what it should, and leaves numbered screenshots.
 *
 * Raises EErro naming the step whose outcome is not the expected one.
 */
class TPasseio
{
public:
    /** Neither is owned. Earlier screenshots in the folder are removed. */
    TPasseio(TComercialF &janela, ficha::TSQLConnection &conexao, const QDir &pasta);

    /** Prints what it does and what the database holds before and after. */
    void Executar();

    /** Photographs the next modal box into a file and closes it with Esc. */
    static void FotografarCaixa(const QString &arquivo);

private:
    void MostrarBanco(const char *titulo);
    void Grupos();
    void InsercaoRecusada();
    void Alteracao();
    void Busca();
    void Exclusao();
    void Produto();
    void GrupoPeloCombo();
    void PerguntaAoFechar();
    void Mostruario();
    void SegundoPrograma();

    QString Caminho(const QString &nome);
    /** Photographs the main window, or another one. */
    void Foto(const QString &nome, QWidget *oQue = nullptr);
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers estado = Qt::NoModifier);
    void Digitar(const QString &texto);
    /** Photographs the modal box that the next key opens and presses a key in it. */
    void ResponderCaixa(const QString &foto, Qt::Key tecla);
    /** Closes and remembers a box that no step waits for, so that the tour ends with an error
     * instead of waiting for a person. */
    void VigiarCaixas();
    /** Lets events and the idle-time updates run. */
    void Assentar();
    /** Raises when the step did not come to this, or a box that was to come did not. */
    void Exigir(bool feito, const char *passo);
    QString DoBanco(const QString &sql);

    TComercialF &janela;
    ficha::TSQLConnection &conexao;
    QDir pasta;
    int fotos = 0;
    int caixasPendentes = 0;
    bool caixaInesperada = false;
};

} // namespace comercial
