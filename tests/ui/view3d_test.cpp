#include "document/plan_content.h"
#include "editing/canvas/view_transform.h"
#include "editing/selection/selection.h"
#include "editing/track/routes.h"
#include "frame_test.h"
#include "host/command_ids.h"
#include "support/plan.h"
#include "view3d/gl_calls.h"
#include "view3d/track_gl_canvas.h"
#include "view3d/view3d_frame.h"

#include <cmath>
#include <random>

namespace trassix::test {
namespace {

class View3DTest : public FrameTest {
 protected:
  View3DFrame* window() { return dynamic_cast<View3DFrame*>(findNamed("view3DFrame")); }
  TrackGLCanvas& view() { return *window()->canvas(); }

  /// Opens the view and waits for its first picture.
  void open() {
    put(kView3D);
    ASSERT_TRUE(waitUntil("the 3D view shows something", [this] {
      return window() && window()->canvas() && view().renderer() &&
             view().renderer()->drawnTriangles() > 0;
    }));
  }
  void close() {
    window()->Close();
    waitUntil("the 3D view is gone", [this] { return window() == nullptr; });
  }
  static std::array<int, 3> colorAt(const wxImage& picture, OrbitCamera::Pixel at) {
    const auto x = static_cast<int>(at.x);
    const auto y = static_cast<int>(at.y);
    return {picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)};
  }
};

/// Two levels, a tunnel's length of track below a deck, scenery.
Layout twoDecks() {
  Plan plan;
  plan.place("24188", {300, 300, 0}).extend("24130", 9).extend("24188", 2);
  plan.place("24188", {250, 1150, 0}).extend("24188", 5);
  Layout layout = std::move(plan.layout);
  PlanContent& content = layout.edit();
  for (std::size_t i = content.pieces.size() - 6; i < content.pieces.size(); ++i)
    content.pieces[i].z = 100;
  SceneryItem house;
  house.id = 500;
  house.item = "stn.medium";
  house.x = 1300;
  house.y = 900;
  content.scenery = {house};
  PlanSettings& settings = layout.editSettings();
  settings.baseboard = {{0, 0}, {1700, 0}, {1700, 1300}, {0, 1300}};
  settings.levels.push_back(
      {2, "deck", true, 140, false, {}, {{0, 0}, {500, 0}, {500, 1300}, {0, 1300}}});
  return layout;
}

TEST_F(View3DTest, StaysBesideThePlanThroughEditsAndComesBackAfterItIsClosed) {
  startLaidOut();
  put(kView3D);
  waitUntil("it opens on an empty plan", [this] { return window() != nullptr; });
  close();
  plan() = twoDecks();
  frame().workspace().changed();
  for (const bool unsaved : {true, false}) {
    if (!unsaved)
      saveAs("Decks");
    open();
    put(kView3D); // raises the same one
    const OrbitCamera before = view().camera();
    const std::size_t drawn = view().renderer()->drawnTriangles();
    placePiece(600);
    waitUntil("the new piece is there",
              [&] { return view().renderer()->drawnTriangles() > drawn; });
    put(kUndo);
    waitUntil("it is gone again", [&] { return view().renderer()->drawnTriangles() == drawn; });
    EXPECT_EQ(before.target, view().camera().target);
    EXPECT_EQ(before.distance, view().camera().distance);
    close();
  }
  open();
}

TEST_F(View3DTest, FromAboveItIsThePlanAndAClickSelectsWhatARayMeets) {
  startLaidOut();
  plan() = twoDecks();
  frame().workspace().changed();
  open();
  SceneView shown;
  shown.labels = false;
  view().setView(shown);
  view().look(CameraView::Top);
  // Nothing inside the board is open to the floor.
  ASSERT_TRUE(view().picture(1).IsOk());
  const OrbitCamera top = view().camera();
  const Vec3 boardCorner{0, -1300, -30};
  const Vec3 opposite{1700, 0, 0};
  const auto width = static_cast<int>(top.width);
  std::vector<float> depths(static_cast<std::size_t>(width) * static_cast<std::size_t>(top.height));
  glReadPixels(0, 0, width, static_cast<int>(top.height), GL_DEPTH_COMPONENT, GL_FLOAT,
               depths.data());
  const Matrix4 seen = product(top.projection(view().scene().bounds()), top.view());
  const double deepest = (seen[2] * 0 + seen[6] * 0 + seen[10] * boardCorner.z + seen[14] + 1) / 2;
  const OrbitCamera::Pixel low = *top.project(boardCorner);
  const OrbitCamera::Pixel high = *top.project(opposite);
  for (auto x = static_cast<int>(low.x) + 2; x < high.x - 2; ++x)
    for (auto y = static_cast<int>(high.y) + 2; y < low.y - 2; ++y)
      ASSERT_LT(
          depths[static_cast<std::size_t>((static_cast<int>(top.height) - 1 - y) * width + x)],
          deepest)
          << x << " " << y;

  // Across each piece the two brightest places are the rails, where the plan projects them to.
  constexpr int kTimes = 3;
  const wxImage picture = view().picture(kTimes);
  const double scale = kTimes / top.mmPerPixel({});
  const ViewTransform projection =
      ViewTransform::ofScale(scale, {top.width * kTimes / 2 - top.target.x * scale,
                                     top.height * kTimes / 2 + top.target.y * scale});
  int rails = 0;
  for (const PlacedPiece& piece : plan().pieces()) {
    if (piece.sel) // it glows
      continue;
    for (const RoutePoint& at : sampleRoute(routesOf(*definitionOf(piece)).front(), 0.5)) {
      const auto lightAt = [&](double aside) {
        const double t = toRadians(at.heading);
        const Point px =
            projection.toScreen(toWorld(poseOf(piece), {at.position.x - aside * std::sin(t),
                                                        at.position.y + aside * std::cos(t)}));
        return colorAt(picture, {px.x, px.y})[2];
      };
      if (toWorld(poseOf(piece), at.position).x < 520)
        continue; // below the deck
      for (const double side : {-1, 1}) {
        double brightest = 4;
        for (double aside = 4; aside < 14; aside += 0.25)
          if (lightAt(side * aside) > lightAt(side * brightest))
            brightest = aside;
        EXPECT_NEAR(brightest * scale, 8.25 * scale, 2) << piece.id << " at " << at.position.x;
        ++rails;
      }
    }
  }
  EXPECT_GT(rails, 80);

  // The same ray through every triangle, found by inverting nothing but the camera's projection.
  view().look(CameraView::Oblique);
  std::mt19937 random(7);
  int track = 0;
  for (int i = 0; i < 750; ++i) {
    if (i == 500) { // and what the deck covered
      shown.cut = 120;
      view().setView(shown);
    }
    const OrbitCamera camera = view().camera();
    OrbitCamera::Pixel at{std::uniform_real_distribution(0.0, camera.width)(random),
                          std::uniform_real_distribution(0.0, camera.height)(random)};
    if (i >= 500) { // near track
      const PlacedPiece& piece = plan().pieces()[random() % plan().pieces().size()];
      at = *camera.project({piece.x + at.x / 50 - 10, -piece.y + at.y / 50 - 10, piece.z});
    }
    double nearest = 1e30;
    SceneKey meant;
    for (const auto& [key, batch] : view().scene().batches)
      if (isShown(plan(), key, batch, shown))
        for (const std::vector<std::uint32_t>& list : batch.fine.indices)
          for (std::size_t k = 0; k + 2 < list.size(); k += 3) {
            Vec3 corner[3];
            OrbitCamera::Pixel px[3];
            for (std::size_t c = 0; c < 3; ++c) {
              const auto& [x, y, z] = batch.fine.vertices[list[k + c]].position;
              corner[c] = {x, y, z};
              px[c] = camera.project(corner[c]).value_or(OrbitCamera::Pixel{});
            }
            const auto side = [&](const OrbitCamera::Pixel& a, const OrbitCamera::Pixel& b) {
              return (b.x - a.x) * (at.y - a.y) - (b.y - a.y) * (at.x - a.x);
            };
            const double w[3] = {side(px[1], px[2]), side(px[2], px[0]), side(px[0], px[1])};
            if ((w[0] < 0) != (w[1] < 0) || (w[1] < 0) != (w[2] < 0))
              continue;
            double inverse = 0; // depths are linear on the screen as their inverse
            for (std::size_t c = 0; c < 3; ++c)
              inverse +=
                  w[c] / (w[0] + w[1] + w[2]) / dot(corner[c] - camera.eye(), camera.forward());
            if (inverse > 0 && 1 / inverse < nearest) {
              nearest = 1 / inverse;
              meant = key;
            }
          }
    const auto hit = view().hitAt(at);
    ASSERT_EQ(hit.has_value(), nearest < 1e30) << i;
    if (!hit)
      continue;
    EXPECT_TRUE(hit->key == meant ||
                std::abs(dot(hit->at - camera.eye(), camera.forward()) - nearest) < 0.05)
        << i;
    track += hit->key.group == SceneGroup::Track;
  }
  EXPECT_GT(track, 120);
  shown.cut.reset();
  view().setView(shown);

  // A real click selects in the plan; covered track is picked once its deck is cut away.
  const PlacedPiece& covered = plan().pieces().back();
  const WorldConnector end =
      ConnectorToWorld(plan().pieces().front(), *definitionOf(plan().pieces().front()), 0);
  const auto clickOn = [&](Vec3 place) {
    const auto px = view().camera().project(place);
    click({view(), wxPoint(static_cast<int>(px->x / view().pixelScale()),
                           static_cast<int>(px->y / view().pixelScale()))});
  };
  view().look(CameraView::Top);
  clickOn({covered.x + 60, -covered.y, 105});
  waitUntil("the plan has it selected", [&] { return covered.sel; });
  const Vec3 below{end.x + 90, -end.y, 5};
  clickOn(below);
  waitUntil("the deck is none of the plan's records", [&] { return !hasSelection(plan()); });
  shown.cut = 120;
  view().setView(shown);
  clickOn({end.x + 40, -end.y, 5}); // elsewhere, lest it be a double-click
  waitUntil("what is below is selected", [&] { return plan().pieces().front().sel; });
}

TEST_F(View3DTest, APlainDriverShowsTheSameWithoutShadows) {
  startLaidOut();
  plan() = twoDecks();
  frame().workspace().changed();
  open();
  const OrbitCamera camera = view().camera();
  const auto drawnBy = [&](SceneRenderer& renderer, bool shadows) {
    SceneRenderer::Look look;
    look.width = static_cast<int>(camera.width);
    look.height = static_cast<int>(camera.height);
    look.shadows = shadows;
    renderer.draw(plan(), view().scene(), {}, camera, look);
    std::vector<unsigned char> picture(static_cast<std::size_t>(look.width) *
                                       static_cast<std::size_t>(look.height) * 4);
    glReadPixels(0, 0, look.width, look.height, GL_RGBA, GL_UNSIGNED_BYTE, picture.data());
    return picture;
  };
  ASSERT_TRUE(view().picture(1).IsOk()); // its context is current from here on
  const GlAbilities all = GlAbilities::ofContext();
  ASSERT_TRUE(all.buffers.usable() && all.stencil);
  SceneRenderer rich(all);
  SceneRenderer plain(GlAbilities{});
  const auto lit = drawnBy(rich, false);
  EXPECT_NE(drawnBy(rich, true), lit);
  for (int round = 0; round < 2; ++round) { // also once everything was sent
    EXPECT_EQ(drawnBy(plain, true), lit) << round;
  }
}

TEST_F(View3DTest, RidesTurnsAndWritesFiles) {
  startLaidOut();
  plan() = Plan().place("24188", {300, 300, 0}).extend("24188", 2).layout;
  selectOnly(plan(), 1);
  frame().workspace().changed();
  open();
  waitUntil("it has the keys", [this] { return view().HasFocus(); });
  const double yaw = view().camera().yaw;
  pressKey(WXK_LEFT);
  waitUntil("it turned", [&] { return view().camera().yaw != yaw; });
  const double planZoom = canvas().view().zoom();
  pressKey('+');
  pressKey('1');
  waitUntil("it looks from above", [&] { return view().camera().orthographic; });
  EXPECT_EQ(canvas().view().zoom(), planZoom); // its keys are not the plan's
  pressKey('4');
  waitUntil("it looks obliquely", [&] { return !view().camera().orthographic; });
  const OrbitCamera before = view().camera();
  const wxSize size = view().GetClientSize();
  drag({view()}, {Spot(view(), {size.x / 2 + 80, size.y / 2 + 10})}, wxMOUSE_BTN_MIDDLE);
  waitUntil("it moved", [&] { return !(view().camera().target == before.target); });
  moveMouse(view());
  turnWheel(2);
  waitUntil("it is nearer", [&] { return view().camera().distance < before.distance * 0.9; });
  ASSERT_TRUE(view().startRide(5000));
  waitUntil("the train stands at the end of the track",
            [this] { return view().hint().StartsWith("The train stands"); });
  EXPECT_EQ(view().ride()->piece(), 3);
  pressKey(WXK_DOWN);
  waitUntil("it went back", [this] { return view().ride()->piece() == 1; });
  pressKey(WXK_ESCAPE);
  waitUntil("the ride is over", [this] { return !view().isRiding(); });

  const std::filesystem::path png = home() / "a.png";
  window()->writePicture(png, 2);
  const wxImage large(wxString(png.string()), wxBITMAP_TYPE_PNG);
  EXPECT_EQ(large.GetSize(), size * 2);
  const wxImage once = view().picture(1);
  const OrbitCamera::Pixel middle{size.x / 2.0, size.y / 2.0};
  EXPECT_LT(std::abs(colorAt(large, {middle.x * 2, middle.y * 2})[1] - colorAt(once, middle)[1]),
            60);
  window()->writeGltf(home() / "a.glb");
  EXPECT_GT(std::filesystem::file_size(home() / "a.glb"), 10000U);
  dialogs.answer("Save Failed", wxID_OK);
  window()->writeGltf(home() / "no folder" / "a.glb");
}

} // namespace
} // namespace trassix::test
