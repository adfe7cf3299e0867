#include "canvas/plain_drawing.h"

#include "catalog/track_catalog.h"
#include "document/plan_content.h"
#include "editing/canvas/grid_steps.h"
#include "editing/canvas/plan_theme.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/track/connector_geometry.h"

#include <wx/brush.h>
#include <wx/settings.h>

#include <algorithm>
#include <cmath>

namespace trassix::bench {

namespace {

wxColour colour(Rgba c) {
  return {c.r, c.g, c.b, c.a};
}

} // namespace

/// What one picture needs of the toolkit: pens, brushes and a font, made once.
class PlainDrawing::Pencil {
 public:
  Pencil(wxGraphicsContext& context, const PlainDrawing& drawing)
      : context_(context), drawing_(drawing), zoom_(drawing.view_.zoom()) {
    context.DisableOffset(); // as the window draws
  }

  void sheet() {
    const auto [width, height] = drawing_.size_;
    context_.SetBrush(brush(screenTheme().board));
    context_.DrawRectangle(0, 0, width, height);
    const GridSteps steps = gridSteps(zoom_, drawing_.layout_.settings().units, 9);
    const wxGraphicsPen fine = pen(screenTheme().gridFine, 1);
    const wxGraphicsPen coarse = pen(screenTheme().gridCoarse, 1);
    const auto lines = [&](double origin, double length, auto line) {
      const double step = steps.fine * zoom_;
      for (double i = std::ceil(-origin / step); origin + i * step <= length; ++i) {
        context_.SetPen(std::fmod(i, steps.major) == 0 ? coarse : fine);
        line(std::floor(origin + i * step) + 0.5);
      }
    };
    const Point origin = drawing_.view_.origin();
    lines(origin.x, width, [&, h = height](double x) { context_.StrokeLine(x, 0, x, h); });
    lines(origin.y, height, [&, w = width](double y) { context_.StrokeLine(0, y, w, y); });
  }

  void piece(const PlacedPiece& piece, const PlainTrack& track) {
    if (kTrackHalfWidth * 2 * zoom_ < 5) {
      context_.SetPen(far_);
      for (const Line& line : track.centreLines)
        context_.StrokePath(path(piece, line));
      return;
    }
    context_.SetPen(edge_);
    context_.StrokePath(path(piece, track.ends, false, 2));
    context_.SetBrush(bed_);
    for (const Line& outline : track.beds)
      context_.FillPath(path(piece, outline, true), wxWINDING_RULE);
    for (const Line& edge : track.edges)
      context_.StrokePath(path(piece, edge));
    if (kTrackGauge * zoom_ >= 9) {
      context_.SetPen(sleeper_);
      context_.StrokePath(path(piece, track.sleepers, false, 2));
    }
    context_.SetPen(rail_);
    for (const Line& line : kTrackGauge* zoom_ < 3.2 ? track.centreLines : track.rails)
      context_.StrokePath(path(piece, line));
  }

  void joints(const PlacedPiece& piece) {
    const double radius = std::clamp(kTrackHalfWidth * zoom_ * 0.3, 2.0, 6.0);
    const PieceDef& definition = *TrackCatalog::instance().find(piece.cat);
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(definition.connectors.size()); ++i) {
      const WorldConnector end = ConnectorToWorld(piece, definition, i);
      const Point at = drawing_.view_.toScreen({end.x, end.y});
      const Joint joint = piece.joint(static_cast<std::size_t>(i));
      const bool open = joint.open();
      // One dot for each joint, over both its pieces.
      if (!open && (joint.target > piece.id || kTrackHalfWidth * zoom_ < 4))
        continue;
      context_.SetBrush(open ? paper_ : joined_);
      context_.SetPen(open ? open_ : wxGraphicsPen());
      const double r = open ? radius : radius * 0.6;
      context_.DrawEllipse(at.x - r, at.y - r, r * 2, r * 2);
    }
  }

  void shadow(const Pose& pose, const SceneryPicture& picture) {
    const Rgba color = screenTheme().shadow;
    for (const Point tip : shadowTips(picture)) {
      context_.SetBrush(brush(withAlpha(color, color.a / 3)));
      wxGraphicsPath path = context_.CreatePath();
      const auto add = [&](Line outline) {
        double twice = 0; // all turned the same way round, to be one
        for (std::size_t i = 0; i < outline.size(); ++i) {
          const Point b = outline[(i + 1) % outline.size()];
          twice += outline[i].x * b.y - b.x * outline[i].y;
        }
        if (twice < 0)
          std::ranges::reverse(outline);
        for (std::size_t i = 0; i < outline.size(); ++i)
          i == 0 ? path.MoveToPoint(outline[i].x, outline[i].y)
                 : path.AddLineToPoint(outline[i].x, outline[i].y);
        path.CloseSubpath();
      };
      Line foot;
      Line moved;
      for (const Point& p : picture.foot) {
        foot.push_back(drawing_.view_.toScreen(toWorld(pose, p)));
        moved.push_back({foot.back().x + tip.x * zoom_, foot.back().y + tip.y * zoom_});
      }
      add(foot);
      add(moved);
      for (std::size_t i = 0; i < foot.size(); ++i) {
        const std::size_t k = (i + 1) % foot.size();
        add({foot[i], foot[k], moved[k], moved[i]});
      }
      context_.FillPath(path, wxWINDING_RULE);
    }
  }

  void mark(const Pose& pose, const SceneryMark& mark) {
    const Rgba color = sceneryColor(screenTheme(), mark, pose.heading);
    wxGraphicsPath path = context_.CreatePath();
    for (std::size_t i = 0; i < mark.points.size(); ++i) {
      const Point p = drawing_.view_.toScreen(toWorld(pose, mark.points[i]));
      if (i == 0 || std::ranges::find(mark.starts, i) != mark.starts.end())
        path.MoveToPoint(p.x, p.y);
      else
        path.AddLineToPoint(p.x, p.y);
    }
    if (mark.kind == SceneryMark::Kind::Area) {
      path.CloseSubpath();
      context_.SetBrush(brush(color));
      context_.FillPath(path, wxWINDING_RULE);
    } else {
      context_.SetPen(pen(color, std::max(1.0, mark.width * zoom_)));
      context_.StrokePath(path);
    }
  }

  void texts() {
    for (const ShownText& shown : drawing_.texts_) {
      if (!(font_ == shown.style)) {
        font_ = shown.style;
        const wxFont font = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
        context_.SetFont(wxFont(wxFontInfo(font_.size * 0.66).FaceName(font.GetFaceName())),
                         colour(font_.color));
      }
      context_.PushState();
      context_.Translate(shown.centre.x, shown.centre.y);
      context_.Rotate(shown.radians);
      context_.DrawText(wxString::FromUTF8(shown.text), -shown.size.width / 2,
                        -shown.size.height / 2);
      context_.PopState();
    }
  }

 private:
  wxGraphicsPen pen(Rgba color, double width) {
    return context_.CreatePen(
        wxGraphicsPenInfo(colour(color), width).Cap(wxCAP_BUTT).Join(wxJOIN_ROUND));
  }
  wxGraphicsBrush brush(Rgba color) { return context_.CreateBrush(wxBrush(colour(color))); }

  /// Beds lie on whole pixels. `stride` points belong together, all of them without one.
  wxGraphicsPath path(const PlacedPiece& piece, const Line& line, bool isBed = false,
                      std::size_t stride = SIZE_MAX) {
    const double c = std::cos(toRadians(piece.heading)) * zoom_;
    const double s = std::sin(toRadians(piece.heading)) * zoom_;
    const Point at = drawing_.view_.toScreen({piece.x, piece.y});
    wxGraphicsPath path = context_.CreatePath();
    for (std::size_t i = 0; i < line.size(); ++i) {
      Point p{at.x + line[i].x * c - line[i].y * s, at.y + line[i].x * s + line[i].y * c};
      if (isBed)
        p = {std::round(p.x), std::round(p.y)};
      if (i % stride == 0)
        path.MoveToPoint(p.x, p.y);
      else
        path.AddLineToPoint(p.x, p.y);
    }
    if (isBed)
      path.CloseSubpath();
    return path;
  }

  wxGraphicsContext& context_;
  const PlainDrawing& drawing_;
  const double zoom_;
  TextStyle font_{{}, 0};
  wxGraphicsPen far_ = pen(screenTheme().farTrack, std::max(kTrackHalfWidth* zoom_, 1.5));
  wxGraphicsPen edge_ = pen(screenTheme().bedEdge, 1);
  wxGraphicsPen sleeper_ = pen(screenTheme().sleeper, std::max(1.0, kTrackGauge* zoom_ * 0.17));
  wxGraphicsPen rail_ = pen(screenTheme().rail, std::max(1.0, kTrackGauge* zoom_ * 0.06));
  wxGraphicsPen open_ = pen(screenTheme().openEnd, 2);
  wxGraphicsBrush bed_ = brush(opaque(screenTheme().bed));
  wxGraphicsBrush paper_ = brush(screenTheme().paper);
  wxGraphicsBrush joined_ = brush(screenTheme().joinedEnd);
};

PlainDrawing::PlainDrawing(const Layout& layout, const ViewTransform& view, SizePx size,
                           std::vector<ShownText> texts)
    : layout_(layout), view_(view), size_(size), texts_(std::move(texts)) {
  for (const PlacedPiece& piece : layout.pieces())
    if (!tracks_.contains(piece.cat))
      tracks_[piece.cat] = plainTrack(*TrackCatalog::instance().find(piece.cat));
  for (const SceneryItem& item : layout.content().scenery)
    scenery_.push_back(
        {{item.x, item.y, item.heading},
         deriveSceneryPicture(*findScenery(item.item), sceneryFootprint(layout, item), 1)});
}

void PlainDrawing::draw(wxGraphicsContext& context) const {
  Pencil pencil(context, *this);
  pencil.sheet();
  drawScenery(pencil, SceneryLayer::Ground);
  drawScenery(pencil, SceneryLayer::Standing);
  drawTrack(pencil);
  drawScenery(pencil, SceneryLayer::Over);
  pencil.texts();
}

void PlainDrawing::drawScenery(Pencil& pencil, SceneryLayer layer) const {
  for (const auto& [pose, picture] : scenery_)
    if (picture.shadow == layer && !picture.foot.empty())
      pencil.shadow(pose, picture);
  for (const auto& [pose, picture] : scenery_)
    for (const SceneryMark& mark : picture.marks)
      if (mark.layer == layer)
        pencil.mark(pose, mark);
}

void PlainDrawing::drawTrack(wxGraphicsContext& context) const {
  Pencil pencil(context, *this);
  drawTrack(pencil);
}

void PlainDrawing::drawTrack(Pencil& pencil) const {
  for (const PlacedPiece& piece : layout_.pieces()) {
    pencil.piece(piece, tracks_.at(piece.cat));
    pencil.joints(piece);
  }
}

} // namespace trassix::bench
