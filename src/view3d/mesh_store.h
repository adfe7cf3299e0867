#pragma once

#include "view3d/scene/free_ranges.h"
#include "view3d/scene/mesh.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace trassix {

struct BufferCalls;

/// Meshes where the driver draws them from: many in one buffer, so that a pass takes a few calls,
/// whatever it consists of. A driver without buffers gets them from memory. The context that was
/// current at first has to be current at each call.
class MeshStore {
 public:
  explicit MeshStore(const BufferCalls& calls);
  ~MeshStore(); ///< the buffers go with their context
  MeshStore(const MeshStore&) = delete;
  MeshStore& operator=(const MeshStore&) = delete;

  struct Place {
    std::size_t page = 0;
    std::uint32_t firstVertex = 0;
    std::uint32_t vertices = 0; ///< none: nowhere
    std::uint32_t firstIndex = 0;
    std::array<std::uint32_t, kFinishes> indices{};

    bool known() const { return vertices > 0; }
  };
  Place put(const Mesh& mesh);
  void drop(Place& place);

  /// What is drawn with the same state, gathered by buffer.
  class Draws {
   public:
    void clear();
    void add(const Place& place);
    bool empty() const;

   private:
    friend MeshStore;
    struct Page {
      std::vector<int> counts;
      std::vector<const void*> starts;
    };
    std::array<std::vector<Page>, kFinishes> pages_;
  };
  enum class Looks : std::uint8_t { Shape, Colored }; ///< a shape has the colour that is set
  void draw(const Draws& draws, Finish finish, Looks looks);

  std::size_t sentTriangles() const { return sent_; } ///< in all

 private:
  struct Page;

  std::size_t pageWithRoom(std::uint32_t vertices, std::uint32_t indices, Place& place);

  std::unique_ptr<BufferCalls> calls_;
  std::vector<Page> pages_;
  std::size_t sent_ = 0;
};

} // namespace trassix
