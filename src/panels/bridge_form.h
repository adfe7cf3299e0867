// What a user wants of a bridge, while its dialog is open.
#pragma once

#include "editing/edit_result.h"
#include "wizards/bridge/bridge_plan.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class OwnedStock;

/// Every entry says at once what would come of it, and `plan` is that. Of clearance and deck height
/// the one that was typed last holds and the other follows; likewise of grade limit and ramp
/// length, where a typed length lets the limit be what it was.
class BridgeForm {
 public:
  enum class Field : std::uint8_t { Clearance, DeckHeight, Limit, RampLength };
  static constexpr std::size_t kFields = 4;

  /// The layout must outlive the form and stay as it is until `apply`. `owned` may be null.
  explicit BridgeForm(const Layout& layout, const OwnedStock* owned = nullptr);

  /// Why there is nothing to choose, such as no selected track; then nothing else may be called
  /// but `problem`.
  bool empty() const { return tasks_.empty(); }

  /// The ways in that the selection allows.
  std::vector<std::string> wayNames() const;
  std::size_t way() const { return way_; }
  void setWay(std::size_t way);

  /// Kinds of span that the system has.
  std::vector<std::string> spanNames() const;
  std::size_t span() const;
  void setSpan(std::size_t row);

  /// In the order of `PierHeights`.
  static std::vector<std::string> pierNames();
  std::size_t piers() const { return static_cast<std::size_t>(task_.piers); }
  void setPiers(std::size_t row);

  /// Ramp pieces of the maker in place of the ramps' own track, where there are such.
  bool rampPieces() const { return task_.rampPieces; }
  void setRampPieces(bool use);

  /// Sets the clearance that trains need with or without wire, as if it was typed.
  void setWire(bool wire);
  /// Whether the clearance is at least that with wire.
  bool wire() const;

  /// False for heights and ramps where track stays as it lies.
  bool uses(Field field) const;
  void enter(Field field, std::string_view text);
  const std::string& text(Field field) const { return texts_[index(field)]; }

  /// Looks for one more of the other bridges, which takes as long as planning it; false when there
  /// is nothing left to try.
  bool seekChoice();
  /// What was entered, and the other bridges found so far, by name with their figures. They stay as
  /// they are while one after the other is taken, until something else is entered.
  std::vector<std::string> choiceNames() const;
  std::size_t choice() const { return choice_; }
  void take(std::size_t choice);

  const BridgeTask& task() const { return task_; }
  const BridgePlan& plan() const { return plan_; }
  /// Figures, with what of the pieces is at home; none when it cannot be done.
  std::vector<BridgeFact> facts() const;
  /// What is crossed, a line each.
  std::vector<std::string> crossedNames() const;
  /// Why it cannot be done, with the remedy; empty when it can.
  std::string problem() const;
  bool ready() const { return problem().empty(); }

  /// The plan as it would be, with the bridge selected; as it is when it cannot be done.
  Layout built() const;
  /// The plan is `layout`, or one that is equal to it.
  EditResult apply(Layout& layout) const;

 private:
  static std::size_t index(Field field) { return static_cast<std::size_t>(field); }
  TrackSystem system() const;
  void compute();
  /// The entries that were not typed last tell of the plan.
  void follow();
  void followDeck(double height);

  const Layout& layout_;
  const OwnedStock* owned_;
  std::int32_t units_;
  std::vector<BridgeTask> tasks_;
  std::size_t way_ = 0;
  BridgeTask task_;
  BridgePlan plan_;
  std::vector<BridgeChoice> choices_;              ///< the first as entered
  std::optional<std::vector<BridgeChoice>> ideas_; ///< to be tried; none before the first one is
  std::size_t choice_ = 0;
  std::array<std::string, kFields> texts_;
  std::array<std::string, kFields> problems_;
  std::optional<Field> typed_; ///< while what was typed is being taken
};

} // namespace trassix
