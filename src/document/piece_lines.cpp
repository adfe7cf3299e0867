#include "document/piece_lines.h"

#include "document/limits.h"
#include "document/plan_content.h"
#include "document/written_line.h"

namespace trassix {

namespace {

std::uint8_t lowByte(std::int32_t value) {
  return static_cast<std::uint8_t>(value % 256);
}

void setColor(PlacedPiece& piece, std::int32_t value) {
  piece.hasColor = true;
  piece.color = {lowByte(value / 65536), lowByte(value / 256), lowByte(value)};
}

/// Takes what `readPiece` finds in a line as `writePiece` writes it; false for any other line.
bool readWritten(WrittenLine line, PlacedPiece& piece) {
  const bool read =
      line.skip("<piece") && line.integer("id", piece.id) && line.text("cat", piece.cat) &&
      line.real("x", piece.x) && line.real("y", piece.y) && line.real("heading", piece.heading) &&
      line.real("z", piece.z) && line.real("grade", piece.grade) &&
      (!line.isNext("rev") || line.flag("rev", piece.rev)) &&
      (!line.isNext("free") || line.flag("free", piece.free)) &&
      line.integer("level", piece.level) &&
      (!line.isNext("helix") || line.integer("helix", piece.helix)) && line.flag("sel", piece.sel);
  if (read && line.isNext("color")) {
    std::int32_t color = -1;
    if (!line.integer("color", color))
      return false;
    setColor(piece, color);
  }
  return read && line.skip(">") && line.atEnd() && isLength(piece.x) && isLength(piece.y) &&
         isLength(piece.z);
}

bool readWritten(WrittenLine line, std::int32_t& connector, Joint& joint) {
  return line.skip("<joint") && line.integer("conn", connector) &&
         line.integer("target", joint.target) && line.integer("tconn", joint.tconn) &&
         line.skip("/>") && line.atEnd() && connector >= 0 && connector < kMostConnectors &&
         joint.tconn >= -1 && joint.tconn < kMostConnectors;
}

PlacedPiece readPiece(ElementReader& reader) {
  PlacedPiece piece = readPiecePlace(reader);
  piece.z = reader.length("z", 0);
  piece.grade = reader.angle("grade");
  piece.rev = reader.flag("rev");
  piece.free = reader.flag("free");
  piece.helix = reader.integer("helix", -1);
  piece.sel = reader.flag("sel");
  if (!reader.text("color").empty())
    setColor(piece, reader.integer("color"));
  return piece;
}

void searchJoint(ElementReader& reader, std::int32_t& connector, Joint& joint) {
  connector = reader.integer("conn");
  if (connector < 0 || connector >= kMostConnectors)
    reader.fail("no such connector", "conn", reader.text("conn"));
  joint.target = reader.integer("target");
  joint.tconn = reader.integer("tconn");
  if (joint.tconn < -1 || joint.tconn >= kMostConnectors)
    reader.fail("no such connector", "tconn", reader.text("tconn"));
}

void writeSceneryItem(ElementWriter& writer, const SceneryItem& item) {
  writer.open("    ", "<sceneryitem");
  writer.integer("id", item.id);
  writer.text("item", item.item);
  writer.real("x", item.x);
  writer.real("y", item.y);
  writer.real("heading", item.heading);
  writer.real("scalex", item.scalex);
  writer.real("scaley", item.scaley);
  writer.integer("level", item.level);
  writer.flag("sel", item.sel);
  writer.endEmpty();
}

} // namespace

void writePiece(ElementWriter& writer, const PlacedPiece& piece, std::string_view indent) {
  writer.open(indent, "<piece");
  writer.integer("id", piece.id);
  writer.text("cat", piece.cat);
  writer.real("x", piece.x);
  writer.real("y", piece.y);
  writer.real("heading", piece.heading);
  writer.real("z", piece.z);
  writer.real("grade", piece.grade);
  if (piece.rev)
    writer.flag("rev", true);
  if (piece.free)
    writer.flag("free", true);
  writer.integer("level", piece.level);
  if (piece.helix != -1)
    writer.integer("helix", piece.helix);
  writer.flag("sel", piece.sel);
  if (piece.hasColor)
    writer.integer("color", piece.color.r * 65536 + piece.color.g * 256 + piece.color.b);
  writer.endParent();
  std::int32_t connector = 0;
  for (const Joint& joint : piece.joints) {
    if (!joint.open()) {
      writer.open(indent, "  <joint");
      writer.integer("conn", connector);
      writer.integer("target", joint.target);
      writer.integer("tconn", joint.tconn);
      writer.endEmpty();
    }
    ++connector;
  }
  writer.line(indent, "</piece>");
}

void writeScenery(ElementWriter& writer, const std::vector<SceneryItem>& scenery) {
  if (scenery.empty())
    return;
  writer.line("  ", "<scenery>");
  for (const SceneryItem& item : scenery)
    writeSceneryItem(writer, item);
  writer.line("  ", "</scenery>");
}

PlacedPiece readPiecePlace(ElementReader& reader) {
  PlacedPiece piece;
  piece.id = reader.id("id");
  piece.cat = reader.text("cat");
  piece.x = reader.length("x");
  piece.y = reader.length("y");
  piece.heading = reader.angle("heading");
  piece.level = reader.integer("level", 1);
  return piece;
}

void appendPiece(ElementReader& reader, std::vector<PlacedPiece>& pieces) {
  if (readWritten(WrittenLine(reader.onlyTag()), pieces.emplace_back()))
    return;
  pieces.pop_back();
  pieces.push_back(readPiece(reader));
}

void readJoint(ElementReader& reader, PlacedPiece& piece) {
  std::int32_t connector = 0;
  Joint joint;
  if (!readWritten(WrittenLine(reader.onlyTag()), connector, joint))
    searchJoint(reader, connector, joint);
  const auto slot = static_cast<std::size_t>(connector);
  if (slot >= piece.joints.size())
    piece.joints.resize(slot + 1);
  piece.joints[slot] = joint;
}

SceneryItem readSceneryItem(ElementReader& reader) {
  SceneryItem item;
  item.id = reader.id("id");
  item.item = reader.text("item");
  item.x = reader.length("x");
  item.y = reader.length("y");
  item.heading = reader.angle("heading");
  item.scalex = reader.scale("scalex");
  item.scaley = reader.scale("scaley");
  item.level = reader.integer("level");
  item.sel = reader.flag("sel");
  return item;
}

} // namespace trassix
