#include "editing/canvas/placing_offer.h"

#include "catalog/track_catalog.h"
#include "editing/canvas/canvas_tool.h"
#include "editing/canvas/carried_painter.h"
#include "editing/canvas/piece_painter.h"
#include "editing/placing/ways.h"
#include "editing/selection/open_ends.h"
#include "editing/selection/selection.h"
#include "texts/texts.h"

#include <utility>

namespace trassix {

void PlacingOffer::take(std::optional<Offer> offer) {
  offer_ = std::move(offer);
  if (offer_ && !offer_->article.empty())
    site_.choice.takeUp(offer_->article);
}

std::optional<Extension> PlacingOffer::place() const {
  if (!offer_ || offer_->article.empty())
    return {};
  const auto place =
      extensionOf(site_.layout(), offer_->article, site_.choice.wishFor(offer_->article));
  return place && place->own != -1 ? place : std::nullopt;
}

bool PlacingOffer::flip(int step) {
  const std::optional<Extension> at = place();
  if (!at)
    return false;
  const PieceDef& definition = *TrackCatalog::instance().find(offer_->article);
  const auto system = definition.connectorSystem(static_cast<std::size_t>(at->own));
  site_.choice.chooseWay(offer_->article, wayAfter(definition, at->own, step, system));
  return true;
}

void PlacingOffer::paint(Surface& surface) const {
  const std::optional<Extension> at = place();
  const auto end = at ? endAt(site_.layout(), at->at) : std::nullopt;
  if (!end)
    return;
  const PieceDef& definition = *TrackCatalog::instance().find(offer_->article);
  PieceLook look = carriedLook(site_.theme(), true);
  look.bed.a = 110;
  look.accent->a = 150;
  PiecePainter(surface, site_.view, site_.theme())
      .paint(definition, AttachPose(definition, at->own, *end), look);
}

std::string PlacingOffer::hint() const {
  if (!offer_)
    return {};
  const std::string others = tr("Up, Down: another");
  const std::string back = offer_->typing ? tr("Esc: empty the search") : std::string();
  if (offer_->name.empty())
    return offer_->typing ? hintOf({tr("Nothing fits what is typed"), back}) : others;
  if (place()) {
    const bool turns =
        offer_->flips && waysOf(*TrackCatalog::instance().find(offer_->article)).size() > 1;
    return hintOf({tr("Enter: %1% goes on as shown", {offer_->name}),
                   turns ? tr("F: other way round") : std::string(), others, back});
  }
  if (!offer_->article.empty() && !selectedPieces(site_.layout()).empty())
    return hintOf({tr("What is selected has no free end for %1%: select another piece, or nothing",
                      {offer_->name}),
                   others, back});
  if (offer_->asks)
    return hintOf({tr("Enter: choose how %1% is to be", {offer_->name}),
                   tr("Drag: place it as it is usual"), others, back});
  return hintOf(
      {tr("Enter: %1% hangs on the pointer, a click places it", {offer_->name}), others, back});
}

} // namespace trassix
