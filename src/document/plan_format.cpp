#include "document/plan_format.h"

#include "document/piece_lines.h"
#include "document/plan_content.h"

#include <array>
#include <utility>

namespace trassix {

namespace {

constexpr std::size_t kSmallestOutline = 3;

template <class Line>
void fields(Line& line, In<Line, Point>& point) {
  line("x", point.x, kLength);
  line("y", point.y, kLength);
}

template <class Line>
void fields(Line& line, In<Line, GradeRun>& run) {
  line("deg", run.deg, kAngle);
  line("anchor", run.anchor, kInteger);
  line("conn", run.conn, kInteger);
}

template <class Line>
void fields(Line& line, In<Line, Level>& level) {
  line("id", level.id, kInteger);
  line("name", level.name, kText);
  line("visible", level.visible, kFlag);
  line("height", level.height, kLength);
  line("trackcolor", level.trackcolor, kFlag);
  line("r", level.color.r, kByteApart);
  line("g", level.color.g, kByte);
  line("b", level.color.b, kByte);
}

template <class Line>
void fields(Line& line, In<Line, LastShape>& shape) {
  line("id", shape.kind, kInteger);
  line("w_mm", shape.w, kLength);
  line("h_mm", shape.h, kLength);
  line("w2_mm", shape.w2, kLength);
  line("h2_mm", shape.h2, kLength);
}

template <class Line>
void fields(Line& line, In<Line, Label>& label) {
  line("id", label.id, kId);
  line("x", label.x, kLength);
  line("y", label.y, kLength);
  line("text", label.text, kText);
}

template <class Line>
void fields(Line& line, In<Line, Shape>& shape) {
  line("id", shape.id, kId);
  line("r", shape.color.r, kByte);
  line("g", shape.color.g, kByte);
  line("b", shape.color.b, kByte);
  line("a", shape.a, kByte);
  line("outline", shape.outline, kFlag);
  line("level", shape.level, kInteger);
  line("height", shape.height, kLength);
  line("label", shape.label, kText);
}

template <class Line>
void fields(Line& line, In<Line, Tunnel>& tunnel) {
  line("id", tunnel.id, kId);
  line("portalA", tunnel.portalA, kInteger);
  line("portalB", tunnel.portalB, kInteger);
  line("anchorA", tunnel.anchorA, kInteger);
  line("anchorB", tunnel.anchorB, kInteger);
}

template <class Line>
void fields(Line& line, In<Line, Helix>& helix) {
  line("id", helix.id, kId);
  line("cx", helix.cx, kLength);
  line("cy", helix.cy, kLength);
  line("heading", helix.heading, kAngle);
  line("variant", helix.variant, kText);
  line("bottomR1", helix.bottomR1, kInteger);
  line("bottomR2", helix.bottomR2, kInteger);
  line("topR1", helix.topR1, kInteger);
  line("topR2", helix.topR2, kInteger);
}

template <class Record>
Record read(ElementReader& reader) {
  Record record;
  ReadFields line{reader};
  fields(line, record);
  return record;
}

template <class Record>
std::vector<AttributeName> namesOf() {
  ListFields line;
  fields(line, Record());
  return std::move(line.names);
}

template <class... Names>
std::vector<AttributeName> named(Names... names) {
  return {{names}...};
}

template <auto Records>
void takeRecord(ElementReader& reader, PlanParts& plan) {
  auto& records = plan.content.*Records;
  records.push_back(read<typename std::remove_cvref_t<decltype(records)>::value_type>(reader));
}

void takeHelix(ElementReader& reader, PlanParts& plan) {
  auto helix = read<Helix>(reader);
  if (helix.variant.empty())
    helix.variant = Helix().variant;
  plan.content.helices.push_back(std::move(helix));
}

void takeLayout(ElementReader& reader, PlanParts& plan) {
  plan.name = reader.text("name");
  plan.settings.units = reader.integer("units", 0);
}

using Reader = ElementReader&;
using Plan = PlanParts&;
using Elements = std::vector<Element>;

Elements outside() {
  using enum Section;
  using enum Element::Rule;
  return {
      {"<layout ", Outside, takeLayout, named("name", "version", "units"), Once},
      {"<run ", Outside, takeRecord<&PlanContent::gradeRuns>, namesOf<GradeRun>()},
      {"<pieces>", Pieces, nullptr, {}, Afresh},
      {"<levels ", Levels, [](Reader r, Plan p) { p.settings.activeLevel = r.integer("active"); },
       named("active"), Once},
      {"<scenery>", Scenery},
      {"<baseboard>", Baseboard},
      {"<lastshape", Outside, [](Reader r, Plan p) { p.settings.lastShape = read<LastShape>(r); },
       namesOf<LastShape>(), Once},
      {"<label ", Outside, takeRecord<&PlanContent::labels>, namesOf<Label>()},
      {"<shape ", Vertices, takeRecord<&PlanContent::shapes>, namesOf<Shape>()},
      {"<tunnel ", Outside, takeRecord<&PlanContent::tunnels>, namesOf<Tunnel>()},
      {"<covers ", Outside,
       [](Reader r, Plan p) { p.content.tunnels.back().covers.push_back(r.integer("piece")); },
       named("piece"), Part},
      {"<helix ", Outside, takeHelix, namesOf<Helix>()},
  };
}

Elements pieces() {
  using enum Section;
  return {
      {"</pieces>", Outside},
      {"</block>", Outside},
      {"</layout>", Outside},
      {"<piece ", Pieces, [](Reader r, Plan p) { appendPiece(r, p.content.pieces); },
       named("id", "cat", "x", "y", "heading", "z", "grade", "rev", "free", "level", "helix", "sel",
             "color")},
      {"<joint ", Pieces, [](Reader r, Plan p) { readJoint(r, p.content.pieces.back()); },
       named("conn", "target", "tconn"), Element::Rule::Part},
  };
}

Elements scenery() {
  using enum Section;
  return {{"</scenery>", Outside},
          {"<sceneryitem ", Scenery,
           [](Reader r, Plan p) { p.content.scenery.push_back(readSceneryItem(r)); },
           named("id", "item", "x", "y", "heading", "scalex", "scaley", "level", "sel")}};
}

Elements levels() {
  using enum Section;
  return {
      {"</levels>", Outside},
      {"<level ", Levels, [](Reader r, Plan p) { p.settings.levels.push_back(read<Level>(r)); },
       namesOf<Level>()},
      {"<pt ", Levels,
       [](Reader r, Plan p) { p.settings.levels.back().outline.push_back(read<Point>(r)); },
       namesOf<Point>(), Element::Rule::Part},
  };
}

Elements baseboard() {
  using enum Section;
  return {{"</baseboard>", Outside},
          {"<vertex ", Baseboard,
           [](Reader r, Plan p) { p.settings.baseboard.push_back(read<Point>(r)); },
           namesOf<Point>()}};
}

Elements vertices() {
  using enum Section;
  return {{"</shape", Outside},
          {"<v ", Vertices,
           [](Reader r, Plan p) { p.content.shapes.back().points.push_back(read<Point>(r)); },
           namesOf<Point>()}};
}

Elements holders() {
  using enum Section;
  return {{"<grade_runs>", Nowhere},
          {"<labels>", Nowhere},
          {"<shapes>", Nowhere},
          {"<tunnels>", Nowhere},
          {"<helices>", Nowhere}};
}

template <class Record>
void open(ElementWriter& writer, std::string_view indent, std::string_view opening,
          const Record& record) {
  writer.open(indent, opening);
  WriteFields line{writer};
  fields(line, record);
}

template <class Record>
void writeEmpty(ElementWriter& writer, std::string_view indent, std::string_view opening,
                const Record& record) {
  open(writer, indent, opening, record);
  writer.endEmpty();
}

void write(ElementWriter& writer, const GradeRun& run) {
  writeEmpty(writer, "    ", "<run", run);
}

void write(ElementWriter& writer, const Point& vertex) {
  writeEmpty(writer, "    ", "<vertex", vertex);
}

void write(ElementWriter& writer, const Label& label) {
  writeEmpty(writer, "    ", "<label", label);
}

void write(ElementWriter& writer, const Helix& helix) {
  writeEmpty(writer, "    ", "<helix", helix);
}

void write(ElementWriter& writer, const Level& level) {
  open(writer, "    ", "<level", level);
  if (level.outline.size() < kSmallestOutline)
    return writer.endEmpty();
  writer.endParent();
  for (const Point& point : level.outline)
    writeEmpty(writer, "      ", "<pt", point);
  writer.line("    ", "</level>");
}

void write(ElementWriter& writer, const Shape& shape) {
  open(writer, "    ", "<shape", shape);
  writer.endParent();
  for (const Point& point : shape.points)
    writeEmpty(writer, "      ", "<v", point);
  writer.line("    ", "</shape>");
}

void write(ElementWriter& writer, const Tunnel& tunnel) {
  open(writer, "    ", "<tunnel", tunnel);
  writer.endParent();
  for (const std::int32_t piece : tunnel.covers) {
    writer.open("      ", "<covers");
    writer.integer("piece", piece);
    writer.endEmpty();
  }
  writer.line("    ", "</tunnel>");
}

/// With the section's first and last line; nothing when there is nothing in it.
template <class Records>
void writeSection(ElementWriter& writer, std::string_view opening, std::string_view closing,
                  const Records& records) {
  if (records.empty())
    return;
  writer.line("  ", opening);
  for (const auto& record : records)
    write(writer, record);
  writer.line("  ", closing);
}

void writePieces(ElementWriter& writer, const Layout& layout) {
  writer.line("  ", "<pieces>");
  for (const PlacedPiece& piece : layout.pieces())
    writePiece(writer, piece, "    ");
  writer.line("  ", "</pieces>");
}

void writeLevels(ElementWriter& writer, const Layout& layout) {
  if (layout.settings().levels.empty())
    return;
  writer.open("  ", "<levels");
  writer.integer("active", layout.settings().activeLevel);
  writer.endParent();
  for (const Level& level : layout.settings().levels)
    write(writer, level);
  writer.line("  ", "</levels>");
}

using Writer = ElementWriter&;

constexpr WritePart kParts[] = {
    [](Writer w, const Layout& l) {
      writeSection(w, "<grade_runs>", "</grade_runs>", l.content().gradeRuns);
    },
    writePieces,
    [](Writer w, const Layout& l) { writeScenery(w, l.content().scenery); },
    writeLevels,
    [](Writer w, const Layout& l) {
      writeSection(w, "<baseboard>", "</baseboard>", l.settings().baseboard);
    },
    [](Writer w, const Layout& l) { writeEmpty(w, "  ", "<lastshape", l.settings().lastShape); },
    [](Writer w, const Layout& l) { writeSection(w, "<labels>", "</labels>", l.content().labels); },
    [](Writer w, const Layout& l) { writeSection(w, "<shapes>", "</shapes>", l.content().shapes); },
    [](Writer w, const Layout& l) {
      writeSection(w, "<tunnels>", "</tunnels>", l.content().tunnels);
    },
    [](Writer w, const Layout& l) {
      writeSection(w, "<helices>", "</helices>", l.content().helices);
    },
};

} // namespace

std::string_view Element::name() const {
  return opening.substr(1, opening.find_last_not_of(" >"));
}

const std::vector<Element>& elementsOf(Section section) {
  static const std::array kSections{outside(),   pieces(),   scenery(), levels(),
                                    baseboard(), vertices(), holders()};
  return kSections[static_cast<std::size_t>(section)];
}

bool PlanWalk::enter(const Element& element) {
  std::uint32_t& met = met_[static_cast<std::size_t>(section_)];
  const auto row = &element - elements_->data();
  if (element.rule == Element::Rule::Part && (met >> (row - 1) & 1U) == 0)
    return false;
  met |= std::uint32_t{1} << row;
  if (element.next != section_) {
    section_ = element.next;
    elements_ = &elementsOf(section_);
    if (element.rule == Element::Rule::Afresh)
      met_[static_cast<std::size_t>(section_)] = 0;
  }
  return true;
}

std::span<const WritePart> writtenParts() {
  return kParts;
}

} // namespace trassix
