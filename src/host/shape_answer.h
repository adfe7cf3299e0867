#pragma once

#include "document/shape.h"

namespace trassix {

struct ShapeAnswer {
  Shape wanted;
  bool asBaseboard = false; ///< its outline is to become the baseboard, and nothing else
};

} // namespace trassix
