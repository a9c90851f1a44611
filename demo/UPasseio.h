#pragma once

#include "demo/UComercialF.h"

#include <QDir>

namespace comercial
{

/**
 * The written tour: drives the program with real key presses as a person would, checks after each
 * step that the database holds what it should, and leaves numbered screenshots.
 *
 * Steps that need a message box answered press its keys through a timer. Raises EErro naming the
 * step whose outcome is not the expected one.
 */
class TPasseio
{
public:
    /** Neither is owned. The folder is emptied of earlier screenshots. */
    TPasseio(TComercialF &janela, ficha::TSQLConnection &conexao, const QDir &pasta);

    /** Prints what it does and what the database holds before and after. */
    void Executar();

private:
    void MostrarBanco(const char *titulo);
    void Grupos();
    void InsercaoRecusada();
    void Alteracao();
    void Busca();
    void Exclusao();
    void Produtos();
    void PerguntaAoFechar();
    void SegundoPrograma();

    void AbrirTela(Qt::Key letra);
    void Foto(const QString &nome, QWidget *oQue = nullptr);
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers estado = Qt::NoModifier);
    void Digitar(const QString &texto);
    /** Presses a key in the next modal box, once it is there and photographed. */
    void ResponderCaixa(const QString &foto, Qt::Key tecla);
    void Assentar();
    void Exigir(bool feito, const char *oQue);
    QString DoBanco(const QString &sql);

    TComercialF &janela;
    ficha::TSQLConnection &conexao;
    QDir pasta;
    int fotos = 0;
    int caixasRespondidas = 0;
    int caixasEsperadas = 0;
};

} // namespace comercial
