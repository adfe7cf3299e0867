#include "support/random_plan.h"

#include <iterator>
#include <random>

namespace trassix::test {

namespace {

class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}

  std::int32_t upTo(std::int32_t largest) {
    return std::uniform_int_distribution<std::int32_t>(0, largest)(engine_);
  }
  bool coin() { return upTo(1) == 1; }
  std::int32_t integer() { return upTo(200000) - 100000; }
  double real(std::int32_t range) {
    const std::int32_t tenThousandths = upTo(20000 * range) - 10000 * range;
    return tenThousandths / 10000.0;
  }
  double scale() { return (upTo(30000) + 10) / 10000.0; }
  Point point() { return {real(5000), real(5000)}; }
  std::vector<Point> points(std::int32_t atLeast) {
    std::vector<Point> result(static_cast<std::size_t>(atLeast + upTo(4)));
    for (Point& p : result)
      p = point();
    return result;
  }
  Color color() { return {byte(), byte(), byte()}; }
  std::uint8_t byte() { return static_cast<std::uint8_t>(upTo(255)); }
  std::string text() {
    static const char* const kTexts[] = {
        "",           "Bahnhof Süd", "height=",    "a 'quoted' name",
        "x=1 units=", "<shape>",     "track & co", "長い名前"};
    std::string result = kTexts[upTo(static_cast<std::int32_t>(std::size(kTexts)) - 1)];
    // What the format escapes comes back escaped, so only texts without it compare equal.
    return result.find_first_of("&<>\"") == std::string::npos ? result : "plain";
  }

 private:
  std::mt19937 engine_;
};

PlacedPiece piece(Dice& dice, std::int32_t id) {
  static const char* const kArticles[] = {"24188", "24130", "24611", "74490", "no such article"};
  PlacedPiece result;
  result.id = id;
  result.cat = kArticles[dice.upTo(4)];
  result.x = dice.real(9000);
  result.y = dice.real(9000);
  result.heading = dice.real(360);
  result.sel = dice.coin();
  result.z = dice.real(500);
  result.grade = dice.real(4);
  result.rev = dice.coin();
  result.hasColor = dice.coin();
  if (result.hasColor)
    result.color = dice.color();
  result.level = 1 + dice.upTo(2);
  result.helix = dice.coin() ? dice.upTo(1000) : -1;
  result.free = dice.coin();
  return result;
}

void joinEnds(std::vector<PlacedPiece>& pieces, std::size_t a, std::int32_t connectorA,
              std::size_t b, std::int32_t connectorB) {
  const auto put = [](PlacedPiece& from, std::int32_t slot, const PlacedPiece& to,
                      std::int32_t other) {
    const auto index = static_cast<std::size_t>(slot);
    if (from.joints.size() <= index)
      from.joints.resize(index + 1);
    from.joints[index] = {to.id, other};
  };
  put(pieces[a], connectorA, pieces[b], connectorB);
  put(pieces[b], connectorB, pieces[a], connectorA);
}

} // namespace

Layout randomPlan(std::uint32_t seed, int pieces) {
  Dice dice(seed);
  Layout layout;
  PlanContent& content = layout.edit();
  for (int i = 0; i < pieces; ++i) {
    content.pieces.push_back(piece(dice, layout.takeId()));
    const auto index = static_cast<std::size_t>(i);
    if (i > 0)
      joinEnds(content.pieces, index - 1, 1, index, 0);
    if (i % 20 == 10)
      joinEnds(content.pieces, index - 10, 2, index, 3);
  }
  for (int i = 0; i < 3 + pieces / 50; ++i) {
    const auto id = [&layout] { return layout.takeId(); };
    content.scenery.push_back({id(), "house", dice.real(9000), dice.real(9000), dice.real(360),
                               dice.scale(), dice.scale(), dice.upTo(3), dice.coin()});
    content.labels.push_back({id(), dice.text(), dice.real(9000), dice.real(9000), false});
    content.shapes.push_back({id(), dice.points(3), dice.color(), dice.byte(), dice.coin(),
                              dice.upTo(3), dice.real(100), dice.text(), false});
    content.tunnels.push_back(
        {id(), dice.integer(), dice.integer(), dice.integer(), dice.integer(), {1, 2, 3}});
    content.helices.push_back({id(), dice.real(9000), dice.real(9000), dice.real(360),
                               dice.coin() ? "proses_2_5_r1r2" : "another kit", dice.integer(),
                               dice.integer(), dice.integer(), dice.integer()});
    layout.startGradeRun(dice.integer(), dice.upTo(2), dice.real(4));
  }
  PlanSettings& settings = layout.editSettings();
  for (int i = 0; i < 3; ++i)
    settings.levels.push_back({i + 1, dice.text(), dice.coin(), dice.real(500), dice.coin(),
                               dice.color(), dice.coin() ? dice.points(3) : std::vector<Point>{}});
  settings.activeLevel = 2;
  settings.baseboard = dice.points(0);
  settings.lastShape = {dice.upTo(9), dice.real(9000), dice.real(9000), dice.real(9000), 0};
  settings.units = dice.upTo(2);
  return layout;
}

} // namespace trassix::test
