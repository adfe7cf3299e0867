#pragma once

#include "document/records.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// What undo and redo bring back, and all of it but the measurements and pairs is saved.
struct PlanContent {
  // Out of line: compiling them for all kinds of records takes its time.
  PlanContent();
  PlanContent(const PlanContent& other);
  PlanContent(PlanContent&& other) noexcept;
  PlanContent& operator=(const PlanContent& other);
  PlanContent& operator=(PlanContent&& other) noexcept;
  ~PlanContent();

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

  bool operator==(const PlanContent&) const;

  /// Makes the last run the current grade, or switches it off when there is none.
  void mirrorLastGradeRun();

  /// Id of the piece that came with this one as a pair, -1 when there is none.
  std::int32_t partnerOf(std::int32_t piece) const;
};

/// The list of kinds: calls `visit` with the collection of each, from the bottom of the picture to
/// its top.
template <class Content, class Visit>
void forEachKind(Content& content, Visit visit) {
  visit(content.shapes);
  visit(content.helices);
  visit(content.tunnels);
  visit(content.scenery);
  visit(content.pieces);
  visit(content.measurements);
  visit(content.labels);
}

} // namespace trassix
