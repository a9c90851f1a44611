#pragma once

namespace ficha
{

/** What a dataset is doing; the numbers are those that screens and frames hand to each other. */
enum TDataSetState : int { dsInactive = 0, dsBrowse = 1, dsEdit = 2, dsInsert = 3 };

} // namespace ficha
