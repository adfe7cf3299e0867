#include "document/limits.h"
#include "document/plan_content.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/selection.h"
#include "editing/tunnels/tunnel_facts.h"
#include "panels/sheets/sheet_builder.h"
#include "texts/texts.h"

#include <cmath>

namespace trassix {

namespace {

constexpr double kSmallest = 1; ///< mm
constexpr double kLargest = 100000;

/// Portals of a tunnel stay.
auto moving(const SceneryItem& item, double SceneryItem::*field) {
  return [set = setting(item, field)](Layout& layout, double value, const Confirm&) {
    std::optional<Notice> refusal = lockGuard(layout, "move");
    return refusal ? ChangeResult(std::move(*refusal)) : set(layout, value);
  };
}

/// A row for how far the item reaches to one side, which is its `unscaled` size times a scale.
void addSize(SheetBuilder& build, std::string_view key, std::string name, const SceneryItem& item,
             double SceneryItem::*scale, double unscaled) {
  build.length(key, std::move(name), std::abs(unscaled * item.*scale),
               std::max(kSmallest, unscaled * kSmallestScale),
               std::min(kLargest, unscaled * kLargestScale),
               replacing(item, [scale, unscaled](SceneryItem& wanted, double size) {
                 wanted.*scale = std::clamp(size / unscaled, kSmallestScale, kLargestScale);
               }));
}

} // namespace

void describe(SheetBuilder& build, const SceneryItem& item) {
  const SceneryDef* definition = findScenery(item.item);
  build.sheet.title = definition != nullptr ? std::string(definition->name) : item.item;
  // The catalogue writes common nouns in small letters.
  if (char& first = build.sheet.title.front();
      definition != nullptr && first >= 'a' && first <= 'z')
    first = static_cast<char>(first - 'a' + 'A');
  if (definition != nullptr)
    build.fixed(tr("Category"), std::string(categoryName(definition->category)));
  build.position({item.x, item.y}, moving(item, &SceneryItem::x), moving(item, &SceneryItem::y));
  build.heading(item.heading, moving(item, &SceneryItem::heading));
  SceneryItem unscaled = item;
  unscaled.scalex = unscaled.scaley = 1;
  const Footprint size = sceneryFootprint(build.layout, unscaled);
  addSize(build, "width", tr("Width"), item, &SceneryItem::scalex, size.width);
  addSize(build, "depth", tr("Depth"), item, &SceneryItem::scaley, size.depth);
  build.level(item.level);
  if (const Tunnel* tunnel = tunnelOfPortal(build.layout, item.id))
    describeTunnel(build, *tunnel);
}

} // namespace trassix
