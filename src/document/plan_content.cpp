#include "document/plan_content.h"

namespace trassix {

PlanContent::PlanContent() = default;
PlanContent::PlanContent(const PlanContent&) = default;
PlanContent::PlanContent(PlanContent&&) noexcept = default;
PlanContent& PlanContent::operator=(const PlanContent&) = default;
PlanContent& PlanContent::operator=(PlanContent&&) noexcept = default;
PlanContent::~PlanContent() = default;

bool PlanContent::operator==(const PlanContent&) const = default;

void PlanContent::mirrorLastGradeRun() {
  currentGrade = gradeRuns.empty() ? CurrentGrade{}
                                   : CurrentGrade{true, gradeRuns.back().deg,
                                                  gradeRuns.back().anchor, gradeRuns.back().conn};
}

std::int32_t PlanContent::partnerOf(std::int32_t piece) const {
  for (const PiecePair& pair : pairs)
    if (pair.has(piece))
      return pair.first == piece ? pair.second : pair.first;
  return -1;
}

} // namespace trassix
