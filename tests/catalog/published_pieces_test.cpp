// The built-in content against an independent copy of the published list.
#include "catalog/track_catalog.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

namespace trassix {
namespace {

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

TEST(BuiltinCatalog, holdsThePublishedPiecesInOrderAndToTheDigit) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::ifstream list(TRASSIX_SOURCE_DIR "/tests/catalog/published_pieces.txt");
  std::int32_t index = 0;
  for (std::string line; std::getline(list, line);) {
    if (line.starts_with('#'))
      continue;
    SCOPED_TRACE(line);
    const std::vector<std::string> row = split(line, '|');
    const PieceDef* piece = catalog.at(index++);
    ASSERT_NE(piece, nullptr);
    ASSERT_EQ(piece->article, row.at(0));
    EXPECT_EQ(catalog.find(row[0]), piece);
    EXPECT_EQ(piece->name, row.at(1));
    EXPECT_EQ(static_cast<int>(piece->system), std::stoi(row.at(2)));
    EXPECT_EQ(static_cast<int>(piece->kind), std::stoi(row.at(3)));
    EXPECT_EQ(piece->radius, number(row.at(5)));
    EXPECT_EQ(piece->angle, number(row.at(6)));
    const double arc = piece->radius * piece->angle * 3.141592653589793 / 180;
    EXPECT_NEAR(piece->length, row.at(4).empty() ? arc : number(row[4]), 1e-9);
    EXPECT_EQ(flagsOf(*piece), row.at(7));
    EXPECT_EQ(std::to_string(piece->spanA) + "/" + std::to_string(piece->spanB), row.at(8));
    const std::vector<std::string> ends = split(row.at(9), ' ');
    if (ends.front().empty())
      continue;
    ASSERT_EQ(piece->connectors.size(), ends.size() + 1);
    for (std::size_t i = 0; i < ends.size(); ++i) {
      const std::vector<std::string> end = split(ends[i], ',');
      const Connector& connector = piece->connectors[i + 1];
      // Computed ends are published rounded to four decimals.
      EXPECT_NEAR(connector.x, number(end.at(0)), 5.1e-5);
      EXPECT_NEAR(connector.y, number(end.at(1)), 5.1e-5);
      EXPECT_NEAR(connector.heading, number(end.at(2)), 5.1e-5);
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

} // namespace
} // namespace trassix
