#pragma once

#include "demo/UComercialF.h"
#include "platform/database/TSQLConnection.h"

#include <QDir>

#include <exception>
#include <functional>

class QAbstractButton;

namespace ficha
{
class TDatasSelectF;
}

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
    void CodigoDeBarras();
    void FiltroDaLista();
    void PerguntaAoFechar();
    void Clientes();
    void ClientesDeUmGrupo();
    void ClienteNovo();
    void CepPreencheOEndereco();
    void CepDeOutroEndereco();
    void RuaOfereceOCep();
    void CepQueNaoEODaRua();
    void FotoDoCliente();
    /** The address that is shown, in one line. */
    QString Endereco() const;
    void Listas();
    void Vendas();
    void OrdemDasVendas();
    void ProdutoDasVendas();
    void PesquisaDeVendas();
    void DialogosDaVenda();
    void PlanoDeContas();
    void Mostruario();
    void FaixaDeDatas();
    void Predefinicoes(ficha::TDatasSelectF &dialogo);
    void FiltroOpcional();
    void SegundoPrograma();

    QString Caminho(const QString &nome);
    /** Photographs the main window, or another one. */
    void Foto(const QString &nome, QWidget *oQue = nullptr);
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers estado = Qt::NoModifier);
    void Digitar(const QString &texto);
    void Clicar(QWidget *onde);
    /** Clicks on the mark of a check box or radio button, which may be wider than its text. */
    void Marcar(QAbstractButton *botao);
    /** Clicks into an input and types over what it holds. */
    void DigitarEm(QWidget *entrada, const QString &texto);
    /** A component of the active screen. */
    template <typename T>
    T *Achar(const char *nome) const
    {
        T *achado = janela.FilhoAtivo()->findChild<T *>(QString::fromLatin1(nome));
        ExigirComponente(achado, nome);
        return achado;
    }
    /** A frame of the gallery, brought into view. */
    template <typename T>
    T *NoMostruario()
    {
        T *achado = janela.FilhoAtivo()->findChild<T *>();
        ExigirComponente(achado, T::staticMetaObject.className());
        Mostrar(achado);
        return achado;
    }
    void Mostrar(QWidget *frame);
    static void ExigirComponente(const QObject *achado, const char *nome);
    /** Runs f once a modal box is there; the box's own event loop calls it. */
    static void QuandoHouverCaixa(std::function<void(QWidget *)> f, int faltam = 5000);
    static void Dizer(const QString &texto);
    /** Runs f in the modal box that the next key or click opens. What f raises ends the step. */
    void NaCaixa(std::function<void(QWidget *)> f);
    /** Photographs that box and presses a key in it. */
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
    std::exception_ptr falhaNaCaixa;
};

} // namespace comercial
