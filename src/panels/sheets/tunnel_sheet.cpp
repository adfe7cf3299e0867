#include "document/plan_content.h"
#include "editing/tunnels/tunnel_facts.h"
#include "measures/measure_format.h"
#include "panels/sheets/sheet_builder.h"
#include "texts/texts.h"

namespace trassix {

void describeTunnel(SheetBuilder& build, const Tunnel& tunnel) {
  const std::optional<TunnelFacts> facts = tunnelFacts(build.layout, tunnel);
  if (!facts)
    return;
  build.fixed(tr("Tunnel"), facts->tracks == 2 ? tr("Two tracks") : tr("One track"));
  build.fixedLength(tr("Tunnel length"), facts->length);
  if (!facts->hasOpening())
    return;
  build.fixed(tr("Opening"), formatSize(facts->opening.width, facts->opening.height, build.units));
  if (facts->sharpest > 0)
    build.fixed(tr("Sharpest curve"),
                facts->sufficesForCurve()
                    ? tr("%1%, wide enough", {formatLength(facts->sharpest, build.units)})
                    : tr("%1%, needs %2% in width", {formatLength(facts->sharpest, build.units),
                                                     formatLength(facts->needed, build.units)}));
  build.fixed(tr("Overhead wire"),
              facts->sufficesForWire()
                  ? tr("High enough")
                  : tr("Needs %1% in height", {formatLength(facts->heightWithWire, build.units)}));
}

} // namespace trassix
