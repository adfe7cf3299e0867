// What a plan is made of: pieces by article, and the plan's measures.
#pragma once

#include "catalog/track_system.h"
#include "geometry/box.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace trassix {

class Layout;

/// What a row of the tally is about.
enum class TallySection : std::uint8_t {
  Pieces,
  SupportsHeading, ///< tells only by its name that rows of supports follow
  Supports,        ///< piers and the like by height, which are no articles
};

/// One article. Pieces placed under another number for it are counted here too.
struct TallyRow {
  std::optional<TrackSystem> system; ///< none for an article that is not in the catalogue
  std::string article;
  std::string name;
  std::int32_t placed = 0; ///< pieces on the plan
  std::int32_t sold = 0;   ///< articles to buy for them: one for two pieces of a pair
  TallySection section = TallySection::Pieces;

  bool operator==(const TallyRow&) const = default;
};

/// Lengths in mm.
struct Tally {
  /// By system, within it in the catalogue's order, unknown ones last; then a heading with what
  /// raised track stands on, if there is any.
  std::vector<TallyRow> rows;
  std::int32_t pieces = 0;   ///< all placed pieces
  double trackLength = 0;    ///< main routes of all pieces, as seen from above
  std::optional<Box> extent; ///< of the track bed; none without known pieces
  std::int32_t openEnds = 0; ///< free ends; the unused positions of turntables are none
};

Tally tallyOf(const Layout& layout);

enum class TallyColumn : std::uint8_t { System, Article, Name, Placed, Sold };
inline constexpr std::size_t kTallyColumnCount = 5;

/// Within each section; rows that are equal in the column keep their order. Articles are ordered by
/// their number, not letter by letter.
void sortTally(std::vector<TallyRow>& rows, TallyColumn column, bool ascending);

using TallyHeadings = std::array<std::string, kTallyColumnCount>;

/// English headings by column.
const TallyHeadings& tallyHeadings();

/// The rows as lines of tab-separated cells, which spreadsheets take from the clipboard. A cell
/// that they would run as a formula gets an apostrophe in front.
std::string tallyAsTable(const std::vector<TallyRow>& rows, const TallyHeadings& headings);

/// The rows as comma-separated values in UTF-8 with CR LF line ends (RFC 4180), and formulas as
/// above.
std::string tallyAsCsv(const std::vector<TallyRow>& rows, const TallyHeadings& headings);

} // namespace trassix
