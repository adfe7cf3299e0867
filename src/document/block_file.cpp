#include "document/block_file.h"

#include "document/block.h"
#include "document/element_reader.h"
#include "document/element_writer.h"
#include "document/helix_records.h"
#include "document/layout.h"
#include "document/piece_lines.h"
#include "document/piece_pairs.h"
#include "document/record_kinds.h"

#include <algorithm>
#include <exception>
#include <iterator>

namespace trassix {

namespace {

struct Extent {
  double min = 1000000000.0;
  double max = -1000000000.0;

  void add(double value) {
    min = std::min(min, value);
    max = std::max(max, value);
  }
  double middle() const { return (min + max) * 0.5; }
};

/// Without turning, so that coordinates stay exact.
struct Shift {
  Point by;

  Point operator()(Point p) const { return {p.x + by.x, p.y + by.y}; }
  Pose operator()(const Pose& p) const { return {p.x + by.x, p.y + by.y, p.heading}; }
};

void readLines(ElementReader& reader, Block& block) {
  bool inScenery = false;
  while (reader.next()) {
    if (inScenery) {
      if (reader.has("</scenery>"))
        inScenery = false;
      else if (reader.has("<sceneryitem ")) {
        block.content.scenery.push_back(readSceneryItem(reader));
        block.content.scenery.back().sel = false;
      }
    } else if (reader.has("<block ")) {
      block.name = reader.text("name");
    } else if (reader.has("<piece ")) {
      block.content.pieces.push_back(readPiecePlace(reader));
    } else if (reader.has("<joint ")) {
      if (!block.content.pieces.empty())
        readJoint(reader, block.content.pieces.back());
    } else if (reader.has("<scenery>")) {
      inScenery = true;
    }
  }
}

} // namespace

bool isEmpty(const Block& block) {
  bool none = true;
  forEachKind(block.content, [&none](const auto& records) { none = none && records.empty(); });
  return none;
}

bool selectionFitsBlockFile(const Layout& layout) {
  return blockFromSelection(layout).hasFilePart();
}

Block blockFromSelection(const Layout& layout) {
  Block block;
  forEachSelectable(layout.content(), [&block](const auto& records) {
    using Records = std::remove_cvref_t<decltype(records)>;
    std::ranges::copy_if(records, std::back_inserter(recordsOf<Records>(block.content)),
                         [](const auto& record) { return record.sel; });
  });
  const auto inBlock = [&layout](std::int32_t id) {
    const PlacedPiece* piece = layout.findPiece(id);
    return piece != nullptr && piece->sel;
  };
  for (const PiecePair& pair : layout.content().pairs)
    if (inBlock(pair.first) && inBlock(pair.second))
      block.content.pairs.push_back(pair);
  const std::vector<std::int32_t> whole = selectedHelices(layout.content());
  for (const Helix& helix : layout.content().helices)
    if (std::ranges::binary_search(whole, helix.id))
      block.content.helices.push_back(helix);
  return block;
}

Point centreBlock(Block& block) {
  constexpr double kNothingBelow = 100000000.0;
  Extent x;
  Extent y;
  const auto add = [&x, &y](Point p) {
    x.add(p.x);
    y.add(p.y);
  };
  forEachKind(block.content, [&](const auto& records) {
    using Record = typename std::remove_cvref_t<decltype(records)>::value_type;
    constexpr bool kInFiles =
        Record::kKind == RecordKind::Piece || Record::kKind == RecordKind::Scenery;
    if (kInFiles || !block.hasFilePart())
      for (const auto& record : records)
        forEachPosition(record, add);
  });
  if (x.min > kNothingBelow)
    return {}; // the box of nothing is at the origin
  const Point middle{x.middle(), y.middle()};
  forEachKind(block.content, [middle](auto& records) {
    for (auto& record : records)
      moveRecord(record, Shift{{-middle.x, -middle.y}});
  });
  return middle;
}

std::string writeBlock(const Block& block, const TextSink& sink) {
  if (!block.hasFilePart())
    return "No pieces or scenery selected";
  ElementWriter writer(sink);
  writer.line("", kXmlDeclaration);
  writer.open("", "<block");
  writer.text("name", block.name);
  writer.text("version", "1");
  writer.endParent();
  for (const PlacedPiece& piece : block.content.pieces)
    writePiece(writer, piece, "  ");
  writeScenery(writer, block.content.scenery);
  writer.line("", "</block>");
  return writer.finish();
}

std::string readBlock(std::string_view text, Block& block) {
  block = {};
  block.onLevels = true;
  try {
    ElementReader reader(text);
    readLines(reader, block);
  } catch (const std::exception& failure) {
    return failure.what();
  }
  block.content.pairs = pairsOfRuns(block.content.pieces);
  return {};
}

std::string saveBlock(const Layout& layout, const std::filesystem::path& path,
                      std::string_view name, FileReport* report) {
  Block block = blockFromSelection(layout);
  block.name = name;
  return replaceTextFile(
      path, [&block](const TextSink& sink) { return writeBlock(block, sink); }, report);
}

std::string loadBlock(const std::filesystem::path& path, Block& block, FileReport* report) {
  std::string text;
  std::string message = readTextFile(path, text, report);
  return message.empty() ? readBlock(text, block) : message;
}

} // namespace trassix
