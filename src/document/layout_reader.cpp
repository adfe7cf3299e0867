#include "document/layout_reader.h"

#include "app/services/text_file.h"
#include "document/element_reader.h"
#include "document/piece_lines.h"
#include "document/piece_pairs.h"

#include <algorithm>
#include <utility>

namespace trassix {

namespace {

Point readPoint(ElementReader& reader) {
  return {reader.length("x"), reader.length("y")};
}

GradeRun readRun(ElementReader& reader) {
  return {reader.angle("deg"), reader.integer("anchor"), reader.integer("conn")};
}

Level readLevel(ElementReader& reader) {
  Level level;
  level.id = reader.integer("id");
  level.name = reader.text("name");
  level.visible = reader.flag("visible");
  level.height = reader.length("height");
  level.trackcolor = reader.flag("trackcolor");
  // With the blank, because `trackcolor` ends like the name of the red part.
  level.color = {reader.byte(" r"), reader.byte("g"), reader.byte("b")};
  return level;
}

LastShape readLastShape(ElementReader& reader) {
  return {reader.integer("id"), reader.length("w_mm"), reader.length("h_mm"),
          reader.length("w2_mm"), reader.length("h2_mm")};
}

Label readLabel(ElementReader& reader) {
  Label label;
  label.id = reader.id("id");
  label.x = reader.length("x");
  label.y = reader.length("y");
  label.text = reader.text("text");
  return label;
}

Shape readShape(ElementReader& reader) {
  Shape shape;
  shape.id = reader.id("id");
  shape.color = {reader.byte("r"), reader.byte("g"), reader.byte("b")};
  shape.a = reader.byte("a");
  shape.outline = reader.flag("outline");
  shape.level = reader.integer("level");
  shape.height = reader.length("height");
  shape.label = reader.text("label");
  return shape;
}

Tunnel readTunnel(ElementReader& reader) {
  Tunnel tunnel;
  tunnel.id = reader.id("id");
  tunnel.portalA = reader.integer("portalA");
  tunnel.portalB = reader.integer("portalB");
  tunnel.anchorA = reader.integer("anchorA");
  tunnel.anchorB = reader.integer("anchorB");
  return tunnel;
}

Helix readHelix(ElementReader& reader) {
  Helix helix;
  helix.id = reader.id("id");
  helix.cx = reader.length("cx");
  helix.cy = reader.length("cy");
  helix.heading = reader.angle("heading");
  if (const std::string_view variant = reader.text("variant"); !variant.empty())
    helix.variant = variant;
  helix.bottomR1 = reader.integer("bottomR1");
  helix.bottomR2 = reader.integer("bottomR2");
  helix.topR1 = reader.integer("topR1");
  helix.topR2 = reader.integer("topR2");
  return helix;
}

/// Takes a layout file line by line. Inside a section only the section's own elements count.
class LayoutReading {
 public:
  LayoutReading(std::string_view text, PlanContent& content, PlanSettings& settings,
                std::string& name)
      : reader_(text), content_(content), settings_(settings), name_(name) {}

  void run() {
    while (reader_.next())
      (this->*section_)();
  }

 private:
  void outside() {
    if (reader_.has("<layout ")) {
      name_ = reader_.text("name");
      settings_.units = reader_.integer("units", 0);
    } else if (reader_.has("<run ")) {
      content_.gradeRuns.push_back(readRun(reader_));
    } else if (reader_.has("<pieces>")) {
      section_ = &LayoutReading::pieces;
      firstPiece_ = content_.pieces.size();
    } else if (reader_.has("<levels ")) {
      settings_.activeLevel = reader_.integer("active");
      section_ = &LayoutReading::levels;
    } else if (reader_.has("<scenery>")) {
      section_ = &LayoutReading::scenery;
    } else if (reader_.has("<baseboard>")) {
      section_ = &LayoutReading::baseboard;
    } else if (reader_.has("<lastshape")) {
      settings_.lastShape = readLastShape(reader_);
    } else if (reader_.has("<label ")) {
      content_.labels.push_back(readLabel(reader_));
    } else if (reader_.has("<shape ")) {
      content_.shapes.push_back(readShape(reader_));
      section_ = &LayoutReading::shape;
    } else if (reader_.has("<tunnel ")) {
      content_.tunnels.push_back(readTunnel(reader_));
    } else if (reader_.has("<covers ")) {
      if (!content_.tunnels.empty())
        content_.tunnels.back().covers.push_back(reader_.integer("piece"));
    } else if (reader_.has("<helix ")) {
      content_.helices.push_back(readHelix(reader_));
    }
  }

  void pieces() {
    if (reader_.has("</pieces>") || reader_.has("</block>") || reader_.has("</layout>"))
      section_ = &LayoutReading::outside;
    else if (reader_.has("<piece "))
      content_.pieces.push_back(readPiece(reader_));
    else if (reader_.has("<joint ") && content_.pieces.size() > firstPiece_)
      readJoint(reader_, content_.pieces.back());
  }

  void scenery() {
    if (reader_.has("</scenery>")) {
      section_ = &LayoutReading::outside;
    } else if (reader_.has("<sceneryitem ")) {
      content_.scenery.push_back(readSceneryItem(reader_));
      content_.scenery.back().sel = reader_.flag("sel");
    }
  }

  void levels() {
    if (reader_.has("</levels>"))
      section_ = &LayoutReading::outside;
    else if (reader_.has("<level "))
      settings_.levels.push_back(readLevel(reader_));
    else if (reader_.has("<pt ") && !settings_.levels.empty())
      settings_.levels.back().outline.push_back(readPoint(reader_));
  }

  void baseboard() {
    if (reader_.has("</baseboard>"))
      section_ = &LayoutReading::outside;
    else if (reader_.has("<vertex "))
      settings_.baseboard.push_back(readPoint(reader_));
  }

  void shape() {
    if (reader_.has("</shape"))
      section_ = &LayoutReading::outside;
    else if (reader_.has("<v "))
      content_.shapes.back().points.push_back(readPoint(reader_));
  }

  ElementReader reader_;
  PlanContent& content_;
  PlanSettings& settings_;
  std::string& name_;
  void (LayoutReading::*section_)() = &LayoutReading::outside;
  std::size_t firstPiece_ = 0;
};

template <class Records>
std::int32_t largestId(const Records& records, std::int32_t largest) {
  for (const auto& record : records)
    largest = std::max(largest, record.id);
  return largest;
}

std::int32_t largestId(const PlanContent& content) {
  std::int32_t largest = largestId(content.pieces, 0);
  largest = largestId(content.scenery, largest);
  largest = largestId(content.labels, largest);
  largest = largestId(content.shapes, largest);
  largest = largestId(content.tunnels, largest);
  return largestId(content.helices, largest);
}

} // namespace

std::string readLayout(std::string_view text, Layout& layout, std::string& name) {
  layout.clear();
  name.clear();
  PlanContent& content = layout.edit();
  std::string message;
  try {
    LayoutReading(text, content, layout.editSettings(), name).run();
  } catch (const std::exception& failure) {
    message = failure.what();
  }
  content.mirrorLastGradeRun();
  content.pairs = pairsOfRuns(content.pieces);
  layout.setNextPieceId(largestId(content) + 1);
  layout.ensureLevel();
  return message;
}

bool isWholeLayout(std::string_view text) {
  const std::size_t start = text.find("<layout ");
  return start != std::string_view::npos && text.find("</layout>", start) != std::string_view::npos;
}

std::string loadLayout(const std::filesystem::path& path, Layout& layout, std::string& name) {
  std::string text;
  std::string message = readTextFile(path, text);
  return message.empty() ? readLayout(text, layout, name) : message;
}

} // namespace trassix
