// Blocks: parts of a plan kept on their own, in the user's library, on the clipboard, or carried
// over the canvas. Placing one is in editing/block_placing.h.
#pragma once

#include "app/services/text_file.h"
#include "document/element_writer.h"
#include "geometry/point.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace trassix {

struct Block;
class Layout;

/// A block that several hold and none changes.
using SharedBlock = std::shared_ptr<const Block>;

bool isEmpty(const Block& block);

/// Whether anything is selected that a block file can hold.
bool selectionFitsBlockFile(const Layout& layout);

/// Everything selected, in document order; a helix with its record when all of it is.
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
