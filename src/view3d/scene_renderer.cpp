#include "view3d/scene_renderer.h"

#include "document/layout.h"
#include "document/record_kinds.h"
#include "view3d/gl_calls.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <set>
#include <utility>

namespace trassix {

namespace {

using Rgba = std::array<float, 4>;

constexpr Rgba kSun{-0.42F, -0.5F, 0.76F, 0}; ///< where it stands
constexpr Rgba kAbove{0.1F, 0.2F, 1, 0};      ///< where the light of the sky comes from
constexpr Rgba kSkyTop{0.60F, 0.73F, 0.87F, 1};
constexpr Rgba kHorizon{0.90F, 0.92F, 0.93F, 1};
constexpr Rgba kFloor{0.74F, 0.71F, 0.67F, 1};
constexpr Rgba kGlow{0.50F, 0.22F, 0, 1}; ///< of what is selected
constexpr Rgba kDark{0, 0, 0, 1};
constexpr double kShadowLift = 0.5; // mm above the ground, and above what is painted on it
constexpr double kShadowPixels = 1; // that something is high, for its shadow to be seen
constexpr double kSunk = 12;        // mm: what reaches so far below a ground casts no shadow on it
constexpr double kFinePixels = 1.3; // of a batch's grain, from which on it is drawn finely
constexpr int kMarks = 250;         // that the stencil tells apart

bool castsShadow(SceneGroup group) {
  return group == SceneGroup::Track || group == SceneGroup::Scenery ||
         group == SceneGroup::Supports || group == SceneGroup::Plates || group == SceneGroup::Posts;
}

void setLight(GLenum light, const Rgba& at, const Rgba& color, const Rgba& shine) {
  glLightfv(light, GL_POSITION, at.data());
  glLightfv(light, GL_DIFFUSE, color.data());
  glLightfv(light, GL_SPECULAR, shine.data());
  glEnable(light);
}

void setFinish(Finish finish) {
  const bool glossy = finish == Finish::Glossy;
  const Rgba shine = glossy ? Rgba{0.75F, 0.78F, 0.8F, 1} : kDark;
  glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, shine.data());
  glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, glossy ? 48.0F : 0.0F);
}

/// Only this part of the picture, as large as all of it.
Matrix4 tileOf(const PictureTile& tile) {
  const double n = tile.tiles;
  const double x = n - 1 - 2 * tile.column + 2 * tile.right;
  const double y = 2 * tile.row + 1 - n + 2 * tile.up;
  return {n, 0, 0, 0, 0, n, 0, 0, 0, 0, 1, 0, x, y, 0, 1};
}

using Picked = std::pair<RecordKind, std::int32_t>;

std::set<Picked> selectedRecords(const Layout& layout) {
  std::set<Picked> selected;
  forEachSelectable(layout.content(), [&](const auto& records) {
    for (const auto& record : records)
      if (record.sel)
        selected.emplace(record.kKind, record.id);
  });
  return selected;
}

void drawSky(const PictureTile& tile, double dark) {
  glMatrixMode(GL_PROJECTION);
  glLoadMatrixd(tileOf(tile).data());
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  glDisable(GL_DEPTH_TEST);
  glDisable(GL_LIGHTING);
  const auto dim = static_cast<float>(1 - 0.75 * dark);
  const auto row = [dim](const Rgba& color, float y) {
    glColor3f(color[0] * dim, color[1] * dim, color[2] * dim);
    glVertex2f(-1, y);
    glVertex2f(1, y);
  };
  glBegin(GL_QUAD_STRIP);
  row(kHorizon, -1);
  row(kHorizon, -0.1F);
  row(kSkyTop, 1);
  glEnd();
}

} // namespace

SceneRenderer::SceneRenderer(const GlAbilities& abilities)
    : store_(abilities.buffers), masks_(abilities.stencil) {}

const MeshStore::Place& SceneRenderer::sent(Places& places, const SceneBatch& batch,
                                            Detail detail) {
  MeshStore::Place& place = detail == Detail::Near ? places.fine : places.coarse;
  if (!place.known())
    place = store_.put(batch.mesh(detail));
  return place;
}

void SceneRenderer::forget(const SceneChanges& changes) {
  const auto drop = [this](const SceneKey& key) {
    const auto known = places_.find(key);
    if (known == places_.end())
      return;
    store_.drop(known->second.fine);
    store_.drop(known->second.coarse);
    places_.erase(known);
  };
  std::ranges::for_each(changes.renewed, drop);
  std::ranges::for_each(changes.removed, drop);
}

void SceneRenderer::gather(const Layout& layout, const Scene& scene, const SceneView& view,
                           const OrbitCamera& camera, const Look& look) {
  bodies_.clear();
  selected_.clear();
  grounds_.assign(1, {});
  drawn_ = 0;
  const ViewVolume volume(
      product(tileOf(look.tile), product(camera.projection(scene.bounds()), camera.view())));
  const std::set<Picked> selected = look.selection ? selectedRecords(layout) : std::set<Picked>();
  auto known = places_.begin(); // in the order of the scene
  for (const auto& [key, batch] : scene.batches) {
    if (!isShown(layout, key, batch, view))
      continue;
    while (known != places_.end() && known->first < key)
      ++known;
    if (known == places_.end() || known->first != key)
      known = places_.emplace_hint(known, key, Places{});
    Places& places = known->second;
    const double pixel = camera.mmPerPixel(batch.least, batch.most) / look.tile.tiles;
    const std::size_t above = grounds_.size(); // plates come before what stands on them
    if (key.group == SceneGroup::Plates && above < kMarks)
      grounds_.push_back({batch.most.z, {}, {}});
    if (masks_ && look.shadows && look.dark < 1 && castsShadow(key.group) &&
        (!view.cut || batch.most.z <= *view.cut))
      for (std::size_t i = 0; i < above; ++i)
        if (batch.most.z > grounds_[i].height + std::max(kShadowLift, kShadowPixels * pixel) &&
            batch.least.z > grounds_[i].height - kSunk)
          grounds_[i].shadows.add(sent(places, batch, Detail::Far));
    if (!volume.meets(batch.least, batch.most))
      continue;
    const Detail detail = batch.grain < kFinePixels * pixel ? Detail::Far : Detail::Near;
    drawn_ += batch.mesh(detail).triangles();
    MeshStore::Draws* draws = &bodies_;
    if (key.isRecord() && selected.contains({key.kind, key.id}))
      draws = &selected_;
    else if (key.group == SceneGroup::Plates)
      draws = &grounds_.back().draws;
    else if (key.group == SceneGroup::Board || key.group == SceneGroup::Ground)
      draws = &grounds_.front().draws;
    draws->add(sent(places, batch, detail));
  }
}

void SceneRenderer::prepare(const OrbitCamera& camera, const Matrix4& projection,
                            const Look& look) const {
  glMatrixMode(GL_PROJECTION);
  glLoadMatrixd(projection.data());
  glMatrixMode(GL_MODELVIEW);
  glLoadMatrixd(camera.view().data());
  glEnable(GL_DEPTH_TEST);
  glDepthFunc(GL_LEQUAL);
  glEnable(GL_LIGHTING);
  glEnable(GL_COLOR_MATERIAL);
  glColorMaterial(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE);
  glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, 1);
  const auto dim = static_cast<float>(1 - 0.7 * look.dark);
  const auto dimmed = [dim](float r, float g, float b) {
    return Rgba{r * dim, g * dim, b * dim, 1};
  };
  const Rgba ambient = dimmed(0.42F, 0.43F, 0.46F);
  glLightModelfv(GL_LIGHT_MODEL_AMBIENT, ambient.data());
  setLight(GL_LIGHT0, kSun, dimmed(0.58F, 0.55F, 0.48F), dimmed(0.9F, 0.88F, 0.8F));
  setLight(GL_LIGHT1, kAbove, dimmed(0.16F, 0.18F, 0.21F), kDark);
  if (look.dark > 0) {
    const Vec3 eye = camera.eye();
    setLight(GL_LIGHT2,
             {static_cast<float>(eye.x), static_cast<float>(eye.y), static_cast<float>(eye.z), 1},
             {0.8F, 0.76F, 0.66F, 1}, kDark);
    glLightf(GL_LIGHT2, GL_LINEAR_ATTENUATION, 0.004F);
  } else {
    glDisable(GL_LIGHT2);
  }
}

void SceneRenderer::drawBodies(const MeshStore::Draws& draws) {
  for (const Finish finish : {Finish::Matte, Finish::Glossy}) {
    setFinish(finish);
    store_.draw(draws, finish, MeshStore::Looks::Colored);
  }
}

void SceneRenderer::drawShadows(const Ground& ground, int mark) {
  if (ground.shadows.empty())
    return;
  // Everything flattened onto the ground along the rays of the sun; the stencil lets each place
  // become dark once.
  const float x = kSun[0] / kSun[2];
  const float y = kSun[1] / kSun[2];
  const auto z = static_cast<float>(ground.height);
  const std::array<float, 16> flat{
      1, 0, 0, 0, 0, 1, 0, 0, -x, -y, 0, 0, x * z, y * z, z + static_cast<float>(kShadowLift), 1};
  glPushMatrix();
  glMultMatrixf(flat.data());
  glDisable(GL_LIGHTING);
  glColor3f(0.62F, 0.64F, 0.70F);
  glEnable(GL_BLEND);
  glBlendFunc(GL_ZERO, GL_SRC_COLOR);
  glStencilFunc(GL_EQUAL, mark, 0xff);
  glStencilOp(GL_KEEP, GL_KEEP, GL_ZERO);
  glDepthMask(GL_FALSE);
  for (const Finish finish : {Finish::Matte, Finish::Glossy})
    store_.draw(ground.shadows, finish, MeshStore::Looks::Shape);
  glDepthMask(GL_TRUE);
  glDisable(GL_BLEND);
  glEnable(GL_LIGHTING);
  glPopMatrix();
}

/// The floor that the board stands on, which fades into the distance.
void SceneRenderer::drawRoom(const Scene& scene, const Look& look) {
  const auto board = std::ranges::find(scene.batches, SceneGroup::Board,
                                       [](const auto& entry) { return entry.first.group; });
  if (board == scene.batches.end() || look.dark >= 1)
    return;
  const auto& [least, most] = std::pair(board->second.least, board->second.most);
  const Vec3 middle = 0.5 * (least + most);
  const double radius = 2.2 * lengthOf(most - least);
  glDisable(GL_LIGHTING);
  glEnable(GL_BLEND);
  glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
  glBegin(GL_TRIANGLE_FAN);
  glColor4fv(kFloor.data());
  glVertex3d(middle.x, middle.y, least.z);
  glColor4f(kHorizon[0], kHorizon[1], kHorizon[2], 0);
  constexpr int kSides = 48;
  for (int i = 0; i <= kSides; ++i) {
    const double turn = 2 * std::numbers::pi * i / kSides;
    glVertex3d(middle.x + radius * std::cos(turn), middle.y + radius * std::sin(turn), least.z);
  }
  glEnd();
  glDisable(GL_BLEND);
  glEnable(GL_LIGHTING);
}

void SceneRenderer::draw(const Layout& layout, const Scene& scene, const SceneView& view,
                         const OrbitCamera& camera, const Look& look) {
  gather(layout, scene, view, camera, look);
  glViewport(0, 0, look.width, look.height);
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
  glEnable(kMultisample);
  drawSky(look.tile, look.dark);
  prepare(camera, product(tileOf(look.tile), camera.projection(scene.bounds())), look);
  drawRoom(scene, look);
  if (view.cut) {
    const std::array<double, 4> plane{0, 0, -1, *view.cut};
    glClipPlane(GL_CLIP_PLANE0, plane.data());
    glEnable(GL_CLIP_PLANE0);
  }
  glEnable(GL_STENCIL_TEST);
  for (std::size_t i = 0; i < grounds_.size(); ++i) {
    glStencilFunc(GL_ALWAYS, static_cast<int>(i) + 1, 0xff);
    glStencilOp(GL_KEEP, GL_KEEP, GL_REPLACE);
    drawBodies(grounds_[i].draws);
  }
  for (std::size_t i = 0; i < grounds_.size(); ++i)
    drawShadows(grounds_[i], static_cast<int>(i) + 1);
  glDisable(GL_STENCIL_TEST);
  drawBodies(bodies_);
  glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, kGlow.data());
  drawBodies(selected_);
  glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, kDark.data());
  glDisable(GL_CLIP_PLANE0);
}

} // namespace trassix
