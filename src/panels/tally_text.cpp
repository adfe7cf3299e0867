#include "panels/tally.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace trassix {

namespace {

/// The number an article begins with, then the rest of it.
std::pair<double, std::string_view> articleOrder(const std::string& article) {
  const std::string_view text = article;
  const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
  double number = digits == 0 ? std::numeric_limits<double>::infinity() : 0;
  for (const char digit : text.substr(0, digits)) {
    number = number * 10 + (digit - '0');
  }
  return {number, text.substr(digits)};
}

std::string_view systemText(const TallyRow& row) {
  return row.system ? systemShortName(*row.system) : std::string_view{};
}

template <class Order>
void sortBy(std::vector<TallyRow>& rows, bool ascending, const Order& order) {
  std::ranges::stable_sort(rows, [&](const TallyRow& a, const TallyRow& b) {
    if (a.section != b.section)
      return a.section < b.section;
    return ascending ? order(a) < order(b) : order(b) < order(a);
  });
}

using Cells = std::array<std::string, kTallyColumnCount>;

Cells cellsOf(const TallyRow& row) {
  if (row.section == TallySection::SupportsHeading)
    return {row.name, {}, {}, {}, {}};
  return {std::string(systemText(row)), row.article, row.name, std::to_string(row.placed),
          std::to_string(row.sold)};
}

bool isNegativeNumber(std::string_view text) {
  const std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
  return digits.size() < text.size() && digits.find_first_of("0123456789") != digits.npos &&
         digits.find_first_not_of("0123456789.") == digits.npos &&
         std::ranges::count(digits, '.') <= 1;
}

/// Articles come with the plan, from whoever made it: a spreadsheet would run some as formulas.
std::string plainText(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  const bool formula = first != std::string::npos &&
                       std::string_view("=+-@\t\r\n").find(text[first]) != std::string_view::npos;
  return formula && !isNegativeNumber(text) ? "'" + text : text;
}

/// Nothing in a clipboard table can be quoted, so that separators become blanks.
std::string tableCell(const std::string& cell) {
  std::string text = plainText(cell);
  std::ranges::replace_if(
      text, [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
  return text;
}

std::string csvCell(const std::string& cell) {
  const std::string text = plainText(cell);
  if (text.find_first_of(",\"\r\n") == std::string::npos) {
    return text;
  }
  std::string quoted = "\"";
  for (const char c : text) {
    quoted.append(c == '"' ? 2 : 1, c);
  }
  return quoted + '"';
}

template <class CellText>
std::string asLines(const std::vector<TallyRow>& rows, const TallyHeadings& headings,
                    char separator, std::string_view lineEnd, const CellText& cellText) {
  std::string text;
  const auto addLine = [&](const Cells& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (i > 0) {
        text += separator;
      }
      text += cellText(cells[i]);
    }
    text += lineEnd;
  };
  addLine(headings);
  for (const TallyRow& row : rows) {
    addLine(cellsOf(row));
  }
  return text;
}

} // namespace

void sortTally(std::vector<TallyRow>& rows, TallyColumn column, bool ascending) {
  switch (column) {
  case TallyColumn::System:
    return sortBy(rows, ascending, [](const TallyRow& row) { return systemText(row); });
  case TallyColumn::Article:
    return sortBy(rows, ascending, [](const TallyRow& row) { return articleOrder(row.article); });
  case TallyColumn::Name:
    return sortBy(rows, ascending, [](const TallyRow& row) { return std::string_view(row.name); });
  case TallyColumn::Placed:
    return sortBy(rows, ascending, [](const TallyRow& row) { return row.placed; });
  case TallyColumn::Sold:
    return sortBy(rows, ascending, [](const TallyRow& row) { return row.sold; });
  }
}

const TallyHeadings& tallyHeadings() {
  static const TallyHeadings kHeadings{"System", "Article", "Name", "Placed", "Needed"};
  return kHeadings;
}

std::string tallyAsTable(const std::vector<TallyRow>& rows, const TallyHeadings& headings) {
  return asLines(rows, headings, '\t', "\n", tableCell);
}

std::string tallyAsCsv(const std::vector<TallyRow>& rows, const TallyHeadings& headings) {
  return asLines(rows, headings, ',', "\r\n", csvCell);
}

} // namespace trassix
