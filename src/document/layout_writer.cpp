#include "document/layout_writer.h"

#include "document/element_writer.h"
#include "document/piece_lines.h"

namespace trassix {

namespace {

constexpr std::size_t kSmallestOutline = 3;

void writePoint(ElementWriter& writer, std::string_view indent, std::string_view opening,
                const Point& point) {
  writer.open(indent, opening);
  writer.real("x", point.x);
  writer.real("y", point.y);
  writer.endEmpty();
}

void writeColor(ElementWriter& writer, const Color& color) {
  writer.integer("r", color.r);
  writer.integer("g", color.g);
  writer.integer("b", color.b);
}

/// A section with its first and last line; nothing when there is nothing in it.
template <class Records, class Write>
void writeSection(ElementWriter& writer, std::string_view opening, std::string_view closing,
                  const Records& records, Write write) {
  if (records.empty())
    return;
  writer.line("  ", opening);
  for (const auto& record : records)
    write(writer, record);
  writer.line("  ", closing);
}

void writeRun(ElementWriter& writer, const GradeRun& run) {
  writer.open("    ", "<run");
  writer.real("deg", run.deg);
  writer.integer("anchor", run.anchor);
  writer.integer("conn", run.conn);
  writer.endEmpty();
}

void writeLevel(ElementWriter& writer, const Level& level) {
  writer.open("    ", "<level");
  writer.integer("id", level.id);
  writer.text("name", level.name);
  writer.flag("visible", level.visible);
  writer.real("height", level.height);
  writer.flag("trackcolor", level.trackcolor);
  writeColor(writer, level.color);
  if (level.outline.size() < kSmallestOutline) {
    writer.endEmpty();
    return;
  }
  writer.endParent();
  for (const Point& point : level.outline)
    writePoint(writer, "      ", "<pt", point);
  writer.line("    ", "</level>");
}

void writeLevels(ElementWriter& writer, const PlanSettings& settings) {
  if (settings.levels.empty())
    return;
  writer.open("  ", "<levels");
  writer.integer("active", settings.activeLevel);
  writer.endParent();
  for (const Level& level : settings.levels)
    writeLevel(writer, level);
  writer.line("  ", "</levels>");
}

void writeVertex(ElementWriter& writer, const Point& vertex) {
  writePoint(writer, "    ", "<vertex", vertex);
}

void writeLastShape(ElementWriter& writer, const LastShape& shape) {
  writer.open("  ", "<lastshape");
  writer.integer("id", shape.kind);
  writer.real("w_mm", shape.w);
  writer.real("h_mm", shape.h);
  writer.real("w2_mm", shape.w2);
  writer.real("h2_mm", shape.h2);
  writer.endEmpty();
}

void writeLabel(ElementWriter& writer, const Label& label) {
  writer.open("    ", "<label");
  writer.integer("id", label.id);
  writer.real("x", label.x);
  writer.real("y", label.y);
  writer.text("text", label.text);
  writer.endEmpty();
}

void writeShape(ElementWriter& writer, const Shape& shape) {
  writer.open("    ", "<shape");
  writer.integer("id", shape.id);
  writeColor(writer, shape.color);
  writer.integer("a", shape.a);
  writer.flag("outline", shape.outline);
  writer.integer("level", shape.level);
  writer.real("height", shape.height);
  writer.text("label", shape.label);
  writer.endParent();
  for (const Point& point : shape.points)
    writePoint(writer, "      ", "<v", point);
  writer.line("    ", "</shape>");
}

void writeTunnel(ElementWriter& writer, const Tunnel& tunnel) {
  writer.open("    ", "<tunnel");
  writer.integer("id", tunnel.id);
  writer.integer("portalA", tunnel.portalA);
  writer.integer("portalB", tunnel.portalB);
  writer.integer("anchorA", tunnel.anchorA);
  writer.integer("anchorB", tunnel.anchorB);
  writer.endParent();
  for (const std::int32_t piece : tunnel.covers) {
    writer.open("      ", "<covers");
    writer.integer("piece", piece);
    writer.endEmpty();
  }
  writer.line("    ", "</tunnel>");
}

void writeHelix(ElementWriter& writer, const Helix& helix) {
  writer.open("    ", "<helix");
  writer.integer("id", helix.id);
  writer.real("cx", helix.cx);
  writer.real("cy", helix.cy);
  writer.real("heading", helix.heading);
  writer.text("variant", helix.variant);
  writer.integer("bottomR1", helix.bottomR1);
  writer.integer("bottomR2", helix.bottomR2);
  writer.integer("topR1", helix.topR1);
  writer.integer("topR2", helix.topR2);
  writer.endEmpty();
}

} // namespace

std::string writeLayout(const Layout& layout, std::string_view name, const TextSink& sink) {
  const PlanContent& content = layout.content();
  const PlanSettings& settings = layout.settings();
  ElementWriter writer(sink);
  writer.line("", kXmlDeclaration);
  writer.open("", "<layout");
  writer.text("name", name);
  writer.text("version", "1");
  writer.integer("units", settings.units);
  writer.endParent();
  writeSection(writer, "<grade_runs>", "</grade_runs>", content.gradeRuns, writeRun);
  writer.line("  ", "<pieces>");
  for (const PlacedPiece& piece : content.pieces)
    writePiece(writer, piece, "    ");
  writer.line("  ", "</pieces>");
  writeScenery(writer, content.scenery);
  writeLevels(writer, settings);
  writeSection(writer, "<baseboard>", "</baseboard>", settings.baseboard, writeVertex);
  writeLastShape(writer, settings.lastShape);
  writeSection(writer, "<labels>", "</labels>", content.labels, writeLabel);
  writeSection(writer, "<shapes>", "</shapes>", content.shapes, writeShape);
  writeSection(writer, "<tunnels>", "</tunnels>", content.tunnels, writeTunnel);
  writeSection(writer, "<helices>", "</helices>", content.helices, writeHelix);
  writer.line("", "</layout>");
  return writer.finish();
}

std::string writeLayout(const Layout& layout, std::string_view name, std::string& text) {
  text.clear();
  return writeLayout(layout, name, [&text](std::string_view part) { text += part; });
}

std::string saveLayout(const Layout& layout, const std::filesystem::path& path,
                       std::string_view name, FileReport* report) {
  return replaceTextFile(
      path, [&](const TextSink& sink) { return writeLayout(layout, name, sink); }, report);
}

} // namespace trassix
