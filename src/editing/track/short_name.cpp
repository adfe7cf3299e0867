#include "editing/track/short_name.h"

#include "catalog/plain_track.h"
#include "catalog/track_catalog.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <string_view>
#include <vector>

namespace trassix {

namespace {

/// Words of names that say nothing which kind and measures do not say as well.
constexpr std::array<std::string_view, 22> kPlainWords{
    "straight", "track", "length", "curve",  "curved",      "turnout", "left", "right",
    "standard", "large", "ii",     "radius", "outer",       "spacing", "set",  "switch",
    "mm",       "to",    "for",    "trix",   "symmetrical", "comp"};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string lowerCase(std::string_view word) {
  std::string lower(word);
  std::ranges::transform(lower, lower.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
  });
  return lower;
}

/// The name without what stands in brackets together with a number.
std::string withoutMeasures(const std::string& name) {
  std::string rest;
  std::size_t from = 0;
  for (std::size_t open = name.find('('); open != std::string::npos;
       open = name.find('(', open + 1)) {
    const std::size_t close = std::min(name.find(')', open), name.size() - 1);
    const std::string_view inside = std::string_view(name).substr(open, close - open);
    if (open < from || !std::ranges::any_of(inside, isDigit))
      continue;
    rest.append(name, from, open - from).append(" ");
    from = close + 1;
  }
  return rest.append(name, from, std::string::npos);
}

/// What the name says beyond kind and measures, in small letters: "feeder", "slim", "arch bridge".
std::string remark(const PieceDef& piece) {
  std::string said;
  std::string turntable;
  const std::string name = withoutMeasures(piece.name);
  for (std::size_t at = 0; at < name.size();) {
    const std::size_t end = std::min(name.find(' ', at), name.size());
    std::string_view word = std::string_view(name).substr(at, end - at);
    at = end + 1;
    if (std::ranges::any_of(word, isDigit))
      continue;
    while (!word.empty() && !isLetter(word.front()))
      word.remove_prefix(1);
    while (!word.empty() && !isLetter(word.back()))
      word.remove_suffix(1);
    const std::string lower = lowerCase(word);
    if (lower.size() < 2 || std::ranges::find(kPlainWords, lower) != kPlainWords.end())
      continue;
    // What belongs to a turntable is filed beside it.
    std::string& words = lower == "turntable" ? turntable : said;
    words.append(said.empty() ? "" : " ").append(lower);
  }
  return said.empty() ? turntable : said;
}

std::string angleText(double degrees) {
  std::array<char, 32> text{};
  const double rounded = std::round(std::abs(degrees) * 100) / 100;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), rounded);
  return std::string(text.data(), end.ptr).append("\u00b0");
}

/// "R2" where a name in the system calls the radius so, else "R 553.9 mm".
std::string radiusText(const PieceDef& piece, std::int32_t units) {
  constexpr double kSame = 0.5; // mm
  const TrackCatalog& catalog = TrackCatalog::instance();
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& other = *catalog.at(i);
    if (other.system != piece.system || std::abs(other.radius - piece.radius) > kSame)
      continue;
    const std::string name = std::string(other.name).append(" ");
    for (std::size_t at = name.find(" R"); at != std::string::npos; at = name.find(" R", at + 1))
      if (at + 3 < name.size() && isDigit(name[at + 2]) && !isDigit(name[at + 3]))
        return name.substr(at + 1, 2);
  }
  return std::string("R ").append(formatBriefLength(piece.radius, units));
}

std::string arcText(const PieceDef& piece, std::int32_t units) {
  return joinTexts({radiusText(piece, units), angleText(piece.angle)}, " ");
}

std::string lineUp(const std::vector<std::string>& words) {
  std::string line;
  for (const std::string& word : words)
    if (!word.empty())
      line.append(line.empty() ? "" : ", ").append(word);
  return line;
}

struct Words {
  std::vector<std::string> said;
  std::string rest; ///< said as well where there are others of the same words
};

Words wordsOfTurnout(const PieceDef& piece, std::int32_t units) {
  const bool curved =
      piece.kind == PieceKind::CurvedTurnout || piece.kind == PieceKind::CurvedTurnoutSpaced;
  if (piece.connectors.size() > 3)
    return {{remark(piece)}, arcText(piece, units)};
  const bool left = curved ? piece.angle < 0 : piece.kind == PieceKind::TurnoutLeft;
  return {{left ? tr("left") : tr("right"), curved ? tr("curved") : "", remark(piece)},
          arcText(piece, units)};
}

Words wordsOf(const PieceDef& piece, std::int32_t units) {
  const std::string length = formatBriefLength(piece.length, units);
  switch (piece.kind) {
  case PieceKind::TurnoutLeft:
  case PieceKind::TurnoutRight:
  case PieceKind::CurvedTurnout:
  case PieceKind::CurvedTurnoutSpaced:
    return wordsOfTurnout(piece, units);
  case PieceKind::Crossing:
  case PieceKind::DoubleSlip:
    return {{remark(piece), angleText(piece.angle)}, piece.frogPiece ? "" : length};
  case PieceKind::TrackEnd:
    return {{remark(piece)}, length};
  case PieceKind::Turntable:
    return {{remark(piece)}, ""};
  case PieceKind::Straight:
  case PieceKind::Curve:
  case PieceKind::Uncoupler:
    break;
  }
  const std::string measure = piece.kind == PieceKind::Curve ? arcText(piece, units) : length;
  for (const TrackSystem other : piece.adapterSystems)
    if (other != piece.system) {
      const std::string_view name = systemName(other);
      return {{tr("%1% adapter", {name.substr(name.rfind(' ') + 1)}), measure}, ""};
    }
  // "Compensation" names the purpose of a curve that is plain track.
  const bool special =
      piece.bridge || piece.kind == PieceKind::Uncoupler ||
      (hasOwnFunction(piece) && piece.name.find("Compensation") == std::string::npos);
  return special ? Words{{remark(piece), measure}, ""} : Words{{measure, remark(piece)}, ""};
}

ShortName derivedName(const PieceDef& piece, std::int32_t units) {
  const Words words = wordsOf(piece, units);
  const std::string text = lineUp(words.said);
  if (words.rest.empty())
    return {text, ""};
  const TrackCatalog& catalog = TrackCatalog::instance();
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& other = *catalog.at(i);
    if (other.system != piece.system || other.kind == PieceKind::Straight ||
        other.kind == PieceKind::Curve)
      continue;
    const Words others = wordsOf(other, units);
    if (others.said == words.said && others.rest != words.rest)
      return {lineUp({text, words.rest}), ""};
  }
  return {text, words.rest};
}

} // namespace

std::string nameInList(const PieceDef& piece, std::int32_t units) {
  const std::string text = shortNameOf(piece, units).text;
  const bool turnout =
      piece.kind == PieceKind::TurnoutLeft || piece.kind == PieceKind::TurnoutRight ||
      piece.kind == PieceKind::CurvedTurnout || piece.kind == PieceKind::CurvedTurnoutSpaced;
  return turnout ? lineUp({text, tr("turnout")}) : text;
}

ShortName shortNameOf(const PieceDef& piece, std::int32_t units) {
  if (TrackCatalog::instance().find(piece.article) != &piece)
    return derivedName(piece, units);
  // Which words tell a piece from the others takes a look at all of them.
  static std::map<std::pair<const PieceDef*, std::int32_t>, ShortName> kept;
  const auto [name, isNew] = kept.try_emplace({&piece, units});
  if (isNew)
    name->second = derivedName(piece, units);
  return name->second;
}

} // namespace trassix
