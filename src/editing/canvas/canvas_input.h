// What comes in from mouse and keyboard, free of the toolkit, and what the pointer looks like.
#pragma once

#include "geometry/point.h"

#include <cstdint>

namespace trassix {

/// One mouse event.
struct PointerInput {
  Point px;
  Point world;
  bool ctrl = false;
  bool shift = false;
  bool alt = false;
};

enum class Key : std::uint8_t {
  Other,
  Escape,
  Enter,
  Backspace,
  Left,
  Right,
  Up,
  Down,
  R,
  F,
  Tab,
  Home,
  End,
  PageUp,
  PageDown,
  Delete,
  Space,
  Copy,
  Cut,
  Paste,
  Duplicate,
};

struct KeyInput {
  Key key = Key::Other;
  bool shift = false;
  bool ctrl = false;
};

enum class CursorShape : std::uint8_t { Arrow, Cross, Hand, Move, Rotate, UpDown };

} // namespace trassix
