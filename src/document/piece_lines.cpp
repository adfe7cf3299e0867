#include "document/piece_lines.h"

namespace trassix {

namespace {

std::uint8_t lowByte(std::int32_t value) {
  return static_cast<std::uint8_t>(value % 256);
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

PlacedPiece readPiece(ElementReader& reader) {
  PlacedPiece piece = readPiecePlace(reader);
  piece.z = reader.length("z", 0);
  piece.grade = reader.angle("grade");
  piece.rev = reader.flag("rev");
  piece.free = reader.flag("free");
  piece.helix = reader.integer("helix", -1);
  piece.sel = reader.flag("sel");
  piece.hasColor = !reader.text("color").empty();
  if (piece.hasColor) {
    const std::int32_t value = reader.integer("color");
    piece.color = {lowByte(value / 65536), lowByte(value / 256), lowByte(value)};
  }
  return piece;
}

void readJoint(ElementReader& reader, PlacedPiece& piece) {
  const std::int32_t connector = reader.integer("conn");
  if (connector < 0 || connector >= kMostConnectors)
    reader.fail("no such connector", "conn", reader.text("conn"));
  Joint joint;
  joint.target = reader.integer("target");
  joint.tconn = reader.integer("tconn");
  if (joint.tconn < -1 || joint.tconn >= kMostConnectors)
    reader.fail("no such connector", "tconn", reader.text("tconn"));
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
