#pragma once

#include "editing/canvas/canvas.h"
#include "editing/canvas/carried.h"
#include "editing/canvas/fake_host.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace trassix::test {

enum Mod : unsigned { kNone = 0, kCtrl = 1, kShift = 2, kAlt = 4 };

/// A canvas handled by scripted input, in layout millimetres.
class CanvasScript {
 public:
  FakeHost host;
  Canvas canvas{host.workspace};

  explicit CanvasScript(Layout plan = {}) {
    host.plan = std::move(plan);
    host.plan.ensureLevel();
    canvas.resize({1600, 1000});
  }

  PointerInput at(Point world, unsigned mods = kNone) {
    return {canvas.view().toScreen(world), world, (mods & kCtrl) != 0, (mods & kShift) != 0,
            (mods & kAlt) != 0};
  }

  void move(Point world, unsigned mods = kNone) { canvas.move(at(world, mods)); }
  void press(Point world, unsigned mods = kNone) {
    canvas.press(Canvas::Button::Left, at(world, mods));
  }
  void release(Point world, unsigned mods = kNone) {
    canvas.release(Canvas::Button::Left, at(world, mods));
  }
  void click(Point world, unsigned mods = kNone) {
    move(world, mods);
    press(world, mods);
    release(world, mods);
  }
  void doubleClick(Point world, unsigned mods = kNone) {
    click(world, mods);
    canvas.doubleClick(at(world, mods));
    release(world, mods);
  }
  /// Moves there with the button down, without letting go.
  void dragTo(Point from, Point to, unsigned mods = kNone) {
    press(from, mods);
    move({(from.x + to.x) / 2, (from.y + to.y) / 2}, mods);
    move(to, mods);
  }
  void drag(Point from, Point to, unsigned mods = kNone) {
    dragTo(from, to, mods);
    release(to, mods);
  }
  bool key(Key key, bool shift = false) { return canvas.key({key, shift}); }
  void wheel(Point world, double notches, unsigned mods = kNone) {
    canvas.wheel(at(world, mods), notches);
  }
  /// Carries a catalogue piece from the palette to this point.
  void carry(std::string_view article, Point world) {
    canvas.carry(CarriedPiece{std::string(article)}, at({world.x - 300, world.y}), true);
    move(world);
  }

  void setMode(ToolMode mode) {
    host.workspace.setToolMode(mode);
    canvas.modeChanged();
  }
  /// Opens the menu there and takes a row of it: "Row" or "Submenu/Row", or how they begin.
  void takeFromMenu(Point world, std::string_view row) {
    canvas.press(Canvas::Button::Right, at(world));
    const auto found = std::ranges::find_if(host.menu, [row](const MenuRow& r) {
      return (r.submenu.empty() ? r.text : r.submenu + "/" + r.text).starts_with(row);
    });
    ASSERT_NE(found, host.menu.end()) << row;
    found->action();
  }

  const PlanContent& content() const { return host.plan.content(); }
  std::vector<std::int32_t> selected() const { return selectedPieces(host.plan); }
  const std::vector<PlacedPiece>& pieces() const { return host.plan.pieces(); }
};

} // namespace trassix::test
