// The records by name, for whoever only hands them on.
#pragma once

#include <cstddef>
#include <cstdint>

namespace trassix {

/// A kind of record that a plan has many of.
enum class RecordKind : std::uint8_t { Shape, Helix, Tunnel, Scenery, Piece, Measurement, Label };
inline constexpr std::size_t kRecordKinds = 7;

struct CurrentGrade;
struct GradeRun;
struct Helix;
struct Label;
struct Measurement;
struct PiecePair;
struct PlacedPiece;
struct PlanContent;
struct SceneryItem;
struct Shape;
struct Tunnel;

} // namespace trassix
