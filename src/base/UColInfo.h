#pragma once

namespace ficha
{

/** How a field's column stands in the list grid. */
class TColInfo
{
public:
    /** Width in pixels; 0 for fields bound without one. */
    int Largura = 0;
};

} // namespace ficha
