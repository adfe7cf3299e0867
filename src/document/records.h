// The records a plan is made of. Plain comparable values that refer to one another by id only.
// Lengths in mm in layout coordinates (x to the right, y downwards), angles in degrees, positive
// from +x towards +y, which is clockwise on the screen.
#pragma once

#include "document/color.h"
#include "document/grade_run.h"
#include "document/joint_table.h"
#include "document/records_fwd.h"
#include "document/shape.h"
#include "geometry/point.h"

#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

struct PlacedPiece {
  static constexpr RecordKind kKind = RecordKind::Piece;

  std::int32_t id = -1;
  std::string cat; ///< article of the piece's definition
  double x = 0;
  double y = 0;
  double heading = 0;
  bool sel = false;
  double z = 0;     ///< mm above the baseboard
  double grade = 0; ///< signed grade angle: over a run of length L the track rises L sin(grade)
  bool rev = false; ///< the grade run starts at a connector other than 1
  bool hasColor = false;
  Color color; ///< own display colour, used when hasColor is set
  std::int32_t level = 1;
  std::int32_t helix = -1; ///< id of the helix the piece belongs to
  bool free = false;       ///< one of the tracks attached around a turntable
  JointTable joints;

  bool operator==(const PlacedPiece&) const = default;

  Joint joint(std::size_t connector) const {
    return connector < joints.size() ? joints[connector] : Joint{};
  }
};

/// Two pieces of an article that is sold in pairs and that came together. Kept by undo and redo,
/// not by the file.
struct PiecePair {
  std::int32_t first = -1; ///< id
  std::int32_t second = -1;

  bool operator==(const PiecePair&) const = default;

  bool has(std::int32_t piece) const { return piece == first || piece == second; }
};

struct SceneryItem {
  static constexpr RecordKind kKind = RecordKind::Scenery;

  std::int32_t id = -1;
  std::string item; ///< key in the scenery catalogue
  double x = 0;
  double y = 0;
  double heading = 0;
  double scalex = 1;
  double scaley = 1;
  std::int32_t level = 1;
  bool sel = false;

  bool operator==(const SceneryItem&) const = default;
};

struct Label {
  static constexpr RecordKind kKind = RecordKind::Label;

  std::int32_t id = -1;
  std::string text;
  double x = 0;
  double y = 0;
  bool sel = false; ///< not saved

  bool operator==(const Label&) const = default;
};

/// A length laid down with the measuring tape. Kept by undo and redo, not by the file.
struct Measurement {
  static constexpr RecordKind kKind = RecordKind::Measurement;

  std::int32_t id = -1;
  Point from;
  Point to;
  bool sel = false;

  bool operator==(const Measurement&) const = default;
};

struct Tunnel {
  static constexpr RecordKind kKind = RecordKind::Tunnel;

  std::int32_t id = -1;
  std::int32_t portalA = -1;
  std::int32_t portalB = -1;
  std::int32_t anchorA = -1;
  std::int32_t anchorB = -1;
  std::vector<std::int32_t> covers; ///< ids of the pieces under the tunnel

  bool operator==(const Tunnel&) const = default;
};

/// A spiral of a helix kit, placed as a unit.
struct Helix {
  static constexpr RecordKind kKind = RecordKind::Helix;

  std::int32_t id = -1;
  double cx = 0;
  double cy = 0;
  double heading = 0;
  std::string variant = "proses_2_5_r1r2"; ///< key of the helix kit
  std::int32_t bottomR1 = -1; ///< piece ids at the ends of the inner (R1) and outer (R2) track
  std::int32_t bottomR2 = -1;
  std::int32_t topR1 = -1;
  std::int32_t topR2 = -1;

  bool operator==(const Helix&) const = default;
};

} // namespace trassix
