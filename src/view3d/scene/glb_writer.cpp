#include "view3d/scene/glb_writer.h"

#include "document/layout.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <map>
#include <nlohmann/json.hpp>

namespace trassix {

namespace {

using nlohmann::json;

constexpr int kFloat = 5126;
constexpr int kUnsignedShort = 5123;
constexpr int kUnsignedInt = 5125;
constexpr int kVertexData = 34962;
constexpr int kIndexData = 34963;
constexpr float kMetre = 0.001F;

const char* nameOf(SceneGroup group) {
  switch (group) {
  case SceneGroup::Board:
    return "board";
  case SceneGroup::Plates:
    return "decks";
  case SceneGroup::Ground:
    return "ground";
  case SceneGroup::Track:
    return "track";
  case SceneGroup::Supports:
    return "supports";
  case SceneGroup::Scenery:
    return "scenery";
  case SceneGroup::Posts:
    return "posts";
  case SceneGroup::Grades:
    return "grades";
  }
  return "";
}

/// Colours are meant as a screen shows them; the file holds how much light they give.
std::uint16_t linear(std::uint8_t channel) {
  const double c = channel / 255.0;
  const double light = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  return static_cast<std::uint16_t>(std::lround(light * 65535));
}

class GlbFile {
 public:
  GlbFile() {
    root_["asset"] = {{"version", "2.0"}, {"generator", "Trassix"}};
    root_["materials"] = json::array();
    addMaterial("matte", 0.9);
    addMaterial("water", 0.15);
  }

  void add(const char* name, const Mesh& mesh) {
    json primitives = json::array();
    for (std::size_t finish = 0; finish < kFinishes; ++finish)
      if (!mesh.indices[finish].empty())
        primitives.push_back(primitive(mesh, finish));
    if (primitives.empty())
      return;
    root_["nodes"].push_back({{"name", name}, {"mesh", root_["nodes"].size()}});
    root_["meshes"].push_back({{"name", name}, {"primitives", std::move(primitives)}});
  }

  std::string text() {
    json nodes = json::array();
    for (std::size_t i = 0; i < root_["nodes"].size(); ++i)
      nodes.push_back(i);
    json scene = {{"name", "layout"}};
    if (nodes.empty())
      root_.erase("nodes");
    else
      scene["nodes"] = std::move(nodes);
    root_["scenes"] = json::array({std::move(scene)});
    root_["scene"] = 0;
    if (!data_.empty())
      root_["buffers"] = json::array({{{"byteLength", data_.size()}}});
    std::string head = root_.dump();
    head.resize((head.size() + 3) / 4 * 4, ' ');
    std::string file = "glTF";
    const std::size_t size = 12 + 8 + head.size() + (data_.empty() ? 0 : 8 + data_.size());
    put(file, 2);
    put(file, size);
    put(file, head.size());
    file += "JSON" + head;
    if (!data_.empty()) {
      put(file, data_.size());
      file += std::string("BIN\0", 4) + data_;
    }
    return file;
  }

 private:
  void addMaterial(const char* name, double roughness) {
    root_["materials"].push_back(
        {{"name", name},
         {"doubleSided", true},
         {"pbrMetallicRoughness", {{"metallicFactor", 0}, {"roughnessFactor", roughness}}}});
  }

  static void put(std::string& to, std::size_t number) {
    for (int shift = 0; shift < 32; shift += 8)
      to.push_back(static_cast<char>((number >> shift) & 0xffU));
  }
  void put(float value) { put(data_, std::bit_cast<std::uint32_t>(value)); }
  void put(std::uint16_t value) {
    data_.push_back(static_cast<char>(value & 0xffU));
    data_.push_back(static_cast<char>(value >> 8U));
  }

  /// The bytes from `from` on, as an accessor.
  std::size_t accessor(std::size_t from, int target, json what) {
    json view = {{"buffer", 0}, {"byteOffset", from}, {"byteLength", data_.size() - from}};
    view["target"] = target;
    what["bufferView"] = root_["bufferViews"].size();
    root_["bufferViews"].push_back(std::move(view));
    root_["accessors"].push_back(std::move(what));
    return root_["accessors"].size() - 1;
  }

  json primitive(const Mesh& mesh, std::size_t finish) {
    // Only the vertices that this finish uses.
    std::vector<std::uint32_t> used;
    std::vector<std::uint32_t> indices;
    std::vector<std::int64_t> number(mesh.vertices.size(), -1);
    for (const std::uint32_t index : mesh.indices[finish]) {
      if (number[index] < 0) {
        number[index] = static_cast<std::int64_t>(used.size());
        used.push_back(index);
      }
      indices.push_back(static_cast<std::uint32_t>(number[index]));
    }
    json attributes;
    attributes["POSITION"] = positions(mesh, used);
    std::size_t from = data_.size();
    for (const std::uint32_t index : used) {
      const std::array<float, 3>& n = mesh.vertices[index].normal;
      for (const float value : {n[0], n[2], -n[1]})
        put(value);
    }
    attributes["NORMAL"] = accessor(
        from, kVertexData, {{"componentType", kFloat}, {"count", used.size()}, {"type", "VEC3"}});
    from = data_.size();
    for (const std::uint32_t index : used) {
      const std::array<std::uint8_t, 4>& c = mesh.vertices[index].color;
      for (std::size_t i = 0; i < 3; ++i)
        put(linear(c[i]));
      put(std::uint16_t{65535});
    }
    attributes["COLOR_0"] = accessor(from, kVertexData,
                                     {{"componentType", kUnsignedShort},
                                      {"normalized", true},
                                      {"count", used.size()},
                                      {"type", "VEC4"}});
    from = data_.size();
    for (const std::uint32_t index : indices)
      put(data_, index);
    const std::size_t list =
        accessor(from, kIndexData,
                 {{"componentType", kUnsignedInt}, {"count", indices.size()}, {"type", "SCALAR"}});
    return {{"attributes", std::move(attributes)}, {"indices", list}, {"material", finish}};
  }

  std::size_t positions(const Mesh& mesh, const std::vector<std::uint32_t>& used) {
    const std::size_t from = data_.size();
    std::array<float, 3> least{};
    std::array<float, 3> most{};
    for (std::size_t i = 0; i < used.size(); ++i) {
      const std::array<float, 3>& p = mesh.vertices[used[i]].position;
      const std::array<float, 3> there{p[0] * kMetre, p[2] * kMetre, -p[1] * kMetre};
      for (std::size_t k = 0; k < 3; ++k) {
        put(there[k]);
        least[k] = i == 0 ? there[k] : std::min(least[k], there[k]);
        most[k] = i == 0 ? there[k] : std::max(most[k], there[k]);
      }
    }
    return accessor(from, kVertexData,
                    {{"componentType", kFloat},
                     {"count", used.size()},
                     {"type", "VEC3"},
                     {"min", least},
                     {"max", most}});
  }

  json root_;
  std::string data_;
};

void append(Mesh& to, const Mesh& from) {
  const auto first = static_cast<std::uint32_t>(to.vertices.size());
  to.vertices.insert(to.vertices.end(), from.vertices.begin(), from.vertices.end());
  for (std::size_t finish = 0; finish < kFinishes; ++finish)
    for (const std::uint32_t index : from.indices[finish])
      to.indices[finish].push_back(first + index);
}

} // namespace

std::string glbOf(const Layout& layout, const Scene& scene, const SceneView& view) {
  std::map<SceneGroup, Mesh> groups;
  for (const auto& [key, batch] : scene.batches)
    if (isShown(layout, key, batch, view))
      append(groups[key.group], batch.fine);
  GlbFile file;
  for (const auto& [group, mesh] : groups)
    file.add(nameOf(group), mesh);
  return file.text();
}

} // namespace trassix
