#include "output/parts_pages.h"

#include "catalog/track_catalog.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_theme.h"
#include "editing/track/piece_outline.h"
#include "output/page_painter.h"
#include "output/page_set.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kLineMm = 11;
constexpr double kHeadMm = 10; ///< of the row of column titles
constexpr double kPictureMm = 34;
constexpr double kNumberMm = 17; ///< of a column of numbers
constexpr std::size_t kNumbers = 4;
constexpr Rgba kInk{20, 24, 30};
constexpr Rgba kSoft{110, 116, 124};
constexpr Stroke kRule{{200, 204, 210}, 0.6};
constexpr double kTextPx = 11;

double px(double mm) {
  return mm * kPxPerMm;
}

/// Text that begins or ends at a place, on its middle line.
void textFrom(Surface& surface, std::string_view text, Point start, const TextStyle& style) {
  surface.text(text, {start.x + surface.textSize(text, style).width / 2, start.y}, 0, style);
}
void textTo(Surface& surface, std::string_view text, Point end, const TextStyle& style) {
  surface.text(text, {end.x - surface.textSize(text, style).width / 2, end.y}, 0, style);
}

/// As much of the text as there is room for.
std::string shortened(Surface& surface, std::string text, double room, const TextStyle& style) {
  if (surface.textSize(text, style).width <= room)
    return text;
  while (!text.empty() && surface.textSize(text + "…", style).width > room) {
    while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0U) == 0x80U)
      text.pop_back();
    if (!text.empty())
      text.pop_back();
  }
  return text.append("…");
}

void paintPiece(Surface& surface, const PieceDef& piece, const Box& room) {
  const Box outline = outlineOf(&piece).box;
  const double zoom = std::min({(room.maxX - room.minX) / (outline.maxX - outline.minX),
                                (room.maxY - room.minY) / (outline.maxY - outline.minY), 0.45});
  const ViewTransform view = ViewTransform::ofScale(
      zoom, {(room.minX + room.maxX - (outline.minX + outline.maxX) * zoom) / 2,
             (room.minY + room.maxY - (outline.minY + outline.maxY) * zoom) / 2});
  PieceLook look;
  look.bed = opaque(paperTheme().bed);
  look.sleepers = false;
  PiecePainter(surface, view, paperTheme()).paint(piece, {}, look);
}

} // namespace

std::vector<PartsLine> partsLines(const std::vector<TallyRow>& tally, const OwnedStock& owned) {
  const std::vector<PurchaseRow> purchase = purchaseList(tally, owned);
  std::vector<PartsLine> lines;
  for (std::size_t i = 0; i < tally.size(); ++i) {
    if (tally[i].section == TallySection::Supports) { // needed as often as they are placed
      lines.push_back({false, tally[i], {{}, {}, tally[i].sold, 0, tally[i].sold}});
      continue;
    }
    if (tally[i].section == TallySection::SupportsHeading) {
      lines.push_back({true, tally[i], {}});
      continue;
    }
    if (i == 0 || tally[i].system != tally[i - 1].system) {
      PartsLine heading;
      heading.heading = true;
      heading.tally.system = tally[i].system;
      lines.push_back(heading);
    }
    lines.push_back({false, tally[i], purchase[i]});
  }
  return lines;
}

std::vector<std::span<const PartsLine>> partsPages(std::span<const PartsLine> lines,
                                                   const Paper& paper) {
  const double room = paper.printable().height - kFooterMm - kHeadMm;
  const auto most = static_cast<std::size_t>(std::max(2.0, std::floor(room / kLineMm)));
  std::vector<std::span<const PartsLine>> pages;
  while (!lines.empty()) {
    std::size_t count = std::min(most, lines.size());
    if (count < lines.size() && lines[count - 1].heading)
      --count;
    pages.push_back(lines.first(count));
    lines = lines.subspan(count);
  }
  return pages;
}

void paintParts(Surface& surface, std::span<const PartsLine> lines, const Paper& paper) {
  const double left = px(paper.margins.left);
  const double right = px(paper.size.width - paper.margins.right);
  const double articleAt = left + px(kPictureMm);
  const double nameAt = articleAt + px(22);
  const double numbersAt = right - px(kNumberMm * kNumbers);
  const TextStyle plain{kInk, kTextPx};
  const TextStyle bold{kInk, kTextPx, true};
  const TextStyle soft{kSoft, kTextPx - 1};

  double y = px(paper.margins.top + kHeadMm / 2);
  textFrom(surface, tr("Article"), {articleAt, y}, soft);
  textFrom(surface, tr("Name"), {nameAt, y}, soft);
  const std::array<std::string, kNumbers> titles{tr("On plan"), tr("Needed"), tr("Owned"),
                                                 tr("To buy")};
  const auto numberEnd = [&](std::size_t i) {
    return numbersAt + px(kNumberMm) * (static_cast<double>(i) + 1);
  };
  for (std::size_t i = 0; i < kNumbers; ++i)
    textTo(surface, titles[i], {numberEnd(i), y}, soft);
  y = px(paper.margins.top + kHeadMm);
  for (const PartsLine& line : lines) {
    const double middle = y + px(kLineMm) / 2;
    if (line.heading) {
      textFrom(surface,
               line.tally.system          ? std::string(systemName(*line.tally.system))
               : !line.tally.name.empty() ? line.tally.name
                                          : tr("Not in the catalogue"),
               {left, middle + px(1)}, {kInk, kTextPx + 2, true});
    } else {
      if (const PieceDef* piece = TrackCatalog::instance().find(line.tally.article))
        paintPiece(surface, *piece,
                   {left, y + px(1), left + px(kPictureMm - 4), y + px(kLineMm - 1)});
      textFrom(surface, line.tally.article, {articleAt, middle}, bold);
      textFrom(surface, shortened(surface, line.tally.name, numbersAt + px(4) - nameAt, plain),
               {nameAt, middle}, plain);
      const std::array<std::int32_t, kNumbers> numbers{line.tally.placed, line.purchase.needed,
                                                       line.purchase.owned, line.purchase.toBuy};
      for (std::size_t i = 0; i < kNumbers; ++i)
        textTo(surface, std::to_string(numbers[i]), {numberEnd(i), middle},
               i + 1 == kNumbers ? bold : plain);
    }
    y += px(kLineMm);
    surface.polyline(std::array<Point, 2>{{{left, y}, {right, y}}}, kRule);
  }
}

} // namespace trassix
