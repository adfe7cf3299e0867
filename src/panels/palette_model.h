// What the palette shows: the pieces of one system by what they are, and the scenery that suits it,
// both narrowed by a search.
#pragma once

#include "catalog/helix_kits.h"
#include "catalog/piece_def.h"
#include "catalog/scenery_catalog.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class Layout;

/// In the order in which the palette shows them.
enum class PieceGroup : std::uint8_t {
  Recent,
  Straights,
  Curves,
  Turnouts,
  Crossings,
  Specials,
  Bridges,
};

/// Heading in English, "Curves" for every radius.
std::string_view groupName(PieceGroup group);

/// Where a piece is filed: by its kind, but bridges and ramps together, and pieces with a function
/// of their own (feeders, circuit and contact tracks, adapters, bumpers, turntables) as specials.
PieceGroup groupOf(const PieceDef& piece);

struct PaletteGroup {
  PieceGroup group = PieceGroup::Straights;
  double radius = 0;                   ///< mm, of a group of curves
  std::vector<const PieceDef*> pieces; ///< owned by the catalogue; in its order

  bool operator==(const PaletteGroup&) const = default;
};

struct SceneryGroup {
  SceneryCategory category = SceneryCategory::Building;
  std::vector<const SceneryDef*> items;
};

/// The systems that have pieces, in the order in which the catalogue begins them.
std::vector<TrackSystem> paletteSystems();

/// Groups are never empty: one in which nothing is found is left out.
///
/// A search is a row of words that must all be found, in any case: as part of the article, of the
/// name or of a word for the sort of piece ("turnout", "slip", "buffer"), or, for a number, as the
/// beginning of the length, radius or angle ("437" finds 437.5). A decimal comma is taken as a
/// point. "6x" before it asks for six of what is chosen.
class PaletteModel {
 public:
  explicit PaletteModel(TrackSystem system = TrackSystem::CTrack) { setSystem(system); }

  void setSystem(TrackSystem system);
  TrackSystem system() const { return system_; }

  void setSearch(std::string_view text);
  /// How many of a piece are asked for, 1 to `kLongestRun`.
  int count() const { return count_; }

  /// Puts a piece on top of the recent ones, of which the last eight are remembered. Those of the
  /// chosen system are shown.
  void noteUse(std::string_view article);

  const std::vector<PaletteGroup>& groups() const { return groups_; }
  const std::vector<SceneryGroup>& scenery() const { return scenery_; }
  /// A kit for each radius and pair of radii of the system.
  const std::vector<const HelixKit*>& helices() const { return helices_; }

 private:
  struct Entry {
    const PieceDef* piece = nullptr;
    PieceGroup group = PieceGroup::Straights;
    std::string words;                ///< lower-case text that is searched
    std::vector<std::string> numbers; ///< length, radius and angle as they are written
  };

  bool found(std::string_view words, std::span<const std::string> numbers) const;
  void fillPieces();
  void fillScenery();
  void fillHelices();

  TrackSystem system_ = TrackSystem::CTrack;
  std::vector<std::string> search_; ///< lower-case words
  int count_ = 1;
  std::vector<Entry> entries_;
  std::vector<const PieceDef*> recent_; ///< newest first, of any system
  std::vector<PaletteGroup> groups_;
  std::vector<SceneryGroup> scenery_;
  std::vector<const HelixKit*> helices_;
};

} // namespace trassix
