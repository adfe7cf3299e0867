#include "catalog/track_system.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace trassix {

namespace {

struct SystemTexts {
  std::string_view longName; ///< empty for a system without one
  std::string_view shortName;
};

/// Indexed by the value of TrackSystem.
constexpr std::array<SystemTexts, 9> kTexts{{
    {"Marklin C-Track", "Märklin C"},
    {"Marklin K-Track", "Märklin K"},
    {"Marklin Z-Track", "Märklin Z"},
    {"TRIX C-Track", "TRIX C"},
    {"", "Rokuhan Z"},
    {"", "Minitrix N"},
    {"", "Kato N"},
    {"Marklin Gauge 1", "Märklin Gauge 1"},
    {"Marklin M-Track", "Märklin M-Track"},
}};

/// Null for values outside the enumeration, which files and callers may hold.
const SystemTexts* textsOf(TrackSystem system) {
  const auto index = static_cast<std::size_t>(system);
  return index < kTexts.size() ? &kTexts[index] : nullptr;
}

std::string_view longNameOr(TrackSystem system, std::string_view fallback) {
  const SystemTexts* texts = textsOf(system);
  return texts != nullptr && !texts->longName.empty() ? texts->longName : fallback;
}

} // namespace

std::string_view systemName(TrackSystem system) {
  return longNameOr(system, "Other");
}

std::string_view systemNameInMessage(TrackSystem system) {
  return longNameOr(system, "Unknown");
}

std::string_view systemShortName(TrackSystem system) {
  const SystemTexts* texts = textsOf(system);
  return texts != nullptr ? texts->shortName : "Unknown";
}

std::string paletteKey(std::string_view longName) {
  if (longName == "Marklin Gauge 1") {
    return "Marklin_Gauge1";
  }
  if (longName == "Minitrix") {
    return "Minitrix-Track";
  }
  std::string key(longName);
  std::ranges::replace(key, ' ', '_');
  return key;
}

} // namespace trassix
