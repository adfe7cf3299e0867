#pragma once

#include "wizards/layout/layout_proposal.h"
#include "wizards/layout/steps.h"

#include <cstdint>
#include <optional>

namespace trassix {

/// Why a task cannot even be sought for: its table, its radii.
std::optional<LayoutRefusal> taskRefusal(const LayoutTask& task, std::int32_t units);

/// Finds out what of a task that has no layout stands against it, and what would help.
Steps explainRefusal(LayoutTask task, std::int32_t units, LayoutRefusal& refusal);

} // namespace trassix
