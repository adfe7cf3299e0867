#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace trassix {

/// A manufacturer's track range in one gauge. The values are stored in definitions and must not
/// change. RokuhanZ, MinitrixN and KatoN are named but have no pieces.
enum class TrackSystem : std::int32_t {
  CTrack = 0,
  KTrack = 1,
  ZTrack = 2,
  TrixCTrack = 3,
  RokuhanZ = 4,
  MinitrixN = 5,
  KatoN = 6,
  Gauge1 = 7,
  MTrack = 8,
};

/// Long name in plain ASCII ("Marklin C-Track"); "Other" for a system without a long name.
std::string_view systemName(TrackSystem system);

/// The same names for use inside a sentence; "Unknown" for a system without a long name.
std::string_view systemNameInMessage(TrackSystem system);

/// Short name in UTF-8 ("Märklin C"); "Unknown" for values outside the enumeration.
std::string_view systemShortName(TrackSystem system);

/// Key under which the palette files a system, also the name of its library folder. An unlisted
/// long name has each blank replaced by an underscore.
std::string paletteKey(std::string_view longName);

} // namespace trassix
