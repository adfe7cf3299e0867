#include "editing/levels/level_edits.h"
#include "editing/scenery/annotations.h"
#include "geometry/polygons.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace trassix {
namespace {

TEST(Outlines, NeitherCrossNorTouchThemselves) {
  struct Case {
    const char* name;
    Polygon corners;
    bool good;
    bool crossing; ///< already before it is closed
  };
  const Case cases[] = {
      {"triangle", {{0, 0}, {100, 0}, {0, 100}}, true, false},
      {"straight on", {{0, 0}, {50, 0}, {100, 0}, {100, 100}}, true, false},
      {"notch", {{0, 0}, {900, 0}, {900, 500}, {500, 500}, {500, 0.1}, {0, 500}}, true, false},
      {"line", {{0, 0}, {100, 0}}, false, false},
      {"flat", {{0, 0}, {50, 0}, {100, 0}}, false, false},
      {"turns back", {{0, 0}, {100, 0}, {50, 0}}, false, true},
      {"spike", {{0, 0}, {100, 0}, {100, 100}, {150, 150}, {100, 100}, {0, 100}}, false, true},
      {"bow tie", {{0, 0}, {100, 100}, {100, 0}, {0, 100}}, false, true},
      {"closing", {{0, 0}, {100, 0}, {100, 50}, {30, 50}, {30, 100}, {200, 20}}, false, false},
      {"arrow", {{0, 0}, {50, 80}, {100, 0}, {50, 200}}, true, false},
      {"corner on an edge", {{0, 0}, {100, 0}, {100, 100}, {50, 0}, {0, 100}}, false, true},
      {"beyond the plan", {{0, 0}, {1e19, 0}, {0, 1e19}}, false, false},
      {"bow tie beyond", {{0, 0}, {1e19, 1e19}, {1e19, 0}, {0, 1e19}}, false, false},
      {"at its edge", {{-1e6, -1e6}, {1e6, -1e6}, {1e6, 1e6}}, true, false},
      {"star", {{0, 0}, {100, 60}, {0, 60}, {100, 0}, {50, 100}}, false, true},
  };
  for (const Case& c : cases) {
    Polygon corners = c.corners;
    for (const bool turned : {false, true}) { // either way round
      SCOPED_TRACE(c.name);
      EXPECT_EQ(outlineProblem(corners).empty(), c.good) << outlineProblem(corners);
      EXPECT_EQ(crossesItself(corners), c.crossing);
      Layout layout;
      layout.ensureLevel();
      EXPECT_EQ(setBaseboard(layout, corners, {}), c.good);
      EXPECT_EQ(setLevelOutline(layout, 1, corners), c.good);
      EXPECT_EQ(addShape(layout, corners) != -1, c.good);
      std::ranges::reverse(corners);
      if (turned)
        break;
    }
  }
}

} // namespace
} // namespace trassix
