#include "panels/palette_model.h"

#include "catalog/plain_track.h"
#include "catalog/track_catalog.h"
#include "document/layout.h"
#include "editing/placing/runs.h"
#include "editing/track/short_name.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <utility>

namespace trassix {

namespace {

constexpr std::size_t kMostRecent = 8;

/// Only ASCII letters have a case in the catalogue.
std::string lowerCase(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return lower;
}

bool isNumber(std::string_view word) {
  return std::ranges::all_of(word, [](char c) { return (c >= '0' && c <= '9') || c == '.'; });
}

std::vector<std::string> wordsOf(std::string_view text) {
  std::vector<std::string> words(1);
  for (const char c : lowerCase(text)) {
    if (c == ' ' || c == '\t') {
      words.emplace_back();
    } else {
      words.back() += c;
    }
  }
  std::erase(words, "");
  for (std::string& word : words) {
    std::string pointed = word;
    std::ranges::replace(pointed, ',', '.');
    if (isNumber(pointed)) {
      word = pointed;
    }
  }
  return words;
}

/// Takes "6x" or "6 x " off the front; 1 where there is nothing of the kind.
int takeCount(std::string_view& text) {
  const auto skipBlanks = [](std::string_view from) {
    return from.substr(std::min(from.find_first_not_of(' '), from.size()));
  };
  const std::string_view typed = skipBlanks(text);
  int count = 0;
  const auto end = std::from_chars(typed.data(), typed.data() + typed.size(), count);
  if (end.ec != std::errc() || count < 1 || count > kLongestRun)
    return 1;
  std::string_view rest =
      skipBlanks(typed.substr(static_cast<std::size_t>(end.ptr - typed.data())));
  for (const std::string_view sign : {"x", "X", "*", "\u00d7"})
    if (rest.starts_with(sign)) {
      text = rest.substr(sign.size());
      return count;
    }
  return 1;
}

std::string numberText(double value) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value);
  return {text.data(), end.ptr};
}

/// What people call a sort of piece beside what its name says.
std::string_view sortWords(const PieceDef& piece) {
  switch (piece.kind) {
  case PieceKind::Straight:
    return "straight";
  case PieceKind::Curve:
    return "curve curved";
  case PieceKind::TurnoutLeft:
    return piece.connectors.size() > 3 ? "turnout switch points three-way"
                                       : "turnout switch points left";
  case PieceKind::TurnoutRight:
    return "turnout switch points right";
  case PieceKind::CurvedTurnout:
  case PieceKind::CurvedTurnoutSpaced:
    return "turnout switch points curved";
  case PieceKind::DoubleSlip:
    return "double slip switch crossing";
  case PieceKind::Crossing:
    return piece.frogPiece ? "turnout frog" : "crossing diamond";
  case PieceKind::TrackEnd:
    return "track end buffer stop bumper";
  case PieceKind::Uncoupler:
    return "uncoupler straight";
  case PieceKind::Turntable:
    return "turntable";
  }
  return {};
}

std::string joined(std::string_view a, std::string_view b, std::string_view c) {
  return lowerCase(std::string(a) + '\n' + std::string(b) + '\n' + std::string(c));
}

} // namespace

std::string_view groupName(PieceGroup group) {
  constexpr std::array<std::string_view, 7> kNames{
      trLater("Recently used"),    trLater("Straights"),           trLater("Curves"),
      trLater("Turnouts"),         trLater("Crossings and slips"), trLater("Specials"),
      trLater("Bridges and ramps")};
  return kNames.at(static_cast<std::size_t>(group));
}

PieceGroup groupOf(const PieceDef& piece) {
  if (piece.bridge || piece.ramp) {
    return PieceGroup::Bridges;
  }
  if (piece.frogPiece) {
    return PieceGroup::Turnouts;
  }
  switch (piece.kind) {
  case PieceKind::Straight:
    return hasOwnFunction(piece) ? PieceGroup::Specials : PieceGroup::Straights;
  case PieceKind::Curve:
    // "Compensation" names the purpose of a curve that is plain track.
    return hasOwnFunction(piece) && piece.name.find("Compensation") == std::string::npos
               ? PieceGroup::Specials
               : PieceGroup::Curves;
  case PieceKind::TurnoutLeft:
  case PieceKind::TurnoutRight:
  case PieceKind::CurvedTurnout:
  case PieceKind::CurvedTurnoutSpaced:
    return PieceGroup::Turnouts;
  case PieceKind::Crossing:
  case PieceKind::DoubleSlip:
    return PieceGroup::Crossings;
  case PieceKind::TrackEnd:
  case PieceKind::Uncoupler:
  case PieceKind::Turntable:
    break;
  }
  return PieceGroup::Specials;
}

std::vector<TrackSystem> paletteSystems() {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::vector<TrackSystem> systems;
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const TrackSystem system = catalog.at(i)->system;
    if (std::ranges::find(systems, system) == systems.end()) {
      systems.push_back(system);
    }
  }
  return systems;
}

void PaletteModel::setSystem(TrackSystem system) {
  system_ = system;
  entries_.clear();
  const TrackCatalog& catalog = TrackCatalog::instance();
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& piece = *catalog.at(i);
    if (piece.system != system) {
      continue;
    }
    const ShortName shown = shortNameOf(piece, kMillimetres);
    const std::string names = piece.name + '\n' + shown.text + '\n' + shown.rest;
    Entry entry{&piece, groupOf(piece), joined(piece.article, names, sortWords(piece)), {}};
    // The length of a curve is computed and nowhere written.
    const double length = piece.kind == PieceKind::Curve ? 0 : piece.length;
    for (const double value : {length, piece.radius, std::abs(piece.angle)}) {
      if (value != 0) {
        entry.numbers.push_back(numberText(value));
      }
    }
    entries_.push_back(std::move(entry));
  }
  fillPieces();
  fillScenery();
  fillHelices();
}

void PaletteModel::setSearch(std::string_view text) {
  count_ = takeCount(text);
  search_ = wordsOf(text);
  fillPieces();
  fillScenery();
  fillHelices();
}

void PaletteModel::noteUse(std::string_view article) {
  const PieceDef* piece = TrackCatalog::instance().find(article);
  if (piece == nullptr) {
    return;
  }
  std::erase(recent_, piece);
  recent_.insert(recent_.begin(), piece);
  recent_.resize(std::min(recent_.size(), kMostRecent));
  fillPieces();
}

bool PaletteModel::found(std::string_view words, std::span<const std::string> numbers) const {
  return std::ranges::all_of(search_, [&](const std::string& word) {
    return words.find(word) != std::string::npos ||
           std::ranges::any_of(
               numbers, [&word](const std::string& number) { return number.starts_with(word); });
  });
}

void PaletteModel::fillHelices() {
  helices_ = helixSizes(system_);
  std::erase_if(helices_, [this](const HelixKit* kit) {
    const std::array numbers{numberText(kit->inner->radius), numberText(kit->outermost().radius)};
    return !found(lowerCase("helix spiral " + kit->radii), numbers);
  });
}

void PaletteModel::fillPieces() {
  std::map<std::pair<PieceGroup, double>, PaletteGroup> filed;
  const auto file = [&filed](PieceGroup group, double radius, const PieceDef* piece) {
    PaletteGroup& entry = filed[{group, radius}];
    entry.group = group;
    entry.radius = radius;
    entry.pieces.push_back(piece);
  };
  for (const Entry& entry : entries_) {
    if (found(entry.words, entry.numbers)) {
      const bool curve = entry.group == PieceGroup::Curves;
      file(entry.group, curve ? entry.piece->radius : 0, entry.piece);
    }
  }
  for (const PieceDef* piece : recent_) {
    const auto entry = std::ranges::find(entries_, piece, &Entry::piece);
    if (entry != entries_.end() && found(entry->words, entry->numbers)) {
      file(PieceGroup::Recent, 0, piece);
    }
  }
  groups_.clear();
  for (auto& [key, group] : filed) {
    groups_.push_back(std::move(group));
  }
}

void PaletteModel::fillScenery() {
  const Gauge gauge = gaugeOf(system_);
  std::array<SceneryGroup, kSceneryCategoryCount> groups;
  for (const SceneryDef& item : sceneryItems()) {
    const std::string text = joined(item.key, item.name, categoryName(item.category));
    if (item.madeFor(gauge) && std::ranges::all_of(search_, [&text](const std::string& word) {
          return text.find(word) != std::string::npos;
        })) {
      SceneryGroup& group = groups.at(static_cast<std::size_t>(item.category));
      group.category = item.category;
      group.items.push_back(&item);
    }
  }
  scenery_.clear();
  std::ranges::copy_if(groups, std::back_inserter(scenery_),
                       [](const SceneryGroup& group) { return !group.items.empty(); });
}

} // namespace trassix
