// Blocks: parts of a plan kept on their own, in the user's library, on the clipboard, or carried
// over the canvas. Placing one is in editing/block_placing.h.
#pragma once

#include "app/services/text_file.h"
#include "document/element_writer.h"
#include "document/layout.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

/// Complete records with the ids and joints they had in their plan, also joints that lead out of
/// the block.
struct Block {
  std::string name;
  PlanContent content;   ///< of it the file has pieces and scenery, without their heights
  bool onLevels = false; ///< pieces have no height of their own, but that of their level

  bool empty() const;
  /// Whether there is something in it that a block file can hold.
  bool hasFilePart() const { return !content.pieces.empty() || !content.scenery.empty(); }
  bool operator==(const Block&) const = default;
};

/// Everything selected, in document order.
Block blockFromSelection(const Layout& layout);

/// Moves the block so that the middle of the box around the positions of its pieces and scenery
/// (not their extents), else of its other records, becomes the origin. Returns where that middle
/// was.
Point centreBlock(Block& block);

/// Gives the text of a block file to `sink`. Returns a message, empty on success; a block
/// without pieces and scenery and numbers that are not finite are refused.
std::string writeBlock(const Block& block, const TextSink& sink);

/// Fills `block` from the text of a block file. Heights, grades, colours, helices and flags stay in
/// the file: a block from there stands on its levels, plain and not selected. Returns a message,
/// empty on success; after a failure the block holds what was read before it.
std::string readBlock(std::string_view text, Block& block);

/// Saves the selection under `name`; see `replaceTextFile`. Messages as above.
std::string saveBlock(const Layout& layout, const std::filesystem::path& path,
                      std::string_view name, FileReport* report = nullptr);

/// `block` is untouched when the file cannot be opened or read. Not centred yet.
std::string loadBlock(const std::filesystem::path& path, Block& block,
                      FileReport* report = nullptr);

} // namespace trassix
