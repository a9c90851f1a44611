#include "platform/support/Traducao.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

#include <string_view>
#include <unordered_map>

namespace ficha
{

namespace
{

using TTextos = std::unordered_map<std::string_view, const char16_t *>;

const TTextos &Edicao()
{
    static const TTextos textos = {
        {"&Undo", u"&Desfazer"},
        {"&Redo", u"&Refazer"},
        {"Cu&t", u"Recor&tar"},
        {"&Copy", u"&Copiar"},
        {"Copy &Link Location", u"Copiar o &endereço do vínculo"},
        {"&Paste", u"Co&lar"},
        {"Delete", u"Excluir"},
        {"Select All", u"Selecionar tudo"},
        {"&Select All", u"&Selecionar tudo"},
        {"&Step up", u"&Aumentar"},
        {"Step &down", u"&Diminuir"},
        {"Clear", u"Limpar"},
    };
    return textos;
}

const TTextos &Botoes()
{
    static const TTextos textos = {
        {"OK", u"OK"},
        {"Cancel", u"Cancelar"},
        {"&Yes", u"&Sim"},
        {"&No", u"&Não"},
        {"Yes to &All", u"Sim para &todos"},
        {"N&o to All", u"Nã&o para todos"},
        {"Save", u"Gravar"},
        {"Save All", u"Gravar tudo"},
        {"Open", u"Abrir"},
        {"Close", u"Fechar"},
        {"Abort", u"Abortar"},
        {"Retry", u"Repetir"},
        {"Ignore", u"Ignorar"},
        {"Discard", u"Descartar"},
        {"Don't Save", u"Não gravar"},
        {"Help", u"Ajuda"},
        {"Apply", u"Aplicar"},
        {"Reset", u"Redefinir"},
        {"Restore Defaults", u"Restaurar padrões"},
        {"Show Details...", u"Detalhes"},
        {"Hide Details...", u"Ocultar detalhes"},
    };
    return textos;
}

const TTextos &Arquivos()
{
    static const TTextos textos = {
        {"Look in:", u"Examinar:"},
        {"File &name:", u"&Nome do arquivo:"},
        {"Files of type:", u"Arquivos do tipo:"},
        {"Directory:", u"Pasta:"},
        {"&Open", u"&Abrir"},
        {"&Save", u"&Gravar"},
        {"&Choose", u"&Escolher"},
        {"Save As", u"Gravar como"},
        {"Find Directory", u"Procurar pasta"},
        {"All Files (*)", u"Todos os arquivos (*)"},
        {"Back", u"Voltar"},
        {"Go back", u"Voltar"},
        {"Forward", u"Avançar"},
        {"Go forward", u"Avançar"},
        {"Parent Directory", u"Pasta acima"},
        {"Go to the parent directory", u"Ir para a pasta acima"},
        {"Create New Folder", u"Criar nova pasta"},
        {"Create a New Folder", u"Criar uma nova pasta"},
        {"List View", u"Lista"},
        {"Change to list view mode", u"Mostrar como lista"},
        {"Detail View", u"Detalhes"},
        {"Change to detail view mode", u"Mostrar com detalhes"},
        {"Sidebar", u"Barra lateral"},
        {"List of places and bookmarks", u"Lugares e favoritos"},
        {"Files", u"Arquivos"},
        {"Recent Places", u"Lugares recentes"},
        {"Remove", u"Remover"},
        {"&Rename", u"&Renomear"},
        {"&Delete", u"&Excluir"},
        {"&New Folder", u"&Nova pasta"},
        {"New Folder", u"Nova pasta"},
        {"Show &hidden files", u"Mostrar arquivos &ocultos"},
        {"My Computer", u"Meu computador"},
        {"Computer", u"Computador"},
        {"Name", u"Nome"},
        {"Size", u"Tamanho"},
        {"Kind", u"Tipo"},
        {"Type", u"Tipo"},
        {"Date Modified", u"Data de modificação"},
        {"Drive", u"Unidade"},
        {"File", u"Arquivo"},
        {"%1 File", u"Arquivo %1"},
        {"File Folder", u"Pasta de arquivos"},
        {"Folder", u"Pasta"},
        {"%1 bytes", u"%1 bytes"},
        {"%1 already exists.\nDo you want to replace it?", u"%1 já existe.\nDeseja substituí-lo?"},
        {"%1\nFile not found.\nPlease verify the correct file name was given.",
         u"%1\nO arquivo não foi encontrado.\nConfira se o nome está correto."},
        {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
         u"%1\nA pasta não foi encontrada.\nConfira se o nome está correto."},
    };
    return textos;
}

const TTextos &Janelas()
{
    static const TTextos textos = {
        {"&Restore", u"&Restaurar"},
        {"&Move", u"&Mover"},
        {"&Size", u"&Tamanho"},
        {"Mi&nimize", u"Mi&nimizar"},
        {"Ma&ximize", u"Ma&ximizar"},
        {"&Close", u"&Fechar"},
        {"Stay on &Top", u"Sempre &visível"},
        {"Minimize", u"Minimizar"},
        {"Maximize", u"Maximizar"},
        {"Restore", u"Restaurar"},
        {"Restore Down", u"Restaurar"},
        {"Shade", u"Recolher"},
        {"Unshade", u"Expandir"},
        {"Menu", u"Menu"},
        {"Scroll here", u"Rolar até aqui"},
        {"Top", u"Início"},
        {"Bottom", u"Fim"},
        {"Left edge", u"Extremo esquerdo"},
        {"Right edge", u"Extremo direito"},
        {"Page up", u"Página acima"},
        {"Page down", u"Página abaixo"},
        {"Page left", u"Página à esquerda"},
        {"Page right", u"Página à direita"},
        {"Scroll up", u"Rolar para cima"},
        {"Scroll down", u"Rolar para baixo"},
        {"Scroll left", u"Rolar para a esquerda"},
        {"Scroll right", u"Rolar para a direita"},
    };
    return textos;
}

class TTradutor : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }

    /** Only the texts of Qt's classes: those of the host are the host's. */
    QString translate(const char *contexto, const char *texto, const char *, int) const override
    {
        if (!contexto || contexto[0] != 'Q' || !texto)
            return {};
        for (const TTextos *textos : {&Edicao(), &Botoes(), &Arquivos(), &Janelas()}) {
            const auto achado = textos->find(texto);
            if (achado != textos->end())
                return QString::fromUtf16(achado->second);
        }
        return {};
    }
};

} // namespace

void InstalarTraducao()
{
    static QPointer<TTradutor> tradutor;
    if (tradutor || !QCoreApplication::instance())
        return;
    tradutor = new TTradutor(QCoreApplication::instance());
    QCoreApplication::installTranslator(tradutor);
}

} // namespace ficha
