#include "catalog/compatibility.h"

#include <array>

namespace trassix {

namespace {

struct Advice {
  TrackSystem a;
  TrackSystem b;
  std::string_view text;
};

constexpr std::array<Advice, 3> kAdvice{{
    {TrackSystem::CTrack, TrackSystem::KTrack,
     "Use adapter track 24922 to connect C-Track to K-Track."},
    {TrackSystem::KTrack, TrackSystem::MTrack,
     "Use adapter track 2291 to connect K-Track to M-Track."},
    {TrackSystem::CTrack, TrackSystem::MTrack,
     "Use adapter track 24951 to connect C-Track to M-Track."},
}};

} // namespace

std::string_view adapterAdvice(TrackSystem a, TrackSystem b) {
  for (const Advice& advice : kAdvice) {
    if ((advice.a == a && advice.b == b) || (advice.a == b && advice.b == a)) {
      return advice.text;
    }
  }
  return "There is no adapter track for this combination.";
}

std::string incompatibilityText(TrackSystem dropped, TrackSystem placed) {
  std::string text(systemNameInMessage(dropped));
  text += " cannot connect to ";
  text += systemNameInMessage(placed);
  text += ".\n\nThese track systems are not compatible.\n";
  text += adapterAdvice(dropped, placed);
  return text;
}

} // namespace trassix
