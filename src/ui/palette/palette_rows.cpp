#include "ui/palette/palette_rows.h"

#include "editing/helix/helix_figures.h"
#include "editing/track/short_name.h"
#include "measures/measure_format.h"
#include "ui/palette/palette_drawings.h"
#include "ui/widgets/utf8.h"

#include <wx/translation.h>

#include <cmath>

namespace trassix {

namespace {

wxString sizeText(const Footprint& size, std::int32_t units) {
  return wxString::Format(wxS("%s \u00d7 %s"),
                          fromUtf8(formatLength(size.width, units)).BeforeFirst(' '),
                          fromUtf8(formatLength(size.depth, units)));
}

} // namespace

wxString headingOf(const PaletteGroup& group, std::int32_t units) {
  const wxString name = wxGetTranslation(fromUtf8(groupName(group.group)));
  if (group.group != PieceGroup::Curves)
    return name;
  return wxString::Format(_("%s, radius %s"), name,
                          fromUtf8(formatBriefLength(group.radius, units)));
}

CatalogRow headingRow(const wxString& title) {
  CatalogRow row;
  row.heading = true;
  row.title = title;
  return row;
}

CatalogRow rowOf(const PieceDef& piece, double scale, std::int32_t units) {
  const ShortName name = shortNameOf(piece, units);
  CatalogRow row;
  row.bold = true;
  row.title = fromUtf8(name.text);
  row.detail = fromUtf8(piece.article + (name.rest.empty() ? "" : "  " + name.rest));
  row.tip = fromUtf8(piece.name);
  row.picture = [&piece, scale](Surface& surface, const PictureRoom& room) {
    drawPiece(surface, room, piece, scale * room.size.width / CatalogList::kPictureWidth);
  };
  row.pictureHeight = drawnHeight(piece, scale);
  return row;
}

CatalogRow rowOf(const SceneryDef& item, TrackSystem system, double widest, std::int32_t units) {
  const Footprint size = item.footprint(system);
  CatalogRow row;
  row.title = fromUtf8(item.name);
  if (!row.title.empty())
    row.title[0] = wxToupper(row.title[0]);
  row.detail = sizeText(size, units);
  row.tip = row.title + "\n" + row.detail;
  row.picture = [&item, size, widest](Surface& surface, const PictureRoom& room) {
    drawScenery(surface, room, item, size, widest);
  };
  row.pictureHeight = size.depth / widest * CatalogList::kPictureWidth;
  return row;
}

CatalogRow rowOf(const HelixKit& kit, double widest, std::int32_t units) {
  CatalogRow row;
  row.bold = true;
  row.title = wxString::Format(_("Helix %s"), fromUtf8(kit.radii));
  const HelixPlan plan = usualHelix(kit).plan;
  const HelixFigures figures = figuresOf(plan);
  row.detail =
      wxString::Format(_("%s wide"), fromUtf8(formatBriefLength(std::round(figures.board), units)));
  row.tip = wxString::Format(_("%s, %s for each turn. %s\nDouble-click to choose turns and pitch."),
                             fromUtf8(kit.name), fromUtf8(formatBriefLength(plan.pitch, units)),
                             fromUtf8(verdictText(figures)));
  row.picture = [plan, widest](Surface& surface, const PictureRoom& room) {
    drawHelix(surface, room, plan, widest);
  };
  row.pictureHeight = figures.board / widest * CatalogList::kPictureWidth;
  return row;
}

} // namespace trassix
