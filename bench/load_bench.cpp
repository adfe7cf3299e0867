// Reading a layout file against a general XML parser that reads the same bytes, followed by the
// conversion of the same attributes from its tree. The parser's side does not even build records.
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "measures/number_text.h"
#include "ratio.h"
#include "support/random_plan.h"

#include <initializer_list>
#include <pugixml.hpp>

namespace trassix::bench {

namespace {

class TreeConversion {
 public:
  double sum = 0;
  std::size_t textLength = 0;

  void layout(const pugi::xml_node& root) {
    texts(root, {"name"});
    integers(root, {"units"});
    for (const pugi::xml_node& run : root.child("grade_runs").children()) {
      reals(run, {"deg"});
      integers(run, {"anchor", "conn"});
    }
    for (const pugi::xml_node& piece : root.child("pieces").children())
      placedPiece(piece);
    for (const pugi::xml_node& item : root.child("scenery").children()) {
      integers(item, {"id"});
      texts(item, {"item"});
      reals(item, {"x", "y", "heading", "scalex", "scaley"});
      integers(item, {"level", "sel"});
    }
    integers(root.child("levels"), {"active"});
    for (const pugi::xml_node& level : root.child("levels").children()) {
      texts(level, {"name"});
      reals(level, {"height"});
      integers(level, {"id", "visible", "trackcolor", "r", "g", "b"});
      points(level);
    }
    points(root.child("baseboard"));
    integers(root.child("lastshape"), {"id"});
    reals(root.child("lastshape"), {"w_mm", "h_mm", "w2_mm", "h2_mm"});
    for (const pugi::xml_node& label : root.child("labels").children()) {
      integers(label, {"id"});
      reals(label, {"x", "y"});
      texts(label, {"text"});
    }
    for (const pugi::xml_node& shape : root.child("shapes").children()) {
      integers(shape, {"id", "r", "g", "b", "a", "outline", "level"});
      reals(shape, {"height"});
      texts(shape, {"label"});
      points(shape);
    }
    for (const pugi::xml_node& tunnel : root.child("tunnels").children()) {
      integers(tunnel, {"id", "portalA", "portalB", "anchorA", "anchorB"});
      for (const pugi::xml_node& covers : tunnel.children())
        integers(covers, {"piece"});
    }
    for (const pugi::xml_node& helix : root.child("helices").children()) {
      integers(helix, {"id"});
      reals(helix, {"cx", "cy", "heading"});
      texts(helix, {"variant"});
      integers(helix, {"bottomR1", "bottomR2", "topR1", "topR2"});
    }
  }

 private:
  void placedPiece(const pugi::xml_node& piece) {
    integers(piece, {"id"});
    texts(piece, {"cat"});
    reals(piece, {"x", "y", "heading", "z", "grade"});
    integers(piece, {"rev", "free", "level", "helix", "sel", "color"});
    for (const pugi::xml_node& joint : piece.children())
      integers(joint, {"conn", "target", "tconn"});
  }

  void points(const pugi::xml_node& parent) {
    for (const pugi::xml_node& point : parent.children())
      reals(point, {"x", "y"});
  }

  void integers(const pugi::xml_node& node, std::initializer_list<const char*> names) {
    for (const char* name : names) {
      std::int32_t value = 0;
      readInteger(node.attribute(name).value(), value);
      sum += value;
    }
  }

  void reals(const pugi::xml_node& node, std::initializer_list<const char*> names) {
    for (const char* name : names) {
      double value = 0;
      readReal(node.attribute(name).value(), value);
      sum += value;
    }
  }

  void texts(const pugi::xml_node& node, std::initializer_list<const char*> names) {
    for (const char* name : names)
      textLength += std::string_view(node.attribute(name).value()).size();
  }
};

std::string textOf(int pieces) {
  std::string text;
  writeLayout(test::randomPlan(1, pieces), "plan", text);
  return text;
}

void readOnce(const std::string& text) {
  Layout layout;
  std::string name;
  readLayout(text, layout, name);
  benchmark::DoNotOptimize(layout.pieces().data());
}

void load(benchmark::State& state) {
  const std::string text = textOf(static_cast<int>(state.range(0)));
  const auto tree = [&text] {
    pugi::xml_document document;
    document.load_buffer(text.data(), text.size());
    TreeConversion conversion;
    conversion.layout(document.child("layout"));
    benchmark::DoNotOptimize(conversion.sum);
    benchmark::DoNotOptimize(conversion.textLength);
  };
  compare(
      state, 1.0, [&text] { readOnce(text); }, tree);
}
BENCHMARK(load)->Arg(1000)->Arg(10000)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);

void loadGrowth(benchmark::State& state) {
  growth(state, 2.0, [](int pieces) { return [text = textOf(pieces)] { readOnce(text); }; });
}
BENCHMARK(loadGrowth)->UseManualTime()->Iterations(1);

} // namespace

} // namespace trassix::bench
