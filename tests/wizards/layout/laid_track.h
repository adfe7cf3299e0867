// Measures laid track from what its pieces are called alone: by their nominal lengths, radii and
// angles, with nothing of how it was sought or laid. Lengths in mm.
#pragma once

#include "wizards/layout/layout_proposal.h"

#include <string>
#include <vector>

namespace trassix {

struct Spot {
  Point at;
  std::size_t piece = 0;
  double heading = 0; ///< of the way there, degrees
};

class LaidTrack {
 public:
  explicit LaidTrack(const LayoutProposal& proposal);

  /// The first thing that is wrong with it as a layout for the task; empty when it is right.
  std::string problem(const LayoutTask& task) const;
  /// What the worst joint is off.
  double worstGap() const { return worstGap_; }
  /// Pieces from the first one on around its loop; those of the other loop for `other`.
  std::vector<std::size_t> loop(bool other) const;

 private:
  std::string jointProblem();
  std::string roomProblem(const LayoutTask& task) const;
  std::string overlapProblem(double bed) const;
  std::string spacingProblem(const LayoutTask& task) const;
  std::vector<Spot> spotsOf(std::size_t piece, double step) const;
  bool bedHolds(std::size_t piece, Point at) const;
  bool neighbours(std::size_t a, std::size_t b) const;

  const std::vector<PlacedPiece>& pieces_;
  std::string joints_;
  double worstGap_ = 0;
};

} // namespace trassix
