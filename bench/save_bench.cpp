// Putting together and writing out a layout file against the same lines through fprintf, both to a
// device that swallows them: the disk is as slow for either.
#include "document/layout_writer.h"
#include "ratio.h"
#include "support/random_plan.h"

#include <cstdio>

namespace trassix::bench {

namespace {

void printPoints(std::FILE* file, const char* opening, const std::vector<Point>& points) {
  for (const Point& p : points)
    std::fprintf(file, "%s x=\"%.4f\" y=\"%.4f\"/>\n", opening, p.x, p.y);
}

void printPiece(std::FILE* file, const PlacedPiece& p) {
  std::fprintf(file,
               "    <piece id=\"%d\" cat=\"%s\" x=\"%.4f\" y=\"%.4f\" heading=\"%.4f\" z=\"%.4f\" "
               "grade=\"%.4f\"",
               p.id, p.cat.c_str(), p.x, p.y, p.heading, p.z, p.grade);
  if (p.rev)
    std::fprintf(file, " rev=\"1\"");
  if (p.free)
    std::fprintf(file, " free=\"1\"");
  std::fprintf(file, " level=\"%d\"", p.level);
  if (p.helix != -1)
    std::fprintf(file, " helix=\"%d\"", p.helix);
  std::fprintf(file, " sel=\"%d\"", p.sel ? 1 : 0);
  if (p.hasColor)
    std::fprintf(file, " color=\"%d\"", p.color.r * 65536 + p.color.g * 256 + p.color.b);
  std::fprintf(file, ">\n");
  int connector = 0;
  for (const Joint& joint : p.joints) {
    if (!joint.open())
      std::fprintf(file, "      <joint conn=\"%d\" target=\"%d\" tconn=\"%d\"/>\n", connector,
                   joint.target, joint.tconn);
    ++connector;
  }
  std::fprintf(file, "    </piece>\n");
}

void printSettings(std::FILE* file, const PlanSettings& settings) {
  std::fprintf(file, "  <levels active=\"%d\">\n", settings.activeLevel);
  for (const Level& l : settings.levels) {
    const bool outlined = l.outline.size() > 2;
    std::fprintf(file,
                 "    <level id=\"%d\" name=\"%s\" visible=\"%d\" height=\"%.4f\" "
                 "trackcolor=\"%d\" r=\"%d\" g=\"%d\" b=\"%d\"%s\n",
                 l.id, l.name.c_str(), l.visible ? 1 : 0, l.height, l.trackcolor ? 1 : 0, l.color.r,
                 l.color.g, l.color.b, outlined ? ">" : "/>");
    if (outlined) {
      printPoints(file, "      <pt", l.outline);
      std::fprintf(file, "    </level>\n");
    }
  }
  std::fprintf(file, "  </levels>\n");
  if (!settings.baseboard.empty()) {
    std::fprintf(file, "  <baseboard>\n");
    printPoints(file, "    <vertex", settings.baseboard);
    std::fprintf(file, "  </baseboard>\n");
  }
  const LastShape& last = settings.lastShape;
  std::fprintf(
      file, "  <lastshape id=\"%d\" w_mm=\"%.4f\" h_mm=\"%.4f\" w2_mm=\"%.4f\" h2_mm=\"%.4f\"/>\n",
      last.kind, last.w, last.h, last.w2, last.h2);
}

void printLayout(std::FILE* file, const Layout& layout) {
  const PlanContent& content = layout.content();
  std::fprintf(file,
               "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<layout name=\"%s\" version=\"1\" "
               "units=\"%d\">\n  <grade_runs>\n",
               "plan", layout.settings().units);
  for (const GradeRun& run : content.gradeRuns)
    std::fprintf(file, "    <run deg=\"%.4f\" anchor=\"%d\" conn=\"%d\"/>\n", run.deg, run.anchor,
                 run.conn);
  std::fprintf(file, "  </grade_runs>\n  <pieces>\n");
  for (const PlacedPiece& piece : content.pieces)
    printPiece(file, piece);
  std::fprintf(file, "  </pieces>\n  <scenery>\n");
  for (const SceneryItem& s : content.scenery)
    std::fprintf(file,
                 "    <sceneryitem id=\"%d\" item=\"%s\" x=\"%.4f\" y=\"%.4f\" heading=\"%.4f\" "
                 "scalex=\"%.4f\" scaley=\"%.4f\" level=\"%d\" sel=\"%d\"/>\n",
                 s.id, s.item.c_str(), s.x, s.y, s.heading, s.scalex, s.scaley, s.level,
                 s.sel ? 1 : 0);
  std::fprintf(file, "  </scenery>\n");
  printSettings(file, layout.settings());
  std::fprintf(file, "  <labels>\n");
  for (const Label& l : content.labels)
    std::fprintf(file, "    <label id=\"%d\" x=\"%.4f\" y=\"%.4f\" text=\"%s\"/>\n", l.id, l.x, l.y,
                 l.text.c_str());
  std::fprintf(file, "  </labels>\n  <shapes>\n");
  for (const Shape& s : content.shapes) {
    std::fprintf(file,
                 "    <shape id=\"%d\" r=\"%d\" g=\"%d\" b=\"%d\" a=\"%d\" outline=\"%d\" "
                 "level=\"%d\" height=\"%.4f\" label=\"%s\">\n",
                 s.id, s.color.r, s.color.g, s.color.b, s.a, s.outline ? 1 : 0, s.level, s.height,
                 s.label.c_str());
    printPoints(file, "      <v", s.points);
    std::fprintf(file, "    </shape>\n");
  }
  std::fprintf(file, "  </shapes>\n  <tunnels>\n");
  for (const Tunnel& t : content.tunnels) {
    std::fprintf(file,
                 "    <tunnel id=\"%d\" portalA=\"%d\" portalB=\"%d\" anchorA=\"%d\" "
                 "anchorB=\"%d\">\n",
                 t.id, t.portalA, t.portalB, t.anchorA, t.anchorB);
    for (const std::int32_t piece : t.covers)
      std::fprintf(file, "      <covers piece=\"%d\"/>\n", piece);
    std::fprintf(file, "    </tunnel>\n");
  }
  std::fprintf(file, "  </tunnels>\n  <helices>\n");
  for (const Helix& h : content.helices)
    std::fprintf(file,
                 "    <helix id=\"%d\" cx=\"%.4f\" cy=\"%.4f\" heading=\"%.4f\" variant=\"%s\" "
                 "bottomR1=\"%d\" bottomR2=\"%d\" topR1=\"%d\" topR2=\"%d\"/>\n",
                 h.id, h.cx, h.cy, h.heading, h.variant.c_str(), h.bottomR1, h.bottomR2, h.topR1,
                 h.topR2);
  std::fprintf(file, "  </helices>\n</layout>\n");
}

void writeOut(std::FILE* file, const Layout& layout) {
  writeLayout(layout, "plan",
              [file](std::string_view text) { std::fwrite(text.data(), 1, text.size(), file); });
}

template <class Print>
long lengthOf(const Layout& layout, Print print) {
  std::FILE* file = std::tmpfile();
  if (file == nullptr)
    return -1;
  print(file, layout);
  const long length = std::ftell(file);
  std::fclose(file);
  return length;
}

void save(benchmark::State& state) {
  const Layout plan = test::randomPlan(1, static_cast<int>(state.range(0)));
  if (lengthOf(plan, writeOut) != lengthOf(plan, printLayout)) {
    state.SkipWithError("not the same lines");
    return;
  }
#ifdef _WIN32
  std::FILE* file = std::fopen("NUL", "w");
#else
  std::FILE* file = std::fopen("/dev/null", "w");
#endif
  if (file == nullptr) {
    state.SkipWithError("nothing to write to");
    return;
  }
  const auto ours = [&] {
    writeOut(file, plan);
    std::fflush(file);
  };
  const auto printed = [&] {
    printLayout(file, plan);
    std::fflush(file);
  };
  compare(state, 1.0 / 3, ours, printed);
  std::fclose(file);
}
BENCHMARK(save)->Arg(1000)->Arg(10000)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);

void saveGrowth(benchmark::State& state) {
  growth(state, 2.0, [](int pieces) {
    return [plan = test::randomPlan(1, pieces)] {
      writeLayout(plan, "plan",
                  [](std::string_view text) { benchmark::DoNotOptimize(text.data()); });
    };
  });
}
BENCHMARK(saveGrowth)->UseManualTime()->Iterations(1);

} // namespace

} // namespace trassix::bench
