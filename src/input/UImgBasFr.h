#pragma once

#include "base/UDBControlBasFr.h"
#include "platform/support/ArquivoDeImagem.h"

#include <QImage>
#include <QRect>

class QLabel;

namespace ficha
{

class TPaintBox;
class TToolBar;
class TToolButton;

/**
 * The picture that belongs to a record. The value is the path of its file, and the frame draws
 * that file into its box: JPEG, bitmap, icon or Windows metafile, as the extension says. A tool
 * bar shows it in its natural size, finds a file and clears it.
 *
 * A path without a file, or of another extension, is an empty white box. The file is read once for
 * each of its versions and each size of the box; what another program writes into it is seen at
 * the next repaint. A damaged file raises EImagemInvalida once for each version of it, and again
 * when it comes back after another value: from SetValor, or, where the box could not be seen then,
 * to the host's error report when it is painted. The path stays the value all the same.
 */
class TImgBasFr : public TDBControlBasFr
{
    Q_OBJECT

public:
    explicit TImgBasFr(TChave chave);

    void Create(QWidget *owner) override;

    Variant GetValor() const override;
    /** Shows the file of a path, trimmed; Null is none. The value is taken also when the file
     * cannot be shown, which raises EImagemInvalida. */
    void SetValor(const Variant &valor) override;
    /** Switches the phrases off and runs LimparAction, which starts an alteration on a screen that
     * has none. The value is empty afterwards in every case. */
    void Zerar() override;
    /** The path, quoted. */
    QString SQLString() const override;

    /** Paints the whole box white, until it is painted next. */
    void ApagarCanvas();
    /** Paints the box white and the picture, its proportions kept, into its middle. A box that
     * nobody can see does so when it comes to be seen. Raises EImagemInvalida. */
    void DesenharCanvas();

    /** Path of the picture's file, the value of the frame. */
    QString ArquivoImagem;

    QLabel *TitLabel = nullptr;
    TPanel *Panel1 = nullptr;
    TPaintBox *PaintBox1 = nullptr;
    TToolBar *ToolBar2 = nullptr;
    TToolButton *ToolButton2 = nullptr;
    TToolButton *ToolButton1 = nullptr;
    TToolButton *ToolButton3 = nullptr;
    TActionList *ActionList1 = nullptr;
    TAction *LocalizarAction = nullptr;
    TAction *LimparAction = nullptr;
    TAction *ZoomAction = nullptr;

protected:
    void PegarComponentes() override;
    virtual void PaintBox1Paint(QObject *sender);
    /**
     * Lets the user pick a file. A path that the column cannot hold (letters outside ISO8859_1, or
     * too many) is refused with a warning; so the value stays where the screen refuses the
     * alteration. Whatever happens, the current directory is the program's own afterwards.
     */
    virtual void LocalizarActionExecute(QObject *sender);
    /** Enables ZoomAction where the file exists; the update event is that of LocalizarAction. */
    virtual void LocalizarActionUpdate(QObject *sender);
    virtual void LimparActionExecute(QObject *sender);
    virtual void ZoomActionExecute(QObject *sender);
    /** Reads the file for a box of that size, of pixels at the box's own ratio. */
    virtual QImage LerImagem(const QString &arquivo, QSize caixa, qreal razao);

private:
    /** What was read last. */
    struct TLeitura {
        QString arquivo;
        TVersaoDoArquivo versao;
        QSize caixa;
        qreal razao = 0;
        QImage imagem;
        bool danificado = false;
        bool recente = false;
    };

    bool Ler(const TVersaoDoArquivo &versao);
    bool CaminhoAceito(const QString &caminho) const;
    bool Recusado() const;

    TLeitura lida;
    bool zerando = false;
};

} // namespace ficha
