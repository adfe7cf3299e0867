// Readable records in the messages of failed expectations.
#pragma once

#include "document/element_writer.h"
#include "document/piece_lines.h"

#include <ostream>

namespace trassix {

inline void PrintTo(const Point& point, std::ostream* out) {
  *out << '(' << point.x << ", " << point.y << ')';
}

inline void PrintTo(const Joint& joint, std::ostream* out) {
  if (joint.open())
    *out << "open";
  else
    *out << joint.target << '.' << joint.tconn;
}

inline void PrintTo(const PlacedPiece& piece, std::ostream* out) {
  ElementWriter writer([out](std::string_view text) { *out << '\n' << text; });
  writePiece(writer, piece, "");
  writer.finish();
}

} // namespace trassix
