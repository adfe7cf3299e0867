// Where a bridge is to be built: the way it leads along, made ready on the plan.
#pragma once

#include "editing/edit_result.h"
#include "wizards/bridge/bridge_line.h"
#include "wizards/bridge/bridge_task.h"

#include <optional>
#include <vector>

namespace trassix {

class Layout;

struct BridgeSite {
  TrainWay way;
  std::vector<bool> meant; ///< for each stretch whether it was chosen
  bool round = false;      ///< it comes back to its start
  bool startStays = false; ///< no track may be added before it
  std::optional<Notice> refusal;
};

/// Crossings that the chosen track leads through are replaced by straights, and new track is laid
/// straight on from an open end, as far as beyond what it crosses.
BridgeSite prepareSite(Layout& layout, const BridgeTask& task);

/// One that comes round begins with another stretch.
void beginWith(BridgeSite& site, std::size_t stretch);

/// Puts straights to the end of the way, or to its start; they are not meant.
void lengthen(Layout& layout, BridgeSite& site, bool atStart, int count);

/// Whether track can be added there.
bool mayLengthen(const Layout& layout, const BridgeSite& site, bool atStart);

/// The way's stretches from `from` to `to` become the row; false and nothing changed when that does
/// not fit.
bool replaceStretches(Layout& layout, BridgeSite& site, std::size_t from, std::size_t to,
                      const std::vector<const PieceDef*>& row);

/// The heights of all stretches as they are now.
void renewHeights(const Layout& layout, TrainWay& way);

/// How much clearance the task asks for over what is of this system.
double clearanceOf(const BridgeTask& task, TrackSystem system);

Notice bridgeRefusal(std::string text);

} // namespace trassix
