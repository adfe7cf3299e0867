#include "document/open_plan.h"

#include "document/layout_writer.h"
#include "texts/texts.h"

#include <utility>

namespace trassix {

namespace fs = std::filesystem;

void OpenPlan::startNew(std::int32_t units) {
  layout_.clear();
  layout_.ensureLevel();
  layout_.editSettings().activeLevel = 1;
  layout_.editSettings().units = units;
  origin_ = {};
  unsaved_ = false;
}

FileResult OpenPlan::take(PlanFile plan, const PlanOrigin& origin, bool unsaved) {
  if (plan.result.failed())
    return plan.result;
  layout_ = std::move(plan.layout);
  name_ = std::move(plan.name);
  origin_ = plan.unread.empty() ? origin : PlanOrigin();
  unsaved_ = unsaved;
  if (!plan.unread.empty())
    plan.result.notices.push_back(tr(
        "Not all of this file was understood (%1%): what could be read is shown, and saving will "
        "ask for a name, so that the file can stay as it is.",
        {plan.unread}));
  if (!plan.repairs.empty())
    plan.result.notices.push_back(plan.repairs);
  return plan.result;
}

FileResult OpenPlan::startFrom(std::string text) {
  return take(planFromText(std::move(text)), {}, true);
}

FileResult OpenPlan::load(const fs::path& path) {
  PlanFile plan = readPlanFile(path);
  const PlanOrigin origin = PlanOrigin::of(path, plan.text);
  return take(std::move(plan), origin, false);
}

FileResult OpenPlan::loadCopy(const fs::path& copy, const PlanOrigin& origin) {
  return take(readPlanFile(copy), origin, true);
}

FileResult OpenPlan::save() {
  FileResult result;
  std::string text;
  result.message = writeLayout(layout_, name_, text);
  if (!result.failed())
    result.message = writeTextFile(origin_.file, text, &result);
  if (!result.failed()) {
    origin_ = PlanOrigin::of(origin_.file, text);
    unsaved_ = false;
  }
  return result;
}

FileResult OpenPlan::saveAs(const fs::path& path, std::string_view name) {
  origin_ = {path, contentMarkOf(path), std::time(nullptr)};
  name_ = name;
  return save();
}

void OpenPlan::fileDeleted(const fs::path& path) {
  if (path == origin_.file)
    origin_ = {};
}

ImportResult importPlan(const fs::path& source, const fs::path& target, std::string_view name) {
  const PlanFile plan = readPlanFile(source);
  ImportResult result{plan.result};
  if (!result.failed() && !plan.whole())
    result.message = tr("It does not hold a whole layout.");
  if (result.failed())
    return result;
  result.step = ImportResult::Step::Copy;
  if (!sameFile(source, target))
    result.message = writeBytes(target, plan.text, &result);
  if (result.failed())
    return result;
  result.step = ImportResult::Step::Done;
  if (!plan.unread.empty()) {
    result.notices = {tr("Not all of this file was understood (%1%): it was taken over as it "
                         "is, with the name that is stored in it.",
                         {plan.unread})};
    return result;
  }
  // Where this fails the copy is there all the same, as it came.
  if (saveLayout(plan.layout, target, name, &result).empty() && !plan.repairs.empty())
    result.notices = {plan.repairs};
  return result;
}

} // namespace trassix
