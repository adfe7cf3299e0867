#include "editing/supports/bridge_kind.h"

#include "catalog/piece_def.h"

namespace trassix {

BridgeKind bridgeKindOf(const PieceDef& definition) {
  if (!definition.bridge || definition.ramp)
    return BridgeKind::None;
  const auto named = [&](const char* word) {
    return definition.name.find(word) != std::string::npos;
  };
  return named("Arch") ? BridgeKind::Arch : named("Truss") ? BridgeKind::Truss : BridgeKind::Girder;
}

} // namespace trassix
