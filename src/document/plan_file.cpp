#include "document/plan_file.h"

#include "document/entities.h"
#include "document/layout_reader.h"
#include "document/repairs.h"
#include "document/unread_part.h"

#include <utility>

namespace trassix {

bool PlanFile::whole() const {
  return !result.failed() && isWholeLayout(text);
}

PlanFile readPlanFile(const std::filesystem::path& path) {
  PlanFile plan;
  plan.result.message = readTextFile(path, plan.text, &plan.result);
  return plan.result.failed() ? std::move(plan) : planFromText(std::move(plan.text));
}

PlanFile planFromText(std::string text) {
  PlanFile plan;
  plan.text = std::move(text);
  plan.result.message = readLayout(plan.text, plan.layout, plan.name);
  if (plan.result.failed())
    return plan;
  plan.unread = unreadPart(plan.text);
  plan.repairs = describeRepairs(makeSound(plan.layout));
  decodeTexts(plan.layout, plan.name);
  return plan;
}

} // namespace trassix
