#pragma once

namespace ficha
{

/** What a test program does when it is started as the second process of one of its own tests. */
class TRegistroDeFilho
{
public:
    TRegistroDeFilho(const char *nome, void (*executar)());
    /** Runs the one of this name; false when there is none. */
    static bool Executar(const char *nome);
};

} // namespace ficha

/** Defines what the second process of this name does. One that comes to its end has failed. */
#define FICHA_FILHO(nome)                                                                          \
    static void Filho##nome();                                                                     \
    static const ficha::TRegistroDeFilho registroDeFilho##nome(#nome, Filho##nome);                \
    static void Filho##nome()
