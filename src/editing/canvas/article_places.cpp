#include "editing/canvas/article_places.h"

#include "document/plan_content.h"
#include "editing/canvas/occupancy.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/record_pictures.h"
#include "editing/helix/helix_rings.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <utility>

namespace trassix {

namespace {

constexpr double kFromZoom = 0.22; ///< of H0; articles of wider track show from farther away
constexpr double kUsualHalfWidth = 18.7;

/// Where the article is tried beside the middle of a piece: side of the track, and px farther out.
/// Curves bend away from the text on one side only.
constexpr std::array<std::pair<double, double>, 6> kTries{
    {{-1, 0}, {1, 0}, {-1, 5}, {1, 5}, {-1, 11}, {1, 11}}};
constexpr double kFarthest = 11;

constexpr double kBlockPx = 256;
constexpr std::size_t kMostBlocks = 2000; ///< kept, some 8 MB

using Block = std::pair<std::int32_t, std::int32_t>;

struct BlockHash {
  std::size_t operator()(Block block) const {
    return static_cast<std::size_t>(block.first) * 0x9E3779B1U ^
           static_cast<std::size_t>(block.second);
  }
};

std::int32_t blockOf(double px) {
  return static_cast<std::int32_t>(std::floor(px / kBlockPx));
}

template <class Visit>
void forEachBlock(const Box& px, Visit visit) {
  for (std::int32_t y = blockOf(px.minY); y <= blockOf(px.maxY); ++y)
    for (std::int32_t x = blockOf(px.minX); x <= blockOf(px.maxX); ++x)
      visit(Block{x, y});
}

Box around(Point at, double reach) {
  return {at.x - reach, at.y - reach, at.x + reach, at.y + reach};
}

} // namespace

/// Two turned boxes have no point in common when a side of one parts them.
bool ArticlePlaces::Place::overlaps(const Place& b) const {
  const Place& a = *this;
  const Point between{b.at.x - a.at.x, b.at.y - a.at.y};
  const auto parted = [&](const Place& by) {
    const double c = std::cos(toRadians(by.angle));
    const double s = std::sin(toRadians(by.angle));
    const auto reach = [&](const Place& of, double alongX, double alongY) {
      const double pc = std::cos(toRadians(of.angle));
      const double ps = std::sin(toRadians(of.angle));
      return (std::abs(alongX * pc + alongY * ps) * of.size.width +
              std::abs(alongY * pc - alongX * ps) * of.size.height) /
             2;
    };
    return std::abs(between.x * c + between.y * s) >= reach(a, c, s) + reach(b, c, s) ||
           std::abs(between.y * c - between.x * s) >= reach(a, -s, c) + reach(b, -s, c);
  };
  return !parted(a) && !parted(b);
}

/// A piece keeps its first place off the track unless an earlier one has chosen a place there; then
/// it takes another one that nobody chose first, unless an earlier one of those that had to give
/// way has taken that. So what a piece does depends on few others near it.
struct ArticlePlaces::Data {
  struct Piece {
    const PieceDef* definition = nullptr;
    const TrackGeometry* geometry = nullptr;
    Pose pose;
    Point spot; ///< where its article belongs, px
    bool firstKnown = false;
    bool secondKnown = false;
    std::size_t tried = 0; ///< the try that was the first free one
    std::optional<Place> first;
    bool gaveWay = false;
    std::optional<Place> second;
  };

  std::uint64_t stamp = 0;
  double zoom = 0;
  std::vector<std::int32_t> leftOut;
  const PlanIndex* index = nullptr;
  std::vector<Piece> pieces; // by position
  std::unordered_map<Block, std::vector<std::uint32_t>, BlockHash> spots;
  std::unordered_map<Block, Occupancy, BlockHash> track;
  double widest = 0; ///< reach of an article from its spot, px, without its text

  void start(const Layout& layout);
  const Occupancy& trackIn(Block block);
  bool offTrack(Point centre, SizePx box, double degrees);
  bool offTrack(const Place& place);
  SizePx sizeOf(const Piece& piece, Surface& surface) const;
  Place placeAt(const Piece& piece, std::size_t attempt, SizePx size) const;
  std::optional<Place> nextFree(const Piece& piece, std::size_t from, Surface& surface,
                                std::size_t& attempt);
  const std::optional<Place>& firstOf(std::uint32_t position, Surface& surface);
  const std::optional<Place>& secondOf(std::uint32_t position, Surface& surface);
  bool givesWay(std::uint32_t position, Surface& surface);
  const std::optional<Place>& placeOf(std::uint32_t position, Surface& surface);
  /// Whether `test` holds for any piece whose article may lie on the place.
  template <class Test>
  bool anyNear(const Place& place, std::uint32_t self, Test test);
};

void ArticlePlaces::Data::start(const Layout& layout) {
  pieces.assign(layout.pieces().size(), {});
  spots.clear();
  track.clear();
  widest = 0;
  const HelixRings rings(layout);
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const PlacedPiece& placed = layout.pieces()[i];
    const PieceDef* definition = index->definition(i);
    if (definition == nullptr || !layout.pieceVisible(placed) ||
        std::ranges::binary_search(leftOut, placed.id))
      continue;
    Piece& piece = pieces[i];
    piece.definition = definition;
    piece.geometry = &trackGeometryOf(*definition);
    piece.pose = poseOf(placed);
    if (zoom * piece.geometry->halfWidth / kUsualHalfWidth < kFromZoom || rings.hold(placed))
      continue;
    const Point at = toWorld(piece.pose, piece.geometry->labelSpot);
    piece.spot = {at.x * zoom, at.y * zoom};
    widest = std::max(widest, piece.geometry->halfWidth * zoom + kFarthest + 12);
    spots[{blockOf(piece.spot.x), blockOf(piece.spot.y)}].push_back(static_cast<std::uint32_t>(i));
  }
}

const Occupancy& ArticlePlaces::Data::trackIn(Block block) {
  if (const auto known = track.find(block); known != track.end())
    return known->second;
  if (track.size() >= kMostBlocks)
    track.clear();
  Occupancy& taken = track.try_emplace(block, SizePx{kBlockPx, kBlockPx}).first->second;
  const Point corner{block.first * kBlockPx, block.second * kBlockPx};
  const Box mm{corner.x / zoom, corner.y / zoom, (corner.x + kBlockPx) / zoom,
               (corner.y + kBlockPx) / zoom};
  std::vector<Point> line;
  for (const std::size_t position : index->inBox(mm, false)) {
    const Piece& piece = pieces[position];
    if (piece.definition == nullptr)
      continue;
    for (const auto& centre : trackLinesOf(*piece.definition, 0.5 / zoom).centreLines) {
      line.clear();
      for (const Point& p : centre) {
        const Point at = toWorld(piece.pose, p);
        line.push_back({at.x * zoom - corner.x, at.y * zoom - corner.y});
      }
      taken.mark(line, piece.geometry->halfWidth * zoom - 1);
    }
  }
  return taken;
}

bool ArticlePlaces::Data::offTrack(Point centre, SizePx box, double degrees) {
  bool free = true;
  forEachBlock(around(centre, std::hypot(box.width, box.height) / 2), [&](Block block) {
    const Point at{centre.x - block.first * kBlockPx, centre.y - block.second * kBlockPx};
    free = free && trackIn(block).isFree(at, box, degrees);
  });
  return free;
}

bool ArticlePlaces::Data::offTrack(const Place& place) {
  return offTrack(place.at, {place.size.width - 2, place.size.height - 5}, place.angle);
}

SizePx ArticlePlaces::Data::sizeOf(const Piece& piece, Surface& surface) const {
  return surface.textSize(piece.definition->article, articleStyle(screenTheme(), false));
}

ArticlePlaces::Place ArticlePlaces::Data::placeAt(const Piece& piece, std::size_t attempt,
                                                  SizePx size) const {
  const auto [side, farther] = kTries[attempt];
  const double heading = piece.pose.heading + piece.geometry->labelHeading;
  const double across = toRadians(heading + 90 * side);
  const double reach = piece.geometry->halfWidth * zoom + size.height / 2 +
                       std::max(1.0, piece.geometry->gauge * zoom * 0.04) + farther;
  return {{piece.spot.x + std::cos(across) * reach, piece.spot.y + std::sin(across) * reach},
          uprightAngle(heading),
          size};
}

std::optional<ArticlePlaces::Place> ArticlePlaces::Data::nextFree(const Piece& piece,
                                                                  std::size_t from,
                                                                  Surface& surface,
                                                                  std::size_t& attempt) {
  const SizePx size = sizeOf(piece, surface);
  if (piece.geometry->mainLength * zoom < size.width * 0.9)
    return std::nullopt;
  for (attempt = from; attempt < kTries.size(); ++attempt)
    if (const Place place = placeAt(piece, attempt, size); offTrack(place))
      return place;
  return std::nullopt;
}

const std::optional<ArticlePlaces::Place>& ArticlePlaces::Data::firstOf(std::uint32_t position,
                                                                        Surface& surface) {
  Piece& piece = pieces[position];
  if (!std::exchange(piece.firstKnown, true))
    piece.first = nextFree(piece, 0, surface, piece.tried);
  return piece.first;
}

template <class Test>
bool ArticlePlaces::Data::anyNear(const Place& place, std::uint32_t self, Test test) {
  // Articles are about as long as one another.
  const double reach = widest + std::hypot(place.size.width, place.size.height) * 1.25;
  bool found = false;
  forEachBlock(around(place.at, reach), [&](Block block) {
    const auto there = spots.find(block);
    if (found || there == spots.end())
      return;
    for (const std::uint32_t other : there->second) {
      const Point spot = pieces[other].spot;
      found = other != self && std::abs(spot.x - place.at.x) <= reach &&
              std::abs(spot.y - place.at.y) <= reach && test(other);
      if (found)
        return;
    }
  });
  return found;
}

bool ArticlePlaces::Data::givesWay(std::uint32_t position, Surface& surface) {
  const Place place = *firstOf(position, surface);
  return anyNear(place, position, [&](std::uint32_t other) {
    if (other > position)
      return false;
    const auto& first = firstOf(other, surface);
    return first && place.overlaps(*first);
  });
}

const std::optional<ArticlePlaces::Place>& ArticlePlaces::Data::secondOf(std::uint32_t position,
                                                                         Surface& surface) {
  Piece& piece = pieces[position];
  if (std::exchange(piece.secondKnown, true) || !firstOf(position, surface))
    return piece.second;
  piece.gaveWay = givesWay(position, surface);
  if (!piece.gaveWay)
    return piece.second;
  for (std::size_t attempt = piece.tried + 1; attempt < kTries.size(); ++attempt) {
    const std::optional<Place> place = nextFree(piece, attempt, surface, attempt);
    if (!place)
      break;
    const bool taken = anyNear(*place, position, [&](std::uint32_t other) {
      const auto& first = firstOf(other, surface);
      return first && place->overlaps(*first);
    });
    if (!taken) {
      piece.second = place;
      break;
    }
  }
  return piece.second;
}

const std::optional<ArticlePlaces::Place>& ArticlePlaces::Data::placeOf(std::uint32_t position,
                                                                        Surface& surface) {
  static const std::optional<Place> kNone;
  const auto& second = secondOf(position, surface);
  if (!pieces[position].gaveWay)
    return firstOf(position, surface);
  if (!second)
    return kNone;
  const bool taken = anyNear(*second, position, [&](std::uint32_t other) {
    if (other > position)
      return false;
    const auto& theirs = secondOf(other, surface);
    return theirs && second->overlaps(*theirs);
  });
  return taken ? kNone : second;
}

ArticlePlaces::ArticlePlaces() : data_(std::make_unique<Data>()) {}
ArticlePlaces::~ArticlePlaces() = default;

void ArticlePlaces::follow(const Layout& layout, const PlanIndex& index, double zoom,
                           std::span<const std::int32_t> leftOut) {
  data_->index = &index;
  if (data_->stamp == layout.documentStamp() && data_->zoom == zoom &&
      std::ranges::equal(data_->leftOut, leftOut))
    return;
  data_->stamp = layout.documentStamp();
  data_->zoom = zoom;
  data_->leftOut.assign(leftOut.begin(), leftOut.end());
  data_->start(layout);
}

bool ArticlePlaces::isOffTrack(Point centre, SizePx box, double degrees) {
  return data_->offTrack(centre, box, degrees);
}

void ArticlePlaces::visit(const Box& px, Surface& surface, const Visit& visitor) {
  const double reach = data_->widest + 60;
  std::vector<std::uint32_t> near;
  forEachBlock({px.minX - reach, px.minY - reach, px.maxX + reach, px.maxY + reach},
               [&](Block block) {
                 if (const auto there = data_->spots.find(block); there != data_->spots.end())
                   near.insert(near.end(), there->second.begin(), there->second.end());
               });
  std::ranges::sort(near);
  for (const std::uint32_t position : near) {
    const Point spot = data_->pieces[position].spot;
    if (spot.x < px.minX - reach || spot.x > px.maxX + reach || spot.y < px.minY - reach ||
        spot.y > px.maxY + reach)
      continue;
    if (const auto& place = data_->placeOf(position, surface))
      visitor(position, *place);
  }
}

} // namespace trassix
