#pragma once

#include "document/records.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// What undo and redo bring back, and all of it but the measurements and pairs is saved.
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
  std::vector<PiecePair> pairs;

  bool operator==(const PlanContent&) const = default;

  /// Makes the last run the current grade, or switches it off when there is none.
  void mirrorLastGradeRun() {
    currentGrade = gradeRuns.empty() ? CurrentGrade{}
                                     : CurrentGrade{true, gradeRuns.back().deg,
                                                    gradeRuns.back().anchor, gradeRuns.back().conn};
  }

  /// Id of the piece that came with this one as a pair, -1 when there is none.
  std::int32_t partnerOf(std::int32_t piece) const {
    for (const PiecePair& pair : pairs)
      if (pair.has(piece))
        return pair.first == piece ? pair.second : pair.first;
    return -1;
  }
};

} // namespace trassix
