// The layout in the room: 2,000 pieces, some of them raised, and 500 items of scenery.
#include "canvas/yard.h"
#include "catalog/scenery_catalog.h"
#include "document/plan_content.h"
#include "editing/canvas/layout_painter.h"
#include "editing/selection/content_box.h"
#include "ratio.h"
#include "ui/canvas/gc_surface.h"
#include "view3d/gl_calls.h"
#include "view3d/scene_renderer.h"

#include <wx/app.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/frame.h>
#include <wx/glcanvas.h>

#include <memory>
#include <vector>

namespace trassix::bench {

namespace {

constexpr int kWidth = 1100;
constexpr int kHeight = 640;

Layout town() {
  Layout layout = yard(40, 50);
  PlanContent& content = layout.edit();
  for (std::size_t i = 0; i < 200; ++i)
    content.pieces[i].z = 60;
  const Box box = *contentBox(layout);
  for (std::int32_t i = 0; i < 500; ++i) {
    SceneryItem item;
    item.id = 100000 + i;
    item.item = sceneryItems()[static_cast<std::size_t>(i) % sceneryItems().size()].key;
    item.x = box.minX + (i % 25) * (box.maxX - box.minX) / 25;
    item.y = box.minY + (i / 25) * (box.maxY - box.minY) / 20;
    content.scenery.push_back(item);
  }
  return layout;
}

/// A window with GL, as the program has it but for smoothed edges.
class Stage {
 public:
  Stage() {
    wxGLAttributes attributes;
    attributes.PlatformDefaults().RGBA().DoubleBuffer().Depth(24).Stencil(8).EndList();
    window_ = new wxFrame(nullptr, wxID_ANY, "3D");
    canvas_ = new wxGLCanvas(window_, attributes);
    window_->SetClientSize(kWidth, kHeight);
    window_->Show();
    while (!canvas_->IsShownOnScreen() || canvas_->GetSize() != wxSize(kWidth, kHeight))
      wxYield();
    context_ = std::make_unique<wxGLContext>(canvas_);
    canvas_->SetCurrent(*context_);
  }
  ~Stage() {
    context_.reset();
    delete window_;
  }
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

 private:
  wxFrame* window_;
  wxGLCanvas* canvas_;
  std::unique_ptr<wxGLContext> context_;
};

/// What the window does for a picture.
class Picture {
 public:
  explicit Picture(const Layout& layout) : layout_(layout) {}

  void draw() {
    renderer.forget(keeper.update(layout_));
    if (camera.width != kWidth) {
      camera.width = kWidth;
      camera.height = kHeight;
      camera.look(CameraView::Oblique, keeper.scene().bounds());
    }
    SceneRenderer::Look look;
    look.width = kWidth;
    look.height = kHeight;
    renderer.draw(layout_, keeper.scene(), {}, camera, look);
    glFinish();
  }

  SceneKeeper keeper;
  SceneRenderer renderer{GlAbilities::ofContext()};
  OrbitCamera camera;

 private:
  const Layout& layout_;
};

/// The triangles of a picture in one array, with which every pass is one call.
class BareArrays {
 public:
  BareArrays(const Layout& layout, const Picture& picture)
      : calls_(GlAbilities::ofContext().buffers) {
    const auto shadow = [](SceneGroup group) {
      return group == SceneGroup::Track || group == SceneGroup::Scenery ||
             group == SceneGroup::Supports || group == SceneGroup::Plates;
    };
    const OrbitCamera& camera = picture.camera;
    const auto add = [&](const SceneBatch& batch, Detail detail) {
      const auto first = static_cast<std::uint32_t>(vertices_.size());
      const Mesh& mesh = batch.mesh(detail);
      vertices_.insert(vertices_.end(), mesh.vertices.begin(), mesh.vertices.end());
      for (const std::vector<std::uint32_t>& list : mesh.indices)
        for (const std::uint32_t index : list)
          indices_.push_back(first + index);
    };
    for (const bool ground : {true, false}) {
      for (const auto& [key, batch] : picture.keeper.scene().batches)
        if (isShown(layout, key, batch, {}) &&
            ground == (key.group == SceneGroup::Board || key.group == SceneGroup::Ground))
          add(batch, batch.grain < 1.3 * camera.mmPerPixel(batch.least, batch.most) ? Detail::Far
                                                                                    : Detail::Near);
      (ground ? grounds_ : solid_) = indices_.size();
    }
    for (const auto& [key, batch] : picture.keeper.scene().batches)
      if (shadow(key.group) &&
          batch.most.z > camera.mmPerPixel(batch.least, batch.most)) // to be seen
        add(batch, Detail::Far);
    calls_.generate(2, buffers_);
    calls_.bind(BufferCalls::kVertices, buffers_[0]);
    calls_.fill(BufferCalls::kVertices,
                static_cast<std::ptrdiff_t>(vertices_.size() * sizeof(MeshVertex)),
                vertices_.data(), BufferCalls::kStatic);
    calls_.bind(BufferCalls::kIndices, buffers_[1]);
    calls_.fill(BufferCalls::kIndices,
                static_cast<std::ptrdiff_t>(indices_.size() * sizeof(std::uint32_t)),
                indices_.data(), BufferCalls::kStatic);
  }
  ~BareArrays() { calls_.release(2, buffers_); }
  BareArrays(const BareArrays&) = delete;
  BareArrays& operator=(const BareArrays&) = delete;

  std::size_t triangles() const { return solid_ / 3; }

  /// With the lights and matrices that the picture left behind.
  void draw() const {
    constexpr int kStride = sizeof(MeshVertex);
    const auto at = [](std::size_t offset) { return reinterpret_cast<const void*>(offset); };
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    drawBehind();
    calls_.bind(BufferCalls::kVertices, buffers_[0]);
    calls_.bind(BufferCalls::kIndices, buffers_[1]);
    glVertexPointer(3, GL_FLOAT, kStride, at(offsetof(MeshVertex, position)));
    glNormalPointer(GL_FLOAT, kStride, at(offsetof(MeshVertex, normal)));
    glColorPointer(4, GL_UNSIGNED_BYTE, kStride, at(offsetof(MeshVertex, color)));
    for (const GLenum array : {GL_VERTEX_ARRAY, GL_NORMAL_ARRAY, GL_COLOR_ARRAY})
      glEnableClientState(array);
    glEnable(GL_LIGHTING);
    glEnable(GL_STENCIL_TEST);
    glStencilFunc(GL_ALWAYS, 1, 0xff);
    glStencilOp(GL_KEEP, GL_KEEP, GL_REPLACE);
    drawFrom(0, grounds_);
    drawFlat();
    glDisable(GL_STENCIL_TEST);
    drawFrom(grounds_, solid_);
    glFinish();
    calls_.bind(BufferCalls::kVertices, 0);
    calls_.bind(BufferCalls::kIndices, 0);
  }

 private:
  static void drawFrom(std::size_t first, std::size_t last) {
    glDrawElements(GL_TRIANGLES, static_cast<int>(last - first), GL_UNSIGNED_INT,
                   reinterpret_cast<const void*>(first * sizeof(std::uint32_t)));
  }

  /// The shadows: on the board, along the rays of a sun, each place once.
  void drawFlat() const {
    const float flat[] = {1, 0, 0, 0, 0, 1, 0, 0, 0.55F, 0.66F, 0, 0, 0, 0, 0.5F, 1};
    glDisableClientState(GL_NORMAL_ARRAY);
    glDisableClientState(GL_COLOR_ARRAY);
    glDisable(GL_LIGHTING);
    glPushMatrix();
    glMultMatrixf(flat);
    glColor3f(0.6F, 0.6F, 0.6F);
    glEnable(GL_BLEND);
    glBlendFunc(GL_ZERO, GL_SRC_COLOR);
    glStencilFunc(GL_EQUAL, 1, 0xff);
    glStencilOp(GL_KEEP, GL_KEEP, GL_ZERO);
    glDepthMask(GL_FALSE);
    drawFrom(solid_, indices_.size());
    glDepthMask(GL_TRUE);
    glDisable(GL_BLEND);
    glPopMatrix();
    glEnable(GL_LIGHTING);
    glEnableClientState(GL_NORMAL_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
  }

  /// What is behind the layout: a sky, and before it a floor, over the whole window.
  static void drawBehind() {
    glDisable(GL_LIGHTING);
    glDisable(GL_DEPTH_TEST);
    for (const GLenum matrix : {GL_PROJECTION, GL_MODELVIEW}) {
      glMatrixMode(matrix);
      glPushMatrix();
      glLoadIdentity();
    }
    for (const bool floor : {false, true}) {
      if (floor)
        glEnable(GL_BLEND);
      glColor4f(0.8F, 0.8F, 0.8F, 0.5F);
      glRectf(-1, -1, 1, 1);
    }
    glDisable(GL_BLEND);
    for (const GLenum matrix : {GL_PROJECTION, GL_MODELVIEW}) {
      glMatrixMode(matrix);
      glPopMatrix();
    }
    glEnable(GL_DEPTH_TEST);
  }

  BufferCalls calls_;
  unsigned buffers_[2] = {};
  std::vector<MeshVertex> vertices_;
  std::vector<std::uint32_t> indices_;
  std::size_t grounds_ = 0; ///< up to where
  std::size_t solid_ = 0;
};

void frameInTheRoom(benchmark::State& state) {
  const Stage stage;
  const Layout layout = town();
  Picture picture(layout);
  picture.draw();
  const BareArrays bare(layout, picture);
  state.counters["triangles"] = static_cast<double>(picture.renderer.drawnTriangles());
  state.counters["bare triangles"] = static_cast<double>(bare.triangles());
  compare(state, 1.2, "the same arrays handed to GL", timed([&] { picture.draw(); }),
          timed([&] { bare.draw(); }));
}
BENCHMARK(frameInTheRoom)->Name("room/frame2000")->Iterations(1);

void trianglesInTheRoom(benchmark::State& state) {
  const Stage stage;
  const Layout layout = town();
  Picture picture(layout);
  picture.draw();
  const auto drawn = static_cast<double>(picture.renderer.drawnTriangles());
  compare(state, 1, "400,000 triangles", {[&] { return drawn; }}, {[] { return 400000.0; }});
}
BENCHMARK(trianglesInTheRoom)->Name("room/triangles2000")->Iterations(1);

void firstPicture(benchmark::State& state) {
  const Stage stage;
  const Layout layout = town();
  ViewTransform view;
  view.fit(*contentBox(layout), 1920, 1080);
  wxBitmap bitmap(1920, 1080);
  const auto plan = [&] {
    wxMemoryDC memory(bitmap);
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(memory));
    GcSurface surface(*context);
    const PlanIndex index(layout);
    LayoutPainter(surface, {1920, 1080}, view, PaintOptions()).paint(layout, index);
    context->Flush();
  };
  compare(state, 4, "the 2D plan of the same", timed([&] { Picture(layout).draw(); }), timed(plan));
}
BENCHMARK(firstPicture)->Name("room/first2000")->Iterations(1);

/// Counts triangles, not seconds.
void editInTheRoom(benchmark::State& state) {
  const Stage stage;
  Layout layout = town();
  Picture picture(layout);
  picture.draw();
  std::size_t next = 100;
  const auto edit = [&] {
    const std::size_t before = picture.renderer.sentTriangles();
    layout.edit().pieces[next++ % 2000].z += 20;
    picture.draw();
    return static_cast<double>(picture.renderer.sentTriangles() - before);
  };
  const auto all = [&] {
    Picture anew(layout);
    anew.draw();
    return static_cast<double>(anew.renderer.sentTriangles());
  };
  compare(state, 0.02, "triangles of the whole scene", {edit}, {all});
}
BENCHMARK(editInTheRoom)->Name("room/edit1of2000")->Iterations(1);

void timeOfEdit(benchmark::State& state) {
  Layout layout = town();
  SceneKeeper keeper;
  keeper.update(layout);
  std::size_t next = 100;
  compare(state, 0.25, "the scene made anew", timed([&] {
            layout.edit().pieces[next++ % 2000].z += 20;
            keeper.update(layout);
          }),
          timed([&] { SceneKeeper().update(layout); }));
}
BENCHMARK(timeOfEdit)->Name("room/editTime")->Iterations(1);

} // namespace

} // namespace trassix::bench
