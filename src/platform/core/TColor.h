#pragma once

#include <QColor>

#include <cstdint>

namespace ficha
{

/** A colour as 0x00BBGGRR, the encoding in which this system writes every colour. */
struct TColor {
    std::uint32_t valor = 0;

    constexpr TColor() = default;
    constexpr explicit TColor(std::uint32_t bbggrr) : valor(bbggrr) {}
    static constexpr TColor DeRGB(int r, int g, int b)
    {
        return TColor(std::uint32_t(r) | std::uint32_t(g) << 8 | std::uint32_t(b) << 16);
    }
    static TColor DeQColor(const QColor &cor) { return DeRGB(cor.red(), cor.green(), cor.blue()); }

    constexpr int Vermelho() const { return int(valor & 0xFF); }
    constexpr int Verde() const { return int(valor >> 8 & 0xFF); }
    constexpr int Azul() const { return int(valor >> 16 & 0xFF); }
    /** The one conversion to the toolkit's colour. */
    QColor ParaQColor() const { return {Vermelho(), Verde(), Azul()}; }

    friend constexpr bool operator==(TColor a, TColor b) { return a.valor == b.valor; }
};

} // namespace ficha
