// Pictures of a plan as the toolkit draws it, against pictures that somebody has looked at.
#include "document/layout_reader.h"
#include "document/plan_content.h"
#include "editing/canvas/canvas_script.h"
#include "editing/canvas/layout_painter.h"
#include "editing/canvas/plan_theme.h"
#include "editing/selection/picking.h"
#include "ui/canvas/gc_surface.h"
#include "ui/canvas/plan_picture.h"
#include "ui_test.h"

#include <wx/dcmemory.h>
#include <wx/image.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <tuple>

namespace trassix::test {
namespace {

constexpr int kWidth = 480;
constexpr int kHeight = 320;
constexpr int kAllowed = 20; ///< pixels that may differ

/// Texts become bars, since fonts differ between machines.
class PictureSurface : public GcSurface {
 public:
  using GcSurface::GcSurface;

  double textShift = 0;           ///< px to the right
  const Point* leftOut = nullptr; ///< first point of a rail that is forgotten
  std::vector<Point> rails;       ///< first points of the long rails in view

  void polyline(std::span<const Point> points, const Stroke& stroke) override {
    const auto inView = [](Point p) { // and not below the scale bar
      return p.x > 0 && p.y > 0 && p.x < kWidth && p.y < kHeight - 40;
    };
    const Point a = points.front();
    const Point b = points.back();
    if (stroke.color == screenTheme().rail && stroke.style == Stroke::Style::Solid && inView(a) &&
        inView(b) && std::hypot(b.x - a.x, b.y - a.y) > 40) {
      if (leftOut && *leftOut == a)
        return;
      rails.push_back(a);
    }
    GcSurface::polyline(points, stroke);
  }
  void polylines(const PointRuns& lines, const Stroke& stroke) override {
    Surface::polylines(lines, stroke);
  }
  void text(std::string_view text, Point centre, double degrees, const TextStyle& style) override {
    const SizePx size = textSize(text, style);
    const double c = std::cos(degrees * kPi / 180) * size.width / 2;
    const double s = std::sin(degrees * kPi / 180) * size.width / 2;
    const Point at{centre.x + textShift, centre.y};
    GcSurface::polyline(std::array{Point{at.x - c, at.y - s}, Point{at.x + c, at.y + s}},
                        {style.color, size.height / 2});
  }
  SizePx textSize(std::string_view text, const TextStyle& style) override {
    return {static_cast<double>(text.size()) * style.size * 0.6, style.size * 1.2};
  }
};

/// True when some pixel of `other` at most one pixel away looks like this one.
bool isFoundNear(const wxImage& image, int x, int y, const wxImage& other) {
  constexpr int kAlike = 60;
  const auto differ = [](int a, int b) { return std::abs(a - b) > kAlike; };
  for (int v = std::max(y - 1, 0); v <= std::min(y + 1, kHeight - 1); ++v)
    for (int u = std::max(x - 1, 0); u <= std::min(x + 1, kWidth - 1); ++u)
      if (!differ(image.GetRed(x, y), other.GetRed(u, v)) &&
          !differ(image.GetGreen(x, y), other.GetGreen(u, v)) &&
          !differ(image.GetBlue(x, y), other.GetBlue(u, v)))
        return true;
  return false;
}

int differences(const wxImage& a, const wxImage& b) {
  int count = 0;
  for (int y = 0; y < kHeight; ++y)
    for (int x = 0; x < kWidth; ++x)
      count += isFoundNear(a, x, y, b) && isFoundNear(b, x, y, a) ? 0 : 1;
  return count;
}

class PlanPicture : public UiTest {
 protected:
  void SetUp() override {
    wxInitAllImageHandlers();
    const std::filesystem::path sample =
        std::filesystem::path(TRASSIX_SOURCE_DIR) / "samples" / "C-Track Two Towns.txl";
    std::string name;
    ASSERT_EQ(loadLayout(sample, layout_, name), "");
  }

  template <typename Prepare>
  wxImage draw(const ViewTransform& view, Prepare prepare) {
    wxBitmap bitmap(kWidth, kHeight, 24);
    wxMemoryDC dc(bitmap);
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(dc));
    PictureSurface surface(*context);
    prepare(surface);
    LayoutPainter(surface, {kWidth, kHeight}, view, PaintOptions())
        .paint(layout_, PlanIndex(layout_));
    context->Flush();
    rails_ = surface.rails;
    return bitmap.ConvertToImage();
  }

  Layout layout_;
  std::vector<Point> rails_;
};

TEST_F(PlanPicture, IsAsItWasAtThreeZooms) {
  for (const auto& [zoom, middle] :
       {std::pair{0.25, Point{950, 300}}, {0.7, Point{950, 300}}, {2.0, Point{642, 40}}}) {
    SCOPED_TRACE(zoom);
    std::string file = std::to_string(std::lround(zoom * 100));
    file += ".png";
    const ViewTransform view =
        ViewTransform::ofScale(zoom, {kWidth / 2 - middle.x * zoom, kHeight / 2 - middle.y * zoom});
    const wxImage drawn = draw(view, [](PictureSurface&) {});
    const std::filesystem::path kept = std::filesystem::path(TRASSIX_SCREENSHOT_DIR) / file;
    std::filesystem::create_directories(kept.parent_path());
    ASSERT_TRUE(drawn.SaveFile(kept.string(), wxBITMAP_TYPE_PNG));
    wxImage known;
    ASSERT_TRUE(known.LoadFile(TRASSIX_SOURCE_DIR "/tests/ui/pictures/" + file));
    EXPECT_LE(differences(drawn, known), kAllowed)
        << "if " << kept << " is right, it belongs into tests/ui/pictures";

    ASSERT_FALSE(rails_.empty());
    for (const Point& rail : std::vector<Point>(rails_))
      EXPECT_GT(differences(drawn, draw(view, [&](PictureSurface& s) { s.leftOut = &rail; })),
                kAllowed)
          << "a missing rail at " << rail.x << ", " << rail.y << " is seen";
    EXPECT_LE(differences(drawn, draw(view, [](PictureSurface& s) { s.textShift = 1; })), kAllowed)
        << "texts may shift";
  }
}

wxImage shown(trassix::PlanPicture& picture, double scale, Canvas* overlay = nullptr,
              bool hurried = false) {
  wxBitmap bitmap;
  bitmap.CreateScaled(kWidth, kHeight, 24, scale);
  {
    wxMemoryDC dc(bitmap);
    picture.draw(dc, {{kWidth, kHeight}, scale, 1}, hurried);
    const bool bodyDrawn = picture.drawBody(dc);
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(dc));
    GcSurface surface(*context, scale);
    if (overlay)
      overlay->paintOverlay(surface, !bodyDrawn);
  }
  return bitmap.ConvertToImage();
}

/// Colours that differ.
int different(const wxImage& a, const wxImage& b, int alike = 8) {
  int count = 0;
  for (int i = 0; i < a.GetWidth() * a.GetHeight() * 3; ++i)
    count += std::abs(a.GetData()[i] - b.GetData()[i]) > alike ? 1 : 0;
  return count;
}

TEST_F(PlanPicture, MovesWithThePlanAsIfDrawnAnew) {
  for (const auto& [scale, grades] : {std::pair{1.0, false}, {2.0, false}, {1.0, true}}) {
    CanvasScript script(layout_);
    for (PlacedPiece& piece : script.host.plan.edit().pieces)
      piece.grade = piece.id % 7 * 0.6;
    EditorSwitches switches = script.host.workspace.switches();
    switches.grades = grades;
    script.host.workspace.setSwitches(switches);
    script.canvas.resize({kWidth, kHeight});
    script.canvas.view() = ViewTransform::ofScale(0.6, {-350, 40.25});
    trassix::PlanPicture kept(script.canvas);
    shown(kept, scale);
    const std::int32_t inView = 20;
    for (const auto& [dx, dy, selects] :
         {std::tuple{7, -13, false}, {60, 60, true}, {-130, 31, true}, {0, -45, false}}) {
      SCOPED_TRACE(dx);
      setSelected(script.host.plan, {RecordKind::Piece, inView}, selects);
      const Point origin = script.canvas.view().origin();
      script.canvas.view().panTo({origin.x + dx, origin.y + dy});
      trassix::PlanPicture fresh(script.canvas);
      const wxImage moved = shown(kept, scale);
      const wxImage anew = shown(fresh, scale);
      EXPECT_LE(different(moved, anew), 3 * kAllowed);
      EXPECT_EQ(different(moved, anew, 64), 0);
    }
  }
}

TEST_F(PlanPicture, IsScaledFromTheViewThatItHas) {
  CanvasScript script(layout_);
  Canvas& canvas = script.canvas;
  canvas.resize({kWidth, kHeight});
  canvas.view() = ViewTransform::ofScale(0.6, {-350, 40});
  trassix::PlanPicture kept(canvas, -1);
  const auto pictures = [&](double factor, bool selects) {
    setSelected(script.host.plan, {RecordKind::Piece, 20}, selects);
    canvas.view().zoomAbout(factor, {kWidth / 2.0, kHeight / 2.0});
    const wxImage hurried = shown(kept, 1, nullptr, true);
    trassix::PlanPicture fresh(canvas);
    const wxImage anew = shown(fresh, 1);
    return different(hurried.Scale(kWidth / 8, kHeight / 8, wxIMAGE_QUALITY_BOX_AVERAGE),
                     anew.Scale(kWidth / 8, kHeight / 8, wxIMAGE_QUALITY_BOX_AVERAGE), 30);
  };
  constexpr int kBlurred = kWidth / 8 * kHeight / 8 * 3 / 50;
  EXPECT_EQ(pictures(1, true), 0);
  EXPECT_LE(pictures(1.1, true), kBlurred);
  shown(kept, 1);
  EXPECT_EQ(pictures(1, false), 0);
  EXPECT_LE(pictures(1.6, false), kBlurred);
  shown(kept, 1);
  EXPECT_LE(pictures(1.1, true), kBlurred) << "what was selected at another zoom";
}

TEST_F(PlanPicture, CarriesAGroupAsIfDrawnAnew) {
  for (const auto& [scale, zoom, mods] :
       {std::tuple{1.0, 0.3, kNone}, {2.0, 0.3, kNone}, {1.0, 0.3, kAlt}, {1.0, 6.0, kNone}}) {
    SCOPED_TRACE(zoom);
    CanvasScript script(layout_);
    Canvas& canvas = script.canvas;
    const PlacedPiece& held = *script.host.plan.findPiece(20);
    const Point from{held.x, held.y};
    canvas.resize({kWidth, kHeight});
    canvas.view() = ViewTransform::ofScale(zoom, {240 - from.x * zoom, 160.25 - from.y * zoom});
    for (std::int32_t id = 18; id < 24; ++id)
      setSelected(script.host.plan, {RecordKind::Piece, id}, true);
    trassix::PlanPicture kept(canvas);
    script.press(from, mods);
    std::size_t most = 0;
    for (const Point px : {Point{20, 0}, {33, 7}, {-90, 20}, {-300, -40}, {12, 31}}) {
      script.move({from.x + px.x / zoom, from.y + px.y / zoom}, mods);
      if (px.x == 12)
        script.wheel(from, 1);
      trassix::PlanPicture fresh(canvas);
      EXPECT_LE(different(shown(kept, scale, &canvas), shown(fresh, scale, &canvas)), 200);
      most = std::max(most, kept.keptPixels());
    }
    const auto windows = static_cast<double>(most) / (kWidth * kHeight * scale * scale);
    EXPECT_LE(windows, 4);
    EXPECT_EQ(windows > 2, zoom < 1 && mods == kNone);
  }
}

} // namespace
} // namespace trassix::test
