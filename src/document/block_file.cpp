#include "document/block_file.h"

#include "document/element_reader.h"
#include "document/element_writer.h"
#include "document/piece_lines.h"
#include "document/piece_pairs.h"

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

template <class Function>
void forEachRecord(Block& block, Function function) {
  for (PlacedPiece& piece : block.pieces)
    function(piece);
  for (SceneryItem& item : block.scenery)
    function(item);
}

void readLines(ElementReader& reader, Block& block) {
  bool inScenery = false;
  while (reader.next()) {
    if (inScenery) {
      if (reader.has("</scenery>"))
        inScenery = false;
      else if (reader.has("<sceneryitem "))
        block.scenery.push_back(readSceneryItem(reader));
    } else if (reader.has("<block ")) {
      block.name = reader.text("name");
    } else if (reader.has("<piece ")) {
      block.pieces.push_back(readPiecePlace(reader));
    } else if (reader.has("<joint ")) {
      if (!block.pieces.empty())
        readJoint(reader, block.pieces.back());
    } else if (reader.has("<scenery>")) {
      inScenery = true;
    }
  }
}

} // namespace

Block blockFromSelection(const Layout& layout) {
  const auto selected = [](const auto& record) { return record.sel; };
  Block block;
  std::copy_if(layout.pieces().begin(), layout.pieces().end(), std::back_inserter(block.pieces),
               selected);
  std::copy_if(layout.content().scenery.begin(), layout.content().scenery.end(),
               std::back_inserter(block.scenery), selected);
  const auto inBlock = [&layout](std::int32_t id) {
    const PlacedPiece* piece = layout.findPiece(id);
    return piece != nullptr && piece->sel;
  };
  for (const PiecePair& pair : layout.content().pairs)
    if (inBlock(pair.first) && inBlock(pair.second))
      block.pairs.push_back(pair);
  return block;
}

Point centreBlock(Block& block) {
  constexpr double kNothingBelow = 100000000.0;
  Extent x;
  Extent y;
  forEachRecord(block, [&x, &y](const auto& record) {
    x.add(record.x);
    y.add(record.y);
  });
  if (x.min > kNothingBelow)
    return {}; // the box of nothing is at the origin
  const Point middle{x.middle(), y.middle()};
  forEachRecord(block, [middle](auto& record) {
    record.x -= middle.x;
    record.y -= middle.y;
  });
  return middle;
}

std::string writeBlock(const Block& block, const TextSink& sink) {
  if (block.empty())
    return "No pieces or scenery selected";
  ElementWriter writer(sink);
  writer.line("", kXmlDeclaration);
  writer.open("", "<block");
  writer.text("name", block.name);
  writer.text("version", "1");
  writer.endParent();
  for (const PlacedPiece& piece : block.pieces)
    writePiece(writer, piece, "  ");
  writeScenery(writer, block.scenery);
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
  block.pairs = pairsOfRuns(block.pieces);
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
