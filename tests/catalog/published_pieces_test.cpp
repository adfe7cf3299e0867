// The built-in content against an independent copy of the published list.
#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"

#include <gmock/gmock.h>

#include <cmath>
#include <fstream>
#include <sstream>

namespace trassix {
namespace {

constexpr double kRadian = 3.141592653589793 / 180;

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> fields;
  std::string field;
  for (std::istringstream in(text + separator); std::getline(in, field, separator);)
    fields.push_back(field);
  return fields;
}

double number(const std::string& text) {
  return text.empty() ? 0 : std::stod(text);
}

std::string flagsOf(const PieceDef& piece) {
  std::string flags;
  flags += piece.bridge ? " bridge" : "";
  flags += piece.pair ? " pair" : "";
  flags += piece.ramp ? " ramp" : "";
  flags += piece.turnoutSet ? " turnoutSet" : "";
  flags += piece.frogPiece ? " frogPiece" : "";
  for (const TrackSystem system : piece.adapterSystems)
    flags += " adapter" + std::to_string(static_cast<int>(system));
  return flags.empty() ? flags : flags.substr(1);
}

void expectEnd(const PieceDef& piece, std::size_t index, double x, double y, double heading) {
  ASSERT_LT(index, piece.connectors.size());
  const Connector& end = piece.connectors[index];
  // Computed ends are published rounded to four decimals.
  EXPECT_NEAR(end.x, x, 5.1e-5) << "end " << index;
  EXPECT_NEAR(end.y, y, 5.1e-5) << "end " << index;
  EXPECT_NEAR(std::remainder(end.heading - heading, 360), 0, 5.1e-5) << "end " << index;
}

TEST(BuiltinCatalog, holdsThePublishedPiecesInOrderAndToTheDigit) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::ifstream list(TRASSIX_SOURCE_DIR "/tests/catalog/published_pieces.txt");
  std::int32_t index = 0;
  for (std::string line; std::getline(list, line);) {
    if (line.starts_with('#'))
      continue;
    SCOPED_TRACE(line);
    const std::vector<std::string> row = split(line, '|');
    const PieceDef* found = catalog.at(index++);
    ASSERT_NE(found, nullptr);
    const PieceDef& piece = *found;
    ASSERT_EQ(piece.article, row.at(0));
    EXPECT_EQ(catalog.find(row[0]), found);
    EXPECT_EQ(piece.name, row.at(1));
    EXPECT_EQ(static_cast<int>(piece.system), std::stoi(row.at(2)));
    EXPECT_EQ(static_cast<int>(piece.kind), std::stoi(row.at(3)));
    EXPECT_EQ(piece.radius, number(row.at(5)));
    EXPECT_EQ(piece.angle, number(row.at(6)));
    const double arc = piece.radius * piece.angle * kRadian;
    EXPECT_NEAR(piece.length, row.at(4).empty() ? arc : number(row[4]), 1e-9);
    EXPECT_EQ(flagsOf(piece), row.at(7));
    EXPECT_EQ(std::to_string(piece.spanA) + "/" + std::to_string(piece.spanB), row.at(8));
    for (std::size_t i = 0; i < piece.connectors.size(); ++i) {
      const Connector& end = piece.connectors[i];
      EXPECT_TRUE(end.valid && end.id == static_cast<std::int32_t>(i));
      EXPECT_TRUE(end.heading >= 0 && end.heading < 360);
    }
    const std::vector<std::string> ends =
        row.at(9).empty() ? std::vector<std::string>() : split(row[9], ' ');
    const std::size_t atOrigin = piece.kind == PieceKind::Turntable ? 0 : 1;
    ASSERT_EQ(piece.connectors.size(), ends.size() + atOrigin);
    if (atOrigin == 1)
      expectEnd(piece, 0, 0, 0, 180);
    for (std::size_t i = 0; i < ends.size(); ++i) {
      const std::vector<std::string> end = split(ends[i], ',');
      expectEnd(piece, i + atOrigin, number(end.at(0)), number(end.at(1)), number(end.at(2)));
    }
  }
  EXPECT_EQ(index, 246);
  EXPECT_EQ(catalog.count(), index);
}

TEST(BuiltinCatalog, findsAliasesAndKeepsThemOutOfTheSequence) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  for (const auto& [alias, article] : {std::pair{"62636", "74636T"},
                                       {"62620", "74620T"},
                                       {"62623", "74623T"},
                                       {"62613", "74613T"}}) {
    ASSERT_NE(catalog.find(alias), nullptr) << alias;
    EXPECT_EQ(catalog.find(alias)->article, article);
  }
  for (const char* missing : {"", "24188 ", "74636t", "62618", "9999"})
    EXPECT_EQ(catalog.find(missing), nullptr) << missing;
  EXPECT_EQ(catalog.at(-1), nullptr);
  EXPECT_EQ(catalog.at(catalog.count()), nullptr);
  EXPECT_EQ(catalog.find("62624")->connectors, catalog.find("24624")->connectors);
}

TEST(TrackCatalog, letsANewerRecordTakeOverItsArticle) {
  TrackCatalog catalog;
  EXPECT_EQ(catalog.find("A"), nullptr);
  PieceDef piece;
  for (const auto& [article, name] : {std::pair{"A", "old"}, {"B", "other"}, {"A", "new"}}) {
    piece.article = article;
    piece.name = name;
    catalog.add(piece);
  }
  catalog.alias("A2", "A");
  EXPECT_EQ(catalog.count(), 3);
  EXPECT_EQ(catalog.at(0)->name, "old");
  EXPECT_EQ(catalog.find("A")->name, "new");
  EXPECT_EQ(catalog.find("A2")->name, "new");
  catalog.alias("B2", "unknown");
  EXPECT_EQ(catalog.find("B2"), catalog.at(0));
  EXPECT_EQ(catalog.find("unknown"), catalog.at(0));
}

TEST(PieceBuilders, copeWithTheEdges) {
  const auto branch = [](PieceKind side, double length, double angle) {
    return makeTurnout(TrackSystem::ZTrack, "a", "n", side, length, 490, angle).connectors[2];
  };
  EXPECT_NEAR(branch(PieceKind::TurnoutRight, 111, 13).x, 110.23, 0.005); // not cut
  EXPECT_EQ(branch(PieceKind::TurnoutLeft, 110, 0).heading, 0);
  EXPECT_EQ(copyAs(nullptr, TrackSystem::CTrack, "a", "n"), PieceDef{});
}

} // namespace
} // namespace trassix
