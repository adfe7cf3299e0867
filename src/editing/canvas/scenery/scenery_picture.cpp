#include "editing/canvas/scenery/scenery_picture.h"

#include "editing/canvas/scenery/scenery_drawing.h"

#include <map>
#include <string>
#include <tuple>
#include <unordered_map>

namespace trassix {

const SceneryBuild* sceneryBuildOf(std::string_view key) {
  static const auto byKey = [] {
    std::unordered_map<std::string_view, const SceneryBuild*> index;
    for (const auto& forms : {buildingForms(), tracksideForms(), groundForms()})
      for (const SceneryBuild& form : forms)
        index.emplace(form.key, &form);
    return index;
  }();
  const auto found = byKey.find(key);
  return found == byKey.end() ? nullptr : found->second;
}

SceneryPicture deriveSceneryPicture(const SceneryDef& item, const Footprint& size, double unit) {
  SceneryPicture picture;
  SceneryDrawing drawing(picture, size, unit);
  if (const SceneryBuild* form = sceneryBuildOf(item.key))
    form->build(drawing, *form, size.height);
  else
    drawing.flat(kWhole, Material::FlatRoof);
  return picture;
}

std::shared_ptr<const SceneryPicture> sceneryPictureOf(const SceneryDef& item,
                                                       const Footprint& size, double unit) {
  constexpr std::size_t kMost = 2000; // of sizes: items are drawn out to any
  using Key = std::tuple<const SceneryDef*, double, double, double>;
  static std::map<Key, std::shared_ptr<const SceneryPicture>> known;
  if (known.size() > kMost)
    known.clear();
  const auto [entry, isNew] = known.try_emplace({&item, size.width, size.depth, unit});
  if (isNew)
    entry->second = std::make_shared<SceneryPicture>(deriveSceneryPicture(item, size, unit));
  return entry->second;
}

} // namespace trassix
