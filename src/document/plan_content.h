#pragma once

#include "document/records.h"

#include <vector>

namespace trassix {

/// What undo and redo bring back, and all of it but the measurements is saved.
struct PlanContent {
  std::vector<PlacedPiece> pieces;
  std::vector<SceneryItem> scenery;
  std::vector<Label> labels;
  std::vector<Measurement> measurements;
  std::vector<Shape> shapes;
  std::vector<Tunnel> tunnels;
  std::vector<Helix> helices;
  CurrentGrade currentGrade;
  std::vector<GradeRun> gradeRuns;

  bool operator==(const PlanContent&) const = default;

  /// Makes the last run the current grade, or switches it off when there is none.
  void mirrorLastGradeRun() {
    currentGrade = gradeRuns.empty() ? CurrentGrade{}
                                     : CurrentGrade{true, gradeRuns.back().deg,
                                                    gradeRuns.back().anchor, gradeRuns.back().conn};
  }
};

} // namespace trassix
