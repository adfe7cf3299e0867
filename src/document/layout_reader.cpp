#include "document/layout_reader.h"

#include "app/services/text_file.h"
#include "document/piece_pairs.h"
#include "document/plan_format.h"
#include "document/record_kinds.h"

#include <algorithm>
#include <exception>

namespace trassix {

namespace {

/// Bytes that a piece with its joints takes, at least in most plans.
constexpr std::size_t kPieceText = 200;

void readLines(std::string_view text, PlanParts plan) {
  plan.content.pieces.reserve(text.size() / kPieceText);
  ElementReader reader(text);
  PlanWalk walk;
  while (reader.next()) {
    const Element* element =
        walk.next([&reader](std::string_view opening) { return reader.has(opening); });
    if (element != nullptr && element->take != nullptr)
      element->take(reader, plan);
  }
}

std::int32_t largestId(const PlanContent& content) {
  std::int32_t largest = 0;
  forEachKind(content, [&largest](const auto& records) {
    for (const auto& record : records)
      largest = std::max(largest, record.id);
  });
  return largest;
}

} // namespace

std::string readLayout(std::string_view text, Layout& layout, std::string& name) {
  layout.clear();
  name.clear();
  PlanContent& content = layout.edit();
  std::string message;
  try {
    readLines(text, {content, layout.editSettings(), name});
  } catch (const std::exception& failure) {
    message = failure.what();
  }
  content.mirrorLastGradeRun();
  content.pairs = pairsOfRuns(content.pieces);
  layout.setNextPieceId(largestId(content) + 1);
  layout.ensureLevel();
  return message;
}

bool isWholeLayout(std::string_view text) {
  const std::size_t start = text.find("<layout ");
  return start != std::string_view::npos && text.find("</layout>", start) != std::string_view::npos;
}

std::string loadLayout(const std::filesystem::path& path, Layout& layout, std::string& name) {
  std::string text;
  std::string message = readTextFile(path, text);
  return message.empty() ? readLayout(text, layout, name) : message;
}

} // namespace trassix
