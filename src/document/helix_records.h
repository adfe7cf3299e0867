#pragma once

#include "document/plan_content.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// Ids, sorted, of the helices whose track is selected, all of it.
std::vector<std::int32_t> selectedHelices(const PlanContent& content);

} // namespace trassix
