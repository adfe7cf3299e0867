#include "app/services/text_file.h"
#include "catalog/track_catalog.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/train_way.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace trassix {
namespace {

TEST(Samples, OpenSoundAndClosedAndSaveBackByteForByte) {
  std::set<TrackSystem> systems;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::filesystem::path(TRASSIX_SOURCE_DIR) / "samples")) {
    SCOPED_TRACE(entry.path().filename().string());
    std::string text;
    ASSERT_EQ(readTextFile(entry.path(), text), "");
    Layout layout;
    std::string name;
    ASSERT_EQ(readLayout(text, layout, name), "");
    EXPECT_EQ(name, entry.path().stem().string());
    EXPECT_EQ(brokenRule(layout), "");
    EXPECT_EQ(openEnds(layout), 0);
    EXPECT_LT(largestPlay(layout).distance, 1.0);
    EXPECT_LT(largestPlay(layout).step, 0.01);
    for (const TrackCrossing& crossing : trackCrossings(layout))
      EXPECT_FALSE(crossing.tooLow()) << crossing.at.x << " " << crossing.at.y;
    EXPECT_GE(layout.settings().baseboard.size(), 4u);
    std::string saved;
    ASSERT_EQ(writeLayout(layout, name, saved), "");
    EXPECT_EQ(saved, text);
    if (name == "Hidden Yard") { // its profile runs all the way
      const TrainWay way = wayThrough(layout, layout.content().tunnels.at(0).anchorA);
      const auto counted = [&](auto is) { return std::ranges::count_if(way.stretches, is); };
      EXPECT_EQ(counted([&](const WayStretch& stretch) { return layout.isCovered(stretch.piece); }),
                10);
      EXPECT_EQ(counted([&](const WayStretch& stretch) {
                  return layout.findPiece(stretch.piece)->helix != -1;
                }),
                60);
    }
    systems.insert(definitionOf(layout.pieces().at(0))->system);
  }
  EXPECT_EQ(systems.size(), 6u);
}

} // namespace
} // namespace trassix
