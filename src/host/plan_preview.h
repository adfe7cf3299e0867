#pragma once

#include "document/records_fwd.h"

#include <functional>
#include <memory>

namespace trassix {

class Layout;
struct HeightPlan;
class Workspace;

/// What would come onto the plan, drawn over it while a dialog or a wizard is open. It is there as
/// long as this lives, in place of an earlier one, and the plan itself stays as it is.
class PlanPreview {
 public:
  explicit PlanPreview(Workspace& workspace);
  ~PlanPreview();
  PlanPreview(const PlanPreview&) = delete;
  PlanPreview& operator=(const PlanPreview&) = delete;

  /// Shows these records, which may be of any kind, in place of those before.
  void show(PlanContent records);
  /// Shows what the edit adds to the plan, or changes of its picture, when it is done to a copy.
  void showEdit(const std::function<void(Layout&)>& edit);
  /// Shows the track that gets other heights, in the colours of its grades.
  void showHeights(const HeightPlan& plan);

  void showNothing();

  const PlanContent& records() const { return *records_; }
  bool inGradeColors() const { return inGradeColors_; }

 private:
  Workspace& workspace_;
  const PlanPreview* before_;            ///< the one in whose place this is
  std::unique_ptr<PlanContent> records_; ///< never null
  bool inGradeColors_ = false;
};

} // namespace trassix
