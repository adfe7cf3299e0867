#include "damaged_plan.h"

#include "document/block.h"
#include "document/block_file.h"
#include "document/layout_writer.h"
#include "document/record_kinds.h"
#include "editing/placing/placing.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/selection.h"

#include <vector>

namespace trassix::fuzz {

namespace {

constexpr const char* kNumbers[] = {
    "-1",          "0",       "1",       "2",          "3",           "5",          "7",
    "12",          "46",      "47",      "48",         "999",         "-2",         "1e19",
    "1e308",       "-1e308",  "1000000", "-1000000",   "1000001",     "0.001",      "1000",
    "1e-320",      "nan",     "90",      "2147483647", "-2147483648", "2000000000", "1999999999",
    "999999.9999", "45.0001", "",        "x"};

Layout intactPlan() {
  Layout layout;
  layout.ensureLevel();
  layout.ensureLevel(2);
  layout.editSettings().levels[1].height = 80;
  const auto drop = [&layout](const char* article, const Pose& pose) {
    return dropPiece(layout, article, pose, {}, false).placed.front();
  };
  drop("24188", {});
  for (const char* article : {"24130", "24611", "24188", "24130", "24630", "74618"})
    extendSelected(layout, article);
  const std::int32_t alone = drop("24188", {900, 300, 0});
  extendSelected(layout, "24188");
  layout.editPiece(alone)->grade = 2.5;
  layout.startGradeRun(alone, 1, 2.5);
  drop("24188", {1500, 300, 0});
  drop("74861", {300, -900, 0});
  drop("2200", {0, 900, 0});
  extendSelected(layout, "2221");
  PlacedPiece& unknown = layout.edit().pieces.emplace_back(layout.pieces().front());
  unknown.id = layout.takeId();
  unknown.cat = "no such article";
  dropScenery(layout, "74861", {2000, 0, 0});
  dropScenery(layout, "72886", {2100, 300, 0});
  addLabel(layout, {10, 10}, "Depot");
  addShape(layout, {{0, 0}, {400, 0}, {400, 300}});
  PlanContent& content = layout.edit();
  content.tunnels.push_back({layout.takeId(), 1, 2, 3, 4, {2, 3}});
  content.helices.push_back({layout.takeId(), 0, 0, 0, "proses_2_5_r1r2", 5, 6, 7, 8});
  content.pieces[7].helix = content.helices[0].id;
  layout.editSettings().baseboard = {{-100, -100}, {3000, -100}, {3000, 2000}};
  layout.editSettings().levels[1].outline = {{0, 0}, {1000, 0}, {1000, 500}};
  return layout;
}

const std::string& intactText() {
  static const std::string text = [] {
    std::string written;
    writeLayout(intactPlan(), "plan", written);
    return written;
  }();
  return text;
}

const std::string& intactBlockText() {
  static const std::string text = [] {
    Layout layout = intactPlan();
    selectAll(layout);
    std::string written;
    writeBlock(blockFromSelection(layout), [&written](std::string_view part) { written += part; });
    return written;
  }();
  return text;
}

using Lines = std::vector<std::string>;

Lines linesOf(const std::string& text) {
  Lines lines;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = text.find('\n', from);
    lines.push_back(text.substr(from, end - from));
    from = end + 1;
  }
  return lines;
}

/// Another number in the place of one of the line's values.
void changeValue(std::string& line, Dice& dice) {
  std::vector<std::size_t> values;
  for (std::size_t at = line.find("=\""); at != std::string::npos; at = line.find("=\"", at + 1))
    values.push_back(at + 2);
  if (values.empty())
    return;
  const std::size_t from = dice.of(values);
  const std::size_t end = line.find('"', from);
  if (end != std::string::npos)
    line.replace(from, end - from, dice.of(kNumbers));
}

void damageLines(Lines& lines, Dice& dice) {
  const std::size_t at = dice.below(lines.size());
  const auto line = lines.begin() + static_cast<std::ptrdiff_t>(at);
  const std::size_t count = std::min(1 + dice.below(8), lines.size() - at);
  const Lines some(line, line + static_cast<std::ptrdiff_t>(count));
  switch (dice.below(8)) {
  case 0:
    lines.erase(line);
    break;
  case 1: // doubled there or elsewhere
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(dice.below(lines.size())),
                 some.begin(), some.end());
    break;
  case 2:
    std::swap(*line, dice.of(lines));
    break;
  default:
    changeValue(*line, dice);
  }
}

std::string damaged(const std::string& intact, Dice& dice) {
  Lines lines = linesOf(intact);
  for (std::size_t left = 1 + dice.below(8); left > 0 && !lines.empty(); --left)
    damageLines(lines, dice);
  const char* end = dice.oneIn(40) ? "" : "\n";
  std::string text;
  for (const std::string& line : lines)
    text += line + end;
  if (dice.oneIn(20))
    text.resize(dice.below(text.size()));
  if (dice.oneIn(20) && !text.empty())
    dice.of(text) = static_cast<char>(dice.below(256));
  return text;
}

} // namespace

std::string damagedPlan(Dice& dice) {
  return damaged(intactText(), dice);
}

std::string damagedBlock(Dice& dice) {
  return damaged(intactBlockText(), dice);
}

} // namespace trassix::fuzz
