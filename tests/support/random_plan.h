#pragma once

#include "document/layout.h"
#include "document/record_kinds.h"

#include <cstdint>

namespace trassix::test {

/// A plan with every kind of record, every flag both ways and numbers that four decimals hold
/// exactly: `pieces` pieces joined to a chain with some loops, and the other records in proportion.
/// The same seed gives the same plan.
Layout randomPlan(std::uint32_t seed, int pieces);

} // namespace trassix::test
