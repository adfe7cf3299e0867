#include "ui/canvas/toolkit_input.h"

#include <wx/defs.h>

namespace trassix {

Key plainKey(int keyCode) {
  switch (keyCode) {
  case WXK_ESCAPE:
    return Key::Escape;
  case WXK_RETURN:
  case WXK_NUMPAD_ENTER:
    return Key::Enter;
  case WXK_BACK:
    return Key::Backspace;
  case WXK_LEFT:
  case WXK_NUMPAD_LEFT:
    return Key::Left;
  case WXK_RIGHT:
  case WXK_NUMPAD_RIGHT:
    return Key::Right;
  case WXK_UP:
  case WXK_NUMPAD_UP:
    return Key::Up;
  case WXK_DOWN:
  case WXK_NUMPAD_DOWN:
    return Key::Down;
  case WXK_HOME:
  case WXK_NUMPAD_HOME:
    return Key::Home;
  case WXK_END:
  case WXK_NUMPAD_END:
    return Key::End;
  case WXK_PAGEUP:
  case WXK_NUMPAD_PAGEUP:
    return Key::PageUp;
  case WXK_PAGEDOWN:
  case WXK_NUMPAD_PAGEDOWN:
    return Key::PageDown;
  case WXK_DELETE:
  case WXK_NUMPAD_DELETE:
    return Key::Delete;
  case WXK_SPACE:
    return Key::Space;
  case 'R':
    return Key::R;
  case 'F':
    return Key::F;
  case WXK_TAB:
    return Key::Tab;
  default:
    return Key::Other;
  }
}

wxStockCursor stockCursor(CursorShape shape) {
  switch (shape) {
  case CursorShape::Cross:
    return wxCURSOR_CROSS;
  case CursorShape::Hand:
    return wxCURSOR_HAND;
  case CursorShape::Move:
    return wxCURSOR_SIZING;
  case CursorShape::Rotate:
    return wxCURSOR_SIZENWSE;
  case CursorShape::UpDown:
    return wxCURSOR_SIZENS;
  case CursorShape::Arrow:
    break;
  }
  return wxCURSOR_ARROW;
}

} // namespace trassix
