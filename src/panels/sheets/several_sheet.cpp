#include "document/record_kinds.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "panels/sheets/sheet_builder.h"
#include "texts/texts.h"

namespace trassix {

namespace {

/// The value that all records given share.
template <class Value>
class Common {
 public:
  void add(const Value& value) {
    same_ = same_ && (!value_ || *value_ == value);
    value_ = value;
  }
  bool any() const { return value_.has_value(); }
  std::optional<Value> get() const { return same_ ? value_ : std::nullopt; }

 private:
  std::optional<Value> value_;
  bool same_ = true;
};

template <class Records, class Visit>
void forEachSelected(const Records& records, Visit visit) {
  for (const auto& record : records)
    if (record.sel)
      visit(record);
}

/// What the selected pieces share.
struct Track {
  double length = 0; ///< mm
  Common<std::string> article;
  Common<TrackSystem> system;
  Common<double> height;
  Common<OwnColor> color;

  void add(const PlacedPiece& piece) {
    article.add(piece.cat);
    height.add(piece.z);
    color.add(piece.hasColor ? OwnColor(piece.color) : std::nullopt);
    if (const PieceDef* definition = definitionOf(piece)) {
      system.add(definition->system);
      if (const auto& routes = routesOf(*definition); !routes.empty())
        length += routeLength(routes.front());
    }
  }
};

} // namespace

void describeSeveral(SheetBuilder& build) {
  const PlanContent& content = build.layout.content();
  build.sheet.title = tr("Selection");
  const auto count = [&build](const auto& records) {
    using Record = typename std::remove_cvref_t<decltype(records)>::value_type;
    static_assert(kCountedAs<Record> != nullptr);
    const auto selected = std::ranges::count_if(records, [](const auto& r) { return r.sel; });
    if (selected > 0)
      build.fixed(tr(kCountedAs<Record>), static_cast<std::size_t>(selected));
  };
  count(content.pieces); // the chief thing
  forEachSelectable(content, [&count](const auto& records) {
    if constexpr (std::remove_cvref_t<decltype(records)>::value_type::kKind != RecordKind::Piece)
      count(records);
  });

  Track track;
  forEachSelected(content.pieces, [&track](const PlacedPiece& piece) { track.add(piece); });
  if (track.article.any()) {
    build.fixedLength(tr("Track length"), track.length);
    build.fixed(tr("Article"), track.article.get().value_or(build.various()));
    const std::optional<TrackSystem> system = track.system.get();
    build.fixed(tr("System"), system ? std::string(systemShortName(*system)) : build.various());
    if (const std::optional<double> height = track.height.get())
      build.fixedLength(tr("Height"), *height);
    else
      build.fixed(tr("Height"), build.various());
  }
  Common<std::int32_t> level;
  forEachOnLevels(content, [&level](const auto& records) {
    forEachSelected(records, [&level](const auto& record) { level.add(record.level); });
  });
  if (level.any())
    build.level(level.get());
  if (track.article.any())
    build.trackColor(track.color.get());
}

} // namespace trassix
