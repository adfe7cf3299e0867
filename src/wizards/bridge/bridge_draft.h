// A bridge built on a copy of the plan.
#pragma once

#include "document/layout.h"
#include "editing/supports/supports.h"
#include "wizards/bridge/bridge_site.h"
#include "wizards/bridge/crossed_zones.h"

#include <optional>
#include <string>
#include <vector>

namespace trassix {

struct BridgeDraft {
  Layout layout; ///< as it would be
  BridgeSite site;
  BridgeLine line; ///< of the site's way, at the heights that it would have
  std::vector<CrossedZone> zones;
  std::size_t from = 0; ///< joints between which the track rises, or is replaced
  std::size_t to = 0;
  std::size_t first = 0; ///< joints of the bridge itself
  std::size_t last = 0;
  double deckHeight = 0;
  double residue = 0; ///< mm by which replaced track does not fit exactly
  bool onSeries = false;
  SupportPlan supports;
  std::optional<Notice> refusal;
};

BridgeDraft draftBridge(const Layout& layout, const BridgeTask& task);

} // namespace trassix
