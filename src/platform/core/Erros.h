#pragma once

#include <QString>

#include <exception>
#include <string>

namespace ficha
{

/** Root of every error the platform raises. The text is Portuguese and may be shown to a user. */
class EErro : public std::exception
{
public:
    explicit EErro(QString mensagem) : texto(std::move(mensagem)), utf8(texto.toStdString()) {}

    const QString &Mensagem() const { return texto; }
    const char *what() const noexcept override { return utf8.c_str(); }

private:
    QString texto;
    std::string utf8;
};

/** A Variant cannot be converted to the type that was asked for. */
class EVariantError : public EErro
{
public:
    using EErro::EErro;
};

/** A layout names what does not exist, or a class lacks a component its layout should bring. */
class ELayoutError : public EErro
{
public:
    using EErro::EErro;
};

} // namespace ficha
