#include "editing/canvas/tunnel_command.h"

#include "texts/texts.h"

namespace trassix {

namespace {

bool mayLeaveBranches(ToolSite& site, const TunnelChains& chains) {
  return chains.branches.empty() ||
         site.questions().confirm(
             {tr("Tunnel"),
              trCount(
                  "Track leaves the tunnel on the way, at one piece. It gets no portal there. "
                  "Go on?",
                  "Track leaves the tunnel on the way, at %1% pieces. It gets no portals there. "
                  "Go on?",
                  chains.branches.size())});
}

} // namespace

const TunnelChoice& tunnelChoiceNow(const Layout& layout) {
  static TunnelChoice choice;
  static std::uint64_t revision = 0;
  if (revision != layout.revision()) { // unique in the process
    choice = tunnelChoice(layout);
    revision = layout.revision();
  }
  return choice;
}

void runTunnel(ToolSite& site, TunnelOpening opening) {
  const TunnelChoice choice = tunnelChoiceNow(site.layout());
  if (!choice.present.empty()) {
    if (removeTunnels(site.layout(), choice.present))
      site.workspace.changed();
  } else if (choice.problem || mayLeaveBranches(site, choice.chains)) {
    site.report(placeTunnel(site.layout(), opening));
  }
}

std::vector<MenuRow> tunnelRows(ToolSite& site) {
  const TunnelChoice& choice = tunnelChoiceNow(site.layout());
  if (!choice.present.empty())
    return {{tr("Remove Tunnel"), "", {}, [&site] { runTunnel(site); }}};
  if (choice.problem)
    return {};
  std::vector<MenuRow> rows{{tr("Tunnel"), "", {}, [&site] { runTunnel(site); }}};
  if (choice.chains.ways.size() == 1)
    rows.push_back({tr("Tunnel in Old Stone, without Wire"), "", {}, [&site] {
                      runTunnel(site, TunnelOpening::OldStone);
                    }});
  return rows;
}

} // namespace trassix
