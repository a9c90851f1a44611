#pragma once

#include "demo/UBancoComercial.h"
#include "demo/UComercialF.h"
#include "forms/UFicha.h"
#include "platform/core/Servicos.h"
#include "platform/database/ConexD.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/Ocioso.h"
#include "platform/toolkit/TForm.h"
#include "platform/toolkit/TMaskEdit.h"
#include "support/BancoTemp.h"
#include "support/Girar.h"
#include "support/Layouts.h"
#include "support/NoDialogo.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace comercial::testes
{

/** The sample database, made once for all tests. */
inline const QString &Modelo()
{
    static const QTemporaryDir pasta(ficha::PastaDeBancos());
    static const QString arquivo = [] {
        const QString nome = pasta.filePath(QStringLiteral("modelo.fdb"));
        ficha::TSQLConnection conexao;
        AbrirBancoComercial(conexao, nome);
        ficha::ConexD().SQLConnection = nullptr;
        return nome;
    }();
    return arquivo;
}

/** The program's main window on a copy of the sample database; what the user would be told is kept
 * in avisos, which a test that expects something empties. */
class TNoComercial : public testing::Test
{
protected:
    TNoComercial() : pasta(ficha::PastaDeBancos())
    {
        const QString arquivo = pasta.filePath(QStringLiteral("comercial.fdb"));
        QFile::copy(Modelo(), arquivo);
        AbrirBancoComercial(conexao, arquivo);
        using namespace ficha;
        Servicos().MensagemAviso = [this](const QString &texto, int) { avisos << texto; };
        Servicos().MensagemInfo = [this](const QString &texto) { avisos << texto; };
        Servicos().MensagemErro = [this](const QString &texto) { avisos << texto; };
        Servicos().ReportarErro = [this](std::exception_ptr e) { avisos << TextoDoErro(e); };
        Servicos().PerguntaDeletar = [this] { return ++perguntas, responde; };
        RegistrarPastaDeLayouts(QStringLiteral(":/demo/layouts"));
        janela.reset(Criar<TComercialF>(nullptr));
        janela->resize(1060, 700);
        janela->Show();
    }
    ~TNoComercial() override
    {
        janela->FecharFilhos();
        ficha::testes::Girar();
        janela.reset();
        ficha::ConexD().SQLConnection = nullptr;
    }
    void TearDown() override
    {
        EXPECT_EQ(avisos, QStringList());
        for (const auto &usuario : usuarios)
            EXPECT_TRUE(usuario->Aberto()) << "no dialog was opened";
        usuarios.clear();
    }

    /** Opens a screen by its key. */
    void Abrir(Qt::Key tecla)
    {
        ASSERT_TRUE(QTest::qWaitForWindowActive(janela.get()));
        QTest::keyClick(janela.get(), tecla);
        Assentar();
        tela = janela->FilhoAtivo();
        ASSERT_TRUE(tela);
    }
    static void Assentar()
    {
        ficha::testes::Girar();
        ficha::ExecutarOcioso();
    }
    template <typename T>
    T *Achar(const char *nome = nullptr) const
    {
        T *achado = tela->findChild<T *>(QString::fromLatin1(nome));
        EXPECT_TRUE(achado) << (nome ? nome : T::staticMetaObject.className());
        return achado;
    }
    static void Tecla(int tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(tecla), com);
        Assentar();
    }
    static void Digitar(const QString &texto)
    {
        for (const QChar letra : texto)
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(),
                                Qt::Key(letra.toUpper().unicode()), letra, Qt::NoModifier);
        Assentar();
    }
    static void Clicar(QWidget *onde, QPoint ponto = {})
    {
        QTest::mouseClick(onde, Qt::LeftButton, {}, ponto);
        Assentar();
    }
    /** Clicks into an input and types over what it holds. */
    static void DigitarEm(QWidget *entrada, const QString &texto)
    {
        Clicar(entrada);
        Tecla(Qt::Key_Home);
        Tecla(Qt::Key_End, Qt::ShiftModifier);
        Digitar(texto);
    }
    /** Runs f in the modal window that the next key or click opens, once it has the keyboard. */
    void NoDialogo(std::function<void(QWidget *)> f)
    {
        using namespace ficha;
        usuarios.push_back(std::make_unique<ficha::testes::TNoDialogo<TForm>>(
            [this, f = std::move(f)](TForm &form) {
                ++dialogos;
                f(&form);
                // It stays visible until this handler ends.
                if (form.GetModalResult() == mrNone)
                    QTest::keyClick(&form, Qt::Key_Escape);
                EXPECT_NE(form.GetModalResult(), mrNone) << "Esc closes it";
                if (form.GetModalResult() == mrNone)
                    form.SetModalResult(mrCancel);
            }));
    }
    QString DoBanco(const QString &sql) { return ficha::ValorDoBanco(conexao, sql).AsString(); }

    QTemporaryDir pasta;
    ficha::TSQLConnection conexao;
    const ficha::TServicosGuarda guarda;
    const ficha::TFicha biblioteca;
    QStringList avisos;
    int perguntas = 0;
    bool responde = true;
    int dialogos = 0;
    /** Of every dialog expected so far: a handler may expect another one while it runs. */
    std::vector<std::unique_ptr<ficha::testes::TNoDialogo<ficha::TForm>>> usuarios;
    std::unique_ptr<TComercialF> janela;
    ficha::TForm *tela = nullptr;
};

} // namespace comercial::testes
