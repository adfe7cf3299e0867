#include "view3d/mesh_store.h"

#include "view3d/gl_calls.h"

#include <algorithm>
#include <cstring>

namespace trassix {

namespace {

// Of a page: 7 MB of corners, and flat faces have about three indices for two corners.
constexpr std::uint32_t kPageVertices = 1U << 18U;
constexpr std::uint32_t kPageIndices = kPageVertices / 4 * 7;

const void* byteOffset(std::size_t bytes) {
  return reinterpret_cast<const void*>(bytes); // NOLINT: how buffers are addressed
}

} // namespace

struct MeshStore::Page {
  FreeRanges freeVertices;
  FreeRanges freeIndices;
  std::array<unsigned, 2> buffers{};
  std::vector<MeshVertex> vertices; ///< without buffers
  std::vector<std::uint32_t> indices;
};

MeshStore::MeshStore(const BufferCalls& calls) : calls_(std::make_unique<BufferCalls>(calls)) {}

MeshStore::~MeshStore() = default;

std::size_t MeshStore::pageWithRoom(std::uint32_t vertices, std::uint32_t indices, Place& place) {
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    const auto vertex = pages_[i].freeVertices.take(vertices);
    if (!vertex)
      continue;
    if (const auto index = pages_[i].freeIndices.take(indices)) {
      place.firstVertex = *vertex;
      place.firstIndex = *index;
      return i;
    }
    pages_[i].freeVertices.give(*vertex, vertices);
  }
  const std::uint32_t allVertices = std::max(kPageVertices, vertices);
  const std::uint32_t allIndices = std::max(kPageIndices, indices);
  Page page{FreeRanges(allVertices), FreeRanges(allIndices), {}, {}, {}};
  if (calls_->usable()) {
    calls_->generate(2, page.buffers.data());
    calls_->bind(BufferCalls::kVertices, page.buffers[0]);
    calls_->fill(BufferCalls::kVertices, std::ptrdiff_t{allVertices} * sizeof(MeshVertex), nullptr,
                 BufferCalls::kStatic);
    calls_->bind(BufferCalls::kIndices, page.buffers[1]);
    calls_->fill(BufferCalls::kIndices, std::ptrdiff_t{allIndices} * sizeof(std::uint32_t), nullptr,
                 BufferCalls::kStatic);
  } else {
    page.vertices.resize(allVertices);
    page.indices.resize(allIndices);
  }
  pages_.push_back(std::move(page));
  return pageWithRoom(vertices, indices, place);
}

MeshStore::Place MeshStore::put(const Mesh& mesh) {
  Place place;
  if (mesh.empty())
    return place;
  std::vector<std::uint32_t> indices;
  for (std::size_t finish = 0; finish < kFinishes; ++finish) {
    place.indices[finish] = static_cast<std::uint32_t>(mesh.indices[finish].size());
    indices.insert(indices.end(), mesh.indices[finish].begin(), mesh.indices[finish].end());
  }
  place.vertices = static_cast<std::uint32_t>(mesh.vertices.size());
  place.page = pageWithRoom(place.vertices, static_cast<std::uint32_t>(indices.size()), place);
  for (std::uint32_t& index : indices)
    index += place.firstVertex;
  sent_ += indices.size() / 3;
  Page& page = pages_[place.page];
  if (calls_->usable()) {
    const auto send = [&](unsigned kind, unsigned buffer, std::size_t first, const auto& values) {
      calls_->bind(kind, buffer);
      calls_->refill(kind, static_cast<std::ptrdiff_t>(first * sizeof(values[0])),
                     static_cast<std::ptrdiff_t>(values.size() * sizeof(values[0])), values.data());
    };
    send(BufferCalls::kVertices, page.buffers[0], place.firstVertex, mesh.vertices);
    send(BufferCalls::kIndices, page.buffers[1], place.firstIndex, indices);
  } else {
    std::ranges::copy(mesh.vertices, page.vertices.begin() + place.firstVertex);
    std::ranges::copy(indices, page.indices.begin() + place.firstIndex);
  }
  return place;
}

void MeshStore::drop(Place& place) {
  if (place.known()) {
    pages_[place.page].freeVertices.give(place.firstVertex, place.vertices);
    pages_[place.page].freeIndices.give(place.firstIndex, place.indices[0] + place.indices[1]);
  }
  place = {};
}

void MeshStore::Draws::clear() {
  for (std::vector<Page>& pages : pages_)
    for (Page& page : pages) {
      page.counts.clear();
      page.starts.clear();
    }
}

bool MeshStore::Draws::empty() const {
  return std::ranges::all_of(pages_, [](const std::vector<Page>& pages) {
    return std::ranges::all_of(pages, [](const Page& page) { return page.counts.empty(); });
  });
}

void MeshStore::Draws::add(const Place& place) {
  std::size_t first = place.firstIndex;
  for (std::size_t finish = 0; finish < kFinishes; ++finish) {
    const std::uint32_t count = place.indices[finish];
    if (count > 0) {
      std::vector<Page>& pages = pages_[finish];
      if (pages.size() <= place.page)
        pages.resize(place.page + 1);
      pages[place.page].counts.push_back(static_cast<int>(count));
      pages[place.page].starts.push_back(byteOffset(first * sizeof(std::uint32_t)));
    }
    first += count;
  }
}

void MeshStore::draw(const Draws& draws, Finish finish, Looks looks) {
  constexpr int kStride = sizeof(MeshVertex);
  const std::vector<Draws::Page>& pages = draws.pages_[static_cast<std::size_t>(finish)];
  for (const GLenum array : {GL_NORMAL_ARRAY, GL_COLOR_ARRAY})
    looks == Looks::Colored ? glEnableClientState(array) : glDisableClientState(array);
  glEnableClientState(GL_VERTEX_ARRAY);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const auto& [counts, starts] = pages[i];
    if (counts.empty())
      continue;
    const Page& page = pages_[i];
    const auto* base = reinterpret_cast<const char*>(page.vertices.data());
    if (calls_->usable()) {
      calls_->bind(BufferCalls::kVertices, page.buffers[0]);
      calls_->bind(BufferCalls::kIndices, page.buffers[1]);
      base = nullptr;
    }
    const auto at = [base](std::size_t offset) {
      return base == nullptr ? byteOffset(offset) : base + offset;
    };
    glVertexPointer(3, GL_FLOAT, kStride, at(offsetof(MeshVertex, position)));
    glNormalPointer(GL_FLOAT, kStride, at(offsetof(MeshVertex, normal)));
    glColorPointer(4, GL_UNSIGNED_BYTE, kStride, at(offsetof(MeshVertex, color)));
    const auto count = static_cast<int>(counts.size());
    if (calls_->usable()) {
      calls_->drawMany(GL_TRIANGLES, counts.data(), GL_UNSIGNED_INT, starts.data(), count);
      continue;
    }
    const auto* indices = reinterpret_cast<const char*>(page.indices.data());
    for (std::size_t k = 0; k < counts.size(); ++k)
      glDrawElements(GL_TRIANGLES, counts[k], GL_UNSIGNED_INT,
                     indices + reinterpret_cast<std::uintptr_t>(starts[k]));
  }
  if (calls_->usable()) {
    calls_->bind(BufferCalls::kVertices, 0);
    calls_->bind(BufferCalls::kIndices, 0);
  }
}

} // namespace trassix
