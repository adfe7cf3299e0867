#pragma once

#include <cstdint>

namespace trassix {

struct PieceDef;

enum class BridgeKind : std::uint8_t { None, Girder, Truss, Arch };

/// How a piece carries itself between its ends. Ramps do not: they stand on piers.
BridgeKind bridgeKindOf(const PieceDef& definition);

} // namespace trassix
