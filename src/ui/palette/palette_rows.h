// What the lists of the palette tell of each entry.
#pragma once

#include "catalog/helix_kits.h"
#include "catalog/scenery_catalog.h"
#include "panels/palette_model.h"
#include "ui/palette/catalog_list.h"

#include <cstdint>

namespace trassix {

wxString headingOf(const PaletteGroup& group, std::int32_t units);
CatalogRow headingRow(const wxString& title);

/// `scale` in px per mm of a drawing in full width.
CatalogRow rowOf(const PieceDef& piece, double scale, std::int32_t units);
/// `widest` mm fill the width.
CatalogRow rowOf(const SceneryDef& item, TrackSystem system, double widest, std::int32_t units);
CatalogRow rowOf(const HelixKit& kit, double widest, std::int32_t units);

} // namespace trassix
