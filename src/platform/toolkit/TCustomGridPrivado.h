#pragma once

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/TCustomGrid.h"

#include <QBasicTimer>
#include <QPointer>

namespace ficha
{

/** What a grid keeps and does behind its face; only the grid's own sources see it. */
struct TCustomGrid::TPrivado {
    /** What the left button is doing since it went down. */
    enum class TArraste { Nada, Celulas, Titulo, Coluna };

    explicit TPrivado(TCustomGrid *grade);

    // Geometry, in pixels of the viewport; nothing here walks over rows.
    int Linha() const { return gridLines ? 1 : 0; }
    int Passo() const { return alturaLinha + Linha(); }
    int AlturaFixa() const { return fixedRows * Passo(); }
    int LarguraFixa() const;
    /** prefixo[c] is the summed width of the columns before c, hidden ones being 0. */
    const std::vector<int> &Prefixos() const;
    int XDaColuna(int col) const;
    int YDaLinha(int row) const;
    QRect RetCelula(int col, int row) const;
    int ColunaEm(int x) const;
    int LinhaEm(int y) const;
    int BordaEm(QPoint ponto) const;
    int LinhasInteiras(int altura) const;
    int Capacidade() const;
    int MaxTopo(int capacidade) const;
    int MaxEsquerda(int largura) const;
    bool LinhaVisivel(int row) const;

    bool CelulaExiste(int col, int row) const;
    bool CelulaLivre(int col, int row) const;
    TGridCoord Limitar(TGridCoord c) const;
    int ColunaVizinha(int col, int sentido) const;
    int ColunasAntesDe(int col) const;
    int PrimeiraColuna() const;
    int UltimaColuna() const;

    // Sizes.
    void CorrigirFixos();
    void TamanhoMudou();
    void AgendarBarras();
    void AjustarBarras();
    QSize TamanhoUtil() const;

    // Current cell, range, scrolling. Those that answer bool are false once the grid is destroyed
    // or the move was refused.
    TGridRect Selecao() const;
    bool Perguntar(TGridCoord alvo);
    bool Mover(TGridCoord alvo, bool sempre);
    void Assumir(TGridCoord novo, TGridCoord outraPonta);
    void Estender(TGridCoord alvo);
    void MostrarCelula(TGridCoord c);
    bool MudarTopo(int topo, int esquerda);
    void RolarImagem(int deLinhas);
    void AvisarFocoAcessivel();

    // What the user does.
    bool Tecla(int tecla, Qt::KeyboardModifiers estado);
    bool DestinoDaTecla(int tecla, bool ctrl, TGridCoord &destino) const;
    bool RolarColunas(int sentido);
    bool Pressionar(QMouseEvent *e);
    bool SelecionarComMouse(TGridCoord onde, bool estender, bool sempre);
    void Arrastar(QPoint ponto);
    void ArrastarColuna(int x);
    void ArrastarCelulas(QPoint ponto);
    void RolarArrastando();
    void MostrarCursor(QPoint ponto);

    // Painting.
    void SujarTudo();
    void SujarLinhas(int de, int ate);
    void CelulaMudou(int row);
    void Pintar(QPainter &p, const QRegion &regiao);
    void PintarLinha(QPainter &p, const QRegion &regiao, int row);
    void PintarCelula(QPainter &p, const QRect &ret, int col, int row, unsigned estado);
    void PintarPadrao(QPainter &p, const QRect &ret, int col, int row, unsigned estado);
    unsigned Estado(int col, int row) const;

    /** Calls a handler Protegido; answers whether the grid outlived it. */
    template <typename THandler, typename... Args>
    bool Avisar(const THandler &handler, Args &&...args)
    {
        if (!handler)
            return true;
        const QPointer<TCustomGrid> vivo(q);
        const THandler copia = handler; // the grid may destroy its own handler
        TCustomGrid *const grade = q;
        Protegido([&] { copia(grade, std::forward<Args>(args)...); });
        return !vivo.isNull();
    }

    TCustomGrid *q;
    int colCount = 5, rowCount = 5;
    int fixedCols = 0, fixedRows = 1;
    int fixedColsPedidas = 0, fixedRowsPedidas = 1;
    int larguraPadrao = 64, alturaLinha = 24;
    std::vector<int> larguras;
    mutable std::vector<int> prefixos;
    mutable bool prefixosVelhos = true;

    TGridCoord atual{0, 1}, ponta{0, 1}; /**< the range lies between them */
    TGridCoord perguntada;               /**< OnSelectCell is being asked about it by the program */
    int topo = 1, esquerda = 0;

    bool rangeSelect = false, rowSelect = false, colSizing = false;
    bool gridLines = true, defaultDrawing = true;
    TColor cor, corFixa;

    TArraste arraste = TArraste::Nada;
    TGridCoord pressionada;
    int colunaArrastada = -1, xInicial = 0, larguraInicial = 0;
    QPoint ultimoPonto;
    QBasicTimer relogio;

    bool barrasAgendadas = false, sincronizando = false;
    bool mostrado = false, mostrarAtual = false;
    bool tudoSujo = false, rolado = false; /**< since the last painting */
    int sujas = 0, ultimaSuja = -1;
    bool desenhoFalhou = false;
};

/** Makes grids known to assistive tools; once per process is enough, more does no harm. */
void InstalarGradeAcessivel();

} // namespace ficha
