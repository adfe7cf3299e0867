#pragma once

#include "editing/canvas/canvas_input.h"
#include "editing/canvas/plan_theme.h"
#include "editing/elevation/propagation.h"
#include "editing/profile/profile_content.h"
#include "editing/profile/profile_handles.h"
#include "editing/profile/profile_view.h"
#include "host/plan_preview.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class Workspace;

/// The heights along the way through the selection as the user handles them, without a window.
/// Handles are pulled up and down with the mouse or keys; all that would change is shown meanwhile,
/// here and on the plan, which stays as it is until the handle is let go.
class HeightProfile {
 public:
  explicit HeightProfile(Workspace& workspace);
  ~HeightProfile();

  void resize(SizePx size);
  /// Follows the plan and what is selected; a drag ends.
  void renew();
  /// The same when it is another plan.
  void planReplaced();

  void press(const PointerInput& input);
  void move(const PointerInput& input);
  void release(const PointerInput& input);
  /// Distance only, about the pointer.
  void wheel(const PointerInput& input, double notches);
  void leave();
  /// False for keys that are not meant for the profile, as Tab beyond the last knee.
  bool key(const KeyInput& input);
  /// Leaves the plan as it was before the drag.
  void cancel();
  bool wantsCapture() const { return gesture_ != Gesture::None; }
  /// Puts the keys on a handle when they are on none.
  void focus(bool focused);

  /// How many times heights can be drawn larger than distances; 0 for as it fits.
  static constexpr double kExaggerations[] = {0, 1, 2, 5, 10, 20};
  /// Follows the window's switches.
  void switchesChanged();

  /// Where a height can be typed for the handle under the mouse or the one the keys are on.
  struct Entry {
    Point px;
    std::string text;
  };
  std::optional<Entry> entryAt(Point px);
  std::optional<Entry> entry() const;
  /// Why it is refused; empty when it is done.
  std::string enter(std::string_view text);

  void paint(Surface& surface, const PlanTheme& theme = screenTheme());
  std::string hint() const;
  std::string summary() const;
  CursorShape cursor() const;

  /// With what is being pulled where it is.
  const TrainWay& shownWay() const { return drag_ ? drag_->shown : content_.way; }
  std::vector<ProfileHandle> handles() const {
    return handlesOf(content_, shownWay(), knees_, view_.scale(), chosen_);
  }

 private:
  enum class Gesture : std::uint8_t { None, Pending, Pull, Pan };

  /// It exists only while a handle is pulled.
  struct Drag {
    explicit Drag(Workspace& workspace) : preview(workspace) {}

    double height = 0; ///< as the mouse has it, before it is rounded
    HeightPlan plan;
    TrainWay shown;
    PlanPreview preview;
  };

  LoopRule loops() const;
  HeightPlan planFor(std::size_t joint, double height, bool all) const;
  void pull(const PointerInput& input);
  void drop();
  /// Does it, or says why not. True when something changed.
  bool apply(const HeightPlan& plan, bool continued = false);
  void follow();
  bool nudge(double by, bool all);
  bool takeOutKnee();
  bool goTo(std::size_t joint);
  bool goToKnee(int step);
  void takeBranch(std::size_t stretch);
  std::optional<std::size_t> handleAt(Point px) const;
  /// The stretch of a turnout whose mark is there and that has another branch.
  std::optional<std::size_t> branchAt(Point px) const;
  void repaint();

  Workspace& workspace_;
  std::vector<std::int32_t> selected_; ///< for which the way was chosen
  WayChoice choice_;
  std::uint64_t crossingsOf_ = 0; ///< stamp of the plan whose they are
  std::vector<TrackCrossing> crossings_;
  ProfileContent content_;
  std::vector<std::size_t> knees_; ///< of the way as it is shown, ascending
  ProfileView view_;

  Gesture gesture_ = Gesture::None;
  PointerInput pressed_;
  PointerInput last_;
  std::optional<std::size_t> pulled_; ///< the joint that was pressed
  std::unique_ptr<Drag> drag_;
  std::optional<std::size_t> pointed_;
  std::int32_t pointedPiece_ = -1; ///< that was told last
  std::optional<std::size_t> chosen_;
  bool focused_ = false;
  std::string problem_;
  std::uint64_t nudgedTo_ = 0; ///< revision after the last nudge: a run of them is one undo step
};

} // namespace trassix
