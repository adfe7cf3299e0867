// The lines that layout and block files have in common.
#pragma once

#include "document/element_reader.h"
#include "document/element_writer.h"
#include "document/records.h"

#include <string_view>
#include <vector>

namespace trassix {

/// Ends that a piece can have at most: those of the largest turntable. A joint beyond is a damaged
/// file, and following it would only fill the memory with open slots.
inline constexpr std::int32_t kMostConnectors = 48;

inline constexpr std::string_view kXmlDeclaration = R"(<?xml version="1.0" encoding="UTF-8"?>)";

void writePiece(ElementWriter& writer, const PlacedPiece& piece, std::string_view indent);
/// The whole section with its first and last line; nothing when there are no items.
void writeScenery(ElementWriter& writer, const std::vector<SceneryItem>& scenery);

/// Appends the piece that begins on the current line, without its joints.
void appendPiece(ElementReader& reader, std::vector<PlacedPiece>& pieces);

/// Reads only what the piece is and where it lies in the plan: `id`, `cat`, `x`, `y`, `heading` and
/// `level`.
PlacedPiece readPiecePlace(ElementReader& reader);

/// Puts the joint on the current line into the piece's table, lengthening it as needed.
void readJoint(ElementReader& reader, PlacedPiece& piece);

SceneryItem readSceneryItem(ElementReader& reader);

} // namespace trassix
