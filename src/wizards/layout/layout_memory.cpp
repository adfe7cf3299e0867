#include "wizards/layout/layout_memory.h"

#include "app/services/program_memory.h"
#include "document/layout.h"
#include "document/records.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace trassix {

namespace {

constexpr const char* kTopic = "layouts";
constexpr const char* kPlans = "plans";
using Json = ProgramMemory::Section;

std::string keyOf(const std::filesystem::path& file) {
  const std::u8string text = std::filesystem::absolute(file).lexically_normal().generic_u8string();
  return {text.begin(), text.end()};
}

/// Of articles and places of all track, as a file keeps them, and of the table.
std::uint64_t fingerprintOf(const Layout& layout) {
  constexpr double kDecimals = 10000; // as files round, which coarser ones might round once more
  std::uint64_t hash = 0xcbf29ce484222325ULL;
  const auto mixByte = [&hash](std::uint64_t byte) { hash = (hash ^ byte) * 0x100000001b3ULL; };
  const auto mix = [&](double value) {
    auto number = static_cast<std::uint64_t>(std::llround(value * kDecimals));
    for (int i = 0; i < 8; ++i, number >>= 8U)
      mixByte(number & 0xFFU);
  };
  for (const PlacedPiece& piece : layout.pieces()) {
    for (const char c : piece.cat)
      mixByte(static_cast<unsigned char>(c));
    mix(piece.x);
    mix(piece.y);
    mix(piece.heading);
  }
  for (const Point& corner : layout.settings().baseboard) {
    mix(corner.x);
    mix(corner.y);
  }
  return hash;
}

Json toJson(const LayoutTask& task) {
  Json outline = Json::array();
  for (const Point& corner : task.outline)
    outline.push_back(Json::array({corner.x, corner.y}));
  Json json{{"system", static_cast<std::int32_t>(task.system)},
            {"outline", std::move(outline)},
            {"distance", task.distance},
            {"radius", task.radius},
            {"secondRadius", task.secondRadius},
            {"ownStockOnly", task.ownStockOnly},
            {"preference", static_cast<std::int32_t>(task.preference)}};
  if (task.station)
    json["station"] = {{"side", task.station->side},
                       {"sidings", task.station->sidings},
                       {"usable", task.station->usableLength}};
  if (task.bridge)
    json["bridge"] = {{"side", task.bridge->side},
                      {"form", static_cast<std::int32_t>(task.bridge->form)}};
  return json;
}

/// What is damaged stays as it is at first, which the dialog shows.
LayoutTask fromJson(const Json& json) {
  LayoutTask task;
  const auto take = [](const Json& from, const char* name, auto& to) {
    using Value = std::remove_cvref_t<decltype(to)>;
    if constexpr (std::is_enum_v<Value>) {
      to = static_cast<Value>(
          valueIn<std::int32_t>(from, name).value_or(static_cast<std::int32_t>(to)));
    } else {
      to = valueIn<Value>(from, name).value_or(to);
    }
  };
  take(json, "system", task.system);
  take(json, "distance", task.distance);
  take(json, "radius", task.radius);
  take(json, "secondRadius", task.secondRadius);
  take(json, "ownStockOnly", task.ownStockOnly);
  take(json, "preference", task.preference);
  if (static_cast<std::size_t>(task.preference) >= kLayoutPreferenceCount)
    task.preference = {};
  if (const auto outline = json.find("outline"); outline != json.end() && outline->is_array())
    for (const Json& corner : *outline)
      if (corner.is_array() && corner.size() == 2 && corner[0].is_number() && corner[1].is_number())
        task.outline.push_back({corner[0].get<double>(), corner[1].get<double>()});
  if (const auto station = json.find("station"); station != json.end() && station->is_object()) {
    StationWish wish;
    take(*station, "side", wish.side);
    take(*station, "sidings", wish.sidings);
    take(*station, "usable", wish.usableLength);
    wish.sidings = std::clamp(wish.sidings, 1, kMostSidings);
    task.station = wish;
  }
  if (const auto bridge = json.find("bridge"); bridge != json.end() && bridge->is_object()) {
    BridgeWish wish;
    take(*bridge, "side", wish.side);
    take(*bridge, "form", wish.form);
    task.bridge = wish;
  }
  return task;
}

/// The latest plan comes first.
Json withPlan(const Json& plans, const std::string& key, Json plan) {
  plan["file"] = key;
  Json list = Json::array({std::move(plan)});
  if (plans.is_array())
    for (const Json& other : plans)
      if (list.size() < LayoutMemory::kMost && other.is_object() &&
          valueIn<std::string>(other, "file") != key)
        list.push_back(other);
  return list;
}

} // namespace

void LayoutMemory::made(const LayoutTask& task, const Layout& layout) {
  made_ = Made{task, fingerprintOf(layout)};
  made_->task.stock.clear();
}

void LayoutMemory::forget() {
  made_.reset();
}

std::string LayoutMemory::saved(const ProgramMemory& memory, const std::filesystem::path& file) {
  if (!made_)
    return {};
  Json plan{{"task", toJson(made_->task)}, {"track", std::to_string(made_->track)}};
  return memory.remember(kTopic, [&](ProgramMemory::Section& section) {
    section[kPlans] = withPlan(section.contains(kPlans) ? section[kPlans] : Json::array(),
                               keyOf(file), std::move(plan));
  });
}

std::optional<RememberedLayout> LayoutMemory::recall(const ProgramMemory& memory,
                                                     const std::filesystem::path& file,
                                                     const Layout& layout) const {
  const std::uint64_t track = fingerprintOf(layout);
  if (made_)
    return RememberedLayout{made_->task, made_->track == track};
  const auto section = file.empty() ? std::nullopt : memory.recall(kTopic);
  if (!section || !section->contains(kPlans) || !section->at(kPlans).is_array())
    return std::nullopt;
  const std::string key = keyOf(file);
  for (const Json& plan : section->at(kPlans))
    if (plan.is_object() && valueIn<std::string>(plan, "file") == key && plan.contains("task") &&
        plan["task"].is_object())
      return RememberedLayout{fromJson(plan["task"]),
                              valueIn<std::string>(plan, "track") == std::to_string(track)};
  return std::nullopt;
}

} // namespace trassix
